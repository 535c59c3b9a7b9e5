#include "Contrast.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPixmap>
#include <QTextEdit>

#include <algorithm>
#include <cmath>

namespace {

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
           + 0.0722 * linear(color.blueF());
}

QString textOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->displayText();
    if (const auto *edit = qobject_cast<const QTextEdit *>(widget))
        return edit->toPlainText();
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        return box->currentText();
    return {};
}

// Without the border and its rounded corners.
QRect innerRect(const QRect &rect)
{
    return rect.adjusted(3, 3, -3, -3);
}

class Reader
{
public:
    explicit Reader(QWidget *window)
        : window(window)
        , picture(window->grab().toImage().convertToFormat(QImage::Format_RGB32))
    {}

    QVector<Contrast::Text> read()
    {
        readWidget(window);
        const QList<QWidget *> children = window->findChildren<QWidget *>();
        for (QWidget *child : children) {
            if (!child->isWindow())
                readWidget(child);
        }
        return texts;
    }

private:
    void readWidget(QWidget *widget)
    {
        if (!widget->isVisible())
            return;
        if (auto *menu = qobject_cast<QMenu *>(widget)) {
            const QList<QAction *> actions = menu->actions();
            for (QAction *action : actions)
                add(action->text(), menu, menu->actionGeometry(action));
        } else if (auto *header = qobject_cast<QHeaderView *>(widget)) {
            readHeader(header);
        } else if (auto *view = qobject_cast<QAbstractItemView *>(widget)) {
            readView(view);
        } else if (!textOf(widget).isEmpty()) {
            add(textOf(widget), widget, widget->rect());
        }
    }

    void readHeader(QHeaderView *header)
    {
        for (int section = 0; section < header->count(); ++section) {
            const QString text =
                    header->model()->headerData(section, header->orientation()).toString();
            add(text, header,
                QRect(header->sectionViewportPosition(section), 0, header->sectionSize(section),
                      header->height()));
        }
    }

    void readView(QAbstractItemView *view)
    {
        const QModelIndex root = view->rootIndex();
        for (int row = 0; row < view->model()->rowCount(root); ++row) {
            const QModelIndex index = view->model()->index(row, 0, root);
            QRect rect = view->visualRect(index) & view->viewport()->rect();
            rect.setLeft(rect.left() + view->iconSize().width() + 24); // past the icon
            add(index.data().toString(), view->viewport(), rect);
        }
    }

    void add(const QString &text, const QWidget *widget, const QRect &area)
    {
        // Rows without a height (files in the folder tree) show nothing.
        const QRect place = innerRect(QRect(widget->mapTo(window, area.topLeft()), area.size()));
        if (text.trimmed().isEmpty() || !place.isValid())
            return;
        const QRect seen = place & picture.rect();
        if (seen.width() < 4 || seen.height() < 4)
            return;
        texts.append({ QStringLiteral("%1 %2 \"%3\"")
                               .arg(QLatin1String(widget->metaObject()->className()),
                                    widget->objectName(), text.simplified()),
                       Contrast::ofText(picture, seen) });
    }

    QWidget *window;
    QImage picture;
    QVector<Contrast::Text> texts;
};

} // namespace

double Contrast::ratio(const QColor &a, const QColor &b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

double Contrast::ofText(const QImage &picture, const QRect &area)
{
    QHash<QRgb, int> counts;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    QRgb ground = 0;
    int most = 0;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        if (count.value() > most) {
            most = count.value();
            ground = count.key();
        }
    }
    // Smoothed edges are paler than the text itself, so this errs on the strict side.
    double best = 1;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        best = std::max(best, ratio(QColor(count.key()), QColor(ground)));
    return best;
}

QVector<Contrast::Text> Contrast::ofWindow(QWidget *window)
{
    return Reader(window).read();
}
