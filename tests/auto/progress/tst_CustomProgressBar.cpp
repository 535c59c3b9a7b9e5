#include "Pixels.h"
#include "TestMain.h"

#include <CustomProgressBar.h>

#include <QMetaMethod>

#include <limits>

namespace {

constexpr QRgb Ground = 0xffc0c0c0;
constexpr QRgb Fill = 0xff00ff00;

class BarProbe : public CustomProgressBar
{
public:
    explicit BarProbe(QWidget *parent = nullptr)
        : CustomProgressBar(parent)
    {}

    using CustomProgressBar::closeEvent;
    using CustomProgressBar::progress;

    int paints = 0;
    int shows = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        CustomProgressBar::paintEvent(event);
    }

    void showEvent(QShowEvent *event) override
    {
        ++shows;
        CustomProgressBar::showEvent(event);
    }
};

// How many columns at the left have the fill's colour from top to bottom; -1 unless all others have
// the ground's.
int fillOf(QWidget *bar)
{
    const QImage image = Pixels::rendered(bar);
    int columns = 0;
    for (int x = 0; x < image.width(); ++x) {
        const QRgb color = image.pixel(x, 0);
        if (color != Fill && color != Ground)
            return -1;
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(x, y) != color)
                return -1;
        }
        if (color == Fill && columns++ < x)
            return -1;
    }
    return columns;
}

} // namespace

class tst_CustomProgressBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void startsHiddenAndEmpty();
    void isAModalFramelessWindowOnTop();
    void isCentredOnItsParent_data();
    void isCentredOnItsParent();
    void withoutAParentNoGeometryIsSet();
    void percentageIsStored_data();
    void percentageIsStored();
    void fillFollowsThePercentage_data();
    void fillFollowsThePercentage();
    void firstProgressShowsTheBar();
    void progressIsPaintedAtOnce();
    void closingEmptiesTheBar();
    void closedBarShowsEmptyUntilTheNextProgress();
    void hidingKeepsTheProgress();
    void ownerKeepsAClosedBar();
};

void tst_CustomProgressBar::metaObject()
{
    const QMetaObject &meta = CustomProgressBar::staticMetaObject;
    QCOMPARE(meta.className(), "CustomProgressBar");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), QByteArray("SetProgress(int)"));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
    QCOMPARE(slot.access(), QMetaMethod::Public);
    QCOMPARE(slot.parameterNames(), QList<QByteArray>({ "value" }));
}

void tst_CustomProgressBar::startsHiddenAndEmpty()
{
    QWidget parent;
    const BarProbe bar(&parent);
    QVERIFY(!bar.isVisible());
    QVERIFY(bar.isHidden());
    QCOMPARE(bar.progress, 0);
}

void tst_CustomProgressBar::isAModalFramelessWindowOnTop()
{
    QWidget parent;
    const BarProbe child(&parent);
    const BarProbe single;
    const Qt::WindowFlags flags = Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
    for (const BarProbe *bar : { &child, &single }) {
        QCOMPARE(bar->windowFlags() & flags, flags);
        QCOMPARE(bar->windowModality(), Qt::ApplicationModal);
        QVERIFY(bar->isWindow());
    }
    QCOMPARE(child.parentWidget(), &parent);
}

void tst_CustomProgressBar::isCentredOnItsParent_data()
{
    QTest::addColumn<QRect>("parent");
    QTest::addColumn<QPoint>("position");
    QTest::newRow("even") << QRect(100, 200, 800, 600) << QPoint(350, 485);
    QTest::newRow("odd") << QRect(100, 200, 801, 601) << QPoint(350, 485);
    QTest::newRow("smaller than the bar") << QRect(100, 200, 100, 10) << QPoint(0, 190);
    // Cut off towards zero, not down.
    QTest::newRow("odd and left of zero") << QRect(0, 0, 101, 9) << QPoint(-99, -10);
    QTest::newRow("far left") << QRect(-900, -500, 301, 201) << QPoint(-899, -414);
}

void tst_CustomProgressBar::isCentredOnItsParent()
{
    QFETCH(QRect, parent);
    QFETCH(QPoint, position);
    QWidget window;
    // In the parent's own frame: the window's place does not count.
    window.setGeometry(50, 60, 1000, 800);
    auto *panel = new QWidget(&window);
    panel->setGeometry(parent);
    const BarProbe bar(panel);
    QCOMPARE(bar.geometry(), QRect(position, QSize(300, 30)));
}

void tst_CustomProgressBar::withoutAParentNoGeometryIsSet()
{
    const BarProbe bar;
    QVERIFY(!bar.testAttribute(Qt::WA_Moved));
    QVERIFY(!bar.testAttribute(Qt::WA_Resized));
    QCOMPARE(bar.geometry(), QWidget().geometry());
}

