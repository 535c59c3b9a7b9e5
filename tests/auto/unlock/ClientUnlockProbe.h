#ifndef CLIENTUNLOCKPROBE_H
#define CLIENTUNLOCKPROBE_H

#include <ClientUnlockWidget.h>

/// An unlock notice whose state can be read.
class ClientUnlockProbe : public ClientUnlockWidget
{
public:
    explicit ClientUnlockProbe(QWidget *parent = nullptr)
        : ClientUnlockWidget(parent)
    {}

    using ClientUnlockWidget::iconLabel;
    using ClientUnlockWidget::ip;
    using ClientUnlockWidget::msgLabel;
    using ClientUnlockWidget::showPending;
    using ClientUnlockWidget::titleLabel;
    using ClientUnlockWidget::titleWidget;
    using ClientUnlockWidget::unlockButton;
};

#endif // CLIENTUNLOCKPROBE_H
