#include "HostForm.h"

#include <QLabel>

int Ui_Form::uses = 0;

void Ui_Form::setupUi(QWidget *form)
{
    ++uses;
    hostLabel = new QLabel(form);
    retranslateUi(form);
}

void Ui_Form::retranslateUi(QWidget *)
{
    hostLabel->setText(QStringLiteral("host"));
}
