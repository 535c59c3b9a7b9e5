#include "FileDialogProbe.h"
#include "FtpFolder.h"
#include "HostileNames.h"
#include "ShownDialog.h"
#include "TestMain.h"
#include "VisibleText.h"

#include <QDir>
#include <QHelpEvent>
#include <QRegularExpression>
#include <QToolTip>
#include <QTranslator>

#include <algorithm>

#include <sys/stat.h>
#include <unistd.h>

namespace {

using Mode = QZelFileDialog::OperateMode;

const QString folder = QStringLiteral("/root/docs");
const QString fifo = QStringLiteral("/root/pipe");

QString in(const QString &name)
{
    return folder + QLatin1Char('/') + name;
}

bool isSaveMode(Mode mode)
{
    return mode == QZelFileDialog::SaveFile || mode == QZelFileDialog::SaveEncryptedFile;
}

QString lastName(const QString &path)
{
    return path.split(QLatin1Char('/'), Qt::SkipEmptyParts).constLast();
}

// Marks up the file dialog's messages.
class BoldTranslator : public QTranslator
{
public:
    BoldTranslator() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        if (qstrcmp(context, "QZelFileDialog") != 0)
            return {};
        return QStringLiteral("<b>") + QLatin1String(sourceText) + QStringLiteral("</b>");
    }
};

} // namespace

class tst_QZelFileDialog_hostileNames : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void filesAreChosenByTheirRows_data();
    void filesAreChosenByTheirRows();
    void foldersAreEnteredAndLeft_data();
    void foldersAreEnteredAndLeft();
    void typedFoldersAreShown();
    void typedFilesAreOpened();
    void missingFilesAreToldByTheirNames();
    void aTranslatedMessageKeepsItsMarkup();
    void toolTipsAreTheNames();
    void allAreSelectedAtOnce();
    void hiddenNamesAreNotListedButOpen();
    void namesThatAreNoTextAreNotListed_data();
    void namesThatAreNoTextAreNotListed();

private:
    void open(Mode mode);
    bool makeAll(bool (*make)(const QString &)) const;

    const QStringList names = hostileNames();
    std::unique_ptr<FileDialogProbe> dialog;
};

void tst_QZelFileDialog_hostileNames::init()
{
    dialog.reset();
    QVERIFY(FtpFolder::isPrivate());
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(QDir().mkpath(folder));
    // Whoever opens this never returns.
    QVERIFY(QFileInfo::exists(fifo) || mkfifo(qPrintable(fifo), 0600) == 0);
}

void tst_QZelFileDialog_hostileNames::open(Mode mode)
{
    dialog = FileDialogProbe::make(mode, folder);
    dialog->resize(1000, 1400); // room for a row of each
    QVERIFY(dialog->showAndWait());
}

bool tst_QZelFileDialog_hostileNames::makeAll(bool (*make)(const QString &)) const
{
    return std::all_of(names.cbegin(), names.cend(),
                       [make](const QString &name) { return make(in(name)); });
}

void tst_QZelFileDialog_hostileNames::filesAreChosenByTheirRows_data()
{
    addModes();
}

void tst_QZelFileDialog_hostileNames::filesAreChosenByTheirRows()
{
    QFETCH(Mode, mode);
    QVERIFY(makeAll(&makeRawFile));
    open(mode);
    QSignalSpy announced(dialog.get(), &QZelFileDialog::sig_filePath);
    for (const QString &name : names) {
        const QString path = in(name);
        if (mode == QZelFileDialog::SelectDirectory) {
            QVERIFY(!FileDialogProbe::rows(dialog->list()).contains(name));
            continue;
        }
        QVERIFY(dialog->click(dialog->list(), path));
        QCOMPARE(dialog->nameEdit()->text(), name);
        QCOMPARE(dialog->filePaths, QStringList(path));
        for (const bool byButton : { true, false }) {
            ModalDriver driver;
            SeenBox seen;
            if (isSaveMode(mode))
                answerBox(driver, QStringLiteral("Yes"), &seen);
            if (byButton)
                dialog->press(QStringLiteral("btn_OpenSave"));
            else
                QVERIFY(dialog->doubleClick(dialog->list(), path));
            QVERIFY(driver.finished());
            QVERIFY(!dialog->isVisible());
            QCOMPARE(dialog->result(), int(QDialog::Accepted));
            QCOMPARE(dialog->getFilePath(), path);
            QCOMPARE(dialog->getFilePaths(), QStringList(path));
            dialog->show();
        }
        QCOMPARE(announced.takeLast().constFirst().toString(), path);
    }
    dialog->close();
}

