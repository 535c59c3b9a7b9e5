#ifndef UNLOCKPAGE_H
#define UNLOCKPAGE_H

#include "GalleryPage.h"

class ClientUnlockWidget;
class QLabel;
class QLineEdit;
class QSpinBox;

/// Shows ClientUnlockWidget, the notice that another machine has taken over.
class UnlockPage : public GalleryPage
{
    Q_OBJECT

public:
    UnlockPage(SignalLog *log, QWidget *parent);

private:
    void countClick();
    void call(const QString &name, void (ClientUnlockWidget::*operation)());

    ClientUnlockWidget *notice = nullptr;
    QLineEdit *address = nullptr;
    QSpinBox *clicksToClose = nullptr;
    QLabel *count = nullptr;
    int clicks = 0;
    int clicksSinceShown = 0;
};

#endif // UNLOCKPAGE_H
