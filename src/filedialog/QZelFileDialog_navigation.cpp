#include "filedialog/QZelFileDialog.h"

#include "common/Paths.h"
#include "filedialog/FileNameRules.h"

#include "ui_QZelFileDialog.h"

#include <QFileSystemModel>

using namespace FileNameRules;

void QZelFileDialog::onTypedPath()
{
    const QModelIndex index = fileModel->index(dirPath + ui->let_FilePath->text());
    const QString path = fileModel->filePath(index);
    if (!index.isValid() || isParentPath(path, Paths::ftpFolderWithSlash()))
        return;
    backHistory.append(withoutTrailingSlash(path));
    setListRoot(index);
}

void QZelFileDialog::onBack()
{
    if (backHistory.size() <= 1)
        return;
    const QString left = backHistory.takeLast();
    if (fileExist(left))
        forwardHistory.append(left);
    // A folder that has vanished is dropped, and only that one: the listing stays where it is.
    if (fileExist(backHistory.constLast()))
        showFolder(backHistory.constLast());
    else
        backHistory.removeLast();
}

// Never cleared by going elsewhere: Forward still returns to the folder that Back left.
void QZelFileDialog::onForward()
{
    if (forwardHistory.isEmpty())
        return;
    const QString folder = forwardHistory.takeLast();
    if (!fileExist(folder))
        return;
    backHistory.append(folder);
    showFolder(folder);
}

void QZelFileDialog::onHome()
{
    setListRoot(rootIndex);
    backHistory.append(dirPath + QLatin1Char('/'));
    ui->let_FilePath->setText(QStringLiteral("/"));
}

// In the folder mode the history takes the path without "/", in the others with one; the chosen
// path shows the difference.
void QZelFileDialog::onTreeClicked(const QModelIndex &index)
{
    if (!fileModel->isDir(index))
        return;
    const QString path = withoutTrailingSlash(fileModel->filePath(index));
    if (operateMode == SelectDirectory) {
        ui->let_FileName->setText(lastPart(path));
        backHistory.append(path);
    } else {
        backHistory.append(path + QLatin1Char('/'));
    }
    showPath(path + QLatin1Char('/'));
    setListRoot(index);
}

void QZelFileDialog::onListClicked(const QModelIndex &index)
{
    const QString path = withoutTrailingSlash(fileModel->filePath(index));
    if (operateMode == SelectDirectory) {
        ui->let_FilePath->setText(path + QLatin1Char('/'));
        backHistory.append(path);
        ui->let_FileName->setText(lastPart(path));
    } else if (!fileModel->isDir(index)) {
        ui->let_FileName->setText(lastPart(path));
    }
}

void QZelFileDialog::onListDoubleClicked(const QModelIndex &index)
{
    const QString path = fileModel->filePath(index);
    if (!fileModel->isDir(index)) {
        acceptListedFile(path);
        return;
    }
    setListRoot(index);
    backHistory.append(withTrailingSlash(path));
    showPath(withTrailingSlash(path));
    ui->let_FileName->clear();
}

void QZelFileDialog::onSelectionChanged()
{
    filePaths.clear();
    const QModelIndexList rows = ui->treeV_FileList->selectionModel()->selectedRows();
    for (const QModelIndex &row : rows) {
        if (fileModel->isDir(row))
            continue;
        filePaths.append(fileModel->filePath(row));
        Q_EMIT sig_filePaths(filePaths);
    }
}

// A row's folder hangs below its first column, whichever column was clicked.
void QZelFileDialog::setListRoot(const QModelIndex &index)
{
    ui->treeV_FileList->setRootIndex(index.sibling(index.row(), 0));
}

void QZelFileDialog::showPath(const QString &path)
{
    currentPath = path;
    if (!dirPath.isEmpty())
        currentPath.remove(dirPath, Qt::CaseSensitive);
    ui->let_FilePath->setText(currentPath);
}

void QZelFileDialog::showFolder(const QString &path)
{
    setListRoot(fileModel->index(path));
    showPath(path);
}
