#ifndef TOUR_H
#define TOUR_H

#include "Stage.h"

/// Drives every window of the library with real events, writes a picture of each step and says what
/// came of it.
class Tour
{
public:
    Tour(MainWindow *gallery, const QString &folder);

    /// Runs all steps. Returns 0 when each gave what it should, 1 otherwise.
    int run();

private:
    void play();

    MainWindow *gallery = nullptr;
    QString folder;
    Stage stage;
};

#endif // TOUR_H
