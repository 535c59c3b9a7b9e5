#include "BoxProbe.h"
#include "ModalDriver.h"
#include "Pointer.h"
#include "TestMain.h"

#include <QLayout>
#include <QPointer>
#include <QSignalSpy>

#include <memory>

using QTarnKit::QUIMessageBox;

namespace {

using Member = QPushButton *BoxProbe::*;

// Counts the calls of QDialog's two ends.
class EndCounter : public BoxProbe
{
public:
    void reject() override
    {
        ++rejectCalls;
        BoxProbe::reject();
    }
    int rejectCalls = 0;
};

QStringList two()
{
    return { QStringLiteral("Disk"), QStringLiteral("Card") };
}

} // namespace

Q_DECLARE_METATYPE(Member)

class tst_QUIMessageBox_buttons : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void execResult_data();
    void execResult();
    void execInsideAParent_data() { execResult_data(); }
    void execInsideAParent();
    void standardClickClearsTheHoverState_data() { execResult_data(); }
    void standardClickClearsTheHoverState();
    void closeButtonEndsExecWithZero();
    void closeButtonTellsFirstThenCloses();
    void closingDoesNotReject();
    void closeButtonAfterAnAcceptedRunStillGivesZero();

    void customButtonsFollowTheStandardOnes();
    void customClickTellsTheIndexAndKeepsTheBoxOpen_data();
    void customClickTellsTheIndexAndKeepsTheBoxOpen();
    void receiverEndsTheBox();
    void secondListReplacesTheFirst();
    void clearingRemovesTheButtonsAndForgetsTheIndex();
    void emptyListLeavesNoButtons();
    void buttonsCanBeReplacedWhileOneIsClicked();
    void withoutAButtonLayoutNothingIsAdded();
    void receiverMayDeleteTheBoxOnCustomClick();
    void receiverMayDeleteTheBoxOnClose();
    void receiverMayDeleteARunningBox();
};

void tst_QUIMessageBox_buttons::execResult_data()
{
    QTest::addColumn<Member>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("Confirm") << Member(&BoxProbe::btnOk) << int(QDialog::Accepted);
    QTest::newRow("Yes") << Member(&BoxProbe::btnYes) << int(QDialog::Accepted);
    QTest::newRow("Cancel") << Member(&BoxProbe::btnCancel) << int(QDialog::Rejected);
    QTest::newRow("No") << Member(&BoxProbe::btnNo) << int(QDialog::Rejected);
}

void tst_QUIMessageBox_buttons::execResult()
{
    QFETCH(Member, button);
    QFETCH(int, result);
    BoxProbe box;
    box.SetStandardButtons(QFlag(0x116));
    QSignalSpy accepted(&box, &QDialog::accepted);
    QSignalSpy rejected(&box, &QDialog::rejected);
    QSignalSpy custom(&box, &QUIMessageBox::CustBtnClicked);
    ModalDriver driver;
    driver.on<QUIMessageBox>([&](QUIMessageBox *) { Pointer(&box).click(middleOf(box.*button)); });
    QCOMPARE(box.exec(), result);
    QVERIFY(driver.finished());
    QCOMPARE(accepted.count(), result);
    QCOMPARE(rejected.count(), 1 - result);
    QCOMPARE(custom.count(), 0);
    QVERIFY(!box.isVisible());
}

void tst_QUIMessageBox_buttons::execInsideAParent()
{
    QFETCH(Member, button);
    QFETCH(int, result);
    QWidget host;
    host.resize(500, 400);
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    BoxProbe box(&host);
    box.SetStandardButtons(QFlag(0x116));
    // Not a window, so the modal driver does not know it.
    bool clicked = false;
    QTimer::singleShot(0, &box, [&] {
        clicked = box.isVisible();
        Pointer(&host).click(middleOf(box.*button));
    });
    QTimer watchdog;
    connect(&watchdog, &QTimer::timeout, &box, [&box] { box.done(-1); });
    watchdog.start(20000);
    QCOMPARE(box.exec(), result);
    QVERIFY(clicked);
    QVERIFY(!box.isVisible());
    QVERIFY(host.isVisible());
}

void tst_QUIMessageBox_buttons::standardClickClearsTheHoverState()
{
    QFETCH(Member, button);
    // Never shown: hiding a window clears the state by itself.
    BoxProbe box;
    (box.*button)->setAttribute(Qt::WA_UnderMouse);
    (box.*button)->click();
    QVERIFY(!(box.*button)->testAttribute(Qt::WA_UnderMouse));
}

void tst_QUIMessageBox_buttons::closeButtonEndsExecWithZero()
{
    BoxProbe box;
    box.setMessage(QStringLiteral("Saved"), 1, 0);
    QSignalSpy custom(&box, &QUIMessageBox::CustBtnClicked);
    QSignalSpy finished(&box, &QDialog::finished);
    ModalDriver driver;
    driver.on<QUIMessageBox>(
            [&](QUIMessageBox *) { Pointer(&box).click(middleOf(box.closeBtn())); });
    box.setResult(42);
    QCOMPARE(box.exec(), 0);
    QVERIFY(driver.finished());
    QCOMPARE(custom.count(), 1);
    QCOMPARE(custom.constFirst().constFirst().toInt(), -1);
    QCOMPARE(finished.count(), 0);
}

