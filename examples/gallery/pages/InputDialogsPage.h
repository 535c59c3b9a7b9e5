#ifndef INPUTDIALOGSPAGE_H
#define INPUTDIALOGSPAGE_H

#include "GalleryPage.h"

class QCheckBox;
class QLineEdit;
class QSpinBox;
class QZelDialog;

/// Shows the dialog shell QZelDialog and the three input dialogs built on it.
class InputDialogsPage : public GalleryPage
{
    Q_OBJECT

public:
    InputDialogsPage(SignalLog *log, QWidget *parent);

private:
    void createShellPanel();
    void createPasswordPanels();
    void createFolderNamePanel();
    void fillShell(QZelDialog *dialog);
    void runShell();
    void runSetPassword();
    void runPassword();
    void runFolderName();

    QLineEdit *shellTitle = nullptr;
    QLineEdit *okText = nullptr;
    QLineEdit *cancelText = nullptr;
    QSpinBox *shellWidth = nullptr;
    QSpinBox *shellHeight = nullptr;
    QCheckBox *showOk = nullptr;
    QCheckBox *showCancel = nullptr;
    QCheckBox *showMax = nullptr;
    QCheckBox *okEnabled = nullptr;
    QCheckBox *ownBottom = nullptr;
    QCheckBox *vetoAccept = nullptr;
    QCheckBox *vetoClose = nullptr;
    QLineEdit *inputTitle = nullptr;
    QLineEdit *tipText = nullptr;
    QLineEdit *rightPassword = nullptr;
    QLineEdit *prompt = nullptr;
    QLineEdit *folderName = nullptr;
};

#endif // INPUTDIALOGSPAGE_H
