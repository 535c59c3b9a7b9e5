#ifndef ONCEPAINTEDTREE_H
#define ONCEPAINTEDTREE_H

#include <QTreeView>

/**
 * A tree view whose viewport is painted once when the view is resized.
 *
 * The header resizes its last column with the view, and QTreeView repaints the column a turn of the
 * event loop later: after the whole viewport was painted in its new size.
 *
 * Without Q_OBJECT: to hosts and style sheets it is a QTreeView.
 */
class OncePaintedTree : public QTreeView
{
public:
    explicit OncePaintedTree(QWidget *parent = nullptr);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    bool resizing = false;
};

#endif // ONCEPAINTEDTREE_H
