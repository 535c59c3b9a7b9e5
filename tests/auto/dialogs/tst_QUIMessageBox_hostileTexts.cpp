#include "BoxProbe.h"
#include "HostileNames.h"
#include "ModalDriver.h"
#include "TestMain.h"
#include "User.h"
#include "VisibleText.h"

#include <QTextDocument>

using QTarnKit::QUIMessageBox;

namespace {

constexpr int Question = 4;

} // namespace

class tst_QUIMessageBox_hostileTexts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textsThatAreNoMarkupAreShownAsTheyAre();
    void convertedTextsAreShownAsTheyAre();
    void longTextsLeaveTheBoxAndItsButtonsInPlace_data();
    void longTextsLeaveTheBoxAndItsButtonsInPlace();
};

void tst_QUIMessageBox_hostileTexts::textsThatAreNoMarkupAreShownAsTheyAre()
{
    BoxProbe box;
    int compared = 0;
    const QStringList names = hostileNames();
    for (const QString &name : names) {
        if (Qt::mightBeRichText(name))
            continue;
        box.setMessage(name, name, Question, 0);
        QCOMPARE(box.txtInfo->toPlainText(), asShown(name));
        QCOMPARE(box.labTitle->text(), name);
        ++compared;
    }
    QVERIFY(compared > 10);
}

// What a host does with a text that it did not write itself. Only the kind of white space changes.
void tst_QUIMessageBox_hostileTexts::convertedTextsAreShownAsTheyAre()
{
    BoxProbe box;
    const QStringList names = hostileNames();
    for (const QString &name : names) {
        box.setMessage(Qt::convertFromPlainText(name), Question, 0);
        QCOMPARE(box.txtInfo->toPlainText().simplified(), name.simplified());
    }
}

void tst_QUIMessageBox_hostileTexts::longTextsLeaveTheBoxAndItsButtonsInPlace_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("one word") << QString(20000, QLatin1Char('x'));
    QTest::newRow("words") << QString(QStringLiteral("word ")).repeated(4000);
    QTest::newRow("lines") << QString(4000, QLatin1Char('\n'));
    QTest::newRow("right to left") << QString(20000, QChar(0x05D0));
}

void tst_QUIMessageBox_hostileTexts::longTextsLeaveTheBoxAndItsButtonsInPlace()
{
    QFETCH(QString, text);
    ModalDriver driver;
    driver.on<QUIMessageBox>([](QUIMessageBox *box) {
        for (const QString &name :
             { QStringLiteral("closeBtn"), QStringLiteral("Yes"), QStringLiteral("No") }) {
            const QWidget *button = User::findButton(box, name);
            QVERIFY(button);
            const QRect place(button->mapTo(box, QPoint()), button->size());
            QVERIFY2(box->rect().contains(place), qPrintable(name));
        }
        User::clickButton(box, QStringLiteral("Yes"));
    });
    BoxProbe box;
    box.setMessage(text.left(1000), text, Question, 0);
    QCOMPARE(box.exec(), int(QDialog::Accepted));
    QVERIFY(driver.finished());
    QCOMPARE(box.size(), QSize(box.boxWidth, box.boxHeight));
}

QTARNKIT_TEST_MAIN(tst_QUIMessageBox_hostileTexts)
#include "tst_QUIMessageBox_hostileTexts.moc"
