#include "User.h"

#include "Pointer.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QWindow>

namespace {

constexpr int Patience = 5000; // milliseconds

void fail(const QString &what)
{
    QTest::qFail(qPrintable(what), __FILE__, __LINE__);
}

QModelIndex child(const QAbstractItemView *view, const QModelIndex &parent, const QString &name)
{
    const QAbstractItemModel *model = view->model();
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        if (index.data().toString() == name)
            return index;
    }
    return {};
}

QPoint screenPosition(QAbstractItemView *view, const QString &path)
{
    const QModelIndex index = User::item(view, path);
    view->scrollTo(index);
    const QRect row = view->visualRect(index);
    // Near the name's start: a narrow view shows no more of it.
    return view->viewport()->mapToGlobal(QPoint(row.left() + 12, row.center().y()));
}

// A menu opens at the press, and it is the menu that gets the release: before that, all the mouse
// does still goes to the view.
void rightClick(QAbstractItemView *view, const QPoint &position)
{
    const QPointer<QWidget> viewWindow(view->window());
    bool pressed = true;
    const auto release = [&] {
        pressed = false;
        QWidget *popup = QApplication::activePopupWidget();
        if (QWidget *window = popup ? popup : viewWindow.data())
            QTest::mouseRelease(window->windowHandle(), Qt::RightButton, Qt::NoModifier,
                                window->windowHandle()->mapFromGlobal(position));
    };
    QObject context;
    QTimer::singleShot(0, &context, release);
    Pointer(viewWindow).press(position, Qt::RightButton);
    if (pressed)
        release();
}

} // namespace

QWidget *User::findButton(QWidget *window, const QString &nameOrText)
{
    const auto buttons = window->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (button->isVisible() && button->window() == window
            && (button->objectName() == nameOrText || button->text() == nameOrText))
            return button;
    }
    return nullptr;
}

void User::clickButton(QWidget *window, const QString &nameOrText)
{
    if (QWidget *button = findButton(window, nameOrText))
        Pointer(window).click(middleOf(button));
    else
        fail(QStringLiteral("no button to click: ") + nameOrText);
}

void User::type(QLineEdit *edit, const QString &text)
{
    Pointer(edit->window()).click(middleOf(edit));
    QWindow *window = edit->window()->windowHandle();
    QTest::keyClick(window, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(window, Qt::Key_Delete);
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, QString(character),
                            Qt::NoModifier);
}

QModelIndex User::item(QAbstractItemView *view, const QString &path)
{
    QPersistentModelIndex index = view->rootIndex();
    const QStringList names = path.split(QLatin1Char('/'));
    for (const QString &name : names) {
        const QPersistentModelIndex parent = index;
        auto *tree = qobject_cast<QTreeView *>(view);
        if (tree && parent != view->rootIndex())
            tree->expand(parent);
        const bool listed = QTest::qWaitFor(
                [&] {
                    index = child(view, parent, name);
                    return index.isValid() && !view->visualRect(index).isEmpty();
                },
                Patience);
        if (!listed) {
            fail(QStringLiteral("not listed: ") + path);
            return {};
        }
    }
    // The model sorts once more after its rows have come.
    QCoreApplication::processEvents();
    return index;
}

QStringList User::items(const QAbstractItemView *view)
{
    QStringList names;
    for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
        names.append(view->model()->index(row, 0, view->rootIndex()).data().toString());
    return names;
}

void User::clickItem(QAbstractItemView *view, const QString &path, Qt::KeyboardModifiers modifiers)
{
    const QPoint position = screenPosition(view, path);
    QWindow *window = view->window()->windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, modifiers, window->mapFromGlobal(position));
}

void User::doubleClickItem(QAbstractItemView *view, const QString &path)
{
    const QPoint position = screenPosition(view, path);
    Pointer(view->window()).doubleClick(position);
}

void User::rightClickItem(QAbstractItemView *view, const QString &path)
{
    rightClick(view, screenPosition(view, path));
}

void User::rightClickAt(QAbstractItemView *view, const QPoint &position)
{
    rightClick(view, view->viewport()->mapToGlobal(position));
}

void User::rightClickBlank(QAbstractItemView *view)
{
    const QWidget *viewport = view->viewport();
    const QPoint position = viewport->mapToGlobal(viewport->rect().bottomLeft() + QPoint(30, -10));
    rightClick(view, position);
}

void User::choose(QMenu *menu, const QString &text)
{
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (action->text() == text) {
            Pointer(menu).click(menu->mapToGlobal(menu->actionGeometry(action).center()));
            return;
        }
    }
    fail(QStringLiteral("no such action: ") + text);
}

QStringList User::texts(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions)
        texts.append(action->text());
    return texts;
}
