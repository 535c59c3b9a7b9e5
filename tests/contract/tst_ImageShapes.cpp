// What the images show, told by sampled pixels: an image may be redrawn, but not into something
// else.

#include "ImagePixels.h"
#include "TestMain.h"

#include <QtMath>

#include <algorithm>

namespace {

struct Glyph
{
    const char *name;
    QVector<QPoint> ink;
    QVector<QPoint> gaps;
};

// Enough points of each glyph that no other one fits them.
const Glyph glyphs[] = {
    { "check",
      { { 9, 15 }, { 11, 17 }, { 13, 18 }, { 16, 15 }, { 20, 11 } },
      { { 10, 11 }, { 18, 18 }, { 14, 9 } } },
    { "cross",
      { { 10, 10 }, { 12, 12 }, { 19, 19 }, { 19, 10 }, { 10, 19 }, { 14, 14 } },
      { { 14, 10 }, { 10, 14 }, { 19, 14 }, { 14, 19 } } },
    { "exclamation",
      { { 14, 10 }, { 15, 10 }, { 14, 15 }, { 15, 15 }, { 14, 20 }, { 15, 21 } },
      { { 14, 18 }, { 15, 18 }, { 11, 12 }, { 18, 12 } } },
    { "question",
      { { 10, 11 }, { 14, 7 }, { 15, 8 }, { 18, 11 }, { 16, 15 }, { 14, 20 }, { 15, 21 } },
      { { 14, 11 }, { 11, 15 }, { 14, 18 }, { 15, 18 } } },
};

// At least half covered: what the eye takes for a part of the shape.
bool isInk(const QImage &image, const QPoint &point)
{
    return alpha(image, point) >= 128;
}

bool isClear(const QImage &image, const QPoint &point)
{
    return alpha(image, point) == 0;
}

// The pixel at a distance and an angle (degrees, clockwise from three o'clock) from the centre.
QPoint polar(const QImage &image, qreal radius, qreal degrees)
{
    const qreal angle = qDegreesToRadians(degrees);
    return QPoint(qFloor(image.width() / 2.0 + radius * qCos(angle)),
                  qFloor(image.height() / 2.0 + radius * qSin(angle)));
}

QVector<QPoint> inkOf(const QImage &image)
{
    return pixelsWhere(image, [&image](const QPoint &point) { return isInk(image, point); });
}

QRect boundsOf(const QVector<QPoint> &points)
{
    QRect bounds;
    for (const QPoint &point : points)
        bounds |= QRect(point, QSize(1, 1));
    return bounds;
}

bool isOnOutline(const QRect &rect, const QPoint &point)
{
    return rect.contains(point) && !rect.adjusted(1, 1, -1, -1).contains(point);
}

// Left against right. A renderer may weigh the two edges of a slanted stroke a little differently.
bool isMirrorSymmetric(const QImage &image)
{
    const QImage mirrored = image.mirrored(true, false);
    const auto differs = [&image, &mirrored](const QPoint &point) {
        return qAbs(alpha(image, point) - alpha(mirrored, point)) > 16;
    };
    return pixelsWhere(image, differs).isEmpty();
}

bool shows(const QImage &image, const Glyph &glyph)
{
    const auto ink = [&image](const QPoint &point) { return isInk(image, point); };
    const auto gap = [&image](const QPoint &point) { return isClear(image, point); };
    return std::all_of(glyph.ink.begin(), glyph.ink.end(), ink)
           && std::all_of(glyph.gaps.begin(), glyph.gaps.end(), gap);
}

} // namespace

class tst_ImageShapes : public TestCase
{
    Q_OBJECT

public:
    tst_ImageShapes();

private Q_SLOTS:
    void messageImageIsACircleAroundItsGlyph_data();
    void messageImageIsACircleAroundItsGlyph();
    void warningImageIsATriangleAroundItsGlyph();
    void messageImageShowsItsGlyphAndNoOther_data();
    void messageImageShowsItsGlyphAndNoOther();
    void straightStrokesFillWholePixels();
    void loadingIconIsAnArcOnTheLeft();
    void loadingIconCoversAThirdOfTheRing();
    void closeImageIsACentredCross_data();
    void closeImageIsACentredCross();
    void pressedCloseCrossIsBolderThanTheNormalOne();
    void maximizeImageIsOneCentredSquareOutline();
    void restoreImageIsTwoOverlappingSquareOutlines();
};

