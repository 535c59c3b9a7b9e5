#include "FtpFolder.h"
#include "Pointer.h"
#include "TestMain.h"

#include <QDialog>
#include <QLabel>
#include <QMouseEvent>
#include <QZelDialog.h>
#include <QZelFileDialog.h>
#include <QZelFileManagerWidget.h>

#include <memory>

namespace {

using Factory = QDialog *(*) ();

QDialog *makeShell()
{
    auto *shell = new QZelDialog(nullptr);
    shell->SetContainer(new QWidget);
    shell->Resize(0, 0, 300, 150);
    return shell;
}

QDialog *makeFileDialog()
{
    return new QZelFileDialog(nullptr, QStringLiteral("Open"), FtpFolder::path(), QString(),
                              QZelFileDialog::OpenFile);
}

QDialog *makeFileManager()
{
    return new QZelFileManagerWidget(nullptr);
}

// One window with a title strip, at a place where its whole strip is on the screen.
class Fixture
{
public:
    explicit Fixture(Factory make)
        : window(make())
        , strip(window->findChild<QWidget *>(QStringLiteral("wgt_TitleBar")))
    {
        window->move(origin);
    }

    // Whether the window's filter consumes the event; nothing reaches the strip itself.
    bool filter(QEvent::Type type, const QPointF &screenPosition, Qt::MouseButton button,
                Qt::MouseButtons buttons)
    {
        // Local positions that are off, since only the screen's may count.
        QMouseEvent event(type, QPointF(1, 1), QPointF(2, 2), screenPosition, button, buttons,
                          Qt::NoModifier);
        return ask(strip, &event);
    }
    bool ask(QObject *watched, QEvent *event)
    {
        return static_cast<QObject *>(window.get())->eventFilter(watched, event);
    }
    bool press(Qt::MouseButton button, const QPointF &at = QPointF(110, 130))
    {
        return filter(QEvent::MouseButtonPress, at, button, button);
    }
    bool move(Qt::MouseButtons buttons, const QPointF &to)
    {
        return filter(QEvent::MouseMove, to, Qt::NoButton, buttons);
    }
    bool release(Qt::MouseButton button)
    {
        return filter(QEvent::MouseButtonRelease, QPointF(110, 130), button, Qt::NoButton);
    }

    static constexpr QPoint origin { 100, 120 };
    const std::unique_ptr<QDialog> window;
    QWidget *const strip;
};

// Counts the presses that get as far as a widget.
class PressCounter : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonPress)
            ++presses;
        return QObject::eventFilter(watched, event);
    }
    int presses = 0;
};

} // namespace

Q_DECLARE_METATYPE(Factory)
Q_DECLARE_METATYPE(Qt::MouseButton)

// The one rule of the title strips, in each of the classes that have it.
class tst_TitleDrag : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void pointerCarriesTheWindowAlong_data() { windows(); }
    void pointerCarriesTheWindowAlong();
    void rightPressIsConsumedWithoutDragging_data() { windows(); }
    void rightPressIsConsumedWithoutDragging();
    void everyPressIsConsumed_data() { windowsAndButtons(); }
    void everyPressIsConsumed();
    void onlyALeftPressTakesHold_data() { windowsAndButtons(); }
    void onlyALeftPressTakesHold();
    void movesNeedExactlyTheLeftButton_data();
    void movesNeedExactlyTheLeftButton();
    void otherPressDuringADragKeepsTheHold_data() { windows(); }
    void otherPressDuringADragKeepsTheHold();
    void anyReleaseEndsTheDrag_data() { windowsAndButtons(); }
    void anyReleaseEndsTheDrag();
    void moveWithoutAPressIsPassedOn_data() { windows(); }
    void moveWithoutAPressIsPassedOn();
    void screenPositionsAreRounded_data() { windows(); }
    void screenPositionsAreRounded();
    void otherEventsArePassedOn_data() { windows(); }
    void otherEventsArePassedOn();
    void otherObjectsArePassedOn_data() { windows(); }
    void otherObjectsArePassedOn();
    void missingEventIsPassedOn_data() { windows(); }
    void missingEventIsPassedOn();
    void onlyTheShellIsKeptOnTheScreen_data();
    void onlyTheShellIsKeptOnTheScreen();

private:
    void windows();
    void windowsAndButtons();
};

void tst_TitleDrag::init()
{
    QVERIFY(FtpFolder::reset());
}

void tst_TitleDrag::windows()
{
    QTest::addColumn<Factory>("make");
    QTest::newRow("dialog shell") << Factory(makeShell);
    QTest::newRow("file dialog") << Factory(makeFileDialog);
    QTest::newRow("file manager") << Factory(makeFileManager);
}

