#include "AllClasses.h"
#include "TestMain.h"

#include <QFileSystemModel>
#include <QPersistentModelIndex>
#include <QScopedPointer>

#include <memory>
#include <type_traits>
#include <vector>

class Ui_Form;
class Ui_QZelFileDialogClass;
class QAction;
class QMenu;
class QSlider;
class QSpinBox;
class QTimer;

// Derived classes of hosts reach the members, so names, types and order are part of the interface.
// Names and types are checked as this file is compiled, the order by the places in a live object.

namespace {

struct Member
{
    const char *name;
    const void *place;
    size_t size;
    size_t alignment;
};

using Members = std::vector<Member>;

template <typename Expected, typename Actual>
Member member(const char *name, const Actual &value)
{
    static_assert(std::is_same_v<Expected, Actual>, "a member has changed its type");
    // NOLINTNEXTLINE(bugprone-sizeof-expression): of a pointer it is meant to be the pointer's size
    return { name, std::addressof(value), sizeof(Actual), alignof(Actual) };
}

#define MEMBER(Type, name) member<Type>(#name, this->name)

class BaseWindows : public QZelBaseWindows
{
public:
    Members members() const
    {
        return { MEMBER(int, padding),           MEMBER(bool, moveEnable),
                 MEMBER(bool, resizeEnable),     MEMBER(QWidget *, titleBar),
                 MEMBER(bool, isPressed),        MEMBER(QPoint, pressPoint),
                 MEMBER(QRect, pressRect),       MEMBER(QList<bool>, pressedArea),
                 MEMBER(QList<QRect>, areaRects) };
    }
};

class TitleBar : public QTitleBar
{
public:
    Members members() const
    {
        return { MEMBER(QLabel *, titleLabel),      MEMBER(QPushButton *, closeButton),
                 MEMBER(QHBoxLayout *, mainLayout), MEMBER(bool, isPressed),
                 MEMBER(QPoint, lastGlobalPos),     MEMBER(QColor, themeColor) };
    }
};

class Dialog : public QZelDialog
{
public:
    Dialog()
        : QZelDialog(nullptr)
    {}

    Members members() const
    {
        return { MEMBER(QLabel *, lbl_Title),       MEMBER(QPushButton *, btn_Close),
                 MEMBER(QToolButton *, btn_Max),    MEMBER(QPushButton *, btn_Ok),
                 MEMBER(QPushButton *, btn_Cancel), MEMBER(QVBoxLayout *, mainLayout),
                 MEMBER(bool, isPressed),           MEMBER(QPoint, dragOffset),
                 MEMBER(QWidget *, wgt_Bottom),     MEMBER(QWidget *, wgt_TitleBar),
                 MEMBER(bool, isMaximized),         MEMBER(QRect, normalGeometry) };
    }
};

class MessageBox : public QTarnKit::QUIMessageBox
{
public:
    Members members() const
    {
        return { MEMBER(int, closeSec),
                 MEMBER(int, currentSec),
                 MEMBER(QWidget *, widgetTitle),
                 MEMBER(QLabel *, labTitle),
                 MEMBER(QLabel *, labIco),
                 MEMBER(QTextEdit *, txtInfo),
                 MEMBER(QWidget *, widgetBtns),
                 MEMBER(QPushButton *, btnOk),
                 MEMBER(QPushButton *, btnCancel),
                 MEMBER(QPushButton *, btnYes),
                 MEMBER(QPushButton *, btnNo),
                 MEMBER(QList<QPushButton *>, custButtons),
                 MEMBER(int, custIndex),
                 MEMBER(int, boxWidth),
                 MEMBER(int, boxHeight) };
    }
};

class IntSpinBox : public QTarnKit::QZelIntSpinBox
{
public:
    Members members() const
    {
        return { MEMBER(QSlider *, slider), MEMBER(QSpinBox *, spinBox), MEMBER(int, minValue),
                 MEMBER(int, maxValue) };
    }
};

class FileDialog : public QZelFileDialog
{
public:
    FileDialog()
        : QZelFileDialog(nullptr, QString(), QStringLiteral("/"))
    {}

    Members members() const
    {
        return { MEMBER(OperateMode, operateMode),
                 MEMBER(QZelEncDialog *, encDialog),
                 MEMBER(QFileSystemModel *, fileModel),
                 MEMBER(Ui_QZelFileDialogClass *, ui),
                 MEMBER(QPersistentModelIndex, rootIndex),
                 MEMBER(bool, titlePressed),
                 MEMBER(QPoint, dragOffset),
                 MEMBER(QString, caption),
                 MEMBER(QString, dirPath),
                 MEMBER(QStringList, filterList),
                 MEMBER(QString, filePath),
                 MEMBER(QString, currentPath),
                 MEMBER(QVector<QString>, backHistory),
                 MEMBER(QVector<QString>, forwardHistory),
                 MEMBER(QString, password),
                 MEMBER(QMenu *, folderMenu),
                 MEMBER(QMenu *, blankMenu),
                 MEMBER(QMenu *, fileMenu),
                 MEMBER(QAction *, newAction),
                 MEMBER(QAction *, renameFolderAction),
                 MEMBER(QAction *, deleteAction),
                 MEMBER(QAction *, renameFileAction),
                 MEMBER(QPersistentModelIndex, treeMenuIndex),
                 MEMBER(QPersistentModelIndex, listMenuIndex),
                 MEMBER(QStringList, filePaths),
                 MEMBER(QString, ftpSubPath),
                 MEMBER(QString, lastPath) };
    }
};

class FileManager : public QZelFileManagerWidget
{
public:
    FileManager()
        : QZelFileManagerWidget(nullptr)
    {}

