#ifndef SHOWNDIALOG_H
#define SHOWNDIALOG_H

#include "ModalDriver.h"
#include "User.h"

#include <QUIMessageBox.h>
#include <QZelFileDialog.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <QTreeView>

/// A dialog as a host builds it for its signals: shown, with a record of them.
class ShownDialog : public QZelFileDialog
{
public:
    explicit ShownDialog(OperateMode mode,
                         const QString &filter = QStringLiteral("Text (*.txt);;All (*)"))
        : QZelFileDialog(nullptr, QStringLiteral("Go"), folder(), filter, mode)
    {
        start();
    }
    ShownDialog()
        : QZelFileDialog(nullptr, QStringLiteral("Go"), folder())
    {
        start();
    }

    /// The start folder.
    static QString folder() { return QStringLiteral("/root/docs/"); }

    QLineEdit *name() { return findChild<QLineEdit *>(QStringLiteral("let_FileName")); }
    QLineEdit *path() { return findChild<QLineEdit *>(QStringLiteral("let_FilePath")); }
    QTreeView *list() { return findChild<QTreeView *>(QStringLiteral("treeV_FileList")); }
    QTreeView *tree() { return findChild<QTreeView *>(QStringLiteral("treeV_FileTree")); }
    /// The paths of sig_filePath.
    QStringList announced()
    {
        QStringList paths;
        for (const QList<QVariant> &arguments : pathSpy)
            paths.append(arguments.at(0).toString());
        return paths;
    }
    bool wasAccepted() { return !isVisible() && result() == Accepted; }
    bool stays() { return isVisible() && finishedSpy.isEmpty(); }
    void pressGo() { User::clickButton(this, QStringLiteral("btn_OpenSave")); }

    using QZelFileDialog::backHistory;
    using QZelFileDialog::encDialog;
    using QZelFileDialog::filePath;
    using QZelFileDialog::password;

    QSignalSpy pathSpy { this, &QZelFileDialog::sig_filePath };
    QSignalSpy finishedSpy { this, &QDialog::finished };

private:
    void start()
    {
        show();
        if (!QTest::qWaitForWindowActive(this))
            QTest::qFail("the dialog did not show", __FILE__, __LINE__);
    }
};

/// What a message box showed before it was answered.
struct SeenBox
{
    int boxes = 0;
    QString icon, title, text;
    QStringList buttons;
};

inline QString iconOf(const QLabel *label)
{
    const QStringList icons = { QStringLiteral("ok"), QStringLiteral("waring"),
                                QStringLiteral("error"), QStringLiteral("ask") };
    for (const QString &icon : icons) {
        const QPixmap pixmap(QStringLiteral(":/image/%1.png").arg(icon));
        if (pixmap.toImage() == label->pixmap(Qt::ReturnByValue).toImage())
            return icon;
    }
    return {};
}

/// Answers one message box with a button.
inline void answerBox(ModalDriver &driver, const QString &button, SeenBox *seen)
{
    driver.on<QTarnKit::QUIMessageBox>([button, seen](QTarnKit::QUIMessageBox *box) {
        ++seen->boxes;
        const auto labels = box->findChildren<QLabel *>();
        seen->icon = iconOf(labels.at(0));
        seen->title = labels.at(1)->text();
        seen->text = box->findChild<QTextEdit *>()->toPlainText();
        const auto buttons = box->findChildren<QPushButton *>();
        for (const QPushButton *shown : buttons) {
            if (shown->isVisible() && !shown->text().isEmpty())
                seen->buttons.append(shown->text());
        }
        QCOMPARE(box->parent(), nullptr);
        QVERIFY(box->isWindow());
        QVERIFY(box->windowFlags() & Qt::WindowStaysOnTopHint);
        QCOMPARE(box->windowModality(), Qt::ApplicationModal);
        User::clickButton(box, button);
    });
}

#endif // SHOWNDIALOG_H
