#include "dialogs/QZelDialog.h"

#include "common/HoverState.h"
#include "common/TitleDrag.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>

#include <new>

namespace {

constexpr int TitleBarHeight = 32;
constexpr QMargins TitleBarMargins(10, 0, 10, 0);
constexpr int TitleBarSpacing = 5;
constexpr QSize CloseButtonSize(25, 25);
constexpr QSize MaxButtonSize(28, 28);

constexpr int BottomHeight = 32;
constexpr QMargins BottomMargins(0, 0, 10, 0);
constexpr int BottomSpacing = 6;
constexpr QSize BottomButtonMinimumSize(80, 24);

constexpr int ContainerIndex = 1; // below the title strip

QString bottomName()
{
    return QStringLiteral("wgt_Bottom");
}

} // namespace

QZelDialog::QZelDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setWindowModality(Qt::WindowModal);
    InitCtrls();
    connectButtons();
}

QZelDialog::~QZelDialog() = default;

void QZelDialog::SetTitle(const QString &title)
{
    if (lbl_Title)
        lbl_Title->setText(title);
}

void QZelDialog::Resize(int x, int y, int w, int h)
{
    Q_UNUSED(x)
    Q_UNUSED(y)
    resize(w, h);
}

void QZelDialog::ShowBtn(bool showOk, bool showCancel)
{
    if (btn_Ok)
        btn_Ok->setVisible(showOk);
    if (btn_Cancel)
        btn_Cancel->setVisible(showCancel);
    // Never shown again here: a dialog that has given up its row keeps its height.
    if (!showOk && !showCancel && wgt_Bottom)
        wgt_Bottom->hide();
}

void QZelDialog::SetContainer(QWidget *container)
{
    if (container && mainLayout)
        mainLayout->insertWidget(ContainerIndex, container);
}

void QZelDialog::SetBottom(QWidget *bottom)
{
    if (!bottom || bottom == wgt_Bottom)
        return;

    bottom->setObjectName(bottomName());
    // First out of the old row, in case it was a part of it.
    bottom->setParent(this);
    if (wgt_Bottom) {
        mainLayout->removeWidget(wgt_Bottom);
        delete wgt_Bottom;
    }
    wgt_Bottom = nullptr;
    btn_Ok = nullptr;
    btn_Cancel = nullptr;
    mainLayout->addWidget(bottom);
    update();
}

void QZelDialog::SetBtnText(QString okText, QString cancelText)
{
    if (btn_Ok) {
        btn_Ok->setText(okText);
        btn_Ok->adjustSize();
    }
    if (btn_Cancel) {
        btn_Cancel->setText(cancelText);
        btn_Cancel->adjustSize();
    }
}

void QZelDialog::ShowMaxBtn()
{
    if (btn_Max)
        btn_Max->setVisible(true);
}

void QZelDialog::SetBtnEnabled(bool enabled)
{
    if (btn_Ok)
        btn_Ok->setEnabled(enabled);
}

bool QZelDialog::PreAccept()
{
    return true;
}

bool QZelDialog::PreClose()
{
    return true;
}

void QZelDialog::InitCtrls()
{
    createTitleBar();
    createBottomRow();

    mainLayout = new QVBoxLayout;
    mainLayout->setContentsMargins(0, 0, 0, 0);
    mainLayout->setSpacing(0);
    mainLayout->addWidget(wgt_TitleBar);
    mainLayout->addWidget(wgt_Bottom);
    setLayout(mainLayout);
}

bool QZelDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == wgt_TitleBar && event
        && TitleDrag::handleEvent(this, event, isPressed, dragOffset,
                                  TitleDrag::Bounds::AvailableArea))
        return true;
    return QObject::eventFilter(watched, event);
}

