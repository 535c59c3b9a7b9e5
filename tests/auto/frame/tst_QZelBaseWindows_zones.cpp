#include "BaseWindowProbe.h"
#include "Pointer.h"
#include "TestMain.h"

#include <limits>

namespace {

// In the order of the window's own lists; None stands for no zone.
enum Zone { Left, Right, Top, Bottom, TopLeft, TopRight, BottomLeft, BottomRight, None = -1 };

constexpr QSize WindowSize(400, 300);

Qt::CursorShape cursorOf(int zone)
{
    switch (zone) {
    case Left:
    case Right:
        return Qt::SizeHorCursor;
    case Top:
    case Bottom:
        return Qt::SizeVerCursor;
    case TopLeft:
    case BottomRight:
        return Qt::SizeFDiagCursor;
    case TopRight:
    case BottomLeft:
        return Qt::SizeBDiagCursor;
    default:
        return Qt::ArrowCursor;
    }
}

// A window that has had its first resize, with the band width that it had then.
void prepare(BaseWindowProbe &window, int padding, const QSize &size = WindowSize)
{
    window.setPadding(padding);
    window.setGeometry(QRect(QPoint(100, 100), size));
    window.show();
}

} // namespace

class tst_QZelBaseWindows_zones : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void zonesAreTheDocumentedRectangles_data();
    void zonesAreTheDocumentedRectangles();
    void pressAndHoverFindTheZone_data();
    void pressAndHoverFindTheZone();
    void everyPixelOfASmallWindowIsInItsZone();
    void positionsAreRounded();
    void everyButtonRecordsAPress_data();
    void everyButtonRecordsAPress();
    void pressRecordsPointAndGeometry();
    void pressIsRecordedWhileSwitchedOff();
    void secondPressWithoutReleaseKeepsBoth();
    void releaseForgetsThePress();
    void pressBeforeTheFirstResizeIsAMove();
    void paddingTakesEffectAtTheNextResize();
    void zonesFollowTheSize();
    void noPaddingMeansNoZones_data();
    void noPaddingMeansNoZones();
    void bandWiderThanTheWindowCoversIt_data();
    void bandWiderThanTheWindowCoversIt();
    void hoverWhileDraggingStillSetsTheCursor();
    void cursorStaysWhileResizingIsOff();
    void cursorFollowsARealPointer();
};

void tst_QZelBaseWindows_zones::zonesAreTheDocumentedRectangles_data()
{
    QTest::addColumn<int>("padding");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QList<QRect>>("rects");
    const auto rect = [](int left, int right, int top, int bottom) {
        return QRect(QPoint(left, top), QPoint(right, bottom));
    };
    QTest::newRow("2 in 400 x 300")
            << 2 << QSize(400, 300)
            << QList<QRect> { rect(0, 1, 2, 297),     rect(398, 399, 2, 297),  rect(2, 397, 0, 1),
                              rect(2, 397, 298, 299), rect(0, 1, 0, 1),        rect(398, 399, 0, 1),
                              rect(0, 1, 298, 299),   rect(398, 399, 298, 299) };
    QTest::newRow("10 in 401 x 203")
            << 10 << QSize(401, 203)
            << QList<QRect> { rect(0, 9, 10, 192),  rect(391, 400, 10, 192),
                              rect(10, 390, 0, 9),  rect(10, 390, 193, 202),
                              rect(0, 9, 0, 9),     rect(391, 400, 0, 9),
                              rect(0, 9, 193, 202), rect(391, 400, 193, 202) };
    QTest::newRow("1 in 300 x 400")
            << 1 << QSize(300, 400)
            << QList<QRect> { rect(0, 0, 1, 398),     rect(299, 299, 1, 398),  rect(1, 298, 0, 0),
                              rect(1, 298, 399, 399), rect(0, 0, 0, 0),        rect(299, 299, 0, 0),
                              rect(0, 0, 399, 399),   rect(299, 299, 399, 399) };
}

void tst_QZelBaseWindows_zones::zonesAreTheDocumentedRectangles()
{
    QFETCH(int, padding);
    QFETCH(QSize, size);
    QFETCH(QList<QRect>, rects);
    BaseWindowProbe window;
    prepare(window, padding, size);
    QCOMPARE(window.areaRects, rects);
    window.hide();
}

