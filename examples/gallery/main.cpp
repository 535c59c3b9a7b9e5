#include "Appearance.h"
#include "MainWindow.h"
#include "tour/Tour.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QStyleFactory>
#include <QTextStream>

namespace {

struct Options
{
    QString tourFolder;
    QString style;
    QString language;
    QString fault;
};

QString systemLanguage()
{
    return QLocale::system().language() == QLocale::Chinese ? QStringLiteral("zh_CN")
                                                            : QStringLiteral("en");
}

Options parsed(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every window of QTarnKit at work."));
    parser.addHelpOption();
    const QCommandLineOption tour(
            QStringLiteral("tour"),
            QStringLiteral("Drive every window and write a picture of each step into <folder>."),
            QStringLiteral("folder"));
    const QCommandLineOption style(QStringLiteral("style"), QStringLiteral("light or dark."),
                                   QStringLiteral("style"), QStringLiteral("light"));
    const QCommandLineOption language(QStringLiteral("language"), QStringLiteral("en or zh_CN."),
                                      QStringLiteral("language"), systemLanguage());
    parser.addOptions({ tour, style, language });
    parser.process(arguments);

    Options options { parser.value(tour), parser.value(style), parser.value(language), QString() };
    if (parser.isSet(tour) && options.tourFolder.isEmpty())
        options.fault = QStringLiteral("--tour needs a folder");
    else if (!Appearance::styles().contains(options.style))
        options.fault = QStringLiteral("no such style: ") + options.style;
    else if (!Appearance::languages().contains(options.language))
        options.fault = QStringLiteral("no such language: ") + options.language;
    else if (!parser.positionalArguments().isEmpty())
        options.fault = QStringLiteral("unknown: ") + parser.positionalArguments().constFirst();
    return options;
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    // Qt would take --style for its own.
    int programName = 1;
    QApplication app(programName, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));

    const Options options = parsed(arguments);
    if (!options.fault.isEmpty()) {
        QTextStream(stderr) << "gallery: " << options.fault << '\n';
        return 2;
    }

    Appearance appearance;
    appearance.setLanguage(options.language);
    appearance.setStyle(options.style);
    MainWindow window(&appearance);
    if (!options.tourFolder.isEmpty())
        return Tour(&window, options.tourFolder).run();
    window.show();
    return QApplication::exec();
}
