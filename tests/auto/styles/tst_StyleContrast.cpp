#include "Contrast.h"

#include <Appearance.h>
#include <FtpFolder.h>
#include <TestMain.h>

#include <ClientUnlockWidget>
#include <QTitleBar>
#include <QUIMessageBox>
#include <QWaitingDialog>
#include <QZelDialog>
#include <QZelEncDialog>
#include <QZelFileDialog>
#include <QZelFileManagerWidget>
#include <QZelFolderNameDialog>
#include <QZelIntSpinBox>
#include <QZelPwdInputDialog>

#include <QColor>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QToolTip>
#include <QTreeView>

#include <functional>
#include <memory>

namespace {

constexpr double EnoughContrast = 4.5;

using Build = std::function<QWidget *()>;

QString s(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace

Q_DECLARE_METATYPE(Build)

/// Reads the colours that the gallery's two style sheets really give to every text.
class tst_StyleContrast : public TestCase
{
    Q_OBJECT

public:
    tst_StyleContrast();

private Q_SLOTS:
    void ratioOfKnownColours();
    void everyTextStandsOut_data();
    void everyTextStandsOut();
    void selectedRowStandsOut_data();
    void selectedRowStandsOut();
    void toolTipStandsOut_data();
    void toolTipStandsOut();

private:
    QWidget *fileDialog(QZelFileDialog::OperateMode mode);
    void addStyles();

    QTemporaryDir folder;
    Appearance appearance;
};

tst_StyleContrast::tst_StyleContrast()
{
    makeEntries(folder.path(), { s("reports/"), s("notes.txt"), s("more.txt") });
    FtpFolder::reset({ s("logs/"), s("upload.txt") });
}

QWidget *tst_StyleContrast::fileDialog(QZelFileDialog::OperateMode mode)
{
    auto *dialog =
            new QZelFileDialog(nullptr, s("Open"), folder.path(), s("Text (*.txt);;All (*)"), mode);
    dialog->findChild<QLineEdit *>(s("let_FileName"))->setText(s("notes"));
    return dialog;
}

void tst_StyleContrast::addStyles()
{
    QTest::addColumn<QString>("style");
    const QStringList styles = Appearance::styles();
    for (const QString &style : styles)
        QTest::newRow(qPrintable(style)) << style;
}

void tst_StyleContrast::ratioOfKnownColours()
{
    QCOMPARE(qRound(Contrast::ratio(Qt::white, Qt::black) * 100), 2100);
    QCOMPARE(qRound(Contrast::ratio(Qt::white, Qt::white) * 100), 100);
    QCOMPARE(qRound(Contrast::ratio(QColor(0x76, 0x76, 0x76), Qt::white) * 100), 454);
}

void tst_StyleContrast::everyTextStandsOut_data()
{
    const auto box = [](int type) {
        return [type]() -> QWidget * {
            auto *box = new QTarnKit::QUIMessageBox;
            box->setMessage(s("Title"), s("A text to read."), type, 0);
            return box;
        };
    };
    const QVector<QPair<const char *, Build>> windows {
        { "title bar",
          [] {
              auto *window = new QWidget;
              auto *bar = new QTitleBar(window);
              bar->SetTitle(s("Title"));
              bar->resize(300, 25);
              return window;
          } },
        { "shell",
          [] {
              auto *dialog = new QZelDialog(nullptr);
              dialog->SetTitle(s("Title"));
              dialog->ShowMaxBtn();
              dialog->SetContainer(new QLabel(s("Content")));
              dialog->Resize(0, 0, 300, 150);
              return dialog;
          } },
        { "disabled Confirm",
          [] {
              auto *dialog = new QZelDialog(nullptr);
              dialog->SetBtnEnabled(false);
              return dialog;
          } },
        { "set password",
          [] {
              auto *dialog = new QZelEncDialog(nullptr);
              dialog->accept(); // shows the error line
              return dialog;
          } },
        { "password", [] { return new QZelPwdInputDialog(nullptr); } },
        { "folder name",
          [] {
              auto *dialog = new QZelFolderNameDialog(nullptr);
              dialog->setContent(s("Measurements"));
              return dialog;
          } },
        { "information", box(1) },
        { "question", box(4) },
        { "open a file", [this] { return fileDialog(QZelFileDialog::OpenFile); } },
        { "save with password", [this] { return fileDialog(QZelFileDialog::SaveEncryptedFile); } },
        { "file manager", [] { return new QZelFileManagerWidget(nullptr); } },
        { "waiting",
          [] {
              auto *dialog = new QWaitingDialog(nullptr);
              dialog->setTipMessage(s("Copying"));
              return dialog;
          } },
        { "unlock notice",
          [] {
              auto *notice = new ClientUnlockWidget(nullptr);
              notice->setIp(s("192.168.1.20"));
              return notice;
          } },
        { "spin box",
          [] {
              auto *box = new QTarnKit::QZelIntSpinBox;
              box->setFocusPolicy(Qt::NoFocus);
              box->findChild<QWidget *>()->setFocusPolicy(Qt::NoFocus);
              return box;
          } },
        { "menu",
          [] {
              auto *menu = new QMenu;
              menu->addAction(s("New folder"));
              menu->addAction(s("Rename"))->setEnabled(false);
              menu->setActiveAction(menu->actions().constFirst());
              return menu;
          } },
    };
    QTest::addColumn<QString>("style");
    QTest::addColumn<Build>("build");
    const QStringList styles = Appearance::styles();
    for (const QString &style : styles) {
        for (const auto &window : windows)
            QTest::newRow(qPrintable(style + s(" ") + s(window.first))) << style << window.second;
    }
}

void tst_StyleContrast::everyTextStandsOut()
{
    QFETCH(QString, style);
    QFETCH(Build, build);
    const WarningGuard offscreen(s("This plugin does not support"));
    appearance.setStyle(style);

    const std::unique_ptr<QWidget> window(build());
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    const QList<QTreeView *> views = window->findChildren<QTreeView *>();
    for (const QTreeView *view : views)
        QTRY_VERIFY(view->model()->rowCount(view->rootIndex()) > 0);
    QCoreApplication::processEvents();

    const QVector<Contrast::Text> texts = Contrast::ofWindow(window.get());
    QVERIFY(!texts.isEmpty());
    for (const Contrast::Text &text : texts) {
        QVERIFY2(text.ratio >= EnoughContrast,
                 qPrintable(s("%1 has %2 : 1").arg(text.name).arg(text.ratio, 0, 'f', 2)));
    }
    window->hide();
}

void tst_StyleContrast::selectedRowStandsOut_data()
{
    addStyles();
}

void tst_StyleContrast::selectedRowStandsOut()
{
    QFETCH(QString, style);
    appearance.setStyle(style);
    const std::unique_ptr<QWidget> dialog(fileDialog(QZelFileDialog::OpenFiles));
    dialog->show();
    auto *list = dialog->findChild<QTreeView *>(s("treeV_FileList"));
    QTRY_COMPARE(list->model()->rowCount(list->rootIndex()), 3);
    list->selectAll();
    const QVector<Contrast::Text> texts = Contrast::ofWindow(dialog.get());
    QVERIFY(texts.size() > 3);
    for (const Contrast::Text &text : texts)
        QVERIFY2(text.ratio >= EnoughContrast, qPrintable(text.name));
    dialog->hide();
}

void tst_StyleContrast::toolTipStandsOut_data()
{
    addStyles();
}

void tst_StyleContrast::toolTipStandsOut()
{
    QFETCH(QString, style);
    const WarningGuard offscreen(s("This plugin does not support"));
    appearance.setStyle(style);
    QToolTip::showText(QPoint(10, 10), s("The whole name of a file"));
    QTRY_VERIFY(QToolTip::isVisible());
    QVector<Contrast::Text> texts;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (!window->inherits("QTipLabel") || !window->isVisible())
            continue;
        texts += Contrast::ofWindow(window);
        window->hide();
    }
    QCOMPARE(texts.size(), 1);
    QVERIFY2(texts.constFirst().ratio >= EnoughContrast, qPrintable(texts.constFirst().name));
}

QTARNKIT_TEST_MAIN(tst_StyleContrast)
#include "tst_StyleContrast.moc"
