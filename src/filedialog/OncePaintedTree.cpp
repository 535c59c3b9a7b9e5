#include "filedialog/OncePaintedTree.h"

#include <QHeaderView>

OncePaintedTree::OncePaintedTree(QWidget *parent)
    : QTreeView(parent)
{
    disconnect(header(), &QHeaderView::sectionResized, this, nullptr);
    connect(header(), &QHeaderView::sectionResized, this,
            [this](int column, int oldSize, int newSize) {
                if (!resizing)
                    columnResized(column, oldSize, newSize);
            });
}

void OncePaintedTree::resizeEvent(QResizeEvent *event)
{
    resizing = true;
    QTreeView::resizeEvent(event);
    resizing = false;
}