tst_ImageShapes::tst_ImageShapes()
{
    // The library has done so itself. Naming one of its symbols keeps a linker from dropping it.
    Q_INIT_RESOURCE(QTarnKit);
}

void tst_ImageShapes::messageImageIsACircleAroundItsGlyph_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : { "ok", "error", "ask", "default" })
        QTest::newRow(name) << QByteArray(name);
}

void tst_ImageShapes::messageImageIsACircleAroundItsGlyph()
{
    QFETCH(const QByteArray, name);
    const QImage image = load(name.constData());
    for (int degrees = 0; degrees < 360; degrees += 5) {
        QVERIFY2(isInk(image, polar(image, 13, degrees)), QByteArray::number(degrees));
        QVERIFY2(isClear(image, polar(image, 10.3, degrees)), QByteArray::number(degrees));
    }
    for (const QPoint &compass : { QPoint(14, 2), QPoint(27, 14), QPoint(15, 27), QPoint(2, 15) })
        QCOMPARE(alpha(image, compass), 255);
}

void tst_ImageShapes::warningImageIsATriangleAroundItsGlyph()
{
    const QImage image = load("waring");
    QVERIFY(isMirrorSymmetric(image));

    // Apex and base are closed; in every row between, the sides are further apart, or as far,
    // and nothing but the glyph is inside.
    QVERIFY(isInk(image, QPoint(14, 3)));
    for (int x = 4; x < 26; ++x)
        QCOMPARE(alpha(image, QPoint(x, 25)), 255);
    int previous = image.width();
    for (int y = 4; y < 24; ++y) {
        int left = 0;
        while (left < 15 && !isInk(image, QPoint(left, y)))
            ++left;
        QVERIFY2(left < 13 && left <= previous, QByteArray::number(y));
        previous = left;
        for (int x = left + 5; x < 13; ++x)
            QVERIFY2(isClear(image, QPoint(x, y)), QByteArray::number(y));
    }
    QVERIFY(previous <= 2);
}

void tst_ImageShapes::messageImageShowsItsGlyphAndNoOther_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("glyph");
    QTest::newRow("ok") << QByteArray("ok") << QByteArray("check");
    QTest::newRow("waring") << QByteArray("waring") << QByteArray("exclamation");
    QTest::newRow("error") << QByteArray("error") << QByteArray("cross");
    QTest::newRow("ask") << QByteArray("ask") << QByteArray("question");
    QTest::newRow("default") << QByteArray("default") << QByteArray("exclamation");
}

void tst_ImageShapes::messageImageShowsItsGlyphAndNoOther()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, glyph);
    const QImage image = load(name.constData());
    for (const Glyph &candidate : glyphs)
        QVERIFY2(shows(image, candidate) == (glyph == candidate.name), candidate.name);
}

void tst_ImageShapes::straightStrokesFillWholePixels()
{
    for (const char *name : { "waring", "default" }) {
        const QImage image = load(name);
        for (int y = 11; y < 16; ++y) {
            const int expected[] = { 0, 255, 255, 0 };
            for (int i = 0; i < 4; ++i)
                QCOMPARE(alpha(image, QPoint(13 + i, y)), expected[i]);
        }
    }
    const QImage warning = load("waring");
    QCOMPARE(alpha(warning, QPoint(10, 24)), 0);
    QCOMPARE(alpha(warning, QPoint(10, 25)), 255);
    QCOMPARE(alpha(warning, QPoint(10, 26)), 255);
    QCOMPARE(alpha(warning, QPoint(10, 27)), 0);
}

