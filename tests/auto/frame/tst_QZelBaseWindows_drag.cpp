#include "DragWindow.h"
#include "Pointer.h"
#include "TestMain.h"

namespace {

// Notes the geometries that a window passes through.
class GeometryLog : public QObject
{
public:
    explicit GeometryLog(QWidget *window)
        : window(window)
    {
        window->installEventFilter(this);
    }

    QList<QRect> geometries;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if ((event->type() == QEvent::Move || event->type() == QEvent::Resize)
            && (geometries.isEmpty() || geometries.constLast() != window->geometry()))
            geometries.append(window->geometry());
        return false;
    }

private:
    QWidget *window;
};

} // namespace

class tst_QZelBaseWindows_drag : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void dragGivesTheGeometry_data();
    void dragGivesTheGeometry();
    void dragInStepsFollowsThePointer_data();
    void dragInStepsFollowsThePointer();
    void realPointerDragsFromEveryZone_data();
    void realPointerDragsFromEveryZone();
    void eachZoneMixesPressedAndCurrentGeometry_data();
    void eachZoneMixesPressedAndCurrentGeometry();
    void cornersWithTheLeftEdgeTakeTwoSteps_data();
    void cornersWithTheLeftEdgeTakeTwoSteps();
    void leftEdgeWaitsAtTheMinimumForThePointer();
    void leftEdgeMayReachTheMinimumExactly();
    void rightEdgeFollowsFromTheMinimumAtOnce();
    void maximumSizeIsOnlyClamped();
    void movesOffTheScreenToo();
};

// What one drag makes of the start geometry (left 100, top 100, 400 x 300, at least 200 x 150).
void tst_QZelBaseWindows_drag::dragGivesTheGeometry_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<QRect>("geometry");

    QTest::newRow("move") << InnerPoint << QPoint(30, -20) << QRect(130, 80, 400, 300);
    QTest::newRow("left, wider") << LeftPoint << QPoint(-30, 0) << QRect(70, 100, 430, 300);
    QTest::newRow("left, narrower") << LeftPoint << QPoint(50, 0) << QRect(150, 100, 350, 300);
    QTest::newRow("left, height untouched")
            << LeftPoint << QPoint(50, 70) << QRect(150, 100, 350, 300);
    QTest::newRow("left, below the minimum") << LeftPoint << QPoint(201, 0) << Start;
    QTest::newRow("right, wider") << RightPoint << QPoint(40, 0) << QRect(100, 100, 440, 300);
    QTest::newRow("right, height untouched")
            << RightPoint << QPoint(40, 70) << QRect(100, 100, 440, 300);
    QTest::newRow("right, below the minimum")
            << RightPoint << QPoint(-300, 0) << QRect(100, 100, 200, 300);
    QTest::newRow("top, higher") << TopPoint << QPoint(0, -30) << QRect(100, 70, 400, 330);
    QTest::newRow("top, width untouched")
            << TopPoint << QPoint(60, 20) << QRect(100, 120, 400, 280);
    QTest::newRow("top, below the minimum") << TopPoint << QPoint(0, 151) << Start;
    QTest::newRow("bottom, higher") << BottomPoint << QPoint(0, 30) << QRect(100, 100, 400, 330);
    QTest::newRow("bottom, width untouched")
            << BottomPoint << QPoint(60, 30) << QRect(100, 100, 400, 330);
    QTest::newRow("bottom, below the minimum")
            << BottomPoint << QPoint(0, -280) << QRect(100, 100, 400, 150);
    QTest::newRow("top left, larger")
            << TopLeftPoint << QPoint(-20, -30) << QRect(80, 70, 420, 330);
    QTest::newRow("top left, smaller")
            << TopLeftPoint << QPoint(20, 30) << QRect(120, 130, 380, 270);
    // The width is held at the minimum and the left edge stays.
    QTest::newRow("top left, too narrow")
            << TopLeftPoint << QPoint(250, 30) << QRect(100, 130, 200, 270);
    // The height is held at the minimum and the top edge stays.
    QTest::newRow("top left, too low")
            << TopLeftPoint << QPoint(20, 200) << QRect(120, 100, 380, 150);
    QTest::newRow("top left, too small") << TopLeftPoint << QPoint(250, 200) << Start;
    QTest::newRow("top right, larger")
            << TopRightPoint << QPoint(20, -30) << QRect(100, 70, 420, 330);
    QTest::newRow("top right, too narrow")
            << TopRightPoint << QPoint(-250, 30) << QRect(100, 130, 200, 270);
    QTest::newRow("top right, too low") << TopRightPoint << QPoint(20, 200) << Start;
    QTest::newRow("bottom left, larger")
            << BottomLeftPoint << QPoint(-20, 30) << QRect(80, 100, 420, 330);
    QTest::newRow("bottom left, smaller")
            << BottomLeftPoint << QPoint(20, -30) << QRect(120, 100, 380, 270);
    QTest::newRow("bottom left, too narrow")
            << BottomLeftPoint << QPoint(250, 30) << QRect(100, 100, 200, 330);
    QTest::newRow("bottom left, too low")
            << BottomLeftPoint << QPoint(20, -200) << QRect(120, 100, 380, 150);
    QTest::newRow("bottom left, too small") << BottomLeftPoint << QPoint(250, -200) << Start;
    QTest::newRow("bottom right, larger")
            << BottomRightPoint << QPoint(20, 30) << QRect(100, 100, 420, 330);
    QTest::newRow("bottom right, too small")
            << BottomRightPoint << QPoint(-300, -300) << QRect(100, 100, 200, 150);
}

