#include "InputDialogsPage.h"

#include "ControlPanel.h"

#include <QZelFolderNameDialog.h>
#include <QZelPwdInputDialog.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace {

const auto Code = R"code(
QZelPwdInputDialog dialog(this);
connect(&dialog,
        &QZelPwdInputDialog::passwordEntered,
        this, [&](const QString &password) {
    if (isRight(password))
        dialog.done(QDialog::Accepted);
    else
        dialog.SetErrorMsg(tr("It is wrong"));
});
if (dialog.exec() == QDialog::Accepted)
    unlock();

QZelFolderNameDialog name(this);
name.setContent(tr("New folder"));
if (name.exec() == QDialog::Accepted)
    make(name.let_FolderName->text());
)code";

// A host's own dialog on the shell, whose two hooks refuse when told to.
class ShellDialog : public QZelDialog
{
public:
    explicit ShellDialog(QWidget *parent)
        : QZelDialog(parent)
    {}

    bool PreAccept() override { return !acceptRefused; }
    bool PreClose() override { return !closeRefused; }

    bool acceptRefused = false;
    bool closeRefused = false;
};

QString resultName(int result)
{
    return result == QDialog::Accepted ? QStringLiteral("1 (Accepted)")
                                       : QStringLiteral("0 (Rejected)");
}

} // namespace

InputDialogsPage::InputDialogsPage(SignalLog *log, QWidget *parent)
    : GalleryPage(log, parent)
{
    setHeading(
            tr("Input dialogs"),
            tr("QZelDialog is the shell; the dialogs for a new password, a password and a folder "
               "name are built on it, and so are a host's own."));
    setCode(QString::fromUtf8(Code));
    createPasswordPanels();
    createFolderNamePanel();
    createShellPanel();
}

void InputDialogsPage::createShellPanel()
{
    ControlPanel *panel = addPanel(QStringLiteral("QZelDialog"));
    shellTitle = panel->addText(QStringLiteral("shellTitle"), tr("Title"), tr("Network"));
    okText = panel->addText(QStringLiteral("okText"), tr("Confirm button"), tr("Apply"));
    cancelText = panel->addText(QStringLiteral("cancelText"), tr("Cancel button"), tr("Discard"));
    shellWidth = panel->addNumber(QStringLiteral("shellWidth"), tr("Width"), 200, 1000, 420);
    shellHeight = panel->addNumber(QStringLiteral("shellHeight"), tr("Height"), 120, 800, 240);
    showOk = panel->addCheck(QStringLiteral("showOk"), tr("Show Confirm"), true);
    showCancel = panel->addCheck(QStringLiteral("showCancel"), tr("Show Cancel"), true);
    okEnabled = panel->addCheck(QStringLiteral("okEnabled"), tr("Confirm is enabled"), true);
    showMax = panel->addCheck(QStringLiteral("showMax"), tr("Show the maximise button"), true);
    ownBottom = panel->addCheck(QStringLiteral("ownBottom"), tr("A bottom row of its own"));
    vetoAccept = panel->addCheck(QStringLiteral("vetoAccept"), tr("PreAccept() refuses"));
    vetoClose = panel->addCheck(QStringLiteral("vetoClose"), tr("PreClose() refuses"));
    QPushButton *run = panel->addButton(QStringLiteral("execShell"), QStringLiteral("exec()"));
    connect(run, &QPushButton::clicked, this, &InputDialogsPage::runShell);
}

void InputDialogsPage::createPasswordPanels()
{
    ControlPanel *set = addPanel(QStringLiteral("QZelEncDialog"));
    QPushButton *runSet = set->addButton(QStringLiteral("execSetPassword"), tr("Set a password"));
    connect(runSet, &QPushButton::clicked, this, &InputDialogsPage::runSetPassword);

    ControlPanel *ask = addPanel(QStringLiteral("QZelPwdInputDialog"));
    rightPassword = ask->addText(QStringLiteral("rightPassword"), tr("The right one"),
                                 QStringLiteral("abc123"));
    inputTitle = ask->addText(QStringLiteral("inputTitle"), tr("Caption"), QString());
    inputTitle->setPlaceholderText(tr("(the dialog's own)"));
    tipText = ask->addText(QStringLiteral("tipText"), tr("Placeholder"), tr("Letters and digits"));
    QPushButton *runAsk =
            ask->addButton(QStringLiteral("execPassword"), tr("Ask for the password"));
    connect(runAsk, &QPushButton::clicked, this, &InputDialogsPage::runPassword);
}

