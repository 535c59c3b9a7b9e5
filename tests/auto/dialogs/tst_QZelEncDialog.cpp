#include "MarkingTranslator.h"
#include "ModalDriver.h"
#include "Pixels.h"
#include "Pointer.h"
#include "TestMain.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegExpValidator>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QZelEncDialog.h>

namespace {

class Probe : public QZelEncDialog
{
public:
    explicit Probe(QWidget *parent = nullptr)
        : QZelEncDialog(parent)
    {}

    using QZelEncDialog::btn_Cancel;
    using QZelEncDialog::btn_Close;
    using QZelEncDialog::btn_Ok;
    using QZelEncDialog::chk_ShowConfirmPwd;
    using QZelEncDialog::chk_ShowPwd;
    using QZelEncDialog::lbl_ConfirmTitle;
    using QZelEncDialog::lbl_Msg;
    using QZelEncDialog::lbl_PwdTitle;
    using QZelEncDialog::lbl_Title;
    using QZelEncDialog::let_ConfirmPwd;
    using QZelEncDialog::mainLayout;
    using QZelEncDialog::reserved;
    using QZelEncDialog::wgt_ConfirmRect;

    QWidget *content() const { return mainLayout->itemAt(1)->widget(); }
};

using Edit = QLineEdit *Probe::*;
using Box = QCheckBox *Probe::*;

} // namespace

Q_DECLARE_METATYPE(Edit)
Q_DECLARE_METATYPE(Box)

class tst_QZelEncDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void addsNothingToTheMetaObject();
    void isAWindowModalShell();
    void sizeGrowsToTheContentWhenShown();
    void isShownOverItsParent();
    void titleAndCaptions();
    void textsAreTranslatedInItsContext();
    void captions();
    void passwordEdits_data() { fields(); }
    void passwordEdits();
    void showBoxes_data() { fields(); }
    void showBoxes();
    void framedFields_data() { fields(); }
    void framedFields();
    void rows_data() { fields(); }
    void rows();
    void column();
    void messageLine();
    void contentHasItsOwnLook();

    void hideConfirmLeavesThePasswordRow();
    void inputTitleKeepsTheOldOneForAnEmptyText();
    void tipTextConcernsThePasswordOnly();
    void errorMessageIsShown();
    void hiddenConfirmationStillHasToMatch();

    void confirm_data();
    void confirm();
    void confirmAcceptsAndKeepsThePassword();
    void acceptLeavesTheMessage();
    void cancelAndCloseReject_data();
    void cancelAndCloseReject();

private:
    void fields();
};

void tst_QZelEncDialog::fields()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<Box>("box");
    QTest::newRow("password") << Edit(&Probe::let_Pwd) << Box(&Probe::chk_ShowPwd);
    QTest::newRow("confirmation") << Edit(&Probe::let_ConfirmPwd)
                                  << Box(&Probe::chk_ShowConfirmPwd);
}

