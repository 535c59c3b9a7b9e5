#ifndef FOLDERTREE_H
#define FOLDERTREE_H

#include "filedialog/OncePaintedTree.h"

#include <QPersistentModelIndex>
#include <QSet>

/**
 * The tree view of a FolderTreeDelegate: rows of files have no height, and it does not walk them.
 *
 * QTreeView asks for the height of rows without one over and over: whenever the pointer moves, a
 * part is painted or the size changes, it walks all files below the last folder. Here, once for
 * each layout, the file system tells which rows are folders, and nothing is looked for or painted
 * below the last of them.
 *
 * Without Q_OBJECT: to hosts and style sheets it is a QTreeView.
 */
class FolderTree : public OncePaintedTree
{
public:
    explicit FolderTree(QWidget *parent = nullptr);

    /// Whether the row of @p index was a folder at the last layout.
    bool showsRow(const QModelIndex &index) const;

    QModelIndex indexAt(const QPoint &point) const override;
    void doItemsLayout() override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;

protected:
    bool viewportEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;

private:
    void readFolders() const;
    void readFoldersBelow(const QModelIndex &parent) const;
    int rowsOnLastPage() const;
    int contentBottom() const;
    bool isBelowFolders(const QPoint &point) const { return point.y() >= contentBottom(); }
    void forgetFolders();

    // Filled when they are needed first after a layout.
    mutable bool foldersRead = false;
    mutable QSet<quintptr> folders; // by QModelIndex::internalId()
    mutable QPersistentModelIndex lastFolder; // the last one in the order of the rows
    mutable int rows = 0; // all that are laid out
    mutable int rowsBelow = 0; // of those, the ones below lastFolder
    mutable int bottom = -1; // the first line below it in the viewport, -1: not known
};

#endif // FOLDERTREE_H
