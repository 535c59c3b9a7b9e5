#ifndef SIGNALLOG_H
#define SIGNALLOG_H

#include <QTreeWidget>

/// The list of every signal that the library's classes emitted and every result that they returned.
class SignalLog : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget *parent = nullptr);

    void retranslate();

    /// Adds a line with the present time: which class, which signal or call, what came of it.
    void add(const QString &source, const QString &what, const QString &value);

    /// The value of the newest line about @p what, for the tour.
    QString newest(const QString &what) const;
};

#endif // SIGNALLOG_H
