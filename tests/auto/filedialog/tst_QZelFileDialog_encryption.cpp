#include "FtpFolder.h"
#include "MarkingTranslator.h"
#include "ModalDriver.h"
#include "ShownDialog.h"
#include "TestMain.h"
#include "User.h"

#include <QZelEncDialog.h>

#include <QDir>

namespace {

using Mode = QZelFileDialog::OperateMode;

// Fills both fields of the set-password dialog and ends it with a button.
void setPassword(ModalDriver &driver, const QString &password, const QString &button)
{
    driver.on<QZelEncDialog>([password, button](QZelEncDialog *dialog) {
        const auto edits = dialog->findChildren<QLineEdit *>();
        QCOMPARE(edits.size(), 2);
        for (QLineEdit *edit : edits) {
            QCOMPARE(edit->text(), QString());
            User::type(edit, password);
            QCOMPARE(edit->text(), password);
        }
        User::clickButton(dialog, button);
    });
}

} // namespace

class tst_QZelFileDialog_encryption : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void optionIsThereForTheEncryptedSaveOnly_data();
    void optionIsThereForTheEncryptedSaveOnly();
    void setPasswordDialogIsOnTopOfTheFileDialog();
    void passwordIsShownInClearAndKept();
    void surroundingBlanksAreCutOff();
    void rejectedDialogKeepsTheEarlierPassword_data();
    void rejectedDialogKeepsTheEarlierPassword();
    void passwordTextsAreTranslatedWordByWord();
    void textsOfTheQuestionsAreTranslated_data();
    void textsOfTheQuestionsAreTranslated();
};

void tst_QZelFileDialog_encryption::init()
{
    QVERIFY(FtpFolder::isPrivate());
    QVERIFY(QDir(ShownDialog::folder()).removeRecursively());
    QVERIFY(makeEntries(ShownDialog::folder(), { QStringLiteral("notes.txt") }));
}

void tst_QZelFileDialog_encryption::optionIsThereForTheEncryptedSaveOnly_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("shown");
    QTest::newRow("open") << int(Mode::OpenFile) << false;
    QTest::newRow("save") << int(Mode::SaveFile) << false;
    QTest::newRow("save encrypted") << int(Mode::SaveEncryptedFile) << true;
    QTest::newRow("folder") << int(Mode::SelectDirectory) << false;
    QTest::newRow("open several") << int(Mode::OpenFiles) << false;
}

void tst_QZelFileDialog_encryption::optionIsThereForTheEncryptedSaveOnly()
{
    QFETCH(int, mode);
    QFETCH(bool, shown);
    ShownDialog dialog { Mode(mode) };
    QCOMPARE(User::findButton(&dialog, QStringLiteral("btn_encOption")) != nullptr, shown);
}

void tst_QZelFileDialog_encryption::setPasswordDialogIsOnTopOfTheFileDialog()
{
    ShownDialog dialog(Mode::SaveEncryptedFile);
    ModalDriver driver;
    driver.on<QZelEncDialog>([&dialog](QZelEncDialog *passwordDialog) {
        QCOMPARE(passwordDialog, dialog.encDialog);
        QCOMPARE(passwordDialog->parent(), &dialog);
        QCOMPARE(passwordDialog->windowFlags(), dialog.windowFlags());
        QVERIFY(passwordDialog->windowFlags() & Qt::WindowStaysOnTopHint);
        QCOMPARE(passwordDialog->windowModality(), Qt::WindowModal);
        // Nothing typed: it stays.
        User::clickButton(passwordDialog, QStringLiteral("Confirm"));
        QVERIFY(passwordDialog->isVisible());
        User::clickButton(passwordDialog, QStringLiteral("btn_Close"));
    });
    User::clickButton(&dialog, QStringLiteral("btn_encOption"));
    QVERIFY(driver.finished());
    QVERIFY(dialog.stays());
    QCOMPARE(dialog.password, QString());
}

void tst_QZelFileDialog_encryption::passwordIsShownInClearAndKept()
{
    ShownDialog dialog(Mode::SaveEncryptedFile);
    ModalDriver driver;
    setPassword(driver, QStringLiteral("Abc123"), QStringLiteral("Confirm"));
    SeenBox seen;
    answerBox(driver, QStringLiteral("Confirm"), &seen);
    User::clickButton(&dialog, QStringLiteral("btn_encOption"));
    QVERIFY(driver.finished());
    QCOMPARE(seen.boxes, 1);
    QCOMPARE(seen.icon, QStringLiteral("waring"));
    QCOMPARE(seen.title, QStringLiteral("sure"));
    QCOMPARE(seen.text, QStringLiteral("passwordAbc123\npasswordWarning"));
    QCOMPARE(seen.buttons, QStringList(QStringLiteral("Confirm")));
    // The option ends nothing: OpenSave does.
    QVERIFY(dialog.stays());
    QCOMPARE(dialog.announced(), QStringList());
    QCOMPARE(dialog.password, QStringLiteral("Abc123"));
}