void tst_CustomProgressBar::percentageIsStored_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("progress");
    QTest::newRow("0") << 0 << 1;
    QTest::newRow("-1") << -1 << 1;
    QTest::newRow("INT_MIN") << std::numeric_limits<int>::min() << 1;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("2") << 2 << 2;
    QTest::newRow("100") << 100 << 100;
    QTest::newRow("101") << 101 << 101;
    QTest::newRow("INT_MAX") << std::numeric_limits<int>::max() << std::numeric_limits<int>::max();
}

void tst_CustomProgressBar::percentageIsStored()
{
    QFETCH(int, value);
    QFETCH(int, progress);
    BarProbe bar;
    QVERIFY(QMetaObject::invokeMethod(&bar, "SetProgress", Q_ARG(int, value)));
    QCOMPARE(bar.progress, progress);
    bar.hide();
}

void tst_CustomProgressBar::fillFollowsThePercentage_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("fill");
    QTest::newRow("0") << 0 << 300 << 3;
    QTest::newRow("negative") << -20 << 300 << 3;
    QTest::newRow("1") << 1 << 300 << 3;
    QTest::newRow("33") << 33 << 300 << 99;
    QTest::newRow("50") << 50 << 300 << 150;
    QTest::newRow("99") << 99 << 300 << 297;
    QTest::newRow("100") << 100 << 300 << 300;
    QTest::newRow("101") << 101 << 300 << 300;
    QTest::newRow("1000") << 1000 << 300 << 300;
    QTest::newRow("INT_MAX") << std::numeric_limits<int>::max() << 300 << 300;
    QTest::newRow("INT_MIN") << std::numeric_limits<int>::min() << 300 << 3;
    QTest::newRow("half of an odd width") << 50 << 301 << 150;
    QTest::newRow("less than a pixel") << 1 << 99 << 0;
    QTest::newRow("resized") << 25 << 400 << 100;
}

void tst_CustomProgressBar::fillFollowsThePercentage()
{
    QFETCH(int, value);
    QFETCH(int, width);
    QFETCH(int, fill);
    QWidget parent;
    BarProbe bar(&parent);
    bar.resize(width, 30);
    bar.SetProgress(value);
    QCOMPARE(fillOf(&bar), fill);
    bar.hide();
}

void tst_CustomProgressBar::firstProgressShowsTheBar()
{
    QWidget parent;
    BarProbe bar(&parent);
    bar.SetProgress(10);
    QVERIFY(bar.isVisible());
    QCOMPARE(bar.size(), QSize(300, 30));
    bar.SetProgress(20);
    QVERIFY(bar.isVisible());
    QCOMPARE(bar.shows, 1);
    bar.hide();
    bar.SetProgress(30);
    QVERIFY(bar.isVisible());
    QCOMPARE(bar.shows, 2);
    bar.hide();
}

// A caller that keeps the event loop from running still sees each step.
void tst_CustomProgressBar::progressIsPaintedAtOnce()
{
    BarProbe bar;
    bar.SetProgress(10);
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    const int before = bar.paints;
    bar.SetProgress(20);
    QCOMPARE(bar.paints, before + 1);
    bar.SetProgress(20);
    QCOMPARE(bar.paints, before + 2);
    bar.hide();
}

void tst_CustomProgressBar::closingEmptiesTheBar()
{
    BarProbe bar;
    bar.SetProgress(50);
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    const int before = bar.paints;
    QCloseEvent event;
    bar.closeEvent(&event);
    QVERIFY(event.isAccepted());
    QCOMPARE(bar.progress, 0);
    QTRY_VERIFY(bar.paints > before);
    QVERIFY(bar.close());
    QVERIFY(!bar.isVisible());
}

void tst_CustomProgressBar::closedBarShowsEmptyUntilTheNextProgress()
{
    QWidget parent;
    BarProbe bar(&parent);
    bar.SetProgress(50);
    QVERIFY(bar.close());
    QCOMPARE(bar.progress, 0);
    bar.show();
    QCOMPARE(fillOf(&bar), 0);
    bar.SetProgress(0);
    QCOMPARE(fillOf(&bar), 3);
    bar.close();
}

void tst_CustomProgressBar::hidingKeepsTheProgress()
{
    QWidget parent;
    BarProbe bar(&parent);
    bar.SetProgress(50);
    bar.hide();
    bar.show();
    QCOMPARE(fillOf(&bar), 150);
    bar.hide();
}

void tst_CustomProgressBar::ownerKeepsAClosedBar()
{
    BarProbe bar;
    QVERIFY(!bar.testAttribute(Qt::WA_DeleteOnClose));
    bar.SetProgress(5);
    bar.close();
    bar.SetProgress(6);
    QVERIFY(bar.isVisible());
    bar.close();
}

QTARNKIT_TEST_MAIN(tst_CustomProgressBar)
#include "tst_CustomProgressBar.moc"
