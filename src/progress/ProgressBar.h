#ifndef PROGRESSBAR_H
#define PROGRESSBAR_H

#include "QTarnKitGlobal.h"

#include <QWidget>

/**
 * The thin rounded bar of the waiting dialog: a dark track and an orange fill, without text.
 *
 * @code
 * auto *bar = new ProgressBar(this);
 * bar->setRange(0, fileCount);
 * bar->setValue(done);
 * @endcode
 *
 * Give it a height of 5 pixels for the waiting dialog's look. It paints itself; a style sheet does
 * not change it.
 */
class QTARNKIT_EXPORT ProgressBar : public QWidget
{
    Q_OBJECT

public:
    /// Creates a bar with the range 0 to 100 and the value 0.
    explicit ProgressBar(QWidget *parent);
    ~ProgressBar() override;

    /**
     * Stores the range as given; the value is not clamped to it. With @p min equal to @p max the
     * bar is empty.
     */
    void setRange(int min, int max);

    /// Sets the value, lowered to the maximum first and then raised to the minimum.
    void setValue(int v);

protected:
    /// Paints track and fill.
    void paintEvent(QPaintEvent *event) override;

    int minimum = 0; ///< value of the empty bar
    int maximum = 100; ///< value of the full bar
    int value = 0; ///< present value

private:
    qreal fillWidth() const;
};

#endif // PROGRESSBAR_H
