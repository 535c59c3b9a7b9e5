#include "Pointer.h"
#include "ShownManager.h"
#include "TestMain.h"

#include <QDir>
#include <QFile>
#include <QSplitter>

namespace {

const QString root = FtpFolder::path();
const QString sub = QStringLiteral("sub");

QString inRoot(const char *path)
{
    return root + QLatin1Char('/') + QLatin1String(path);
}

} // namespace

class tst_QZelFileManagerWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void windowIsAFramelessDialog();
    void viewsShareOneModelOfTheFtpFolder();
    void treeShowsFilesAndEveryColumn();
    void splitterGivesTheListMore();

    void clickedFolderOfTheTreeIsListed();
    void clickedFileOfTheTreeListsNothing();
    void everyColumnOfTheTreeListsTheFolder();
    void doubleClickEntersAFolder();
    void doubleClickOnAFileDoesNothing();
    void clickInTheListStaysThere();
    void mainPageListsTheFtpFolder();
    void upPageReturnsToWhereTheFolderWasEntered();
    void upPageGoesByTheCurrentItem();
    void upPageWithoutACurrentItemListsTheTop();
    void upPageDoesNothingOnTheFtpFolderItself();
    void closeButtonCloses();

    void leftButtonDragsTheWindow();
    void stripSwallowsOtherButtons_data();
    void stripSwallowsOtherButtons();
    void twoButtonsDoNotDrag();
    void anyReleaseEndsTheDrag();
    void everythingElseIsLeftToQt();
    void listIsWatchedWithoutBeingActedOn();

    void missingFolderIsNotReported();
    void folderMayVanish();
};

void tst_QZelFileManagerWidget::init()
{
    QVERIFY(FtpFolder::reset({ QStringLiteral("a.txt"), QStringLiteral("sub/inner.txt"),
                               QStringLiteral("sub/deep/x.txt") }));
}

