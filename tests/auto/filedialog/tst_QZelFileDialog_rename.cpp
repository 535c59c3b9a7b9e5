#include "FtpFolder.h"
#include "MarkingTranslator.h"
#include "NameDialog.h"
#include "ShownDialog.h"
#include "TestMain.h"

#include <QDir>
#include <QFile>

namespace {

using Mode = QZelFileDialog::OperateMode;

const QString folder = ShownDialog::folder();
const QString all = QStringLiteral("All (*)");
const QString renameAction = QStringLiteral("rename");

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                          : QStringLiteral("missing");
}

QStringList entries(const QString &path)
{
    return QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

// Renames an item through its menu.
SeenNameDialog rename(QTreeView *view, const QString &item, const QString &name,
                      const QString &button)
{
    SeenNameDialog seen;
    ModalDriver driver;
    chooseNext(driver, renameAction);
    nameNext(driver, name, button, &seen);
    User::rightClickItem(view, item);
    if (!driver.finished())
        QTest::qFail("the rename did not run", __FILE__, __LINE__);
    return seen;
}

} // namespace

class tst_QZelFileDialog_rename : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void fileKeepsItsSuffix_data();
    void fileKeepsItsSuffix();
    void rejectedFileNameMakesADotAndTheSuffix_data();
    void rejectedFileNameMakesADotAndTheSuffix();
    void existingTargetChangesNothing();
    void nameDialogShowsThePresentName();
    void promptIsTranslated();
    void renamedFileIsSelectedInItsNameOnly();
    void renamedFileCanBeOpened();

    void folderIsRenamedAndShown();
    void renamedFolderIsTheNextChoice();
    void nestedFolderKeepsItsParent();
    void folderThatCannotBeRenamedIsNotReported_data();
    void folderThatCannotBeRenamedIsNotReported();
};

void tst_QZelFileDialog_rename::init()
{
    QVERIFY(FtpFolder::isPrivate());
    QVERIFY(QDir(folder).removeRecursively());
}

void tst_QZelFileDialog_rename::fileKeepsItsSuffix_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *title, const char *file, const char *typed,
                        const char *expected) {
        QTest::newRow(title) << QString::fromUtf8(file) << QString::fromUtf8(typed)
                             << QString::fromUtf8(expected);
    };
    row("bare name", "notes.txt", "memo", "memo.txt");
    row("same suffix", "notes.txt", "memo.txt", "memo.txt");
    row("other suffix", "notes.txt", "memo.md", "memo.txt");
    row("two dots", "notes.txt", "memo.tar.gz", "memo.tar.txt");
    row("dot at the end", "notes.txt", "memo.", "memo.txt");
    row("dot comes first", "notes.txt", ".profile", ".profile");
    row("last of two dots counts", "notes.txt", ".profile.md", ".profile.txt");
    row("blanks around", "notes.txt", "  memo  ", "memo.txt");
    row("blanks within", "notes.txt", "my memo", "my memo.txt");
    row("blanks only", "notes.txt", "   ", ".txt");
    row("no suffix", "README", "x", "x.");
    row("no suffix, one typed", "README", "x.md", "x.");
    row("suffix is the last one", "a.tar.gz", "b", "b.gz");
}

void tst_QZelFileDialog_rename::fileKeepsItsSuffix()
{
    QFETCH(QString, file);
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    QVERIFY(makeEntries(folder, { file }));
    ShownDialog dialog(Mode::OpenFile, all);
    rename(dialog.list(), file, typed, confirmName());
    QCOMPARE(entries(folder), QStringList(expected));
    QCOMPARE(contents(folder + expected), file);
    QCOMPARE(dialog.name()->text(), expected);
    QVERIFY(dialog.stays());
}

void tst_QZelFileDialog_rename::rejectedFileNameMakesADotAndTheSuffix_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("expected");
    QTest::newRow("with suffix") << QStringLiteral("notes.txt") << QStringLiteral(".txt");
    // "." is the folder itself, which exists: nothing changes.
    QTest::newRow("without suffix") << QStringLiteral("README") << QStringLiteral("README");
}

