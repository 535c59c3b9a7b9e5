// Copies a file under a waiting dialog. The copy goes in pieces from the event loop, so that the
// dialog keeps turning without a thread.

#include <QWaitingDialog>

#include <QApplication>
#include <QFile>
#include <QTextStream>
#include <QTimer>

namespace {

constexpr qint64 PieceSize = 256LL * 1024;

class Copy
{
public:
    Copy(const QString &from, const QString &to)
        : source(from)
        , target(to)
    {}

    bool open() { return source.open(QIODevice::ReadOnly) && target.open(QIODevice::WriteOnly); }

    // Returns whether there is more to copy.
    bool next()
    {
        const QByteArray piece = source.read(PieceSize);
        failed = target.write(piece) != piece.size();
        return !failed && !piece.isEmpty();
    }

    int percent() const { return source.size() ? int(100 * source.pos() / source.size()) : 100; }

    QFile source;
    QFile target;
    bool failed = false;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    app.setQuitOnLastWindowClosed(false);
    QTextStream out(stdout);
    if (app.arguments().size() != 3) {
        out << "usage: waiting-copy FROM TO\n";
        return 2;
    }

    Copy copy(app.arguments().at(1), app.arguments().at(2));
    if (!copy.open()) {
        out << "cannot open: " << copy.source.errorString() << " / " << copy.target.errorString()
            << "\n";
        return 1;
    }

    QWaitingDialog waiting(nullptr);
    waiting.setTipMessage(QStringLiteral("Copying %1").arg(copy.source.fileName()));
    waiting.setProgressBarRange(0, 100);
    waiting.setProgressBarValue(0);
    waiting.showWaitingDialog();

    QTimer pieces; // fires whenever nothing else is to do
    QObject::connect(&pieces, &QTimer::timeout, &waiting, [&] {
        const bool more = copy.next();
        waiting.setProgressBarValue(copy.percent());
        if (more)
            return;
        waiting.hideWaitingDialog();
        app.exit(copy.failed ? 1 : 0);
    });
    pieces.start(0);
    return app.exec();
}
