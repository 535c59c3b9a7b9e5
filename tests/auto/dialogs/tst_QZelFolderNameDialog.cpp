#include "MarkingTranslator.h"
#include "ModalDriver.h"
#include "Pixels.h"
#include "Pointer.h"
#include "TestMain.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextEdit>
#include <QUIMessageBox.h>
#include <QVBoxLayout>
#include <QZelFolderNameDialog.h>

using QTarnKit::QUIMessageBox;

namespace {

class Probe : public QZelFolderNameDialog
{
public:
    explicit Probe(QWidget *parent = nullptr)
        : QZelFolderNameDialog(parent)
    {}

    using QZelFolderNameDialog::btn_Cancel;
    using QZelFolderNameDialog::btn_Close;
    using QZelFolderNameDialog::btn_Ok;
    using QZelFolderNameDialog::lbl_Title;
    using QZelFolderNameDialog::mainLayout;
    using QZelFolderNameDialog::wgt_Bottom;

    QWidget *content() const { return mainLayout->itemAt(1)->widget(); }
};

// Notes every message box that is shown while it lives.
class BoxWatcher : public QObject
{
public:
    BoxWatcher() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show) {
            if (const auto *box = qobject_cast<QUIMessageBox *>(watched)) {
                ++shown;
                parent = box->parent();
                text = box->findChild<QTextEdit *>()->toPlainText();
                const QImage error = QPixmap(QStringLiteral(":/image/error.png")).toImage();
                const QList<QLabel *> labels = box->findChildren<QLabel *>();
                for (const QLabel *label : labels)
                    isError |= label->pixmap(Qt::ReturnByValue).toImage() == error;
            }
        }
        return QObject::eventFilter(watched, event);
    }

    int shown = 0;
    QObject *parent = this;
    QString text;
    bool isError = false;
};

bool aBoxIsThere()
{
    const QWidgetList widgets = QApplication::allWidgets();
    return std::any_of(widgets.cbegin(), widgets.cend(),
                       [](QWidget *widget) { return qobject_cast<QUIMessageBox *>(widget); });
}

} // namespace

class tst_QZelFolderNameDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void addsNothingToTheMetaObject();
    void isAShellOfFixedStartSize();
    void cancelIsHidden();
    void promptAndEditStandAtTheTop();
    void contentHasItsOwnLook();
    void textsAreTranslatedInItsContext();
    void titleIsThePrompt();
    void contentFillsTheEdit();
    void missingWidgetsAreLeftAlone();

    void typedNameIsAccepted();
    void blanksAreAccepted();
    void emptyNameLeavesTheDialogRunning();
    void emptyNameShowsABoxThatGoesAtOnce();
    void closeButtonRejects();
};

