#include "progress/CustomProgressBar.h"

#include <QGuiApplication>
#include <QPainter>
#include <QShowEvent>

namespace {

constexpr int BarWidth = 300;
constexpr int BarHeight = 30;

} // namespace

CustomProgressBar::CustomProgressBar(QWidget *parent)
    : QWidget(parent)
{
    setWindowModality(Qt::ApplicationModal);
    setWindowFlags(windowFlags() | Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    if (parent) {
        const QRect area = parent->geometry();
        const int left = int(area.x() + area.width() * 0.5 - BarWidth * 0.5);
        const int top = int(area.y() + area.height() * 0.5 - BarHeight * 0.5);
        setGeometry(left, top, BarWidth, BarHeight);
    }
}

CustomProgressBar::~CustomProgressBar() = default;

void CustomProgressBar::SetProgress(int value)
{
    progress = value > 0 ? value : 1;
    if (!QGuiApplication::primaryScreen())
        return;
    if (!isVisible())
        show();
    repaint();
}

void CustomProgressBar::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), Qt::lightGray);
    painter.setBrush(Qt::green);
    // What lies beyond the right edge is clipped, so the fill may end there: a huge percentage then
    // stays within an integer.
    const int fill = int(qMin(width() * (progress / 100.0), double(width())));
    painter.fillRect(QRect(0, 0, fill, height()), painter.brush());
}

void CustomProgressBar::closeEvent(QCloseEvent *event)
{
    progress = 0;
    update();
    QWidget::closeEvent(event);
}

void CustomProgressBar::showEvent(QShowEvent *event)
{
    if (!QGuiApplication::primaryScreen()) {
        event->accept();
        return;
    }
    QWidget::showEvent(event);
}
