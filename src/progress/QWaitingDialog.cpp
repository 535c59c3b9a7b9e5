#include "progress/QWaitingDialog.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmapCache>
#include <QTimer>
#include <QTransform>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr int FrameCount = 36;
constexpr int FrameAngle = 10; // degrees
constexpr int FrameInterval = 20; // milliseconds
constexpr int FramePadding = 10; // beyond the icon's diagonal

constexpr int InfoLines = 2;
constexpr QMargins RowMargins(15, 0, 15, 0);
constexpr int RowSpacing = 70;
constexpr int BarHeight = 5;
constexpr int BarInitialValue = 50;
constexpr QMargins MarginsWithBar(5, 15, 5, 0);
constexpr QMargins MarginsWithoutBar(5, 15, 5, 15);
constexpr int MainSpacing = 10;
constexpr QSize SmallestSize(250, 80);
constexpr QSize LargestSize(600, 200);

// The icon in a square that holds its diagonal at any angle. Without an icon that is 10 x 10.
QPixmap turned(const QPixmap &icon, int degrees)
{
    const int w = icon.width();
    const int h = icon.height();
    const int side = int(std::sqrt(double(w) * w + double(h) * h)) + FramePadding;

    QPixmap frame(side, side);
    frame.fill(Qt::transparent);
    QTransform transform;
    transform.translate(side / 2.0, side / 2.0);
    transform.rotate(degrees);
    QPainter painter(&frame);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setTransform(transform);
    painter.drawPixmap(-(w / 2), -(h / 2), icon);
    painter.end();
    return frame;
}

} // namespace

QWaitingDialog::QWaitingDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowModality(Qt::ApplicationModal);
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    initUI();
    initConnects();
}

QWaitingDialog::~QWaitingDialog()
{
    timer->stop();
    delete timer;
}

void QWaitingDialog::showWaitingDialog()
{
    if (timer)
        timer->start();
    show();
}

void QWaitingDialog::hideWaitingDialog()
{
    if (timer)
        timer->stop();
    close();
}

void QWaitingDialog::setTipMessage(const QString &text)
{
    infoLabel->setText(text);
    infoLabel->adjustSize();
    layout()->activate();
    updateGeometry();
    resize(sizeHint());
}

void QWaitingDialog::setProgressBarVisiable(bool visible)
{
    progressBar->setVisible(visible);
    mainLayout->setContentsMargins(visible ? MarginsWithBar : MarginsWithoutBar);
}

void QWaitingDialog::setProgressBarRange(int min, int max)
{
    progressBar->setRange(min, max);
}

void QWaitingDialog::setProgressBarValue(int value)
{
    progressBar->setValue(value);
}

void QWaitingDialog::initUI()
{
    timer = new QTimer(this);
    timer->setInterval(FrameInterval);

    createFrames();
    createIconLabel();
    createInfoLabel();

    auto *row = new QHBoxLayout;
    row->addWidget(iconLabel, 0);
    row->addWidget(infoLabel, 1);
    row->setSpacing(RowSpacing);
    row->setContentsMargins(RowMargins);

    progressBar = new ProgressBar(this);
    progressBar->setRange(0, 100);
    progressBar->setValue(BarInitialValue);
    progressBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    progressBar->setFixedHeight(BarHeight);

    mainLayout = new QVBoxLayout(this);
    mainLayout->addLayout(row);
    mainLayout->addWidget(progressBar);
    mainLayout->setContentsMargins(MarginsWithBar);
    mainLayout->setSpacing(MainSpacing);

    setMinimumSize(SmallestSize);
    setMaximumSize(LargestSize);
}

void QWaitingDialog::initConnects()
{
    connect(timer, &QTimer::timeout, this, &QWaitingDialog::showNextFrame);
}

// All turning is done here, once: a tick of the timer only swaps a pixmap. The frames are kept in
// Qt's cache too, where the next dialog finds them.
void QWaitingDialog::createFrames()
{
    loadingPixmap.load(QStringLiteral(":/image/ic_loading.png"));
    for (int i = 0; i < FrameCount; ++i) {
        const QString key = QStringLiteral("QWaitingDialog_%1_%2")
                                    .arg(loadingPixmap.cacheKey())
                                    .arg(i * FrameAngle);
        QPixmap frame;
        if (!QPixmapCache::find(key, &frame)) {
            frame = turned(loadingPixmap, i * FrameAngle);
            QPixmapCache::insert(key, frame);
        }
        frames.append(frame);
    }
}

void QWaitingDialog::createIconLabel()
{
    iconLabel = new QLabel(this);
    iconLabel->setPixmap(frames.constFirst());
    iconLabel->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    iconLabel->setFixedSize(frames.constFirst().size());
}

void QWaitingDialog::createInfoLabel()
{
    infoLabel = new QLabel(this);
    infoLabel->setObjectName(QStringLiteral("infoLabel"));
    infoLabel->setWordWrap(true);
    infoLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    infoLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    infoLabel->setMinimumHeight(InfoLines * QFontMetrics(font()).height());
}

void QWaitingDialog::showNextFrame()
{
    frameIndex = (frameIndex + 1) % FrameCount;
    iconLabel->setPixmap(frames.at(frameIndex));
}
