#ifndef DRAGWINDOW_H
#define DRAGWINDOW_H

#include "BaseWindowProbe.h"

inline constexpr QRect Start(100, 100, 400, 300);
inline constexpr QSize Smallest(200, 150);

// A point in the middle of each zone of the start window with a band of 4, in window coordinates.
inline constexpr QPoint LeftPoint(2, 150);
inline constexpr QPoint RightPoint(397, 150);
inline constexpr QPoint TopPoint(200, 2);
inline constexpr QPoint BottomPoint(200, 297);
inline constexpr QPoint TopLeftPoint(2, 2);
inline constexpr QPoint TopRightPoint(397, 2);
inline constexpr QPoint BottomLeftPoint(2, 297);
inline constexpr QPoint BottomRightPoint(397, 297);
inline constexpr QPoint InnerPoint(200, 150);

/// A shown base window at a known place, ready to be dragged.
class DragWindow : public BaseWindowProbe
{
public:
    DragWindow()
    {
        setAttribute(Qt::WA_Hover);
        setPadding(4);
        setMinimumSize(Smallest);
        setGeometry(Start);
        show();
    }
};

#endif // DRAGWINDOW_H
