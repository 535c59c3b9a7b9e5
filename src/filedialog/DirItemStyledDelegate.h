#ifndef DIRITEMSTYLEDDELEGATE_H
#define DIRITEMSTYLEDDELEGATE_H

#include "QTarnKitGlobal.h"

#include <QStyledItemDelegate>

/**
 * Makes a tree over a QFileSystemModel show folders only: everything else paints nothing and takes
 * no room.
 *
 * Set it on a view whose model also serves a listing of files; it needs no second model and no
 * filter:
 *
 * @code
 * tree->setItemDelegate(new DirItemStyledDelegate(tree));
 * @endcode
 *
 * What is a folder is asked of the file system each time, not of the model; a symbolic link to a
 * folder counts as one. The view does not take ownership of the delegate; the parent does.
 */
class QTARNKIT_EXPORT DirItemStyledDelegate : public QStyledItemDelegate
{
public:
    /// Creates the delegate; @p parent owns it.
    explicit DirItemStyledDelegate(QObject *parent);
    ~DirItemStyledDelegate() override;

    /// Paints a folder as usual and nothing for everything else.
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// The usual size for a folder, the invalid size (-1, -1) for everything else.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

#endif // DIRITEMSTYLEDDELEGATE_H
