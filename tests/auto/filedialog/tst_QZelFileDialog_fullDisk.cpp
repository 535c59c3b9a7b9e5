#include "FtpFolder.h"
#include "HostileNames.h"
#include "NameDialog.h"
#include "ShownDialog.h"
#include "SmallDisk.h"
#include "TestMain.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

using Mode = QZelFileDialog::OperateMode;

const QString folder = ShownDialog::folder();
const QString disk = SmallDisk::path();
const QString all = QStringLiteral("All (*)");
const QString notes = QStringLiteral("notes.txt");

QString onDisk(const QString &name)
{
    return disk + QLatin1Char('/') + name;
}

QStringList entries(const QString &path)
{
    return QDir(path).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not readable");
}

QByteArray contentsOfSize(int size)
{
    return QByteArray("0123456789abcdef").repeated(size / 16 + 1).left(size);
}

// Renames by the menu of the list or the tree.
void rename(QTreeView *view, const QString &item, const QString &name)
{
    ModalDriver driver;
    SeenNameDialog seen;
    chooseNext(driver, QStringLiteral("rename"));
    nameNext(driver, name, confirmName(), &seen);
    User::rightClickItem(view, item);
    QVERIFY(driver.finished());
    QCOMPARE(seen.dialogs, 1);
}

} // namespace

class tst_QZelFileDialog_fullDisk : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aFileRenamedToAFullDiskStays_data();
    void aFileRenamedToAFullDiskStays();
    void aFileRenamedToAnotherDiskArrives();
    void aFileRenamedToAnotherDiskReplacesNothing();
    void aFileThatCannotBeRemovedIsNotDoubled();
    void aFolderIsNotRenamedToAnotherDisk();
    void renamingOnAFullDiskWorks();
    void aNewFolderOnAFullDiskIsNotReported();
    void deletingOnAFullDiskWorks();
    void aNameOnAFullDiskIsReturned();
    void aFullDiskKeepsTheRememberedFolder();
    void aDiskThatIsFullFromTheStartRemembersNothing();

private:
    // Below the folder, so that the dialog shows the small disk.
    bool linkDisk() { return QFile::link(disk, folder + QStringLiteral("disk")); }
};

void tst_QZelFileDialog_fullDisk::init()
{
    QVERIFY2(SmallDisk::reset(),
             "no small disk: run through tests/support/private-root with QTARNKIT_SMALL_DISK=1");
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(QDir().mkpath(folder));
}

void tst_QZelFileDialog_fullDisk::aFileRenamedToAFullDiskStays_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("one byte") << 1;
    QTest::newRow("less than a write buffer") << 16000;
    QTest::newRow("more than a write buffer") << 20000;
    QTest::newRow("more than the disk") << 200000;
}

void tst_QZelFileDialog_fullDisk::aFileRenamedToAFullDiskStays()
{
    QFETCH(int, size);
    const QByteArray written = contentsOfSize(size);
    QVERIFY(makeRawFile((folder + notes).toUtf8(), written));
    QVERIFY(SmallDisk::fill());
    ShownDialog dialog(Mode::OpenFile, all);
    rename(dialog.list(), notes, onDisk(QStringLiteral("memo")));
    QCOMPARE(contents(folder + notes), written);
    QCOMPARE(entries(disk), QStringList(QStringLiteral("filling")));
    QCOMPARE(dialog.name()->text(), QString());
    QVERIFY(dialog.stays());
}

void tst_QZelFileDialog_fullDisk::aFileRenamedToAnotherDiskArrives()
{
    const QByteArray written = contentsOfSize(20000);
    QVERIFY(makeRawFile((folder + notes).toUtf8(), written));
    const QFile::Permissions permissions = QFile::ReadOwner | QFile::ReadUser | QFile::ReadOther;
    QVERIFY(QFile::setPermissions(folder + notes, permissions));
    QVERIFY(linkDisk());
    ShownDialog dialog(Mode::OpenFile, all);
    rename(dialog.list(), notes, QStringLiteral("disk/memo"));
    QCOMPARE(contents(onDisk(QStringLiteral("memo.txt"))), written);
    QCOMPARE(QFile::permissions(onDisk(QStringLiteral("memo.txt"))), permissions);
    QCOMPARE(entries(disk), QStringList(QStringLiteral("memo.txt")));
    QCOMPARE(entries(folder), QStringList(QStringLiteral("disk")));
    QCOMPARE(dialog.name()->text(), QStringLiteral("disk/memo.txt"));
}

void tst_QZelFileDialog_fullDisk::aFileRenamedToAnotherDiskReplacesNothing()
{
    QVERIFY(makeRawFile((folder + notes).toUtf8(), "new"));
    QVERIFY(makeRawFile(onDisk(QStringLiteral("memo.txt")).toUtf8(), "old"));
    ShownDialog dialog(Mode::OpenFile, all);
    rename(dialog.list(), notes, onDisk(QStringLiteral("memo")));
    QCOMPARE(contents(folder + notes), QByteArray("new"));
    QCOMPARE(contents(onDisk(QStringLiteral("memo.txt"))), QByteArray("old"));
    QCOMPARE(entries(disk), QStringList(QStringLiteral("memo.txt")));
    QCOMPARE(dialog.name()->text(), QString());
}

void tst_QZelFileDialog_fullDisk::aFileThatCannotBeRemovedIsNotDoubled()
{
    QVERIFY(makeRawFile((folder + notes).toUtf8(), "text"));
    const QFile::Permissions before = QFile::permissions(folder);
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY2(!makeRawFile(folder + QStringLiteral("binding")),
             "permissions do not bind: run with QTARNKIT_DROP_CAPABILITIES=1");
    {
        ShownDialog dialog(Mode::OpenFile, all);
        rename(dialog.list(), notes, onDisk(QStringLiteral("memo")));
        QCOMPARE(contents(folder + notes), QByteArray("text"));
        QCOMPARE(entries(disk), QStringList());
        QCOMPARE(dialog.name()->text(), QString());
    }
    QVERIFY(QFile::setPermissions(folder, before));
}

