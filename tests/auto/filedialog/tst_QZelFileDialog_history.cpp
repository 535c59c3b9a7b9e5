#include "FileDialogProbe.h"
#include "FtpFolder.h"
#include "ModalDriver.h"
#include "TestMain.h"

#include <QUIMessageBox.h>

#include <QDir>
#include <QTemporaryDir>

class tst_QZelFileDialog_history : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();
    void backAndForwardGoThroughTheFolders_data();
    void backAndForwardGoThroughTheFolders();
    void backWithOneEntryDoesNothing();
    void forwardWithoutEntriesDoesNothing();
    void aNewVisitKeepsWhatForwardReturnsTo();
    void visitsAreRecordedEachTime();
    void backDropsAVanishedFolderAndTriesNoOther();
    void aFolderThatVanishedIsNotKeptForForward();
    void forwardDropsAVanishedFolder();
    void backAndForwardKeepTheName();
    void anEntryWithoutSlashIsShownAsItIs();
    void backCanEmptyTheHistory();
    void withoutHistoryTheFolderIsTheEmptyPath_data();
    void withoutHistoryTheFolderIsTheEmptyPath();
    void withoutHistoryAnOpenNameIsTakenAlone();

private:
    void open(QZelFileDialog::OperateMode mode = QZelFileDialog::OpenFile);
    void visit(const char *name) { QVERIFY(dialog->click(dialog->tree(), path(name))); }
    void back() { dialog->press(QStringLiteral("btn_Back")); }
    void forward() { dialog->press(QStringLiteral("btn_Forward")); }
    void emptyTheHistory();
    QString path(const char *name) const { return folder->filePath(QString::fromLatin1(name)); }
    QString start() const { return folder->path() + QLatin1Char('/'); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<FileDialogProbe> dialog;
};

void tst_QZelFileDialog_history::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(makeEntries(folder->path(), { QStringLiteral("one/"), QStringLiteral("two/"),
                                          QStringLiteral("three/") }));
}

void tst_QZelFileDialog_history::cleanupTestCase()
{
    dialog.reset();
}

void tst_QZelFileDialog_history::open(QZelFileDialog::OperateMode mode)
{
    dialog = FileDialogProbe::make(mode, folder->path());
    QVERIFY(dialog->showAndWait());
}

// The start folder goes while a folder inside it is shown.
void tst_QZelFileDialog_history::emptyTheHistory()
{
    visit("one");
    QVERIFY(QDir(folder->path()).removeRecursively());
    back();
}

void tst_QZelFileDialog_history::backAndForwardGoThroughTheFolders_data()
{
    addModes();
}

void tst_QZelFileDialog_history::backAndForwardGoThroughTheFolders()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    open(mode);
    const QString slash = mode == QZelFileDialog::SelectDirectory ? QString() : QStringLiteral("/");
    visit("one");
    visit("two");

    back();
    QCOMPARE(dialog->shown(), path("one"));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/one") + slash);
    QCOMPARE(dialog->back(), QStringList({ start(), path("one") + slash }));
    QCOMPARE(dialog->forward(), QStringList(path("two") + slash));

    back();
    QCOMPARE(dialog->shown(), folder->path());
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/"));
    QCOMPARE(dialog->back(), QStringList(start()));
    QCOMPARE(dialog->forward(), QStringList({ path("two") + slash, path("one") + slash }));

    forward();
    QCOMPARE(dialog->shown(), path("one"));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/one") + slash);
    forward();
    QCOMPARE(dialog->shown(), path("two"));
    QCOMPARE(dialog->back(), QStringList({ start(), path("one") + slash, path("two") + slash }));
    QVERIFY(dialog->forward().isEmpty());
    dialog->close();
}

void tst_QZelFileDialog_history::backWithOneEntryDoesNothing()
{
    open();
    dialog->pathEdit()->setText(QStringLiteral("typed"));
    back();
    QCOMPARE(dialog->back(), QStringList(start()));
    QVERIFY(dialog->forward().isEmpty());
    QCOMPARE(dialog->shown(), folder->path());
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("typed"));
    dialog->close();
}

void tst_QZelFileDialog_history::forwardWithoutEntriesDoesNothing()
{
    open();
    visit("one");
    forward();
    QCOMPARE(dialog->back(), QStringList({ start(), path("one/") }));
    QCOMPARE(dialog->shown(), path("one"));
    dialog->close();
}

// Unlike a browser's.
void tst_QZelFileDialog_history::aNewVisitKeepsWhatForwardReturnsTo()
{
    open();
    visit("one");
    back();
    visit("two");
    dialog->press(QStringLiteral("btn_MainPage"));
    dialog->typePath(QStringLiteral("/three"));
    QCOMPARE(dialog->forward(), QStringList(path("one/")));
    forward();
    QCOMPARE(dialog->shown(), path("one"));
    QCOMPARE(dialog->back(),
             QStringList({ start(), path("two/"), start(), path("three"), path("one/") }));
    dialog->close();
}

