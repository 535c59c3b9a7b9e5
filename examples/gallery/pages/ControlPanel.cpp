#include "ControlPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int FingerHeight = 36;
constexpr int LabelWidth = 128;
constexpr int RowSpacing = 8;
constexpr QMargins PanelMargins(14, 10, 14, 14);

} // namespace

ControlPanel::ControlPanel(const QString &heading, QWidget *parent)
    : QFrame(parent)
{
    column = new QVBoxLayout(this);
    column->setContentsMargins(PanelMargins);
    column->setSpacing(RowSpacing);
    auto *label = new QLabel(heading, this);
    label->setObjectName(QStringLiteral("panelHeading"));
    column->addWidget(label);
}

QPushButton *ControlPanel::addButton(const QString &name, const QString &text)
{
    auto *button = named(new QPushButton(text, this), name);
    button->setMinimumHeight(FingerHeight);
    if (openButtonRow) {
        openButtonRow->addWidget(button, 1);
        openButtonRow = nullptr;
        return button;
    }
    openButtonRow = new QHBoxLayout;
    openButtonRow->setSpacing(RowSpacing);
    openButtonRow->addWidget(button, 1);
    column->addLayout(openButtonRow);
    return button;
}

QCheckBox *ControlPanel::addCheck(const QString &name, const QString &text, bool checked)
{
    auto *box = named(new QCheckBox(text, this), name);
    box->setChecked(checked);
    addRow(QString(), box);
    return box;
}

QSpinBox *ControlPanel::addNumber(const QString &name, const QString &label, int minimum,
                                  int maximum, int value)
{
    auto *box = named(new QSpinBox(this), name);
    box->setRange(minimum, maximum);
    box->setValue(value);
    addRow(label, box);
    return box;
}

QLineEdit *ControlPanel::addText(const QString &name, const QString &label, const QString &text)
{
    auto *edit = named(new QLineEdit(text, this), name);
    edit->setCursorPosition(0);
    addRow(label, edit);
    return edit;
}

QComboBox *ControlPanel::addChoice(const QString &name, const QString &label,
                                   const QStringList &choices)
{
    auto *box = named(new QComboBox(this), name);
    box->setView(new QListView(box)); // the style sheet reaches its rows only so
    box->addItems(choices);
    addRow(label, box);
    return box;
}

QSlider *ControlPanel::addSlider(const QString &name, const QString &label, int minimum,
                                 int maximum, int value)
{
    auto *slider = named(new QSlider(Qt::Horizontal, this), name);
    slider->setRange(minimum, maximum);
    slider->setValue(value);
    addRow(label, slider);
    return slider;
}

QLabel *ControlPanel::addValue(const QString &name, const QString &label)
{
    auto *value = named(new QLabel(QStringLiteral("–"), this), name);
    value->setWordWrap(true);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    addRow(label, value);
    return value;
}

void ControlPanel::addNote(const QString &text)
{
    auto *note = named(new QLabel(text, this), QStringLiteral("panelNote"));
    note->setWordWrap(true);
    column->addWidget(note);
    openButtonRow = nullptr;
}

void ControlPanel::addRow(const QString &label, QWidget *control)
{
    openButtonRow = nullptr;
    control->setMinimumHeight(qMax(FingerHeight, control->minimumSizeHint().height()));
    if (label.isEmpty()) {
        column->addWidget(control);
        return;
    }
    auto *caption = new QLabel(label, this);
    caption->setFixedWidth(LabelWidth);
    caption->setWordWrap(true);
    auto *row = new QHBoxLayout;
    row->setSpacing(RowSpacing);
    row->addWidget(caption);
    row->addWidget(control, 1);
    column->addLayout(row);
}

template <typename Control>
Control *ControlPanel::named(Control *control, const QString &name)
{
    control->setObjectName(name);
    return control;
}