void tst_QZelBaseWindows_drag::dragGivesTheGeometry()
{
    QFETCH(QPoint, point);
    QFETCH(QPoint, way);
    QFETCH(QRect, geometry);
    DragWindow window;
    window.press(point);
    window.hover(point + way);
    QCOMPARE(window.geometry(), geometry);
    window.hide();
}

// The pointer stays at the same place of the edge that it drags, and back where it started the
// window is as it was.
void tst_QZelBaseWindows_drag::dragInStepsFollowsThePointer_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QRect>("geometry");
    QTest::newRow("move") << InnerPoint << QRect(133, 117, 400, 300);
    QTest::newRow("left") << LeftPoint << QRect(133, 100, 367, 300);
    QTest::newRow("right") << RightPoint << QRect(100, 100, 433, 300);
    QTest::newRow("top") << TopPoint << QRect(100, 117, 400, 283);
    QTest::newRow("bottom") << BottomPoint << QRect(100, 100, 400, 317);
    QTest::newRow("top left") << TopLeftPoint << QRect(133, 117, 367, 283);
    QTest::newRow("top right") << TopRightPoint << QRect(100, 117, 433, 283);
    QTest::newRow("bottom left") << BottomLeftPoint << QRect(133, 100, 367, 317);
    QTest::newRow("bottom right") << BottomRightPoint << QRect(100, 100, 433, 317);
}

void tst_QZelBaseWindows_drag::dragInStepsFollowsThePointer()
{
    QFETCH(QPoint, point);
    QFETCH(QRect, geometry);
    DragWindow window;
    window.press(point);
    const QPoint steps[] = { { 1, 0 }, { 5, 3 }, { -40, -20 }, { -40, 11 }, { 60, 40 } };
    for (const QPoint &step : steps)
        window.hoverOnScreen(Start.topLeft() + point + step);
    window.hoverOnScreen(Start.topLeft() + point + QPoint(33, 17));
    QCOMPARE(window.geometry(), geometry);
    window.hoverOnScreen(Start.topLeft() + point);
    QCOMPARE(window.geometry(), Start);
    window.hide();
}

void tst_QZelBaseWindows_drag::realPointerDragsFromEveryZone_data()
{
    dragInStepsFollowsThePointer_data();
}

void tst_QZelBaseWindows_drag::realPointerDragsFromEveryZone()
{
    QFETCH(QPoint, point);
    QFETCH(QRect, geometry);
    DragWindow window;
    Pointer pointer(&window);
    const QPoint from = Start.topLeft() + point;
    pointer.moveTo(from);
    pointer.press(from);
    // Pixel by pixel: the pointer is never outside the window, which follows each of its steps.
    for (int i = 1; i <= 33; ++i)
        pointer.moveTo(from + QPoint(i, qMin(i, 17)));
    QCOMPARE(window.geometry(), geometry);
    pointer.release();
    QCOMPARE(window.pressedArea.count(true), 0);
    pointer.moveTo(Start.center());
    QCOMPARE(window.geometry(), geometry);
    window.hide();
}

// The window is given (120, 130, 420 x 320) by the host after the press, then the pointer is 10
// right of and 5 below its place in the window.
void tst_QZelBaseWindows_drag::eachZoneMixesPressedAndCurrentGeometry_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QRect>("geometry");
    QTest::newRow("move") << InnerPoint << QRect(130, 135, 420, 320);
    QTest::newRow("left") << LeftPoint << QRect(130, 100, 410, 300);
    QTest::newRow("right") << RightPoint << QRect(100, 100, 410, 300);
    QTest::newRow("top") << TopPoint << QRect(100, 135, 400, 315);
    QTest::newRow("bottom") << BottomPoint << QRect(100, 100, 400, 305);
    QTest::newRow("top left") << TopLeftPoint << QRect(130, 135, 410, 315);
    QTest::newRow("top right") << TopRightPoint << QRect(120, 135, 410, 315);
    QTest::newRow("bottom left") << BottomLeftPoint << QRect(130, 130, 410, 305);
    QTest::newRow("bottom right") << BottomRightPoint << QRect(120, 130, 410, 305);
}

