#ifndef COLUMNTOOLTIPDELEGATE_H
#define COLUMNTOOLTIPDELEGATE_H

#include "QTarnKitGlobal.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QModelIndex>
#include <QStyledItemDelegate>
#include <QToolTip>

/**
 * Shows a cell's display text as its tool tip, in every column, whether it is elided or not.
 *
 * @code
 * listing->setItemDelegate(new ColumnToolTipDelegate(listing));
 * @endcode
 */
class QTARNKIT_EXPORT ColumnToolTipDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Shows the tool tip of a valid cell; everything else is left to QAbstractItemDelegate.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override
    {
        if (event && event->type() == QEvent::ToolTip && index.isValid()) {
            QToolTip::showText(event->globalPos(), index.data(Qt::DisplayRole).toString());
            return true;
        }
        return QAbstractItemDelegate::helpEvent(event, view, option, index);
    }
};

#endif // COLUMNTOOLTIPDELEGATE_H
