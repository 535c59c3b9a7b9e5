#ifndef TESTMAIN_H
#define TESTMAIN_H

#include <QApplication>
#include <QObject>
#include <QTest>

/// Fails the running test on every Qt warning that the test does not expect. TestCase installs
/// it; a test that provokes a warning announces it first.
class WarningGuard
{
public:
    /// Lets warnings that match @p pattern, a regular expression, pass while this object lives.
    explicit WarningGuard(const QString &pattern);
    ~WarningGuard();
    Q_DISABLE_COPY(WarningGuard)

    /// How many such warnings came.
    int count() const { return passed; }

private:
    friend struct WarningGuardAccess;
    QString pattern;
    int passed = 0;
};

/// Base of every test class. Qt Test replaces the message handler when it starts, so the guard goes
/// on top in initTestCase(): a class that needs its own set-up for all tests has a constructor.
class TestCase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    /// A test leaves no window open behind it.
    void cleanup();
};

#define QTARNKIT_TEST_MAIN(TestClass) \
    int main(int argc, char *argv[]) \
    { \
        QApplication app(argc, argv); \
        TestClass test; \
        return QTest::qExec(&test, argc, argv); \
    }

#endif // TESTMAIN_H
