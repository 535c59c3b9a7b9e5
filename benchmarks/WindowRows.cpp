#include "EventLoop.h"
#include "Row.h"

#include <QUIMessageBox.h>
#include <QWaitingDialog.h>
#include <QZelBaseWindows.h>
#include <QZelEncDialog.h>
#include <QZelFolderNameDialog.h>
#include <QZelIntSpinBox.h>

#include <QInputDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QProgressDialog>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

using WindowMaker = std::function<std::unique_ptr<QWidget>()>;

// Construct, show and first paint of a window.
class ShowWindow : public Task
{
public:
    ShowWindow(Side side, const WindowMaker &ours, const WindowMaker &stock)
        : construct(side == Side::Ours ? ours : stock)
    {}

    void prepare() override
    {
        window.reset();
        EventLoop::settle();
    }

    void work() override
    {
        window = construct();
        EventLoop::settle();
    }

private:
    WindowMaker construct;
    std::unique_ptr<QWidget> window;
};

QString title()
{
    return QStringLiteral("Delete");
}

QString text()
{
    return QStringLiteral("Delete this record and everything that belongs to it?");
}

std::unique_ptr<QWidget> ourMessageBox()
{
    auto box = std::make_unique<QTarnKit::QUIMessageBox>();
    box->setMessage(title(), text(), 4, 0);
    box->show();
    return box;
}

std::unique_ptr<QWidget> stockMessageBox()
{
    auto box = std::make_unique<QMessageBox>(QMessageBox::Question, title(), text(),
                                             QMessageBox::Yes | QMessageBox::No);
    box->show();
    return box;
}

std::unique_ptr<QWidget> ourWaitingDialog()
{
    auto dialog = std::make_unique<QWaitingDialog>(nullptr);
    dialog->setTipMessage(text());
    dialog->showWaitingDialog();
    return dialog;
}

std::unique_ptr<QWidget> stockWaitingDialog()
{
    auto dialog = std::make_unique<QProgressDialog>(text(), QString(), 0, 100);
    dialog->setMinimumDuration(0);
    dialog->setValue(50);
    dialog->show();
    return dialog;
}

std::unique_ptr<QWidget> ourPasswordDialog()
{
    auto dialog = std::make_unique<QZelEncDialog>(nullptr);
    dialog->show();
    return dialog;
}

std::unique_ptr<QWidget> stockInput(QLineEdit::EchoMode mode)
{
    auto dialog = std::make_unique<QInputDialog>();
    dialog->setInputMode(QInputDialog::TextInput);
    dialog->setLabelText(QStringLiteral("Name"));
    dialog->setTextEchoMode(mode);
    dialog->show();
    return dialog;
}

std::unique_ptr<QWidget> ourNameDialog()
{
    auto dialog = std::make_unique<QZelFolderNameDialog>(nullptr);
    dialog->setTitle(QStringLiteral("Name"));
    dialog->show();
    return dialog;
}

std::unique_ptr<QWidget> shown(std::unique_ptr<QWidget> window)
{
    window->resize(800, 600);
    window->show();
    return window;
}

std::unique_ptr<QWidget> ourBaseWindow()
{
    return shown(std::make_unique<QZelBaseWindows>());
}

std::unique_ptr<QWidget> stockBaseWindow()
{
    return shown(std::make_unique<QMainWindow>(nullptr, Qt::FramelessWindowHint));
}

// A form whose first field has the focus: the slider of ours floats only while its own box has it.
std::unique_ptr<QWidget> shownForm(QWidget *box)
{
    auto form = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(form.get());
    layout->addWidget(new QLineEdit);
    layout->addWidget(box);
    form->show();
    return form;
}

std::unique_ptr<QWidget> ourSpinBox()
{
    auto *box = new QTarnKit::QZelIntSpinBox;
    box->SetRange(0, 30);
    box->SetValue(12);
    return shownForm(box);
}

std::unique_ptr<QWidget> stockSpinBox()
{
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *spinBox = new QSpinBox;
    auto *slider = new QSlider(Qt::Horizontal);
    layout->addWidget(spinBox);
    layout->addWidget(slider);
    QObject::connect(spinBox, QOverload<int>::of(&QSpinBox::valueChanged), slider,
                     &QAbstractSlider::setValue);
    QObject::connect(slider, &QAbstractSlider::valueChanged, spinBox, &QSpinBox::setValue);
    slider->setRange(0, 30);
    spinBox->setRange(0, 30);
    spinBox->setValue(12);
    return shownForm(box);
}

} // namespace

Rows windowRows()
{
    struct Window
    {
        const char *name;
        const char *title;
        double goal;
        WindowMaker ours;
        WindowMaker stock;
    };
    const Window windows[] = {
        { "show-message-box", "message box", 0.8, ourMessageBox, stockMessageBox },
        { "show-waiting-dialog", "waiting dialog", 0.7, ourWaitingDialog, stockWaitingDialog },
        { "show-password-dialog", "set-password dialog", 2.0, ourPasswordDialog,
          [] { return stockInput(QLineEdit::Password); } },
        { "show-name-dialog", "name dialog", 1.0, ourNameDialog,
          [] { return stockInput(QLineEdit::Normal); } },
        { "show-base-window", "base window", 0.6, ourBaseWindow, stockBaseWindow },
        { "show-spin-box", "form with a spin box and its slider", 0.9, ourSpinBox, stockSpinBox },
    };
    Rows rows;
    for (const Window &window : windows) {
        Row row;
        row.name = QLatin1String(window.name);
        row.title = QStringLiteral("Construct, show, first paint: ") + QLatin1String(window.title);
        row.goal = window.goal;
        row.pairs = 21;
        row.inner = 5;
        row.counted = 10;
        row.make = makerOf<ShowWindow>(window.ours, window.stock);
        rows.push_back(row);
    }
    return rows;
}
