#include "MarkingTranslator.h"

#include <QCoreApplication>

MarkingTranslator::MarkingTranslator()
{
    QCoreApplication::installTranslator(this);
}

MarkingTranslator::~MarkingTranslator()
{
    QCoreApplication::removeTranslator(this);
}

bool MarkingTranslator::isEmpty() const
{
    return false;
}

QString MarkingTranslator::translate(const char *context, const char *sourceText,
                                     const char *disambiguation, int n) const
{
    Q_UNUSED(disambiguation)
    Q_UNUSED(n)
    return QStringLiteral("[%1|%2]").arg(QLatin1String(context), QLatin1String(sourceText));
}
