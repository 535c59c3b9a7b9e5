#ifndef FILEMANAGERPAGE_H
#define FILEMANAGERPAGE_H

#include "GalleryPage.h"

class QLabel;

/// Shows QZelFileManagerWidget over the FTP folder of the device.
class FileManagerPage : public GalleryPage
{
    Q_OBJECT

public:
    FileManagerPage(SignalLog *log, QWidget *parent);

private:
    void openManager();
    void addSamples();
    void removeSamples();
    void showContents();

    QLabel *contents = nullptr;
};

#endif // FILEMANAGERPAGE_H
