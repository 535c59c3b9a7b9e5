#include "dialogs/QZelFolderNameDialog.h"

#include "dialogs/QUIMessageBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <new>

namespace {

constexpr QSize DialogSize(300, 150);
constexpr int RowSpacing = 10;
constexpr QMargins ContentMargins(10, 20, 0, 0);
constexpr int ErrorMessage = 3;

} // namespace

QZelFolderNameDialog::QZelFolderNameDialog(QWidget *parent)
    : QZelDialog(parent)
{
    InitCtrls();
    Resize(0, 0, DialogSize.width(), DialogSize.height());
    ShowBtn(true, false);
}

QZelFolderNameDialog::~QZelFolderNameDialog() = default;

void QZelFolderNameDialog::InitCtrls()
{
    lbl_FolderName = new (std::nothrow) QLabel(this);
    setTitle(tr("folderName"));

    let_FolderName = new (std::nothrow) QLineEdit(this);
    if (let_FolderName)
        let_FolderName->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    auto *row = new QHBoxLayout;
    row->addWidget(lbl_FolderName);
    row->addWidget(let_FolderName);
    row->setSpacing(RowSpacing);
    row->setContentsMargins(0, 0, 0, 0);

    auto *column = new QVBoxLayout;
    column->addLayout(row);
    column->setContentsMargins(ContentMargins);
    column->addStretch(0);

    auto *content = new (std::nothrow) QWidget(this);
    if (!content) {
        delete column;
        return;
    }
    content->setLayout(column);
    content->setStyleSheet(
            QStringLiteral("background-color: #f2f3f5; font: 11pt \"Microsoft YaHei\";"));
    SetContainer(content);
}

void QZelFolderNameDialog::setTitle(QString text)
{
    if (lbl_FolderName)
        lbl_FolderName->setText(text);
}

void QZelFolderNameDialog::setContent(QString text)
{
    if (let_FolderName)
        let_FolderName->setText(text);
}

void QZelFolderNameDialog::accept()
{
    if (let_FolderName && !let_FolderName->text().isEmpty()) {
        QDialog::accept();
        return;
    }
    // Shown, not run: the box goes as this function returns and never stays on screen. An empty
    // name just leaves the dialog open.
    QTarnKit::QUIMessageBox box;
    box.setMessage(tr("addFailed"), ErrorMessage, 0);
    box.show();
}
