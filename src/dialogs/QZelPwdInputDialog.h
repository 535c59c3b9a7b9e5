#ifndef QZELPWDINPUTDIALOG_H
#define QZELPWDINPUTDIALOG_H

#include "QZelEncDialog.h"

/**
 * A dialog that asks for an existing password and hands it to whoever listens.
 *
 * Confirm does not close the dialog: the receiver of passwordEntered() checks the password, then
 * closes the dialog or says in it what is wrong:
 *
 * @code
 * const QPointer<QZelPwdInputDialog> dialog = new QZelPwdInputDialog(this);
 * connect(dialog, &QZelPwdInputDialog::passwordEntered, this, [&](const QString &password) {
 *     isRight(password) ? dialog->done(QDialog::Accepted)
 *                       : dialog->SetErrorMsg(tr("Wrong password"));
 * });
 * const bool entered = dialog->exec() == QDialog::Accepted;
 * delete dialog; // null when it went with its parent
 * @endcode
 *
 * Object names are those of QZelEncDialog; the confirmation row is hidden.
 */
class QTARNKIT_EXPORT QZelPwdInputDialog : public QZelEncDialog
{
    Q_OBJECT

public:
    /// Creates the dialog; @p parent may be null.
    explicit QZelPwdInputDialog(QWidget *parent);
    ~QZelPwdInputDialog() override;

    /// Hides the confirmation row; called once by the constructor.
    void InitCtrls();

    /// As QZelEncDialog::SetInputTitle().
    void SetInputTitle(const QString &text);

    /// As QZelEncDialog::SetEditTipText().
    void SetEditTipText(const QString &text);

    /// Emits passwordEntered(), or says in the error line that the password is empty.
    void accept() override;

Q_SIGNALS:
    /// Confirm was clicked with this @p password, trimmed and not empty. The dialog stays open.
    void passwordEntered(const QString &password);
};

#endif // QZELPWDINPUTDIALOG_H
