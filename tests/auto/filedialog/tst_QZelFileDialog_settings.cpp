#include "FileDialogProbe.h"
#include "FtpFolder.h"
#include "HostileNames.h"
#include "TestMain.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLockFile>
#include <QSettings>
#include <QThread>

#include <thread>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString place = QStringLiteral("/root/config/MyOrganization");
const QString file = place + QStringLiteral("/MyApplication.conf");
const QString lock = file + QStringLiteral(".lock");
const QString key = QStringLiteral("LastFilePath");

QString ftp(const QString &below = QString())
{
    return FtpFolder::path() + below;
}

QByteArray contents()
{
    QFile settings(file);
    return settings.open(QIODevice::ReadOnly) ? settings.readAll() : QByteArray("not readable");
}

bool setContents(const QByteArray &contents)
{
    QFile settings(file);
    return QDir().mkpath(place) && settings.open(QIODevice::WriteOnly)
           && settings.write(contents) == contents.size();
}

bool makeStored(const QVariant &value)
{
    QSettings settings(QStringLiteral("MyOrganization"), QStringLiteral("MyApplication"));
    settings.setValue(key, value);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

QVariant stored(const QString &storedKey = key)
{
    return QSettings(QStringLiteral("MyOrganization"), QStringLiteral("MyApplication"))
            .value(storedKey);
}

} // namespace

/// Run without root's rights, so that permissions bind.
class tst_QZelFileDialog_settings : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void rubbishIsNoFolder_data();
    void rubbishIsNoFolder();
    void rubbishDoesNotKeepAFolderFromBeingRemembered_data();
    void rubbishDoesNotKeepAFolderFromBeingRemembered();
    void whatOthersStoredStays();
    void valuesThatAreNoFolderAreForgotten_data();
    void valuesThatAreNoFolderAreForgotten();
    void aValueThatIsAnEntryShowsItsFolder_data();
    void aValueThatIsAnEntryShowsItsFolder();
    void aRelativeValueCountsFromTheProcess();
    void aValueMayLeadOutOfTheFixedFolder();
    void aRememberedFolderWithoutPermissionIsShownEmpty();
    void aLockIsNotWaitedFor_data();
    void aLockIsNotWaitedFor();
    void aLockThatIsGivenBackIsWaitedFor();
    // Last: what cannot be written, QSettings keeps for the next time in the same process.
    void aProtectedFileIsLeftAsItIs_data();
    void aProtectedFileIsLeftAsItIs();
    void aFolderThatTakesNoFileRemembersNothing();

private:
    void open();

    std::unique_ptr<FileDialogProbe> dialog;
};

void tst_QZelFileDialog_settings::init()
{
    dialog.reset();
    QVERIFY(FtpFolder::reset({ QStringLiteral("sub/"), QStringLiteral("notes.txt") }));
    QVERIFY(QDir(place).removeRecursively());
    QVERIFY(QDir::setCurrent(QStringLiteral("/")));
    QVERIFY2(geteuid() != 0 || qEnvironmentVariableIsSet("QTARNKIT_DROP_CAPABILITIES"),
             "permissions do not bind: run with QTARNKIT_DROP_CAPABILITIES=1");
}

void tst_QZelFileDialog_settings::open()
{
    dialog = FileDialogProbe::make(QZelFileDialog::SelectDirectory, ftp(QStringLiteral("/")));
}

void tst_QZelFileDialog_settings::rubbishIsNoFolder_data()
{
    QTest::addColumn<QByteArray>("rubbish");
    QTest::newRow("zeros") << QByteArray(100000, '\0');
    QTest::newRow("no text") << QByteArray("\xff\xfe\xc3\x28=\xff\n").repeated(1000);
    QTest::newRow("brackets") << QByteArray("[[[]]][\n]=[\n");
    QTest::newRow("backslashes") << QByteArray("LastFilePath=\\x\\xzz\\xffffffffff\\");
    QTest::newRow("an unfinished variant") << QByteArray("LastFilePath=@Variant(\\0\\0\\0");
    QTest::newRow("an unfinished text") << QByteArray("LastFilePath=\"/roo");
    QTest::newRow("a list without end")
            << "LastFilePath=" + QByteArray("a, \"b\", ").repeated(100000);
    QTest::newRow("a gigantic line") << QByteArray(4000000, 'x');
    QTest::newRow("another program's") << QByteArray("\x7f"
                                                     "ELF\2\1\1\0\0\0",
                                                     10)
                                                  .repeated(10);
}

void tst_QZelFileDialog_settings::rubbishIsNoFolder()
{
    QFETCH(QByteArray, rubbish);
    QVERIFY(setContents(rubbish));
    const WarningGuard zeroInPath(QStringLiteral("^Broken filename passed to function"));
    open();
    QCOMPARE(dialog->lastPath, QString());
    QCOMPARE(dialog->shown(), ftp());
    dialog.reset();
    QCOMPARE(contents(), rubbish); // reading alone changes nothing
}