void tst_QZelEncDialog::addsNothingToTheMetaObject()
{
    const QMetaObject &meta = QZelEncDialog::staticMetaObject;
    QCOMPARE(meta.className(), "QZelEncDialog");
    QCOMPARE(meta.superClass(), &QZelDialog::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    Probe dialog;
    QCOMPARE(dialog.qt_metacast("QZelEncDialog"), &dialog);
}

void tst_QZelEncDialog::isAWindowModalShell()
{
    Probe dialog;
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    QCOMPARE(int(dialog.windowFlags()), 0x803);
    QVERIFY(dialog.PreAccept());
    QVERIFY(dialog.PreClose());
    QVERIFY(dialog.reserved.isEmpty());
    QVERIFY(!dialog.btn_Ok->isHidden());
    QVERIFY(!dialog.btn_Cancel->isHidden());
}

void tst_QZelEncDialog::sizeGrowsToTheContentWhenShown()
{
    Probe dialog;
    QCOMPARE(dialog.size(), QSize(370, 205));
    // Margins, spacing, the field and the longer caption do not fit into that width.
    const int needed = 30 + 40 + dialog.lbl_ConfirmTitle->sizeHint().width() + 50 + 180 + 40 + 30;
    QVERIFY(needed > 370);
    dialog.show();
    QCOMPARE(dialog.width(), qMax(needed, dialog.minimumSizeHint().width()));
    QCOMPARE(dialog.size(), QSize(370, 205).expandedTo(dialog.minimumSizeHint()));
}

void tst_QZelEncDialog::isShownOverItsParent()
{
    QWidget host;
    host.setWindowFlag(Qt::FramelessWindowHint);
    host.setGeometry(60, 40, 700, 500);
    host.show();
    Probe dialog(&host);
    dialog.show();
    // Roughly: Qt allows for a frame.
    const QPoint apart = dialog.geometry().center() - host.geometry().center();
    QVERIFY2(apart.manhattanLength() < 100, qPrintable(QString::number(apart.manhattanLength())));
}

void tst_QZelEncDialog::titleAndCaptions()
{
    Probe dialog;
    QCOMPARE(dialog.lbl_Title->text(), QStringLiteral("setSolPwd"));
    QCOMPARE(dialog.lbl_PwdTitle->text(), QStringLiteral("setPwd"));
    QCOMPARE(dialog.lbl_ConfirmTitle->text(), QStringLiteral("confirmPwd"));
}

void tst_QZelEncDialog::textsAreTranslatedInItsContext()
{
    const MarkingTranslator translator;
    Probe dialog;
    QCOMPARE(dialog.lbl_Title->text(), QStringLiteral("[QZelEncDialog|setSolPwd]"));
    QCOMPARE(dialog.lbl_PwdTitle->text(), QStringLiteral("[QZelEncDialog|setPwd]"));
    QCOMPARE(dialog.lbl_ConfirmTitle->text(), QStringLiteral("[QZelEncDialog|confirmPwd]"));
    dialog.accept();
    QCOMPARE(dialog.lbl_Msg->text(), QStringLiteral("[QZelEncDialog|pwdEmpty]"));
    dialog.let_Pwd->setText(QStringLiteral("abc"));
    dialog.accept();
    QCOMPARE(dialog.lbl_Msg->text(), QStringLiteral("[QZelEncDialog|pwdDifferent]"));
    QCOMPARE(dialog.btn_Ok->text(), QStringLiteral("[QZelDialog|Confirm]"));
}

void tst_QZelEncDialog::captions()
{
    Probe dialog;
    for (const QLabel *caption : { dialog.lbl_PwdTitle, dialog.lbl_ConfirmTitle }) {
        QCOMPARE(caption->minimumHeight(), 35);
        QCOMPARE(caption->maximumHeight(), 35);
        QCOMPARE(caption->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    }
}

void tst_QZelEncDialog::passwordEdits()
{
    QFETCH(Edit, edit);
    Probe dialog;
    const QLineEdit *line = dialog.*edit;
    QCOMPARE(line->echoMode(), QLineEdit::Password);
    QCOMPARE(line->alignment(), Qt::AlignLeft);
    QCOMPARE(line->minimumHeight(), 33);
    QCOMPARE(line->maximumHeight(), 33);
    QCOMPARE(line->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(line->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(line->maxLength(), 15);
    QCOMPARE(line->placeholderText(), QString());

    const auto *validator = qobject_cast<const QRegExpValidator *>(line->validator());
    QVERIFY(validator);
    QCOMPARE(validator->parent(), &dialog);
    QCOMPARE(validator->regExp(),
             QRegExp(QStringLiteral("^[a-zA-Z0-9]{1,15}$"), Qt::CaseSensitive, QRegExp::RegExp));
    QVERIFY(dialog.let_Pwd->validator() != dialog.let_ConfirmPwd->validator());
}

void tst_QZelEncDialog::showBoxes()
{
    QFETCH(Box, box);
    Probe dialog;
    const QCheckBox *check = dialog.*box;
    QCOMPARE(check->text(), QString());
    QCOMPARE(check->minimumSize(), QSize(28, 28));
    QCOMPARE(check->maximumSize(), QSize(28, 28));
    QCOMPARE(check->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(check->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QVERIFY(!check->isChecked());
}

void tst_QZelEncDialog::framedFields()
{
    QFETCH(Edit, edit);
    QFETCH(Box, box);
    Probe dialog;
    const QWidget *field = (dialog.*edit)->parentWidget();
    QCOMPARE(field->objectName(), QStringLiteral("wgt_Rectangle"));
    QCOMPARE(field->minimumSize(), QSize(180, 35));
    QCOMPARE(field->maximumSize(), QSize(180, 35));
    const auto *layout = qobject_cast<QHBoxLayout *>(field->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(1, 1, 1, 1));
    QCOMPARE(layout->spacing(), 1);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), dialog.*edit);
    QCOMPARE(layout->itemAt(1)->widget(), dialog.*box);
    QCOMPARE(dialog.let_ConfirmPwd->parentWidget(), dialog.wgt_ConfirmRect);
    QCOMPARE(dialog.findChildren<QWidget *>(QStringLiteral("wgt_Rectangle")).size(), 2);
}

void tst_QZelEncDialog::rows()
{
    QFETCH(Edit, edit);
    Probe dialog;
    const bool password = edit == Edit(&Probe::let_Pwd);
    const auto *layout = qobject_cast<QHBoxLayout *>(
            dialog.content()->layout()->itemAt(password ? 1 : 2)->layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 50);
    QCOMPARE(layout->contentsMargins(), QMargins(40, 0, 40, 0));
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), password ? dialog.lbl_PwdTitle : dialog.lbl_ConfirmTitle);
    QCOMPARE(layout->itemAt(1)->widget(), (dialog.*edit)->parentWidget());
}

void tst_QZelEncDialog::column()
{
    Probe dialog;
    QCOMPARE(dialog.mainLayout->count(), 3);
    const auto *layout = qobject_cast<QVBoxLayout *>(dialog.content()->layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 10);
    QCOMPARE(layout->contentsMargins(), QMargins(30, 0, 30, 0));
    QCOMPARE(layout->count(), 5);
    QVERIFY(layout->itemAt(0)->spacerItem());
    QVERIFY(layout->itemAt(1)->layout());
    QVERIFY(layout->itemAt(2)->layout());
    QCOMPARE(layout->itemAt(3)->widget(), dialog.lbl_Msg);
    QVERIFY(layout->itemAt(4)->spacerItem());

    dialog.resize(500, 400);
    dialog.show();
    // The stretches share what is left over, so the rows stand in the middle.
    const int above = dialog.lbl_PwdTitle->y();
    const int below = dialog.content()->height() - dialog.lbl_Msg->geometry().bottom() - 1;
    QVERIFY(above > 10);
    QVERIFY(qAbs(above - below) <= 1);
}

void tst_QZelEncDialog::messageLine()
{
    Probe dialog;
    QCOMPARE(dialog.lbl_Msg->objectName(), QStringLiteral("lbl_Msg"));
    QCOMPARE(dialog.lbl_Msg->text(), QString());
    QCOMPARE(dialog.lbl_Msg->minimumHeight(), 32);
    QCOMPARE(dialog.lbl_Msg->maximumHeight(), 32);
    QCOMPARE(dialog.lbl_Msg->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
}

void tst_QZelEncDialog::contentHasItsOwnLook()
{
    Probe dialog;
    QCOMPARE(dialog.content()->styleSheet(),
             QStringLiteral("background-color: #f2f3f5; font: 10pt \"Microsoft YaHei\";"));
    dialog.show();
    COMPARE_PIXEL(Pixels::rendered(dialog.content()), 5, 5, 0xf2f3f5);
    QCOMPARE(dialog.let_Pwd->font().family(), QStringLiteral("Microsoft YaHei"));
    QCOMPARE(dialog.let_Pwd->font().pointSize(), 10);
}

void tst_QZelEncDialog::hideConfirmLeavesThePasswordRow()
{
    Probe dialog;
    dialog.HideConfirm();
    dialog.show();
    QVERIFY(!dialog.lbl_ConfirmTitle->isVisible());
    QVERIFY(!dialog.wgt_ConfirmRect->isVisible());
    QVERIFY(!dialog.let_ConfirmPwd->isVisible());
    QVERIFY(dialog.lbl_PwdTitle->isVisible());
    QVERIFY(dialog.let_Pwd->isVisible());
    QVERIFY(dialog.chk_ShowPwd->isVisible());
    QVERIFY(dialog.lbl_Msg->isVisible());
}

void tst_QZelEncDialog::inputTitleKeepsTheOldOneForAnEmptyText()
{
    Probe dialog;
    dialog.SetInputTitle(QStringLiteral("New password"));
    QCOMPARE(dialog.lbl_PwdTitle->text(), QStringLiteral("New password"));
    dialog.SetInputTitle(QString());
    QCOMPARE(dialog.lbl_PwdTitle->text(), QStringLiteral("New password"));
    dialog.SetInputTitle(QLatin1String(""));
    QCOMPARE(dialog.lbl_PwdTitle->text(), QStringLiteral("New password"));
    QCOMPARE(dialog.lbl_ConfirmTitle->text(), QStringLiteral("confirmPwd"));
}

void tst_QZelEncDialog::tipTextConcernsThePasswordOnly()
{
    Probe dialog;
    dialog.SetEditTipText(QStringLiteral("letters and digits"));
    QCOMPARE(dialog.let_Pwd->placeholderText(), QStringLiteral("letters and digits"));
    QCOMPARE(dialog.let_ConfirmPwd->placeholderText(), QString());
    dialog.SetEditTipText(QString());
    QCOMPARE(dialog.let_Pwd->placeholderText(), QString());
}

void tst_QZelEncDialog::errorMessageIsShown()
{
    Probe dialog;
    dialog.SetErrorMsg(QStringLiteral("too simple"));
    QCOMPARE(dialog.lbl_Msg->text(), QStringLiteral("too simple"));
}

void tst_QZelEncDialog::hiddenConfirmationStillHasToMatch()
{
    Probe dialog;
    dialog.HideConfirm();
    dialog.show();
    dialog.let_Pwd->setText(QStringLiteral("abc"));
    dialog.btn_Ok->click();
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.lbl_Msg->text(), QStringLiteral("pwdDifferent"));
}

void tst_QZelEncDialog::confirm_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("confirmation");
    QTest::addColumn<QString>("message"); // empty: accepted
    const QString empty = QStringLiteral("pwdEmpty");
    const QString different = QStringLiteral("pwdDifferent");
    const QString abc = QStringLiteral("abc");
    QTest::newRow("both empty") << QString() << QString() << empty;
    QTest::newRow("empty password") << QString() << abc << empty;
    QTest::newRow("empty confirmation") << abc << QString() << different;
    QTest::newRow("other case") << abc << QStringLiteral("ABC") << different;
    QTest::newRow("longer confirmation") << abc << QStringLiteral("abcd") << different;
    QTest::newRow("equal") << abc << abc << QString();
    QTest::newRow("one character") << QStringLiteral("0") << QStringLiteral("0") << QString();
    // Blanks cannot be typed, but can be set; nothing is trimmed here.
    QTest::newRow("blanks") << QStringLiteral(" ") << QStringLiteral(" ") << QString();
    QTest::newRow("blank more") << abc << QStringLiteral("abc ") << different;
}

void tst_QZelEncDialog::confirm()
{
    QFETCH(QString, password);
    QFETCH(QString, confirmation);
    QFETCH(QString, message);
    Probe dialog;
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    dialog.show();
    dialog.let_Pwd->setText(password);
    dialog.let_ConfirmPwd->setText(confirmation);
    dialog.btn_Ok->click();
    QCOMPARE(dialog.lbl_Msg->text(), message);
    QCOMPARE(dialog.isVisible(), !message.isEmpty());
    QCOMPARE(accepted.count(), message.isEmpty() ? 1 : 0);
}

void tst_QZelEncDialog::confirmAcceptsAndKeepsThePassword()
{
    Probe dialog;
    ModalDriver driver;
    driver.on<QZelEncDialog>([&](QZelEncDialog *) {
        QTest::keyClicks(dialog.let_Pwd, QStringLiteral("Secret42"));
        QTest::keyClicks(dialog.let_ConfirmPwd, QStringLiteral("Secret42"));
        Pointer(&dialog).click(middleOf(dialog.btn_Ok));
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(driver.finished());
    QCOMPARE(dialog.let_Pwd->text(), QStringLiteral("Secret42"));
}

void tst_QZelEncDialog::acceptLeavesTheMessage()
{
    Probe dialog;
    dialog.show();
    dialog.btn_Ok->click();
    QCOMPARE(dialog.lbl_Msg->text(), QStringLiteral("pwdEmpty"));
    dialog.let_Pwd->setText(QStringLiteral("abc"));
    dialog.let_ConfirmPwd->setText(QStringLiteral("abc"));
    dialog.btn_Ok->click();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.lbl_Msg->text(), QStringLiteral("pwdEmpty"));
}

void tst_QZelEncDialog::cancelAndCloseReject_data()
{
    QTest::addColumn<bool>("cancel");
    QTest::newRow("Cancel") << true;
    QTest::newRow("close button") << false;
}

void tst_QZelEncDialog::cancelAndCloseReject()
{
    QFETCH(bool, cancel);
    Probe dialog;
    ModalDriver driver;
    driver.on<QZelEncDialog>([&](QZelEncDialog *) {
        dialog.let_Pwd->setText(QStringLiteral("abc"));
        dialog.let_ConfirmPwd->setText(QStringLiteral("abc"));
        (cancel ? dialog.btn_Cancel : dialog.btn_Close)->click();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(driver.finished());
}

QTARNKIT_TEST_MAIN(tst_QZelEncDialog)
#include "tst_QZelEncDialog.moc"
