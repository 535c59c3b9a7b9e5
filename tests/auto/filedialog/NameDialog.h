#ifndef NAMEDIALOG_H
#define NAMEDIALOG_H

#include "ModalDriver.h"
#include "User.h"

#include <QZelFolderNameDialog.h>

#include <QLabel>
#include <QLineEdit>
#include <QMenu>

/// Chooses an action in the next menu.
inline void chooseNext(ModalDriver &driver, const QString &action)
{
    driver.on<QMenu>([action](QMenu *menu) { User::choose(menu, action); });
}

/// What a name dialog showed before it was ended.
struct SeenNameDialog
{
    int dialogs = 0;
    QString prompt, content;
    QObject *parent = nullptr;
    Qt::WindowFlags flags;
    Qt::WindowModality modality = Qt::NonModal;
};

/// Types a name into the next name dialog and ends it with a button.
inline void nameNext(ModalDriver &driver, const QString &name, const QString &button,
                     SeenNameDialog *seen)
{
    driver.on<QZelFolderNameDialog>([=](QZelFolderNameDialog *dialog) {
        ++seen->dialogs;
        seen->prompt = dialog->lbl_FolderName->text();
        seen->content = dialog->let_FolderName->text();
        seen->parent = dialog->parent();
        seen->flags = dialog->windowFlags();
        seen->modality = dialog->windowModality();
        User::type(dialog->let_FolderName, name);
        User::clickButton(dialog, button);
    });
}

/// The buttons that confirm and reject it.
inline QString confirmName()
{
    return QStringLiteral("Confirm");
}
inline QString rejectName()
{
    return QStringLiteral("btn_Close");
}

#endif // NAMEDIALOG_H
