#include "Scenes.h"

#include "Reporter.h"

#include <QTarnKit/QTitleBar.h>
#include <QTarnKit/QUIMessageBox.h>
#include <QTarnKit/QZelBaseWindows.h>
#include <QTarnKit/QZelDialog.h>
#include <QTarnKit/QZelEncDialog.h>
#include <QTarnKit/QZelFileDialog.h>
#include <QTarnKit/QZelFileManagerWidget.h>
#include <QTarnKit/QZelFolderNameDialog.h>
#include <QTarnKit/QZelIntSpinBox.h>
#include <QTarnKit/QZelPwdInputDialog.h>

#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <functional>
#include <utility>

namespace {

constexpr QRect OwnerRect(150, 120, 700, 500);
constexpr QRect BaseRect(300, 200, 400, 300);
constexpr QSize BaseMinimumSize(200, 150);
constexpr QPoint DialogPosition(120, 90);

// What no other window owns, in the order in which it was opened.
QWidgetList &roots()
{
    static QWidgetList widgets;
    return widgets;
}

QString folder()
{
    return QStringLiteral("/root/zeltempfiles/ftp/");
}

QString filters()
{
    return QStringLiteral("Text (*.txt);;All (*)");
}

// A window with one button, which opens what the scene is about.
void openOwner(const std::function<void(QWidget *)> &open)
{
    auto *owner = new QWidget;
    roots().append(owner);
    owner->setObjectName(QStringLiteral("owner"));
    auto *layout = new QVBoxLayout(owner);
    auto *button = new QPushButton(QStringLiteral("Open"));
    layout->addWidget(button);
    layout->addStretch();
    QObject::connect(button, &QPushButton::clicked, owner, [owner, open] { open(owner); });
    owner->setGeometry(OwnerRect);
    owner->show();
}

// Framebuffer platforms drop pointer events that hit no window at all, even during a drag. On the
// device the application's own window lies behind everything.
void openBackdrop()
{
    auto *backdrop = new QWidget(nullptr, Qt::FramelessWindowHint);
    roots().append(backdrop);
    backdrop->setObjectName(QStringLiteral("backdrop"));
    backdrop->setGeometry(QGuiApplication::primaryScreen()->geometry());
    backdrop->show();
}

void openDialog(QDialog *dialog)
{
    QObject::connect(dialog, &QDialog::finished, dialog, [](int result) {
        Reporter::tell(QStringLiteral("finished"), { { QStringLiteral("result"), result } });
    });
    dialog->move(DialogPosition);
    dialog->show();
}

void openBase()
{
    auto *window = new QZelBaseWindows;
    roots().append(window);
    window->setAttribute(Qt::WA_Hover);
    window->setMinimumSize(BaseMinimumSize);
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    auto *title = new QLabel(QStringLiteral("Title"));
    title->setObjectName(QStringLiteral("title"));
    layout->addWidget(title);
    layout->addStretch();
    window->setCentralWidget(content);
    window->setTitleBar(title);
    QObject::connect(window, &QZelBaseWindows::titleDblClick, window, [window] {
        Reporter::tell(QStringLiteral("titleDblClick"));
        window->isMaximized() ? window->showNormal() : window->showMaximized();
    });
    QObject::connect(window, &QZelBaseWindows::windowStateChange, window, [](bool changed) {
        Reporter::tell(QStringLiteral("windowStateChange"),
                       { { QStringLiteral("changed"), changed } });
    });
    window->setGeometry(BaseRect);
    window->show();
}

void openTitleBar()
{
    auto *window = new QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint);
    roots().append(window);
    window->setObjectName(QStringLiteral("strip"));
    auto *layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *bar = new QTitleBar(window);
    bar->SetTitle(QStringLiteral("Title"));
    layout->addWidget(bar);
    layout->addStretch();
    QObject::connect(bar, &QTitleBar::SIG_CloseWindow, window,
                     [] { Reporter::tell(QStringLiteral("closeClicked")); });
    window->setGeometry(BaseRect);
    window->show();
}

