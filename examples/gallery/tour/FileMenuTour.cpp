#include "Families.h"
#include "MainWindow.h"
#include "Samples.h"
#include "Stage.h"

#include <QZelFileDialog.h>
#include <QZelFolderNameDialog.h>

#include <QLineEdit>
#include <QMenu>
#include <QTreeView>

namespace {

// Types a name into the name dialog and confirms it.
void giveName(Stage &stage, const QString &picture, const QString &name, QWidget *below)
{
    auto *dialog = stage.window<QZelFolderNameDialog>();
    if (!dialog)
        return;
    stage.type(dialog->let_FolderName, name);
    stage.step(picture, true, name, { below, dialog });
    stage.click(stage.button(stage.child<QWidget>(dialog, "wgt_Bottom"), 0));
    stage.awaitTop(below);
}

void pictureMenu(Stage &stage, const QString &name, int actions, QWidget *dialog)
{
    auto *menu = stage.window<QMenu>();
    const int count = stage.ask<int>([=] { return menu ? menu->actions().size() : 0; });
    stage.step(name, count == actions, QStringLiteral("%1 entries").arg(count), { dialog, menu });
}

} // namespace

void Families::fileMenu(Stage &stage)
{
    const Samples samples;
    stage.openPage(2);
    stage.fill("startFolder", samples.path());
    stage.clickControl("openOne");
    auto *dialog = stage.window<QZelFileDialog>();
    auto *tree = stage.child<QTreeView>(dialog, "treeV_FileTree");
    auto *list = stage.child<QTreeView>(dialog, "treeV_FileList");

    stage.openMenu(tree, QString());
    pictureMenu(stage, QStringLiteral("menu of the free area"), 1, dialog);
    stage.chooseAction(0);
    giveName(stage, QStringLiteral("new folder"), QStringLiteral("fresh"), dialog);
    stage.awaitRow(tree, QStringLiteral("fresh"));
    stage.step(QStringLiteral("folder made"), samples.has(QStringLiteral("fresh")),
               QStringLiteral("fresh"), { dialog });

    stage.openMenu(tree, QStringLiteral("fresh"));
    pictureMenu(stage, QStringLiteral("menu of a folder"), 3, dialog);
    stage.chooseAction(1);
    giveName(stage, QStringLiteral("rename folder"), QStringLiteral("renamed"), dialog);
    stage.awaitRow(tree, QStringLiteral("renamed"));
    stage.step(QStringLiteral("folder renamed"),
               samples.has(QStringLiteral("renamed")) && !samples.has(QStringLiteral("fresh")),
               QStringLiteral("renamed"), { dialog });

    stage.openMenu(tree, QStringLiteral("renamed"));
    stage.chooseAction(2);
    const bool gone = stage.await([&] { return !samples.has(QStringLiteral("renamed")); },
                                  QStringLiteral("the folder to go"));
    stage.step(QStringLiteral("folder deleted"), gone, QStringLiteral("renamed is gone"),
               { dialog });

    stage.openMenu(list, QStringLiteral("notes.txt"));
    pictureMenu(stage, QStringLiteral("menu of a file"), 1, dialog);
    stage.chooseAction(0);
    giveName(stage, QStringLiteral("rename file"), QStringLiteral("memo.doc"), dialog);
    stage.awaitRow(list, QStringLiteral("memo.txt"));
    stage.step(QStringLiteral("file renamed and suffix kept"),
               samples.has(QStringLiteral("memo.txt")), QStringLiteral("memo.txt"), { dialog });
    stage.click(stage.child<QWidget>(dialog, "btn_Cancel"));
    stage.awaitEnd();
}
