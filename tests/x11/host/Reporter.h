#ifndef REPORTER_H
#define REPORTER_H

#include <QJsonObject>
#include <QObject>
#include <QPoint>

/// The host's end of the talk with the driver: a line of JSON on stdout for whatever happens, and
/// one with all that is on the screen for each "report" line on stdin. The end of stdin quits.
class Reporter : public QObject
{
    Q_OBJECT

public:
    explicit Reporter(QObject *parent = nullptr);

    /// Tells the driver that @p name happened.
    static void tell(const QString &name, QJsonObject details = QJsonObject());

    /// Keeps count of what the mouse did, so that the driver knows what has arrived.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void readCommands();
    void report() const;

    QByteArray commands;
    QPoint pointer;
    int releases = 0;
};

#endif // REPORTER_H
