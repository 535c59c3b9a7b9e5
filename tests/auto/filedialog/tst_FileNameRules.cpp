#include "TestMain.h"

#include "filedialog/FileNameRules.h"

#include <QString>

using namespace FileNameRules;

class tst_FileNameRules : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void lastPartFollowsTheLastSlash_data();
    void lastPartFollowsTheLastSlash();
    void oneTrailingSlashIsRemoved_data();
    void oneTrailingSlashIsRemoved();
    void aMissingTrailingSlashIsAdded_data();
    void aMissingTrailingSlashIsAdded();
    void aNameWithoutDotGetsThePatternWithoutStars_data();
    void aNameWithoutDotGetsThePatternWithoutStars();
    void theOldSuffixIsForcedByTheLastDot_data();
    void theOldSuffixIsForcedByTheLastDot();
};

namespace {

void addText(const char *row, const char *text, const char *result)
{
    QTest::newRow(row) << QString::fromUtf8(text) << QString::fromUtf8(result);
}

void addNames(const char *row, const char *name, const char *other, const char *result)
{
    QTest::newRow(row) << QString::fromUtf8(name) << QString::fromUtf8(other)
                       << QString::fromUtf8(result);
}

} // namespace

void tst_FileNameRules::lastPartFollowsTheLastSlash_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("result");
    addText("absolute", "/a/b.txt", "b.txt");
    addText("directly under the root", "/data", "data");
    addText("without a slash", "data", "data");
    addText("slash at the end", "/a/b/", "");
    addText("only a slash", "/", "");
    addText("empty", "", "");
    addText("newline inside", "/a/b\nc", "b\nc");
    addText("not ASCII", "/文件/报告", "报告");
}

void tst_FileNameRules::lastPartFollowsTheLastSlash()
{
    QFETCH(QString, path);
    QTEST(lastPart(path), "result");
}

void tst_FileNameRules::oneTrailingSlashIsRemoved_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("result");
    addText("with a slash", "/home/", "/home");
    addText("without", "/home", "/home");
    addText("two slashes", "/home//", "/home/");
    addText("the root folder", "/", "");
    addText("empty", "", "");
}

void tst_FileNameRules::oneTrailingSlashIsRemoved()
{
    QFETCH(QString, path);
    QTEST(withoutTrailingSlash(path), "result");
}

void tst_FileNameRules::aMissingTrailingSlashIsAdded_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("result");
    addText("without", "/home", "/home/");
    addText("with a slash", "/home/", "/home/");
    addText("the root folder", "/", "/");
    addText("empty", "", "/");
}

void tst_FileNameRules::aMissingTrailingSlashIsAdded()
{
    QFETCH(QString, path);
    QTEST(withTrailingSlash(path), "result");
}

void tst_FileNameRules::aNameWithoutDotGetsThePatternWithoutStars_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("result");
    addNames("bare name", "report", "*.txt", "report.txt");
    addNames("own suffix", "report.old", "*.txt", "report.old");
    addNames("dot at the front", ".profile", "*.txt", ".profile");
    addNames("dot at the end", "report.", "*.txt", "report.");
    addNames("pattern for all", "report", "*", "report");
    addNames("empty pattern", "report", "", "report");
    addNames("double suffix", "report", "*.tar.gz", "report.tar.gz");
    addNames("every star goes", "report", "*_*.*", "report_.");
    addNames("other wildcards stay", "report", "*.t?t", "report.t?t");
    addNames("empty name", "", "*.txt", ".txt");
}

void tst_FileNameRules::aNameWithoutDotGetsThePatternWithoutStars()
{
    QFETCH(QString, name);
    QFETCH(QString, pattern);
    QTEST(withFilterSuffix(name, pattern), "result");
}

void tst_FileNameRules::theOldSuffixIsForcedByTheLastDot_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("result");
    addNames("no dot", "memo", "txt", "memo.txt");
    addNames("another suffix", "memo.md", "txt", "memo.txt");
    addNames("same suffix", "memo.txt", "txt", "memo.txt");
    addNames("two dots", "memo.old.md", "txt", "memo.old.txt");
    addNames("dot at the end", "memo.", "txt", "memo.txt");
    addNames("only dot at the front", ".profile", "txt", ".profile");
    addNames("dots at the front and later", ".a.b", "txt", ".a.txt");
    addNames("only a dot", ".", "txt", ".");
    addNames("two dots alone", "..", "txt", "..txt");
    addNames("no old suffix", "x", "", "x.");
    addNames("no old suffix, typed one", "x.md", "", "x.");
    addNames("empty name", "", "txt", ".txt");
    addNames("nothing at all", "", "", ".");
}

void tst_FileNameRules::theOldSuffixIsForcedByTheLastDot()
{
    QFETCH(QString, name);
    QFETCH(QString, suffix);
    QTEST(withForcedSuffix(name, suffix), "result");
}

QTARNKIT_TEST_MAIN(tst_FileNameRules)
#include "tst_FileNameRules.moc"
