#include "TestMain.h"

#include <QFile>

#include <cstdio>
#include <sys/wait.h>

// The one box of the process outlives the application object. However it is left, the process ends
// well.
class tst_QUIMessageBox_exit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void processEndsWell_data();
    void processEndsWell();
};

void tst_QUIMessageBox_exit::processEndsWell_data()
{
    QTest::addColumn<QString>("scenario");
    for (const char *scenario :
         { "never used", "never shown", "shown", "hidden", "closed", "counting down",
           "custom buttons cleared", "static application", "application never destroyed" })
        QTest::newRow(scenario) << QString::fromLatin1(scenario);
}

void tst_QUIMessageBox_exit::processEndsWell()
{
    QFETCH(QString, scenario);
    // Not QProcess: emulators of user programs do not know its way to start one.
    const QString command = QStringLiteral("exec '" BOX_AT_EXIT "' '%1' 2>&1").arg(scenario);
    FILE *host = popen(QFile::encodeName(command).constData(), "r");
    QVERIFY(host);
    QFile pipe;
    QVERIFY(pipe.open(host, QIODevice::ReadOnly));
    const QByteArray output = pipe.readAll();
    const int status = pclose(host);
    QVERIFY2(output.contains("done"), output.constData());
    QVERIFY2(WIFEXITED(status), output.constData());
    QVERIFY2(WEXITSTATUS(status) == 0, output.constData());
}

QTARNKIT_TEST_MAIN(tst_QUIMessageBox_exit)
#include "tst_QUIMessageBox_exit.moc"
