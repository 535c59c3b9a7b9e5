#include "MarkingTranslator.h"
#include "ShownManager.h"
#include "TestMain.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>

#include <memory>

namespace {

// A widget's look at itself, to compare with one that nothing was set on.
QString policyOf(const QWidget *widget)
{
    const QSizePolicy policy = widget->sizePolicy();
    return QStringLiteral("%1x%2 %3")
            .arg(policy.horizontalPolicy())
            .arg(policy.verticalPolicy())
            .arg(policy.hasHeightForWidth());
}

QString policy(QSizePolicy::Policy horizontal, QSizePolicy::Policy vertical)
{
    return QStringLiteral("%1x%2 0").arg(horizontal).arg(vertical);
}

template <typename T>
T *child(const QObject *parent, const char *name)
{
    T *found = parent->findChild<T *>(QLatin1String(name));
    if (!found)
        qFatal("there is no %s", name);
    return found;
}

// The names of a layout's items in order; a spacer's is its size hint and policies.
QStringList itemsOf(const QLayout *layout)
{
    QStringList items;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (item->widget())
            items.append(item->widget()->objectName());
        else if (item->layout())
            items.append(item->layout()->objectName());
        else if (QSpacerItem *spacer = item->spacerItem())
            items.append(QStringLiteral("%1x%2 %3x%4")
                                 .arg(spacer->sizeHint().width())
                                 .arg(spacer->sizeHint().height())
                                 .arg(spacer->sizePolicy().horizontalPolicy())
                                 .arg(spacer->sizePolicy().verticalPolicy()));
        if (item->alignment() || static_cast<const QBoxLayout *>(layout)->stretch(i))
            items.last().append(QStringLiteral(" stretched or aligned"));
    }
    return items;
}

QString spacer(int width, int height)
{
    return QStringLiteral("%1x%2 %3x%4")
            .arg(width)
            .arg(height)
            .arg(QSizePolicy::Expanding)
            .arg(QSizePolicy::Minimum);
}

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

class tst_QZelFileManagerWidget_form : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void window();
    void childrenComeInOrder();
    void rows();
    void titleStrip();
    void navigationRow();
    void panes();
    void bottomRow();
    void textsWithoutATranslation();
    void textsAreTranslatedInTheFormsContext();
    void stripAndCloseButtonKeepTheirSize();

private:
    QZelFileManagerWidget manager { nullptr };
};

void tst_QZelFileManagerWidget_form::window()
{
    QCOMPARE(manager.objectName(), s("Form"));
    QCOMPARE(manager.size(), QSize(913, 656));
    QCOMPARE(manager.styleSheet(), QString());
}

void tst_QZelFileManagerWidget_form::childrenComeInOrder()
{
    QStringList widgets;
    const auto children = manager.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *widget : children)
        widgets.append(widget->objectName());
    QCOMPARE(widgets, QStringList({ s("wgt_TitleBar"), s("btn_MainPage"), s("btn_UpPage"),
                                    s("splitter"), s("wgt_Bottom") }));
}

void tst_QZelFileManagerWidget_form::rows()
{
    auto *layout = qobject_cast<QVBoxLayout *>(manager.layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), s("verticalLayout"));
    QCOMPARE(layout->spacing(), 1);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(itemsOf(layout), QStringList({ s("wgt_TitleBar"), s("horizontalLayout"), s("splitter"),
                                            s("wgt_Bottom") }));
}

