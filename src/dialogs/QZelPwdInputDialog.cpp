#include "dialogs/QZelPwdInputDialog.h"

#include <QLineEdit>

QZelPwdInputDialog::QZelPwdInputDialog(QWidget *parent)
    : QZelEncDialog(parent)
{
    SetTitle(tr("solPwd"));
    SetInputTitle(tr("solPwd"));
    InitCtrls();
}

QZelPwdInputDialog::~QZelPwdInputDialog() = default;

void QZelPwdInputDialog::InitCtrls()
{
    HideConfirm();
}

void QZelPwdInputDialog::SetInputTitle(const QString &text)
{
    QZelEncDialog::SetInputTitle(text);
}

void QZelPwdInputDialog::SetEditTipText(const QString &text)
{
    QZelEncDialog::SetEditTipText(text);
}

// Never QDialog's: whether the password is right, and so when the dialog closes, is the receiver's.
void QZelPwdInputDialog::accept()
{
    const QString password = let_Pwd ? let_Pwd->text().trimmed() : QString();
    if (password.isEmpty())
        SetErrorMsg(tr("errPwdEmpty"));
    else
        Q_EMIT passwordEntered(password);
}
