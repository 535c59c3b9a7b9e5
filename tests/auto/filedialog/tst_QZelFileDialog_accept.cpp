#include "FtpFolder.h"
#include "ModalDriver.h"
#include "ShownDialog.h"
#include "TestMain.h"
#include "User.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QSettings>

namespace {

using Mode = QZelFileDialog::OperateMode;

const QString folder = ShownDialog::folder();

} // namespace

class tst_QZelFileDialog_accept : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void emptyNameDoesNothing_data();
    void emptyNameDoesNothing();
    void bareNameGetsTheFiltersSuffix_data();
    void bareNameGetsTheFiltersSuffix();
    void suffixFollowsTheFilterChosenLast();
    void typedPathIsJoinedToTheNameAsItIs();
    void newFileIsAnnouncedBeforeTheDialogIsAccepted();
    void overwriteThroughTheButton_data();
    void overwriteThroughTheButton();
    void replaceThroughADoubleClick_data();
    void replaceThroughADoubleClick();
    void doubleClickOnAFileToOpenAsksNothing_data();
    void doubleClickOnAFileToOpenAsksNothing();
    void missingFileIsToldWithItsFullName();
    void existingFileToOpenIsAnnounced();
    void folderOfTheTypedNameCountsAsExisting();
    void manyFilesAreAcceptedAtOnce();
    void shownFolderIsChosen();
    void vanishedFolderIsToldWithTheNameField_data();
    void vanishedFolderIsToldWithTheNameField();
    void emptyHistoryIsAnEmptyFolder();
    void closeAndCancelReject_data();
    void closeAndCancelReject();
};

void tst_QZelFileDialog_accept::init()
{
    QSettings(QStringLiteral("MyOrganization"), QStringLiteral("MyApplication")).clear();
    QVERIFY(FtpFolder::isPrivate());
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(makeEntries(folder, { QStringLiteral("notes.txt"), QStringLiteral("data.bin"),
                                  QStringLiteral("sub/inner.txt") }));
}

void tst_QZelFileDialog_accept::emptyNameDoesNothing_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("open") << int(Mode::OpenFile);
    QTest::newRow("save") << int(Mode::SaveFile);
    QTest::newRow("save encrypted") << int(Mode::SaveEncryptedFile);
}

void tst_QZelFileDialog_accept::emptyNameDoesNothing()
{
    QFETCH(int, mode);
    // With a name added, this file would exist.
    QVERIFY(makeEntries(folder, { QStringLiteral(".txt") }));
    ShownDialog dialog { Mode(mode) };
    dialog.pressGo();
    QVERIFY(dialog.stays());
    QCOMPARE(dialog.announced(), QStringList());
    QCOMPARE(dialog.filePath, QString());
}

void tst_QZelFileDialog_accept::bareNameGetsTheFiltersSuffix_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *title, const char *filter, const char *name,
                        const char *expected) {
        QTest::newRow(title) << QString::fromUtf8(filter) << QString::fromUtf8(name)
                             << QString::fromUtf8(expected);
    };
    row("bare name", "Text (*.txt)", "report", "report.txt");
    row("own suffix", "Text (*.txt)", "report.old", "report.old");
    row("dot at the end", "Text (*.txt)", "report.", "report.");
    row("all files", "All (*)", "report", "report");
    row("first of several patterns", "Images (*.png *.jpg)", "photo", "photo.png");
    row("bare pattern", "*.log", "day", "day.log");
    row("every asterisk goes", "Odd (*a.*b*)", "name", "namea.b");
    row("no filter", "", "report", "report");
    row("first group of two", "A (*.a) B (*.b)", "name", "name.a");
}

void tst_QZelFileDialog_accept::bareNameGetsTheFiltersSuffix()
{
    QFETCH(QString, filter);
    QFETCH(QString, name);
    QFETCH(QString, expected);
    const QList<Mode> modes = { Mode::SaveFile, Mode::SaveEncryptedFile };
    for (const Mode mode : modes) {
        ShownDialog dialog(mode, filter);
        // Not typed: the edit takes no dots from the keyboard in these modes.
        dialog.name()->setText(name);
        dialog.pressGo();
        QVERIFY(dialog.wasAccepted());
        QCOMPARE(dialog.announced(), QStringList(folder + expected));
        QCOMPARE(dialog.getFilePath(), folder + expected);
    }
}

