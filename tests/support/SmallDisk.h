#ifndef SMALLDISK_H
#define SMALLDISK_H

#include <QString>

/// A file system with room for a few files only, which tests/support/private-root mounts when
/// QTARNKIT_SMALL_DISK is set.
namespace SmallDisk {

/// "/root/small", without a slash at its end.
QString path();

/// Empties it. Returns false when there is none.
bool reset();

/// Leave no room for another byte, or for another entry. Return false when there still is.
bool fill();
bool fillWithEntries();

} // namespace SmallDisk

#endif // SMALLDISK_H
