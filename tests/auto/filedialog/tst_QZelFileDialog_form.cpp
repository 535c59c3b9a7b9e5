#include "FileDialogProbe.h"
#include "FtpFolder.h"
#include "MarkingTranslator.h"
#include "TestMain.h"

#include "ui_QZelFileDialog.h"

#include <QTemporaryDir>

Q_DECLARE_METATYPE(QMargins)

namespace {

// Has a slot that follows Qt's naming, so that a form connects it by itself.
class DialogWithSlot : public QDialog
{
    Q_OBJECT

public:
    int backClicks = 0;

public Q_SLOTS:
    void on_btn_Back_clicked() { ++backClicks; }
};

constexpr int Unlimited = QWIDGETSIZE_MAX;
const QSize NoMinimum(0, 0);
const QSize NoMaximum(Unlimited, Unlimited);

} // namespace

class tst_QZelFileDialog_form : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFormHasOneMemberForEachPartInOrder();
    void theFormNamesADialogWithoutName();
    void theFormKeepsTheNameOfADialog();
    void everyPartIsNamedAfterItsMember();
    void everyWidgetIsMadeAsTheStyleSheetsExpect_data();
    void everyWidgetIsMadeAsTheStyleSheetsExpect();
    void theFormSetsNoStretch();
    void theDialogIsATitleStripFourRowsAndNothingElse();
    void theTitleStripHasTitleSpacerAndCloseButton();
    void theNavigationRowHasThreeButtonsAndThePath();
    void theSplitterHasTreeAndListing();
    void theNameRowStartsWithASpacer();
    void theBottomRowStartsWithASpacer();
    void layoutsKeepTheirMarginsAndSpacings_data();
    void layoutsKeepTheirMarginsAndSpacings();
    void itemsHaveNoStretchAndNoAlignment();
    void theTitleIsSmallAndInTheHouseFont();
    void titleStripStyleSheetsAreEmpty();
    void textsAreTheirKeysWithoutTranslation();
    void everyTextIsTranslatedInTheFormsContext();
    void slotsNamedAfterAPartAreConnected();
    void theDialogOpensAtItsSize();
    void resizingChangesPathSplitterAndSpacersOnly();

private:
    template <typename T>
    static T *itemAt(const QLayout *layout, int index);
    static void compareSpacer(QLayout *layout, int index, const QSize &hint);
};

// A null pointer when the item is of another kind.
template <typename T>
T *tst_QZelFileDialog_form::itemAt(const QLayout *layout, int index)
{
    QLayoutItem *item = layout->itemAt(index);
    return item ? qobject_cast<T *>(item->widget()) : nullptr;
}

void tst_QZelFileDialog_form::compareSpacer(QLayout *layout, int index, const QSize &hint)
{
    QSpacerItem *spacer = layout->itemAt(index)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), hint);
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
}

void tst_QZelFileDialog_form::theFormHasOneMemberForEachPartInOrder()
{
    const Ui::QZelFileDialogClass ui = {};
    const QVector<const void *> members {
        &ui.verticalLayout, &ui.wgt_TitleBar,   &ui.horizontalLayout_2, &ui.label_title,
        &ui.spacer_Title,   &ui.btn_Close,      &ui.horizontalLayout,   &ui.btn_Back,
        &ui.btn_Forward,    &ui.btn_MainPage,   &ui.let_FilePath,       &ui.splitter,
        &ui.treeV_FileTree, &ui.treeV_FileList, &ui.horizontalLayout_3, &ui.spacer_FileName,
        &ui.let_FileName,   &ui.cbx_FileType,   &ui.wgt_Bottom,         &ui.widget1,
        &ui.spacer_Bottom,  &ui.btn_encOption,  &ui.btn_OpenSave,       &ui.btn_Cancel
    };
    const auto *const places = reinterpret_cast<const void *const *>(&ui);
    for (int i = 0; i < members.size(); ++i)
        QCOMPARE(members.at(i), static_cast<const void *>(places + i));
    QCOMPARE(int(sizeof(ui)), members.size() * int(sizeof(void *)));
}

void tst_QZelFileDialog_form::theFormNamesADialogWithoutName()
{
    FileDialogProbe dialog(nullptr, QString(), QString());
    QCOMPARE(dialog.objectName(), QStringLiteral("QZelFileDialogClass"));
    QDialog bare;
    Ui::QZelFileDialogClass().setupUi(&bare);
    QCOMPARE(bare.objectName(), QStringLiteral("QZelFileDialogClass"));
}

