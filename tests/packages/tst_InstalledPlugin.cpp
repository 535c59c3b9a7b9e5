#include <TestMain.h>

#include <QFile>
#include <QUiLoader>
#include <QWidget>

#include <memory>

class tst_InstalledPlugin : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyClassIsOfferedFromQtsOwnFolder();
    void formIsBuiltFromThePlugin();
};

void tst_InstalledPlugin::everyClassIsOfferedFromQtsOwnFolder()
{
    const QStringList offered = QUiLoader().availableWidgets();
    const QStringList classes { QStringLiteral("CustomProgressBar"), QStringLiteral("ProgressBar"),
                                QStringLiteral("QTarnKit::QZelIntSpinBox"),
                                QStringLiteral("QTitleBar") };
    for (const QString &name : classes)
        QVERIFY2(offered.contains(name), qPrintable(name));
}

void tst_InstalledPlugin::formIsBuiltFromThePlugin()
{
    QUiLoader loader;
    QFile file(QStringLiteral(DESIGNER_FORM));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> form(loader.load(&file));
    QVERIFY2(form, qPrintable(loader.errorString()));
    const auto *titleBar = form->findChild<QWidget *>(QStringLiteral("titleBar"));
    QVERIFY(titleBar);
    QCOMPARE(titleBar->metaObject()->className(), "QTitleBar");
    const auto *volume = form->findChild<QWidget *>(QStringLiteral("volume"));
    QVERIFY(volume);
    QCOMPARE(volume->metaObject()->className(), "QTarnKit::QZelIntSpinBox");
}

QTARNKIT_TEST_MAIN(tst_InstalledPlugin)
#include "tst_InstalledPlugin.moc"
