#include "Families.h"
#include "MainWindow.h"
#include "Stage.h"

#include <ClientUnlockWidget.h>
#include <QZelIntSpinBox.h>

#include <QSlider>
#include <QSpinBox>
#include <QWindow>

using QTarnKit::QZelIntSpinBox;

namespace {

// The headless platform gives the focus to every window that comes up, even to one that does not
// accept it; a window system does not. So the loss of the focus to such a window does not count.
class FocusKeeper : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        const QWindow *focused = QGuiApplication::focusWindow();
        return event->type() == QEvent::FocusOut && focused
               && focused->flags().testFlag(Qt::WindowDoesNotAcceptFocus);
    }
};

void useNotice(Stage &stage)
{
    stage.openPage(6);
    stage.clickControl("tryShow");
    stage.step(QStringLiteral("unlock notice not asked for"),
               !stage.holds([] { return QApplication::activeModalWidget() != nullptr; }),
               stage.logged("TryShow"), { stage.gallery() });
    stage.clickControl("modalShow");
    auto *notice = stage.window<ClientUnlockWidget>();
    stage.step(QStringLiteral("unlock notice"), notice, stage.logged("ModalShow"), { notice });
    stage.click(stage.button(notice, 0));
    stage.awaitEnd();
    stage.step(QStringLiteral("unlock clicked"),
               stage.logged("Sig_UnlockClicked") == QLatin1String("1"),
               stage.logged("Sig_UnlockClicked"), { stage.gallery() });
}

void useSpinBox(Stage &stage)
{
    stage.openPage(7);
    auto *box = stage.control<QZelIntSpinBox>("zelSpinBox");
    auto *spin = stage.ask<QSpinBox *>([=] { return box->findChild<QSpinBox *>(); });
    auto *slider = stage.ask<QSlider *>([=] { return box->findChild<QSlider *>(); });
    FocusKeeper keeper;
    keeper.moveToThread(qApp->thread());
    stage.tell([&] { spin->installEventFilter(&keeper); });
    stage.click(spin);
    stage.await([=] { return slider->isVisible(); }, QStringLiteral("the slider"));
    stage.step(QStringLiteral("spin box with its slider"), true,
               stage.text([=] { return QString::number(box->Value()); }),
               { stage.gallery(), slider });

    const QRect place = stage.ask<QRect>([=] { return slider->geometry(); });
    const int handle = place.left() + place.width() * 40 / 100;
    stage.drag(slider, QPoint(handle, place.center().y()),
               QPoint(place.left() + place.width() * 80 / 100, place.center().y()));
    const int value = stage.ask<int>([=] { return box->Value(); });
    stage.step(QStringLiteral("slider dragged"), value > 60, QString::number(value),
               { stage.gallery(), slider });

    stage.tell([&] { stage.gallery()->activateWindow(); });
    stage.fill("maximum", QStringLiteral("50"));
    stage.clickControl("setRange");
    const int clamped = stage.ask<int>([=] { return box->Value(); });
    stage.step(QStringLiteral("spin box range set and slider gone"),
               clamped == 50 && !stage.holds([=] { return slider->isVisible(); }),
               QString::number(clamped), { stage.gallery() });
    stage.tell([&] { spin->removeEventFilter(&keeper); });
}

} // namespace

void Families::smallWidgets(Stage &stage)
{
    useNotice(stage);
    useSpinBox(stage);
}
