#ifndef QUIMESSAGEBOX_H
#define QUIMESSAGEBOX_H

#include "QTarnKitGlobal.h"

#include <QDialog>
#include <QFlags>
#include <QList>
#include <QStringList>

class QLabel;
class QPushButton;
class QTextEdit;

namespace QTarnKit {

/// The standard buttons of a QUIMessageBox.
enum MessageBoxStandardButton {
    NoButton = 0x001, ///< hides all four; wins over every other bit
    Confirm = 0x002, ///< accepts
    Cancel = 0x004, ///< rejects
    Yes = 0x010, ///< accepts
    No = 0x100 ///< rejects
};

/**
 * A frameless, application-modal, always-on-top message box with an icon, a title, a text and a row
 * of standard or custom buttons, which can close itself after some seconds.
 *
 * Build it on the stack, fill it with one setMessage(), then exec() it for a question or show() it
 * for a notice:
 *
 * @code
 * QTarnKit::QUIMessageBox box;
 * box.setMessage(tr("Delete"), tr("Delete this record?"), 4, 0);
 * if (box.exec() == QDialog::Accepted) removeRecord();
 * @endcode
 *
 * exec() returns QDialog::Accepted for Confirm and Yes and QDialog::Rejected for Cancel, No, the
 * close button and the end of the countdown. Custom buttons leave the box open; the receiver of
 * CustBtnClicked() closes it, or deletes it at once if it likes.
 *
 * The box is 290 x 170 pixels. Given a parent it is a child widget inside that parent, not a window
 * of its own, so without special reason create it without one. Object name for a style sheet:
 * "closeBtn"; everything else by type. The texts of the standard buttons are translated in the
 * context "QUIMessageBox".
 */
class QTARNKIT_EXPORT QUIMessageBox : public QDialog
{
    Q_OBJECT

public:
    /// Creates an empty box, hidden; with a @p parent it lies inside that.
    explicit QUIMessageBox(QWidget *parent = nullptr);
    ~QUIMessageBox() override;

    /**
     * The one box of the process, without a parent, made at the first call and destroyed at the
     * program's exit. It is hidden when the application object goes, should it still be shown.
     */
    static QUIMessageBox *Instance();

    /**
     * Fills the box with @p text, icon and buttons of @p type (see SetStandardType()) and no title.
     * After @p countdown seconds, counted in ticks of one second, it closes itself; 0 means never,
     * a negative value closes a visible box at once. Custom buttons stay as they are.
     */
    void setMessage(const QString &text, int type, int countdown);

    /// The same with a @p title.
    void setMessage(const QString &title, const QString &text, int type, int countdown);

    /// The same with the question icon and a custom button for each of @p buttons.
    void setMessage(const QString &title, const QString &text, const QStringList &buttons,
                    int countdown);

    /// Sets the text; QTextEdit decides whether it is plain or rich text.
    void SetText(const QString &text);

    /// Sets the title beside the icon.
    void SetTitle(const QString &title);

    /**
     * Sets icon and standard buttons: 1 information, 2 warning and 3 error with Confirm, 4 question
     * with Yes and No; any other value gives the question icon without standard buttons.
     */
    void SetStandardType(int type);

    /// Shows exactly the standard buttons whose bits are set, none at all with NoButton.
    void SetStandardButtons(QFlags<MessageBoxStandardButton> buttons);

    /// Replaces the custom buttons by one for each of @p texts, behind the standard buttons.
    void SetCustButtons(const QStringList &texts);

    /// Removes the custom buttons.
    void ClearCustButtons();

    /// Always 0: which button was clicked is told by CustBtnClicked() only.
    int CustBtIndex();

    /// Starts a drag of the box by its free areas and title strip, and carries it out.
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Builds the box and starts its clock; called once by the constructor.
    void Init();

    /// Lays the box out; called once by Init().
    void initForm();

    /// Builds the strip with the close button; called once by initForm().
    QWidget *InitTitleBar();

    /// Builds the row with icon and title; called once by initForm().
    QWidget *InitIconTitle();

    /// Builds the row of buttons; called once by initForm().
    QWidget *InitBtns();

Q_SIGNALS:
    /// Custom button @p index, counted from 0, was clicked, or the close button: -1.
    void CustBtnClicked(int index);

public Q_SLOTS:
    /// One tick of the countdown.
    void checkSec();

protected:
    /// Stops the countdown; closing leaves exec()'s result alone.
    void closeEvent(QCloseEvent *event) override;

    int closeSec = 0; ///< seconds after which the box closes itself, 0 for never
    int currentSec = 0; ///< ticks since the message was set
    QWidget *widgetTitle = nullptr; ///< strip with the close button
    QLabel *labTitle = nullptr; ///< title
    QLabel *labIco = nullptr; ///< icon
    QTextEdit *txtInfo = nullptr; ///< text
    QWidget *widgetBtns = nullptr; ///< row of buttons
    QPushButton *btnOk = nullptr; ///< Confirm
    QPushButton *btnCancel = nullptr; ///< Cancel
    QPushButton *btnYes = nullptr; ///< Yes
    QPushButton *btnNo = nullptr; ///< No
    QList<QPushButton *> custButtons; ///< custom buttons shown now
    int custIndex = -1; ///< of the custom button clicked last, -1 when there is none
    int boxWidth = 290; ///< pixels
    int boxHeight = 170; ///< pixels

private:
    void startCountdown(int seconds);
    QPushButton *createStandardButton(QWidget *row, const QString &text, void (QDialog::*end)());
    void onCloseClicked(QPushButton *button);
    void onCustomClicked(int index);
};

} // namespace QTarnKit

#endif // QUIMESSAGEBOX_H
