#include "DragWindow.h"
#include "Pointer.h"
#include "TestMain.h"

#include <QTitleBar.h>

#include <QSignalSpy>

class tst_QZelBaseWindows_switches : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hoverWithoutAPressChangesNothing();
    void anyButtonDrags();
    void releaseEndsADrag();
    void lostReleaseLeavesTheZoneActive();
    void switchedOffMovingStillResizes();
    void switchedOffResizingStillMoves();
    void switchedOffBothDoesNothing();
    void withoutHoverNothingMoves();
    void otherStatesCannotBeDragged_data();
    void otherStatesCannotBeDragged();
    void restoredWindowDragsAgain();
    void pressOnAChildMovesTheWindow();
    void titleBarInsideDragsTheWindow();
    void titleBarMovesBesideTheWindowsOwnMoving();
};

void tst_QZelBaseWindows_switches::hoverWithoutAPressChangesNothing()
{
    DragWindow window;
    const QPoint points[] = { InnerPoint, LeftPoint, RightPoint, TopPoint, BottomRightPoint };
    for (const QPoint &point : points)
        window.hover(point);
    QCOMPARE(window.geometry(), Start);
    window.hide();
}

void tst_QZelBaseWindows_switches::anyButtonDrags()
{
    DragWindow window;
    Pointer pointer(&window);
    const QPoint from = Start.topLeft() + InnerPoint;
    pointer.press(from, Qt::RightButton);
    pointer.moveTo(from + QPoint(10, 10));
    QCOMPARE(window.pos(), QPoint(110, 110));
    pointer.release(Qt::RightButton);
    window.hide();
}

void tst_QZelBaseWindows_switches::releaseEndsADrag()
{
    DragWindow window;
    window.press(InnerPoint);
    window.release(InnerPoint);
    window.hover(InnerPoint + QPoint(10, 10));
    window.press(LeftPoint);
    window.release(LeftPoint);
    window.hover(LeftPoint + QPoint(10, 10));
    QCOMPARE(window.geometry(), Start);
    window.hide();
}

// The lowest zone in the list's order goes first as long as no release comes.
void tst_QZelBaseWindows_switches::lostReleaseLeavesTheZoneActive()
{
    DragWindow window;
    window.press(BottomPoint);
    window.press(RightPoint);
    window.hover(RightPoint + QPoint(10, 20));
    QCOMPARE(window.geometry(), QRect(100, 100, 410, 300));
    window.release();
    window.press(BottomPoint);
    window.hover(BottomPoint + QPoint(10, 20));
    QCOMPARE(window.geometry(), QRect(100, 100, 410, 320));
    window.hide();
}

void tst_QZelBaseWindows_switches::switchedOffMovingStillResizes()
{
    DragWindow window;
    window.setMoveEnable(false);
    window.press(InnerPoint);
    window.hover(InnerPoint + QPoint(10, 10));
    QCOMPARE(window.geometry(), Start);
    window.release();
    window.press(RightPoint);
    window.hover(RightPoint + QPoint(10, 10));
    QCOMPARE(window.geometry(), QRect(100, 100, 410, 300));
    window.hide();
}

void tst_QZelBaseWindows_switches::switchedOffResizingStillMoves()
{
    DragWindow window;
    window.setResizeEnable(false);
    const QPoint border[] = { LeftPoint,    RightPoint,    TopPoint,        BottomPoint,
                              TopLeftPoint, TopRightPoint, BottomLeftPoint, BottomRightPoint };
    for (const QPoint &point : border) {
        window.press(point);
        window.hover(point + QPoint(10, 10));
        QCOMPARE(window.geometry(), Start);
        window.release();
    }
    window.press(InnerPoint);
    window.hover(InnerPoint + QPoint(10, 10));
    QCOMPARE(window.geometry(), QRect(110, 110, 400, 300));
    window.hide();
}

void tst_QZelBaseWindows_switches::switchedOffBothDoesNothing()
{
    DragWindow window;
    window.setMoveEnable(false);
    window.setResizeEnable(false);
    window.setCursor(Qt::CrossCursor);
    window.press(InnerPoint);
    window.hover(InnerPoint + QPoint(10, 10));
    window.press(LeftPoint);
    window.hover(LeftPoint + QPoint(10, 10));
    QCOMPARE(window.geometry(), Start);
    QCOMPARE(window.cursor().shape(), Qt::CrossCursor);
    window.hide();
}