void tst_QZelFileDialog_hostileNames::foldersAreEnteredAndLeft_data()
{
    addModes();
}

void tst_QZelFileDialog_hostileNames::foldersAreEnteredAndLeft()
{
    QFETCH(Mode, mode);
    QVERIFY(makeAll(&makeRawFolder));
    open(mode);
    for (const QString &name : names) {
        const QString path = in(name);
        for (QTreeView *view : { dialog->list(), dialog->tree() }) {
            if (view == dialog->list())
                QVERIFY(dialog->doubleClick(view, path));
            else
                QVERIFY(dialog->click(view, path));
            QCOMPARE(dialog->shown(), path);
            QCOMPARE(dialog->pathEdit()->text(), QLatin1Char('/') + name + QLatin1Char('/'));
            QCOMPARE(lastName(dialog->back().constLast()), name);
            while (dialog->back().size() > 1)
                dialog->press(QStringLiteral("btn_Back"));
            QCOMPARE(dialog->shown(), folder);
            dialog->press(QStringLiteral("btn_Forward"));
            QCOMPARE(lastName(dialog->shown()), lastName(dialog->back().constLast()));
            if (mode == QZelFileDialog::SelectDirectory) {
                dialog->press(QStringLiteral("btn_OpenSave"));
                QCOMPARE(dialog->getFilePath(), dialog->back().constLast());
                dialog->show();
            }
            dialog->press(QStringLiteral("btn_MainPage"));
        }
    }
    dialog->close();
}

// New lines cannot be typed, but pasted.
void tst_QZelFileDialog_hostileNames::typedFoldersAreShown()
{
    QVERIFY(makeAll(&makeRawFolder));
    open(QZelFileDialog::OpenFile);
    for (const QString &name : names) {
        dialog->pathEdit()->setText(QLatin1Char('/') + name);
        QTest::keyClick(dialog->pathEdit(), Qt::Key_Return);
        QCOMPARE(dialog->shown(), in(name));
        QCOMPARE(dialog->back().constLast(), in(name));
    }
    dialog->close();
}

void tst_QZelFileDialog_hostileNames::typedFilesAreOpened()
{
    QVERIFY(makeAll(&makeRawFile));
    open(QZelFileDialog::OpenFile);
    for (const QString &name : names) {
        dialog->nameEdit()->setText(name);
        dialog->press(QStringLiteral("btn_OpenSave"));
        QCOMPARE(dialog->result(), int(QDialog::Accepted));
        QCOMPARE(dialog->getFilePath(), in(name));
        dialog->show();
    }
    dialog->close();
}

void tst_QZelFileDialog_hostileNames::missingFilesAreToldByTheirNames()
{
    open(QZelFileDialog::OpenFile);
    const QStringList missing =
            names
            + QStringList({ QStringLiteral("<b>bold</b>"), QString(30000, QLatin1Char('<')) });
    for (const QString &name : missing) {
        dialog->nameEdit()->setText(name);
        ModalDriver driver;
        SeenBox seen;
        answerBox(driver, QStringLiteral("Confirm"), &seen);
        dialog->press(QStringLiteral("btn_OpenSave"));
        QVERIFY(driver.finished());
        QCOMPARE(seen.text, asShown(QStringLiteral("The file/%1 does not exist").arg(name)));
        QVERIFY(dialog->isVisible());
    }
    dialog->close();
}

