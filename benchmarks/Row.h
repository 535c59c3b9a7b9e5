#ifndef ROW_H
#define ROW_H

#include <QString>

#include <functional>
#include <memory>
#include <vector>

/// Which of a row's two programs is measured: the library's or Qt's own.
enum class Side { Ours, Stock };

/**
 * One side of a row, ready to do its work as often as it is asked. The constructor sets up what the
 * work needs (an open dialog, a folder), the destructor takes it away; neither is measured.
 */
class Task
{
public:
    Task() = default;
    Task(const Task &) = delete;
    Task &operator=(const Task &) = delete;
    virtual ~Task() = default;

    /// Undoes the last work, unmeasured, so that the next one does the same again.
    virtual void prepare() {}

    /// The work that is measured.
    virtual void work() = 0;

    /// What the last work came to, in rows that measure something else than its duration.
    virtual double figure() const { return 0; }
};

/// What a row measures.
enum class Measure {
    Time, ///< milliseconds of one work
    Stall, ///< milliseconds: the longest time the event loop did not turn during one work
    Heap, ///< KiB that one work leaves allocated
    Calls ///< system calls; counted from outside the process
};

struct Row
{
    QString name;
    QString title;
    Measure measure = Measure::Time;
    double goal = 0; ///< ours to stock; calls for one unit of size; 0 for rows without a goal
    int pairs = 9; ///< of measurements, enough to be stable
    int inner = 1; ///< works in one measurement, so that it takes some milliseconds
    int counted = 0; ///< works to count instructions over; 0 where the duration is what matters
    QString series; ///< of the growth plot
    int size = 0; ///< entries in the folder
    std::function<std::unique_ptr<Task>(Side)> make;
};

using Rows = std::vector<Row>;

Rows fileDialogRows();
Rows viewRows();
Rows windowRows();
Rows paintRows();

/// A row's maker for a task class whose constructor takes the side and then @p arguments.
template <class T, class... Arguments>
std::function<std::unique_ptr<Task>(Side)> makerOf(Arguments... arguments)
{
    return [=](Side side) { return std::make_unique<T>(side, arguments...); };
}

#endif // ROW_H