void tst_QZelFileDialog_history::visitsAreRecordedEachTime()
{
    open();
    for (int i = 0; i < 3; ++i)
        visit("one");
    QCOMPARE(dialog->back(), QStringList({ start(), path("one/"), path("one/"), path("one/") }));
    for (int i = 0; i < 500; ++i)
        dialog->button(QStringLiteral("btn_MainPage"))->click();
    QCOMPARE(dialog->back().size(), 504);
    for (int i = 0; i < 503; ++i)
        dialog->button(QStringLiteral("btn_Back"))->click();
    QCOMPARE(dialog->back(), QStringList(start()));
    QCOMPARE(dialog->forward().size(), 503);
    dialog->close();
}

void tst_QZelFileDialog_history::backDropsAVanishedFolderAndTriesNoOther()
{
    open();
    visit("one");
    visit("two");
    visit("three");
    QVERIFY(QDir(path("two")).removeRecursively());
    back();
    QCOMPARE(dialog->shown(), path("three"));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/three/"));
    QCOMPARE(dialog->back(), QStringList({ start(), path("one/") }));
    QCOMPARE(dialog->forward(), QStringList(path("three/")));

    // The next one leaves the folder that the history took for the shown one.
    back();
    QCOMPARE(dialog->shown(), folder->path());
    QCOMPARE(dialog->forward(), QStringList({ path("three/"), path("one/") }));
    dialog->close();
}

void tst_QZelFileDialog_history::aFolderThatVanishedIsNotKeptForForward()
{
    open();
    visit("one");
    visit("two");
    QVERIFY(QDir(path("two")).removeRecursively());
    back();
    QCOMPARE(dialog->shown(), path("one"));
    QVERIFY(dialog->forward().isEmpty());
    dialog->close();
}

void tst_QZelFileDialog_history::forwardDropsAVanishedFolder()
{
    open();
    visit("one");
    visit("two");
    back();
    back();
    QCOMPARE(dialog->forward(), QStringList({ path("two/"), path("one/") }));
    QVERIFY(QDir(path("one")).removeRecursively());
    forward();
    QCOMPARE(dialog->shown(), folder->path());
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/"));
    QCOMPARE(dialog->back(), QStringList(start()));
    QCOMPARE(dialog->forward(), QStringList(path("two/")));
    forward();
    QCOMPARE(dialog->shown(), path("two"));
    dialog->close();
}

void tst_QZelFileDialog_history::backAndForwardKeepTheName()
{
    open();
    visit("one");
    dialog->nameEdit()->setText(QStringLiteral("kept"));
    back();
    forward();
    QCOMPARE(dialog->nameEdit()->text(), QStringLiteral("kept"));
    dialog->close();
}

void tst_QZelFileDialog_history::anEntryWithoutSlashIsShownAsItIs()
{
    open();
    dialog->typePath(QStringLiteral("/one/"));
    visit("two");
    back();
    QCOMPARE(dialog->shown(), path("one"));
    QCOMPARE(dialog->pathEdit()->text(), QStringLiteral("/one"));
    dialog->close();
}

void tst_QZelFileDialog_history::backCanEmptyTheHistory()
{
    open();
    emptyTheHistory();
    QVERIFY(dialog->back().isEmpty());
    QVERIFY(dialog->forward().isEmpty());
    back();
    forward();
    QVERIFY(dialog->back().isEmpty());
    dialog->press(QStringLiteral("btn_MainPage"));
    QCOMPARE(dialog->back(), QStringList(start()));
    dialog->close();
}

void tst_QZelFileDialog_history::withoutHistoryTheFolderIsTheEmptyPath_data()
{
    QTest::addColumn<QZelFileDialog::OperateMode>("mode");
    QTest::newRow("choose a folder") << QZelFileDialog::SelectDirectory;
    QTest::newRow("open a file") << QZelFileDialog::OpenFile;
}

void tst_QZelFileDialog_history::withoutHistoryTheFolderIsTheEmptyPath()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    open(mode);
    emptyTheHistory();
    QVERIFY(dialog->back().isEmpty());
    dialog->nameEdit()->setText(QStringLiteral("no such file"));
    ModalDriver driver;
    driver.on<QTarnKit::QUIMessageBox>([](QTarnKit::QUIMessageBox *box) { box->reject(); });
    dialog->press(QStringLiteral("btn_OpenSave"));
    QVERIFY(driver.finished());
    QVERIFY(dialog->isVisible());
    dialog->close();
    QCOMPARE(dialog->getFilePath(),
             mode == QZelFileDialog::OpenFile ? QStringLiteral("no such file") : QString());
}

// The same as a name in the folder in which the process runs.
void tst_QZelFileDialog_history::withoutHistoryAnOpenNameIsTakenAlone()
{
    open(QZelFileDialog::SaveFile);
    emptyTheHistory();
    QTest::keyClicks(dialog->nameEdit(), QStringLiteral("report"));
    dialog->press(QStringLiteral("btn_OpenSave"));
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(dialog->getFilePath(), QStringLiteral("report"));
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_history)
#include "tst_QZelFileDialog_history.moc"
