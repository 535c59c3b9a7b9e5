#include "Stage.h"

#include "Hand.h"
#include "MainWindow.h"
#include "SignalLog.h"
#include "pages/GalleryPage.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QScrollArea>
#include <QTextStream>
#include <QThread>

#include <atomic>
#include <memory>

namespace {

constexpr int PollInterval = 5; // milliseconds
constexpr int Patience = 10000; // milliseconds
constexpr int CalmPolls = 10;
constexpr int DragSteps = 5;
constexpr int BoxMiddle = 12; // of a check box, from its left

QWidget *topmost()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    return QApplication::activeModalWidget();
}

// Where a finger would go: the middle, but the box of a check box, whose row may be wider than its
// text.
QPoint placeToClick(const QWidget *widget)
{
    const QPoint middle = widget->rect().center();
    return widget->mapToGlobal(widget->inherits("QCheckBox") ? QPoint(BoxMiddle, middle.y())
                                                             : middle);
}

QModelIndex findRow(const QAbstractItemView *view, const QModelIndex &parent, const QString &text)
{
    const QAbstractItemModel *model = view->model();
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        if (index.data().toString() == text)
            return index;
        // Below folders only where the view shows what is in them.
        if (view->inherits("QTreeView") && view->visualRect(index).isValid()) {
            const QModelIndex below = findRow(view, index, text);
            if (below.isValid() && view->visualRect(below).isValid())
                return below;
        }
    }
    return QModelIndex();
}

// The middle of a row on the screen, with the row in sight.
QPoint placeOfRow(QAbstractItemView *view, const QString &text)
{
    const QModelIndex index = findRow(view, view->rootIndex(), text);
    view->scrollTo(index);
    return view->viewport()->mapToGlobal(view->visualRect(index).center());
}

} // namespace

Stage::Stage(MainWindow *gallery, const QString &folder)
    : galleryWindow(gallery)
    , folder(folder)
{}

void Stage::runInGui(const std::function<void()> &order)
{
    QMetaObject::invokeMethod(qApp, order, Qt::BlockingQueuedConnection);
}

void Stage::act(const std::function<void()> &action)
{
    const auto done = std::make_shared<std::atomic_bool>(false);
    const QWidget *before = ask<QWidget *>(topmost);
    QMetaObject::invokeMethod(qApp, [action, done] {
        action();
        *done = true;
    });
    await([&] { return *done || topmost() != before; }, QStringLiteral("an action to end"));
}

bool Stage::await(const std::function<bool()> &condition, const QString &what)
{
    for (int waited = 0; waited < Patience; waited += PollInterval) {
        if (holds(condition))
            return true;
        QThread::msleep(PollInterval);
    }
    const QString top = text([] {
        return topmost() ? QString::fromLatin1(topmost()->metaObject()->className())
                         : QStringLiteral("nothing");
    });
    trouble(QStringLiteral("waited in vain for %1, on top: %2").arg(what, top));
    return false;
}

bool Stage::awaitEnd()
{
    const bool ended = await([] { return !QApplication::activeModalWidget(); },
                             QStringLiteral("the dialog to go"));
    if (!ended)
        clear();
    return ended;
}

bool Stage::awaitTop(const QWidget *window)
{
    return await([=] { return QApplication::activeModalWidget() == window; },
                 QStringLiteral("the window above to go"));
}

QWidget *Stage::findChild(const QWidget *parent, const QString &name, const char *className)
{
    QWidget *found = nullptr;
    tell([&] {
        const QWidgetList all = parent ? parent->findChildren<QWidget *>(name) : QWidgetList();
        for (QWidget *candidate : all) {
            if (candidate->inherits(className) && (!found || candidate->isVisible()))
                found = candidate;
        }
    });
    if (!found)
        trouble(QStringLiteral("found no ") + name);
    return found;
}

QWidget *Stage::button(const QWidget *parent, int index)
{
    const QWidgetList buttons = ask<QWidgetList>([&] {
        QWidgetList visible;
        const auto all =
                parent ? parent->findChildren<QAbstractButton *>() : QList<QAbstractButton *>();
        for (QAbstractButton *candidate : all) {
            if (candidate->isVisible() && !candidate->text().isEmpty())
                visible.append(candidate);
        }
        return visible;
    });
    if (index < buttons.size())
        return buttons.at(index);
    trouble(QStringLiteral("found no button %1").arg(index));
    return nullptr;
}

void Stage::click(QWidget *widget)
{
    if (widget)
        act([widget] { Hand::click(widget->window(), placeToClick(widget)); });
}

void Stage::clickAt(QWidget *window, const QPoint &position)
{
    if (window)
        act([window, position] { Hand::click(window, position); });
}

void Stage::doubleClick(QWidget *widget)
{
    if (widget)
        act([widget] { Hand::doubleClick(widget->window(), placeToClick(widget)); });
}

void Stage::drag(QWidget *window, const QPoint &from, const QPoint &to)
{
    if (!window)
        return;
    act([=] {
        Hand::moveTo(window, from);
        Hand::press(window, from);
        for (int i = 1; i <= DragSteps; ++i)
            Hand::moveTo(window, from + (to - from) * i / DragSteps);
        Hand::release(window, to);
    });
}

void Stage::type(QWidget *edit, const QString &text)
{
    if (!edit)
        return;
    click(edit);
    act([=] {
        Hand::key(edit->window(), Qt::Key_A, Qt::ControlModifier);
        Hand::key(edit->window(), Qt::Key_Delete);
        Hand::type(edit->window(), text);
    });
}

