#include "BoxProbe.h"
#include "Pointer.h"
#include "TestMain.h"

#include <QMouseEvent>

namespace {

using Place = QPoint (*)(const BoxProbe &);

QPoint strip(const BoxProbe &box)
{
    return box.widgetTitle->mapToGlobal(QPoint(20, box.widgetTitle->height() / 2));
}
QPoint icon(const BoxProbe &box)
{
    return middleOf(box.labIco);
}
QPoint title(const BoxProbe &box)
{
    return middleOf(box.labTitle);
}
QPoint besideTheIcon(const BoxProbe &box)
{
    return box.mapToGlobal(QPoint(5, box.labTitle->parentWidget()->geometry().center().y()));
}
QPoint buttonRowMargin(const BoxProbe &box)
{
    return box.widgetBtns->mapToGlobal(QPoint(10, 5));
}
QPoint text(const BoxProbe &box)
{
    return middleOf(box.txtInfo);
}
QPoint standardButton(const BoxProbe &box)
{
    return middleOf(box.btnOk);
}
QPoint closeButton(const BoxProbe &box)
{
    return middleOf(box.closeBtn());
}

// An event as the box's own filter gets it; returns whether it consumes the event.
bool filter(BoxProbe *box, QEvent::Type type, const QPointF &screenPosition, Qt::MouseButton button,
            Qt::MouseButtons buttons)
{
    // Local positions that are off, since only the screen's may count.
    QMouseEvent event(type, QPointF(1, 1), QPointF(2, 2), screenPosition, button, buttons,
                      Qt::NoModifier);
    return box->eventFilter(box, &event);
}
bool press(BoxProbe *box, const QPointF &at, Qt::MouseButton button = Qt::LeftButton)
{
    return filter(box, QEvent::MouseButtonPress, at, button, button);
}
bool move(BoxProbe *box, const QPointF &to, Qt::MouseButtons buttons = Qt::LeftButton)
{
    return filter(box, QEvent::MouseMove, to, Qt::NoButton, buttons);
}
bool release(BoxProbe *box, Qt::MouseButton button = Qt::LeftButton)
{
    return filter(box, QEvent::MouseButtonRelease, QPointF(0, 0), button, Qt::NoButton);
}

constexpr QPoint origin { 100, 120 };

} // namespace

Q_DECLARE_METATYPE(Place)
Q_DECLARE_METATYPE(Qt::MouseButton)

class tst_QUIMessageBox_drag : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void pointerDragsByTheFreeAreasOnly_data();
    void pointerDragsByTheFreeAreasOnly();
    void leftPressIsConsumed();
    void otherPressIsPassedOnWithoutTakingHold_data() { otherButtons(); }
    void otherPressIsPassedOnWithoutTakingHold();
    void anyHeldButtonCarriesTheBox_data();
    void anyHeldButtonCarriesTheBox();
    void moveWithoutAButtonIsPassedOn();
    void moveWithoutAPressIsPassedOn();
    void anyReleaseEndsTheDragAndIsConsumed_data();
    void anyReleaseEndsTheDragAndIsConsumed();
    void screenPositionsAreRounded();
    void boxIsNotKeptOnTheScreen();
    void boxInsideAParentMovesInItsCoordinates();
    void dragStateIsOneForAllBoxes();
    void otherEventsArePassedOn();

private:
    void otherButtons();
};

void tst_QUIMessageBox_drag::init()
{
    // The drag state outlives the boxes.
    BoxProbe box;
    release(&box);
}

void tst_QUIMessageBox_drag::otherButtons()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void tst_QUIMessageBox_drag::pointerDragsByTheFreeAreasOnly_data()
{
    QTest::addColumn<Place>("place");
    QTest::addColumn<bool>("drags");
    QTest::newRow("title strip") << Place(strip) << true;
    QTest::newRow("icon") << Place(icon) << true;
    QTest::newRow("title") << Place(title) << true;
    QTest::newRow("beside the icon") << Place(besideTheIcon) << true;
    QTest::newRow("margin of the button row") << Place(buttonRowMargin) << true;
    QTest::newRow("text") << Place(text) << false;
    QTest::newRow("Confirm") << Place(standardButton) << false;
    QTest::newRow("close button") << Place(closeButton) << false;
}

void tst_QUIMessageBox_drag::pointerDragsByTheFreeAreasOnly()
{
    QFETCH(Place, place);
    QFETCH(bool, drags);
    BoxProbe box;
    box.setMessage(QStringLiteral("Title"), QStringLiteral("Text"), 1, 0);
    box.move(origin);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const QPoint grip = place(box);
    Pointer pointer(&box);
    pointer.press(grip);
    pointer.moveTo(grip + QPoint(6, -5));
    if (drags)
        QTRY_COMPARE(box.pos(), origin + QPoint(6, -5));
    QCOMPARE(box.pos(), origin + (drags ? QPoint(6, -5) : QPoint()));
    pointer.release();
    pointer.moveTo(grip);
    QCOMPARE(box.pos(), origin + (drags ? QPoint(6, -5) : QPoint()));
}

void tst_QUIMessageBox_drag::leftPressIsConsumed()
{
    BoxProbe box;
    QVERIFY(press(&box, { 110, 130 }));
}

