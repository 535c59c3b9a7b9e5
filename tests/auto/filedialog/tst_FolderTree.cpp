#include "FtpFolder.h"
#include "TestMain.h"

#include <filedialog/FolderTree.h>
#include <filedialog/FolderTreeDelegate.h>

#include <DirItemStyledDelegate.h>

#include <QDir>
#include <QFileSystemModel>
#include <QHoverEvent>
#include <QImage>
#include <QScrollBar>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

namespace {

QString s(const char *text)
{
    return QString::fromLatin1(text);
}

QStringList files(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(s("file %1.txt").arg(i));
    return names;
}

/// Counts the rows whose height is asked for.
class CountingDelegate : public FolderTreeDelegate
{
public:
    using FolderTreeDelegate::FolderTreeDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        ++count;
        return FolderTreeDelegate::sizeHint(option, index);
    }

    mutable int count = 0;
};

} // namespace

/// Compares the tree with a plain one that asks the delegate for each row: nothing may differ.
class tst_FolderTree : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void toOthersItIsATreeView();
    void itShowsWhatAPlainTreeShows_data();
    void itShowsWhatAPlainTreeShows();
    void itScrollsAsAPlainTree();
    void itFollowsTheSize();
    void itFollowsExpandingAndCollapsing();
    void itFollowsTheFolder();
    void itFollowsTheOrder();
    void aFileThatBecomesAFolderIsShown();
    void hiddenRowsStayHidden();
    void fewEntriesAndManyAreToldApartAlike_data();
    void fewEntriesAndManyAreToldApartAlike();
    void withPixelScrollingItIsAPlainTree();
    void alternatingColoursGoOnBelowTheLastFolder();
    void theHoveredRowIsLeftForTheBlankArea_data();
    void theHoveredRowIsLeftForTheBlankArea();
    void clicksBelowTheLastFolderHitNothing();
    void thePointerBelowTheLastFolderWalksNoRows();
    void thePlainDelegateIsAskedForOtherViews();

private:
    void show(const QStringList &entries);
    void compare();
    QString path(const QString &name) const { return folder->filePath(name); }
    QModelIndex index(const QString &name) const { return model->index(path(name)); }
    template <typename Change>
    void inBoth(Change change)
    {
        change(ours.get());
        change(plain.get());
    }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<QFileSystemModel> model;
    std::unique_ptr<FolderTree> ours;
    std::unique_ptr<QTreeView> plain;
};

void tst_FolderTree::init()
{
    folder = std::make_unique<QTemporaryDir>();
    model = std::make_unique<QFileSystemModel>();
    ours = std::make_unique<FolderTree>();
    ours->setItemDelegate(new FolderTreeDelegate(ours.get(), ours.get()));
    plain = std::make_unique<QTreeView>();
    plain->setItemDelegate(new DirItemStyledDelegate(plain.get()));
}

void tst_FolderTree::cleanup()
{
    ours.reset();
    plain.reset();
    model.reset();
    folder.reset();
}

