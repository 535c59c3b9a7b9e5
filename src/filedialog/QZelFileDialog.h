#ifndef QZELFILEDIALOG_H
#define QZELFILEDIALOG_H

#include "QTarnKitGlobal.h"

#include <QDialog>
#include <QPersistentModelIndex>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QVector>

class QAction;
class QFileSystemModel;
class QMenu;
class QModelIndex;
class QZelEncDialog;
class Ui_QZelFileDialogClass;

/**
 * A frameless, always-on-top, window-modal file dialog: a folder tree, a listing, a history, name
 * filters, and menus to make, rename and delete folders and to rename files.
 *
 * Use the static functions; build the dialog by hand only for its signals:
 *
 * @code
 * const QString path = QZelFileDialog::getOpenFileName(this, tr("Open"), QDir::homePath(),
 *                                                      tr("Text (*.txt);;All (*)"));
 * if (!path.isEmpty()) load(path);
 * @endcode
 *
 * A filter is a label with patterns in parentheses, or the patterns alone; patterns are separated
 * by single spaces, filters by ";;". The caption is the title and the text of the OpenSave button.
 *
 * The start folder is the dialog's root: the path field shows what follows it ("/" for the start
 * folder itself), and a typed path is put after it. One that then does not exist changes nothing.
 *
 * The folder "/root/zeltempfiles/ftp/" is special: a start folder inside it opens the tree at that
 * folder's root, the folder of the last choice is restored there and only there, and no folder
 * above it can be typed into the path.
 *
 * Names are shown as they stand, markup included. Entries whose names are no text in the process's
 * encoding, pipes, sockets, devices and broken links are not listed; a chosen path need not be a
 * regular file, as its name may be typed.
 *
 * Object names for a style sheet: "wgt_TitleBar" with "label_title" and "btn_Close"; "btn_Back",
 * "btn_Forward", "btn_MainPage", "let_FilePath"; "splitter" with "treeV_FileTree" and
 * "treeV_FileList"; "let_FileName", "cbx_FileType"; "wgt_Bottom" with "btn_encOption",
 * "btn_OpenSave" and "btn_Cancel".
 */
class QTARNKIT_EXPORT QZelFileDialog : public QDialog
{
    Q_OBJECT

public:
    /// What the dialog is for.
    enum OperateMode {
        None = 0, ///< before a constructor assigns a mode
        OpenFile = 1, ///< one existing file
        SaveFile = 2, ///< a file name, perhaps a new one
        SaveEncryptedFile = 3, ///< the same, with an option to set a password
        SelectDirectory = 4, ///< an existing folder; only folders are listed
        OpenFiles = 5 ///< several existing files
    };

    /**
     * Creates a dialog for @p mode that starts in folder @p dir (with or without a trailing "/").
     * Without such a folder the listing starts at the process's working directory, with an empty
     * @p dir at the top of all folders.
     */
    QZelFileDialog(QWidget *parent, const QString &caption, const QString &dir,
                   const QString &filter, const OperateMode &mode);

    /// Creates a dialog that chooses a folder.
    QZelFileDialog(QWidget *parent, const QString &caption, const QString &dir);

    ~QZelFileDialog() override;

    /**
     * Each of the four runs a dialog and returns what was chosen, nothing when it was cancelled,
     * when the application quit or when @p parent was destroyed meanwhile. The out-arguments may be
     * null; they are written after a cancelled dialog too, and left alone only when @p parent was
     * destroyed. @p selectedFilter receives the whole text of the filter chosen last.
     */
    static QString getOpenFileName(QWidget *parent = nullptr, const QString &caption = QString(),
                                   const QString &dir = QString(),
                                   const QString &filter = QString(),
                                   QString *selectedFilter = nullptr);

    /// As getOpenFileName(), for any number of files; the list may be empty on success too.
    static QStringList getOpenFileNames(QWidget *parent = nullptr,
                                        const QString &caption = QString(),
                                        const QString &dir = QString(),
                                        const QString &filter = QString(),
                                        QString *selectedFilter = nullptr);

    /**
     * As getOpenFileName(), for a file to write. With @p encrypt the user may set a password, which
     * @p password receives, empty if none was set. Replacing an existing file has been confirmed;
     * that the folder is writable has not been checked.
     */
    static QString getSaveFileName(QWidget *parent = nullptr, const QString &caption = QString(),
                                   const QString &dir = QString(),
                                   const QString &filter = QString(),
                                   QString *selectedFilter = nullptr, bool encrypt = false,
                                   QString *password = nullptr);

    /**
     * As getOpenFileName(), for a folder. The path ends with "/" when the folder was reached by
     * double-click, home or as the start folder, and without one otherwise.
     */
    static QString getExistingDirectory(QWidget *parent = nullptr,
                                        const QString &caption = QString(),
                                        const QString &dir = QString());

