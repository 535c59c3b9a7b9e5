#ifndef COLUMNTOOLTIPDELEGATE_H
#define COLUMNTOOLTIPDELEGATE_H

#include "QTarnKitGlobal.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QModelIndex>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QToolTip>

/**
 * Shows a cell's display text as its tool tip, in every column, whether it is elided or not. Markup
 * in it is shown as it stands.
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
            // A file's name may be markup, which would even read the image that it names.
            const QString text = index.data(Qt::DisplayRole).toString();
            QToolTip::showText(event->globalPos(),
                               Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text);
            return true;
        }
        return QAbstractItemDelegate::helpEvent(event, view, option, index);
    }
};

#endif // COLUMNTOOLTIPDELEGATE_H
