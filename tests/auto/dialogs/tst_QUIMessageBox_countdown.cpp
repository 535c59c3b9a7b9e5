#include "BoxProbe.h"
#include "ModalDriver.h"
#include "TestMain.h"

#include <QElapsedTimer>
#include <QSignalSpy>

using QTarnKit::QUIMessageBox;

namespace {

// Each of the three ways to set a message.
using Setter = void (*)(BoxProbe *, int);

void setText(BoxProbe *box, int countdown)
{
    box->setMessage(QStringLiteral("Saved"), 1, countdown);
}
void setTitleAndText(BoxProbe *box, int countdown)
{
    box->setMessage(QStringLiteral("Storage"), QStringLiteral("Saved"), 0, countdown);
}
void setCustom(BoxProbe *box, int countdown)
{
    box->setMessage(QStringLiteral("Storage"), QStringLiteral("Saved"),
                    QStringList { QStringLiteral("Undo") }, countdown);
}

} // namespace

Q_DECLARE_METATYPE(Setter)

class tst_QUIMessageBox_countdown : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void boxClosesOnTheLastTick_data();
    void boxClosesOnTheLastTick();
    void settingAMessageCountsTheFirstTickAtOnce();
    void withoutACountdownTheBoxStays();
    void negativeCountdownClosesAVisibleBoxAtOnce_data() { setters(); }
    void negativeCountdownClosesAVisibleBoxAtOnce();
    void negativeCountdownOnAHiddenBoxOnlyTurnsItOff_data() { setters(); }
    void negativeCountdownOnAHiddenBoxOnlyTurnsItOff();
    void newMessageStartsTheCountdownAnew_data() { setters(); }
    void newMessageStartsTheCountdownAnew();
    void newMessageWithoutACountdownTurnsItOff_data() { setters(); }
    void newMessageWithoutACountdownTurnsItOff();
    void closingTurnsItOff();
    void longestCountdownDoesNotEnd();
    void expiryEndsExecWithZero();
    void realTicksCloseAShownBox();
    void ticksComeToAHiddenBoxToo();

private:
    void setters();
};

void tst_QUIMessageBox_countdown::setters()
{
    QTest::addColumn<Setter>("set");
    QTest::newRow("text") << Setter(setText);
    QTest::newRow("title and text") << Setter(setTitleAndText);
    QTest::newRow("custom buttons") << Setter(setCustom);
}

void tst_QUIMessageBox_countdown::boxClosesOnTheLastTick_data()
{
    QTest::addColumn<Setter>("set");
    QTest::addColumn<int>("countdown");
    for (const int countdown : { 1, 2, 3, 10 }) {
        QTest::addRow("text, %d", countdown) << Setter(setText) << countdown;
        QTest::addRow("title and text, %d", countdown) << Setter(setTitleAndText) << countdown;
        QTest::addRow("custom buttons, %d", countdown) << Setter(setCustom) << countdown;
    }
}

void tst_QUIMessageBox_countdown::boxClosesOnTheLastTick()
{
    QFETCH(Setter, set);
    QFETCH(int, countdown);
    BoxProbe box;
    set(&box, countdown);
    box.show();
    for (int tick = 1; tick < countdown; ++tick) {
        box.checkSec();
        QVERIFY2(box.isVisible(), qPrintable(QString::number(tick)));
    }
    box.checkSec();
    QVERIFY(!box.isVisible());
    QCOMPARE(box.closeSec, 0);
    QCOMPARE(box.currentSec, 0);
}

void tst_QUIMessageBox_countdown::settingAMessageCountsTheFirstTickAtOnce()
{
    BoxProbe box;
    setText(&box, 3);
    QCOMPARE(box.closeSec, 3);
    QCOMPARE(box.currentSec, 1);
    box.checkSec();
    QCOMPARE(box.closeSec, 3);
    QCOMPARE(box.currentSec, 2);
}

void tst_QUIMessageBox_countdown::withoutACountdownTheBoxStays()
{
    BoxProbe box;
    setText(&box, 0);
    box.show();
    for (int tick = 0; tick < 100; ++tick)
        box.checkSec();
    QVERIFY(box.isVisible());
    QCOMPARE(box.closeSec, 0);
    QCOMPARE(box.currentSec, 0);
}

