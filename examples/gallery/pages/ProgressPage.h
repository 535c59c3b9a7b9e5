#ifndef PROGRESSPAGE_H
#define PROGRESSPAGE_H

#include "GalleryPage.h"

#include <memory>

class QCheckBox;
class QLineEdit;
class QSlider;
class QSpinBox;
class QTemporaryDir;
class QWaitingDialog;

/// Shows QWaitingDialog during a real copy, ProgressBar and CustomProgressBar.
class ProgressPage : public GalleryPage
{
    Q_OBJECT

public:
    ProgressPage(SignalLog *log, QWidget *parent);
    ~ProgressPage() override;

private:
    void createWaitingPanel();
    void createBarPanel();
    void createCustomPanel();
    void startCopy();
    void endCopy(bool complete);
    void showWaiting();
    void showCustom();
    void runCustom();

    QLineEdit *message = nullptr;
    QCheckBox *barVisible = nullptr;
    QSpinBox *megabytes = nullptr;
    QSlider *percent = nullptr;
    std::unique_ptr<QTemporaryDir> folder;
    QWaitingDialog *waiting = nullptr;
};

#endif // PROGRESSPAGE_H
