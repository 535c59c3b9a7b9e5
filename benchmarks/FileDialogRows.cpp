#include "Browser.h"
#include "EventLoop.h"
#include "Row.h"
#include "TestFolder.h"

#include <QLocale>

#include <malloc.h>

namespace {

QString number(int value)
{
    return QLocale(QLocale::English).toString(value);
}

double heapInUse() // KiB
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / 1024;
}

class Open : public Task
{
public:
    Open(Side side, int size, TestFolder::Kind kind, Measure measure)
        : side(side)
        , size(size)
        , folder(TestFolder::path(size, kind))
        , measure(measure)
    {}

    void prepare() override
    {
        browser.reset();
        EventLoop::settle();
    }

    void work() override
    {
        const double heapBefore = heapInUse();
        StallMeter stalls;
        browser = Browser::open(side, folder);
        browser->waitForRows(folder, size);
        result = measure == Measure::Stall ? stalls.longest() : heapInUse() - heapBefore;
    }

    double figure() const override { return result; }

private:
    Side side;
    int size;
    QString folder;
    Measure measure;
    std::unique_ptr<Browser> browser;
    double result = 0;
};

class Opened : public Task
{
public:
    Opened(Side side, int size, TestFolder::Kind kind)
        : size(size)
        , folder(TestFolder::path(size, kind))
        , browser(Browser::open(side, folder))
    {
        browser->waitForRows(folder, size);
    }

protected:
    int size;
    QString folder;
    std::unique_ptr<Browser> browser;
};

class SelectFilter : public Opened
{
public:
    SelectFilter(Side side, int size, Browser::Filter filter)
        : Opened(side, size, TestFolder::FilesOnly)
        , filter(filter)
    {}

    void prepare() override { choose(filter == Browser::All ? Browser::Five : Browser::All); }
    void work() override { choose(filter); }

private:
    int accepted(Browser::Filter filter) const
    {
        switch (filter) {
        case Browser::One:
            return TestFolder::acceptedByOne(size);
        case Browser::Five:
            return TestFolder::acceptedByFive(size);
        case Browser::All:
            break;
        }
        return size;
    }

    void choose(Browser::Filter filter)
    {
        browser->selectFilter(filter);
        browser->waitForRows(folder, accepted(filter));
    }

    Browser::Filter filter;
};

class EnterSmall : public Opened
{
public:
    EnterSmall(Side side, int size)
        : Opened(side, size, TestFolder::WithSmallFolder)
        , smallFolder(folder + QLatin1Char('/') + TestFolder::smallFolder())
    {}

    void work() override
    {
        browser->enter(smallFolder);
        browser->waitForRows(smallFolder, TestFolder::SmallSize);
    }

private:
    QString smallFolder;
};

class GoBack : public EnterSmall
{
public:
    using EnterSmall::EnterSmall;

    void prepare() override { EnterSmall::work(); }

    void work() override
    {
        browser->goBack();
        browser->waitForRows(folder, size);
    }
};

class NewFile : public Opened
{
public:
    NewFile(Side side, int size)
        : Opened(side, size, TestFolder::FilesOnly)
    {}

    ~NewFile() override { TestFolder::removeFile(folder); }

    void prepare() override
    {
        TestFolder::removeFile(folder);
        browser->waitForRows(folder, size);
    }

    void work() override
    {
        TestFolder::addFile(folder);
        browser->waitForRows(folder, size + 1);
    }
};

int pairsFor(int size)
{
    if (size >= 100'000)
        return 3;
    return size >= 10'000 ? 9 : 21;
}

Row row(const QString &name, const QString &title, int size, double goal)
{
    Row row;
    row.name = name;
    row.title = title.arg(number(size));
    row.size = size;
    row.goal = goal;
    row.pairs = pairsFor(size);
    return row;
}

void addOpenRows(Rows &rows)
{
    struct Goal
    {
        int size;
        double open;
        double stall;
        double heap;
        double calls;
    };
    constexpr Goal Goals[] = {
        { 10, 0.5, 0, 0.9, 0 },       { 100, 0, 0, 0, 0 },         { 1'000, 0.6, 0, 0, 0 },
        { 10'000, 0.4, 0.4, 0.9, 2 }, { 100'000, 0.6, 0.4, 0, 0 }, { 200'000, 0, 0, 0, 0 },
    };
    struct Variant
    {
        const char *series;
        const char *title;
        Measure measure;
        TestFolder::Kind kind;
        double Goal::*goal;
    };
    constexpr Variant Variants[] = {
        { "open-files", "Open a folder of %1 files", Measure::Time, TestFolder::FilesOnly,
          &Goal::open },
        { "open-mixed", "Open a folder of %1 entries, a tenth of them folders", Measure::Time,
          TestFolder::WithFolders, &Goal::open },
        { "stall-files", "Longest stall of the event loop meanwhile, %1 files", Measure::Stall,
          TestFolder::FilesOnly, &Goal::stall },
        { "stall-mixed", "Longest stall of the event loop meanwhile, %1 entries", Measure::Stall,
          TestFolder::WithFolders, &Goal::stall },
        { "heap", "Heap of the open dialog, %1 files", Measure::Heap, TestFolder::FilesOnly,
          &Goal::heap },
        { "stat-calls", "Stat calls while opening %1 files, for each of them", Measure::Calls,
          TestFolder::FilesOnly, &Goal::calls },
    };
    for (const Variant &variant : Variants) {
        for (const Goal &goal : Goals) {
            const QString series = QLatin1String(variant.series);
            Row added = row(QStringLiteral("%1-%2").arg(series).arg(goal.size),
                            QLatin1String(variant.title), goal.size, goal.*variant.goal);
            added.measure = variant.measure;
            added.series = series;
            added.make = makerOf<Open>(goal.size, variant.kind, variant.measure);
            rows.push_back(added);
        }
    }
}

} // namespace

Rows fileDialogRows()
{
    Rows rows;
    addOpenRows(rows);

    struct Action
    {
        const char *series;
        const char *title;
        double goal;
        std::function<std::function<std::unique_ptr<Task>(Side)>(int size)> maker;
    };
    const Action actions[] = {
        { "filter-one", "Filter to one pattern, %1 files", 0.5,
          [](int size) { return makerOf<SelectFilter>(size, Browser::One); } },
        { "filter-five", "Filter to five patterns, %1 files", 0.2,
          [](int size) { return makerOf<SelectFilter>(size, Browser::Five); } },
        { "filter-all", "Filter from five patterns back to all, %1 files", 0.4,
          [](int size) { return makerOf<SelectFilter>(size, Browser::All); } },
        { "enter-small", "First visit of a folder of 10 from one of %1 entries", 0.4,
          [](int size) { return makerOf<EnterSmall>(size); } },
        { "go-back", "Back to the folder of %1 entries", 0.05,
          [](int size) { return makerOf<GoBack>(size); } },
        { "new-file", "A new file appears in a folder of %1 files", 0.6,
          [](int size) { return makerOf<NewFile>(size); } },
    };
    constexpr int SizeWithGoal = 10'000;
    for (const Action &action : actions) {
        for (const int size : { 10, 100, 1'000, 10'000, 100'000, 200'000 }) {
            const QString series = QLatin1String(action.series);
            Row added =
                    row(QStringLiteral("%1-%2").arg(series).arg(size), QLatin1String(action.title),
                        size, size == SizeWithGoal ? action.goal : 0);
            added.series = series;
            added.make = action.maker(size);
            rows.push_back(added);
        }
    }
    return rows;
}
