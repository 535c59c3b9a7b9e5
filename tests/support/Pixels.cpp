#include "Pixels.h"

#include <QWidget>

QImage Pixels::rendered(QWidget *widget)
{
    QImage image(widget->size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QString Pixels::name(const QImage &image, int x, int y)
{
    return image.valid(x, y) ? name(image.pixelColor(x, y)) : QStringLiteral("outside");
}

QString Pixels::name(const QColor &color)
{
    return color.name(QColor::HexArgb);
}
