#ifndef TESTFOLDER_H
#define TESTFOLDER_H

#include <QString>

/// Folders to open, made when first asked for and removed with the program's end.
namespace TestFolder {

enum Kind {
    FilesOnly,
    WithFolders, ///< every tenth entry is an empty folder
    WithSmallFolder ///< files, and one folder with ten files of its own
};

/// Entries of smallFolder().
constexpr int SmallSize = 10;

/// The path of a folder with @p size entries.
QString path(int size, Kind kind);

/// Name of the one folder in a folder of the kind WithSmallFolder.
QString smallFolder();

/// Name filters that let one suffix, five suffixes and all files of a folder through.
QString onePattern();
QString fivePatterns();
QString allPatterns();

/// How many of @p size files they let through.
int acceptedByOne(int size);
int acceptedByFive(int size);

/// Makes one more file in @p folder, and removes it again.
void addFile(const QString &folder);
void removeFile(const QString &folder);

} // namespace TestFolder

#endif // TESTFOLDER_H
