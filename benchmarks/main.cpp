#include "EventLoop.h"
#include "Row.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFileIconProvider>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <ctime>

#ifdef HAS_CALLGRIND
#include <valgrind/callgrind.h>
#else
#define CALLGRIND_START_INSTRUMENTATION
#define CALLGRIND_STOP_INSTRUMENTATION
#define CALLGRIND_TOGGLE_COLLECT
#define RUNNING_ON_VALGRIND 0
#endif

namespace {

Rows allRows()
{
    Rows all;
    for (Rows (*rows)() : { fileDialogRows, viewRows, windowRows, paintRows }) {
        for (Row &row : rows())
            all.push_back(std::move(row));
    }
    return all;
}

void print(const QJsonObject &object)
{
    std::puts(QJsonDocument(object).toJson(QJsonDocument::Compact).constData());
}

QString unitOf(Measure measure)
{
    switch (measure) {
    case Measure::Time:
    case Measure::Stall:
        return QStringLiteral("ms");
    case Measure::Heap:
        return QStringLiteral("KiB");
    case Measure::Calls:
        break;
    }
    return QStringLiteral("calls");
}

int list(const Rows &rows)
{
    for (const Row &row : rows) {
        print({ { QStringLiteral("row"), row.name },
                { QStringLiteral("title"), row.title },
                { QStringLiteral("unit"), unitOf(row.measure) },
                { QStringLiteral("goal"), row.goal },
                { QStringLiteral("counted"), row.counted },
                { QStringLiteral("series"), row.series },
                { QStringLiteral("size"), row.size },
                { QStringLiteral("qt"), QLatin1String(qVersion()) } });
    }
    return 0;
}

// Icon theme, fonts and style are read once by a process: not the work of whoever comes first.
void warmUp()
{
    QFileIconProvider icons;
    icons.icon(QFileIconProvider::Folder).pixmap(16);
    icons.icon(QFileIconProvider::File).pixmap(16);
    QWidget window;
    window.show();
    EventLoop::settle();
}

// Of all threads of the process: a busy machine stretches the time on the wall, and less so this.
double cpuMilliseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

struct Sample
{
    double figure = 0; // in the row's unit
    double cpu = 0; // milliseconds
};

Sample measured(const Row &row, Side side)
{
    const std::unique_ptr<Task> task = row.make(side);
    qint64 total = 0;
    double cpu = 0;
    for (int i = 0; i < row.inner; ++i) {
        task->prepare();
        const double cpuBefore = cpuMilliseconds();
        QElapsedTimer timer;
        timer.start();
        task->work();
        total += timer.nsecsElapsed();
        cpu += cpuMilliseconds() - cpuBefore;
    }
    const double milliseconds = double(total) / 1e6 / row.inner;
    return { row.measure == Measure::Time ? milliseconds : task->figure(), cpu / row.inner };
}

// Pairs, so that what else the machine does hits both; the first pair only warms up. Each pair
// begins with the other side than the one before.
int measure(const Row &row, int pairs)
{
    QJsonArray figures[2];
    QJsonArray cpu[2];
    for (int i = 0; i <= pairs; ++i) {
        const Side first = i % 2 ? Side::Ours : Side::Stock;
        const Side second = i % 2 ? Side::Stock : Side::Ours;
        for (const Side side : { first, second }) {
            const Sample sample = measured(row, side);
            if (i == 0)
                continue;
            figures[int(side)].append(sample.figure);
            cpu[int(side)].append(sample.cpu);
        }
    }
    QJsonObject result = { { QStringLiteral("ours"), figures[int(Side::Ours)] },
                           { QStringLiteral("stock"), figures[int(Side::Stock)] } };
    if (row.measure == Measure::Time) {
        result[QLatin1String("ours cpu")] = cpu[int(Side::Ours)];
        result[QLatin1String("stock cpu")] = cpu[int(Side::Stock)];
    }
    print(result);
    return 0;
}

// One side alone, to be counted from outside. No repeat at all still sets up, for the difference.
int run(const Row &row, Side side, int repeats)
{
    QJsonArray samples;
    if (repeats == 0)
        row.make(side);
    for (int i = 0; i < repeats; ++i)
        samples.append(measured(row, side).figure);
    print({ { QStringLiteral("samples"), samples } });
    return 0;
}

// Only the works themselves are collected, after one that warms up.
int runUnderCallgrind(const Row &row, Side side, int repeats)
{
    const std::unique_ptr<Task> task = row.make(side);
    task->prepare();
    task->work();
    CALLGRIND_START_INSTRUMENTATION;
    for (int i = 0; i < repeats; ++i) {
        task->prepare();
        CALLGRIND_TOGGLE_COLLECT;
        task->work();
        CALLGRIND_TOGGLE_COLLECT;
    }
    CALLGRIND_STOP_INSTRUMENTATION;
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0); // a blink would count into whatever runs then

    QCommandLineParser parser;
    parser.setApplicationDescription(
            QStringLiteral("The library beside stock Qt. Run by ./dev bench."));
    parser.addHelpOption();
    const QCommandLineOption listOption(QStringLiteral("list"), QStringLiteral("Lists the rows."));
    const QCommandLineOption rowOption(QStringLiteral("row"), QStringLiteral("The row to run."),
                                       QStringLiteral("name"));
    const QCommandLineOption pairsOption(QStringLiteral("pairs"),
                                         QStringLiteral("Pairs of measurements."),
                                         QStringLiteral("number"));
    const QCommandLineOption sideOption(QStringLiteral("side"),
                                        QStringLiteral("Runs only this side: ours or stock."),
                                        QStringLiteral("side"));
    const QCommandLineOption repeatOption(QStringLiteral("repeat"),
                                          QStringLiteral("How often the one side runs."),
                                          QStringLiteral("number"), QStringLiteral("1"));
    parser.addOptions({ listOption, rowOption, pairsOption, sideOption, repeatOption });
    parser.process(application);

    const Rows rows = allRows();
    if (parser.isSet(listOption))
        return list(rows);
    const QString name = parser.value(rowOption);
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&name](const Row &row) { return row.name == name; });
    if (row == rows.end())
        parser.showHelp(1);
    warmUp();
    if (!parser.isSet(sideOption)) {
        const QString pairs = parser.value(pairsOption);
        return measure(*row, pairs.isEmpty() ? row->pairs : pairs.toInt());
    }
    const Side side = parser.value(sideOption) == QLatin1String("ours") ? Side::Ours : Side::Stock;
    const int repeats = parser.value(repeatOption).toInt();
    return RUNNING_ON_VALGRIND ? runUnderCallgrind(*row, side, repeats) : run(*row, side, repeats);
}
