#include "FtpFolder.h"
#include "TestMain.h"

#include <filedialog/ListingModel.h>

#include <QApplication>
#include <QFileIconProvider>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

namespace {

QString s(const char *text)
{
    return QString::fromLatin1(text);
}

QStringList rowsOf(const QAbstractItemModel &model, const QModelIndex &parent)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(parent); ++column)
            cells.append(model.index(row, column, parent).data().toString());
        rows.append(cells.join(QLatin1Char('|')));
    }
    return rows;
}

/// A style with a picture of its own for files.
class OwnIcons : public QProxyStyle
{
public:
    QIcon standardIcon(StandardPixmap which, const QStyleOption *option,
                       const QWidget *widget) const override
    {
        if (which != SP_FileIcon)
            return QProxyStyle::standardIcon(which, option, widget);
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::magenta);
        return pixmap;
    }
};

} // namespace

/// Compares the model with a plain one: the same rows, in the same order, with the same texts.
class tst_ListingModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void toOthersItIsAFileSystemModel();
    void itHasTheRowsOfAPlainModel_data();
    void itHasTheRowsOfAPlainModel();
    void nameFiltersSayWhatWasSet();
    void anotherNameFilterTakesRowsAway();
    void namesThatAPatternNeverMatchesStayAway();
    void newRowsAreSortedBeforeAViewLaysThemOut();
    void changesFindTheirPlace();
    void aSubFolderIsSortedToo();
    void itSortsByOtherColumnsToo();
    void filtersThatAHostSetsTakeEffect();
    void modelsShareTheirIconsUntilTheStyleChanges();
    void itComesToRest();
    void itMayDieWhenRowsArrive_data();
    void itMayDieWhenRowsArrive();

private:
    void show(const QStringList &entries, const QStringList &nameFilters);
    void compare();
    QStringList ours() const { return rowsOf(*model, root); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<ListingModel> model;
    std::unique_ptr<QFileSystemModel> plain;
    QModelIndex root;
    QModelIndex plainRoot;
    bool alwaysHiding = true;
    QStringList atLayout;
    int sorts = 0;
};

void tst_ListingModel::init()
{
    folder = std::make_unique<QTemporaryDir>();
    model = std::make_unique<ListingModel>(nullptr);
    plain = std::make_unique<QFileSystemModel>();
}

void tst_ListingModel::cleanup()
{
    model.reset();
    plain.reset();
}

void tst_ListingModel::show(const QStringList &entries, const QStringList &nameFilters)
{
    QVERIFY(makeEntries(folder->path(), entries));
    for (QFileSystemModel *each : { static_cast<QFileSystemModel *>(model.get()), plain.get() }) {
        each->setNameFilters(nameFilters);
        each->setNameFilterDisables(false);
        QSignalSpy loaded(each, &QFileSystemModel::directoryLoaded);
        each->setRootPath(folder->path());
        QTRY_COMPARE(loaded.count(), 1);
    }
    root = model->index(folder->path());
    plainRoot = plain->index(folder->path());
    compare();
}

void tst_ListingModel::compare()
{
    QTRY_COMPARE(ours(), rowsOf(*plain, plainRoot));
}

void tst_ListingModel::toOthersItIsAFileSystemModel()
{
    QCOMPARE(model->metaObject()->className(), "QFileSystemModel");
}

void tst_ListingModel::itHasTheRowsOfAPlainModel_data()
{
    QTest::addColumn<QStringList>("nameFilters");
    QTest::newRow("none") << QStringList();
    QTest::newRow("all") << QStringList({ s("*") });
    QTest::newRow("one") << QStringList({ s("*.txt") });
    QTest::newRow("all among others") << QStringList({ s("*.txt"), s("*"), s("*.log") });
    QTest::newRow("empty") << QStringList({ QString() });
    QTest::newRow("nearly all") << QStringList({ s("*.*") });
}

void tst_ListingModel::itHasTheRowsOfAPlainModel()
{
    QFETCH(QStringList, nameFilters);
    QStringList entries { s("B/"),        s("a/"),    s("file 10.txt"), s("file 9.txt"), s("x.log"),
                          s("no suffix"), s("Z.TXT"), s(".hidden"),     s("new\nline") };
    for (int i = 0; i < 150; ++i) // more than the worker thread sends at first
        entries.append(s("%1.dat").arg((i * 37) % 150));
    show(entries, nameFilters);
    QVERIFY(ours().constFirst().startsWith(s("a|"))); // no pattern hides a folder
}

