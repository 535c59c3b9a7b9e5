#include "ProgressPage.h"

#include "ControlPanel.h"
#include "CopyJob.h"

#include <CustomProgressBar.h>
#include <QWaitingDialog.h>

#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int Thousand = 1000;
constexpr qint64 Megabyte = 1024LL * 1024;
constexpr int BarHeight = 5;
constexpr int ShownFor = 2000; // milliseconds
constexpr int StepInterval = 20; // milliseconds

const auto Code = R"code(
QWaitingDialog waiting(this);
waiting.setTipMessage(tr("Copying..."));
waiting.setProgressBarRange(0, 1000);
waiting.setProgressBarValue(0);
waiting.showWaitingDialog();
connect(job, &CopyJob::progressed, &waiting,
        &QWaitingDialog::setProgressBarValue);
connect(job, &CopyJob::finished, &waiting,
        &QWaitingDialog::hideWaitingDialog);
job->start();

CustomProgressBar bar(this);
bar.SetProgress(40);   // shows itself
)code";

QString className()
{
    return QStringLiteral("QWaitingDialog");
}

bool writeSample(const QString &path, int megabytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    for (int i = 0; i < megabytes; ++i) {
        if (file.write(QByteArray(int(Megabyte), char('a' + i % 26))) != Megabyte)
            return false;
    }
    return true;
}

} // namespace

ProgressPage::ProgressPage(SignalLog *log, QWidget *parent)
    : GalleryPage(log, parent)
{
    setHeading(tr("Progress"),
               tr("QWaitingDialog asks the user to wait, with a turning icon and a thin bar; "
                  "CustomProgressBar floats over its parent."));
    setCode(QString::fromUtf8(Code));
    createWaitingPanel();
    createBarPanel();
    createCustomPanel();
}

ProgressPage::~ProgressPage() = default;

void ProgressPage::createWaitingPanel()
{
    waiting = new QWaitingDialog(this);
    ControlPanel *panel = addPanel(className());
    message = panel->addText(QStringLiteral("message"), tr("Message"),
                             tr("Copying. This takes a moment..."));
    barVisible = panel->addCheck(QStringLiteral("barVisible"), tr("With the bar"), true);
    megabytes = panel->addNumber(QStringLiteral("megabytes"), tr("Copy (MB)"), 1, 512, 64);
    QPushButton *copy = panel->addButton(QStringLiteral("startCopy"), tr("Copy a file"));
    QPushButton *show = panel->addButton(QStringLiteral("showWaiting"), tr("Only show it, 2 s"));
    connect(copy, &QPushButton::clicked, this, &ProgressPage::startCopy);
    connect(show, &QPushButton::clicked, this, &ProgressPage::showWaiting);
}

void ProgressPage::createBarPanel()
{
    ControlPanel *panel = addPanel(QStringLiteral("ProgressBar"));
    auto *bar = new ProgressBar(panel);
    bar->setObjectName(QStringLiteral("bar"));
    bar->setFixedHeight(BarHeight);
    auto *holder = new QWidget(panel);
    auto *column = new QVBoxLayout(holder);
    column->addWidget(bar);
    panel->addRow(QString(), holder);

    QSpinBox *minimum = panel->addNumber(QStringLiteral("minimum"), tr("Minimum"), -1000, 1000, 0);
    QSpinBox *maximum =
            panel->addNumber(QStringLiteral("maximum"), tr("Maximum"), -1000, 1000, 100);
    QSlider *value = panel->addSlider(QStringLiteral("barValue"), tr("Value"), -50, 150, 30);
    bar->setValue(value->value());

    const auto setRange = [bar, minimum, maximum] {
        bar->setRange(minimum->value(), maximum->value());
    };
    connect(minimum, QOverload<int>::of(&QSpinBox::valueChanged), bar, setRange);
    connect(maximum, QOverload<int>::of(&QSpinBox::valueChanged), bar, setRange);
    connect(value, &QSlider::valueChanged, bar, &ProgressBar::setValue);
}

void ProgressPage::createCustomPanel()
{
    ControlPanel *panel = addPanel(QStringLiteral("CustomProgressBar"));
    percent = panel->addSlider(QStringLiteral("percent"), tr("Percent"), 0, 120, 40);
    QPushButton *show = panel->addButton(QStringLiteral("showCustom"), tr("Show it for 2 s"));
    QPushButton *run = panel->addButton(QStringLiteral("runCustom"), tr("Run to 100 %"));
    connect(show, &QPushButton::clicked, this, &ProgressPage::showCustom);
    connect(run, &QPushButton::clicked, this, &ProgressPage::runCustom);
}

void ProgressPage::startCopy()
{
    folder = std::make_unique<QTemporaryDir>();
    const QString source = folder->filePath(QStringLiteral("source"));
    auto *job = new CopyJob(source, folder->filePath(QStringLiteral("copy")), this);
    if (!writeSample(source, megabytes->value()) || !job->start()) {
        delete job;
        endCopy(false);
        return;
    }
    connect(job, &CopyJob::progressed, waiting, &QWaitingDialog::setProgressBarValue);
    connect(job, &CopyJob::finished, this, &ProgressPage::endCopy);
    connect(job, &CopyJob::finished, job, &QObject::deleteLater);

    waiting->setTipMessage(message->text());
    waiting->setProgressBarVisiable(barVisible->isChecked());
    waiting->setProgressBarRange(0, Thousand);
    waiting->setProgressBarValue(0);
    waiting->showWaitingDialog();
    report(className(), QStringLiteral("showWaitingDialog"));
}

void ProgressPage::endCopy(bool complete)
{
    waiting->hideWaitingDialog();
    const QFile copy(folder->filePath(QStringLiteral("copy")));
    report(className(), QStringLiteral("hideWaitingDialog"),
           complete ? tr("copied %1 MB").arg(copy.size() / Megabyte) : tr("the copy failed"));
    folder.reset();
}

void ProgressPage::showWaiting()
{
    waiting->setTipMessage(message->text());
    waiting->setProgressBarVisiable(barVisible->isChecked());
    waiting->showWaitingDialog();
    report(className(), QStringLiteral("showWaitingDialog"));
    QTimer::singleShot(ShownFor, waiting, &QWaitingDialog::hideWaitingDialog);
}

void ProgressPage::showCustom()
{
    auto *bar = new CustomProgressBar(window());
    bar->setAttribute(Qt::WA_DeleteOnClose);
    bar->SetProgress(percent->value());
    report(QStringLiteral("CustomProgressBar"), QStringLiteral("SetProgress"),
           QString::number(percent->value()));
    QTimer::singleShot(ShownFor, bar, &QWidget::close);
}

void ProgressPage::runCustom()
{
    auto *bar = new CustomProgressBar(window());
    bar->setAttribute(Qt::WA_DeleteOnClose);
    auto *steps = new QTimer(bar);
    connect(steps, &QTimer::timeout, bar, [bar, done = 0]() mutable {
        if (done == 100)
            bar->close();
        else
            bar->SetProgress(++done);
    });
    bar->SetProgress(0);
    steps->start(StepInterval);
    report(QStringLiteral("CustomProgressBar"), QStringLiteral("SetProgress"),
           QStringLiteral("0...100"));
}