void tst_QZelFileManagerWidget::windowIsAFramelessDialog()
{
    QWidget host;
    const QZelFileManagerWidget manager(&host);
    QCOMPARE(manager.parent(), &host);
    QCOMPARE(manager.windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
    QVERIFY(manager.testAttribute(Qt::WA_StyledBackground));
    QCOMPARE(manager.windowModality(), Qt::NonModal);
    QCOMPARE(manager.metaObject()->className(), "QZelFileManagerWidget");
    const QMetaObject *meta = manager.metaObject();
    QCOMPARE(meta->methodCount(), meta->methodOffset());
    QCOMPARE(meta->propertyCount(), meta->propertyOffset());
}

void tst_QZelFileManagerWidget::viewsShareOneModelOfTheFtpFolder()
{
    ShownManager manager;
    QCOMPARE(manager.fileModel->parent(), &manager);
    QCOMPARE(manager.tree()->model(), manager.fileModel);
    QCOMPARE(manager.list()->model(), manager.fileModel);
    QCOMPARE(manager.fileModel->rootPath(), root);
    QCOMPARE(manager.fileModel->filePath(manager.rootIndex), root);
    QCOMPARE(manager.tree()->rootIndex(), QModelIndex(manager.rootIndex));
    QCOMPARE(manager.list()->rootIndex(), QModelIndex(manager.rootIndex));
    QCOMPARE(manager.tree()->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(manager.list()->selectionMode(), QAbstractItemView::ExtendedSelection);
}

void tst_QZelFileManagerWidget::treeShowsFilesAndEveryColumn()
{
    ShownManager manager;
    QVERIFY(User::item(manager.tree(), QStringLiteral("a.txt")).isValid());
    for (int column = 0; column < manager.fileModel->columnCount(); ++column)
        QVERIFY(!manager.tree()->isColumnHidden(column));
    QVERIFY(!manager.tree()->isHeaderHidden());
    QVERIFY(manager.fileModel->nameFilters().isEmpty());
    QCOMPARE(manager.fileModel->filter(), QFileSystemModel().filter());
    QCOMPARE(manager.tree()->itemDelegate()->metaObject()->className(), "QStyledItemDelegate");
}

void tst_QZelFileManagerWidget::splitterGivesTheListMore()
{
    ShownManager manager;
    auto *splitter = manager.findChild<QSplitter *>(QStringLiteral("splitter"));
    QCOMPARE(splitter->widget(0)->sizePolicy().horizontalStretch(), 3);
    QCOMPARE(splitter->widget(1)->sizePolicy().horizontalStretch(), 7);
    QVERIFY(splitter->isCollapsible(0));
    QVERIFY(splitter->isCollapsible(1));
}

void tst_QZelFileManagerWidget::clickedFolderOfTheTreeIsListed()
{
    ShownManager manager;
    User::clickItem(manager.tree(), QStringLiteral("sub/deep"));
    QCOMPARE(manager.shown(), inRoot("sub/deep"));
    User::clickItem(manager.tree(), sub);
    QCOMPARE(manager.shown(), inRoot("sub"));
    User::item(manager.list(), QStringLiteral("inner.txt"));
    QCOMPARE(manager.tree()->rootIndex(), QModelIndex(manager.rootIndex));
}

void tst_QZelFileManagerWidget::clickedFileOfTheTreeListsNothing()
{
    ShownManager manager;
    User::clickItem(manager.tree(), QStringLiteral("a.txt"));
    QCOMPARE(manager.shown(), inRoot("a.txt"));
    QCOMPARE(User::items(manager.list()), QStringList());
    User::clickItem(manager.tree(), sub);
    QCOMPARE(manager.shown(), inRoot("sub"));
}

void tst_QZelFileManagerWidget::everyColumnOfTheTreeListsTheFolder()
{
    ShownManager manager;
    const QModelIndex name = User::item(manager.tree(), sub);
    const QModelIndex type = name.sibling(name.row(), 2);
    manager.tree()->setColumnWidth(0, 80);
    manager.tree()->setColumnWidth(1, 10);
    const QPoint inside = manager.tree()->visualRect(type).topLeft() + QPoint(5, 5);
    QCOMPARE(manager.tree()->indexAt(inside).column(), 2);
    Pointer(&manager).click(manager.tree()->viewport()->mapToGlobal(inside));
    QCOMPARE(manager.shown(), inRoot("sub"));
    User::item(manager.list(), QStringLiteral("inner.txt"));
}

void tst_QZelFileManagerWidget::doubleClickEntersAFolder()
{
    ShownManager manager;
    User::doubleClickItem(manager.list(), sub);
    QCOMPARE(manager.shown(), inRoot("sub"));
    User::doubleClickItem(manager.list(), QStringLiteral("deep"));
    QCOMPARE(manager.shown(), inRoot("sub/deep"));
}

void tst_QZelFileManagerWidget::doubleClickOnAFileDoesNothing()
{
    ShownManager manager;
    User::doubleClickItem(manager.list(), QStringLiteral("a.txt"));
    QCOMPARE(manager.shown(), root);
    QVERIFY(manager.isVisible());
}

void tst_QZelFileManagerWidget::clickInTheListStaysThere()
{
    ShownManager manager;
    User::clickItem(manager.list(), sub);
    QCOMPARE(manager.shown(), root);
}

void tst_QZelFileManagerWidget::mainPageListsTheFtpFolder()
{
    ShownManager manager;
    User::clickItem(manager.tree(), QStringLiteral("sub/deep"));
    User::clickButton(&manager, QStringLiteral("btn_MainPage"));
    QCOMPARE(manager.shown(), root);
    QCOMPARE(User::items(manager.list()), QStringList({ sub, QStringLiteral("a.txt") }));
}

// And shows the same folder when pressed again without another item clicked.
void tst_QZelFileManagerWidget::upPageReturnsToWhereTheFolderWasEntered()
{
    ShownManager manager;
    User::doubleClickItem(manager.list(), sub);
    User::doubleClickItem(manager.list(), QStringLiteral("deep"));
    QCOMPARE(manager.shown(), inRoot("sub/deep"));
    User::clickButton(&manager, QStringLiteral("btn_UpPage"));
    QCOMPARE(manager.shown(), inRoot("sub"));
    User::clickButton(&manager, QStringLiteral("btn_UpPage"));
    QCOMPARE(manager.shown(), inRoot("sub"));
}

void tst_QZelFileManagerWidget::upPageGoesByTheCurrentItem()
{
    ShownManager manager;
    User::clickItem(manager.list(), QStringLiteral("a.txt"));
    // The tree moves the list, not the list's current item.
    User::clickItem(manager.tree(), QStringLiteral("sub/deep"));
    User::clickButton(&manager, QStringLiteral("btn_UpPage"));
    QCOMPARE(manager.shown(), root);

    User::doubleClickItem(manager.list(), sub);
    User::clickItem(manager.list(), QStringLiteral("inner.txt"));
    User::clickButton(&manager, QStringLiteral("btn_UpPage"));
    QCOMPARE(manager.shown(), inRoot("sub"));
}

void tst_QZelFileManagerWidget::upPageWithoutACurrentItemListsTheTop()
{
    ShownManager manager;
    // Clicking the button gives the list no current item, as taking the focus would.
    QVERIFY(!manager.list()->currentIndex().isValid());
    User::clickButton(&manager, QStringLiteral("btn_UpPage"));
    QVERIFY(!manager.list()->rootIndex().isValid());
    QCOMPARE(User::items(manager.list()), QStringList(QStringLiteral("/")));
    User::clickButton(&manager, QStringLiteral("btn_MainPage"));
    QCOMPARE(manager.shown(), root);
}

void tst_QZelFileManagerWidget::upPageDoesNothingOnTheFtpFolderItself()
{
    ShownManager manager;
    User::clickItem(manager.tree(), sub);
    manager.list()->selectionModel()->setCurrentIndex(manager.rootIndex,
                                                      QItemSelectionModel::NoUpdate);
    User::clickButton(&manager, QStringLiteral("btn_UpPage"));
    QCOMPARE(manager.shown(), inRoot("sub"));
}

void tst_QZelFileManagerWidget::closeButtonCloses()
{
    ShownManager manager;
    User::clickButton(&manager, QStringLiteral("btn_Close"));
    QVERIFY(!manager.isVisible());
    QCOMPARE(manager.result(), int(QDialog::Rejected));
}

void tst_QZelFileManagerWidget::leftButtonDragsTheWindow()
{
    ShownManager manager;
    manager.move(50, 60);
    QTRY_COMPARE(manager.pos(), QPoint(50, 60));
    const QPoint start = manager.mapToGlobal(QPoint(300, 4));
    Pointer mouse(&manager);
    mouse.press(start);
    QVERIFY(manager.dragging);
    QCOMPARE(manager.dragOffset, QPoint(300, 4));
    mouse.moveTo(start + QPoint(20, 30));
    QCOMPARE(manager.pos(), QPoint(70, 90));
    // Off the screen too.
    mouse.moveTo(start + QPoint(-200, -100));
    QCOMPARE(manager.pos(), QPoint(-150, -40));
    mouse.release();
    QVERIFY(!manager.dragging);
    mouse.moveTo(start);
    QCOMPARE(manager.pos(), QPoint(-150, -40));
}

void tst_QZelFileManagerWidget::stripSwallowsOtherButtons_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
}

void tst_QZelFileManagerWidget::stripSwallowsOtherButtons()
{
    QFETCH(int, button);
    ShownManager manager;
    const QPoint before = manager.pos();
    auto *strip = manager.findChild<QWidget *>(QStringLiteral("wgt_TitleBar"));
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(300, 4), QPointF(350, 64),
                      Qt::MouseButton(button), Qt::MouseButton(button), Qt::NoModifier);
    QVERIFY(manager.eventFilter(strip, &press));
    QVERIFY(!manager.dragging);
    const QPoint start = manager.mapToGlobal(QPoint(300, 4));
    Pointer mouse(&manager);
    mouse.press(start, Qt::MouseButton(button));
    mouse.moveTo(start + QPoint(20, 30));
    mouse.release(Qt::MouseButton(button));
    QCOMPARE(manager.pos(), before);
}

