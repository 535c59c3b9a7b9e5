#ifndef LISTINGMODEL_H
#define LISTINGMODEL_H

#include <QDir>
#include <QFileSystemModel>

class ArrivalWatch;

/**
 * A file-system model that shows the same rows in the same order as its base, sooner in big folders.
 *
 * New rows are sorted before any view lays them out: the base does it after, so that every view lays
 * out twice. And names are not matched where one of the patterns accepts every name, as the base
 * compiles its patterns anew for each row.
 *
 * Without Q_OBJECT: to hosts it is a QFileSystemModel.
 */
class ListingModel : public QFileSystemModel
{
public:
    explicit ListingModel(QObject *parent);
    ~ListingModel() override;

    void sort(int column, Qt::SortOrder order) override;

    /// To be called before a row is taken in: news of the worker thread are arriving.
    void aboutToTakeIn();

protected:
    bool event(QEvent *event) override;

private:
    // What the order and the set of rows depend on, apart from the rows.
    struct Arrangement
    {
        int column = 0;
        Qt::SortOrder order = Qt::AscendingOrder;
        QString rootPath;
        QDir::Filters filter;
        QStringList nameFilters;
        bool nameFilterDisables = true;

        bool operator==(const Arrangement &other) const;
    };

    bool everyNameMatches() const;
    void suspendNameFilters();
    void resumeNameFilters();
    void sortSoon();
    void markUnsorted();

    QScopedPointer<ArrivalWatch> arrivalWatch;
    Arrangement sorted;
    bool unsorted = true; // rows came or changed since the last sort
    bool sortPosted = false;
    bool takingNews = false; // an event of the worker thread is being handled
    bool rowsCame = false; // in that event
    bool suspended = false; // the name filters, for the time of one event or sort
};

#endif // LISTINGMODEL_H
