#include "FtpFolder.h"
#include "MarkingTranslator.h"
#include "NameDialog.h"
#include "ShownDialog.h"
#include "TestMain.h"

#include <QDir>
#include <QFileInfo>

#include <functional>

namespace {

using Mode = QZelFileDialog::OperateMode;

const QString folder = ShownDialog::folder();
const QString sub = QStringLiteral("sub");
const QString notes = QStringLiteral("notes.txt");
const QString newAction = QStringLiteral("new");
const QString renameAction = QStringLiteral("rename");
const QString deleteAction = QStringLiteral("delete");

// The actions of the menu that an act opens; none when no menu comes.
QStringList menuOf(const std::function<void()> &act, QPoint *position = nullptr)
{
    QStringList texts;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            texts = User::texts(menu);
            if (position)
                *position = menu->pos();
            menu->close();
        }
    });
    timer.start(5);
    act();
    return texts;
}

QStringList entries(const QString &path)
{
    return QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

// Removes a folder or file and waits until the view has noticed.
bool vanish(QAbstractItemView *view, const QString &name)
{
    const QString path = folder + name;
    return (QFileInfo(path).isDir() ? QDir(path).removeRecursively() : QFile::remove(path))
           && QTest::qWaitFor([&] { return !User::items(view).contains(name); });
}

QString shownIn(QTreeView *list)
{
    return list->rootIndex().data(Qt::UserRole + 1).toString();
}

} // namespace

class tst_QZelFileDialog_menu : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void treeHasAMenuForFoldersAndOneForTheRest();
    void listHasAMenuForFilesOnly();
    void menusOpenWhereTheClickWas();
    void menusBelongToTheDialog();
    void actionsAreTranslated();
    void keyboardChoosesToo();

    void nameDialogIsOnTopOfTheFileDialog();
    void newFolderGoesIntoTheClickedOne();
    void newFolderGoesIntoTheRootFromTheBlankMenu();
    void newFolderAfterAllOthersShowsNothing();
    void newFolderThatCannotBeMadeIsNotReported_data();
    void newFolderThatCannotBeMadeIsNotReported();

    void emptyFolderIsDeletedWithoutAsking();
    void folderWithContentsStaysAndTheListMoves();
    void nestedFolderIsDeletedFromItsParent();
    void listMovesOverTheTop();

    void folderMayVanishUnderItsMenu_data();
    void folderMayVanishUnderItsMenu();
    void folderMayVanishWhileItsNameIsAsked_data();
    void folderMayVanishWhileItsNameIsAsked();
    void fileMayVanishUnderItsMenu();
    void fileMayVanishWhileItsNameIsAsked();
    void startFolderMayVanishWhileANameIsAsked_data();
    void startFolderMayVanishWhileANameIsAsked();
};

void tst_QZelFileDialog_menu::init()
{
    QVERIFY(FtpFolder::isPrivate());
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(makeEntries(folder,
                        { notes, QStringLiteral("sub/"), QStringLiteral("full/deep/x.txt") }));
}

void tst_QZelFileDialog_menu::treeHasAMenuForFoldersAndOneForTheRest()
{
    ShownDialog dialog(Mode::OpenFile);
    QCOMPARE(menuOf([&] { User::rightClickItem(dialog.tree(), sub); }),
             QStringList({ newAction, renameAction, deleteAction }));
    QCOMPARE(menuOf([&] { User::rightClickBlank(dialog.tree()); }), QStringList(newAction));
    // Neither shows or chooses anything by itself.
    QCOMPARE(entries(folder).size(), 3);
    QVERIFY(dialog.stays());
}

void tst_QZelFileDialog_menu::listHasAMenuForFilesOnly()
{
    ShownDialog dialog(Mode::SaveFile);
    QCOMPARE(menuOf([&] { User::rightClickItem(dialog.list(), notes); }), QStringList(renameAction));
    QCOMPARE(menuOf([&] { User::rightClickItem(dialog.list(), sub); }), QStringList());
    QCOMPARE(menuOf([&] { User::rightClickBlank(dialog.list()); }), QStringList());
}

void tst_QZelFileDialog_menu::menusOpenWhereTheClickWas()
{
    ShownDialog dialog(Mode::OpenFile);
    const QList<QPair<QTreeView *, QString>> items = { { dialog.tree(), sub },
                                                       { dialog.list(), notes } };
    for (const auto &item : items) {
        QTreeView *const view = item.first;
        const QRect cell = view->visualRect(User::item(view, item.second));
        const QPoint click = cell.topLeft() + QPoint(9, 5);
        const QPoint onScreen = view->viewport()->mapToGlobal(click);
        QPoint position;
        QVERIFY(!menuOf([&] { User::rightClickAt(view, click); }, &position).isEmpty());
        QCOMPARE(position, onScreen);
    }
}