void tst_QZelFileDialog_encryption::surroundingBlanksAreCutOff()
{
    ShownDialog dialog(Mode::SaveEncryptedFile);
    ModalDriver driver;
    driver.on<QZelEncDialog>([](QZelEncDialog *passwordDialog) {
        // Not typed: the fields take no blanks from the keyboard.
        const auto edits = passwordDialog->findChildren<QLineEdit *>();
        for (QLineEdit *edit : edits)
            edit->setText(QStringLiteral(" \tAbc "));
        User::clickButton(passwordDialog, QStringLiteral("Confirm"));
    });
    SeenBox seen;
    // How the box ends is of no matter.
    answerBox(driver, QStringLiteral("closeBtn"), &seen);
    User::clickButton(&dialog, QStringLiteral("btn_encOption"));
    QVERIFY(driver.finished());
    QCOMPARE(seen.text, QStringLiteral("passwordAbc\npasswordWarning"));
    QCOMPARE(dialog.password, QStringLiteral("Abc"));
}

void tst_QZelFileDialog_encryption::rejectedDialogKeepsTheEarlierPassword_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("cancel") << QStringLiteral("Cancel");
    QTest::newRow("close") << QStringLiteral("btn_Close");
}

void tst_QZelFileDialog_encryption::rejectedDialogKeepsTheEarlierPassword()
{
    QFETCH(QString, button);
    ShownDialog dialog(Mode::SaveEncryptedFile);
    ModalDriver driver;
    SeenBox seen;
    setPassword(driver, QStringLiteral("first"), QStringLiteral("Confirm"));
    answerBox(driver, QStringLiteral("Confirm"), &seen);
    User::clickButton(&dialog, QStringLiteral("btn_encOption"));
    setPassword(driver, QStringLiteral("second"), button);
    User::clickButton(&dialog, QStringLiteral("btn_encOption"));
    QVERIFY(driver.finished());
    QCOMPARE(seen.boxes, 1);
    QCOMPARE(dialog.password, QStringLiteral("first"));

    setPassword(driver, QStringLiteral("third"), QStringLiteral("Confirm"));
    answerBox(driver, QStringLiteral("Confirm"), &seen);
    User::clickButton(&dialog, QStringLiteral("btn_encOption"));
    QVERIFY(driver.finished());
    QCOMPARE(seen.boxes, 2);
    QCOMPARE(dialog.password, QStringLiteral("third"));
}

void tst_QZelFileDialog_encryption::passwordTextsAreTranslatedWordByWord()
{
    ShownDialog dialog(Mode::SaveEncryptedFile);
    const MarkingTranslator marker;
    ModalDriver driver;
    setPassword(driver, QStringLiteral("Abc123"), QStringLiteral("Confirm"));
    SeenBox seen;
    answerBox(driver, QStringLiteral("closeBtn"), &seen);
    User::clickButton(&dialog, QStringLiteral("btn_encOption"));
    QVERIFY(driver.finished());
    QCOMPARE(seen.title, QStringLiteral("[QZelFileDialog|sure]"));
    QCOMPARE(seen.text,
             QStringLiteral("[QZelFileDialog|password]Abc123\n[QZelFileDialog|passwordWarning]"));
}

void tst_QZelFileDialog_encryption::textsOfTheQuestionsAreTranslated_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("save") << int(Mode::SaveFile) << QStringLiteral("notes")
                          << QStringLiteral("[QZelFileDialog|Is storage overwritten?]");
    QTest::newRow("open") << int(Mode::OpenFile) << QStringLiteral("gone")
                          << QStringLiteral("[QZelFileDialog|The file/gone.txt does not exist]");
    QTest::newRow("folder") << int(Mode::SelectDirectory) << QStringLiteral("gone")
                            << QStringLiteral("[QZelFileDialog|The folder/gone does not exist]");
    QTest::newRow("double-click")
            << int(Mode::SaveFile) << QString()
            << QStringLiteral("[QZelFileDialog|The file already exists. Whether to replace it?]");
}

void tst_QZelFileDialog_encryption::textsOfTheQuestionsAreTranslated()
{
    QFETCH(int, mode);
    QFETCH(QString, name);
    QFETCH(QString, text);
    ShownDialog dialog { Mode(mode) };
    if (mode != Mode::SelectDirectory)
        User::item(dialog.list(), QStringLiteral("notes.txt"));
    const MarkingTranslator marker;
    ModalDriver driver;
    SeenBox seen;
    answerBox(driver, QStringLiteral("closeBtn"), &seen);
    if (name.isEmpty()) {
        User::doubleClickItem(dialog.list(), QStringLiteral("notes.txt"));
    } else {
        User::type(dialog.name(), name);
        if (mode == Mode::SelectDirectory)
            QVERIFY(QDir(ShownDialog::folder()).removeRecursively());
        dialog.pressGo();
    }
    QVERIFY(driver.finished());
    QCOMPARE(seen.text, text);
    QVERIFY(dialog.stays());
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_encryption)

#include "tst_QZelFileDialog_encryption.moc"
