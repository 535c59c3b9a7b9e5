// The collection of images in the library: its paths, their format, and its registration.

#include "ImagePixels.h"
#include "TestMain.h"

#include <QDirIterator>
#include <QPixmap>
#include <QResource>
#include <QScopeGuard>

#include <algorithm>

int qInitResources_QTarnKit();
int qCleanupResources_QTarnKit();

namespace {

// A shared library's static initialisers run before those of the program that links it.
const bool registeredBeforeMain = QFile::exists(QStringLiteral(":/image/ok.png"));

struct Picture
{
    const char *name = nullptr;
    QSize size;
    QRgb colour = 0;
};

const Picture pictures[] = {
    { "ok", { 30, 30 }, 0xff01ba35 },
    { "waring", { 30, 30 }, 0xffffa70f },
    { "error", { 30, 30 }, 0xffff1a1a },
    { "ask", { 30, 30 }, 0xfff76900 },
    { "default", { 30, 30 }, 0xffffa70f },
    { "ic_loading", { 28, 28 }, 0xfff76900 },
    { "msg_close_normal", { 24, 24 }, 0xff999594 },
    { "msg_close_click", { 24, 24 }, 0xfff76900 },
    { "windowshift_ic_maximize", { 32, 32 }, 0xffd6d5d3 },
    { "windowshift_ic_normal", { 32, 32 }, 0xffd6d5d3 },
};

QStringList expectedPaths()
{
    QStringList paths;
    for (const Picture &picture : pictures)
        paths.append(pathOf(picture.name));
    paths.sort();
    return paths;
}

QStringList pathsBelow(const QString &folder)
{
    QStringList paths;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        paths.append(entries.next());
    paths.sort();
    return paths;
}

void addPictureRows()
{
    QTest::addColumn<Picture>("picture");
    for (const Picture &picture : pictures)
        QTest::newRow(picture.name) << picture;
}

// A test that fails with the collection taken away must not fail those after it.
auto registeredAgainAtEnd()
{
    return qScopeGuard([] { qInitResources_QTarnKit(); });
}

} // namespace

Q_DECLARE_METATYPE(Picture)

class tst_Resources : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void imagesAreThereBeforeMainStarts();
    void collectionHoldsExactlyTheTenImages();
    void collectionAddsNothingBesideTheImageFolder();
    void loadingPixmapIs28PixelsSquare();
    void warningImageKeepsItsMisspeltName();

    void imageHasItsPixelSize_data() { addPictureRows(); }
    void imageHasItsPixelSize();
    void imageIsPngWithEightBitRgba_data() { addPictureRows(); }
    void imageIsPngWithEightBitRgba();
    void imageIsStoredUncompressed_data() { addPictureRows(); }
    void imageIsStoredUncompressed();
    void cornersAreTransparent_data() { addPictureRows(); }
    void cornersAreTransparent();
    void namedColourIsTheOnlyHue_data() { addPictureRows(); }
    void namedColourIsTheOnlyHue();

    void cleanupTakesTheImagesAwayAndInitBringsThemBack();
    void secondInitIsUndoneByOneCleanup();
};

void tst_Resources::imagesAreThereBeforeMainStarts()
{
    QVERIFY(registeredBeforeMain);
}

void tst_Resources::collectionHoldsExactlyTheTenImages()
{
    QCOMPARE(pathsBelow(QStringLiteral(":/image")), expectedPaths());
}

void tst_Resources::collectionAddsNothingBesideTheImageFolder()
{
    const auto registeredAgain = registeredAgainAtEnd();
    QStringList before = pathsBelow(QStringLiteral(":/"));
    qCleanupResources_QTarnKit();
    const QStringList after = pathsBelow(QStringLiteral(":/"));

    for (const QString &path : after)
        QVERIFY2(before.removeOne(path), qPrintable(path));
    QCOMPARE(before, QStringList(QStringLiteral(":/image")) + expectedPaths());
}

void tst_Resources::loadingPixmapIs28PixelsSquare()
{
    QCOMPARE(QPixmap(QStringLiteral(":/image/ic_loading.png")).size(), QSize(28, 28));
}

