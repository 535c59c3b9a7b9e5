#ifndef FAKESCREEN_H
#define FAKESCREEN_H

#include <QRect>

class FakePlatformScreen;
class QScreen;

/// A screen beside the platform's own, with an available area smaller than itself. It goes when
/// this object goes.
class FakeScreen
{
public:
    enum Role { Secondary, Primary };

    FakeScreen(const QRect &geometry, const QRect &available, Role role = Secondary);
    ~FakeScreen();
    FakeScreen(const FakeScreen &) = delete;
    FakeScreen &operator=(const FakeScreen &) = delete;

    QScreen *screen() const;

private:
    FakePlatformScreen *platformScreen; // owned by the window system once it knows it
};

/// Takes the platform's own screen away for the rest of the process: QGuiApplication then has none.
void removeEveryScreen();

#endif // FAKESCREEN_H
