#include "DesignerWidgets.h"

#include <CustomProgressBar>
#include <ProgressBar>
#include <QTitleBar>
#include <QZelIntSpinBox>

#include <QIcon>

namespace {

template <typename T>
QWidget *create(QWidget *parent)
{
    return new T(parent);
}

// A window of its own by its constructor, it would stay invisible inside the form.
QWidget *createCustomProgressBar(QWidget *parent)
{
    auto *bar = new CustomProgressBar(parent);
    bar->setWindowFlags(Qt::Widget);
    return bar;
}

} // namespace

DesignerWidget::DesignerWidget(const QString &className, const QString &description,
                               const QSize &defaultSize, const Factory &factory)
    : className(className)
    , description(description)
    , defaultSize(defaultSize)
    , factory(factory)
{}

QString DesignerWidget::includeFile() const
{
    return QStringLiteral("QTarnKit/%1.h").arg(plainName());
}

QIcon DesignerWidget::icon() const
{
    return QIcon(QStringLiteral(":/designer/%1.png").arg(plainName()));
}

QString DesignerWidget::domXml() const
{
    QString objectName = plainName();
    objectName[0] = objectName.at(0).toLower();
    return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
                          "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                          "<width>%3</width><height>%4</height></rect></property>"
                          "</widget></ui>")
            .arg(className, objectName)
            .arg(defaultSize.width())
            .arg(defaultSize.height());
}

QString DesignerWidget::plainName() const
{
    return className.section(QStringLiteral("::"), -1);
}

DesignerWidgets::DesignerWidgets(QObject *parent)
    : QObject(parent)
{
    widgets = {
        new DesignerWidget(QStringLiteral("QTitleBar"),
                           QStringLiteral("Title strip that drags its parent"), QSize(400, 25),
                           create<QTitleBar>),
        new DesignerWidget(QStringLiteral("QTarnKit::QZelIntSpinBox"),
                           QStringLiteral("Integer spin box with a floating slider"),
                           QSize(120, 30), create<QTarnKit::QZelIntSpinBox>),
        new DesignerWidget(QStringLiteral("ProgressBar"),
                           QStringLiteral("Thin rounded progress bar"), QSize(300, 5),
                           create<ProgressBar>),
        new DesignerWidget(QStringLiteral("CustomProgressBar"),
                           QStringLiteral("Green progress bar, a window of its own in a program"),
                           QSize(300, 30), createCustomProgressBar),
    };
}

DesignerWidgets::~DesignerWidgets()
{
    qDeleteAll(widgets);
}
