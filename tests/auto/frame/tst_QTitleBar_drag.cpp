#include "Pointer.h"
#include "TestMain.h"
#include "TitleBarProbe.h"

#include <QPushButton>

class tst_QTitleBar_drag : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void leftDragMovesTheParent();
    void dragMovesTheDirectParentOnly();
    void dragMovesWhateverParentItHasNow();
    void positionsAreRoundedAndKept();
    void rightButtonDoesNotDrag();
    void otherButtonsReleaseDoesNotEndADrag();
    void moveWithoutAPressDoesNothing();
    void mouseEventsGoOnToTheParent();
    void titleLabelDragsToo();
    void closeButtonDoesNotDrag();
    void dragWithoutAParentDoesNothing();
};

void tst_QTitleBar_drag::leftDragMovesTheParent()
{
    TitledWindow window;
    window.show();
    Pointer pointer(&window);
    const QPoint from = window.mapToGlobal(QPoint(200, 12));
    pointer.press(from);
    QVERIFY(window.bar->isPressed);
    for (const QPoint &step : { QPoint(7, 5), QPoint(-40, 3), QPoint(30, -11), QPoint(0, 0) }) {
        pointer.moveTo(from + step);
        QCOMPARE(window.geometry(), QRect(QPoint(100, 100) + step, QSize(400, 300)));
        QCOMPARE(window.bar->geometry(), QRect(0, 0, 400, 25));
    }
    pointer.moveTo(from + QPoint(20, 10));
    pointer.release();
    QVERIFY(!window.bar->isPressed);
    pointer.moveTo(from + QPoint(25, 12));
    QCOMPARE(window.pos(), QPoint(120, 110));
    window.hide();
}

void tst_QTitleBar_drag::dragMovesTheDirectParentOnly()
{
    QWidget window;
    window.setGeometry(50, 50, 400, 300);
    auto *panel = new QWidget(&window);
    panel->setGeometry(20, 20, 200, 100);
    TitleBarProbe bar(panel);
    bar.mouse(QEvent::MouseButtonPress, QPointF(100, 100), Qt::LeftButton);
    bar.mouse(QEvent::MouseMove, QPointF(130, 90), Qt::LeftButton);
    QCOMPARE(panel->geometry(), QRect(50, 10, 200, 100));
    QCOMPARE(window.pos(), QPoint(50, 50));
    QCOMPARE(bar.pos(), QPoint(0, 0));
}

void tst_QTitleBar_drag::dragMovesWhateverParentItHasNow()
{
    QWidget first;
    QWidget second;
    TitleBarProbe bar(&first);
    bar.setParent(&second);
    bar.mouse(QEvent::MouseButtonPress, QPointF(0, 0), Qt::LeftButton);
    bar.mouse(QEvent::MouseMove, QPointF(3, 4), Qt::LeftButton);
    QCOMPARE(second.pos(), QPoint(3, 4));
    QCOMPARE(first.pos(), QPoint(0, 0));
}

void tst_QTitleBar_drag::positionsAreRoundedAndKept()
{
    QWidget panel;
    TitleBarProbe bar(&panel);
    bar.mouse(QEvent::MouseButtonPress, QPointF(10.6, 20.4), Qt::LeftButton);
    QCOMPARE(bar.lastGlobalPos, QPoint(11, 20));
    bar.mouse(QEvent::MouseMove, QPointF(12.4, 22.5), Qt::LeftButton);
    QCOMPARE(bar.lastGlobalPos, QPoint(12, 23));
    QCOMPARE(panel.pos(), QPoint(1, 3));
    // The parent's own movement in between is kept: only the step counts.
    panel.move(100, 100);
    bar.mouse(QEvent::MouseMove, QPointF(14, 22), Qt::LeftButton);
    QCOMPARE(panel.pos(), QPoint(102, 99));
}

void tst_QTitleBar_drag::rightButtonDoesNotDrag()
{
    TitledWindow window;
    window.show();
    Pointer pointer(&window);
    const QPoint from = window.mapToGlobal(QPoint(200, 12));
    for (const Qt::MouseButton button : { Qt::RightButton, Qt::MiddleButton }) {
        pointer.press(from, button);
        QVERIFY(!window.bar->isPressed);
        pointer.moveTo(from + QPoint(20, 10));
        pointer.release(button);
        QCOMPARE(window.pos(), QPoint(100, 100));
    }
    QCOMPARE(window.bar->lastGlobalPos, QPoint(0, 0));
    window.hide();
}

