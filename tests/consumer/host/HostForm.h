#ifndef HOSTFORM_H
#define HOSTFORM_H

class QLabel;
class QWidget;

// "Form" is what Qt Designer calls a new form, so a host may well have a class of this name. It
// must not get in the way of the library's own.
class Ui_Form
{
public:
    QLabel *hostLabel = nullptr;

    void setupUi(QWidget *form);
    void retranslateUi(QWidget *form);

    static int uses;
};

#endif // HOSTFORM_H
