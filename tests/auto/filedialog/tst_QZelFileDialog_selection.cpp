#include "FileDialogProbe.h"
#include "FtpFolder.h"
#include "TestMain.h"
#include "User.h"

#include <QHelpEvent>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolTip>

class tst_QZelFileDialog_selection : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();
    void theListIsToldOnceForEachFile();
    void aFolderIsSkippedAndTellsNothing();
    void aRangeIsToldInTheOrderOfSelection();
    void deselectingTellsTheRest();
    void oneFileOnlyInTheOtherModes_data();
    void oneFileOnlyInTheOtherModes();
    void aClickOnAnyColumnSelectsTheRow();
    void anItemsTipIsItsText();
    void theListIsEmptyWithoutASelection();
    void theFirstFilesFolderIsRemembered();
    void aSelectedFileThatVanishesLeavesTheList();
    void theListIsACopy();

private:
    void open(QZelFileDialog::OperateMode mode = QZelFileDialog::OpenFiles);
    void clickWith(const char *name, Qt::KeyboardModifiers modifiers);
    QString path(const char *name) const { return folder->filePath(QString::fromLatin1(name)); }
    QStringList told(int index) const { return spy->at(index).at(0).toStringList(); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<FileDialogProbe> dialog;
    std::unique_ptr<QSignalSpy> spy;
};

void tst_QZelFileDialog_selection::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(makeEntries(folder->path(), { QStringLiteral("sub/"), QStringLiteral("a.txt"),
                                          QStringLiteral("b.txt"), QStringLiteral("c.txt") }));
}

void tst_QZelFileDialog_selection::cleanupTestCase()
{
    spy.reset();
    dialog.reset();
}

void tst_QZelFileDialog_selection::open(QZelFileDialog::OperateMode mode)
{
    spy.reset();
    dialog = FileDialogProbe::make(mode, folder->path());
    spy = std::make_unique<QSignalSpy>(dialog.get(), &QZelFileDialog::sig_filePaths);
    QVERIFY(dialog->showAndWait());
}

void tst_QZelFileDialog_selection::clickWith(const char *name, Qt::KeyboardModifiers modifiers)
{
    QVERIFY(dialog->waitForRow(dialog->list(), path(name)));
    const QRect rect = dialog->list()->visualRect(dialog->fileModel->index(path(name)));
    QTest::mouseClick(dialog->list()->viewport(), Qt::LeftButton, modifiers, rect.center());
}

void tst_QZelFileDialog_selection::theListIsToldOnceForEachFile()
{
    open();
    clickWith("b.txt", Qt::NoModifier);
    QCOMPARE(spy->count(), 1);
    QCOMPARE(told(0), QStringList(path("b.txt")));

    clickWith("a.txt", Qt::ControlModifier);
    QCOMPARE(spy->count(), 3);
    QCOMPARE(told(1), QStringList(path("b.txt")));
    QCOMPARE(told(2), QStringList({ path("b.txt"), path("a.txt") }));
    QCOMPARE(dialog->filePaths, told(2));
    dialog->close();
}

void tst_QZelFileDialog_selection::aFolderIsSkippedAndTellsNothing()
{
    open();
    clickWith("sub", Qt::NoModifier);
    QCOMPARE(spy->count(), 0);
    QVERIFY(dialog->filePaths.isEmpty());

    clickWith("a.txt", Qt::ControlModifier);
    QCOMPARE(spy->count(), 1);
    QCOMPARE(told(0), QStringList(path("a.txt")));

    // Back to the folder alone: nothing is told, and the list is empty.
    clickWith("sub", Qt::NoModifier);
    QCOMPARE(spy->count(), 1);
    QVERIFY(dialog->filePaths.isEmpty());
    dialog->close();
}

void tst_QZelFileDialog_selection::aRangeIsToldInTheOrderOfSelection()
{
    open();
    clickWith("c.txt", Qt::NoModifier);
    clickWith("sub", Qt::ShiftModifier);
    QCOMPARE(dialog->filePaths, QStringList({ path("a.txt"), path("b.txt"), path("c.txt") }));
    QCOMPARE(spy->count(), 1 + 3);
    QCOMPARE(told(1), QStringList(path("a.txt")));
    QCOMPARE(told(2), QStringList({ path("a.txt"), path("b.txt") }));
    QCOMPARE(told(3), dialog->filePaths);
    dialog->close();
}

