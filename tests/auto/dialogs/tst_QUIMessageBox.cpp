#include "BoxProbe.h"
#include "MarkingTranslator.h"
#include "Pixels.h"
#include "TestMain.h"

#include <QHBoxLayout>
#include <QMetaMethod>
#include <QTimer>
#include <QVBoxLayout>

using QTarnKit::QUIMessageBox;

namespace {

QString icon(const BoxProbe &box)
{
    // A name for the picture that is shown, for readable failures.
    const QImage shown = box.labIco->pixmap(Qt::ReturnByValue).toImage();
    for (const char *name : { "ok", "waring", "error", "ask" }) {
        const QImage image =
                QPixmap(QStringLiteral(":/image/%1.png").arg(QLatin1String(name))).toImage();
        if (!image.isNull() && image == shown)
            return QLatin1String(name);
    }
    return QStringLiteral("none of them");
}

QList<QWidget *> widgetsOf(const QLayout *layout)
{
    QList<QWidget *> widgets;
    for (int i = 0; i < layout->count(); ++i)
        widgets.append(layout->itemAt(i)->widget());
    return widgets;
}

} // namespace

class tst_QUIMessageBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void buttonFlags();
    void membersStartOut();
    void isAFramelessOnTopModalBoxOfFixedSize();
    void boxWithAParentLiesInsideIt();
    void countdownTicksEverySecond();
    void columnHoldsTitleIconTextAndButtons();
    void titleStripEndsInTheCloseButton();
    void iconStandsBeforeTheTitle();
    void textIsReadOnlyCentredAndFrameless();
    void textIsDrawnCentred_data();
    void textIsDrawnCentred();
    void buttonRow();
    void standardButtonsAreTranslatedInAPlainContext();
    void setsNoStyleSheet();

    void typeGivesIconAndButtons_data();
    void typeGivesIconAndButtons();
    void standardButtons_data();
    void standardButtons();
    void messageWithoutTitle();
    void messageWithTitle();
    void messageWithCustomButtons();
    void messagesWithTypeKeepTheCustomButtons();
    void richTextIsInterpreted();
    void titleAndTextAreSetApart();
    void instanceIsOneTopLevelBox();
};

void tst_QUIMessageBox::metaObject()
{
    const QMetaObject &meta = QUIMessageBox::staticMetaObject;
    QCOMPARE(meta.className(), "QTarnKit::QUIMessageBox");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    const QMetaMethod clicked = meta.method(meta.methodOffset());
    QCOMPARE(clicked.methodType(), QMetaMethod::Signal);
    QCOMPARE(clicked.methodSignature(), QByteArrayLiteral("CustBtnClicked(int)"));
    QCOMPARE(clicked.parameterNames(), QList<QByteArray> { QByteArrayLiteral("index") });
    const QMetaMethod tick = meta.method(meta.methodOffset() + 1);
    QCOMPARE(tick.methodType(), QMetaMethod::Slot);
    QCOMPARE(tick.methodSignature(), QByteArrayLiteral("checkSec()"));
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_QUIMessageBox::buttonFlags()
{
    QCOMPARE(int(QTarnKit::NoButton), 0x001);
    QCOMPARE(int(QTarnKit::Confirm), 0x002);
    QCOMPARE(int(QTarnKit::Cancel), 0x004);
    QCOMPARE(int(QTarnKit::Yes), 0x010);
    QCOMPARE(int(QTarnKit::No), 0x100);
}

void tst_QUIMessageBox::membersStartOut()
{
    BoxProbe box;
    QCOMPARE(box.closeSec, 0);
    QCOMPARE(box.currentSec, 0);
    QCOMPARE(box.custIndex, -1);
    QVERIFY(box.custButtons.isEmpty());
    QCOMPARE(box.CustBtIndex(), 0);
    QCOMPARE(box.boxWidth, 290);
    QCOMPARE(box.boxHeight, 170);
    QVERIFY(box.isHidden());
}

void tst_QUIMessageBox::isAFramelessOnTopModalBoxOfFixedSize()
{
    BoxProbe box;
    QCOMPARE(box.minimumSize(), QSize(290, 170));
    QCOMPARE(box.maximumSize(), QSize(290, 170));
    QCOMPARE(box.windowModality(), Qt::ApplicationModal);
    // A window, because it has no parent; Qt adds the bit for that.
    QCOMPARE(int(box.windowFlags()), 0x40800 | int(Qt::Window));
    QVERIFY(box.isWindow());
}

void tst_QUIMessageBox::boxWithAParentLiesInsideIt()
{
    QWidget host;
    host.resize(500, 400);
    BoxProbe box(&host);
    QCOMPARE(int(box.windowFlags()), 0x40800);
    QVERIFY(!box.isWindow());
    QCOMPARE(box.parentWidget(), &host);
    host.show();
    box.show();
    box.move(30, 40);
    QVERIFY(box.isVisible());
    QCOMPARE(box.window(), &host);
    QCOMPARE(box.mapToGlobal(QPoint()), host.mapToGlobal(QPoint(30, 40)));
}

void tst_QUIMessageBox::countdownTicksEverySecond()
{
    BoxProbe box;
    const QList<QTimer *> timers = box.findChildren<QTimer *>();
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.constFirst()->interval(), 1000);
    QVERIFY(timers.constFirst()->isActive());
    QVERIFY(!timers.constFirst()->isSingleShot());
    box.closeSec = 5;
    QVERIFY(QMetaObject::invokeMethod(timers.constFirst(), "timeout"));
    QCOMPARE(box.currentSec, 1);
}