void tst_TitleDrag::windowsAndButtons()
{
    QTest::addColumn<Factory>("make");
    QTest::addColumn<Qt::MouseButton>("button");
    const std::pair<const char *, Factory> makers[] { { "dialog shell", makeShell },
                                                      { "file dialog", makeFileDialog },
                                                      { "file manager", makeFileManager } };
    const std::pair<const char *, Qt::MouseButton> buttons[] { { "left", Qt::LeftButton },
                                                               { "right", Qt::RightButton },
                                                               { "middle", Qt::MiddleButton },
                                                               { "back", Qt::BackButton } };
    for (const auto &maker : makers)
        for (const auto &button : buttons)
            QTest::addRow("%s, %s", maker.first, button.first) << maker.second << button.second;
}

void tst_TitleDrag::pointerCarriesTheWindowAlong()
{
    QFETCH(Factory, make);
    const Fixture fixture(make);
    QDialog *window = fixture.window.get();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    const QPoint grip = window->mapToGlobal(QPoint(40, 16));
    const QWidget *label = QApplication::widgetAt(grip);
    QVERIFY(qobject_cast<const QLabel *>(label) || label == fixture.strip);

    Pointer pointer(window);
    pointer.press(grip);
    pointer.moveTo(grip + QPoint(11, 13));
    QTRY_COMPARE(window->pos(), Fixture::origin + QPoint(11, 13));
    pointer.moveTo(grip + QPoint(-20, 40));
    QTRY_COMPARE(window->pos(), Fixture::origin + QPoint(-20, 40));
    pointer.release();
    pointer.moveTo(grip + QPoint(5, 60));
    QCOMPARE(window->pos(), Fixture::origin + QPoint(-20, 40));
}

void tst_TitleDrag::rightPressIsConsumedWithoutDragging()
{
    QFETCH(Factory, make);
    const Fixture fixture(make);
    QDialog *window = fixture.window.get();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    PressCounter counter;
    window->installEventFilter(&counter);

    const QPoint grip = window->mapToGlobal(QPoint(40, 16));
    Pointer pointer(window);
    pointer.press(grip, Qt::RightButton);
    pointer.moveTo(grip + QPoint(11, 13));
    pointer.release(Qt::RightButton);
    QCOMPARE(window->pos(), Fixture::origin);
    // Swallowed by the strip, so it does not go on to the window.
    QCOMPARE(counter.presses, 0);
}

void tst_TitleDrag::everyPressIsConsumed()
{
    QFETCH(Factory, make);
    QFETCH(Qt::MouseButton, button);
    Fixture fixture(make);
    QVERIFY(fixture.press(button));
}

void tst_TitleDrag::onlyALeftPressTakesHold()
{
    QFETCH(Factory, make);
    QFETCH(Qt::MouseButton, button);
    Fixture fixture(make);
    fixture.press(button);
    const bool left = button == Qt::LeftButton;
    QCOMPARE(fixture.move(Qt::LeftButton, { 117, 128 }), left);
    QCOMPARE(fixture.window->pos(), Fixture::origin + (left ? QPoint(7, -2) : QPoint()));
}

void tst_TitleDrag::movesNeedExactlyTheLeftButton_data()
{
    QTest::addColumn<Factory>("make");
    QTest::addColumn<Qt::MouseButtons>("buttons");
    const std::pair<const char *, Factory> makers[] { { "dialog shell", makeShell },
                                                      { "file dialog", makeFileDialog },
                                                      { "file manager", makeFileManager } };
    const std::pair<const char *, Qt::MouseButtons> held[] {
        { "none", Qt::NoButton },
        { "right", Qt::RightButton },
        { "left and right", Qt::LeftButton | Qt::RightButton },
        { "left and middle", Qt::LeftButton | Qt::MiddleButton }
    };
    for (const auto &maker : makers)
        for (const auto &buttons : held)
            QTest::addRow("%s, %s", maker.first, buttons.first) << maker.second << buttons.second;
}

void tst_TitleDrag::movesNeedExactlyTheLeftButton()
{
    QFETCH(Factory, make);
    QFETCH(Qt::MouseButtons, buttons);
    Fixture fixture(make);
    fixture.press(Qt::LeftButton);
    QVERIFY(!fixture.move(buttons, { 150, 160 }));
    QCOMPARE(fixture.window->pos(), Fixture::origin);
    // The hold is not lost by it.
    QVERIFY(fixture.move(Qt::LeftButton, { 111, 132 }));
    QCOMPARE(fixture.window->pos(), Fixture::origin + QPoint(1, 2));
}

