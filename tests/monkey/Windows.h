#ifndef WINDOWS_H
#define WINDOWS_H

#include "Dice.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QWidget>

/// The windows on the screen, in the order in which they were shown: the toolkit's own list is
/// ordered by addresses, which differ from run to run.
class Windows : public QObject
{
    Q_OBJECT

public:
    explicit Windows(QObject *parent = nullptr);

    /// Mostly what is in front, as nothing else gets mouse and keys while something modal is open.
    /// Null when there is none.
    QWidget *any(Dice &dice);
    /// How often a widget of each class was shown.
    const QMap<QByteArray, int> &shown() const { return shownOfClass; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QList<QPointer<QWidget>> windows;
    QMap<QByteArray, int> shownOfClass;
};

#endif // WINDOWS_H
