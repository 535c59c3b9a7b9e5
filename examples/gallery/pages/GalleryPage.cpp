#include "GalleryPage.h"

#include "ControlPanel.h"
#include "SignalLog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

constexpr QMargins PageMargins(18, 12, 18, 12);
constexpr int CodeWidth = 390;
constexpr int WidthForCode = 740;
constexpr int FingerHeight = 36;

} // namespace

GalleryPage::GalleryPage(SignalLog *log, QWidget *parent)
    : QWidget(parent)
    , log(log)
{
    heading = new QLabel(this);
    heading->setObjectName(QStringLiteral("pageHeading"));
    sentence = new QLabel(this);
    sentence->setObjectName(QStringLiteral("pageSentence"));
    sentence->setWordWrap(true);

    auto *columns = new QHBoxLayout;
    columns->setSpacing(14);
    columns->addWidget(createControls(), 1);
    createCodePane();
    columns->addWidget(codePane);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(PageMargins);
    column->setSpacing(6);
    column->addWidget(heading);
    column->addWidget(sentence);
    column->addLayout(columns, 1);
}

QString GalleryPage::title() const
{
    return heading->text();
}

void GalleryPage::setHeading(const QString &title, const QString &text)
{
    heading->setText(title);
    sentence->setText(text);
}

void GalleryPage::setCode(const QString &text)
{
    code->setPlainText(text.trimmed());
}

ControlPanel *GalleryPage::addPanel(const QString &text)
{
    auto *panel = new ControlPanel(text, panels->parentWidget());
    addBelow(panel);
    return panel;
}

void GalleryPage::addBelow(QWidget *widget)
{
    panels->insertWidget(panels->count() - 1, widget); // before the stretch
}

void GalleryPage::report(const QString &source, const QString &what, const QString &value)
{
    log->add(source, what, value);
}

void GalleryPage::resizeEvent(QResizeEvent *event)
{
    codePane->setVisible(width() >= WidthForCode);
    QWidget::resizeEvent(event);
}

QWidget *GalleryPage::createControls()
{
    auto *area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *content = new QWidget(area);
    content->setObjectName(QStringLiteral("pageContent"));
    panels = new QVBoxLayout(content);
    panels->setContentsMargins(0, 0, 6, 0);
    panels->setSpacing(10);
    panels->addStretch();
    area->setWidget(content);
    return area;
}

void GalleryPage::createCodePane()
{
    codePane = new QFrame(this);
    codePane->setObjectName(QStringLiteral("codePane"));
    codePane->setFixedWidth(CodeWidth);

    auto *caption = new QLabel(tr("The same in code"), codePane);
    caption->setObjectName(QStringLiteral("panelHeading"));
    auto *copy = new QPushButton(tr("Copy"), codePane);
    copy->setObjectName(QStringLiteral("copyCode"));
    copy->setMinimumHeight(FingerHeight);
    code = new QPlainTextEdit(codePane);
    code->setObjectName(QStringLiteral("code"));
    code->setReadOnly(true);
    code->setLineWrapMode(QPlainTextEdit::NoWrap);
    connect(copy, &QPushButton::clicked, code,
            [this] { QGuiApplication::clipboard()->setText(code->toPlainText()); });

    auto *top = new QHBoxLayout;
    top->addWidget(caption, 1);
    top->addWidget(copy);
    auto *column = new QVBoxLayout(codePane);
    column->setContentsMargins(14, 8, 8, 8);
    column->addLayout(top);
    column->addWidget(code, 1);
}
