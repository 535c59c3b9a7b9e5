#include "FileManagerPage.h"

#include "ControlPanel.h"

#include <QZelFileManagerWidget.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>

namespace {

const auto Code = R"code(
// Shows "/root/zeltempfiles/ftp", which the
// library fixes, with a tree and a list.
QZelFileManagerWidget manager(this);
manager.exec();

// Or left open beside the rest:
auto *manager = new QZelFileManagerWidget(this);
manager->setAttribute(Qt::WA_DeleteOnClose);
manager->show();
)code";

QString ftpFolder()
{
    return QStringLiteral("/root/zeltempfiles/ftp");
}

// All samples lie in one folder of their own, so that nothing else is ever touched.
QString sampleFolder()
{
    return ftpFolder() + QStringLiteral("/gallery-samples");
}

} // namespace

FileManagerPage::FileManagerPage(SignalLog *log, QWidget *parent)
    : GalleryPage(log, parent)
{
    setHeading(
            tr("File manager"),
            tr("QZelFileManagerWidget browses and deletes what lies in the device's FTP folder."));
    setCode(QString::fromUtf8(Code));

    ControlPanel *panel = addPanel(QStringLiteral("QZelFileManagerWidget"));
    QPushButton *open = panel->addButton(QStringLiteral("openManager"), tr("Open"));
    connect(open, &QPushButton::clicked, this, &FileManagerPage::openManager);

    ControlPanel *folder = addPanel(ftpFolder());
    contents = folder->addValue(QStringLiteral("contents"), tr("Contents"));
    QPushButton *add = folder->addButton(QStringLiteral("addSamples"), tr("Add samples"));
    QPushButton *remove = folder->addButton(QStringLiteral("removeSamples"), tr("Remove them"));
    folder->addNote(tr("The samples lie in a folder of their own, \"gallery-samples\"."));
    connect(add, &QPushButton::clicked, this, &FileManagerPage::addSamples);
    connect(remove, &QPushButton::clicked, this, &FileManagerPage::removeSamples);
    showContents();
}

void FileManagerPage::openManager()
{
    QZelFileManagerWidget manager(this);
    manager.exec();
    report(QStringLiteral("QZelFileManagerWidget"), QStringLiteral("exec"));
    showContents();
}

void FileManagerPage::addSamples()
{
    const QStringList names { QStringLiteral("reports/week-1.txt"),
                              QStringLiteral("reports/week-2.txt"),
                              QStringLiteral("pictures/front/left.png"),
                              QStringLiteral("readme.txt") };
    const QDir folder(sampleFolder());
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (!folder.mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly)
            || file.write(name.toUtf8()) < 0) {
            contents->setText(tr("Cannot write there: %1").arg(file.errorString()));
            return;
        }
    }
    showContents();
}

void FileManagerPage::removeSamples()
{
    QDir(sampleFolder()).removeRecursively();
    showContents();
}

void FileManagerPage::showContents()
{
    const QDir folder(ftpFolder());
    const int count = folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size();
    contents->setText(folder.exists() ? tr("%n entry(s)", nullptr, count)
                                      : tr("The folder does not exist"));
}
