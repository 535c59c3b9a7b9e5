#include "BaseWindowProbe.h"
#include "Pixels.h"
#include "Pointer.h"
#include "TestMain.h"

#include <QMetaMethod>
#include <QSignalSpy>

namespace {

// Notes the types of the events that it gets itself.
class Strip : public QWidget
{
public:
    using QWidget::QWidget;

    bool event(QEvent *event) override
    {
        types.append(event->type());
        return QWidget::event(event);
    }

    QList<QEvent::Type> types;
};

// Notes whose events pass its filter.
class FilterProbe : public BaseWindowProbe
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonDblClick)
            filtered.append(watched);
        return BaseWindowProbe::eventFilter(watched, event);
    }

    QList<QObject *> filtered;
};

void doubleClick(QWidget *widget, QEvent::Type type = QEvent::MouseButtonDblClick)
{
    QMouseEvent event(type, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

} // namespace

class tst_QZelBaseWindows : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAMainWindow();
    void metaMethodsAreInOrder();
    void membersStartAsDocumented();
    void isFramelessWithAParentToo();
    void leavesTheHoverAttributeAlone();
    void styleSheetPaintsTheBackground();
    void showEventMarksTheWindowMapped();
    void nativeEventLetsEverythingPass_data();
    void nativeEventLetsEverythingPass();
    void slotsStoreTheirValues();
    void titleBarDoubleClickIsReported_data();
    void titleBarDoubleClickIsReported();
    void otherTitleBarEventsAreNotReported();
    void realDoubleClickIsReportedOnceAndChangesNothing();
    void doubleClickOnTheWindowItselfIsNotReported();
    void replacedTitleBarStaysFilteredButIsNotReported();
    void nullTitleBarMeansNone();
    void deletedTitleBarDoesNoHarm();
    void nothingIsConsumed();
    void stateChangeSwitchesMovingAndResizing_data();
    void stateChangeSwitchesMovingAndResizing();
    void stateChangeBetweenTwoOtherStatesStaysOff();
    void normalStateOverwritesTheSlots();
};

void tst_QZelBaseWindows::isAMainWindow()
{
    BaseWindowProbe window;
    QVERIFY(window.inherits("QMainWindow"));
    QCOMPARE(QZelBaseWindows::staticMetaObject.className(), "QZelBaseWindows");
    QCOMPARE(QZelBaseWindows::staticMetaObject.superClass(), &QMainWindow::staticMetaObject);
}

void tst_QZelBaseWindows::metaMethodsAreInOrder()
{
    const QMetaObject &meta = QZelBaseWindows::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        signatures += QString::fromLatin1(meta.method(i).methodSignature());
    QCOMPARE(signatures, (QStringList { QStringLiteral("titleDblClick()"),
                                        QStringLiteral("windowStateChange(bool)"),
                                        QStringLiteral("setPadding(int)"),
                                        QStringLiteral("setMoveEnable(bool)"),
                                        QStringLiteral("setResizeEnable(bool)"),
                                        QStringLiteral("setTitleBar(QWidget*)") }));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.method(meta.methodOffset() + 2).methodType(), QMetaMethod::Slot);
    QCOMPARE(meta.method(meta.methodOffset() + 2).access(), QMetaMethod::Public);
}

void tst_QZelBaseWindows::membersStartAsDocumented()
{
    const BaseWindowProbe window;
    QCOMPARE(window.padding, 2);
    QCOMPARE(window.moveEnable, true);
    QCOMPARE(window.resizeEnable, true);
    QCOMPARE(window.titleBar, static_cast<QWidget *>(nullptr));
    QCOMPARE(window.isPressed, false);
    QCOMPARE(window.pressPoint, QPoint(0, 0));
    QCOMPARE(window.pressRect, QRect());
    QCOMPARE(window.pressedArea,
             QList<bool>({ false, false, false, false, false, false, false, false }));
    QCOMPARE(window.areaRects, QList<QRect>({ {}, {}, {}, {}, {}, {}, {}, {} }));
}

