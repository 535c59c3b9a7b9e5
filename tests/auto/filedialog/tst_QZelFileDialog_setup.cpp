#include "FileDialogProbe.h"
#include "ModalDriver.h"
#include "TestMain.h"

#include <QZelEncDialog.h>

#include <QLabel>
#include <QListView>
#include <QRegExpValidator>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

// Remembers whose events its filter saw.
class WatchingDialog : public FileDialogProbe
{
public:
    using FileDialogProbe::FileDialogProbe;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::User)
            seen.append(watched->objectName());
        return FileDialogProbe::eventFilter(watched, event);
    }
    QStringList seen;
};

} // namespace

class tst_QZelFileDialog_setup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void modesHaveTheirNumbers();
    void theModeIsTheOneGiven_data();
    void theModeIsTheOneGiven();
    void theFolderChooserHasNoFilters();
    void theWindowIsAFramelessModalDialogOnTop_data();
    void theWindowIsAFramelessModalDialogOnTop();
    void theParentOwnsTheDialog();
    void filtersAreSeparatedByTwoSemicolons_data();
    void filtersAreSeparatedByTwoSemicolons();
    void theFilterBoxListsTheFilters();
    void controlsAreShownByMode_data();
    void controlsAreShownByMode();
    void theCaptionIsTitleAndButtonText_data();
    void theCaptionIsTitleAndButtonText();
    void thePathEditStartsAtTheRoot();
    void theSetPasswordDialogIsOneModalChildOnTop();
    void theFilterWatchesTheStripAndTheListing();
    void theHistoryStartsWithTheStartFolder_data();
    void theHistoryStartsWithTheStartFolder();
    void aSavedNameHoldsWordCharactersOnly_data();
    void aSavedNameHoldsWordCharactersOnly();
    void otherNamesAreNotRestricted_data();
    void otherNamesAreNotRestricted();
    void closeAndCancelReject_data();
    void closeAndCancelReject();
    void theSignalsAreTheOnlyMetaMethods();
    void theDialogTakesEverythingWithIt();

private:
    std::unique_ptr<FileDialogProbe> make(QZelFileDialog::OperateMode mode) const
    {
        return FileDialogProbe::make(mode, folder->path());
    }

    std::unique_ptr<QTemporaryDir> folder;
};

void tst_QZelFileDialog_setup::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

void tst_QZelFileDialog_setup::modesHaveTheirNumbers()
{
    QCOMPARE(int(QZelFileDialog::None), 0);
    QCOMPARE(int(QZelFileDialog::OpenFile), 1);
    QCOMPARE(int(QZelFileDialog::SaveFile), 2);
    QCOMPARE(int(QZelFileDialog::SaveEncryptedFile), 3);
    QCOMPARE(int(QZelFileDialog::SelectDirectory), 4);
    QCOMPARE(int(QZelFileDialog::OpenFiles), 5);
    QCOMPARE(sizeof(QZelFileDialog::OperateMode), sizeof(qint32));
}

void tst_QZelFileDialog_setup::theModeIsTheOneGiven_data()
{
    addModes();
}

void tst_QZelFileDialog_setup::theModeIsTheOneGiven()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    QCOMPARE(make(mode)->operateMode, mode);
    QCOMPARE(FileDialogProbe(nullptr, QString(), folder->path(), QString(), mode).operateMode, mode);
}

void tst_QZelFileDialog_setup::theFolderChooserHasNoFilters()
{
    const auto dialog = make(QZelFileDialog::SelectDirectory);
    QVERIFY(dialog->filterList.isEmpty());
    QCOMPARE(dialog->filterBox()->count(), 0);
}

void tst_QZelFileDialog_setup::theWindowIsAFramelessModalDialogOnTop_data()
{
    addModes();
}

void tst_QZelFileDialog_setup::theWindowIsAFramelessModalDialogOnTop()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    const auto dialog = make(mode);
    QCOMPARE(int(dialog->windowFlags()), 0x40803);
    QVERIFY(dialog->testAttribute(Qt::WA_StyledBackground));
    QCOMPARE(dialog->windowModality(), Qt::WindowModal);
    QVERIFY(!dialog->isVisible());
}

