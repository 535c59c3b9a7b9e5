#include "FileDialogProbe.h"
#include "FtpFolder.h"
#include "TestMain.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

namespace {

const QString Filter = QStringLiteral("Text (*.txt);;All (*)");
const QString TextKey = QStringLiteral("LastFilePathText (*.txt)");
const QString FolderKey = QStringLiteral("LastFilePath");

QString ftp(const char *below = "")
{
    return FtpFolder::path() + QString::fromUtf8(below);
}

QSettings &settings()
{
    static QSettings stored(QStringLiteral("MyOrganization"), QStringLiteral("MyApplication"));
    stored.sync();
    return stored;
}

} // namespace

class tst_QZelFileDialog_lastpath : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aStartFolderInsideOpensAtTheFtpFolder_data();
    void aStartFolderInsideOpensAtTheFtpFolder();
    void otherStartFoldersAreTakenAsTheyAre_data();
    void otherStartFoldersAreTakenAsTheyAre();
    void aStartFolderInsideIsShownAndExpanded_data();
    void aStartFolderInsideIsShownAndExpanded();
    void aStartFileInsideShowsItsFolder();
    void aMissingStartFolderInsideShowsTheTop();
    void theRememberedFolderIsShown_data();
    void theRememberedFolderIsShown();
    void aRememberedFileShowsItsFolder();
    void theStartFolderComesBeforeTheRememberedOne();
    void elsewhereNothingIsRemembered();
    void aRememberedFolderThatIsGoneIsForgotten_data();
    void aRememberedFolderThatIsGoneIsForgotten();
    void theFolderPartIsRecorded_data();
    void theFolderPartIsRecorded();
    void theKeyHoldsTheFirstFilter_data();
    void theKeyHoldsTheFirstFilter();
    void everyReadingOfThePathRecordsIt();
    void aRoundTripRestoresTheFolder_data();
    void aRoundTripRestoresTheFolder();
    void homeAfterARestoredFolderIsTheFtpFolder();
};

void tst_QZelFileDialog_lastpath::init()
{
    settings().clear();
    settings().sync();
    QVERIFY(FtpFolder::reset({ QStringLiteral("sub/deep/"), QStringLiteral("sub/inner.txt"),
                               QStringLiteral("other/") }));
}

void tst_QZelFileDialog_lastpath::aStartFolderInsideOpensAtTheFtpFolder_data()
{
    QTest::addColumn<QString>("dir");
    QTest::addColumn<QString>("subPath");
    QTest::newRow("itself") << ftp("/") << QString();
    QTest::newRow("below") << ftp("/sub") << ftp("/sub");
    QTest::newRow("below with a slash") << ftp("/sub/") << ftp("/sub/");
    QTest::newRow("missing") << ftp("/nowhere/") << ftp("/nowhere/");
    // The text anywhere in the path is enough.
    QTest::newRow("a path that contains it")
            << QStringLiteral("/mnt") + ftp("/x") << QStringLiteral("/mnt") + ftp("/x");
}

void tst_QZelFileDialog_lastpath::aStartFolderInsideOpensAtTheFtpFolder()
{
    QFETCH(QString, dir);
    QFETCH(QString, subPath);
    const auto dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, dir, Filter);
    QCOMPARE(dialog->ftpSubPath, subPath);
    QCOMPARE(dialog->dirPath, ftp());
    QCOMPARE(dialog->back().constFirst(), ftp("/"));
    QCOMPARE(dialog->fileModel->rootPath(), ftp());
    QCOMPARE(dialog->fileModel->filePath(dialog->rootIndex), ftp());
    QCOMPARE(dialog->fileModel->filePath(dialog->tree()->rootIndex()), ftp());
}

void tst_QZelFileDialog_lastpath::otherStartFoldersAreTakenAsTheyAre_data()
{
    QTest::addColumn<QString>("dir");
    QTest::newRow("without a slash at the end") << ftp();
    QTest::newRow("above") << QStringLiteral("/root/zeltempfiles");
    QTest::newRow("elsewhere") << QStringLiteral("/usr");
    QTest::newRow("other case") << ftp("/sub").toUpper();
}

