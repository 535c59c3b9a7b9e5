#include "MessageBoxPage.h"

#include "ControlPanel.h"

#include <QUIMessageBox.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

using QTarnKit::QUIMessageBox;

namespace {

const auto Code = R"code(
QTarnKit::QUIMessageBox box;
box.setMessage(tr("Question"),
               tr("Delete this record?"), 4, 0);
if (box.exec() == QDialog::Accepted)
    removeRecord();

using QTarnKit::QUIMessageBox;
QUIMessageBox choice;
choice.setMessage(tr("Conflict"), tr("Which?"),
                  { tr("Mine"), tr("Yours") },
                  0);
connect(&choice, &QUIMessageBox::CustBtnClicked,
        &choice, &QDialog::done);
const int chosen = choice.exec();
)code";

QString className()
{
    return QStringLiteral("QUIMessageBox");
}

QString resultName(int result)
{
    return result == QDialog::Accepted ? QStringLiteral("1 (Accepted)")
                                       : QStringLiteral("%1 (Rejected)").arg(result);
}

} // namespace

MessageBoxPage::MessageBoxPage(SignalLog *log, QWidget *parent)
    : GalleryPage(log, parent)
{
    setHeading(tr("Message box"),
               tr("QUIMessageBox informs, warns and asks, with standard buttons or your own, and "
                  "closes itself after some seconds if told to."));
    setCode(QString::fromUtf8(Code));
    createMessagePanel();
    createCustomPanel();
    createStandardPanel();
}

void MessageBoxPage::createMessagePanel()
{
    ControlPanel *panel = addPanel(QStringLiteral("setMessage"));
    boxType = panel->addChoice(QStringLiteral("boxType"), tr("Type"),
                               { tr("1  Information"), tr("2  Warning"), tr("3  Error"),
                                 tr("4  Question"), tr("0  No buttons") });
    boxTitle = panel->addText(QStringLiteral("boxTitle"), tr("Title"), tr("Backup"));
    boxText = panel->addText(QStringLiteral("boxText"), tr("Text"),
                             tr("The backup has been written."));
    countdown = panel->addNumber(QStringLiteral("countdown"), tr("Closes after (s)"), 0, 60, 0);
    QPushButton *run = panel->addButton(QStringLiteral("execBox"), QStringLiteral("exec()"));
    QPushButton *show =
            panel->addButton(QStringLiteral("showInstance"), QStringLiteral("Instance()->show()"));
    connect(run, &QPushButton::clicked, this, &MessageBoxPage::runBox);
    connect(show, &QPushButton::clicked, this, &MessageBoxPage::showInstance);
}

void MessageBoxPage::createCustomPanel()
{
    ControlPanel *panel = addPanel(tr("Custom buttons"));
    customTexts = panel->addText(QStringLiteral("customTexts"), tr("Texts, by \";\""),
                                 tr("Replace;Keep both"));
    QPushButton *run = panel->addButton(QStringLiteral("execCustom"), QStringLiteral("exec()"));
    connect(run, &QPushButton::clicked, this, &MessageBoxPage::runCustom);
    panel->addNote(tr("A custom button leaves the box open: whoever listens closes it."));
}

void MessageBoxPage::createStandardPanel()
{
    ControlPanel *panel = addPanel(QStringLiteral("SetStandardButtons"));
    const QStringList names { QStringLiteral("Confirm"), QStringLiteral("Cancel"),
                              QStringLiteral("Yes"), QStringLiteral("No"),
                              QStringLiteral("NoButton") };
    for (const QString &name : names)
        standard.append(panel->addCheck(name, name, standard.size() < 2));
    QPushButton *run = panel->addButton(QStringLiteral("execStandard"), QStringLiteral("exec()"));
    connect(run, &QPushButton::clicked, this, &MessageBoxPage::runStandard);
}

int MessageBoxPage::type() const
{
    return (boxType->currentIndex() + 1) % boxType->count();
}

void MessageBoxPage::connectBox(QUIMessageBox *box)
{
    connect(box, &QUIMessageBox::CustBtnClicked, this, [this](int index) {
        report(className(), QStringLiteral("CustBtnClicked"), QString::number(index));
    });
}

void MessageBoxPage::runBox()
{
    QUIMessageBox box;
    connectBox(&box);
    if (boxTitle->text().isEmpty())
        box.setMessage(boxText->text(), type(), countdown->value());
    else
        box.setMessage(boxTitle->text(), boxText->text(), type(), countdown->value());
    report(className(), QStringLiteral("exec"), resultName(box.exec()));
}

void MessageBoxPage::showInstance()
{
    QUIMessageBox *box = QUIMessageBox::Instance();
    disconnect(box, nullptr, this, nullptr);
    connectBox(box);
    box->ClearCustButtons();
    box->setMessage(boxTitle->text(), boxText->text(), type(), countdown->value());
    box->show();
    report(className(), QStringLiteral("Instance()->show"));
}

void MessageBoxPage::runCustom()
{
    QUIMessageBox box;
    connectBox(&box);
    box.setMessage(boxTitle->text(), boxText->text(), customTexts->text().split(QLatin1Char(';')),
                   countdown->value());
    connect(&box, &QUIMessageBox::CustBtnClicked, &box, &QDialog::done);
    box.exec();
    report(className(), QStringLiteral("CustBtIndex"), QString::number(box.CustBtIndex()));
}

void MessageBoxPage::runStandard()
{
    const QTarnKit::MessageBoxStandardButton flags[] = { QTarnKit::Confirm, QTarnKit::Cancel,
                                                         QTarnKit::Yes, QTarnKit::No,
                                                         QTarnKit::NoButton };
    QFlags<QTarnKit::MessageBoxStandardButton> buttons;
    for (int i = 0; i < standard.size(); ++i)
        buttons.setFlag(flags[i], standard.at(i)->isChecked());

    QUIMessageBox box;
    connectBox(&box);
    box.SetTitle(boxTitle->text());
    box.SetText(boxText->text());
    box.SetStandardType(type());
    box.SetStandardButtons(buttons);
    report(className(), QStringLiteral("exec"), resultName(box.exec()));
}
