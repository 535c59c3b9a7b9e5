#ifndef IMAGESPAGE_H
#define IMAGESPAGE_H

#include "GalleryPage.h"

/// Shows the images that the library brings, on light and on dark ground.
class ImagesPage : public GalleryPage
{
    Q_OBJECT

public:
    ImagesPage(SignalLog *log, QWidget *parent);

private:
    QWidget *createRow(const QString &path);
};

#endif // IMAGESPAGE_H