void tst_QZelFileDialog_lastpath::otherStartFoldersAreTakenAsTheyAre()
{
    QFETCH(QString, dir);
    settings().setValue(TextKey, ftp("/sub"));
    settings().sync();
    const auto dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, dir, Filter);
    QCOMPARE(dialog->ftpSubPath, QString());
    QCOMPARE(dialog->dirPath, dir);
    QCOMPARE(dialog->lastPath, QString());
    QCOMPARE(dialog->back(), QStringList(dir + QLatin1Char('/')));
}

void tst_QZelFileDialog_lastpath::aStartFolderInsideIsShownAndExpanded_data()
{
    addModes();
}

void tst_QZelFileDialog_lastpath::aStartFolderInsideIsShownAndExpanded()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    const auto dialog = FileDialogProbe::make(mode, ftp("/sub/deep/"), Filter);
    QCOMPARE(dialog->shown(), ftp("/sub/deep"));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/sub/deep/"));
    QCOMPARE(dialog->back(), QStringList({ ftp("/"), ftp("/sub/deep/") }));
    QTreeView *tree = dialog->tree();
    QCOMPARE(dialog->fileModel->filePath(tree->currentIndex()), ftp("/sub/deep"));
    for (const QString &above : { ftp("/sub/deep"), ftp("/sub"), ftp(), QStringLiteral("/root") })
        QVERIFY2(tree->isExpanded(dialog->fileModel->index(above)), qPrintable(above));
    QVERIFY(!tree->isExpanded(dialog->fileModel->index(ftp("/other"))));
    QCOMPARE(dialog->nameEdit()->text(), QString());

    QVERIFY(dialog->showAndWait());
    QVERIFY(dialog->waitForRow(tree, ftp("/sub")));
    QTRY_VERIFY(!tree->visualRect(dialog->fileModel->index(ftp("/sub/deep"))).isEmpty());
    dialog->close();
}

void tst_QZelFileDialog_lastpath::aStartFileInsideShowsItsFolder()
{
    const auto dialog =
            FileDialogProbe::make(QZelFileDialog::OpenFile, ftp("/sub/inner.txt"), Filter);
    QCOMPARE(dialog->shown(), ftp("/sub"));
    QCOMPARE(dialog->back(), QStringList({ ftp("/"), ftp("/sub/") }));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/sub/"));
    QCOMPARE(dialog->fileModel->filePath(dialog->tree()->currentIndex()), ftp("/sub"));
    QVERIFY(dialog->tree()->isExpanded(dialog->fileModel->index(ftp("/sub"))));
    QCOMPARE(dialog->result(), 0);
}

// The model takes the unknown index for the top of all folders.
void tst_QZelFileDialog_lastpath::aMissingStartFolderInsideShowsTheTop()
{
    const auto dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, ftp("/nowhere/"), Filter);
    QVERIFY(!dialog->list()->rootIndex().isValid());
    QCOMPARE(dialog->back(), QStringList({ ftp("/"), QStringLiteral("/") }));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/"));
    QVERIFY(!dialog->tree()->currentIndex().isValid());
    QVERIFY(!dialog->tree()->isExpanded(dialog->fileModel->index(ftp())));
    QVERIFY(!dialog->tree()->isExpanded(dialog->fileModel->index(QStringLiteral("/root"))));

    QVERIFY(dialog->showAndWait());
    QTRY_COMPARE(FileDialogProbe::rows(dialog->list()), QStringList(QStringLiteral("/")));
    dialog->press(QStringLiteral("btn_Back"));
    QCOMPARE(dialog->shown(), ftp());
    dialog->close();
}

void tst_QZelFileDialog_lastpath::theRememberedFolderIsShown_data()
{
    addModes();
}

void tst_QZelFileDialog_lastpath::theRememberedFolderIsShown()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    const bool isFolderMode = mode == QZelFileDialog::SelectDirectory;
    settings().setValue(isFolderMode ? FolderKey : TextKey, ftp("/sub"));
    settings().setValue(isFolderMode ? TextKey : FolderKey, ftp("/other"));
    settings().setValue(QStringLiteral("LastFilePathAll (*)"), ftp("/other"));
    settings().sync();
    const auto dialog = FileDialogProbe::make(mode, ftp("/"), Filter);
    QCOMPARE(dialog->lastPath, ftp("/sub"));
    QCOMPARE(dialog->shown(), ftp("/sub"));
    QCOMPARE(dialog->back(), QStringList({ ftp("/"), ftp("/sub/") }));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/sub/"));
    QCOMPARE(dialog->fileModel->filePath(dialog->tree()->currentIndex()), ftp("/sub"));
}

