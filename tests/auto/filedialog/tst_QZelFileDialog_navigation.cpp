#include "FileDialogProbe.h"
#include "FtpFolder.h"
#include "TestMain.h"

#include <QSignalSpy>
#include <QTemporaryDir>

class tst_QZelFileDialog_navigation : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();
    void aTreeClickShowsTheFolder_data();
    void aTreeClickShowsTheFolder();
    void aTreeClickLeavesTheTreeAtItsRoot();
    void aTreeClickOnAFileDoesNothing();
    void aDoubleClickShowsTheFolder_data();
    void aDoubleClickShowsTheFolder();
    void aDoubleClickOnAnyColumnShowsTheFolder_data();
    void aDoubleClickOnAnyColumnShowsTheFolder();
    void aDoubleClickOnAFileEndsTheDialog_data();
    void aDoubleClickOnAFileEndsTheDialog();
    void aClickOnAFileNamesIt_data();
    void aClickOnAFileNamesIt();
    void aClickOnAFolderInTheListingDoesNothing_data();
    void aClickOnAFolderInTheListingDoesNothing();
    void aClickChoosesAFolderWithoutShowingIt_data();
    void aClickChoosesAFolderWithoutShowingIt();
    void homeShowsTheStartFolder_data();
    void homeShowsTheStartFolder();
    void everyOccurrenceOfTheStartFolderIsCutOut();
    void theStartFolderIsCutOutCaseSensitively();
    void nothingIsCutOutBelowTheRootFolder();
    void clicksOnBlankSpaceDoNothing();
    void namesShowAsTheyAre_data();
    void namesShowAsTheyAre();

private:
    void open(QZelFileDialog::OperateMode mode);
    QString path(const char *name) const { return folder->filePath(QString::fromUtf8(name)); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<FileDialogProbe> dialog;
};

void tst_QZelFileDialog_navigation::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(makeEntries(folder->path(),
                        { QStringLiteral("sub/deep/"), QStringLiteral("sub/inner.txt"),
                          QStringLiteral("notes.txt"), QStringLiteral("photo.png") }));
}

void tst_QZelFileDialog_navigation::cleanupTestCase()
{
    dialog.reset();
}

void tst_QZelFileDialog_navigation::open(QZelFileDialog::OperateMode mode)
{
    dialog = FileDialogProbe::make(mode, folder->path());
    QVERIFY(dialog->showAndWait());
}

void tst_QZelFileDialog_navigation::aTreeClickShowsTheFolder_data()
{
    addModes();
}

void tst_QZelFileDialog_navigation::aTreeClickShowsTheFolder()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    open(mode);
    const bool isFolderMode = mode == QZelFileDialog::SelectDirectory;
    dialog->nameEdit()->setText(QStringLiteral("kept"));
    QVERIFY(dialog->click(dialog->tree(), path("sub")));
    QCOMPARE(dialog->shown(), path("sub"));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/sub/"));
    QCOMPARE(dialog->back(), QStringList({ folder->path() + QLatin1Char('/'),
                                           isFolderMode ? path("sub") : path("sub/") }));
    QCOMPARE(dialog->nameEdit()->text(),
             isFolderMode ? QStringLiteral("sub") : QStringLiteral("kept"));
    dialog->close();
}

void tst_QZelFileDialog_navigation::aTreeClickLeavesTheTreeAtItsRoot()
{
    open(QZelFileDialog::OpenFile);
    QVERIFY(dialog->waitForRow(dialog->tree(), path("sub")));
    dialog->tree()->expand(dialog->fileModel->index(path("sub")));
    QVERIFY(dialog->click(dialog->tree(), path("sub/deep")));
    QCOMPARE(dialog->shown(), path("sub/deep"));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/sub/deep/"));
    QCOMPARE(dialog->fileModel->filePath(dialog->tree()->rootIndex()), folder->path());
    QCOMPARE(QModelIndex(dialog->rootIndex), dialog->tree()->rootIndex());
    dialog->close();
}

// No pointer reaches a row without height; a host's code can.
void tst_QZelFileDialog_navigation::aTreeClickOnAFileDoesNothing()
{
    open(QZelFileDialog::OpenFile);
    Q_EMIT dialog->tree()->clicked(dialog->fileModel->index(path("notes.txt")));
    QCOMPARE(dialog->shown(), folder->path());
    QCOMPARE(dialog->back().size(), 1);
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/"));
    dialog->close();
}

void tst_QZelFileDialog_navigation::aDoubleClickShowsTheFolder_data()
{
    addModes();
}

// Its first click is a click too: the folder mode records the folder twice, with and without "/".
void tst_QZelFileDialog_navigation::aDoubleClickShowsTheFolder()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    open(mode);
    dialog->nameEdit()->setText(QStringLiteral("cleared"));
    QVERIFY(dialog->doubleClick(dialog->list(), path("sub")));
    QCOMPARE(dialog->shown(), path("sub"));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/sub/"));
    QCOMPARE(dialog->nameEdit()->text(), QString());
    QStringList expected { folder->path() + QLatin1Char('/'), path("sub/") };
    if (mode == QZelFileDialog::SelectDirectory)
        expected.insert(1, path("sub"));
    QCOMPARE(dialog->back(), expected);
    QCOMPARE(QModelIndex(dialog->rootIndex), dialog->tree()->rootIndex());
    QCOMPARE(dialog->result(), 0);
    QVERIFY(dialog->isVisible());
    dialog->close();
}

