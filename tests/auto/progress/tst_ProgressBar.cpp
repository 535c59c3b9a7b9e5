#include "Pixels.h"
#include "TestMain.h"

#include <ProgressBar.h>

#include <limits>

namespace {

constexpr int Min = std::numeric_limits<int>::min();
constexpr int Max = std::numeric_limits<int>::max();

constexpr QRgb Track = 0xff0f0f0f;
constexpr QRgb Fill = 0xffff6802;

// High enough for straight edges in the middle, between the rounded corners.
constexpr QSize BarSize(200, 40);
constexpr int MiddleRow = 20;

class ProgressBarProbe : public ProgressBar
{
public:
    explicit ProgressBarProbe(QWidget *parent = nullptr)
        : ProgressBar(parent)
    {
        resize(BarSize);
    }

    using ProgressBar::maximum;
    using ProgressBar::minimum;
    using ProgressBar::value;

    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        ProgressBar::paintEvent(event);
    }
};

// How many pixels at the left of a row have the fill's colour; -1 unless all others have the track's.
int fillOf(const QImage &image, int row = MiddleRow)
{
    int x = 0;
    while (x < image.width() && image.pixel(x, row) == Fill)
        ++x;
    for (int rest = x; rest < image.width(); ++rest) {
        if (image.pixel(rest, row) != Track)
            return -1;
    }
    return x;
}

} // namespace

class tst_ProgressBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainWidget();
    void membersStartAsDocumented();
    void valueIsClamped_data();
    void valueIsClamped();
    void rangeIsStoredAsGiven_data();
    void rangeIsStoredAsGiven();
    void fillWidthFollowsTheValue_data();
    void fillWidthFollowsTheValue();
    void valueLeftOutsideTheRange_data();
    void valueLeftOutsideTheRange();
    void maximumBelowMinimum();
    void trackIsRounded();
    void fillIsRounded();
    void lowBarIsAPill();
    void nothingElseIsPainted();
    void changesRepaint();
    void barWithoutASizePaintsNothing();
};

void tst_ProgressBar::isAPlainWidget()
{
    const QMetaObject &meta = ProgressBar::staticMetaObject;
    QCOMPARE(meta.className(), "ProgressBar");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QWidget parent;
    ProgressBar bar(&parent);
    QCOMPARE(bar.parentWidget(), &parent);
    QVERIFY(bar.qt_metacast("ProgressBar"));
    QVERIFY(bar.children().isEmpty());
}

void tst_ProgressBar::membersStartAsDocumented()
{
    const ProgressBarProbe bar;
    QCOMPARE(bar.minimum, 0);
    QCOMPARE(bar.maximum, 100);
    QCOMPARE(bar.value, 0);
}

void tst_ProgressBar::valueIsClamped_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("result");
    QTest::newRow("inside") << 0 << 100 << 42 << 42;
    QTest::newRow("at the minimum") << 10 << 20 << 10 << 10;
    QTest::newRow("at the maximum") << 10 << 20 << 20 << 20;
    QTest::newRow("above") << 0 << 100 << 150 << 100;
    QTest::newRow("below") << 0 << 100 << -5 << 0;
    QTest::newRow("INT_MAX") << 0 << 100 << Max << 100;
    QTest::newRow("INT_MIN") << 0 << 100 << Min << 0;
    QTest::newRow("whole range of int") << Min << Max << -7 << -7;
    QTest::newRow("empty range") << 5 << 5 << 7 << 5;
    // The upper bound goes first, so the lower one wins.
    QTest::newRow("maximum below minimum, between") << 100 << 0 << 50 << 100;
    QTest::newRow("maximum below minimum, above") << 100 << 0 << 150 << 100;
    QTest::newRow("maximum below minimum, below") << 100 << 0 << -50 << 100;
    QTest::newRow("INT_MAX to INT_MIN") << Max << Min << 0 << Max;
}

void tst_ProgressBar::valueIsClamped()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    QFETCH(int, result);
    ProgressBarProbe bar;
    bar.setRange(minimum, maximum);
    bar.setValue(value);
    QCOMPARE(bar.value, result);
}

void tst_ProgressBar::rangeIsStoredAsGiven_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::newRow("ordered") << 10 << 20;
    QTest::newRow("reversed") << 20 << 10;
    QTest::newRow("equal") << 0 << 0;
    QTest::newRow("negative") << -20 << -10;
    QTest::newRow("INT_MIN to INT_MAX") << Min << Max;
    QTest::newRow("INT_MAX to INT_MIN") << Max << Min;
}

