#include "DemoWindow.h"

#include <QTitleBar.h>

#include <QLabel>

namespace {

constexpr QSize StartSize(420, 260);
constexpr QSize MinimumSize(260, 160);
constexpr int BorderWidth = 6;

} // namespace

DemoWindow::DemoWindow()
{
    setAttribute(Qt::WA_Hover);
    setPadding(BorderWidth);
    setMinimumSize(MinimumSize);
    resize(StartSize);

    strip = new QTitleBar(this);
    strip->SetTitle(tr("A frameless window"));
    // The strip drags the window by itself. Were its presses to reach the window, that would move
    // too, and the two would pull the window to and fro.
    strip->setAttribute(Qt::WA_NoMousePropagation);
    setMenuWidget(strip);
    setTitleBar(strip);

    auto *text = new QLabel(tr("Drag me by the strip or by any free place.\n"
                               "Pull an edge or a corner to resize me.\n"
                               "Double-click the strip to maximise me."),
                            this);
    text->setObjectName(QStringLiteral("demoText"));
    text->setAlignment(Qt::AlignCenter);
    setCentralWidget(text);

    connect(this, &QZelBaseWindows::titleDblClick, this, &DemoWindow::toggleMaximized);
}

void DemoWindow::toggleMaximized()
{
    if (isMaximized())
        showNormal();
    else
        showMaximized();
}
