#include "FtpFolder.h"
#include "ModalDriver.h"
#include "ShownDialog.h"
#include "TestMain.h"
#include "User.h"

#include <QZelEncDialog.h>
#include <QZelFolderNameDialog.h>

#include <QDir>
#include <QFile>
#include <QMenu>
#include <QPointer>

#include <functional>

namespace {

const QString folder = ShownDialog::folder();
const QString filters = QStringLiteral("Text (*.txt);;All (*)");
const QString untouched = QStringLiteral("untouched");

using Act = std::function<void()>;
// Brings a dialog into a situation in which the act happens.
using Situation = std::function<void(ModalDriver &, QZelFileDialog *, const Act &)>;

QTreeView *list(QZelFileDialog *dialog)
{
    return dialog->findChild<QTreeView *>(QStringLiteral("treeV_FileList"));
}

QTreeView *tree(QZelFileDialog *dialog)
{
    return dialog->findChild<QTreeView *>(QStringLiteral("treeV_FileTree"));
}

void typeName(QZelFileDialog *dialog, const QString &name)
{
    User::type(dialog->findChild<QLineEdit *>(QStringLiteral("let_FileName")), name);
}

void go(QZelFileDialog *dialog)
{
    User::clickButton(dialog, QStringLiteral("btn_OpenSave"));
}

// Boxes have no parent and outlive the dialog: the user still answers them then.
void actInBox(ModalDriver &driver, const QPointer<QZelFileDialog> &dialog, const QString &button,
              const Act &act)
{
    driver.on<QTarnKit::QUIMessageBox>([dialog, button, act](QTarnKit::QUIMessageBox *box) {
        act();
        if (!dialog)
            User::clickButton(box, button);
    });
}

template <typename T>
void actIn(ModalDriver &driver, const Act &act)
{
    driver.on<T>([act](T *) { act(); });
}

void chooseIn(ModalDriver &driver, const QString &action)
{
    driver.on<QMenu>([action](QMenu *menu) { User::choose(menu, action); });
}

void setPassword(ModalDriver &driver)
{
    driver.on<QZelEncDialog>([](QZelEncDialog *dialog) {
        const auto edits = dialog->findChildren<QLineEdit *>();
        for (QLineEdit *edit : edits)
            User::type(edit, QStringLiteral("Abc1"));
        User::clickButton(dialog, QStringLiteral("Confirm"));
    });
}

void inTheDialog(ModalDriver &, QZelFileDialog *, const Act &act)
{
    act();
}

void inTheOverwriteBox(ModalDriver &driver, QZelFileDialog *dialog, const Act &act)
{
    actInBox(driver, dialog, QStringLiteral("Yes"), act);
    typeName(dialog, QStringLiteral("notes"));
    go(dialog);
}

void inTheReplaceBox(ModalDriver &driver, QZelFileDialog *dialog, const Act &act)
{
    actInBox(driver, dialog, QStringLiteral("Yes"), act);
    User::doubleClickItem(list(dialog), QStringLiteral("notes.txt"));
}

void inThePasswordDialog(ModalDriver &driver, QZelFileDialog *dialog, const Act &act)
{
    actIn<QZelEncDialog>(driver, act);
    User::clickButton(dialog, QStringLiteral("btn_encOption"));
}

void inThePasswordBox(ModalDriver &driver, QZelFileDialog *dialog, const Act &act)
{
    setPassword(driver);
    actInBox(driver, dialog, QStringLiteral("Confirm"), act);
    User::clickButton(dialog, QStringLiteral("btn_encOption"));
}

void inTheTreeMenu(ModalDriver &driver, QZelFileDialog *dialog, const Act &act)
{
    actIn<QMenu>(driver, act);
    User::rightClickItem(tree(dialog), QStringLiteral("sub"));
}

void inTheBlankMenu(ModalDriver &driver, QZelFileDialog *dialog, const Act &act)
{
    actIn<QMenu>(driver, act);
    User::rightClickBlank(tree(dialog));
}

void inTheListMenu(ModalDriver &driver, QZelFileDialog *dialog, const Act &act)
{
    actIn<QMenu>(driver, act);
    User::rightClickItem(list(dialog), QStringLiteral("notes.txt"));
}

void whileNamingANewFolder(ModalDriver &driver, QZelFileDialog *dialog, const Act &act)
{
    chooseIn(driver, QStringLiteral("new"));
    actIn<QZelFolderNameDialog>(driver, act);
    User::rightClickItem(tree(dialog), QStringLiteral("sub"));
}

void whileRenamingAFolder(ModalDriver &driver, QZelFileDialog *dialog, const Act &act)
{
    chooseIn(driver, QStringLiteral("rename"));
    actIn<QZelFolderNameDialog>(driver, act);
    User::rightClickItem(tree(dialog), QStringLiteral("sub"));
}

void whileRenamingAFile(ModalDriver &driver, QZelFileDialog *dialog, const Act &act)
{
    chooseIn(driver, QStringLiteral("rename"));
    actIn<QZelFolderNameDialog>(driver, act);
    User::rightClickItem(list(dialog), QStringLiteral("notes.txt"));
}

void addSituations()
{
    QTest::addColumn<Situation>("situation");
    QTest::newRow("dialog") << Situation(inTheDialog);
    QTest::newRow("overwrite box") << Situation(inTheOverwriteBox);
    QTest::newRow("replace box") << Situation(inTheReplaceBox);
    QTest::newRow("set-password dialog") << Situation(inThePasswordDialog);
    QTest::newRow("password box") << Situation(inThePasswordBox);
    QTest::newRow("tree menu") << Situation(inTheTreeMenu);
    QTest::newRow("blank menu") << Situation(inTheBlankMenu);
    QTest::newRow("list menu") << Situation(inTheListMenu);
    QTest::newRow("new folder's name") << Situation(whileNamingANewFolder);
    QTest::newRow("folder's new name") << Situation(whileRenamingAFolder);
    QTest::newRow("file's new name") << Situation(whileRenamingAFile);
}

} // namespace

