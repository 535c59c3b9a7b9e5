#include "Pixels.h"
#include "TestMain.h"
#include "WaitingDialogProbe.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <limits>

namespace {

constexpr QRgb Track = 0xff0f0f0f;
constexpr QRgb Fill = 0xffff6802;

QString words(int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += QStringLiteral("please wait ");
    return text;
}

// How many pixels at the left of the bar's middle row are the fill's. The bar is 5 pixels high with
// round ends, so that the outermost pixels are mixed ones.
int fillOf(ProgressBar *bar)
{
    const QImage image = Pixels::rendered(bar);
    int x = 0;
    while (x < image.width() && qRed(image.pixel(x, 2)) > (qRed(Track) + qRed(Fill)) / 2)
        ++x;
    return x;
}

} // namespace

class tst_QWaitingDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isADialogWithoutMetaMethods();
    void isAnApplicationModalFramelessDialog();
    void childrenAreBuiltInOrder();
    void iconLabelShowsTheFirstFrame();
    void messageLabelIsAsDocumented();
    void messageLabelIsTwoLinesHighInAnyFont();
    void layoutsAreAsDocumented();
    void barStartsHalfFullAndVisible();
    void sizeIsLimited();
    void messageFitsTheBox_data();
    void messageFitsTheBox();
    void longMessageWrapsAndShortOneShrinks();
    void messageFitsAVisibleBoxAtOnce();
    void hidingTheBarChangesTheBottomMargin();
    void valueAndRangeGoToTheBar_data();
    void valueAndRangeGoToTheBar();
    void showingStartsAndHidingStopsTheTimer();
    void showingAgainRestartsTheTimer();
    void showsAndHidesAnyNumberOfTimes();
    void hidingClosesTheDialog();
    void deletingStopsEverything();
};

void tst_QWaitingDialog::isADialogWithoutMetaMethods()
{
    const QMetaObject &meta = QWaitingDialog::staticMetaObject;
    QCOMPARE(meta.className(), "QWaitingDialog");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    WaitingDialogProbe dialog;
    QVERIFY(dialog.qt_metacast("QWaitingDialog"));
}

