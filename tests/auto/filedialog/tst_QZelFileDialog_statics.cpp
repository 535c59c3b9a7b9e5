#include "FtpFolder.h"
#include "ModalDriver.h"
#include "ShownDialog.h"
#include "TestMain.h"
#include "User.h"

#include <QZelEncDialog.h>

#include <QComboBox>
#include <QDir>
#include <QSettings>

namespace {

// The static functions, the save function once for each mode.
enum Function { OpenOne, OpenSeveral, Save, SaveEncrypted, Folder };

const QString folder = ShownDialog::folder();
const QString filters = QStringLiteral("Text (*.txt);;All (*)");
const QString untouched = QStringLiteral("untouched");

struct Result
{
    QStringList paths;
    QString filter = untouched;
    QString password = untouched;
};

QStringList listOf(const QString &path)
{
    return path.isEmpty() ? QStringList() : QStringList(path);
}

Result run(Function function, QWidget *parent = nullptr)
{
    const QString caption = QStringLiteral("Go");
    Result r;
    switch (function) {
    case OpenOne:
        r.paths = listOf(
                QZelFileDialog::getOpenFileName(parent, caption, folder, filters, &r.filter));
        break;
    case OpenSeveral:
        r.paths = QZelFileDialog::getOpenFileNames(parent, caption, folder, filters, &r.filter);
        break;
    case Save:
    case SaveEncrypted:
        r.paths =
                listOf(QZelFileDialog::getSaveFileName(parent, caption, folder, filters, &r.filter,
                                                       function == SaveEncrypted, &r.password));
        break;
    case Folder:
        r.paths = listOf(QZelFileDialog::getExistingDirectory(parent, caption, folder));
        break;
    }
    return r;
}

template <typename T>
T *child(QWidget *window, const char *name)
{
    return window->findChild<T *>(QLatin1String(name));
}

QVariant setting(const QString &filter)
{
    return QSettings(QStringLiteral("MyOrganization"), QStringLiteral("MyApplication"))
            .value(QStringLiteral("LastFilePath") + filter);
}

void go(QZelFileDialog *dialog)
{
    User::clickButton(dialog, QStringLiteral("btn_OpenSave"));
}

void addFunctions()
{
    QTest::addColumn<int>("function");
    QTest::newRow("open one") << int(OpenOne);
    QTest::newRow("open several") << int(OpenSeveral);
    QTest::newRow("save") << int(Save);
    QTest::newRow("save encrypted") << int(SaveEncrypted);
    QTest::newRow("folder") << int(Folder);
}

} // namespace

class tst_QZelFileDialog_statics : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void dialogFitsTheFunction_data() { addFunctions(); }
    void dialogFitsTheFunction();
    void cancelledGivesNothingButTheOutArguments_data() { addFunctions(); }
    void cancelledGivesNothingButTheOutArguments();
    void quittingGivesNothingButTheOutArguments_data() { addFunctions(); }
    void quittingGivesNothingButTheOutArguments();
    void nullOutArgumentsAreNotWanted();
    void everyArgumentHasADefault();
    void filterChosenLastIsHandedOut();
    void openedFileIsReturnedAndItsFolderRemembered();
    void openedFilesAreReturnedAndTheFirstOnesFolderRemembered();
    void doubleClickedFileJoinsTheSelection();
    void nothingSelectedRemembersNothing();
    void savedNameIsReturned();
    void replacedFileIsReturnedWithoutASignal();
    void passwordIsHandedOutAlsoWhenCancelled();
    void folderEndsWithASlashByWay_data();
    void folderEndsWithASlashByWay();
};

void tst_QZelFileDialog_statics::init()
{
    QSettings(QStringLiteral("MyOrganization"), QStringLiteral("MyApplication")).clear();
    QVERIFY(FtpFolder::isPrivate());
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(makeEntries(folder, { QStringLiteral("a.txt"), QStringLiteral("b.txt"),
                                  QStringLiteral("sub/inner.txt") }));
}

