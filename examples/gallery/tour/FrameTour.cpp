#include "Families.h"
#include "MainWindow.h"
#include "Stage.h"
#include "pages/DemoWindow.h"

#include <QTitleBar.h>

#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

namespace {

void showPages(Stage &stage)
{
    const char *const names[] = { "frame",        "message box", "file dialog",
                                  "file manager", "inputs",      "progress",
                                  "unlock",       "spin box",    "images" };
    int index = 0;
    for (const char *name : names) {
        stage.openPage(index);
        auto *list = stage.child<QListWidget>(stage.gallery(), "navigation");
        const bool there = stage.holds([&] { return list->currentRow() == index; });
        stage.step(QStringLiteral("page ") + QLatin1String(name), there,
                   stage.text([&] { return list->currentItem()->text(); }), { stage.gallery() });
        ++index;
    }
}

QString rectText(const QRect &rect)
{
    return QStringLiteral("%1 x %2 at %3, %4")
            .arg(rect.width())
            .arg(rect.height())
            .arg(rect.x())
            .arg(rect.y());
}

QRect geometryOf(Stage &stage, const QWidget *window)
{
    return stage.ask<QRect>([=] { return window->geometry(); });
}

// Drags a place of the window and checks what becomes of its geometry.
void dragAndCompare(Stage &stage, DemoWindow *demo, const QString &name, const QPoint &place,
                    const QRect &expectedChange)
{
    const QRect before = geometryOf(stage, demo);
    const QPoint from = before.topLeft() + place;
    const QPoint by(expectedChange.x() != 0 ? expectedChange.x() : expectedChange.width(),
                    expectedChange.y() != 0 ? expectedChange.y() : expectedChange.height());
    stage.drag(demo, from, from + by);
    const QRect after = geometryOf(stage, demo);
    const QRect expected(before.topLeft() + expectedChange.topLeft(),
                         before.size() + expectedChange.size());
    stage.step(name, after == expected, rectText(after), { demo });
}

void dragWindow(Stage &stage, DemoWindow *demo)
{
    const QRect start = geometryOf(stage, demo);
    dragAndCompare(stage, demo, QStringLiteral("frame moved by a free place"),
                   QPoint(start.width() / 2, start.height() / 2), QRect(40, 24, 0, 0));
    dragAndCompare(stage, demo, QStringLiteral("frame moved by its title bar"), QPoint(80, 12),
                   QRect(-30, -16, 0, 0));
    dragAndCompare(stage, demo, QStringLiteral("frame resized by a corner"),
                   QPoint(start.width() - 2, start.height() - 2), QRect(0, 0, 60, 40));
    dragAndCompare(stage, demo, QStringLiteral("frame resized by its left edge"),
                   QPoint(2, start.height() / 2), QRect(-50, 0, 50, 0));

    stage.clickControl("resizeEnable");
    const QRect before = geometryOf(stage, demo);
    stage.drag(demo, before.bottomRight() - QPoint(1, 1), before.bottomRight() + QPoint(50, 50));
    stage.step(QStringLiteral("frame not resized when told so"), geometryOf(stage, demo) == before,
               rectText(before), { demo });
    stage.clickControl("resizeEnable");
}

void useTitleBar(Stage &stage, DemoWindow *demo)
{
    stage.fill("barTitle", QStringLiteral("Measurements"));
    stage.choose("barColor", 1);
    stage.step(QStringLiteral("title bar with a theme colour"), demo->isVisible(),
               QStringLiteral("blue"), { demo });

    const QRect normal = geometryOf(stage, demo);
    stage.doubleClick(demo->bar());
    stage.step(QStringLiteral("frame maximised by a double click"), stage.holds([=] {
        return demo->isMaximized();
    }) && stage.logged("windowStateChange") == QLatin1String("true"),
               rectText(geometryOf(stage, demo)), { demo });
    stage.doubleClick(demo->bar());
    stage.step(QStringLiteral("frame restored by a double click"),
               geometryOf(stage, demo) == normal
                       && stage.logged("windowStateChange") == QLatin1String("false"),
               rectText(geometryOf(stage, demo)), { demo });

    auto *close = stage.ask<QWidget *>([=] { return demo->bar()->findChild<QPushButton *>(); });
    stage.click(close);
    stage.step(QStringLiteral("frame closed by its title bar"),
               !stage.holds([=] { return demo->isVisible(); }), QStringLiteral("SIG_CloseWindow"),
               { stage.gallery() });
}

void maximizeGallery(Stage &stage)
{
    auto *strip = stage.child<QWidget>(stage.gallery(), "wgt_TitleBar");
    const QRect normal = geometryOf(stage, stage.gallery());
    stage.doubleClick(strip);
    stage.step(QStringLiteral("gallery maximised by its strip"),
               stage.holds([&] { return stage.gallery()->isMaximized(); }),
               rectText(geometryOf(stage, stage.gallery())), { stage.gallery() });
    stage.click(stage.child<QToolButton>(stage.gallery(), "btn_Max"));
    stage.step(QStringLiteral("gallery restored by its button"),
               geometryOf(stage, stage.gallery()) == normal, rectText(normal), { stage.gallery() });
}

void switchAppearance(Stage &stage)
{
    auto *style = stage.child<QToolButton>(stage.gallery(), "btn_Style");
    auto *language = stage.child<QToolButton>(stage.gallery(), "btn_Language");
    stage.click(style);
    stage.click(language);
    stage.step(QStringLiteral("other style and language while running"), true,
               stage.text([&] { return stage.gallery()->windowTitle(); }), { stage.gallery() });
    stage.click(style);
    stage.click(language);
}

} // namespace

void Families::frame(Stage &stage)
{
    showPages(stage);
    stage.openPage(0);
    stage.clickControl("showDemo");
    auto *demo = stage.window<DemoWindow>();
    stage.step(QStringLiteral("frame window"), demo,
               demo ? rectText(geometryOf(stage, demo)) : QString(), { demo });
    if (demo) {
        dragWindow(stage, demo);
        useTitleBar(stage, demo);
    }
    maximizeGallery(stage);
    switchAppearance(stage);
}
