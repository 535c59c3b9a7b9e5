#ifndef ALLCLASSES_H
#define ALLCLASSES_H

// Every public header, in the spelling of a host.
#include <ClientUnlockWidget.h>
#include <ColumnToolTipDelegate.h>
#include <CustomProgressBar.h>
#include <DirItemStyledDelegate.h>
#include <ProgressBar.h>
#include <QTitleBar.h>
#include <QUIMessageBox.h>
#include <QWaitingDialog.h>
#include <QZelBaseWindows.h>
#include <QZelDialog.h>
#include <QZelEncDialog.h>
#include <QZelFileDialog.h>
#include <QZelFileManagerWidget.h>
#include <QZelFolderNameDialog.h>
#include <QZelIntSpinBox.h>
#include <QZelPwdInputDialog.h>

#endif // ALLCLASSES_H
