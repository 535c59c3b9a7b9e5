#ifndef WAITINGDIALOGPROBE_H
#define WAITINGDIALOGPROBE_H

#include <QWaitingDialog.h>

#include <QCoreApplication>
#include <QTimer>
#include <QTimerEvent>

/// A waiting dialog whose state can be read and whose time can be advanced.
class WaitingDialogProbe : public QWaitingDialog
{
public:
    explicit WaitingDialogProbe(QWidget *parent = nullptr)
        : QWaitingDialog(parent)
    {}

    using QWaitingDialog::frameIndex;
    using QWaitingDialog::frames;
    using QWaitingDialog::iconLabel;
    using QWaitingDialog::infoLabel;
    using QWaitingDialog::loadingPixmap;
    using QWaitingDialog::mainLayout;
    using QWaitingDialog::progressBar;
    using QWaitingDialog::timer;

    /// Lets the running timer tick, without waiting for it.
    void tick(int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            QTimerEvent event(timer->timerId());
            QCoreApplication::sendEvent(timer, &event);
        }
    }
};

#endif // WAITINGDIALOGPROBE_H
