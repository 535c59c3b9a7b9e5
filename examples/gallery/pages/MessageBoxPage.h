#ifndef MESSAGEBOXPAGE_H
#define MESSAGEBOXPAGE_H

#include "GalleryPage.h"

#include <QList>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;

namespace QTarnKit {
class QUIMessageBox;
}

/// Shows QTarnKit::QUIMessageBox: types, standard and custom buttons, the countdown.
class MessageBoxPage : public GalleryPage
{
    Q_OBJECT

public:
    MessageBoxPage(SignalLog *log, QWidget *parent);

private:
    void createMessagePanel();
    void createCustomPanel();
    void createStandardPanel();
    int type() const;
    void connectBox(QTarnKit::QUIMessageBox *box);
    void runBox();
    void showInstance();
    void runCustom();
    void runStandard();

    QLineEdit *boxTitle = nullptr;
    QLineEdit *boxText = nullptr;
    QComboBox *boxType = nullptr;
    QSpinBox *countdown = nullptr;
    QLineEdit *customTexts = nullptr;
    QList<QCheckBox *> standard;
};

#endif // MESSAGEBOXPAGE_H
