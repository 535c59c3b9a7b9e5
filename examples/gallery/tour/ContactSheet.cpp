#include "ContactSheet.h"

#include <QFileInfo>
#include <QImage>
#include <QPainter>

namespace {

constexpr int Columns = 6;
constexpr QSize Thumbnail(260, 170);
constexpr int Gap = 14;
constexpr int CaptionHeight = 22;
constexpr QRgb Ground = 0xff3b4046;

} // namespace

bool ContactSheet::write(const QString &file, const QStringList &pictures)
{
    const int rows = (pictures.size() + Columns - 1) / Columns;
    const QSize cell(Thumbnail.width() + Gap, Thumbnail.height() + CaptionHeight + Gap);
    QImage sheet(Columns * cell.width() + Gap, rows * cell.height() + Gap, QImage::Format_RGB32);
    sheet.fill(Ground);
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    for (int i = 0; i < pictures.size(); ++i) {
        const QPoint corner(Gap + i % Columns * cell.width(), Gap + i / Columns * cell.height());
        QImage picture(pictures.at(i));
        if (picture.width() > Thumbnail.width() || picture.height() > Thumbnail.height())
            picture = picture.scaled(Thumbnail, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QRect place = picture.rect();
        place.moveCenter(QRect(corner, Thumbnail).center());
        painter.drawImage(place, picture);
        painter.drawText(QRect(corner + QPoint(0, Thumbnail.height()),
                               QSize(Thumbnail.width(), CaptionHeight)),
                         Qt::AlignCenter, QFileInfo(pictures.at(i)).completeBaseName());
    }
    painter.end();
    return sheet.save(file);
}