void tst_TitleDrag::otherPressDuringADragKeepsTheHold()
{
    QFETCH(Factory, make);
    Fixture fixture(make);
    fixture.press(Qt::LeftButton);
    QVERIFY(fixture.filter(QEvent::MouseButtonPress, QPointF(300, 300), Qt::RightButton,
                           Qt::LeftButton | Qt::RightButton));
    QVERIFY(fixture.move(Qt::LeftButton, { 120, 140 }));
    QCOMPARE(fixture.window->pos(), Fixture::origin + QPoint(10, 10));
}

void tst_TitleDrag::anyReleaseEndsTheDrag()
{
    QFETCH(Factory, make);
    QFETCH(Qt::MouseButton, button);
    Fixture fixture(make);
    fixture.press(Qt::LeftButton);
    QVERIFY(fixture.release(button));
    QVERIFY(!fixture.move(Qt::LeftButton, { 150, 160 }));
    QCOMPARE(fixture.window->pos(), Fixture::origin);
}

void tst_TitleDrag::moveWithoutAPressIsPassedOn()
{
    QFETCH(Factory, make);
    Fixture fixture(make);
    QVERIFY(!fixture.move(Qt::LeftButton, { 150, 160 }));
    QCOMPARE(fixture.window->pos(), Fixture::origin);
    // A release without a press is swallowed all the same.
    QVERIFY(fixture.release(Qt::LeftButton));
}

void tst_TitleDrag::screenPositionsAreRounded()
{
    QFETCH(Factory, make);
    Fixture fixture(make);
    // Held at (111, 130).
    fixture.press(Qt::LeftButton, { 110.5, 130.4 });
    fixture.move(Qt::LeftButton, { 120.4, 140.6 });
    QCOMPARE(fixture.window->pos(), Fixture::origin + QPoint(120 - 111, 141 - 130));
}

void tst_TitleDrag::otherEventsArePassedOn()
{
    QFETCH(Factory, make);
    Fixture fixture(make);
    QVERIFY(!fixture.filter(QEvent::MouseButtonDblClick, QPointF(110, 130), Qt::LeftButton,
                            Qt::LeftButton));
    QVERIFY(!fixture.move(Qt::LeftButton, { 150, 160 }));
    for (const QEvent::Type type : { QEvent::Enter, QEvent::Leave, QEvent::FocusIn, QEvent::Show }) {
        QEvent event(type);
        QVERIFY(!fixture.ask(fixture.strip, &event));
    }
    QCOMPARE(fixture.window->pos(), Fixture::origin);
}

void tst_TitleDrag::otherObjectsArePassedOn()
{
    QFETCH(Factory, make);
    Fixture fixture(make);
    QDialog *window = fixture.window.get();
    QWidget *bottom = window->findChild<QWidget *>(QStringLiteral("wgt_Bottom"));
    for (QObject *other : { static_cast<QObject *>(bottom), static_cast<QObject *>(window),
                            static_cast<QObject *>(nullptr) }) {
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 1), QPointF(2, 2), QPointF(110, 130),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QVERIFY(!fixture.ask(other, &press));
        QVERIFY(!fixture.move(Qt::LeftButton, { 150, 160 }));
    }
    QCOMPARE(window->pos(), Fixture::origin);
}

void tst_TitleDrag::missingEventIsPassedOn()
{
    QFETCH(Factory, make);
    Fixture fixture(make);
    QVERIFY(!fixture.ask(fixture.strip, nullptr));
}

void tst_TitleDrag::onlyTheShellIsKeptOnTheScreen_data()
{
    QTest::addColumn<Factory>("make");
    QTest::addColumn<bool>("kept");
    QTest::newRow("dialog shell") << Factory(makeShell) << true;
    QTest::newRow("file dialog") << Factory(makeFileDialog) << false;
    QTest::newRow("file manager") << Factory(makeFileManager) << false;
}

void tst_TitleDrag::onlyTheShellIsKeptOnTheScreen()
{
    QFETCH(Factory, make);
    QFETCH(bool, kept);
    Fixture fixture(make);
    fixture.press(Qt::LeftButton);
    QVERIFY(fixture.move(Qt::LeftButton, { -890, -870 }));
    QCOMPARE(fixture.window->pos(), kept ? QPoint(0, 0) : QPoint(-900, -880));
    QVERIFY(fixture.move(Qt::LeftButton, { 2110, 2130 }));
    QCOMPARE(fixture.window->pos(), kept ? QPoint(799 - 300, 599 - 150) : QPoint(2100, 2120));
}

QTARNKIT_TEST_MAIN(tst_TitleDrag)
#include "tst_TitleDrag.moc"
