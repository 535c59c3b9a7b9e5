#include "FtpFolder.h"
#include "HostileNames.h"
#include "NameDialog.h"
#include "ShownDialog.h"
#include "TestMain.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace {

using Mode = QZelFileDialog::OperateMode;

const QString folder = ShownDialog::folder();
const QString current = QStringLiteral("/root/current"); // where names without a folder lead
const QString all = QStringLiteral("All (*)");
const QString newAction = QStringLiteral("new");
const QString renameAction = QStringLiteral("rename");
const QString deleteAction = QStringLiteral("delete");

QStringList entries(const QString &path = folder)
{
    QStringList names = QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                             | QDir::NoDotAndDotDot);
    names.sort();
    return names;
}

// Chooses an action of an item's menu and confirms a name; without an item, of the empty area's.
// The name is pasted, as new lines cannot be typed. Returns what the name dialog held before.
QString run(QTreeView *view, const QString &item, const QString &action, const QString &name)
{
    QString content;
    ModalDriver driver;
    chooseNext(driver, action);
    driver.on<QZelFolderNameDialog>([&](QZelFolderNameDialog *dialog) {
        content = dialog->let_FolderName->text();
        if (!name.isNull())
            dialog->let_FolderName->setText(name);
        User::clickButton(dialog, confirmName());
        if (dialog->isVisible()) // refused as empty
            User::clickButton(dialog, rejectName());
    });
    if (item.isNull())
        User::rightClickBlank(view);
    else
        User::rightClickItem(view, item);
    if (!driver.finished())
        QTest::qFail("no name was asked for", __FILE__, __LINE__);
    return content;
}

QString trimmedTxt(const QString &name)
{
    const QString typed = name.trimmed();
    return typed.left(typed.lastIndexOf(QLatin1Char('.'))) + QStringLiteral(".txt");
}

} // namespace

class tst_QZelFileDialog_hostileMenu : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void filesAreRenamedFromEveryName();
    void filesAreRenamedToEveryName();
    void anUnchangedNameChangesNothing();
    void foldersAreMadeRenamedAndDeleted();
    void namesThatTheSystemRefusesChangeNothing_data();
    void namesThatTheSystemRefusesChangeNothing();
    void aNameMayLeadElsewhere();
    void linksAreRenamedAndTheirTargetsStay();
    void aDeletedLinkToAFolderStays();
    void specialEntriesAreNotListedButOpen();
    void theNameDialogTakesEveryName();
};

void tst_QZelFileDialog_hostileMenu::init()
{
    QVERIFY(FtpFolder::isPrivate());
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QDir(current).removeRecursively());
    QVERIFY(QDir().mkpath(current));
    QVERIFY(QDir::setCurrent(current));
}

void tst_QZelFileDialog_hostileMenu::filesAreRenamedFromEveryName()
{
    const QStringList names = hostileNames();
    for (const QString &name : names)
        QVERIFY(makeRawFile(folder + name));
    ShownDialog dialog(Mode::OpenFile, all);
    QStringList expected = names;
    for (int i = 0; i < names.size(); ++i) {
        const QString &name = names.at(i);
        QCOMPARE(run(dialog.list(), name, renameAction, QStringLiteral("memo%1").arg(i)), name);
        const QString newName =
                QStringLiteral("memo%1.").arg(i) + QFileInfo(folder + name).suffix();
        QCOMPARE(dialog.name()->text(), newName);
        expected.replace(expected.indexOf(name), newName);
        expected.sort();
        QCOMPARE(entries(), expected);
    }
}

void tst_QZelFileDialog_hostileMenu::filesAreRenamedToEveryName()
{
    QVERIFY(makeRawFile(folder + QStringLiteral("start.txt")));
    ShownDialog dialog(Mode::OpenFile, all);
    QString present = QStringLiteral("start.txt");
    const QStringList names = hostileNames();
    for (const QString &name : names) {
        // Too long with the suffix; hidden, so that no menu reaches it.
        if (name.size() == 85 || name.trimmed().isEmpty())
            continue;
        run(dialog.list(), present, renameAction, name);
        present = trimmedTxt(name);
        QCOMPARE(entries(), QStringList(present));
        QCOMPARE(dialog.name()->text(), present);
    }
    QCOMPARE(entries(current), QStringList());
}

