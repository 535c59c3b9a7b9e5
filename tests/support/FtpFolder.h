#ifndef FTPFOLDER_H
#define FTPFOLDER_H

#include <QString>
#include <QStringList>

/// The device's fixed folder, private to this test run.
namespace FtpFolder {

/// "/root/zeltempfiles/ftp", without a slash at its end.
QString path();

/// Whether the folder is private, so that a test may fill and empty it. Run the test through
/// tests/support/private-root when it is not.
bool isPrivate();

/// Empties the folder, making it if need be, and makes @p entries in it: folders for names that end
/// with "/", with all folders above them, and files that hold their own name for the others.
/// Returns false when the folder is not private or an entry could not be made.
bool reset(const QStringList &entries = {});

} // namespace FtpFolder

/// Makes @p entries below @p folder, as FtpFolder::reset() does.
bool makeEntries(const QString &folder, const QStringList &entries);

#endif // FTPFOLDER_H
