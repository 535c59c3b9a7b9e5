#ifndef TRAIL_H
#define TRAIL_H

#include <QByteArray>

/// What the monkey did last, reported when it crashes or hangs, and the warnings that Qt gave.
namespace Trail {

/// From here on crashes, sanitizer reports, hangs and warnings are reported with the seed.
void start(quint64 seed);
/// An event begins; it has a minute. @p loop is 1 in the outermost event loop.
void begin(qint64 number, int loop);
/// What is about to be done.
void note(const QByteArray &what);
/// Nothing more comes: the clock of the last event stops.
void end();
/// How many unexpected warnings came.
int warnings();

} // namespace Trail

#endif // TRAIL_H