void tst_FolderTree::show(const QStringList &entries)
{
    QVERIFY(makeEntries(folder->path(), entries));
    const QModelIndex root = model->setRootPath(folder->path());
    inBoth([&](QTreeView *tree) {
        tree->setModel(model.get());
        tree->setRootIndex(root);
        tree->setHeaderHidden(true);
        for (int column = 1; column < model->columnCount(); ++column)
            tree->hideColumn(column);
        tree->resize(200, 150);
        tree->show();
    });
    const int rows = QDir(folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size();
    QTRY_COMPARE(model->rowCount(root), rows);
    QCoreApplication::processEvents();
}

void tst_FolderTree::compare()
{
    QCoreApplication::processEvents();
    QCOMPARE(ours->verticalScrollBar()->maximum(), plain->verticalScrollBar()->maximum());
    QCOMPARE(ours->verticalScrollBar()->pageStep(), plain->verticalScrollBar()->pageStep());
    QCOMPARE(ours->verticalScrollBar()->value(), plain->verticalScrollBar()->value());
    QCOMPARE(ours->horizontalScrollBar()->maximum(), plain->horizontalScrollBar()->maximum());
    QCOMPARE(ours->viewport()->size(), plain->viewport()->size());
    for (int y = -5; y < plain->viewport()->height() + 5; ++y) {
        const QPoint point(60, y);
        QVERIFY2(ours->indexAt(point) == plain->indexAt(point), qPrintable(QString::number(y)));
    }
    for (int row = 0; row < model->rowCount(plain->rootIndex()); ++row) {
        const QModelIndex index = model->index(row, 0, plain->rootIndex());
        QCOMPARE(ours->visualRect(index), plain->visualRect(index));
    }
    QCOMPARE(ours->grab().toImage(), plain->grab().toImage());
}

void tst_FolderTree::toOthersItIsATreeView()
{
    QCOMPARE(ours->metaObject()->className(), "QTreeView");
}

void tst_FolderTree::itShowsWhatAPlainTreeShows_data()
{
    QTest::addColumn<QStringList>("entries");
    QStringList manyFolders;
    for (int i = 0; i < 30; ++i)
        manyFolders.append(s("folder %1/").arg(i));
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("files") << files(40);
    QTest::newRow("more files than are looked at one by one") << files(200);
    QTest::newRow("folders") << QStringList({ s("a/"), s("b/") });
    QTest::newRow("some of both") << files(40) + QStringList({ s("a/"), s("b/"), s("c/") });
    QTest::newRow("many of both") << files(200) + manyFolders;
    QTest::newRow("more folders than fit") << manyFolders;
}

void tst_FolderTree::itShowsWhatAPlainTreeShows()
{
    QFETCH(QStringList, entries);
    show(entries);
    compare();
}

void tst_FolderTree::itScrollsAsAPlainTree()
{
    show(files(30)
         + QStringList({ s("a/"), s("b/"), s("c/"), s("d/"), s("e/"), s("f/"), s("g/"), s("h/"),
                         s("i/"), s("j/"), s("k/"), s("l/") }));
    const int last = plain->verticalScrollBar()->maximum();
    QVERIFY(last > 0);
    for (const int value : { 1, 3, last, 0 }) {
        inBoth([&](QTreeView *tree) { tree->verticalScrollBar()->setValue(value); });
        compare();
    }
    inBoth([&](QTreeView *tree) { tree->scrollTo(index(s("l"))); });
    compare();
}

void tst_FolderTree::itFollowsTheSize()
{
    show(files(30) + QStringList({ s("a/"), s("b/"), s("c/"), s("d/"), s("e/"), s("f/") }));
    for (const QSize size : { QSize(220, 150), QSize(220, 60), QSize(60, 60), QSize(300, 400) }) {
        inBoth([&](QTreeView *tree) { tree->resize(size); });
        compare();
    }
}

void tst_FolderTree::itFollowsExpandingAndCollapsing()
{
    show(files(10) + QStringList({ s("a/inner/"), s("a/inner file"), s("b/") }));
    model->fetchMore(index(s("a")));
    QTRY_COMPARE(model->rowCount(index(s("a"))), 2);
    inBoth([&](QTreeView *tree) { tree->expand(index(s("a"))); });
    compare();
    inBoth([&](QTreeView *tree) { tree->collapse(index(s("a"))); });
    compare();
    inBoth([&](QTreeView *tree) { tree->expand(index(s("a"))); });
    inBoth([&](QTreeView *tree) { tree->setRootIndex(index(s("a"))); });
    compare();
}

void tst_FolderTree::itFollowsTheFolder()
{
    show(files(10) + QStringList({ s("a/"), s("c/") }));
    QVERIFY(QDir(folder->path()).mkdir(s("b")));
    QVERIFY(makeEntries(folder->path(), { s("another file") }));
    QTRY_COMPARE(model->rowCount(plain->rootIndex()), 14);
    compare();
    QVERIFY(QDir(folder->path()).rmdir(s("c")));
    QVERIFY(QFile::remove(path(s("file 3.txt"))));
    QTRY_COMPARE(model->rowCount(plain->rootIndex()), 12);
    compare();
}

void tst_FolderTree::itFollowsTheOrder()
{
    show(files(20) + QStringList({ s("a/"), s("b/"), s("c/") }));
    model->sort(0, Qt::DescendingOrder); // the folders come last
    compare();
    QVERIFY(ours->verticalScrollBar()->maximum() >= 0);
    model->sort(0, Qt::AscendingOrder);
    compare();
}

void tst_FolderTree::aFileThatBecomesAFolderIsShown()
{
    show(files(3) + QStringList({ s("a/") }));
    QVERIFY(!ours->indexAt(QPoint(60, ours->visualRect(index(s("a"))).bottom() + 5)).isValid());
    QVERIFY(QFile::remove(path(s("file 1.txt"))));
    QVERIFY(QDir(folder->path()).mkdir(s("file 1.txt")));
    QTRY_VERIFY(ours->visualRect(index(s("file 1.txt"))).height() > 0);
}

void tst_FolderTree::hiddenRowsStayHidden()
{
    show(files(5) + QStringList({ s("a/"), s("b/"), s("c/") }));
    const int hidden = index(s("c")).row();
    inBoth([&](QTreeView *tree) { tree->setRowHidden(hidden, tree->rootIndex(), true); });
    compare();
}

void tst_FolderTree::fewEntriesAndManyAreToldApartAlike_data()
{
    QTest::addColumn<int>("others");
    QTest::newRow("few") << 1;
    QTest::newRow("many") << 200;
}

void tst_FolderTree::fewEntriesAndManyAreToldApartAlike()
{
    QFETCH(int, others);
    const QString folderPath = folder->path();
    QVERIFY(makeEntries(folderPath, { s("folder/"), s("file") }));
    QVERIFY(QFile::link(s("folder"), path(s("link to a folder"))));
    QVERIFY(QFile::link(s("file"), path(s("link to a file"))));
    QVERIFY(QFile::link(s("link to itself"), path(s("link to itself"))));
    // Bytes that are no text: the name that the model has for it leads nowhere.
    const QByteArray noText = QFile::encodeName(folderPath) + "/no text \xff";
    QVERIFY(::mkdir(noText.constData(), 0755) == 0);
    show(files(others));
    compare();
    QVERIFY(ours->showsRow(index(s("folder"))));
    QVERIFY(ours->showsRow(index(s("link to a folder"))));
    QVERIFY(!ours->showsRow(index(s("link to a file"))));
    QVERIFY(!ours->showsRow(index(s("file"))));
    QVERIFY(::rmdir(noText.constData()) == 0); // QTemporaryDir cannot
}

void tst_FolderTree::withPixelScrollingItIsAPlainTree()
{
    inBoth([](QTreeView *tree) { tree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel); });
    show(files(20)
         + QStringList({ s("a/"), s("b/"), s("c/"), s("d/"), s("e/"), s("f/"), s("g/"), s("h/") }));
    compare();
    inBoth([](QTreeView *tree) { tree->verticalScrollBar()->setValue(10); });
    compare();
}

