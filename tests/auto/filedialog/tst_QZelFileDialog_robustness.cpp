#include "FileDialogProbe.h"
#include "FtpFolder.h"
#include "TestMain.h"

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class tst_QZelFileDialog_robustness : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();
    void theStartFolderMayVanish_data();
    void theStartFolderMayVanish();
    void aVanishedStartFolderMayComeBack();
    void theShownFolderMayVanish();
    void withoutAStartFolderTheDialogIsUsable_data();
    void withoutAStartFolderTheDialogIsUsable();
    void aRelativeStartFolderCountsFromTheProcess();
    void foldersBehindLinksAreShown();
    void aLinkToAFileIsAFile();
    void brokenLinksAreHarmless();
    void aLoopOfLinksIsHarmless();
    void namesThatAreNoTextAreHarmless();
    void aFolderWithoutPermissionIsEmpty();
    void unusableSettingsAreIgnored_data();
    void unusableSettingsAreIgnored();
    void theDialogMayDieInItsSignal();

private:
    void open(const QString &dir, QZelFileDialog::OperateMode mode = QZelFileDialog::OpenFile);
    QString path(const char *name) const { return folder->filePath(QString::fromLatin1(name)); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<FileDialogProbe> dialog;
};

void tst_QZelFileDialog_robustness::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(makeEntries(folder->path(), { QStringLiteral("sub/deep/"), QStringLiteral("sub/file"),
                                          QStringLiteral("file.txt") }));
}

void tst_QZelFileDialog_robustness::cleanupTestCase()
{
    dialog.reset();
}

void tst_QZelFileDialog_robustness::open(const QString &dir, QZelFileDialog::OperateMode mode)
{
    dialog = FileDialogProbe::make(mode, dir);
    QVERIFY(dialog->showAndWait());
}

void tst_QZelFileDialog_robustness::theStartFolderMayVanish_data()
{
    addModes();
}

void tst_QZelFileDialog_robustness::theStartFolderMayVanish()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    open(folder->path(), mode);
    QVERIFY(dialog->click(dialog->tree(), path("sub")));
    QVERIFY(QDir(folder->path()).removeRecursively());
    const QString start = folder->path() + QLatin1Char('/');

    // Whether the model has heard of it or not.
    for (int round = 0; round < 2; ++round) {
        dialog->press(QStringLiteral("btn_MainPage"));
        QCOMPARE(dialog->back().constLast(), start);
        QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/"));
        dialog->press(QStringLiteral("btn_Back"));
        dialog->press(QStringLiteral("btn_Forward"));
        QVERIFY(dialog->forward().isEmpty());
        for (QTreeView *view : { dialog->tree(), dialog->list() }) {
            Pointer(dialog.get()).click(middleOf(view->viewport()));
            Pointer(dialog.get())
                    .doubleClick(view->viewport()->mapToGlobal(view->viewport()->rect().topLeft()
                                                               + QPoint(60, 8)));
        }
        dialog->typePath(QStringLiteral("/sub"));
        QVERIFY(dialog->isVisible());
        QCoreApplication::processEvents();
    }
    dialog->close();
}

void tst_QZelFileDialog_robustness::aVanishedStartFolderMayComeBack()
{
    open(folder->path());
    QVERIFY(dialog->waitForRow(dialog->list(), path("sub")));
    QVERIFY(QDir(folder->path()).removeRecursively());
    dialog->typePath(QStringLiteral("/again"));
    QCOMPARE(dialog->back().size(), 1);
    QVERIFY(QDir().mkpath(path("again")));
    dialog->typePath(QStringLiteral("/again"));
    QCOMPARE(dialog->shown(), path("again"));
    dialog->close();
}

void tst_QZelFileDialog_robustness::theShownFolderMayVanish()
{
    open(folder->path());
    QVERIFY(dialog->click(dialog->tree(), path("sub")));
    QVERIFY(QDir(path("sub")).removeRecursively());
    QTRY_VERIFY(dialog->shown() != path("sub"));
    QCOMPARE(dialog->back().constLast(), path("sub/"));
    dialog->press(QStringLiteral("btn_Back"));
    QCOMPARE(dialog->shown(), folder->path());
    QVERIFY(dialog->forward().isEmpty());
    dialog->close();
}