void tst_QZelFileDialog_navigation::aDoubleClickOnAnyColumnShowsTheFolder_data()
{
    QTest::addColumn<int>("column");
    for (int column = 0; column < 4; ++column)
        QTest::addRow("column %d", column) << column;
}

void tst_QZelFileDialog_navigation::aDoubleClickOnAnyColumnShowsTheFolder()
{
    QFETCH(int, column);
    open(QZelFileDialog::OpenFile);
    QVERIFY(dialog->doubleClick(dialog->list(), path("sub"), column));
    QCOMPARE(dialog->shown(), path("sub"));
    QCOMPARE(dialog->back().constLast(), path("sub/"));
    QTRY_COMPARE(FileDialogProbe::rows(dialog->list()),
                 QStringList({ QStringLiteral("deep"), QStringLiteral("inner.txt") }));
    dialog->close();
}

void tst_QZelFileDialog_navigation::aDoubleClickOnAFileEndsTheDialog_data()
{
    QTest::addColumn<QZelFileDialog::OperateMode>("mode");
    QTest::addColumn<int>("column");
    QTest::newRow("open a file") << QZelFileDialog::OpenFile << 0;
    QTest::newRow("open a file by its size") << QZelFileDialog::OpenFile << 1;
    QTest::newRow("open files") << QZelFileDialog::OpenFiles << 0;
}

void tst_QZelFileDialog_navigation::aDoubleClickOnAFileEndsTheDialog()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    QFETCH(int, column);
    open(mode);
    const QSignalSpy chosen(dialog.get(), &QZelFileDialog::sig_filePath);
    const QSignalSpy accepted(dialog.get(), &QDialog::accepted);
    QVERIFY(dialog->doubleClick(dialog->list(), path("notes.txt"), column));
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.at(0).at(0).toString(), path("notes.txt"));
    QCOMPARE(accepted.count(), 1);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->back().size(), 1);
}

void tst_QZelFileDialog_navigation::aClickOnAFileNamesIt_data()
{
    QTest::addColumn<QZelFileDialog::OperateMode>("mode");
    QTest::addColumn<int>("column");
    QTest::newRow("open a file") << QZelFileDialog::OpenFile << 0;
    QTest::newRow("save") << QZelFileDialog::SaveFile << 0;
    QTest::newRow("save encrypted") << QZelFileDialog::SaveEncryptedFile << 0;
    QTest::newRow("open files") << QZelFileDialog::OpenFiles << 0;
    QTest::newRow("size column") << QZelFileDialog::OpenFile << 1;
    QTest::newRow("type column") << QZelFileDialog::OpenFile << 2;
    QTest::newRow("date column") << QZelFileDialog::OpenFile << 3;
}

void tst_QZelFileDialog_navigation::aClickOnAFileNamesIt()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    QFETCH(int, column);
    open(mode);
    QVERIFY(dialog->click(dialog->list(), path("notes.txt"), column));
    QCOMPARE(dialog->nameEdit()->text(), QStringLiteral("notes.txt"));
    QCOMPARE(dialog->back().size(), 1);
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/"));
    QVERIFY(dialog->isVisible());
    dialog->close();
}

void tst_QZelFileDialog_navigation::aClickOnAFolderInTheListingDoesNothing_data()
{
    QTest::addColumn<QZelFileDialog::OperateMode>("mode");
    QTest::newRow("open a file") << QZelFileDialog::OpenFile;
    QTest::newRow("save") << QZelFileDialog::SaveFile;
    QTest::newRow("save encrypted") << QZelFileDialog::SaveEncryptedFile;
    QTest::newRow("open files") << QZelFileDialog::OpenFiles;
}

void tst_QZelFileDialog_navigation::aClickOnAFolderInTheListingDoesNothing()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    open(mode);
    dialog->nameEdit()->setText(QStringLiteral("kept"));
    QVERIFY(dialog->click(dialog->list(), path("sub")));
    QCOMPARE(dialog->nameEdit()->text(), QStringLiteral("kept"));
    QCOMPARE(dialog->back().size(), 1);
    QCOMPARE(dialog->shown(), folder->path());
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/"));
    dialog->close();
}

void tst_QZelFileDialog_navigation::aClickChoosesAFolderWithoutShowingIt_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("name") << 0;
    QTest::newRow("date") << 3;
}

// The path edit gets the full path here, not the one from the start folder.
void tst_QZelFileDialog_navigation::aClickChoosesAFolderWithoutShowingIt()
{
    QFETCH(int, column);
    open(QZelFileDialog::SelectDirectory);
    QVERIFY(dialog->click(dialog->list(), path("sub"), column));
    QCOMPARE(dialog->pathEdit()->text(), path("sub/"));
    QCOMPARE(dialog->back(), QStringList({ folder->path() + QLatin1Char('/'), path("sub") }));
    QCOMPARE(dialog->nameEdit()->text(), QStringLiteral("sub"));
    QCOMPARE(dialog->shown(), folder->path());
    dialog->close();
}

