#include "ManagedFolder.h"
#include "MarkingTranslator.h"
#include "ModalDriver.h"
#include "ShownManager.h"
#include "TestMain.h"

#include <QUIMessageBox.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>

#include <unistd.h>

using QTarnKit::QUIMessageBox;

namespace {

const QString confirm = QStringLiteral("Yes");

bool link(const QString &target, const QString &name)
{
    return symlink(qPrintable(target), qPrintable(inRoot(name))) == 0;
}

struct SeenQuestion
{
    int boxes = 0;
    QString title, text;
    QStringList buttons;
};

// Presses Delete and answers the question.
SeenQuestion pressDelete(ShownManager &manager, const QString &button = confirm,
                         const std::function<void()> &meanwhile = {})
{
    SeenQuestion seen;
    ModalDriver driver;
    driver.on<QUIMessageBox>([&](QUIMessageBox *box) {
        ++seen.boxes;
        const auto labels = box->findChildren<QLabel *>();
        seen.title = labels.at(1)->text();
        seen.text = box->findChild<QTextEdit *>()->toPlainText();
        const auto buttons = box->findChildren<QPushButton *>();
        for (const QPushButton *shown : buttons) {
            if (shown->isVisible() && !shown->text().isEmpty())
                seen.buttons.append(shown->text());
        }
        QCOMPARE(box->parent(), nullptr);
        QCOMPARE(box->windowModality(), Qt::ApplicationModal);
        QVERIFY(box->windowFlags() & Qt::WindowStaysOnTopHint);
        if (meanwhile)
            meanwhile();
        User::clickButton(box, button);
    });
    User::clickButton(&manager, QStringLiteral("btn_Delete"));
    if (!driver.finished())
        QTest::qFail("no question was asked", __FILE__, __LINE__);
    return seen;
}

void select(ShownManager &manager, const QStringList &names)
{
    for (const QString &name : names)
        User::clickItem(manager.list(), name, Qt::ControlModifier);
}

} // namespace

class tst_QZelFileManagerWidget_delete : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void asksOnceWithYesAndNo();
    void questionIsTranslated();
    void unconfirmedRemovesNothing_data();
    void unconfirmedRemovesNothing();
    void nothingSelectedRemovesNothing();
    void filesAndFoldersGoWithTheirContents();
    void listStaysWhereItIs();
    void selectionOfAnotherFolderGoesToo();
    void entryInsideASelectedFolderGoesOnce();
    void selectionMadeWhileAskedCounts();

    void linkToAFolderGoesWithoutItsTarget();
    void linkToAFileGoesWithoutItsTarget();
    void linksInsideAFolderGoWithoutTheirTargets();
    void brokenLinkIsNotListed();
    void linkToTheFolderItselfGoes();

    void vanishedEntryLeavesEverythingElse_data();
    void vanishedEntryLeavesEverythingElse();
    void vanishedRootLeavesTheWorkingDirectory();
    void entriesOfAMissingRootAreTheWorkingDirectorys();
    void protectedEntriesStaySilently();
    void widgetMayBeDestroyedWhileItAsks();
    void applicationMayQuitWhileItAsks();
};

void tst_QZelFileManagerWidget_delete::init()
{
    QVERIFY(FtpFolder::reset({ QStringLiteral("a.txt"), QStringLiteral("b.txt"),
                               QStringLiteral("sub/inner.txt"), QStringLiteral("sub/deep/x.txt"),
                               QStringLiteral("sub/deep/.hidden") }));
    QVERIFY(QDir(outside).removeRecursively());
    QVERIFY(makeEntries(outside, { QStringLiteral("keep.txt"), QStringLiteral("in/keep.txt") }));
    // What would go if a path were empty.
    QVERIFY(QDir::setCurrent(outside));
}

void tst_QZelFileManagerWidget_delete::asksOnceWithYesAndNo()
{
    ShownManager manager;
    select(manager, { QStringLiteral("a.txt"), QStringLiteral("b.txt") });
    const SeenQuestion seen = pressDelete(manager);
    QCOMPARE(seen.boxes, 1);
    QCOMPARE(seen.title, QStringLiteral("WARN"));
    QCOMPARE(seen.text, QStringLiteral("Are you sure to delete ?"));
    QCOMPARE(seen.buttons, QStringList({ QStringLiteral("Yes"), QStringLiteral("No") }));
    QCOMPARE(entries(), QStringList(QStringLiteral("sub")));
}

