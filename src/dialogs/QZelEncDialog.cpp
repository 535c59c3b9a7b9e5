#include "dialogs/QZelEncDialog.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegExp>
#include <QRegExpValidator>
#include <QVBoxLayout>

namespace {

constexpr QSize DialogSize(370, 205);
constexpr int MaxPasswordLength = 15;
constexpr int CaptionHeight = 35;
constexpr int EditHeight = 33;
constexpr QSize ShowBoxSize(28, 28);
constexpr QSize FieldSize(180, 35);
constexpr int FieldMargin = 1;
constexpr int FieldSpacing = 1;
constexpr QMargins RowMargins(40, 0, 40, 0);
constexpr int RowSpacing = 50;
constexpr int MessageHeight = 32;
constexpr QMargins ColumnMargins(30, 0, 30, 0);
constexpr int ColumnSpacing = 10;

// By the check box's state at the time of the click, not by the signal's argument.
void applyEchoMode(QLineEdit *edit, const QCheckBox *showBox)
{
    edit->setEchoMode(showBox->checkState() == Qt::Checked ? QLineEdit::Normal
                                                           : QLineEdit::Password);
}

} // namespace

QZelEncDialog::QZelEncDialog(QWidget *parent)
    : QZelDialog(parent)
{
    setWindowModality(Qt::WindowModal);
    SetTitle(tr("setSolPwd"));
    InitCtrls();
    InitConnects();
    Resize(0, 0, DialogSize.width(), DialogSize.height());
}

QZelEncDialog::~QZelEncDialog() = default;

void QZelEncDialog::HideConfirm()
{
    lbl_ConfirmTitle->setVisible(false);
    wgt_ConfirmRect->setVisible(false);
}

void QZelEncDialog::SetInputTitle(const QString &text)
{
    if (!text.isEmpty())
        lbl_PwdTitle->setText(text);
}

void QZelEncDialog::SetEditTipText(const QString &text)
{
    let_Pwd->setPlaceholderText(text);
}

void QZelEncDialog::SetErrorMsg(const QString &text)
{
    lbl_Msg->setText(text);
}

void QZelEncDialog::InitCtrls()
{
    const QRegExp allowed(QStringLiteral("^[a-zA-Z0-9]{1,15}$"), Qt::CaseSensitive, QRegExp::RegExp);

    lbl_PwdTitle = createCaption(tr("setPwd"));
    let_Pwd = createPasswordEdit(allowed);
    chk_ShowPwd = createShowBox();
    QWidget *passwordField = createField(let_Pwd, chk_ShowPwd);
    QHBoxLayout *passwordRow = createRow(lbl_PwdTitle, passwordField);

    lbl_ConfirmTitle = createCaption(tr("confirmPwd"));
    let_ConfirmPwd = createPasswordEdit(allowed);
    chk_ShowConfirmPwd = createShowBox();
    wgt_ConfirmRect = createField(let_ConfirmPwd, chk_ShowConfirmPwd);
    QHBoxLayout *confirmRow = createRow(lbl_ConfirmTitle, wgt_ConfirmRect);

    lbl_Msg = new QLabel(this);
    lbl_Msg->setFixedHeight(MessageHeight);
    lbl_Msg->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    lbl_Msg->setObjectName(QStringLiteral("lbl_Msg"));

    auto *column = new QVBoxLayout;
    column->addStretch();
    column->addLayout(passwordRow);
    column->addLayout(confirmRow);
    column->addWidget(lbl_Msg);
    column->addStretch();
    column->setSpacing(ColumnSpacing);
    column->setContentsMargins(ColumnMargins);

    auto *content = new QWidget(this);
    content->setLayout(column);
    content->setStyleSheet(
            QStringLiteral("background-color: #f2f3f5; font: 10pt \"Microsoft YaHei\";"));
    SetContainer(content);
}

void QZelEncDialog::InitConnects()
{
    connect(chk_ShowPwd, &QCheckBox::clicked, this, [this] { applyEchoMode(let_Pwd, chk_ShowPwd); });
    connect(chk_ShowConfirmPwd, &QCheckBox::clicked, this,
            [this] { applyEchoMode(let_ConfirmPwd, chk_ShowConfirmPwd); });
}

void QZelEncDialog::accept()
{
    // Untrimmed on purpose; whoever reads the password trims it.
    if (let_Pwd->text().isEmpty())
        lbl_Msg->setText(tr("pwdEmpty"));
    else if (let_Pwd->text() == let_ConfirmPwd->text())
        QDialog::accept();
    else
        lbl_Msg->setText(tr("pwdDifferent"));
}

void QZelEncDialog::showEvent(QShowEvent *event)
{
    let_Pwd->clear();
    let_ConfirmPwd->clear();
    lbl_Msg->clear();
    // setChecked() emits no clicked(), so the echo modes are set back by hand.
    chk_ShowPwd->setChecked(false);
    chk_ShowConfirmPwd->setChecked(false);
    let_Pwd->setEchoMode(QLineEdit::Password);
    let_ConfirmPwd->setEchoMode(QLineEdit::Password);
    QDialog::showEvent(event);
}

QLabel *QZelEncDialog::createCaption(const QString &text)
{
    auto *caption = new QLabel(this);
    caption->setText(text);
    caption->setFixedHeight(CaptionHeight);
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return caption;
}

QLineEdit *QZelEncDialog::createPasswordEdit(const QRegExp &allowed)
{
    auto *edit = new QLineEdit(this);
    edit->setEchoMode(QLineEdit::Password);
    edit->setAlignment(Qt::AlignLeft);
    edit->setFixedHeight(EditHeight);
    edit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    edit->setMaxLength(MaxPasswordLength);
    edit->setValidator(new QRegExpValidator(allowed, this));
    return edit;
}

QCheckBox *QZelEncDialog::createShowBox()
{
    auto *box = new QCheckBox(this);
    box->setFixedSize(ShowBoxSize);
    box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return box;
}

QWidget *QZelEncDialog::createField(QLineEdit *edit, QCheckBox *showBox)
{
    auto *field = new QWidget(this);
    field->setFixedSize(FieldSize);
    field->setObjectName(QStringLiteral("wgt_Rectangle"));
    auto *layout = new QHBoxLayout(field);
    layout->setContentsMargins(FieldMargin, FieldMargin, FieldMargin, FieldMargin);
    layout->setSpacing(FieldSpacing);
    layout->addWidget(edit);
    layout->addWidget(showBox);
    return field;
}

QHBoxLayout *QZelEncDialog::createRow(QLabel *caption, QWidget *field)
{
    auto *row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(field);
    row->setSpacing(RowSpacing);
    row->setContentsMargins(RowMargins);
    return row;
}
