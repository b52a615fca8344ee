// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/rangeselector.h"

#include "plot/plotcommon_p.h"

#include <QDebug>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <QResizeEvent>

#include <algorithm>
#include <cmath>

namespace Utils {

namespace {
// Narrowest rectangle vSetRange() accepts, in pixels.
constexpr double kMinWidth = 30.0;
// Pixels on each side of an edge that still pick the edge up.
constexpr int kGrabMargin = 5;
} // namespace

struct RangeSelector::Private
{
    // Compared in the event filter without calling into a canvas that may be
    // half destroyed while it still delivers events.
    QWidget *canvas = nullptr;
    SelectionType selection = SelectionNone;
    bool dragging = false;
    bool updateWhileMoving = false;
    bool enabled = true;
    // The x where a whole-rectangle drag last was. Kept per selector: only one
    // drag runs at a time, and a second time line must not see this one's.
    int lastX = 0;
    // Setting a cursor allocates; hover moves set it only when it changes.
    Qt::CursorShape cursor = Qt::ArrowCursor;

    int canvasRight() const { return canvas ? canvas->width() - 1 : 0; }
};

RangeSelector::RangeSelector(QWidget *canvas)
    : QWidget(canvas)
    , d(std::make_unique<Private>())
{
    d->canvas = canvas;
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_NoSystemBackground);
    setCursor(Qt::ArrowCursor);
    if (canvas) {
        setGeometry(canvas->rect());
        canvas->installEventFilter(this);
    }
}

RangeSelector::~RangeSelector() = default;

void RangeSelector::vSetRange(const double &left, const double &right, bool bEmit)
{
    if (!std::isfinite(left) || !std::isfinite(right))
        return;
    if (!(right - left >= kMinWidth)) {
        qDebug("RangeSelector::vSetRange - range is greater than MIN_WIDTH");
        return;
    }
    if (bEmit)
        Q_EMIT vRange(left, right);
    vPlace(PlotCommon::toPixel(left), PlotCommon::toPixel(right));
}

void RangeSelector::vSetWidth(int width)
{
    if (width < 1)
        return;
    vPlace(nLeft(), nLeft() + width - 1);
}

void RangeSelector::vSetEnabled(bool enabled)
{
    if (d->enabled == enabled)
        return;
    d->enabled = enabled;
    if (!enabled) {
        vEndDrag();
        vSetCursor(SelectionNone);
    }
}

bool RangeSelector::bIsEnabled() const
{
    return d->enabled;
}

void RangeSelector::vDoUpdate(bool bEmit)
{
    if (d->canvas) {
        QResizeEvent event(d->canvas->size(), d->canvas->size());
        vResize(&event);
    }
    update();
    if (bEmit) {
        const double left = nLeft();
        const double right = nRight();
        Q_EMIT vRange(left, right);
    }
}

void RangeSelector::vResize(QResizeEvent *event)
{
    if (!event)
        return;
    const int canvasRight = event->size().width() - 1;
    int left = nLeft();
    int right = nRight();
    if (right > canvasRight) {
        left -= right - canvasRight;
        right = canvasRight;
    }
    if (left < 0) {
        right = std::min(right - left, canvasRight);
        left = 0;
    }
    setGeometry(QRect(QPoint(left, 0), QPoint(right, event->size().height() - 1)));
}

void RangeSelector::vUpdateWhileMoving(bool update)
{
    d->updateWhileMoving = update;
}

bool RangeSelector::bUpdateWhileMoving() const
{
    return d->updateWhileMoving;
}

int RangeSelector::nLeft() const
{
    return geometry().left();
}

int RangeSelector::nRight() const
{
    return geometry().right();
}

bool RangeSelector::bIsDragging() const
{
    return d->dragging;
}

RangeSelector::SelectionType RangeSelector::eSelection() const
{
    return d->selection;
}

void RangeSelector::show()
{
    vDoUpdate(false);
    QWidget::show();
}

void RangeSelector::hide()
{
    vEndDrag();
    vSetCursor(SelectionNone);
    QWidget::hide();
}

RangeSelector::SelectionType RangeSelector::vSelect(const QPoint &pos) const
{
    const int x = pos.x();
    const int left = nLeft();
    const int right = nRight();
    if (std::abs(x - left) <= kGrabMargin)
        return SelectionLeft;
    if (std::abs(x - right) <= kGrabMargin)
        return SelectionRight;
    if (x > left && x < right)
        return SelectionWhole;
    return SelectionNone;
}

void RangeSelector::vSetCursor(Utils::RangeSelector::SelectionType type)
{
    Qt::CursorShape shape = Qt::ArrowCursor;
    switch (type) {
    case SelectionLeft:
    case SelectionRight:
        shape = Qt::SizeHorCursor;
        break;
    case SelectionWhole:
        shape = d->dragging ? Qt::ClosedHandCursor : Qt::OpenHandCursor;
        break;
    case SelectionNone:
        break;
    }
    if (shape == d->cursor)
        return;
    d->cursor = shape;
    setCursor(shape);
    if (d->canvas)
        d->canvas->setCursor(shape);
}

