#ifndef FILENAMERULES_H
#define FILENAMERULES_H

class QString;

namespace FileNameRules {

// The part after the last "/", the whole text without one.
QString lastPart(const QString &path);

// The text without one "/" at its end, if it has one.
QString withoutTrailingSlash(const QString &path);

// The text with a "/" at its end.
QString withTrailingSlash(const QString &path);

// A name without any "." gets the pattern, less its "*", as suffix: "*.txt" makes "report"
// "report.txt".
QString withFilterSuffix(const QString &name, const QString &pattern);

// A renamed file keeps its suffix: what follows the last "." of the typed name is replaced by it, a
// name without "." gets it appended. A name whose last "." comes first stays as typed.
QString withForcedSuffix(const QString &typedName, const QString &suffix);

} // namespace FileNameRules

#endif // FILENAMERULES_H
