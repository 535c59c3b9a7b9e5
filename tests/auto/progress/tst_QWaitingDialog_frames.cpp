#include "TestMain.h"
#include "WaitingDialogProbe.h"

#include <QFile>
#include <QImage>
#include <QLabel>

#include <array>
#include <cmath>

// Exported by the library for hosts to call.
int qInitResources_QTarnKit();
int qCleanupResources_QTarnKit();

namespace {

constexpr int FrameCount = 36;
constexpr int Side = 49;
constexpr double Pi = 3.14159265358979323846;

using Channels = std::array<double, 4>;

// Premultiplied, transparent outside.
Channels channelsAt(const QImage &image, int x, int y)
{
    if (!image.valid(x, y))
        return {};
    const QRgb color = qPremultiply(image.pixel(x, y));
    return { double(qAlpha(color)), double(qRed(color)), double(qGreen(color)),
             double(qBlue(color)) };
}

Channels bilinear(const QImage &image, double x, double y)
{
    const int left = int(std::floor(x));
    const int top = int(std::floor(y));
    const double right = x - left;
    const double bottom = y - top;
    Channels sum {};
    for (int dy = 0; dy < 2; ++dy) {
        for (int dx = 0; dx < 2; ++dx) {
            const double weight = (dx ? right : 1 - right) * (dy ? bottom : 1 - bottom);
            const Channels part = channelsAt(image, left + dx, top + dy);
            for (size_t i = 0; i < sum.size(); ++i)
                sum[i] += weight * part[i];
        }
    }
    return sum;
}

// The mean difference per channel between a frame and the icon turned clockwise by an angle about
// the middle of the frame, the icon's own middle being there. Each pixel's centre is turned back
// into the icon and looked up there.
double difference(const QImage &frame, const QImage &icon, int degrees)
{
    const double cosine = std::cos(degrees * Pi / 180);
    const double sine = std::sin(degrees * Pi / 180);
    const QPoint centre(icon.width() / 2, icon.height() / 2); // in whole pixels
    double sum = 0;
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x) {
            const double fromCentreX = x + 0.5 - frame.width() / 2.0;
            const double fromCentreY = y + 0.5 - frame.height() / 2.0;
            const double u = cosine * fromCentreX + sine * fromCentreY + centre.x();
            const double v = -sine * fromCentreX + cosine * fromCentreY + centre.y();
            const Channels expected = bilinear(icon, u - 0.5, v - 0.5);
            const Channels actual = channelsAt(frame, x, y);
            for (size_t i = 0; i < expected.size(); ++i)
                sum += std::abs(expected[i] - actual[i]);
        }
    }
    return sum / (4.0 * frame.width() * frame.height());
}

QImage imageOf(const QPixmap &pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

class tst_QWaitingDialog_frames : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sourceIsTheLoadingImage();
    void framesHoldTheDiagonal();
    void eachFrameIsTheIconTurned_data();
    void eachFrameIsTheIconTurned();
    void firstFrameIsTheIconItself();
    void cornersStayTransparent();
    void aTickShowsTheNextFrame();
    void thirtySixTicksComeBackToTheFirst();
    void roundIsThirtySixWhateverTheListHolds();
    void frameIsKeptAcrossShows();
    void tickPaintsNoNewFrames();
    void missingImageGivesEmptyFrames();
};

void tst_QWaitingDialog_frames::sourceIsTheLoadingImage()
{
    const WaitingDialogProbe dialog;
    QCOMPARE(dialog.loadingPixmap.size(), QSize(28, 28));
    QCOMPARE(imageOf(dialog.loadingPixmap),
             imageOf(QPixmap(QStringLiteral(":/image/ic_loading.png"))));
}

void tst_QWaitingDialog_frames::framesHoldTheDiagonal()
{
    const WaitingDialogProbe dialog;
    QCOMPARE(dialog.frames.size(), FrameCount);
    for (const QPixmap &frame : qAsConst(dialog.frames)) {
        QCOMPARE(frame.size(), QSize(Side, Side));
        QVERIFY(frame.hasAlphaChannel());
    }
}

void tst_QWaitingDialog_frames::eachFrameIsTheIconTurned_data()
{
    QTest::addColumn<int>("index");
    for (int i = 1; i < FrameCount; ++i)
        QTest::addRow("%d degrees", 10 * i) << i;
}

void tst_QWaitingDialog_frames::eachFrameIsTheIconTurned()
{
    QFETCH(int, index);
    const WaitingDialogProbe dialog;
    const QImage icon = imageOf(dialog.loadingPixmap);
    const QImage frame = imageOf(dialog.frames.at(index));
    const int degrees = 10 * index;
    QVERIFY(difference(frame, icon, degrees) < 0.1);
    // The measure is fine enough to tell two degrees apart.
    QVERIFY(difference(frame, icon, degrees - 2) > 0.2);
    QVERIFY(difference(frame, icon, degrees + 2) > 0.2);
}

