#include "FileDialogProbe.h"
#include "FtpFolder.h"
#include "TestMain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class tst_QZelFileDialog_filters : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theFirstParenthesesHoldThePatterns_data();
    void theFirstParenthesesHoldThePatterns();
    void theChosenFilterIsApplied();
    void theChosenFilterIsToldWhole();
    void thereIsNoChosenFilterForAFolder();
    void filteringLeavesTheModelsOtherFlagsAlone_data();
    void filteringLeavesTheModelsOtherFlagsAlone();
    void everyModeFiltersByItsFirstText_data();
    void everyModeFiltersByItsFirstText();
    void aFilterWithoutTextOfItsOwnIsEmpty();
    void onlyWhatIsThereExists_data();
    void onlyWhatIsThereExists();
    void aParentLiesStrictlyAbove_data();
    void aParentLiesStrictlyAbove();

private:
    std::unique_ptr<FileDialogProbe> make(const QString &filter) const
    {
        return FileDialogProbe::make(QZelFileDialog::OpenFile, folder->path(), filter);
    }

    std::unique_ptr<QTemporaryDir> folder;
};

void tst_QZelFileDialog_filters::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(makeEntries(folder->path(),
                        { QStringLiteral("sub.png/"), QStringLiteral("a.txt"),
                          QStringLiteral("b.TXT"), QStringLiteral("c.png"), QStringLiteral("d") }));
}

void tst_QZelFileDialog_filters::theFirstParenthesesHoldThePatterns_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("patterns");
    const auto row = [](const char *filter, std::initializer_list<const char *> patterns) {
        QStringList list;
        for (const char *pattern : patterns)
            list.append(QString::fromUtf8(pattern));
        QTest::newRow(*filter ? filter : "nothing") << QString::fromUtf8(filter) << list;
    };
    row("Images (*.png *.jpg)", { "*.png", "*.jpg" });
    row("All (*)", { "*" });
    row("*.txt", { "*.txt" });
    row("*.txt *.log", { "*.txt", "*.log" });
    row("A (*.a) B (*.b)", { "*.a" });
    row("Text (*.txt  *.log)", { "*.txt", "", "*.log" });
    row("Text ( *.txt )", { "", "*.txt", "" });
    row("", { "" });
    row("Nothing ()", { "" });
    row("Nested (*.a (*.b))", { "*.a", "(*.b" });
    row("Open (*.a", { "Open", "(*.a" });
    row("Closed *.a)", { "Closed", "*.a)" });
    row(")(*.a)", { "*.a" });
    row("图片 (*.图)", { "*.图" });
    // A dot does not stand for a newline.
    row("Lines (*.a\n*.b)", { "Lines", "(*.a\n*.b)" });
}

void tst_QZelFileDialog_filters::theFirstParenthesesHoldThePatterns()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, patterns);
    const auto dialog = make(QStringLiteral("All (*)"));
    dialog->fileModel->setNameFilterDisables(true);
    dialog->setFileFilter(filter);
    QCOMPARE(dialog->fileModel->nameFilters(), patterns);
    QVERIFY(!dialog->fileModel->nameFilterDisables());
}

void tst_QZelFileDialog_filters::theChosenFilterIsApplied()
{
    const auto dialog = make(QStringLiteral("Text (*.txt);;Images (*.png);;All (*)"));
    QVERIFY(dialog->showAndWait());
    const auto names = [&] { return FileDialogProbe::rows(dialog->list()); };
    // Whatever the case of the suffix; folders are there with any filter.
    QTRY_COMPARE(names(), QStringList({ QStringLiteral("sub.png"), QStringLiteral("a.txt"),
                                        QStringLiteral("b.TXT") }));

    // The offscreen platform's, for a list that drops down.
    const WarningGuard popup(
            QStringLiteral("^This plugin does not support (raise\\(\\)|grabbing the keyboard)$"));
    dialog->filterBox()->showPopup();
    QTRY_VERIFY(dialog->filterBox()->view()->isVisible());
    QTest::keyClick(dialog->filterBox()->view(), Qt::Key_Down);
    QTest::keyClick(dialog->filterBox()->view(), Qt::Key_Return);
    QCOMPARE(dialog->filterBox()->currentIndex(), 1);
    QCOMPARE(dialog->fileModel->nameFilters(), QStringList(QStringLiteral("*.png")));
    QTRY_COMPARE(names(), QStringList({ QStringLiteral("sub.png"), QStringLiteral("c.png") }));

    dialog->filterBox()->setCurrentIndex(2);
    QCOMPARE(dialog->fileModel->nameFilters(), QStringList(QStringLiteral("*")));
    QTRY_COMPARE(names().size(), 5);
    dialog->close();
}

void tst_QZelFileDialog_filters::theChosenFilterIsToldWhole()
{
    const auto dialog = make(QStringLiteral("Text (*.txt);;All (*)"));
    QCOMPARE(dialog->getSelectedFilter(), QStringLiteral("Text (*.txt)"));
    dialog->filterBox()->setCurrentIndex(1);
    QCOMPARE(dialog->getSelectedFilter(), QStringLiteral("All (*)"));
}

void tst_QZelFileDialog_filters::thereIsNoChosenFilterForAFolder()
{
    QCOMPARE(FileDialogProbe(nullptr, QString(), folder->path()).getSelectedFilter(), QString());
}

void tst_QZelFileDialog_filters::filteringLeavesTheModelsOtherFlagsAlone_data()
{
    addModes();
}

