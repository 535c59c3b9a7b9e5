#include "common/HoverState.h"

#include <QWidget>

void HoverState::clear(QWidget *button)
{
    button->setAttribute(Qt::WA_UnderMouse, false);
}
