#ifndef TEXTMARKER_H
#define TEXTMARKER_H

#include <QCoreApplication>
#include <QTranslator>

/// While it lives, every text that is looked up reads "<context|source>".
class TextMarker : public QTranslator
{
public:
    TextMarker() { QCoreApplication::installTranslator(this); }

    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QStringLiteral("<%1|%2>").arg(QString::fromUtf8(context), QString::fromUtf8(source));
    }
    bool isEmpty() const override { return false; }
};

#endif // TEXTMARKER_H
