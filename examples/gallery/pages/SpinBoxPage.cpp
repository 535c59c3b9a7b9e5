#include "SpinBoxPage.h"

#include "ControlPanel.h"

#include <QZelIntSpinBox.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

using QTarnKit::QZelIntSpinBox;

namespace {

constexpr int Limit = 10000;

const auto Code = R"code(
auto *volume =
    new QTarnKit::QZelIntSpinBox(this);
volume->SetRange(0, 30);
volume->SetValue(12);
layout->addWidget(volume);

// Later:
setVolume(volume->Value());

// The slider comes with the keyboard focus;
// by hand:
volume->SetSliderVisable(true);
)code";

QString className()
{
    return QStringLiteral("QZelIntSpinBox");
}

} // namespace

SpinBoxPage::SpinBoxPage(SignalLog *log, QWidget *parent)
    : GalleryPage(log, parent)
{
    setHeading(tr("Integer spin box"),
               tr("QZelIntSpinBox shows a slider below itself while it has the keyboard focus."));
    setCode(QString::fromUtf8(Code));

    ControlPanel *panel = addPanel(className());
    box = new QZelIntSpinBox(panel);
    box->setObjectName(QStringLiteral("zelSpinBox"));
    box->SetValue(40);
    panel->addRow(tr("Try it"), box);
    current = panel->addValue(QStringLiteral("value"), QStringLiteral("Value()"));
    panel->addNote(tr("The slider floats over what lies below."));

    ControlPanel *operations = addPanel(tr("Operations"));
    minimum = operations->addNumber(QStringLiteral("minimum"), tr("Minimum"), -Limit, Limit, 0);
    maximum = operations->addNumber(QStringLiteral("maximum"), tr("Maximum"), -Limit, Limit, 100);
    value = operations->addNumber(QStringLiteral("newValue"), tr("Value"), -Limit, Limit, 75);
    QPushButton *range =
            operations->addButton(QStringLiteral("setRange"), QStringLiteral("SetRange()"));
    QPushButton *set =
            operations->addButton(QStringLiteral("setValue"), QStringLiteral("SetValue()"));
    QCheckBox *slider =
            operations->addCheck(QStringLiteral("slider"), QStringLiteral("SetSliderVisable()"));

    connect(range, &QPushButton::clicked, this, &SpinBoxPage::applyRange);
    connect(set, &QPushButton::clicked, this, &SpinBoxPage::applyValue);
    connect(slider, &QCheckBox::toggled, box, &QZelIntSpinBox::SetSliderVisable);
    // The class has no signals of its own; a host listens to the spin box inside.
    connect(box->findChild<QSpinBox *>(), QOverload<int>::of(&QSpinBox::valueChanged), this,
            &SpinBoxPage::showValue);
    showValue();
}

void SpinBoxPage::applyRange()
{
    box->SetRange(minimum->value(), maximum->value());
    report(className(), QStringLiteral("SetRange"),
           QStringLiteral("%1, %2").arg(minimum->value()).arg(maximum->value()));
    showValue();
}

void SpinBoxPage::applyValue()
{
    box->SetValue(value->value());
    report(className(), QStringLiteral("SetValue"), QString::number(value->value()));
    showValue();
}

void SpinBoxPage::showValue()
{
    current->setText(QString::number(box->Value()));
}
