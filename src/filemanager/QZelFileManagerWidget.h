#ifndef QZELFILEMANAGERWIDGET_H
#define QZELFILEMANAGERWIDGET_H

#include "QTarnKitGlobal.h"

#include <QDialog>
#include <QPersistentModelIndex>
#include <QPoint>

class QFileSystemModel;
class QModelIndex;
class Ui_Form;

/**
 * A frameless dialog in which the user browses and deletes what lies in the device's FTP folder
 * "/root/zeltempfiles/ftp".
 *
 * @code
 * const QPointer<QZelFileManagerWidget> manager = new QZelFileManagerWidget(this);
 * manager->exec();
 * delete manager; // null when it went with its parent
 * @endcode
 *
 * It emits nothing and returns nothing; the close button or the application closes it. Deleting
 * asks once and then removes files and whole folders. A symbolic link goes without its target, and
 * a folder above the FTP folder stays. Failures are not reported. Without the folder the views show
 * the process's working directory, as QFileSystemModel has no other root then.
 *
 * Object names for a style sheet: "wgt_TitleBar" with "label" and "btn_Close"; "btn_MainPage",
 * "btn_UpPage"; "splitter" with "treeV_FileTree" and "listV_FileList"; "wgt_Bottom" with
 * "btn_Delete".
 */
class QTARNKIT_EXPORT QZelFileManagerWidget : public QDialog
{
    Q_OBJECT

public:
    /// Creates the dialog over the FTP folder, which need not exist; @p parent may be null.
    explicit QZelFileManagerWidget(QWidget *parent);
    ~QZelFileManagerWidget() override;

    /// Sets up the model and the views; called once by the constructor.
    void Init();

    /// Connects views and buttons; called once by the constructor.
    void InitConnects();

    /// Drags the window by its title strip, which swallows presses of every button.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    QFileSystemModel *fileModel = nullptr; ///< shared by tree and list
    Ui_Form *ui = nullptr; ///< owned
    QPersistentModelIndex rootIndex; ///< of the FTP folder, which may vanish
    bool dragging = false; ///< the left button is down on the title strip
    QPoint dragOffset; ///< pointer's screen position minus the frame's corner, at the press

private:
    void setListRoot(const QModelIndex &index);
    void onListDoubleClicked(const QModelIndex &index);
    void onMainPage();
    void onUpPage();
    void onDelete();
    void removeEntry(const QModelIndex &index);
};

#endif // QZELFILEMANAGERWIDGET_H
