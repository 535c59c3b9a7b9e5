#ifndef CUSTOMPROGRESSBAR_H
#define CUSTOMPROGRESSBAR_H

#include "QTarnKitGlobal.h"

#include <QWidget>

/**
 * A frameless, always-on-top, application-modal progress window of 300 x 30 pixels, placed over the
 * centre of its parent's rectangle and driven with a percentage.
 *
 * @code
 * CustomProgressBar bar(this);
 * for (int percent : steps) bar.SetProgress(percent);   // the first call shows it
 * bar.close();
 * @endcode
 *
 * It paints itself, light grey with a green fill; a style sheet does not change it. The owner
 * deletes it.
 */
class QTARNKIT_EXPORT CustomProgressBar : public QWidget
{
    Q_OBJECT

public:
    /**
     * Creates the bar, hidden. The centre is that of @p parent's geometry(), in @p parent's own
     * coordinate frame. Without a parent the window system places it, in the widget's default size.
     */
    explicit CustomProgressBar(QWidget *parent);
    ~CustomProgressBar() override;

public Q_SLOTS:
    /**
     * Shows @p value percent at once, and the bar itself if it is hidden. 0 and less count as 1, so
     * that a driven bar never looks empty; above 100 the bar is full. Without a screen the value is
     * only stored.
     */
    void SetProgress(int value);

protected:
    /// Paints ground and fill.
    void paintEvent(QPaintEvent *event) override;

    /// Empties the bar for the next show.
    void closeEvent(QCloseEvent *event) override;

    /// Does nothing while there is no screen.
    void showEvent(QShowEvent *event) override;

    int progress = 0; ///< percent
};

#endif // CUSTOMPROGRESSBAR_H