void RangeSelector::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.fillRect(rect(), QColor(95, 138, 207, 80));
    if (hasFocus()) {
        // Where the keys act: a dotted frame inside the rectangle.
        painter.setPen(QPen(QColor(40, 70, 140), 1, Qt::DotLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void RangeSelector::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (d->enabled && event->button() == Qt::LeftButton) {
        event->accept();
        Q_EMIT rangeSelectorDoubleClicked();
        return;
    }
    QWidget::mouseDoubleClickEvent(event);
}

void RangeSelector::keyPressEvent(QKeyEvent *event)
{
    if (!d->enabled || d->dragging) {
        QWidget::keyPressEvent(event);
        return;
    }
    const int left = nLeft();
    const int right = nRight();
    const int step = event->modifiers() & Qt::ShiftModifier ? 10 : 1;
    int shift = 0;
    switch (event->key()) {
    case Qt::Key_Left:
        shift = -step;
        break;
    case Qt::Key_Right:
        shift = step;
        break;
    case Qt::Key_PageUp:
        shift = -(right - left + 1);
        break;
    case Qt::Key_PageDown:
        shift = right - left + 1;
        break;
    case Qt::Key_Home:
        shift = -left;
        break;
    case Qt::Key_End:
        shift = d->canvasRight() - right;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    // Flush with the canvas at most, as a drag of the whole rectangle.
    shift = std::min(std::max(shift, -left), d->canvasRight() - right);
    if (shift == 0)
        return;
    vPlace(left + shift, right + shift);
    const double l = left + shift;
    const double r = right + shift;
    Q_EMIT vRange(l, r);
}

bool RangeSelector::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != d->canvas || !d->canvas)
        return QWidget::eventFilter(watched, event);

    switch (event->type()) {
    case QEvent::Resize:
        vResize(static_cast<QResizeEvent *>(event));
        break;
    case QEvent::MouseButtonPress: {
        auto *mouse = static_cast<QMouseEvent *>(event);
        if (!d->enabled || mouse->button() != Qt::LeftButton)
            break;
        const SelectionType selection = vSelect(mouse->pos());
        if (selection == SelectionNone)
            break;
        d->selection = selection;
        d->lastX = mouse->pos().x();
        d->dragging = true;
        vSetCursor(selection);
        mouse->accept();
        return true;
    }
    case QEvent::MouseMove: {
        auto *mouse = static_cast<QMouseEvent *>(event);
        if (!d->enabled)
            break;
        if (d->selection == SelectionNone) {
            // Hovering: only the cursor tells what a press would pick up; the
            // move stays with the canvas (the magnifier tracks the time under it).
            vSetCursor(vSelect(mouse->pos()));
            break;
        }
        vDragTo(mouse->pos().x());
        mouse->accept();
        return true;
    }
    case QEvent::MouseButtonRelease: {
        auto *mouse = static_cast<QMouseEvent *>(event);
        if (!d->dragging)
            break;
        vEndDrag();
        const double left = nLeft();
        const double right = nRight();
        Q_EMIT vRange(left, right);
        vSetCursor(vSelect(mouse->pos()));
        mouse->accept();
        return true;
    }
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void RangeSelector::vPlace(int left, int right)
{
    const int height = d->canvas ? d->canvas->height() : QWidget::height();
    setGeometry(QRect(QPoint(left, 0), QPoint(right, height - 1)));
}

void RangeSelector::vDragTo(int x)
{
    const int canvasLeft = 0;
    const int canvasRight = d->canvasRight();
    int left = nLeft();
    int right = nRight();
    switch (d->selection) {
    case SelectionLeft:
        left = x;
        if (left < canvasLeft)
            left = canvasLeft + 1;
        if (left + int(kMinWidth) > right)
            left = right - 29;
        break;
    case SelectionRight:
        // 31 here against 29 for the left edge: the two edges keep slightly
        // different minimum widths, as the time line always had.
        right = x;
        if (right > canvasRight)
            right = canvasRight - 1;
        if (right - int(kMinWidth) < left)
            right = left + 31;
        break;
    case SelectionWhole: {
        const int clamped = std::max(canvasLeft, std::min(x, canvasRight));
        int shift = clamped - d->lastX;
        if (left + shift < canvasLeft)
            shift = canvasLeft - left;
        if (right + shift > canvasRight)
            shift = canvasRight - right;
        left += shift;
        right += shift;
        d->lastX = clamped;
        break;
    }
    case SelectionNone:
        return;
    }
    vPlace(left, right);
    if (d->updateWhileMoving) {
        const double l = left;
        const double r = right;
        Q_EMIT vRange(l, r);
    }
}

void RangeSelector::vEndDrag()
{
    d->selection = SelectionNone;
    d->dragging = false;
}

} // namespace Utils