void openShell(QWidget *owner)
{
    auto *dialog = new QZelDialog(owner);
    dialog->SetTitle(QStringLiteral("Shell"));
    dialog->ShowMaxBtn();
    dialog->SetContainer(new QLineEdit);
    dialog->Resize(0, 0, 360, 200);
    openDialog(dialog);
}

void openSetPassword(QWidget *owner)
{
    auto *dialog = new QZelEncDialog(owner);
    QObject::connect(dialog, &QDialog::accepted, dialog, [dialog] {
        Reporter::tell(QStringLiteral("passwordSet"),
                       { { QStringLiteral("password"), dialog->let_Pwd->text() } });
    });
    openDialog(dialog);
}

void openPasswordInput(QWidget *owner)
{
    auto *dialog = new QZelPwdInputDialog(owner);
    QObject::connect(dialog, &QZelPwdInputDialog::passwordEntered, dialog,
                     [](const QString &password) {
                         Reporter::tell(QStringLiteral("passwordEntered"),
                                        { { QStringLiteral("password"), password } });
                     });
    openDialog(dialog);
}

void openFolderName(QWidget *owner)
{
    openDialog(new QZelFolderNameDialog(owner));
}

void openFileDialog(QWidget *owner)
{
    openDialog(new QZelFileDialog(owner, QStringLiteral("Open"), folder(), filters(),
                                  QZelFileDialog::OpenFile));
}

void openFileManager(QWidget *owner)
{
    openDialog(new QZelFileManagerWidget(owner));
}

void openMessage(QWidget *)
{
    auto *box = new QTarnKit::QUIMessageBox;
    roots().append(box);
    box->setMessage(QStringLiteral("Title"), QStringLiteral("Text"), 4, 0);
    openDialog(box);
}

void openSpinBox()
{
    auto *window = new QWidget;
    roots().append(window);
    window->setObjectName(QStringLiteral("owner"));
    auto *layout = new QVBoxLayout(window);
    auto *other = new QLineEdit;
    other->setObjectName(QStringLiteral("other"));
    layout->addWidget(other);
    layout->addWidget(new QTarnKit::QZelIntSpinBox);
    layout->addStretch();
    window->setGeometry(OwnerRect);
    window->show();
}

// What an application does to save a document: ask where, then write there.
void save(QWidget *owner)
{
    QString filter;
    QString password;
    const QString path = QZelFileDialog::getSaveFileName(owner, QStringLiteral("Save"), folder(),
                                                         filters(), &filter, true, &password);
    if (!path.isEmpty()) {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write("saved\n");
    }
    Reporter::tell(QStringLiteral("saved"), { { QStringLiteral("path"), path },
                                              { QStringLiteral("filter"), filter },
                                              { QStringLiteral("password"), password } });
}

// The windows without an owner, and the dialogs that the owner's button opens.
constexpr std::pair<const char *, void (*)()> Windows[] = {
    { "base", openBase },
    { "titlebar", openTitleBar },
    { "spinbox", openSpinBox },
};
constexpr std::pair<const char *, void (*)(QWidget *)> Dialogs[] = {
    { "shell", openShell },
    { "setpassword", openSetPassword },
    { "password", openPasswordInput },
    { "foldername", openFolderName },
    { "filedialog", openFileDialog },
    { "filemanager", openFileManager },
    { "message", openMessage },
    { "save", save },
};

} // namespace

QStringList Scenes::names()
{
    QStringList names;
    for (const auto &scene : Windows)
        names.append(QLatin1String(scene.first));
    for (const auto &scene : Dialogs)
        names.append(QLatin1String(scene.first));
    return names;
}

bool Scenes::open(const QString &name)
{
    if (QGuiApplication::platformName() == QLatin1String("vnc"))
        openBackdrop();
    for (const auto &scene : Windows) {
        if (name == QLatin1String(scene.first)) {
            scene.second();
            return true;
        }
    }
    for (const auto &scene : Dialogs) {
        if (name == QLatin1String(scene.first)) {
            openOwner(scene.second);
            return true;
        }
    }
    return false;
}

void Scenes::close()
{
    qDeleteAll(roots());
    roots().clear();
}