void tst_QZelFileDialog_lastpath::aRememberedFileShowsItsFolder()
{
    settings().setValue(TextKey, ftp("/sub/inner.txt"));
    settings().sync();
    const auto dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, ftp("/"), Filter);
    QCOMPARE(dialog->shown(), ftp("/sub"));
    QCOMPARE(dialog->back(), QStringList({ ftp("/"), ftp("/sub/") }));
}

void tst_QZelFileDialog_lastpath::theStartFolderComesBeforeTheRememberedOne()
{
    settings().setValue(TextKey, ftp("/other"));
    settings().sync();
    const auto dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, ftp("/sub/"), Filter);
    QCOMPARE(dialog->lastPath, ftp("/other"));
    QCOMPARE(dialog->shown(), ftp("/sub"));
    QCOMPARE(dialog->back(), QStringList({ ftp("/"), ftp("/sub/") }));
}

void tst_QZelFileDialog_lastpath::elsewhereNothingIsRemembered()
{
    const QTemporaryDir folder;
    QVERIFY(makeEntries(folder.path(), { QStringLiteral("sub/") }));
    settings().setValue(TextKey, folder.filePath(QStringLiteral("sub")));
    settings().sync();
    const auto dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, folder.path(), Filter);
    QCOMPARE(dialog->lastPath, QString());
    QCOMPARE(dialog->shown(), folder.path());
}

void tst_QZelFileDialog_lastpath::aRememberedFolderThatIsGoneIsForgotten_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("missing") << QVariant(ftp("/nowhere"));
    QTest::newRow("empty") << QVariant(QString());
    QTest::newRow("no value") << QVariant();
    QTest::newRow("a number") << QVariant(7);
    QTest::newRow("a list") << QVariant(QStringList { ftp("/sub"), ftp("/other") });
}

void tst_QZelFileDialog_lastpath::aRememberedFolderThatIsGoneIsForgotten()
{
    QFETCH(QVariant, value);
    if (value.isValid())
        settings().setValue(TextKey, value);
    settings().sync();
    const auto dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, ftp("/"), Filter);
    QCOMPARE(dialog->lastPath, QString());
    QCOMPARE(dialog->shown(), ftp());
    QCOMPARE(dialog->back(), QStringList(ftp("/")));
    QVERIFY(!dialog->tree()->currentIndex().isValid());
}

void tst_QZelFileDialog_lastpath::theFolderPartIsRecorded_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("folder");
    const auto row = [](const char *name, const char *path, const char *folder) {
        QTest::newRow(name) << QString::fromUtf8(path) << QString::fromUtf8(folder);
    };
    row("file", "/a/b/report.txt", "/a/b");
    row("folder with a slash", "/a/b/", "/a/b");
    row("folder without", "/a/b", "/a");
    row("directly under the root", "/data.txt", "");
    row("no slash at all", "data.txt", "data.txt");
    row("root folder", "/", "");
    row("empty", "", "");
    row("not ASCII", "/文件/报告.txt", "/文件");
    row("newline", "/a\nb/c", "/a\nb");
    row("comma, quote and percent", "/a,\"b\" %1@/c", "/a,\"b\" %1@");
}

void tst_QZelFileDialog_lastpath::theFolderPartIsRecorded()
{
    QFETCH(QString, path);
    QFETCH(QString, folder);
    const auto dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, ftp("/"), Filter);
    dialog->recordLastPath(path);
    QVERIFY(settings().contains(TextKey));
    QCOMPARE(settings().value(TextKey).toString(), folder);
    QCOMPARE(settings().allKeys(), QStringList(TextKey));
}

