#include "Menagerie.h"

#include "Mischief.h"
#include "Names.h"
#include "Operations.h"
#include "Trail.h"

#include <ClientUnlockWidget.h>
#include <CustomProgressBar.h>
#include <ProgressBar.h>
#include <QTitleBar.h>
#include <QUIMessageBox.h>
#include <QWaitingDialog.h>
#include <QZelBaseWindows.h>
#include <QZelFileDialog.h>
#include <QZelFileManagerWidget.h>
#include <QZelFolderNameDialog.h>
#include <QZelIntSpinBox.h>
#include <QZelPwdInputDialog.h>

#include <QApplication>
#include <QDrag>
#include <QFile>
#include <QTextEdit>

using QTarnKit::QUIMessageBox;
using QTarnKit::QZelIntSpinBox;

namespace {

constexpr int MostWindows = 10;

bool isInside(const QObject *object, const QObject *ancestor)
{
    while (object && object != ancestor)
        object = object->parent();
    return object;
}

} // namespace

Menagerie::~Menagerie()
{
    destroyAll();
}

void Menagerie::open(Dice &dice)
{
    windows.removeAll(nullptr);
    if (windows.size() >= MostWindows)
        return destroy(dice);
    ++openedWindows;
    switch (dice.roll(9)) {
    case 0:
    case 1:
        return openDialog(dice);
    case 2:
        return openBox(dice);
    case 3:
        return openFileDialog(dice);
    case 4:
    case 5:
        return openFunction(dice);
    case 6:
        return openWidget(dice);
    case 7:
        return openManager(dice);
    default:
        return openFrame(dice);
    }
}

void Menagerie::operate(Dice &dice)
{
    QWidget *window = any(dice);
    if (!window)
        return Trail::note("operate nothing");
    Trail::note(QByteArray("operate ") + window->metaObject()->className());
    if (window->isHidden() && dice.once(2))
        run(dice, window);
    else
        Operations::call(dice, window);
}

void Menagerie::destroy(Dice &dice)
{
    QWidget *window = any(dice);
    // Half of the time what the running dialog belongs to, or itself.
    running.removeAll(nullptr);
    if (!running.isEmpty() && dice.once(2)) {
        QWidget *top = running.constLast();
        while (top->parentWidget() && !dice.once(3))
            top = top->parentWidget();
        if (windows.contains(top))
            window = top;
    }
    if (!window)
        return Trail::note("destroy nothing");
    // Qt's text edits do not survive their death in a drag of their text.
    if (window->findChild<QDrag *>()) {
        Trail::note("cancel drag");
        return QDrag::cancel();
    }
    Trail::note(QByteArray("destroy ") + window->metaObject()->className());
    const auto isRunningInside = [window](const QPointer<QDialog> &dialog) {
        return isInside(dialog, window);
    };
    destroyedRunning += int(std::count_if(running.cbegin(), running.cend(), isRunningInside));
    delete window;
}

void Menagerie::destroyAll()
{
    QDrag::cancel();
    const QList<QPointer<QWidget>> all = windows;
    for (const QPointer<QWidget> &window : all)
        delete window.data();
    windows.clear();
    QUIMessageBox::Instance()->hide();
}

bool Menagerie::endRunning()
{
    running.removeAll(nullptr);
    if (running.isEmpty())
        return false;
    Trail::note(QByteArray("end ") + running.constLast()->metaObject()->className());
    running.takeLast()->hide();
    return true;
}

QWidget *Menagerie::any(Dice &dice)
{
    windows.removeAll(nullptr);
    return windows.isEmpty() ? nullptr : dice.pick(windows).data();
}

QWidget *Menagerie::parent(Dice &dice)
{
    return dice.once(3) ? nullptr : any(dice);
}

template <typename T>
T *Menagerie::add(T *window)
{
    windows.append(window);
    return window;
}

// Dialogs run modally or are only shown; the death of a modal one ends its loop.
void Menagerie::run(Dice &dice, QWidget *window)
{
    const QPointer<QDialog> dialog(qobject_cast<QDialog *>(window));
    if (!dialog || running.contains(dialog) || dice.once(2))
        return window->show();
    running.append(dialog);
    dialog->exec();
    running.removeAll(dialog);
    // The library's own box is not ours to destroy.
    if (windows.contains(dialog.data()) && dice.once(2))
        delete dialog.data();
}

