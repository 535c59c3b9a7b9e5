#include "UnlockPage.h"

#include "ControlPanel.h"

#include <ClientUnlockWidget.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace {

const auto Code = R"code(
notice = new ClientUnlockWidget(this);
connect(notice,
        &ClientUnlockWidget::Sig_UnlockClicked,
        this, &Session::unlock);

// The other machine reports itself, perhaps
// before the first screen is there:
notice->setIp(address);
notice->ModalShow();

// A screen has come:
connect(qApp, &QGuiApplication::screenAdded,
        notice, &ClientUnlockWidget::TryShow);
)code";

QString className()
{
    return QStringLiteral("ClientUnlockWidget");
}

} // namespace

UnlockPage::UnlockPage(SignalLog *log, QWidget *parent)
    : GalleryPage(log, parent)
    , notice(new ClientUnlockWidget(this))
{
    setHeading(tr("Unlock notice"),
               tr("ClientUnlockWidget names the machine that has taken over this client and offers "
                  "to unlock it."));
    setCode(QString::fromUtf8(Code));

    ControlPanel *panel = addPanel(className());
    address = panel->addText(QStringLiteral("address"), tr("Address"),
                             QStringLiteral("192.168.1.20"));
    clicksToClose =
            panel->addNumber(QStringLiteral("clicksToClose"), tr("Closes after clicks"), 1, 5, 1);
    count = panel->addValue(QStringLiteral("count"), tr("Unlock clicked"));
    count->setText(QString::number(clicks));
    QPushButton *modalShow =
            panel->addButton(QStringLiteral("modalShow"), QStringLiteral("ModalShow()"));
    QPushButton *tryShow = panel->addButton(QStringLiteral("tryShow"), QStringLiteral("TryShow()"));
    QPushButton *retranslate =
            panel->addButton(QStringLiteral("retranslateUi"), QStringLiteral("retranslateUi()"));
    panel->addNote(tr("The notice can be asked for before a screen exists: ModalShow() then only "
                      "remembers it, and TryShow() shows it once a screen has come. On a machine "
                      "with a screen TryShow() has nothing to do."));

    connect(address, &QLineEdit::textChanged, notice, &ClientUnlockWidget::setIp);
    connect(notice, &ClientUnlockWidget::Sig_UnlockClicked, this, &UnlockPage::countClick);
    connect(modalShow, &QPushButton::clicked, this,
            [this] { call(QStringLiteral("ModalShow"), &ClientUnlockWidget::ModalShow); });
    connect(tryShow, &QPushButton::clicked, this,
            [this] { call(QStringLiteral("TryShow"), &ClientUnlockWidget::TryShow); });
    connect(retranslate, &QPushButton::clicked, this,
            [this] { call(QStringLiteral("retranslateUi"), &ClientUnlockWidget::retranslateUi); });
    notice->setIp(address->text());
}

// The notice stays open by itself; when it goes is the host's business.
void UnlockPage::countClick()
{
    count->setText(QString::number(++clicks));
    report(className(), QStringLiteral("Sig_UnlockClicked"), QString::number(clicks));
    if (++clicksSinceShown >= clicksToClose->value())
        notice->close();
}

void UnlockPage::call(const QString &name, void (ClientUnlockWidget::*operation)())
{
    if (!notice->isVisible())
        clicksSinceShown = 0;
    (notice->*operation)();
    report(className(), name, notice->isVisible() ? tr("shown") : tr("not shown"));
}
