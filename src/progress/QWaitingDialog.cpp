#include "progress/QWaitingDialog.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
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

// All turning is done here, once: a tick of the timer only swaps a pixmap.
void QWaitingDialog::createFrames()
{
    loadingPixmap.load(QStringLiteral(":/image/ic_loading.png"));
    const int w = loadingPixmap.width();
    const int h = loadingPixmap.height();
    // A square that holds the icon's diagonal at any angle. Without the icon it is 10 x 10.
    const int side = int(std::sqrt(double(w) * w + double(h) * h)) + FramePadding;

    QTransform centred;
    centred.translate(side / 2.0, side / 2.0);
    for (int i = 0; i < FrameCount; ++i) {
        QTransform turned = centred;
        turned.rotate(i * FrameAngle);
        QPixmap frame(side, side);
        frame.fill(Qt::transparent);
        QPainter painter(&frame);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setTransform(turned);
        painter.drawPixmap(-(w / 2), -(h / 2), loadingPixmap);
        painter.end();
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
