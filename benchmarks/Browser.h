#ifndef BROWSER_H
#define BROWSER_H

#include "Row.h"

#include <QDialog>
#include <QModelIndex>
#include <QString>

#include <memory>

class QFileSystemModel;
class QTreeView;

/**
 * A shown file dialog of either side: 1000 x 550 pixels, for one file or for many, with the three
 * filters of TestFolder, all files first. Stock is a QFileDialog that is not native, in its detail
 * view.
 */
class Browser
{
public:
    enum Mode { OneFile, ManyFiles };
    enum Filter { All, One, Five };

    /// Opens @p folder; its rows are not there yet.
    static std::unique_ptr<Browser> open(Side side, const QString &folder, Mode mode = OneFile);

    virtual ~Browser() = default;

    QDialog *window() const { return dialog.get(); }
    /// The listing with columns.
    QTreeView *list() const { return listing; }

    /// Waits for @p count rows of the folder @p path and until nothing is left to do about them.
    void waitForRows(const QString &path, int count) const;

    virtual void selectFilter(Filter filter) = 0;
    /// Goes into @p folder as a double-click on it does.
    virtual void enter(const QString &folder) = 0;
    virtual void goBack() = 0;
    /// Keeps every list of selected files that is told to anyone.
    virtual void keepSelections() = 0;

protected:
    Browser() = default;
    void show();
    QModelIndex index(const QString &path) const;

    QVector<QStringList> kept;
    QStringList loaded; // folders whose entries have all been read
    // After what its signals write to, so gone before that.
    std::unique_ptr<QDialog> dialog;
    QFileSystemModel *model = nullptr;
    QTreeView *listing = nullptr;
};

#endif // BROWSER_H
