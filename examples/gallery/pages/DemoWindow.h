#ifndef DEMOWINDOW_H
#define DEMOWINDOW_H

#include <QZelBaseWindows.h>

class QTitleBar;

/// A frameless window with a QTitleBar, as small as a host's can be.
class DemoWindow : public QZelBaseWindows
{
    Q_OBJECT

public:
    DemoWindow();

    QTitleBar *bar() const { return strip; }

private:
    void toggleMaximized();

    QTitleBar *strip = nullptr;
};

#endif // DEMOWINDOW_H