void tst_QZelFileDialog_setup::theParentOwnsTheDialog()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<QZelFileDialog> first(new QZelFileDialog(parent.get(), QString(), folder->path(),
                                                            QString(), QZelFileDialog::OpenFile));
    const QPointer<QZelFileDialog> second(
            new QZelFileDialog(parent.get(), QString(), folder->path()));
    QCOMPARE(first->parentWidget(), parent.get());
    QCOMPARE(second->parentWidget(), parent.get());
    QVERIFY(first->isWindow() && second->isWindow());
    parent.reset();
    QVERIFY(!first && !second);
}

void tst_QZelFileDialog_setup::filtersAreSeparatedByTwoSemicolons_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("filters");
    const QString text = QStringLiteral("Text (*.txt)");
    const QString all = QStringLiteral("All (*)");
    QTest::newRow("one") << text << QStringList(text);
    QTest::newRow("two") << text + QStringLiteral(";;") + all << QStringList { text, all };
    QTest::newRow("none") << QString() << QStringList(QString());
    QTest::newRow("empty part inside")
            << text + QStringLiteral(";;;;") + all << QStringList { text, QString(), all };
    QTest::newRow("empty part at the end")
            << text + QStringLiteral(";;") << QStringList { text, QString() };
    QTest::newRow("one semicolon") << QStringLiteral("a;b") << QStringList(QStringLiteral("a;b"));
}

void tst_QZelFileDialog_setup::filtersAreSeparatedByTwoSemicolons()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, filters);
    const auto dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, folder->path(), filter);
    QCOMPARE(dialog->filterList, filters);
    QStringList items;
    for (int i = 0; i < dialog->filterBox()->count(); ++i)
        items.append(dialog->filterBox()->itemText(i));
    QCOMPARE(items, filters);
}

void tst_QZelFileDialog_setup::theFilterBoxListsTheFilters()
{
    const auto dialog = FileDialogProbe::make(QZelFileDialog::OpenFile, folder->path(),
                                              QStringLiteral("Text (*.txt);;All (*)"));
    const QComboBox *box = dialog->filterBox();
    QCOMPARE(box->focusPolicy(), Qt::NoFocus);
    QCOMPARE(box->view()->metaObject(), &QListView::staticMetaObject);
    QCOMPARE(box->currentIndex(), 0);
    for (int i = 0; i < box->count(); ++i) {
        QVERIFY(box->itemIcon(i).isNull());
        QVERIFY(!box->itemData(i).isValid());
    }
}

void tst_QZelFileDialog_setup::controlsAreShownByMode_data()
{
    QTest::addColumn<QZelFileDialog::OperateMode>("mode");
    QTest::addColumn<bool>("hasFilters");
    QTest::addColumn<bool>("hasEncryption");
    QTest::addColumn<bool>("hasName");
    QTest::newRow("open a file") << QZelFileDialog::OpenFile << true << false << true;
    QTest::newRow("save") << QZelFileDialog::SaveFile << true << false << true;
    QTest::newRow("save encrypted") << QZelFileDialog::SaveEncryptedFile << true << true << true;
    QTest::newRow("choose a folder") << QZelFileDialog::SelectDirectory << false << false << true;
    QTest::newRow("open files") << QZelFileDialog::OpenFiles << true << false << false;
}

void tst_QZelFileDialog_setup::controlsAreShownByMode()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    QFETCH(bool, hasFilters);
    QFETCH(bool, hasEncryption);
    QFETCH(bool, hasName);
    const auto dialog = make(mode);
    QVERIFY(dialog->showAndWait());
    QCOMPARE(dialog->filterBox()->isVisible(), hasFilters);
    QCOMPARE(dialog->button(QStringLiteral("btn_encOption"))->isVisible(), hasEncryption);
    QCOMPARE(dialog->nameEdit()->isVisible(), hasName);
    for (const char *name :
         { "btn_Close", "btn_Back", "btn_Forward", "btn_MainPage", "btn_OpenSave", "btn_Cancel" })
        QVERIFY2(dialog->button(QString::fromLatin1(name))->isVisible(), name);
}