// 400 x 300 with a band of 4: columns 0-3 and 396-399, rows 0-3 and 296-299.
void tst_QZelBaseWindows_zones::pressAndHoverFindTheZone_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<int>("zone");
    QTest::newRow("left, outermost column") << QPoint(0, 150) << int(Left);
    QTest::newRow("left, innermost column") << QPoint(3, 150) << int(Left);
    QTest::newRow("left, first row") << QPoint(0, 4) << int(Left);
    QTest::newRow("left, last row") << QPoint(0, 295) << int(Left);
    QTest::newRow("right of the left band") << QPoint(4, 150) << int(None);
    QTest::newRow("right, outermost column") << QPoint(399, 150) << int(Right);
    QTest::newRow("right, innermost column") << QPoint(396, 150) << int(Right);
    QTest::newRow("right, first row") << QPoint(399, 4) << int(Right);
    QTest::newRow("right, last row") << QPoint(399, 295) << int(Right);
    QTest::newRow("left of the right band") << QPoint(395, 150) << int(None);
    QTest::newRow("top, outermost row") << QPoint(200, 0) << int(Top);
    QTest::newRow("top, innermost row") << QPoint(200, 3) << int(Top);
    QTest::newRow("top, first column") << QPoint(4, 0) << int(Top);
    QTest::newRow("top, last column") << QPoint(395, 0) << int(Top);
    QTest::newRow("below the top band") << QPoint(200, 4) << int(None);
    QTest::newRow("bottom, outermost row") << QPoint(200, 299) << int(Bottom);
    QTest::newRow("bottom, innermost row") << QPoint(200, 296) << int(Bottom);
    QTest::newRow("bottom, first column") << QPoint(4, 299) << int(Bottom);
    QTest::newRow("bottom, last column") << QPoint(395, 299) << int(Bottom);
    QTest::newRow("above the bottom band") << QPoint(200, 295) << int(None);
    QTest::newRow("top left, outer corner") << QPoint(0, 0) << int(TopLeft);
    QTest::newRow("top left, inner corner") << QPoint(3, 3) << int(TopLeft);
    QTest::newRow("top left, last column") << QPoint(3, 0) << int(TopLeft);
    QTest::newRow("top left, last row") << QPoint(0, 3) << int(TopLeft);
    QTest::newRow("inside the top left corner") << QPoint(4, 4) << int(None);
    QTest::newRow("top right, outer corner") << QPoint(399, 0) << int(TopRight);
    QTest::newRow("top right, inner corner") << QPoint(396, 3) << int(TopRight);
    QTest::newRow("inside the top right corner") << QPoint(395, 4) << int(None);
    QTest::newRow("bottom left, outer corner") << QPoint(0, 299) << int(BottomLeft);
    QTest::newRow("bottom left, inner corner") << QPoint(3, 296) << int(BottomLeft);
    QTest::newRow("inside the bottom left corner") << QPoint(4, 295) << int(None);
    QTest::newRow("bottom right, outer corner") << QPoint(399, 299) << int(BottomRight);
    QTest::newRow("bottom right, inner corner") << QPoint(396, 296) << int(BottomRight);
    QTest::newRow("inside the bottom right corner") << QPoint(395, 295) << int(None);
    QTest::newRow("centre") << QPoint(200, 150) << int(None);
}

void tst_QZelBaseWindows_zones::pressAndHoverFindTheZone()
{
    QFETCH(QPoint, position);
    QFETCH(int, zone);
    BaseWindowProbe window;
    prepare(window, 4);

    window.hover(position);
    QCOMPARE(window.cursor().shape(), cursorOf(zone));
    window.press(position);
    QCOMPARE(window.pressedArea.indexOf(true), zone);
    QCOMPARE(window.pressedArea.count(true), zone == None ? 0 : 1);
    QCOMPARE(window.isPressed, zone == None);
    window.hide();
}

void tst_QZelBaseWindows_zones::everyPixelOfASmallWindowIsInItsZone()
{
    constexpr int W = 60;
    constexpr int H = 40;
    constexpr int P = 5;
    // By column (left, between, right) within row (top, between, bottom).
    constexpr int Zones[3][3] = { { TopLeft, Top, TopRight },
                                  { Left, None, Right },
                                  { BottomLeft, Bottom, BottomRight } };
    BaseWindowProbe window;
    prepare(window, P, QSize(W, H));
    for (int y = 0; y < H; ++y) {
        for (int x = 0; x < W; ++x) {
            const int zone = Zones[y < P ? 0 : y < H - P ? 1 : 2][x < P ? 0 : x < W - P ? 1 : 2];
            window.hover(QPoint(x, y));
            window.press(QPoint(x, y));
            const bool right =
                    window.pressedZone() == zone && window.cursor().shape() == cursorOf(zone);
            QVERIFY2(right, qPrintable(QStringLiteral("(%1, %2)").arg(x).arg(y)));
            window.release();
        }
    }
    window.hide();
}