// The widgets are allocated without throwing: a device that runs out of memory gets a dialog with a
// part missing, and the operations on that part do nothing.
void QZelDialog::createTitleBar()
{
    btn_Close = new (std::nothrow) QPushButton(this);
    if (btn_Close) {
        btn_Close->setFixedSize(CloseButtonSize);
        btn_Close->setObjectName(QStringLiteral("btn_Close"));
        btn_Close->setFocusPolicy(Qt::NoFocus);
    }

    btn_Max = new (std::nothrow) QToolButton(this);
    if (btn_Max) {
        btn_Max->setFixedSize(MaxButtonSize);
        btn_Max->setObjectName(QStringLiteral("btn_Max"));
        btn_Max->setVisible(false);
        btn_Max->setFocusPolicy(Qt::NoFocus);
    }

    lbl_Title = new (std::nothrow) QLabel(this);
    if (lbl_Title) {
        lbl_Title->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        lbl_Title->setFixedHeight(TitleBarHeight);
    }

    wgt_TitleBar = new (std::nothrow) QWidget(this);
    if (!wgt_TitleBar)
        return;
    auto *layout = new QHBoxLayout;
    layout->setContentsMargins(TitleBarMargins);
    layout->setSpacing(TitleBarSpacing);
    layout->addWidget(lbl_Title);
    layout->addWidget(btn_Max);
    layout->addWidget(btn_Close);
    wgt_TitleBar->setLayout(layout);
    wgt_TitleBar->setFixedHeight(TitleBarHeight);
    wgt_TitleBar->setFocusPolicy(Qt::ClickFocus);
    wgt_TitleBar->setObjectName(QStringLiteral("wgt_TitleBar"));
    wgt_TitleBar->installEventFilter(this);
}

void QZelDialog::createBottomRow()
{
    wgt_Bottom = new (std::nothrow) QWidget(this);
    if (!wgt_Bottom)
        return;
    wgt_Bottom->setFixedHeight(BottomHeight);
    wgt_Bottom->setObjectName(bottomName());

    btn_Ok = createBottomButton(tr("Confirm"));
    btn_Cancel = createBottomButton(tr("Cancel"));

    auto *layout = new QHBoxLayout(wgt_Bottom);
    layout->setContentsMargins(BottomMargins);
    layout->setSpacing(BottomSpacing);
    layout->addStretch(0);
    layout->addWidget(btn_Ok);
    layout->addWidget(btn_Cancel);
}

QPushButton *QZelDialog::createBottomButton(const QString &text)
{
    auto *button = new (std::nothrow) QPushButton(wgt_Bottom);
    if (button) {
        button->setText(text);
        button->setMinimumSize(BottomButtonMinimumSize);
        button->setFocusPolicy(Qt::NoFocus);
    }
    return button;
}

void QZelDialog::connectButtons()
{
    connect(btn_Close, &QAbstractButton::clicked, this, &QZelDialog::onCloseClicked);
    connect(btn_Max, &QAbstractButton::clicked, this, &QZelDialog::onMaxClicked);
    if (wgt_Bottom) {
        connect(btn_Ok, &QAbstractButton::clicked, this, &QZelDialog::onOkClicked);
        connect(btn_Cancel, &QAbstractButton::clicked, this, &QZelDialog::onCancelClicked);
    }
}

void QZelDialog::onCloseClicked()
{
    HoverState::clear(btn_Close);
    if (PreClose())
        close();
}

void QZelDialog::onMaxClicked()
{
    HoverState::clear(btn_Max);
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;

    isMaximized = !isMaximized;
    if (isMaximized) {
        normalGeometry = geometry();
        setGeometry(screen->geometry());
    } else {
        setGeometry(normalGeometry);
    }
    btn_Max->setProperty("windowState",
                         isMaximized ? QStringLiteral("maximized") : QStringLiteral("normal"));
    // A style sheet's rules are matched anew only when the button is polished again.
    btn_Max->style()->unpolish(btn_Max);
    btn_Max->style()->polish(btn_Max);
    btn_Max->update();
}

void QZelDialog::onOkClicked()
{
    HoverState::clear(btn_Ok);
    if (PreAccept())
        accept();
}

// Asks neither hook: Cancel always works.
void QZelDialog::onCancelClicked()
{
    HoverState::clear(btn_Cancel);
    close();
}
