#include "ModalDriver.h"
#include "Pointer.h"
#include "TestMain.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QZelDialog.h>

namespace {

// Counts what its hooks are asked and answers as told.
class Shell : public QZelDialog
{
public:
    Shell()
        : QZelDialog(nullptr)
    {}

    using QZelDialog::btn_Cancel;
    using QZelDialog::btn_Close;
    using QZelDialog::btn_Max;
    using QZelDialog::btn_Ok;

    bool PreAccept() override
    {
        ++acceptAsked;
        hoveredWhenAsked = btn_Ok->testAttribute(Qt::WA_UnderMouse);
        return mayAccept;
    }
    bool PreClose() override
    {
        ++closeAsked;
        hoveredWhenAsked = btn_Close->testAttribute(Qt::WA_UnderMouse);
        return mayClose;
    }
    void accept() override
    {
        ++acceptCalled;
        QZelDialog::accept();
    }

    bool mayAccept = true;
    bool mayClose = true;
    bool hoveredWhenAsked = true;
    int acceptAsked = 0;
    int closeAsked = 0;
    int acceptCalled = 0;
};

using Button = QAbstractButton *(*) (Shell *);

QAbstractButton *ok(Shell *shell)
{
    return shell->btn_Ok;
}
QAbstractButton *cancel(Shell *shell)
{
    return shell->btn_Cancel;
}
QAbstractButton *closing(Shell *shell)
{
    return shell->btn_Close;
}
QAbstractButton *maximise(Shell *shell)
{
    return shell->btn_Max;
}

} // namespace

Q_DECLARE_METATYPE(Button)

// How the dialog ends, and who is asked before.
class tst_QZelDialog_ends : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void execResult_data();
    void execResult();
    void baseHooksAgree();
    void confirmAsksPreAcceptOnceThenAccepts();
    void refusedPreAcceptKeepsTheDialogOpen();
    void closeAsksPreCloseOnce();
    void refusedPreCloseKeepsTheDialogOpen();
    void cancelAsksNoHook();
    void clickClearsTheHoverState_data();
    void clickClearsTheHoverState();
};

void tst_QZelDialog_ends::execResult_data()
{
    QTest::addColumn<Button>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("Confirm") << Button(ok) << int(QDialog::Accepted);
    QTest::newRow("Cancel") << Button(cancel) << int(QDialog::Rejected);
    QTest::newRow("close") << Button(closing) << int(QDialog::Rejected);
}

void tst_QZelDialog_ends::execResult()
{
    QFETCH(Button, button);
    QFETCH(int, result);
    Shell shell;
    QSignalSpy accepted(&shell, &QDialog::accepted);
    QSignalSpy rejected(&shell, &QDialog::rejected);
    QSignalSpy finished(&shell, &QDialog::finished);
    ModalDriver driver;
    driver.on<QZelDialog>([&](QZelDialog *) { Pointer(&shell).click(middleOf(button(&shell))); });
    shell.setResult(42);
    QCOMPARE(shell.exec(), result);
    QVERIFY(driver.finished());
    QCOMPARE(accepted.count(), result == QDialog::Accepted ? 1 : 0);
    QCOMPARE(rejected.count(), result == QDialog::Accepted ? 0 : 1);
    QCOMPARE(finished.count(), 1);
    QVERIFY(!shell.isVisible());
}

void tst_QZelDialog_ends::baseHooksAgree()
{
    Shell shell;
    QVERIFY(shell.QZelDialog::PreAccept());
    QVERIFY(shell.QZelDialog::PreClose());
}

void tst_QZelDialog_ends::confirmAsksPreAcceptOnceThenAccepts()
{
    Shell shell;
    shell.show();
    shell.btn_Ok->click();
    QCOMPARE(shell.acceptAsked, 1);
    QCOMPARE(shell.closeAsked, 0);
    QCOMPARE(shell.acceptCalled, 1);
    QVERIFY(!shell.isVisible());
}

void tst_QZelDialog_ends::refusedPreAcceptKeepsTheDialogOpen()
{
    Shell shell;
    shell.mayAccept = false;
    shell.show();
    shell.btn_Ok->click();
    QCOMPARE(shell.acceptAsked, 1);
    QCOMPARE(shell.acceptCalled, 0);
    QVERIFY(shell.isVisible());
}

void tst_QZelDialog_ends::closeAsksPreCloseOnce()
{
    Shell shell;
    shell.show();
    shell.btn_Close->click();
    QCOMPARE(shell.closeAsked, 1);
    QCOMPARE(shell.acceptAsked, 0);
    QVERIFY(!shell.isVisible());
}

void tst_QZelDialog_ends::refusedPreCloseKeepsTheDialogOpen()
{
    Shell shell;
    shell.mayClose = false;
    shell.show();
    shell.btn_Close->click();
    QCOMPARE(shell.closeAsked, 1);
    QVERIFY(shell.isVisible());
    shell.btn_Cancel->click();
    QCOMPARE(shell.closeAsked, 1);
    QVERIFY(!shell.isVisible());
}

void tst_QZelDialog_ends::cancelAsksNoHook()
{
    Shell shell;
    shell.mayAccept = false;
    shell.mayClose = false;
    shell.show();
    shell.btn_Cancel->click();
    QCOMPARE(shell.acceptAsked, 0);
    QCOMPARE(shell.closeAsked, 0);
    QVERIFY(!shell.isVisible());
}

void tst_QZelDialog_ends::clickClearsTheHoverState_data()
{
    QTest::addColumn<Button>("button");
    QTest::addColumn<bool>("asksHook");
    QTest::newRow("Confirm") << Button(ok) << true;
    QTest::newRow("Cancel") << Button(cancel) << false;
    QTest::newRow("close") << Button(closing) << true;
    QTest::newRow("maximise") << Button(maximise) << false;
}

void tst_QZelDialog_ends::clickClearsTheHoverState()
{
    QFETCH(Button, button);
    QFETCH(bool, asksHook);
    // Never shown: hiding a window clears the state by itself.
    Shell shell;
    button(&shell)->setAttribute(Qt::WA_UnderMouse);
    button(&shell)->click();
    QVERIFY(!button(&shell)->testAttribute(Qt::WA_UnderMouse));
    // Cleared before the hook, which may show a window of its own.
    QCOMPARE(!shell.hoveredWhenAsked, asksHook);
}

QTARNKIT_TEST_MAIN(tst_QZelDialog_ends)
#include "tst_QZelDialog_ends.moc"