Q_DECLARE_METATYPE(Situation)

class tst_QZelFileDialog_lifetime : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void parentMayBeDestroyed_data() { addSituations(); }
    void parentMayBeDestroyed();
    void parentMayBeDestroyedInEveryFunction();
    void parentMayBeDestroyedUnderAWarning();
    void parentMayBeDestroyedInALoopAboveAName();
    void applicationMayQuit_data() { addSituations(); }
    void applicationMayQuit();
    void receiverMayDeleteTheDialog_data();
    void receiverMayDeleteTheDialog();
    void receiverMayDeleteARunningDialog();
    void dialogMayBeDestroyedWithASelection();
    void menusGoWithADialogThatOwnsANameDialog();
};

void tst_QZelFileDialog_lifetime::init()
{
    QVERIFY(FtpFolder::isPrivate());
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(makeEntries(folder, { QStringLiteral("notes.txt"), QStringLiteral("sub/") }));
}

void tst_QZelFileDialog_lifetime::parentMayBeDestroyed()
{
    QFETCH(Situation, situation);
    auto *parent = new QWidget;
    QPointer<QZelFileDialog> watched;
    ModalDriver driver;
    driver.on<QZelFileDialog>([&](QZelFileDialog *dialog) {
        watched = dialog;
        situation(driver, dialog, [parent] { delete parent; });
        QVERIFY(!watched);
    });
    QString filter = untouched;
    QString password = untouched;
    const QString path = QZelFileDialog::getSaveFileName(parent, QStringLiteral("Go"), folder,
                                                         filters, &filter, true, &password);
    QVERIFY(driver.finished());
    QVERIFY(!watched);
    QCOMPARE(path, QString());
    QCOMPARE(filter, untouched);
    QCOMPARE(password, untouched);
    // A name dialog that goes with its parent is not a cancelled one: nothing is renamed.
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList({ QStringLiteral("notes.txt"), QStringLiteral("sub") }));
    // Nothing is left behind, a menu that was in use neither.
    QTRY_COMPARE(QApplication::topLevelWidgets().size(), 0);
}