void tst_QUIMessageBox_countdown::negativeCountdownClosesAVisibleBoxAtOnce()
{
    QFETCH(Setter, set);
    BoxProbe box;
    set(&box, 0);
    box.show();
    set(&box, -1);
    QVERIFY(!box.isVisible());
    QCOMPARE(box.closeSec, 0);
    // The message is set all the same.
    QCOMPARE(box.txtInfo->toPlainText(), QStringLiteral("Saved"));
}

void tst_QUIMessageBox_countdown::negativeCountdownOnAHiddenBoxOnlyTurnsItOff()
{
    QFETCH(Setter, set);
    BoxProbe box;
    set(&box, -5);
    QVERIFY(box.isHidden());
    QCOMPARE(box.closeSec, 0);
    QCOMPARE(box.currentSec, 0);
    box.show();
    for (int tick = 0; tick < 10; ++tick)
        box.checkSec();
    QVERIFY(box.isVisible());
}

void tst_QUIMessageBox_countdown::newMessageStartsTheCountdownAnew()
{
    QFETCH(Setter, set);
    BoxProbe box;
    setText(&box, 3);
    box.show();
    box.checkSec();
    box.checkSec();
    set(&box, 3);
    box.checkSec();
    box.checkSec();
    QVERIFY(box.isVisible());
    box.checkSec();
    QVERIFY(!box.isVisible());
}

void tst_QUIMessageBox_countdown::newMessageWithoutACountdownTurnsItOff()
{
    QFETCH(Setter, set);
    BoxProbe box;
    setText(&box, 2);
    box.show();
    set(&box, 0);
    QCOMPARE(box.currentSec, 0);
    for (int tick = 0; tick < 5; ++tick)
        box.checkSec();
    QVERIFY(box.isVisible());
}

void tst_QUIMessageBox_countdown::closingTurnsItOff()
{
    BoxProbe box;
    setText(&box, 2);
    box.show();
    box.close();
    QCOMPARE(box.closeSec, 0);
    QCOMPARE(box.currentSec, 0);
    box.show();
    for (int tick = 0; tick < 5; ++tick)
        box.checkSec();
    QVERIFY(box.isVisible());
}

void tst_QUIMessageBox_countdown::longestCountdownDoesNotEnd()
{
    BoxProbe box;
    setText(&box, INT_MAX);
    box.show();
    box.currentSec = INT_MAX - 1;
    box.checkSec();
    QVERIFY(box.isVisible());
    QCOMPARE(box.currentSec, INT_MAX);
    box.checkSec();
    QVERIFY(!box.isVisible());
}

void tst_QUIMessageBox_countdown::expiryEndsExecWithZero()
{
    BoxProbe box;
    QSignalSpy finished(&box, &QDialog::finished);
    QSignalSpy custom(&box, &QUIMessageBox::CustBtnClicked);
    setText(&box, 1);
    box.setResult(42);
    ModalDriver driver;
    QCOMPARE(box.exec(), 0);
    QVERIFY(driver.finished());
    QCOMPARE(finished.count(), 0);
    QCOMPARE(custom.count(), 0);
}

void tst_QUIMessageBox_countdown::realTicksCloseAShownBox()
{
    BoxProbe box;
    QElapsedTimer elapsed;
    elapsed.start();
    setTitleAndText(&box, 3);
    box.show();
    QCOMPARE(box.shownButtons(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(!box.isVisible(), 20000);
    // The ticks run freely: between two and three seconds, were the machine never late. The timer
    // may be 5% early.
    QVERIFY2(elapsed.elapsed() >= 1900, qPrintable(QString::number(elapsed.elapsed())));
}

void tst_QUIMessageBox_countdown::ticksComeToAHiddenBoxToo()
{
    BoxProbe box;
    setText(&box, 1);
    QCOMPARE(box.closeSec, 1);
    QTRY_COMPARE_WITH_TIMEOUT(box.closeSec, 0, 20000);
}

QTARNKIT_TEST_MAIN(tst_QUIMessageBox_countdown)
#include "tst_QUIMessageBox_countdown.moc"