void tst_QZelFileManagerWidget_delete::questionIsTranslated()
{
    ShownManager manager;
    const MarkingTranslator marker;
    const SeenQuestion seen = pressDelete(manager, QStringLiteral("closeBtn"));
    QCOMPARE(seen.title, QStringLiteral("[QZelFileManagerWidget|WARN]"));
    QCOMPARE(seen.text, QStringLiteral("[QZelFileManagerWidget|Are you sure to delete ?]"));
}

void tst_QZelFileManagerWidget_delete::unconfirmedRemovesNothing_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("no") << QStringLiteral("No");
    QTest::newRow("box closed") << QStringLiteral("closeBtn");
}

void tst_QZelFileManagerWidget_delete::unconfirmedRemovesNothing()
{
    QFETCH(QString, button);
    const QStringList before = entries();
    ShownManager manager;
    select(manager, { QStringLiteral("a.txt"), QStringLiteral("sub") });
    QCOMPARE(pressDelete(manager, button).boxes, 1);
    QCOMPARE(entries(), before);
    QCOMPARE(manager.list()->selectionModel()->selectedIndexes().size(), 2);
}

void tst_QZelFileManagerWidget_delete::nothingSelectedRemovesNothing()
{
    const QStringList before = entries();
    ShownManager manager;
    User::clickItem(manager.tree(), QStringLiteral("a.txt")); // the tree's selection has no say
    QCOMPARE(pressDelete(manager).boxes, 1);
    QCOMPARE(entries(), before);
    QVERIFY(QFile::exists(outside + QStringLiteral("/keep.txt")));
}

void tst_QZelFileManagerWidget_delete::filesAndFoldersGoWithTheirContents()
{
    ShownManager manager;
    select(manager, { QStringLiteral("sub"), QStringLiteral("b.txt") });
    QCOMPARE(pressDelete(manager).boxes, 1);
    QCOMPARE(entries(), QStringList(QStringLiteral("a.txt")));
    QTRY_COMPARE(User::items(manager.list()), QStringList(QStringLiteral("a.txt")));
}

void tst_QZelFileManagerWidget_delete::listStaysWhereItIs()
{
    ShownManager manager;
    User::doubleClickItem(manager.list(), QStringLiteral("sub"));
    User::clickItem(manager.list(), QStringLiteral("inner.txt"));
    pressDelete(manager);
    QCOMPARE(entries(inRoot(QStringLiteral("sub"))), QStringList(QStringLiteral("deep")));
    QCOMPARE(manager.shown(), inRoot(QStringLiteral("sub")));
}

// The selection does not end with the folder it was made in.
void tst_QZelFileManagerWidget_delete::selectionOfAnotherFolderGoesToo()
{
    ShownManager manager;
    select(manager, { QStringLiteral("a.txt") });
    User::clickItem(manager.tree(), QStringLiteral("sub"));
    select(manager, { QStringLiteral("inner.txt") });
    pressDelete(manager);
    QCOMPARE(entries(), QStringList({ QStringLiteral("b.txt"), QStringLiteral("sub") }));
    QCOMPARE(entries(inRoot(QStringLiteral("sub"))), QStringList(QStringLiteral("deep")));
}

void tst_QZelFileManagerWidget_delete::entryInsideASelectedFolderGoesOnce()
{
    ShownManager manager;
    select(manager, { QStringLiteral("sub") });
    User::clickItem(manager.tree(), QStringLiteral("sub"));
    select(manager, { QStringLiteral("deep"), QStringLiteral("inner.txt") });
    User::clickItem(manager.tree(), QStringLiteral("sub/deep"));
    select(manager, { QStringLiteral("x.txt") });
    QCOMPARE(manager.list()->selectionModel()->selectedIndexes().size(), 4);
    pressDelete(manager);
    QCOMPARE(entries(), QStringList({ QStringLiteral("a.txt"), QStringLiteral("b.txt") }));
    QVERIFY(QFile::exists(outside + QStringLiteral("/keep.txt")));
}