void tst_QZelBaseWindows_drag::eachZoneMixesPressedAndCurrentGeometry()
{
    QFETCH(QPoint, point);
    QFETCH(QRect, geometry);
    DragWindow window;
    window.press(point);
    window.setGeometry(120, 130, 420, 320);
    window.hover(point + QPoint(10, 5));
    QCOMPARE(window.geometry(), geometry);
    window.hide();
}

void tst_QZelBaseWindows_drag::cornersWithTheLeftEdgeTakeTwoSteps_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<QList<QRect>>("geometries");
    QTest::newRow("top left") << TopLeftPoint << QPoint(20, 30)
                              << QList<QRect> { QRect(120, 100, 380, 270),
                                                QRect(120, 130, 380, 270) };
    QTest::newRow("bottom left") << BottomLeftPoint << QPoint(20, 30)
                                 << QList<QRect> { QRect(120, 100, 380, 330) };
    QTest::newRow("top right") << TopRightPoint << QPoint(20, 30)
                               << QList<QRect> { QRect(100, 130, 420, 270) };
}

void tst_QZelBaseWindows_drag::cornersWithTheLeftEdgeTakeTwoSteps()
{
    QFETCH(QPoint, point);
    QFETCH(QPoint, way);
    QFETCH(QList<QRect>, geometries);
    DragWindow window;
    const GeometryLog log(&window);
    window.press(point);
    window.hover(point + way);
    QCOMPARE(log.geometries, geometries);
    window.hide();
}

void tst_QZelBaseWindows_drag::leftEdgeWaitsAtTheMinimumForThePointer()
{
    DragWindow window;
    window.press(LeftPoint);
    const QPoint from = Start.topLeft() + LeftPoint;
    window.hoverOnScreen(from + QPoint(150, 0));
    QCOMPARE(window.geometry(), QRect(250, 100, 250, 300));
    window.hoverOnScreen(from + QPoint(230, 0));
    window.hoverOnScreen(from + QPoint(400, 0));
    QCOMPARE(window.geometry(), QRect(250, 100, 250, 300));
    window.hoverOnScreen(from + QPoint(190, 0));
    QCOMPARE(window.geometry(), QRect(290, 100, 210, 300));
    window.hide();
}

void tst_QZelBaseWindows_drag::leftEdgeMayReachTheMinimumExactly()
{
    DragWindow window;
    window.press(LeftPoint);
    window.hover(LeftPoint + QPoint(200, 0));
    QCOMPARE(window.geometry(), QRect(300, 100, 200, 300));
    window.release();
    window.press(QPoint(100, 2));
    window.hover(QPoint(100, 152));
    QCOMPARE(window.geometry(), QRect(300, 250, 200, 150));
    window.hide();
}

void tst_QZelBaseWindows_drag::rightEdgeFollowsFromTheMinimumAtOnce()
{
    DragWindow window;
    window.press(RightPoint);
    window.hover(RightPoint - QPoint(330, 0));
    QCOMPARE(window.geometry(), QRect(100, 100, 200, 300));
    window.hover(RightPoint - QPoint(199, 0));
    QCOMPARE(window.geometry(), QRect(100, 100, 201, 300));
    window.hide();
}

// The left edge has no guard for the maximum, so the toolkit's clamping shifts the right one.
void tst_QZelBaseWindows_drag::maximumSizeIsOnlyClamped()
{
    DragWindow window;
    window.setMaximumSize(450, 320);
    window.press(LeftPoint);
    window.hover(LeftPoint - QPoint(90, 0));
    QCOMPARE(window.geometry(), QRect(10, 100, 450, 300));
    window.release();
    window.press(BottomPoint);
    window.hover(BottomPoint + QPoint(0, 90));
    QCOMPARE(window.geometry(), QRect(10, 100, 450, 320));
    window.hide();
}

void tst_QZelBaseWindows_drag::movesOffTheScreenToo()
{
    DragWindow window;
    window.press(InnerPoint);
    window.hover(InnerPoint - QPoint(1000, 1000));
    QCOMPARE(window.geometry(), QRect(-900, -900, 400, 300));
    window.hide();
}

QTARNKIT_TEST_MAIN(tst_QZelBaseWindows_drag)
#include "tst_QZelBaseWindows_drag.moc"
