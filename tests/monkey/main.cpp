// A seeded random run over every window of the library. It deletes what it meets: run it with
// "./dev monkey", which makes the machine read-only for it.

#include "Monkey.h"
#include "Trail.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

#include <unistd.h>

namespace {

enum ExitCode { Success = 0, Failure = 1, WrongUse = 2 };

int complain(const QString &text)
{
    QTextStream(stderr) << "monkey: " << text << '\n';
    return WrongUse;
}

// Without a limit of time it is ten minutes, or more for a long run.
bool readLimits(const QCommandLineParser &parser, Monkey::Limits *limits)
{
    bool hasEvents = false;
    bool hasSeed = false;
    bool hasSeconds = true;
    limits->events = parser.value(QStringLiteral("events")).toLongLong(&hasEvents);
    limits->seed = parser.value(QStringLiteral("seed")).toULongLong(&hasSeed);
    limits->seconds = qMax(qint64(600), limits->events / 100);
    if (parser.isSet(QStringLiteral("seconds")))
        limits->seconds = parser.value(QStringLiteral("seconds")).toLongLong(&hasSeconds);
    return hasEvents && hasSeed && hasSeconds && limits->events > 0 && limits->seconds > 0
           && parser.positionalArguments().isEmpty();
}

bool isWritable(const QString &folder)
{
    return access(QFile::encodeName(folder).constData(), W_OK) == 0;
}

// The private /root, and nothing else that could be written to.
bool isCaged()
{
    const QFileInfo program(QStringLiteral("/proc/self/exe"));
    return qEnvironmentVariableIsSet("QTARNKIT_CAGE")
           && QDir::currentPath() == QLatin1String("/root/monkey")
           && !isWritable(QStringLiteral("/")) && !isWritable(QStringLiteral("/tmp"))
           && !isWritable(QFileInfo(program.symLinkTarget()).path());
}

} // namespace

int main(int argc, char *argv[])
{
    if (!isCaged())
        return complain(QStringLiteral("not in its cage: run ./dev monkey"));

    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser parser;
    const QString number = QStringLiteral("N");
    parser.addOption({ QStringLiteral("events"), QString(), number, QStringLiteral("20000") });
    parser.addOption({ QStringLiteral("seed"), QString(), number, QStringLiteral("1") });
    parser.addOption({ QStringLiteral("seconds"), QString(), number });
    if (!parser.parse(QApplication::arguments()))
        return complain(parser.errorText());
    Monkey::Limits limits = {};
    if (!readLimits(parser, &limits))
        return complain(QStringLiteral("usage: monkey [--events N] [--seed N] [--seconds N]"));

    Trail::start(limits.seed);
    Monkey monkey(limits);
    QObject::connect(&monkey, &Monkey::finished, &app, [&](const QString &failure) {
        if (!failure.isEmpty())
            QTextStream(stderr) << "monkey: seed " << limits.seed << ": " << failure << '\n';
        QApplication::exit(failure.isEmpty() ? Success : Failure);
    });
    monkey.start();
    return QApplication::exec();
}
