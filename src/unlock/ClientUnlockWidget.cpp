#include "unlock/ClientUnlockWidget.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr int NoticeWidth = 300;
constexpr int NoticeMinimumHeight = 150;
constexpr int TitleHeight = 30;
constexpr int TitleMargin = 4;
constexpr int RowMargin = 10;

QHBoxLayout *createRow()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    row->setContentsMargins(RowMargin, RowMargin, RowMargin, RowMargin);
    return row;
}

} // namespace

ClientUnlockWidget::ClientUnlockWidget(QWidget *parent)
    : QWidget(parent)
{
    setWindowModality(Qt::ApplicationModal);
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_StyledBackground, true);
    Init();
    InitConnect();
}

ClientUnlockWidget::~ClientUnlockWidget() = default;

void ClientUnlockWidget::setIp(QString ip)
{
    this->ip = ip;
    updateMessage();
}

void ClientUnlockWidget::retranslateUi()
{
    titleLabel->setText(tr("Client Unlock"));
    updateMessage();
    unlockButton->setText(tr("Unlock"));
}

void ClientUnlockWidget::ModalShow()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen || screen->geometry().isNull()) {
        showPending = true;
        return;
    }
    adjustSize();
    show();
    showPending = false;
}

void ClientUnlockWidget::TryShow()
{
    if (showPending)
        ModalShow();
}

void ClientUnlockWidget::Init()
{
    setFixedWidth(NoticeWidth);
    setMinimumHeight(NoticeMinimumHeight);
    auto *layout = new QVBoxLayout(this);

    titleWidget = new QWidget(this);
    titleWidget->setFixedSize(NoticeWidth, TitleHeight);
    InitTitleBar();
    layout->addWidget(titleWidget);

    QHBoxLayout *messageRow = createRow();
    iconLabel = new QLabel(this);
    iconLabel->setPixmap(QPixmap(QStringLiteral(":/Apps.Style/Apps.Style.Resources/ask.png")));
    iconLabel->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    msgLabel = new QLabel(this);
    msgLabel->setWordWrap(true);
    messageRow->addWidget(iconLabel);
    messageRow->addWidget(msgLabel);
    layout->addLayout(messageRow);

    QHBoxLayout *buttonRow = createRow();
    unlockButton = new QPushButton(this);
    unlockButton->setText(tr("Unlock"));
    buttonRow->addWidget(unlockButton);
    layout->addLayout(buttonRow);
}

void ClientUnlockWidget::InitTitleBar()
{
    auto *layout = new QHBoxLayout;
    layout->setSpacing(0);
    layout->setContentsMargins(TitleMargin, TitleMargin, TitleMargin, TitleMargin);
    titleLabel = new QLabel(titleWidget);
    titleLabel->setText(tr("Client Unlock"));
    titleLabel->setAlignment(Qt::AlignLeft);
    layout->addWidget(titleLabel);
    titleWidget->setLayout(layout);
}

void ClientUnlockWidget::InitConnect()
{
    connect(unlockButton, &QAbstractButton::clicked, this, &ClientUnlockWidget::Sig_UnlockClicked);
}

void ClientUnlockWidget::closeEvent(QCloseEvent *event)
{
    showPending = false;
    QWidget::closeEvent(event);
}

void ClientUnlockWidget::updateMessage()
{
    msgLabel->setText(tr("Client is unlocked,Please unlock") + QLatin1Char('\n')
                      + tr("Preempt machine ip:") + ip);
    msgLabel->adjustSize();
}
