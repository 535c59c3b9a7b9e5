#include "ClientUnlockProbe.h"
#include "MarkingTranslator.h"
#include "Pixels.h"
#include "Pointer.h"
#include "TestMain.h"

#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPixmapCache>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

const char Message[] = "Client is unlocked,Please unlock\nPreempt machine ip:";

QString message(const QString &address = {})
{
    return QLatin1String(Message) + address;
}

QString hostIcon()
{
    return QStringLiteral(":/Apps.Style/Apps.Style.Resources/ask.png");
}

QString marked(const char *key)
{
    return QStringLiteral("[ClientUnlockWidget|%1]").arg(QLatin1String(key));
}

} // namespace

// The images that a host provides, registered when the test starts.
int qInitResources_host();
int qCleanupResources_host();

class tst_ClientUnlockWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void isAnApplicationModalFramelessWindow();
    void styleSheetPaintsTheBackground();
    void sizeIsLimited();
    void childrenAreBuiltInOrder();
    void layoutsAreAsDocumented();
    void titleStripIsAsDocumented();
    void nothingIsNamedOrStyled();
    void textsBeforeAnAddress();
    void addressIsAppendedToTheMessage_data();
    void addressIsAppendedToTheMessage();
    void messageIsFittedToItsContents();
    void retranslatingWithoutAnAddress();
    void missingHostIconLeavesTheLabelEmpty();
    void hostIconIsShown();
    void textsAreTranslatedAtConstruction();
    void languageChangeAloneChangesNothing();
    void retranslatingSetsAllTexts();
    void modalShowShowsAtTheFittingSize();
    void modalShowDoesNotMoveTheNotice();
    void tryShowWithoutARequestDoesNothing();
    void closingForgetsAPendingShow();
    void everyClickIsReportedAndTheNoticeStays();
    void closedNoticeIsKeptAndShowsAgain();
};

void tst_ClientUnlockWidget::metaObject()
{
    const QMetaObject &meta = ClientUnlockWidget::staticMetaObject;
    QCOMPARE(meta.className(), "ClientUnlockWidget");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodSignature(), QByteArray("Sig_UnlockClicked()"));
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_ClientUnlockWidget::isAnApplicationModalFramelessWindow()
{
    QWidget parent;
    const ClientUnlockProbe notice(&parent);
    QCOMPARE(notice.windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
    QCOMPARE(notice.windowModality(), Qt::ApplicationModal);
    QCOMPARE(notice.parentWidget(), &parent);
    QVERIFY(notice.isHidden());
    QCOMPARE(notice.showPending, false);
    QCOMPARE(notice.ip, QString());
}

void tst_ClientUnlockWidget::styleSheetPaintsTheBackground()
{
    ClientUnlockProbe notice;
    QVERIFY(notice.testAttribute(Qt::WA_StyledBackground));
    notice.setStyleSheet(QStringLiteral("ClientUnlockWidget { background: #123456; }"));
    notice.resize(300, 200);
    const QImage image = Pixels::rendered(&notice);
    COMPARE_PIXEL(image, 0, 0, 0x123456);
    COMPARE_PIXEL(image, 299, 199, 0x123456);
}

void tst_ClientUnlockWidget::sizeIsLimited()
{
    const ClientUnlockProbe notice;
    QCOMPARE(notice.minimumSize(), QSize(300, 150));
    QCOMPARE(notice.maximumSize(), QSize(300, QWIDGETSIZE_MAX));
}

void tst_ClientUnlockWidget::childrenAreBuiltInOrder()
{
    const ClientUnlockProbe notice;
    QCOMPARE(notice.children(), QObjectList({ notice.layout(), notice.titleWidget, notice.iconLabel,
                                              notice.msgLabel, notice.unlockButton }));
    QCOMPARE(notice.titleLabel->parentWidget(), notice.titleWidget);
    QVERIFY(notice.msgLabel->wordWrap());
    QCOMPARE(notice.iconLabel->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
}

void tst_ClientUnlockWidget::layoutsAreAsDocumented()
{
    const ClientUnlockProbe notice;
    const auto *layout = qobject_cast<QVBoxLayout *>(notice.layout());
    QVERIFY(layout);
    // The style's own margins and spacing.
    QWidget plain;
    const QVBoxLayout standard(&plain);
    QCOMPARE(layout->contentsMargins(), standard.contentsMargins());
    QCOMPARE(layout->spacing(), standard.spacing());
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->itemAt(0)->widget(), notice.titleWidget);

    const QList<QList<QWidget *>> rows { { notice.iconLabel, notice.msgLabel },
                                         { notice.unlockButton } };
    for (int i = 0; i < rows.size(); ++i) {
        const auto *row = qobject_cast<QHBoxLayout *>(layout->itemAt(i + 1)->layout());
        QVERIFY(row);
        QCOMPARE(row->spacing(), 0);
        QCOMPARE(row->contentsMargins(), QMargins(10, 10, 10, 10));
        QCOMPARE(row->count(), rows.at(i).size());
        for (int j = 0; j < row->count(); ++j)
            QCOMPARE(row->itemAt(j)->widget(), rows.at(i).at(j));
    }
}

void tst_ClientUnlockWidget::titleStripIsAsDocumented()
{
    const ClientUnlockProbe notice;
    QCOMPARE(notice.titleWidget->minimumSize(), QSize(300, 30));
    QCOMPARE(notice.titleWidget->maximumSize(), QSize(300, 30));
    const auto *layout = qobject_cast<QHBoxLayout *>(notice.titleWidget->layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins(4, 4, 4, 4));
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), notice.titleLabel);
    QCOMPARE(notice.titleLabel->alignment(), Qt::AlignLeft);
    QVERIFY(notice.titleWidget->findChildren<QAbstractButton *>().isEmpty());
}