void tst_QZelFileDialog_filters::filteringLeavesTheModelsOtherFlagsAlone()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    const auto dialog = FileDialogProbe::make(mode, folder->path());
    const QDir::Filters before = dialog->fileModel->filter();
    dialog->setFileFilter(QStringLiteral("Text (*.txt)"));
    QCOMPARE(dialog->fileModel->filter(), before);
}

void tst_QZelFileDialog_filters::everyModeFiltersByItsFirstText_data()
{
    QTest::addColumn<QZelFileDialog::OperateMode>("mode");
    QTest::addColumn<QStringList>("patterns");
    const QStringList text(QStringLiteral("*.txt"));
    QTest::newRow("open a file") << QZelFileDialog::OpenFile << text;
    QTest::newRow("save") << QZelFileDialog::SaveFile << text;
    QTest::newRow("save encrypted") << QZelFileDialog::SaveEncryptedFile << text;
    QTest::newRow("open files") << QZelFileDialog::OpenFiles << text;
    QTest::newRow("choose a folder") << QZelFileDialog::SelectDirectory << QStringList();
}

void tst_QZelFileDialog_filters::everyModeFiltersByItsFirstText()
{
    QFETCH(QZelFileDialog::OperateMode, mode);
    QFETCH(QStringList, patterns);
    const auto dialog =
            FileDialogProbe::make(mode, folder->path(), QStringLiteral("Text (*.txt);;All (*)"));
    QCOMPARE(dialog->fileModel->nameFilters(), patterns);
}

void tst_QZelFileDialog_filters::aFilterWithoutTextOfItsOwnIsEmpty()
{
    const auto dialog = make(QStringLiteral("Text (*.txt)"));
    // An entry that a host put there, and no entry at all.
    dialog->filterBox()->addItem(QStringLiteral("Images (*.png)"));
    dialog->filterBox()->setCurrentIndex(1);
    QCOMPARE(dialog->fileModel->nameFilters(), QStringList(QString()));
    dialog->setFileFilter(QStringLiteral("*.txt"));
    dialog->filterBox()->setCurrentIndex(-1);
    QCOMPARE(dialog->fileModel->nameFilters(), QStringList(QString()));
    QCOMPARE(dialog->getSelectedFilter(), QString());
}

void tst_QZelFileDialog_filters::onlyWhatIsThereExists_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("exists");
    QTest::newRow("file") << QStringLiteral("%1/a.txt") << true;
    QTest::newRow("folder") << QStringLiteral("%1/sub.png") << true;
    QTest::newRow("folder with a slash") << QStringLiteral("%1/sub.png/") << true;
    QTest::newRow("file with a slash") << QStringLiteral("%1/a.txt/") << false;
    QTest::newRow("other case") << QStringLiteral("%1/A.TXT") << false;
    QTest::newRow("missing") << QStringLiteral("%1/nowhere") << false;
    QTest::newRow("link to a file") << QStringLiteral("%1/link") << true;
    QTest::newRow("broken link") << QStringLiteral("%1/broken") << false;
    QTest::newRow("root folder") << QStringLiteral("/") << true;
    QTest::newRow("empty") << QString() << false;
}

void tst_QZelFileDialog_filters::onlyWhatIsThereExists()
{
    QFETCH(QString, name);
    QFETCH(bool, exists);
    QVERIFY(QFile::link(folder->filePath(QStringLiteral("a.txt")),
                        folder->filePath(QStringLiteral("link"))));
    QVERIFY(QFile::link(folder->filePath(QStringLiteral("nowhere")),
                        folder->filePath(QStringLiteral("broken"))));
    const auto dialog = make(QStringLiteral("All (*)"));
    QCOMPARE(dialog->fileExist(name.replace(QStringLiteral("%1"), folder->path())), exists);
}

void tst_QZelFileDialog_filters::aParentLiesStrictlyAbove_data()
{
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QString>("child");
    QTest::addColumn<bool>("isParent");
    const auto row = [](const char *parent, const char *child, bool isParent) {
        QTest::addRow("'%s' above '%s'", parent, child)
                << QString::fromLatin1(parent) << QString::fromLatin1(child) << isParent;
    };
    row("/a", "/a", false);
    row("/a/", "/a", false);
    row("/a", "/a/", false);
    row("/", "/a", true);
    row("/", "/", false);
    row("/a", "/a/b", true);
    row("/a/", "/a/b/c/", true);
    row("/a/b", "/a", false);
    row("/root/zel", "/root/zeltempfiles", false);
    row("/A", "/a/b", false);
    row("/a/x/..", "/a/b", true);
    row("/a", "/a/./b", true);
    row("/a//", "/a/b", true);
    row("/", "/root/zeltempfiles/ftp/", true);
    row("/root", "/root/zeltempfiles/ftp/", true);
    row("/root/zeltempfiles", "/root/zeltempfiles/ftp/", true);
    row("/root/zeltempfiles/ftp", "/root/zeltempfiles/ftp/", false);
    row("/root/zeltempfiles/ftp/x", "/root/zeltempfiles/ftp/", false);
    row("/home", "/root/zeltempfiles/ftp/", false);
    // Relative ones count from the folder in which the process runs.
    row("", "below", true);
    row("here", "here/below", true);
    row("below", "", false);
}

void tst_QZelFileDialog_filters::aParentLiesStrictlyAbove()
{
    QFETCH(QString, parent);
    QFETCH(QString, child);
    QFETCH(bool, isParent);
    QCOMPARE(make(QStringLiteral("All (*)"))->isParentPath(parent, child), isParent);
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_filters)
#include "tst_QZelFileDialog_filters.moc"
