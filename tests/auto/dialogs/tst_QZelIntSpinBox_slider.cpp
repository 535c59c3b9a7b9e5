#include "Pointer.h"
#include "TestMain.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QZelIntSpinBox.h>

using QTarnKit::QZelIntSpinBox;

namespace {

class Probe : public QZelIntSpinBox
{
public:
    using QZelIntSpinBox::slider;
    using QZelIntSpinBox::spinBox;
};

// A window with an edit above and one below the spin box. The offscreen platform gives the focus
// even to windows that do not take it, so tests look before they let it process that.
class Window : public QWidget
{
public:
    Window()
    {
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(11, 13, 17, 19);
        column->addWidget(&above);
        column->addWidget(&box);
        column->addWidget(&below);
        setWindowFlag(Qt::FramelessWindowHint);
        setGeometry(200, 150, 260, 140);
        above.setFocus();
    }

    bool open()
    {
        show();
        return QTest::qWaitForWindowActive(this) && above.hasFocus();
    }

    QLineEdit above;
    Probe box;
    QLineEdit below;
};

QString raiseWarning()
{
    return QStringLiteral("^This plugin does not support raise\\(\\)$");
}

} // namespace

// When the floating slider comes and goes, where it is, and input through either control.
class tst_QZelIntSpinBox_slider : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tabShowsTheSliderBelowTheSpinBox();
    void tabbingAwayHidesTheSlider();
    void clickIntoTheSpinBoxShowsTheSlider();
    void sliderIsPlacedByAFixedHeightSpinBoxToo();
    void sliderStaysWhereItWasWhenTheWindowMoves();
    void otherFocusDoesNotShowTheSlider();
    void sliderIsShownAndHiddenByHand();
    void filterPassesEveryEventOn();
    void typedDigitsMoveTheSlider();
    void arrowKeysMoveTheSlider();
    void draggingTheSliderChangesTheValue();
    void sliderOfAHugeRangeIsPaintedAndClicked_data();
    void sliderOfAHugeRangeIsPaintedAndClicked();
    void sliderGoesWithTheWidget();
};

void tst_QZelIntSpinBox_slider::tabShowsTheSliderBelowTheSpinBox()
{
    const WarningGuard raise(raiseWarning());
    Window window;
    QVERIFY(window.open());
    QVERIFY(!window.box.slider->isVisible());
    QTest::keyClick(&window.above, Qt::Key_Tab);
    QVERIFY(window.box.spinBox->hasFocus());
    QVERIFY(window.box.slider->isVisible());

    const QRect spinBox(window.box.spinBox->mapToGlobal(QPoint()), window.box.spinBox->size());
    QCOMPARE(window.box.slider->geometry(),
             QRect(spinBox.left(), spinBox.bottom() + 4, spinBox.width(), 20));
}

void tst_QZelIntSpinBox_slider::tabbingAwayHidesTheSlider()
{
    const WarningGuard raise(raiseWarning());
    Window window;
    QVERIFY(window.open());
    QTest::keyClick(&window.above, Qt::Key_Tab);
    QVERIFY(window.box.slider->isVisible());
    QTest::keyClick(window.box.spinBox, Qt::Key_Tab);
    QVERIFY(window.below.hasFocus());
    QVERIFY(!window.box.slider->isVisible());
}

void tst_QZelIntSpinBox_slider::clickIntoTheSpinBoxShowsTheSlider()
{
    const WarningGuard raise(raiseWarning());
    Window window;
    QVERIFY(window.open());
    auto *edit = window.box.spinBox->findChild<QLineEdit *>();
    QTest::mouseClick(edit, Qt::LeftButton);
    QVERIFY(window.box.slider->isVisible());
}

void tst_QZelIntSpinBox_slider::sliderIsPlacedByAFixedHeightSpinBoxToo()
{
    const WarningGuard raise(raiseWarning());
    Window window;
    // In a taller widget the bottom row is the spin box's, not the widget's.
    window.box.setFixedHeight(60);
    window.box.spinBox->setFixedHeight(21);
    window.box.spinBox->setFixedWidth(90);
    QVERIFY(window.open());
    QVERIFY(window.box.spinBox->y() > 0);
    window.box.spinBox->setFocus();
    const QRect spinBox(window.box.spinBox->mapToGlobal(QPoint()), QSize(90, 21));
    QCOMPARE(window.box.slider->geometry(), QRect(spinBox.left(), spinBox.top() + 20 + 4, 90, 20));
}

void tst_QZelIntSpinBox_slider::sliderStaysWhereItWasWhenTheWindowMoves()
{
    const WarningGuard raise(raiseWarning());
    Window window;
    QVERIFY(window.open());
    window.box.spinBox->setFocus();
    const QRect placed = window.box.slider->geometry();
    window.move(250, 250);
    QCOMPARE(window.box.slider->geometry(), placed);
    // The next focus places it anew.
    window.above.setFocus();
    window.box.spinBox->setFocus();
    QCOMPARE(window.box.slider->geometry().topLeft() - placed.topLeft(), QPoint(50, 100));
}

