#ifndef FRAMEPAGE_H
#define FRAMEPAGE_H

#include "GalleryPage.h"

#include <memory>

class DemoWindow;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;

/// Shows QZelBaseWindows and QTitleBar on a window of its own.
class FramePage : public GalleryPage
{
    Q_OBJECT

public:
    FramePage(SignalLog *log, QWidget *parent);
    ~FramePage() override;

private:
    void createWindowPanel();
    void createBarPanel();
    void connectDemo();
    void showDemo();
    void applyColor();
    void followState(bool changed);

    std::unique_ptr<DemoWindow> demo;
    QSpinBox *padding = nullptr;
    QCheckBox *moveEnable = nullptr;
    QCheckBox *resizeEnable = nullptr;
    QLineEdit *titleText = nullptr;
    QComboBox *color = nullptr;
};

#endif // FRAMEPAGE_H
