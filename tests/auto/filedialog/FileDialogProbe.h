#ifndef FILEDIALOGPROBE_H
#define FILEDIALOGPROBE_H

#include "Pointer.h"

#include <QZelFileDialog.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QTreeView>

#include <memory>

Q_DECLARE_METATYPE(QZelFileDialog::OperateMode)

/// The file dialog with its state and the parts of its form in reach, operated as a user does.
class FileDialogProbe : public QZelFileDialog
{
public:
    using QZelFileDialog::QZelFileDialog;

    using QZelFileDialog::dirPath;
    using QZelFileDialog::encDialog;
    using QZelFileDialog::fileModel;
    using QZelFileDialog::filePaths;
    using QZelFileDialog::filterList;
    using QZelFileDialog::ftpSubPath;
    using QZelFileDialog::lastPath;
    using QZelFileDialog::operateMode;
    using QZelFileDialog::rootIndex;
    using QZelFileDialog::titlePressed;

    /// The dialog in a mode, by the constructor that is meant for it.
    static std::unique_ptr<FileDialogProbe> make(OperateMode mode, const QString &dir,
                                                 const QString &filter = QStringLiteral("All (*)"))
    {
        const QString caption = QStringLiteral("Choose");
        return mode == SelectDirectory
                       ? std::make_unique<FileDialogProbe>(nullptr, caption, dir)
                       : std::make_unique<FileDialogProbe>(nullptr, caption, dir, filter, mode);
    }

    /// A widget of the form. The set-password dialog inside has some of the same names.
    template <typename T>
    T *part(const QString &name) const
    {
        const QList<T *> matches = findChildren<T *>(name);
        for (T *match : matches) {
            if (match->window() == this)
                return match;
        }
        return nullptr;
    }

    QTreeView *tree() const { return part<QTreeView>(QStringLiteral("treeV_FileTree")); }
    QTreeView *list() const { return part<QTreeView>(QStringLiteral("treeV_FileList")); }
    QLineEdit *pathEdit() const { return part<QLineEdit>(QStringLiteral("let_FilePath")); }
    QLineEdit *nameEdit() const { return part<QLineEdit>(QStringLiteral("let_FileName")); }
    QComboBox *filterBox() const { return part<QComboBox>(QStringLiteral("cbx_FileType")); }
    QPushButton *button(const QString &name) const { return part<QPushButton>(name); }

    QStringList back() const { return backHistory.toList(); }
    QStringList forward() const { return forwardHistory.toList(); }

    /// The folder that the listing shows.
    QString shown() const { return fileModel->filePath(list()->rootIndex()); }

    /// The names that have a row of their own directly below a view's root, from the top.
    static QStringList rows(const QTreeView *view)
    {
        QStringList names;
        const QModelIndex root = view->rootIndex();
        for (int row = 0; row < view->model()->rowCount(root); ++row) {
            const QModelIndex index = view->model()->index(row, 0, root);
            if (!view->visualRect(index).isEmpty())
                names.append(index.data().toString());
        }
        return names;
    }

    bool showAndWait()
    {
        connect(fileModel, &QFileSystemModel::directoryLoaded, this,
                [this](const QString &path) { loaded.insert(path); });
        show();
        return QTest::qWaitForWindowExposed(this);
    }

    /// Waits until a row is there and its folder is read, so that it stays where it is.
    bool waitForRow(const QTreeView *view, const QString &path) const
    {
        const bool isThere = QTest::qWaitFor([&] {
            return loaded.contains(QFileInfo(path).path())
                   && !view->visualRect(fileModel->index(path)).isEmpty();
        });
        QCoreApplication::processEvents(); // the sorting that follows
        return isThere;
    }

    /// Waits for the row of a path and clicks it. Returns false when it does not come.
    bool click(QTreeView *view, const QString &path, int column = 0)
    {
        if (!waitForRow(view, path))
            return false;
        Pointer(this).click(positionOf(view, path, column));
        return true;
    }

    bool doubleClick(QTreeView *view, const QString &path, int column = 0)
    {
        if (!waitForRow(view, path))
            return false;
        Pointer(this).doubleClick(positionOf(view, path, column));
        return true;
    }

    void press(const QString &buttonName) { Pointer(this).click(middleOf(button(buttonName))); }

    /// Replaces the text of the path edit by the keyboard and presses Enter.
    void typePath(const QString &text)
    {
        pathEdit()->setFocus();
        pathEdit()->selectAll();
        QTest::keyClick(pathEdit(), Qt::Key_Delete);
        QTest::keyClicks(pathEdit(), text);
        QTest::keyClick(pathEdit(), Qt::Key_Return);
    }

private:
    QPoint positionOf(const QTreeView *view, const QString &path, int column) const
    {
        const QModelIndex index = fileModel->index(path, column);
        const QRect visible = view->visualRect(index) & view->viewport()->rect();
        return view->viewport()->mapToGlobal(visible.center());
    }

    QSet<QString> loaded;
};

/// A row for each mode in a test's data.
inline void addModes()
{
    QTest::addColumn<QZelFileDialog::OperateMode>("mode");
    QTest::newRow("open a file") << QZelFileDialog::OpenFile;
    QTest::newRow("save") << QZelFileDialog::SaveFile;
    QTest::newRow("save encrypted") << QZelFileDialog::SaveEncryptedFile;
    QTest::newRow("choose a folder") << QZelFileDialog::SelectDirectory;
    QTest::newRow("open files") << QZelFileDialog::OpenFiles;
}

#endif // FILEDIALOGPROBE_H
