#include "FileDialogProbe.h"
#include "TestMain.h"

#include <QDir>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>

class tst_QZelFileDialog_drag : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();
    void theStripDragsFromAnywhereOnIt_data();
    void theStripDragsFromAnywhereOnIt();
    void theTitleKeepsItsFocusPolicyAndLetsThePointerThrough();
    void aDragGoesOnBesideTheStrip();
    void aDragIsNotHeldOnTheScreen();
    void aReleaseEndsTheDrag();
    void aReleaseOfAnotherButtonEndsTheDragToo();
    void rightPressIsConsumedWithoutDragging();
    void twoButtonsDoNotDrag();
    void screenPositionsAreRounded();
    void pressesOnTheCloseButtonDoNotDrag();
    void pressesBelowTheStripDoNotDrag();
    void otherEventsAreLeftAlone();

private:
    QWidget *strip() const { return dialog->part<QWidget>(QStringLiteral("wgt_TitleBar")); }
    bool filter(QObject *watched, QEvent::Type type, Qt::MouseButton button,
                Qt::MouseButtons buttons, const QPointF &screen);

    std::unique_ptr<FileDialogProbe> dialog;
};

void tst_QZelFileDialog_drag::init()
{
    dialog = std::make_unique<FileDialogProbe>(nullptr, QStringLiteral("A title to drag by"),
                                               QDir::tempPath());
    dialog->resize(600, 300);
    dialog->move(100, 100);
    QVERIFY(dialog->showAndWait());
}

void tst_QZelFileDialog_drag::cleanupTestCase()
{
    dialog.reset();
}

// The filter's answer to a mouse event of its own, at any fraction of a pixel.
bool tst_QZelFileDialog_drag::filter(QObject *watched, QEvent::Type type, Qt::MouseButton button,
                                     Qt::MouseButtons buttons, const QPointF &screen)
{
    QMouseEvent event(type, QPointF(5, 5), QPointF(5, 5), screen, button, buttons, Qt::NoModifier);
    return dialog->eventFilter(watched, &event);
}

void tst_QZelFileDialog_drag::theStripDragsFromAnywhereOnIt_data()
{
    QTest::addColumn<QPoint>("offset");
    QTest::newRow("title text") << QPoint(20, 16);
    QTest::newRow("left edge") << QPoint(0, 1);
    QTest::newRow("top edge") << QPoint(300, 0);
    QTest::newRow("middle") << QPoint(300, 16);
    QTest::newRow("bottom edge") << QPoint(300, 31);
    QTest::newRow("beside the close button") << QPoint(562, 16);
    QTest::newRow("right edge") << QPoint(599, 16);
}

void tst_QZelFileDialog_drag::theStripDragsFromAnywhereOnIt()
{
    QFETCH(QPoint, offset);
    const QPoint start = dialog->pos();
    Pointer pointer(dialog.get());
    pointer.press(start + offset);
    QVERIFY(dialog->titlePressed);
    pointer.moveTo(start + offset + QPoint(33, -21));
    QCOMPARE(dialog->pos(), start + QPoint(33, -21));
    pointer.moveTo(start + offset + QPoint(-7, 40));
    QCOMPARE(dialog->pos(), start + QPoint(-7, 40));
    pointer.release();
    QVERIFY(!dialog->titlePressed);
    dialog->close();
}

void tst_QZelFileDialog_drag::theTitleKeepsItsFocusPolicyAndLetsThePointerThrough()
{
    const auto *title = dialog->part<QLabel>(QStringLiteral("label_title"));
    QCOMPARE(title->focusPolicy(), Qt::ClickFocus);
    const QPoint onTitle = middleOf(title);
    QCOMPARE(strip()->childAt(strip()->mapFromGlobal(onTitle)), nullptr);
    dialog->pathEdit()->setFocus();
    Pointer(dialog.get()).click(onTitle);
    QCOMPARE(dialog->focusWidget(), strip());
    dialog->close();
}

void tst_QZelFileDialog_drag::aDragGoesOnBesideTheStrip()
{
    const QPoint start = dialog->pos();
    Pointer pointer(dialog.get());
    pointer.press(start + QPoint(300, 16));
    pointer.moveTo(start + QPoint(300, 216));
    QCOMPARE(dialog->pos(), start + QPoint(0, 200));
    pointer.release();
    dialog->close();
}

void tst_QZelFileDialog_drag::aDragIsNotHeldOnTheScreen()
{
    const QPoint start = dialog->pos();
    Pointer pointer(dialog.get());
    pointer.press(start + QPoint(300, 16));
    pointer.moveTo(QPoint(-5000, -4000));
    QCOMPARE(dialog->pos(), QPoint(-5300, -4016));
    pointer.release();
    dialog->close();
}

void tst_QZelFileDialog_drag::aReleaseEndsTheDrag()
{
    const QPoint start = dialog->pos();
    Pointer pointer(dialog.get());
    pointer.press(start + QPoint(300, 16));
    pointer.release();
    pointer.moveTo(start + QPoint(350, 16));
    QCOMPARE(dialog->pos(), start);
    // Not even with the button down again, when that happened elsewhere.
    QVERIFY(!filter(strip(), QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, start));
    QCOMPARE(dialog->pos(), start);
    dialog->close();
}

