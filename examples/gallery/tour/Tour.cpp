#include "Tour.h"

#include "ContactSheet.h"
#include "Families.h"
#include "MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QTextStream>
#include <QThread>

#include <atomic>
#include <memory>

namespace {

constexpr QPoint GalleryPosition(60, 40);

QtMessageHandler nextHandler = nullptr;
std::atomic_int warnings { 0 };

// Counts Qt's warnings. The headless platform's own, about what it cannot do, say nothing about
// the windows.
void countWarning(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.startsWith(QLatin1String("This plugin does not support")))
        return;
    if (type == QtWarningMsg || type == QtCriticalMsg)
        ++warnings;
    nextHandler(type, context, message);
}

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
    QDir earlier(folder);
    const QStringList old = earlier.entryList({ QStringLiteral("[0-9]*-*.png") });
    for (const QString &picture : old)
        earlier.remove(picture);

    nextHandler = qInstallMessageHandler(countWarning);
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
    const bool fine =
            ContactSheet::write(sheet, stage.pictures()) && stage.failures() == 0 && warnings == 0;
    out << (fine ? "ok   " : "FAIL ") << stage.pictures().size() << " pictures, "
        << stage.failures() << " failed steps, " << warnings << " warnings\n";
    return fine ? 0 : 1;
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
