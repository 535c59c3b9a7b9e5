#include "AllClasses.h"
#include "TestMain.h"

#include <QMetaMethod>
#include <QMetaObject>
#include <QScopedPointer>

Q_DECLARE_METATYPE(const QMetaObject *)

namespace {

using Factory = QObject *(*) ();

// "public signal void clicked(bool) [checked]": all that a connection or a plug-in can depend on.
QString described(const QMetaMethod &method)
{
    const char *access[] = { "private", "protected", "public" };
    const char *kind[] = { "method", "signal", "slot", "constructor" };
    return QStringLiteral("%1 %2 %3 %4 [%5]")
            .arg(QLatin1String(access[method.access()]), QLatin1String(kind[method.methodType()]),
                 QLatin1String(method.typeName()), QString::fromLatin1(method.methodSignature()),
                 QString::fromLatin1(method.parameterNames().join(", ")));
}

QStringList ownMethods(const QMetaObject *metaObject)
{
    QStringList methods;
    for (int i = metaObject->methodOffset(); i < metaObject->methodCount(); ++i)
        methods.append(described(metaObject->method(i)));
    return methods;
}

QObject *fileDialog()
{
    return new QZelFileDialog(nullptr, QString(), QStringLiteral("/"), QString(),
                              QZelFileDialog::OpenFile);
}

template <typename T>
QObject *withoutParent()
{
    return new T(nullptr);
}

} // namespace

Q_DECLARE_METATYPE(Factory)

class tst_MetaObjects : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void classNameAndBaseAreFixed_data() { classes(); }
    void classNameAndBaseAreFixed();
    void methodsAndTheirOrderAreFixed_data() { classes(); }
    void methodsAndTheirOrderAreFixed();
    void nothingElseIsRegistered_data() { classes(); }
    void nothingElseIsRegistered();
    void objectsReportTheirOwnClass_data() { classes(); }
    void objectsReportTheirOwnClass();
    void delegatesReportTheirBase_data();
    void delegatesReportTheirBase();

private:
    void classes();
};

void tst_MetaObjects::classes()
{
    QTest::addColumn<const QMetaObject *>("metaObject");
    QTest::addColumn<QString>("base");
    QTest::addColumn<QStringList>("methods");
    QTest::addColumn<Factory>("create");

    const QStringList none;
    const auto row = [](const char *name, const QMetaObject &metaObject, const char *base,
                        const QStringList &methods, Factory create) {
        QTest::newRow(name) << &metaObject << QString::fromLatin1(base) << methods << create;
    };

    row("QZelBaseWindows", QZelBaseWindows::staticMetaObject, "QMainWindow",
        { QStringLiteral("public signal void titleDblClick() []"),
          QStringLiteral("public signal void windowStateChange(bool) []"),
          QStringLiteral("public slot void setPadding(int) [padding]"),
          QStringLiteral("public slot void setMoveEnable(bool) [moveEnable]"),
          QStringLiteral("public slot void setResizeEnable(bool) [resizeEnable]"),
          QStringLiteral("public slot void setTitleBar(QWidget*) [titleBar]") },
        withoutParent<QZelBaseWindows>);
    row("QTitleBar", QTitleBar::staticMetaObject, "QLabel",
        { QStringLiteral("public signal void SIG_CloseWindow() []"),
          QStringLiteral("public slot void OnCloseBtnClickedEvent(bool) []") },
        withoutParent<QTitleBar>);
    row("QZelDialog", QZelDialog::staticMetaObject, "QDialog", none, withoutParent<QZelDialog>);
    row("QTarnKit::QUIMessageBox", QTarnKit::QUIMessageBox::staticMetaObject, "QDialog",
        { QStringLiteral("public signal void CustBtnClicked(int) [index]"),
          QStringLiteral("public slot void checkSec() []") },
        withoutParent<QTarnKit::QUIMessageBox>);
    row("QTarnKit::QZelIntSpinBox", QTarnKit::QZelIntSpinBox::staticMetaObject, "QWidget", none,
        withoutParent<QTarnKit::QZelIntSpinBox>);
    row("QZelFileDialog", QZelFileDialog::staticMetaObject, "QDialog",
        { QStringLiteral("public signal void sig_filePath(QString) [path]"),
          QStringLiteral("public signal void sig_filePaths(QStringList) [paths]") },
        fileDialog);
    row("QZelFileManagerWidget", QZelFileManagerWidget::staticMetaObject, "QDialog", none,
        withoutParent<QZelFileManagerWidget>);
    row("QZelEncDialog", QZelEncDialog::staticMetaObject, "QZelDialog", none,
        withoutParent<QZelEncDialog>);
    row("QZelPwdInputDialog", QZelPwdInputDialog::staticMetaObject, "QZelEncDialog",
        { QStringLiteral("public signal void passwordEntered(QString) [password]") },
        withoutParent<QZelPwdInputDialog>);
    row("QZelFolderNameDialog", QZelFolderNameDialog::staticMetaObject, "QZelDialog", none,
        withoutParent<QZelFolderNameDialog>);
    row("QWaitingDialog", QWaitingDialog::staticMetaObject, "QDialog", none,
        withoutParent<QWaitingDialog>);
    row("ProgressBar", ProgressBar::staticMetaObject, "QWidget", none, withoutParent<ProgressBar>);
    row("CustomProgressBar", CustomProgressBar::staticMetaObject, "QWidget",
        { QStringLiteral("public slot void SetProgress(int) [value]") },
        withoutParent<CustomProgressBar>);
    row("ClientUnlockWidget", ClientUnlockWidget::staticMetaObject, "QWidget",
        { QStringLiteral("public signal void Sig_UnlockClicked() []") },
        withoutParent<ClientUnlockWidget>);
}

