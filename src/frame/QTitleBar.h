#ifndef QTITLEBAR_H
#define QTITLEBAR_H

#include "QTarnKitGlobal.h"

#include <QColor>
#include <QLabel>
#include <QPoint>

class QHBoxLayout;
class QPushButton;

/**
 * A title strip for frameless windows: a title at the left, a close button at the right, a flat
 * background, and dragging with the left button, which moves the strip's parent widget.
 *
 * Place it directly in the window that it shall drag:
 *
 * @code
 * auto *bar = new QTitleBar(window);
 * bar->SetTitle(tr("Settings"));
 * connect(bar, &QTitleBar::SIG_CloseWindow, window, &QWidget::close);
 * @endcode
 *
 * In a layout inside a central widget it would drag that widget. A QZelBaseWindows moves by itself
 * too, and would run ahead of the pointer: set Qt::WA_NoMousePropagation on the strip, or switch
 * the window's moving off with setMoveEnable(false), again after each return to the normal state:
 *
 * @code
 * bar->setAttribute(Qt::WA_NoMousePropagation);
 * setMenuWidget(bar);
 * setTitleBar(bar);
 * @endcode
 *
 * The strip is 25 pixels high. A style sheet addresses the children by type: "QTitleBar QLabel" is
 * the title and "QTitleBar QPushButton" the close button, which has no text and no icon of its own.
 * The background comes from SetThemeColor(), not from a style sheet. The strip owns its children.
 */
class QTARNKIT_EXPORT QTitleBar : public QLabel
{
    Q_OBJECT

public:
    /// Creates the strip; @p parent is the widget that it drags. Without one a drag does nothing.
    explicit QTitleBar(QWidget *parent = nullptr);
    ~QTitleBar() override;

    /// Creates the children that do not exist yet; called by the constructor.
    void InitTitleBar();

    /// Sets the text of the title.
    void SetTitle(QString title);

    /// Sets the colour of the background, #262626 at first, and repaints the strip.
    void SetThemeColor(QColor color);

    /// 200 x 25 pixels, whatever the title.
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Emits SIG_CloseWindow(); the argument is ignored.
    void OnCloseBtnClickedEvent(bool);

Q_SIGNALS:
    /// The close button was clicked. Closing or hiding the window is up to the receiver.
    void SIG_CloseWindow();

protected:
    /// Takes hold with the left button; the parent sees the event too.
    void mousePressEvent(QMouseEvent *event) override;

    /// Lets go; the parent sees the event too.
    void mouseReleaseEvent(QMouseEvent *event) override;

    /// Carries the parent along; the parent sees the event too.
    void mouseMoveEvent(QMouseEvent *event) override;

    /// Fills the strip and draws a red line on the top edge of a strip in its parent's corner.
    void paintEvent(QPaintEvent *event) override;

    QLabel *titleLabel = nullptr; ///< title
    QPushButton *closeButton = nullptr; ///< close button
    QHBoxLayout *mainLayout = nullptr; ///< layout of the strip
    bool isPressed = false; ///< the left button is down on the strip
    QPoint lastGlobalPos; ///< of the pointer, at the press and after each step of a drag
    QColor themeColor { 38, 38, 38 }; ///< background
};

#endif // QTITLEBAR_H