void tst_QZelFileDialog_robustness::withoutAStartFolderTheDialogIsUsable_data()
{
    QTest::addColumn<QString>("dir");
    QTest::addColumn<QString>("shown");
    const QString current = QDir::currentPath();
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("missing") << QStringLiteral("/no/such/folder") << current;
    QTest::newRow("a file") << QStringLiteral("/etc/passwd") << current;
    QTest::newRow("only spaces") << QStringLiteral("   ") << current;
    QTest::newRow("markup and a newline") << QStringLiteral("/<b>\n%1") << current;
    QTest::newRow("very long") << QLatin1Char('/') + QString(5000, QLatin1Char('x')) << current;
}

// The empty folder is the top of the file system; for all else the model falls back to the folder
// in which the process runs.
void tst_QZelFileDialog_robustness::withoutAStartFolderTheDialogIsUsable()
{
    QFETCH(QString, dir);
    QFETCH(QString, shown);
    open(dir);
    QCOMPARE(dialog->shown(), shown);
    QCOMPARE(dialog->dirPath, dir);
    QCOMPARE(dialog->back(), QStringList(dir + QLatin1Char('/')));
    dialog->press(QStringLiteral("btn_MainPage"));
    QCOMPARE(dialog->shown(), shown);
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/"));
    dialog->press(QStringLiteral("btn_Back"));
    dialog->press(QStringLiteral("btn_Back"));
    Q_EMIT dialog->tree()->clicked(dialog->fileModel->index(path("sub")));
    QCOMPARE(dialog->shown(), path("sub"));
    QCOMPARE(dialog->pathEdit()->text(), path("sub/"));
    dialog->close();
}

void tst_QZelFileDialog_robustness::aRelativeStartFolderCountsFromTheProcess()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder->path()));
    dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, QStringLiteral("sub"));
    QCOMPARE(dialog->shown(), path("sub"));
    QCOMPARE(dialog->back(), QStringList(QStringLiteral("sub/")));
    QVERIFY(dialog->showAndWait());
    dialog->typePath(QStringLiteral("/deep"));
    QCOMPARE(dialog->shown(), path("sub/deep"));
    dialog->close();
    QVERIFY(QDir::setCurrent(before));
}

void tst_QZelFileDialog_robustness::foldersBehindLinksAreShown()
{
    QVERIFY(QFile::link(path("sub"), path("link")));
    open(folder->path());
    QVERIFY(dialog->click(dialog->tree(), path("link")));
    QTRY_COMPARE(FileDialogProbe::rows(dialog->list()),
                 QStringList({ QStringLiteral("deep"), QStringLiteral("file") }));
    dialog->press(QStringLiteral("btn_Back"));
    QVERIFY(dialog->doubleClick(dialog->list(), path("link")));
    QTRY_COMPARE(FileDialogProbe::rows(dialog->list()),
                 QStringList({ QStringLiteral("deep"), QStringLiteral("file") }));
    dialog->typePath(QStringLiteral("/link/deep"));
    QCOMPARE(QFileInfo(dialog->shown()).canonicalFilePath(), path("sub/deep"));
    dialog->close();
}

void tst_QZelFileDialog_robustness::aLinkToAFileIsAFile()
{
    QVERIFY(QFile::link(path("file.txt"), path("link.txt")));
    open(folder->path());
    QVERIFY(dialog->click(dialog->list(), path("link.txt")));
    QCOMPARE(dialog->nameEdit()->text(), QStringLiteral("link.txt"));
    QCOMPARE(FileDialogProbe::rows(dialog->tree()), QStringList(QStringLiteral("sub")));
    dialog->close();
}

void tst_QZelFileDialog_robustness::brokenLinksAreHarmless()
{
    QVERIFY(QFile::link(path("nowhere"), path("broken")));
    open(folder->path());
    QVERIFY(dialog->waitForRow(dialog->list(), path("sub")));
    QVERIFY(!FileDialogProbe::rows(dialog->tree()).contains(QStringLiteral("broken")));
    dialog->typePath(QStringLiteral("/broken"));
    dialog->typePath(QStringLiteral("/broken/below"));
    QVERIFY(dialog->isVisible());
    dialog->press(QStringLiteral("btn_MainPage"));
    QCOMPARE(dialog->shown(), folder->path());
    dialog->close();
}

void tst_QZelFileDialog_robustness::aLoopOfLinksIsHarmless()
{
    QVERIFY(QFile::link(path("loop2"), path("loop1")));
    QVERIFY(QFile::link(path("loop1"), path("loop2")));
    QVERIFY(QFile::link(folder->path(), path("self")));
    open(folder->path());
    QVERIFY(dialog->doubleClick(dialog->list(), path("self")));
    QTRY_VERIFY(FileDialogProbe::rows(dialog->list()).contains(QStringLiteral("sub")));
    QVERIFY(!FileDialogProbe::rows(dialog->tree()).contains(QStringLiteral("loop1")));
    dialog->close();
}

