#include "FakeScreen.h"

#include <QGuiApplication>
#include <QScreen>

#include <qpa/qplatformscreen.h>
#include <qpa/qwindowsysteminterface.h>

class FakePlatformScreen : public QPlatformScreen
{
public:
    FakePlatformScreen(const QRect &geometry, const QRect &available)
        : rect(geometry)
        , area(available)
    {}

    QRect geometry() const override { return rect; }
    QRect availableGeometry() const override { return area; }
    int depth() const override { return 32; }
    QImage::Format format() const override { return QImage::Format_RGB32; }

private:
    QRect rect;
    QRect area;
};

FakeScreen::FakeScreen(const QRect &geometry, const QRect &available, Role role)
    : platformScreen(new FakePlatformScreen(geometry, available))
{
    QWindowSystemInterface::handleScreenAdded(platformScreen, role == Primary);
}

FakeScreen::~FakeScreen()
{
    QWindowSystemInterface::handleScreenRemoved(platformScreen);
}

QScreen *FakeScreen::screen() const
{
    return platformScreen->screen();
}

void removeEveryScreen()
{
    while (QScreen *screen = QGuiApplication::primaryScreen())
        QWindowSystemInterface::handleScreenRemoved(screen->handle());
}
