#include "FileDialogPage.h"

#include "ControlPanel.h"

#include <QZelFileDialog.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

const auto Code = R"code(
QString filter;
const QString path =
    QZelFileDialog::getOpenFileName(
        this, tr("Open"), QDir::homePath(),
        tr("Text (*.txt);;All (*)"), &filter);
if (!path.isEmpty())
    load(path);

QString password;
const QString target =
    QZelFileDialog::getSaveFileName(
        this, tr("Save"), QDir::homePath(),
        tr("Text (*.txt)"), &filter,
        true, &password);
if (!target.isEmpty())
    save(target, password);
)code";

QString className()
{
    return QStringLiteral("QZelFileDialog");
}

} // namespace

FileDialogPage::FileDialogPage(SignalLog *log, QWidget *parent)
    : GalleryPage(log, parent)
{
    setHeading(tr("File dialog"),
               tr("QZelFileDialog opens one or several files, saves, also with a password, and "
                  "chooses a folder. Right-click a folder or a file in it for its menus."));
    setCode(QString::fromUtf8(Code));
    createFunctionsPanel();
    createResultPanel();
    createStartPanel();
    createArgumentsPanel();
    createByHandPanel();
}

void FileDialogPage::createStartPanel()
{
    ControlPanel *panel = addPanel(tr("Start folder"));
    startKind = panel->addChoice(QStringLiteral("startKind"), tr("Where"),
                                 { tr("The folder named below"), tr("The device's FTP folder"),
                                   tr("A folder that does not exist") });
    folder = panel->addText(QStringLiteral("startFolder"), tr("Folder"), QDir::homePath());
    QPushButton *button = panel->addButton(QStringLiteral("browse"), tr("Browse..."));
    connect(button, &QPushButton::clicked, this, &FileDialogPage::browse);
}

void FileDialogPage::createArgumentsPanel()
{
    ControlPanel *panel = addPanel(tr("Arguments"));
    caption = panel->addText(QStringLiteral("caption"), tr("Caption"), QString());
    caption->setPlaceholderText(tr("(by the function)"));
    filters = panel->addText(QStringLiteral("filters"), tr("Filters"),
                             tr("Text (*.txt);;Images (*.png *.jpg);;All (*)"));
    encrypt = panel->addCheck(QStringLiteral("encrypt"), tr("Save with the password option"));
}

void FileDialogPage::createFunctionsPanel()
{
    ControlPanel *panel = addPanel(tr("Static functions"));
    const struct
    {
        const char *name;
        QString text;
        void (FileDialogPage::*run)();
    } functions[] = { { "openOne", tr("Open a file"), &FileDialogPage::openOne },
                      { "openSeveral", tr("Open several"), &FileDialogPage::openSeveral },
                      { "save", tr("Save"), &FileDialogPage::save },
                      { "chooseFolder", tr("Choose a folder"), &FileDialogPage::chooseFolder } };
    for (const auto &function : functions) {
        QPushButton *button = panel->addButton(QLatin1String(function.name), function.text);
        connect(button, &QPushButton::clicked, this, function.run);
    }
}

void FileDialogPage::createByHandPanel()
{
    ControlPanel *panel = addPanel(tr("Built by hand, for its signals"));
    mode = panel->addChoice(QStringLiteral("mode"), tr("Mode"),
                            { QStringLiteral("OpenFile"), QStringLiteral("SaveFile"),
                              QStringLiteral("SaveEncryptedFile"),
                              QStringLiteral("SelectDirectory"), QStringLiteral("OpenFiles") });
    QPushButton *button = panel->addButton(QStringLiteral("byHand"), QStringLiteral("exec()"));
    connect(button, &QPushButton::clicked, this, &FileDialogPage::buildByHand);
}