    Members members() const
    {
        return { MEMBER(QFileSystemModel *, fileModel), MEMBER(Ui_Form *, ui),
                 MEMBER(QPersistentModelIndex, rootIndex), MEMBER(bool, dragging),
                 MEMBER(QPoint, dragOffset) };
    }
};

class EncDialog : public QZelEncDialog
{
public:
    EncDialog()
        : QZelEncDialog(nullptr)
    {}

    Members members() const
    {
        return { MEMBER(QLabel *, lbl_PwdTitle),   MEMBER(QLabel *, lbl_ConfirmTitle),
                 MEMBER(QLineEdit *, let_Pwd),     MEMBER(QLineEdit *, let_ConfirmPwd),
                 MEMBER(QCheckBox *, chk_ShowPwd), MEMBER(QCheckBox *, chk_ShowConfirmPwd),
                 MEMBER(QLabel *, lbl_Msg),        MEMBER(QWidget *, wgt_ConfirmRect),
                 MEMBER(QString, reserved) };
    }
};

class FolderNameDialog : public QZelFolderNameDialog
{
public:
    FolderNameDialog()
        : QZelFolderNameDialog(nullptr)
    {}

    Members members() const
    {
        return { MEMBER(QLabel *, lbl_FolderName), MEMBER(QLineEdit *, let_FolderName) };
    }
};

class WaitingDialog : public QWaitingDialog
{
public:
    WaitingDialog()
        : QWaitingDialog(nullptr)
    {}

    Members members() const
    {
        return { MEMBER(QLabel *, iconLabel),
                 MEMBER(QLabel *, infoLabel),
                 MEMBER(::ProgressBar *, progressBar),
                 MEMBER(QVBoxLayout *, mainLayout),
                 MEMBER(QTimer *, timer),
                 MEMBER(int, frameIndex),
                 MEMBER(QPixmap, loadingPixmap),
                 MEMBER(QVector<QPixmap>, frames) };
    }
};

class Bar : public ProgressBar
{
public:
    Bar()
        : ProgressBar(nullptr)
    {}

    Members members() const
    {
        return { MEMBER(int, minimum), MEMBER(int, maximum), MEMBER(int, value) };
    }
};

class CustomBar : public CustomProgressBar
{
public:
    CustomBar()
        : CustomProgressBar(nullptr)
    {}

    Members members() const { return { MEMBER(int, progress) }; }
};

class UnlockWidget : public ClientUnlockWidget
{
public:
    UnlockWidget()
        : ClientUnlockWidget(nullptr)
    {}

    Members members() const
    {
        return { MEMBER(QWidget *, titleWidget),      MEMBER(QLabel *, titleLabel),
                 MEMBER(QLabel *, iconLabel),         MEMBER(QLabel *, msgLabel),
                 MEMBER(QPushButton *, unlockButton), MEMBER(QString, ip),
                 MEMBER(bool, showPending),           MEMBER(bool, reserved) };
    }
};

size_t roundedUp(size_t offset, size_t alignment)
{
    return (offset + alignment - 1) / alignment * alignment;
}

// Nothing before, between or behind the members: what a class holds beyond its base is this list.
template <typename Class, typename Base, typename Probe>
void verifyMembers()
{
    const QScopedPointer<Probe> object(new Probe);
    const auto *start = reinterpret_cast<const char *>(static_cast<const Class *>(object.data()));
    size_t end = sizeof(Base);
    const Members members = object->members();
    for (const Member &member : members) {
        const size_t offset = size_t(static_cast<const char *>(member.place) - start);
        QVERIFY2(offset == roundedUp(end, member.alignment), member.name);
        end = offset + member.size;
    }
    QCOMPARE(sizeof(Class), roundedUp(end, alignof(Class)));
}

} // namespace

class tst_Members : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void baseWindows() { verifyMembers<QZelBaseWindows, QMainWindow, BaseWindows>(); }
    void titleBar() { verifyMembers<QTitleBar, QLabel, TitleBar>(); }
    void dialog() { verifyMembers<QZelDialog, QDialog, Dialog>(); }
    void messageBox() { verifyMembers<QTarnKit::QUIMessageBox, QDialog, MessageBox>(); }
    void intSpinBox() { verifyMembers<QTarnKit::QZelIntSpinBox, QWidget, IntSpinBox>(); }
    void fileDialog() { verifyMembers<QZelFileDialog, QDialog, FileDialog>(); }
    void fileManager() { verifyMembers<QZelFileManagerWidget, QDialog, FileManager>(); }
    void encDialog() { verifyMembers<QZelEncDialog, QZelDialog, EncDialog>(); }
    void folderNameDialog() { verifyMembers<QZelFolderNameDialog, QZelDialog, FolderNameDialog>(); }
    void waitingDialog() { verifyMembers<QWaitingDialog, QDialog, WaitingDialog>(); }
    void progressBar() { verifyMembers<ProgressBar, QWidget, Bar>(); }
    void customProgressBar() { verifyMembers<CustomProgressBar, QWidget, CustomBar>(); }
    void unlockWidget() { verifyMembers<ClientUnlockWidget, QWidget, UnlockWidget>(); }
    void passwordInputAndDelegatesAddNone();
};

void tst_Members::passwordInputAndDelegatesAddNone()
{
    QCOMPARE(sizeof(QZelPwdInputDialog), sizeof(QZelEncDialog));
    QCOMPARE(sizeof(DirItemStyledDelegate), sizeof(QStyledItemDelegate));
    QCOMPARE(sizeof(ColumnToolTipDelegate), sizeof(QStyledItemDelegate));
}

QTARNKIT_TEST_MAIN(tst_Members)
#include "tst_Members.moc"
