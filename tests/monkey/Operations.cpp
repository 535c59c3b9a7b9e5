#include "Operations.h"

#include "Names.h"

#include <ClientUnlockWidget.h>
#include <CustomProgressBar.h>
#include <ProgressBar.h>
#include <QTitleBar.h>
#include <QUIMessageBox.h>
#include <QWaitingDialog.h>
#include <QZelBaseWindows.h>
#include <QZelEncDialog.h>
#include <QZelFileDialog.h>
#include <QZelFolderNameDialog.h>
#include <QZelIntSpinBox.h>

#include <QLineEdit>
#include <QTextEdit>

#include <climits>

using QTarnKit::QUIMessageBox;
using QTarnKit::QZelIntSpinBox;

namespace {

int anyInt(Dice &dice)
{
    return dice.pick({ 0, 1, -1, 50, 100, 101, -1000000, INT_MAX, INT_MIN, dice.roll(1000) });
}

QStringList texts(Dice &dice)
{
    QStringList texts;
    for (int count = dice.roll(4); count > 0; --count)
        texts.append(Names::text(dice));
    return texts;
}

// Each of these does one thing to a window, if it is of that kind.

bool operateDialog(Dice &dice, QWidget *widget)
{
    auto *dialog = qobject_cast<QZelDialog *>(widget);
    if (!dialog)
        return false;
    switch (dice.roll(8)) {
    case 0:
        dialog->SetTitle(Names::text(dice));
        break;
    case 1:
        dialog->Resize(dice.roll(100), dice.roll(100), dice.roll(600), dice.roll(600));
        break;
    case 2:
        dialog->ShowBtn(dice.once(2), dice.once(2));
        break;
    case 3:
        dialog->SetContainer(new QTextEdit);
        break;
    case 4:
        dialog->SetBottom(dice.once(3) ? nullptr : new QLineEdit);
        break;
    case 5:
        dialog->SetBtnText(Names::text(dice), Names::text(dice));
        break;
    case 6:
        dialog->ShowMaxBtn();
        break;
    default:
        dialog->SetBtnEnabled(dice.once(2));
    }
    return true;
}

bool operateBox(Dice &dice, QWidget *widget)
{
    auto *box = qobject_cast<QUIMessageBox *>(widget);
    if (!box)
        return false;
    switch (dice.roll(6)) {
    case 0:
        box->setMessage(Names::text(dice), Names::text(dice), dice.roll(6), anyInt(dice));
        break;
    case 1:
        box->setMessage(Names::text(dice), Names::text(dice), texts(dice), dice.roll(3));
        break;
    case 2:
        box->SetCustButtons(texts(dice));
        break;
    case 3:
        box->ClearCustButtons();
        break;
    case 4:
        box->SetStandardButtons(QFlags<QTarnKit::MessageBoxStandardButton>(dice.roll(0x200)));
        break;
    default:
        box->checkSec();
    }
    return true;
}

bool operateFileDialog(Dice &dice, QWidget *widget)
{
    auto *dialog = qobject_cast<QZelFileDialog *>(widget);
    if (!dialog)
        return false;
    switch (dice.roll(4)) {
    case 0:
        dialog->setFileFilter(Names::text(dice));
        break;
    case 1:
        dialog->recordLastPath(Names::text(dice));
        break;
    case 2:
        dialog->getFilePaths();
        dialog->getFilePath();
        break;
    default:
        dialog->expandedPath();
    }
    return true;
}

bool operateProgress(Dice &dice, QWidget *widget)
{
    if (auto *waiting = qobject_cast<QWaitingDialog *>(widget)) {
        waiting->setTipMessage(Names::text(dice));
        waiting->setProgressBarRange(anyInt(dice), anyInt(dice));
        waiting->setProgressBarValue(anyInt(dice));
        waiting->setProgressBarVisiable(dice.once(2));
        dice.once(2) ? waiting->showWaitingDialog() : waiting->hideWaitingDialog();
    } else if (auto *bar = qobject_cast<ProgressBar *>(widget)) {
        bar->setRange(anyInt(dice), anyInt(dice));
        bar->setValue(anyInt(dice));
    } else if (auto *custom = qobject_cast<CustomProgressBar *>(widget)) {
        custom->SetProgress(anyInt(dice));
    } else {
        return false;
    }
    return true;
}

bool operateFrame(Dice &dice, QWidget *widget)
{
    if (auto *window = qobject_cast<QZelBaseWindows *>(widget)) {
        window->setPadding(dice.between(-3, 40));
        window->setMoveEnable(dice.once(2));
        window->setResizeEnable(dice.once(2));
        window->setTitleBar(dice.once(3) ? nullptr : window->findChild<QTitleBar *>());
    } else if (auto *bar = qobject_cast<QTitleBar *>(widget)) {
        bar->SetTitle(Names::text(dice));
        bar->SetThemeColor(QColor(dice.roll(256), 0, 0, dice.roll(256)));
    } else {
        return false;
    }
    return true;
}

bool operateInput(Dice &dice, QWidget *widget)
{
    if (auto *spin = qobject_cast<QZelIntSpinBox *>(widget)) {
        spin->SetRange(anyInt(dice), anyInt(dice));
        spin->SetValue(anyInt(dice));
        spin->SetSliderVisable(dice.once(2));
    } else if (auto *notice = qobject_cast<ClientUnlockWidget *>(widget)) {
        notice->setIp(Names::text(dice));
        notice->retranslateUi();
        dice.once(2) ? notice->ModalShow() : notice->TryShow();
    } else if (auto *password = qobject_cast<QZelEncDialog *>(widget)) {
        password->SetErrorMsg(Names::text(dice));
        password->SetEditTipText(Names::text(dice));
        password->HideConfirm();
    } else if (auto *name = qobject_cast<QZelFolderNameDialog *>(widget)) {
        name->setTitle(Names::text(dice));
        name->setContent(Names::text(dice));
    } else {
        return false;
    }
    return true;
}

} // namespace

void Operations::fillBox(Dice &dice, QWidget *box)
{
    operateBox(dice, box);
}

void Operations::call(Dice &dice, QWidget *widget)
{
    if (operateInput(dice, widget) && dice.once(2))
        return;
    operateDialog(dice, widget) || operateBox(dice, widget) || operateFileDialog(dice, widget)
            || operateProgress(dice, widget) || operateFrame(dice, widget);
}