void tst_Resources::warningImageKeepsItsMisspeltName()
{
    QVERIFY(QFile::exists(QStringLiteral(":/image/waring.png")));
    QVERIFY(!QFile::exists(QStringLiteral(":/image/warning.png")));
}

void tst_Resources::imageHasItsPixelSize()
{
    QFETCH(const Picture, picture);
    QCOMPARE(QImage(pathOf(picture.name)).size(), picture.size);
}

void tst_Resources::imageIsPngWithEightBitRgba()
{
    QFETCH(const Picture, picture);
    QFile file(pathOf(picture.name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray header = file.read(26);

    QCOMPARE(header.size(), 26);
    QCOMPARE(header.left(8), QByteArrayLiteral("\x89PNG\r\n\x1a\n"));
    QCOMPARE(header.mid(12, 4), QByteArrayLiteral("IHDR"));
    QCOMPARE(int(header.at(24)), 8); // bits a channel
    QCOMPARE(int(header.at(25)), 6); // colour type: RGBA
}

void tst_Resources::imageIsStoredUncompressed()
{
    QFETCH(const Picture, picture);
    const QResource resource(pathOf(picture.name));
    QVERIFY(resource.isValid());
    QCOMPARE(resource.compressionAlgorithm(), QResource::NoCompression);
}

void tst_Resources::cornersAreTransparent()
{
    QFETCH(const Picture, picture);
    const QImage image = load(picture.name);
    const QRect rect = image.rect();
    for (const QPoint &corner :
         { rect.topLeft(), rect.topRight(), rect.bottomLeft(), rect.bottomRight() })
        QCOMPARE(alpha(image, corner), 0);
}

void tst_Resources::namedColourIsTheOnlyHue()
{
    QFETCH(const Picture, picture);
    const QImage image = load(picture.name);
    QVERIFY(opaqueCount(image) >= 20);

    const auto points = pixelsWhere(image, [](const QPoint &) { return true; });
    for (const QPoint &point : points) {
        const QRgb pixel = image.pixel(point);
        if (qAlpha(pixel) == 255)
            QCOMPARE(QColor(pixel).name(), QColor(picture.colour).name());
        // A half-covered edge was stored multiplied by its alpha, in whole numbers: the fainter
        // the pixel, the coarser its colour comes back.
        const int off = std::max({ qAbs(qRed(pixel) - qRed(picture.colour)),
                                   qAbs(qGreen(pixel) - qGreen(picture.colour)),
                                   qAbs(qBlue(pixel) - qBlue(picture.colour)) });
        QVERIFY2(off * qAlpha(pixel) <= 255, qPrintable(QColor(pixel).name(QColor::HexArgb)));
    }
}

void tst_Resources::cleanupTakesTheImagesAwayAndInitBringsThemBack()
{
    const auto registeredAgain = registeredAgainAtEnd();
    QCOMPARE(qCleanupResources_QTarnKit(), 1);
    QVERIFY(!QFile::exists(QStringLiteral(":/image/ok.png")));
    QVERIFY(!QFile::exists(QStringLiteral(":/image")));

    QCOMPARE(qInitResources_QTarnKit(), 1);
    QCOMPARE(pathsBelow(QStringLiteral(":/image")), expectedPaths());
    QCOMPARE(QImage(QStringLiteral(":/image/ok.png")).size(), QSize(30, 30));
}

// Hosts call Q_INIT_RESOURCE out of habit, though the library has registered itself.
void tst_Resources::secondInitIsUndoneByOneCleanup()
{
    const auto registeredAgain = registeredAgainAtEnd();
    QCOMPARE(qInitResources_QTarnKit(), 1);
    QCOMPARE(pathsBelow(QStringLiteral(":/image")), expectedPaths());
    QCOMPARE(qCleanupResources_QTarnKit(), 1);
    QVERIFY(!QFile::exists(QStringLiteral(":/image/ok.png")));
}

QTARNKIT_TEST_MAIN(tst_Resources)
#include "tst_Resources.moc"
