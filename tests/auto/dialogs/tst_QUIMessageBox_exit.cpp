#include "TestMain.h"

#include <QProcess>

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
    QProcess host;
    host.setProcessChannelMode(QProcess::MergedChannels);
    host.start(QStringLiteral(BOX_AT_EXIT), { scenario });
    QVERIFY2(host.waitForFinished(60000), qPrintable(host.errorString()));
    const QByteArray output = host.readAll();
    QVERIFY2(output.contains("done"), output.constData());
    QVERIFY2(host.exitStatus() == QProcess::NormalExit, output.constData());
    QVERIFY2(host.exitCode() == 0, output.constData());
}

QTARNKIT_TEST_MAIN(tst_QUIMessageBox_exit)
#include "tst_QUIMessageBox_exit.moc"