void tst_QZelFileDialog_settings::rubbishDoesNotKeepAFolderFromBeingRemembered_data()
{
    rubbishIsNoFolder_data();
}

void tst_QZelFileDialog_settings::rubbishDoesNotKeepAFolderFromBeingRemembered()
{
    QFETCH(QByteArray, rubbish);
    QVERIFY(setContents(rubbish));
    const WarningGuard zeroInPath(QStringLiteral("^Broken filename passed to function"));
    open();
    dialog->recordLastPath(ftp(QStringLiteral("/sub/")));
    open();
    QCOMPARE(dialog->lastPath, ftp(QStringLiteral("/sub")));
    QCOMPARE(dialog->shown(), ftp(QStringLiteral("/sub")));
}

void tst_QZelFileDialog_settings::whatOthersStoredStays()
{
    QVERIFY(setContents("[General]\nhost=kept\nLastFilePath=/old\n\xff\xfe[[[\n[Other]\nx=7\n"));
    open();
    dialog->recordLastPath(ftp(QStringLiteral("/sub/")));
    QCOMPARE(stored(), QVariant(ftp(QStringLiteral("/sub"))));
    QCOMPARE(stored(QStringLiteral("host")), QVariant(QStringLiteral("kept")));
    QCOMPARE(stored(QStringLiteral("Other/x")), QVariant(QStringLiteral("7")));
}

void tst_QZelFileDialog_settings::valuesThatAreNoFolderAreForgotten_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("gigantic") << QVariant(QString(1000000, QLatin1Char('x')));
    QTest::newRow("longer than a path")
            << QVariant(QString(QStringLiteral("/root")).repeated(1000));
    QTest::newRow("gigantic, of this folder")
            << QVariant(ftp() + QString(QStringLiteral("/.")).repeated(100000));
    QTest::newRow("relative") << QVariant(QStringLiteral("no/such"));
    QTest::newRow("through a file") << QVariant(ftp(QStringLiteral("/notes.txt/sub")));
    QTest::newRow("a web address") << QVariant(QStringLiteral("file:///root"));
    QTest::newRow("markup") << QVariant(QStringLiteral("<img src=\"/root/pipe\">"));
    QTest::newRow("a point") << QVariant(QPoint(1, 2));
    QTest::newRow("a map") << QVariant(QVariantMap { { key, ftp() } });
    QTest::newRow("a list of lists") << QVariant(QVariantList { QVariantList { ftp() } });
    QTest::newRow("yes") << QVariant(true);
}

void tst_QZelFileDialog_settings::valuesThatAreNoFolderAreForgotten()
{
    QFETCH(QVariant, value);
    QVERIFY(makeStored(value));
    open();
    QCOMPARE(dialog->lastPath, QString());
    QCOMPARE(dialog->shown(), ftp());
    QVERIFY(dialog->showAndWait());
    QVERIFY(dialog->click(dialog->tree(), ftp(QStringLiteral("/sub"))));
    dialog->close();
}

void tst_QZelFileDialog_settings::aValueThatIsAnEntryShowsItsFolder_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("shown");
    QTest::newRow("file") << ftp(QStringLiteral("/notes.txt")) << ftp();
    QTest::newRow("pipe") << ftp(QStringLiteral("/pipe")) << ftp();
    QTest::newRow("device") << QStringLiteral("/dev/zero") << QStringLiteral("/dev");
    QTest::newRow("link to itself's folder")
            << ftp(QStringLiteral("/loop")) << ftp(QStringLiteral("/loop"));
    QTest::newRow("dots") << ftp(QStringLiteral("/sub/../sub/.")) << ftp(QStringLiteral("/sub"));
    QTest::newRow("slashes") << ftp(QStringLiteral("//sub///")) << ftp(QStringLiteral("/sub"));
    QTest::newRow("top") << QStringLiteral("/") << QStringLiteral("/");
    // Qt's own resources are no folders of the model: that is its top.
    QTest::newRow("resource") << QStringLiteral(":/image") << QString();
}

void tst_QZelFileDialog_settings::aValueThatIsAnEntryShowsItsFolder()
{
    QFETCH(QString, value);
    QFETCH(QString, shown);
    QCOMPARE(mkfifo(qPrintable(ftp(QStringLiteral("/pipe"))), 0600), 0);
    QVERIFY(QFile::link(ftp(), ftp(QStringLiteral("/loop"))));
    QVERIFY(makeStored(value));
    open();
    QCOMPARE(dialog->lastPath, value);
    QCOMPARE(dialog->shown(), shown);
    QVERIFY(dialog->showAndWait());
    dialog->press(QStringLiteral("btn_MainPage"));
    QCOMPARE(dialog->shown(), ftp());
    dialog->close();
}

