#include "filedialog/ListingModel.h"

#include <QApplication>
#include <QFileIconProvider>
#include <QHash>
#include <QPointer>
#include <QStyle>

#include <memory>

namespace {

QEvent::Type sortEventType()
{
    static const int type = QEvent::registerEventType();
    return QEvent::Type(type);
}

// A provider has the style read its icons from files. One serves all models, until the style or the
// icon theme is another.
const QFileIconProvider &sharedIcons()
{
    struct Icons
    {
        QFileIconProvider provider;
        QPointer<QStyle> style = QApplication::style();
        QString theme = QIcon::themeName();
    };
    static std::unique_ptr<Icons> icons;
    if (!icons)
        qAddPostRoutine([] { icons.reset(); }); // not later than the application
    if (!icons || icons->style != QApplication::style() || icons->theme != QIcon::themeName())
        icons = std::make_unique<Icons>();
    return icons->provider;
}

} // namespace

// The model asks for a row's icon first of all, before it matches the row's name.
class ArrivalWatch : public QFileIconProvider
{
public:
    explicit ArrivalWatch(ListingModel *model)
        : model(model)
    {}

    using QFileIconProvider::icon;

    // Files of one suffix share one text.
    QString type(const QFileInfo &info) const override
    {
        if (!info.isFile())
            return QFileIconProvider::type(info);
        QString &text = types[info.suffix()];
        if (text.isEmpty())
            text = QFileIconProvider::type(info);
        return text;
    }

    void retranslate() { types.clear(); }

    QIcon icon(const QFileInfo &info) const override
    {
        model->aboutToTakeIn();
        return options() ? QFileIconProvider::icon(info) : sharedIcons().icon(info);
    }

private:
    ListingModel *model;
    mutable QHash<QString, QString> types; // by suffix
};

ListingModel::ListingModel(QObject *parent)
    : QFileSystemModel(parent)
    , arrivalWatch(new ArrivalWatch(this))
{
    setIconProvider(arrivalWatch.data());
    connect(this, &QAbstractItemModel::rowsInserted, this, &ListingModel::sortSoon);
    connect(this, &QAbstractItemModel::dataChanged, this, &ListingModel::markUnsorted);
    connect(this, &QAbstractItemModel::modelReset, this, &ListingModel::markUnsorted);
    connect(this, &QFileSystemModel::fileRenamed, this, &ListingModel::markUnsorted);
}

ListingModel::~ListingModel() = default;

void ListingModel::sort(int column, Qt::SortOrder order)
{
    const Arrangement wanted { column,   order,         rootPath(),
                               filter(), nameFilters(), !suspended && nameFilterDisables() };
    // Suspending the name filters makes the base want a sort that changes nothing.
    if (!unsorted && wanted == sorted)
        return;
    unsorted = false;
    sorted = wanted;
    const bool wasSuspended = suspended;
    suspendNameFilters();
    const QPointer<ListingModel> self(this); // a receiver of layoutChanged() may delete it
    QFileSystemModel::sort(column, order);
    if (self && !wasSuspended)
        resumeNameFilters();
}

void ListingModel::aboutToTakeIn()
{
    if (takingNews)
        suspendNameFilters();
}

bool ListingModel::event(QEvent *event)
{
    if (event->type() == sortEventType()) {
        sortPosted = false;
        sort(sorted.column, sorted.order);
        return true;
    }
    if (event->type() == QEvent::LanguageChange)
        arrivalWatch->retranslate();
    if (event->type() != QEvent::MetaCall)
        return QFileSystemModel::event(event);

    const QPointer<ListingModel> self(this);
    takingNews = true;
    const bool handled = QFileSystemModel::event(event);
    if (!self)
        return handled;
    takingNews = false;
    if (rowsCame) {
        rowsCame = false;
        sort(sorted.column, sorted.order);
    }
    if (self)
        resumeNameFilters();
    return handled;
}

bool ListingModel::Arrangement::operator==(const Arrangement &other) const
{
    return column == other.column && order == other.order && rootPath == other.rootPath
           && filter == other.filter && nameFilters == other.nameFilters
           && nameFilterDisables == other.nameFilterDisables;
}

bool ListingModel::everyNameMatches() const
{
    return nameFilters().contains(QStringLiteral("*"));
}

// Rows that no pattern accepts would stay, greyed out: there are none.
void ListingModel::suspendNameFilters()
{
    if (suspended || nameFilterDisables() || !everyNameMatches())
        return;
    suspended = true;
    setNameFilterDisables(true);
}

void ListingModel::resumeNameFilters()
{
    if (!suspended)
        return;
    suspended = false;
    setNameFilterDisables(false);
}

// Before the views' zero timers, and after the base has noted that it has to sort.
void ListingModel::sortSoon()
{
    unsorted = true;
    if (takingNews) {
        rowsCame = true;
        return;
    }
    if (sortPosted)
        return;
    sortPosted = true;
    QCoreApplication::postEvent(this, new QEvent(sortEventType()), Qt::HighEventPriority);
}

void ListingModel::markUnsorted()
{
    unsorted = true;
}
