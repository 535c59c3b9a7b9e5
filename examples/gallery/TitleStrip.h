#ifndef TITLESTRIP_H
#define TITLESTRIP_H

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QToolButton;

/// The gallery's title strip. It leaves presses to the window below it, which moves by itself and
/// tells of double-clicks here through titleDblClick().
class TitleStrip : public QWidget
{
    Q_OBJECT

public:
    explicit TitleStrip(QWidget *parent = nullptr);

    /// Sets the texts in the present language; the button offers @p languageName.
    void retranslate(const QString &languageName);

    /// Turns the maximise button into the restore button and back.
    void showMaximizedState(bool maximized);

Q_SIGNALS:
    void styleClicked();
    void languageClicked();
    void minimizeClicked();
    void maximizeClicked();
    void closeClicked();

private:
    QToolButton *addButton(const QString &objectName);

    QHBoxLayout *row = nullptr;
    QLabel *title = nullptr;
    QToolButton *styleButton = nullptr;
    QToolButton *languageButton = nullptr;
    QToolButton *minimizeButton = nullptr;
    QToolButton *maximizeButton = nullptr;
    QToolButton *closeButton = nullptr;
};

#endif // TITLESTRIP_H