void tst_MetaObjects::classNameAndBaseAreFixed()
{
    QFETCH(const QMetaObject *, metaObject);
    QFETCH(QString, base);

    QCOMPARE(metaObject->className(), QTest::currentDataTag());
    QCOMPARE(QString::fromLatin1(metaObject->superClass()->className()), base);
}

void tst_MetaObjects::methodsAndTheirOrderAreFixed()
{
    QFETCH(const QMetaObject *, metaObject);
    QFETCH(QStringList, methods);

    QCOMPARE(ownMethods(metaObject), methods);
}

void tst_MetaObjects::nothingElseIsRegistered()
{
    QFETCH(const QMetaObject *, metaObject);

    QCOMPARE(metaObject->propertyCount() - metaObject->propertyOffset(), 0);
    QCOMPARE(metaObject->enumeratorCount() - metaObject->enumeratorOffset(), 0);
    QCOMPARE(metaObject->classInfoCount() - metaObject->classInfoOffset(), 0);
    QCOMPARE(metaObject->constructorCount(), 0);
}

// What qobject_cast, findChild and style sheets go by.
void tst_MetaObjects::objectsReportTheirOwnClass()
{
    QFETCH(const QMetaObject *, metaObject);
    QFETCH(QString, base);
    QFETCH(Factory, create);

    const QScopedPointer<QObject> object(create());
    QCOMPARE(object->metaObject(), metaObject);
    QCOMPARE(object->qt_metacast(QTest::currentDataTag()), static_cast<void *>(object.data()));
    QVERIFY(object->qt_metacast(qPrintable(base)));
    QVERIFY(!object->qt_metacast("QTarnKit"));
}

void tst_MetaObjects::delegatesReportTheirBase_data()
{
    QTest::addColumn<const QMetaObject *>("metaObject");
    QTest::addColumn<Factory>("create");

    QTest::newRow("DirItemStyledDelegate") << &DirItemStyledDelegate::staticMetaObject
                                           << Factory(withoutParent<DirItemStyledDelegate>);
    QTest::newRow("ColumnToolTipDelegate") << &ColumnToolTipDelegate::staticMetaObject
                                           << Factory(withoutParent<ColumnToolTipDelegate>);
}

// The two delegates have no meta-object of their own.
void tst_MetaObjects::delegatesReportTheirBase()
{
    QFETCH(const QMetaObject *, metaObject);
    QFETCH(Factory, create);

    QCOMPARE(metaObject, &QStyledItemDelegate::staticMetaObject);
    const QScopedPointer<QObject> delegate(create());
    QCOMPARE(delegate->metaObject(), &QStyledItemDelegate::staticMetaObject);
    QVERIFY(!delegate->qt_metacast(QTest::currentDataTag()));
}

QTARNKIT_TEST_MAIN(tst_MetaObjects)
#include "tst_MetaObjects.moc"