void tst_QZelFileDialog_form::theFormKeepsTheNameOfADialog()
{
    QDialog named;
    named.setObjectName(QStringLiteral("chooser"));
    Ui::QZelFileDialogClass().setupUi(&named);
    QCOMPARE(named.objectName(), QStringLiteral("chooser"));
}

void tst_QZelFileDialog_form::everyPartIsNamedAfterItsMember()
{
    QDialog bare;
    Ui::QZelFileDialogClass ui;
    ui.setupUi(&bare);
    QCOMPARE(ui.verticalLayout->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(ui.horizontalLayout->objectName(), QStringLiteral("horizontalLayout"));
    QCOMPARE(ui.horizontalLayout_2->objectName(), QStringLiteral("horizontalLayout_2"));
    QCOMPARE(ui.horizontalLayout_3->objectName(), QStringLiteral("horizontalLayout_3"));
    QCOMPARE(ui.widget1->objectName(), QStringLiteral("widget1"));
    QCOMPARE(bare.layout(), ui.verticalLayout);
    QCOMPARE(ui.wgt_TitleBar->layout(), ui.horizontalLayout_2);
    QCOMPARE(ui.wgt_Bottom->layout(), ui.widget1);
}

void tst_QZelFileDialog_form::everyWidgetIsMadeAsTheStyleSheetsExpect_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("parentName");
    QTest::addColumn<QSizePolicy>("policy");
    QTest::addColumn<QSize>("minimum");
    QTest::addColumn<QSize>("maximum");
    QTest::addColumn<int>("focus");

    const QString dialog = QStringLiteral("QZelFileDialogClass");
    const QString strip = QStringLiteral("wgt_TitleBar");
    const QString bottom = QStringLiteral("wgt_Bottom");
    const QString splitter = QStringLiteral("splitter");
    const QSize button(64, 24);
    const auto add = [](const char *name, const char *className, const QString &parent,
                        const QSizePolicy &policy, const QSize &minimum, const QSize &maximum,
                        Qt::FocusPolicy focus) {
        QTest::newRow(name) << QString::fromLatin1(className) << parent << policy << minimum
                            << maximum << int(focus);
    };
    const auto policy = [](QSizePolicy::Policy horizontal, QSizePolicy::Policy vertical) {
        return QSizePolicy(horizontal, vertical);
    };
    const QSizePolicy title = policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    const QSizePolicy push = QPushButton().sizePolicy();
    const QSizePolicy view = policy(QSizePolicy::Preferred, QSizePolicy::Expanding);

    add("wgt_TitleBar", "QWidget", dialog, title, { 0, 32 }, { Unlimited, 32 }, Qt::ClickFocus);
    add("label_title", "QLabel", strip, title, { 0, 32 }, { Unlimited, 32 }, Qt::ClickFocus);
    add("btn_Close", "QPushButton", strip, policy(QSizePolicy::Fixed, QSizePolicy::Fixed),
        { 25, 25 }, { 25, 25 }, Qt::NoFocus);
    add("btn_Back", "QPushButton", dialog, push, button, NoMaximum, Qt::NoFocus);
    add("btn_Forward", "QPushButton", dialog, push, button, NoMaximum, Qt::NoFocus);
    add("btn_MainPage", "QPushButton", dialog, push, button, NoMaximum, Qt::NoFocus);
    add("let_FilePath", "QLineEdit", dialog, policy(QSizePolicy::Expanding, QSizePolicy::Fixed),
        NoMinimum, NoMaximum, Qt::StrongFocus);
    add("splitter", "QSplitter", dialog, view, NoMinimum, NoMaximum, Qt::NoFocus);
    add("treeV_FileTree", "QTreeView", splitter, view, NoMinimum, NoMaximum, Qt::StrongFocus);
    add("treeV_FileList", "QTreeView", splitter, QTreeView().sizePolicy(), NoMinimum, NoMaximum,
        Qt::StrongFocus);
    add("let_FileName", "QLineEdit", dialog, QLineEdit().sizePolicy(), { 475, 0 }, NoMaximum,
        Qt::StrongFocus);
    add("cbx_FileType", "QComboBox", dialog, QComboBox().sizePolicy(), { 190, 0 }, NoMaximum,
        QComboBox().focusPolicy());
    add("wgt_Bottom", "QWidget", dialog, QWidget().sizePolicy(), NoMinimum, NoMaximum, Qt::NoFocus);
    add("btn_encOption", "QPushButton", bottom, push, button, NoMaximum, Qt::NoFocus);
    add("btn_OpenSave", "QPushButton", bottom, push, button, NoMaximum, Qt::NoFocus);
    add("btn_Cancel", "QPushButton", bottom, push, button, NoMaximum, Qt::NoFocus);
}

