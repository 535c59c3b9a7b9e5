#include "Families.h"
#include "MainWindow.h"
#include "Stage.h"

#include <QUIMessageBox.h>

#include <QDialog>

using QTarnKit::QUIMessageBox;

namespace {

void showTypes(Stage &stage)
{
    const struct
    {
        const char *name;
        int index;
        int button;
        const char *result;
    } types[] = { { "information", 0, 0, "1 (Accepted)" },
                  { "warning", 1, 0, "1 (Accepted)" },
                  { "error", 2, 0, "1 (Accepted)" },
                  { "question yes", 3, 0, "1 (Accepted)" },
                  { "question no", 3, 1, "0 (Rejected)" } };
    for (const auto &type : types) {
        stage.choose("boxType", type.index);
        stage.clickControl("execBox");
        auto *box = stage.window<QUIMessageBox>();
        stage.step(QStringLiteral("message box ") + QLatin1String(type.name), box,
                   QStringLiteral("shown"), { box });
        stage.click(stage.button(box, type.button));
        stage.awaitEnd();
        const QString result = stage.logged("exec");
        if (result != QLatin1String(type.result))
            stage.trouble(QStringLiteral("exec() returned ") + result);
    }
}

void useCustomButtons(Stage &stage)
{
    stage.clickControl("execCustom");
    auto *box = stage.window<QUIMessageBox>();
    stage.step(QStringLiteral("message box custom buttons"), box, QStringLiteral("two buttons"),
               { box });
    stage.click(stage.button(box, 1));
    stage.awaitEnd();
    stage.step(QStringLiteral("custom button clicked"),
               stage.logged("CustBtnClicked") == QLatin1String("1"), stage.logged("CustBtnClicked"),
               { stage.gallery() });
}

void useStandardButtons(Stage &stage)
{
    stage.clickControl("execStandard");
    auto *box = stage.window<QUIMessageBox>();
    stage.step(QStringLiteral("message box confirm and cancel"), box, QStringLiteral("two buttons"),
               { box });
    stage.click(stage.button(box, 1));
    stage.awaitEnd();
}

void useCountdown(Stage &stage)
{
    stage.choose("boxType", 4);
    stage.fill("countdown", QStringLiteral("2"));
    stage.clickControl("showInstance");
    auto *box = stage.window<QUIMessageBox>();
    stage.step(QStringLiteral("message box with countdown"), box, QStringLiteral("two seconds"),
               { box });
    const bool gone = stage.await([] { return !QUIMessageBox::Instance()->isVisible(); },
                                  QStringLiteral("the countdown"));
    stage.step(QStringLiteral("message box closed by itself"), gone, QStringLiteral("closed"),
               { stage.gallery() });
    stage.fill("countdown", QStringLiteral("0"));
}

} // namespace

void Families::messageBox(Stage &stage)
{
    stage.openPage(1);
    showTypes(stage);
    useCustomButtons(stage);
    useStandardButtons(stage);
    useCountdown(stage);
}