void tst_ProgressBar::rangeIsStoredAsGiven()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    ProgressBarProbe bar;
    bar.setValue(42);
    bar.setRange(minimum, maximum);
    QCOMPARE(bar.minimum, minimum);
    QCOMPARE(bar.maximum, maximum);
    QCOMPARE(bar.value, 42);
    // Whatever it looks like, it can be painted.
    QVERIFY(fillOf(Pixels::rendered(&bar)) >= 0);
}

void tst_ProgressBar::fillWidthFollowsTheValue_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("fill");
    QTest::newRow("empty") << 0 << 100 << 0 << 200 << 0;
    QTest::newRow("half") << 0 << 100 << 50 << 200 << 100;
    QTest::newRow("full") << 0 << 100 << 100 << 200 << 200;
    QTest::newRow("nearly full") << 0 << 200 << 199 << 200 << 199;
    QTest::newRow("150 of 100") << 0 << 100 << 150 << 200 << 200;
    QTest::newRow("-5 of 100") << 0 << 100 << -5 << 200 << 0;
    QTest::newRow("one third") << 0 << 3 << 1 << 200 << 66;
    QTest::newRow("two thirds") << 0 << 3 << 2 << 200 << 133;
    QTest::newRow("six sevenths") << 0 << 7 << 6 << 200 << 171;
    // 0.29 is a little less in double.
    QTest::newRow("29 of 100 pixels") << 0 << 100 << 29 << 100 << 28;
    QTest::newRow("middle of a part") << 10 << 20 << 15 << 200 << 100;
    QTest::newRow("negative range") << -30 << -10 << -25 << 200 << 50;
    QTest::newRow("around zero") << -100 << 100 << 50 << 200 << 150;
    QTest::newRow("whole range of int, lowest") << Min << Max << Min << 200 << 0;
    QTest::newRow("whole range of int, middle") << Min << Max << 0 << 200 << 100;
    QTest::newRow("whole range of int, highest") << Min << Max << Max << 200 << 200;
    QTest::newRow("end of int") << Max - 10 << Max << Max - 5 << 200 << 100;
    QTest::newRow("start of int") << Min << Min + 10 << Min + 5 << 200 << 100;
    QTest::newRow("no range") << 50 << 50 << 50 << 200 << 0;
    QTest::newRow("no range at INT_MAX") << Max << Max << Max << 200 << 0;
    QTest::newRow("no range at INT_MIN") << Min << Min << Min << 200 << 0;
}

void tst_ProgressBar::fillWidthFollowsTheValue()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    QFETCH(int, width);
    QFETCH(int, fill);
    ProgressBarProbe bar;
    bar.resize(width, BarSize.height());
    bar.setRange(minimum, maximum);
    bar.setValue(value);
    QCOMPARE(fillOf(Pixels::rendered(&bar)), fill);
}

// The range is set after the value, which stays.
void tst_ProgressBar::valueLeftOutsideTheRange_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("fill");
    QTest::newRow("above") << 80 << 0 << 40 << 200;
    QTest::newRow("far above") << Max << 0 << 1 << 200;
    QTest::newRow("below") << 80 << 90 << 100 << 0;
    QTest::newRow("far below") << Min << 0 << 1 << 0;
    QTest::newRow("no range above") << 80 << 90 << 90 << 0;
    QTest::newRow("no range below") << 80 << 10 << 10 << 0;
    QTest::newRow("reversed, between") << 25 << 100 << 0 << 150;
    QTest::newRow("reversed, above") << 150 << 100 << 0 << 0;
    QTest::newRow("reversed, far below") << Min << 1 << 0 << 200;
    QTest::newRow("reversed, whole range of int") << 0 << Max << Min << 99;
}

void tst_ProgressBar::valueLeftOutsideTheRange()
{
    QFETCH(int, value);
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, fill);
    ProgressBarProbe bar;
    bar.setRange(Min, Max);
    bar.setValue(value);
    bar.setRange(minimum, maximum);
    QCOMPARE(bar.value, value);
    const QImage image = Pixels::rendered(&bar);
    QCOMPARE(fillOf(image), fill);
    // A fill that goes on beyond the edge has no rounded end in sight.
    if (fill == BarSize.width())
        COMPARE_PIXEL(image, 199, 0, Fill);
}

