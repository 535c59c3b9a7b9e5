// The smallest host: one dialog, and what the user typed into it.

#include <QZelFolderNameDialog.h>

#include <QApplication>
#include <QLineEdit>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);

    QZelFolderNameDialog dialog(nullptr);
    dialog.SetTitle(QStringLiteral("New folder"));
    dialog.setTitle(QStringLiteral("Name:"));
    dialog.setContent(QStringLiteral("Measurements"));
    if (dialog.exec() != QDialog::Accepted)
        return 1;

    QTextStream(stdout) << dialog.let_FolderName->text() << '\n';
    return 0;
}
