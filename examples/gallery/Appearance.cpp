#include "Appearance.h"

#include <QZelEncDialog.h>
#include <QZelFolderNameDialog.h>

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

// The library names this typeface; a free one of nearly the same measures stands in for it.
void substituteFonts()
{
    const QString standIn = QStringLiteral("WenQuanYi Micro Hei");
    const QStringList installed = QFontDatabase().families();
    const QStringList wanted { QStringLiteral("Microsoft YaHei"), QStringLiteral("微软雅黑") };
    for (const QString &family : wanted) {
        if (!installed.contains(family))
            QFont::insertSubstitution(family, standIn);
    }
}

QString sheet(const QString &name)
{
    QFile file(QStringLiteral(":/styles/%1.qss").arg(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

Appearance::Appearance(QObject *parent)
    : QObject(parent)
{
    substituteFonts();
    QApplication::setFont(QFont(QStringLiteral("Microsoft YaHei"), 10));
    qApp->installEventFilter(this);
}

void Appearance::setStyle(const QString &name)
{
    if (!styles().contains(name))
        return;
    currentStyle = name;
    qApp->setStyleSheet(sheet(name) + sheet(QStringLiteral("gallery-") + name));
}

void Appearance::setLanguage(const QString &name)
{
    qDeleteAll(translators);
    translators.clear();
    currentLanguage = name;
    QLocale::setDefault(QLocale(name));

    // Qt's own texts: all of them where its translations are installed, the few that the library's
    // windows show in any case. The translator installed last is asked first.
    const QString folder = QStringLiteral(":/translations");
    install(QStringLiteral("qt_") + name, folder);
    install(QStringLiteral("qtbase_") + name,
            QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    install(QStringLiteral("qtarnkit_") + name, folder);
    install(QStringLiteral("gallery_") + name, folder);
    Q_EMIT languageChanged();
}

// The library gives this content a sheet with a light ground of its own, which no style sheet of
// the application outranks. A dark host replaces it when the widget is about to be shown.
bool Appearance::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Polish && currentStyle == QLatin1String("dark")) {
        auto *widget = qobject_cast<QWidget *>(watched);
        const QObject *owner = widget ? widget->parent() : nullptr;
        if (widget && widget->styleSheet().startsWith(QLatin1String("background-color: #f2f3f5"))
            && (qobject_cast<const QZelEncDialog *>(owner)
                || qobject_cast<const QZelFolderNameDialog *>(owner)))
            widget->setStyleSheet(QString());
    }
    return QObject::eventFilter(watched, event);
}

void Appearance::install(const QString &file, const QString &folder)
{
    auto *translator = new QTranslator(this);
    if (translator->load(file, folder)) {
        QCoreApplication::installTranslator(translator);
        translators.append(translator);
    } else {
        delete translator;
    }
}
