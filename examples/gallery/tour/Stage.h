#ifndef STAGE_H
#define STAGE_H

#include <QApplication>
#include <QStringList>
#include <QWidget>

#include <functional>

class MainWindow;
class QAbstractItemView;

/// What a script of the tour works with. A script runs in a thread of its own, so that it reads
/// from top to bottom: a dialog's exec() keeps the GUI thread, not the script. All that touches a
/// widget runs in the GUI thread, through ask() and act(), which the other functions are made of.
///
/// A function that does not find what it needs notes the trouble; the next step() then fails.
class Stage
{
public:
    Stage(MainWindow *gallery, const QString &folder);

    MainWindow *gallery() const { return galleryWindow; }
    int failures() const { return failed; }
    QStringList pictures() const { return pictureFiles; }

    /// Asks the GUI thread and returns its answer.
    template <typename Answer>
    Answer ask(const std::function<Answer()> &question)
    {
        Answer answer {};
        runInGui([&] { answer = question(); });
        return answer;
    }
    bool holds(const std::function<bool()> &condition) { return ask<bool>(condition); }
    QString text(const std::function<QString()> &question) { return ask<QString>(question); }
    void tell(const std::function<void()> &order) { runInGui(order); }

    /// Has the GUI thread do something that may open a window with an event loop of its own, and
    /// returns when it is done or such a window has come or gone.
    void act(const std::function<void()> &action);

    /// Waits until something holds, at most ten seconds; a false result is noted as trouble.
    bool await(const std::function<bool()> &condition, const QString &what);

    /// Waits until no modal window is left; closes those that do not go.
    bool awaitEnd();

    /// Waits until this modal window is on top again.
    bool awaitTop(const QWidget *window);

    /// Waits for a visible window of a class.
    template <typename Window>
    Window *window()
    {
        Window *found = nullptr;
        await([&] { return (found = visible<Window>()) != nullptr; },
              QString::fromLatin1(Window::staticMetaObject.className()));
        return found;
    }

    /// A child by object name; of several, the visible one.
    template <typename Child>
    Child *child(const QWidget *parent, const char *name)
    {
        return qobject_cast<Child *>(
                findChild(parent, QLatin1String(name), Child::staticMetaObject.className()));
    }

    /// The visible button of a row or window, counted from 0; close buttons do not count.
    QWidget *button(const QWidget *parent, int index);

    void click(QWidget *widget);
    void clickAt(QWidget *window, const QPoint &position);
    void doubleClick(QWidget *widget);
    /// Drags with the left button, in steps; positions are on the screen.
    void drag(QWidget *window, const QPoint &from, const QPoint &to);
    /// Clicks into an edit, empties it and types.
    void type(QWidget *edit, const QString &text);
    void key(QWidget *window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Waits until a view has filled and shows a row of this text.
    bool awaitRow(QAbstractItemView *view, const QString &text);
    void clickRow(QAbstractItemView *view, const QString &text);
    void doubleClickRow(QAbstractItemView *view, const QString &text);
    /// Opens the context menu of a row, or of the free area below all rows for an empty text.
    void openMenu(QAbstractItemView *view, const QString &text);
    /// Clicks an entry of the open menu, counted from 0.
    void chooseAction(int index);

    /// Brings a page of the gallery up, counted from 0, and clicks one of its controls.
    void openPage(int index);
    void clickControl(const char *name);
    void fill(const char *name, const QString &text);
    void choose(const char *name, int index);
    template <typename Control>
    Control *control(const char *name)
    {
        return child<Control>(galleryPage(), name);
    }

    /// The value of the newest line of the log about a signal or call.
    QString logged(const char *what);

    /// Lets whatever was started settle: events, layouts, hover.
    void settle();

    /// Ends a step: takes one picture of the windows, each at its place on the screen, and prints
    /// the outcome.
    void step(const QString &name, bool passed, const QString &result,
              const QList<QWidget *> &windows);

    /// Notes what went wrong.
    void trouble(const QString &what);

    /// Closes every window that a failed script left open.
    void clear();

private:
    template <typename Window>
    static Window *visible()
    {
        if (auto *modal = qobject_cast<Window *>(QApplication::activeModalWidget()))
            return modal;
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *candidate : windows) {
            auto *match = qobject_cast<Window *>(candidate);
            if (match && match->isVisible())
                return match;
        }
        return nullptr;
    }

    void runInGui(const std::function<void()> &order);
    QWidget *findChild(const QWidget *parent, const QString &name, const char *className);
    QWidget *galleryPage();
    void reveal(QWidget *widget);
    bool savePicture(const QString &file, const QList<QWidget *> &windows);

    MainWindow *galleryWindow = nullptr;
    QString folder;
    QStringList pictureFiles;
    QStringList troubles;
    int steps = 0;
    int failed = 0;
};

#endif // STAGE_H