void tst_FolderTree::alternatingColoursGoOnBelowTheLastFolder()
{
    inBoth([](QTreeView *tree) { tree->setAlternatingRowColors(true); });
    show(files(20) + QStringList({ s("a/") }));
    compare();
}

void tst_FolderTree::theHoveredRowIsLeftForTheBlankArea_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_FolderTree::theHoveredRowIsLeftForTheBlankArea()
{
    QFETCH(Qt::LayoutDirection, direction);
    inBoth([&](QTreeView *tree) { tree->setLayoutDirection(direction); });
    show(files(20) + QStringList({ s("a/inner/"), s("b/") }));
    const QRect row = ours->visualRect(index(s("a")));
    const bool mirrored = direction == Qt::RightToLeft;
    const QPoint onBranch(mirrored ? row.right() + 10 : row.left() - 10, row.center().y());
    const QPoint onRow = row.center();
    const QPoint below(onRow.x(), ours->viewport()->height() - 5);
    const QPoint belowBranch(onBranch.x(), below.y());
    QPoint before(-1, -1);
    for (const QPoint point :
         { onRow, below, below + QPoint(0, 1), onRow, onBranch, belowBranch, onBranch, below }) {
        inBoth([&](QTreeView *tree) {
            QHoverEvent move(QEvent::HoverMove, point, before);
            QCoreApplication::sendEvent(tree->viewport(), &move);
        });
        before = point;
        compare();
    }
    inBoth([&](QTreeView *tree) {
        QHoverEvent leave(QEvent::HoverLeave, QPoint(-1, -1), before);
        QCoreApplication::sendEvent(tree->viewport(), &leave);
    });
    compare();
}