void tst_QZelFileManagerWidget_delete::selectionMadeWhileAskedCounts()
{
    ShownManager manager;
    const QModelIndex a = User::item(manager.list(), QStringLiteral("a.txt"));
    pressDelete(manager, confirm, [&] {
        manager.list()->selectionModel()->select(a, QItemSelectionModel::ClearAndSelect);
    });
    QCOMPARE(entries(), QStringList({ QStringLiteral("b.txt"), QStringLiteral("sub") }));
}

void tst_QZelFileManagerWidget_delete::linkToAFolderGoesWithoutItsTarget()
{
    QVERIFY(link(outside, QStringLiteral("linked")));
    ShownManager manager;
    select(manager, { QStringLiteral("linked") });
    pressDelete(manager);
    QCOMPARE(entries(), QStringList({ QStringLiteral("a.txt"), QStringLiteral("b.txt"),
                                      QStringLiteral("sub") }));
    QCOMPARE(entries(outside), QStringList({ QStringLiteral("in"), QStringLiteral("keep.txt") }));
    QVERIFY(QFile::exists(outside + QStringLiteral("/in/keep.txt")));
}

void tst_QZelFileManagerWidget_delete::linkToAFileGoesWithoutItsTarget()
{
    QVERIFY(link(outside + QStringLiteral("/keep.txt"), QStringLiteral("linked")));
    ShownManager manager;
    select(manager, { QStringLiteral("linked") });
    pressDelete(manager);
    QVERIFY(!entries().contains(QStringLiteral("linked")));
    QVERIFY(QFile::exists(outside + QStringLiteral("/keep.txt")));
}

void tst_QZelFileManagerWidget_delete::linksInsideAFolderGoWithoutTheirTargets()
{
    QVERIFY(link(outside, QStringLiteral("sub/folder")));
    QVERIFY(link(outside + QStringLiteral("/keep.txt"), QStringLiteral("sub/deep/file")));
    QVERIFY(link(QStringLiteral("/nowhere"), QStringLiteral("sub/broken")));
    ShownManager manager;
    select(manager, { QStringLiteral("sub") });
    pressDelete(manager);
    QCOMPARE(entries(), QStringList({ QStringLiteral("a.txt"), QStringLiteral("b.txt") }));
    QVERIFY(QFile::exists(outside + QStringLiteral("/keep.txt")));
    QVERIFY(QFile::exists(outside + QStringLiteral("/in/keep.txt")));
}

// So it cannot be selected, and stays.
void tst_QZelFileManagerWidget_delete::brokenLinkIsNotListed()
{
    QVERIFY(link(QStringLiteral("/nowhere"), QStringLiteral("broken")));
    ShownManager manager;
    User::item(manager.list(), QStringLiteral("a.txt"));
    manager.list()->selectAll();
    pressDelete(manager);
    QCOMPARE(entries(), QStringList(QStringLiteral("broken")));
}

void tst_QZelFileManagerWidget_delete::linkToTheFolderItselfGoes()
{
    QVERIFY(link(root, QStringLiteral("loop")));
    ShownManager manager;
    select(manager, { QStringLiteral("loop") });
    pressDelete(manager);
    QCOMPARE(entries(), QStringList({ QStringLiteral("a.txt"), QStringLiteral("b.txt"),
                                      QStringLiteral("sub") }));
}

void tst_QZelFileManagerWidget_delete::vanishedEntryLeavesEverythingElse_data()
{
    QTest::addColumn<bool>("noticed");
    QTest::newRow("before the model noticed") << false;
    QTest::newRow("after the model noticed") << true;
}

