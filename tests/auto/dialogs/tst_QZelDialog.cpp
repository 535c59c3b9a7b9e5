#include "MarkingTranslator.h"
#include "TestMain.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <QZelDialog.h>

namespace {

class Shell : public QZelDialog
{
public:
    explicit Shell(QWidget *parent = nullptr)
        : QZelDialog(parent)
    {}

    using QZelDialog::btn_Cancel;
    using QZelDialog::btn_Close;
    using QZelDialog::btn_Max;
    using QZelDialog::btn_Ok;
    using QZelDialog::dragOffset;
    using QZelDialog::isMaximized;
    using QZelDialog::isPressed;
    using QZelDialog::lbl_Title;
    using QZelDialog::mainLayout;
    using QZelDialog::normalGeometry;
    using QZelDialog::wgt_Bottom;
    using QZelDialog::wgt_TitleBar;
};

QList<QWidget *> widgetsOf(const QLayout *layout)
{
    QList<QWidget *> widgets;
    for (int i = 0; i < layout->count(); ++i)
        widgets.append(layout->itemAt(i)->widget());
    return widgets;
}

bool isPlain(const QBoxLayout *layout)
{
    for (int i = 0; i < layout->count(); ++i)
        if (layout->stretch(i) != 0 || layout->itemAt(i)->alignment())
            return false;
    return true;
}

} // namespace

class tst_QZelDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAFramelessWindowModalDialog();
    void addsNothingToTheMetaObject();
    void startsNeitherDraggedNorMaximised();
    void columnHoldsTitleStripAndBottomRow();
    void titleStripHoldsLabelMaximiseAndClose();
    void titleLabel();
    void maximiseButton();
    void closeButton();
    void bottomRowHoldsConfirmAndCancelAtItsRight();
    void bottomButtons();
    void setsNoStyleSheet();
    void textsAreTranslatedInItsContext();

    void setTitleChangesTheLabelOnly();
    void resizeDoesNotMove();
    void showBtn_data();
    void showBtn();
    void hiddenBottomRowStaysHidden();
    void showMaxBtnShowsTheButton();
    void setBtnTextAdjustsTheButtons();
    void setBtnEnabledConcernsConfirmOnly();
    void dialogWithoutParentOrWithOneIsAWindow();

    void containerGoesBetweenTheStrips();
    void secondContainerGoesAboveTheFirst();
    void nullContainerIsIgnored();
};

void tst_QZelDialog::isAFramelessWindowModalDialog()
{
    Shell shell;
    QCOMPARE(int(shell.windowFlags()), 0x803);
    QCOMPARE(shell.windowModality(), Qt::WindowModal);
    QVERIFY(shell.isHidden());
}

void tst_QZelDialog::addsNothingToTheMetaObject()
{
    const QMetaObject &meta = QZelDialog::staticMetaObject;
    QCOMPARE(meta.className(), "QZelDialog");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_QZelDialog::startsNeitherDraggedNorMaximised()
{
    Shell shell;
    QVERIFY(!shell.isPressed);
    QCOMPARE(shell.dragOffset, QPoint());
    QVERIFY(!shell.isMaximized);
    QVERIFY(shell.normalGeometry.isNull());
    QVERIFY(!shell.btn_Max->property("windowState").isValid());
}

void tst_QZelDialog::columnHoldsTitleStripAndBottomRow()
{
    Shell shell;
    QVERIFY(shell.mainLayout);
    QCOMPARE(shell.layout(), shell.mainLayout);
    QCOMPARE(shell.mainLayout->contentsMargins(), QMargins());
    QCOMPARE(shell.mainLayout->spacing(), 0);
    QVERIFY(isPlain(shell.mainLayout));
    const QList<QWidget *> column { shell.wgt_TitleBar, shell.wgt_Bottom };
    QCOMPARE(widgetsOf(shell.mainLayout), column);
    // Made in this order, which is the order in which they are stacked.
    QCOMPARE(shell.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly), column);
}

void tst_QZelDialog::titleStripHoldsLabelMaximiseAndClose()
{
    Shell shell;
    const QWidget *strip = shell.wgt_TitleBar;
    QCOMPARE(strip->objectName(), QStringLiteral("wgt_TitleBar"));
    QCOMPARE(strip->minimumHeight(), 32);
    QCOMPARE(strip->maximumHeight(), 32);
    QCOMPARE(strip->focusPolicy(), Qt::ClickFocus);

    const auto *layout = qobject_cast<QHBoxLayout *>(strip->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(10, 0, 10, 0));
    QCOMPARE(layout->spacing(), 5);
    QVERIFY(isPlain(layout));
    const QList<QWidget *> row { shell.lbl_Title, shell.btn_Max, shell.btn_Close };
    QCOMPARE(widgetsOf(layout), row);
}

