#ifndef BOXPROBE_H
#define BOXPROBE_H

#include <QLabel>
#include <QPushButton>
#include <QTextEdit>
#include <QUIMessageBox.h>

/// A message box whose members a test can read.
class BoxProbe : public QTarnKit::QUIMessageBox
{
public:
    explicit BoxProbe(QWidget *parent = nullptr)
        : QUIMessageBox(parent)
    {}

    using QUIMessageBox::boxHeight;
    using QUIMessageBox::boxWidth;
    using QUIMessageBox::btnCancel;
    using QUIMessageBox::btnNo;
    using QUIMessageBox::btnOk;
    using QUIMessageBox::btnYes;
    using QUIMessageBox::closeSec;
    using QUIMessageBox::currentSec;
    using QUIMessageBox::custButtons;
    using QUIMessageBox::custIndex;
    using QUIMessageBox::labIco;
    using QUIMessageBox::labTitle;
    using QUIMessageBox::txtInfo;
    using QUIMessageBox::widgetBtns;
    using QUIMessageBox::widgetTitle;

    QPushButton *closeBtn() const { return findChild<QPushButton *>(QStringLiteral("closeBtn")); }

    /// The visible standard buttons as flags, 0 for none.
    int shownButtons() const
    {
        return (btnOk->isHidden() ? 0 : QTarnKit::Confirm)
               | (btnCancel->isHidden() ? 0 : QTarnKit::Cancel)
               | (btnYes->isHidden() ? 0 : QTarnKit::Yes) | (btnNo->isHidden() ? 0 : QTarnKit::No);
    }

    QStringList customTexts() const
    {
        QStringList texts;
        for (const QPushButton *button : custButtons)
            texts.append(button->text());
        return texts;
    }
};

#endif // BOXPROBE_H
