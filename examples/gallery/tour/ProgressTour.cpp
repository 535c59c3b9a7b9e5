#include "Families.h"
#include "MainWindow.h"
#include "Stage.h"

#include <CustomProgressBar.h>
#include <QWaitingDialog.h>

#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>

namespace {

constexpr QRgb Fill = 0xffff6802;

// How many pixels of the bar's middle row are filled.
int filled(const QWidget *dialog)
{
    QWidget *bar = dialog->findChild<ProgressBar *>();
    const QImage image = bar->grab().toImage();
    int count = 0;
    for (int x = 0; x < image.width(); ++x)
        count += image.pixel(x, image.height() / 2) == Fill ? 1 : 0;
    return count;
}

void copyFile(Stage &stage)
{
    stage.fill("megabytes", QStringLiteral("96"));
    stage.clickControl("startCopy");
    auto *dialog = stage.window<QWaitingDialog>();
    if (!dialog)
        return;
    const auto *icon = stage.ask<QLabel *>([=] { return dialog->findChild<QLabel *>(); });
    const auto frame = [=] { return icon->pixmap(Qt::ReturnByValue).cacheKey(); };
    const qint64 firstFrame = stage.ask<qint64>(frame);
    const int firstFill = stage.ask<int>([=] { return filled(dialog); });
    const bool turned =
            stage.await([&] { return frame() != firstFrame; }, QStringLiteral("the icon to turn"));
    const bool grown = stage.await([&] { return filled(dialog) > firstFill + 20; },
                                   QStringLiteral("the bar to grow"));
    stage.step(QStringLiteral("waiting dialog during a copy"), turned && grown,
               QStringLiteral("icon turned, bar moved"), { dialog });
    stage.await([&] { return filled(dialog) > dialog->width() / 2; },
                QStringLiteral("half of the copy"));
    stage.step(QStringLiteral("waiting dialog further on"), dialog, QStringLiteral("past the half"),
               { dialog });
    stage.await([=] { return !dialog->isVisible(); }, QStringLiteral("the copy to end"));
    const QString copied = stage.logged("hideWaitingDialog");
    stage.step(QStringLiteral("waiting dialog gone with the copy"),
               copied.contains(QLatin1String("96")), copied, { stage.gallery() });
}

void showWithoutBar(Stage &stage)
{
    // A long message wraps and the box grows with it.
    auto *message = stage.control<QLineEdit>("message");
    auto *sentence = stage.control<QLabel>("pageSentence");
    stage.tell([=] { message->setText(sentence->text()); });
    stage.clickControl("barVisible");
    stage.clickControl("showWaiting");
    auto *dialog = stage.window<QWaitingDialog>();
    stage.step(QStringLiteral("waiting dialog without a bar"), dialog, QStringLiteral("shown"),
               { dialog });
    stage.await([=] { return dialog && !dialog->isVisible(); }, QStringLiteral("it to go"));
}

void useCustomBar(Stage &stage)
{
    stage.clickControl("showCustom");
    auto *bar = stage.window<CustomProgressBar>();
    stage.step(QStringLiteral("custom progress bar"), bar, QStringLiteral("40 %"), { bar });
    stage.awaitEnd();
    stage.clickControl("runCustom");
    const bool ran = stage.window<CustomProgressBar>() && stage.awaitEnd();
    stage.step(QStringLiteral("custom progress bar run to the end"), ran, QStringLiteral("closed"),
               { stage.gallery() });
}

} // namespace

void Families::progress(Stage &stage)
{
    stage.openPage(5);
    copyFile(stage);
    showWithoutBar(stage);
    useCustomBar(stage);
}
