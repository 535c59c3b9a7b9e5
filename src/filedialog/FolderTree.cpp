#include "filedialog/FolderTree.h"

#include <QDirIterator>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <QSignalBlocker>

namespace {

// Up to so many entries are looked at one by one.
constexpr int Few = 128;

// Of the file system, not of the model, whose flags may be older than the folder. The listing of
// the folder itself tells the kind of most entries without looking at each.
class Kinds
{
public:
    Kinds(const QString &folder, int rows)
        : prefix(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'))
        , listed(rows > Few && !folder.isEmpty() && QFileInfo(folder).isReadable())
    {
        if (!listed)
            return;
        QDirIterator entries(folder,
                             QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
        while (entries.hasNext()) {
            entries.next();
            names.insert(entries.fileName());
        }
    }

    bool isFolder(const QString &name) const
    {
        // What stands for bytes that are no text may name something else, or nothing.
        const bool exact = !name.contains(QChar::ReplacementCharacter);
        return listed && exact ? names.contains(name) : QFileInfo(prefix + name).isDir();
    }

private:
    QString prefix;
    bool listed;
    QSet<QString> names;
};

} // namespace

FolderTree::FolderTree(QWidget *parent)
    : OncePaintedTree(parent)
{
    connect(this, &QTreeView::expanded, this, &FolderTree::forgetFolders);
    connect(this, &QTreeView::collapsed, this, &FolderTree::forgetFolders);
}

bool FolderTree::showsRow(const QModelIndex &index) const
{
    readFolders();
    return folders.contains(index.internalId());
}

QModelIndex FolderTree::indexAt(const QPoint &point) const
{
    return isBelowFolders(point) ? QModelIndex() : QTreeView::indexAt(point);
}

void FolderTree::doItemsLayout()
{
    forgetFolders();
    QTreeView::doItemsLayout();
}

// A file may have become a folder of the same name.
void FolderTree::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                             const QVector<int> &roles)
{
    forgetFolders();
    QTreeView::dataChanged(topLeft, bottomRight, roles);
}

bool FolderTree::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::HoverEnter && event->type() != QEvent::HoverMove)
        return QTreeView::viewportEvent(event);
    const auto *hover = static_cast<QHoverEvent *>(event);
    if (!isBelowFolders(hover->pos()))
        return QTreeView::viewportEvent(event);
    // QTreeView looks for a branch under the pointer. Beside the columns it sees at once that there
    // is none, and still leaves the branch where the pointer was.
    const int beside = header()->length() + viewport()->width() + 1;
    QHoverEvent moved(hover->type(), QPointF(isRightToLeft() ? -beside : beside, hover->posF().y()),
                      hover->oldPosF(), hover->modifiers());
    return QTreeView::viewportEvent(&moved);
}

// Of the four below, QTreeView's own add only the search for a branch under the pointer, and for an
// item to expand.
void FolderTree::mousePressEvent(QMouseEvent *event)
{
    if (isBelowFolders(event->pos()))
        QAbstractItemView::mousePressEvent(event);
    else
        QTreeView::mousePressEvent(event);
}

void FolderTree::mouseMoveEvent(QMouseEvent *event)
{
    if (isBelowFolders(event->pos()))
        QAbstractItemView::mouseMoveEvent(event);
    else
        QTreeView::mouseMoveEvent(event);
}

void FolderTree::mouseReleaseEvent(QMouseEvent *event)
{
    if (isBelowFolders(event->pos()))
        QAbstractItemView::mouseReleaseEvent(event);
    else
        QTreeView::mouseReleaseEvent(event);
}

void FolderTree::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (!isBelowFolders(event->pos()))
        QTreeView::mouseDoubleClickEvent(event);
}

void FolderTree::paintEvent(QPaintEvent *event)
{
    if (alternatingRowColors()) { // they go on below the last row
        QTreeView::paintEvent(event);
        return;
    }
    const QRegion rows =
            event->region() & QRect(0, 0, viewport()->width(), qMax(0, contentBottom()));
    if (rows.isEmpty())
        return;
    QPaintEvent rowsOnly(rows);
    QTreeView::paintEvent(&rowsOnly);
}

void FolderTree::scrollContentsBy(int dx, int dy)
{
    bottom = -1;
    QTreeView::scrollContentsBy(dx, dy);
}

// QTreeView asks for each height from the last row upwards until a page is full: never, where that
// page is full of files. With uniform heights it asks for none, and the range is set here.
void FolderTree::updateGeometries()
{
    bottom = -1;
    if (uniformRowHeights() || verticalScrollMode() != ScrollPerItem) {
        QTreeView::updateGeometries();
        return;
    }
    QScrollBar *bar = verticalScrollBar();
    {
        const QSignalBlocker blocker(bar);
        const int maximum = bar->maximum();
        const int value = bar->value();
        setUniformRowHeights(true);
        QTreeView::updateGeometries();
        setUniformRowHeights(false);
        bar->setRange(0, maximum);
        bar->setValue(value);
    }
    readFolders();
    const int page = rowsOnLastPage();
    bar->setRange(0, rows - page);
    bar->setPageStep(page);
    bottom = -1;
}

void FolderTree::readFolders() const
{
    if (foldersRead)
        return;
    foldersRead = true;
    folders.clear();
    lastFolder = QModelIndex();
    rows = 0;
    rowsBelow = 0;
    if (model())
        readFoldersBelow(rootIndex());
}

void FolderTree::readFoldersBelow(const QModelIndex &parent) const
{
    const int count = model()->rowCount(parent);
    const Kinds kinds(parent.data(QFileSystemModel::FilePathRole).toString(), count);
    for (int row = 0; row < count; ++row) {
        if (isRowHidden(row, parent))
            continue;
        const QModelIndex index = model()->index(row, 0, parent);
        ++rows;
        ++rowsBelow;
        if (kinds.isFolder(index.data(QFileSystemModel::FileNameRole).toString())) {
            folders.insert(index.internalId());
            lastFolder = index;
            rowsBelow = 0;
        }
        if (isExpanded(index))
            readFoldersBelow(index);
    }
}

// How many rows are shown when the last one is, of those that the scroll bar counts.
int FolderTree::rowsOnLastPage() const
{
    int page = rowsBelow;
    int height = 0;
    for (QModelIndex index = lastFolder; index.isValid(); index = indexAbove(index)) {
        height += rowHeight(index);
        if (height > viewport()->height())
            break;
        ++page;
    }
    return qMax(page, qMin(rows, 1));
}

int FolderTree::contentBottom() const
{
    // By itself visualRect() lays out first, which may forget all of this.
    if (bottom < 0 || !foldersRead) {
        // As QTreeView's own const functions do.
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast)
        const_cast<FolderTree *>(this)->executeDelayedItemsLayout();
        readFolders();
        bottom = lastFolder.isValid() ? qMax(0, visualRect(lastFolder).bottom() + 1) : 0;
    }
    return bottom;
}

void FolderTree::forgetFolders()
{
    foldersRead = false;
    bottom = -1;
}
