#include "MarkingTranslator.h"
#include "ModalDriver.h"
#include "Pointer.h"
#include "TestMain.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QZelPwdInputDialog.h>

namespace {

class Probe : public QZelPwdInputDialog
{
public:
    explicit Probe(QWidget *parent = nullptr)
        : QZelPwdInputDialog(parent)
    {}

    using QZelPwdInputDialog::btn_Cancel;
    using QZelPwdInputDialog::btn_Close;
    using QZelPwdInputDialog::btn_Ok;
    using QZelPwdInputDialog::chk_ShowPwd;
    using QZelPwdInputDialog::lbl_ConfirmTitle;
    using QZelPwdInputDialog::lbl_Msg;
    using QZelPwdInputDialog::lbl_PwdTitle;
    using QZelPwdInputDialog::lbl_Title;
    using QZelPwdInputDialog::let_ConfirmPwd;
    using QZelPwdInputDialog::wgt_ConfirmRect;
};

} // namespace

class tst_QZelPwdInputDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjectHasTheSignalOnly();
    void titleAndCaptionAreTheSame();
    void textsAreTranslatedInItsContext();
    void isASetPasswordDialogOtherwise();
    void confirmationRowIsNeverVisible();
    void inputTitleKeepsTheOldOneForAnEmptyText();
    void tipTextIsThePlaceholder();

    void confirmTellsThePasswordAndStaysOpen();
    void everyConfirmTells();
    void passwordIsTrimmed_data();
    void passwordIsTrimmed();
    void emptyPasswordTellsNothing_data();
    void emptyPasswordTellsNothing();
    void missingFieldCountsAsEmpty();
    void confirmationIsNotCompared();
    void receiverMayAcceptTheDialog();
    void receiverMayReportAWrongPassword();
    void receiverMayDeleteTheDialog();
    void cancelAndCloseRejectWithoutTelling_data();
    void cancelAndCloseRejectWithoutTelling();
    void everyShowStartsEmptyAndMasked();
    void typingIsHeldToTheRule();
};

