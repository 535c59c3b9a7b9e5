#include <TestMain.h>

#include <CustomProgressBar>
#include <ProgressBar>
#include <QTitleBar>
#include <QZelIntSpinBox>

#include <QDesignerCustomWidgetCollectionInterface>
#include <QFile>
#include <QIcon>
#include <QPluginLoader>
#include <QUiLoader>

#include <memory>

class tst_DesignerPlugin : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void offersEveryPlaceableClass();
    void everyClassHasIconDescriptionAndHeader();
    void everyClassHasADefaultSize_data();
    void everyClassHasADefaultSize();
    void formIsBuiltFromThePlugin();

private:
    QList<QDesignerCustomWidgetInterface *> widgets();
};

QList<QDesignerCustomWidgetInterface *> tst_DesignerPlugin::widgets()
{
    QPluginLoader loader(QStringLiteral(DESIGNER_PLUGIN_FILE));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface *>();
}

void tst_DesignerPlugin::offersEveryPlaceableClass()
{
    QStringList names;
    const auto all = widgets();
    for (const QDesignerCustomWidgetInterface *widget : all)
        names.append(widget->name());
    names.sort();
    QCOMPARE(names, QStringList({ QStringLiteral("CustomProgressBar"), QStringLiteral("ProgressBar"),
                                  QStringLiteral("QTarnKit::QZelIntSpinBox"),
                                  QStringLiteral("QTitleBar") }));
}

void tst_DesignerPlugin::everyClassHasIconDescriptionAndHeader()
{
    const auto all = widgets();
    for (const QDesignerCustomWidgetInterface *widget : all) {
        QVERIFY2(!widget->icon().pixmap(22, 22).isNull(), qPrintable(widget->name()));
        QVERIFY2(!widget->toolTip().isEmpty(), qPrintable(widget->name()));
        QVERIFY2(!widget->isContainer(), qPrintable(widget->name()));
        QCOMPARE(widget->group(), QStringLiteral("QTarnKit"));
        QCOMPARE(widget->includeFile(),
                 QStringLiteral("QTarnKit/%1.h")
                         .arg(widget->name().section(QStringLiteral("::"), -1)));
    }
}

void tst_DesignerPlugin::everyClassHasADefaultSize_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::newRow("QTitleBar") << QStringLiteral("QTitleBar") << QSize(400, 25);
    QTest::newRow("QZelIntSpinBox") << QStringLiteral("QTarnKit::QZelIntSpinBox") << QSize(120, 30);
    QTest::newRow("ProgressBar") << QStringLiteral("ProgressBar") << QSize(300, 5);
    QTest::newRow("CustomProgressBar") << QStringLiteral("CustomProgressBar") << QSize(300, 30);
}

void tst_DesignerPlugin::everyClassHasADefaultSize()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    const auto all = widgets();
    for (const QDesignerCustomWidgetInterface *widget : all) {
        if (widget->name() != name)
            continue;
        QVERIFY(widget->domXml().contains(QStringLiteral("class=\"%1\"").arg(name)));
        QVERIFY(widget->domXml().contains(QStringLiteral("<width>%1</width><height>%2</height>")
                                                  .arg(size.width())
                                                  .arg(size.height())));
        return;
    }
    QFAIL("the plugin does not offer the class");
}

void tst_DesignerPlugin::formIsBuiltFromThePlugin()
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(DESIGNER_PLUGIN_FOLDER));
    QFile file(QStringLiteral(DESIGNER_FORM));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> form(loader.load(&file));
    QVERIFY2(form, qPrintable(loader.errorString()));

    QVERIFY(form->findChild<QTitleBar *>(QStringLiteral("titleBar")));
    auto *volume = form->findChild<QTarnKit::QZelIntSpinBox *>(QStringLiteral("volume"));
    QVERIFY(volume);
    volume->SetValue(150);
    QCOMPARE(volume->Value(), 100);
    QVERIFY(form->findChild<ProgressBar *>(QStringLiteral("thin")));
    // A window of its own elsewhere; on a form it has to lie inside.
    auto *thick = form->findChild<CustomProgressBar *>(QStringLiteral("thick"));
    QVERIFY(thick);
    QVERIFY(!thick->isWindow());
    form->show();
    QVERIFY(thick->isVisible());
    form->hide();
}

QTARNKIT_TEST_MAIN(tst_DesignerPlugin)
#include "tst_DesignerPlugin.moc"
