#include "TestMain.h"

#include <QMutex>
#include <QRegularExpression>

#include <list>

namespace {

// Warnings can come from the file-system model's thread.
struct Expected
{
    QMutex mutex;
    std::list<WarningGuard *> guards;
};

Expected &expected()
{
    static Expected instance;
    return instance;
}

QtMessageHandler qtTestHandler = nullptr;

// The offscreen platform's own.
bool isHarmless(const QString &message)
{
    return message.startsWith(QLatin1String("This plugin does not support "));
}

} // namespace

struct WarningGuardAccess
{
    static bool isExpected(const QString &message)
    {
        const QMutexLocker lock(&expected().mutex);
        for (WarningGuard *guard : expected().guards) {
            if (QRegularExpression(guard->pattern).match(message).hasMatch()) {
                ++guard->passed;
                return true;
            }
        }
        return false;
    }

    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        const bool bad = type == QtWarningMsg || type == QtCriticalMsg;
        if (bad && (isHarmless(message) || isExpected(message)))
            return;
        if (qtTestHandler)
            qtTestHandler(type, context, message);
        if (bad)
            QTest::qFail(qPrintable(QStringLiteral("unexpected warning: ") + message), __FILE__,
                         __LINE__);
    }
};

WarningGuard::WarningGuard(const QString &pattern)
    : pattern(pattern)
{
    const QMutexLocker lock(&expected().mutex);
    expected().guards.push_back(this);
}

WarningGuard::~WarningGuard()
{
    const QMutexLocker lock(&expected().mutex);
    expected().guards.remove(this);
}

void TestCase::initTestCase()
{
    qtTestHandler = qInstallMessageHandler(&WarningGuardAccess::handle);
}

void TestCase::cleanup()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows)
        QVERIFY2(!window->isVisible(), window->metaObject()->className());
}