void Menagerie::openDialog(Dice &dice)
{
    QWidget *owner = parent(dice);
    QZelDialog *dialog = nullptr;
    switch (dice.roll(4)) {
    case 0:
        dialog = new QZelDialog(owner);
        break;
    case 1:
        dialog = new QZelEncDialog(owner);
        break;
    case 2: {
        auto *password = new QZelPwdInputDialog(owner);
        QObject::connect(password, &QZelPwdInputDialog::passwordEntered, password,
                         [password](const QString &text) {
                             if (text.size() % 2)
                                 delete password;
                             else
                                 password->done(QDialog::Accepted);
                         });
        dialog = password;
        break;
    }
    default:
        dialog = new QZelFolderNameDialog(owner);
    }
    Trail::note(QByteArray("open ") + dialog->metaObject()->className());
    run(dice, add(dialog));
}

void Menagerie::openBox(Dice &dice)
{
    Trail::note("open QUIMessageBox");
    if (dice.once(3)) {
        Operations::fillBox(dice, QUIMessageBox::Instance());
        return run(dice, QUIMessageBox::Instance());
    }
    auto *box = add(new QUIMessageBox(dice.once(3) ? parent(dice) : nullptr));
    Operations::fillBox(dice, box);
    QObject::connect(box, &QUIMessageBox::CustBtnClicked, box, [box](int index) {
        if (index % 2)
            delete box;
        else
            box->close();
    });
    run(dice, box);
}

void Menagerie::openFileDialog(Dice &dice)
{
    const QString dir = QFile::decodeName(Mischief::folder(dice));
    const auto mode = QZelFileDialog::OperateMode(dice.between(1, 5));
    Trail::note("open QZelFileDialog " + QByteArray::number(mode));
    QWidget *owner = parent(dice);
    auto *dialog = add(
            mode == QZelFileDialog::SelectDirectory
                    ? new QZelFileDialog(owner, Names::text(dice), dir)
                    : new QZelFileDialog(owner, Names::text(dice), dir, Names::text(dice), mode));
    if (dice.once(4))
        QObject::connect(dialog, &QZelFileDialog::sig_filePath, dialog, [dialog] { delete dialog; });
    run(dice, dialog);
}

void Menagerie::openFunction(Dice &dice)
{
    QString dir = QFile::decodeName(dice.once(4) ? Names::path(dice, "/root/place")
                                                 : Mischief::folder(dice));
    if (dice.once(12))
        dir.clear();
    const QString caption = Names::text(dice);
    const QString filter = Names::text(dice);
    QWidget *owner = parent(dice);
    QString filterOut;
    QString passwordOut;
    QString *selected = dice.once(2) ? &filterOut : nullptr;
    QString *password = dice.once(2) ? &passwordOut : nullptr;
    const int which = dice.roll(4);
    Trail::note("call function " + QByteArray::number(which));
    switch (which) {
    case 0:
        QZelFileDialog::getOpenFileName(owner, caption, dir, filter, selected);
        break;
    case 1:
        QZelFileDialog::getOpenFileNames(owner, caption, dir, filter, selected);
        break;
    case 2:
        QZelFileDialog::getSaveFileName(owner, caption, dir, filter, selected, dice.once(2),
                                        password);
        break;
    default:
        QZelFileDialog::getExistingDirectory(owner, caption, dir);
    }
}

void Menagerie::openManager(Dice &dice)
{
    Trail::note("open QZelFileManagerWidget");
    run(dice, add(new QZelFileManagerWidget(parent(dice))));
}

void Menagerie::openWidget(Dice &dice)
{
    QWidget *owner = parent(dice);
    QWidget *widget = nullptr;
    switch (dice.roll(5)) {
    case 0:
        widget = new QZelIntSpinBox(owner);
        break;
    case 1:
        widget = new ProgressBar(owner);
        break;
    case 2:
        widget = new CustomProgressBar(owner);
        break;
    case 3:
        widget = new QWaitingDialog(owner);
        break;
    default: {
        auto *notice = new ClientUnlockWidget(owner);
        QObject::connect(notice, &ClientUnlockWidget::Sig_UnlockClicked, notice,
                         [notice] { delete notice; });
        widget = notice;
    }
    }
    Trail::note(QByteArray("open ") + widget->metaObject()->className());
    run(dice, add(widget));
}

void Menagerie::openFrame(Dice &dice)
{
    Trail::note("open QZelBaseWindows");
    auto *window = add(new QZelBaseWindows(parent(dice)));
    auto *bar = add(new QTitleBar(window));
    window->setMenuWidget(bar);
    window->setTitleBar(bar);
    QObject::connect(bar, &QTitleBar::SIG_CloseWindow, window, &QWidget::close);
    QObject::connect(window, &QZelBaseWindows::titleDblClick, window, &QWidget::showMaximized);
    window->setCentralWidget(new QTextEdit);
    window->setGeometry(dice.roll(300), dice.roll(300), dice.between(50, 600),
                        dice.between(50, 600));
    window->show();
}
