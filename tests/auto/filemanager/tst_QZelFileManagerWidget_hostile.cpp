#include "HostileNames.h"
#include "ManagedFolder.h"
#include "ModalDriver.h"
#include "ShownManager.h"
#include "SmallDisk.h"
#include "TestMain.h"

#include <QUIMessageBox.h>

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using QTarnKit::QUIMessageBox;

namespace {

void confirmDelete(ShownManager &manager, const std::function<void()> &meanwhile = {})
{
    ModalDriver driver;
    driver.on<QUIMessageBox>([meanwhile](QUIMessageBox *box) {
        if (meanwhile)
            meanwhile();
        User::clickButton(box, QStringLiteral("Yes"));
    });
    User::clickButton(&manager, QStringLiteral("btn_Delete"));
    QVERIFY(driver.finished());
}

QStringList selected(ShownManager &manager)
{
    QStringList paths;
    const QModelIndexList indexes = manager.list()->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : indexes)
        paths.append(manager.fileModel->filePath(index));
    paths.removeDuplicates(); // the list selects columns that it does not show, too
    return paths;
}

// Folders in one another, more than a path can name.
bool makeNest(const QString &name, int levels, int files = 0)
{
    bool made = chdir(qPrintable(root)) == 0 && makeRawFolder(name) && chdir(qPrintable(name)) == 0;
    for (int i = 1; made && i < levels; ++i) {
        for (int file = 0; file < files; ++file)
            made = made && makeRawFile(QByteArray::number(file));
        made = made && mkdir("d", 0700) == 0 && chdir("d") == 0;
    }
    return chdir("/") == 0 && made;
}

int levelsOf(const QString &name)
{
    int levels = chdir(qPrintable(inRoot(name))) == 0 ? 1 : 0;
    while (levels > 0 && chdir("d") == 0)
        ++levels;
    return chdir("/") == 0 ? levels : -1;
}

// What QDir cannot name it cannot remove either.
bool removeNest(const QString &name)
{
    int levels = levelsOf(name);
    if (levels == 0 || chdir(qPrintable(inRoot(name))) != 0)
        return levels == 0;
    while (chdir("d") == 0) {
    }
    while (--levels > 0) {
        if (chdir("..") != 0 || rmdir("d") != 0)
            return false;
    }
    return chdir("/") == 0 && rmdir(qPrintable(inRoot(name))) == 0;
}

bool makeSocket(const QString &path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, qPrintable(path), sizeof(address.sun_path));
    const int server = socket(AF_UNIX, SOCK_STREAM, 0);
    const bool bound =
            bind(server, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
    close(server);
    return bound;
}

} // namespace

class tst_QZelFileManagerWidget_hostile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyNameIsListedAndDeletedAlone_data();
    void everyNameIsListedAndDeletedAlone();
    void allNamesAreDeletedAtOnce();
    void namesThatAreNoTextStay();
    void hiddenEntriesStayUnlessTheirFolderGoes();
    void specialEntriesStayUnlessTheirFolderGoes();
    void chainsAndLoopsOfLinksAreHarmless();
    void linksLeadNoDeeperThanTheSystemAllows();
    void aLinkToAHugeTreeGoesAlone();
    void anEntryReplacedByALinkGoesWithoutTheTarget();
    void deepNestsGoOrStayAsAWhole_data();
    void deepNestsGoOrStayAsAWhole();
    void withoutFreeDescriptorsNothingElseGoes();
    void foldersAboveTheFixedOneStay();
    void theShownFolderMayLoseItsPermission();
    void theShownFolderMayBecomeAFile();
    void aVanishedFolderLeavesNothingSelected();
    void aFullDiskIsEmptied();
};

void tst_QZelFileManagerWidget_hostile::init()
{
    QVERIFY(FtpFolder::reset());
    QVERIFY(QDir(outside).removeRecursively());
    QVERIFY(makeEntries(outside, { QStringLiteral("keep.txt"), QStringLiteral("in/keep.txt") }));
    QVERIFY2(SmallDisk::reset(),
             "no small disk: run through tests/support/private-root with QTARNKIT_SMALL_DISK=1");
}

void tst_QZelFileManagerWidget_hostile::everyNameIsListedAndDeletedAlone_data()
{
    QTest::addColumn<bool>("folders");
    QTest::newRow("files") << false;
    QTest::newRow("folders") << true;
}

void tst_QZelFileManagerWidget_hostile::everyNameIsListedAndDeletedAlone()
{
    QFETCH(bool, folders);
    QStringList left = hostileNames();
    for (const QString &name : qAsConst(left)) {
        QVERIFY(folders ? makeRawFolder(inRoot(name)) : makeRawFile(inRoot(name)));
        QVERIFY(!folders || makeRawFile(inRoot(name + QLatin1Char('/') + name)));
    }
    ShownManager manager;
    while (!left.isEmpty()) {
        const QString name = left.takeFirst();
        User::clickItem(manager.list(), name);
        QCOMPARE(selected(manager), QStringList(inRoot(name)));
        confirmDelete(manager);
        QStringList there = entries();
        there.sort();
        QCOMPARE(there, left);
    }
}