void tst_QZelIntSpinBox_slider::otherFocusDoesNotShowTheSlider()
{
    Window window;
    window.box.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(window.open());
    window.box.setFocus();
    QVERIFY(window.box.hasFocus());
    QVERIFY(!window.box.slider->isVisible());
    QFocusEvent in(QEvent::FocusIn);
    QVERIFY(!window.box.eventFilter(window.box.slider, &in));
    QVERIFY(!window.box.slider->isVisible());
}

void tst_QZelIntSpinBox_slider::sliderIsShownAndHiddenByHand()
{
    const WarningGuard raise(raiseWarning());
    Probe box;
    box.SetSliderVisable(true);
    QVERIFY(box.slider->isVisible());
    QCOMPARE(box.slider->height(), 20);
    box.SetSliderVisable(false);
    QVERIFY(!box.slider->isVisible());
}

void tst_QZelIntSpinBox_slider::filterPassesEveryEventOn()
{
    const WarningGuard raise(raiseWarning());
    Probe box;
    for (const QEvent::Type type : { QEvent::FocusIn, QEvent::FocusOut }) {
        QFocusEvent event(type);
        QVERIFY(!box.eventFilter(box.spinBox, &event));
        QCOMPARE(box.slider->isVisible(), type == QEvent::FocusIn);
    }
    QEvent other(QEvent::Enter);
    QVERIFY(!box.eventFilter(box.spinBox, &other));
    QVERIFY(!box.slider->isVisible());
}

void tst_QZelIntSpinBox_slider::typedDigitsMoveTheSlider()
{
    const WarningGuard raise(raiseWarning());
    Window window;
    QVERIFY(window.open());
    window.box.spinBox->setFocus();
    window.box.spinBox->selectAll();
    QTest::keyClicks(window.box.spinBox, QStringLiteral("73"));
    QCOMPARE(window.box.Value(), 73);
    QCOMPARE(window.box.slider->value(), 73);
}

void tst_QZelIntSpinBox_slider::arrowKeysMoveTheSlider()
{
    const WarningGuard raise(raiseWarning());
    Window window;
    QVERIFY(window.open());
    window.box.SetValue(99);
    window.box.spinBox->setFocus();
    QTest::keyClick(window.box.spinBox, Qt::Key_Up);
    QTest::keyClick(window.box.spinBox, Qt::Key_Up);
    QCOMPARE(window.box.slider->value(), 100);
    QTest::keyClick(window.box.spinBox, Qt::Key_Down);
    QCOMPARE(window.box.slider->value(), 99);
}

void tst_QZelIntSpinBox_slider::draggingTheSliderChangesTheValue()
{
    const WarningGuard raise(raiseWarning());
    Probe box;
    box.slider->setGeometry(100, 100, 220, 20);
    box.SetSliderVisable(true);
    QVERIFY(QTest::qWaitForWindowExposed(box.slider));
    QSignalSpy spun(box.spinBox, QOverload<int>::of(&QSpinBox::valueChanged));
    Pointer pointer(box.slider);
    pointer.press({ 105, 110 });
    pointer.moveTo({ 210, 110 });
    QTRY_VERIFY(box.Value() > 30 && box.Value() < 70);
    pointer.moveTo({ 319, 110 });
    QTRY_COMPARE(box.Value(), 100);
    pointer.release();
    QCOMPARE(box.slider->value(), 100);
    // One for each value the slider had, not an endless number.
    QVERIFY(spun.count() >= 2 && spun.count() <= 4);
}

void tst_QZelIntSpinBox_slider::sliderOfAHugeRangeIsPaintedAndClicked_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("end");
    QTest::newRow("any integer but negative") << 0 << INT_MAX << INT_MAX;
    QTest::newRow("one below zero for none") << -1 << INT_MAX << INT_MAX - 1;
    QTest::newRow("any integer but positive") << INT_MIN << 0 << -1;
    QTest::newRow("one wider") << INT_MIN << 1 << 1;
    QTest::newRow("all") << INT_MIN << INT_MAX << INT_MAX;
}

void tst_QZelIntSpinBox_slider::sliderOfAHugeRangeIsPaintedAndClicked()
{
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(int, end);
    const WarningGuard raise(raiseWarning());
    Probe box;
    box.SetRange(min, max);
    box.slider->setGeometry(100, 100, 220, 20);
    box.SetSliderVisable(true);
    QVERIFY(QTest::qWaitForWindowExposed(box.slider));
    Pointer(box.slider).click({ 210, 110 });
    const QPixmap picture = box.slider->grab();
    QCOMPARE(picture.size(), QSize(220, 20));
    box.SetValue(max);
    QCOMPARE(box.Value(), end);
    QCOMPARE(box.slider->value(), end);
    QCOMPARE(box.spinBox->maximum(), end);
    box.SetValue(min);
    QCOMPARE(box.Value(), min);
}

void tst_QZelIntSpinBox_slider::sliderGoesWithTheWidget()
{
    const WarningGuard raise(raiseWarning());
    auto *box = new Probe;
    const QPointer<QSlider> slider(box->slider);
    box->SetSliderVisable(true);
    delete box;
    QVERIFY(!slider);
}

QTARNKIT_TEST_MAIN(tst_QZelIntSpinBox_slider)
#include "tst_QZelIntSpinBox_slider.moc"
