#include "filedialog/QZelFileDialog.h"

#include "dialogs/QZelFolderNameDialog.h"
#include "filedialog/FileNameRules.h"

#include "ui_QZelFileDialog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QStorageInfo>

namespace {

// How many calls of askForName() are on the stack, for the destructor to know.
constexpr const char *PendingNames = "pendingNames";

// QDir takes a name that begins with ":" for a resource, and the file system takes that for a file
// of the working directory.
bool looksLikeResource(const QString &name)
{
    return name.startsWith(QLatin1Char(':'));
}

QString pathIn(const QDir &folder, const QString &name)
{
    return looksLikeResource(name) ? folder.path() + QLatin1Char('/') + name
                                   : folder.filePath(name);
}

void makeFolder(QFileSystemModel *model, const QModelIndex &parent, const QString &name)
{
    if (looksLikeResource(name))
        QDir().mkdir(pathIn(QDir(model->filePath(parent)), name));
    else
        model->mkdir(parent, name);
}

QString fileSystemOf(const QString &path)
{
    return QStorageInfo(QFileInfo(path).path()).rootPath();
}

// To another file system a file is copied. QFile::rename() then removes the original before the
// last of the copy is written, and loses it when that file system is full.
bool renameFile(const QString &oldPath, const QString &newPath)
{
    if (fileSystemOf(oldPath) == fileSystemOf(newPath))
        return QFile::rename(oldPath, newPath);
    if (!QFile::copy(oldPath, newPath))
        return false;
    if (QFile::remove(oldPath))
        return true;
    QFile::remove(newPath);
    return false;
}

} // namespace

void QZelFileDialog::InitMenu()
{
    folderMenu = new QMenu(this);
    blankMenu = new QMenu(this);
    fileMenu = new QMenu(this);

    newAction = new QAction(tr("new"), this);
    renameFolderAction = new QAction(tr("rename"), this);
    deleteAction = new QAction(tr("delete"), this);
    renameFileAction = new QAction(tr("rename"), this);

    connect(newAction, &QAction::triggered, this, &QZelFileDialog::onNewFolder);
    connect(renameFolderAction, &QAction::triggered, this, &QZelFileDialog::onRenameFolder);
    connect(deleteAction, &QAction::triggered, this, &QZelFileDialog::onDeleteFolder);
    connect(renameFileAction, &QAction::triggered, this, &QZelFileDialog::onRenameFile);

    folderMenu->addActions({ newAction, renameFolderAction, deleteAction });
    blankMenu->addAction(newAction);
    fileMenu->addAction(renameFileAction);
}

void QZelFileDialog::onTreeMenuRequested(const QPoint &position)
{
    treeMenuIndex = ui->treeV_FileTree->indexAt(position);
    const bool onFolder = treeMenuIndex.isValid();
    newAction->setData(onFolder); // the folder may vanish before New is chosen
    QMenu *menu = onFolder ? folderMenu : blankMenu;
    menu->exec(ui->treeV_FileTree->viewport()->mapToGlobal(position));
}

void QZelFileDialog::onListMenuRequested(const QPoint &position)
{
    listMenuIndex = ui->treeV_FileList->indexAt(position);
    if (listMenuIndex.isValid() && !fileModel->isDir(listMenuIndex))
        fileMenu->exec(ui->treeV_FileList->viewport()->mapToGlobal(position));
}

// The commands go on with the empty name after a rejected dialog, and none of them reports a
// failure.

void QZelFileDialog::onNewFolder()
{
    QString name;
    if (!askForName(QString(), QString(), &name))
        return;
    if (!newAction->data().toBool())
        makeFolder(fileModel, rootIndex, name);
    else if (treeMenuIndex.isValid()) // if the clicked folder has vanished, it goes nowhere else
        makeFolder(fileModel, treeMenuIndex, name);
}

void QZelFileDialog::onRenameFolder()
{
    QString name;
    if (!askForName(QString(), QString(), &name) || !treeMenuIndex.isValid())
        return;
    const QString oldPath = fileModel->filePath(treeMenuIndex);
    QDir parent(oldPath);
    if (!parent.cdUp())
        return;
    // The empty name of a cancelled dialog makes this the parent itself, and the rename fails.
    const QString newPath = pathIn(parent, name);
    if (!parent.rename(oldPath, newPath))
        return;
    setListRoot(fileModel->index(newPath));
    backHistory.append(newPath + QLatin1Char('/'));
    showPath(newPath + QLatin1Char('/'));
}

// Only an empty folder goes. The listing moves to the parent whether it did or not.
void QZelFileDialog::onDeleteFolder()
{
    if (!treeMenuIndex.isValid())
        return;
    const QPersistentModelIndex parent(treeMenuIndex.parent());
    fileModel->rmdir(treeMenuIndex);
    setListRoot(parent);
    showPath(fileModel->filePath(parent) + QLatin1Char('/'));
}

// The suffix cannot be changed from here. That holds for the empty name of a cancelled dialog too:
// the file is then renamed to a dot and its suffix.
void QZelFileDialog::onRenameFile()
{
    if (!listMenuIndex.isValid())
        return;
    const QString oldPath = fileModel->filePath(listMenuIndex);
    QString name;
    if (!askForName(tr("rename"), FileNameRules::lastPart(oldPath), &name))
        return;
    QDir parent(oldPath);
    if (!parent.cdUp())
        return;
    const QString newName = FileNameRules::withForcedSuffix(name, QFileInfo(oldPath).suffix());
    const QString newPath = pathIn(parent, newName);
    if (!renameFile(oldPath, newPath))
        return;
    ui->treeV_FileList->selectionModel()->select(fileModel->index(newPath),
                                                 QItemSelectionModel::ClearAndSelect);
    ui->let_FileName->setText(newName);
}

// While a name is asked for, a menu is still handling the click that led there, and writes to
// itself when that returns: then the menus stay behind, and askForName() deletes them.
void QZelFileDialog::releaseMenus()
{
    if (property(PendingNames).toInt() == 0)
        return;
    const QList<QMenu *> menus = { folderMenu, blankMenu, fileMenu };
    for (QMenu *menu : menus)
        menu->setParent(nullptr);
}

// Puts the trimmed name into name, the empty string when the name dialog was rejected. An empty
// prompt leaves the dialog's own. Returns false when this dialog was destroyed meanwhile; on the
// stack, the name dialog would then be deleted twice.
bool QZelFileDialog::askForName(const QString &prompt, const QString &content, QString *name)
{
    const QPointer<QZelFileDialog> self(this);
    const QList<QMenu *> menus = { folderMenu, blankMenu, fileMenu };
    const int pending = property(PendingNames).toInt();
    setProperty(PendingNames, pending + 1);
    const QPointer<QZelFolderNameDialog> dialog(new QZelFolderNameDialog(this));
    dialog->setWindowFlags(dialog->windowFlags() | Qt::WindowStaysOnTopHint);
    dialog->setWindowModality(Qt::WindowModal);
    if (!prompt.isEmpty())
        dialog->setTitle(prompt);
    dialog->setContent(content);

    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (accepted && dialog)
        *name = dialog->let_FolderName->text().trimmed();
    delete dialog;
    if (self) {
        setProperty(PendingNames, pending);
    } else if (pending == 0) {
        // Not in the destructor: that may run in an event loop further inside, and they would go
        // in that loop already.
        for (QMenu *menu : menus)
            menu->deleteLater();
    }
    return !self.isNull();
}