void tst_ListingModel::nameFiltersSayWhatWasSet()
{
    connect(model.get(), &QFileSystemModel::directoryLoaded, this,
            [this] { alwaysHiding = alwaysHiding && !model->nameFilterDisables(); });
    show({ s("a"), s("b") }, { s("*") });
    QVERIFY(alwaysHiding);
    QCOMPARE(model->nameFilters(), QStringList({ s("*") }));
    QVERIFY(!model->nameFilterDisables());
}

void tst_ListingModel::anotherNameFilterTakesRowsAway()
{
    show({ s("a.txt"), s("b.log"), s("c/") }, { s("*") });
    for (const QString &pattern : { s("*.log"), s("*"), s("*.txt") }) {
        model->setNameFilters({ pattern });
        plain->setNameFilters({ pattern });
        QTRY_COMPARE(model->rowCount(root), pattern == s("*") ? 3 : 2);
        compare();
    }
}

void tst_ListingModel::namesThatAPatternNeverMatchesStayAway()
{
    show({ s("a.txt"), s("b.log") }, { s("*.txt") });
    QVERIFY(makeEntries(folder->path(), { s("c.log"), s("d.txt") }));
    QTRY_COMPARE(model->rowCount(root), 2);
    compare();
}

void tst_ListingModel::newRowsAreSortedBeforeAViewLaysThemOut()
{
    show({ s("b"), s("d") }, { s("*") });
    QTimer layout; // as a view's
    layout.setSingleShot(true);
    layout.setInterval(0);
    connect(&layout, &QTimer::timeout, this, [this] { atLayout = ours(); });
    connect(model.get(), &QAbstractItemModel::rowsInserted, &layout,
            QOverload<>::of(&QTimer::start));
    QTimer busy; // so that timers are due whenever the loop looks
    busy.start(0);
    QVERIFY(makeEntries(folder->path(), { s("a") }));
    QTRY_COMPARE(atLayout.size(), 3);
    QVERIFY(atLayout.constFirst().startsWith(s("a|")));
}

void tst_ListingModel::changesFindTheirPlace()
{
    show({ s("b.txt"), s("d.txt") }, { s("*") });
    QVERIFY(makeEntries(folder->path(), { s("c.txt") }));
    QTRY_COMPARE(model->rowCount(root), 3);
    compare();
    model->setReadOnly(false);
    QVERIFY(model->setData(model->index(0, 0, root), s("z.txt")));
    QTRY_VERIFY(ours().constLast().startsWith(s("z.txt|")));
    compare();
    QVERIFY(QFile::remove(folder->filePath(s("c.txt"))));
    QTRY_COMPARE(model->rowCount(root), 2);
    compare();
}

void tst_ListingModel::aSubFolderIsSortedToo()
{
    show({ s("sub/c"), s("sub/a"), s("sub/b"), s("sub/d/") }, { s("*") });
    for (QFileSystemModel *each : { static_cast<QFileSystemModel *>(model.get()), plain.get() })
        each->fetchMore(each->index(folder->filePath(s("sub"))));
    const QModelIndex sub = model->index(folder->filePath(s("sub")));
    QTRY_COMPARE(model->rowCount(sub), 4);
    QTRY_COMPARE(rowsOf(*model, sub), rowsOf(*plain, plain->index(folder->filePath(s("sub")))));
    QVERIFY(rowsOf(*model, sub).constFirst().startsWith(s("d|")));
}

void tst_ListingModel::itSortsByOtherColumnsToo()
{
    show({ s("b.txt"), s("a.zip"), s("c/"), s("d.log") }, { s("*") });
    for (const int column : { 2, 0, 1, 3 }) {
        for (const Qt::SortOrder order : { Qt::DescendingOrder, Qt::AscendingOrder }) {
            model->sort(column, order);
            plain->sort(column, order);
            if (column == 0 || column == 2) // the files have one size and nearly one date
                compare();
        }
    }
    model->sort(0, Qt::DescendingOrder);
    plain->sort(0, Qt::DescendingOrder);
    QVERIFY(makeEntries(folder->path(), { s("bb.txt") }));
    QTRY_COMPARE(model->rowCount(root), 5);
    compare();
}