void tst_QZelFileDialog_accept::suffixFollowsTheFilterChosenLast()
{
    ShownDialog dialog(Mode::SaveFile, QStringLiteral("Text (*.txt);;Log (*.log)"));
    dialog.findChild<QComboBox *>(QStringLiteral("cbx_FileType"))->setCurrentIndex(1);
    User::type(dialog.name(), QStringLiteral("day-1"));
    dialog.pressGo();
    QVERIFY(dialog.wasAccepted());
    QCOMPARE(dialog.announced(), QStringList(folder + QStringLiteral("day-1.log")));
}

// The folder shown after a typed path has no slash at its end, and none is put in.
void tst_QZelFileDialog_accept::typedPathIsJoinedToTheNameAsItIs()
{
    ShownDialog dialog(Mode::SaveFile);
    User::type(dialog.path(), QStringLiteral("/sub"));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    User::type(dialog.name(), QStringLiteral("report"));
    dialog.pressGo();
    QVERIFY(dialog.wasAccepted());
    QCOMPARE(dialog.announced(), QStringList(QStringLiteral("/root/docs/subreport.txt")));
}

void tst_QZelFileDialog_accept::newFileIsAnnouncedBeforeTheDialogIsAccepted()
{
    ShownDialog dialog(Mode::SaveFile);
    bool wasOpen = false;
    connect(&dialog, &QZelFileDialog::sig_filePath, this,
            [&](const QString &) { wasOpen = dialog.stays(); });
    User::type(dialog.name(), QStringLiteral("report"));
    dialog.pressGo();
    QVERIFY(wasOpen);
    QVERIFY(dialog.wasAccepted());
    QCOMPARE(dialog.announced().size(), 1);
    QVERIFY(!QFile::exists(dialog.filePath));
}

void tst_QZelFileDialog_accept::overwriteThroughTheButton_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("replaces");
    QTest::newRow("yes") << int(Mode::SaveFile) << QStringLiteral("Yes") << true;
    QTest::newRow("no") << int(Mode::SaveFile) << QStringLiteral("No") << false;
    QTest::newRow("box closed") << int(Mode::SaveFile) << QStringLiteral("closeBtn") << false;
    QTest::newRow("encrypted, yes")
            << int(Mode::SaveEncryptedFile) << QStringLiteral("Yes") << true;
    QTest::newRow("encrypted, no") << int(Mode::SaveEncryptedFile) << QStringLiteral("No") << false;
}

// Accepted without sig_filePath: the caller reads the result. A double-click announces it.
void tst_QZelFileDialog_accept::overwriteThroughTheButton()
{
    QFETCH(int, mode);
    QFETCH(QString, button);
    QFETCH(bool, replaces);
    ShownDialog dialog { Mode(mode) };
    User::type(dialog.name(), QStringLiteral("notes"));
    ModalDriver driver;
    SeenBox seen;
    answerBox(driver, button, &seen);
    dialog.pressGo();
    QVERIFY(driver.finished());
    QCOMPARE(seen.boxes, 1);
    QCOMPARE(seen.title, QString());
    QCOMPARE(seen.text, QStringLiteral("Is storage overwritten?"));
    QCOMPARE(seen.buttons, QStringList({ QStringLiteral("Yes"), QStringLiteral("No") }));
    QCOMPARE(seen.icon, QStringLiteral("ask"));
    QCOMPARE(dialog.wasAccepted(), replaces);
    QCOMPARE(dialog.stays(), !replaces);
    QCOMPARE(dialog.announced(), QStringList());
    QCOMPARE(dialog.filePath, folder + QStringLiteral("notes.txt"));
    QCOMPARE(dialog.name()->text(), QStringLiteral("notes"));
    QVERIFY(QFile::exists(dialog.filePath));
}

void tst_QZelFileDialog_accept::replaceThroughADoubleClick_data()
{
    overwriteThroughTheButton_data();
}