void tst_QZelFileDialog_statics::dialogFitsTheFunction()
{
    QFETCH(int, function);
    QWidget host;
    ModalDriver driver;
    driver.on<QZelFileDialog>([&](QZelFileDialog *dialog) {
        QCOMPARE(dialog->parent(), &host);
        QCOMPARE(dialog->windowFlags(),
                 Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
        QCOMPARE(dialog->windowModality(), Qt::WindowModal);
        QCOMPARE(child<QLabel>(dialog, "label_title")->text(), QStringLiteral("Go"));
        QCOMPARE(child<QPushButton>(dialog, "btn_OpenSave")->text(), QStringLiteral("Go"));
        const auto *types = child<QComboBox>(dialog, "cbx_FileType");
        QCOMPARE(types->isVisible(), function != Folder);
        QCOMPARE(types->count(), function == Folder ? 0 : 2);
        QCOMPARE(child<QWidget>(dialog, "let_FileName")->isVisible(), function != OpenSeveral);
        QCOMPARE(child<QWidget>(dialog, "btn_encOption")->isVisible(), function == SaveEncrypted);
        QCOMPARE(child<QTreeView>(dialog, "treeV_FileList")->selectionMode(),
                 function == OpenSeveral ? QAbstractItemView::ExtendedSelection
                                         : QAbstractItemView::SingleSelection);
        User::clickButton(dialog, QStringLiteral("btn_Close"));
    });
    run(Function(function), &host);
    QVERIFY(driver.finished());
    QCOMPARE(host.children().size(), 0); // the dialog has gone
}

void tst_QZelFileDialog_statics::cancelledGivesNothingButTheOutArguments()
{
    QFETCH(int, function);
    ModalDriver driver;
    driver.on<QZelFileDialog>([&](QZelFileDialog *dialog) {
        if (function != Folder)
            User::clickItem(child<QTreeView>(dialog, "treeV_FileList"), QStringLiteral("a.txt"));
        User::clickButton(dialog, QStringLiteral("btn_Cancel"));
    });
    const Result result = run(Function(function));
    QVERIFY(driver.finished());
    QCOMPARE(result.paths, QStringList());
    QCOMPARE(result.filter, function == Folder ? untouched : QStringLiteral("Text (*.txt)"));
    QCOMPARE(result.password, function == Save || function == SaveEncrypted ? QString() : untouched);
    QVERIFY(!setting(QStringLiteral("Text (*.txt)")).isValid());
    QVERIFY(!setting(QString()).isValid());
}

void tst_QZelFileDialog_statics::quittingGivesNothingButTheOutArguments()
{
    QFETCH(int, function);
    Result result;
    bool returned = false;
    ModalDriver driver;
    driver.on<QZelFileDialog>([](QZelFileDialog *) { QCoreApplication::quit(); });
    QTimer::singleShot(0, this, [&] {
        result = run(Function(function));
        returned = true;
    });
    QCoreApplication::exec();
    QVERIFY(returned);
    QVERIFY(driver.finished());
    QCOMPARE(result.paths, QStringList());
    QCOMPARE(result.filter, function == Folder ? untouched : QStringLiteral("Text (*.txt)"));
    QCOMPARE(result.password, function == Save || function == SaveEncrypted ? QString() : untouched);
}

void tst_QZelFileDialog_statics::nullOutArgumentsAreNotWanted()
{
    const QString caption = QStringLiteral("Go");
    const QString path = folder + QStringLiteral("a.txt");
    const auto chooseFile = [](QZelFileDialog *dialog) {
        User::clickItem(child<QTreeView>(dialog, "treeV_FileList"), QStringLiteral("a.txt"));
        go(dialog);
    };
    {
        ModalDriver driver;
        driver.on<QZelFileDialog>(chooseFile);
        QCOMPARE(QZelFileDialog::getOpenFileName(nullptr, caption, folder, filters, nullptr), path);
    }
    {
        ModalDriver driver;
        driver.on<QZelFileDialog>(chooseFile);
        QCOMPARE(QZelFileDialog::getOpenFileNames(nullptr, caption, folder, filters, nullptr),
                 QStringList(path));
    }
    ModalDriver driver;
    SeenBox seen;
    driver.on<QZelFileDialog>(chooseFile);
    answerBox(driver, QStringLiteral("Yes"), &seen);
    QCOMPARE(QZelFileDialog::getSaveFileName(nullptr, caption, folder, filters, nullptr, true,
                                             nullptr),
             path);
}

void tst_QZelFileDialog_statics::everyArgumentHasADefault()
{
    int dialogs = 0;
    const auto cancelled = [&dialogs](const std::function<bool()> &givesNothing) {
        ModalDriver driver;
        driver.on<QZelFileDialog>([&dialogs](QZelFileDialog *dialog) {
            ++dialogs;
            QCOMPARE(dialog->parent(), nullptr);
            User::clickButton(dialog, QStringLiteral("btn_Cancel"));
        });
        return givesNothing();
    };
    QVERIFY(cancelled([] { return QZelFileDialog::getOpenFileName().isEmpty(); }));
    QVERIFY(cancelled([] { return QZelFileDialog::getOpenFileNames().isEmpty(); }));
    QVERIFY(cancelled([] { return QZelFileDialog::getSaveFileName().isEmpty(); }));
    QVERIFY(cancelled([] { return QZelFileDialog::getExistingDirectory().isEmpty(); }));
    QCOMPARE(dialogs, 4);
}

void tst_QZelFileDialog_statics::filterChosenLastIsHandedOut()
{
    const QList<Function> functions = { OpenOne, OpenSeveral, Save, SaveEncrypted };
    for (const Function function : functions) {
        ModalDriver driver;
        driver.on<QZelFileDialog>([](QZelFileDialog *dialog) {
            child<QComboBox>(dialog, "cbx_FileType")->setCurrentIndex(1);
            User::clickButton(dialog, QStringLiteral("btn_Cancel"));
        });
        QCOMPARE(run(function).filter, QStringLiteral("All (*)"));
        QVERIFY(driver.finished());
    }
}

void tst_QZelFileDialog_statics::openedFileIsReturnedAndItsFolderRemembered()
{
    ModalDriver driver;
    driver.on<QZelFileDialog>([](QZelFileDialog *dialog) {
        User::doubleClickItem(child<QTreeView>(dialog, "treeV_FileList"), QStringLiteral("sub"));
        // The setting's key is the first filter's, whichever was chosen.
        child<QComboBox>(dialog, "cbx_FileType")->setCurrentIndex(1);
        User::clickItem(child<QTreeView>(dialog, "treeV_FileList"), QStringLiteral("inner.txt"));
        go(dialog);
    });
    const Result result = run(OpenOne);
    QVERIFY(driver.finished());
    QCOMPARE(result.paths, QStringList(folder + QStringLiteral("sub/inner.txt")));
    QCOMPARE(setting(QStringLiteral("Text (*.txt)")).toString(), QStringLiteral("/root/docs/sub"));
    QVERIFY(!setting(QStringLiteral("All (*)")).isValid());
    QVERIFY(!setting(QString()).isValid());
}

void tst_QZelFileDialog_statics::openedFilesAreReturnedAndTheFirstOnesFolderRemembered()
{
    ModalDriver driver;
    driver.on<QZelFileDialog>([](QZelFileDialog *dialog) {
        auto *list = child<QTreeView>(dialog, "treeV_FileList");
        const QSignalSpy spy(dialog, &QZelFileDialog::sig_filePaths);
        const QString a = folder + QStringLiteral("a.txt");
        const QString b = folder + QStringLiteral("b.txt");
        User::clickItem(list, QStringLiteral("b.txt"));
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.at(0).at(0).toStringList(), QStringList(b));
        User::clickItem(list, QStringLiteral("a.txt"), Qt::ControlModifier);
        // Once for each file, with the list so far.
        QCOMPARE(spy.size(), 3);
        QCOMPARE(spy.at(1).at(0).toStringList(), QStringList(b));
        QCOMPARE(spy.at(2).at(0).toStringList(), QStringList({ b, a }));
        User::clickItem(list, QStringLiteral("sub"), Qt::ControlModifier);
        go(dialog);
    });
    const Result result = run(OpenSeveral);
    QVERIFY(driver.finished());
    QCOMPARE(result.paths,
             QStringList({ folder + QStringLiteral("b.txt"), folder + QStringLiteral("a.txt") }));
    QCOMPARE(setting(QStringLiteral("Text (*.txt)")).toString(), QStringLiteral("/root/docs"));
}

