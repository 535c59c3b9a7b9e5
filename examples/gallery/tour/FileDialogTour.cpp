#include "Families.h"
#include "MainWindow.h"
#include "Samples.h"
#include "Stage.h"

#include <QUIMessageBox.h>
#include <QZelEncDialog.h>
#include <QZelFileDialog.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>

using QTarnKit::QUIMessageBox;

namespace {

QTreeView *listing(Stage &stage, const QWidget *dialog)
{
    return stage.child<QTreeView>(dialog, "treeV_FileList");
}

void pressOpenSave(Stage &stage, const QWidget *dialog)
{
    stage.click(stage.child<QWidget>(dialog, "btn_OpenSave"));
}

// Answers the message box that is up.
void answer(Stage &stage, const QString &name, int button, QWidget *below)
{
    auto *box = stage.window<QUIMessageBox>();
    stage.step(name, box, QStringLiteral("asked"), { below, box });
    stage.click(stage.button(box, button));
}

void checkResult(Stage &stage, const QString &name, const char *call, const QString &expected)
{
    stage.awaitEnd();
    const QString result = stage.logged(call);
    stage.step(name, result == expected, result, { stage.gallery() });
}

void openMachineFile(Stage &stage)
{
    auto *filters = stage.control<QLineEdit>("filters");
    const QString own = stage.text([=] { return filters->text(); });
    stage.fill("startFolder", QStringLiteral("/etc"));
    stage.fill("filters", QStringLiteral("*"));
    stage.clickControl("openOne");
    auto *dialog = stage.window<QZelFileDialog>();
    stage.clickRow(listing(stage, dialog), QStringLiteral("os-release"));
    stage.step(QStringLiteral("open a file of this machine"), dialog, QStringLiteral("in /etc"),
               { dialog });
    pressOpenSave(stage, dialog);
    checkResult(stage, QStringLiteral("file of this machine opened"), "getOpenFileName",
                QStringLiteral("/etc/os-release"));
    stage.tell([=] { filters->setText(own); });
}

void openOne(Stage &stage, const QString &folder)
{
    stage.fill("startFolder", folder);
    stage.clickControl("openOne");
    auto *dialog = stage.window<QZelFileDialog>();
    QTreeView *list = listing(stage, dialog);
    stage.awaitRow(list, QStringLiteral("notes.txt"));
    stage.step(QStringLiteral("open a file"), dialog, QStringLiteral("text files"), { dialog });

    stage.doubleClickRow(list, QStringLiteral("projects"));
    stage.awaitRow(list, QStringLiteral("plan.txt"));
    stage.step(QStringLiteral("open in a folder below"), true, QStringLiteral("/projects/"),
               { dialog });
    stage.click(stage.child<QWidget>(dialog, "btn_Back"));
    stage.awaitRow(list, QStringLiteral("notes.txt"));

    auto *name = stage.child<QLineEdit>(dialog, "let_FileName");
    stage.type(name, QStringLiteral("missing"));
    pressOpenSave(stage, dialog);
    answer(stage, QStringLiteral("open a wrong name"), 0, dialog);

    auto *path = stage.child<QLineEdit>(dialog, "let_FilePath");
    stage.type(path, QStringLiteral("/projects"));
    stage.key(dialog, Qt::Key_Return);
    stage.awaitRow(list, QStringLiteral("plan.txt"));
    stage.step(QStringLiteral("open a typed path"), true, QStringLiteral("/projects"), { dialog });
    stage.click(stage.child<QWidget>(dialog, "btn_MainPage"));

    stage.clickRow(list, QStringLiteral("notes.txt"));
    pressOpenSave(stage, dialog);
    checkResult(stage, QStringLiteral("file opened"), "getOpenFileName",
                folder + QStringLiteral("/notes.txt"));
}

void openSeveral(Stage &stage, const QString &folder)
{
    stage.clickControl("openSeveral");
    auto *dialog = stage.window<QZelFileDialog>();
    QTreeView *list = listing(stage, dialog);
    stage.clickRow(list, QStringLiteral("notes.txt"));
    stage.key(dialog, Qt::Key_Down, Qt::ShiftModifier);
    stage.step(QStringLiteral("open several files"), dialog, QStringLiteral("two selected"),
               { dialog });
    pressOpenSave(stage, dialog);
    checkResult(stage, QStringLiteral("several files opened"), "getOpenFileNames",
                QStringLiteral("%1/notes.txt, %1/report.txt").arg(folder));
}

void changeFilter(Stage &stage, const QString &folder)
{
    stage.clickControl("openOne");
    auto *dialog = stage.window<QZelFileDialog>();
    auto *strip = stage.child<QWidget>(dialog, "wgt_TitleBar");
    const QPoint start = stage.ask<QPoint>([=] { return dialog->pos(); });
    const QPoint grip = stage.ask<QPoint>([=] { return strip->mapToGlobal(QPoint(300, 16)); });
    stage.drag(dialog, grip, grip + QPoint(-220, 20));
    stage.step(QStringLiteral("file dialog dragged by its strip"),
               stage.ask<QPoint>([=] { return dialog->pos(); }) == start + QPoint(-220, 20),
               QStringLiteral("by -220, 20"), { dialog });

    auto *types = stage.child<QComboBox>(dialog, "cbx_FileType");
    stage.click(types);
    auto *popup = stage.ask<QWidget *>([=] { return types->view()->window(); });
    stage.step(QStringLiteral("filter list open"), dialog, QStringLiteral("three filters"),
               { dialog, popup });
    stage.key(popup, Qt::Key_Down);
    stage.key(popup, Qt::Key_Return);
    QTreeView *list = listing(stage, dialog);
    stage.doubleClickRow(list, QStringLiteral("panel.png"));
    checkResult(stage, QStringLiteral("image opened by a double click"), "getOpenFileName",
                folder + QStringLiteral("/panel.png"));
}

void saveOver(Stage &stage, const QString &folder)
{
    stage.clickControl("save");
    auto *dialog = stage.window<QZelFileDialog>();
    stage.type(stage.child<QLineEdit>(dialog, "let_FileName"), QStringLiteral("report"));
    stage.step(QStringLiteral("save"), dialog, QStringLiteral("report"), { dialog });
    pressOpenSave(stage, dialog);
    answer(stage, QStringLiteral("save over a file no"), 1, dialog);
    stage.awaitTop(dialog);
    pressOpenSave(stage, dialog);
    answer(stage, QStringLiteral("save over a file yes"), 0, dialog);
    checkResult(stage, QStringLiteral("file saved over another"), "getSaveFileName",
                folder + QStringLiteral("/report.txt"));
}

void typePasswords(Stage &stage, QZelEncDialog *dialog, const QString &confirmation)
{
    const auto edits =
            stage.ask<QList<QLineEdit *>>([=] { return dialog->findChildren<QLineEdit *>(); });
    stage.type(edits.value(0), QStringLiteral("abc123"));
    stage.type(edits.value(1), confirmation);
    stage.click(stage.button(stage.child<QWidget>(dialog, "wgt_Bottom"), 0));
}

void saveEncrypted(Stage &stage, const QString &folder)
{
    stage.clickControl("encrypt");
    stage.clickControl("save");
    auto *dialog = stage.window<QZelFileDialog>();
    stage.type(stage.child<QLineEdit>(dialog, "let_FileName"), QStringLiteral("secret"));
    stage.click(stage.child<QWidget>(dialog, "btn_encOption"));
    auto *password = stage.window<QZelEncDialog>();
    if (!password)
        return;
    typePasswords(stage, password, QStringLiteral("abc12"));
    auto *error = stage.child<QLabel>(password, "lbl_Msg");
    stage.step(QStringLiteral("save with a password mismatch"),
               stage.holds([=] { return !error->text().isEmpty(); }),
               stage.text([=] { return error->text(); }), { dialog, password });
    typePasswords(stage, password, QStringLiteral("abc123"));
    answer(stage, QStringLiteral("save with a password repeated"), 0, dialog);
    stage.awaitTop(dialog);
    pressOpenSave(stage, dialog);
    checkResult(stage, QStringLiteral("file saved with a password"), "getSaveFileName",
                folder + QStringLiteral("/secret.txt"));
    stage.clickControl("encrypt");
}

void chooseFolder(Stage &stage, const QString &folder)
{
    stage.clickControl("chooseFolder");
    auto *dialog = stage.window<QZelFileDialog>();
    stage.clickRow(stage.child<QTreeView>(dialog, "treeV_FileTree"), QStringLiteral("projects"));
    stage.step(QStringLiteral("choose a folder"), dialog, QStringLiteral("projects"), { dialog });
    pressOpenSave(stage, dialog);
    checkResult(stage, QStringLiteral("folder chosen"), "getExistingDirectory",
                folder + QStringLiteral("/projects"));
}

void startNowhere(Stage &stage)
{
    stage.choose("startKind", 2);
    stage.clickControl("openOne");
    auto *dialog = stage.window<QZelFileDialog>();
    QTreeView *list = listing(stage, dialog);
    stage.await([=] { return list && list->model()->rowCount(list->rootIndex()) > 0; },
                QStringLiteral("a listing"));
    stage.step(QStringLiteral("open from a missing folder"), dialog,
               QStringLiteral("lists something to go on from"), { dialog });
    stage.click(stage.child<QWidget>(dialog, "btn_Cancel"));
    checkResult(stage, QStringLiteral("open cancelled"), "getOpenFileName", QString());
    stage.choose("startKind", 0);
}

void listenToSignals(Stage &stage, const QString &folder)
{
    stage.choose("mode", 0);
    stage.clickControl("byHand");
    auto *dialog = stage.window<QZelFileDialog>();
    stage.doubleClickRow(listing(stage, dialog), QStringLiteral("notes.txt"));
    checkResult(stage, QStringLiteral("signal of a chosen file"), "sig_filePath",
                folder + QStringLiteral("/notes.txt"));
}

} // namespace

void Families::fileDialog(Stage &stage)
{
    const Samples samples;
    stage.openPage(2);
    openMachineFile(stage);
    openOne(stage, samples.path());
    openSeveral(stage, samples.path());
    changeFilter(stage, samples.path());
    saveOver(stage, samples.path());
    saveEncrypted(stage, samples.path());
    chooseFolder(stage, samples.path());
    listenToSignals(stage, samples.path());
    startNowhere(stage);
}
