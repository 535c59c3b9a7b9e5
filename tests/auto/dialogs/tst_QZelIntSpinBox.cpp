#include "TestMain.h"

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
    using QZelIntSpinBox::maxValue;
    using QZelIntSpinBox::minValue;
    using QZelIntSpinBox::QZelIntSpinBox;
    using QZelIntSpinBox::slider;
    using QZelIntSpinBox::spinBox;
};

} // namespace

class tst_QZelIntSpinBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void addsNothingToTheMetaObject();
    void startsOutWithTheRangeFromZeroToHundred();
    void spinBoxFillsTheWidget();
    void sliderIsAFramelessToolWindowWithoutFocus();
    void spinBoxHasNoContextMenu();

    void valueIsClamped_data();
    void valueIsClamped();
    void rangeAppliesToBothControls_data();
    void rangeAppliesToBothControls();
    void reversedRangeChangesNothing();
    void rangeMovesTheValueInside_data();
    void rangeMovesTheValueInside();
    void argumentsMayBeItsOwnBounds();

    void spinBoxMovesTheSliderOnce();
    void sliderMovesTheSpinBoxOnce();
    void sameValueSignalsNothing();
};

void tst_QZelIntSpinBox::addsNothingToTheMetaObject()
{
    const QMetaObject &meta = QZelIntSpinBox::staticMetaObject;
    QCOMPARE(meta.className(), "QTarnKit::QZelIntSpinBox");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_QZelIntSpinBox::startsOutWithTheRangeFromZeroToHundred()
{
    Probe box;
    QCOMPARE(box.minValue, 0);
    QCOMPARE(box.maxValue, 100);
    QCOMPARE(box.spinBox->minimum(), 0);
    QCOMPARE(box.spinBox->maximum(), 100);
    QCOMPARE(box.slider->minimum(), 0);
    QCOMPARE(box.slider->maximum(), 100);
    QCOMPARE(box.Value(), 0);
    QVERIFY(!box.parent());
}

void tst_QZelIntSpinBox::spinBoxFillsTheWidget()
{
    Probe box;
    const auto *column = qobject_cast<QVBoxLayout *>(box.layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins());
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->count(), 1);
    QCOMPARE(column->itemAt(0)->widget(), box.spinBox);
    QCOMPARE(box.slider->parent(), &box);
    // Made in this order.
    QCOMPARE(box.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly),
             (QList<QWidget *> { box.spinBox, box.slider }));
}

void tst_QZelIntSpinBox::sliderIsAFramelessToolWindowWithoutFocus()
{
    Probe box;
    QCOMPARE(int(box.slider->windowFlags()), 0x20080b);
    QVERIFY(box.slider->isWindow());
    QCOMPARE(box.slider->orientation(), Qt::Horizontal);
    QCOMPARE(box.slider->minimumHeight(), 20);
    QCOMPARE(box.slider->maximumHeight(), 20);
    QVERIFY(box.slider->isHidden());
    QVERIFY(!box.spinBox->isHidden());
}

void tst_QZelIntSpinBox::spinBoxHasNoContextMenu()
{
    Probe box;
    QCOMPARE(box.spinBox->contextMenuPolicy(), Qt::NoContextMenu);
}

void tst_QZelIntSpinBox::valueIsClamped_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("result");
    QTest::newRow("above") << 150 << 100;
    QTest::newRow("below") << -5 << 0;
    QTest::newRow("maximum") << 100 << 100;
    QTest::newRow("minimum") << 0 << 0;
    QTest::newRow("inside") << 42 << 42;
    QTest::newRow("largest") << INT_MAX << 100;
    QTest::newRow("smallest") << INT_MIN << 0;
}

void tst_QZelIntSpinBox::valueIsClamped()
{
    QFETCH(int, value);
    QFETCH(int, result);
    Probe box;
    box.SetValue(50);
    box.SetValue(value);
    QCOMPARE(box.Value(), result);
    QCOMPARE(box.spinBox->value(), result);
    QCOMPARE(box.slider->value(), result);
}

void tst_QZelIntSpinBox::rangeAppliesToBothControls_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::newRow("small") << 0 << 30;
    QTest::newRow("negative") << -20 << -10;
    QTest::newRow("one value") << 5 << 5;
    QTest::newRow("all") << INT_MIN << INT_MAX;
}

