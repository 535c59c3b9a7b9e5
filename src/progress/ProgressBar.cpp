#include "progress/ProgressBar.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr QColor TrackColor(15, 15, 15);
constexpr QColor FillColor(255, 104, 2);
constexpr qreal Radius = 5.0;

} // namespace

ProgressBar::ProgressBar(QWidget *parent)
    : QWidget(parent)
{}

ProgressBar::~ProgressBar() = default;

void ProgressBar::setRange(int min, int max)
{
    minimum = min;
    maximum = max;
    update();
}

void ProgressBar::setValue(int v)
{
    // Not qBound(): with a minimum above the maximum the minimum has to win.
    value = qMax(qMin(v, maximum), minimum);
    update();
}

void ProgressBar::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    painter.setBrush(TrackColor);
    painter.drawRoundedRect(QRectF(0, 0, width(), height()), Radius, Radius);

    const qreal fill = fillWidth();
    if (fill > 0) {
        painter.setBrush(FillColor);
        painter.drawRoundedRect(QRectF(0, 0, fill, height()), Radius, Radius);
    }
}

// In whole pixels. The integer differences are taken in double, where they cannot overflow. A value
// left outside the range by setRange() may ask for much more than the bar: all of that is clipped,
// so a bar's length beyond the edge shows the same.
qreal ProgressBar::fillWidth() const
{
    if (maximum == minimum)
        return 0;
    const double span = double(maximum) - double(minimum);
    const double done = double(value) - double(minimum);
    return qMin(std::trunc(done / span * width()), 2.0 * width() + 2.0 * Radius);
}
