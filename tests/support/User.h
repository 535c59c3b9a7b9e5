#ifndef USER_H
#define USER_H

#include <QAbstractItemView>
#include <QLineEdit>
#include <QMenu>
#include <QWidget>

/// What a user does to a dialog, with real events that enter through its window. What an action
/// opens may run an event loop of its own: the functions then return when that has ended.
namespace User {

/// The visible button of a window, by object name or text; null when there is none.
QWidget *findButton(QWidget *window, const QString &nameOrText);

/// Clicks that button. Without one the test fails.
void clickButton(QWidget *window, const QString &nameOrText);

/// Replaces what the edit holds by typing.
void type(QLineEdit *edit, const QString &text);

/// The item of this name below the view's root, as soon as it is listed; invalid and a failure of
/// the test when it does not come. A path leads through folders of a tree, which it expands.
QModelIndex item(QAbstractItemView *view, const QString &path);

/// What the view lists below its root.
QStringList items(const QAbstractItemView *view);

void clickItem(QAbstractItemView *view, const QString &path,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void doubleClickItem(QAbstractItemView *view, const QString &path);
void rightClickItem(QAbstractItemView *view, const QString &path);
/// At a position of the view's viewport.
void rightClickAt(QAbstractItemView *view, const QPoint &position);
/// Below the last row.
void rightClickBlank(QAbstractItemView *view);

/// Clicks the action of this text in an open menu.
void choose(QMenu *menu, const QString &text);

QStringList texts(const QMenu *menu);

} // namespace User

#endif // USER_H
