// A host that ends in a given state of the one message box of the process:
// boxAtExit SCENARIO. Says "done" just before main() returns.

#include <QApplication>
#include <QByteArray>
#include <QUIMessageBox.h>

#include <cstdio>
#include <memory>

using QTarnKit::QUIMessageBox;

namespace {

bool prepare(const QByteArray &scenario)
{
    if (scenario == "never used")
        return true;
    QUIMessageBox *box = QUIMessageBox::Instance();
    if (scenario == "never shown")
        return true;
    box->setMessage(QStringLiteral("Saved"), 1, scenario == "counting down" ? 60 : 0);
    box->show();
    QCoreApplication::processEvents();
    if (!box->isVisible())
        return false;
    if (scenario == "hidden")
        box->hide();
    else if (scenario == "closed")
        box->close();
    else if (scenario == "custom buttons cleared")
        box->SetCustButtons({ QStringLiteral("a") }), box->ClearCustButtons();
    return true;
}

int run(const QByteArray &scenario)
{
    const bool good = prepare(scenario);
    std::puts(good ? "done" : "not visible");
    std::fflush(stdout);
    return good ? 0 : 2;
}

} // namespace

int main(int argc, char *argv[])
{
    const QByteArray scenario(argc > 1 ? argv[1] : "");
    if (scenario == "static application") {
        // Outlives the box, which is younger.
        static QApplication app(argc, argv);
        return run(scenario);
    }
    if (scenario == "application never destroyed") {
        static QApplication *app = new QApplication(argc, argv);
        return app ? run(scenario) : 3;
    }
    QApplication app(argc, argv);
    return run(scenario);
}