void tst_QZelFileDialog_drag::aReleaseOfAnotherButtonEndsTheDragToo()
{
    QVERIFY(filter(strip(), QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, { 10, 10 }));
    QVERIFY(dialog->titlePressed);
    QVERIFY(filter(strip(), QEvent::MouseButtonRelease, Qt::RightButton, Qt::LeftButton,
                   { 10, 10 }));
    QVERIFY(!dialog->titlePressed);
    const QPoint start = dialog->pos();
    QVERIFY(!filter(strip(), QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, { 30, 10 }));
    QCOMPARE(dialog->pos(), start);
    dialog->close();
}

void tst_QZelFileDialog_drag::rightPressIsConsumedWithoutDragging()
{
    const QPoint start = dialog->pos();
    for (const Qt::MouseButton button : { Qt::RightButton, Qt::MiddleButton }) {
        QVERIFY(filter(strip(), QEvent::MouseButtonPress, button, button, { 10, 10 }));
        QVERIFY(!dialog->titlePressed);
        Pointer pointer(dialog.get());
        pointer.press(start + QPoint(300, 16), button);
        pointer.moveTo(start + QPoint(350, 16));
        pointer.release(button);
        QCOMPARE(dialog->pos(), start);
    }
    dialog->close();
}

void tst_QZelFileDialog_drag::twoButtonsDoNotDrag()
{
    const QPoint start = dialog->pos();
    QVERIFY(filter(strip(), QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton,
                   start + QPoint(10, 10)));
    QVERIFY(!filter(strip(), QEvent::MouseMove, Qt::NoButton, Qt::LeftButton | Qt::RightButton,
                    start + QPoint(50, 50)));
    QVERIFY(!filter(strip(), QEvent::MouseMove, Qt::NoButton, Qt::NoButton, start + QPoint(50, 50)));
    QCOMPARE(dialog->pos(), start);
    QVERIFY(filter(strip(), QEvent::MouseMove, Qt::NoButton, Qt::LeftButton,
                   start + QPoint(50, 50)));
    QCOMPARE(dialog->pos(), start + QPoint(40, 40));
    dialog->close();
}

void tst_QZelFileDialog_drag::screenPositionsAreRounded()
{
    const QPoint start = dialog->pos();
    const QPointF at = start + QPointF(10.6, 10.4); // taken for 11, 10
    QVERIFY(filter(strip(), QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, at));
    QVERIFY(filter(strip(), QEvent::MouseMove, Qt::NoButton, Qt::LeftButton,
                   start + QPointF(11.4, 9.6))); // the same pixel
    QCOMPARE(dialog->pos(), start);
    QVERIFY(filter(strip(), QEvent::MouseMove, Qt::NoButton, Qt::LeftButton,
                   start + QPointF(11.6, 9.4)));
    QCOMPARE(dialog->pos(), start + QPoint(1, -1));
    dialog->close();
}

void tst_QZelFileDialog_drag::pressesOnTheCloseButtonDoNotDrag()
{
    const QPoint start = dialog->pos();
    const QSignalSpy rejected(dialog.get(), &QDialog::rejected);
    Pointer pointer(dialog.get());
    pointer.press(middleOf(dialog->button(QStringLiteral("btn_Close"))));
    QVERIFY(!dialog->titlePressed);
    pointer.moveTo(start + QPoint(400, 100));
    pointer.release();
    QCOMPARE(dialog->pos(), start);
    QCOMPARE(rejected.count(), 0);
    dialog->close();
}

void tst_QZelFileDialog_drag::pressesBelowTheStripDoNotDrag()
{
    const QPoint start = dialog->pos();
    Pointer pointer(dialog.get());
    pointer.press(start + QPoint(300, 33));
    QVERIFY(!dialog->titlePressed);
    pointer.moveTo(start + QPoint(350, 80));
    pointer.release();
    QCOMPARE(dialog->pos(), start);
    dialog->close();
}

void tst_QZelFileDialog_drag::otherEventsAreLeftAlone()
{
    QVERIFY(!filter(dialog->list(), QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton,
                    { 10, 10 }));
    QVERIFY(!filter(dialog.get(), QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton,
                    { 10, 10 }));
    QVERIFY(!filter(nullptr, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, { 10, 10 }));
    QVERIFY(!dialog->titlePressed);
    QVERIFY(!filter(strip(), QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::LeftButton,
                    { 10, 10 }));
    QEvent enter(QEvent::Enter);
    QVERIFY(!dialog->eventFilter(strip(), &enter));
    QVERIFY(!dialog->eventFilter(strip(), nullptr));
    QVERIFY(!dialog->titlePressed);
    dialog->close();
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_drag)
#include "tst_QZelFileDialog_drag.moc"
