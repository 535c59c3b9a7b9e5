#include "FakeScreen.h"
#include "Pixels.h"
#include "Pointer.h"
#include "TestMain.h"

#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <QToolButton>
#include <QZelDialog.h>

namespace {

class Shell : public QZelDialog
{
public:
    Shell()
        : QZelDialog(nullptr)
    {
        SetContainer(new QWidget);
        Resize(0, 0, 300, 150);
        move(100, 120);
    }

    using QZelDialog::btn_Max;
    using QZelDialog::isMaximized;
    using QZelDialog::isPressed;
    using QZelDialog::lbl_Title;
    using QZelDialog::normalGeometry;
    using QZelDialog::wgt_TitleBar;

    // A drag with hand-made events, for positions where no pointer event would hit the window.
    void drag(const QPoint &from, const QPoint &to)
    {
        send(QEvent::MouseButtonPress, Qt::LeftButton, from);
        send(QEvent::MouseMove, Qt::NoButton, to);
        send(QEvent::MouseButtonRelease, Qt::LeftButton, to);
    }

private:
    void send(QEvent::Type type, Qt::MouseButton button, const QPoint &screenPosition)
    {
        const QPointF local = wgt_TitleBar->mapFromGlobal(screenPosition);
        QMouseEvent event(type, local, local, screenPosition, button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(wgt_TitleBar, &event);
    }
};

} // namespace

class tst_QZelDialog_window : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pointerDragsByTheTitleStrip();
    void dragIsKeptInsideTheScreen_data();
    void dragIsKeptInsideTheScreen();
    void sizeAtTheTimeOfTheMoveCounts();
    void upperLeftCornerWinsForADialogLargerThanTheScreen();
    void areaOfTheScreenUnderThePointerCounts_data();
    void areaOfTheScreenUnderThePointerCounts();
    void primaryScreenCountsWhereThereIsNone();
    void doubleClickOnTheTitleStripChangesNothing();

    void maximisingCoversThePrimaryScreen();
    void maximisingCoversThePrimaryScreensUnavailablePartToo();
    void secondClickRestoresTheGeometry();
    void maximisingAgainSavesTheGeometryAnew();
    void maximiseButtonIsPolishedAnew();
    void windowStateIsNeverTouched();

    // Last, as no screen comes back after it.
    void withoutAScreenMaximisingOnlyClearsTheHoverState();
    void withoutAScreenADragIsNotClamped();
};

void tst_QZelDialog_window::pointerDragsByTheTitleStrip()
{
    Shell shell;
    shell.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shell));
    Pointer pointer(&shell);
    pointer.press({ 150, 130 });
    QVERIFY(shell.isPressed);
    pointer.moveTo({ 170, 160 });
    QTRY_COMPARE(shell.pos(), QPoint(120, 150));
    pointer.release();
    QVERIFY(!shell.isPressed);
    pointer.moveTo({ 300, 300 });
    QCOMPARE(shell.pos(), QPoint(120, 150));
    QCOMPARE(shell.size(), QSize(300, 150));
}

void tst_QZelDialog_window::dragIsKeptInsideTheScreen_data()
{
    // The screen is 800 x 600, all of it available. The last pixel's column is 799, and the dialog
    // ends one before it.
    QTest::addColumn<QPoint>("by");
    QTest::addColumn<QPoint>("position");
    QTest::newRow("right") << QPoint(2000, 0) << QPoint(799 - 300, 120);
    QTest::newRow("just within right") << QPoint(399, 0) << QPoint(499, 120);
    QTest::newRow("one too far right") << QPoint(400, 0) << QPoint(499, 120);
    QTest::newRow("bottom") << QPoint(0, 2000) << QPoint(100, 599 - 150);
    QTest::newRow("one too far down") << QPoint(0, 330) << QPoint(100, 449);
    QTest::newRow("left") << QPoint(-2000, 0) << QPoint(0, 120);
    QTest::newRow("one too far left") << QPoint(-101, 0) << QPoint(0, 120);
    QTest::newRow("top") << QPoint(0, -2000) << QPoint(100, 0);
    QTest::newRow("one too far up") << QPoint(0, -121) << QPoint(100, 0);
    QTest::newRow("corner") << QPoint(2000, 2000) << QPoint(499, 449);
    QTest::newRow("opposite corner") << QPoint(-2000, -2000) << QPoint(0, 0);
    QTest::newRow("inside") << QPoint(7, -9) << QPoint(107, 111);
}

