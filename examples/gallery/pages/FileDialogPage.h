#ifndef FILEDIALOGPAGE_H
#define FILEDIALOGPAGE_H

#include "GalleryPage.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

/// Shows QZelFileDialog: the four static functions, and a dialog built by hand for its signals.
class FileDialogPage : public GalleryPage
{
    Q_OBJECT

public:
    FileDialogPage(SignalLog *log, QWidget *parent);

private:
    void createStartPanel();
    void createArgumentsPanel();
    void createFunctionsPanel();
    void createByHandPanel();
    void createResultPanel();

    QString startFolder() const;
    void browse();
    void openOne();
    void openSeveral();
    void save();
    void chooseFolder();
    void buildByHand();
    void showResult(const QString &function, const QStringList &paths);
    void showFilter(const QString &selectedFilter);

    QComboBox *startKind = nullptr;
    QLineEdit *folder = nullptr;
    QLineEdit *caption = nullptr;
    QLineEdit *filters = nullptr;
    QCheckBox *encrypt = nullptr;
    QComboBox *mode = nullptr;
    QLabel *pathsValue = nullptr;
    QLabel *filterValue = nullptr;
    QLabel *passwordValue = nullptr;
};

#endif // FILEDIALOGPAGE_H
