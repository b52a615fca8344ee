// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/charttimelineindependent.h"

#include "charts/rangeselector.h"
#include "plot/plot.h"
#include "plot/plotmagnifier.h"

#include <qwt_plot_curve.h>
#include <qwt_scale_div.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Utils {

namespace {

// Values the charts store for breaks, missing values and missing second
// values; they are not measurements and must not stretch the fitted scale.
bool isSentinel(double y)
{
    return y == -1500.0 || y == -15000.0 || y == -1000.0 || y == -10000.0 || y == -65000.0;
}

qint64 toMs(double value)
{
    if (std::isnan(value))
        return 0;
    const double limit = 9.2e18; // inside the qint64 range, far beyond any date
    return qint64(std::max(-limit, std::min(value, limit)));
}

} // namespace

struct ChartTimeLineIndependent::Private
{
    // The fixed value range, shown whenever the scale is not fitted.
    double yMin = 0.0;
    double yMax = 0.0;
    bool fitted = false;
};

ChartTimeLineIndependent::ChartTimeLineIndependent(QWidget *parent)
    : ChartTimeLine(parent)
    , d(std::make_unique<Private>())
{
    const QwtScaleDiv &y = poPlot()->axisScaleDiv(QwtPlot::yLeft);
    d->yMin = y.lowerBound();
    d->yMax = y.upperBound();
}

ChartTimeLineIndependent::~ChartTimeLineIndependent() = default;

void ChartTimeLineIndependent::vSetNewWithRangeSelector(int width)
{
    RangeSelector *selector = poRangeSelector();
    width = std::min(width, poPlot()->canvas()->width() - selector->nLeft());
    if (width < 1)
        return;
    selector->vSetWidth(width);
    vRangeSelectorUpdated(selector->nLeft(), selector->nRight());
}

qint64 ChartTimeLineIndependent::s64LeftRange() const
{
    return toMs(selectionLeft());
}

qint64 ChartTimeLineIndependent::s64RightRange() const
{
    return toMs(selectionRight());
}

void ChartTimeLineIndependent::vSetRange(const double &leftPx, const double &rightPx, bool bEmit)
{
    RangeSelector *selector = poRangeSelector();
    selector->vSetRange(leftPx, rightPx, bEmit);
    if (!bEmit) {
        const Plot *plot = poPlot();
        vStoreWindow(plot->invTransform(QwtPlot::xBottom, selector->nLeft()),
            plot->invTransform(QwtPlot::xBottom, selector->nRight()));
    }
}

void ChartTimeLineIndependent::redraw()
{
    vTimelineUpdate();
}

void ChartTimeLineIndependent::vSetCursorUpdate(bool update)
{
    poRangeSelector()->vUpdateWhileMoving(update);
}

bool ChartTimeLineIndependent::bCursorUpdate() const
{
    return poRangeSelector()->bUpdateWhileMoving();
}

void ChartTimeLineIndependent::updateYscaleRange(bool fit)
{
    if (!fit) {
        d->fitted = false;
        ChartTimeLine::vSetYAxisScale(d->yMin, d->yMax);
        return;
    }
    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    for (const QwtPlotItem *item : poPlot()->itemList(QwtPlotItem::Rtti_PlotCurve)) {
        const auto *curve = static_cast<const QwtPlotCurve *>(item);
        const QwtSeriesData<QPointF> *data = curve->data();
        for (size_t i = 0, n = data ? data->size() : 0; i < n; ++i) {
            const double y = data->sample(i).y();
            if (!std::isfinite(y) || isSentinel(y))
                continue;
            low = std::min(low, y);
            high = std::max(high, y);
        }
    }
    if (low > high)
        return; // no measurement to fit to
    if (low == high) {
        low -= 1.0;
        high += 1.0;
    }
    d->fitted = true;
    ChartTimeLine::vSetYAxisScale(low, high);
}

void ChartTimeLineIndependent::vSetYAxisScale(double min, double max)
{
    if (!std::isfinite(min) || !std::isfinite(max))
        return;
    d->yMin = min;
    d->yMax = max;
    if (!d->fitted)
        ChartTimeLine::vSetYAxisScale(min, max);
}

void ChartTimeLineIndependent::setEnabled(bool enabled)
{
    QWidget::setEnabled(enabled);
    poRangeSelector()->vSetEnabled(enabled);
    poMagnifier()->setEnabled(enabled);
}

void ChartTimeLineIndependent::zoomPlusButtonClicked()
{
    vRescaleOverview(0.8);
}

void ChartTimeLineIndependent::zoomMinusButtonClicked()
{
    vRescaleOverview(1.2);
}

} // namespace Utils