void tst_QWaitingDialog::isAnApplicationModalFramelessDialog()
{
    QWidget parent;
    const WaitingDialogProbe dialog(&parent);
    QCOMPARE(dialog.windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
    QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
    QCOMPARE(dialog.parentWidget(), &parent);
    QVERIFY(dialog.isHidden());
}

void tst_QWaitingDialog::childrenAreBuiltInOrder()
{
    const WaitingDialogProbe dialog;
    QCOMPARE(dialog.children(), QObjectList({ dialog.timer, dialog.iconLabel, dialog.infoLabel,
                                              dialog.progressBar, dialog.mainLayout }));
    QCOMPARE(dialog.timer->interval(), 20);
    QVERIFY(!dialog.timer->isSingleShot());
    QVERIFY(!dialog.timer->isActive());
    QCOMPARE(dialog.frameIndex, 0);
}

void tst_QWaitingDialog::iconLabelShowsTheFirstFrame()
{
    const WaitingDialogProbe dialog;
    const QLabel *icon = dialog.iconLabel;
    QCOMPARE(icon->pixmap(Qt::ReturnByValue).cacheKey(), dialog.frames.at(0).cacheKey());
    QCOMPARE(icon->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QCOMPARE(icon->minimumSize(), QSize(49, 49));
    QCOMPARE(icon->maximumSize(), QSize(49, 49));
}

void tst_QWaitingDialog::messageLabelIsAsDocumented()
{
    const WaitingDialogProbe dialog;
    const QLabel *info = dialog.findChild<QLabel *>(QStringLiteral("infoLabel"));
    QCOMPARE(info, dialog.infoLabel);
    QCOMPARE(info->text(), QString());
    QVERIFY(info->wordWrap());
    QCOMPARE(info->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(info->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(info->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(info->minimumHeight(), 2 * QFontMetrics(dialog.font()).height());
}

void tst_QWaitingDialog::messageLabelIsTwoLinesHighInAnyFont()
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPixelSize(40);
    QApplication::setFont(large);
    const WaitingDialogProbe dialog;
    const int height = QFontMetrics(large).height();
    QApplication::setFont(before);
    QVERIFY(height >= 40);
    QCOMPARE(dialog.infoLabel->minimumHeight(), 2 * height);
}

void tst_QWaitingDialog::layoutsAreAsDocumented()
{
    const WaitingDialogProbe dialog;
    const QVBoxLayout *layout = dialog.mainLayout;
    QCOMPARE(dialog.layout(), layout);
    QCOMPARE(layout->contentsMargins(), QMargins(5, 15, 5, 0));
    QCOMPARE(layout->spacing(), 10);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(1)->widget(), dialog.progressBar);

    const auto *row = qobject_cast<QHBoxLayout *>(layout->itemAt(0)->layout());
    QVERIFY(row);
    QCOMPARE(row->contentsMargins(), QMargins(15, 0, 15, 0));
    QCOMPARE(row->spacing(), 70);
    QCOMPARE(row->count(), 2);
    QCOMPARE(row->itemAt(0)->widget(), dialog.iconLabel);
    QCOMPARE(row->stretch(0), 0);
    QCOMPARE(row->itemAt(1)->widget(), dialog.infoLabel);
    QCOMPARE(row->stretch(1), 1);
}

void tst_QWaitingDialog::barStartsHalfFullAndVisible()
{
    WaitingDialogProbe dialog;
    ProgressBar *bar = dialog.progressBar;
    QVERIFY(!bar->isHidden());
    QCOMPARE(bar->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(bar->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(bar->minimumHeight(), 5);
    QCOMPARE(bar->maximumHeight(), 5);
    dialog.showWaitingDialog();
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->width(), dialog.width() - 10);
    const int fill = fillOf(bar);
    QVERIFY(qAbs(fill - bar->width() / 2) <= 1);
    dialog.hideWaitingDialog();
}

void tst_QWaitingDialog::sizeIsLimited()
{
    WaitingDialogProbe dialog;
    QCOMPARE(dialog.minimumSize(), QSize(250, 80));
    QCOMPARE(dialog.maximumSize(), QSize(600, 200));
}

void tst_QWaitingDialog::messageFitsTheBox_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QString();
    QTest::newRow("one word") << QStringLiteral("wait");
    QTest::newRow("a sentence") << words(6);
    QTest::newRow("a paragraph") << words(60);
    QTest::newRow("lines") << QStringLiteral("one\ntwo\nthree\nfour\nfive\nsix\nseven");
    QTest::newRow("far too much") << words(2000);
    QTest::newRow("a word that cannot wrap") << QString(300, QLatin1Char('W'));
}

void tst_QWaitingDialog::messageFitsTheBox()
{
    QFETCH(QString, text);
    WaitingDialogProbe dialog;
    dialog.setTipMessage(text);
    QCOMPARE(dialog.infoLabel->text(), text);
    const QSize hint = dialog.sizeHint();
    QCOMPARE(dialog.size(), hint.expandedTo(QSize(250, 80)).boundedTo(QSize(600, 200)));
}

void tst_QWaitingDialog::longMessageWrapsAndShortOneShrinks()
{
    WaitingDialogProbe dialog;
    dialog.setTipMessage(QStringLiteral("wait"));
    const QSize small = dialog.size();
    QVERIFY(small.width() < 600);
    QVERIFY(small.height() < 200);
    dialog.setTipMessage(words(60));
    const QSize medium = dialog.size();
    QVERIFY(medium.width() > small.width());
    dialog.setTipMessage(words(2000));
    QCOMPARE(dialog.size(), QSize(600, 200));
    dialog.setTipMessage(words(60));
    QCOMPARE(dialog.size(), medium);
    dialog.setTipMessage(QStringLiteral("wait"));
    QCOMPARE(dialog.size(), small);
}

void tst_QWaitingDialog::messageFitsAVisibleBoxAtOnce()
{
    WaitingDialogProbe dialog;
    dialog.showWaitingDialog();
    dialog.setTipMessage(words(60));
    const QFontMetrics metrics(dialog.infoLabel->font());
    QVERIFY(dialog.infoLabel->height() >= 2 * metrics.height());
    QVERIFY(dialog.infoLabel->width() < metrics.horizontalAdvance(words(60)));
    QVERIFY(dialog.rect().contains(dialog.infoLabel->geometry()));
    QCOMPARE(dialog.infoLabel->x(), dialog.iconLabel->geometry().right() + 1 + 70);
    dialog.hideWaitingDialog();
}

void tst_QWaitingDialog::hidingTheBarChangesTheBottomMargin()
{
    WaitingDialogProbe dialog;
    dialog.setProgressBarVisiable(false);
    QVERIFY(dialog.progressBar->isHidden());
    QCOMPARE(dialog.mainLayout->contentsMargins(), QMargins(5, 15, 5, 15));
    dialog.showWaitingDialog();
    QVERIFY(!dialog.progressBar->isVisible());
    dialog.setProgressBarVisiable(true);
    QVERIFY(dialog.progressBar->isVisible());
    QCOMPARE(dialog.mainLayout->contentsMargins(), QMargins(5, 15, 5, 0));
    dialog.hideWaitingDialog();
}

void tst_QWaitingDialog::valueAndRangeGoToTheBar_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("fill");
    QTest::newRow("150 of 100") << 0 << 100 << 150 << 400;
    QTest::newRow("-5 of 100") << 0 << 100 << -5 << 0;
    QTest::newRow("25 of 100") << 0 << 100 << 25 << 100;
    QTest::newRow("3 of 4") << 0 << 4 << 3 << 300;
    QTest::newRow("15 in 10 to 20") << 10 << 20 << 15 << 200;
    QTest::newRow("no range") << 7 << 7 << 7 << 0;
    QTest::newRow("whole range of int")
            << std::numeric_limits<int>::min() << std::numeric_limits<int>::max() << 0 << 200;
}

void tst_QWaitingDialog::valueAndRangeGoToTheBar()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    QFETCH(int, fill);
    WaitingDialogProbe dialog;
    dialog.resize(410, 100);
    dialog.showWaitingDialog();
    QCOMPARE(dialog.progressBar->width(), 400);
    dialog.setProgressBarRange(minimum, maximum);
    dialog.setProgressBarValue(value);
    QCOMPARE(fillOf(dialog.progressBar), fill);
    dialog.hideWaitingDialog();
}

void tst_QWaitingDialog::showingStartsAndHidingStopsTheTimer()
{
    WaitingDialogProbe dialog;
    dialog.showWaitingDialog();
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.timer->isActive());
    // It is this timer that turns the icon.
    QTRY_VERIFY(dialog.frameIndex >= 2);
    dialog.hideWaitingDialog();
    QVERIFY(!dialog.isVisible());
    QVERIFY(!dialog.timer->isActive());
}

