#ifndef PAWS_H
#define PAWS_H

#include "Dice.h"

#include <Qt>

class Windows;

/// What a user and the window system do to the windows on the screen. Each function does one thing.
class Paws
{
public:
    explicit Paws(Windows &windows)
        : windows(windows)
    {}

    void useMouse(Dice &dice);
    void useKeys(Dice &dice);
    /// Shows, hides, closes, resizes, maximises a window or makes it active.
    void handleWindow(Dice &dice);
    /// Lets a timer of a window fire.
    void fireTimer(Dice &dice);
    /// Closes a drag, a pop-up or a modal window, whichever is in front; false if none is.
    static bool closeTop();

private:
    struct Touch; // where, with which button, on which window

    void move(const Touch &touch);
    void press(const Touch &touch);
    void release(const Touch &touch);
    void click(const Touch &touch);

    Windows &windows;
    Qt::MouseButtons held; // buttons that are down
    int now = 0; // the mouse's clock, in milliseconds
};

#endif // PAWS_H