// The bare form: the dialog gives its combo box and its panes some more.
void tst_QZelFileDialog_form::everyWidgetIsMadeAsTheStyleSheetsExpect()
{
    QFETCH(QString, className);
    QFETCH(QString, parentName);
    QFETCH(QSizePolicy, policy);
    QFETCH(QSize, minimum);
    QFETCH(QSize, maximum);
    QFETCH(int, focus);

    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QDialog bare;
    Ui::QZelFileDialogClass().setupUi(&bare);
    const auto *widget = bare.findChild<QWidget *>(name);
    QVERIFY(widget);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), className);
    QCOMPARE(widget->parentWidget()->objectName(), parentName);
    QCOMPARE(widget->sizePolicy(), policy);
    QCOMPARE(widget->minimumSize(), minimum);
    QCOMPARE(widget->maximumSize(), maximum);
    QCOMPARE(int(widget->focusPolicy()), focus);

    // The dialog's form is this one.
    const FileDialogProbe dialog(nullptr, QString(), QString());
    const auto *inDialog = dialog.part<QWidget>(name);
    QVERIFY(inDialog);
    QCOMPARE(inDialog->metaObject(), widget->metaObject());
    QCOMPARE(inDialog->parentWidget()->objectName(), parentName);
    QCOMPARE(inDialog->minimumSize(), minimum);
    QCOMPARE(inDialog->maximumSize(), maximum);
    if (name != QLatin1String("cbx_FileType"))
        QCOMPARE(int(inDialog->focusPolicy()), focus);
}

void tst_QZelFileDialog_form::theFormSetsNoStretch()
{
    QDialog bare;
    Ui::QZelFileDialogClass().setupUi(&bare);
    const QList<QWidget *> widgets = bare.findChildren<QWidget *>();
    QVERIFY(widgets.size() >= 16);
    for (const QWidget *widget : widgets) {
        QCOMPARE(widget->sizePolicy().horizontalStretch(), 0);
        QCOMPARE(widget->sizePolicy().verticalStretch(), 0);
    }
}

void tst_QZelFileDialog_form::theDialogIsATitleStripFourRowsAndNothingElse()
{
    const FileDialogProbe dialog(nullptr, QString(), QString());
    auto *rows = qobject_cast<QVBoxLayout *>(dialog.layout());
    QVERIFY(rows);
    QCOMPARE(rows->count(), 5);
    QCOMPARE(itemAt<QWidget>(rows, 0), dialog.part<QWidget>(QStringLiteral("wgt_TitleBar")));
    QCOMPARE(rows->itemAt(1)->layout()->objectName(), QStringLiteral("horizontalLayout"));
    QCOMPARE(itemAt<QSplitter>(rows, 2), dialog.part<QSplitter>(QStringLiteral("splitter")));
    QCOMPARE(rows->itemAt(3)->layout()->objectName(), QStringLiteral("horizontalLayout_3"));
    QCOMPARE(itemAt<QWidget>(rows, 4), dialog.part<QWidget>(QStringLiteral("wgt_Bottom")));
}

void tst_QZelFileDialog_form::theTitleStripHasTitleSpacerAndCloseButton()
{
    const FileDialogProbe dialog(nullptr, QString(), QString());
    auto *row = qobject_cast<QHBoxLayout *>(
            dialog.part<QWidget>(QStringLiteral("wgt_TitleBar"))->layout());
    QVERIFY(row);
    QCOMPARE(row->count(), 3);
    QCOMPARE(itemAt<QLabel>(row, 0), dialog.part<QLabel>(QStringLiteral("label_title")));
    compareSpacer(row, 1, { 928, 20 });
    QCOMPARE(itemAt<QPushButton>(row, 2), dialog.button(QStringLiteral("btn_Close")));
}

void tst_QZelFileDialog_form::theNavigationRowHasThreeButtonsAndThePath()
{
    const FileDialogProbe dialog(nullptr, QString(), QString());
    auto *row = dialog.findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout"));
    QVERIFY(row);
    QCOMPARE(row->count(), 4);
    QCOMPARE(itemAt<QPushButton>(row, 0), dialog.button(QStringLiteral("btn_Back")));
    QCOMPARE(itemAt<QPushButton>(row, 1), dialog.button(QStringLiteral("btn_Forward")));
    QCOMPARE(itemAt<QPushButton>(row, 2), dialog.button(QStringLiteral("btn_MainPage")));
    QCOMPARE(itemAt<QLineEdit>(row, 3), dialog.pathEdit());
}