void tst_QZelFileDialog_hostileNames::aTranslatedMessageKeepsItsMarkup()
{
    open(QZelFileDialog::OpenFile);
    dialog->nameEdit()->setText(QStringLiteral("<i>a &lt; b"));
    ModalDriver driver;
    SeenBox seen;
    answerBox(driver, QStringLiteral("Confirm"), &seen);
    const BoldTranslator translator;
    dialog->press(QStringLiteral("btn_OpenSave"));
    QVERIFY(driver.finished());
    QCOMPARE(seen.text, QStringLiteral("The file/<i>a &lt; b does not exist"));
    dialog->close();
}

void tst_QZelFileDialog_hostileNames::toolTipsAreTheNames()
{
    QVERIFY(makeAll(&makeRawFile));
    open(QZelFileDialog::OpenFile);
    const QWidget *viewport = dialog->list()->viewport();
    for (const QString &name : names) {
        QVERIFY(dialog->waitForRow(dialog->list(), in(name)));
        const QModelIndex index = dialog->fileModel->index(in(name));
        dialog->list()->scrollTo(index);
        const QPoint position = (dialog->list()->visualRect(index) & viewport->rect()).center();
        QHelpEvent event(QEvent::ToolTip, position, viewport->mapToGlobal(position));
        QVERIFY(QApplication::sendEvent(dialog->list()->viewport(), &event));
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(visibleText(QToolTip::text()), Qt::mightBeRichText(name) ? asShown(name) : name);
    }
    dialog->close();
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_QZelFileDialog_hostileNames::allAreSelectedAtOnce()
{
    QVERIFY(makeAll(&makeRawFile));
    open(QZelFileDialog::OpenFiles);
    QVERIFY(dialog->waitForRow(dialog->list(), in(names.constLast())));
    dialog->list()->selectAll();
    dialog->press(QStringLiteral("btn_OpenSave"));
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QStringList chosen = dialog->getFilePaths();
    chosen.replaceInStrings(QRegularExpression(QStringLiteral("^/root/docs/")), QString());
    chosen.sort();
    QCOMPARE(chosen, names);
}

void tst_QZelFileDialog_hostileNames::hiddenNamesAreNotListedButOpen()
{
    const QString hidden = QStringLiteral(".hidden.txt");
    QVERIFY(makeRawFile(in(hidden)));
    QVERIFY(makeRawFile(in(QStringLiteral("seen.txt"))));
    open(QZelFileDialog::OpenFile);
    QVERIFY(dialog->waitForRow(dialog->list(), in(QStringLiteral("seen.txt"))));
    QCOMPARE(FileDialogProbe::rows(dialog->list()), QStringList(QStringLiteral("seen.txt")));
    dialog->nameEdit()->setText(hidden);
    dialog->press(QStringLiteral("btn_OpenSave"));
    QCOMPARE(dialog->getFilePath(), in(hidden));
}

void tst_QZelFileDialog_hostileNames::namesThatAreNoTextAreNotListed_data()
{
    addModes();
}

// QString cannot hold them, so that no path leads to them.
void tst_QZelFileDialog_hostileNames::namesThatAreNoTextAreNotListed()
{
    QFETCH(Mode, mode);
    const QByteArray badFile = in(QString()).toUtf8() + nameThatIsNoText();
    const QByteArray badFolder = badFile + ".folder";
    QVERIFY(makeRawFile(badFile));
    QVERIFY(makeRawFolder(badFolder));
    QVERIFY(makeRawFolder(in(QStringLiteral("seen"))));
    open(mode);
    QVERIFY(dialog->waitForRow(dialog->list(), in(QStringLiteral("seen"))));
    QCOMPARE(FileDialogProbe::rows(dialog->list()), QStringList(QStringLiteral("seen")));
    QCOMPARE(FileDialogProbe::rows(dialog->tree()), QStringList(QStringLiteral("seen")));
    dialog->close();
    QCOMPARE(unlink(badFile.constData()), 0);
    QCOMPARE(rmdir(badFolder.constData()), 0);
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_hostileNames)
#include "tst_QZelFileDialog_hostileNames.moc"