void tst_QZelFileDialog_menu::menusBelongToTheDialog()
{
    ShownDialog dialog(Mode::OpenFile);
    const auto menus = dialog.findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(menus.size(), 3);
    const auto actions = dialog.findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(actions.size(), 4);
    QCOMPARE(menus.at(0)->actions(),
             QList<QAction *>({ actions.at(0), actions.at(1), actions.at(2) }));
    QCOMPARE(menus.at(1)->actions(), QList<QAction *>({ actions.at(0) }));
    QCOMPARE(menus.at(2)->actions(), QList<QAction *>({ actions.at(3) }));
}

void tst_QZelFileDialog_menu::actionsAreTranslated()
{
    const MarkingTranslator marker;
    ShownDialog dialog(Mode::OpenFile);
    const auto menus = dialog.findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(User::texts(menus.at(0)), QStringList({ QStringLiteral("[QZelFileDialog|new]"),
                                                     QStringLiteral("[QZelFileDialog|rename]"),
                                                     QStringLiteral("[QZelFileDialog|delete]") }));
    QCOMPARE(User::texts(menus.at(2)), QStringList(QStringLiteral("[QZelFileDialog|rename]")));
}

void tst_QZelFileDialog_menu::keyboardChoosesToo()
{
    ShownDialog dialog(Mode::OpenFile);
    ModalDriver driver;
    driver.on<QMenu>([](QMenu *menu) {
        QTest::keyClick(menu->windowHandle(), Qt::Key_Down);
        QTest::keyClick(menu->windowHandle(), Qt::Key_Down);
        QTest::keyClick(menu->windowHandle(), Qt::Key_Down);
        QTest::keyClick(menu->windowHandle(), Qt::Key_Return);
    });
    User::rightClickItem(dialog.tree(), sub);
    QVERIFY(driver.finished());
    QVERIFY(!QFileInfo::exists(folder + sub));
}

void tst_QZelFileDialog_menu::nameDialogIsOnTopOfTheFileDialog()
{
    ShownDialog dialog(Mode::OpenFile);
    SeenNameDialog seen;
    const QStringList actions = { newAction, renameAction };
    for (const QString &action : actions) {
        ModalDriver driver;
        chooseNext(driver, action);
        nameNext(driver, sub, rejectName(), &seen);
        const WarningGuard emptyName(QStringLiteral("^QDir::mkdir: Empty or null file name"));
        User::rightClickItem(dialog.tree(), sub);
        QVERIFY(driver.finished());
        QCOMPARE(seen.prompt, QStringLiteral("folderName"));
        QCOMPARE(seen.content, QString());
        QCOMPARE(seen.parent, &dialog);
        QCOMPARE(seen.flags, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
        QCOMPARE(seen.modality, Qt::WindowModal);
    }
    QCOMPARE(seen.dialogs, 2);
    // Each went with its command.
    QCOMPARE(dialog.findChildren<QZelFolderNameDialog *>().size(), 0);
}

void tst_QZelFileDialog_menu::newFolderGoesIntoTheClickedOne()
{
    ShownDialog dialog(Mode::OpenFile);
    ModalDriver driver;
    SeenNameDialog seen;
    chooseNext(driver, newAction);
    nameNext(driver, QStringLiteral("  made here "), confirmName(), &seen);
    User::rightClickItem(dialog.tree(), QStringLiteral("full/deep"));
    QVERIFY(driver.finished());
    QCOMPARE(entries(folder + QStringLiteral("full/deep")),
             QStringList({ QStringLiteral("made here"), QStringLiteral("x.txt") }));
}

void tst_QZelFileDialog_menu::newFolderGoesIntoTheRootFromTheBlankMenu()
{
    ShownDialog dialog(Mode::SelectDirectory);
    // Wherever the list is, and whatever was clicked before.
    User::clickItem(dialog.tree(), QStringLiteral("full"));
    menuOf([&] { User::rightClickItem(dialog.tree(), sub); });
    ModalDriver driver;
    SeenNameDialog seen;
    chooseNext(driver, newAction);
    nameNext(driver, QStringLiteral("made"), confirmName(), &seen);
    User::rightClickBlank(dialog.tree());
    QVERIFY(driver.finished());
    QVERIFY(QFileInfo(folder + QStringLiteral("made")).isDir());
}

void tst_QZelFileDialog_menu::newFolderAfterAllOthersShowsNothing()
{
    ShownDialog dialog(Mode::OpenFile);
    User::clickItem(dialog.tree(), sub);
    const QVector<QString> history = dialog.backHistory;
    ModalDriver driver;
    SeenNameDialog seen;
    chooseNext(driver, newAction);
    nameNext(driver, QStringLiteral("made"), confirmName(), &seen);
    User::rightClickItem(dialog.tree(), QStringLiteral("full"));
    QVERIFY(driver.finished());
    QVERIFY(QFileInfo(folder + QStringLiteral("full/made")).isDir());
    QCOMPARE(shownIn(dialog.list()), folder + sub);
    QCOMPARE(dialog.path()->text(), QStringLiteral("/sub/"));
    QCOMPARE(dialog.backHistory, history);
    // The model shows it by itself.
    User::item(dialog.tree(), QStringLiteral("full/made"));
}

void tst_QZelFileDialog_menu::newFolderThatCannotBeMadeIsNotReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("button");
    QTest::newRow("rejected") << QStringLiteral("made") << rejectName();
    QTest::newRow("blanks only") << QStringLiteral("  ") << confirmName();
    QTest::newRow("existing folder") << QStringLiteral("sub") << confirmName();
    QTest::newRow("existing file") << QStringLiteral("notes.txt") << confirmName();
    QTest::newRow("no such folder above") << QStringLiteral("no/made") << confirmName();
}