void tst_QZelFileManagerWidget_hostile::allNamesAreDeletedAtOnce()
{
    const QStringList names = hostileNames();
    for (const QString &name : names)
        QVERIFY(makeRawFile(inRoot(name)));
    ShownManager manager;
    QTRY_COMPARE(User::items(manager.list()).size(), names.size());
    manager.list()->setFocus();
    QTest::keyClick(manager.list(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(selected(manager).size(), names.size());
    confirmDelete(manager);
    QCOMPARE(entries(), QStringList());
    QVERIFY(QDir(root).exists());
}

// They are not listed, and no path leads to them: neither do the folders around them go.
void tst_QZelFileManagerWidget_hostile::namesThatAreNoTextStay()
{
    const QByteArray badFile = inRoot(QString()).toUtf8() + nameThatIsNoText();
    const QByteArray badInside = inRoot(QStringLiteral("sub/")).toUtf8() + nameThatIsNoText();
    QVERIFY(makeEntries(root, { QStringLiteral("sub/a.txt"), QStringLiteral("b.txt") }));
    QVERIFY(makeRawFile(badFile));
    QVERIFY(makeRawFile(badInside));
    ShownManager manager;
    User::item(manager.list(), QStringLiteral("b.txt"));
    manager.list()->selectAll();
    QCOMPARE(selected(manager).size(), 2);
    confirmDelete(manager);
    QCOMPARE(access(badFile.constData(), F_OK), 0);
    QCOMPARE(access(badInside.constData(), F_OK), 0);
    QVERIFY(!QFile::exists(inRoot(QStringLiteral("b.txt"))));
    QVERIFY(!QFile::exists(inRoot(QStringLiteral("sub/a.txt"))));
    QCOMPARE(unlink(badFile.constData()), 0);
    QCOMPARE(unlink(badInside.constData()), 0);
}

void tst_QZelFileManagerWidget_hostile::hiddenEntriesStayUnlessTheirFolderGoes()
{
    QVERIFY(makeEntries(root, { QStringLiteral(".hidden"), QStringLiteral("...dots"),
                                QStringLiteral("sub/.hidden"), QStringLiteral("a.txt") }));
    ShownManager manager;
    User::item(manager.list(), QStringLiteral("a.txt"));
    manager.list()->selectAll();
    confirmDelete(manager);
    QCOMPARE(entries(), QStringList({ QStringLiteral("...dots"), QStringLiteral(".hidden") }));
}

void tst_QZelFileManagerWidget_hostile::specialEntriesStayUnlessTheirFolderGoes()
{
    QVERIFY(makeEntries(root, { QStringLiteral("sub/a.txt"), QStringLiteral("b.txt") }));
    for (const QString &folder : { root, inRoot(QStringLiteral("sub")) }) {
        QCOMPARE(mkfifo(qPrintable(folder + QStringLiteral("/pipe")), 0600), 0);
        QVERIFY(makeSocket(folder + QStringLiteral("/socket")));
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), folder + QStringLiteral("/device")));
    }
    ShownManager manager;
    User::item(manager.list(), QStringLiteral("b.txt"));
    QCOMPARE(User::items(manager.list()).size(), 2);
    manager.list()->selectAll();
    confirmDelete(manager);
    QCOMPARE(entries(), QStringList({ QStringLiteral("device"), QStringLiteral("pipe"),
                                      QStringLiteral("socket") }));
    QVERIFY(QFile::exists(QStringLiteral("/dev/zero")));
}

void tst_QZelFileManagerWidget_hostile::chainsAndLoopsOfLinksAreHarmless()
{
    QVERIFY(QFile::link(outside, inRoot(QStringLiteral("link00"))));
    for (int i = 1; i < 60; ++i) {
        QVERIFY(QFile::link(inRoot(QStringLiteral("link%1").arg(i - 1, 2, 10, QLatin1Char('0'))),
                            inRoot(QStringLiteral("link%1").arg(i, 2, 10, QLatin1Char('0')))));
    }
    QVERIFY(QFile::link(inRoot(QStringLiteral("self")), inRoot(QStringLiteral("self"))));
    ShownManager manager;
    User::item(manager.list(), QStringLiteral("link39"));
    const QStringList listed = User::items(manager.list());
    QCOMPARE(listed.size(), 40); // as many as the system follows
    manager.list()->selectAll();
    confirmDelete(manager);
    QCOMPARE(entries().size(), 60 + 1 - listed.size());
    QVERIFY(QFile::exists(outside + QStringLiteral("/in/keep.txt")));
}

