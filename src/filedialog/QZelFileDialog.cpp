#include "filedialog/QZelFileDialog.h"

#include "common/Paths.h"
#include "common/TitleDrag.h"
#include "dialogs/QZelEncDialog.h"
#include "filedialog/ColumnToolTipDelegate.h"
#include "filedialog/FileNameRules.h"
#include "filedialog/FolderTreeDelegate.h"
#include "filedialog/ListingModel.h"

#include "ui_QZelFileDialog.h"

#include <QDir>
#include <QFileSystemModel>
#include <QListView>
#include <QLockFile>
#include <QRegExp>
#include <QRegExpValidator>
#include <QSettings>

namespace {

constexpr int TreePane = 0;
constexpr int ListPane = 1;
constexpr int TreeStretch = 3;
constexpr int ListStretch = 7;
constexpr int NameColumn = 0;
constexpr int NameColumnWidth = 300;
constexpr int LockPatience = 200; // milliseconds

// QSettings waits for its lock file: half a minute for one that a power cut has left without its
// owner's name, without end for a folder of that name.
bool isLocked(const QSettings &settings)
{
    QLockFile lock(settings.fileName() + QStringLiteral(".lock"));
    return !lock.tryLock(LockPatience) && lock.error() == QLockFile::LockFailedError;
}

} // namespace

QZelFileDialog::QZelFileDialog(QWidget *parent, const QString &caption, const QString &dir,
                               const QString &filter, const OperateMode &mode)
    : QDialog(parent)
{
    filterList = filter.split(QStringLiteral(";;"), Qt::KeepEmptyParts, Qt::CaseSensitive);
    operateMode = mode;
    construct(caption, dir);
}

QZelFileDialog::QZelFileDialog(QWidget *parent, const QString &caption, const QString &dir)
    : QDialog(parent)
{
    operateMode = SelectDirectory;
    construct(caption, dir);
}

QZelFileDialog::~QZelFileDialog()
{
    releaseMenus();
    delete ui;
}

QString QZelFileDialog::getFilePath()
{
    recordLastPath(filePath);
    return filePath;
}

QStringList QZelFileDialog::getFilePaths()
{
    if (!filePaths.isEmpty())
        recordLastPath(filePaths.constFirst());
    return filePaths;
}

void QZelFileDialog::recordLastPath(QString path)
{
    // Without any "/" the length is -1, which keeps the whole text.
    const QString folder = path.mid(0, path.lastIndexOf(QLatin1Char('/')));
    QSettings settings(Paths::settingsOrganization(), Paths::settingsApplication());
    if (isLocked(settings))
        return;
    settings.setValue(settingsKey(), folder);
    settings.sync();
}

bool QZelFileDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->wgt_TitleBar && event
        && TitleDrag::handleEvent(this, event, titlePressed, dragOffset, TitleDrag::Bounds::None))
        return true;
    return QObject::eventFilter(watched, event);
}

void QZelFileDialog::Init()
{
    encDialog = new QZelEncDialog(this);
    encDialog->setWindowFlags(windowFlags() | Qt::WindowStaysOnTopHint);
    encDialog->setWindowModality(Qt::WindowModal);

    ui->wgt_TitleBar->installEventFilter(this);
    ui->treeV_FileList->installEventFilter(this);

    initControls();
    initStartFolder();
    initViews();
    initHistory();
    initNameEdit();
    InitMenu();
}

void QZelFileDialog::InitConnects()
{
    ui->treeV_FileTree->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(ui->treeV_FileTree, &QWidget::customContextMenuRequested, this,
            &QZelFileDialog::onTreeMenuRequested);
    ui->treeV_FileList->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(ui->treeV_FileList, &QWidget::customContextMenuRequested, this,
            &QZelFileDialog::onListMenuRequested);

    connect(ui->btn_Close, &QPushButton::clicked, this, &QWidget::close);
    connect(ui->let_FilePath, &QLineEdit::returnPressed, this, &QZelFileDialog::onTypedPath);
    connect(ui->btn_Back, &QPushButton::clicked, this, &QZelFileDialog::onBack);
    connect(ui->btn_Forward, &QPushButton::clicked, this, &QZelFileDialog::onForward);
    connect(ui->btn_MainPage, &QPushButton::clicked, this, &QZelFileDialog::onHome);
    connect(ui->treeV_FileTree, &QTreeView::clicked, this, &QZelFileDialog::onTreeClicked);
    connect(ui->treeV_FileList, &QTreeView::doubleClicked, this,
            &QZelFileDialog::onListDoubleClicked);
    connect(ui->treeV_FileList, &QTreeView::clicked, this, &QZelFileDialog::onListClicked);
    connect(ui->cbx_FileType, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int index) { setFileFilter(filterList.value(index)); });
    connect(ui->btn_encOption, &QPushButton::clicked, this, &QZelFileDialog::onEncryptionOption);
    connect(ui->btn_OpenSave, &QPushButton::clicked, this, &QZelFileDialog::onOpenSave);
    connect(ui->btn_Cancel, &QPushButton::clicked, this, &QWidget::close);
    connect(ui->treeV_FileList->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &QZelFileDialog::onSelectionChanged);
}

