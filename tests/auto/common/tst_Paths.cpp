#include "TestMain.h"

#include <common/Paths.h>

class tst_Paths : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFolderLiesAboveWhatIsBelowIt_data();
    void aFolderLiesAboveWhatIsBelowIt();
};

void tst_Paths::aFolderLiesAboveWhatIsBelowIt_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("above");
    QTest::newRow("top") << QStringLiteral("/") << true;
    QTest::newRow("the user's folder") << QStringLiteral("/root") << true;
    QTest::newRow("its parent") << QStringLiteral("/root/zeltempfiles") << true;
    QTest::newRow("with a slash") << QStringLiteral("/root/zeltempfiles/") << true;
    QTest::newRow("itself") << QStringLiteral("/root/zeltempfiles/ftp") << false;
    QTest::newRow("below") << QStringLiteral("/root/zeltempfiles/ftp/sub") << false;
    QTest::newRow("beside") << QStringLiteral("/root/zeltempfiles/ft") << false;
    QTest::newRow("elsewhere") << QStringLiteral("/usr") << false;
    QTest::newRow("nowhere") << QString() << false;
}

void tst_Paths::aFolderLiesAboveWhatIsBelowIt()
{
    QFETCH(QString, path);
    QFETCH(bool, above);
    QCOMPARE(Paths::isAbove(path, Paths::ftpFolder()), above);
}

QTARNKIT_TEST_MAIN(tst_Paths)
#include "tst_Paths.moc"
