#include "SignalLog.h"

#include <QHeaderView>
#include <QTime>

namespace {

enum Column { TimeColumn, SourceColumn, WhatColumn, ValueColumn };

constexpr int MaximumLines = 500;
constexpr int ColumnWidths[] = { 100, 170, 210 };

} // namespace

SignalLog::SignalLog(QWidget *parent)
    : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("signalLog"));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setColumnCount(ValueColumn + 1);
    header()->setSectionsMovable(false);
    for (int column = TimeColumn; column < ValueColumn; ++column)
        setColumnWidth(column, ColumnWidths[column]);
}

void SignalLog::retranslate()
{
    setHeaderLabels({ tr("Time"), tr("Class"), tr("Signal or call"), tr("Value") });
}

void SignalLog::add(const QString &source, const QString &what, const QString &value)
{
    const QString now = QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz"));
    auto *line = new QTreeWidgetItem(this, { now, source, what, value });
    line->setToolTip(ValueColumn, value);
    if (topLevelItemCount() > MaximumLines)
        delete takeTopLevelItem(0);
    scrollToItem(line);
}

QString SignalLog::newest(const QString &what) const
{
    for (int i = topLevelItemCount() - 1; i >= 0; --i) {
        if (topLevelItem(i)->text(WhatColumn) == what)
            return topLevelItem(i)->text(ValueColumn);
    }
    return QString();
}
