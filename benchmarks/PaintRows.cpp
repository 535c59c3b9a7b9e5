#include "EventLoop.h"
#include "Row.h"

#include <CustomProgressBar.h>
#include <ProgressBar.h>
#include <QWaitingDialog.h>
#include <QZelBaseWindows.h>

#include <QMainWindow>
#include <QProgressBar>
#include <QTimer>

namespace {

constexpr int Percent = 50;

std::unique_ptr<QWidget> ourThinBar()
{
    auto bar = std::make_unique<ProgressBar>(nullptr);
    bar->setValue(Percent);
    return bar;
}

std::unique_ptr<QWidget> ourThickBar()
{
    auto bar = std::make_unique<CustomProgressBar>(nullptr);
    bar->SetProgress(Percent);
    return bar;
}

// Without a text, as ours: only the bars are compared.
std::unique_ptr<QWidget> stockBar()
{
    auto bar = std::make_unique<QProgressBar>();
    bar->setTextVisible(false);
    bar->setValue(Percent);
    return bar;
}

class Repaint : public Task
{
public:
    Repaint(Side side, QSize size, std::unique_ptr<QWidget> (*ours)())
        : bar(side == Side::Ours ? ours() : stockBar())
    {
        bar->setFixedSize(size);
        bar->show();
        EventLoop::settle();
    }

    void work() override { bar->repaint(); }

private:
    std::unique_ptr<QWidget> bar;
};

// One frame of what turns while a user waits: the icon of ours, the busy bar of stock.
class Frame : public Task
{
public:
    explicit Frame(Side side)
    {
        if (side == Side::Ours) {
            auto dialog = std::make_unique<QWaitingDialog>(nullptr);
            timer = dialog->findChild<QTimer *>();
            dialog->showWaitingDialog();
            timer->stop(); // frames come when they are measured
            window = std::move(dialog);
        } else {
            auto bar = std::make_unique<QProgressBar>();
            bar->setRange(0, 0);
            bar->show();
            window = std::move(bar);
        }
        EventLoop::settle();
    }

    void work() override
    {
        if (!timer) {
            window->repaint();
            return;
        }
        QMetaObject::invokeMethod(timer, "timeout");
        EventLoop::settle();
    }

private:
    std::unique_ptr<QWidget> window;
    QTimer *timer = nullptr;
};

class HoverWindow : public Task
{
public:
    explicit HoverWindow(Side side)
    {
        if (side == Side::Ours)
            window = std::make_unique<QZelBaseWindows>();
        else
            window = std::make_unique<QMainWindow>(nullptr, Qt::FramelessWindowHint);
        window->setAttribute(Qt::WA_Hover);
        window->resize(800, 600);
        window->show();
        EventLoop::settle();
    }

    void work() override
    {
        step = (step + 1) % 100;
        EventLoop::hover(window.get(), QPoint(100 + step, 100 + step));
    }

private:
    std::unique_ptr<QWidget> window;
    int step = 0;
};

} // namespace

Rows paintRows()
{
    Rows rows;
    const auto add = [&rows](const char *name, const char *title, double goal) -> Row & {
        Row row;
        row.name = QLatin1String(name);
        row.title = QLatin1String(title);
        row.goal = goal;
        row.pairs = 21;
        row.inner = 200;
        row.counted = 100;
        rows.push_back(row);
        return rows.back();
    };
    add("repaint-bar-5", "Repaint of a bar, 300 x 5", 0.12).make =
            makerOf<Repaint>(QSize(300, 5), ourThinBar);
    add("repaint-bar-30", "Repaint of a bar, 300 x 30", 0.12).make =
            makerOf<Repaint>(QSize(300, 30), ourThickBar);
    add("waiting-frame", "A frame of the waiting icon, to one of a busy QProgressBar", 0.1).make =
            makerOf<Frame>();
    add("hover-window", "A hover move in the base window", 1.5).make = makerOf<HoverWindow>();
    return rows;
}
