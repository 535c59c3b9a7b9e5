#ifndef FOLDERTREEDELEGATE_H
#define FOLDERTREEDELEGATE_H

#include "filedialog/DirItemStyledDelegate.h"

class FolderTree;

/// Answers its tree, which asks for the size of every row, from what the tree knows of its files.
class FolderTreeDelegate : public DirItemStyledDelegate
{
public:
    FolderTreeDelegate(const FolderTree *tree, QObject *parent);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    const FolderTree *tree;
};

#endif // FOLDERTREEDELEGATE_H