// Bytes that are no UTF-8 cannot be told to the file system again: such entries do nothing.
void tst_QZelFileDialog_robustness::namesThatAreNoTextAreHarmless()
{
    const QByteArray base = QFile::encodeName(folder->path());
    const int file = ::open((base + "/bad\xff\xfe.txt").constData(), O_CREAT | O_WRONLY, 0600);
    QVERIFY(file >= 0);
    ::close(file);
    QCOMPARE(::mkdir((base + "/dir\xc3\x28").constData(), 0700), 0);
    open(folder->path());
    QVERIFY(dialog->waitForRow(dialog->list(), path("sub")));
    QCOMPARE(FileDialogProbe::rows(dialog->tree()), QStringList(QStringLiteral("sub")));
    const QModelIndex root = dialog->fileModel->index(folder->path());
    for (int row = 0; row < dialog->fileModel->rowCount(root); ++row) {
        const QModelIndex index = dialog->fileModel->index(row, 0, root);
        Q_EMIT dialog->list()->clicked(index);
        Q_EMIT dialog->tree()->clicked(index);
    }
    QVERIFY(dialog->isVisible());
    ::rmdir((base + "/dir\xc3\x28").constData());
    ::unlink((base + "/bad\xff\xfe.txt").constData());
    dialog->close();
}

void tst_QZelFileDialog_robustness::aFolderWithoutPermissionIsEmpty()
{
    QVERIFY(QFile::setPermissions(path("sub"), QFile::Permissions()));
    open(folder->path());
    dialog->typePath(QStringLiteral("/sub"));
    QCOMPARE(dialog->shown(), path("sub"));
    dialog->press(QStringLiteral("btn_Back"));
    QCOMPARE(dialog->shown(), folder->path());
    QVERIFY(QFile::setPermissions(path("sub"),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    dialog->close();
}

void tst_QZelFileDialog_robustness::unusableSettingsAreIgnored_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("a folder in the file's place") << QStringLiteral("folder");
    QTest::newRow("a file in the folder's place") << QStringLiteral("no folder");
    QTest::newRow("garbage in the file") << QStringLiteral("garbage");
    QTest::newRow("no permission") << QStringLiteral("read-only");
}

void tst_QZelFileDialog_robustness::unusableSettingsAreIgnored()
{
    QFETCH(QString, kind);
    QVERIFY(FtpFolder::reset({ QStringLiteral("sub/") }));
    const QDir config(QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")));
    const QString place = config.filePath(QStringLiteral("MyOrganization"));
    const QString file = place + QStringLiteral("/MyApplication.conf");
    QDir(place).removeRecursively();
    QFile::remove(place);

    if (kind == QLatin1String("folder")) {
        QVERIFY(QDir().mkpath(file + QStringLiteral("/x")));
    } else if (kind == QLatin1String("no folder")) {
        QVERIFY(makeEntries(config.path(), { QStringLiteral("MyOrganization") }));
    } else {
        QVERIFY(makeEntries(place, { QStringLiteral("MyApplication.conf") }));
        QFile garbage(file);
        QVERIFY(garbage.open(QIODevice::WriteOnly));
        garbage.write("\xff\xfe[[[\n=\0=\n[General\nLastFilePath=@Variant(\0\0\0\x7f)\n");
        garbage.close();
        if (kind == QLatin1String("read-only"))
            QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
    }

    dialog = FileDialogProbe::make(QZelFileDialog::SelectDirectory,
                                   FtpFolder::path() + QLatin1Char('/'));
    QCOMPARE(dialog->lastPath, QString());
    QCOMPARE(dialog->shown(), FtpFolder::path());
    dialog->recordLastPath(FtpFolder::path() + QStringLiteral("/sub/"));
    QCOMPARE(dialog->getFilePath(), QString());
    dialog.reset();
    QDir(place).removeRecursively();
    QFile::remove(place);
}

void tst_QZelFileDialog_robustness::theDialogMayDieInItsSignal()
{
    QPointer<FileDialogProbe> doomed(
            FileDialogProbe::make(QZelFileDialog::OpenFile, folder->path()).release());
    QVERIFY(doomed->showAndWait());
    connect(doomed, &QZelFileDialog::sig_filePath, this, [&doomed] { delete doomed; });
    Q_EMIT doomed->list()->doubleClicked(doomed->fileModel->index(path("file.txt")));
    QVERIFY(!doomed);
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_robustness)
#include "tst_QZelFileDialog_robustness.moc"
