#include "ModalDriver.h"

#include <QTest>

namespace {

constexpr int PollInterval = 5; // milliseconds

} // namespace

ModalDriver::ModalDriver(int watchdogSeconds)
{
    watchdog.setSingleShot(true);
    connect(&watchdog, &QTimer::timeout, this, &ModalDriver::giveUp);
    watchdog.start(watchdogSeconds * 1000);
    QTimer::singleShot(0, this, &ModalDriver::poll);
}

bool ModalDriver::finished() const
{
    return steps.empty() && !gaveUp;
}

ModalDriver &ModalDriver::add(const Step &step)
{
    steps.push_back(step);
    return *this;
}

void ModalDriver::poll()
{
    if (gaveUp)
        return;
    // Armed before the action: that may run an event loop of its own, with the next window in it. A
    // new timer each time, as a timer does not fire again inside its own slot.
    QTimer::singleShot(PollInterval, this, &ModalDriver::poll);
    if (steps.empty())
        return;
    if (const std::function<void()> action = steps.front()()) {
        steps.pop_front();
        action();
    }
}

void ModalDriver::giveUp()
{
    if (steps.empty() && !QApplication::activeModalWidget())
        return;
    gaveUp = true;
    QTest::qFail("a modal window was still awaited or open when the watchdog barked", __FILE__,
                 __LINE__);
    while (QWidget *modal = QApplication::activeModalWidget()) {
        modal->close();
        if (modal == QApplication::activeModalWidget())
            modal->hide();
    }
}
