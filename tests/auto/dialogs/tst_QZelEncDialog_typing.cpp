#include "ModalDriver.h"
#include "Pointer.h"
#include "TestMain.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QZelEncDialog.h>

namespace {

class Probe : public QZelEncDialog
{
public:
    Probe()
        : QZelEncDialog(nullptr)
    {}

    using QZelEncDialog::btn_Ok;
    using QZelEncDialog::chk_ShowConfirmPwd;
    using QZelEncDialog::chk_ShowPwd;
    using QZelEncDialog::lbl_Msg;
    using QZelEncDialog::let_ConfirmPwd;

    bool showActive()
    {
        show();
        return QTest::qWaitForWindowActive(this);
    }
};

using Edit = QLineEdit *Probe::*;
using Box = QCheckBox *Probe::*;

} // namespace

Q_DECLARE_METATYPE(Edit)
Q_DECLARE_METATYPE(Box)

// What can be typed into the set-password dialog, how it is shown, and what a new show forgets.
class tst_QZelEncDialog_typing : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void lettersAndDigitsAreTaken_data() { fields(); }
    void lettersAndDigitsAreTaken();
    void otherCharactersAreRefused_data();
    void otherCharactersAreRefused();
    void sixteenthCharacterIsRefused_data() { fields(); }
    void sixteenthCharacterIsRefused();
    void pastedTextIsHeldToTheRule();
    void checkBoxShowsItsFieldInClear_data() { fields(); }
    void checkBoxShowsItsFieldInClear();
    void checkBoxStateCountsNotTheSignal_data() { fields(); }
    void checkBoxStateCountsNotTheSignal();
    void everyShowStartsEmptyAndMasked();
    void enteredTextIsKeptUntilTheNextShow();
    void dialogIsReusable();

private:
    void fields();
};

void tst_QZelEncDialog_typing::fields()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<Box>("box");
    QTest::newRow("password") << Edit(&Probe::let_Pwd) << Box(&Probe::chk_ShowPwd);
    QTest::newRow("confirmation") << Edit(&Probe::let_ConfirmPwd)
                                  << Box(&Probe::chk_ShowConfirmPwd);
}

void tst_QZelEncDialog_typing::lettersAndDigitsAreTaken()
{
    QFETCH(Edit, edit);
    Probe dialog;
    QVERIFY(dialog.showActive());
    QLineEdit *line = dialog.*edit;
    for (const char *keys :
         { "abcdefghijklm", "nopqrstuvwxyz", "ABCDEFGHIJKLM", "NOPQRSTUVWXYZ", "0123456789" }) {
        line->clear();
        QTest::keyClicks(line, QLatin1String(keys));
        QCOMPARE(line->text(), QLatin1String(keys));
        QVERIFY(line->hasAcceptableInput());
    }
}

void tst_QZelEncDialog_typing::otherCharactersAreRefused_data()
{
    QTest::addColumn<QChar>("character");
    // Every printable ASCII character that is neither a letter nor a digit.
    for (char c = ' '; c < 127; ++c) {
        if (!QChar::fromLatin1(c).isLetterOrNumber())
            QTest::addRow("'%c'", c) << QChar::fromLatin1(c);
    }
    QTest::newRow("a umlaut") << QChar(0x00e4);
    QTest::newRow("Greek alpha") << QChar(0x03b1);
    QTest::newRow("Chinese") << QChar(0x5bc6);
    QTest::newRow("full-width a") << QChar(0xff41);
    QTest::newRow("Arabic digit") << QChar(0x0661);
    QTest::newRow("no-break space") << QChar(0x00a0);
}

void tst_QZelEncDialog_typing::otherCharactersAreRefused()
{
    QFETCH(QChar, character);
    Probe dialog;
    QVERIFY(dialog.showActive());
    for (QLineEdit *line : { dialog.let_Pwd, dialog.let_ConfirmPwd }) {
        QTest::sendKeyEvent(QTest::Click, line, Qt::Key_unknown, QString(character), Qt::NoModifier);
        QCOMPARE(line->text(), QString());
        QTest::keyClicks(line, QStringLiteral("a1"));
        QTest::sendKeyEvent(QTest::Click, line, Qt::Key_unknown, QString(character), Qt::NoModifier);
        QCOMPARE(line->text(), QStringLiteral("a1"));
    }
}

void tst_QZelEncDialog_typing::sixteenthCharacterIsRefused()
{
    QFETCH(Edit, edit);
    Probe dialog;
    QVERIFY(dialog.showActive());
    QTest::keyClicks(dialog.*edit, QStringLiteral("abcdefghij12345"));
    QCOMPARE((dialog.*edit)->text(), QStringLiteral("abcdefghij12345"));
    QTest::keyClick(dialog.*edit, Qt::Key_6);
    QCOMPARE((dialog.*edit)->text(), QStringLiteral("abcdefghij12345"));
}