void tst_QZelFileManagerWidget_hostile::linksLeadNoDeeperThanTheSystemAllows()
{
    QVERIFY(QFile::link(root, inRoot(QStringLiteral("up"))));
    QVERIFY(makeEntries(root, { QStringLiteral("a.txt") }));
    ShownManager manager;
    QString path = root;
    for (int level = 1; level < 40; ++level) {
        User::doubleClickItem(manager.list(), QStringLiteral("up"));
        path += QStringLiteral("/up");
        QCOMPARE(manager.shown(), path);
    }
    // The last file is the first one.
    User::clickItem(manager.list(), QStringLiteral("a.txt"));
    confirmDelete(manager);
    QVERIFY(!entries().contains(QStringLiteral("a.txt")));
    QVERIFY(QDir(root).exists());
    User::clickButton(&manager, QStringLiteral("btn_MainPage"));
    QCOMPARE(manager.shown(), root);
}

void tst_QZelFileManagerWidget_hostile::aLinkToAHugeTreeGoesAlone()
{
    for (int i = 0; i < 50; ++i) {
        const QDir folder(outside + QStringLiteral("/folder%1").arg(i));
        QVERIFY(folder.mkpath(QStringLiteral(".")));
        for (int j = 0; j < 50; ++j)
            QVERIFY(makeRawFile(folder.filePath(QString::number(j))));
    }
    QVERIFY(QFile::link(outside, inRoot(QStringLiteral("huge"))));
    ShownManager manager;
    User::doubleClickItem(manager.list(), QStringLiteral("huge"));
    QTRY_COMPARE(User::items(manager.list()).size(), 52);
    User::clickButton(&manager, QStringLiteral("btn_MainPage"));
    User::clickItem(manager.list(), QStringLiteral("huge"));
    confirmDelete(manager);
    QCOMPARE(entries(), QStringList());
    QCOMPARE(entries(outside).size(), 52);
    QCOMPARE(entries(outside + QStringLiteral("/folder49")).size(), 50);
}

void tst_QZelFileManagerWidget_hostile::anEntryReplacedByALinkGoesWithoutTheTarget()
{
    QVERIFY(makeEntries(root, { QStringLiteral("sub/a.txt") }));
    ShownManager manager;
    User::clickItem(manager.list(), QStringLiteral("sub"));
    confirmDelete(manager, [] {
        QVERIFY(QDir(inRoot(QStringLiteral("sub"))).removeRecursively());
        QVERIFY(QFile::link(outside, inRoot(QStringLiteral("sub"))));
    });
    QCOMPARE(entries(), QStringList());
    QCOMPARE(entries(outside), QStringList({ QStringLiteral("in"), QStringLiteral("keep.txt") }));
}

void tst_QZelFileManagerWidget_hostile::deepNestsGoOrStayAsAWhole_data()
{
    QTest::addColumn<int>("levels");
    QTest::addColumn<bool>("goes");
    QTest::newRow("as deep as a path") << 1000 << true;
    QTest::newRow("deeper than a path") << 2500 << false;
}

void tst_QZelFileManagerWidget_hostile::deepNestsGoOrStayAsAWhole()
{
    QFETCH(int, levels);
    QFETCH(bool, goes);
    QVERIFY(makeNest(QStringLiteral("nest"), levels));
    ShownManager manager;
    User::clickItem(manager.list(), QStringLiteral("nest"));
    confirmDelete(manager);
    QCOMPARE(levelsOf(QStringLiteral("nest")), goes ? 0 : levels);
    QVERIFY(removeNest(QStringLiteral("nest")));
}

void tst_QZelFileManagerWidget_hostile::withoutFreeDescriptorsNothingElseGoes()
{
    QVERIFY(makeNest(QStringLiteral("nest"), 300, 4));
    QVERIFY(makeEntries(root, { QStringLiteral("other/a.txt") }));
    ShownManager manager;
    User::clickItem(manager.list(), QStringLiteral("nest"));
    rlimit before {};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit few = { 100, before.rlim_max };
    confirmDelete(manager, [&few] { QCOMPARE(setrlimit(RLIMIT_NOFILE, &few), 0); });
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &before), 0);
    QCOMPARE(levelsOf(QStringLiteral("nest")), 300);
    QVERIFY(QFile::exists(inRoot(QStringLiteral("other/a.txt"))));

    confirmDelete(manager); // with descriptors again
    QCOMPARE(entries(), QStringList(QStringLiteral("other")));
}