void tst_QZelBaseWindows_zones::positionsAreRounded()
{
    BaseWindowProbe window;
    prepare(window, 2);
    window.press(QPointF(1.49, 150));
    QCOMPARE(window.pressPoint, QPoint(1, 150));
    QCOMPARE(window.pressedZone(), int(Left));
    window.release();
    window.press(QPointF(1.5, 149.6));
    QCOMPARE(window.pressPoint, QPoint(2, 150));
    QVERIFY(window.isPressed);
    window.release();

    window.hover(QPointF(397.5, 297.4));
    QCOMPARE(window.cursor().shape(), Qt::SizeHorCursor);
    window.hover(QPointF(397.4, 297.4));
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    window.hide();
}

void tst_QZelBaseWindows_zones::everyButtonRecordsAPress_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("left") << int(Qt::LeftButton);
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
    QTest::newRow("back") << int(Qt::BackButton);
}

void tst_QZelBaseWindows_zones::everyButtonRecordsAPress()
{
    QFETCH(int, button);
    BaseWindowProbe window;
    prepare(window, 2);
    window.press(QPoint(200, 150), Qt::MouseButton(button));
    QVERIFY(window.isPressed);
    window.release(QPoint(200, 150), Qt::MouseButton(button));
    QVERIFY(!window.isPressed);
    window.press(QPoint(0, 0), Qt::MouseButton(button));
    QCOMPARE(window.pressedZone(), int(TopLeft));
    window.hide();
}

void tst_QZelBaseWindows_zones::pressRecordsPointAndGeometry()
{
    BaseWindowProbe window;
    prepare(window, 2);
    window.press(QPoint(30, 40));
    QCOMPARE(window.pressPoint, QPoint(30, 40));
    QCOMPARE(window.pressRect, QRect(100, 100, 400, 300));
    window.release();
    window.setGeometry(50, 60, 410, 310);
    QCOMPARE(window.pressRect, QRect(100, 100, 400, 300));
    window.press(QPoint(31, 41));
    QCOMPARE(window.pressPoint, QPoint(31, 41));
    QCOMPARE(window.pressRect, QRect(50, 60, 410, 310));
    window.hide();
}

void tst_QZelBaseWindows_zones::pressIsRecordedWhileSwitchedOff()
{
    BaseWindowProbe window;
    prepare(window, 2);
    window.setMoveEnable(false);
    window.setResizeEnable(false);
    window.press(QPoint(0, 150));
    QCOMPARE(window.pressedZone(), int(Left));
    window.release();
    window.press(QPoint(200, 150));
    QVERIFY(window.isPressed);
    window.hide();
}

// The release went to another widget.
void tst_QZelBaseWindows_zones::secondPressWithoutReleaseKeepsBoth()
{
    BaseWindowProbe window;
    prepare(window, 2);
    window.press(QPoint(0, 150));
    window.press(QPoint(200, 150));
    QCOMPARE(window.pressedZone(), int(Left));
    QVERIFY(window.isPressed);
    window.release();
    QCOMPARE(window.pressedArea.count(true), 0);
    QVERIFY(!window.isPressed);
    window.hide();
}

void tst_QZelBaseWindows_zones::releaseForgetsThePress()
{
    BaseWindowProbe window;
    prepare(window, 2);
    window.hover(QPoint(0, 150));
    QCOMPARE(window.cursor().shape(), Qt::SizeHorCursor);
    window.press(QPoint(0, 150));
    // Any button's, anywhere, and the pointer is an arrow even over the band.
    window.release(QPoint(0, 150), Qt::RightButton);
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(window.pressedArea.count(true), 0);
    QCOMPARE(window.pressedArea.size(), 8);

    window.setResizeEnable(false);
    window.setCursor(Qt::CrossCursor);
    window.release();
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    window.hide();
}

void tst_QZelBaseWindows_zones::pressBeforeTheFirstResizeIsAMove()
{
    BaseWindowProbe window;
    window.hover(QPoint(0, 0));
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    window.press(QPoint(0, 0));
    QVERIFY(window.isPressed);
    QCOMPARE(window.pressedArea.count(true), 0);
}

void tst_QZelBaseWindows_zones::paddingTakesEffectAtTheNextResize()
{
    BaseWindowProbe window;
    prepare(window, 2);
    const QList<QRect> before = window.areaRects;
    window.setPadding(20);
    QCOMPARE(window.areaRects, before);
    window.hover(QPoint(10, 150));
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    window.move(110, 110);
    QCOMPARE(window.areaRects, before);

    window.resize(401, 300);
    QCOMPARE(window.areaRects.at(Left), QRect(0, 20, 20, 260));
    window.hover(QPoint(10, 150));
    QCOMPARE(window.cursor().shape(), Qt::SizeHorCursor);
    window.hide();
}