void tst_ProgressBar::maximumBelowMinimum()
{
    ProgressBarProbe bar;
    bar.setValue(50);
    bar.setRange(100, 0);
    QCOMPARE(fillOf(Pixels::rendered(&bar)), 100);
    bar.setValue(50);
    QCOMPARE(bar.value, 100);
    QCOMPARE(fillOf(Pixels::rendered(&bar)), 0);
}

void tst_ProgressBar::trackIsRounded()
{
    ProgressBarProbe bar;
    const QImage image = Pixels::rendered(&bar);
    for (const int x : { 0, 199 }) {
        for (const int y : { 0, 39 }) {
            COMPARE_PIXEL(image, x, y, Qt::transparent);
            // The radius is 5: the edges are straight and full from there on.
            COMPARE_PIXEL(image, x == 0 ? 5 : 194, y, Track);
            COMPARE_PIXEL(image, x, y == 0 ? 5 : 34, Track);
            // And the corner is smooth in between.
            const int alpha = qAlpha(image.pixel(x == 0 ? 3 : 196, y));
            QVERIFY(alpha > 0 && alpha < 255);
        }
    }
}

void tst_ProgressBar::fillIsRounded()
{
    ProgressBarProbe bar;
    bar.setValue(50);
    const QImage image = Pixels::rendered(&bar);
    for (const int y : { 0, 39 }) {
        COMPARE_PIXEL(image, 0, y, Qt::transparent);
        COMPARE_PIXEL(image, 5, y, Fill);
        COMPARE_PIXEL(image, 94, y, Fill);
        COMPARE_PIXEL(image, 99, y, Track);
        COMPARE_PIXEL(image, 99, y == 0 ? 5 : 34, Fill);
        COMPARE_PIXEL(image, 100, y == 0 ? 5 : 34, Track);
    }
}

// 5 pixels high nothing of the ends is straight.
void tst_ProgressBar::lowBarIsAPill()
{
    ProgressBarProbe bar;
    bar.resize(200, 5);
    bar.setValue(50);
    const QImage image = Pixels::rendered(&bar);
    for (const int x : { 0, 199 }) {
        QVERIFY(qAlpha(image.pixel(x, 0)) < 100);
        QVERIFY(qAlpha(image.pixel(x, 4)) < 100);
        QVERIFY(qAlpha(image.pixel(x, 2)) > 200);
    }
    for (const int y : { 0, 2, 4 }) {
        COMPARE_PIXEL(image, 5, y, Fill);
        COMPARE_PIXEL(image, 94, y, Fill);
        COMPARE_PIXEL(image, 100, y, Track);
        COMPARE_PIXEL(image, 194, y, Track);
    }
    for (const int y : { 0, 1, 3, 4 })
        QVERIFY(image.pixel(99, y) != Fill);
}

// No outline and no text.
void tst_ProgressBar::nothingElseIsPainted()
{
    ProgressBarProbe bar;
    bar.setValue(50);
    const QImage image = Pixels::rendered(&bar);
    for (int y = 0; y < 40; ++y) {
        for (int x = 5; x < 94; ++x)
            QCOMPARE(image.pixel(x, y), Fill);
        for (int x = 100; x < 195; ++x)
            QCOMPARE(image.pixel(x, y), Track);
    }
}

void tst_ProgressBar::changesRepaint()
{
    ProgressBarProbe bar;
    bar.show();
    QTRY_VERIFY(bar.paints > 0);
    int before = bar.paints;
    bar.setValue(70);
    QTRY_VERIFY(bar.paints > before);
    before = bar.paints;
    bar.setRange(0, 200);
    QTRY_VERIFY(bar.paints > before);
    bar.hide();
}

void tst_ProgressBar::barWithoutASizePaintsNothing()
{
    ProgressBarProbe bar;
    bar.setValue(50);
    bar.resize(0, 0);
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    bar.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    COMPARE_PIXEL(image, 0, 0, Qt::transparent);
    bar.resize(1, 40);
    bar.setValue(100);
    QCOMPARE(bar.grab().size(), QSize(1, 40));
    QVERIFY(qAlpha(Pixels::rendered(&bar).pixel(0, MiddleRow)) > 0);
}

QTARNKIT_TEST_MAIN(tst_ProgressBar)
#include "tst_ProgressBar.moc"
