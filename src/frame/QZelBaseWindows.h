#ifndef QZELBASEWINDOWS_H
#define QZELBASEWINDOWS_H

#include "QTarnKitGlobal.h"

#include <QList>
#include <QMainWindow>
#include <QPoint>
#include <QRect>

/**
 * A frameless main window that moves and resizes by itself.
 *
 * Derive an application's main window from it when the window system draws no frame. The pointer
 * moves the window by dragging it anywhere outside its border, and resizes it from the four edges
 * and four corners of a border band; the cursor shows where. All of this is driven by hover events.
 * The class leaves Qt::WA_Hover as it is: Qt 5.15's QMainWindow sets it, so it is set here only to
 * be sure.
 *
 * @code
 * setAttribute(Qt::WA_Hover);
 * setMenuWidget(strip);
 * setTitleBar(strip);
 * connect(this, &QZelBaseWindows::titleDblClick, this, &MainWindow::toggleMaximized);
 * @endcode
 *
 * While the window is maximised, minimised or full screen it neither moves nor resizes.
 *
 * A style sheet addresses it by class name; Qt::WA_StyledBackground is set. The title bar widget
 * stays the caller's.
 */
class QTARNKIT_EXPORT QZelBaseWindows : public QMainWindow
{
    Q_OBJECT

public:
    /// Creates a frameless top-level window, also with a @p parent, which then owns it.
    explicit QZelBaseWindows(QWidget *parent = nullptr);
    ~QZelBaseWindows() override;

    /// Sees the window's own events and those of its title bar, and consumes none of them.
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Handles resize, press, release and hover-move events of the window; ignores all others.
    void doResizeEvent(QEvent *event);

    /// Follows a change of the window's state: see windowStateChange().
    void doWindowStateChange(QEvent *event);

public Q_SLOTS:
    /**
     * Sets the width of the border band to @p padding pixels (2 at first). It takes effect at the
     * next resize of the window. 0 or less leaves no band: the window can then only be moved.
     */
    void setPadding(int padding);

    /// Lets the pointer move the window or not. The next change of the window's state overwrites it.
    void setMoveEnable(bool moveEnable);

    /**
     * Lets the pointer resize the window, with the cursors that show where, or not. The next change
     * of the window's state overwrites it.
     */
    void setResizeEnable(bool resizeEnable);

    /**
     * Makes @p titleBar the widget whose double-clicks emit titleDblClick(); placing it
     * is left to setMenuWidget() or a layout. The caller keeps ownership. A title bar set before
     * stays filtered but is no longer listened to; null means none.
     */
    void setTitleBar(QWidget *titleBar);

Q_SIGNALS:
    /// The title bar was double-clicked. The window changes nothing by itself.
    void titleDblClick();

    /**
     * The window's state changed; the argument is false for the normal state and true for
     * maximised, minimised and full screen. Moving and resizing have been switched on or off to
     * match.
     */
    void windowStateChange(bool);

protected:
    /// Marks the window as mapped.
    void showEvent(QShowEvent *event) override;

    /// A place for platform-specific handling; lets every native event pass.
    bool nativeEvent(const QByteArray &eventType, void *message, long *result) override;

    int padding = 2; ///< width of the border band, in pixels
    bool moveEnable = true; ///< dragging moves the window
    bool resizeEnable = true; ///< the border resizes the window
    QWidget *titleBar = nullptr; ///< not owned; compared, never used through
    bool isPressed = false; ///< a press outside the border: the window is being moved
    QPoint pressPoint; ///< of the last press, in window coordinates
    QRect pressRect; ///< the window's geometry at the last press
    QList<bool> pressedArea; ///< by border zone: where the last press landed
    QList<QRect> areaRects; ///< the border zones in window coordinates, as of the last resize

private:
    void updateAreaRects();
    void recordPress(const QPoint &position);
    void forgetPress();
    void followHover(const QPoint &position);
    void updateHoverCursor(const QPoint &position);
    void resizeByPressedArea(int dx, int dy);
    void resizeTopLeft(int width, int height, int dx, int dy);
    void resizeBottomLeft(int width, int height, int dx);
};

#endif // QZELBASEWINDOWS_H