void tst_QZelFileDialog_selection::deselectingTellsTheRest()
{
    open();
    clickWith("a.txt", Qt::NoModifier);
    clickWith("b.txt", Qt::ControlModifier);
    clickWith("a.txt", Qt::ControlModifier);
    QCOMPARE(spy->count(), 4);
    QCOMPARE(told(3), QStringList(path("b.txt")));
    clickWith("b.txt", Qt::ControlModifier);
    QCOMPARE(spy->count(), 4);
    QVERIFY(dialog->filePaths.isEmpty());
    dialog->close();
}

void tst_QZelFileDialog_selection::oneFileOnlyInTheOtherModes_data()
{
    QTest::addColumn<QZelFileDialog::OperateMode>("mode");
    QTest::newRow("open a file") << QZelFileDialog::OpenFile;
    QTest::newRow("save") << QZelFileDialog::SaveFile;
    QTest::newRow("save encrypted") << QZelFileDialog::SaveEncryptedFile;
}

void tst_QZelFileDialog_selection::oneFileOnlyInTheOtherModes()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    open(mode);
    clickWith("a.txt", Qt::NoModifier);
    clickWith("c.txt", Qt::ControlModifier);
    QCOMPARE(spy->count(), 2);
    QCOMPARE(told(1), QStringList(path("c.txt")));
    QCOMPARE(dialog->filePaths, QStringList(path("c.txt")));
    dialog->close();
}

void tst_QZelFileDialog_selection::aClickOnAnyColumnSelectsTheRow()
{
    open();
    for (int column = 0; column < 4; ++column) {
        QVERIFY(dialog->click(dialog->list(), path(column % 2 ? "a.txt" : "b.txt"), column));
        QCOMPARE(spy->count(), column + 1);
        QCOMPARE(told(column), QStringList(path(column % 2 ? "a.txt" : "b.txt")));
    }
    dialog->close();
}

void tst_QZelFileDialog_selection::anItemsTipIsItsText()
{
    open();
    auto *list = dialog->findChild<QTreeView *>(QStringLiteral("treeV_FileList"));
    const QPoint position = list->visualRect(User::item(list, QStringLiteral("b.txt"))).center();
    QHelpEvent event(QEvent::ToolTip, position, list->viewport()->mapToGlobal(position));
    QVERIFY(QApplication::sendEvent(list->viewport(), &event));
    QCOMPARE(QToolTip::text(), QStringLiteral("b.txt"));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    dialog->close();
}

void tst_QZelFileDialog_selection::theListIsEmptyWithoutASelection()
{
    QSettings settings(QStringLiteral("MyOrganization"), QStringLiteral("MyApplication"));
    settings.clear();
    settings.sync();
    open();
    QVERIFY(dialog->getFilePaths().isEmpty());
    settings.sync();
    QVERIFY(settings.allKeys().isEmpty());
    dialog->close();
}

void tst_QZelFileDialog_selection::theFirstFilesFolderIsRemembered()
{
    open();
    clickWith("b.txt", Qt::NoModifier);
    clickWith("c.txt", Qt::ControlModifier);
    QCOMPARE(dialog->getFilePaths(), QStringList({ path("b.txt"), path("c.txt") }));
    const QSettings settings(QStringLiteral("MyOrganization"), QStringLiteral("MyApplication"));
    QCOMPARE(settings.value(QStringLiteral("LastFilePathAll (*)")).toString(), folder->path());
    dialog->close();
}

void tst_QZelFileDialog_selection::aSelectedFileThatVanishesLeavesTheList()
{
    open();
    clickWith("a.txt", Qt::NoModifier);
    clickWith("b.txt", Qt::ControlModifier);
    QVERIFY(QFile::remove(path("a.txt")));
    QTRY_COMPARE(dialog->filePaths, QStringList(path("b.txt")));
    dialog->close();
}

void tst_QZelFileDialog_selection::theListIsACopy()
{
    open();
    clickWith("a.txt", Qt::NoModifier);
    const QStringList before = dialog->getFilePaths();
    clickWith("b.txt", Qt::NoModifier);
    QCOMPARE(before, QStringList(path("a.txt")));
    dialog->close();
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_selection)
#include "tst_QZelFileDialog_selection.moc"