void tst_ListingModel::filtersThatAHostSetsTakeEffect()
{
    show({ s("a.txt"), s(".hidden"), s("sub/") }, { s("*") });
    for (const QDir::Filters filter :
         { QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
           QDir::Dirs | QDir::NoDotAndDotDot, QDir::AllEntries | QDir::NoDotAndDotDot }) {
        model->setFilter(filter);
        plain->setFilter(filter);
        compare();
    }
    model->setNameFilterDisables(true);
    QVERIFY(model->nameFilterDisables());
    QCoreApplication::processEvents();
    QVERIFY(model->nameFilterDisables());
}

// Setting the name filters aside wants another sort, which must not want one more.
void tst_ListingModel::modelsShareTheirIconsUntilTheStyleChanges()
{
    show({ s("a/"), s("b") }, {});
    const auto iconOf = [this](QFileSystemModel *of) {
        return of->index(folder->filePath(s("b"))).data(Qt::DecorationRole).value<QIcon>();
    };
    const qint64 shared = iconOf(model.get()).cacheKey();
    QVERIFY(shared != iconOf(plain.get()).cacheKey());
    QCOMPARE(iconOf(model.get()).pixmap(16, 16).toImage(),
             iconOf(plain.get()).pixmap(16, 16).toImage());
    ListingModel second(nullptr);
    QCOMPARE(iconOf(&second).cacheKey(), shared);

    const QString theme = QIcon::themeName();
    QIcon::setThemeName(s("another theme"));
    ListingModel withTheme(nullptr);
    const qint64 ofTheme = iconOf(&withTheme).cacheKey();
    QIcon::setThemeName(theme);
    QVERIFY(ofTheme != shared);

    ListingModel withOptions(nullptr);
    withOptions.iconProvider()->setOptions(QFileIconProvider::DontUseCustomDirectoryIcons);
    QVERIFY(iconOf(&withOptions).cacheKey() != shared);

    QApplication::setStyle(new OwnIcons);
    ListingModel later(nullptr);
    const QColor colour = iconOf(&later).pixmap(16, 16).toImage().pixelColor(8, 8);
    QApplication::setStyle(s("fusion"));
    QCOMPARE(colour, QColor(Qt::magenta));
    ListingModel afterAll(nullptr);
    QCOMPARE(iconOf(&afterAll).pixmap(16, 16).toImage(),
             iconOf(plain.get()).pixmap(16, 16).toImage());
}

void tst_ListingModel::itComesToRest()
{
    show({ s("a"), s("b"), s("c") }, { s("*") });
    connect(model.get(), &QAbstractItemModel::layoutChanged, this, [this] { ++sorts; });
    QVERIFY(makeEntries(folder->path(), { s("d") }));
    QTRY_COMPARE(model->rowCount(root), 4);
    QTRY_VERIFY(sorts > 0);
    const int before = sorts;
    for (int turn = 0; turn < 50; ++turn)
        QCoreApplication::processEvents();
    QVERIFY(sorts <= before + 1);
}

void tst_ListingModel::itMayDieWhenRowsArrive_data()
{
    QTest::addColumn<bool>("whenSorted");
    QTest::newRow("loaded") << false;
    QTest::newRow("sorted") << true;
}

void tst_ListingModel::itMayDieWhenRowsArrive()
{
    QVERIFY(makeEntries(folder->path(), { s("a"), s("b") }));
    model->setNameFilters({ s("*") });
    model->setNameFilterDisables(false);
    QFETCH(bool, whenSorted);
    if (whenSorted)
        connect(model.get(), &QAbstractItemModel::layoutChanged, this, [this] { model.reset(); });
    else
        connect(model.get(), &QFileSystemModel::directoryLoaded, this, [this] { model.reset(); });
    model->setRootPath(folder->path());
    QTRY_VERIFY(!model);
}

QTARNKIT_TEST_MAIN(tst_ListingModel)
#include "tst_ListingModel.moc"
