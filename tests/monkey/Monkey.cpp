#include "Monkey.h"

#include "Trail.h"

#include <QTextStream>
#include <QTimer>

#include <cstdlib>

namespace {

constexpr int DeepestLoop = 6;
constexpr int MostTooDeep = 1000; // each of them closes a window
constexpr qint64 EnoughForEveryClass = 10000; // events

constexpr const char *Classes[] = {
    "ClientUnlockWidget",
    "CustomProgressBar",
    "ProgressBar",
    "QTarnKit::QUIMessageBox",
    "QWaitingDialog",
    "QTarnKit::QZelIntSpinBox",
    "QTitleBar",
    "QZelBaseWindows",
    "QZelDialog",
    "QZelEncDialog",
    "QZelFileDialog",
    "QZelFileManagerWidget",
    "QZelFolderNameDialog",
    "QZelPwdInputDialog",
};

} // namespace

Monkey::Monkey(const Limits &limits)
    : limits(limits)
    , paws(windows)
{}

void Monkey::start()
{
    clock.start();
    QTimer::singleShot(0, this, &Monkey::step);
}

void Monkey::step()
{
    const bool isOver = number >= limits.events || clock.hasExpired(limits.seconds * 1000);
    // What is modal has been closed and its loops have returned: only now may this end.
    if (isOver && depth == 0)
        return finish();
    // Armed before anything else, as that may run an event loop of its own.
    QTimer::singleShot(0, this, &Monkey::step);

    loops += depth > 0 && !hasNested;
    hasNested = false;
    ++depth;
    deepest = qMax(deepest, depth);
    Trail::begin(isOver ? number : ++number, depth);
    tooDeep = isOver || depth > DeepestLoop ? tooDeep + 1 : 0;
    if (tooDeep > MostTooDeep) {
        Trail::note("event loops pile up");
        std::abort();
    }
    if (tooDeep > 0) {
        if (!Paws::closeTop())
            menagerie.endRunning();
    } else {
        Dice dice(limits.seed, quint64(number));
        act(dice);
    }
    --depth;
    hasNested = true;
}

void Monkey::act(Dice &dice)
{
    const int what = dice.roll(100);
    if (what < 50)
        paws.useMouse(dice);
    else if (what < 70)
        paws.useKeys(dice);
    else if (what < 77)
        paws.handleWindow(dice);
    else if (what < 80)
        paws.fireTimer(dice);
    else if (what < 86)
        mischief.play(dice);
    else if (what < 91)
        menagerie.operate(dice);
    else if (what < 93)
        menagerie.destroy(dice);
    else if (what < 98)
        menagerie.open(dice);
    else if (!Paws::closeTop())
        menagerie.endRunning();
}

void Monkey::finish()
{
    menagerie.destroyAll();
    Trail::end();
    summarize();
    Q_EMIT finished(judge());
}

// A run that no longer reaches what it is for must not pass.
QString Monkey::judge() const
{
    if (Trail::warnings() > 0)
        return QStringLiteral("unexpected warnings");
    if (number < limits.events)
        return QStringLiteral("out of time");
    if (number < EnoughForEveryClass)
        return QString();
    for (const char *name : Classes) {
        if (!windows.shown().contains(name))
            return QLatin1String(name) + QStringLiteral(" was never shown");
    }
    if (loops == 0 || menagerie.destroyedUnderLoop() == 0)
        return QStringLiteral("nothing was destroyed under a modal loop");
    return QString();
}

void Monkey::summarize() const
{
    QTextStream out(stdout);
    out << "monkey: seed " << limits.seed << ", " << number << " events, " << menagerie.opened()
        << " windows opened, " << loops << " nested loops (" << deepest - 1 << " deep), "
        << menagerie.destroyedUnderLoop() << " dialogs destroyed in theirs, " << mischief.made()
        << " files and folders made, " << mischief.deleted() << " deleted, " << Trail::warnings()
        << " warnings, " << clock.elapsed() / 1000 << " s\n  shown:";
    for (const char *name : Classes)
        out << ' ' << name << ' ' << windows.shown().value(name);
    out << '\n';
}
