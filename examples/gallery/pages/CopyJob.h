#ifndef COPYJOB_H
#define COPYJOB_H

#include <QFile>
#include <QTimer>

/// Copies a file bit by bit whenever the event loop has nothing else to do, so that the windows
/// stay alive without a thread.
class CopyJob : public QObject
{
    Q_OBJECT

public:
    CopyJob(const QString &source, const QString &target, QObject *parent);

    /// Starts; returns false when one of the files cannot be opened.
    bool start();

Q_SIGNALS:
    /// How much has been copied, in thousandths.
    void progressed(int thousandths);

    void finished(bool complete);

private:
    void copyChunk();
    void finish(bool complete);

    QFile source;
    QFile target;
    QTimer timer;
};

#endif // COPYJOB_H