void tst_QZelBaseWindows_zones::zonesFollowTheSize()
{
    BaseWindowProbe window;
    prepare(window, 2);
    window.resize(500, 200);
    QCOMPARE(window.areaRects.at(BottomRight), QRect(498, 198, 2, 2));
    window.press(QPoint(398, 150));
    QVERIFY(window.isPressed);
    window.hide();
}

void tst_QZelBaseWindows_zones::noPaddingMeansNoZones_data()
{
    QTest::addColumn<int>("padding");
    QTest::newRow("0") << 0;
    QTest::newRow("-1") << -1;
    QTest::newRow("-50") << -50;
    QTest::newRow("INT_MIN") << std::numeric_limits<int>::min();
}

void tst_QZelBaseWindows_zones::noPaddingMeansNoZones()
{
    QFETCH(int, padding);
    BaseWindowProbe window;
    prepare(window, padding);
    QCOMPARE(window.padding, padding);
    const QPoint points[] = { { 0, 0 },   { 399, 0 },   { 0, 299 },   { 399, 299 },
                              { 0, 150 }, { 399, 150 }, { 200, 0 },   { 200, 299 },
                              { -1, -1 }, { 400, 300 }, { 200, 150 }, { -20, 150 } };
    for (const QPoint &point : points) {
        window.hover(point);
        QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
        window.press(point);
        QVERIFY(window.isPressed);
        QCOMPARE(window.pressedArea.count(true), 0);
        window.release();
    }
    window.hide();
}

void tst_QZelBaseWindows_zones::bandWiderThanTheWindowCoversIt_data()
{
    QTest::addColumn<int>("padding");
    QTest::newRow("half the height") << 150;
    QTest::newRow("the height") << 300;
    QTest::newRow("the width") << 400;
    QTest::newRow("more than both") << 1000;
    QTest::newRow("half of INT_MAX") << std::numeric_limits<int>::max() / 2 + 1;
    QTest::newRow("INT_MAX") << std::numeric_limits<int>::max();
}

void tst_QZelBaseWindows_zones::bandWiderThanTheWindowCoversIt()
{
    QFETCH(int, padding);
    BaseWindowProbe window;
    prepare(window, padding);
    QCOMPARE(window.padding, padding);
    for (int y = 0; y < 300; y += 23) {
        for (int x = 0; x < 400; x += 19) {
            window.press(QPoint(x, y));
            QVERIFY(!window.isPressed);
            QCOMPARE(window.pressedArea.count(true), 1);
            window.release();
        }
    }
    window.hide();
}

void tst_QZelBaseWindows_zones::hoverWhileDraggingStillSetsTheCursor()
{
    BaseWindowProbe window;
    prepare(window, 2);
    window.setMoveEnable(false);
    window.press(QPoint(200, 150));
    window.hover(QPoint(200, 0));
    QCOMPARE(window.cursor().shape(), Qt::SizeVerCursor);
    window.hover(QPoint(200, 150));
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    window.hide();
}

void tst_QZelBaseWindows_zones::cursorStaysWhileResizingIsOff()
{
    BaseWindowProbe window;
    prepare(window, 2);
    window.setResizeEnable(false);
    window.setCursor(Qt::CrossCursor);
    window.hover(QPoint(0, 0));
    QCOMPARE(window.cursor().shape(), Qt::CrossCursor);
    window.hover(QPoint(200, 150));
    QCOMPARE(window.cursor().shape(), Qt::CrossCursor);

    window.setResizeEnable(true);
    window.hover(QPoint(200, 150));
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    window.hide();
}

void tst_QZelBaseWindows_zones::cursorFollowsARealPointer()
{
    BaseWindowProbe window;
    window.setAttribute(Qt::WA_Hover);
    prepare(window, 4);
    Pointer pointer(&window);
    const QPoint corner = window.pos();
    pointer.moveTo(corner + QPoint(200, 150));
    pointer.moveTo(corner + QPoint(1, 1));
    QCOMPARE(window.cursor().shape(), Qt::SizeFDiagCursor);
    pointer.moveTo(corner + QPoint(398, 1));
    QCOMPARE(window.cursor().shape(), Qt::SizeBDiagCursor);
    pointer.moveTo(corner + QPoint(200, 298));
    QCOMPARE(window.cursor().shape(), Qt::SizeVerCursor);
    pointer.moveTo(corner + QPoint(200, 150));
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(window.geometry(), QRect(100, 100, 400, 300));
    window.hide();
}

QTARNKIT_TEST_MAIN(tst_QZelBaseWindows_zones)
#include "tst_QZelBaseWindows_zones.moc"
