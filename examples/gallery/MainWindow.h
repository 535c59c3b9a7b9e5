#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include <QZelBaseWindows.h>

class Appearance;
class GalleryPage;
class QListWidget;
class QStackedWidget;
class SignalLog;
class TitleStrip;

/// The gallery's window: a list of pages, the chosen page, and the log of signals below.
class MainWindow : public QZelBaseWindows
{
    Q_OBJECT

public:
    explicit MainWindow(Appearance *appearance, QWidget *parent = nullptr);

    SignalLog *log() const { return signalLog; }
    GalleryPage *currentPage() const;

private:
    void createContent();
    void connectStrip();
    void rebuildPages();
    void addPage(GalleryPage *page);
    void toggleMaximized();
    void switchStyle();
    void switchLanguage();

    Appearance *appearance = nullptr;
    TitleStrip *strip = nullptr;
    QListWidget *navigation = nullptr;
    QStackedWidget *pages = nullptr;
    SignalLog *signalLog = nullptr;
};

#endif // MAINWINDOW_H
