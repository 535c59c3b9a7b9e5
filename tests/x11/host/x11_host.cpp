// x11_host SCENE: shows the windows of one scene and tells the driver about them.

#include "Reporter.h"
#include "Scenes.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    app.setQuitOnLastWindowClosed(false); // the driver asks questions to the end
    const Reporter reporter;
    if (argc != 2 || !Scenes::open(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "usage: x11_host SCENE\nscenes: %s\n",
                     qPrintable(Scenes::names().join(QLatin1Char(' '))));
        return 2;
    }
    const int status = QApplication::exec();
    Scenes::close();
    return status;
}