void tst_ClientUnlockWidget::nothingIsNamedOrStyled()
{
    const ClientUnlockProbe notice;
    const QList<const QWidget *> widgets {
        &notice,          notice.titleWidget, notice.titleLabel,
        notice.iconLabel, notice.msgLabel,    notice.unlockButton
    };
    for (const QWidget *widget : widgets) {
        QCOMPARE(widget->objectName(), QString());
        QCOMPARE(widget->styleSheet(), QString());
    }
}

void tst_ClientUnlockWidget::textsBeforeAnAddress()
{
    const ClientUnlockProbe notice;
    QCOMPARE(notice.titleLabel->text(), QStringLiteral("Client Unlock"));
    QCOMPARE(notice.msgLabel->text(), QString());
    QCOMPARE(notice.unlockButton->text(), QStringLiteral("Unlock"));
}

void tst_ClientUnlockWidget::addressIsAppendedToTheMessage_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("IPv4") << QStringLiteral("192.168.1.20");
    QTest::newRow("IPv6") << QStringLiteral("fe80::1");
    QTest::newRow("empty") << QString();
    QTest::newRow("not an address") << QStringLiteral("front desk %1 <b>&</b>");
}

void tst_ClientUnlockWidget::addressIsAppendedToTheMessage()
{
    QFETCH(QString, address);
    ClientUnlockProbe notice;
    notice.setIp(QStringLiteral("10.0.0.1"));
    notice.setIp(address);
    QCOMPARE(notice.ip, address);
    QCOMPARE(notice.msgLabel->text(), message(address));
}

void tst_ClientUnlockWidget::messageIsFittedToItsContents()
{
    ClientUnlockProbe notice;
    notice.msgLabel->resize(1, 1);
    notice.setIp(QStringLiteral("192.168.1.20"));
    const QSize fitted = notice.msgLabel->size();
    QVERIFY(fitted.width() > 50);
    QVERIFY(fitted.height() >= 2 * QFontMetrics(notice.msgLabel->font()).height());
    notice.msgLabel->resize(1, 1);
    notice.retranslateUi();
    QCOMPARE(notice.msgLabel->size(), fitted);
}

void tst_ClientUnlockWidget::retranslatingWithoutAnAddress()
{
    ClientUnlockProbe notice;
    notice.retranslateUi();
    QCOMPARE(notice.msgLabel->text(), message());
}