void tst_QZelEncDialog_typing::pastedTextIsHeldToTheRule()
{
    Probe dialog;
    QVERIFY(dialog.showActive());
    QGuiApplication::clipboard()->setText(QStringLiteral("has space"));
    dialog.let_Pwd->paste();
    QCOMPARE(dialog.let_Pwd->text(), QString());
    QGuiApplication::clipboard()->setText(QStringLiteral("abcdefghijklmnopqrst"));
    dialog.let_Pwd->paste();
    QCOMPARE(dialog.let_Pwd->text(), QStringLiteral("abcdefghijklmno"));
    QGuiApplication::clipboard()->clear();
}

void tst_QZelEncDialog_typing::checkBoxShowsItsFieldInClear()
{
    QFETCH(Edit, edit);
    QFETCH(Box, box);
    Probe dialog;
    QVERIFY(dialog.showActive());
    QLineEdit *line = dialog.*edit;
    QLineEdit *other = line == dialog.let_Pwd ? dialog.let_ConfirmPwd : dialog.let_Pwd;
    QTest::keyClicks(line, QStringLiteral("abc"));
    QVERIFY(line->displayText() != QStringLiteral("abc"));

    Pointer pointer(&dialog);
    pointer.click(middleOf(dialog.*box));
    QVERIFY((dialog.*box)->isChecked());
    QCOMPARE(line->echoMode(), QLineEdit::Normal);
    QCOMPARE(line->displayText(), QStringLiteral("abc"));
    QCOMPARE(other->echoMode(), QLineEdit::Password);

    pointer.click(middleOf(dialog.*box));
    QVERIFY(!(dialog.*box)->isChecked());
    QCOMPARE(line->echoMode(), QLineEdit::Password);
    QCOMPARE(line->text(), QStringLiteral("abc"));
}

void tst_QZelEncDialog_typing::checkBoxStateCountsNotTheSignal()
{
    QFETCH(Edit, edit);
    QFETCH(Box, box);
    Probe dialog;
    Q_EMIT(dialog.*box)->clicked(true); // while it is not checked
    QCOMPARE((dialog.*edit)->echoMode(), QLineEdit::Password);
    (dialog.*box)->setChecked(true); // no click
    QCOMPARE((dialog.*edit)->echoMode(), QLineEdit::Password);
    Q_EMIT(dialog.*box)->clicked(false);
    QCOMPARE((dialog.*edit)->echoMode(), QLineEdit::Normal);
    // Half-checked is not checked.
    (dialog.*box)->setTristate(true);
    (dialog.*box)->setCheckState(Qt::PartiallyChecked);
    Q_EMIT(dialog.*box)->clicked(true);
    QCOMPARE((dialog.*edit)->echoMode(), QLineEdit::Password);
}

void tst_QZelEncDialog_typing::everyShowStartsEmptyAndMasked()
{
    Probe dialog;
    dialog.let_Pwd->setText(QStringLiteral("before"));
    for (int round = 0; round < 2; ++round) {
        dialog.show();
        QCOMPARE(dialog.let_Pwd->text(), QString());
        QCOMPARE(dialog.let_ConfirmPwd->text(), QString());
        QCOMPARE(dialog.lbl_Msg->text(), QString());
        QVERIFY(!dialog.chk_ShowPwd->isChecked());
        QVERIFY(!dialog.chk_ShowConfirmPwd->isChecked());
        QCOMPARE(dialog.let_Pwd->echoMode(), QLineEdit::Password);
        QCOMPARE(dialog.let_ConfirmPwd->echoMode(), QLineEdit::Password);

        dialog.let_Pwd->setText(QStringLiteral("abc"));
        dialog.let_ConfirmPwd->setText(QStringLiteral("xyz"));
        dialog.chk_ShowPwd->click();
        dialog.chk_ShowConfirmPwd->click();
        dialog.btn_Ok->click();
        QCOMPARE(dialog.lbl_Msg->text(), QStringLiteral("pwdDifferent"));
        QCOMPARE(dialog.let_ConfirmPwd->echoMode(), QLineEdit::Normal);
        dialog.close();
    }
}

void tst_QZelEncDialog_typing::enteredTextIsKeptUntilTheNextShow()
{
    Probe dialog;
    dialog.show();
    dialog.let_Pwd->setText(QStringLiteral("abc"));
    dialog.close();
    QCOMPARE(dialog.let_Pwd->text(), QStringLiteral("abc"));
    dialog.show();
    QCOMPARE(dialog.let_Pwd->text(), QString());
}

void tst_QZelEncDialog_typing::dialogIsReusable()
{
    Probe dialog;
    for (const char *password : { "first1", "second2" }) {
        ModalDriver driver;
        driver.on<QZelEncDialog>([&](QZelEncDialog *) {
            QTest::keyClicks(dialog.let_Pwd, QLatin1String(password));
            QTest::keyClicks(dialog.let_ConfirmPwd, QLatin1String(password));
            dialog.btn_Ok->click();
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QVERIFY(driver.finished());
        QCOMPARE(dialog.let_Pwd->text(), QLatin1String(password));
    }
}

QTARNKIT_TEST_MAIN(tst_QZelEncDialog_typing)
#include "tst_QZelEncDialog_typing.moc"
