#include "Browser.h"

#include "EventLoop.h"
#include "TestFolder.h"

#include <QZelFileDialog.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QTreeView>

namespace {

constexpr QSize WindowSize(1000, 550);

QStringList filters()
{
    return { TestFolder::allPatterns(), TestFolder::onePattern(), TestFolder::fivePatterns() };
}

class OurBrowser : public Browser
{
public:
    OurBrowser(const QString &folder, Mode mode)
    {
        const auto operateMode =
                mode == OneFile ? QZelFileDialog::OpenFile : QZelFileDialog::OpenFiles;
        ours = new QZelFileDialog(nullptr, QStringLiteral("Open"), folder,
                                  filters().join(QStringLiteral(";;")), operateMode);
        dialog.reset(ours);
        model = ours->findChild<QFileSystemModel *>();
        listing = ours->findChild<QTreeView *>(QStringLiteral("treeV_FileList"));
        show();
    }

    void selectFilter(Filter filter) override
    {
        ours->findChild<QComboBox *>(QStringLiteral("cbx_FileType"))->setCurrentIndex(filter);
    }

    void enter(const QString &folder) override { Q_EMIT listing->doubleClicked(index(folder)); }

    void goBack() override
    {
        ours->findChild<QAbstractButton *>(QStringLiteral("btn_Back"))->click();
    }

    void keepSelections() override
    {
        QObject::connect(ours, &QZelFileDialog::sig_filePaths, ours,
                         [this](const QStringList &paths) { kept.append(paths); });
    }

private:
    QZelFileDialog *ours = nullptr;
};

class StockBrowser : public Browser
{
public:
    StockBrowser(const QString &folder, Mode mode)
    {
        stock = new QFileDialog(nullptr, QStringLiteral("Open"), folder,
                                filters().join(QStringLiteral(";;")));
        dialog.reset(stock);
        stock->setOption(QFileDialog::DontUseNativeDialog);
        stock->setFileMode(mode == OneFile ? QFileDialog::ExistingFile : QFileDialog::ExistingFiles);
        stock->setViewMode(QFileDialog::Detail);
        model = stock->findChild<QFileSystemModel *>();
        listing = stock->findChild<QTreeView *>(QStringLiteral("treeView"));
        show();
    }

    void selectFilter(Filter filter) override { stock->selectNameFilter(filters().at(filter)); }

    void enter(const QString &folder) override { Q_EMIT listing->activated(index(folder)); }

    void goBack() override
    {
        stock->findChild<QAbstractButton *>(QStringLiteral("backButton"))->click();
    }

    // It tells nobody a list of paths: a host asks for it whenever the selection changes.
    void keepSelections() override
    {
        QObject::connect(listing->selectionModel(), &QItemSelectionModel::selectionChanged, stock,
                         [this] { kept.append(stock->selectedFiles()); });
    }

private:
    QFileDialog *stock = nullptr;
};

} // namespace

std::unique_ptr<Browser> Browser::open(Side side, const QString &folder, Mode mode)
{
    if (side == Side::Ours)
        return std::make_unique<OurBrowser>(folder, mode);
    return std::make_unique<StockBrowser>(folder, mode);
}

void Browser::waitForRows(const QString &path, int count) const
{
    EventLoop::waitUntil(
            [&] { return loaded.contains(path) && model->rowCount(index(path)) == count; });
    EventLoop::settle();
}

void Browser::show()
{
    // Before the event loop turns, so no folder's end of loading is missed.
    QObject::connect(model, &QFileSystemModel::directoryLoaded, dialog.get(),
                     [this](const QString &path) { loaded.append(path); });
    dialog->resize(WindowSize);
    dialog->show();
}

QModelIndex Browser::index(const QString &path) const
{
    return model->index(path);
}