void tst_QTitleBar_drag::otherButtonsReleaseDoesNotEndADrag()
{
    QWidget panel;
    TitleBarProbe bar(&panel);
    bar.mouse(QEvent::MouseButtonPress, QPointF(0, 0), Qt::LeftButton);
    bar.mouse(QEvent::MouseButtonRelease, QPointF(0, 0), Qt::RightButton);
    QVERIFY(bar.isPressed);
    // A press of another button does not move the drag's reference.
    bar.mouse(QEvent::MouseButtonPress, QPointF(50, 50), Qt::RightButton);
    QCOMPARE(bar.lastGlobalPos, QPoint(0, 0));
    bar.mouse(QEvent::MouseMove, QPointF(5, 6), Qt::LeftButton);
    QCOMPARE(panel.pos(), QPoint(5, 6));
    bar.mouse(QEvent::MouseButtonRelease, QPointF(5, 6), Qt::LeftButton);
    QVERIFY(!bar.isPressed);
}

void tst_QTitleBar_drag::moveWithoutAPressDoesNothing()
{
    QWidget panel;
    TitleBarProbe bar(&panel);
    bar.mouse(QEvent::MouseMove, QPointF(5, 6), Qt::LeftButton);
    QCOMPARE(panel.pos(), QPoint(0, 0));
    QCOMPARE(bar.lastGlobalPos, QPoint(0, 0));
}

void tst_QTitleBar_drag::mouseEventsGoOnToTheParent()
{
    TitledWindow window;
    for (const Qt::MouseButton button : { Qt::LeftButton, Qt::RightButton }) {
        QVERIFY(!window.bar->mouse(QEvent::MouseButtonPress, QPointF(0, 0), button));
        QVERIFY(!window.bar->mouse(QEvent::MouseMove, QPointF(0, 0), button));
        QVERIFY(!window.bar->mouse(QEvent::MouseButtonRelease, QPointF(0, 0), button));
    }

    window.show();
    window.types.clear();
    Pointer pointer(&window);
    const QPoint from = window.mapToGlobal(QPoint(200, 12));
    pointer.press(from);
    pointer.moveTo(from + QPoint(1, 1));
    pointer.release();
    QCOMPARE(window.types.count(QEvent::MouseButtonPress), 1);
    QVERIFY(window.types.contains(QEvent::MouseMove));
    QCOMPARE(window.types.count(QEvent::MouseButtonRelease), 1);
    window.hide();
}

void tst_QTitleBar_drag::titleLabelDragsToo()
{
    TitledWindow window;
    window.bar->SetTitle(QStringLiteral("title"));
    window.show();
    Pointer pointer(&window);
    const QPoint from = window.bar->titleLabel->mapToGlobal(QPoint(5, 12));
    pointer.press(from);
    pointer.moveTo(from + QPoint(10, 20));
    QCOMPARE(window.pos(), QPoint(110, 120));
    pointer.release();
    window.hide();
}

void tst_QTitleBar_drag::closeButtonDoesNotDrag()
{
    TitledWindow window;
    window.show();
    Pointer pointer(&window);
    const QPoint from = middleOf(window.bar->closeButton);
    pointer.press(from);
    pointer.moveTo(from + QPoint(2, 2));
    QCOMPARE(window.pos(), QPoint(100, 100));
    pointer.release();
    window.hide();
}

void tst_QTitleBar_drag::dragWithoutAParentDoesNothing()
{
    TitleBarProbe bar;
    bar.setWindowFlag(Qt::FramelessWindowHint);
    bar.setGeometry(100, 100, 400, 25);
    bar.show();
    Pointer pointer(&bar);
    const QPoint from = bar.mapToGlobal(QPoint(200, 12));
    pointer.press(from);
    QVERIFY(bar.isPressed);
    pointer.moveTo(from + QPoint(10, 5));
    QCOMPARE(bar.pos(), QPoint(100, 100));
    pointer.release();
    QVERIFY(!bar.isPressed);
    bar.hide();
}

QTARNKIT_TEST_MAIN(tst_QTitleBar_drag)
#include "tst_QTitleBar_drag.moc"
