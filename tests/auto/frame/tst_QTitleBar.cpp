#include "Pixels.h"
#include "Pointer.h"
#include "TestMain.h"
#include "TitleBarProbe.h"

#include <QHBoxLayout>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>

namespace {

constexpr QRgb Theme = 0xff262626;

// The strip alone, without its children.
QImage paintedBy(QWidget *strip)
{
    QImage image(strip->size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    strip->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

// How many pixels of a rectangle have a colour.
int pixels(const QImage &image, const QRect &rect, QRgb color)
{
    int count = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            count += image.pixel(x, y) == color ? 1 : 0;
    }
    return count;
}

} // namespace

class tst_QTitleBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isALabelWithItsMetaMethods();
    void membersStartAsDocumented();
    void stripIsFixedInHeight();
    void childrenAreBuiltInOrder();
    void layoutIsAsDocumented();
    void initialisingTwiceAddsNothing();
    void titleGoesToTheChildLabel();
    void titleWithoutALabelIsDropped();
    void sizeHints();
    void closeButtonEmitsOnceAndClosesNothing();
    void closeSlotIgnoresItsArgument();
    void backgroundFillsTheWholeStrip();
    void themeColorRepaintsAtOnce();
    void ownTextIsNotPainted();
    void lineFollowsThePositionInTheParent_data();
    void lineFollowsThePositionInTheParent();
};

void tst_QTitleBar::isALabelWithItsMetaMethods()
{
    const QMetaObject &meta = QTitleBar::staticMetaObject;
    QCOMPARE(meta.className(), "QTitleBar");
    QCOMPARE(meta.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodSignature(), QByteArray("SIG_CloseWindow()"));
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    const QMetaMethod slot = meta.method(meta.methodOffset() + 1);
    QCOMPARE(slot.methodSignature(), QByteArray("OnCloseBtnClickedEvent(bool)"));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
}

void tst_QTitleBar::membersStartAsDocumented()
{
    const TitleBarProbe bar;
    QVERIFY(bar.titleLabel);
    QVERIFY(bar.closeButton);
    QVERIFY(bar.mainLayout);
    QCOMPARE(bar.isPressed, false);
    QCOMPARE(bar.lastGlobalPos, QPoint(0, 0));
    QCOMPARE(bar.themeColor, QColor(38, 38, 38, 255));
    QVERIFY(!bar.parentWidget());
}

void tst_QTitleBar::stripIsFixedInHeight()
{
    QWidget parent;
    const QTitleBar bar(&parent);
    QCOMPARE(bar.minimumHeight(), 25);
    QCOMPARE(bar.maximumHeight(), 25);
    QCOMPARE(bar.maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(bar.parentWidget(), &parent);
    QVERIFY(!bar.isWindow());
}

void tst_QTitleBar::childrenAreBuiltInOrder()
{
    const TitleBarProbe bar;
    QCOMPARE(bar.children(), QObjectList({ bar.titleLabel, bar.closeButton, bar.mainLayout }));
    const QLabel *label = bar.titleLabel;
    QCOMPARE(label->text(), QString());
    QCOMPARE(label->minimumSize(), QSize(100, 35));
    QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    const QPushButton *button = bar.closeButton;
    QCOMPARE(button->minimumSize(), QSize(25, 25));
    QCOMPARE(button->maximumSize(), QSize(25, 25));
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->objectName(), QString());
    QVERIFY(button->icon().isNull());
}

void tst_QTitleBar::layoutIsAsDocumented()
{
    TitleBarProbe bar;
    QHBoxLayout *layout = bar.mainLayout;
    QCOMPARE(bar.layout(), layout);
    QCOMPARE(layout->contentsMargins(), QMargins(15, 0, 8, 5));
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->itemAt(0)->widget(), bar.titleLabel);
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(layout->stretch(0), 0);
    QVERIFY(layout->itemAt(1)->spacerItem());
    QCOMPARE(layout->stretch(1), 3);
    QCOMPARE(layout->itemAt(2)->widget(), bar.closeButton);
    QCOMPARE(layout->itemAt(2)->alignment(), Qt::AlignBottom);
    QCOMPARE(layout->stretch(2), 0);
}

void tst_QTitleBar::initialisingTwiceAddsNothing()
{
    TitleBarProbe bar;
    const QObjectList before = bar.children();
    bar.InitTitleBar();
    QCOMPARE(bar.children(), before);
    QCOMPARE(bar.mainLayout->count(), 3);
    QSignalSpy spy(&bar, &QTitleBar::SIG_CloseWindow);
    bar.closeButton->click();
    QCOMPARE(spy.count(), 1);
}

void tst_QTitleBar::titleGoesToTheChildLabel()
{
    TitleBarProbe bar;
    bar.SetTitle(QStringLiteral("Settings"));
    QCOMPARE(bar.titleLabel->text(), QStringLiteral("Settings"));
    QCOMPARE(bar.text(), QString());
    bar.SetTitle(QString());
    QCOMPARE(bar.titleLabel->text(), QString());
}

