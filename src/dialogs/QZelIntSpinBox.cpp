#include "dialogs/QZelIntSpinBox.h"

#include <QEvent>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int SliderHeight = 20;
constexpr int SliderDistance = 4; // from the spin box's bottom row to the slider's top

// Qt's styles keep twice the distance between a slider's ends in 32 bits. This one becomes 0, and
// painting or clicking the slider would divide by it.
constexpr qint64 UnusableExtent = Q_INT64_C(1) << 31;

} // namespace

namespace QTarnKit {

QZelIntSpinBox::QZelIntSpinBox(QWidget *parent)
    : QWidget(parent)
{
    Init();
}

QZelIntSpinBox::~QZelIntSpinBox() = default;

void QZelIntSpinBox::SetRange(const int &min, const int &max)
{
    if (min > max)
        return;
    minValue = min;
    maxValue = qint64(max) - min == UnusableExtent ? max - 1 : max;
    slider->setRange(minValue, maxValue);
    spinBox->setRange(minValue, maxValue);
}

void QZelIntSpinBox::SetValue(const int &value)
{
    spinBox->setValue(qBound(minValue, value, maxValue));
}

int QZelIntSpinBox::Value()
{
    return spinBox->value();
}

void QZelIntSpinBox::SetSliderVisable(bool visible)
{
    slider->setVisible(visible);
}

void QZelIntSpinBox::Init()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    spinBox = new QSpinBox(this);
    spinBox->setRange(minValue, maxValue);
    spinBox->setContextMenuPolicy(Qt::NoContextMenu);

    slider = new QSlider(Qt::Horizontal, this);
    slider->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    slider->setRange(minValue, maxValue);
    slider->setFixedHeight(SliderHeight);
    slider->hide();

    layout->addWidget(spinBox);

    // The loop ends by itself: setting an equal value emits nothing.
    connect(spinBox, QOverload<int>::of(&QSpinBox::valueChanged), slider,
            &QAbstractSlider::setValue);
    connect(slider, &QAbstractSlider::valueChanged, spinBox, &QSpinBox::setValue);

    spinBox->installEventFilter(this);
}

bool QZelIntSpinBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == spinBox) {
        if (event->type() == QEvent::FocusIn) {
            placeSlider();
            slider->show();
        } else if (event->type() == QEvent::FocusOut) {
            slider->hide();
        }
    }
    return QObject::eventFilter(watched, event);
}

void QZelIntSpinBox::placeSlider()
{
    const QRect box = spinBox->geometry();
    const QPoint bottomLeft = mapToGlobal(QPoint(box.x(), box.bottom()));
    slider->setGeometry(bottomLeft.x(), bottomLeft.y() + SliderDistance, spinBox->width(),
                        SliderHeight);
}

} // namespace QTarnKit
