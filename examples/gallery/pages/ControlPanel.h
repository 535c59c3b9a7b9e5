#ifndef CONTROLPANEL_H
#define CONTROLPANEL_H

#include <QFrame>

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QSpinBox;
class QVBoxLayout;

/// A card with a heading and rows of controls, all of a finger's size. The first argument of each
/// function is the control's object name.
class ControlPanel : public QFrame
{
    Q_OBJECT

public:
    explicit ControlPanel(const QString &heading, QWidget *parent);

    /// Adds a button; two share a row.
    QPushButton *addButton(const QString &name, const QString &text);
    QCheckBox *addCheck(const QString &name, const QString &text, bool checked = false);
    QSpinBox *addNumber(const QString &name, const QString &label, int minimum, int maximum,
                        int value);
    QLineEdit *addText(const QString &name, const QString &label, const QString &text);
    QComboBox *addChoice(const QString &name, const QString &label, const QStringList &choices);
    QSlider *addSlider(const QString &name, const QString &label, int minimum, int maximum,
                       int value);

    /// Adds a text that a page changes, to be selected and copied.
    QLabel *addValue(const QString &name, const QString &label);

    /// Adds an explanation over the panel's width.
    void addNote(const QString &text);

    /// Adds a control with a label before it, over the panel's width when @p label is empty.
    void addRow(const QString &label, QWidget *control);

private:
    template <typename Control>
    Control *named(Control *control, const QString &name);

    QVBoxLayout *column = nullptr;
    QHBoxLayout *openButtonRow = nullptr; // has room for a second button
};

#endif // CONTROLPANEL_H