void tst_QZelPwdInputDialog::metaObjectHasTheSignalOnly()
{
    const QMetaObject &meta = QZelPwdInputDialog::staticMetaObject;
    QCOMPARE(meta.className(), "QZelPwdInputDialog");
    QCOMPARE(meta.superClass(), &QZelEncDialog::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod entered = meta.method(meta.methodOffset());
    QCOMPARE(entered.methodType(), QMetaMethod::Signal);
    QCOMPARE(entered.methodSignature(), QByteArrayLiteral("passwordEntered(QString)"));
    QCOMPARE(entered.parameterNames(), QList<QByteArray> { QByteArrayLiteral("password") });
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_QZelPwdInputDialog::titleAndCaptionAreTheSame()
{
    Probe dialog;
    QCOMPARE(dialog.lbl_Title->text(), QStringLiteral("solPwd"));
    QCOMPARE(dialog.lbl_PwdTitle->text(), QStringLiteral("solPwd"));
}

void tst_QZelPwdInputDialog::textsAreTranslatedInItsContext()
{
    const MarkingTranslator translator;
    Probe dialog;
    QCOMPARE(dialog.lbl_Title->text(), QStringLiteral("[QZelPwdInputDialog|solPwd]"));
    QCOMPARE(dialog.lbl_PwdTitle->text(), QStringLiteral("[QZelPwdInputDialog|solPwd]"));
    dialog.accept();
    QCOMPARE(dialog.lbl_Msg->text(), QStringLiteral("[QZelPwdInputDialog|errPwdEmpty]"));
}

void tst_QZelPwdInputDialog::isASetPasswordDialogOtherwise()
{
    QWidget host;
    Probe dialog(&host);
    QCOMPARE(dialog.parentWidget(), &host);
    QCOMPARE(dialog.size(), QSize(370, 205));
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    QCOMPARE(int(dialog.windowFlags()), 0x803);
    QVERIFY(dialog.PreAccept());
    QCOMPARE(dialog.let_Pwd->maxLength(), 15);
}

void tst_QZelPwdInputDialog::confirmationRowIsNeverVisible()
{
    Probe dialog;
    for (int round = 0; round < 2; ++round) {
        dialog.show();
        QVERIFY(!dialog.lbl_ConfirmTitle->isVisible());
        QVERIFY(!dialog.wgt_ConfirmRect->isVisible());
        QVERIFY(dialog.lbl_PwdTitle->isVisible());
        QVERIFY(dialog.let_Pwd->isVisible());
        dialog.btn_Ok->click();
        QVERIFY(!dialog.wgt_ConfirmRect->isVisible());
        dialog.close();
    }
}

void tst_QZelPwdInputDialog::inputTitleKeepsTheOldOneForAnEmptyText()
{
    Probe dialog;
    dialog.SetInputTitle(QStringLiteral("Password"));
    QCOMPARE(dialog.lbl_PwdTitle->text(), QStringLiteral("Password"));
    dialog.SetInputTitle(QString());
    QCOMPARE(dialog.lbl_PwdTitle->text(), QStringLiteral("Password"));
}

void tst_QZelPwdInputDialog::tipTextIsThePlaceholder()
{
    Probe dialog;
    dialog.SetEditTipText(QStringLiteral("of the archive"));
    QCOMPARE(dialog.let_Pwd->placeholderText(), QStringLiteral("of the archive"));
    QCOMPARE(dialog.let_ConfirmPwd->placeholderText(), QString());
}

void tst_QZelPwdInputDialog::confirmTellsThePasswordAndStaysOpen()
{
    Probe dialog;
    QSignalSpy entered(&dialog, &QZelPwdInputDialog::passwordEntered);
    QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClicks(dialog.let_Pwd, QStringLiteral("Secret42"));
    Pointer(&dialog).click(middleOf(dialog.btn_Ok));
    QCOMPARE(entered.count(), 1);
    QCOMPARE(entered.constFirst().constFirst().toString(), QStringLiteral("Secret42"));
    QVERIFY(dialog.isVisible());
    QCOMPARE(finished.count(), 0);
    QCOMPARE(dialog.lbl_Msg->text(), QString());
}

void tst_QZelPwdInputDialog::everyConfirmTells()
{
    Probe dialog;
    QSignalSpy entered(&dialog, &QZelPwdInputDialog::passwordEntered);
    dialog.show();
    dialog.let_Pwd->setText(QStringLiteral("abc"));
    for (int round = 1; round <= 2; ++round) {
        dialog.btn_Ok->click();
        QCOMPARE(entered.count(), round);
        QCOMPARE(entered.constLast().constFirst().toString(), QStringLiteral("abc"));
        QVERIFY(dialog.isVisible());
    }
}

void tst_QZelPwdInputDialog::passwordIsTrimmed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("password");
    QTest::newRow("plain") << QStringLiteral("abc") << QStringLiteral("abc");
    QTest::newRow("surrounded") << QStringLiteral(" \tabc ") << QStringLiteral("abc");
    QTest::newRow("inner blank stays") << QStringLiteral(" a c ") << QStringLiteral("a c");
}

void tst_QZelPwdInputDialog::passwordIsTrimmed()
{
    QFETCH(QString, text);
    QFETCH(QString, password);
    Probe dialog;
    QSignalSpy entered(&dialog, &QZelPwdInputDialog::passwordEntered);
    // Blanks cannot be typed, but can be set.
    dialog.let_Pwd->setText(text);
    dialog.accept();
    QCOMPARE(entered.count(), 1);
    QCOMPARE(entered.constFirst().constFirst().toString(), password);
}

void tst_QZelPwdInputDialog::emptyPasswordTellsNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << QStringLiteral("   ");
}

void tst_QZelPwdInputDialog::emptyPasswordTellsNothing()
{
    QFETCH(QString, text);
    Probe dialog;
    QSignalSpy entered(&dialog, &QZelPwdInputDialog::passwordEntered);
    dialog.show();
    dialog.let_Pwd->setText(text);
    dialog.btn_Ok->click();
    QCOMPARE(dialog.lbl_Msg->text(), QStringLiteral("errPwdEmpty"));
    QCOMPARE(entered.count(), 0);
    QVERIFY(dialog.isVisible());
}

void tst_QZelPwdInputDialog::missingFieldCountsAsEmpty()
{
    Probe dialog;
    QSignalSpy entered(&dialog, &QZelPwdInputDialog::passwordEntered);
    dialog.let_Pwd->setText(QStringLiteral("abc"));
    QLineEdit *field = std::exchange(dialog.let_Pwd, nullptr);
    dialog.accept();
    dialog.let_Pwd = field;
    QCOMPARE(dialog.lbl_Msg->text(), QStringLiteral("errPwdEmpty"));
    QCOMPARE(entered.count(), 0);
}