void tst_QZelFileDialog_setup::theCaptionIsTitleAndButtonText_data()
{
    addModes();
}

void tst_QZelFileDialog_setup::theCaptionIsTitleAndButtonText()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    const auto dialog = make(mode);
    QCOMPARE(dialog->part<QLabel>(QStringLiteral("label_title"))->text(), QStringLiteral("Choose"));
    QCOMPARE(dialog->button(QStringLiteral("btn_OpenSave"))->text(), QStringLiteral("Choose"));
    QCOMPARE(dialog->windowTitle(), QStringLiteral("QZelFileDialog"));
}

void tst_QZelFileDialog_setup::thePathEditStartsAtTheRoot()
{
    QCOMPARE(make(QZelFileDialog::OpenFile)->pathEdit()->text(), QStringLiteral("/"));
}

void tst_QZelFileDialog_setup::theSetPasswordDialogIsOneModalChildOnTop()
{
    const auto dialog = make(QZelFileDialog::SaveFile);
    const QList<QZelEncDialog *> children = dialog->findChildren<QZelEncDialog *>();
    QCOMPARE(children, QList<QZelEncDialog *>({ dialog->encDialog }));
    QCOMPARE(dialog->encDialog->parent(), dialog.get());
    QCOMPARE(int(dialog->encDialog->windowFlags()), 0x40803);
    QCOMPARE(dialog->encDialog->windowModality(), Qt::WindowModal);
    QVERIFY(dialog->encDialog->isHidden());
}

void tst_QZelFileDialog_setup::theFilterWatchesTheStripAndTheListing()
{
    WatchingDialog dialog(nullptr, QString(), folder->path());
    const auto send = [&dialog](QWidget *receiver) {
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(receiver, &event);
        return dialog.seen;
    };
    QVERIFY(send(dialog.tree()).isEmpty());
    QVERIFY(send(dialog.part<QWidget>(QStringLiteral("label_title"))).isEmpty());
    QCOMPARE(send(dialog.part<QWidget>(QStringLiteral("wgt_TitleBar"))),
             QStringList(QStringLiteral("wgt_TitleBar")));
    QCOMPARE(send(dialog.list()).constLast(), QStringLiteral("treeV_FileList"));
}

void tst_QZelFileDialog_setup::theHistoryStartsWithTheStartFolder_data()
{
    QTest::addColumn<QString>("dir");
    QTest::addColumn<QString>("dirPath");
    QTest::addColumn<QString>("entry");
    const auto row = [](const char *name, const char *dir, const char *dirPath, const char *entry) {
        QTest::newRow(name) << QString::fromLatin1(dir) << QString::fromLatin1(dirPath)
                            << QString::fromLatin1(entry);
    };
    row("with a slash", "/usr/", "/usr", "/usr/");
    row("without", "/usr", "/usr", "/usr/");
    row("root folder", "/", "", "/");
    row("empty", "", "", "/");
    row("two slashes", "/usr//", "/usr/", "/usr//");
    row("missing", "/no/such/folder", "/no/such/folder", "/no/such/folder/");
    row("relative", "some/where", "some/where", "some/where/");
}

void tst_QZelFileDialog_setup::theHistoryStartsWithTheStartFolder()
{
    QFETCH(QString, dir);
    QFETCH(QString, dirPath);
    QFETCH(QString, entry);
    const FileDialogProbe dialog(nullptr, QString(), dir);
    QCOMPARE(dialog.dirPath, dirPath);
    QCOMPARE(dialog.back(), QStringList(entry));
    QVERIFY(dialog.forward().isEmpty());
}

