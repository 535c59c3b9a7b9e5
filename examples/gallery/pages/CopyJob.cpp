#include "CopyJob.h"

namespace {

constexpr qint64 ChunkSize = 64LL * 1024;
constexpr int Thousand = 1000;

} // namespace

CopyJob::CopyJob(const QString &sourcePath, const QString &targetPath, QObject *parent)
    : QObject(parent)
    , source(sourcePath)
    , target(targetPath)
{
    connect(&timer, &QTimer::timeout, this, &CopyJob::copyChunk);
}

bool CopyJob::start()
{
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly))
        return false;
    timer.start(0);
    return true;
}

void CopyJob::copyChunk()
{
    const QByteArray chunk = source.read(ChunkSize);
    if (chunk.isEmpty())
        finish(source.atEnd());
    else if (target.write(chunk) != chunk.size())
        finish(false);
    else
        Q_EMIT progressed(int(source.pos() * Thousand / source.size()));
}

void CopyJob::finish(bool complete)
{
    timer.stop();
    target.close();
    Q_EMIT finished(complete);
}
