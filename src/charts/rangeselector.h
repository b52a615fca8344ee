// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_RANGESELECTOR_H
#define UTILS_RANGESELECTOR_H

#include "utils_export.h"

#include <QWidget>

#include <memory>

class QKeyEvent;
class QMouseEvent;
class QPaintEvent;
class QResizeEvent;

namespace Utils {

/*!
    \brief The translucent selection rectangle on a time line's overview plot.

    A child of the plot's canvas that filters the canvas's events. The rectangle
    is the widget's geometry: its left and right edges are pixel x positions on
    the canvas (QRect semantics: the right edge is the last pixel column inside),
    its top and height are the canvas's. The user drags either edge (a grab
    margin of 5 pixels on each side of it) or the whole rectangle with the left
    mouse button. At the end of every drag, and while dragging when
    bUpdateWhileMoving() is on, vRange() reports the two edges; the owner turns
    them into axis values. The rectangle is never narrower than 30 pixels when
    set by vSetRange(); an edge drag stops at 29 (left edge) or 31 (right edge)
    pixels from the other edge.

    With the keyboard focus (a click or Tab gives it), the arrow keys move the
    rectangle by one pixel (ten with Shift), Page Up and Page Down by its own
    width, Home and End to the ends of the canvas; each key press is a finished
    move and emits vRange(). A disabled selector ignores the keys.

    When the canvas is resized the pixel edges are kept and the rectangle is
    moved back inside the canvas (keeping its width while it fits); it takes the
    canvas's new height. Nothing is emitted then.

    \sa ChartTimeLine
*/
class UTILS_EXPORT RangeSelector : public QWidget
{
    Q_OBJECT

public:
    //! The part of the rectangle that a press picked up.
    enum SelectionType {
        SelectionNone = 0, //!< nothing: the press is left to the canvas
        SelectionLeft = 1, //!< the left edge
        SelectionRight = 2, //!< the right edge
        SelectionWhole = 3 //!< the whole rectangle
    };
    Q_ENUM(SelectionType)

    //! Takes the geometry of \a canvas and filters its events; \a canvas owns the selector.
    explicit RangeSelector(QWidget *canvas);
    ~RangeSelector() override;

    /*!
        Places the rectangle from \a left to \a right (pixels on the canvas,
        truncated to whole pixels). A width below 30 pixels is refused with the
        debug message "RangeSelector::vSetRange - range is greater than MIN_WIDTH"
        (its wording is kept as hosts know it) and changes nothing; so are
        positions that are not finite, without the message. With \a bEmit,
        vRange() carries the two positions as given, before the rectangle moves.
    */
    void vSetRange(const double &left, const double &right, bool bEmit);
    //! Keeps the left edge and makes the rectangle \a width pixels wide; a width below 1 is ignored.
    void vSetWidth(int width);
    //! A disabled selector ignores the mouse (the canvas gets every event) and ends a running drag.
    void vSetEnabled(bool enabled);
    bool bIsEnabled() const;
    //! Takes the canvas's height again, moves the rectangle inside it and repaints; \a bEmit emits vRange().
    void vDoUpdate(bool bEmit);
    //! Follows a canvas resize: pixel edges kept, moved inside the new size, new height.
    void vResize(QResizeEvent *event);

    //! Whether vRange() is emitted at every move of a drag (default false: only on release).
    void vUpdateWhileMoving(bool update);
    bool bUpdateWhileMoving() const;

    //! The left edge, in canvas pixels.
    int nLeft() const;
    //! The right edge (last pixel column inside), in canvas pixels.
    int nRight() const;
    //! True between the press that picked up a part and its release.
    bool bIsDragging() const;
    //! The part being dragged; SelectionNone when no drag runs.
    SelectionType eSelection() const;

    //! Handles the mouse and resizes of the canvas; events of other objects are passed on.
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    //! Fits the rectangle to the canvas again and shows it.
    void show();
    //! Hides the rectangle and ends a running drag without emitting.
    void hide();

Q_SIGNALS:
    //! The edges in canvas pixels (left, right).
    void vRange(const double &left, const double &right);
    void rangeSelectorDoubleClicked();

protected:
    //! Hit test of a canvas position, with a grab margin of 5 pixels around each edge.
    SelectionType vSelect(const QPoint &pos) const;
    /*!
        Arrow for none, the horizontal resize cursor for an edge, the closed hand
        for the whole rectangle while dragging and the open hand otherwise. Set on
        the selector and on the canvas, so it shows on both sides of an edge.
    */
    void vSetCursor(Utils::RangeSelector::SelectionType type);
    void paintEvent(QPaintEvent *event) override;
    //! A double click with the left button emits rangeSelectorDoubleClicked().
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    //! Moves the rectangle by the arrow, page, Home and End keys.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void vPlace(int left, int right);
    void vDragTo(int x);
    void vEndDrag();

    Q_DISABLE_COPY(RangeSelector)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_RANGESELECTOR_H