void tst_QZelFileDialog_menu::newFolderThatCannotBeMadeIsNotReported()
{
    QFETCH(QString, name);
    QFETCH(QString, button);
    const QStringList before = entries(folder);
    ShownDialog dialog(Mode::OpenFile);
    ModalDriver driver;
    SeenNameDialog seen;
    chooseNext(driver, newAction);
    nameNext(driver, name, button, &seen);
    const WarningGuard emptyName(QStringLiteral("^QDir::mkdir: Empty or null file name"));
    User::rightClickBlank(dialog.tree());
    QVERIFY(driver.finished());
    QCOMPARE(entries(folder), before);
    QVERIFY(dialog.stays());
    // With the empty name too it is the file system that refuses.
    QCOMPARE(emptyName.count(), name.trimmed().isEmpty() || button == rejectName() ? 1 : 0);
}

void tst_QZelFileDialog_menu::emptyFolderIsDeletedWithoutAsking()
{
    ShownDialog dialog(Mode::OpenFile);
    User::clickItem(dialog.tree(), QStringLiteral("full"));
    const QVector<QString> history = dialog.backHistory;
    ModalDriver driver;
    chooseNext(driver, deleteAction);
    User::rightClickItem(dialog.tree(), sub);
    QVERIFY(driver.finished());
    QVERIFY(!QFileInfo::exists(folder + sub));
    QCOMPARE(shownIn(dialog.list()) + QLatin1Char('/'), folder);
    QCOMPARE(dialog.path()->text(), QStringLiteral("/"));
    QCOMPARE(dialog.backHistory, history);
}

// The list moves whether the folder went or not.
void tst_QZelFileDialog_menu::folderWithContentsStaysAndTheListMoves()
{
    ShownDialog dialog(Mode::OpenFile);
    User::clickItem(dialog.tree(), QStringLiteral("sub"));
    const QVector<QString> history = dialog.backHistory;
    ModalDriver driver;
    chooseNext(driver, deleteAction);
    User::rightClickItem(dialog.tree(), QStringLiteral("full/deep"));
    QVERIFY(driver.finished());
    QVERIFY(QFileInfo::exists(folder + QStringLiteral("full/deep/x.txt")));
    QCOMPARE(shownIn(dialog.list()), folder + QStringLiteral("full"));
    QCOMPARE(dialog.path()->text(), QStringLiteral("/full/"));
    QCOMPARE(dialog.backHistory, history);
}

void tst_QZelFileDialog_menu::nestedFolderIsDeletedFromItsParent()
{
    QVERIFY(makeEntries(folder, { QStringLiteral("full/empty/") }));
    ShownDialog dialog(Mode::SelectDirectory);
    ModalDriver driver;
    chooseNext(driver, deleteAction);
    User::rightClickItem(dialog.tree(), QStringLiteral("full/empty"));
    QVERIFY(driver.finished());
    QCOMPARE(entries(folder + QStringLiteral("full")), QStringList(QStringLiteral("deep")));
    QCOMPARE(shownIn(dialog.list()), folder + QStringLiteral("full"));
    QCOMPARE(dialog.path()->text(), QStringLiteral("/full/"));
}

// The parent of a top folder already ends with a slash, and gets another.
void tst_QZelFileDialog_menu::listMovesOverTheTop()
{
    QZelFileDialog dialog(nullptr, QStringLiteral("Go"), QStringLiteral("/"));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    ModalDriver driver;
    chooseNext(driver, deleteAction);
    auto *tree = dialog.findChild<QTreeView *>(QStringLiteral("treeV_FileTree"));
    User::rightClickItem(tree, QStringLiteral("proc")); // a mounted folder never goes
    QVERIFY(driver.finished());
    QCOMPARE(dialog.findChild<QLineEdit *>(QStringLiteral("let_FilePath"))->text(),
             QStringLiteral("//"));
}

