#include "FakeScreen.h"
#include "TestMain.h"

#include <ClientUnlockWidget.h>
#include <CustomProgressBar.h>
#include <QZelDialog.h>

#include <QShowEvent>
#include <QToolButton>

#include <memory>

namespace {

const QRect Usable(0, 0, 800, 600);

class BarProbe : public CustomProgressBar
{
public:
    using CustomProgressBar::CustomProgressBar;
    using CustomProgressBar::progress;
    using CustomProgressBar::showEvent;
};

class NoticeProbe : public ClientUnlockWidget
{
public:
    using ClientUnlockWidget::ClientUnlockWidget;
    using ClientUnlockWidget::showPending;
};

class DialogProbe : public QZelDialog
{
public:
    using QZelDialog::isMaximized;
    using QZelDialog::normalGeometry;
    using QZelDialog::QZelDialog;
};

} // namespace

/// What the classes do that ask for the primary screen when there is none. Each test has its
/// screens taken away first; those that need one add it.
class tst_NoScreen : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void progressIsOnlyStored();
    void progressShowsOnceThereIsAScreen();
    void showEventOfTheBarIsJustAccepted();
    void noticeWaitsForAScreen();
    void noticeWaitsForAScreenWithASize_data();
    void noticeWaitsForAScreenWithASize();
    void closingForgetsTheNotice();
    void noticeStillWaitsWithoutAScreen();
    void maximiseButtonOnlyLosesItsHover();
    void maximiseButtonWorksAgainWithAScreen();
};

void tst_NoScreen::init()
{
    removeEveryScreen();
    QVERIFY(!QGuiApplication::primaryScreen());
}

void tst_NoScreen::progressIsOnlyStored()
{
    BarProbe bar(nullptr);
    bar.SetProgress(40);
    QCOMPARE(bar.progress, 40);
    QVERIFY(!bar.isVisible());
    bar.SetProgress(0);
    QCOMPARE(bar.progress, 1);
    QVERIFY(bar.isHidden());
}

void tst_NoScreen::progressShowsOnceThereIsAScreen()
{
    BarProbe bar(nullptr);
    bar.SetProgress(40);
    const FakeScreen screen(Usable, Usable);
    QVERIFY(!bar.isVisible());
    bar.SetProgress(41);
    QVERIFY(bar.isVisible());
    bar.close();
}

// Neither way calls for more, but only the first accepts the event itself.
void tst_NoScreen::showEventOfTheBarIsJustAccepted()
{
    BarProbe bar(nullptr);
    QShowEvent without;
    without.ignore();
    bar.showEvent(&without);
    QVERIFY(without.isAccepted());

    const FakeScreen screen(Usable, Usable);
    QShowEvent with;
    with.ignore();
    bar.showEvent(&with);
    QVERIFY(!with.isAccepted());
}

void tst_NoScreen::noticeWaitsForAScreen()
{
    NoticeProbe notice(nullptr);
    notice.setIp(QStringLiteral("192.168.1.20"));
    notice.ModalShow();
    QVERIFY(notice.isHidden());
    QVERIFY(notice.showPending);
    const FakeScreen screen(Usable, Usable);
    QVERIFY(notice.isHidden());
    notice.TryShow();
    QVERIFY(notice.isVisible());
    QVERIFY(!notice.showPending);
    notice.close();
    notice.TryShow();
    QVERIFY(notice.isHidden());
}

void tst_NoScreen::noticeWaitsForAScreenWithASize_data()
{
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<bool>("usable");
    QTest::newRow("no size") << QRect(0, 0, 0, 0) << false;
    QTest::newRow("no size, elsewhere") << QRect(50, 60, 0, 0) << false;
    QTest::newRow("no height only") << QRect(0, 0, 800, 0) << true;
    QTest::newRow("no width only") << QRect(0, 0, 0, 600) << true;
    QTest::newRow("one pixel") << QRect(0, 0, 1, 1) << true;
}

void tst_NoScreen::noticeWaitsForAScreenWithASize()
{
    QFETCH(QRect, geometry);
    QFETCH(bool, usable);
    const FakeScreen screen(geometry, geometry);
    QVERIFY(QGuiApplication::primaryScreen());
    NoticeProbe notice(nullptr);
    notice.ModalShow();
    QCOMPARE(notice.isVisible(), usable);
    QCOMPARE(notice.showPending, !usable);
    notice.close();
}

void tst_NoScreen::closingForgetsTheNotice()
{
    NoticeProbe notice(nullptr);
    notice.ModalShow();
    QVERIFY(notice.showPending);
    notice.close();
    QVERIFY(!notice.showPending);
    const FakeScreen screen(Usable, Usable);
    notice.TryShow();
    QVERIFY(notice.isHidden());
}

void tst_NoScreen::noticeStillWaitsWithoutAScreen()
{
    NoticeProbe notice(nullptr);
    notice.ModalShow();
    notice.TryShow();
    QVERIFY(notice.isHidden());
    QVERIFY(notice.showPending);
}

void tst_NoScreen::maximiseButtonOnlyLosesItsHover()
{
    DialogProbe dialog(nullptr);
    dialog.Resize(0, 0, 300, 200);
    const QRect before = dialog.geometry();
    auto *button = dialog.findChild<QToolButton *>(QStringLiteral("btn_Max"));
    QVERIFY(button);
    button->setAttribute(Qt::WA_UnderMouse);
    button->click();
    QVERIFY(!button->testAttribute(Qt::WA_UnderMouse));
    QCOMPARE(dialog.isMaximized, false);
    QCOMPARE(dialog.normalGeometry, QRect());
    QCOMPARE(dialog.geometry(), before);
    QVERIFY(!button->property("windowState").isValid());
}

void tst_NoScreen::maximiseButtonWorksAgainWithAScreen()
{
    DialogProbe dialog(nullptr);
    dialog.setGeometry(10, 20, 300, 200);
    auto screen = std::make_unique<FakeScreen>(QRect(0, 0, 640, 480), QRect(0, 0, 640, 470));
    auto *button = dialog.findChild<QToolButton *>(QStringLiteral("btn_Max"));
    button->click();
    QCOMPARE(dialog.geometry(), QRect(0, 0, 640, 480));
    screen.reset();
    button->click();
    QCOMPARE(dialog.isMaximized, true);
    QCOMPARE(dialog.geometry(), QRect(0, 0, 640, 480));
    QCOMPARE(button->property("windowState").toString(), QStringLiteral("maximized"));
}

QTARNKIT_TEST_MAIN(tst_NoScreen)
#include "tst_NoScreen.moc"