// The painter puts an unturned image on whole pixels, here half a pixel off the middle.
void tst_QWaitingDialog_frames::firstFrameIsTheIconItself()
{
    const WaitingDialogProbe dialog;
    const QImage icon = imageOf(dialog.loadingPixmap);
    const QImage frame = imageOf(dialog.frames.at(0));
    for (int y = 0; y < Side; ++y) {
        for (int x = 0; x < Side; ++x)
            QCOMPARE(channelsAt(frame, x, y), channelsAt(icon, x - 11, y - 11));
    }
}

void tst_QWaitingDialog_frames::cornersStayTransparent()
{
    const WaitingDialogProbe dialog;
    for (const QPixmap &frame : qAsConst(dialog.frames)) {
        const QImage image = imageOf(frame);
        int opaque = 0;
        for (int y = 0; y < Side; ++y) {
            for (int x = 0; x < Side; ++x) {
                const double reach = std::hypot(x + 0.5 - Side / 2.0, y + 0.5 - Side / 2.0);
                const int alpha = qAlpha(image.pixel(x, y));
                if (reach > 21)
                    QCOMPARE(alpha, 0);
                opaque += alpha > 128 ? 1 : 0;
            }
        }
        QVERIFY(opaque > 20);
    }
}

void tst_QWaitingDialog_frames::aTickShowsTheNextFrame()
{
    WaitingDialogProbe dialog;
    dialog.showWaitingDialog();
    for (int i = 1; i <= 5; ++i) {
        dialog.tick();
        QCOMPARE(dialog.frameIndex, i);
        QCOMPARE(dialog.iconLabel->pixmap(Qt::ReturnByValue).cacheKey(),
                 dialog.frames.at(i).cacheKey());
    }
    dialog.hideWaitingDialog();
}

void tst_QWaitingDialog_frames::thirtySixTicksComeBackToTheFirst()
{
    WaitingDialogProbe dialog;
    dialog.showWaitingDialog();
    dialog.tick(35);
    QCOMPARE(dialog.frameIndex, 35);
    dialog.tick();
    QCOMPARE(dialog.frameIndex, 0);
    QCOMPARE(dialog.iconLabel->pixmap(Qt::ReturnByValue).cacheKey(), dialog.frames.at(0).cacheKey());
    dialog.hideWaitingDialog();
}

void tst_QWaitingDialog_frames::roundIsThirtySixWhateverTheListHolds()
{
    WaitingDialogProbe dialog;
    dialog.frames.append(dialog.frames);
    dialog.showWaitingDialog();
    dialog.tick(36);
    QCOMPARE(dialog.frameIndex, 0);
    dialog.hideWaitingDialog();
}

void tst_QWaitingDialog_frames::frameIsKeptAcrossShows()
{
    WaitingDialogProbe dialog;
    dialog.showWaitingDialog();
    dialog.tick(7);
    dialog.hideWaitingDialog();
    QCOMPARE(dialog.frameIndex, 7);
    dialog.showWaitingDialog();
    QCOMPARE(dialog.frameIndex, 7);
    QCOMPARE(dialog.iconLabel->pixmap(Qt::ReturnByValue).cacheKey(), dialog.frames.at(7).cacheKey());
    dialog.tick();
    QCOMPARE(dialog.frameIndex, 8);
    dialog.hideWaitingDialog();
}

void tst_QWaitingDialog_frames::tickPaintsNoNewFrames()
{
    WaitingDialogProbe dialog;
    QList<qint64> before;
    for (const QPixmap &frame : qAsConst(dialog.frames))
        before.append(frame.cacheKey());
    dialog.showWaitingDialog();
    dialog.tick(80);
    dialog.hideWaitingDialog();
    QList<qint64> after;
    for (const QPixmap &frame : qAsConst(dialog.frames))
        after.append(frame.cacheKey());
    QCOMPARE(after, before);
}

void tst_QWaitingDialog_frames::missingImageGivesEmptyFrames()
{
    qCleanupResources_QTarnKit();
    const bool gone = !QFile::exists(QStringLiteral(":/image/ic_loading.png"));
    WaitingDialogProbe dialog;
    qInitResources_QTarnKit();
    QVERIFY(gone);
    QVERIFY(QFile::exists(QStringLiteral(":/image/ic_loading.png")));

    QVERIFY(dialog.loadingPixmap.isNull());
    QCOMPARE(dialog.frames.size(), FrameCount);
    for (const QPixmap &frame : qAsConst(dialog.frames)) {
        QCOMPARE(frame.size(), QSize(10, 10));
        const QImage image = imageOf(frame);
        for (int y = 0; y < 10; ++y) {
            for (int x = 0; x < 10; ++x)
                QCOMPARE(qAlpha(image.pixel(x, y)), 0);
        }
    }
    QCOMPARE(dialog.iconLabel->minimumSize(), QSize(10, 10));
    QCOMPARE(dialog.iconLabel->maximumSize(), QSize(10, 10));
    dialog.showWaitingDialog();
    dialog.tick(40);
    QCOMPARE(dialog.frameIndex, 4);
    dialog.hideWaitingDialog();
}

QTARNKIT_TEST_MAIN(tst_QWaitingDialog_frames)
#include "tst_QWaitingDialog_frames.moc"