void tst_QZelFileDialog_statics::doubleClickedFileJoinsTheSelection()
{
    ModalDriver driver;
    driver.on<QZelFileDialog>([](QZelFileDialog *dialog) {
        auto *list = child<QTreeView>(dialog, "treeV_FileList");
        User::clickItem(list, QStringLiteral("a.txt"));
        // Without a key held, the double-click's own press selects this file alone.
        User::doubleClickItem(list, QStringLiteral("b.txt"));
    });
    const Result result = run(OpenSeveral);
    QVERIFY(driver.finished());
    QCOMPARE(result.paths, QStringList(folder + QStringLiteral("b.txt")));
}

void tst_QZelFileDialog_statics::nothingSelectedRemembersNothing()
{
    ModalDriver driver;
    driver.on<QZelFileDialog>([](QZelFileDialog *dialog) { go(dialog); });
    QCOMPARE(run(OpenSeveral).paths, QStringList());
    QVERIFY(driver.finished());
    QVERIFY(!setting(QStringLiteral("Text (*.txt)")).isValid());
}

void tst_QZelFileDialog_statics::savedNameIsReturned()
{
    const QList<Function> functions = { Save, SaveEncrypted };
    for (const Function function : functions) {
        ModalDriver driver;
        driver.on<QZelFileDialog>([](QZelFileDialog *dialog) {
            User::type(child<QLineEdit>(dialog, "let_FileName"), QStringLiteral("report"));
            go(dialog);
        });
        const Result result = run(function);
        QVERIFY(driver.finished());
        QCOMPARE(result.paths, QStringList(folder + QStringLiteral("report.txt")));
        QCOMPARE(result.password, QString());
        QCOMPARE(setting(QStringLiteral("Text (*.txt)")).toString(), QStringLiteral("/root/docs"));
    }
}

