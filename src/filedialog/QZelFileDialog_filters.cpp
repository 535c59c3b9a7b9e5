#include "filedialog/QZelFileDialog.h"

#include "ui_QZelFileDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QRegularExpression>

namespace {

// What stands between the first "(" and the next ")". One for the process: it never changes.
const QRegularExpression nameFilterRegex( // clazy:exclude=non-pod-global-static
        QStringLiteral("\\((.*?)\\)"));

} // namespace

void QZelFileDialog::setFileFilter(QString filter)
{
    const QRegularExpressionMatch match = nameFilterRegex.match(filter);
    const QString patterns = match.hasMatch() ? match.captured(1) : filter;
    fileModel->setNameFilters(
            patterns.split(QLatin1Char(' '), Qt::KeepEmptyParts, Qt::CaseSensitive));
    fileModel->setNameFilterDisables(false);
}

QString QZelFileDialog::getSelectedFilter()
{
    return ui->cbx_FileType->currentText();
}

bool QZelFileDialog::fileExist(QString path)
{
    return QFileInfo::exists(path);
}

bool QZelFileDialog::isParentPath(const QString &parent, const QString &child)
{
    const QString parentPath = QDir(parent).absolutePath();
    const QString childPath = QDir(child).absolutePath();
    if (parentPath == childPath)
        return false;
    QString prefix = QDir::cleanPath(parentPath);
    // So that "/root/zel" is not taken for a parent of "/root/zeltempfiles".
    if (!prefix.endsWith(QLatin1Char('/')))
        prefix += QLatin1Char('/');
    return childPath.startsWith(prefix, Qt::CaseSensitive);
}