void tst_ImageShapes::loadingIconIsAnArcOnTheLeft()
{
    const QImage image = load("ic_loading");
    const QVector<QPoint> ink = inkOf(image);
    QVERIFY(!ink.isEmpty());
    for (const QPoint &point : ink) {
        const qreal radius = qSqrt(qPow(point.x() + 0.5 - 14, 2) + qPow(point.y() + 0.5 - 14, 2));
        QVERIFY2(radius > 9.5 && radius < 13.5, QByteArray::number(radius));
    }
    const auto stainedRight = [&image](const QPoint &point) {
        return point.x() >= image.width() / 2 && !isClear(image, point);
    };
    QVERIFY(pixelsWhere(image, stainedRight).isEmpty());
}

void tst_ImageShapes::loadingIconCoversAThirdOfTheRing()
{
    const QImage image = load("ic_loading");
    int first = 360;
    int last = -1;
    int covered = 0;
    for (int degrees = 0; degrees < 360; ++degrees) {
        if (isInk(image, polar(image, 11.5, degrees))) {
            first = qMin(first, degrees);
            last = degrees;
            ++covered;
        }
    }
    QVERIFY2(covered >= 90 && covered <= 150, QByteArray::number(covered));
    QCOMPARE(last - first + 1, covered); // one arc, in one piece
    QVERIFY2(qAbs((first + last) / 2 - 180) <= 5, QByteArray::number((first + last) / 2));
}

void tst_ImageShapes::closeImageIsACentredCross_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("normal") << QByteArray("msg_close_normal");
    QTest::newRow("pressed") << QByteArray("msg_close_click");
}

void tst_ImageShapes::closeImageIsACentredCross()
{
    QFETCH(const QByteArray, name);
    const QImage image = load(name.constData());
    QCOMPARE(boundsOf(inkOf(image)), QRect(6, 6, 12, 12));
    QVERIFY(isMirrorSymmetric(image));
    for (int i = 7; i < 17; ++i) {
        QVERIFY2(isInk(image, QPoint(i, i)), QByteArray::number(i));
        QVERIFY2(isInk(image, QPoint(i, 23 - i)), QByteArray::number(i));
    }
    for (const QPoint &between : { QPoint(12, 7), QPoint(16, 12), QPoint(11, 16), QPoint(7, 11) })
        QVERIFY(isClear(image, between));
}

void tst_ImageShapes::pressedCloseCrossIsBolderThanTheNormalOne()
{
    const QImage normal = load("msg_close_normal");
    const QImage pressed = load("msg_close_click");
    QVERIFY(opaqueCount(pressed) >= 2 * opaqueCount(normal));
    // Beside the diagonal, the one is bare where the other is solid.
    QVERIFY(isClear(normal, QPoint(10, 8)));
    QCOMPARE(alpha(pressed, QPoint(9, 8)), 255);
}

void tst_ImageShapes::maximizeImageIsOneCentredSquareOutline()
{
    const QImage image = load("windowshift_ic_maximize");
    QCOMPARE(image.size(), QSize(32, 32));
    const QRect square(10, 10, 12, 12);
    const auto points = pixelsWhere(image, [](const QPoint &) { return true; });
    for (const QPoint &point : points)
        QCOMPARE(alpha(image, point), isOnOutline(square, point) ? 255 : 0);
}

void tst_ImageShapes::restoreImageIsTwoOverlappingSquareOutlines()
{
    const QImage image = load("windowshift_ic_normal");
    QCOMPARE(image.size(), QSize(32, 32));
    const QRect front(10, 13, 9, 9);
    const QRect back(13, 10, 9, 9);
    const auto points = pixelsWhere(image, [](const QPoint &) { return true; });
    for (const QPoint &point : points) {
        const bool expected =
                front.contains(point) ? isOnOutline(front, point) : isOnOutline(back, point);
        QCOMPARE(alpha(image, point), expected ? 255 : 0);
    }
}

QTARNKIT_TEST_MAIN(tst_ImageShapes)
#include "tst_ImageShapes.moc"