// A rejected name goes on as the empty one.
void tst_QZelFileDialog_rename::rejectedFileNameMakesADotAndTheSuffix()
{
    QFETCH(QString, file);
    QFETCH(QString, expected);
    QVERIFY(makeEntries(folder, { file }));
    ShownDialog dialog(Mode::OpenFile, all);
    rename(dialog.list(), file, QStringLiteral("typed in vain"), rejectName());
    QCOMPARE(entries(folder), QStringList(expected));
    QCOMPARE(contents(folder + expected), file);
    QCOMPARE(dialog.name()->text(), expected == file ? QString() : expected);
}

void tst_QZelFileDialog_rename::existingTargetChangesNothing()
{
    QVERIFY(makeEntries(folder, { QStringLiteral("notes.txt"), QStringLiteral("memo.txt"),
                                  QStringLiteral(".txt") }));
    ShownDialog dialog(Mode::OpenFile, all);
    const QStringList buttons = { confirmName(), rejectName() };
    for (const QString &button : buttons) {
        rename(dialog.list(), QStringLiteral("notes.txt"), QStringLiteral("memo"), button);
        QCOMPARE(entries(folder).size(), 3);
        QCOMPARE(contents(folder + QStringLiteral("notes.txt")), QStringLiteral("notes.txt"));
        QCOMPARE(contents(folder + QStringLiteral("memo.txt")), QStringLiteral("memo.txt"));
        QCOMPARE(contents(folder + QStringLiteral(".txt")), QStringLiteral(".txt"));
        QCOMPARE(dialog.name()->text(), QString());
    }
}

void tst_QZelFileDialog_rename::nameDialogShowsThePresentName()
{
    QVERIFY(makeEntries(folder, { QStringLiteral("a.tar.gz") }));
    ShownDialog dialog(Mode::OpenFile, all);
    const SeenNameDialog seen =
            rename(dialog.list(), QStringLiteral("a.tar.gz"), QStringLiteral("b"), confirmName());
    QCOMPARE(seen.prompt, QStringLiteral("rename"));
    QCOMPARE(seen.content, QStringLiteral("a.tar.gz"));
    QCOMPARE(seen.parent, &dialog);
    QCOMPARE(seen.flags, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    QCOMPARE(seen.modality, Qt::WindowModal);
}

void tst_QZelFileDialog_rename::promptIsTranslated()
{
    QVERIFY(makeEntries(folder, { QStringLiteral("notes.txt"), QStringLiteral("sub/") }));
    ShownDialog dialog(Mode::OpenFile, all);
    User::item(dialog.list(), QStringLiteral("notes.txt"));
    const MarkingTranslator marker;
    const SeenNameDialog file = rename(dialog.list(), QStringLiteral("notes.txt"),
                                       QStringLiteral("memo"), rejectName());
    QCOMPARE(file.prompt, QStringLiteral("[QZelFileDialog|rename]"));
    const SeenNameDialog sub =
            rename(dialog.tree(), QStringLiteral("sub"), QStringLiteral("new"), rejectName());
    QCOMPARE(sub.prompt, QStringLiteral("[QZelFolderNameDialog|folderName]"));
}

// Not in its whole row: so it is no selected file of a dialog for several.
void tst_QZelFileDialog_rename::renamedFileIsSelectedInItsNameOnly()
{
    QVERIFY(makeEntries(folder, { QStringLiteral("a.txt"), QStringLiteral("b.txt") }));
    ShownDialog dialog(Mode::OpenFiles, all);
    User::clickItem(dialog.list(), QStringLiteral("b.txt"));
    QCOMPARE(dialog.getFilePaths(), QStringList(folder + QStringLiteral("b.txt")));
    rename(dialog.list(), QStringLiteral("a.txt"), QStringLiteral("c"), confirmName());
    const QModelIndexList selected = dialog.list()->selectionModel()->selectedIndexes();
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.at(0).data().toString(), QStringLiteral("c.txt"));
    QCOMPARE(selected.at(0).column(), 0);
    QCOMPARE(dialog.getFilePaths(), QStringList());
}