void tst_QZelFileDialog_setup::aSavedNameHoldsWordCharactersOnly_data()
{
    QTest::addColumn<QZelFileDialog::OperateMode>("mode");
    QTest::newRow("save") << QZelFileDialog::SaveFile;
    QTest::newRow("save encrypted") << QZelFileDialog::SaveEncryptedFile;
}

void tst_QZelFileDialog_setup::aSavedNameHoldsWordCharactersOnly()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    const auto dialog = make(mode);
    const auto *validator = qobject_cast<const QRegExpValidator *>(dialog->nameEdit()->validator());
    QVERIFY(validator);
    QCOMPARE(validator->parent(), dialog->nameEdit());
    QCOMPARE(validator->regExp(),
             QRegExp(QStringLiteral("^[\\w\\-\\p{L}]*$"), Qt::CaseSensitive, QRegExp::RegExp));

    QVERIFY(dialog->showAndWait());
    QTest::keyClicks(dialog->nameEdit(), QStringLiteral("a.b c/d:e\\f*g?1_-"));
    QCOMPARE(dialog->nameEdit()->text(), QStringLiteral("abcdefg1_-"));
    dialog->nameEdit()->clear();
    dialog->nameEdit()->insert(QStringLiteral("Überschrift报告"));
    QCOMPARE(dialog->nameEdit()->text(), QStringLiteral("Überschrift报告"));
}

void tst_QZelFileDialog_setup::otherNamesAreNotRestricted_data()
{
    QTest::addColumn<QZelFileDialog::OperateMode>("mode");
    QTest::newRow("open a file") << QZelFileDialog::OpenFile;
    QTest::newRow("choose a folder") << QZelFileDialog::SelectDirectory;
    QTest::newRow("open files") << QZelFileDialog::OpenFiles;
}

void tst_QZelFileDialog_setup::otherNamesAreNotRestricted()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    QVERIFY(!make(mode)->nameEdit()->validator());
}

void tst_QZelFileDialog_setup::closeAndCancelReject_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("close") << QStringLiteral("btn_Close");
    QTest::newRow("cancel") << QStringLiteral("btn_Cancel");
}

void tst_QZelFileDialog_setup::closeAndCancelReject()
{
    QFETCH(QString, button);
    const auto dialog = make(QZelFileDialog::OpenFile);
    const QSignalSpy rejected(dialog.get(), &QDialog::rejected);
    ModalDriver driver;
    driver.on<QZelFileDialog>([&](QZelFileDialog *) { dialog->press(button); });
    QCOMPARE(dialog->exec(), 0);
    QVERIFY(driver.finished());
    QCOMPARE(rejected.count(), 1);
    QVERIFY(!dialog->isVisible());
}

void tst_QZelFileDialog_setup::theSignalsAreTheOnlyMetaMethods()
{
    const QMetaObject &meta = QZelFileDialog::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    const QMetaMethod first = meta.method(meta.methodOffset());
    const QMetaMethod second = meta.method(meta.methodOffset() + 1);
    QCOMPARE(first.methodSignature(), QByteArray("sig_filePath(QString)"));
    QCOMPARE(first.parameterNames(), QList<QByteArray>({ "path" }));
    QCOMPARE(second.methodSignature(), QByteArray("sig_filePaths(QStringList)"));
    QCOMPARE(second.parameterNames(), QList<QByteArray>({ "paths" }));
    QCOMPARE(first.methodType(), QMetaMethod::Signal);
    QCOMPARE(second.methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
}

void tst_QZelFileDialog_setup::theDialogTakesEverythingWithIt()
{
    const auto widgets = QApplication::allWidgets().size();
    QPointer<QFileSystemModel> model;
    QPointer<QAbstractItemDelegate> delegate;
    {
        const auto dialog = make(QZelFileDialog::SaveEncryptedFile);
        model = dialog->fileModel;
        delegate = dialog->list()->itemDelegate();
        QVERIFY(QApplication::allWidgets().size() > widgets);
    }
    QVERIFY(!model && !delegate);
    QCOMPARE(QApplication::allWidgets().size(), widgets);
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_setup)
#include "tst_QZelFileDialog_setup.moc"
