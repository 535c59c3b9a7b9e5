#ifndef SHOWNMANAGER_H
#define SHOWNMANAGER_H

#include "FtpFolder.h"
#include "User.h"

#include <QZelFileManagerWidget.h>

#include <QFileSystemModel>
#include <QListView>
#include <QTest>
#include <QTreeView>

/// A shown file manager.
class ShownManager : public QZelFileManagerWidget
{
public:
    ShownManager()
        : QZelFileManagerWidget(nullptr)
    {
        show();
        if (!QTest::qWaitForWindowActive(this))
            QTest::qFail("the file manager did not show", __FILE__, __LINE__);
    }

    QTreeView *tree() { return findChild<QTreeView *>(QStringLiteral("treeV_FileTree")); }
    QListView *list() { return findChild<QListView *>(QStringLiteral("listV_FileList")); }
    QString shown() { return fileModel->filePath(list()->rootIndex()); }

    using QZelFileManagerWidget::dragging;
    using QZelFileManagerWidget::dragOffset;
    using QZelFileManagerWidget::fileModel;
    using QZelFileManagerWidget::rootIndex;
};

#endif // SHOWNMANAGER_H