void tst_QZelFileDialog_lifetime::parentMayBeDestroyedInEveryFunction()
{
    const QString caption = QStringLiteral("Go");
    QString filter = untouched;
    const auto dying = [](const std::function<bool(QWidget *)> &givesNothing) {
        auto *parent = new QWidget;
        ModalDriver driver;
        actIn<QZelFileDialog>(driver, [parent] { delete parent; });
        return givesNothing(parent) && driver.finished();
    };
    QVERIFY(dying([&](QWidget *parent) {
        return QZelFileDialog::getOpenFileName(parent, caption, folder, filters, &filter).isEmpty();
    }));
    QVERIFY(dying([&](QWidget *parent) {
        return QZelFileDialog::getOpenFileNames(parent, caption, folder, filters, &filter).isEmpty();
    }));
    QVERIFY(dying([&](QWidget *parent) {
        return QZelFileDialog::getExistingDirectory(parent, caption, folder).isEmpty();
    }));
    QCOMPARE(filter, untouched);
}

void tst_QZelFileDialog_lifetime::parentMayBeDestroyedUnderAWarning()
{
    auto *parent = new QWidget;
    ModalDriver driver;
    driver.on<QZelFileDialog>([&](QZelFileDialog *dialog) {
        actInBox(driver, dialog, QStringLiteral("Confirm"), [parent] { delete parent; });
        typeName(dialog, QStringLiteral("gone"));
        go(dialog);
    });
    QCOMPARE(QZelFileDialog::getOpenFileName(parent, QStringLiteral("Go"), folder, filters),
             QString());
    QVERIFY(driver.finished());
}

// The menu has not yet returned from the click that asked for the name.
void tst_QZelFileDialog_lifetime::parentMayBeDestroyedInALoopAboveAName()
{
    auto *parent = new QWidget;
    QPointer<QMenu> menu;
    bool menuOutlivedTheLoop = false;
    ModalDriver driver;
    driver.on<QZelFileDialog>([&](QZelFileDialog *dialog) {
        driver.on<QMenu>([&](QMenu *open) {
            menu = open;
            User::choose(open, QStringLiteral("new"));
        });
        driver.on<QZelFolderNameDialog>([&](QZelFolderNameDialog *) {
            QTarnKit::QUIMessageBox box;
            QTimer::singleShot(0, &box, [&] {
                delete parent;
                QTimer::singleShot(0, &box, &QDialog::accept);
            });
            box.exec();
            menuOutlivedTheLoop = menu;
        });
        User::rightClickItem(tree(dialog), QStringLiteral("sub"));
    });
    QCOMPARE(QZelFileDialog::getOpenFileName(parent, QStringLiteral("Go"), folder, filters),
             QString());
    QVERIFY(driver.finished());
    QVERIFY(menuOutlivedTheLoop);
    QTRY_COMPARE(QApplication::topLevelWidgets().size(), 0);
}

void tst_QZelFileDialog_lifetime::applicationMayQuit()
{
    QFETCH(Situation, situation);
    QString path = untouched;
    QString filter = untouched;
    QString password = untouched;
    // A name dialog that is quit is a cancelled one: the command goes on with the empty name.
    const WarningGuard emptyName(QStringLiteral("^QDir::mkdir: Empty or null file name"));
    ModalDriver driver;
    driver.on<QZelFileDialog>([&](QZelFileDialog *dialog) {
        situation(driver, dialog, [] { QCoreApplication::quit(); });
    });
    QTimer::singleShot(0, this, [&] {
        path = QZelFileDialog::getSaveFileName(nullptr, QStringLiteral("Go"), folder, filters,
                                               &filter, true, &password);
    });
    QCoreApplication::exec();
    QVERIFY(driver.finished());
    QCOMPARE(path, QString());
    QCOMPARE(filter, QStringLiteral("Text (*.txt)"));
    QVERIFY(password != untouched);
}

