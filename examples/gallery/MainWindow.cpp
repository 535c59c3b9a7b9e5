#include "MainWindow.h"

#include "Appearance.h"
#include "SignalLog.h"
#include "TitleStrip.h"
#include "pages/FileDialogPage.h"
#include "pages/FileManagerPage.h"
#include "pages/FramePage.h"
#include "pages/ImagesPage.h"
#include "pages/InputDialogsPage.h"
#include "pages/MessageBoxPage.h"
#include "pages/ProgressPage.h"
#include "pages/SpinBoxPage.h"
#include "pages/UnlockPage.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize TouchPanel(1024, 600);
constexpr QSize MinimumSize(800, 480);
constexpr int BorderWidth = 3; // for the pointer to take hold of
constexpr int NavigationWidth = 176;
constexpr int NavigationRowHeight = 42;
constexpr int LogHeight = 112;

} // namespace

MainWindow::MainWindow(Appearance *appearance, QWidget *parent)
    : QZelBaseWindows(parent)
    , appearance(appearance)
{
    // Without hover events the base class neither moves nor resizes the window.
    setAttribute(Qt::WA_Hover);
    setPadding(BorderWidth);
    // The band along the edges stays free of widgets that would take the presses.
    setContentsMargins(BorderWidth, BorderWidth, BorderWidth, BorderWidth);
    setMinimumSize(MinimumSize);
    resize(TouchPanel);
    setWindowIcon(QIcon(QStringLiteral(":/gallery/logo.png")));

    createContent();
    setTitleBar(strip);
    connectStrip();
    connect(appearance, &Appearance::languageChanged, this, &MainWindow::rebuildPages);
    rebuildPages();
}

GalleryPage *MainWindow::currentPage() const
{
    return qobject_cast<GalleryPage *>(pages->currentWidget());
}

void MainWindow::createContent()
{
    auto *content = new QWidget(this);
    content->setObjectName(QStringLiteral("galleryContent"));
    setCentralWidget(content);

    strip = new TitleStrip(content);
    navigation = new QListWidget(content);
    navigation->setObjectName(QStringLiteral("navigation"));
    navigation->setFixedWidth(NavigationWidth);
    navigation->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    pages = new QStackedWidget(content);
    signalLog = new SignalLog(content);
    signalLog->setFixedHeight(LogHeight);
    connect(navigation, &QListWidget::currentRowChanged, pages, &QStackedWidget::setCurrentIndex);

    auto *right = new QVBoxLayout;
    right->setSpacing(0);
    right->addWidget(pages, 1);
    right->addWidget(signalLog);
    auto *below = new QHBoxLayout;
    below->setSpacing(0);
    below->addWidget(navigation);
    below->addLayout(right, 1);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(strip);
    column->addLayout(below, 1);
}

void MainWindow::connectStrip()
{
    connect(strip, &TitleStrip::styleClicked, this, &MainWindow::switchStyle);
    connect(strip, &TitleStrip::languageClicked, this, &MainWindow::switchLanguage);
    connect(strip, &TitleStrip::minimizeClicked, this, &QWidget::showMinimized);
    connect(strip, &TitleStrip::maximizeClicked, this, &MainWindow::toggleMaximized);
    connect(strip, &TitleStrip::closeClicked, this, &QWidget::close);
    connect(this, &QZelBaseWindows::titleDblClick, this, &MainWindow::toggleMaximized);
    connect(this, &QZelBaseWindows::windowStateChange, strip,
            [this] { strip->showMaximizedState(isMaximized()); });
}

// A page sets its texts once, so a change of language builds all pages anew, as hosts do with the
// library's windows.
void MainWindow::rebuildPages()
{
    setWindowTitle(tr("QTarnKit gallery"));
    const bool english = appearance->language() == QLatin1String("en");
    strip->retranslate(english ? QStringLiteral("中文") : QStringLiteral("English"));
    signalLog->retranslate();

    const int row = qMax(0, navigation->currentRow());
    navigation->clear();
    while (QWidget *old = pages->widget(0))
        delete old;
    addPage(new FramePage(signalLog, pages));
    addPage(new MessageBoxPage(signalLog, pages));
    addPage(new FileDialogPage(signalLog, pages));
    addPage(new FileManagerPage(signalLog, pages));
    addPage(new InputDialogsPage(signalLog, pages));
    addPage(new ProgressPage(signalLog, pages));
    addPage(new UnlockPage(signalLog, pages));
    addPage(new SpinBoxPage(signalLog, pages));
    addPage(new ImagesPage(signalLog, pages));
    navigation->setCurrentRow(row);
}

void MainWindow::addPage(GalleryPage *page)
{
    auto *item = new QListWidgetItem(page->title(), navigation);
    item->setSizeHint(QSize(0, NavigationRowHeight));
    pages->addWidget(page);
}

void MainWindow::toggleMaximized()
{
    if (isMaximized())
        showNormal();
    else
        showMaximized();
}

void MainWindow::switchStyle()
{
    const QStringList styles = Appearance::styles();
    appearance->setStyle(styles.at((styles.indexOf(appearance->style()) + 1) % styles.size()));
}

void MainWindow::switchLanguage()
{
    const QStringList languages = Appearance::languages();
    const int next = (languages.indexOf(appearance->language()) + 1) % languages.size();
    appearance->setLanguage(languages.at(next));
}
