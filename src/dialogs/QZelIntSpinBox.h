#ifndef QZELINTSPINBOX_H
#define QZELINTSPINBOX_H

#include "QTarnKitGlobal.h"

#include <QWidget>

class QSlider;
class QSpinBox;

namespace QTarnKit {

/**
 * An integer spin box for touch screens: while it has the keyboard focus, a slider floats below it.
 *
 * @code
 * auto *volume = new QTarnKit::QZelIntSpinBox(this);
 * volume->SetRange(0, 30);
 * volume->SetValue(12);
 * @endcode
 *
 * The widget has no signal of its own: ask Value(), or connect to the spin box inside,
 * `findChild<QSpinBox *>()`, and its valueChanged(int).
 *
 * The slider is a window of its own that never takes the focus. It is placed when the focus comes
 * and stays there should the window move meanwhile. It belongs to this widget.
 *
 * A style sheet addresses the parts by type, as QSpinBox and QSlider.
 */
class QTARNKIT_EXPORT QZelIntSpinBox : public QWidget
{
    Q_OBJECT

public:
    /// Creates the widget with the range 0 to 100.
    explicit QZelIntSpinBox(QWidget *parent = nullptr);
    ~QZelIntSpinBox() override;

    /// Sets the range of both controls. A @p min above @p max changes nothing. A range whose ends
    /// are exactly 2^31 apart ends one lower, as Qt's sliders crash with such a one.
    void SetRange(const int &min, const int &max);

    /// Sets the value, clamped to the range.
    void SetValue(const int &value);

    /// The present value.
    int Value();

    /// Shows or hides the slider by hand, where it is.
    void SetSliderVisable(bool visible);

    /// Builds the widget; called once by the constructor.
    void Init();

    /// Shows the slider when the spin box gets the focus and hides it when it goes.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    QSlider *slider = nullptr; ///< floats below the spin box
    QSpinBox *spinBox = nullptr; ///< fills the widget
    int minValue = 0; ///< lower bound of both
    int maxValue = 100; ///< upper bound of both

private:
    void placeSlider();
};

} // namespace QTarnKit

#endif // QZELINTSPINBOX_H