void tst_QZelBaseWindows::isFramelessWithAParentToo()
{
    const BaseWindowProbe window;
    QCOMPARE(int(window.windowFlags() & Qt::WindowFlags(0x2801)), 0x2801);
    QVERIFY(!window.parentWidget());

    QWidget parent;
    const auto *child = new BaseWindowProbe(&parent);
    QCOMPARE(int(child->windowFlags() & Qt::WindowFlags(0x2801)), 0x2801);
    QCOMPARE(child->parentWidget(), &parent);
    QVERIFY(child->isWindow());
}

// Qt's main window may set it: the host decides.
void tst_QZelBaseWindows::leavesTheHoverAttributeAlone()
{
    const bool inherited = QMainWindow().testAttribute(Qt::WA_Hover);
    BaseWindowProbe window;
    QCOMPARE(window.testAttribute(Qt::WA_Hover), inherited);
    window.setAttribute(Qt::WA_Hover, !inherited);
    window.show();
    window.setWindowState(Qt::WindowMaximized);
    window.setWindowState(Qt::WindowNoState);
    QCOMPARE(window.testAttribute(Qt::WA_Hover), !inherited);
    window.hide();
}

void tst_QZelBaseWindows::styleSheetPaintsTheBackground()
{
    BaseWindowProbe window;
    QVERIFY(window.testAttribute(Qt::WA_StyledBackground));
    window.setStyleSheet(QStringLiteral("QZelBaseWindows { background: #123456; }"));
    window.resize(40, 30);
    const QImage image = Pixels::rendered(&window);
    COMPARE_PIXEL(image, 0, 0, 0x123456);
    COMPARE_PIXEL(image, 39, 29, 0x123456);
}

void tst_QZelBaseWindows::showEventMarksTheWindowMapped()
{
    BaseWindowProbe window;
    QVERIFY(!window.testAttribute(Qt::WA_Mapped));
    QShowEvent event;
    window.showEvent(&event);
    QVERIFY(window.testAttribute(Qt::WA_Mapped));
}

void tst_QZelBaseWindows::nativeEventLetsEverythingPass_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("Windows") << QByteArray("windows_generic_MSG");
    QTest::newRow("macOS") << QByteArray("NSEvent");
    QTest::newRow("X11") << QByteArray("xcb_generic_event_t");
    QTest::newRow("unknown") << QByteArray("something_else");
    QTest::newRow("other case") << QByteArray("nsevent");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("null") << QByteArray();
}

void tst_QZelBaseWindows::nativeEventLetsEverythingPass()
{
    QFETCH(QByteArray, type);
    BaseWindowProbe window;
    int message = 42;
    long result = 42;
    QCOMPARE(window.nativeEvent(type, &message, &result), false);
    QCOMPARE(message, 42);
    QCOMPARE(result, 42L);
    QCOMPARE(window.nativeEvent(type, nullptr, nullptr), false);
}

void tst_QZelBaseWindows::slotsStoreTheirValues()
{
    BaseWindowProbe window;
    QWidget strip;
    // As a form or a queued call reaches them.
    QVERIFY(QMetaObject::invokeMethod(&window, "setPadding", Q_ARG(int, 7)));
    QVERIFY(QMetaObject::invokeMethod(&window, "setMoveEnable", Q_ARG(bool, false)));
    QVERIFY(QMetaObject::invokeMethod(&window, "setResizeEnable", Q_ARG(bool, false)));
    QWidget *const stripAddress = &strip; // the argument keeps where it stands
    const QArgument<QWidget *> bar("QWidget*",
                                   stripAddress); // normalised, as Q_ARG would not leave it
    QVERIFY(QMetaObject::invokeMethod(&window, "setTitleBar", bar));
    QCOMPARE(window.padding, 7);
    QCOMPARE(window.moveEnable, false);
    QCOMPARE(window.resizeEnable, false);
    QCOMPARE(window.titleBar, &strip);
    window.setMoveEnable(true);
    window.setResizeEnable(true);
    QCOMPARE(window.moveEnable, true);
    QCOMPARE(window.resizeEnable, true);
}

