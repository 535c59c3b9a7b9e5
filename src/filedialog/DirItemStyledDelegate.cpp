#include "filedialog/DirItemStyledDelegate.h"

#include <QFileInfo>
#include <QFileSystemModel>

namespace {

// Of the file system itself: the model's flags may be older than the folder.
bool isFolder(const QModelIndex &index)
{
    return QFileInfo(index.data(QFileSystemModel::FilePathRole).toString()).isDir();
}

} // namespace

DirItemStyledDelegate::DirItemStyledDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{}

DirItemStyledDelegate::~DirItemStyledDelegate() = default;

void DirItemStyledDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    if (isFolder(index))
        QStyledItemDelegate::paint(painter, option, index);
}

QSize DirItemStyledDelegate::sizeHint(const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const
{
    return isFolder(index) ? QStyledItemDelegate::sizeHint(option, index) : QSize();
}