void tst_QZelFileManagerWidget::twoButtonsDoNotDrag()
{
    ShownManager manager;
    const QPoint before = manager.pos();
    const QPoint start = manager.mapToGlobal(QPoint(300, 4));
    Pointer mouse(&manager);
    mouse.press(start);
    mouse.press(start, Qt::RightButton);
    mouse.moveTo(start + QPoint(20, 30));
    QCOMPARE(manager.pos(), before);
    mouse.release();
    mouse.release(Qt::RightButton);
}

void tst_QZelFileManagerWidget::anyReleaseEndsTheDrag()
{
    ShownManager manager;
    auto *strip = manager.findChild<QWidget *>(QStringLiteral("wgt_TitleBar"));
    manager.dragging = true;
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(300, 4), QPointF(350, 64),
                        Qt::RightButton, Qt::LeftButton, Qt::NoModifier);
    QVERIFY(manager.eventFilter(strip, &release));
    QVERIFY(!manager.dragging);
}

void tst_QZelFileManagerWidget::everythingElseIsLeftToQt()
{
    ShownManager manager;
    auto *strip = manager.findChild<QWidget *>(QStringLiteral("wgt_TitleBar"));
    QMouseEvent move(QEvent::MouseMove, QPointF(300, 4), QPointF(350, 64), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QVERIFY(!manager.eventFilter(strip, &move));
    QMouseEvent doubleClick(QEvent::MouseButtonDblClick, QPointF(300, 4), QPointF(350, 64),
                            Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QVERIFY(!manager.eventFilter(strip, &doubleClick));
    QVERIFY(!manager.dragging);
}

void tst_QZelFileManagerWidget::listIsWatchedWithoutBeingActedOn()
{
    ShownManager manager;
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(300, 4), QPointF(350, 64), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QVERIFY(!manager.eventFilter(manager.list(), &press));
    QVERIFY(!manager.dragging);
}

// Qt's model has no other root then than the working directory.
void tst_QZelFileManagerWidget::missingFolderIsNotReported()
{
    QVERIFY(QDir(root).removeRecursively());
    ShownManager manager;
    QCOMPARE(manager.fileModel->filePath(manager.rootIndex), QDir::currentPath());
    QCOMPARE(manager.shown(), QDir::currentPath());
    User::clickButton(&manager, QStringLiteral("btn_MainPage"));
    QCOMPARE(manager.shown(), QDir::currentPath());
}

// The model keeps what it knew of a root that has gone.
void tst_QZelFileManagerWidget::folderMayVanish()
{
    ShownManager manager;
    User::doubleClickItem(manager.list(), sub);
    QVERIFY(QDir(root).removeRecursively());
    User::clickButton(&manager, QStringLiteral("btn_UpPage"));
    User::clickButton(&manager, QStringLiteral("btn_MainPage"));
    QVERIFY(manager.isVisible());
    QVERIFY(manager.shown() == root || manager.shown().isEmpty());
    QVERIFY(!QDir(root).exists());
}

QTARNKIT_TEST_MAIN(tst_QZelFileManagerWidget)

#include "tst_QZelFileManagerWidget.moc"