void tst_QUIMessageBox_buttons::closeButtonTellsFirstThenCloses()
{
    BoxProbe box;
    box.setMessage(QStringLiteral("Saved"), 1, 0);
    box.show();
    bool visible = false;
    bool hovered = false;
    connect(&box, &QUIMessageBox::CustBtnClicked, &box, [&](int) {
        visible = box.isVisible();
        hovered = box.closeBtn()->testAttribute(Qt::WA_UnderMouse);
    });
    box.closeBtn()->setAttribute(Qt::WA_UnderMouse);
    box.closeBtn()->click();
    QVERIFY(visible);
    QVERIFY(hovered);
    QVERIFY(!box.closeBtn()->testAttribute(Qt::WA_UnderMouse));
    QVERIFY(!box.isVisible());

    // Hiding would clear it as well, so once more without a window.
    BoxProbe hidden;
    hidden.closeBtn()->setAttribute(Qt::WA_UnderMouse);
    hidden.closeBtn()->click();
    QVERIFY(!hidden.closeBtn()->testAttribute(Qt::WA_UnderMouse));
}

void tst_QUIMessageBox_buttons::closingDoesNotReject()
{
    EndCounter box;
    QSignalSpy rejected(&box, &QDialog::rejected);
    QSignalSpy finished(&box, &QDialog::finished);
    box.show();
    box.setResult(42);
    QVERIFY(box.close());
    QVERIFY(!box.isVisible());
    QCOMPARE(box.rejectCalls, 0);
    QCOMPARE(rejected.count(), 0);
    QCOMPARE(finished.count(), 0);
    QCOMPARE(box.result(), 42);
}

void tst_QUIMessageBox_buttons::closeButtonAfterAnAcceptedRunStillGivesZero()
{
    BoxProbe box;
    box.setMessage(QStringLiteral("Saved"), 1, 0);
    ModalDriver driver;
    driver.on<QUIMessageBox>([&](QUIMessageBox *) { box.btnOk->click(); });
    QCOMPARE(box.exec(), 1);
    driver.on<QUIMessageBox>([&](QUIMessageBox *) { box.closeBtn()->click(); });
    QCOMPARE(box.exec(), 0);
    QVERIFY(driver.finished());
}

void tst_QUIMessageBox_buttons::customButtonsFollowTheStandardOnes()
{
    BoxProbe box;
    box.SetCustButtons(two());
    const QLayout *row = box.widgetBtns->layout();
    QCOMPARE(row->count(), 8);
    QList<QWidget *> widgets;
    for (int i = 0; i < row->count(); ++i)
        widgets.append(row->itemAt(i)->widget());
    const QList<QWidget *> expected { nullptr,
                                      box.btnOk,
                                      box.btnCancel,
                                      box.btnYes,
                                      box.btnNo,
                                      box.custButtons.at(0),
                                      box.custButtons.at(1),
                                      nullptr };
    QCOMPARE(widgets, expected);
    QCOMPARE(box.customTexts(), two());
    for (const QPushButton *button : qAsConst(box.custButtons))
        QCOMPARE(button->parentWidget(), box.widgetBtns);

    box.SetStandardType(4);
    box.show();
    QVERIFY(box.btnNo->geometry().right() < box.custButtons.at(0)->geometry().left());
    QVERIFY(box.custButtons.at(0)->geometry().right() < box.custButtons.at(1)->geometry().left());
}

void tst_QUIMessageBox_buttons::customClickTellsTheIndexAndKeepsTheBoxOpen_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("first") << 0;
    QTest::newRow("second") << 1;
}

void tst_QUIMessageBox_buttons::customClickTellsTheIndexAndKeepsTheBoxOpen()
{
    QFETCH(int, index);
    BoxProbe box;
    box.setMessage(QStringLiteral("Storage"), QStringLiteral("Where to?"), two(), 0);
    QSignalSpy spy(&box, &QUIMessageBox::CustBtnClicked);
    int indexAtSignal = -1;
    connect(&box, &QUIMessageBox::CustBtnClicked, &box, [&] { indexAtSignal = box.custIndex; });
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    Pointer(&box).click(middleOf(box.custButtons.at(index)));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.constFirst().constFirst().toInt(), index);
    QCOMPARE(indexAtSignal, index);
    QCOMPARE(box.custIndex, index);
    QCOMPARE(box.CustBtIndex(), 0);
    QVERIFY(box.isVisible());
}

void tst_QUIMessageBox_buttons::receiverEndsTheBox()
{
    BoxProbe box;
    box.setMessage(QStringLiteral("Storage"), QStringLiteral("Where to?"), two(), 0);
    connect(&box, &QUIMessageBox::CustBtnClicked, &box, [&box](int index) { box.done(7 + index); });
    ModalDriver driver;
    driver.on<QUIMessageBox>(
            [&](QUIMessageBox *) { Pointer(&box).click(middleOf(box.custButtons.at(1))); });
    QCOMPARE(box.exec(), 8);
    QVERIFY(driver.finished());
}