void tst_QZelIntSpinBox::rangeAppliesToBothControls()
{
    QFETCH(int, min);
    QFETCH(int, max);
    Probe box;
    box.SetRange(min, max);
    QCOMPARE(box.minValue, min);
    QCOMPARE(box.maxValue, max);
    QCOMPARE(box.spinBox->minimum(), min);
    QCOMPARE(box.spinBox->maximum(), max);
    QCOMPARE(box.slider->minimum(), min);
    QCOMPARE(box.slider->maximum(), max);
    box.SetValue(max);
    QCOMPARE(box.Value(), max);
    box.SetValue(min);
    QCOMPARE(box.Value(), min);
    QCOMPARE(box.slider->value(), min);
}

void tst_QZelIntSpinBox::reversedRangeChangesNothing()
{
    Probe box;
    box.SetValue(50);
    box.SetRange(10, 5);
    QCOMPARE(box.minValue, 0);
    QCOMPARE(box.maxValue, 100);
    QCOMPARE(box.spinBox->minimum(), 0);
    QCOMPARE(box.spinBox->maximum(), 100);
    QCOMPARE(box.slider->minimum(), 0);
    QCOMPARE(box.slider->maximum(), 100);
    QCOMPARE(box.Value(), 50);
}

void tst_QZelIntSpinBox::rangeMovesTheValueInside_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("value");
    QTest::newRow("above the value") << 60 << 80 << 60;
    QTest::newRow("below the value") << 10 << 30 << 30;
    QTest::newRow("above the old range") << 200 << 300 << 200;
    QTest::newRow("below the old range") << -300 << -200 << -200;
    QTest::newRow("one value") << 5 << 5 << 5;
    QTest::newRow("around the value") << 40 << 60 << 50;
}

void tst_QZelIntSpinBox::rangeMovesTheValueInside()
{
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(int, value);
    Probe box;
    box.SetValue(50);
    box.SetRange(min, max);
    QCOMPARE(box.Value(), value);
    QCOMPARE(box.slider->value(), value);
}

void tst_QZelIntSpinBox::argumentsMayBeItsOwnBounds()
{
    Probe box;
    box.SetRange(10, 90);
    box.SetRange(box.minValue, box.maxValue);
    box.SetValue(box.maxValue);
    QCOMPARE(box.Value(), 90);
    box.SetRange(box.maxValue, box.maxValue);
    QCOMPARE(box.minValue, 90);
    QCOMPARE(box.maxValue, 90);
}

void tst_QZelIntSpinBox::spinBoxMovesTheSliderOnce()
{
    Probe box;
    QSignalSpy spun(box.spinBox, QOverload<int>::of(&QSpinBox::valueChanged));
    QSignalSpy slid(box.slider, &QSlider::valueChanged);
    box.SetValue(30);
    QCOMPARE(box.slider->value(), 30);
    QCOMPARE(spun.count(), 1);
    QCOMPARE(slid.count(), 1);
    box.spinBox->setValue(31);
    QCOMPARE(box.slider->value(), 31);
    QCOMPARE(spun.count(), 2);
    QCOMPARE(slid.count(), 2);
}

void tst_QZelIntSpinBox::sliderMovesTheSpinBoxOnce()
{
    Probe box;
    QSignalSpy spun(box.spinBox, QOverload<int>::of(&QSpinBox::valueChanged));
    QSignalSpy slid(box.slider, &QSlider::valueChanged);
    box.slider->setValue(70);
    QCOMPARE(box.Value(), 70);
    QCOMPARE(spun.count(), 1);
    QCOMPARE(slid.count(), 1);
}

void tst_QZelIntSpinBox::sameValueSignalsNothing()
{
    Probe box;
    box.SetValue(30);
    QSignalSpy spun(box.spinBox, QOverload<int>::of(&QSpinBox::valueChanged));
    QSignalSpy slid(box.slider, &QSlider::valueChanged);
    box.SetValue(30);
    box.slider->setValue(30);
    QCOMPARE(spun.count(), 0);
    QCOMPARE(slid.count(), 0);
}

QTARNKIT_TEST_MAIN(tst_QZelIntSpinBox)
#include "tst_QZelIntSpinBox.moc"