void tst_QZelDialog::titleLabel()
{
    Shell shell;
    QCOMPARE(shell.lbl_Title->text(), QString());
    QCOMPARE(shell.lbl_Title->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(shell.lbl_Title->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(shell.lbl_Title->minimumHeight(), 32);
    QCOMPARE(shell.lbl_Title->maximumHeight(), 32);
}

void tst_QZelDialog::maximiseButton()
{
    Shell shell;
    QCOMPARE(shell.btn_Max->objectName(), QStringLiteral("btn_Max"));
    QCOMPARE(shell.btn_Max->minimumSize(), QSize(28, 28));
    QCOMPARE(shell.btn_Max->maximumSize(), QSize(28, 28));
    QCOMPARE(shell.btn_Max->focusPolicy(), Qt::NoFocus);
    QVERIFY(shell.btn_Max->isHidden());
}

void tst_QZelDialog::closeButton()
{
    Shell shell;
    QCOMPARE(shell.btn_Close->objectName(), QStringLiteral("btn_Close"));
    QCOMPARE(shell.btn_Close->minimumSize(), QSize(25, 25));
    QCOMPARE(shell.btn_Close->maximumSize(), QSize(25, 25));
    QCOMPARE(shell.btn_Close->focusPolicy(), Qt::NoFocus);
    QCOMPARE(shell.btn_Close->text(), QString());
    QVERIFY(!shell.btn_Close->isHidden());
}

void tst_QZelDialog::bottomRowHoldsConfirmAndCancelAtItsRight()
{
    Shell shell;
    QCOMPARE(shell.wgt_Bottom->objectName(), QStringLiteral("wgt_Bottom"));
    QCOMPARE(shell.wgt_Bottom->minimumHeight(), 32);
    QCOMPARE(shell.wgt_Bottom->maximumHeight(), 32);

    const auto *layout = qobject_cast<QHBoxLayout *>(shell.wgt_Bottom->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 10, 0));
    QCOMPARE(layout->spacing(), 6);
    QVERIFY(isPlain(layout));
    const QList<QWidget *> row { nullptr, shell.btn_Ok, shell.btn_Cancel };
    QCOMPARE(widgetsOf(layout), row);
    const QSpacerItem *stretch = layout->itemAt(0)->spacerItem();
    QVERIFY(stretch);
    QCOMPARE(stretch->sizeHint(), QSize(0, 0));
    QCOMPARE(stretch->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
}

void tst_QZelDialog::bottomButtons()
{
    Shell shell;
    QCOMPARE(shell.btn_Ok->text(), QStringLiteral("Confirm"));
    QCOMPARE(shell.btn_Cancel->text(), QStringLiteral("Cancel"));
    for (const QPushButton *button : { shell.btn_Ok, shell.btn_Cancel }) {
        QCOMPARE(button->parentWidget(), shell.wgt_Bottom);
        QCOMPARE(button->minimumSize(), QSize(80, 24));
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QVERIFY(button->isEnabled());
        QVERIFY(!button->isHidden());
    }
}

void tst_QZelDialog::setsNoStyleSheet()
{
    Shell shell;
    QCOMPARE(shell.styleSheet(), QString());
    const QList<QWidget *> children = shell.findChildren<QWidget *>();
    QVERIFY(!children.isEmpty());
    for (const QWidget *child : children)
        QCOMPARE(child->styleSheet(), QString());
}

void tst_QZelDialog::textsAreTranslatedInItsContext()
{
    const MarkingTranslator translator;
    Shell shell;
    QCOMPARE(shell.btn_Ok->text(), QStringLiteral("[QZelDialog|Confirm]"));
    QCOMPARE(shell.btn_Cancel->text(), QStringLiteral("[QZelDialog|Cancel]"));
}

void tst_QZelDialog::setTitleChangesTheLabelOnly()
{
    Shell shell;
    shell.SetTitle(QStringLiteral("Address"));
    QCOMPARE(shell.lbl_Title->text(), QStringLiteral("Address"));
    QCOMPARE(shell.windowTitle(), QString());
}

void tst_QZelDialog::resizeDoesNotMove()
{
    Shell shell;
    shell.move(40, 50);
    shell.Resize(100, 100, 300, 150);
    QCOMPARE(shell.geometry(), QRect(40, 50, 300, 150));
}

void tst_QZelDialog::showBtn_data()
{
    QTest::addColumn<bool>("showOk");
    QTest::addColumn<bool>("showCancel");
    QTest::newRow("both") << true << true;
    QTest::newRow("Confirm only") << true << false;
    QTest::newRow("Cancel only") << false << true;
    QTest::newRow("none") << false << false;
}

void tst_QZelDialog::showBtn()
{
    QFETCH(bool, showOk);
    QFETCH(bool, showCancel);
    Shell shell;
    shell.ShowBtn(!showOk, !showCancel || showOk);
    shell.ShowBtn(showOk, showCancel);
    QCOMPARE(!shell.btn_Ok->isHidden(), showOk);
    QCOMPARE(!shell.btn_Cancel->isHidden(), showCancel);
    QCOMPARE(!shell.wgt_Bottom->isHidden(), showOk || showCancel);
}

void tst_QZelDialog::hiddenBottomRowStaysHidden()
{
    Shell shell;
    shell.ShowBtn(false, false);
    shell.ShowBtn(true, true);
    QVERIFY(!shell.btn_Ok->isHidden());
    QVERIFY(!shell.btn_Cancel->isHidden());
    QVERIFY(shell.wgt_Bottom->isHidden());
    shell.show();
    QVERIFY(!shell.wgt_Bottom->isVisible());
    QVERIFY(!shell.btn_Ok->isVisible());
}

void tst_QZelDialog::showMaxBtnShowsTheButton()
{
    Shell shell;
    shell.show();
    QVERIFY(!shell.btn_Max->isVisible());
    shell.ShowMaxBtn();
    QVERIFY(shell.btn_Max->isVisible());
}

void tst_QZelDialog::setBtnTextAdjustsTheButtons()
{
    Shell shell;
    shell.SetBtnText(QStringLiteral("Overwrite the file that is there"), QStringLiteral("No"));
    QCOMPARE(shell.btn_Ok->text(), QStringLiteral("Overwrite the file that is there"));
    QCOMPARE(shell.btn_Cancel->text(), QStringLiteral("No"));
    QVERIFY(shell.btn_Ok->sizeHint().width() > 80);
    QCOMPARE(shell.btn_Ok->size(), shell.btn_Ok->sizeHint());
    QCOMPARE(shell.btn_Cancel->size(),
             shell.btn_Cancel->sizeHint().expandedTo(shell.btn_Cancel->minimumSize()));
}

void tst_QZelDialog::setBtnEnabledConcernsConfirmOnly()
{
    Shell shell;
    shell.SetBtnEnabled(false);
    QVERIFY(!shell.btn_Ok->isEnabled());
    QVERIFY(shell.btn_Cancel->isEnabled());
    QVERIFY(shell.btn_Close->isEnabled());
    shell.show();
    shell.btn_Ok->click();
    QVERIFY(shell.isVisible());
    shell.SetBtnEnabled(true);
    QVERIFY(shell.btn_Ok->isEnabled());
}

void tst_QZelDialog::dialogWithoutParentOrWithOneIsAWindow()
{
    QWidget host;
    Shell child(&host);
    Shell orphan(nullptr);
    QCOMPARE(child.parentWidget(), &host);
    QVERIFY(child.isWindow());
    QVERIFY(orphan.isWindow());
}

void tst_QZelDialog::containerGoesBetweenTheStrips()
{
    Shell shell;
    shell.Resize(0, 0, 300, 150);
    auto *content = new QWidget;
    shell.SetContainer(content);
    QCOMPARE(content->parentWidget(), &shell);
    QCOMPARE(widgetsOf(shell.mainLayout),
             (QList<QWidget *> { shell.wgt_TitleBar, content, shell.wgt_Bottom }));
    QVERIFY(isPlain(shell.mainLayout));

    shell.show();
    QVERIFY(content->isVisible());
    QCOMPARE(shell.wgt_TitleBar->geometry(), QRect(0, 0, 300, 32));
    QCOMPARE(content->geometry(), QRect(0, 32, 300, 150 - 2 * 32));
    QCOMPARE(shell.wgt_Bottom->geometry(), QRect(0, 150 - 32, 300, 32));
}

void tst_QZelDialog::secondContainerGoesAboveTheFirst()
{
    Shell shell;
    auto *first = new QWidget;
    auto *second = new QWidget;
    shell.SetContainer(first);
    shell.SetContainer(second);
    QCOMPARE(widgetsOf(shell.mainLayout),
             (QList<QWidget *> { shell.wgt_TitleBar, second, first, shell.wgt_Bottom }));
}

void tst_QZelDialog::nullContainerIsIgnored()
{
    Shell shell;
    shell.SetContainer(nullptr);
    QCOMPARE(shell.mainLayout->count(), 2);
}

QTARNKIT_TEST_MAIN(tst_QZelDialog)
#include "tst_QZelDialog.moc"
