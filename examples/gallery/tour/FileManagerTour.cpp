#include "Families.h"
#include "MainWindow.h"
#include "Samples.h"
#include "Stage.h"

#include <QUIMessageBox.h>
#include <QZelFileDialog.h>
#include <QZelFileManagerWidget.h>

#include <QFileInfo>
#include <QListView>
#include <QTreeView>

using QTarnKit::QUIMessageBox;

namespace {

bool exists(const QString &folder, const char *name)
{
    return QFileInfo::exists(folder + QLatin1Char('/') + QLatin1String(name));
}

void deleteTree(Stage &stage, QWidget *manager, const QString &folder)
{
    auto *list = stage.child<QListView>(manager, "listV_FileList");
    stage.clickRow(list, QStringLiteral("old"));
    stage.click(stage.child<QWidget>(manager, "btn_Delete"));
    auto *box = stage.window<QUIMessageBox>();
    stage.step(QStringLiteral("file manager asks before deleting"), box, QStringLiteral("asked"),
               { manager, box });
    stage.click(stage.button(box, 1));
    stage.awaitTop(manager);
    stage.step(QStringLiteral("file manager keeps on no"), exists(folder, "old/a/deep.txt"),
               QStringLiteral("old is there"), { manager });

    stage.click(stage.child<QWidget>(manager, "btn_Delete"));
    stage.click(stage.button(stage.window<QUIMessageBox>(), 0));
    const bool gone =
            stage.await([&] { return !exists(folder, "old"); }, QStringLiteral("the tree to go"));
    stage.awaitTop(manager);
    stage.step(QStringLiteral("file manager deleted a tree"),
               gone && exists(folder, "reports/week-1.txt"), QStringLiteral("old is gone"),
               { manager });
}

void useManager(Stage &stage, const QString &folder)
{
    stage.openPage(3);
    stage.clickControl("openManager");
    auto *manager = stage.window<QZelFileManagerWidget>();
    auto *list = stage.child<QListView>(manager, "listV_FileList");
    stage.awaitRow(list, QStringLiteral("reports"));
    stage.step(QStringLiteral("file manager"), manager, folder, { manager });
    stage.doubleClickRow(list, QStringLiteral("reports"));
    stage.awaitRow(list, QStringLiteral("week-1.txt"));
    stage.step(QStringLiteral("file manager in a folder"), manager, QStringLiteral("reports"),
               { manager });
    stage.click(stage.child<QWidget>(manager, "btn_UpPage"));
    stage.awaitRow(list, QStringLiteral("reports"));
    deleteTree(stage, manager, folder);
    stage.click(stage.child<QWidget>(manager, "btn_Close"));
    stage.awaitEnd();
}

// The fixed folder is the one where the file dialog remembers the last choice.
void openFromFixedFolder(Stage &stage, const QString &folder)
{
    stage.openPage(2);
    stage.choose("startKind", 1);
    for (int round = 0; round < 2; ++round) {
        stage.clickControl("openOne");
        auto *dialog = stage.window<QZelFileDialog>();
        auto *list = stage.child<QTreeView>(dialog, "treeV_FileList");
        if (round == 0)
            stage.doubleClickRow(list, QStringLiteral("reports"));
        stage.awaitRow(list, QStringLiteral("week-2.txt"));
        stage.step(round == 0 ? QStringLiteral("open from the FTP folder")
                              : QStringLiteral("open remembers the last folder"),
                   dialog, QStringLiteral("/reports/"), { dialog });
        stage.doubleClickRow(list, QStringLiteral("week-2.txt"));
        stage.awaitEnd();
    }
    const QString opened = stage.logged("getOpenFileName");
    stage.step(QStringLiteral("file of the FTP folder opened"),
               opened == folder + QStringLiteral("/reports/week-2.txt"), opened,
               { stage.gallery() });
    stage.choose("startKind", 0);
}

} // namespace

void Families::fileManager(Stage &stage)
{
    const QString folder = Samples::privateFtpFolder();
    const bool made =
            !folder.isEmpty()
            && Samples::make(
                    folder, { QStringLiteral("old/a/deep.txt"), QStringLiteral("old/b.txt"),
                              QStringLiteral("reports/week-1.txt"),
                              QStringLiteral("reports/week-2.txt"), QStringLiteral("readme.txt") });
    if (!made) {
        stage.step(QStringLiteral("file manager"), false,
                   QStringLiteral("not run: this would touch the machine's own FTP folder; run the "
                                  "tour through tests/support/private-root"),
                   { stage.gallery() });
        return;
    }
    useManager(stage, folder);
    openFromFixedFolder(stage, folder);
}
