#include "TestMain.h"
#include "VisibleText.h"

#include <ColumnToolTipDelegate.h>

#include <QApplication>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QTreeView>

class tst_ColumnToolTipDelegate : public TestCase
{
    Q_OBJECT

public:
    tst_ColumnToolTipDelegate();

private Q_SLOTS:
    void init();
    void itHasNoMetaObjectOfItsOwn();
    void everyCellShowsItsDisplayText_data();
    void everyCellShowsItsDisplayText();
    void theTipHasNoWidgetAndStandsAtTheEventsPosition();
    void anEmptyTextHidesTheTip();
    void hoveringOverAViewShowsTheCellUnderThePointer();
    void whereThereIsNoItemTheBaseHidesTheTip();
    void otherHelpEventsGoToTheBase();
    void aMissingEventOrViewIsIgnored();

private:
    static QWidget *tipWindow();
    bool help(QEvent::Type type, const QModelIndex &index);
    bool hover(const QPoint &position);

    QStandardItemModel model;
    QTreeView view;
    ColumnToolTipDelegate delegate;
    // Of the offscreen platform, when a tip comes to the front.
    const WarningGuard raising { QStringLiteral("^This plugin does not support raise\\(\\)$") };
};

tst_ColumnToolTipDelegate::tst_ColumnToolTipDelegate()
{
    model.setHorizontalHeaderLabels({ QStringLiteral("Name"), QStringLiteral("Size") });
    auto *first = new QStandardItem(QStringLiteral("report.txt"));
    first->setToolTip(QStringLiteral("the tip role"));
    first->setWhatsThis(QStringLiteral("the help role"));
    model.appendRow({ first, new QStandardItem(QStringLiteral("12 KiB")) });
    model.appendRow({ new QStandardItem(QString()),
                      new QStandardItem(QStringLiteral("a long text that does not fit")) });
    model.appendRow({ new QStandardItem(QStringLiteral("<b>bold</b> & two\nlines")),
                      new QStandardItem(QStringLiteral("7")) });
    view.setModel(&model);
    view.setItemDelegate(&delegate);
    view.header()->resizeSection(0, 120);
    view.resize(300, 200);
}

// A tip that is told to go stays a little longer.
void tst_ColumnToolTipDelegate::init()
{
    QToolTip::hideText();
    QTRY_VERIFY(!tipWindow());
}

QWidget *tst_ColumnToolTipDelegate::tipWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits("QTipLabel") && window->isVisible())
            return window;
    }
    return nullptr;
}

bool tst_ColumnToolTipDelegate::help(QEvent::Type type, const QModelIndex &index)
{
    QHelpEvent event(type, QPoint(5, 5), QPoint(40, 50));
    return delegate.helpEvent(&event, &view, QStyleOptionViewItem(), index);
}

bool tst_ColumnToolTipDelegate::hover(const QPoint &position)
{
    QHelpEvent event(QEvent::ToolTip, position, view.viewport()->mapToGlobal(position));
    return QApplication::sendEvent(view.viewport(), &event);
}

void tst_ColumnToolTipDelegate::itHasNoMetaObjectOfItsOwn()
{
    QCOMPARE(delegate.metaObject(), &QStyledItemDelegate::staticMetaObject);
    QObject owner;
    QCOMPARE((new ColumnToolTipDelegate(&owner))->parent(), &owner);
}

void tst_ColumnToolTipDelegate::everyCellShowsItsDisplayText_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::newRow("name, not the tip role") << 0 << 0;
    QTest::newRow("second column") << 0 << 1;
    QTest::newRow("elided text") << 1 << 1;
    QTest::newRow("markup and a newline") << 2 << 0;
}

void tst_ColumnToolTipDelegate::everyCellShowsItsDisplayText()
{
    QFETCH(int, row);
    QFETCH(int, column);
    const QModelIndex index = model.index(row, column);
    QVERIFY(help(QEvent::ToolTip, index));
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(visibleText(QToolTip::text()), index.data().toString());
    QToolTip::hideText();
    QTRY_VERIFY(!tipWindow());
}

void tst_ColumnToolTipDelegate::theTipHasNoWidgetAndStandsAtTheEventsPosition()
{
    QVERIFY(help(QEvent::ToolTip, model.index(0, 0)));
    QWidget *tip = tipWindow();
    QVERIFY(tip);
    QVERIFY(!tip->parentWidget());
    const QPoint placed = tip->pos();

    // The same tip at another place moves by the same distance.
    QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), QPoint(40, 50) + QPoint(100, 30));
    QVERIFY(delegate.helpEvent(&event, &view, QStyleOptionViewItem(), model.index(0, 1)));
    QCOMPARE(tipWindow()->pos(), placed + QPoint(100, 30));
    QToolTip::hideText();
    QTRY_VERIFY(!tipWindow());
}

void tst_ColumnToolTipDelegate::anEmptyTextHidesTheTip()
{
    QVERIFY(help(QEvent::ToolTip, model.index(0, 0)));
    QVERIFY(tipWindow());
    QVERIFY(help(QEvent::ToolTip, model.index(1, 0)));
    QTRY_VERIFY(!tipWindow());
}

void tst_ColumnToolTipDelegate::hoveringOverAViewShowsTheCellUnderThePointer()
{
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    for (int column = 0; column < 2; ++column) {
        const QModelIndex index = model.index(0, column);
        QVERIFY(hover(view.visualRect(index).center()));
        QCOMPARE(QToolTip::text(), index.data().toString());
    }
    view.hide();
    QToolTip::hideText();
    QTRY_VERIFY(!tipWindow());
}

void tst_ColumnToolTipDelegate::whereThereIsNoItemTheBaseHidesTheTip()
{
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    hover(view.visualRect(model.index(0, 0)).center());
    QVERIFY(tipWindow());
    const QPoint blank = view.viewport()->rect().bottomLeft() + QPoint(10, -5);
    QVERIFY(!view.indexAt(blank).isValid());
    hover(blank);
    QTRY_VERIFY(!tipWindow());
    QVERIFY(!help(QEvent::ToolTip, QModelIndex()));
    view.hide();
}

void tst_ColumnToolTipDelegate::otherHelpEventsGoToTheBase()
{
    QVERIFY(help(QEvent::QueryWhatsThis, model.index(0, 0)));
    QVERIFY(!help(QEvent::QueryWhatsThis, model.index(0, 1)));
    QVERIFY(!tipWindow());
}

void tst_ColumnToolTipDelegate::aMissingEventOrViewIsIgnored()
{
    QVERIFY(!delegate.helpEvent(nullptr, &view, QStyleOptionViewItem(), model.index(0, 0)));
    QHelpEvent event(QEvent::ToolTip, QPoint(), QPoint(40, 50));
    QVERIFY(delegate.helpEvent(&event, nullptr, QStyleOptionViewItem(), model.index(0, 0)));
    QCOMPARE(QToolTip::text(), QStringLiteral("report.txt"));
    QToolTip::hideText();
    QTRY_VERIFY(!tipWindow());
}

QTARNKIT_TEST_MAIN(tst_ColumnToolTipDelegate)
#include "tst_ColumnToolTipDelegate.moc"