void tst_QZelPwdInputDialog::confirmationIsNotCompared()
{
    Probe dialog;
    QSignalSpy entered(&dialog, &QZelPwdInputDialog::passwordEntered);
    dialog.let_Pwd->setText(QStringLiteral("abc"));
    dialog.let_ConfirmPwd->setText(QStringLiteral("xyz"));
    dialog.accept();
    QCOMPARE(entered.count(), 1);
    QCOMPARE(dialog.lbl_Msg->text(), QString());
}

void tst_QZelPwdInputDialog::receiverMayAcceptTheDialog()
{
    Probe dialog;
    connect(&dialog, &QZelPwdInputDialog::passwordEntered, &dialog,
            [&dialog] { dialog.done(QDialog::Accepted); });
    ModalDriver driver;
    driver.on<QZelPwdInputDialog>([&](QZelPwdInputDialog *) {
        dialog.let_Pwd->setText(QStringLiteral("abc"));
        Pointer(&dialog).click(middleOf(dialog.btn_Ok));
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(driver.finished());
    QCOMPARE(dialog.let_Pwd->text(), QStringLiteral("abc"));
}

void tst_QZelPwdInputDialog::receiverMayReportAWrongPassword()
{
    Probe dialog;
    connect(&dialog, &QZelPwdInputDialog::passwordEntered, &dialog,
            [&dialog] { dialog.SetErrorMsg(QStringLiteral("wrong")); });
    dialog.show();
    dialog.let_Pwd->setText(QStringLiteral("abc"));
    dialog.btn_Ok->click();
    QCOMPARE(dialog.lbl_Msg->text(), QStringLiteral("wrong"));
    QVERIFY(dialog.isVisible());
}

void tst_QZelPwdInputDialog::receiverMayDeleteTheDialog()
{
    QPointer<Probe> dialog(new Probe);
    connect(dialog, &QZelPwdInputDialog::passwordEntered, this, [&dialog] { delete dialog; });
    ModalDriver driver;
    driver.on<QZelPwdInputDialog>([&](QZelPwdInputDialog *) {
        dialog->let_Pwd->setText(QStringLiteral("abc"));
        Pointer(dialog).click(middleOf(dialog->btn_Ok));
    });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(driver.finished());
    QVERIFY(!dialog);
}

void tst_QZelPwdInputDialog::cancelAndCloseRejectWithoutTelling_data()
{
    QTest::addColumn<bool>("cancel");
    QTest::newRow("Cancel") << true;
    QTest::newRow("close button") << false;
}

void tst_QZelPwdInputDialog::cancelAndCloseRejectWithoutTelling()
{
    QFETCH(bool, cancel);
    Probe dialog;
    QSignalSpy entered(&dialog, &QZelPwdInputDialog::passwordEntered);
    ModalDriver driver;
    driver.on<QZelPwdInputDialog>([&](QZelPwdInputDialog *) {
        dialog.let_Pwd->setText(QStringLiteral("abc"));
        (cancel ? dialog.btn_Cancel : dialog.btn_Close)->click();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(driver.finished());
    QCOMPARE(entered.count(), 0);
}

void tst_QZelPwdInputDialog::everyShowStartsEmptyAndMasked()
{
    Probe dialog;
    dialog.show();
    dialog.btn_Ok->click();
    dialog.let_Pwd->setText(QStringLiteral("abc"));
    dialog.chk_ShowPwd->click();
    QCOMPARE(dialog.let_Pwd->echoMode(), QLineEdit::Normal);
    dialog.close();
    dialog.show();
    QCOMPARE(dialog.let_Pwd->text(), QString());
    QCOMPARE(dialog.let_Pwd->echoMode(), QLineEdit::Password);
    QVERIFY(!dialog.chk_ShowPwd->isChecked());
    QCOMPARE(dialog.lbl_Msg->text(), QString());
}

void tst_QZelPwdInputDialog::typingIsHeldToTheRule()
{
    Probe dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClicks(dialog.let_Pwd, QStringLiteral("a b.c-dEFGH012345678"));
    QCOMPARE(dialog.let_Pwd->text(), QStringLiteral("abcdEFGH0123456"));
}

QTARNKIT_TEST_MAIN(tst_QZelPwdInputDialog)
#include "tst_QZelPwdInputDialog.moc"
