#ifndef APPEARANCE_H
#define APPEARANCE_H

#include <QObject>
#include <QStringList>

class QTranslator;

/// What a host brings to the library: fonts, a style sheet and translations. Both of the latter can
/// be changed while the application runs.
class Appearance : public QObject
{
    Q_OBJECT

public:
    explicit Appearance(QObject *parent = nullptr);

    static QStringList styles() { return { QStringLiteral("light"), QStringLiteral("dark") }; }
    static QStringList languages() { return { QStringLiteral("en"), QStringLiteral("zh_CN") }; }

    QString style() const { return currentStyle; }
    QString language() const { return currentLanguage; }

    /// Sets the style sheet; @p name is one of styles().
    void setStyle(const QString &name);

    /// Installs the translations; @p name is one of languages(). Windows built before keep their
    /// texts until someone sets them anew.
    void setLanguage(const QString &name);

    /// Takes the light ground from the content of the input dialogs in the dark style.
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void languageChanged();

private:
    void install(const QString &file, const QString &folder);

    QString currentStyle;
    QString currentLanguage;
    QList<QTranslator *> translators;
};

#endif // APPEARANCE_H