// But for spaces around it, which are cut off.
void tst_QZelFileDialog_hostileMenu::anUnchangedNameChangesNothing()
{
    QStringList names = hostileNames();
    for (const QString &name : qAsConst(names)) {
        if (name == name.trimmed() && name.contains(QStringLiteral(".txt")))
            QVERIFY(makeRawFile(folder + name));
    }
    names = entries();
    ShownDialog dialog(Mode::OpenFile, all);
    for (const QString &name : qAsConst(names)) {
        QCOMPARE(run(dialog.list(), name, renameAction, QString()), name);
        QCOMPARE(entries(), names);
    }
    QCOMPARE(entries(current), QStringList());
}

void tst_QZelFileDialog_hostileMenu::foldersAreMadeRenamedAndDeleted()
{
    ShownDialog dialog(Mode::OpenFile, all);
    const QStringList names = hostileNames();
    for (const QString &name : names) {
        if (name.trimmed().isEmpty())
            continue;
        const QString made = name.trimmed();
        run(dialog.tree(), QString(), newAction, name);
        QCOMPARE(entries(), QStringList(made));
        run(dialog.tree(), made, renameAction, QStringLiteral("plain"));
        QCOMPARE(entries(), QStringList(QStringLiteral("plain")));
        run(dialog.tree(), QStringLiteral("plain"), renameAction, name);
        QCOMPARE(entries(), QStringList(made));
        QCOMPARE(dialog.path()->text(), QLatin1Char('/') + made + QLatin1Char('/'));
        QCOMPARE(dialog.backHistory.constLast(), folder + made + QLatin1Char('/'));
        ModalDriver driver;
        chooseNext(driver, deleteAction);
        User::rightClickItem(dialog.tree(), made);
        QVERIFY(driver.finished());
        QCOMPARE(entries(), QStringList());
    }
    QCOMPARE(entries(current), QStringList());
}

void tst_QZelFileDialog_hostileMenu::namesThatTheSystemRefusesChangeNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("256 bytes") << QString(256, QLatin1Char('x'));
    QTest::newRow("256 bytes of two each") << QString(128, QChar(0x00e9));
    QTest::newRow("longer than a path") << QString(5000, QLatin1Char('x'));
    QTest::newRow("only spaces") << QStringLiteral(" \t \u00A0");
    QTest::newRow("this folder") << QStringLiteral(".");
    QTest::newRow("the folder above") << QStringLiteral("..");
    QTest::newRow("the top") << QStringLiteral("/");
    QTest::newRow("below nothing") << QStringLiteral("no/such/name");
    QTest::newRow("below a file") << QStringLiteral("notes.txt/name");
    QTest::newRow("a resource") << QStringLiteral(":/image/name");
}

void tst_QZelFileDialog_hostileMenu::namesThatTheSystemRefusesChangeNothing()
{
    QFETCH(QString, name);
    QVERIFY(makeEntries(folder, { QStringLiteral("notes.txt"), QStringLiteral("sub/") }));
    const QStringList before = entries();
    ShownDialog dialog(Mode::OpenFile, all);
    const WarningGuard qtsOwn(
            QStringLiteral("^(QDir::mkdir: Empty or null file|stat\\(\\) failed)"));
    run(dialog.tree(), QString(), newAction, name);
    QCOMPARE(entries(), before);
    run(dialog.tree(), QStringLiteral("sub"), renameAction, name);
    QCOMPARE(entries(), before);
    QVERIFY(dialog.stays());
    // The suffix makes a file name of the others.
    if (name.size() > 100 || name.indexOf(QLatin1Char('/')) > 0) {
        run(dialog.list(), QStringLiteral("notes.txt"), renameAction, name);
        QCOMPARE(entries(), before);
        QCOMPARE(dialog.name()->text(), QString());
    }
    QCOMPARE(entries(current), QStringList());
}

// A name with "/" is a path, which counts from the item's folder.
void tst_QZelFileDialog_hostileMenu::aNameMayLeadElsewhere()
{
    const QString elsewhere = QStringLiteral("/root/elsewhere");
    QVERIFY(QDir(elsewhere).removeRecursively());
    QVERIFY(QDir().mkpath(elsewhere));
    QVERIFY(makeEntries(folder, { QStringLiteral("a.txt"), QStringLiteral("b.txt"),
                                  QStringLiteral("sub/x.txt") }));
    ShownDialog dialog(Mode::OpenFile, all);
    run(dialog.tree(), QString(), newAction, QStringLiteral("../elsewhere/made"));
    run(dialog.list(), QStringLiteral("a.txt"), renameAction, QStringLiteral("../elsewhere/a.x"));
    run(dialog.list(), QStringLiteral("b.txt"), renameAction, elsewhere + QStringLiteral("/b"));
    run(dialog.tree(), QStringLiteral("sub"), renameAction, QStringLiteral("../elsewhere/sub"));
    QCOMPARE(entries(), QStringList());
    QCOMPARE(entries(elsewhere), QStringList({ QStringLiteral("a.txt"), QStringLiteral("b.txt"),
                                               QStringLiteral("made"), QStringLiteral("sub") }));
    QVERIFY(QFile::exists(elsewhere + QStringLiteral("/sub/x.txt")));
    QVERIFY(dialog.stays());
}

