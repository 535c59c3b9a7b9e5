#include "FileDialogProbe.h"
#include "FtpFolder.h"
#include "TestMain.h"

#include <QSignalSpy>
#include <QTemporaryDir>

class tst_QZelFileDialog_typedpath : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();
    void aTypedFolderIsShown_data();
    void aTypedFolderIsShown();
    void everyModeTakesATypedFolder_data();
    void everyModeTakesATypedFolder();
    void anUnknownPathChangesNothing_data();
    void anUnknownPathChangesNothing();
    void foldersAboveTheFtpFolderAreRefused_data();
    void foldersAboveTheFtpFolderAreRefused();
    void theFtpFolderAndOthersAreTaken_data();
    void theFtpFolderAndOthersAreTaken();
    void foldersAboveCannotBeReachedByDots();
    void aTypedFileIsShownAsAnEmptyFolder();
    void enterPressesNoButton_data();
    void enterPressesNoButton();

private:
    void open(const QString &dir, QZelFileDialog::OperateMode mode = QZelFileDialog::OpenFile);

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<FileDialogProbe> dialog;
};

void tst_QZelFileDialog_typedpath::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(makeEntries(folder->path(), { QStringLiteral("sub/deep/"), QStringLiteral("文件/"),
                                          QStringLiteral("a b/"), QStringLiteral(".hidden/"),
                                          QStringLiteral("notes.txt") }));
    QVERIFY(FtpFolder::reset({ QStringLiteral("inside/") }));
}

void tst_QZelFileDialog_typedpath::cleanupTestCase()
{
    dialog.reset();
}

void tst_QZelFileDialog_typedpath::open(const QString &dir, QZelFileDialog::OperateMode mode)
{
    dialog = FileDialogProbe::make(mode, dir);
    QVERIFY(dialog->showAndWait());
}

void tst_QZelFileDialog_typedpath::aTypedFolderIsShown_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("folder") << QStringLiteral("/sub") << QStringLiteral("/sub");
    QTest::newRow("with a slash") << QStringLiteral("/sub/") << QStringLiteral("/sub");
    QTest::newRow("two levels") << QStringLiteral("/sub/deep") << QStringLiteral("/sub/deep");
    QTest::newRow("two slashes") << QStringLiteral("//sub//deep") << QStringLiteral("/sub/deep");
    QTest::newRow("dots") << QStringLiteral("/sub/../sub/./deep") << QStringLiteral("/sub/deep");
    QTest::newRow("blank inside") << QStringLiteral("/a b") << QStringLiteral("/a b");
    QTest::newRow("start folder") << QStringLiteral("/") << QString();
    QTest::newRow("nothing") << QString() << QString();
}

// Without a slash in the history, whether typed or not, and the text stays as typed.
void tst_QZelFileDialog_typedpath::aTypedFolderIsShown()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    open(folder->path());
    dialog->typePath(text);
    QCOMPARE(dialog->shown(), folder->path() + shown);
    QCOMPARE(dialog->back(),
             QStringList({ folder->path() + QLatin1Char('/'), folder->path() + shown }));
    QCOMPARE(dialog->pathEdit()->text(), text);
    QCOMPARE(QModelIndex(dialog->rootIndex), dialog->tree()->rootIndex());
    dialog->close();
}

void tst_QZelFileDialog_typedpath::everyModeTakesATypedFolder_data()
{
    addModes();
}

void tst_QZelFileDialog_typedpath::everyModeTakesATypedFolder()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    open(folder->path(), mode);
    dialog->nameEdit()->setText(QStringLiteral("kept"));
    dialog->typePath(QStringLiteral("/sub"));
    QCOMPARE(dialog->back().constLast(), folder->filePath(QStringLiteral("sub")));
    QCOMPARE(dialog->nameEdit()->text(), QStringLiteral("kept"));
    QTRY_COMPARE(FileDialogProbe::rows(dialog->list()), QStringList(QStringLiteral("deep")));
    dialog->close();
}

void tst_QZelFileDialog_typedpath::anUnknownPathChangesNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("missing") << QStringLiteral("/nowhere");
    QTest::newRow("without the slash") << QStringLiteral("sub");
    QTest::newRow("below a file") << QStringLiteral("/notes.txt/x");
    QTest::newRow("hidden, which the model leaves out") << QStringLiteral("/.hidden");
    QTest::newRow("other case") << QStringLiteral("/SUB");
    QTest::newRow("only spaces") << QStringLiteral("   ");
    QTest::newRow("markup") << QStringLiteral("/<b>x</b>");
    QTest::newRow("very long") << QLatin1Char('/') + QString(5000, QLatin1Char('x'));
}

