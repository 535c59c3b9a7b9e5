#include "filedialog/FolderTreeDelegate.h"

#include "filedialog/FolderTree.h"

FolderTreeDelegate::FolderTreeDelegate(const FolderTree *tree, QObject *parent)
    : DirItemStyledDelegate(parent)
    , tree(tree)
{}

QSize FolderTreeDelegate::sizeHint(const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    if (option.widget == tree && index.model() == tree->model() && !tree->showsRow(index))
        return {};
    return DirItemStyledDelegate::sizeHint(option, index);
}
