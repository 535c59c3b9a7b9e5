#include "FileDialogProbe.h"
#include "FtpFolder.h"
#include "HostileNames.h"
#include "NameDialog.h"
#include "ShownDialog.h"
#include "TestMain.h"

#include <QDir>

#include <sys/stat.h>
#include <unistd.h>

namespace {

using Mode = QZelFileDialog::OperateMode;

const QString folder = QStringLiteral("/root/docs");

QString in(const QString &path)
{
    return folder + QLatin1Char('/') + path;
}

bool setMode(const QString &path, mode_t mode)
{
    return chmod(qPrintable(path), mode) == 0;
}

// What can become of the folder "sub" while it is shown.
const char *const fates[] = { "gone",          "moved away",         "a file",
                              "a pipe",        "a link to itself",   "a link to its parent",
                              "a broken link", "another, empty one", "without permission" };

bool befall(const QString &fate)
{
    const QString sub = in(QStringLiteral("sub"));
    const QByteArray path = sub.toUtf8();
    if (fate == QLatin1String("without permission"))
        return setMode(sub, 0);
    if (!QDir().rename(sub, QStringLiteral("/root/away")))
        return false;
    if (fate != QLatin1String("moved away")
        && !QDir(QStringLiteral("/root/away")).removeRecursively())
        return false;
    if (fate == QLatin1String("a file"))
        return makeRawFile(sub);
    if (fate == QLatin1String("a pipe"))
        return mkfifo(path.constData(), 0600) == 0;
    if (fate == QLatin1String("a link to itself"))
        return QFile::link(sub, sub);
    if (fate == QLatin1String("a link to its parent"))
        return QFile::link(folder, sub);
    if (fate == QLatin1String("a broken link"))
        return QFile::link(QStringLiteral("/root/nowhere"), sub);
    if (fate == QLatin1String("another, empty one"))
        return makeRawFolder(sub);
    return true;
}

} // namespace

/// Run without root's rights, so that permissions bind.
class tst_QZelFileDialog_vanishingFolders : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theShownFolderMayBecomeAnything_data();
    void theShownFolderMayBecomeAnything();
    void theSavedFilesFolderMayBecomeAnythingWhileAsked_data();
    void theSavedFilesFolderMayBecomeAnythingWhileAsked();
    void aFolderMayFlicker();
    void permissionMayComeAndGo();
    void nothingIsMadeWithoutPermission();
    void linksLeadNoDeeperThanTheSystemAllows();
    void aChainOfLinksIsFollowedAsFarAsTheSystemDoes();
    void aFolderDeeperThanAPathIsEmpty();
    void aDeepStartFolderIsShownAndExpanded();

private:
    void open(Mode mode, const QString &dir = folder);

    std::unique_ptr<FileDialogProbe> dialog;
    // Of Qt's own watcher.
    const WarningGuard unwatched { QStringLiteral("^inotify_add_watch.* failed") };
};

void tst_QZelFileDialog_vanishingFolders::init()
{
    dialog.reset();
    QVERIFY(FtpFolder::reset());
    for (const QString &path : { folder, QStringLiteral("/root/away") }) {
        setMode(path + QStringLiteral("/sub"), 0700);
        QVERIFY(QDir(path).removeRecursively());
    }
    QVERIFY(makeEntries(folder, { QStringLiteral("sub/inner.txt"), QStringLiteral("sub/deep/"),
                                  QStringLiteral("other/"), QStringLiteral("notes.txt") }));
    QVERIFY2(geteuid() != 0 || qEnvironmentVariableIsSet("QTARNKIT_DROP_CAPABILITIES"),
             "permissions do not bind: run with QTARNKIT_DROP_CAPABILITIES=1");
}

void tst_QZelFileDialog_vanishingFolders::open(Mode mode, const QString &dir)
{
    dialog = FileDialogProbe::make(mode, dir);
    QVERIFY(dialog->showAndWait());
}

void tst_QZelFileDialog_vanishingFolders::theShownFolderMayBecomeAnything_data()
{
    QTest::addColumn<QString>("fate");
    QTest::addColumn<Mode>("mode");
    for (const char *fate : fates) {
        for (const Mode mode : { QZelFileDialog::OpenFile, QZelFileDialog::SaveFile,
                                 QZelFileDialog::SaveEncryptedFile, QZelFileDialog::SelectDirectory,
                                 QZelFileDialog::OpenFiles })
            QTest::addRow("%s, mode %d", fate, mode) << QString::fromLatin1(fate) << mode;
    }
}