void tst_QZelDialog_window::dragIsKeptInsideTheScreen()
{
    QFETCH(QPoint, by);
    QFETCH(QPoint, position);
    QCOMPARE(QGuiApplication::primaryScreen()->availableGeometry(), QRect(0, 0, 800, 600));
    Shell shell;
    shell.drag({ 110, 130 }, QPoint(110, 130) + by);
    QCOMPARE(shell.pos(), position);
}

void tst_QZelDialog_window::sizeAtTheTimeOfTheMoveCounts()
{
    Shell shell;
    shell.Resize(0, 0, 400, 200);
    shell.drag({ 110, 130 }, { 2000, 2000 });
    QCOMPARE(shell.pos(), QPoint(799 - 400, 599 - 200));
}

void tst_QZelDialog_window::upperLeftCornerWinsForADialogLargerThanTheScreen()
{
    Shell shell;
    shell.Resize(0, 0, 900, 700);
    shell.drag({ 110, 130 }, { 300, 300 });
    QCOMPARE(shell.pos(), QPoint(0, 0));
}

void tst_QZelDialog_window::areaOfTheScreenUnderThePointerCounts_data()
{
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QPoint>("position");
    // The screen's area is x 820 to 1419, y 40 to 559.
    QTest::newRow("left edge of the area") << QPoint(805, 130) << QPoint(820, 120);
    QTest::newRow("top edge of the area") << QPoint(1010, 5) << QPoint(1000, 40);
    QTest::newRow("right edge of the area") << QPoint(1430, 130) << QPoint(1419 - 300, 120);
    QTest::newRow("bottom edge of the area") << QPoint(1010, 590) << QPoint(1000, 559 - 150);
    QTest::newRow("inside") << QPoint(1010, 210) << QPoint(1000, 200);
    QTest::newRow("still over the other screen") << QPoint(799, 130) << QPoint(499, 120);
}

void tst_QZelDialog_window::areaOfTheScreenUnderThePointerCounts()
{
    QFETCH(QPoint, to);
    QFETCH(QPoint, position);
    const FakeScreen second(QRect(800, 0, 640, 600), QRect(820, 40, 600, 520));
    QCOMPARE(QGuiApplication::screenAt(QPoint(810, 10)), second.screen());
    Shell shell;
    shell.drag({ 110, 130 }, to);
    QCOMPARE(shell.pos(), position);
}

void tst_QZelDialog_window::primaryScreenCountsWhereThereIsNone()
{
    const FakeScreen primary(QRect(800, 0, 640, 600), QRect(820, 40, 600, 520), FakeScreen::Primary);
    QCOMPARE(QGuiApplication::primaryScreen(), primary.screen());
    QVERIFY(!QGuiApplication::screenAt(QPoint(500, 2000)));
    Shell shell;
    shell.drag({ 110, 130 }, { 500, 2000 });
    QCOMPARE(shell.pos(), QPoint(820, 559 - 150));
}

void tst_QZelDialog_window::doubleClickOnTheTitleStripChangesNothing()
{
    Shell shell;
    shell.ShowMaxBtn();
    shell.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shell));
    const QRect before = shell.geometry();
    Pointer pointer(&shell);
    pointer.doubleClick(middleOf(shell.lbl_Title));
    pointer.release();
    QVERIFY(!shell.isMaximized);
    QCOMPARE(shell.geometry(), before);
    QCOMPARE(shell.windowState(), Qt::WindowNoState);
}

