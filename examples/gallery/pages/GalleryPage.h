#ifndef GALLERYPAGE_H
#define GALLERYPAGE_H

#include <QWidget>

class ControlPanel;
class QLabel;
class QPlainTextEdit;
class QVBoxLayout;
class SignalLog;

/// A page of the gallery: heading, one sentence, panels of live controls at the left, and at the
/// right the code that does the same, to be copied.
class GalleryPage : public QWidget
{
    Q_OBJECT

public:
    GalleryPage(SignalLog *log, QWidget *parent);

    /// The heading, which also stands in the list of pages.
    QString title() const;

protected:
    /// The heading and the sentence below it.
    void setHeading(const QString &title, const QString &text);

    /// The lines of use.
    void setCode(const QString &text);

    /// Adds a panel of this heading below those before it.
    ControlPanel *addPanel(const QString &text);

    /// Adds any widget below the panels.
    void addBelow(QWidget *widget);

    /// Writes a line of the log: which class, which signal or call, what came of it.
    void report(const QString &source, const QString &what, const QString &value = QString());

    /// Leaves the code out where it would take the room of the controls.
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *createControls();
    void createCodePane();

    SignalLog *log = nullptr;
    QLabel *heading = nullptr;
    QLabel *sentence = nullptr;
    QVBoxLayout *panels = nullptr;
    QWidget *codePane = nullptr;
    QPlainTextEdit *code = nullptr;
};

#endif // GALLERYPAGE_H
