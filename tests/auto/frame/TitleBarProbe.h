#ifndef TITLEBARPROBE_H
#define TITLEBARPROBE_H

#include <QTitleBar.h>

#include <QMouseEvent>

/// A title bar whose state can be read.
class TitleBarProbe : public QTitleBar
{
public:
    using QTitleBar::closeButton;
    using QTitleBar::isPressed;
    using QTitleBar::lastGlobalPos;
    using QTitleBar::mainLayout;
    using QTitleBar::QTitleBar;
    using QTitleBar::themeColor;
    using QTitleBar::titleLabel;

    // Returns whether the event was accepted.
    bool mouse(QEvent::Type type, const QPointF &screenPosition, Qt::MouseButton button)
    {
        const bool move = type == QEvent::MouseMove;
        QMouseEvent event(type, QPointF(1, 1), QPointF(1, 1), screenPosition,
                          move ? Qt::NoButton : button, button, Qt::NoModifier);
        switch (type) {
        case QEvent::MouseButtonPress:
            mousePressEvent(&event);
            break;
        case QEvent::MouseMove:
            mouseMoveEvent(&event);
            break;
        default:
            mouseReleaseEvent(&event);
            break;
        }
        return event.isAccepted();
    }

    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        QTitleBar::paintEvent(event);
    }
};

/// A frameless window with a title bar along its top, which notes its events.
class TitledWindow : public QWidget
{
public:
    TitledWindow()
        : QWidget(nullptr, Qt::FramelessWindowHint)
        , bar(new TitleBarProbe(this))
    {
        setGeometry(100, 100, 400, 300);
        bar->setGeometry(0, 0, 400, 25);
    }

    bool event(QEvent *event) override
    {
        types.append(event->type());
        return QWidget::event(event);
    }

    QList<QEvent::Type> types;
    TitleBarProbe *bar;
};

#endif // TITLEBARPROBE_H
