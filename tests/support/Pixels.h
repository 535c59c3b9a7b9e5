#ifndef PIXELS_H
#define PIXELS_H

#include <QColor>
#include <QImage>
#include <QTest>

class QWidget;

namespace Pixels {

/// What the widget paints, on a transparent ground. The widget need not have been shown.
QImage rendered(QWidget *widget);

/// "#aarrggbb" of a pixel, "outside" beyond the image: readable in a failed comparison.
QString name(const QImage &image, int x, int y);
QString name(const QColor &color);

} // namespace Pixels

#define COMPARE_PIXEL(image, x, y, color) \
    QCOMPARE(Pixels::name(image, x, y), Pixels::name(QColor(color)))

#endif // PIXELS_H
