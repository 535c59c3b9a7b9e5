#ifndef CONTRAST_H
#define CONTRAST_H

#include <QImage>
#include <QRect>
#include <QString>
#include <QVector>

class QWidget;

namespace Contrast {

/// A text and the ratio between its rendered colour and its ground's, from 1 to 21.
struct Text
{
    QString name;
    double ratio;
};

/// Contrast ratio of two opaque colours, as WCAG 2.1 defines it ("contrast ratio" and "relative
/// luminance").
double ratio(const QColor &a, const QColor &b);

/// The ratio in a part of a picture that holds one line of text: its ground is the most frequent
/// colour, its text the colour that stands out most. 1 when there is nothing but ground.
double ofText(const QImage &picture, const QRect &area);

/// Every text that is visible in a shown window, as it is rendered.
QVector<Text> ofWindow(QWidget *window);

} // namespace Contrast

#endif // CONTRAST_H
