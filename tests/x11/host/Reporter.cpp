#include "Reporter.h"

#include "WidgetState.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMouseEvent>
#include <QSocketNotifier>
#include <QWidget>

#include <cstdio>
#include <unistd.h>

namespace {

void writeLine(const QJsonObject &object)
{
    const QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
    std::fflush(stdout);
}

// Platforms without window manager say the first at each window, the vnc platform tells its port,
// and xcb asks where a window is that has just been destroyed.
bool isPlatformsOwn(const QString &message)
{
    return message == QLatin1String("This plugin does not support propagateSizeHints()")
           || message.startsWith(QLatin1String("QVncServer created on port"))
           || (message.startsWith(QLatin1String("QXcbConnection: XCB error: 3 (BadWindow)"))
               && message.contains(QLatin1String("TranslateCoords")));
}

void passOnWarnings(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (isPlatformsOwn(message))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(message));
    if (type == QtWarningMsg || type == QtCriticalMsg)
        Reporter::tell(QStringLiteral("warning"), { { QStringLiteral("text"), message } });
}

} // namespace

Reporter::Reporter(QObject *parent)
    : QObject(parent)
{
    qInstallMessageHandler(passOnWarnings);
    qApp->installEventFilter(this);
    auto *input = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this);
    connect(input, &QSocketNotifier::activated, this, &Reporter::readCommands);
}

void Reporter::tell(const QString &name, QJsonObject details)
{
    details.insert(QStringLiteral("event"), name);
    writeLine(details);
}

bool Reporter::eventFilter(QObject *watched, QEvent *event)
{
    if (watched->isWindowType()) {
        if (event->type() == QEvent::MouseMove)
            pointer = static_cast<QMouseEvent *>(event)->globalPos();
        else if (event->type() == QEvent::MouseButtonRelease)
            ++releases;
    }
    return QObject::eventFilter(watched, event);
}

void Reporter::readCommands()
{
    char bytes[256];
    const ssize_t count = ::read(STDIN_FILENO, bytes, sizeof bytes);
    if (count <= 0) {
        // A modal dialog's loop ends with the application too.
        QApplication::quit();
        return;
    }
    commands.append(bytes, static_cast<int>(count));
    for (int end = commands.indexOf('\n'); end >= 0; end = commands.indexOf('\n')) {
        if (commands.left(end) == "report")
            report();
        commands.remove(0, end + 1);
    }
}

void Reporter::report() const
{
    QJsonArray windows;
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (const QWidget *window : topLevels) {
        if (window->isVisible() && window->windowHandle())
            windows.append(WidgetState::ofWindow(window));
    }
    writeLine({ { QStringLiteral("windows"), windows },
                { QStringLiteral("pointer"), QJsonArray { pointer.x(), pointer.y() } },
                { QStringLiteral("releases"), releases } });
}