// What the user had chosen there is told as missing, or returned for the host to find out.
void tst_QZelFileDialog_vanishingFolders::theShownFolderMayBecomeAnything()
{
    QFETCH(QString, fate);
    QFETCH(Mode, mode);
    open(mode);
    QVERIFY(dialog->click(dialog->tree(), in(QStringLiteral("sub"))));
    QVERIFY(dialog->waitForRow(dialog->list(), in(QStringLiteral("sub/deep"))));
    if (mode != QZelFileDialog::SelectDirectory)
        QVERIFY(dialog->click(dialog->list(), in(QStringLiteral("sub/inner.txt"))));
    QVERIFY(befall(fate));

    const bool stays = mode == QZelFileDialog::OpenFile
                       || (mode == QZelFileDialog::SelectDirectory
                           && !QFileInfo::exists(in(QStringLiteral("sub"))));
    ModalDriver driver;
    SeenBox seen;
    if (stays)
        answerBox(driver, QStringLiteral("Confirm"), &seen);
    dialog->press(QStringLiteral("btn_OpenSave"));
    QVERIFY(driver.finished());
    QCOMPARE(dialog->isVisible(), stays);
    dialog->show();
    QCoreApplication::processEvents();

    for (const char *name : { "btn_Back", "btn_Forward", "btn_MainPage" })
        dialog->press(QLatin1String(name));
    QCOMPARE(dialog->shown(), folder);
    QVERIFY(dialog->click(dialog->tree(), in(QStringLiteral("other"))));
    QCOMPARE(dialog->shown(), in(QStringLiteral("other")));
    dialog->close();
}

void tst_QZelFileDialog_vanishingFolders::theSavedFilesFolderMayBecomeAnythingWhileAsked_data()
{
    QTest::addColumn<QString>("fate");
    for (const char *fate : fates)
        QTest::newRow(fate) << QString::fromLatin1(fate);
}

// The path is returned as it was confirmed; nothing is made or removed.
void tst_QZelFileDialog_vanishingFolders::theSavedFilesFolderMayBecomeAnythingWhileAsked()
{
    QFETCH(QString, fate);
    open(QZelFileDialog::SaveFile);
    const QString path = in(QStringLiteral("sub/inner.txt"));
    for (const bool byButton : { true, false }) {
        dialog->press(QStringLiteral("btn_MainPage"));
        QVERIFY(dialog->click(dialog->tree(), in(QStringLiteral("sub"))));
        QVERIFY(dialog->click(dialog->list(), path));
        ModalDriver driver;
        driver.on<QTarnKit::QUIMessageBox>([&](QTarnKit::QUIMessageBox *box) {
            if (!byButton)
                QVERIFY(befall(fate));
            User::clickButton(box, byButton ? QStringLiteral("No") : QStringLiteral("Yes"));
        });
        if (byButton)
            dialog->press(QStringLiteral("btn_OpenSave"));
        else
            QVERIFY(dialog->doubleClick(dialog->list(), path));
        QVERIFY(driver.finished());
    }
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(dialog->getFilePath(), path);
    QVERIFY(QFile::exists(in(QStringLiteral("notes.txt"))));
}

void tst_QZelFileDialog_vanishingFolders::aFolderMayFlicker()
{
    open(QZelFileDialog::OpenFile);
    const QString sub = in(QStringLiteral("sub"));
    for (int round = 0; round < 30; ++round) {
        QVERIFY(dialog->click(dialog->tree(), sub));
        QVERIFY(QDir(sub).removeRecursively());
        if (round % 3 == 0)
            QTRY_VERIFY(dialog->shown() != sub);
        QVERIFY(makeEntries(folder, { QStringLiteral("sub/inner.txt") }));
        if (round % 3 == 1)
            QCoreApplication::processEvents();
        dialog->press(QStringLiteral("btn_Back"));
        dialog->press(QStringLiteral("btn_Forward"));
        dialog->press(QStringLiteral("btn_MainPage"));
        QCOMPARE(dialog->shown(), folder);
    }
    dialog->close();
}

void tst_QZelFileDialog_vanishingFolders::permissionMayComeAndGo()
{
    const QString sub = in(QStringLiteral("sub"));
    QVERIFY(setMode(sub, 0));
    open(QZelFileDialog::OpenFile);
    QVERIFY(dialog->doubleClick(dialog->list(), sub));
    QCOMPARE(dialog->shown(), sub);
    QCOMPARE(FileDialogProbe::rows(dialog->list()), QStringList());
    dialog->nameEdit()->setText(QStringLiteral("inner.txt"));
    ModalDriver driver;
    SeenBox seen;
    answerBox(driver, QStringLiteral("Confirm"), &seen);
    dialog->press(QStringLiteral("btn_OpenSave"));
    QVERIFY(driver.finished());
    QCOMPARE(seen.text, QStringLiteral("The file/inner.txt does not exist"));

    QVERIFY(setMode(sub, 0700));
    dialog->press(QStringLiteral("btn_OpenSave"));
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(dialog->getFilePath(), in(QStringLiteral("sub/inner.txt")));
}

