#include "filedialog/QZelFileDialog.h"

#include "dialogs/OnTopQuestion.h"
#include "dialogs/QZelEncDialog.h"
#include "filedialog/FileNameRules.h"

#include "ui_QZelFileDialog.h"

#include <QFileSystemModel>
#include <QPointer>
#include <QTextDocument>

#include <memory>

namespace {

// On the heap and watched: when the parent dies while the dialog runs, it takes the dialog along.
class RunningDialog
{
public:
    explicit RunningDialog(QZelFileDialog *dialog)
        : dialog(dialog)
    {}
    ~RunningDialog() { delete dialog; }
    Q_DISABLE_COPY(RunningDialog)

    bool exec()
    {
        const int result = dialog->exec();
        return dialog && result == QDialog::Accepted;
    }
    // Null when the dialog has gone. The out-arguments may have gone with the same parent.
    QZelFileDialog *get() const { return dialog; }

private:
    QPointer<QZelFileDialog> dialog;
};

// The message with a name in it that is shown as it stands. As markup, it would even read the image
// that it names.
QString withName(const QString &message, const QString &name)
{
    if (Qt::mightBeRichText(message)) // a translation's own
        return message.arg(name.toHtmlEscaped());
    const QString text = message.arg(name);
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace

QString QZelFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                        const QString &filter, QString *selectedFilter)
{
    RunningDialog dialog(new QZelFileDialog(parent, caption, dir, filter, OpenFile));
    const bool accepted = dialog.exec();
    if (dialog.get() && selectedFilter)
        *selectedFilter = dialog.get()->getSelectedFilter();
    return accepted ? dialog.get()->getFilePath() : QString();
}

QStringList QZelFileDialog::getOpenFileNames(QWidget *parent, const QString &caption,
                                             const QString &dir, const QString &filter,
                                             QString *selectedFilter)
{
    RunningDialog dialog(new QZelFileDialog(parent, caption, dir, filter, OpenFiles));
    const bool accepted = dialog.exec();
    if (dialog.get() && selectedFilter)
        *selectedFilter = dialog.get()->getSelectedFilter();
    return accepted ? dialog.get()->getFilePaths() : QStringList();
}

QString QZelFileDialog::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                        const QString &filter, QString *selectedFilter,
                                        bool encrypt, QString *password)
{
    RunningDialog dialog(new QZelFileDialog(parent, caption, dir, filter,
                                            encrypt ? SaveEncryptedFile : SaveFile));
    const bool accepted = dialog.exec();
    if (dialog.get() && selectedFilter)
        *selectedFilter = dialog.get()->getSelectedFilter();
    if (dialog.get() && password)
        *password = dialog.get()->password;
    return accepted ? dialog.get()->getFilePath() : QString();
}

QString QZelFileDialog::getExistingDirectory(QWidget *parent, const QString &caption,
                                             const QString &dir)
{
    RunningDialog dialog(new QZelFileDialog(parent, caption, dir));
    return dialog.exec() ? dialog.get()->getFilePath() : QString();
}

void QZelFileDialog::onOpenSave()
{
    QString name = ui->let_FileName->text();
    if (operateMode == SelectDirectory) {
        filePath = shownFolder();
        acceptExisting(name);
        return;
    }

    if (operateMode != OpenFiles && name.isEmpty())
        return;
    name = FileNameRules::withFilterSuffix(name, fileModel->nameFilters().value(0));
    // Joined as it is: a folder that was typed into the path has no "/" at its end.
    filePath = shownFolder() + name;

    if (operateMode == OpenFiles)
        accept();
    else if (isSaveMode())
        acceptSave();
    else
        acceptExisting(name);
}

void QZelFileDialog::onEncryptionOption()
{
    const QPointer<QZelFileDialog> self(this);
    const bool accepted = encDialog->exec() == QDialog::Accepted;
    if (!self || !accepted)
        return;
    password = encDialog->let_Pwd ? encDialog->let_Pwd->text().trimmed() : QString();
    OnTopQuestion::run(tr("sure"),
                       tr("password") + password + QLatin1Char('\n') + tr("passwordWarning"),
                       OnTopQuestion::Warning);
}

// Unlike the button, a double-click announces the path also when it replaces a file.
void QZelFileDialog::acceptListedFile(const QString &path)
{
    filePath = path;
    if (isSaveMode() && fileExist(filePath)) {
        const QPointer<QZelFileDialog> self(this);
        const bool replace =
                OnTopQuestion::run(QString(), tr("The file already exists. Whether to replace it?"),
                                   OnTopQuestion::Question);
        if (!self || !replace)
            return;
    }
    acceptPath();
}

void QZelFileDialog::acceptSave()
{
    if (!fileExist(filePath)) {
        acceptPath();
        return;
    }
    const QPointer<QZelFileDialog> self(this);
    const bool overwrite =
            OnTopQuestion::run(QString(), tr("Is storage overwritten?"), OnTopQuestion::Question);
    // Without sig_filePath: the caller reads the result instead.
    if (self && overwrite)
        accept();
}

void QZelFileDialog::acceptExisting(const QString &name)
{
    if (fileExist(filePath)) {
        acceptPath();
        return;
    }
    const QString message = operateMode == SelectDirectory ? tr("The folder/%1 does not exist")
                                                           : tr("The file/%1 does not exist");
    OnTopQuestion::run(QString(), withName(message, name), OnTopQuestion::Warning);
}

void QZelFileDialog::acceptPath()
{
    const QPointer<QZelFileDialog> self(this);
    Q_EMIT sig_filePath(filePath);
    if (self) // a receiver may have deleted the dialog
        accept();
}

// Back can empty the history when the last folder has been deleted.
QString QZelFileDialog::shownFolder() const
{
    return backHistory.isEmpty() ? QString() : backHistory.constLast();
}