void tst_QZelFileDialog_form::theSplitterHasTreeAndListing()
{
    const FileDialogProbe dialog(nullptr, QString(), QString());
    const auto *splitter = dialog.part<QSplitter>(QStringLiteral("splitter"));
    QCOMPARE(splitter->count(), 2);
    QCOMPARE(splitter->widget(0), dialog.tree());
    QCOMPARE(splitter->widget(1), dialog.list());
    QCOMPARE(splitter->orientation(), Qt::Horizontal);
    QCOMPARE(splitter->handleWidth(), 3);
}

void tst_QZelFileDialog_form::theNameRowStartsWithASpacer()
{
    const FileDialogProbe dialog(nullptr, QString(), QString());
    auto *row = dialog.findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout_3"));
    QVERIFY(row);
    QCOMPARE(row->count(), 3);
    compareSpacer(row, 0, { 40, 20 });
    QCOMPARE(itemAt<QLineEdit>(row, 1), dialog.nameEdit());
    QCOMPARE(itemAt<QComboBox>(row, 2), dialog.filterBox());
}

void tst_QZelFileDialog_form::theBottomRowStartsWithASpacer()
{
    const FileDialogProbe dialog(nullptr, QString(), QString());
    auto *row = qobject_cast<QHBoxLayout *>(
            dialog.part<QWidget>(QStringLiteral("wgt_Bottom"))->layout());
    QVERIFY(row);
    QCOMPARE(row->count(), 4);
    compareSpacer(row, 0, { 131, 31 });
    QCOMPARE(itemAt<QPushButton>(row, 1), dialog.button(QStringLiteral("btn_encOption")));
    QCOMPARE(itemAt<QPushButton>(row, 2), dialog.button(QStringLiteral("btn_OpenSave")));
    QCOMPARE(itemAt<QPushButton>(row, 3), dialog.button(QStringLiteral("btn_Cancel")));
}

void tst_QZelFileDialog_form::layoutsKeepTheirMarginsAndSpacings_data()
{
    QTest::addColumn<int>("spacing");
    QTest::addColumn<QMargins>("margins");
    QTest::newRow("verticalLayout") << 0 << QMargins(0, 0, 0, 0);
    QTest::newRow("horizontalLayout_2") << 6 << QMargins(9, 0, 9, 0);
    QTest::newRow("horizontalLayout") << 6 << QMargins(0, 0, 0, 0);
    QTest::newRow("horizontalLayout_3") << 6 << QMargins(0, 0, 0, 0);
    QTest::newRow("widget1") << 10 << QMargins(0, 1, 15, 1);
}

void tst_QZelFileDialog_form::layoutsKeepTheirMarginsAndSpacings()
{
    QFETCH(int, spacing);
    QFETCH(QMargins, margins);
    const FileDialogProbe dialog(nullptr, QString(), QString());
    const auto *layout = dialog.findChild<QLayout *>(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), spacing);
    QCOMPARE(layout->contentsMargins(), margins);
}

void tst_QZelFileDialog_form::itemsHaveNoStretchAndNoAlignment()
{
    const FileDialogProbe dialog(nullptr, QString(), QString());
    const auto names = { "verticalLayout", "horizontalLayout_2", "horizontalLayout",
                         "horizontalLayout_3", "widget1" };
    for (const char *name : names) {
        const auto *layout = dialog.findChild<QBoxLayout *>(QString::fromLatin1(name));
        QVERIFY(layout && layout->count() > 0);
        for (int i = 0; i < layout->count(); ++i) {
            QCOMPARE(layout->stretch(i), 0);
            QCOMPARE(int(layout->itemAt(i)->alignment()), 0);
        }
    }
}

void tst_QZelFileDialog_form::theTitleIsSmallAndInTheHouseFont()
{
    const FileDialogProbe dialog(nullptr, QString(), QString());
    const QFont font = dialog.part<QLabel>(QStringLiteral("label_title"))->font();
    QCOMPARE(font.family(), QStringLiteral("微软雅黑"));
    QCOMPARE(font.pointSize(), 10);
}

// Set to "", which leaves the look to the host's style sheet.
void tst_QZelFileDialog_form::titleStripStyleSheetsAreEmpty()
{
    const FileDialogProbe dialog(nullptr, QString(), QString());
    for (const char *name : { "wgt_TitleBar", "label_title", "btn_Close" })
        QCOMPARE(dialog.part<QWidget>(QString::fromLatin1(name))->styleSheet(), QString());
}

