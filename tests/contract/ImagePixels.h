#ifndef IMAGEPIXELS_H
#define IMAGEPIXELS_H

// The pixels of the library's images, as the tests of the collection ask for them.

#include <QImage>
#include <QPoint>
#include <QString>
#include <QVector>

inline QString pathOf(const char *name)
{
    return QStringLiteral(":/image/%1.png").arg(QLatin1String(name));
}

inline QImage load(const char *name)
{
    return QImage(pathOf(name)).convertToFormat(QImage::Format_ARGB32);
}

inline int alpha(const QImage &image, const QPoint &point)
{
    return qAlpha(image.pixel(point));
}

template <typename Condition>
QVector<QPoint> pixelsWhere(const QImage &image, Condition condition)
{
    QVector<QPoint> found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (condition(QPoint(x, y)))
                found.append(QPoint(x, y));
        }
    }
    return found;
}

inline int opaqueCount(const QImage &image)
{
    const auto opaque = [&image](const QPoint &point) { return alpha(image, point) == 255; };
    return pixelsWhere(image, opaque).size();
}

#endif // IMAGEPIXELS_H
