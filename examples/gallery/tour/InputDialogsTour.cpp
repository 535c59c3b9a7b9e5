#include "Families.h"
#include "MainWindow.h"
#include "Stage.h"

#include <QZelEncDialog.h>
#include <QZelFolderNameDialog.h>
#include <QZelPwdInputDialog.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace {

QWidget *confirm(Stage &stage, QWidget *dialog)
{
    return stage.button(stage.child<QWidget>(dialog, "wgt_Bottom"), 0);
}

QString errorLine(Stage &stage, const QWidget *dialog)
{
    auto *line = stage.child<QLabel>(dialog, "lbl_Msg");
    return stage.text([=] { return line ? line->text() : QString(); });
}

void useShell(Stage &stage)
{
    stage.clickControl("execShell");
    auto *dialog = stage.window<QZelDialog>();
    stage.step(QStringLiteral("shell dialog"), dialog, QStringLiteral("shown"), { dialog });
    auto *bar = stage.child<QWidget>(dialog, "wgt_TitleBar");
    auto *maximize = stage.child<QToolButton>(dialog, "btn_Max");
    if (!bar || !maximize)
        return;

    const QRect start = stage.ask<QRect>([=] { return dialog->geometry(); });
    const QPoint grip = start.topLeft() + QPoint(60, 14);
    stage.drag(dialog, grip, grip + QPoint(-30, 50));
    const QRect moved = stage.ask<QRect>([=] { return dialog->geometry(); });
    stage.step(QStringLiteral("shell dialog dragged"), moved == start.translated(-30, 50),
               QStringLiteral("by -30, 50"), { dialog });

    stage.click(maximize);
    const bool large = stage.holds([=] { return dialog->width() > moved.width(); });
    stage.step(QStringLiteral("shell dialog maximised"), large, QStringLiteral("over the screen"),
               { dialog });
    stage.click(maximize);
    const bool restored = stage.holds([=] { return dialog->geometry() == moved; });
    stage.step(QStringLiteral("shell dialog restored"), restored, QStringLiteral("as before"),
               { dialog });
    stage.click(confirm(stage, dialog));
    stage.awaitEnd();
    stage.step(QStringLiteral("shell dialog confirmed"),
               stage.logged("exec") == QLatin1String("1 (Accepted)"), stage.logged("exec"),
               { stage.gallery() });
}

void setPassword(Stage &stage)
{
    stage.clickControl("execSetPassword");
    auto *dialog = stage.window<QZelEncDialog>();
    if (!dialog)
        return;
    stage.click(confirm(stage, dialog));
    const QString empty = errorLine(stage, dialog);
    stage.step(QStringLiteral("set password empty"), !empty.isEmpty(), empty, { dialog });

    const auto edits =
            stage.ask<QList<QLineEdit *>>([=] { return dialog->findChildren<QLineEdit *>(); });
    stage.type(edits.at(0), QStringLiteral("abc123"));
    stage.type(edits.at(1), QStringLiteral("abc124"));
    stage.click(confirm(stage, dialog));
    const QString different = errorLine(stage, dialog);
    stage.step(QStringLiteral("set password mismatch"), different != empty && !different.isEmpty(),
               different, { dialog });

    stage.type(edits.at(1), QStringLiteral("abc123"));
    stage.click(stage.ask<QWidget *>([=] { return dialog->findChildren<QCheckBox *>().value(0); }));
    const bool clear = stage.holds([&] { return edits.at(0)->echoMode() == QLineEdit::Normal; });
    stage.step(QStringLiteral("set password shown in clear"), clear, QStringLiteral("abc123"),
               { dialog });
    stage.click(confirm(stage, dialog));
    stage.awaitEnd();
}

void askPassword(Stage &stage)
{
    stage.clickControl("execPassword");
    auto *dialog = stage.window<QZelPwdInputDialog>();
    if (!dialog)
        return;
    stage.step(QStringLiteral("password dialog"), true, QStringLiteral("shown"), { dialog });
    stage.type(dialog->let_Pwd, QStringLiteral("wrong1"));
    stage.click(confirm(stage, dialog));
    const QString message = errorLine(stage, dialog);
    stage.step(QStringLiteral("password wrong"),
               !message.isEmpty() && stage.logged("passwordEntered") == QLatin1String("wrong1"),
               message, { dialog });
    stage.type(dialog->let_Pwd, QStringLiteral("abc123"));
    stage.click(confirm(stage, dialog));
    stage.awaitEnd();
    stage.step(QStringLiteral("password right"),
               stage.logged("exec") == QLatin1String("1 (Accepted)"), stage.logged("exec"),
               { stage.gallery() });
}

void askFolderName(Stage &stage)
{
    stage.clickControl("execFolderName");
    auto *dialog = stage.window<QZelFolderNameDialog>();
    if (!dialog)
        return;
    stage.step(QStringLiteral("folder name dialog"), true, QStringLiteral("shown"), { dialog });
    stage.type(dialog->let_FolderName, QString());
    stage.click(confirm(stage, dialog));
    const bool open = stage.holds([=] { return dialog->isVisible(); });
    stage.step(QStringLiteral("folder name empty is refused"), open, QStringLiteral("stays open"),
               { dialog });
    stage.type(dialog->let_FolderName, QStringLiteral("Reports"));
    stage.click(confirm(stage, dialog));
    stage.awaitEnd();
    stage.step(QStringLiteral("folder name confirmed"),
               stage.logged("exec") == QLatin1String("Reports"), stage.logged("exec"),
               { stage.gallery() });
}

} // namespace

void Families::inputDialogs(Stage &stage)
{
    stage.openPage(4);
    useShell(stage);
    setPassword(stage);
    askPassword(stage);
    askFolderName(stage);
}