void tst_QZelFileDialog_form::textsAreTheirKeysWithoutTranslation()
{
    QDialog bare;
    Ui::QZelFileDialogClass ui;
    ui.setupUi(&bare);
    QCOMPARE(bare.windowTitle(), QStringLiteral("QZelFileDialog"));
    QCOMPARE(ui.label_title->text(), QStringLiteral("OpenSave"));
    QCOMPARE(ui.btn_Close->text(), QString());
    QCOMPARE(ui.btn_Back->text(), QStringLiteral("Back"));
    QCOMPARE(ui.btn_Forward->text(), QStringLiteral("Forward"));
    QCOMPARE(ui.btn_MainPage->text(), QStringLiteral("MainPage"));
    QCOMPARE(ui.btn_encOption->text(), QStringLiteral("EncryptionOption"));
    QCOMPARE(ui.btn_OpenSave->text(), QString());
    QCOMPARE(ui.btn_Cancel->text(), QStringLiteral("Cancel"));
}

void tst_QZelFileDialog_form::everyTextIsTranslatedInTheFormsContext()
{
    QDialog bare;
    Ui::QZelFileDialogClass ui;
    ui.setupUi(&bare);
    ui.btn_Close->setText(QStringLiteral("x"));
    ui.btn_OpenSave->setText(QStringLiteral("x"));

    const MarkingTranslator marker;
    const FileDialogProbe dialog(nullptr, QString(), QString());
    ui.retranslateUi(&bare);

    const auto translated = [](const char *key) {
        return QStringLiteral("[QZelFileDialogClass|%1]").arg(QLatin1String(key));
    };
    QCOMPARE(dialog.windowTitle(), translated("QZelFileDialog"));
    QCOMPARE(ui.label_title->text(), translated("OpenSave"));
    QCOMPARE(ui.btn_Close->text(), QString());
    QCOMPARE(dialog.button(QStringLiteral("btn_Back"))->text(), translated("Back"));
    QCOMPARE(dialog.button(QStringLiteral("btn_Forward"))->text(), translated("Forward"));
    QCOMPARE(dialog.button(QStringLiteral("btn_MainPage"))->text(), translated("MainPage"));
    QCOMPARE(dialog.button(QStringLiteral("btn_encOption"))->text(),
             translated("EncryptionOption"));
    QCOMPARE(ui.btn_OpenSave->text(), QString());
    QCOMPARE(dialog.button(QStringLiteral("btn_Cancel"))->text(), translated("Cancel"));
}

void tst_QZelFileDialog_form::slotsNamedAfterAPartAreConnected()
{
    DialogWithSlot dialog;
    Ui::QZelFileDialogClass ui;
    ui.setupUi(&dialog);
    ui.btn_Back->click();
    QCOMPARE(dialog.backClicks, 1);
}

void tst_QZelFileDialog_form::theDialogOpensAtItsSize()
{
    const FileDialogProbe dialog(nullptr, QString(), QString());
    QCOMPARE(dialog.size(), QSize(1000, 550));
}

void tst_QZelFileDialog_form::resizingChangesPathSplitterAndSpacersOnly()
{
    FileDialogProbe dialog(nullptr, QStringLiteral("Save"), QDir::tempPath(), QString(),
                           QZelFileDialog::SaveEncryptedFile);
    QVERIFY(dialog.showAndWait());
    const QStringList fixed { QStringLiteral("label_title"),  QStringLiteral("btn_Close"),
                              QStringLiteral("let_FileName"), QStringLiteral("btn_Back"),
                              QStringLiteral("btn_Forward"),  QStringLiteral("btn_MainPage"),
                              QStringLiteral("cbx_FileType"), QStringLiteral("btn_encOption"),
                              QStringLiteral("btn_OpenSave"), QStringLiteral("btn_Cancel") };
    QMap<QString, QSize> before;
    for (const QString &name : fixed)
        before.insert(name, dialog.part<QWidget>(name)->size());
    const int pathWidth = dialog.pathEdit()->width();
    const auto *splitter = dialog.part<QSplitter>(QStringLiteral("splitter"));
    const QSize splitterSize = splitter->size();

    dialog.resize(dialog.size() + QSize(100, 90));
    QTRY_COMPARE(dialog.pathEdit()->width(), pathWidth + 100);
    for (const QString &name : fixed)
        QCOMPARE(dialog.part<QWidget>(name)->size(), before.value(name));
    QCOMPARE(splitter->size(), splitterSize + QSize(100, 90));
    QCOMPARE(dialog.part<QWidget>(QStringLiteral("wgt_TitleBar"))->height(), 32);
    QCOMPARE(dialog.button(QStringLiteral("btn_Close"))->size(), QSize(25, 25));
    dialog.close();
}

QTARNKIT_TEST_MAIN(tst_QZelFileDialog_form)
#include "tst_QZelFileDialog_form.moc"
