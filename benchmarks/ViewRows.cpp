#include "Browser.h"
#include "EventLoop.h"
#include "Row.h"
#include "TestFolder.h"

#include <QDir>
#include <QFileSystemModel>
#include <QLocale>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

// What the tree pane measures at the dialog's size; the stock tree gets the same.
constexpr QSize TreePane(300, 430);

class Shown : public Task
{
public:
    Shown(Side side, int size, TestFolder::Kind kind, Browser::Mode mode = Browser::OneFile)
    {
        const QString folder = TestFolder::path(size, kind);
        browser = Browser::open(side, folder, mode);
        browser->waitForRows(folder, size);
    }

protected:
    std::unique_ptr<Browser> browser;
};

class Resize : public Shown
{
public:
    using Shown::Shown;

    void work() override
    {
        constexpr int Step = 20;
        wide = !wide;
        QDialog *window = browser->window();
        window->resize(window->width() + (wide ? Step : -Step), window->height());
        EventLoop::settle();
    }

private:
    bool wide = false;
};

// Every listing of ours gets hover events; a stock view does once its style sheet colours the row
// under the pointer.
class HoverList : public Shown
{
public:
    using Shown::Shown;

    // Half a row each time: some moves stay in a row, others change it.
    void work() override
    {
        constexpr int Rows = 10;
        const QTreeView *list = browser->list();
        const int rowHeight = list->visualRect(list->indexAt(QPoint(1, 1))).height();
        step = (step + 1) % (2 * Rows);
        const QPoint inViewport(20, rowHeight / 4 + step * rowHeight / 2);
        EventLoop::hover(list->viewport(), inViewport);
        EventLoop::settle();
    }

private:
    int step = 0;
};

class SelectAll : public Shown
{
public:
    SelectAll(Side side, int size, bool keep)
        : Shown(side, size, TestFolder::FilesOnly, Browser::ManyFiles)
    {
        if (keep)
            browser->keepSelections();
    }

    void prepare() override
    {
        browser->list()->clearSelection();
        EventLoop::settle();
    }

    void work() override
    {
        browser->list()->selectAll();
        EventLoop::settle();
    }
};

// The folder tree in its dialog. QFileDialog has none: stock is a window of the same shape with a
// QTreeView over a model of folders only, which is what an application would write.
class FolderTree : public Task
{
public:
    FolderTree(Side side, int size, TestFolder::Kind kind)
    {
        const QString folder = TestFolder::path(size, kind);
        if (side == Side::Ours)
            openOurs(folder, size);
        else
            openStock(folder);
        viewport = tree->viewport();
        if (tree->size() != TreePane)
            qFatal("the tree pane is %d x %d", tree->width(), tree->height());
    }

protected:
    QTreeView *tree = nullptr;
    QWidget *viewport = nullptr;

private:
    void openOurs(const QString &folder, int size)
    {
        browser = Browser::open(Side::Ours, folder);
        browser->waitForRows(folder, size);
        tree = browser->window()->findChild<QTreeView *>(QStringLiteral("treeV_FileTree"));
        browser->window()->resize(browser->window()->size()
                                  + QSize(0, TreePane.height() - tree->height()));
        tree->setFixedWidth(TreePane.width());
        EventLoop::settle();
    }

    void openStock(const QString &folder)
    {
        stock = std::make_unique<QDialog>();
        auto *layout = new QVBoxLayout(stock.get());
        layout->setContentsMargins(0, 0, 0, 0);
        auto *splitter = new QSplitter;
        layout->addWidget(splitter);
        tree = new QTreeView;
        splitter->addWidget(tree);
        splitter->addWidget(new QTreeView);

        auto *model = new QFileSystemModel(tree);
        model->setFilter(QDir::Dirs | QDir::NoDotAndDotDot);
        tree->setModel(model);
        tree->setRootIndex(model->setRootPath(folder));
        tree->setHeaderHidden(true);
        for (int column = 1; column < model->columnCount(); ++column)
            tree->hideColumn(column);

        tree->setFixedSize(TreePane);
        bool loaded = false;
        QObject receiver;
        QObject::connect(model, &QFileSystemModel::directoryLoaded, &receiver,
                         [&loaded] { loaded = true; });
        stock->show();
        EventLoop::waitUntil([&loaded] { return loaded; });
        EventLoop::settle();
    }

    std::unique_ptr<Browser> browser;
    std::unique_ptr<QDialog> stock;
};

class RepaintTree : public FolderTree
{
public:
    using FolderTree::FolderTree;
    void work() override { viewport->repaint(); }
};

class HoverTree : public FolderTree
{
public:
    using FolderTree::FolderTree;

    // Over the lower half, which is blank where no folders are.
    void work() override
    {
        step = (step + 1) % Steps;
        const QPoint inViewport(TreePane.width() / 2, TreePane.height() / 2 + 7 * step);
        EventLoop::hover(viewport, inViewport);
        EventLoop::settle();
    }

private:
    static constexpr int Steps = 20;
    int step = 0;
};

struct Kind
{
    const char *series;
    const char *title;
    TestFolder::Kind kind;
};

constexpr Kind Kinds[] = {
    { "-files-", ", %1 files", TestFolder::FilesOnly },
    { "-mixed-", ", %1 entries, a tenth of them folders", TestFolder::WithFolders },
};

constexpr int SizeWithGoal = 10'000;

Row row(const QString &series, const QString &title, int size, double goal)
{
    Row row;
    row.series = series;
    row.name = series + QString::number(size);
    row.title = title.arg(QLocale(QLocale::English).toString(size));
    row.size = size;
    row.goal = size == SizeWithGoal ? goal : 0;
    row.pairs = size > SizeWithGoal ? 3 : 9;
    return row;
}

template <class T>
void addViewRows(Rows &rows, const char *series, const char *title, int size, double goal)
{
    for (const Kind &kind : Kinds) {
        Row added = row(QLatin1String(series) + QLatin1String(kind.series),
                        QLatin1String(title) + QLatin1String(kind.title), size, goal);
        added.inner = size > SizeWithGoal ? 2 : 10;
        added.counted = size == SizeWithGoal ? 10 : 0;
        added.make = makerOf<T>(size, kind.kind);
        rows.push_back(added);
    }
}

} // namespace

Rows viewRows()
{
    Rows rows;
    for (const int size : { 10, 100, 1'000, 10'000, 100'000, 200'000 }) {
        addViewRows<Resize>(rows, "resize", "Resize by 20 pixels with repaint", size, 1.5);
        addViewRows<HoverTree>(rows, "hover-tree", "Hover over the tree", size, 1.0);
        addViewRows<HoverList>(rows, "hover-list", "Hover over the listing", size, 1.0);
        addViewRows<RepaintTree>(rows, "repaint-tree", "Repaint of the tree", size, 1.5);
        rows.push_back(row(QStringLiteral("select-all-"),
                           QStringLiteral("Select all of %1 files, nobody listening"), size, 1.0));
        rows.back().make = makerOf<SelectAll>(size, false);
        // The lists together grow with the square of the size.
        if (size > SizeWithGoal)
            continue;
        rows.push_back(row(QStringLiteral("select-kept-"),
                           QStringLiteral("Select all of %1 files, a listener keeps each list"),
                           size, 3.0));
        rows.back().make = makerOf<SelectAll>(size, true);
    }
    return rows;
}