void tst_QZelFileDialog_accept::replaceThroughADoubleClick()
{
    QFETCH(int, mode);
    QFETCH(QString, button);
    QFETCH(bool, replaces);
    ShownDialog dialog { Mode(mode) };
    ModalDriver driver;
    SeenBox seen;
    answerBox(driver, button, &seen);
    User::doubleClickItem(dialog.list(), QStringLiteral("notes.txt"));
    QVERIFY(driver.finished());
    QCOMPARE(seen.boxes, 1);
    QCOMPARE(seen.title, QString());
    QCOMPARE(seen.text, QStringLiteral("The file already exists. Whether to replace it?"));
    QCOMPARE(seen.buttons, QStringList({ QStringLiteral("Yes"), QStringLiteral("No") }));
    QCOMPARE(seen.icon, QStringLiteral("ask"));
    QCOMPARE(dialog.wasAccepted(), replaces);
    QCOMPARE(dialog.stays(), !replaces);
    const QString path = folder + QStringLiteral("notes.txt");
    QCOMPARE(dialog.announced(), replaces ? QStringList(path) : QStringList());
    QCOMPARE(dialog.filePath, path);
}

void tst_QZelFileDialog_accept::doubleClickOnAFileToOpenAsksNothing_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("one") << int(Mode::OpenFile);
    QTest::newRow("several") << int(Mode::OpenFiles);
}

void tst_QZelFileDialog_accept::doubleClickOnAFileToOpenAsksNothing()
{
    QFETCH(int, mode);
    ShownDialog dialog { Mode(mode) };
    User::doubleClickItem(dialog.list(), QStringLiteral("notes.txt"));
    QVERIFY(dialog.wasAccepted());
    const QString path = folder + QStringLiteral("notes.txt");
    QCOMPARE(dialog.announced(), QStringList(path));
    QCOMPARE(dialog.getFilePath(), path);
    QCOMPARE(dialog.getFilePaths(), QStringList(path));
}

void tst_QZelFileDialog_accept::missingFileIsToldWithItsFullName()
{
    ShownDialog dialog(Mode::OpenFile);
    User::type(dialog.name(), QStringLiteral("gone 100%1"));
    ModalDriver driver;
    SeenBox seen;
    answerBox(driver, QStringLiteral("Confirm"), &seen);
    dialog.pressGo();
    QVERIFY(driver.finished());
    QCOMPARE(seen.boxes, 1);
    QCOMPARE(seen.title, QString());
    QCOMPARE(seen.text, QStringLiteral("The file/gone 100%1.txt does not exist"));
    QCOMPARE(seen.buttons, QStringList(QStringLiteral("Confirm")));
    QCOMPARE(seen.icon, QStringLiteral("waring"));
    QVERIFY(dialog.stays());
    QCOMPARE(dialog.announced(), QStringList());
    QCOMPARE(dialog.filePath, folder + QStringLiteral("gone 100%1.txt"));
    QCOMPARE(dialog.name()->text(), QStringLiteral("gone 100%1"));
}

void tst_QZelFileDialog_accept::existingFileToOpenIsAnnounced()
{
    ShownDialog dialog(Mode::OpenFile);
    User::clickItem(dialog.list(), QStringLiteral("notes.txt"));
    QCOMPARE(dialog.name()->text(), QStringLiteral("notes.txt"));
    dialog.pressGo();
    QVERIFY(dialog.wasAccepted());
    QCOMPARE(dialog.announced(), QStringList(folder + QStringLiteral("notes.txt")));
}

void tst_QZelFileDialog_accept::folderOfTheTypedNameCountsAsExisting()
{
    ShownDialog open(Mode::OpenFile, QStringLiteral("All (*)"));
    User::type(open.name(), QStringLiteral("sub"));
    open.pressGo();
    QVERIFY(open.wasAccepted());
    QCOMPARE(open.announced(), QStringList(folder + QStringLiteral("sub")));

    ShownDialog save(Mode::SaveFile, QStringLiteral("All (*)"));
    User::type(save.name(), QStringLiteral("sub"));
    ModalDriver driver;
    SeenBox seen;
    answerBox(driver, QStringLiteral("No"), &seen);
    save.pressGo();
    QCOMPARE(seen.boxes, 1);
    QVERIFY(save.stays());
}

void tst_QZelFileDialog_accept::manyFilesAreAcceptedAtOnce()
{
    QVERIFY(makeEntries(folder, { QStringLiteral("b.txt"), QStringLiteral("c.txt") }));
    ShownDialog dialog(Mode::OpenFiles);
    User::clickItem(dialog.list(), QStringLiteral("notes.txt"));
    User::clickItem(dialog.list(), QStringLiteral("b.txt"), Qt::ControlModifier);
    dialog.pressGo();
    QVERIFY(dialog.wasAccepted());
    QCOMPARE(dialog.announced(), QStringList());
    QCOMPARE(dialog.getFilePaths(), QStringList({ folder + QStringLiteral("notes.txt"),
                                                  folder + QStringLiteral("b.txt") }));

    ShownDialog none(Mode::OpenFiles);
    none.pressGo();
    QVERIFY(none.wasAccepted());
    QCOMPARE(none.getFilePaths(), QStringList());
}