void tst_QUIMessageBox::columnHoldsTitleIconTextAndButtons()
{
    BoxProbe box;
    const auto *column = qobject_cast<QVBoxLayout *>(box.layout());
    QVERIFY(column);
    QCOMPARE(column->spacing(), 5);
    QCOMPARE(column->contentsMargins(), QMargins());
    const QList<QWidget *> widgets { box.widgetTitle, box.labTitle->parentWidget(), box.txtInfo,
                                     box.widgetBtns };
    QCOMPARE(widgetsOf(column), widgets);
    for (int i = 0; i < column->count(); ++i) {
        QCOMPARE(column->itemAt(i)->alignment(), i == 1 ? Qt::AlignCenter : Qt::Alignment());
        QCOMPARE(column->stretch(i), 0);
    }
    for (const QWidget *widget : { box.widgetTitle, box.widgetBtns }) {
        QCOMPARE(widget->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(widget->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    }
    // Made in this order, which is the order in which they are stacked.
    QCOMPARE(box.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly), widgets);
}

void tst_QUIMessageBox::titleStripEndsInTheCloseButton()
{
    BoxProbe box;
    const auto *row = qobject_cast<QHBoxLayout *>(box.widgetTitle->layout());
    QVERIFY(row);
    QCOMPARE(row->spacing(), 0);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->count(), 2);
    const QSpacerItem *spacer = row->itemAt(0)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(2000, 20));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);

    const auto *button = qobject_cast<QPushButton *>(row->itemAt(1)->widget());
    QVERIFY(button);
    QCOMPARE(button->objectName(), QStringLiteral("closeBtn"));
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->minimumSize(), QSize(0, 0));
    QCOMPARE(button->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

void tst_QUIMessageBox::iconStandsBeforeTheTitle()
{
    BoxProbe box;
    const auto *row = qobject_cast<QHBoxLayout *>(box.labTitle->parentWidget()->layout());
    QVERIFY(row);
    QCOMPARE(row->spacing(), 2);
    QCOMPARE(row->contentsMargins(), QMargins());
    const QList<QWidget *> widgets { box.labIco, box.labTitle };
    QCOMPARE(widgetsOf(row), widgets);
    QCOMPARE(box.labIco->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(box.labIco->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    // Centred in the box as one.
    box.setMessage(QStringLiteral("Title"), QStringLiteral("Text"), 1, 0);
    box.show();
    const QRect rowRect = box.labTitle->parentWidget()->geometry();
    QVERIFY(rowRect.width() < 290);
    QVERIFY(qAbs(rowRect.center().x() - box.rect().center().x()) <= 1);
}

void tst_QUIMessageBox::textIsReadOnlyCentredAndFrameless()
{
    BoxProbe box;
    QVERIFY(box.txtInfo->isReadOnly());
    QCOMPARE(box.txtInfo->frameShape(), QFrame::NoFrame);
    QCOMPARE(box.txtInfo->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(box.txtInfo->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(box.txtInfo->document()->defaultTextOption().alignment(), Qt::AlignCenter);
    // The rest of the option is Qt's.
    QCOMPARE(box.txtInfo->document()->defaultTextOption().wrapMode(),
             QTextEdit().document()->defaultTextOption().wrapMode());
}

void tst_QUIMessageBox::textIsDrawnCentred_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << QStringLiteral("Saved");
    QTest::newRow("rich") << QStringLiteral("<b>Saved</b>");
}

void tst_QUIMessageBox::textIsDrawnCentred()
{
    QFETCH(QString, text);
    BoxProbe box;
    box.setMessage(text, 1, 0);
    box.show();
    QTextCursor cursor = box.txtInfo->textCursor();
    cursor.movePosition(QTextCursor::Start);
    const int left = box.txtInfo->cursorRect(cursor).left();
    cursor.movePosition(QTextCursor::End);
    const int right = box.txtInfo->cursorRect(cursor).left();
    QVERIFY(right > left);
    QVERIFY(left > 50);
    QVERIFY(qAbs((left + right) / 2 - box.txtInfo->viewport()->width() / 2) <= 2);
}

void tst_QUIMessageBox::buttonRow()
{
    BoxProbe box;
    const auto *row = qobject_cast<QHBoxLayout *>(box.widgetBtns->layout());
    QVERIFY(row);
    QCOMPARE(row->spacing(), 20);
    QCOMPARE(row->contentsMargins(), QMargins(30, 15, 30, 15));
    QCOMPARE(row->alignment(), Qt::AlignHCenter);
    const QList<QWidget *> widgets { nullptr,    box.btnOk, box.btnCancel,
                                     box.btnYes, box.btnNo, nullptr };
    QCOMPARE(widgetsOf(row), widgets);
    for (const int i : { 0, 5 }) {
        const QSpacerItem *spacer = row->itemAt(i)->spacerItem();
        QVERIFY(spacer);
        QCOMPARE(spacer->sizeHint(), QSize(0, 0));
        QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    }
    QCOMPARE(box.btnOk->text(), QStringLiteral("Confirm"));
    QCOMPARE(box.btnCancel->text(), QStringLiteral("Cancel"));
    QCOMPARE(box.btnYes->text(), QStringLiteral("Yes"));
    QCOMPARE(box.btnNo->text(), QStringLiteral("No"));
    const QList<QWidget *> made { box.btnOk, box.btnCancel, box.btnYes, box.btnNo };
    QCOMPARE(box.widgetBtns->findChildren<QWidget *>(), made);
}

void tst_QUIMessageBox::standardButtonsAreTranslatedInAPlainContext()
{
    const MarkingTranslator translator;
    BoxProbe box;
    QCOMPARE(box.btnOk->text(), QStringLiteral("[QUIMessageBox|Confirm]"));
    QCOMPARE(box.btnCancel->text(), QStringLiteral("[QUIMessageBox|Cancel]"));
    QCOMPARE(box.btnYes->text(), QStringLiteral("[QUIMessageBox|Yes]"));
    QCOMPARE(box.btnNo->text(), QStringLiteral("[QUIMessageBox|No]"));
}

void tst_QUIMessageBox::setsNoStyleSheet()
{
    BoxProbe box;
    QCOMPARE(box.styleSheet(), QString());
    const QList<QWidget *> children = box.findChildren<QWidget *>();
    QVERIFY(!children.isEmpty());
    for (const QWidget *child : children)
        QCOMPARE(child->styleSheet(), QString());
}

void tst_QUIMessageBox::typeGivesIconAndButtons_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<int>("buttons");
    QTest::newRow("information") << 1 << QStringLiteral("ok") << int(QTarnKit::Confirm);
    QTest::newRow("warning") << 2 << QStringLiteral("waring") << int(QTarnKit::Confirm);
    QTest::newRow("error") << 3 << QStringLiteral("error") << int(QTarnKit::Confirm);
    QTest::newRow("question") << 4 << QStringLiteral("ask") << 0x110;
    for (const int type : { 0, -1, 5, 100, INT_MAX, INT_MIN })
        QTest::addRow("%d", type) << type << QStringLiteral("ask") << 0;
}

void tst_QUIMessageBox::typeGivesIconAndButtons()
{
    QFETCH(int, type);
    QFETCH(QString, picture);
    QFETCH(int, buttons);
    BoxProbe box;
    // From another icon and all buttons.
    box.SetStandardType(type == 1 ? 3 : 1);
    box.SetStandardButtons(QFlag(0x116));
    box.SetStandardType(type);
    QCOMPARE(icon(box), picture);
    QCOMPARE(box.shownButtons(), buttons);
    // The picture is what is painted, too.
    const QImage image = QPixmap(QStringLiteral(":/image/%1.png").arg(picture)).toImage();
    QCOMPARE(box.labIco->sizeHint(), image.size());
}

void tst_QUIMessageBox::standardButtons_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("shown");
    const int bits[] { QTarnKit::NoButton, QTarnKit::Confirm, QTarnKit::Cancel, QTarnKit::Yes,
                       QTarnKit::No };
    for (int combination = 0; combination < 32; ++combination) {
        int flags = 0;
        for (int bit = 0; bit < 5; ++bit)
            flags |= combination & (1 << bit) ? bits[bit] : 0;
        QTest::addRow("0x%03x", flags)
                << flags << (flags & QTarnKit::NoButton ? 0 : flags & ~QTarnKit::NoButton);
    }
}

void tst_QUIMessageBox::standardButtons()
{
    QFETCH(int, flags);
    QFETCH(int, shown);
    BoxProbe box;
    // From none shown and from all shown.
    for (const int before : { 0x001, 0x116 }) {
        box.SetStandardButtons(QFlag(before));
        box.SetStandardButtons(QFlag(flags));
        QCOMPARE(box.shownButtons(), shown);
    }
}

void tst_QUIMessageBox::messageWithoutTitle()
{
    BoxProbe box;
    box.SetTitle(QStringLiteral("Old"));
    box.setMessage(QStringLiteral("Saved"), 1, 0);
    QCOMPARE(box.labTitle->text(), QString());
    QCOMPARE(box.txtInfo->toPlainText(), QStringLiteral("Saved"));
    QCOMPARE(icon(box), QStringLiteral("ok"));
    QCOMPARE(box.shownButtons(), int(QTarnKit::Confirm));
    QCOMPARE(box.closeSec, 0);
}

void tst_QUIMessageBox::messageWithTitle()
{
    BoxProbe box;
    box.setMessage(QStringLiteral("Storage"), QStringLiteral("Delete it?"), 4, 0);
    QCOMPARE(box.labTitle->text(), QStringLiteral("Storage"));
    QCOMPARE(box.txtInfo->toPlainText(), QStringLiteral("Delete it?"));
    QCOMPARE(icon(box), QStringLiteral("ask"));
    QCOMPARE(box.shownButtons(), QTarnKit::Yes | QTarnKit::No);
}

void tst_QUIMessageBox::messageWithCustomButtons()
{
    BoxProbe box;
    box.setMessage(QStringLiteral("Old"), 1, 0);
    box.setMessage(QStringLiteral("Storage"), QStringLiteral("Where to?"),
                   QStringList { QStringLiteral("Disk"), QStringLiteral("Card") }, 0);
    QCOMPARE(box.labTitle->text(), QStringLiteral("Storage"));
    QCOMPARE(box.txtInfo->toPlainText(), QStringLiteral("Where to?"));
    QCOMPARE(icon(box), QStringLiteral("ask"));
    QCOMPARE(box.shownButtons(), 0);
    QCOMPARE(box.customTexts(), (QStringList { QStringLiteral("Disk"), QStringLiteral("Card") }));
}

void tst_QUIMessageBox::messagesWithTypeKeepTheCustomButtons()
{
    BoxProbe box;
    box.SetCustButtons({ QStringLiteral("Disk") });
    box.setMessage(QStringLiteral("Saved"), 1, 0);
    QCOMPARE(box.customTexts(), QStringList { QStringLiteral("Disk") });
    box.setMessage(QStringLiteral("Storage"), QStringLiteral("Saved"), 1, 0);
    QCOMPARE(box.customTexts(), QStringList { QStringLiteral("Disk") });
    box.show();
    QVERIFY(box.custButtons.constFirst()->isVisible());
    QVERIFY(box.btnOk->isVisible());
}

void tst_QUIMessageBox::richTextIsInterpreted()
{
    BoxProbe box;
    box.SetText(QStringLiteral("<b>Saved</b>"));
    QCOMPARE(box.txtInfo->toPlainText(), QStringLiteral("Saved"));
    box.SetText(QStringLiteral("1 < 2"));
    QCOMPARE(box.txtInfo->toPlainText(), QStringLiteral("1 < 2"));
}

void tst_QUIMessageBox::titleAndTextAreSetApart()
{
    BoxProbe box;
    box.SetTitle(QStringLiteral("a"));
    box.SetText(QStringLiteral("b"));
    QCOMPARE(box.labTitle->text(), QStringLiteral("a"));
    QCOMPARE(box.txtInfo->toPlainText(), QStringLiteral("b"));
    QCOMPARE(box.windowTitle(), QString());
}

void tst_QUIMessageBox::instanceIsOneTopLevelBox()
{
    QUIMessageBox *box = QUIMessageBox::Instance();
    QVERIFY(box);
    QCOMPARE(QUIMessageBox::Instance(), box);
    QVERIFY(!box->parent());
    QVERIFY(box->isWindow());
    QVERIFY(box->isHidden());
}

QTARNKIT_TEST_MAIN(tst_QUIMessageBox)
#include "tst_QUIMessageBox.moc"