void tst_QZelFileDialog_lastpath::theKeyHoldsTheFirstFilter_data()
{
    QTest::addColumn<QZelFileDialog::OperateMode>("mode");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("key");
    const QString images = QStringLiteral("Images (*.png *.jpg)");
    for (const auto mode : { QZelFileDialog::OpenFile, QZelFileDialog::SaveFile,
                             QZelFileDialog::SaveEncryptedFile, QZelFileDialog::OpenFiles })
        QTest::addRow("mode %d", mode) << mode << images + QStringLiteral(";;All (*)")
                                       << QStringLiteral("LastFilePathImages (*.png *.jpg)");
    QTest::newRow("folder") << QZelFileDialog::SelectDirectory << images << FolderKey;
    QTest::newRow("no filter") << QZelFileDialog::OpenFile << QString() << FolderKey;
    QTest::newRow("not ASCII") << QZelFileDialog::OpenFile << QStringLiteral("图片 (*.png)")
                               << QStringLiteral("LastFilePath图片 (*.png)");
}

// Of the first one, whichever is chosen.
void tst_QZelFileDialog_lastpath::theKeyHoldsTheFirstFilter()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    QFETCH(QString, filter);
    QFETCH(QString, key);
    FileDialogProbe dialog(nullptr, QString(), ftp("/"), filter, mode);
    dialog.filterBox()->setCurrentIndex(dialog.filterBox()->count() - 1);
    dialog.recordLastPath(QStringLiteral("/a/b"));
    QCOMPARE(settings().allKeys(), QStringList(key));
    QCOMPARE(settings().value(key).toString(), QStringLiteral("/a"));
}

void tst_QZelFileDialog_lastpath::everyReadingOfThePathRecordsIt()
{
    const auto dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, ftp("/"), Filter);
    QVERIFY(dialog->showAndWait());
    QVERIFY(dialog->click(dialog->tree(), ftp("/sub")));
    QVERIFY(dialog->doubleClick(dialog->list(), ftp("/sub/inner.txt")));
    QVERIFY(settings().allKeys().isEmpty());
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(dialog->getFilePath(), ftp("/sub/inner.txt"));
        QCOMPARE(settings().value(TextKey).toString(), ftp("/sub"));
        settings().remove(TextKey);
        settings().sync();
    }
}

void tst_QZelFileDialog_lastpath::aRoundTripRestoresTheFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("plain");
    QTest::newRow("only spaces") << QStringLiteral("   ");
    QTest::newRow("newline") << QStringLiteral("two\nlines");
    QTest::newRow("markup") << QStringLiteral("<b>&lt;");
    QTest::newRow("right-to-left mark") << QStringLiteral("a\u202Eb");
    QTest::newRow("settings' own characters") << QStringLiteral("a,b;c=\"d\" %20 @Invalid() \\x41");
    QTest::newRow("255 bytes") << QString(255, QLatin1Char('x'));
}

// In the folder mode the chosen folder itself comes back, as its path ends with "/".
void tst_QZelFileDialog_lastpath::aRoundTripRestoresTheFolder()
{
    QFETCH(QString, name);
    const QString path = ftp("/") + name;
    QVERIFY(QDir().mkpath(path));
    auto dialog = FileDialogProbe::make(QZelFileDialog::SelectDirectory, ftp("/"));
    QVERIFY(dialog->showAndWait());
    QVERIFY(dialog->doubleClick(dialog->list(), path));
    dialog->press(QStringLiteral("btn_OpenSave"));
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(dialog->getFilePath(), path + QLatin1Char('/'));

    dialog = FileDialogProbe::make(QZelFileDialog::SelectDirectory, ftp("/"));
    QCOMPARE(dialog->lastPath, path);
    QCOMPARE(dialog->shown(), path);
    QCOMPARE(dialog->back().constLast(), path + QLatin1Char('/'));
}

void tst_QZelFileDialog_lastpath::homeAfterARestoredFolderIsTheFtpFolder()
{
    const auto dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, ftp("/sub"), Filter);
    QVERIFY(dialog->showAndWait());
    dialog->press(QStringLiteral("btn_MainPage"));
    QCOMPARE(dialog->shown(), ftp());
    QCOMPARE(dialog->back().constLast(), ftp("/"));
    dialog->close();
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_lastpath)
#include "tst_QZelFileDialog_lastpath.moc"
