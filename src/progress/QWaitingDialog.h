#ifndef QWAITINGDIALOG_H
#define QWAITINGDIALOG_H

#include "ProgressBar.h"
#include "QTarnKitGlobal.h"

#include <QDialog>
#include <QPixmap>
#include <QVector>

class QLabel;
class QTimer;
class QVBoxLayout;

/**
 * A frameless, application-modal box that asks the user to wait: a spinning icon, a message and a
 * thin progress bar.
 *
 * Show it around a long operation that keeps the event loop running:
 *
 * @code
 * auto *waiting = new QWaitingDialog(this); // deleted with its parent, or when done
 * waiting->setTipMessage(tr("Copying..."));
 * waiting->showWaitingDialog();   // ... hideWaitingDialog() when done
 * @endcode
 *
 * The box is between 250 x 80 and 600 x 200 pixels, by its message. The icon turns once in 36 steps
 * of 20 ms and goes on where it stopped at the next show. Object name for a style sheet:
 * "infoLabel".
 */
class QTARNKIT_EXPORT QWaitingDialog : public QDialog
{
    Q_OBJECT

public:
    /// Creates the box, hidden, with its bar visible and half full (range 0 to 100, value 50).
    explicit QWaitingDialog(QWidget *parent);
    ~QWaitingDialog() override;

    /// Starts the icon and shows the box.
    void showWaitingDialog();

    /// Stops the icon and closes the box.
    void hideWaitingDialog();

    /// Sets the message, which wraps, and fits the box to it.
    void setTipMessage(const QString &text);

    /// Shows or hides the bar; hidden, a lower margin of 15 pixels takes its place.
    void setProgressBarVisiable(bool visible);

    /// As ProgressBar::setRange().
    void setProgressBarRange(int min, int max);

    /// As ProgressBar::setValue().
    void setProgressBarValue(int value);

protected:
    QLabel *iconLabel = nullptr; ///< shows the present frame
    QLabel *infoLabel = nullptr; ///< message
    ProgressBar *progressBar = nullptr; ///< bar below the message
    QVBoxLayout *mainLayout = nullptr; ///< layout of the box
    QTimer *timer = nullptr; ///< steps the icon
    int frameIndex = 0; ///< of the frame shown now
    QPixmap loadingPixmap; ///< the icon
    QVector<QPixmap> frames; ///< the icon turned in steps of 10 degrees

private:
    void initUI();
    void initConnects();
    void createFrames();
    void createIconLabel();
    void createInfoLabel();
    void showNextFrame();
};

#endif // QWAITINGDIALOG_H