void tst_QZelFileDialog_fullDisk::aFolderIsNotRenamedToAnotherDisk()
{
    QVERIFY(makeEntries(folder, { QStringLiteral("sub/x.txt") }));
    ShownDialog dialog(Mode::OpenFile, all);
    rename(dialog.tree(), QStringLiteral("sub"), onDisk(QStringLiteral("sub")));
    QCOMPARE(entries(folder + QStringLiteral("sub")), QStringList(QStringLiteral("x.txt")));
    QCOMPARE(entries(disk), QStringList());
    QCOMPARE(dialog.backHistory.size(), 1);
}

void tst_QZelFileDialog_fullDisk::renamingOnAFullDiskWorks()
{
    QVERIFY(makeRawFile(onDisk(notes).toUtf8(), "text"));
    QVERIFY(SmallDisk::fill());
    QVERIFY(linkDisk());
    ShownDialog dialog(Mode::OpenFile, all);
    User::clickItem(dialog.tree(), QStringLiteral("disk"));
    rename(dialog.list(), notes, QStringLiteral("memo"));
    QCOMPARE(entries(disk), QStringList({ QStringLiteral("filling"), QStringLiteral("memo.txt") }));
    QCOMPARE(contents(onDisk(QStringLiteral("memo.txt"))), QByteArray("text"));
    QCOMPARE(dialog.name()->text(), QStringLiteral("memo.txt"));
}

void tst_QZelFileDialog_fullDisk::aNewFolderOnAFullDiskIsNotReported()
{
    QVERIFY(SmallDisk::fillWithEntries());
    const QStringList before = entries(disk);
    QVERIFY(linkDisk());
    ShownDialog dialog(Mode::OpenFile, all);
    ModalDriver driver;
    SeenNameDialog seen;
    chooseNext(driver, QStringLiteral("new"));
    nameNext(driver, QStringLiteral("made"), confirmName(), &seen);
    User::rightClickItem(dialog.tree(), QStringLiteral("disk"));
    QVERIFY(driver.finished());
    QCOMPARE(entries(disk), before);
    QVERIFY(dialog.stays());
}

void tst_QZelFileDialog_fullDisk::deletingOnAFullDiskWorks()
{
    QVERIFY(SmallDisk::fillWithEntries());
    const QStringList before = entries(disk);
    QVERIFY(linkDisk());
    ShownDialog dialog(Mode::OpenFile, all);
    ModalDriver driver;
    chooseNext(driver, QStringLiteral("delete"));
    User::rightClickItem(dialog.tree(), QStringLiteral("disk/filling3"));
    QVERIFY(driver.finished());
    QCOMPARE(entries(disk).size(), before.size() - 1);
    QVERIFY(!entries(disk).contains(QStringLiteral("filling3")));
}

// Whoever writes it learns of the disk.
void tst_QZelFileDialog_fullDisk::aNameOnAFullDiskIsReturned()
{
    QVERIFY(SmallDisk::fill());
    QVERIFY(linkDisk());
    ShownDialog dialog(Mode::SaveFile);
    User::clickItem(dialog.tree(), QStringLiteral("disk"));
    User::type(dialog.name(), QStringLiteral("report"));
    dialog.pressGo();
    QVERIFY(dialog.wasAccepted());
    QCOMPARE(dialog.filePath, folder + QStringLiteral("disk/report.txt"));
    QCOMPARE(entries(disk), QStringList(QStringLiteral("filling")));
}

void tst_QZelFileDialog_fullDisk::aFullDiskKeepsTheRememberedFolder()
{
    const QString settings = QStringLiteral("/root/config/MyOrganization");
    QVERIFY(QDir().mkpath(onDisk(QStringLiteral("settings"))));
    QVERIFY(QFile::link(onDisk(QStringLiteral("settings")), settings));
    const QString file = settings + QStringLiteral("/MyApplication.conf");
    QZelFileDialog dialog(nullptr, QString(), folder);
    dialog.recordLastPath(QStringLiteral("/before/x"));
    const QByteArray before = contents(file);
    QVERIFY(before.contains("LastFilePath=/before"));
    QVERIFY(SmallDisk::fill());
    const QString longPath = QStringLiteral("/after") + QString(5000, QLatin1Char('y'));
    dialog.recordLastPath(longPath + QStringLiteral("/x"));
    QCOMPARE(contents(file), before);
    QCOMPARE(entries(settings), QStringList(QStringLiteral("MyApplication.conf")));

    QVERIFY(QFile::remove(onDisk(QStringLiteral("filling"))));
    dialog.recordLastPath(QStringLiteral("/later/x"));
    QVERIFY(contents(file).contains("LastFilePath=/later"));
    QVERIFY(QFile::remove(settings));
}

void tst_QZelFileDialog_fullDisk::aDiskThatIsFullFromTheStartRemembersNothing()
{
    const QString settings = QStringLiteral("/root/config/MyOrganization");
    QVERIFY(QFile::link(disk, settings));
    QVERIFY(SmallDisk::fill());
    QVERIFY(SmallDisk::fillWithEntries());
    const QStringList before = entries(disk);
    QZelFileDialog dialog(nullptr, QString(), folder);
    dialog.recordLastPath(QStringLiteral("/after/x"));
    QCOMPARE(dialog.getFilePath(), QString());
    QCOMPARE(entries(disk), before);
    QVERIFY(QFile::remove(settings));
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_fullDisk)
#include "tst_QZelFileDialog_fullDisk.moc"
