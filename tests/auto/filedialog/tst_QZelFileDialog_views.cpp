#include "FileDialogProbe.h"
#include "FtpFolder.h"
#include "TestMain.h"

#include <ColumnToolTipDelegate.h>
#include <DirItemStyledDelegate.h>

#include <QHeaderView>
#include <QSplitter>
#include <QTemporaryDir>

class tst_QZelFileDialog_views : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theSplitterIsThreeToSevenAndDoesNotCollapse();
    void oneModelServesBothViews();
    void theListingIsSetUp_data();
    void theListingIsSetUp();
    void theTreeShowsNamesOnly();
    void onlyFoldersAreListedForAFolder();
    void theFirstFilterHidesOtherFiles_data();
    void theFirstFilterHidesOtherFiles();
    void theTreeShowsFoldersOnly_data();
    void theTreeShowsFoldersOnly();
    void theViewsAskTheDialogForTheirMenus();

private:
    std::unique_ptr<FileDialogProbe> make(QZelFileDialog::OperateMode mode) const
    {
        return FileDialogProbe::make(mode, folder->path());
    }

    std::unique_ptr<QTemporaryDir> folder;
};

void tst_QZelFileDialog_views::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(makeEntries(folder->path(),
                        { QStringLiteral("alpha/"), QStringLiteral("beta/"),
                          QStringLiteral("notes.txt"), QStringLiteral("photo.png") }));
}

void tst_QZelFileDialog_views::theSplitterIsThreeToSevenAndDoesNotCollapse()
{
    const auto dialog = make(QZelFileDialog::OpenFile);
    const auto *splitter = dialog->part<QSplitter>(QStringLiteral("splitter"));
    QCOMPARE(dialog->tree()->sizePolicy().horizontalStretch(), 3);
    QCOMPARE(dialog->list()->sizePolicy().horizontalStretch(), 7);
    QVERIFY(!splitter->isCollapsible(0));
    QVERIFY(!splitter->isCollapsible(1));

    QVERIFY(dialog->showAndWait());
    const QList<int> before = splitter->sizes();
    dialog->resize(dialog->width() + 1000, dialog->height());
    QTRY_COMPARE(splitter->width(), dialog->width());
    QCOMPARE(splitter->sizes().at(0) - before.at(0), 300);
    QCOMPARE(splitter->sizes().at(1) - before.at(1), 700);
}

void tst_QZelFileDialog_views::oneModelServesBothViews()
{
    const auto dialog = make(QZelFileDialog::OpenFile);
    QCOMPARE(dialog->findChildren<QFileSystemModel *>(),
             QList<QFileSystemModel *>({ dialog->fileModel }));
    QCOMPARE(dialog->fileModel->parent(), dialog.get());
    QCOMPARE(dialog->tree()->model(), dialog->fileModel);
    QCOMPARE(dialog->list()->model(), dialog->fileModel);
    QCOMPARE(dialog->fileModel->rootPath(), folder->path());
    const QModelIndex root = dialog->fileModel->index(folder->path());
    QVERIFY(root.isValid());
    QCOMPARE(QModelIndex(dialog->rootIndex), root);
    QCOMPARE(dialog->tree()->rootIndex(), root);
    QCOMPARE(dialog->list()->rootIndex(), root);
}

void tst_QZelFileDialog_views::theListingIsSetUp_data()
{
    addModes();
}

void tst_QZelFileDialog_views::theListingIsSetUp()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    const auto dialog = make(mode);
    const QTreeView *list = dialog->list();
    QCOMPARE(list->selectionMode(), mode == QZelFileDialog::OpenFiles
                                            ? QAbstractItemView::ExtendedSelection
                                            : QAbstractItemView::SingleSelection);
    QVERIFY(!list->rootIsDecorated());
    QCOMPARE(list->columnWidth(0), 300);
    QVERIFY(dynamic_cast<ColumnToolTipDelegate *>(list->itemDelegate()));
    QCOMPARE(list->itemDelegate()->parent(), dialog.get());
    QVERIFY(list->hasMouseTracking());
    QVERIFY(list->viewport()->testAttribute(Qt::WA_Hover));
    QVERIFY(!list->isHeaderHidden());
    QCOMPARE(list->header()->count(), 4);
    for (int column = 0; column < 4; ++column)
        QVERIFY(!list->isColumnHidden(column));
}