void tst_QZelFileManagerWidget_form::titleStrip()
{
    auto *strip = child<QWidget>(&manager, "wgt_TitleBar");
    QCOMPARE(strip->metaObject()->className(), "QWidget");
    QCOMPARE(strip->minimumSize(), QSize(0, 0));
    QCOMPARE(strip->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QCOMPARE(strip->styleSheet(), QString());
    QCOMPARE(policyOf(strip), policy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    QCOMPARE(strip->focusPolicy(), Qt::NoFocus);

    auto *layout = qobject_cast<QHBoxLayout *>(strip->layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), s("horizontalLayout_2"));
    QCOMPARE(itemsOf(layout), QStringList({ s("label"), spacer(928, 20), s("btn_Close") }));
    // Nothing is set: as in a layout that is left alone.
    QWidget other(&manager);
    const QHBoxLayout untouched(&other);
    QCOMPARE(layout->contentsMargins(), untouched.contentsMargins());
    QCOMPARE(layout->contentsMargins(), QMargins(9, 9, 9, 9));
    QCOMPARE(layout->spacing(), untouched.spacing());

    auto *label = child<QLabel>(strip, "label");
    QCOMPARE(label->font().family(), s("微软雅黑"));
    QCOMPARE(label->font().pointSize(), 10);
    QCOMPARE(label->styleSheet(), QString());
    QCOMPARE(policyOf(label), policyOf(std::make_unique<QLabel>().get()));

    auto *button = child<QPushButton>(strip, "btn_Close");
    QCOMPARE(policyOf(button), policy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(button->minimumSize(), QSize(25, 25));
    QCOMPARE(button->maximumSize(), QSize(25, 25));
    QCOMPARE(button->styleSheet(), QString());
    QCOMPARE(button->focusPolicy(), Qt::StrongFocus);
}

void tst_QZelFileManagerWidget_form::navigationRow()
{
    auto *layout = child<QHBoxLayout>(&manager, "horizontalLayout");
    QCOMPARE(layout->contentsMargins(), QMargins(9, 9, 9, 9));
    QCOMPARE(itemsOf(layout), QStringList({ s("btn_MainPage"), s("btn_UpPage"), spacer(40, 20) }));
    const QStringList names = { s("btn_MainPage"), s("btn_UpPage") };
    const QPushButton untouched;
    for (const QString &name : names) {
        auto *button = child<QPushButton>(&manager, qPrintable(name));
        QCOMPARE(button->parent(), &manager);
        QCOMPARE(button->minimumSize(), QSize(64, 24));
        QCOMPARE(button->maximumSize(), untouched.maximumSize());
        QCOMPARE(policyOf(button), policyOf(&untouched));
        QCOMPARE(button->focusPolicy(), Qt::StrongFocus);
    }
}

void tst_QZelFileManagerWidget_form::panes()
{
    auto *splitter = child<QSplitter>(&manager, "splitter");
    QCOMPARE(policyOf(splitter), policy(QSizePolicy::Preferred, QSizePolicy::Expanding));
    QCOMPARE(splitter->orientation(), Qt::Horizontal);
    QCOMPARE(splitter->handleWidth(), 3);
    QCOMPARE(splitter->count(), 2);
    QCOMPARE(splitter->widget(0), child<QTreeView>(&manager, "treeV_FileTree"));
    QCOMPARE(splitter->widget(1), child<QListView>(&manager, "listV_FileList"));
    for (int pane = 0; pane < 2; ++pane)
        QCOMPARE(policyOf(splitter->widget(pane)),
                 policy(QSizePolicy::Preferred, QSizePolicy::Expanding));
}

void tst_QZelFileManagerWidget_form::bottomRow()
{
    auto *row = child<QWidget>(&manager, "wgt_Bottom");
    QCOMPARE(row->metaObject()->className(), "QWidget");
    QCOMPARE(policyOf(row), policy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    auto *layout = qobject_cast<QHBoxLayout *>(row->layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), s("widget1"));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins(9, 1, 9, 1));
    QCOMPARE(itemsOf(layout), QStringList({ spacer(131, 31), s("btn_Delete") }));
    QCOMPARE(child<QPushButton>(row, "btn_Delete")->minimumSize(), QSize(64, 24));
}

void tst_QZelFileManagerWidget_form::textsWithoutATranslation()
{
    QCOMPARE(manager.windowTitle(), s("Form"));
    QCOMPARE(child<QLabel>(&manager, "label")->text(), s("FileManager"));
    QCOMPARE(child<QPushButton>(&manager, "btn_Close")->text(), QString());
    QCOMPARE(child<QPushButton>(&manager, "btn_MainPage")->text(), s("MainPage"));
    QCOMPARE(child<QPushButton>(&manager, "btn_UpPage")->text(), s("UpPage"));
    QCOMPARE(child<QPushButton>(&manager, "btn_Delete")->text(), s("Delete"));
}

void tst_QZelFileManagerWidget_form::textsAreTranslatedInTheFormsContext()
{
    const MarkingTranslator marker;
    const QZelFileManagerWidget translated(nullptr);
    QCOMPARE(translated.windowTitle(), s("[Form|Form]"));
    QCOMPARE(child<QLabel>(&translated, "label")->text(), s("[Form|FileManager]"));
    QCOMPARE(child<QPushButton>(&translated, "btn_Close")->text(), QString());
    QCOMPARE(child<QPushButton>(&translated, "btn_MainPage")->text(), s("[Form|MainPage]"));
    QCOMPARE(child<QPushButton>(&translated, "btn_UpPage")->text(), s("[Form|UpPage]"));
    QCOMPARE(child<QPushButton>(&translated, "btn_Delete")->text(), s("[Form|Delete]"));
}

void tst_QZelFileManagerWidget_form::stripAndCloseButtonKeepTheirSize()
{
    ShownManager shown;
    auto *strip = child<QWidget>(&shown, "wgt_TitleBar");
    const int height = strip->height();
    shown.resize(1100, 800);
    QTRY_COMPARE(strip->width(), 1100);
    QCOMPARE(strip->height(), height);
    QCOMPARE(child<QWidget>(&shown, "btn_Close")->size(), QSize(25, 25));
    QCOMPARE(child<QWidget>(&shown, "splitter")->width(), 1100);
}

QTARNKIT_TEST_MAIN(tst_QZelFileManagerWidget_form)

#include "tst_QZelFileManagerWidget_form.moc"