void tst_QUIMessageBox_drag::otherPressIsPassedOnWithoutTakingHold()
{
    QFETCH(Qt::MouseButton, button);
    BoxProbe box;
    box.move(origin);
    QVERIFY(!press(&box, { 110, 130 }, button));
    QVERIFY(!move(&box, { 150, 160 }, Qt::LeftButton));
    QCOMPARE(box.pos(), origin);
}

void tst_QUIMessageBox_drag::anyHeldButtonCarriesTheBox_data()
{
    otherButtons();
    QTest::newRow("left") << Qt::LeftButton;
}

void tst_QUIMessageBox_drag::anyHeldButtonCarriesTheBox()
{
    QFETCH(Qt::MouseButton, button);
    BoxProbe box;
    box.move(origin);
    press(&box, { 110, 130 });
    QVERIFY(move(&box, { 150, 160 }, button));
    QCOMPARE(box.pos(), origin + QPoint(40, 30));
    QVERIFY(move(&box, { 120, 100 }, button | Qt::ForwardButton));
    QCOMPARE(box.pos(), origin + QPoint(10, -30));
}

void tst_QUIMessageBox_drag::moveWithoutAButtonIsPassedOn()
{
    BoxProbe box;
    box.move(origin);
    press(&box, { 110, 130 });
    QVERIFY(!move(&box, { 150, 160 }, Qt::NoButton));
    QCOMPARE(box.pos(), origin);
    // The hold is not lost by it.
    QVERIFY(move(&box, { 150, 160 }));
    QCOMPARE(box.pos(), origin + QPoint(40, 30));
}

void tst_QUIMessageBox_drag::moveWithoutAPressIsPassedOn()
{
    BoxProbe box;
    box.move(origin);
    QVERIFY(!move(&box, { 150, 160 }));
    QCOMPARE(box.pos(), origin);
}

void tst_QUIMessageBox_drag::anyReleaseEndsTheDragAndIsConsumed_data()
{
    otherButtons();
    QTest::newRow("left") << Qt::LeftButton;
}

void tst_QUIMessageBox_drag::anyReleaseEndsTheDragAndIsConsumed()
{
    QFETCH(Qt::MouseButton, button);
    BoxProbe box;
    box.move(origin);
    press(&box, { 110, 130 });
    QVERIFY(release(&box, button));
    QVERIFY(!move(&box, { 150, 160 }));
    QCOMPARE(box.pos(), origin);
    // Without a drag as well.
    QVERIFY(release(&box, button));
}

void tst_QUIMessageBox_drag::screenPositionsAreRounded()
{
    BoxProbe box;
    box.move(origin);
    // Held at (111, 130).
    press(&box, { 110.5, 130.4 });
    move(&box, { 120.4, 140.6 });
    QCOMPARE(box.pos(), origin + QPoint(120 - 111, 141 - 130));
}

void tst_QUIMessageBox_drag::boxIsNotKeptOnTheScreen()
{
    BoxProbe box;
    box.move(origin);
    press(&box, { 110, 130 });
    move(&box, { -890, -870 });
    QCOMPARE(box.pos(), QPoint(-900, -880));
    move(&box, { 5010, 4010 });
    QCOMPARE(box.pos(), QPoint(5000, 4000));
}

void tst_QUIMessageBox_drag::boxInsideAParentMovesInItsCoordinates()
{
    QWidget host;
    host.setGeometry(100, 120, 500, 400);
    BoxProbe box(&host);
    box.setMessage(QStringLiteral("Title"), QStringLiteral("Text"), 1, 0);
    box.move(30, 40);
    host.show();
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    const QPoint hostPosition = host.pos();
    Pointer pointer(&host);
    const QPoint grip = strip(box);
    pointer.press(grip);
    pointer.moveTo(grip + QPoint(5, 6));
    QTRY_COMPARE(box.pos(), QPoint(35, 46));
    pointer.release();
    QCOMPARE(host.pos(), hostPosition);
}

void tst_QUIMessageBox_drag::dragStateIsOneForAllBoxes()
{
    BoxProbe first;
    first.move(origin);
    BoxProbe second;
    second.move(400, 300);
    press(&first, { 110, 130 });
    // Held ten pixels inside the first box's corner, and the second is placed by that.
    QVERIFY(move(&second, { 210, 230 }));
    QCOMPARE(second.pos(), QPoint(200, 220));
    QCOMPARE(first.pos(), origin);
    QVERIFY(release(&second));
    QVERIFY(!move(&first, { 150, 160 }));
    QCOMPARE(first.pos(), origin);
}

void tst_QUIMessageBox_drag::otherEventsArePassedOn()
{
    BoxProbe box;
    box.move(origin);
    QVERIFY(!filter(&box, QEvent::MouseButtonDblClick, { 110, 130 }, Qt::LeftButton,
                    Qt::LeftButton));
    QVERIFY(!move(&box, { 150, 160 }));
    for (const QEvent::Type type : { QEvent::Enter, QEvent::Leave, QEvent::Show, QEvent::Close }) {
        QEvent event(type);
        QVERIFY(!box.eventFilter(&box, &event));
    }
}

QTARNKIT_TEST_MAIN(tst_QUIMessageBox_drag)
#include "tst_QUIMessageBox_drag.moc"