void InputDialogsPage::createFolderNamePanel()
{
    ControlPanel *panel = addPanel(QStringLiteral("QZelFolderNameDialog"));
    prompt = panel->addText(QStringLiteral("prompt"), tr("Prompt"), QString());
    prompt->setPlaceholderText(tr("(the dialog's own)"));
    folderName = panel->addText(QStringLiteral("folderName"), tr("Name"), tr("New folder"));
    QPushButton *run = panel->addButton(QStringLiteral("execFolderName"), tr("Ask for the name"));
    connect(run, &QPushButton::clicked, this, &InputDialogsPage::runFolderName);
}

void InputDialogsPage::fillShell(QZelDialog *dialog)
{
    auto *content = new QLabel(tr("Any widget goes in here."), dialog);
    content->setAlignment(Qt::AlignCenter);
    content->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    dialog->SetContainer(content);
    if (!ownBottom->isChecked())
        return;
    auto *bottom = new QWidget(dialog);
    auto *row = new QHBoxLayout(bottom);
    auto *button = new QPushButton(tr("Close"), bottom);
    row->addWidget(button, 0, Qt::AlignRight);
    connect(button, &QPushButton::clicked, dialog, &QWidget::close);
    dialog->SetBottom(bottom);
}

void InputDialogsPage::runShell()
{
    ShellDialog dialog(this);
    dialog.acceptRefused = vetoAccept->isChecked();
    dialog.closeRefused = vetoClose->isChecked();
    dialog.SetTitle(shellTitle->text());
    dialog.SetBtnText(okText->text(), cancelText->text());
    dialog.ShowBtn(showOk->isChecked(), showCancel->isChecked());
    dialog.SetBtnEnabled(okEnabled->isChecked());
    if (showMax->isChecked())
        dialog.ShowMaxBtn();
    fillShell(&dialog);
    dialog.Resize(0, 0, shellWidth->value(), shellHeight->value());
    report(QStringLiteral("QZelDialog"), QStringLiteral("exec"), resultName(dialog.exec()));
}

void InputDialogsPage::runSetPassword()
{
    QZelEncDialog dialog(this);
    const int result = dialog.exec();
    const int length = dialog.let_Pwd->text().trimmed().size();
    report(QStringLiteral("QZelEncDialog"), QStringLiteral("exec"),
           result == QDialog::Accepted ? tr("%n character(s)", nullptr, length)
                                       : resultName(result));
}

void InputDialogsPage::runPassword()
{
    QZelPwdInputDialog dialog(this);
    dialog.SetInputTitle(inputTitle->text());
    dialog.SetEditTipText(tipText->text());
    connect(&dialog, &QZelPwdInputDialog::passwordEntered, this, [&](const QString &password) {
        report(QStringLiteral("QZelPwdInputDialog"), QStringLiteral("passwordEntered"), password);
        if (password == rightPassword->text())
            dialog.done(QDialog::Accepted);
        else
            dialog.SetErrorMsg(tr("Wrong password"));
    });
    report(QStringLiteral("QZelPwdInputDialog"), QStringLiteral("exec"), resultName(dialog.exec()));
}

void InputDialogsPage::runFolderName()
{
    QZelFolderNameDialog dialog(this);
    dialog.SetTitle(tr("New folder"));
    if (!prompt->text().isEmpty())
        dialog.setTitle(prompt->text());
    dialog.setContent(folderName->text());
    const bool accepted = dialog.exec() == QDialog::Accepted;
    report(QStringLiteral("QZelFolderNameDialog"), QStringLiteral("exec"),
           accepted ? dialog.let_FolderName->text() : resultName(QDialog::Rejected));
}