void tst_ClientUnlockWidget::missingHostIconLeavesTheLabelEmpty()
{
    qCleanupResources_host();
    QPixmapCache::clear();
    const bool gone = !QFile::exists(hostIcon());
    const ClientUnlockProbe notice;
    qInitResources_host();
    QVERIFY(gone);
    QVERIFY(notice.iconLabel->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(notice.iconLabel->text(), QString());
}

void tst_ClientUnlockWidget::hostIconIsShown()
{
    const ClientUnlockProbe notice;
    const QImage icon(hostIcon());
    QVERIFY(!icon.isNull());
    const QImage shown = notice.iconLabel->pixmap(Qt::ReturnByValue).toImage();
    QCOMPARE(shown.convertToFormat(QImage::Format_ARGB32_Premultiplied),
             icon.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

void tst_ClientUnlockWidget::textsAreTranslatedAtConstruction()
{
    const MarkingTranslator translator;
    const ClientUnlockProbe notice;
    QCOMPARE(notice.titleLabel->text(), marked("Client Unlock"));
    QCOMPARE(notice.unlockButton->text(), marked("Unlock"));
    QCOMPARE(notice.msgLabel->text(), QString());
}

void tst_ClientUnlockWidget::languageChangeAloneChangesNothing()
{
    ClientUnlockProbe notice;
    notice.setIp(QStringLiteral("10.0.0.1"));
    const MarkingTranslator translator;
    QCoreApplication::sendPostedEvents();
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&notice, &event);
    QCOMPARE(notice.titleLabel->text(), QStringLiteral("Client Unlock"));
    QCOMPARE(notice.msgLabel->text(), message(QStringLiteral("10.0.0.1")));
    QCOMPARE(notice.unlockButton->text(), QStringLiteral("Unlock"));
}

void tst_ClientUnlockWidget::retranslatingSetsAllTexts()
{
    ClientUnlockProbe notice;
    notice.setIp(QStringLiteral("10.0.0.1"));
    {
        const MarkingTranslator translator;
        notice.retranslateUi();
    }
    QCOMPARE(notice.titleLabel->text(), marked("Client Unlock"));
    QCOMPARE(notice.msgLabel->text(), marked("Client is unlocked,Please unlock") + QLatin1Char('\n')
                                              + marked("Preempt machine ip:")
                                              + QLatin1String("10.0.0.1"));
    QCOMPARE(notice.unlockButton->text(), marked("Unlock"));
    notice.retranslateUi();
    QCOMPARE(notice.titleLabel->text(), QStringLiteral("Client Unlock"));
    QCOMPARE(notice.msgLabel->text(), message(QStringLiteral("10.0.0.1")));
    QCOMPARE(notice.unlockButton->text(), QStringLiteral("Unlock"));
}

void tst_ClientUnlockWidget::modalShowShowsAtTheFittingSize()
{
    ClientUnlockProbe notice;
    notice.setIp(QStringLiteral("192.168.1.20"));
    notice.resize(300, 500);
    notice.showPending = true;
    notice.ModalShow();
    QVERIFY(notice.isVisible());
    QVERIFY(notice.isModal());
    QCOMPARE(notice.showPending, false);
    QCOMPARE(notice.width(), 300);
    QVERIFY(notice.height() >= 150);
    QVERIFY(notice.height() < 500);
    notice.close();
}

void tst_ClientUnlockWidget::modalShowDoesNotMoveTheNotice()
{
    ClientUnlockProbe notice;
    notice.move(123, 45);
    notice.ModalShow();
    QCOMPARE(notice.pos(), QPoint(123, 45));
    notice.move(200, 60);
    notice.ModalShow();
    QCOMPARE(notice.pos(), QPoint(200, 60));
    notice.close();
}

void tst_ClientUnlockWidget::tryShowWithoutARequestDoesNothing()
{
    ClientUnlockProbe notice;
    notice.TryShow();
    QVERIFY(notice.isHidden());
    notice.ModalShow();
    notice.close();
    notice.TryShow();
    QVERIFY(notice.isHidden());
    notice.showPending = true;
    notice.TryShow();
    QVERIFY(notice.isVisible());
    QCOMPARE(notice.showPending, false);
    notice.close();
}

void tst_ClientUnlockWidget::closingForgetsAPendingShow()
{
    ClientUnlockProbe notice;
    notice.showPending = true;
    QVERIFY(notice.close());
    QCOMPARE(notice.showPending, false);
    notice.TryShow();
    QVERIFY(notice.isHidden());
}

void tst_ClientUnlockWidget::everyClickIsReportedAndTheNoticeStays()
{
    ClientUnlockProbe notice;
    notice.setIp(QStringLiteral("192.168.1.20"));
    notice.ModalShow();
    QSignalSpy spy(&notice, &ClientUnlockWidget::Sig_UnlockClicked);
    Pointer pointer(&notice);
    for (int i = 1; i <= 3; ++i) {
        pointer.click(middleOf(notice.unlockButton));
        QCOMPARE(spy.count(), i);
        QVERIFY(notice.isVisible());
    }
    QTest::keyClick(notice.unlockButton, Qt::Key_Space);
    QCOMPARE(spy.count(), 4);
    notice.close();
}

void tst_ClientUnlockWidget::closedNoticeIsKeptAndShowsAgain()
{
    ClientUnlockProbe notice;
    QVERIFY(!notice.testAttribute(Qt::WA_DeleteOnClose));
    notice.setIp(QStringLiteral("192.168.1.20"));
    notice.ModalShow();
    QVERIFY(notice.close());
    QVERIFY(!notice.isVisible());
    notice.ModalShow();
    QVERIFY(notice.isVisible());
    QCOMPARE(notice.msgLabel->text(), message(QStringLiteral("192.168.1.20")));
    notice.close();
}

QTARNKIT_TEST_MAIN(tst_ClientUnlockWidget)
#include "tst_ClientUnlockWidget.moc"