void tst_QZelFolderNameDialog::addsNothingToTheMetaObject()
{
    const QMetaObject &meta = QZelFolderNameDialog::staticMetaObject;
    QCOMPARE(meta.className(), "QZelFolderNameDialog");
    QCOMPARE(meta.superClass(), &QZelDialog::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_QZelFolderNameDialog::isAShellOfFixedStartSize()
{
    QWidget host;
    Probe dialog(&host);
    QCOMPARE(dialog.parentWidget(), &host);
    QCOMPARE(dialog.size(), QSize(300, 150));
    QCOMPARE(int(dialog.windowFlags()), 0x803);
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    QVERIFY(dialog.PreAccept());
    dialog.show();
    QCOMPARE(dialog.size(), QSize(300, 150));
}

void tst_QZelFolderNameDialog::cancelIsHidden()
{
    Probe dialog;
    dialog.show();
    QVERIFY(dialog.btn_Ok->isVisible());
    QVERIFY(!dialog.btn_Cancel->isVisible());
    QVERIFY(dialog.wgt_Bottom->isVisible());
    QVERIFY(dialog.btn_Close->isVisible());
}

void tst_QZelFolderNameDialog::promptAndEditStandAtTheTop()
{
    Probe dialog;
    QCOMPARE(dialog.lbl_FolderName->text(), QStringLiteral("folderName"));
    QCOMPARE(dialog.let_FolderName->text(), QString());
    QCOMPARE(dialog.let_FolderName->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(dialog.let_FolderName->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);

    const auto *column = qobject_cast<QVBoxLayout *>(dialog.content()->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins(10, 20, 0, 0));
    QCOMPARE(column->count(), 2);
    QVERIFY(column->itemAt(1)->spacerItem());
    const auto *row = qobject_cast<QHBoxLayout *>(column->itemAt(0)->layout());
    QVERIFY(row);
    QCOMPARE(row->spacing(), 10);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->count(), 2);
    QCOMPARE(row->itemAt(0)->widget(), dialog.lbl_FolderName);
    QCOMPARE(row->itemAt(1)->widget(), dialog.let_FolderName);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(row->stretch(i), 0);
        QCOMPARE(row->itemAt(i)->alignment(), Qt::Alignment());
        QCOMPARE(column->stretch(i), 0);
    }

    dialog.show();
    QCOMPARE(dialog.let_FolderName->y(), 20);
    QCOMPARE(dialog.lbl_FolderName->x(), 10);
    QCOMPARE(dialog.let_FolderName->x(), dialog.lbl_FolderName->geometry().right() + 1 + 10);
    QCOMPARE(dialog.let_FolderName->geometry().right(), 299);
}

void tst_QZelFolderNameDialog::contentHasItsOwnLook()
{
    Probe dialog;
    QCOMPARE(dialog.content()->styleSheet(),
             QStringLiteral("background-color: #f2f3f5; font: 11pt \"Microsoft YaHei\";"));
    dialog.show();
    COMPARE_PIXEL(Pixels::rendered(dialog.content()), 3, 3, 0xf2f3f5);
    for (const QWidget *widget : { static_cast<QWidget *>(dialog.lbl_FolderName),
                                   static_cast<QWidget *>(dialog.let_FolderName) }) {
        QCOMPARE(widget->font().family(), QStringLiteral("Microsoft YaHei"));
        QCOMPARE(widget->font().pointSize(), 11);
    }
}

void tst_QZelFolderNameDialog::textsAreTranslatedInItsContext()
{
    const MarkingTranslator translator;
    BoxWatcher watcher;
    Probe dialog;
    QCOMPARE(dialog.lbl_FolderName->text(), QStringLiteral("[QZelFolderNameDialog|folderName]"));
    dialog.accept();
    QCOMPARE(watcher.text, QStringLiteral("[QZelFolderNameDialog|addFailed]"));
}

void tst_QZelFolderNameDialog::titleIsThePrompt()
{
    Probe dialog;
    dialog.SetTitle(QStringLiteral("strip"));
    dialog.setTitle(QStringLiteral("x"));
    QCOMPARE(dialog.lbl_FolderName->text(), QStringLiteral("x"));
    QCOMPARE(dialog.lbl_Title->text(), QStringLiteral("strip"));
    QCOMPARE(dialog.windowTitle(), QString());
}

void tst_QZelFolderNameDialog::contentFillsTheEdit()
{
    Probe dialog;
    dialog.setContent(QStringLiteral("abc"));
    ModalDriver driver;
    QString shown;
    driver.on<QZelFolderNameDialog>([&](QZelFolderNameDialog *) {
        shown = dialog.let_FolderName->text();
        dialog.btn_Ok->click();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(driver.finished());
    QCOMPARE(shown, QStringLiteral("abc"));
    QCOMPARE(dialog.let_FolderName->text(), QStringLiteral("abc"));
}

void tst_QZelFolderNameDialog::missingWidgetsAreLeftAlone()
{
    Probe dialog;
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    QLabel *label = std::exchange(dialog.lbl_FolderName, nullptr);
    QLineEdit *edit = std::exchange(dialog.let_FolderName, nullptr);
    dialog.setTitle(QStringLiteral("x"));
    dialog.setContent(QStringLiteral("y"));
    dialog.accept();
    dialog.lbl_FolderName = label;
    dialog.let_FolderName = edit;
    QCOMPARE(label->text(), QStringLiteral("folderName"));
    QCOMPARE(edit->text(), QString());
    QCOMPARE(accepted.count(), 0);
}

void tst_QZelFolderNameDialog::typedNameIsAccepted()
{
    Probe dialog;
    BoxWatcher watcher;
    ModalDriver driver;
    driver.on<QZelFolderNameDialog>([&](QZelFolderNameDialog *) {
        QTest::keyClicks(dialog.let_FolderName, QStringLiteral("a/b: *?"));
        Pointer(&dialog).click(middleOf(dialog.btn_Ok));
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(driver.finished());
    QCOMPARE(dialog.let_FolderName->text(), QStringLiteral("a/b: *?"));
    QCOMPARE(watcher.shown, 0);
}

void tst_QZelFolderNameDialog::blanksAreAccepted()
{
    Probe dialog;
    ModalDriver driver;
    driver.on<QZelFolderNameDialog>([&](QZelFolderNameDialog *) {
        QTest::keyClicks(dialog.let_FolderName, QStringLiteral("   "));
        dialog.btn_Ok->click();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(driver.finished());
    QCOMPARE(dialog.let_FolderName->text(), QStringLiteral("   "));
}

void tst_QZelFolderNameDialog::emptyNameLeavesTheDialogRunning()
{
    Probe dialog;
    QSignalSpy finished(&dialog, &QDialog::finished);
    bool stillRunning = false;
    bool boxLeft = true;
    ModalDriver driver;
    driver.on<QZelFolderNameDialog>(
            [&](QZelFolderNameDialog *) { Pointer(&dialog).click(middleOf(dialog.btn_Ok)); });
    // The next step comes through the dialog's own event loop.
    driver.on<QZelFolderNameDialog>([&](QZelFolderNameDialog *) {
        stillRunning = dialog.isVisible() && finished.isEmpty();
        boxLeft = aBoxIsThere();
        dialog.setContent(QStringLiteral("name"));
        dialog.btn_Ok->click();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(driver.finished());
    QVERIFY(stillRunning);
    QVERIFY(!boxLeft);
    QCOMPARE(finished.count(), 1);
}

void tst_QZelFolderNameDialog::emptyNameShowsABoxThatGoesAtOnce()
{
    Probe dialog;
    BoxWatcher watcher;
    dialog.show();
    dialog.btn_Ok->click();
    QCOMPARE(watcher.shown, 1);
    QVERIFY(!watcher.parent);
    QCOMPARE(watcher.text, QStringLiteral("addFailed"));
    QVERIFY(watcher.isError);
    QVERIFY(!aBoxIsThere());
    QVERIFY(!QApplication::activeModalWidget() || QApplication::activeModalWidget() == &dialog);
    QVERIFY(dialog.isVisible());
    dialog.btn_Ok->click();
    QCOMPARE(watcher.shown, 2);
    QVERIFY(!aBoxIsThere());
}

void tst_QZelFolderNameDialog::closeButtonRejects()
{
    Probe dialog;
    ModalDriver driver;
    driver.on<QZelFolderNameDialog>([&](QZelFolderNameDialog *) {
        dialog.setContent(QStringLiteral("abc"));
        Pointer(&dialog).click(middleOf(dialog.btn_Close));
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(driver.finished());
}

QTARNKIT_TEST_MAIN(tst_QZelFolderNameDialog)
#include "tst_QZelFolderNameDialog.moc"
