#include "Pointer.h"
#include "TestMain.h"

#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <QZelDialog.h>

namespace {

class Shell : public QZelDialog
{
public:
    Shell()
        : QZelDialog(nullptr)
    {}

    using QZelDialog::btn_Cancel;
    using QZelDialog::btn_Close;
    using QZelDialog::btn_Ok;
    using QZelDialog::mainLayout;
    using QZelDialog::wgt_Bottom;
    using QZelDialog::wgt_TitleBar;

    QWidget *lastOfColumn() const { return mainLayout->itemAt(mainLayout->count() - 1)->widget(); }
};

// Puts a new bottom row in while the old row's Confirm is being clicked.
class ReplacingShell : public Shell
{
public:
    bool PreAccept() override
    {
        SetBottom(new QWidget);
        return false;
    }
};

// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }
    int paints = 0;
};

} // namespace

class tst_QZelDialog_bottom : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newRowTakesTheOldOnesPlace();
    void oldRowIsDeletedWithItsButtons();
    void newRowIsShownAndLaidOut();
    void newRowIsPaintedInAVisibleDialog();
    void containerStaysAboveTheNewRow();
    void newRowIsNotRemembered();
    void operationsOnTheButtonsDoNothingAfterwards();
    void presentRowIsIgnored();
    void nullIsIgnored();
    void childOfTheOldRowCanBecomeTheNewRow();
    void secondCallAddsItsRowBelow();
    void closeButtonStillCloses();
    void rowCanBeReplacedWhileConfirmIsClicked();
};

void tst_QZelDialog_bottom::newRowTakesTheOldOnesPlace()
{
    Shell shell;
    auto *row = new QWidget;
    row->setObjectName(QStringLiteral("mine"));
    shell.SetBottom(row);
    QCOMPARE(row->objectName(), QStringLiteral("wgt_Bottom"));
    QCOMPARE(row->parentWidget(), &shell);
    QCOMPARE(shell.mainLayout->count(), 2);
    QCOMPARE(shell.mainLayout->itemAt(0)->widget(), shell.wgt_TitleBar);
    QCOMPARE(shell.lastOfColumn(), row);
    QCOMPARE(shell.mainLayout->stretch(1), 0);
    QCOMPARE(shell.mainLayout->itemAt(1)->alignment(), Qt::Alignment());
}

void tst_QZelDialog_bottom::oldRowIsDeletedWithItsButtons()
{
    Shell shell;
    const QPointer<QWidget> oldRow(shell.wgt_Bottom);
    const QPointer<QPushButton> oldOk(shell.btn_Ok);
    const QPointer<QPushButton> oldCancel(shell.btn_Cancel);
    QVERIFY(oldRow && oldOk && oldCancel);
    shell.SetBottom(new QWidget);
    QVERIFY(!oldRow);
    QVERIFY(!oldOk);
    QVERIFY(!oldCancel);
    QCOMPARE(shell.findChildren<QWidget *>(QStringLiteral("wgt_Bottom")).size(), 1);
}

void tst_QZelDialog_bottom::newRowIsShownAndLaidOut()
{
    Shell shell;
    shell.Resize(0, 0, 300, 150);
    auto *row = new QWidget;
    row->setFixedHeight(50);
    shell.SetBottom(row);
    shell.show();
    QVERIFY(row->isVisible());
    QCOMPARE(row->width(), 300);
    QCOMPARE(row->height(), 50);
}

void tst_QZelDialog_bottom::newRowIsPaintedInAVisibleDialog()
{
    Shell shell;
    shell.Resize(0, 0, 300, 150);
    shell.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shell));
    auto *row = new QWidget;
    PaintCounter counter;
    row->installEventFilter(&counter);
    shell.SetBottom(row);
    QTRY_VERIFY(row->isVisible());
    QTRY_VERIFY(counter.paints > 0);
    row->removeEventFilter(&counter);
}

void tst_QZelDialog_bottom::containerStaysAboveTheNewRow()
{
    Shell shell;
    auto *content = new QWidget;
    auto *row = new QWidget;
    shell.SetContainer(content);
    shell.SetBottom(row);
    QCOMPARE(shell.mainLayout->count(), 3);
    QCOMPARE(shell.mainLayout->itemAt(1)->widget(), content);
    QCOMPARE(shell.lastOfColumn(), row);
}