void tst_QZelFileDialog_views::theTreeShowsNamesOnly()
{
    const auto dialog = make(QZelFileDialog::OpenFiles);
    const QTreeView *tree = dialog->tree();
    QCOMPARE(tree->selectionMode(), QAbstractItemView::SingleSelection);
    QVERIFY(dynamic_cast<DirItemStyledDelegate *>(tree->itemDelegate()));
    QCOMPARE(tree->itemDelegate()->parent(), dialog.get());
    QVERIFY(tree->isHeaderHidden());
    QVERIFY(!tree->isColumnHidden(0));
    QCOMPARE(tree->header()->count(), 4);
    for (int column = 1; column < 4; ++column)
        QVERIFY(tree->isColumnHidden(column));
}

void tst_QZelFileDialog_views::onlyFoldersAreListedForAFolder()
{
    const auto dialog = make(QZelFileDialog::SelectDirectory);
    QCOMPARE(int(dialog->fileModel->filter()), 0x6001);
    QVERIFY(dialog->showAndWait());
    const QStringList folders { QStringLiteral("alpha"), QStringLiteral("beta") };
    QTRY_COMPARE(FileDialogProbe::rows(dialog->list()), folders);
    QCOMPARE(FileDialogProbe::rows(dialog->tree()), folders);
    QCOMPARE(dialog->fileModel->rowCount(dialog->rootIndex), 2);
}

void tst_QZelFileDialog_views::theFirstFilterHidesOtherFiles_data()
{
    QTest::addColumn<QZelFileDialog::OperateMode>("mode");
    QTest::newRow("open a file") << QZelFileDialog::OpenFile;
    QTest::newRow("save") << QZelFileDialog::SaveFile;
    QTest::newRow("save encrypted") << QZelFileDialog::SaveEncryptedFile;
    QTest::newRow("open files") << QZelFileDialog::OpenFiles;
}

void tst_QZelFileDialog_views::theFirstFilterHidesOtherFiles()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    const auto dialog =
            FileDialogProbe::make(mode, folder->path(), QStringLiteral("Text (*.txt);;All (*)"));
    QCOMPARE(dialog->fileModel->nameFilters(), QStringList(QStringLiteral("*.txt")));
    QVERIFY(!dialog->fileModel->nameFilterDisables());
    QCOMPARE(dialog->fileModel->filter(), QFileSystemModel().filter());
    QVERIFY(dialog->showAndWait());
    QTRY_COMPARE(FileDialogProbe::rows(dialog->list()),
                 QStringList({ QStringLiteral("alpha"), QStringLiteral("beta"),
                               QStringLiteral("notes.txt") }));
}

void tst_QZelFileDialog_views::theTreeShowsFoldersOnly_data()
{
    addModes();
}

// The rows of files are there without any height: folders stand close together, and below the last
// one nothing is painted.
void tst_QZelFileDialog_views::theTreeShowsFoldersOnly()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    QVERIFY(makeEntries(folder->path(), { QStringLiteral("aardvark.txt") }));
    const auto dialog = make(mode);
    QVERIFY(dialog->showAndWait());
    QTreeView *tree = dialog->tree();
    QTRY_COMPARE(FileDialogProbe::rows(tree),
                 QStringList({ QStringLiteral("alpha"), QStringLiteral("beta") }));
    const int files = mode == QZelFileDialog::SelectDirectory ? 0 : 3;
    QTRY_COMPARE(dialog->fileModel->rowCount(tree->rootIndex()), 2 + files);

    const auto rectOf = [&](const char *name) {
        return tree->visualRect(
                dialog->fileModel->index(folder->filePath(QString::fromLatin1(name))));
    };
    QCOMPARE(rectOf("alpha").top(), 0);
    QCOMPARE(rectOf("beta").top(), rectOf("alpha").bottom() + 1);
    const QImage image = tree->viewport()->grab().toImage();
    const QRect blank(0, rectOf("beta").bottom() + 1, image.width(),
                      image.height() - rectOf("beta").bottom() - 1);
    QImage ground(blank.size(), image.format());
    ground.fill(tree->palette().color(QPalette::Base));
    QCOMPARE(image.copy(blank), ground);
    QVERIFY(image.copy(rectOf("alpha")) != ground.copy(rectOf("alpha")));
}

void tst_QZelFileDialog_views::theViewsAskTheDialogForTheirMenus()
{
    const auto dialog = make(QZelFileDialog::OpenFile);
    QCOMPARE(dialog->tree()->contextMenuPolicy(), Qt::CustomContextMenu);
    QCOMPARE(dialog->list()->contextMenuPolicy(), Qt::CustomContextMenu);
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_views)
#include "tst_QZelFileDialog_views.moc"
