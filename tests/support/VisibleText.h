#ifndef VISIBLETEXT_H
#define VISIBLETEXT_H

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

#endif // VISIBLETEXT_H