void tst_QZelBaseWindows::titleBarDoubleClickIsReported_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("client area") << int(QEvent::MouseButtonDblClick);
    QTest::newRow("frame area") << int(QEvent::NonClientAreaMouseButtonDblClick);
}

void tst_QZelBaseWindows::titleBarDoubleClickIsReported()
{
    QFETCH(int, type);
    BaseWindowProbe window;
    Strip strip;
    window.setTitleBar(&strip);
    QSignalSpy spy(&window, &QZelBaseWindows::titleDblClick);
    doubleClick(&strip, QEvent::Type(type));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(strip.types.count(QEvent::Type(type)), 1);
}

void tst_QZelBaseWindows::otherTitleBarEventsAreNotReported()
{
    BaseWindowProbe window;
    Strip strip;
    window.setTitleBar(&strip);
    QSignalSpy spy(&window, &QZelBaseWindows::titleDblClick);
    const QEvent::Type others[] = { QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                    QEvent::MouseMove, QEvent::NonClientAreaMouseButtonPress,
                                    QEvent::NonClientAreaMouseButtonRelease };
    for (const QEvent::Type type : others) {
        doubleClick(&strip, type);
        QCOMPARE(strip.types.count(type), 1);
    }
    QCOMPARE(spy.count(), 0);
    // Nor does the window take the strip's press for its own.
    QCOMPARE(window.isPressed, false);
}

void tst_QZelBaseWindows::realDoubleClickIsReportedOnceAndChangesNothing()
{
    BaseWindowProbe window;
    auto *strip = new Strip(&window);
    strip->setGeometry(10, 10, 200, 25);
    window.setTitleBar(strip);
    window.setGeometry(100, 100, 400, 300);
    window.show();
    QSignalSpy clicks(&window, &QZelBaseWindows::titleDblClick);
    QSignalSpy states(&window, &QZelBaseWindows::windowStateChange);
    Pointer pointer(&window);
    pointer.doubleClick(middleOf(strip));
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(strip->types.count(QEvent::MouseButtonDblClick), 1);
    QCOMPARE(states.count(), 0);
    QCOMPARE(window.windowState(), Qt::WindowNoState);
    QCOMPARE(window.geometry(), QRect(100, 100, 400, 300));
    window.hide();
}

void tst_QZelBaseWindows::doubleClickOnTheWindowItselfIsNotReported()
{
    BaseWindowProbe window;
    Strip strip;
    window.setTitleBar(&strip);
    QSignalSpy spy(&window, &QZelBaseWindows::titleDblClick);
    doubleClick(&window);
    QCOMPARE(spy.count(), 0);
    // It is no press either.
    QCOMPARE(window.isPressed, false);
}

void tst_QZelBaseWindows::replacedTitleBarStaysFilteredButIsNotReported()
{
    FilterProbe window;
    QWidget first;
    QWidget second;
    QSignalSpy spy(&window, &QZelBaseWindows::titleDblClick);
    window.setTitleBar(&first);
    window.setTitleBar(&second);
    doubleClick(&first);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(window.filtered, QList<QObject *>({ &first }));
    doubleClick(&second);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(window.filtered, QList<QObject *>({ &first, &second }));
}

void tst_QZelBaseWindows::nullTitleBarMeansNone()
{
    BaseWindowProbe window;
    QWidget strip;
    QSignalSpy spy(&window, &QZelBaseWindows::titleDblClick);
    window.setTitleBar(&strip);
    window.setTitleBar(nullptr);
    QCOMPARE(window.titleBar, static_cast<QWidget *>(nullptr));
    doubleClick(&strip);
    QCOMPARE(spy.count(), 0);
}

void tst_QZelBaseWindows::deletedTitleBarDoesNoHarm()
{
    BaseWindowProbe window;
    auto *strip = new QWidget(&window);
    QSignalSpy spy(&window, &QZelBaseWindows::titleDblClick);
    window.setTitleBar(strip);
    delete strip;
    doubleClick(&window);
    QCOMPARE(spy.count(), 0);
    QWidget next;
    window.setTitleBar(&next);
    doubleClick(&next);
    QCOMPARE(spy.count(), 1);
}

