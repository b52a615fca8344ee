// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/wplotpanner.h"

#include "plot/plotcommon_p.h"

#include <qwt_plot.h>
#include <qwt_scale_div.h>
#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>

namespace Utils {

WPlotPanner::WPlotPanner(QWidget *canvas)
    : QwtPlotPanner(canvas)
{
}

WPlotPanner::~WPlotPanner() = default;

void WPlotPanner::moveCanvas(int dx, int dy)
{
    if (!m_bEnabled)
        return;
    QwtPlot *plt = plot();
    if (!plt)
        return;

    if (dy != 0) {
        const QwtScaleMap map = plt->canvasMap(QwtPlot::yLeft);
        const QwtScaleDiv &div = plt->axisScaleDiv(QwtPlot::yLeft);
        const double lowest = std::min(div.lowerBound(), div.upperBound());
        const double highest = std::max(div.lowerBound(), div.upperBound());
        // The map is linear, so every value moves by the same shift.
        const double p = map.transform(div.lowerBound());
        const double shift = map.invTransform(p - dy) - div.lowerBound();
        if (shift > 0.0) {
            const double allowed = m_dUpperLimit - highest;
            if (allowed <= 0.0)
                dy = 0;
            else if (shift > allowed)
                dy = int(dy * (allowed / shift)); // truncates towards 0: never past the limit
        } else if (shift < 0.0) {
            const double allowed = m_dLowerLimit - lowest;
            if (allowed >= 0.0)
                dy = 0;
            else if (shift < allowed)
                dy = int(dy * (allowed / shift));
        }
    }
    if (dx == 0 && dy == 0)
        return;

    QwtPlotPanner::moveCanvas(dx, dy);

    const QwtScaleDiv &y = plt->axisScaleDiv(QwtPlot::yLeft);
    const double span = std::fabs(y.range());
    if (span < 4.0) {
        plt->setAxisScale(QwtPlot::yLeft, y.lowerBound(), y.upperBound(), PlotCommon::smallSpanStep(span));
        plt->replot();
    }
}

void WPlotPanner::setLowerPanLimit(double limit)
{
    m_dLowerLimit = limit;
}

double WPlotPanner::lowerPanLimit() const
{
    return m_dLowerLimit;
}

void WPlotPanner::setUpperPanLimit(double limit)
{
    m_dUpperLimit = limit;
}

double WPlotPanner::upperPanLimit() const
{
    return m_dUpperLimit;
}

void WPlotPanner::setEnabled(bool enabled)
{
    m_bEnabled = enabled;
}

bool WPlotPanner::isEnabled() const
{
    return m_bEnabled;
}

} // namespace Utils
