#include "dialogs/QUIMessageBox.h"

#include "common/HoverState.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QSpacerItem>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextOption>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int FormSpacing = 5;
constexpr QSize TitleSpacer(2000, 20);
constexpr int IconTitleSpacing = 2;
constexpr int ButtonSpacing = 20;
constexpr QMargins ButtonMargins(30, 15, 30, 15);
constexpr int TickInterval = 1000; // milliseconds

enum Type { Information = 1, Warning = 2, Error = 3, Question = 4, Custom = -1 };

QString iconPath(int type)
{
    switch (type) {
    case Information:
        return QStringLiteral(":/image/ok.png");
    case Warning:
        return QStringLiteral(":/image/waring.png");
    case Error:
        return QStringLiteral(":/image/error.png");
    default:
        return QStringLiteral(":/image/ask.png");
    }
}

QFlags<QTarnKit::MessageBoxStandardButton> buttonsOfType(int type)
{
    switch (type) {
    case Information:
    case Warning:
    case Error:
        return QTarnKit::Confirm;
    case Question:
        return QFlags<QTarnKit::MessageBoxStandardButton>(QTarnKit::Yes) | QTarnKit::No;
    default:
        return QTarnKit::NoButton;
    }
}

void hideInstance()
{
    QTarnKit::QUIMessageBox::Instance()->hide();
}

// A box that is still shown when QApplication ends crashes the process at exit. Where QApplication
// lives longer, in a static variable, the box is gone by then and must not be touched.
class HideWithApplication
{
public:
    HideWithApplication() { qAddPostRoutine(hideInstance); }
    ~HideWithApplication() { qRemovePostRoutine(hideInstance); }
    Q_DISABLE_COPY(HideWithApplication)
};

} // namespace

namespace QTarnKit {

QUIMessageBox::QUIMessageBox(QWidget *parent)
    : QDialog(parent)
{
    Init();
}

QUIMessageBox::~QUIMessageBox() = default;

QUIMessageBox *QUIMessageBox::Instance()
{
    static QUIMessageBox box;
    static const HideWithApplication hidesBox; // made after the box, so it goes before it
    return &box;
}

void QUIMessageBox::setMessage(const QString &text, int type, int countdown)
{
    startCountdown(countdown);
    SetStandardType(type);
    SetTitle(QString());
    SetText(text);
}

void QUIMessageBox::setMessage(const QString &title, const QString &text, int type, int countdown)
{
    startCountdown(countdown);
    SetTitle(title);
    SetText(text);
    SetStandardType(type);
}

void QUIMessageBox::setMessage(const QString &title, const QString &text,
                               const QStringList &buttons, int countdown)
{
    startCountdown(countdown);
    SetTitle(title);
    SetText(text);
    SetStandardType(Custom);
    SetCustButtons(buttons);
}

void QUIMessageBox::SetText(const QString &text)
{
    txtInfo->setText(text);
}

void QUIMessageBox::SetTitle(const QString &title)
{
    labTitle->setText(title);
}

void QUIMessageBox::SetStandardType(int type)
{
    labIco->setPixmap(QPixmap(iconPath(type)));
    SetStandardButtons(buttonsOfType(type));
}

void QUIMessageBox::SetStandardButtons(QFlags<MessageBoxStandardButton> buttons)
{
    // testFlag() asks for all bits of a flag; each of these has one.
    const bool any = !buttons.testFlag(NoButton);
    btnOk->setVisible(any && buttons.testFlag(Confirm));
    btnCancel->setVisible(any && buttons.testFlag(Cancel));
    btnYes->setVisible(any && buttons.testFlag(Yes));
    btnNo->setVisible(any && buttons.testFlag(No));
}

void QUIMessageBox::SetCustButtons(const QStringList &texts)
{
    ClearCustButtons();
    auto *layout = qobject_cast<QHBoxLayout *>(widgetBtns->layout());
    if (!layout)
        return;

    for (int i = 0; i < texts.size(); ++i) {
        auto *button = new QPushButton(widgetBtns);
        button->setText(texts.at(i));
        layout->insertWidget(layout->count() - 1, button); // before the trailing spacer
        connect(button, &QAbstractButton::clicked, button, [this, i] { onCustomClicked(i); });
        custButtons.append(button);
    }
}

void QUIMessageBox::ClearCustButtons()
{
    custIndex = -1;
    QLayout *layout = widgetBtns->layout();
    if (!layout)
        return;

    for (QPushButton *button : qAsConst(custButtons)) {
        layout->removeWidget(button);
        // Out of sight at once, but deleted later: one of them may be emitting right now.
        button->hide();
        button->deleteLater();
    }
    custButtons.clear();
}

int QUIMessageBox::CustBtIndex()
{
    return 0;
}

// The drag state is one for all boxes: there is only one pointer.
bool QUIMessageBox::eventFilter(QObject *watched, QEvent *event)
{
    static bool mousePressed = false;
    static QPoint mousePoint;

    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto *press = static_cast<QMouseEvent *>(event);
        if (press->button() != Qt::LeftButton)
            break;
        mousePressed = true;
        mousePoint = press->screenPos().toPoint() - pos();
        return true;
    }
    case QEvent::MouseButtonRelease:
        mousePressed = false;
        return true;
    case QEvent::MouseMove: {
        const auto *move = static_cast<QMouseEvent *>(event);
        if (!mousePressed || move->buttons() == Qt::NoButton)
            break;
        this->move(move->screenPos().toPoint() - mousePoint);
        return true;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void QUIMessageBox::Init()
{
    setFixedSize(boxWidth, boxHeight);
    // No window type: a box with a parent lies inside it, one without is a window of its own.
    setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    initForm();
    setWindowModality(Qt::ApplicationModal);

    closeSec = currentSec = 0;
    auto *timer = new QTimer(this);
    timer->setInterval(TickInterval);
    connect(timer, SIGNAL(timeout()), this, SLOT(checkSec()));
    timer->start();

    installEventFilter(this);
}

void QUIMessageBox::initForm()
{
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(FormSpacing);
    layout->setContentsMargins(0, 0, 0, 0);

    widgetTitle = InitTitleBar();
    widgetTitle->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    layout->addWidget(widgetTitle);

    layout->addWidget(InitIconTitle(), 0, Qt::AlignCenter);

    txtInfo = new QTextEdit(this);
    txtInfo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    txtInfo->setFrameShape(QFrame::NoFrame);
    txtInfo->setReadOnly(true);
    QTextOption centred = txtInfo->document()->defaultTextOption();
    centred.setAlignment(Qt::AlignCenter);
    txtInfo->document()->setDefaultTextOption(centred);
    layout->addWidget(txtInfo);

    widgetBtns = InitBtns();
    widgetBtns->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    layout->addWidget(widgetBtns);
}

QWidget *QUIMessageBox::InitTitleBar()
{
    auto *strip = new QWidget(this);
    auto *layout = new QHBoxLayout(strip);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addItem(new QSpacerItem(TitleSpacer.width(), TitleSpacer.height(),
                                    QSizePolicy::Expanding, QSizePolicy::Minimum));

    auto *button = new QPushButton(strip);
    button->setObjectName(QStringLiteral("closeBtn"));
    layout->addWidget(button);
    connect(button, &QAbstractButton::clicked, this, [this, button] { onCloseClicked(button); });
    return strip;
}

QWidget *QUIMessageBox::InitIconTitle()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setSpacing(IconTitleSpacing);
    layout->setContentsMargins(0, 0, 0, 0);

    labIco = new QLabel(this);
    labIco->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    layout->addWidget(labIco);

    labTitle = new QLabel(row);
    layout->addWidget(labTitle);
    return row;
}

QWidget *QUIMessageBox::InitBtns()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setSpacing(ButtonSpacing);
    layout->setContentsMargins(ButtonMargins);
    layout->setAlignment(Qt::AlignHCenter);

