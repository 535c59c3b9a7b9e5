#ifndef DICE_H
#define DICE_H

#include <QtGlobal>

#include <initializer_list>

/// The numbers of one event. They depend on the seed and the event's number alone, so that a run
/// does not drift when a thread or a timer was faster than the last time.
class Dice
{
public:
    Dice(quint64 seed, quint64 event)
        : state(seed * Q_UINT64_C(0x9e3779b97f4a7c15) ^ event * Q_UINT64_C(0xbf58476d1ce4e5b9))
    {}

    /// From 0 to @p sides - 1; 0 for no sides.
    int roll(int sides) { return sides > 0 ? int(next() % quint64(sides)) : 0; }
    int between(int low, int high) { return low + roll(high - low + 1); }
    /// True once in @p times.
    bool once(int times) { return roll(times) == 0; }

    template <typename List>
    auto pick(const List &list) -> decltype(*list.begin())
    {
        return *(list.begin() + roll(int(list.size())));
    }
    template <typename T>
    T pick(std::initializer_list<T> list)
    {
        return *(list.begin() + roll(int(list.size())));
    }

private:
    // splitmix64
    quint64 next()
    {
        quint64 mixed = (state += Q_UINT64_C(0x9e3779b97f4a7c15));
        mixed = (mixed ^ (mixed >> 30)) * Q_UINT64_C(0xbf58476d1ce4e5b9);
        mixed = (mixed ^ (mixed >> 27)) * Q_UINT64_C(0x94d049bb133111eb);
        return mixed ^ (mixed >> 31);
    }

    quint64 state;
};

#endif // DICE_H
