#include "Pixels.h"
#include "TestMain.h"

#include "FtpFolder.h"

#include <DirItemStyledDelegate.h>

#include <QFile>
#include <QPainter>
#include <QStandardItemModel>
#include <QTemporaryDir>

class tst_DirItemStyledDelegate : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void itsParentIsTheOneGiven();
    void itHasNoMetaObjectOfItsOwn();
    void onlyFoldersArePaintedAndTakeRoom_data();
    void onlyFoldersArePaintedAndTakeRoom();
    void theFileSystemIsAskedEachTime();
    void theInvalidIndexIsNoFolder();

private:
    QModelIndex indexOf(const QString &path);
    QStyleOptionViewItem option() const;
    QImage painted(const QStyledItemDelegate &delegate, const QModelIndex &index) const;

    std::unique_ptr<QTemporaryDir> folder;
    QStandardItemModel model;
};

void tst_DirItemStyledDelegate::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(makeEntries(folder->path(), { QStringLiteral("folder/"), QStringLiteral("file") }));
    QVERIFY(QFile::link(folder->filePath(QStringLiteral("folder")),
                        folder->filePath(QStringLiteral("link to folder"))));
    QVERIFY(QFile::link(folder->filePath(QStringLiteral("file")),
                        folder->filePath(QStringLiteral("link to file"))));
    QVERIFY(QFile::link(folder->filePath(QStringLiteral("nowhere")),
                        folder->filePath(QStringLiteral("broken link"))));
    model.clear();
}

// The path stands in role 257, where the file-system model has it; the text says nothing.
QModelIndex tst_DirItemStyledDelegate::indexOf(const QString &path)
{
    auto *item = new QStandardItem(QStringLiteral("row"));
    item->setData(path, 257);
    item->setBackground(QColor(Qt::red));
    model.appendRow(item);
    return item->index();
}

QStyleOptionViewItem tst_DirItemStyledDelegate::option() const
{
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 60, 20);
    option.state = QStyle::State_Enabled;
    return option;
}

QImage tst_DirItemStyledDelegate::painted(const QStyledItemDelegate &delegate,
                                          const QModelIndex &index) const
{
    QImage image(60, 20, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    delegate.paint(&painter, option(), index);
    return image;
}

void tst_DirItemStyledDelegate::itsParentIsTheOneGiven()
{
    QObject owner;
    const auto *delegate = new DirItemStyledDelegate(&owner);
    QCOMPARE(delegate->parent(), &owner);
    DirItemStyledDelegate orphan(nullptr);
    QVERIFY(!orphan.parent());
}

void tst_DirItemStyledDelegate::itHasNoMetaObjectOfItsOwn()
{
    const DirItemStyledDelegate delegate(nullptr);
    QCOMPARE(delegate.metaObject(), &QStyledItemDelegate::staticMetaObject);
}

void tst_DirItemStyledDelegate::onlyFoldersArePaintedAndTakeRoom_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isFolder");
    const QString base = QStringLiteral("%1/");
    QTest::newRow("folder") << base + QStringLiteral("folder") << true;
    QTest::newRow("folder with a slash") << base + QStringLiteral("folder/") << true;
    QTest::newRow("link to a folder") << base + QStringLiteral("link to folder") << true;
    QTest::newRow("root folder") << QStringLiteral("/") << true;
    QTest::newRow("file") << base + QStringLiteral("file") << false;
    QTest::newRow("link to a file") << base + QStringLiteral("link to file") << false;
    QTest::newRow("broken link") << base + QStringLiteral("broken link") << false;
    QTest::newRow("vanished") << base + QStringLiteral("nowhere") << false;
    QTest::newRow("no path") << QString() << false;
}

void tst_DirItemStyledDelegate::onlyFoldersArePaintedAndTakeRoom()
{
    QFETCH(QString, path);
    QFETCH(bool, isFolder);
    const DirItemStyledDelegate delegate(nullptr);
    const QStyledItemDelegate usual;
    const QModelIndex index = indexOf(path.replace(QStringLiteral("%1"), folder->path()));

    const QImage blank = [] {
        QImage image(60, 20, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        return image;
    }();
    COMPARE_PIXEL(painted(usual, index), 55, 15, Qt::red);
    QCOMPARE(painted(delegate, index), isFolder ? painted(usual, index) : blank);
    QVERIFY(usual.sizeHint(option(), index).isValid());
    QCOMPARE(delegate.sizeHint(option(), index),
             isFolder ? usual.sizeHint(option(), index) : QSize(-1, -1));
}

void tst_DirItemStyledDelegate::theFileSystemIsAskedEachTime()
{
    const DirItemStyledDelegate delegate(nullptr);
    const QString path = folder->filePath(QStringLiteral("folder"));
    const QModelIndex index = indexOf(path);
    QVERIFY(delegate.sizeHint(option(), index).isValid());
    COMPARE_PIXEL(painted(delegate, index), 55, 15, Qt::red);

    QVERIFY(QDir().rmdir(path));
    QCOMPARE(delegate.sizeHint(option(), index), QSize(-1, -1));
    COMPARE_PIXEL(painted(delegate, index), 55, 15, Qt::transparent);

    QVERIFY(QDir().mkdir(path));
    QVERIFY(delegate.sizeHint(option(), index).isValid());
    COMPARE_PIXEL(painted(delegate, index), 55, 15, Qt::red);
}

void tst_DirItemStyledDelegate::theInvalidIndexIsNoFolder()
{
    const DirItemStyledDelegate delegate(nullptr);
    QCOMPARE(delegate.sizeHint(option(), QModelIndex()), QSize(-1, -1));
    COMPARE_PIXEL(painted(delegate, QModelIndex()), 5, 5, Qt::transparent);
}

QTARNKIT_TEST_MAIN(tst_DirItemStyledDelegate)
#include "tst_DirItemStyledDelegate.moc"
