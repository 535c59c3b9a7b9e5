#ifndef SCENES_H
#define SCENES_H

#include <QStringList>

/// The windows that the driver works on.
namespace Scenes {

QStringList names();

/// Opens the windows of scene @p name. False for an unknown name.
bool open(const QString &name);

/// Destroys all windows.
void close();

} // namespace Scenes

#endif // SCENES_H
