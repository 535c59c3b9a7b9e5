#include "Tour.h"

#include "ContactSheet.h"
#include "Families.h"
#include "MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QTextStream>
#include <QThread>

#include <memory>

namespace {

constexpr QPoint GalleryPosition(60, 40);

} // namespace

Tour::Tour(MainWindow *gallery, const QString &folder)
    : gallery(gallery)
    , folder(folder)
    , stage(gallery, folder)
{}

int Tour::run()
{
    QTextStream out(stdout);
    if (!QDir().mkpath(folder)) {
        out << "FAIL the folder " << folder << " cannot be made\n";
        return 1;
    }
    // Blinking cursors would make the pictures differ from run to run.
    QApplication::setCursorFlashTime(0);
    QApplication::setQuitOnLastWindowClosed(false);
    gallery->move(GalleryPosition);
    gallery->show();

    const std::unique_ptr<QThread> script(QThread::create([this] { play(); }));
    QObject::connect(script.get(), &QThread::finished, qApp, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    script->start();
    QApplication::exec();
    script->wait();
    gallery->close();

    const QString sheet = QDir(folder).filePath(QStringLiteral("contact-sheet.png"));
    const bool sheetWritten = ContactSheet::write(sheet, stage.pictures());
    out << (stage.failures() == 0 && sheetWritten ? "ok   " : "FAIL ") << stage.pictures().size()
        << " pictures, " << stage.failures() << " failed steps\n";
    return stage.failures() == 0 && sheetWritten ? 0 : 1;
}

void Tour::play()
{
    void (*const families[])(Stage &) = { Families::frame,        Families::messageBox,
                                          Families::inputDialogs, Families::fileDialog,
                                          Families::fileMenu,     Families::fileManager,
                                          Families::progress,     Families::smallWidgets };
    for (const auto family : families) {
        family(stage);
        stage.clear();
    }
}