void tst_QZelFileDialog_navigation::homeShowsTheStartFolder_data()
{
    addModes();
}

void tst_QZelFileDialog_navigation::homeShowsTheStartFolder()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    open(mode);
    QVERIFY(dialog->click(dialog->tree(), path("sub")));
    dialog->nameEdit()->setText(QStringLiteral("kept"));
    dialog->press(QStringLiteral("btn_MainPage"));
    QCOMPARE(dialog->shown(), folder->path());
    QCOMPARE(dialog->back().size(), 3);
    QCOMPARE(dialog->back().constLast(), folder->path() + QLatin1Char('/'));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/"));
    QCOMPARE(dialog->nameEdit()->text(), QStringLiteral("kept"));

    // At home already it is recorded again.
    dialog->press(QStringLiteral("btn_MainPage"));
    QCOMPARE(dialog->back().size(), 4);
    dialog->close();
}

void tst_QZelFileDialog_navigation::everyOccurrenceOfTheStartFolderIsCutOut()
{
    const QString again = folder->path().mid(1); // without the "/" in front
    QVERIFY(makeEntries(folder->path(), { again + QStringLiteral("/end/") }));
    open(QZelFileDialog::OpenFile);
    const QString end = folder->filePath(again) + QStringLiteral("/end");
    Q_EMIT dialog->tree()->clicked(dialog->fileModel->index(end));
    QCOMPARE(dialog->shown(), end);
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/end/"));
    dialog->close();
}

void tst_QZelFileDialog_navigation::theStartFolderIsCutOutCaseSensitively()
{
    const QString upper = folder->path().mid(1).toUpper();
    QVERIFY(makeEntries(folder->path(), { upper + QLatin1Char('/') }));
    open(QZelFileDialog::OpenFile);
    Q_EMIT dialog->list()->doubleClicked(dialog->fileModel->index(folder->filePath(upper)));
    QCOMPARE(dialog->pathEdit()->text(), QLatin1Char('/') + upper + QLatin1Char('/'));
    dialog->close();
}

void tst_QZelFileDialog_navigation::nothingIsCutOutBelowTheRootFolder()
{
    dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, QStringLiteral("/"));
    QVERIFY(dialog->showAndWait());
    QVERIFY(dialog->click(dialog->tree(), QStringLiteral("/usr")));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/usr/"));
    QCOMPARE(dialog->back(), QStringList({ QStringLiteral("/"), QStringLiteral("/usr/") }));
    dialog->press(QStringLiteral("btn_MainPage"));
    QCOMPARE(dialog->shown(), QStringLiteral("/"));
    QCOMPARE(dialog->back().constLast(), QStringLiteral("/"));
    dialog->close();
}

void tst_QZelFileDialog_navigation::clicksOnBlankSpaceDoNothing()
{
    open(QZelFileDialog::SelectDirectory);
    for (QTreeView *view : { dialog->tree(), dialog->list() }) {
        QVERIFY(dialog->waitForRow(view, path("sub")));
        const QPoint blank(view->viewport()->width() / 2, view->viewport()->height() - 20);
        QVERIFY(!view->indexAt(blank).isValid());
        Pointer(dialog.get()).click(view->viewport()->mapToGlobal(blank));
        Pointer(dialog.get()).doubleClick(view->viewport()->mapToGlobal(blank));
    }
    QCOMPARE(dialog->back().size(), 1);
    QCOMPARE(dialog->shown(), folder->path());
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/"));
    dialog->close();
}

void tst_QZelFileDialog_navigation::namesShowAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("only spaces") << QStringLiteral("   ");
    QTest::newRow("newline") << QStringLiteral("two\nlines");
    QTest::newRow("markup") << QStringLiteral("<b>bold &amp; <img src=x>");
    QTest::newRow("right-to-left mark") << QStringLiteral("a\u202Etxt.exe");
    QTest::newRow("percent and ampersand") << QStringLiteral("%1 &file");
    QTest::newRow("255 bytes") << QString(255, QLatin1Char('x'));
    QTest::newRow("not ASCII") << QStringLiteral("文件夹");
}

void tst_QZelFileDialog_navigation::namesShowAsTheyAre()
{
    QFETCH(QString, name);
    QVERIFY(QDir(folder->path()).mkpath(name + QStringLiteral("/below")));
    open(QZelFileDialog::SelectDirectory);
    QVERIFY(dialog->click(dialog->tree(), folder->filePath(name)));
    QCOMPARE(dialog->back().constLast(), folder->filePath(name));
    QCOMPARE(dialog->pathEdit()->text(), QLatin1Char('/') + name + QLatin1Char('/'));
    QCOMPARE(dialog->nameEdit()->text(), name);
    QCOMPARE(dialog->shown(), folder->filePath(name));
    QTRY_COMPARE(FileDialogProbe::rows(dialog->list()), QStringList(QStringLiteral("below")));
    dialog->close();
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_navigation)
#include "tst_QZelFileDialog_navigation.moc"