void tst_QZelFileManagerWidget_delete::vanishedEntryLeavesEverythingElse()
{
    QFETCH(bool, noticed);
    ShownManager manager;
    select(manager, { QStringLiteral("a.txt"), QStringLiteral("sub") });
    pressDelete(manager, confirm, [&] {
        QVERIFY(QFile::remove(inRoot(QStringLiteral("a.txt"))));
        QVERIFY(QDir(inRoot(QStringLiteral("sub"))).removeRecursively());
        if (noticed)
            QTRY_COMPARE(User::items(manager.list()), QStringList(QStringLiteral("b.txt")));
    });
    QCOMPARE(entries(), QStringList(QStringLiteral("b.txt")));
    QVERIFY(QFile::exists(outside + QStringLiteral("/keep.txt")));
    QVERIFY(QDir(root).exists());
}

void tst_QZelFileManagerWidget_delete::vanishedRootLeavesTheWorkingDirectory()
{
    ShownManager manager;
    select(manager, { QStringLiteral("a.txt"), QStringLiteral("sub") });
    pressDelete(manager, confirm, [] { QVERIFY(QDir(root).removeRecursively()); });
    QCOMPARE(entries(outside), QStringList({ QStringLiteral("in"), QStringLiteral("keep.txt") }));
}

// Qt's model falls back to the working directory, which is then what the list shows and deletes
// from: the selected entries, not the directory.
void tst_QZelFileManagerWidget_delete::entriesOfAMissingRootAreTheWorkingDirectorys()
{
    QVERIFY(QDir(root).removeRecursively());
    ShownManager manager;
    QCOMPARE(manager.shown(), outside);
    pressDelete(manager);
    QCOMPARE(entries(outside).size(), 2);
    select(manager, { QStringLiteral("keep.txt") });
    pressDelete(manager);
    QCOMPARE(entries(outside), QStringList(QStringLiteral("in")));
}

// Root may delete everything: run without root's rights too.
void tst_QZelFileManagerWidget_delete::protectedEntriesStaySilently()
{
    const QString folder = inRoot(QStringLiteral("sub/deep"));
    const QFile::Permissions before = QFile::permissions(folder);
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    const bool binding = access(qPrintable(folder), W_OK) != 0;
    QCOMPARE(binding, qEnvironmentVariableIsSet("QTARNKIT_DROP_CAPABILITIES"));
    ShownManager manager;
    select(manager, { QStringLiteral("a.txt"), QStringLiteral("sub") });
    QCOMPARE(pressDelete(manager).boxes, 1);
    QVERIFY(manager.isVisible());
    if (binding) {
        QCOMPARE(entries(), QStringList({ QStringLiteral("b.txt"), QStringLiteral("sub") }));
        QCOMPARE(entries(inRoot(QStringLiteral("sub"))), QStringList(QStringLiteral("deep")));
        QCOMPARE(entries(folder).size(), 2);
        QVERIFY(QFile::setPermissions(folder, before));
    } else {
        QCOMPARE(entries(), QStringList(QStringLiteral("b.txt")));
    }
}

void tst_QZelFileManagerWidget_delete::widgetMayBeDestroyedWhileItAsks()
{
    auto *manager = new ShownManager;
    select(*manager, { QStringLiteral("a.txt") });
    ModalDriver driver;
    driver.on<QUIMessageBox>([manager](QUIMessageBox *box) {
        delete manager;
        User::clickButton(box, confirm);
    });
    User::clickButton(manager, QStringLiteral("btn_Delete"));
    QVERIFY(driver.finished());
    QVERIFY(QFile::exists(inRoot(QStringLiteral("a.txt"))));
}

void tst_QZelFileManagerWidget_delete::applicationMayQuitWhileItAsks()
{
    ShownManager manager;
    select(manager, { QStringLiteral("a.txt") });
    ModalDriver driver;
    driver.on<QUIMessageBox>([](QUIMessageBox *) { QCoreApplication::quit(); });
    QTimer::singleShot(0, &manager,
                       [&] { User::clickButton(&manager, QStringLiteral("btn_Delete")); });
    QCoreApplication::exec();
    QVERIFY(driver.finished());
    QVERIFY(QFile::exists(inRoot(QStringLiteral("a.txt"))));
}

QTARNKIT_TEST_MAIN(tst_QZelFileManagerWidget_delete)

#include "tst_QZelFileManagerWidget_delete.moc"