void QZelFileDialog::expandedPath()
{
    const QString target = ftpSubPath.isEmpty() ? lastPath : ftpSubPath;
    if (target.isEmpty())
        return;

    const QModelIndex index = fileModel->index(target);
    const QModelIndex folder = fileModel->isDir(index) ? index : index.parent();
    // As if it had been double-clicked: the listing shows it and the history records it. A target
    // that does not exist is an invalid index, which the model takes for the top of all folders.
    Q_EMIT ui->treeV_FileList->doubleClicked(folder);
    if (!index.isValid())
        return;

    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        ui->treeV_FileTree->expand(above);
    if (fileModel->isDir(index))
        ui->treeV_FileTree->expand(index);
    ui->treeV_FileTree->setCurrentIndex(folder);
}

void QZelFileDialog::construct(const QString &caption, const QString &dir)
{
    fileModel = new ListingModel(this);
    ui = new Ui_QZelFileDialogClass;

    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_StyledBackground, true);
    setWindowModality(Qt::WindowModal);

    this->caption = caption;
    dirPath = dir;
    ui->setupUi(this);
    Init();
    InitConnects();
    expandedPath();
}

void QZelFileDialog::initControls()
{
    ui->label_title->setText(caption);
    // A label that takes the focus on a click swallows the moves of a drag.
    ui->label_title->setAttribute(Qt::WA_TransparentForMouseEvents, true);
    ui->let_FilePath->setText(QStringLiteral("/"));

    ui->cbx_FileType->setView(new QListView(this));
    ui->cbx_FileType->setFocusPolicy(Qt::NoFocus);
    ui->cbx_FileType->addItems(filterList);

    ui->cbx_FileType->setVisible(operateMode != SelectDirectory);
    ui->btn_OpenSave->setText(caption);
    ui->btn_encOption->setVisible(operateMode == SaveEncryptedFile);

    ui->splitter->setStretchFactor(TreePane, TreeStretch);
    ui->splitter->setStretchFactor(ListPane, ListStretch);
    ui->splitter->setCollapsible(TreePane, false);
    ui->splitter->setCollapsible(ListPane, false);
}

void QZelFileDialog::initStartFolder()
{
    const QString ftpFolder = Paths::ftpFolderWithSlash();
    if (dirPath.contains(ftpFolder) && dirPath != ftpFolder) {
        ftpSubPath = dirPath;
        dirPath = ftpFolder;
    }
    // The remembered folder is consulted there only.
    if (dirPath == ftpFolder) {
        const QSettings settings(Paths::settingsOrganization(), Paths::settingsApplication());
        lastPath = settings.value(settingsKey()).toString();
        if (!fileExist(lastPath))
            lastPath.clear();
    }
    rootIndex = fileModel->setRootPath(dirPath);
}

void QZelFileDialog::initViews()
{
    QTreeView *list = ui->treeV_FileList;
    list->setModel(fileModel);
    list->setRootIndex(rootIndex);
    list->setSelectionMode(operateMode == OpenFiles ? QAbstractItemView::ExtendedSelection
                                                    : QAbstractItemView::SingleSelection);
    list->setRootIsDecorated(false);
    list->setColumnWidth(NameColumn, NameColumnWidth);
    list->setItemDelegate(new ColumnToolTipDelegate(this));
    list->setAttribute(Qt::WA_MouseTracking, true);
    list->viewport()->setAttribute(Qt::WA_Hover, true);

    FolderTree *tree = ui->treeV_FileTree;
    tree->setModel(fileModel);
    tree->setRootIndex(rootIndex);
    tree->setSelectionMode(QAbstractItemView::SingleSelection);
    tree->setItemDelegate(new FolderTreeDelegate(tree, this));
    tree->setHeaderHidden(true);
    for (int column = NameColumn + 1; column < fileModel->columnCount(); ++column)
        tree->hideColumn(column);

    if (operateMode == SelectDirectory)
        fileModel->setFilter(QDir::Dirs | QDir::NoDotAndDotDot);
    else
        setFileFilter(filterList.value(0));
}

void QZelFileDialog::initHistory()
{
    backHistory.append(FileNameRules::withTrailingSlash(dirPath));
    dirPath = FileNameRules::withoutTrailingSlash(dirPath);
}

void QZelFileDialog::initNameEdit()
{
    ui->let_FileName->setVisible(operateMode != OpenFiles);
    if (isSaveMode()) {
        // No dot among them: the suffix comes from the filter.
        const QRegExp nameCharacters(QStringLiteral("^[\\w\\-\\p{L}]*$"), Qt::CaseSensitive,
                                     QRegExp::RegExp);
        ui->let_FileName->setValidator(new QRegExpValidator(nameCharacters, ui->let_FileName));
    }
}

bool QZelFileDialog::isSaveMode() const
{
    return operateMode == SaveFile || operateMode == SaveEncryptedFile;
}

QString QZelFileDialog::settingsKey() const
{
    if (operateMode == SelectDirectory)
        return Paths::lastFolderKey();
    return Paths::lastFolderKey() + filterList.value(0);
}
