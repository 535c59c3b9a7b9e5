#include "TestMain.h"

#include <filedialog/OncePaintedTree.h>

#include <QHeaderView>
#include <QImage>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTimer>

namespace {

/// Counts the paint events of a widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

    int count = 0;
};

} // namespace

/// Compares the view with a plain one: it looks the same, after fewer paints.
class tst_OncePaintedTree : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void toOthersItIsATreeView();
    void aResizePaintsOnce_data();
    void aResizePaintsOnce();
    void aSectionThatIsResizedAloneIsRepainted();

private:
    QImage picture(QTreeView *view) const { return view->grab().toImage(); }

    std::unique_ptr<QStandardItemModel> model;
    std::unique_ptr<OncePaintedTree> ours;
    std::unique_ptr<QTreeView> plain;
};

void tst_OncePaintedTree::init()
{
    model = std::make_unique<QStandardItemModel>(40, 3);
    for (int row = 0; row < model->rowCount(); ++row) {
        for (int column = 0; column < model->columnCount(); ++column)
            model->setItem(row, column, new QStandardItem(QString::number(row * 7919 + column)));
    }
    ours = std::make_unique<OncePaintedTree>();
    plain = std::make_unique<QTreeView>();
    for (QTreeView *view : { static_cast<QTreeView *>(ours.get()), plain.get() }) {
        view->setModel(model.get());
        view->setItemsExpandable(false);
        view->resize(400, 300);
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view));
    }
    QCoreApplication::processEvents();
}

void tst_OncePaintedTree::cleanup()
{
    ours.reset();
    plain.reset();
    model.reset();
}

void tst_OncePaintedTree::toOthersItIsATreeView()
{
    QCOMPARE(ours->metaObject()->className(), "QTreeView");
}

void tst_OncePaintedTree::aResizePaintsOnce_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("hiddenHeader");
    QTest::newRow("wider") << QSize(520, 300) << false;
    QTest::newRow("narrower") << QSize(330, 300) << false;
    QTest::newRow("narrower than the columns") << QSize(150, 300) << false;
    QTest::newRow("higher") << QSize(400, 420) << false;
    QTest::newRow("both") << QSize(470, 200) << false;
    QTest::newRow("no header") << QSize(520, 280) << true;
}

void tst_OncePaintedTree::aResizePaintsOnce()
{
    QFETCH(QSize, size);
    QFETCH(bool, hiddenHeader);
    int counts[2] = {};
    for (QTreeView *view : { static_cast<QTreeView *>(ours.get()), plain.get() }) {
        view->setHeaderHidden(hiddenHeader);
        QTRY_COMPARE(view->header()->isVisible(), !hiddenHeader);
        QCoreApplication::processEvents();
        PaintCounter paints(view->viewport());
        view->resize(size);
        QTRY_VERIFY(paints.count > 0);
        // The second paint of a plain view comes with a zero timer: one that starts later is last.
        QTimer last;
        last.setSingleShot(true);
        last.start(0);
        QTRY_VERIFY(!last.isActive());
        QCoreApplication::processEvents();
        counts[view == plain.get()] = paints.count;
    }
    QVERIFY2(counts[0] <= counts[1], qPrintable(QString::number(counts[0])));
    QCOMPARE(counts[0], 1);
    QCOMPARE(ours->header()->sectionSize(2), plain->header()->sectionSize(2));
    QCOMPARE(ours->horizontalScrollBar()->maximum(), plain->horizontalScrollBar()->maximum());
    QCOMPARE(picture(ours.get()), picture(plain.get()));
}

void tst_OncePaintedTree::aSectionThatIsResizedAloneIsRepainted()
{
    PaintCounter paints(ours->viewport());
    for (QTreeView *view : { static_cast<QTreeView *>(ours.get()), plain.get() })
        view->header()->resizeSection(0, 160);
    QTRY_VERIFY(paints.count > 0);
    QCOMPARE(picture(ours.get()), picture(plain.get()));
    ours->header()->resizeSection(1, 400);
    QTRY_VERIFY(ours->horizontalScrollBar()->maximum() > 0);
}

QTARNKIT_TEST_MAIN(tst_OncePaintedTree)
#include "tst_OncePaintedTree.moc"
