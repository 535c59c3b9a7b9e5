#include "dialogs/OnTopQuestion.h"

#include "dialogs/QUIMessageBox.h"

bool OnTopQuestion::run(const QString &title, const QString &text, Type type)
{
    QTarnKit::QUIMessageBox box;
    box.setWindowFlags(box.windowFlags() | Qt::WindowStaysOnTopHint);
    box.setMessage(title, text, type, 0);
    return box.exec() == QDialog::Accepted;
}