// Reached through the tops of the model or of a link; here all is private to the test.
void tst_QZelFileManagerWidget_hostile::foldersAboveTheFixedOneStay()
{
    QVERIFY(makeEntries(root, { QStringLiteral("a.txt") }));
    QVERIFY(QFile::link(QStringLiteral("/root"), inRoot(QStringLiteral("up"))));
    const QString zeltempfiles = QStringLiteral("zeltempfiles");
    ShownManager manager;
    for (const QString &shown : { QStringLiteral("/root"), inRoot(QStringLiteral("up")) }) {
        manager.list()->setRootIndex(manager.fileModel->index(shown));
        User::clickItem(manager.list(), zeltempfiles);
        QCOMPARE(selected(manager), QStringList(shown + QLatin1Char('/') + zeltempfiles));
        confirmDelete(manager);
        QCOMPARE(entries(), QStringList({ QStringLiteral("a.txt"), QStringLiteral("up") }));
    }
}

void tst_QZelFileManagerWidget_hostile::theShownFolderMayLoseItsPermission()
{
    const QString sub = inRoot(QStringLiteral("sub"));
    QVERIFY(makeEntries(root, { QStringLiteral("sub/a.txt"), QStringLiteral("sub/deep/b.txt") }));
    const WarningGuard unwatched(QStringLiteral("^inotify_add_watch.*Permission denied"));
    ShownManager manager;
    User::doubleClickItem(manager.list(), QStringLiteral("sub"));
    User::clickItem(manager.list(), QStringLiteral("a.txt"));
    QCOMPARE(selected(manager), QStringList(sub + QStringLiteral("/a.txt")));
    confirmDelete(manager, [&sub] {
        QCOMPARE(chmod(qPrintable(sub), 0), 0);
        QVERIFY2(access(qPrintable(sub), R_OK) != 0,
                 "permissions do not bind: run with QTARNKIT_DROP_CAPABILITIES=1");
    });
    User::clickButton(&manager, QStringLiteral("btn_UpPage"));
    User::clickButton(&manager, QStringLiteral("btn_MainPage"));
    QCOMPARE(manager.shown(), root);
    QCOMPARE(chmod(qPrintable(sub), 0700), 0);
    QCOMPARE(entries(sub), QStringList({ QStringLiteral("a.txt"), QStringLiteral("deep") }));
    QVERIFY(QFile::exists(sub + QStringLiteral("/deep/b.txt")));
}

void tst_QZelFileManagerWidget_hostile::theShownFolderMayBecomeAFile()
{
    const QString sub = inRoot(QStringLiteral("sub"));
    QVERIFY(makeEntries(root, { QStringLiteral("sub/a.txt"), QStringLiteral("b.txt") }));
    ShownManager manager;
    User::doubleClickItem(manager.list(), QStringLiteral("sub"));
    User::clickItem(manager.list(), QStringLiteral("a.txt"));
    confirmDelete(manager, [&sub] {
        QVERIFY(QDir(sub).removeRecursively());
        QVERIFY(makeRawFile(sub));
    });
    QCOMPARE(entries(), QStringList({ QStringLiteral("b.txt"), QStringLiteral("sub") }));
    User::clickButton(&manager, QStringLiteral("btn_MainPage"));
    QCOMPARE(manager.shown(), root);
    QTRY_VERIFY(!manager.fileModel->isDir(manager.fileModel->index(sub)));
}

void tst_QZelFileManagerWidget_hostile::aVanishedFolderLeavesNothingSelected()
{
    const QString sub = inRoot(QStringLiteral("sub"));
    QVERIFY(makeEntries(root, { QStringLiteral("sub/a.txt"), QStringLiteral("b.txt") }));
    ShownManager manager;
    User::doubleClickItem(manager.list(), QStringLiteral("sub"));
    User::clickItem(manager.list(), QStringLiteral("a.txt"));
    QVERIFY(QDir(sub).removeRecursively());
    QTRY_COMPARE(manager.shown(), QString());
    QCOMPARE(selected(manager), QStringList());
    confirmDelete(manager);
    QCOMPARE(entries(), QStringList(QStringLiteral("b.txt")));
    QCOMPARE(entries(outside).size(), 2);
}

void tst_QZelFileManagerWidget_hostile::aFullDiskIsEmptied()
{
    QVERIFY(SmallDisk::fill());
    QVERIFY(SmallDisk::fillWithEntries());
    QVERIFY(QFile::link(SmallDisk::path(), inRoot(QStringLiteral("disk"))));
    ShownManager manager;
    User::clickItem(manager.tree(), QStringLiteral("disk"));
    User::item(manager.list(), QStringLiteral("filling"));
    manager.list()->selectAll();
    confirmDelete(manager);
    QCOMPARE(entries(SmallDisk::path()), QStringList());
    QCOMPARE(entries(), QStringList(QStringLiteral("disk")));
}

QTARNKIT_TEST_MAIN(tst_QZelFileManagerWidget_hostile)
#include "tst_QZelFileManagerWidget_hostile.moc"