void tst_QZelBaseWindows::nothingIsConsumed()
{
    BaseWindowProbe window;
    QWidget strip;
    QObject stranger;
    window.setTitleBar(&strip);
    const QEvent::Type mouse[] = { QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                   QEvent::MouseMove, QEvent::MouseButtonDblClick,
                                   QEvent::NonClientAreaMouseButtonDblClick };
    for (const QEvent::Type type : mouse) {
        QMouseEvent event(type, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCOMPARE(window.eventFilter(&window, &event), false);
        QCOMPARE(window.eventFilter(&strip, &event), false);
        QCOMPARE(window.eventFilter(&stranger, &event), false);
    }
    QHoverEvent hover(QEvent::HoverMove, QPointF(1, 1), QPointF(1, 1));
    QCOMPARE(window.eventFilter(&window, &hover), false);
    QResizeEvent resize(QSize(10, 10), QSize(5, 5));
    QCOMPARE(window.eventFilter(&window, &resize), false);
    QWindowStateChangeEvent state(Qt::WindowMaximized);
    QCOMPARE(window.eventFilter(&window, &state), false);
    QEvent other(QEvent::LanguageChange);
    QCOMPARE(window.eventFilter(&window, &other), false);
    QCOMPARE(window.eventFilter(nullptr, &other), false);
}

void tst_QZelBaseWindows::stateChangeSwitchesMovingAndResizing_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("maximised") << int(Qt::WindowMaximized);
    QTest::newRow("minimised") << int(Qt::WindowMinimized);
    QTest::newRow("full screen") << int(Qt::WindowFullScreen);
    QTest::newRow("maximised and minimised") << int(Qt::WindowMaximized | Qt::WindowMinimized);
}

void tst_QZelBaseWindows::stateChangeSwitchesMovingAndResizing()
{
    QFETCH(int, state);
    BaseWindowProbe window;
    window.setGeometry(100, 100, 400, 300);
    window.show();
    QSignalSpy spy(&window, &QZelBaseWindows::windowStateChange);
    bool movable = true;
    // The switches are thrown before the signal tells of it.
    connect(&window, &QZelBaseWindows::windowStateChange, this,
            [&] { movable = window.moveEnable || window.resizeEnable; });

    window.setWindowState(Qt::WindowState(state));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    QCOMPARE(window.moveEnable, false);
    QCOMPARE(window.resizeEnable, false);
    QCOMPARE(movable, false);

    window.setWindowState(Qt::WindowNoState);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(0).toBool(), false);
    QCOMPARE(window.moveEnable, true);
    QCOMPARE(window.resizeEnable, true);
    QCOMPARE(movable, true);
    window.hide();
}

void tst_QZelBaseWindows::stateChangeBetweenTwoOtherStatesStaysOff()
{
    BaseWindowProbe window;
    QSignalSpy spy(&window, &QZelBaseWindows::windowStateChange);
    window.setWindowState(Qt::WindowMaximized);
    window.setWindowState(Qt::WindowFullScreen);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(0).toBool(), true);
    QCOMPARE(window.moveEnable, false);
    QCOMPARE(window.resizeEnable, false);
}

void tst_QZelBaseWindows::normalStateOverwritesTheSlots()
{
    BaseWindowProbe window;
    window.setMoveEnable(false);
    window.setResizeEnable(false);
    window.setWindowState(Qt::WindowMaximized);
    window.setMoveEnable(true);
    QCOMPARE(window.moveEnable, true);
    window.setWindowState(Qt::WindowNoState);
    QCOMPARE(window.moveEnable, true);
    QCOMPARE(window.resizeEnable, true);
}

QTARNKIT_TEST_MAIN(tst_QZelBaseWindows)
#include "tst_QZelBaseWindows.moc"
