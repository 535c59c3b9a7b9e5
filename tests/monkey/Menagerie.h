#ifndef MENAGERIE_H
#define MENAGERIE_H

#include "Dice.h"

#include <QDialog>
#include <QList>
#include <QPointer>

/// The windows that the monkey has opened and may destroy.
class Menagerie
{
public:
    Menagerie() = default;
    ~Menagerie();
    Q_DISABLE_COPY(Menagerie)

    /// Opens a window of any kind. Modal ones run here until they are closed.
    void open(Dice &dice);
    /// Calls an operation of one of the windows, or shows it again.
    void operate(Dice &dice);
    /// Destroys one of the windows, whatever is running inside or above it.
    void destroy(Dice &dice);
    void destroyAll();
    /// Ends the dialog that was run last and still is; false if there is none.
    bool endRunning();

    int opened() const { return openedWindows; }
    /// How many were destroyed while they, or a child of theirs, ran a loop.
    int destroyedUnderLoop() const { return destroyedRunning; }

private:
    QWidget *parent(Dice &dice);
    QWidget *any(Dice &dice);
    template <typename T>
    T *add(T *window);
    void openDialog(Dice &dice);
    void openBox(Dice &dice);
    void openFileDialog(Dice &dice);
    void openFunction(Dice &dice);
    void openManager(Dice &dice);
    void openWidget(Dice &dice);
    void openFrame(Dice &dice);
    void run(Dice &dice, QWidget *window);

    QList<QPointer<QWidget>> windows;
    QList<QPointer<QDialog>> running;
    int openedWindows = 0;
    int destroyedRunning = 0;
};

#endif // MENAGERIE_H
