#include "filemanager/QZelFileManagerWidget.h"

#include "common/Paths.h"
#include "common/TitleDrag.h"
#include "dialogs/OnTopQuestion.h"

#include "ui_QZelFileManagerWidget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QPointer>

namespace {

constexpr int TreePane = 0;
constexpr int ListPane = 1;
constexpr int TreeStretch = 3;
constexpr int ListStretch = 7;

bool isAboveFtpFolder(const QFileInfo &folder)
{
    const QString path = folder.canonicalFilePath();
    return Paths::isAbove(path, Paths::ftpFolder())
           || Paths::isAbove(path, QFileInfo(Paths::ftpFolder()).canonicalFilePath());
}

} // namespace

QZelFileManagerWidget::QZelFileManagerWidget(QWidget *parent)
    : QDialog(parent)
    , fileModel(new QFileSystemModel(this))
    , ui(new Ui_Form)
{
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_StyledBackground, true);
    ui->setupUi(this);
    Init();
    InitConnects();
}

QZelFileManagerWidget::~QZelFileManagerWidget()
{
    delete ui;
}

void QZelFileManagerWidget::Init()
{
    ui->wgt_TitleBar->installEventFilter(this);
    ui->listV_FileList->installEventFilter(this);

    ui->splitter->setStretchFactor(TreePane, TreeStretch);
    ui->splitter->setStretchFactor(ListPane, ListStretch);

    rootIndex = fileModel->setRootPath(Paths::ftpFolder());

    ui->listV_FileList->setModel(fileModel);
    ui->listV_FileList->setRootIndex(rootIndex);
    ui->listV_FileList->setSelectionMode(QAbstractItemView::ExtendedSelection);

    ui->treeV_FileTree->setModel(fileModel);
    ui->treeV_FileTree->setRootIndex(rootIndex);
    ui->treeV_FileTree->setSelectionMode(QAbstractItemView::SingleSelection);
}

void QZelFileManagerWidget::InitConnects()
{
    connect(ui->treeV_FileTree, &QTreeView::clicked, this, &QZelFileManagerWidget::setListRoot);
    connect(ui->listV_FileList, &QListView::doubleClicked, this,
            &QZelFileManagerWidget::onListDoubleClicked);
    connect(ui->btn_MainPage, &QPushButton::clicked, this, &QZelFileManagerWidget::onMainPage);
    connect(ui->btn_UpPage, &QPushButton::clicked, this, &QZelFileManagerWidget::onUpPage);
    connect(ui->btn_Delete, &QPushButton::clicked, this, &QZelFileManagerWidget::onDelete);
    connect(ui->btn_Close, &QPushButton::clicked, this, &QWidget::close);
}

bool QZelFileManagerWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->wgt_TitleBar && event
        && TitleDrag::handleEvent(this, event, dragging, dragOffset, TitleDrag::Bounds::None))
        return true;
    return QObject::eventFilter(watched, event);
}

// A row's folder hangs below its first column, whichever column of the tree was clicked. A file has
// nothing below it: the list is then empty.
void QZelFileManagerWidget::setListRoot(const QModelIndex &index)
{
    ui->listV_FileList->setRootIndex(index.sibling(index.row(), 0));
}

void QZelFileManagerWidget::onListDoubleClicked(const QModelIndex &index)
{
    if (fileModel->isDir(index))
        setListRoot(index);
}

void QZelFileManagerWidget::onMainPage()
{
    setListRoot(rootIndex);
}

// Goes by the item that is current, not by the folder that is shown: after a double-click that is
// the folder entered, so the list returns to where it was clicked.
void QZelFileManagerWidget::onUpPage()
{
    const QModelIndex current = ui->listV_FileList->currentIndex();
    if (current != rootIndex)
        setListRoot(current.parent());
}

void QZelFileManagerWidget::onDelete()
{
    const QPointer<QZelFileManagerWidget> self(this);
    const bool confirmed =
            OnTopQuestion::run(tr("WARN"), tr("Are you sure to delete ?"), OnTopQuestion::Question);
    if (!self || !confirmed)
        return;

    QList<QPersistentModelIndex> entries;
    const QModelIndexList selected = ui->listV_FileList->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : selected)
        entries.append(index);
    for (const QPersistentModelIndex &entry : qAsConst(entries))
        removeEntry(entry);
}

void QZelFileManagerWidget::removeEntry(const QModelIndex &index)
{
    // An entry that has vanished meanwhile has no path, and no path means the working directory.
    if (!index.isValid())
        return;
    QFileInfo entry = fileModel->fileInfo(index);
    entry.refresh();
    const QString path = entry.filePath();
    // The list leaves the FTP folder when that vanishes or UpPage is pressed without an item: one
    // double-click on the way back would have the whole file system selected.
    if (!entry.isSymLink() && isAboveFtpFolder(entry))
        return;
    // A link to a folder is left to the model, which removes the link itself: through it, the
    // contents of its target would go.
    if (entry.isDir() && !entry.isSymLink())
        QDir(path).removeRecursively();
    else if (entry.isFile())
        QFile::remove(path);
    fileModel->remove(index);
}
