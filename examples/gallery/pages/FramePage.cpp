#include "FramePage.h"

#include "ControlPanel.h"
#include "DemoWindow.h"

#include <QTitleBar.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace {

constexpr int DemoPadding = 6;

const auto Code = R"code(
class Window : public QZelBaseWindows { ... };

Window::Window()
{
    setAttribute(Qt::WA_Hover);
    setPadding(6);
    auto *bar = new QTitleBar(this);
    bar->SetTitle(tr("A frameless window"));
    setMenuWidget(bar);
    setTitleBar(bar);
    connect(bar, &QTitleBar::SIG_CloseWindow,
            this, &QWidget::close);
    connect(this, &Window::titleDblClick,
            this, &Window::toggleMaximized);
}
)code";

} // namespace

FramePage::FramePage(SignalLog *log, QWidget *parent)
    : GalleryPage(log, parent)
    , demo(std::make_unique<DemoWindow>())
{
    setHeading(
            tr("Frameless windows"),
            tr("QZelBaseWindows moves and resizes by itself; QTitleBar is a strip to drag it by. "
               "This gallery's own window is one too."));
    setCode(QString::fromUtf8(Code));
    createWindowPanel();
    createBarPanel();
    connectDemo();
}

FramePage::~FramePage() = default;

void FramePage::createWindowPanel()
{
    ControlPanel *panel = addPanel(QStringLiteral("QZelBaseWindows"));
    QPushButton *show = panel->addButton(QStringLiteral("showDemo"), tr("Show the window"));
    QPushButton *hide = panel->addButton(QStringLiteral("closeDemo"), tr("Close it"));
    padding = panel->addNumber(QStringLiteral("padding"), tr("Border width"), 0, 20, DemoPadding);
    moveEnable = panel->addCheck(QStringLiteral("moveEnable"), tr("The pointer moves it"), true);
    resizeEnable =
            panel->addCheck(QStringLiteral("resizeEnable"), tr("The pointer resizes it"), true);
    panel->addNote(tr("A new border width counts from the next resize. A change of the window's "
                      "state switches moving and resizing by itself."));

    connect(show, &QPushButton::clicked, this, &FramePage::showDemo);
    connect(hide, &QPushButton::clicked, demo.get(), &QWidget::close);
    connect(padding, QOverload<int>::of(&QSpinBox::valueChanged), demo.get(),
            &QZelBaseWindows::setPadding);
    connect(moveEnable, &QCheckBox::toggled, demo.get(), &QZelBaseWindows::setMoveEnable);
    connect(resizeEnable, &QCheckBox::toggled, demo.get(), &QZelBaseWindows::setResizeEnable);
}

void FramePage::createBarPanel()
{
    ControlPanel *panel = addPanel(QStringLiteral("QTitleBar"));
    titleText = panel->addText(QStringLiteral("barTitle"), tr("Title"), tr("A frameless window"));
    color = panel->addChoice(QStringLiteral("barColor"), tr("Theme colour"),
                             { tr("Black"), tr("Blue"), tr("Green"), tr("Wine") });
    connect(titleText, &QLineEdit::textChanged, demo->bar(), &QTitleBar::SetTitle);
    connect(color, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &FramePage::applyColor);
}

void FramePage::connectDemo()
{
    connect(demo->bar(), &QTitleBar::SIG_CloseWindow, this, [this] {
        report(QStringLiteral("QTitleBar"), QStringLiteral("SIG_CloseWindow"));
        demo->close();
    });
    connect(demo.get(), &QZelBaseWindows::titleDblClick, this,
            [this] { report(QStringLiteral("QZelBaseWindows"), QStringLiteral("titleDblClick")); });
    connect(demo.get(), &QZelBaseWindows::windowStateChange, this, &FramePage::followState);
}

void FramePage::showDemo()
{
    const QRect host = window()->geometry();
    if (!demo->isVisible())
        demo->move(host.center() - demo->rect().center());
    demo->show();
    demo->raise();
    demo->activateWindow();
}

void FramePage::applyColor()
{
    const QColor colors[] = {
        { 0x26, 0x26, 0x26 }, { 0x1d, 0x4e, 0x89 }, { 0x1f, 0x6b, 0x45 }, { 0x7a, 0x22, 0x3a }
    };
    demo->bar()->SetThemeColor(colors[color->currentIndex()]);
}

// The window has switched moving and resizing by itself; the boxes show how.
void FramePage::followState(bool changed)
{
    report(QStringLiteral("QZelBaseWindows"), QStringLiteral("windowStateChange"),
           changed ? QStringLiteral("true") : QStringLiteral("false"));
    moveEnable->setChecked(!changed);
    resizeEnable->setChecked(!changed);
}
