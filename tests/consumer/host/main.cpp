// Each spelling that a header can be included by.
#include <ClientUnlockWidget>
#include <ColumnToolTipDelegate>
#include <CustomProgressBar>
#include <DirItemStyledDelegate.h>
#include <QTarnKit/QTitleBar>
#include <QTarnKit/QUIMessageBox.h>
#include <QTarnKit/QZelBaseWindows.h>
#include <QTarnKit/QZelIntSpinBox>
#include <QWaitingDialog.h>
#include <QZelDialog.h>
#include <QZelEncDialog>
#include <QZelFileDialog.h>
#include <QZelFileManagerWidget>
#include <QZelFolderNameDialog.h>
#include <QZelPwdInputDialog.h>

#include "HostForm.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTimer>
#include <QTreeView>

#include <cstdio>

int qInitResources_QTarnKit();
int qCleanupResources_QTarnKit();

namespace {

int failures = 0;

void check(bool passed, const char *what)
{
    if (!passed) {
        std::fprintf(stderr, "failed: %s\n", what);
        ++failures;
    }
}
#define CHECK(condition) check(condition, #condition)

class MainWindow : public QZelBaseWindows
{
public:
    MainWindow() { setTitleBar(new QTitleBar(this)); }
    QWidget *strip() const { return titleBar; }
};

class Shell : public QZelDialog
{
public:
    Shell()
        : QZelDialog(nullptr)
    {
        SetContainer(new QWidget(this));
        SetTitle(QStringLiteral("shell"));
    }
    bool PreAccept() override { return ++asked > 1; }
    void confirm() { btn_Ok->click(); }
    QString title() const { return lbl_Title->text(); }

    int asked = 0;
};

class Bar : public ProgressBar
{
public:
    Bar()
        : ProgressBar(nullptr)
    {}
    int shown() const { return value; }
};

void checkFrame()
{
    MainWindow window;
    CHECK(window.windowFlags() & Qt::FramelessWindowHint);
    CHECK(qobject_cast<QTitleBar *>(window.strip()));
    CHECK(window.strip()->minimumSizeHint() == QSize(200, 25));
}

void checkDialogs()
{
    Shell shell;
    CHECK(shell.title() == QLatin1String("shell"));
    shell.show();
    shell.confirm();
    CHECK(shell.isVisible());
    shell.confirm();
    CHECK(shell.result() == QDialog::Accepted);

    QZelEncDialog setPassword(nullptr);
    CHECK(setPassword.let_Pwd->maxLength() == 15);

    QZelPwdInputDialog password(nullptr);
    QString entered;
    QObject::connect(&password, &QZelPwdInputDialog::passwordEntered, &password,
                     [&entered](const QString &text) { entered = text; });
    password.let_Pwd->setText(QStringLiteral("abc"));
    password.accept();
    CHECK(entered == QLatin1String("abc"));

    QZelFolderNameDialog name(nullptr);
    name.setContent(QStringLiteral("folder"));
    CHECK(name.let_FolderName->text() == QLatin1String("folder"));

    QTarnKit::QZelIntSpinBox spinBox;
    spinBox.SetValue(150);
    CHECK(spinBox.Value() == 100);
}

void checkMessageBox()
{
    QTarnKit::QUIMessageBox box;
    box.setMessage(QStringLiteral("title"), QStringLiteral("text"), 4, 0);
    QTimer::singleShot(0, &box, &QDialog::accept);
    CHECK(box.exec() == QDialog::Accepted);
    CHECK(QTarnKit::QUIMessageBox::Instance() == QTarnKit::QUIMessageBox::Instance());
    CHECK(int(QTarnKit::Yes | QTarnKit::No) == 0x110);
}

void checkFileDialog()
{
    QZelFileDialog dialog(nullptr, QStringLiteral("Open"), QStringLiteral("/usr/"),
                          QStringLiteral("Text (*.txt);;All (*)"), QZelFileDialog::OpenFile);
    CHECK(dialog.getSelectedFilter() == QLatin1String("Text (*.txt)"));
    CHECK(dialog.isParentPath(QStringLiteral("/"), QStringLiteral("/usr")));

    QStandardItemModel model(1, 1);
    QTreeView view;
    view.setModel(&model);
    view.setItemDelegate(new DirItemStyledDelegate(&view));
    CHECK(!view.itemDelegate()->sizeHint({}, model.index(0, 0)).isValid());
    view.setItemDelegate(new ColumnToolTipDelegate(&view));
    CHECK(dynamic_cast<ColumnToolTipDelegate *>(view.itemDelegate()));
    const auto listing = dialog.findChild<QTreeView *>(QStringLiteral("treeV_FileList"));
    CHECK(dynamic_cast<ColumnToolTipDelegate *>(listing->itemDelegate()));
}

void checkProgress()
{
    QWaitingDialog waiting(nullptr);
    waiting.setProgressBarVisiable(false);
    waiting.setTipMessage(QStringLiteral("wait"));
    CHECK(waiting.findChild<QLabel *>(QStringLiteral("infoLabel"))->text() == QLatin1String("wait"));

    // ProgressBar comes with the waiting dialog's header.
    Bar bar;
    bar.setValue(150);
    CHECK(bar.shown() == 100);

    CustomProgressBar progress(nullptr);
    progress.SetProgress(50);
    CHECK(progress.isVisible());

    ClientUnlockWidget notice(nullptr);
    notice.ModalShow();
    CHECK(notice.isVisible());
}

void checkForms()
{
    QZelFileManagerWidget manager(nullptr);
    CHECK(Ui_Form::uses == 0);
    CHECK(manager.findChild<QPushButton *>(QStringLiteral("btn_UpPage")));

    QWidget window;
    Ui_Form form;
    form.setupUi(&window);
    CHECK(Ui_Form::uses == 1);
    CHECK(form.hostLabel->parent() == &window);
}

void checkResources()
{
    const QString icon = QStringLiteral(":/image/ic_loading.png");
    CHECK(QFile::exists(icon));
    CHECK(qCleanupResources_QTarnKit() == 1);
    CHECK(!QFile::exists(icon));
    CHECK(qInitResources_QTarnKit() == 1);
    CHECK(QFile::exists(icon));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    checkResources();
    checkFrame();
    checkDialogs();
    checkMessageBox();
    checkFileDialog();
    checkProgress();
    checkForms();
    return failures == 0 ? 0 : 1;
}