void FileDialogPage::createResultPanel()
{
    ControlPanel *panel = addPanel(tr("Result"));
    pathsValue = panel->addValue(QStringLiteral("paths"), tr("Path"));
    filterValue = panel->addValue(QStringLiteral("filter"), tr("Selected filter"));
    passwordValue = panel->addValue(QStringLiteral("password"), tr("Password"));
}

QString FileDialogPage::startFolder() const
{
    switch (startKind->currentIndex()) {
    case 1:
        return QStringLiteral("/root/zeltempfiles/ftp/");
    case 2:
        return QStringLiteral("/no/such/folder");
    default:
        return folder->text();
    }
}

void FileDialogPage::browse()
{
    const QString chosen = QZelFileDialog::getExistingDirectory(this, tr("Choose"), folder->text());
    if (!chosen.isEmpty())
        folder->setText(chosen);
    report(className(), QStringLiteral("getExistingDirectory"), chosen);
}

void FileDialogPage::openOne()
{
    QString filter;
    const QString text = caption->text().isEmpty() ? tr("Open") : caption->text();
    const QString path =
            QZelFileDialog::getOpenFileName(this, text, startFolder(), filters->text(), &filter);
    showResult(QStringLiteral("getOpenFileName"), { path });
    showFilter(filter);
}

void FileDialogPage::openSeveral()
{
    QString filter;
    const QString text = caption->text().isEmpty() ? tr("Open") : caption->text();
    const QStringList paths =
            QZelFileDialog::getOpenFileNames(this, text, startFolder(), filters->text(), &filter);
    showResult(QStringLiteral("getOpenFileNames"), paths);
    showFilter(filter);
}

void FileDialogPage::save()
{
    QString filter;
    QString password;
    const QString text = caption->text().isEmpty() ? tr("Save") : caption->text();
    const QString path = QZelFileDialog::getSaveFileName(this, text, startFolder(), filters->text(),
                                                         &filter, encrypt->isChecked(), &password);
    showResult(QStringLiteral("getSaveFileName"), { path });
    showFilter(filter);
    passwordValue->setText(password.isEmpty() ? tr("none")
                                              : tr("%n character(s)", nullptr, password.size()));
}

void FileDialogPage::chooseFolder()
{
    const QString text = caption->text().isEmpty() ? tr("Choose") : caption->text();
    showResult(QStringLiteral("getExistingDirectory"),
               { QZelFileDialog::getExistingDirectory(this, text, startFolder()) });
    showFilter(QString());
}

void FileDialogPage::buildByHand()
{
    const auto operation = QZelFileDialog::OperateMode(mode->currentIndex() + 1);
    const QString text = caption->text().isEmpty() ? mode->currentText() : caption->text();
    QZelFileDialog dialog(this, text, startFolder(), filters->text(), operation);
    connect(&dialog, &QZelFileDialog::sig_filePath, this, [this](const QString &path) {
        report(className(), QStringLiteral("sig_filePath"), path);
    });
    connect(&dialog, &QZelFileDialog::sig_filePaths, this, [this](const QStringList &paths) {
        report(className(), QStringLiteral("sig_filePaths"), paths.join(QLatin1String(", ")));
    });

    const bool accepted = dialog.exec() == QDialog::Accepted;
    QStringList paths;
    if (accepted && operation == QZelFileDialog::OpenFiles)
        paths = dialog.getFilePaths();
    else if (accepted)
        paths = QStringList(dialog.getFilePath());
    showResult(QStringLiteral("exec"), paths);
    showFilter(dialog.getSelectedFilter());
}

void FileDialogPage::showResult(const QString &function, const QStringList &paths)
{
    const QString text = paths.join(QLatin1Char('\n'));
    pathsValue->setText(text.isEmpty() ? tr("none") : text);
    passwordValue->setText(QStringLiteral("–"));
    report(className(), function, paths.join(QLatin1String(", ")));
}

void FileDialogPage::showFilter(const QString &selectedFilter)
{
    filterValue->setText(selectedFilter.isEmpty() ? tr("none") : selectedFilter);
}