void tst_QZelFileDialog_menu::folderMayVanishUnderItsMenu_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("new") << newAction;
    QTest::newRow("rename") << renameAction;
    QTest::newRow("delete") << deleteAction;
}

// Nothing is made, renamed or deleted in its place, and the list stays where it was.
void tst_QZelFileDialog_menu::folderMayVanishUnderItsMenu()
{
    QFETCH(QString, action);
    ShownDialog dialog(Mode::OpenFile);
    User::clickItem(dialog.tree(), QStringLiteral("full"));
    ModalDriver driver;
    SeenNameDialog seen;
    driver.on<QMenu>([&](QMenu *menu) {
        QVERIFY(vanish(dialog.tree(), sub));
        User::choose(menu, action);
    });
    if (action != deleteAction)
        nameNext(driver, QStringLiteral("made"), confirmName(), &seen);
    User::rightClickItem(dialog.tree(), sub);
    QVERIFY(driver.finished());
    QCOMPARE(entries(folder), QStringList({ QStringLiteral("full"), notes }));
    QCOMPARE(shownIn(dialog.list()), folder + QStringLiteral("full"));
    QCOMPARE(dialog.path()->text(), QStringLiteral("/full/"));
}

void tst_QZelFileDialog_menu::folderMayVanishWhileItsNameIsAsked_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("new") << newAction;
    QTest::newRow("rename") << renameAction;
}

void tst_QZelFileDialog_menu::folderMayVanishWhileItsNameIsAsked()
{
    QFETCH(QString, action);
    ShownDialog dialog(Mode::OpenFile);
    ModalDriver driver;
    chooseNext(driver, action);
    driver.on<QZelFolderNameDialog>([&](QZelFolderNameDialog *nameDialog) {
        QVERIFY(vanish(dialog.tree(), sub));
        User::type(nameDialog->let_FolderName, QStringLiteral("made"));
        User::clickButton(nameDialog, confirmName());
    });
    User::rightClickItem(dialog.tree(), sub);
    QVERIFY(driver.finished());
    QCOMPARE(entries(folder), QStringList({ QStringLiteral("full"), notes }));
    QCOMPARE(dialog.path()->text(), QStringLiteral("/"));
}

void tst_QZelFileDialog_menu::fileMayVanishUnderItsMenu()
{
    ShownDialog dialog(Mode::OpenFile);
    ModalDriver driver;
    driver.on<QMenu>([&](QMenu *menu) {
        QVERIFY(vanish(dialog.list(), notes));
        User::choose(menu, renameAction);
    });
    User::rightClickItem(dialog.list(), notes);
    QVERIFY(driver.finished());
    QVERIFY(!QApplication::activeModalWidget() || QApplication::activeModalWidget() == &dialog);
    QCOMPARE(entries(folder), QStringList({ QStringLiteral("full"), sub }));
}

void tst_QZelFileDialog_menu::fileMayVanishWhileItsNameIsAsked()
{
    ShownDialog dialog(Mode::OpenFile);
    ModalDriver driver;
    chooseNext(driver, renameAction);
    driver.on<QZelFolderNameDialog>([&](QZelFolderNameDialog *nameDialog) {
        QVERIFY(vanish(dialog.list(), notes));
        User::clickButton(nameDialog, confirmName());
    });
    User::rightClickItem(dialog.list(), notes);
    QVERIFY(driver.finished());
    QCOMPARE(entries(folder), QStringList({ QStringLiteral("full"), sub }));
    QCOMPARE(dialog.name()->text(), QString());
}

void tst_QZelFileDialog_menu::startFolderMayVanishWhileANameIsAsked_data()
{
    QTest::addColumn<bool>("inTree");
    QTest::newRow("folder") << true;
    QTest::newRow("file") << false;
}

void tst_QZelFileDialog_menu::startFolderMayVanishWhileANameIsAsked()
{
    QFETCH(bool, inTree);
    ShownDialog dialog(Mode::OpenFile);
    ModalDriver driver;
    chooseNext(driver, renameAction);
    driver.on<QZelFolderNameDialog>([&](QZelFolderNameDialog *nameDialog) {
        User::type(nameDialog->let_FolderName, QStringLiteral("made"));
        QVERIFY(QDir(folder).removeRecursively());
        User::clickButton(nameDialog, confirmName()); // before the views have noticed
    });
    User::rightClickItem(inTree ? dialog.tree() : dialog.list(), inTree ? sub : notes);
    QVERIFY(driver.finished());
    QVERIFY(!QFileInfo::exists(folder));
    QCOMPARE(dialog.path()->text(), QStringLiteral("/"));
    QCOMPARE(dialog.name()->text(), QString());
    QVERIFY(dialog.stays());
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_menu)

#include "tst_QZelFileDialog_menu.moc"