void tst_QZelBaseWindows_switches::withoutHoverNothingMoves()
{
    DragWindow window;
    window.setAttribute(Qt::WA_Hover, false);
    Pointer pointer(&window);
    for (const QPoint &point : { InnerPoint, RightPoint }) {
        pointer.press(Start.topLeft() + point);
        pointer.moveTo(Start.topLeft() + point + QPoint(2, 2));
        // The press came.
        QCOMPARE(window.pressPoint, point);
        pointer.release();
    }
    QCOMPARE(window.geometry(), Start);
    window.hide();
}

void tst_QZelBaseWindows_switches::otherStatesCannotBeDragged_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("maximised") << int(Qt::WindowMaximized);
    QTest::newRow("minimised") << int(Qt::WindowMinimized);
    QTest::newRow("full screen") << int(Qt::WindowFullScreen);
}

void tst_QZelBaseWindows_switches::otherStatesCannotBeDragged()
{
    QFETCH(int, state);
    DragWindow window;
    window.setWindowState(Qt::WindowState(state));
    QCoreApplication::processEvents();
    const QRect geometry = window.geometry();
    const QSize size = geometry.size();
    const QPoint points[] = { QPoint(size.width() / 2, size.height() / 2), QPoint(0, 0),
                              QPoint(size.width() - 1, size.height() - 1), QPoint(0, 150) };
    for (const QPoint &point : points) {
        window.press(point);
        window.hover(point + QPoint(20, 20));
        QCOMPARE(window.geometry(), geometry);
        window.release();
    }
    window.hide();
}

void tst_QZelBaseWindows_switches::restoredWindowDragsAgain()
{
    DragWindow window;
    window.setMoveEnable(false);
    window.setResizeEnable(false);
    window.showMaximized();
    // The platform answers later.
    QTRY_VERIFY(window.geometry() != Start);
    window.showNormal();
    QTRY_COMPARE(window.geometry(), Start);
    window.press(InnerPoint);
    window.hover(InnerPoint + QPoint(10, 10));
    QCOMPARE(window.geometry(), QRect(110, 110, 400, 300));
    window.release();
    window.press(LeftPoint);
    window.hover(LeftPoint + QPoint(10, 10));
    QCOMPARE(window.geometry(), QRect(120, 110, 390, 300));
    window.hide();
}

// A child that leaves its mouse events alone is no obstacle; its press comes in window coordinates.
void tst_QZelBaseWindows_switches::pressOnAChildMovesTheWindow()
{
    DragWindow window;
    window.setCentralWidget(new QWidget);
    QTRY_COMPARE(window.centralWidget()->size(), Start.size());
    Pointer pointer(&window);
    const QPoint from = Start.topLeft() + InnerPoint;
    pointer.press(from);
    QCOMPARE(window.pressPoint, InnerPoint);
    pointer.moveTo(from + QPoint(15, 25));
    QCOMPARE(window.pos(), QPoint(115, 125));
    pointer.release();
    QVERIFY(!window.isPressed);
    window.hide();
}

// A host that wants only the strip to move its window switches the window's own moving off.
void tst_QZelBaseWindows_switches::titleBarInsideDragsTheWindow()
{
    DragWindow window;
    auto *bar = new QTitleBar(&window);
    bar->setGeometry(4, 4, 392, 25);
    bar->show();
    window.setTitleBar(bar);
    window.setMoveEnable(false);
    Pointer pointer(&window);
    QSignalSpy spy(&window, &QZelBaseWindows::titleDblClick);
    const QPoint from = middleOf(bar);
    pointer.press(from);
    // The strip leaves the press to the window as well.
    QVERIFY(window.isPressed);
    for (const QPoint &step : { QPoint(15, 5), QPoint(-30, -2), QPoint(33, 7) }) {
        pointer.moveTo(from + step);
        QCOMPARE(window.geometry(), Start.translated(step));
    }
    pointer.release();
    QVERIFY(!window.isPressed);
    QCOMPARE(spy.count(), 0);
    pointer.doubleClick(middleOf(bar));
    QCOMPARE(spy.count(), 1);
    window.hide();
}

// Both move the window then: it is ahead of the pointer by the last step.
void tst_QZelBaseWindows_switches::titleBarMovesBesideTheWindowsOwnMoving()
{
    DragWindow window;
    auto *bar = new QTitleBar(&window);
    bar->setGeometry(4, 4, 392, 25);
    bar->show();
    Pointer pointer(&window);
    const QPoint from = middleOf(bar);
    pointer.press(from);
    pointer.moveTo(from + QPoint(10, 4));
    QCOMPARE(window.geometry(), Start.translated(20, 8));
    pointer.moveTo(from + QPoint(13, 5));
    QCOMPARE(window.geometry(), Start.translated(16, 6));
    pointer.release();
    window.hide();
}

QTARNKIT_TEST_MAIN(tst_QZelBaseWindows_switches)
#include "tst_QZelBaseWindows_switches.moc"
