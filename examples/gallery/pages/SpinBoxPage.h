#ifndef SPINBOXPAGE_H
#define SPINBOXPAGE_H

#include "GalleryPage.h"

class QLabel;
class QSpinBox;

namespace QTarnKit {
class QZelIntSpinBox;
}

/// Shows QTarnKit::QZelIntSpinBox, with its floating slider.
class SpinBoxPage : public GalleryPage
{
    Q_OBJECT

public:
    SpinBoxPage(SignalLog *log, QWidget *parent);

private:
    void applyRange();
    void applyValue();
    void showValue();

    QTarnKit::QZelIntSpinBox *box = nullptr;
    QSpinBox *minimum = nullptr;
    QSpinBox *maximum = nullptr;
    QSpinBox *value = nullptr;
    QLabel *current = nullptr;
};

#endif // SPINBOXPAGE_H