void tst_QUIMessageBox_buttons::secondListReplacesTheFirst()
{
    BoxProbe box;
    box.SetCustButtons(two());
    const QPointer<QPushButton> old(box.custButtons.constFirst());
    const QStringList three { QStringLiteral("a"), QStringLiteral("b"), QString() };
    box.SetCustButtons(three);
    QCOMPARE(box.customTexts(), three);
    QCOMPARE(box.widgetBtns->layout()->count(), 9);
    QVERIFY(box.widgetBtns->layout()->indexOf(old) < 0);
    QTRY_VERIFY(!old);
    QCOMPARE(box.widgetBtns->findChildren<QPushButton *>().size(), 7);

    QSignalSpy spy(&box, &QUIMessageBox::CustBtnClicked);
    box.custButtons.constLast()->click();
    QCOMPARE(spy.constFirst().constFirst().toInt(), 2);
}

void tst_QUIMessageBox_buttons::clearingRemovesTheButtonsAndForgetsTheIndex()
{
    BoxProbe box;
    box.SetCustButtons(two());
    box.show();
    box.custButtons.constLast()->click();
    QCOMPARE(box.custIndex, 1);
    const QPointer<QPushButton> old(box.custButtons.constLast());
    box.ClearCustButtons();
    QCOMPARE(box.custIndex, -1);
    QVERIFY(box.custButtons.isEmpty());
    QCOMPARE(box.widgetBtns->layout()->count(), 6);
    // Out of sight at once, gone with the next turn of the event loop.
    QVERIFY(old);
    QVERIFY(!old->isVisible());
    QTRY_VERIFY(!old);
    QVERIFY(box.btnOk->isVisible());
}

void tst_QUIMessageBox_buttons::emptyListLeavesNoButtons()
{
    BoxProbe box;
    box.SetCustButtons(two());
    box.SetCustButtons({});
    QVERIFY(box.custButtons.isEmpty());
    QCOMPARE(box.widgetBtns->layout()->count(), 6);
    QCOMPARE(box.custIndex, -1);
}

void tst_QUIMessageBox_buttons::buttonsCanBeReplacedWhileOneIsClicked()
{
    BoxProbe box;
    box.setMessage(QStringLiteral("Storage"), QStringLiteral("Where to?"), two(), 0);
    connect(&box, &QUIMessageBox::CustBtnClicked, &box,
            [&box] { box.SetCustButtons({ QStringLiteral("Next") }); });
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const QPointer<QPushButton> old(box.custButtons.constFirst());
    Pointer(&box).click(middleOf(old));
    QCOMPARE(box.customTexts(), QStringList { QStringLiteral("Next") });
    QTRY_VERIFY(!old);
    QVERIFY(box.custButtons.constFirst()->isVisible());
}

void tst_QUIMessageBox_buttons::withoutAButtonLayoutNothingIsAdded()
{
    BoxProbe box;
    delete box.widgetBtns->layout();
    box.custIndex = 3;
    box.SetCustButtons(two());
    QVERIFY(box.custButtons.isEmpty());
    QCOMPARE(box.custIndex, -1);
    QCOMPARE(box.widgetBtns->findChildren<QPushButton *>().size(), 4);
}

void tst_QUIMessageBox_buttons::receiverMayDeleteTheBoxOnCustomClick()
{
    QPointer<BoxProbe> box(new BoxProbe);
    box->setMessage(QStringLiteral("Storage"), QStringLiteral("Where to?"), two(), 0);
    connect(box, &QUIMessageBox::CustBtnClicked, this, [&box] { delete box; });
    box->show();
    QVERIFY(QTest::qWaitForWindowExposed(box));
    Pointer(box).click(middleOf(box->custButtons.at(1)));
    QVERIFY(!box);
}

void tst_QUIMessageBox_buttons::receiverMayDeleteTheBoxOnClose()
{
    QPointer<BoxProbe> box(new BoxProbe);
    box->setMessage(QStringLiteral("Saved"), 1, 0);
    connect(box, &QUIMessageBox::CustBtnClicked, this, [&box] { delete box; });
    box->show();
    QVERIFY(QTest::qWaitForWindowExposed(box));
    Pointer(box).click(middleOf(box->closeBtn()));
    QVERIFY(!box);
}

void tst_QUIMessageBox_buttons::receiverMayDeleteARunningBox()
{
    QPointer<BoxProbe> box(new BoxProbe);
    box->setMessage(QStringLiteral("Storage"), QStringLiteral("Where to?"), two(), 0);
    connect(box, &QUIMessageBox::CustBtnClicked, this, [&box] { delete box; });
    ModalDriver driver;
    driver.on<QUIMessageBox>([&](QUIMessageBox *) { box->custButtons.at(0)->click(); });
    QCOMPARE(box->exec(), 0);
    QVERIFY(driver.finished());
    QVERIFY(!box);
}

QTARNKIT_TEST_MAIN(tst_QUIMessageBox_buttons)
#include "tst_QUIMessageBox_buttons.moc"
