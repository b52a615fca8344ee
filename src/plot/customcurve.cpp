// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/customcurve.h"

#include "plot/plotcommon_p.h"

#include <qwt_clipper.h>
#include <qwt_painter.h>
#include <qwt_scale_map.h>
#include <qwt_series_data.h>
#include <qwt_symbol.h>

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Utils {

namespace {

/*!
    The curve's view of a series' arrays. Replacing the pointers reuses this
    object, where QwtPlotCurve::setRawSamples() would allocate a new one per
    update (the live chart updates per sample).
*/
class RawSeries : public QwtSeriesData<QPointF>
{
public:
    void set(const double *xs, const double *ys, size_t count)
    {
        x = xs;
        y = ys;
        n = count;
        d_boundingRect = QRectF(0.0, 0.0, -1.0, -1.0);
    }

    size_t size() const override { return n; }
    QPointF sample(size_t i) const override { return QPointF(x[i], y[i]); }

    // Needed only for autoscaling, which the charts switch off: computed on
    // demand and kept until the arrays change.
    QRectF boundingRect() const override
    {
        if (d_boundingRect.width() < 0.0 && n > 0)
            d_boundingRect = qwtBoundingRect(*this);
        return d_boundingRect;
    }

    const double *x = nullptr;
    const double *y = nullptr;
    size_t n = 0;
};

// Samples per pixel column above which a column is drawn from its extremes.
constexpr int kKeepAllPerColumn = 4;

} // namespace

struct CustomCurve::Private
{
    QPen intervalPen;
    QBrush intervalBrush;
    double intervalStart = 0.0;
    double intervalEnd = 0.0;

    RawSeries *raw = nullptr; // owned by the QwtPlotCurve
    bool sorted = true;
    int checked = 0;
    const double *checkedX = nullptr;

    // Reused by every thinned paint, so painting allocates only while they grow.
    mutable QPolygonF points;
    mutable QPolygonF fill;
};

CustomCurve::CustomCurve(const QString &title)
    : QObject(nullptr)
    , QwtPlotCurve(title)
    , d(std::make_unique<Private>())
{
    d->intervalPen = pen();
    d->intervalBrush = brush();
    setRenderHint(QwtPlotItem::RenderAntialiased, true);
    setStyle(QwtPlotCurve::Lines);
    d->raw = new RawSeries;
    setData(d->raw);
}

CustomCurve::~CustomCurve() = default;

void CustomCurve::vSetIntervalPen(const QPen &pen)
{
    d->intervalPen = pen;
}

void CustomCurve::vSetIntervalBrush(const QBrush &brush)
{
    d->intervalBrush = brush;
}

void CustomCurve::vSetInterval(const double &start, const double &end)
{
    d->intervalStart = start;
    d->intervalEnd = end;
}

QPen CustomCurve::intervalPen() const
{
    return d->intervalPen;
}

QBrush CustomCurve::intervalBrush() const
{
    return d->intervalBrush;
}

double CustomCurve::intervalStart() const
{
    return d->intervalStart;
}

double CustomCurve::intervalEnd() const
{
    return d->intervalEnd;
}

bool CustomCurve::isSorted() const
{
    return d->sorted;
}

void CustomCurve::vUpdateData(const double *x, const double *y, int count)
{
    if (!x || !y || count < 0)
        count = 0;
    // Someone may have given the curve other data with setSamples(): take the
    // arrays back (the one allocation outside the per-sample path).
    if (data() != d->raw) {
        d->raw = new RawSeries;
        setData(d->raw);
        d->checked = 0;
    }
    // Only the new samples are checked for ascending x. Other arrays are
    // checked from the start; a trimmed series (fewer samples at the same
    // place) keeps its order, since every part of a sorted array is sorted.
    if (x != d->checkedX || count == 0) {
        d->checkedX = x;
        d->checked = 0;
        d->sorted = true;
    } else if (count < d->checked) {
        d->checked = count;
    }
    for (int i = std::max(d->checked, 1); d->sorted && i < count; ++i) {
        if (!(x[i] >= x[i - 1]))
            d->sorted = false;
    }
    d->checked = count;
    d->raw->set(x, y, size_t(count));
    itemChanged();
}

void CustomCurve::drawSeries(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                             const QRectF &canvasRect, int from, int to) const
{
    const int size = int(dataSize());
    if (!painter || size <= 0)
        return;
    if (to < 0 || to >= size)
        to = size - 1;
    from = std::max(from, 0);
    if (from > to)
        return;
    if (data() != d->raw || !d->sorted || style() != QwtPlotCurve::Lines || symbol()
        || testCurveAttribute(QwtPlotCurve::Fitted)) {
        QwtPlotCurve::drawSeries(painter, xMap, yMap, canvasRect, from, to);
        return;
    }

    // The visible index range, and one sample beyond each end so that the
    // lines from outside enter the canvas.
    const double *x = d->raw->x;
    const double *y = d->raw->y;
    const double left = std::min(xMap.s1(), xMap.s2());
    const double right = std::max(xMap.s1(), xMap.s2());
    const int first = std::max(int(std::lower_bound(x + from, x + to + 1, left) - x) - 1, from);
    const int last = std::min(int(std::upper_bound(x + from, x + to + 1, right) - x), to);
    if (first >= last)
        return; // at most one sample: nothing to draw a line with

    const int count = last - first + 1;
    const double span = std::fabs(xMap.transform(x[last]) - xMap.transform(x[first]));
    const double columns = std::min(span, canvasRect.width() + 2.0) + 1.0;
    if (count <= kKeepAllPerColumn * columns) {
        QwtPlotCurve::drawSeries(painter, xMap, yMap, canvasRect, first, last);
        return;
    }

    // One pass: per pixel column, all samples when there are few, else the
    // first, the minimum, the maximum and the last in the order they came.
    QPolygonF &points = d->points;
    points.resize(0);
    int indices[kKeepAllPerColumn];
    int inColumn = 0;
    int column = 0;
    int firstIndex = first, minIndex = first, maxIndex = first, lastIndex = first;
    const auto point = [&](int i) { points.append(QPointF(xMap.transform(x[i]), yMap.transform(y[i]))); };
    const auto flush = [&]() {
        if (inColumn <= kKeepAllPerColumn) {
            for (int k = 0; k < inColumn; ++k)
                point(indices[k]);
            return;
        }
        const int a = std::min(minIndex, maxIndex);
        const int b = std::max(minIndex, maxIndex);
        point(firstIndex);
        if (a != firstIndex)
            point(a);
        if (b != a && b != lastIndex)
            point(b);
        if (lastIndex != firstIndex)
            point(lastIndex);
    };
    // x is sorted, so a column ends where x reaches the value of the next
    // pixel: one comparison per sample instead of a transform and a rounding.
    const bool rising = xMap.p2() >= xMap.p1() ? xMap.s2() >= xMap.s1() : xMap.s2() < xMap.s1();
    double boundary = -std::numeric_limits<double>::infinity();
    for (int i = first; i <= last; ++i) {
        if (inColumn == 0 || !(x[i] < boundary)) {
            if (inColumn > 0)
                flush();
            column = PlotCommon::toPixel(std::floor(xMap.transform(x[i])));
            boundary = xMap.invTransform(rising ? column + 1.0 : double(column));
            if (!(boundary > x[i])) // rounding at the edge: step at least one sample
                boundary = std::nextafter(x[i], std::numeric_limits<double>::infinity());
            inColumn = 0;
            firstIndex = minIndex = maxIndex = i;
        }
        if (inColumn < kKeepAllPerColumn)
            indices[inColumn] = i;
        ++inColumn;
        if (y[i] < y[minIndex])
            minIndex = i;
        else if (y[i] > y[maxIndex])
            maxIndex = i;
        lastIndex = i;
    }
    flush();

    if (QwtPainter::roundingAlignment(painter)) {
        for (QPointF &p : points)
            p = QPointF(std::round(p.x()), std::round(p.y()));
    }
    painter->save();
    if (brush().style() != Qt::NoBrush) {
        d->fill.resize(points.size());
        std::copy(points.cbegin(), points.cend(), d->fill.begin());
        fillCurve(painter, xMap, yMap, canvasRect, d->fill);
    }
    painter->setPen(pen());
    if (testPaintAttribute(QwtPlotCurve::ClipPolygons)) {
        // As QwtPlotCurve does: far-off points are cut at the canvas, widened by the pen.
        const qreal pw = std::max(qreal(1.0), painter->pen().widthF());
        const QRectF clipRect = canvasRect.adjusted(-pw, -pw, pw, pw);
        QwtPainter::drawPolyline(painter, QwtClipper::clipPolygonF(clipRect, points, false));
    } else {
        QwtPainter::drawPolyline(painter, points);
    }
    painter->restore();
}

} // namespace Utils
