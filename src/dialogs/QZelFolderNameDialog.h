#ifndef QZELFOLDERNAMEDIALOG_H
#define QZELFOLDERNAMEDIALOG_H

#include "QZelDialog.h"

class QLabel;
class QLineEdit;

/**
 * A dialog in which the user types the name of a folder or file to create or rename.
 *
 * @code
 * const QPointer<QZelFolderNameDialog> dialog = new QZelFolderNameDialog(this);
 * dialog->setContent(oldName);
 * if (dialog->exec() == QDialog::Accepted) rename(dialog->let_FolderName->text());
 * delete dialog; // null when it went with its parent
 * @endcode
 *
 * Only an empty name is refused, by leaving the dialog open; blanks and characters that the file
 * system does not take are the caller's to check. Cancel is hidden: the close button rejects.
 *
 * Object names are those of QZelDialog. The content has a style sheet of its own with a light grey
 * background and an 11 pt font.
 */
class QTARNKIT_EXPORT QZelFolderNameDialog : public QZelDialog
{
    Q_OBJECT

public:
    /// Creates the dialog, 300 x 150 pixels; @p parent may be null.
    explicit QZelFolderNameDialog(QWidget *parent);
    ~QZelFolderNameDialog() override;

    /// Builds the content; called once by the constructor.
    void InitCtrls();

    /// Sets the prompt before the edit; the title strip is not touched.
    void setTitle(QString text);

    /// Fills the edit, with the present name before a rename.
    void setContent(QString text);

    /// Accepts unless the name is empty. The name is not trimmed.
    void accept() override;

    QLabel *lbl_FolderName = nullptr; ///< the prompt
    QLineEdit *let_FolderName = nullptr; ///< the name, for the owner to read after exec()
};

#endif // QZELFOLDERNAMEDIALOG_H
