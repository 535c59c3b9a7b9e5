#include "ImagesPage.h"

#include "ControlPanel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>

namespace {

constexpr QSize SwatchSize(56, 48);

const auto Code = R"code(
QLabel *icon = new QLabel(this);
icon->setPixmap(QPixmap(":/image/ok.png"));

/* In the host's style sheet: */
#btn_Close {
    image: url(:/image/msg_close_normal.png);
}
#btn_Close:hover {
    image: url(:/image/msg_close_click.png);
}
)code";

} // namespace

ImagesPage::ImagesPage(SignalLog *log, QWidget *parent)
    : GalleryPage(log, parent)
{
    setHeading(tr("Images"),
               tr("Ten images lie in the library, for its windows and for a host's style sheet."));
    setCode(QString::fromUtf8(Code));

    ControlPanel *panel = addPanel(QStringLiteral(":/image"));
    const QStringList names { QStringLiteral("ok"),
                              QStringLiteral("waring"),
                              QStringLiteral("error"),
                              QStringLiteral("ask"),
                              QStringLiteral("default"),
                              QStringLiteral("ic_loading"),
                              QStringLiteral("msg_close_normal"),
                              QStringLiteral("msg_close_click"),
                              QStringLiteral("windowshift_ic_maximize"),
                              QStringLiteral("windowshift_ic_normal") };
    for (const QString &name : names)
        panel->addRow(QString(), createRow(QStringLiteral(":/image/%1.png").arg(name)));
}

QWidget *ImagesPage::createRow(const QString &path)
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    const QPixmap image(path);
    for (const auto *ground : { "lightGround", "darkGround" }) {
        auto *swatch = new QLabel(row);
        swatch->setObjectName(QLatin1String(ground));
        swatch->setFixedSize(SwatchSize);
        swatch->setAlignment(Qt::AlignCenter);
        swatch->setPixmap(image);
        layout->addWidget(swatch);
    }
    auto *text = new QLabel(
            QStringLiteral("%1\n%2 x %3").arg(path).arg(image.width()).arg(image.height()), row);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(text, 1);
    return row;
}
