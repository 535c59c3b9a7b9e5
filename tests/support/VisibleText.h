#ifndef VISIBLETEXT_H
#define VISIBLETEXT_H

#include <QRegularExpression>
#include <QString>
#include <QTextDocument>

/// What a reader sees of a text that a label or a tool tip takes for markup when it looks like it.
inline QString visibleText(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

/// A text as a text document gives it back, which knows one line end only.
inline QString asShown(QString text)
{
    return text.replace(QRegularExpression(QStringLiteral("[\r\u2028\u2029]")),
                        QStringLiteral("\n"));
}

#endif // VISIBLETEXT_H