void tst_QZelFileDialog_statics::replacedFileIsReturnedWithoutASignal()
{
    int signalled = 0;
    ModalDriver driver;
    SeenBox seen;
    driver.on<QZelFileDialog>([&](QZelFileDialog *dialog) {
        // The dialog goes before the counter.
        const auto count = [&] { ++signalled; }; // clazy:exclude=lambda-in-connect
        connect(dialog, &QZelFileDialog::sig_filePath, this, count);
        User::type(child<QLineEdit>(dialog, "let_FileName"), QStringLiteral("a"));
        go(dialog);
    });
    answerBox(driver, QStringLiteral("Yes"), &seen);
    QCOMPARE(run(Save).paths, QStringList(folder + QStringLiteral("a.txt")));
    QVERIFY(driver.finished());
    QCOMPARE(seen.boxes, 1);
    QCOMPARE(signalled, 0);
}

void tst_QZelFileDialog_statics::passwordIsHandedOutAlsoWhenCancelled()
{
    const QStringList endings = { QStringLiteral("btn_OpenSave"), QStringLiteral("btn_Cancel") };
    for (const QString &ending : endings) {
        ModalDriver driver;
        SeenBox seen;
        driver.on<QZelFileDialog>([&](QZelFileDialog *dialog) {
            User::type(child<QLineEdit>(dialog, "let_FileName"), QStringLiteral("report"));
            User::clickButton(dialog, QStringLiteral("btn_encOption"));
            User::clickButton(dialog, ending);
        });
        driver.on<QZelEncDialog>([](QZelEncDialog *dialog) {
            const auto edits = dialog->findChildren<QLineEdit *>();
            for (QLineEdit *edit : edits)
                User::type(edit, QStringLiteral("Pass1"));
            User::clickButton(dialog, QStringLiteral("Confirm"));
        });
        answerBox(driver, QStringLiteral("Confirm"), &seen);
        const Result result = run(SaveEncrypted);
        QVERIFY(driver.finished());
        QCOMPARE(result.password, QStringLiteral("Pass1"));
        QCOMPARE(result.paths.isEmpty(), ending == QLatin1String("btn_Cancel"));
    }
}

void tst_QZelFileDialog_statics::folderEndsWithASlashByWay_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("remembered");
    const auto row = [](const char *way, const char *expected, const char *remembered) {
        QTest::newRow(way) << QString::fromUtf8(way) << QString::fromUtf8(expected)
                           << QString::fromUtf8(remembered);
    };
    row("start folder", "/root/docs/", "/root/docs");
    row("home", "/root/docs/", "/root/docs");
    row("double-click", "/root/docs/sub/", "/root/docs/sub");
    // What is cut off at the last slash is then the folder itself.
    row("tree click", "/root/docs/sub", "/root/docs");
    row("list click", "/root/docs/sub", "/root/docs");
    row("typed path", "/root/docs/sub", "/root/docs");
}

void tst_QZelFileDialog_statics::folderEndsWithASlashByWay()
{
    QFETCH(QString, way);
    QFETCH(QString, expected);
    QFETCH(QString, remembered);
    ModalDriver driver;
    driver.on<QZelFileDialog>([way](QZelFileDialog *dialog) {
        auto *list = child<QTreeView>(dialog, "treeV_FileList");
        const QString sub = QStringLiteral("sub");
        if (way == QLatin1String("double-click")) {
            User::doubleClickItem(list, sub);
        } else if (way == QLatin1String("home")) {
            User::doubleClickItem(list, sub);
            User::clickButton(dialog, QStringLiteral("btn_MainPage"));
        } else if (way == QLatin1String("tree click")) {
            User::clickItem(child<QTreeView>(dialog, "treeV_FileTree"), sub);
        } else if (way == QLatin1String("list click")) {
            User::clickItem(list, sub);
        } else if (way == QLatin1String("typed path")) {
            User::type(child<QLineEdit>(dialog, "let_FilePath"), QStringLiteral("/sub/"));
            QTest::keyClick(dialog->windowHandle(), Qt::Key_Return);
        }
        go(dialog);
    });
    const Result result = run(Folder);
    QVERIFY(driver.finished());
    QCOMPARE(result.paths, QStringList(expected));
    QCOMPARE(setting(QString()).toString(), remembered);
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_statics)

#include "tst_QZelFileDialog_statics.moc"