void tst_QZelFileDialog_vanishingFolders::nothingIsMadeWithoutPermission()
{
    const QString sub = in(QStringLiteral("sub"));
    QVERIFY(setMode(sub, 0500));
    open(QZelFileDialog::OpenFile);
    QVERIFY(dialog->click(dialog->tree(), sub));
    for (const char *action : { "new", "rename", "delete" }) {
        ModalDriver driver;
        driver.on<QMenu>([action](QMenu *menu) { User::choose(menu, QLatin1String(action)); });
        if (qstrcmp(action, "delete") != 0) {
            driver.on<QZelFolderNameDialog>([](QZelFolderNameDialog *box) {
                User::type(box->let_FolderName, QStringLiteral("made"));
                User::clickButton(box, QStringLiteral("Confirm"));
            });
        }
        User::rightClickItem(dialog->tree(), qstrcmp(action, "new") == 0
                                                     ? QStringLiteral("sub")
                                                     : QStringLiteral("sub/deep"));
        QVERIFY(driver.finished());
        QCOMPARE(QDir(sub).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name),
                 QStringList({ QStringLiteral("deep"), QStringLiteral("inner.txt") }));
    }
    QVERIFY(setMode(sub, 0700));
    dialog->close();
}

void tst_QZelFileDialog_vanishingFolders::linksLeadNoDeeperThanTheSystemAllows()
{
    QVERIFY(QFile::link(folder, in(QStringLiteral("up"))));
    open(QZelFileDialog::OpenFile);
    QString path = folder;
    for (int level = 0; level < 39; ++level) {
        path += QStringLiteral("/up");
        QVERIFY(dialog->doubleClick(dialog->list(), path));
        QCOMPARE(dialog->shown(), path);
    }
    dialog->typePath(QString(QStringLiteral("/up")).repeated(100));
    QCOMPARE(dialog->shown(), path);
    QCOMPARE(dialog->back().size(), 40);
    dialog->press(QStringLiteral("btn_MainPage"));
    QCOMPARE(dialog->shown(), folder);
    dialog->close();
}

void tst_QZelFileDialog_vanishingFolders::aChainOfLinksIsFollowedAsFarAsTheSystemDoes()
{
    QString target = in(QStringLiteral("other"));
    for (int i = 1; i <= 50; ++i) {
        const QString link = in(QStringLiteral("link%1").arg(i));
        QVERIFY(QFile::link(target, link));
        target = link;
    }
    open(QZelFileDialog::OpenFile);
    dialog->typePath(QStringLiteral("/link40"));
    QCOMPARE(dialog->shown(), in(QStringLiteral("link40")));
    dialog->typePath(QStringLiteral("/link41"));
    QCOMPARE(dialog->shown(), in(QStringLiteral("link40")));
    dialog->close();
}

// Whoever walks there step by step comes to a folder that cannot be named any more.
void tst_QZelFileDialog_vanishingFolders::aFolderDeeperThanAPathIsEmpty()
{
    const QString name(250, QLatin1Char('n'));
    QCOMPARE(chdir(qPrintable(folder)), 0);
    for (int level = 0; level < 20; ++level) {
        QCOMPARE(mkdir(qPrintable(name), 0700), 0);
        QCOMPARE(chdir(qPrintable(name)), 0);
    }
    QCOMPARE(chdir("/"), 0);
    open(QZelFileDialog::OpenFile);
    QString path = folder;
    int levels = 0;
    while (QFileInfo::exists(path + QLatin1Char('/') + name)) {
        path += QLatin1Char('/') + name;
        QVERIFY(dialog->doubleClick(dialog->list(), path));
        QCOMPARE(dialog->shown(), path);
        ++levels;
    }
    QCOMPARE(levels, 16);
    QCoreApplication::processEvents();
    QCOMPARE(FileDialogProbe::rows(dialog->list()), QStringList());
    dialog->press(QStringLiteral("btn_MainPage"));
    QCOMPARE(dialog->shown(), folder);
    dialog->close();
    // From within, as no path leads there.
    QCOMPARE(chdir(qPrintable(folder)), 0);
    while (chdir(qPrintable(name)) == 0) {
    }
    while (chdir("..") == 0 && rmdir(qPrintable(name)) == 0) {
    }
    QCOMPARE(chdir("/"), 0);
    QVERIFY(!QFileInfo::exists(in(name)));
}

void tst_QZelFileDialog_vanishingFolders::aDeepStartFolderIsShownAndExpanded()
{
    const QString deep = FtpFolder::path() + QString(QStringLiteral("/d")).repeated(100);
    QVERIFY(QDir().mkpath(deep));
    open(QZelFileDialog::OpenFile, deep);
    QCOMPARE(dialog->shown(), deep);
    QCOMPARE(dialog->fileModel->filePath(dialog->tree()->currentIndex()), deep);
    dialog->press(QStringLiteral("btn_Back"));
    QCOMPARE(dialog->shown(), FtpFolder::path());
    dialog->close();
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_vanishingFolders)
#include "tst_QZelFileDialog_vanishingFolders.moc"