void tst_QZelFileDialog_settings::aRelativeValueCountsFromTheProcess()
{
    QVERIFY(QDir::setCurrent(ftp()));
    QVERIFY(makeStored(QStringLiteral("sub")));
    open();
    QCOMPARE(dialog->lastPath, QStringLiteral("sub"));
    QCOMPARE(dialog->shown(), ftp(QStringLiteral("/sub")));
}

void tst_QZelFileDialog_settings::aValueMayLeadOutOfTheFixedFolder()
{
    QVERIFY(makeStored(QStringLiteral("/root/config")));
    open();
    QCOMPARE(dialog->shown(), QStringLiteral("/root/config"));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/root/config/"));
}

void tst_QZelFileDialog_settings::aRememberedFolderWithoutPermissionIsShownEmpty()
{
    const QString sub = ftp(QStringLiteral("/sub"));
    QVERIFY(makeRawFile(sub + QStringLiteral("/hidden.txt")));
    QVERIFY(makeStored(sub));
    QCOMPARE(chmod(qPrintable(sub), 0), 0);
    const WarningGuard unwatched(QStringLiteral("^inotify_add_watch.*Permission denied"));
    open();
    QVERIFY(dialog->showAndWait());
    QCOMPARE(dialog->shown(), sub);
    QCOMPARE(FileDialogProbe::rows(dialog->list()), QStringList());
    dialog->press(QStringLiteral("btn_Back"));
    QCOMPARE(dialog->shown(), ftp());
    QCOMPARE(chmod(qPrintable(sub), 0700), 0);
    dialog->close();
}

void tst_QZelFileDialog_settings::aLockIsNotWaitedFor_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("held") << QStringLiteral("held");
    QTest::newRow("empty, as a power cut leaves it") << QStringLiteral("empty");
    QTest::newRow("a folder") << QStringLiteral("folder");
}

// Nothing is remembered then.
void tst_QZelFileDialog_settings::aLockIsNotWaitedFor()
{
    QFETCH(QString, kind);
    QVERIFY(makeStored(QStringLiteral("/before")));
    QLockFile held(lock);
    if (kind == QLatin1String("held"))
        QVERIFY(held.tryLock());
    else
        QVERIFY(kind == QLatin1String("empty") ? makeRawFile(lock.toUtf8()) : makeRawFolder(lock));
    open();
    QElapsedTimer waited;
    waited.start();
    dialog->recordLastPath(ftp(QStringLiteral("/sub/")));
    QVERIFY(waited.elapsed() < 10000);
    QCOMPARE(stored(), QVariant(QStringLiteral("/before")));

    held.unlock();
    QVERIFY(kind == QLatin1String("folder") ? QDir().rmdir(lock)
                                            : !QFile::exists(lock) || QFile::remove(lock));
    dialog->recordLastPath(ftp(QStringLiteral("/sub/")));
    QCOMPARE(stored(), QVariant(ftp(QStringLiteral("/sub"))));
}

void tst_QZelFileDialog_settings::aLockThatIsGivenBackIsWaitedFor()
{
    QVERIFY(makeStored(QStringLiteral("/before")));
    open();
    QLockFile held(lock);
    QVERIFY(held.tryLock());
    std::thread other([&held] {
        QThread::msleep(50);
        held.unlock();
    });
    dialog->recordLastPath(ftp(QStringLiteral("/sub/")));
    other.join();
    QCOMPARE(stored(), QVariant(ftp(QStringLiteral("/sub"))));
}

void tst_QZelFileDialog_settings::aProtectedFileIsLeftAsItIs_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("read-only") << 0400;
    QTest::newRow("not readable") << 0000;
}

void tst_QZelFileDialog_settings::aProtectedFileIsLeftAsItIs()
{
    QFETCH(int, mode);
    QVERIFY(makeStored(ftp(QStringLiteral("/sub"))));
    const QByteArray before = contents();
    QCOMPARE(chmod(qPrintable(file), mode_t(mode)), 0);
    open();
    dialog->recordLastPath(QStringLiteral("/elsewhere/x"));
    dialog.reset();
    QCOMPARE(chmod(qPrintable(file), 0600), 0);
    QCOMPARE(contents(), before);
    QVERIFY(!QFileInfo::exists(lock));
}

void tst_QZelFileDialog_settings::aFolderThatTakesNoFileRemembersNothing()
{
    QVERIFY(QDir().mkpath(place));
    QCOMPARE(chmod(qPrintable(place), 0500), 0);
    open();
    dialog->recordLastPath(ftp(QStringLiteral("/sub/")));
    QCOMPARE(dialog->shown(), ftp());
    QVERIFY(QDir(place).isEmpty());
    QCOMPARE(chmod(qPrintable(place), 0700), 0);
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_settings)
#include "tst_QZelFileDialog_settings.moc"
