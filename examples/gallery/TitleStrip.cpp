#include "TitleStrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>
#include <QVariant>

namespace {

constexpr int StripHeight = 44;
constexpr QSize ButtonSize(44, 36);
constexpr QMargins StripMargins(12, 0, 6, 0);

} // namespace

TitleStrip::TitleStrip(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("wgt_TitleBar"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedHeight(StripHeight);

    row = new QHBoxLayout(this);
    row->setContentsMargins(StripMargins);
    row->setSpacing(4);

    auto *logo = new QLabel(this);
    logo->setPixmap(QPixmap(QStringLiteral(":/gallery/logo.png")));
    row->addWidget(logo);
    title = new QLabel(this);
    title->setObjectName(QStringLiteral("galleryTitle"));
    row->addWidget(title, 1);

    styleButton = addButton(QStringLiteral("btn_Style"));
    connect(styleButton, &QToolButton::clicked, this, &TitleStrip::styleClicked);
    languageButton = addButton(QStringLiteral("btn_Language"));
    connect(languageButton, &QToolButton::clicked, this, &TitleStrip::languageClicked);
    minimizeButton = addButton(QStringLiteral("btn_Min"));
    connect(minimizeButton, &QToolButton::clicked, this, &TitleStrip::minimizeClicked);
    maximizeButton = addButton(QStringLiteral("btn_Max"));
    connect(maximizeButton, &QToolButton::clicked, this, &TitleStrip::maximizeClicked);
    closeButton = addButton(QStringLiteral("btn_Close"));
    connect(closeButton, &QToolButton::clicked, this, &TitleStrip::closeClicked);
}

void TitleStrip::retranslate(const QString &languageName)
{
    title->setText(tr("QTarnKit gallery"));
    styleButton->setToolTip(tr("Light or dark"));
    languageButton->setText(languageName);
    languageButton->setToolTip(tr("Language"));
    minimizeButton->setToolTip(tr("Minimise"));
    maximizeButton->setToolTip(tr("Maximise or restore"));
    closeButton->setToolTip(tr("Close"));
}

void TitleStrip::showMaximizedState(bool maximized)
{
    const QString state = maximized ? QStringLiteral("maximized") : QStringLiteral("normal");
    maximizeButton->setProperty("windowState", state);
    maximizeButton->style()->unpolish(maximizeButton);
    maximizeButton->style()->polish(maximizeButton);
}

QToolButton *TitleStrip::addButton(const QString &objectName)
{
    auto *button = new QToolButton(this);
    button->setObjectName(objectName);
    button->setFixedSize(ButtonSize);
    button->setFocusPolicy(Qt::NoFocus);
    row->addWidget(button);
    return button;
}