void tst_QZelDialog_window::maximisingCoversThePrimaryScreen()
{
    Shell shell;
    shell.ShowMaxBtn();
    shell.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shell));
    Pointer(&shell).click(middleOf(shell.btn_Max));
    QVERIFY(shell.isMaximized);
    QCOMPARE(shell.normalGeometry, QRect(100, 120, 300, 150));
    QCOMPARE(shell.geometry(), QRect(0, 0, 800, 600));
    QCOMPARE(shell.btn_Max->property("windowState"), QVariant(QStringLiteral("maximized")));
}

void tst_QZelDialog_window::maximisingCoversThePrimaryScreensUnavailablePartToo()
{
    const FakeScreen primary(QRect(800, 0, 640, 600), QRect(820, 40, 600, 520), FakeScreen::Primary);
    Shell shell;
    shell.btn_Max->click();
    QCOMPARE(shell.geometry(), QRect(800, 0, 640, 600));
}

void tst_QZelDialog_window::secondClickRestoresTheGeometry()
{
    Shell shell;
    shell.ShowMaxBtn();
    shell.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shell));
    Pointer pointer(&shell);
    pointer.click(middleOf(shell.btn_Max));
    QTRY_COMPARE(shell.size(), QSize(800, 600));
    pointer.click(middleOf(shell.btn_Max));
    QVERIFY(!shell.isMaximized);
    QCOMPARE(shell.geometry(), QRect(100, 120, 300, 150));
    QCOMPARE(shell.btn_Max->property("windowState"), QVariant(QStringLiteral("normal")));
}

void tst_QZelDialog_window::maximisingAgainSavesTheGeometryAnew()
{
    Shell shell;
    shell.btn_Max->click();
    shell.btn_Max->click();
    shell.setGeometry(10, 20, 320, 160);
    shell.btn_Max->click();
    QCOMPARE(shell.normalGeometry, QRect(10, 20, 320, 160));
    shell.btn_Max->click();
    QCOMPARE(shell.geometry(), QRect(10, 20, 320, 160));
}

void tst_QZelDialog_window::maximiseButtonIsPolishedAnew()
{
    Shell shell;
    shell.setStyleSheet(
            QStringLiteral("#btn_Max { border: none; background: #0000ff; }"
                           "#btn_Max[windowState=\"maximized\"] { background: #ff0000; }"
                           "#btn_Max[windowState=\"normal\"] { background: #00ff00; }"));
    shell.ShowMaxBtn();
    const auto image = [&shell] { return Pixels::rendered(shell.btn_Max); };
    COMPARE_PIXEL(image(), 14, 14, Qt::blue);
    shell.btn_Max->click();
    COMPARE_PIXEL(image(), 14, 14, Qt::red);
    shell.btn_Max->click();
    COMPARE_PIXEL(image(), 14, 14, Qt::green);
}

void tst_QZelDialog_window::windowStateIsNeverTouched()
{
    Shell shell;
    shell.show();
    shell.btn_Max->click();
    QCOMPARE(shell.windowState(), Qt::WindowNoState);
    QVERIFY(!shell.QWidget::isMaximized());
    shell.btn_Max->click();
    QCOMPARE(shell.windowState(), Qt::WindowNoState);
}

void tst_QZelDialog_window::withoutAScreenMaximisingOnlyClearsTheHoverState()
{
    removeEveryScreen();
    QVERIFY(!QGuiApplication::primaryScreen());
    Shell shell;
    shell.btn_Max->setAttribute(Qt::WA_UnderMouse);
    shell.btn_Max->click();
    QVERIFY(!shell.btn_Max->testAttribute(Qt::WA_UnderMouse));
    QVERIFY(!shell.isMaximized);
    QVERIFY(shell.normalGeometry.isNull());
    QVERIFY(!shell.btn_Max->property("windowState").isValid());
    QCOMPARE(shell.geometry(), QRect(100, 120, 300, 150));
}

void tst_QZelDialog_window::withoutAScreenADragIsNotClamped()
{
    QVERIFY(!QGuiApplication::primaryScreen());
    Shell shell;
    shell.drag({ 110, 130 }, { -90, 1030 });
    QCOMPARE(shell.pos(), QPoint(-100, 1020));
}

QTARNKIT_TEST_MAIN(tst_QZelDialog_window)
#include "tst_QZelDialog_window.moc"
