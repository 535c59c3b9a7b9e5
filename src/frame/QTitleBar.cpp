#include "frame/QTitleBar.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

namespace {

constexpr int BarHeight = 25;
constexpr QSize BarMinimumSize(200, BarHeight);
// Higher than the strip: the layout's lower margin lifts the title to the optical centre.
constexpr QSize TitleMinimumSize(100, 35);
constexpr QSize CloseButtonSize(25, 25);
constexpr QMargins BarMargins(15, 0, 8, 5);
constexpr int GapStretch = 3;
constexpr qreal TopLineWidth = 2.0;

} // namespace

QTitleBar::QTitleBar(QWidget *parent)
    : QLabel(parent)
{
    setFixedHeight(BarHeight);
    InitTitleBar();
}

QTitleBar::~QTitleBar() = default;

void QTitleBar::InitTitleBar()
{
    if (!titleLabel) {
        titleLabel = new QLabel(this);
        titleLabel->setMinimumSize(TitleMinimumSize);
        titleLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }
    if (!closeButton) {
        closeButton = new QPushButton(this);
        closeButton->setFixedSize(CloseButtonSize);
        closeButton->setText(QString());
        connect(closeButton, SIGNAL(clicked(bool)), this, SLOT(OnCloseBtnClickedEvent(bool)));
    }
    if (!mainLayout) {
        mainLayout = new QHBoxLayout;
        mainLayout->setContentsMargins(BarMargins);
        mainLayout->addWidget(titleLabel, 0, Qt::AlignLeft | Qt::AlignVCenter);
        mainLayout->addStretch(GapStretch);
        mainLayout->addWidget(closeButton, 0, Qt::AlignBottom);
        setLayout(mainLayout);
    }
}

void QTitleBar::SetTitle(QString title)
{
    if (titleLabel)
        titleLabel->setText(title);
}

void QTitleBar::SetThemeColor(QColor color)
{
    themeColor = color;
    update();
}

QSize QTitleBar::minimumSizeHint() const
{
    return BarMinimumSize;
}

void QTitleBar::OnCloseBtnClickedEvent(bool)
{
    Q_EMIT SIG_CloseWindow();
}

// The mouse handlers end in QWidget's, not QLabel's: those ignore the event, so that the window
// below sees it too.
void QTitleBar::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        isPressed = true;
        lastGlobalPos = event->screenPos().toPoint();
    }
    QWidget::mousePressEvent(event);
}

void QTitleBar::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        isPressed = false;
    QWidget::mouseReleaseEvent(event);
}

void QTitleBar::mouseMoveEvent(QMouseEvent *event)
{
    if (isPressed) {
        const QPoint current = event->screenPos().toPoint();
        const QPoint delta = current - lastGlobalPos;
        lastGlobalPos = current;
        if (QWidget *dragged = parentWidget())
            dragged->move(dragged->pos() + delta);
    }
    QWidget::mouseMoveEvent(event);
}

void QTitleBar::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    QPainterPath background;
    background.setFillRule(Qt::WindingFill);
    background.addRoundedRect(0, 0, width(), height(), 0.0, 0.0);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter.fillPath(background, QBrush(themeColor));

    painter.setPen(QPen(QBrush(Qt::red), TopLineWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    // In the parent's coordinates on purpose: the line marks only a strip that sits in its parent's
    // top-left corner, the top edge of the window.
    painter.drawLine(x(), y(), x() + width(), y());
}