void tst_QZelFileDialog_typedpath::anUnknownPathChangesNothing()
{
    QFETCH(QString, text);
    open(folder->path());
    // Before the listing has come, Qt's model takes a hidden folder that is asked for into it.
    QTRY_VERIFY(!FileDialogProbe::rows(dialog->list()).isEmpty());
    dialog->pathEdit()->setText(text);
    dialog->pathEdit()->setFocus();
    QTest::keyClick(dialog->pathEdit(), Qt::Key_Enter);
    QCOMPARE(dialog->shown(), folder->path());
    QCOMPARE(dialog->back().size(), 1);
    QCOMPARE(dialog->pathEdit()->text(), text);
    dialog->close();
}

void tst_QZelFileDialog_typedpath::foldersAboveTheFtpFolderAreRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("root folder") << QStringLiteral("/");
    QTest::newRow("first level") << QStringLiteral("/root");
    QTest::newRow("first level with a slash") << QStringLiteral("/root/");
    QTest::newRow("second level") << QStringLiteral("/root/zeltempfiles");
    QTest::newRow("by dots") << QStringLiteral("/root/zeltempfiles/ftp/..");
    QTest::newRow("by more dots") << QStringLiteral("/usr/../root");
}

void tst_QZelFileDialog_typedpath::foldersAboveTheFtpFolderAreRefused()
{
    QFETCH(QString, text);
    open(QStringLiteral("/"));
    dialog->typePath(QStringLiteral("/usr"));
    QCOMPARE(dialog->shown(), QStringLiteral("/usr"));

    dialog->typePath(text);
    QCOMPARE(dialog->shown(), QStringLiteral("/usr"));
    QCOMPARE(dialog->back(), QStringList({ QStringLiteral("/"), QStringLiteral("/usr") }));
    QCOMPARE(dialog->pathEdit()->text(), text);
    dialog->close();
}

void tst_QZelFileDialog_typedpath::theFtpFolderAndOthersAreTaken_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const QString ftp = FtpFolder::path();
    QTest::newRow("itself") << ftp << ftp;
    QTest::newRow("itself with a slash") << ftp + QLatin1Char('/') << ftp;
    QTest::newRow("below it") << ftp + QStringLiteral("/inside") << ftp + QStringLiteral("/inside");
    QTest::newRow("beside it") << QStringLiteral("/root/tmp") << QStringLiteral("/root/tmp");
    QTest::newRow("elsewhere") << QStringLiteral("/usr") << QStringLiteral("/usr");
}

void tst_QZelFileDialog_typedpath::theFtpFolderAndOthersAreTaken()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    open(QStringLiteral("/"));
    dialog->typePath(text);
    QCOMPARE(dialog->shown(), shown);
    QCOMPARE(dialog->back(), QStringList({ QStringLiteral("/"), shown }));
    QCOMPARE(dialog->pathEdit()->text(), text);
    dialog->close();
}

void tst_QZelFileDialog_typedpath::foldersAboveCannotBeReachedByDots()
{
    open(FtpFolder::path() + QLatin1Char('/'));
    dialog->typePath(QStringLiteral("/.."));
    QCOMPARE(dialog->shown(), FtpFolder::path());
    QCOMPARE(dialog->back().size(), 1);
    dialog->typePath(QStringLiteral("/inside/.."));
    QCOMPARE(dialog->back(),
             QStringList({ FtpFolder::path() + QLatin1Char('/'), FtpFolder::path() }));
    dialog->close();
}

// What the model knows is shown, a file too.
void tst_QZelFileDialog_typedpath::aTypedFileIsShownAsAnEmptyFolder()
{
    open(folder->path());
    dialog->typePath(QStringLiteral("/notes.txt"));
    QCOMPARE(dialog->shown(), folder->filePath(QStringLiteral("notes.txt")));
    QCOMPARE(dialog->back().constLast(), folder->filePath(QStringLiteral("notes.txt")));
    QVERIFY(FileDialogProbe::rows(dialog->list()).isEmpty());
    dialog->close();
}

void tst_QZelFileDialog_typedpath::enterPressesNoButton_data()
{
    addModes();
}

void tst_QZelFileDialog_typedpath::enterPressesNoButton()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    open(folder->path(), mode);
    const QSignalSpy finished(dialog.get(), &QDialog::finished);
    dialog->typePath(QStringLiteral("/sub"));
    QCOMPARE(dialog->back().size(), 2);
    dialog->nameEdit()->setFocus();
    QTest::keyClick(dialog->nameEdit(), Qt::Key_Return);
    QCOMPARE(dialog->back().size(), 2);
    QCOMPARE(finished.count(), 0);
    QVERIFY(dialog->isVisible());
    dialog->close();
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_typedpath)
#include "tst_QZelFileDialog_typedpath.moc"
