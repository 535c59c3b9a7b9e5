#ifndef CLIENTUNLOCKWIDGET_H
#define CLIENTUNLOCKWIDGET_H

#include "QTarnKitGlobal.h"

#include <QString>
#include <QWidget>

class QLabel;
class QPushButton;

/**
 * The notice that another machine has taken over this client, with a button to unlock it.
 *
 * It can be asked for before a screen exists and then shows itself when TryShow() is called later:
 *
 * @code
 * notice->setIp(address);
 * notice->ModalShow();
 * connect(notice, &ClientUnlockWidget::Sig_UnlockClicked, this, &Session::unlock);
 * @endcode
 *
 * The notice is frameless, application-modal and 300 pixels wide; it stays open until the host
 * closes it, and the host deletes it. It is empty until setIp() or retranslateUi() is called. The
 * icon is the host's ":/Apps.Style/Apps.Style.Resources/ask.png"; without it the place stays empty.
 *
 * A style sheet addresses it by class name and its children by type; there are no object names.
 */
class QTARNKIT_EXPORT ClientUnlockWidget : public QWidget
{
    Q_OBJECT

public:
    /// Creates the notice, hidden; @p parent may be null.
    explicit ClientUnlockWidget(QWidget *parent);
    ~ClientUnlockWidget() override;

    /// Sets the address of the machine that took over, which is not checked, and builds the message.
    void setIp(QString ip);

    /// Sets all texts again; to be called when the application's language has changed.
    void retranslateUi();

    /// Shows the notice, or remembers to when there is no usable screen.
    void ModalShow();

    /// Shows the notice if ModalShow() had to put it off and it was not closed since.
    void TryShow();

    /// Builds the widgets; called once by the constructor.
    void Init();

    /// Builds the content of the title strip; called once by Init().
    void InitTitleBar();

    /// Connects the button; called once by the constructor.
    void InitConnect();

Q_SIGNALS:
    /// The button was clicked. What unlocking means, and closing the notice, is up to the receiver.
    void Sig_UnlockClicked();

protected:
    /// Forgets a show that was put off.
    void closeEvent(QCloseEvent *event) override;

    QWidget *titleWidget = nullptr; ///< title strip
    QLabel *titleLabel = nullptr; ///< title
    QLabel *iconLabel = nullptr; ///< the host's icon
    QLabel *msgLabel = nullptr; ///< message, wrapping
    QPushButton *unlockButton = nullptr; ///< Unlock
    QString ip; ///< of the machine that took over
    bool showPending = false; ///< a show was asked for without a usable screen
    bool reserved = false; ///< unused; keeps the members' layout

private:
    void updateMessage();
};

#endif // CLIENTUNLOCKWIDGET_H