void tst_QZelFileDialog_lifetime::receiverMayDeleteTheDialog_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("doubleClick");
    using Mode = QZelFileDialog::OperateMode;
    QTest::newRow("open, button") << int(Mode::OpenFile) << false;
    QTest::newRow("open, double-click") << int(Mode::OpenFile) << true;
    QTest::newRow("open several, double-click") << int(Mode::OpenFiles) << true;
    QTest::newRow("save, button") << int(Mode::SaveFile) << false;
    QTest::newRow("save, double-click") << int(Mode::SaveFile) << true;
    QTest::newRow("folder, button") << int(Mode::SelectDirectory) << false;
}

void tst_QZelFileDialog_lifetime::receiverMayDeleteTheDialog()
{
    using Mode = QZelFileDialog::OperateMode;
    QFETCH(int, mode);
    QFETCH(bool, doubleClick);
    const QPointer<ShownDialog> dialog(new ShownDialog(Mode(mode)));
    QString path;
    connect(dialog, &QZelFileDialog::sig_filePath, this, [&](const QString &chosen) {
        path = chosen;
        delete dialog;
    });
    ModalDriver driver;
    SeenBox seen;
    if (doubleClick) {
        if (mode == Mode::SaveFile)
            answerBox(driver, QStringLiteral("Yes"), &seen);
        User::doubleClickItem(dialog->list(), QStringLiteral("notes.txt"));
    } else {
        User::type(dialog->name(),
                   mode == Mode::SaveFile ? QStringLiteral("new") : QStringLiteral("notes.txt"));
        dialog->pressGo();
    }
    QVERIFY(!dialog);
    QVERIFY(driver.finished());
    QVERIFY(path.startsWith(folder));
    QTRY_COMPARE(QApplication::topLevelWidgets().size(), 0);
}

void tst_QZelFileDialog_lifetime::receiverMayDeleteARunningDialog()
{
    const bool ways[] = { false, true };
    for (const bool doubleClick : ways) {
        const QPointer<QZelFileDialog> dialog(new QZelFileDialog(
                nullptr, QStringLiteral("Go"), folder, filters, QZelFileDialog::OpenFile));
        connect(dialog, &QZelFileDialog::sig_filePath, this, [dialog] { delete dialog; });
        ModalDriver driver;
        driver.on<QZelFileDialog>([doubleClick](QZelFileDialog *running) {
            if (doubleClick) {
                User::doubleClickItem(list(running), QStringLiteral("notes.txt"));
            } else {
                typeName(running, QStringLiteral("notes"));
                go(running);
            }
        });
        QCOMPARE(dialog->exec(), int(QDialog::Rejected));
        QVERIFY(driver.finished());
        QVERIFY(!dialog);
    }
}

void tst_QZelFileDialog_lifetime::dialogMayBeDestroyedWithASelection()
{
    QStringList lists;
    {
        ShownDialog dialog(QZelFileDialog::OpenFiles);
        connect(&dialog, &QZelFileDialog::sig_filePaths, this,
                [&](const QStringList &paths) { lists += paths; });
        User::clickItem(dialog.list(), QStringLiteral("notes.txt"));
        User::clickItem(dialog.tree(), QStringLiteral("sub"));
    }
    QCOMPARE(lists, QStringList(folder + QStringLiteral("notes.txt")));
}

// A name dialog of the host's is none that a menu's click is waiting for.
void tst_QZelFileDialog_lifetime::menusGoWithADialogThatOwnsANameDialog()
{
    QList<QPointer<QMenu>> menus;
    {
        ShownDialog dialog(QZelFileDialog::OpenFile);
        new QZelFolderNameDialog(&dialog);
        const auto all = dialog.findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly);
        for (QMenu *menu : all)
            menus.append(menu);
    }
    QCOMPARE(menus, QList<QPointer<QMenu>>({ nullptr, nullptr, nullptr }));
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_lifetime)

#include "tst_QZelFileDialog_lifetime.moc"