    /// The chosen path. Every call remembers its folder in the settings.
    QString getFilePath();

    /// The selected files. A call with any remembers the first one's folder in the settings.
    QStringList getFilePaths();

    /**
     * Remembers the folder part of @p path in the settings, under a key that holds the filter.
     * Settings that cannot be written, or that someone else keeps locked, stay as they are; that is
     * not reported.
     */
    void recordLastPath(QString path);

    /// Applies the patterns of one filter text; other files are hidden from both views.
    void setFileFilter(QString filter);

    /// The text of the chosen filter, empty when there is none.
    QString getSelectedFilter();

    /// Whether a file or folder of this path exists; false for the empty path.
    bool fileExist(QString path);

    /// Whether @p child lies strictly below @p parent. The file system is not asked.
    bool isParentPath(const QString &parent, const QString &child);

    /// Drags the dialog by its title strip, which swallows presses of every button.
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Sets up controls, start folder, views and history; called once by the constructors.
    void Init();

    /// Builds the context menus; called once by Init().
    void InitMenu();

    /// Connects everything; called once by the constructors after Init().
    void InitConnects();

    /// Called last by the constructors: opens the start folder's sub-folder or the remembered
    /// folder and shows it in the tree.
    void expandedPath();

Q_SIGNALS:
    /// One path was chosen, just before accept(); not for a file replaced through the button.
    void sig_filePath(QString path);

    /// Once for each selected file as the selection changes, with the files up to it. A receiver
    /// that wants the dialog gone uses deleteLater(): the selection is still being walked.
    void sig_filePaths(QStringList paths);

protected:
    OperateMode operateMode = None; ///< what the dialog is for
    QZelEncDialog *encDialog = nullptr; ///< of the encryption option
    QFileSystemModel *fileModel = nullptr; ///< shared by tree and listing
    Ui_QZelFileDialogClass *ui = nullptr; ///< owned
    // Persistent, as are the two menu indexes: folders may vanish while the dialog is open.
    QPersistentModelIndex rootIndex; ///< of the start folder, the listing's home
    bool titlePressed = false; ///< the left button is down on the title strip
    QPoint dragOffset; ///< pointer's screen position minus the frame's corner, at the press
    QString caption; ///< title and text of the OpenSave button
    QString dirPath; ///< start folder without trailing "/", empty for the root folder
    QStringList filterList; ///< filter texts, none for folders
    QString filePath; ///< chosen path
    QString currentPath; ///< what let_FilePath shows
    QVector<QString> backHistory; ///< the last entry is the folder shown now
    QVector<QString> forwardHistory; ///< folders that Back left
    QString password; ///< set through the encryption option
    QMenu *folderMenu = nullptr; ///< on a folder of the tree
    QMenu *blankMenu = nullptr; ///< on the tree's empty area
    QMenu *fileMenu = nullptr; ///< on a file of the listing
    QAction *newAction = nullptr; ///< makes a folder
    QAction *renameFolderAction = nullptr; ///< renames a folder
    QAction *deleteAction = nullptr; ///< deletes an empty folder
    QAction *renameFileAction = nullptr; ///< renames a file
    QPersistentModelIndex treeMenuIndex; ///< in the tree, under the last right-click
    QPersistentModelIndex listMenuIndex; ///< in the listing, under the last right-click
    QStringList filePaths; ///< selected files
    QString ftpSubPath; ///< start folder as given, when inside the FTP folder
    QString lastPath; ///< remembered folder, when it still exists

private:
    // Set-up
    void construct(const QString &caption, const QString &dir);
    void initControls();
    void initStartFolder();
    void initViews();
    void initHistory();
    void initNameEdit();
    bool isSaveMode() const;
    QString settingsKey() const;

    // Navigation
    void onTypedPath();
    void onBack();
    void onForward();
    void onHome();
    void onTreeClicked(const QModelIndex &index);
    void onListClicked(const QModelIndex &index);
    void onListDoubleClicked(const QModelIndex &index);
    void onSelectionChanged();
    void setListRoot(const QModelIndex &index);
    void showPath(const QString &path);
    void showFolder(const QString &path);

    // Ending
    void onOpenSave();
    void onEncryptionOption();
    void acceptListedFile(const QString &path);
    void acceptSave();
    void acceptExisting(const QString &name);
    void acceptPath();
    QString shownFolder() const;

    // Menus
    void onTreeMenuRequested(const QPoint &position);
    void onListMenuRequested(const QPoint &position);
    void onNewFolder();
    void onRenameFolder();
    void onDeleteFolder();
    void onRenameFile();
    void releaseMenus();
    bool askForName(const QString &prompt, const QString &content, QString *name);
};

#endif // QZELFILEDIALOG_H