void Stage::key(QWidget *window, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (window)
        act([=] { Hand::key(window, key, modifiers); });
}

bool Stage::awaitRow(QAbstractItemView *view, const QString &text)
{
    // A listing fills in bit by bit, and its rows move meanwhile.
    int rows = 0;
    int calmPolls = 0;
    return view
           && await(
                   [&] {
                       const int now = view->model()->rowCount(view->rootIndex());
                       calmPolls = now == rows ? calmPolls + 1 : 0;
                       rows = now;
                       return calmPolls >= CalmPolls
                              && findRow(view, view->rootIndex(), text).isValid();
                   },
                   QStringLiteral("the row ") + text);
}

void Stage::clickRow(QAbstractItemView *view, const QString &text)
{
    if (awaitRow(view, text))
        act([=] { Hand::click(view->window(), placeOfRow(view, text)); });
}

void Stage::doubleClickRow(QAbstractItemView *view, const QString &text)
{
    if (awaitRow(view, text))
        act([=] { Hand::doubleClick(view->window(), placeOfRow(view, text)); });
}

void Stage::openMenu(QAbstractItemView *view, const QString &text)
{
    if (!view || (!text.isEmpty() && !awaitRow(view, text)))
        return;
    const QPoint position = ask<QPoint>([&] {
        const QPoint free = view->viewport()->rect().bottomLeft() + QPoint(20, -20);
        return text.isEmpty() ? view->viewport()->mapToGlobal(free) : placeOfRow(view, text);
    });
    act([=] { Hand::press(view->window(), position, Qt::RightButton); });
    // The press has opened the menu, so the button goes up over it.
    if (auto *menu = window<QMenu>())
        act([=] { Hand::release(menu, position, Qt::RightButton); });
}

void Stage::chooseAction(int index)
{
    auto *menu = window<QMenu>();
    if (!menu)
        return;
    const QPoint position = ask<QPoint>([&] {
        return menu->mapToGlobal(menu->actionGeometry(menu->actions().value(index)).center());
    });
    clickAt(menu, position);
}

void Stage::openPage(int index)
{
    auto *list = child<QListWidget>(galleryWindow, "navigation");
    tell([this] { galleryWindow->activateWindow(); });
    const QPoint position = ask<QPoint>([&] {
        return list->viewport()->mapToGlobal(list->visualItemRect(list->item(index)).center());
    });
    clickAt(galleryWindow, position);
    settle();
}

void Stage::clickControl(const char *name)
{
    auto *widget = control<QWidget>(name);
    if (!widget)
        return;
    reveal(widget);
    click(widget);
}

// Controls further down a page come into sight by scrolling.
void Stage::reveal(QWidget *widget)
{
    tell([&] {
        for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
            if (auto *area = qobject_cast<QScrollArea *>(parent))
                area->ensureWidgetVisible(widget);
        }
    });
    settle();
}

void Stage::fill(const char *name, const QString &text)
{
    auto *edit = control<QWidget>(name);
    if (!edit)
        return;
    reveal(edit);
    type(edit, text);
}

void Stage::choose(const char *name, int index)
{
    auto *box = control<QComboBox>(name);
    if (!box)
        return;
    reveal(box);
    tell([box] { box->setFocus(); });
    key(galleryWindow, Qt::Key_Home);
    for (int i = 0; i < index; ++i)
        key(galleryWindow, Qt::Key_Down);
    await([=] { return box->currentIndex() == index; }, QStringLiteral("a choice"));
}

QString Stage::logged(const char *what)
{
    return text([&] { return galleryWindow->log()->newest(QLatin1String(what)); });
}

QWidget *Stage::galleryPage()
{
    return ask<QWidget *>([this] { return galleryWindow->currentPage(); });
}

void Stage::settle()
{
    tell([] {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    });
}

void Stage::step(const QString &name, bool passed, const QString &result,
                 const QList<QWidget *> &windows)
{
    const QString number = QStringLiteral("%1").arg(++steps, 2, 10, QLatin1Char('0'));
    const QString file = QStringLiteral("%1-%2.png").arg(number, QString(name).replace(u' ', u'-'));
    settle();
    if (!ask<bool>([&] { return savePicture(QDir(folder).filePath(file), windows); }))
        trouble(QStringLiteral("the picture cannot be written"));

    const bool fine = passed && troubles.isEmpty();
    QTextStream(stdout) << (fine ? "ok   " : "FAIL ") << number << ' ' << name << ": " << result
                        << (troubles.isEmpty() ? QString()
                                               : QStringLiteral(" [%1]").arg(
                                                       troubles.join(QLatin1String("; "))))
                        << '\n';
    failed += fine ? 0 : 1;
    troubles.clear();
}

void Stage::trouble(const QString &what)
{
    troubles.append(what);
}

void Stage::clear()
{
    tell([this] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (window != galleryWindow && window->isVisible())
                window->close();
        }
    });
    settle();
}

// One picture of all windows as they lie on the screen, the last one on top.
bool Stage::savePicture(const QString &file, const QList<QWidget *> &windows)
{
    QRect area;
    for (const QWidget *window : windows) {
        if (window && window->isVisible())
            area |= window->frameGeometry();
    }
    if (area.isEmpty())
        return false;
    QPixmap picture(area.size());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    for (QWidget *window : windows) {
        if (window && window->isVisible())
            painter.drawPixmap(window->frameGeometry().topLeft() - area.topLeft(), window->grab());
    }
    painter.end();
    pictureFiles.append(file);
    return picture.save(file);
}