void tst_FolderTree::clicksBelowTheLastFolderHitNothing()
{
    show(files(20) + QStringList({ s("a/inner/"), s("b/") }));
    const QPoint onRow = ours->visualRect(index(s("b"))).center();
    const QPoint onBranch = ours->visualRect(index(s("a"))).center() - QPoint(onRow.x() - 10, 0);
    const QPoint below(60, ours->viewport()->height() - 5);
    QStringList log[2];
    inBoth([&](QTreeView *tree) {
        tree->setSelectionMode(
                QAbstractItemView::ExtendedSelection); // a click on nothing clears it
        QStringList *said = &log[tree == plain.get()];
        connect(tree, &QTreeView::pressed, tree, [said] { said->append(s("pressed")); });
        connect(tree, &QTreeView::clicked, tree, [said] { said->append(s("clicked")); });
        connect(tree, &QTreeView::doubleClicked, tree, [said] { said->append(s("double")); });
        connect(tree, &QTreeView::activated, tree, [said] { said->append(s("activated")); });
        connect(tree, &QTreeView::expanded, tree, [said] { said->append(s("expanded")); });
        QWidget *viewport = tree->viewport();
        for (const QPoint point : { onRow, below, onBranch, below }) {
            QTest::mouseClick(viewport, Qt::LeftButton, {}, point);
            said->append(s("%1 selected").arg(tree->selectionModel()->selectedRows().size()));
        }
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, below);
        // From a row to the blank area and back, pressed.
        QTest::mousePress(viewport, Qt::LeftButton, {}, onRow);
        for (const QPoint point : { below, onRow, below }) {
            QMouseEvent move(QEvent::MouseMove, point, Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(viewport, &move);
        }
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, below);
        said->append(s("%1 selected").arg(tree->selectionModel()->selectedRows().size()));
    });
    QCOMPARE(log[0], log[1]);
    QVERIFY(log[0].contains(s("expanded")));
    QVERIFY(log[0].contains(s("clicked")));
    QVERIFY(log[0].contains(s("0 selected")));
    inBoth([](QTreeView *tree) { tree->clearFocus(); });
    compare();
}

void tst_FolderTree::thePointerBelowTheLastFolderWalksNoRows()
{
    auto *delegate = new CountingDelegate(ours.get(), ours.get());
    ours->setItemDelegate(delegate);
    show(files(50) + QStringList({ s("a/") }));
    QWidget *viewport = ours->viewport();
    const QPoint below(60, viewport->height() - 5);
    ours->indexAt(below);
    QVERIFY(delegate->count > 0);
    delegate->count = 0;
    for (const QEvent::Type type : { QEvent::HoverEnter, QEvent::HoverMove }) {
        QHoverEvent hover(type, below, QPoint(-1, -1));
        QCoreApplication::sendEvent(viewport, &hover);
    }
    QTest::mouseClick(viewport, Qt::LeftButton, {}, below);
    QTest::mouseDClick(viewport, Qt::LeftButton, {}, below);
    QMouseEvent move(QEvent::MouseMove, below, Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(viewport, &move);
    QCOMPARE(delegate->count, 0);
}

void tst_FolderTree::thePlainDelegateIsAskedForOtherViews()
{
    show({ s("a/") });
    QVERIFY(QDir(folder->path()).rmdir(s("a")));
    // Another view's option: the file system is asked anew.
    QCOMPARE(ours->itemDelegate()->sizeHint(QStyleOptionViewItem(), index(s("a"))), QSize(-1, -1));
}

QTARNKIT_TEST_MAIN(tst_FolderTree)
#include "tst_FolderTree.moc"