void tst_QWaitingDialog::showingAgainRestartsTheTimer()
{
    WaitingDialogProbe dialog;
    dialog.timer->setTimerType(Qt::PreciseTimer);
    dialog.timer->setInterval(60000);
    dialog.showWaitingDialog();
    QTRY_VERIFY(dialog.timer->remainingTime() < 59900);
    dialog.showWaitingDialog();
    QVERIFY(dialog.timer->isActive());
    QVERIFY(dialog.timer->remainingTime() >= 59900);
    dialog.hideWaitingDialog();
}

void tst_QWaitingDialog::showsAndHidesAnyNumberOfTimes()
{
    WaitingDialogProbe dialog;
    dialog.hideWaitingDialog();
    QVERIFY(dialog.isHidden());
    for (int i = 0; i < 3; ++i) {
        dialog.showWaitingDialog();
        QVERIFY(dialog.isVisible());
        dialog.hideWaitingDialog();
        QVERIFY(dialog.isHidden());
        dialog.hideWaitingDialog();
    }
}

void tst_QWaitingDialog::hidingClosesTheDialog()
{
    WaitingDialogProbe dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.showWaitingDialog();
    dialog.hideWaitingDialog();
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_QWaitingDialog::deletingStopsEverything()
{
    auto *dialog = new WaitingDialogProbe;
    dialog->showWaitingDialog();
    const QPointer<QTimer> timer = dialog->timer;
    const QPointer<QLabel> icon = dialog->iconLabel;
    delete dialog;
    QVERIFY(!timer);
    QVERIFY(!icon);
}

QTARNKIT_TEST_MAIN(tst_QWaitingDialog)
#include "tst_QWaitingDialog.moc"
