#ifndef QZELDIALOG_H
#define QZELDIALOG_H

#include "QTarnKitGlobal.h"

#include <QDialog>
#include <QPoint>
#include <QRect>

class QLabel;
class QPushButton;
class QToolButton;
class QVBoxLayout;

/**
 * The frameless, window-modal shell of the small dialogs: a title strip that drags the dialog, a
 * slot for one content widget, and a row with a Confirm and a Cancel button.
 *
 * Derive an input dialog from it, put the content in with SetContainer(), and validate in accept()
 * or veto with PreAccept() and PreClose():
 *
 * @code
 * SetTitle(tr("Address"));
 * SetContainer(form);
 * Resize(0, 0, 300, 150);
 * @endcode
 *
 * Confirm ends in accept(), Cancel and the close button in close(), which rejects. The dialog is
 * kept inside the available area of the screen while it is dragged.
 *
 * Object names for a style sheet: "wgt_TitleBar" (with the title label, "btn_Max" and "btn_Close")
 * and "wgt_Bottom". The dynamic property "windowState" of "btn_Max" is "maximized" or "normal"
 * after its first click.
 */
class QTARNKIT_EXPORT QZelDialog : public QDialog
{
    Q_OBJECT

public:
    /// Creates an empty shell; @p parent may be null.
    explicit QZelDialog(QWidget *parent);
    ~QZelDialog() override;

    /// Sets the text of the title strip.
    void SetTitle(const QString &title);

    /// Resizes the dialog to @p w x @p h pixels. It is not moved: @p x and @p y are ignored.
    void Resize(int x, int y, int w, int h);

    /**
     * Shows or hides the Confirm and the Cancel button. With both hidden the whole bottom row is
     * hidden too, and stays so whatever later calls say. Does nothing after SetBottom().
     */
    void ShowBtn(bool showOk, bool showCancel);

    /**
     * Puts @p container between the title strip and the bottom row; the dialog takes ownership. A
     * second container goes above the first. Null is ignored.
     */
    void SetContainer(QWidget *container);

    /**
     * Replaces the bottom row, which is deleted with its two buttons, by @p bottom; the dialog
     * takes ownership and names it "wgt_Bottom". Null and the present row are ignored. Afterwards
     * ShowBtn(), SetBtnText() and SetBtnEnabled() do nothing, and another call adds its row below.
     */
    void SetBottom(QWidget *bottom);

    /// Sets the texts of the two buttons. Does nothing after SetBottom().
    void SetBtnText(QString okText, QString cancelText);

    /// Shows the maximise button, which is hidden at first.
    void ShowMaxBtn();

    /// Enables or disables Confirm; Cancel always stays enabled. Does nothing after SetBottom().
    void SetBtnEnabled(bool enabled);

    /// Asked when Confirm is clicked; false keeps the dialog open without calling accept().
    virtual bool PreAccept();

    /// Asked when the close button is clicked, not on Cancel; false keeps the dialog open.
    virtual bool PreClose();

    /// Builds the widgets; called once by the constructor.
    void InitCtrls();

    /// Drags the dialog by its title strip, which swallows presses of every button.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    QLabel *lbl_Title = nullptr; ///< title
    QPushButton *btn_Close = nullptr; ///< close button
    QToolButton *btn_Max = nullptr; ///< maximise button, hidden at first
    QPushButton *btn_Ok = nullptr; ///< null after SetBottom()
    QPushButton *btn_Cancel = nullptr; ///< null after SetBottom()
    QVBoxLayout *mainLayout = nullptr; ///< title strip, content, bottom row
    bool isPressed = false; ///< the left button is down on the title strip
    QPoint dragOffset; ///< pointer's screen position minus the frame's corner, at the press
    QWidget *wgt_Bottom = nullptr; ///< null after SetBottom()
    QWidget *wgt_TitleBar = nullptr; ///< title strip
    // These two hide QWidget's functions of the same name: the maximise button sets the geometry by
    // hand and never touches the window state, so they are the only record.
    bool isMaximized = false; ///< toggled by the maximise button
    QRect normalGeometry; ///< before maximising

private:
    void createTitleBar();
    void createBottomRow();
    QPushButton *createBottomButton(const QString &text);
    void connectButtons();
    void onCloseClicked();
    void onMaxClicked();
    void onOkClicked();
    void onCancelClicked();
};

#endif // QZELDIALOG_H
