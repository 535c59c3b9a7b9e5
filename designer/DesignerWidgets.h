#ifndef DESIGNERWIDGETS_H
#define DESIGNERWIDGETS_H

#include <QDesignerCustomWidgetCollectionInterface>
#include <QDesignerCustomWidgetInterface>
#include <QObject>

#include <functional>

/// One of the library's widgets in Qt Designer's widget box.
class DesignerWidget : public QDesignerCustomWidgetInterface
{
public:
    using Factory = std::function<QWidget *(QWidget *)>;

    DesignerWidget(const QString &className, const QString &description, const QSize &defaultSize,
                   const Factory &factory);

    QString name() const override { return className; }
    QString group() const override { return QStringLiteral("QTarnKit"); }
    QString toolTip() const override { return description; }
    QString whatsThis() const override { return description; }
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override { return factory(parent); }
    QString domXml() const override;

private:
    QString plainName() const;

    QString className;
    QString description;
    QSize defaultSize;
    Factory factory;
};

/// The classes of the library that can be placed on a form.
class DesignerWidgets : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit DesignerWidgets(QObject *parent = nullptr);
    ~DesignerWidgets() override;

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override { return widgets; }

private:
    QList<QDesignerCustomWidgetInterface *> widgets;
};

#endif // DESIGNERWIDGETS_H
