// A main window without a system frame: its own title bar drags it, a double-click maximises it,
// the border resizes it.

#include <QTitleBar>
#include <QZelBaseWindows>

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace {

class MainWindow : public QZelBaseWindows
{
public:
    MainWindow()
    {
        // Moving, resizing and the cursors are driven by hover events.
        setAttribute(Qt::WA_Hover);
        resize(480, 320);
        setMinimumSize(240, 120);

        auto *content = new QWidget(this);
        auto *layout = new QVBoxLayout(content);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addSpacing(TitleHeight);
        layout->addWidget(new QLabel(QStringLiteral("Drag me by the bar"), content), 1,
                          Qt::AlignCenter);
        setCentralWidget(content);

        // Directly in the window that it drags, not in the layout of the content.
        bar = new QTitleBar(this);
        bar->SetTitle(QStringLiteral("Own title bar"));
        // The bar leaves its mouse events to the window, which would move a second time.
        bar->setAttribute(Qt::WA_NoMousePropagation);
        setTitleBar(bar);
        connect(bar, &QTitleBar::SIG_CloseWindow, this, &QWidget::close);
        connect(this, &QZelBaseWindows::titleDblClick, this, &MainWindow::toggleMaximized);
    }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QZelBaseWindows::resizeEvent(event);
        // Leaves the border band free for the pointer.
        bar->setGeometry(Border, Border, width() - 2 * Border, TitleHeight);
    }

private:
    static constexpr int Border = 2;
    static constexpr int TitleHeight = 25;

    void toggleMaximized() { isMaximized() ? showNormal() : showMaximized(); }

    QTitleBar *bar = nullptr;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    MainWindow window;
    window.show();
    return app.exec();
}
