#ifndef CONTACTSHEET_H
#define CONTACTSHEET_H

#include <QStringList>

namespace ContactSheet {

/// Writes one picture with a thumbnail of each of these, with its name below.
bool write(const QString &file, const QStringList &pictures);

} // namespace ContactSheet

#endif // CONTACTSHEET_H
