// Asks where to save a note and, if the user wishes, for a password to go with it.

#include <QZelFileDialog>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);

    QString filter;
    QString password;
    const QString path = QZelFileDialog::getSaveFileName(
            nullptr, QStringLiteral("Save"), QDir::homePath(),
            QStringLiteral("Note (*.note);;All (*)"), &filter, true, &password);

    QTextStream out(stdout);
    if (path.isEmpty()) {
        out << "cancelled\n";
        return 1;
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) { // the dialog does not check this
        out << "cannot write " << path << ": " << file.errorString() << "\n";
        return 1;
    }
    file.write("a note\n");
    out << "saved " << path << (password.isEmpty() ? " in clear" : " to be encrypted") << "\n";
    return 0;
}
