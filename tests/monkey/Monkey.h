#ifndef MONKEY_H
#define MONKEY_H

#include "Menagerie.h"
#include "Mischief.h"
#include "Paws.h"
#include "Windows.h"

#include <QElapsedTimer>
#include <QObject>

/// Does one random thing each time the event loop comes round, also in the loops of modal windows
/// that this opens, until it has done its number of things.
class Monkey : public QObject
{
    Q_OBJECT

public:
    struct Limits
    {
        qint64 events;
        quint64 seed;
        qint64 seconds;
    };

    explicit Monkey(const Limits &limits);

    void start();

Q_SIGNALS:
    /// The run is over; without a text it went well.
    void finished(const QString &failure);

private:
    void step();
    void act(Dice &dice);
    void finish();
    QString judge() const;
    void summarize() const;

    const Limits limits;
    Windows windows;
    Menagerie menagerie;
    Mischief mischief;
    Paws paws;
    QElapsedTimer clock;
    qint64 number = 0;
    qint64 tooDeep = 0; // events in a row
    int depth = 0;
    int deepest = 0;
    int loops = 0;
    bool hasNested = false; // a loop inside the running event is known already
};

#endif // MONKEY_H