void tst_QTitleBar::titleWithoutALabelIsDropped()
{
    TitleBarProbe bar;
    QLabel *label = bar.titleLabel;
    bar.titleLabel = nullptr;
    bar.SetTitle(QStringLiteral("Settings"));
    QCOMPARE(label->text(), QString());
}

void tst_QTitleBar::sizeHints()
{
    TitleBarProbe bar;
    QCOMPARE(bar.minimumSizeHint(), QSize(200, 25));
    bar.SetTitle(QString(500, QLatin1Char('W')));
    QCOMPARE(bar.minimumSizeHint(), QSize(200, 25));
    QLabel plain;
    plain.setFixedHeight(25);
    QCOMPARE(bar.sizeHint(), plain.sizeHint());
}

void tst_QTitleBar::closeButtonEmitsOnceAndClosesNothing()
{
    TitledWindow window;
    window.show();
    QSignalSpy spy(window.bar, &QTitleBar::SIG_CloseWindow);
    Pointer(&window).click(middleOf(window.bar->closeButton));
    QCOMPARE(spy.count(), 1);
    QVERIFY(window.isVisible());
    QVERIFY(window.bar->isVisible());
    QVERIFY(!window.types.contains(QEvent::Close));
    window.hide();
}

void tst_QTitleBar::closeSlotIgnoresItsArgument()
{
    TitleBarProbe bar;
    QSignalSpy spy(&bar, &QTitleBar::SIG_CloseWindow);
    bar.OnCloseBtnClickedEvent(true);
    bar.OnCloseBtnClickedEvent(false);
    QCOMPARE(spy.count(), 2);
}

void tst_QTitleBar::backgroundFillsTheWholeStrip()
{
    TitledWindow window;
    // Out of the line's reach.
    window.bar->move(0, 100);
    QCOMPARE(pixels(paintedBy(window.bar), QRect(0, 0, 400, 25), Theme), 400 * 25);
}

void tst_QTitleBar::themeColorRepaintsAtOnce()
{
    TitledWindow window;
    window.show();
    QTRY_VERIFY(window.bar->paints > 0);
    const int before = window.bar->paints;
    window.bar->SetThemeColor(QColor(255, 0, 0));
    QCOMPARE(window.bar->themeColor, QColor(255, 0, 0));
    QTRY_VERIFY(window.bar->paints > before);
    QCOMPARE(pixels(paintedBy(window.bar), QRect(0, 0, 400, 25), 0xffff0000), 400 * 25);
    window.hide();
}

void tst_QTitleBar::ownTextIsNotPainted()
{
    TitledWindow window;
    window.bar->move(0, 100);
    window.bar->setText(QStringLiteral("the label's own text"));
    QCOMPARE(pixels(paintedBy(window.bar), QRect(0, 0, 400, 25), Theme), 400 * 25);
    // The title is painted by the child.
    window.bar->SetTitle(QStringLiteral("title"));
    window.bar->setStyleSheet(QStringLiteral("QLabel { color: white; }"));
    window.bar->mainLayout->activate();
    const QRect title = window.bar->titleLabel->geometry() & window.bar->rect();
    QVERIFY(pixels(Pixels::rendered(window.bar), title, Theme) < title.width() * title.height());
}

// Red, two pixels wide around y, from x to the strip's width right of it: all in the strip's own
// coordinates, but taken from its position.
void tst_QTitleBar::lineFollowsThePositionInTheParent_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QRect>("line");
    QTest::newRow("top left corner") << QPoint(0, 0) << QRect(0, 0, 400, 1);
    QTest::newRow("right of it") << QPoint(50, 0) << QRect(49, 0, 351, 1);
    QTest::newRow("below it") << QPoint(0, 10) << QRect(0, 9, 400, 2);
    QTest::newRow("last row") << QPoint(0, 25) << QRect(0, 24, 400, 1);
    QTest::newRow("below the strip's height") << QPoint(0, 26) << QRect();
    QTest::newRow("above") << QPoint(0, -10) << QRect();
    QTest::newRow("beyond the strip's width") << QPoint(402, 0) << QRect();
}

void tst_QTitleBar::lineFollowsThePositionInTheParent()
{
    QFETCH(QPoint, position);
    QFETCH(QRect, line);
    TitledWindow window;
    window.bar->move(position);
    const QImage image = paintedBy(window.bar);
    const int length = line.width() * line.height();
    if (!line.isEmpty())
        QCOMPARE(pixels(image, line, 0xffff0000), length);
    QCOMPARE(pixels(image, image.rect(), 0xffff0000), length);
    QCOMPARE(pixels(image, image.rect(), Theme), 400 * 25 - length);
}

QTARNKIT_TEST_MAIN(tst_QTitleBar)
#include "tst_QTitleBar.moc"
