#ifndef MARKINGTRANSLATOR_H
#define MARKINGTRANSLATOR_H

#include <QTranslator>

/// While it lives, every translated text is "[context|key]": a test sees which key was looked up,
/// and in which context.
class MarkingTranslator : public QTranslator
{
public:
    MarkingTranslator();
    ~MarkingTranslator() override;

    bool isEmpty() const override;
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;
};

#endif // MARKINGTRANSLATOR_H