void tst_QZelDialog_bottom::newRowIsNotRemembered()
{
    Shell shell;
    shell.SetBottom(new QWidget);
    QVERIFY(!shell.wgt_Bottom);
    QVERIFY(!shell.btn_Ok);
    QVERIFY(!shell.btn_Cancel);
}

void tst_QZelDialog_bottom::operationsOnTheButtonsDoNothingAfterwards()
{
    Shell shell;
    auto *row = new QWidget;
    auto *button = new QPushButton(QStringLiteral("Mine"), row);
    shell.SetBottom(row);
    shell.ShowBtn(true, true);
    shell.ShowBtn(false, false);
    shell.SetBtnText(QStringLiteral("a"), QStringLiteral("b"));
    shell.SetBtnEnabled(false);
    QVERIFY(!row->isHidden());
    QVERIFY(!button->isHidden());
    QVERIFY(button->isEnabled());
    QCOMPARE(button->text(), QStringLiteral("Mine"));
}

void tst_QZelDialog_bottom::presentRowIsIgnored()
{
    Shell shell;
    QWidget *row = shell.wgt_Bottom;
    shell.SetBottom(row);
    QCOMPARE(shell.wgt_Bottom, row);
    QCOMPARE(shell.mainLayout->count(), 2);
    shell.SetBtnText(QStringLiteral("Yes"), QStringLiteral("No"));
    QCOMPARE(shell.btn_Ok->text(), QStringLiteral("Yes"));
}

void tst_QZelDialog_bottom::nullIsIgnored()
{
    Shell shell;
    QWidget *row = shell.wgt_Bottom;
    shell.SetBottom(nullptr);
    QCOMPARE(shell.wgt_Bottom, row);
    QCOMPARE(shell.lastOfColumn(), row);
    QVERIFY(shell.btn_Ok && shell.btn_Cancel);
}

void tst_QZelDialog_bottom::childOfTheOldRowCanBecomeTheNewRow()
{
    Shell shell;
    shell.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shell));
    const QPointer<QPushButton> oldOk(shell.btn_Ok);
    const QPointer<QWidget> oldRow(shell.wgt_Bottom);
    shell.SetBottom(oldOk);
    QVERIFY(!oldRow);
    QVERIFY(oldOk);
    QCOMPARE(oldOk->parentWidget(), &shell);
    QCOMPARE(shell.lastOfColumn(), oldOk.data());
    QTRY_VERIFY(oldOk->isVisible());
}

void tst_QZelDialog_bottom::secondCallAddsItsRowBelow()
{
    Shell shell;
    const QPointer<QWidget> first(new QWidget);
    auto *second = new QWidget;
    shell.SetBottom(first);
    shell.SetBottom(second);
    // The first row was not remembered, so nothing is there to be replaced.
    QVERIFY(first);
    QCOMPARE(shell.mainLayout->count(), 3);
    QCOMPARE(shell.mainLayout->itemAt(1)->widget(), first.data());
    QCOMPARE(shell.lastOfColumn(), second);
    QCOMPARE(second->objectName(), QStringLiteral("wgt_Bottom"));
}

void tst_QZelDialog_bottom::closeButtonStillCloses()
{
    Shell shell;
    shell.SetBottom(new QWidget);
    shell.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shell));
    Pointer(&shell).click(middleOf(shell.btn_Close));
    QVERIFY(!shell.isVisible());
}

void tst_QZelDialog_bottom::rowCanBeReplacedWhileConfirmIsClicked()
{
    ReplacingShell shell;
    shell.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shell));
    const QPointer<QPushButton> oldOk(shell.btn_Ok);
    Pointer(&shell).click(middleOf(oldOk));
    QVERIFY(!oldOk);
    QVERIFY(!shell.wgt_Bottom);
    QVERIFY(shell.isVisible());
}

QTARNKIT_TEST_MAIN(tst_QZelDialog_bottom)
#include "tst_QZelDialog_bottom.moc"