void tst_QZelFileDialog_hostileMenu::linksAreRenamedAndTheirTargetsStay()
{
    QVERIFY(makeEntries(folder, { QStringLiteral("sub/x.txt"), QStringLiteral("a.txt") }));
    QVERIFY(QFile::link(folder + QStringLiteral("sub"), folder + QStringLiteral("toFolder")));
    QVERIFY(QFile::link(folder + QStringLiteral("a.txt"), folder + QStringLiteral("toFile.txt")));
    ShownDialog dialog(Mode::OpenFile, all);
    run(dialog.tree(), QStringLiteral("toFolder"), renameAction, QStringLiteral("link"));
    run(dialog.list(), QStringLiteral("x.txt"), renameAction, QStringLiteral("y"));
    User::clickButton(&dialog, QStringLiteral("btn_MainPage"));
    run(dialog.list(), QStringLiteral("toFile.txt"), renameAction, QStringLiteral("link"));
    QCOMPARE(entries(), QStringList({ QStringLiteral("a.txt"), QStringLiteral("link"),
                                      QStringLiteral("link.txt"), QStringLiteral("sub") }));
    QVERIFY(QFileInfo(folder + QStringLiteral("link")).isSymLink());
    QVERIFY(QFileInfo(folder + QStringLiteral("link.txt")).isSymLink());
    QCOMPARE(entries(folder + QStringLiteral("sub")), QStringList(QStringLiteral("y.txt")));
}

// Only an empty folder goes, and a link is none.
void tst_QZelFileDialog_hostileMenu::aDeletedLinkToAFolderStays()
{
    QVERIFY(makeEntries(folder, { QStringLiteral("empty/") }));
    QVERIFY(QFile::link(folder + QStringLiteral("empty"), folder + QStringLiteral("link")));
    QVERIFY(QFile::link(folder, folder + QStringLiteral("loop")));
    const QStringList before = entries();
    ShownDialog dialog(Mode::OpenFile, all);
    for (const QString &item : { QStringLiteral("link"), QStringLiteral("loop") }) {
        ModalDriver driver;
        chooseNext(driver, deleteAction);
        User::rightClickItem(dialog.tree(), item);
        QVERIFY(driver.finished());
        QCOMPARE(entries(), before);
    }
}

// Whoever opens what was chosen has to look what it is.
void tst_QZelFileDialog_hostileMenu::specialEntriesAreNotListedButOpen()
{
    QCOMPARE(mkfifo(qPrintable(folder + QStringLiteral("pipe")), 0600), 0);
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), folder + QStringLiteral("device")));
    QVERIFY(makeEntries(folder, { QStringLiteral("a.txt") }));
    ShownDialog dialog(Mode::OpenFile, all);
    User::item(dialog.list(), QStringLiteral("a.txt"));
    QCOMPARE(User::items(dialog.list()), QStringList(QStringLiteral("a.txt")));
    for (const QString &name : { QStringLiteral("pipe"), QStringLiteral("device") }) {
        User::type(dialog.name(), name);
        dialog.pressGo();
        QVERIFY(dialog.wasAccepted());
        QCOMPARE(dialog.filePath, folder + name);
        dialog.show();
    }
    dialog.close();
}

void tst_QZelFileDialog_hostileMenu::theNameDialogTakesEveryName()
{
    QZelFolderNameDialog dialog(nullptr);
    const QStringList names = hostileNames() + QStringList(QString(30000, QLatin1Char('x')));
    for (const QString &name : names) {
        dialog.show();
        dialog.setContent(name);
        QCOMPARE(dialog.let_FolderName->text(), name);
        User::clickButton(&dialog, confirmName());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.let_FolderName->text(), name);
        QCOMPARE(dialog.size(), QSize(300, 150));
    }
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_hostileMenu)
#include "tst_QZelFileDialog_hostileMenu.moc"