void tst_QZelFileDialog_rename::renamedFileCanBeOpened()
{
    QVERIFY(makeEntries(folder, { QStringLiteral("notes.txt") }));
    ShownDialog dialog(Mode::OpenFile);
    rename(dialog.list(), QStringLiteral("notes.txt"), QStringLiteral("memo"), confirmName());
    dialog.pressGo();
    QVERIFY(dialog.wasAccepted());
    QCOMPARE(dialog.announced(), QStringList(folder + QStringLiteral("memo.txt")));
}

void tst_QZelFileDialog_rename::folderIsRenamedAndShown()
{
    QVERIFY(makeEntries(folder, { QStringLiteral("sub/x.txt") }));
    ShownDialog dialog(Mode::OpenFile);
    rename(dialog.tree(), QStringLiteral("sub"), QStringLiteral(" my.sub "), confirmName());
    const QString renamed = folder + QStringLiteral("my.sub");
    QCOMPARE(entries(folder), QStringList(QStringLiteral("my.sub")));
    QCOMPARE(dialog.list()->rootIndex().data(Qt::UserRole + 1).toString(), renamed);
    QCOMPARE(dialog.list()->rootIndex().column(), 0);
    QCOMPARE(dialog.backHistory, QVector<QString>({ folder, renamed + QLatin1Char('/') }));
    QCOMPARE(dialog.path()->text(), QStringLiteral("/my.sub/"));
    User::item(dialog.list(), QStringLiteral("x.txt"));
    // The history leads back from it.
    User::clickButton(&dialog, QStringLiteral("btn_Back"));
    QCOMPARE(dialog.path()->text(), QStringLiteral("/"));
}

void tst_QZelFileDialog_rename::renamedFolderIsTheNextChoice()
{
    QVERIFY(makeEntries(folder, { QStringLiteral("sub/") }));
    ShownDialog dialog;
    rename(dialog.tree(), QStringLiteral("sub"), QStringLiteral("other"), confirmName());
    dialog.pressGo();
    QVERIFY(dialog.wasAccepted());
    QCOMPARE(dialog.announced(), QStringList(folder + QStringLiteral("other/")));
}

void tst_QZelFileDialog_rename::nestedFolderKeepsItsParent()
{
    QVERIFY(makeEntries(folder, { QStringLiteral("sub/deep/") }));
    ShownDialog dialog(Mode::OpenFile);
    rename(dialog.tree(), QStringLiteral("sub/deep"), QStringLiteral("down"), confirmName());
    QCOMPARE(entries(folder + QStringLiteral("sub")), QStringList(QStringLiteral("down")));
    QCOMPARE(dialog.path()->text(), QStringLiteral("/sub/down/"));
}

void tst_QZelFileDialog_rename::folderThatCannotBeRenamedIsNotReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("button");
    QTest::newRow("existing folder") << QStringLiteral("full") << confirmName();
    QTest::newRow("existing file") << QStringLiteral("notes.txt") << confirmName();
    QTest::newRow("its own name") << QStringLiteral("sub") << confirmName();
    QTest::newRow("blanks only") << QStringLiteral("  ") << confirmName();
    QTest::newRow("no such folder above") << QStringLiteral("no/where") << confirmName();
    QTest::newRow("into itself") << QStringLiteral("sub/in") << confirmName();
    QTest::newRow("rejected") << QStringLiteral("other") << rejectName();
}

void tst_QZelFileDialog_rename::folderThatCannotBeRenamedIsNotReported()
{
    QFETCH(QString, name);
    QFETCH(QString, button);
    QVERIFY(makeEntries(folder, { QStringLiteral("sub/x.txt"), QStringLiteral("full/y.txt"),
                                  QStringLiteral("notes.txt") }));
    const QStringList before = entries(folder);
    ShownDialog dialog(Mode::OpenFile);
    User::clickItem(dialog.tree(), QStringLiteral("full"));
    const QVector<QString> history = dialog.backHistory;
    rename(dialog.tree(), QStringLiteral("sub"), name, button);
    QCOMPARE(entries(folder), before);
    QVERIFY(QFile::exists(folder + QStringLiteral("sub/x.txt")));
    QCOMPARE(dialog.backHistory, history);
    QCOMPARE(dialog.path()->text(), QStringLiteral("/full/"));
    QVERIFY(dialog.stays());
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_rename)

#include "tst_QZelFileDialog_rename.moc"
