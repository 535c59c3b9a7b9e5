#ifndef MODALDRIVER_H
#define MODALDRIVER_H

#include <QApplication>
#include <QObject>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <list>

/// Operates windows that run their own event loop. Queue a step for each window in the order in
/// which they appear, then call what opens the first one:
///
///     ModalDriver driver;
///     driver.on<QZelFileDialog>([](QZelFileDialog *dialog) { ... click ... });
///     driver.on<QTarnKit::QUIMessageBox>([](QTarnKit::QUIMessageBox *box) { ... });
///     const QString path = QZelFileDialog::getSaveFileName(...);
///     QVERIFY(driver.finished());
///
/// A step runs once a window of its class is visible. When a step's window does not come in time,
/// or the windows do not go, the watchdog fails the test and closes everything that is modal.
class ModalDriver : public QObject
{
    Q_OBJECT

public:
    explicit ModalDriver(int watchdogSeconds = 20);

    template <typename T>
    ModalDriver &on(std::function<void(T *)> action)
    {
        return add([action] {
            T *window = visible<T>();
            return window ? std::function<void()>([action, window] { action(window); })
                          : std::function<void()>();
        });
    }

    /// The visible window of a class, the topmost modal one first; null when there is none.
    template <typename T>
    static T *visible()
    {
        if (T *modal = qobject_cast<T *>(QApplication::activeModalWidget()))
            return modal;
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (T *match = qobject_cast<T *>(window))
                if (match->isVisible())
                    return match;
        }
        return nullptr;
    }

    /// Whether every step has run and the watchdog did not bark.
    bool finished() const;

private:
    // Gives the action to run once its window is there.
    using Step = std::function<std::function<void()>()>;

    ModalDriver &add(const Step &step);
    void poll();
    void giveUp();

    std::list<Step> steps;
    QTimer watchdog;
    bool gaveUp = false;
};

#endif // MODALDRIVER_H
