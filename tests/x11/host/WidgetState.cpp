#include "WidgetState.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionSlider>
#include <QTextEdit>
#include <QTreeView>
#include <QVariant>
#include <QWindow>

namespace {

QJsonArray toJson(const QRect &rect)
{
    return { rect.x(), rect.y(), rect.width(), rect.height() };
}

QRect onScreen(const QWidget *widget, const QRect &rect)
{
    return { widget->mapToGlobal(rect.topLeft()), rect.size() };
}

QJsonObject item(const QString &text, const QRect &rect)
{
    return { { QStringLiteral("text"), text }, { QStringLiteral("rect"), toJson(rect) } };
}

QJsonArray rowsOf(const QTreeView *view)
{
    QJsonArray rows;
    const QRect seen = view->viewport()->rect();
    QModelIndex index = view->indexAt(seen.topLeft() + QPoint(1, 1));
    for (; index.isValid(); index = view->indexBelow(index)) {
        const QRect rect = view->visualRect(index) & seen;
        if (!rect.isEmpty())
            rows.append(item(index.data().toString(), onScreen(view->viewport(), rect)));
    }
    return rows;
}

QJsonArray entriesOf(const QMenu *menu)
{
    QJsonArray entries;
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions)
        entries.append(item(action->text(), onScreen(menu, menu->actionGeometry(action))));
    return entries;
}

QRect handleOf(const QSlider *slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    option.tickPosition = slider->tickPosition();
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                           slider);
}

// Of a check box without text Qt takes clicks on the indicator only.
QRect indicatorOf(const QCheckBox *box)
{
    QStyleOptionButton option;
    option.initFrom(box);
    return box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box);
}

QString textOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->text();
    if (const auto *edit = qobject_cast<const QTextEdit *>(widget))
        return edit->toPlainText();
    return QString();
}

QJsonObject ofWidget(const QWidget *widget)
{
    QJsonObject state {
        { QStringLiteral("name"), widget->objectName() },
        { QStringLiteral("class"), QLatin1String(widget->metaObject()->className()) },
        { QStringLiteral("rect"), toJson(onScreen(widget, widget->rect())) },
        { QStringLiteral("text"), textOf(widget) },
        { QStringLiteral("focus"), widget->hasFocus() && widget->isActiveWindow() },
        { QStringLiteral("windowState"), widget->property("windowState").toString() },
    };
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        state.insert(QStringLiteral("shown"), edit->displayText());
    if (const auto *box = qobject_cast<const QSpinBox *>(widget))
        state.insert(QStringLiteral("value"), box->value());
    if (const auto *box = qobject_cast<const QCheckBox *>(widget))
        state.insert(QStringLiteral("handle"), toJson(onScreen(box, indicatorOf(box))));
    if (const auto *slider = qobject_cast<const QSlider *>(widget))
        state.insert(QStringLiteral("handle"), toJson(onScreen(slider, handleOf(slider))));
    if (const auto *view = qobject_cast<const QTreeView *>(widget))
        state.insert(QStringLiteral("items"), rowsOf(view));
    if (const auto *menu = qobject_cast<const QMenu *>(widget))
        state.insert(QStringLiteral("items"), entriesOf(menu));
    return state;
}

} // namespace

QJsonObject WidgetState::ofWindow(const QWidget *window)
{
    QJsonArray widgets { ofWidget(window) };
    const QList<QWidget *> children = window->findChildren<QWidget *>();
    for (const QWidget *child : children) {
        if (child->window() == window && child->isVisible())
            widgets.append(ofWidget(child));
    }
    return {
        { QStringLiteral("class"), QLatin1String(window->metaObject()->className()) },
        { QStringLiteral("name"), window->objectName() },
        { QStringLiteral("id"), static_cast<qint64>(window->windowHandle()->winId()) },
        { QStringLiteral("rect"), toJson(window->geometry()) },
        { QStringLiteral("state"), static_cast<int>(window->windowState() & ~Qt::WindowActive) },
        { QStringLiteral("widgets"), widgets },
    };
}
