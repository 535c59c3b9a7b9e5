#ifndef QZELENCDIALOG_H
#define QZELENCDIALOG_H

#include "QZelDialog.h"

#include <QString>

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QRegExp;
class QWidget;

/**
 * A dialog in which the user sets a password: a field and a confirmation field, each with a check
 * box that shows what was typed, and a line for errors.
 *
 * A password is 1 to 15 ASCII letters and digits; the fields refuse everything else as it is typed.
 * Each show starts with an empty, masked form.
 *
 * @code
 * const QPointer<QZelEncDialog> dialog = new QZelEncDialog(this); // its parent may delete it
 * if (dialog->exec() == QDialog::Accepted)
 *     usePassword(dialog->let_Pwd->text().trimmed());
 * delete dialog;
 * @endcode
 *
 * Object names for a style sheet: those of QZelDialog, "wgt_Rectangle" (each of the two framed
 * fields) and "lbl_Msg" (the error line). The content has a style sheet of its own with a light
 * grey background and a 10 pt font.
 */
class QTARNKIT_EXPORT QZelEncDialog : public QZelDialog
{
    Q_OBJECT

public:
    /// Creates the dialog, 370 x 205 pixels; @p parent may be null.
    explicit QZelEncDialog(QWidget *parent);
    ~QZelEncDialog() override;

    /// Hides the confirmation row. Its empty field is still compared, so accept() then always fails.
    void HideConfirm();

    /// Sets the caption of the password field; an empty @p text leaves it as it is.
    void SetInputTitle(const QString &text);

    /// Sets the placeholder of the password field.
    void SetEditTipText(const QString &text);

    /// Sets the text of the error line.
    void SetErrorMsg(const QString &text);

    /// Builds the content; called once by the constructor.
    void InitCtrls();

    /// Connects the check boxes; called once by the constructor.
    void InitConnects();

    /// Accepts when the password is not empty and both fields are equal; else says why not.
    void accept() override;

protected:
    /// Empties and masks the form.
    void showEvent(QShowEvent *event) override;

    QLabel *lbl_PwdTitle = nullptr; ///< caption of the password field
    QLabel *lbl_ConfirmTitle = nullptr; ///< caption of the confirmation field

public:
    /// The password field, for the owner to read after exec().
    QLineEdit *let_Pwd = nullptr;

protected:
    QLineEdit *let_ConfirmPwd = nullptr; ///< confirmation field
    QCheckBox *chk_ShowPwd = nullptr; ///< shows the password in clear
    QCheckBox *chk_ShowConfirmPwd = nullptr; ///< shows the confirmation in clear
    QLabel *lbl_Msg = nullptr; ///< error line
    QWidget *wgt_ConfirmRect = nullptr; ///< field of the confirmation row, "wgt_Rectangle"
    QString reserved; ///< unused; keeps the members' layout

private:
    QLabel *createCaption(const QString &text);
    QLineEdit *createPasswordEdit(const QRegExp &allowed);
    QCheckBox *createShowBox();
    QWidget *createField(QLineEdit *edit, QCheckBox *showBox);
    QHBoxLayout *createRow(QLabel *caption, QWidget *field);
};

#endif // QZELENCDIALOG_H
