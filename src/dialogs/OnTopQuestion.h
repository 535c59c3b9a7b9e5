#ifndef ONTOPQUESTION_H
#define ONTOPQUESTION_H

class QString;

namespace OnTopQuestion {

// The two message types that are asked for this way; the values are QUIMessageBox's.
enum Type { Warning = 2, Question = 4 };

// Runs a message box above everything else and returns whether Confirm or Yes ended it. The texts
// come translated, in the caller's own context. Whoever calls this may have been destroyed meanwhile.
bool run(const QString &title, const QString &text, Type type);

} // namespace OnTopQuestion

#endif // ONTOPQUESTION_H
