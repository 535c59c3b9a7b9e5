// The images come and go with the library. This program is not linked to it, but loads it while
// running, as a plug-in would; QTARNKIT_LIBRARY_FILE is the library's path.

#include "TestMain.h"

#include <QFile>
#include <QLibrary>

namespace {

bool imagesExist()
{
    return QFile::exists(QStringLiteral(":/image/ok.png"));
}

} // namespace

class tst_ResourceLifetime : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void imagesExistFromLoadToUnload();
    void registrationFunctionsAreExported_data();
    void registrationFunctionsAreExported();
};

void tst_ResourceLifetime::imagesExistFromLoadToUnload()
{
    QLibrary library(QStringLiteral(QTARNKIT_LIBRARY_FILE));
    QVERIFY(!imagesExist());
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    QVERIFY(imagesExist());
    QVERIFY2(library.unload(), qPrintable(library.errorString()));
    QVERIFY(!imagesExist());
}

void tst_ResourceLifetime::registrationFunctionsAreExported_data()
{
    QTest::addColumn<QByteArray>("symbol");
    QTest::newRow("init") << QByteArray("_Z23qInitResources_QTarnKitv");
    QTest::newRow("cleanup") << QByteArray("_Z26qCleanupResources_QTarnKitv");
}

void tst_ResourceLifetime::registrationFunctionsAreExported()
{
    QFETCH(const QByteArray, symbol);
    QLibrary library(QStringLiteral(QTARNKIT_LIBRARY_FILE));
    const auto function = reinterpret_cast<int (*)()>(library.resolve(symbol.constData()));
    QVERIFY2(function, qPrintable(library.errorString()));
    QCOMPARE(function(), 1);
    QVERIFY(library.unload());
}

QTARNKIT_TEST_MAIN(tst_ResourceLifetime)
#include "tst_ResourceLifetime.moc"