    // Not tr(): inside the namespace its context would hold the namespace.
    btnOk = createStandardButton(row, QCoreApplication::translate("QUIMessageBox", "Confirm"),
                                 &QDialog::accept);
    btnCancel = createStandardButton(row, QCoreApplication::translate("QUIMessageBox", "Cancel"),
                                     &QDialog::reject);
    btnYes = createStandardButton(row, QCoreApplication::translate("QUIMessageBox", "Yes"),
                                  &QDialog::accept);
    btnNo = createStandardButton(row, QCoreApplication::translate("QUIMessageBox", "No"),
                                 &QDialog::reject);

    layout->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
    layout->addWidget(btnOk);
    layout->addWidget(btnCancel);
    layout->addWidget(btnYes);
    layout->addWidget(btnNo);
    layout->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
    return row;
}

void QUIMessageBox::checkSec()
{
    if (closeSec == 0)
        return;
    if (closeSec <= currentSec)
        close();
    else
        ++currentSec;
}

// Not QDialog's: that would reject, and with it end exec() a second time.
void QUIMessageBox::closeEvent(QCloseEvent *event)
{
    Q_UNUSED(event)
    closeSec = 0;
    currentSec = 0;
}

void QUIMessageBox::startCountdown(int seconds)
{
    closeSec = seconds;
    currentSec = 0;
    checkSec();
}

QPushButton *QUIMessageBox::createStandardButton(QWidget *row, const QString &text,
                                                 void (QDialog::*end)())
{
    auto *button = new QPushButton(row);
    button->setText(text);
    connect(button, &QAbstractButton::clicked, button, [this, button, end] {
        HoverState::clear(button);
        (this->*end)();
    });
    return button;
}

void QUIMessageBox::onCloseClicked(QPushButton *button)
{
    const QPointer<QUIMessageBox> self(this);
    Q_EMIT CustBtnClicked(-1);
    if (!self) // a receiver deleted the box
        return;
    HoverState::clear(button);
    close();
}

void QUIMessageBox::onCustomClicked(int index)
{
    custIndex = index;
    Q_EMIT CustBtnClicked(index);
}

} // namespace QTarnKit