void tst_QZelFileDialog_accept::shownFolderIsChosen()
{
    ShownDialog dialog;
    // The name field has no say.
    User::type(dialog.name(), QStringLiteral("elsewhere"));
    dialog.pressGo();
    QVERIFY(dialog.wasAccepted());
    QCOMPARE(dialog.announced(), QStringList(folder));
    QCOMPARE(dialog.getFilePath(), folder);
}

void tst_QZelFileDialog_accept::vanishedFolderIsToldWithTheNameField_data()
{
    QTest::addColumn<bool>("clicked");
    QTest::addColumn<QString>("name");
    QTest::newRow("clicked in the list") << true << QStringLiteral("sub");
    QTest::newRow("start folder") << false << QString();
}

void tst_QZelFileDialog_accept::vanishedFolderIsToldWithTheNameField()
{
    QFETCH(bool, clicked);
    QFETCH(QString, name);
    ShownDialog dialog;
    if (clicked)
        User::clickItem(dialog.list(), QStringLiteral("sub"));
    QVERIFY(QDir(folder).removeRecursively());
    ModalDriver driver;
    SeenBox seen;
    answerBox(driver, QStringLiteral("Confirm"), &seen);
    dialog.pressGo();
    QVERIFY(driver.finished());
    QCOMPARE(seen.title, QString());
    QCOMPARE(seen.text, QStringLiteral("The folder/%1 does not exist").arg(name));
    QCOMPARE(seen.buttons, QStringList(QStringLiteral("Confirm")));
    QCOMPARE(seen.icon, QStringLiteral("waring"));
    QVERIFY(dialog.stays());
    QCOMPARE(dialog.announced(), QStringList());
    QCOMPARE(dialog.filePath, folder + name);
}

// Back drops the start folder too when that has gone.
void tst_QZelFileDialog_accept::emptyHistoryIsAnEmptyFolder()
{
    const QList<Mode> modes = { Mode::SelectDirectory, Mode::OpenFile, Mode::SaveFile };
    for (const Mode mode : modes) {
        init();
        ShownDialog dialog(mode);
        User::clickItem(dialog.tree(), QStringLiteral("sub"));
        QCOMPARE(dialog.backHistory.size(), 2);
        QVERIFY(QDir(folder).removeRecursively());
        User::clickButton(&dialog, QStringLiteral("btn_Back"));
        QVERIFY(dialog.backHistory.isEmpty());

        User::type(dialog.name(), QStringLiteral("name"));
        ModalDriver driver;
        SeenBox seen;
        if (mode != Mode::SaveFile)
            answerBox(driver, QStringLiteral("Confirm"), &seen);
        dialog.pressGo();
        QVERIFY(driver.finished());
        if (mode == Mode::SelectDirectory) {
            QCOMPARE(seen.text, QStringLiteral("The folder/name does not exist"));
            QCOMPARE(dialog.filePath, QString());
        } else {
            QCOMPARE(dialog.filePath, QStringLiteral("name.txt"));
        }
        QCOMPARE(dialog.wasAccepted(), mode == Mode::SaveFile);
    }
}

void tst_QZelFileDialog_accept::closeAndCancelReject_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("close") << QStringLiteral("btn_Close");
    QTest::newRow("cancel") << QStringLiteral("btn_Cancel");
}

void tst_QZelFileDialog_accept::closeAndCancelReject()
{
    QFETCH(QString, button);
    const QList<Mode> modes = { Mode::OpenFile, Mode::SaveFile, Mode::SelectDirectory };
    for (const Mode mode : modes) {
        ShownDialog dialog(mode);
        User::clickItem(dialog.list(), QStringLiteral("sub"));
        User::clickButton(&dialog, button);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.finishedSpy.size(), 1);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QCOMPARE(dialog.announced(), QStringList());
    }
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_accept)

#include "tst_QZelFileDialog_accept.moc"
