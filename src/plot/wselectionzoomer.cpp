// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/wselectionzoomer.h"

#include "plot/plotcommon_p.h"

#include <qwt_plot.h>
#include <qwt_scale_div.h>

#include <algorithm>
#include <cmath>

namespace Utils {

WSelectionZoomer::WSelectionZoomer(QWidget *canvas)
    : QwtPlotZoomer(canvas)
{
}

WSelectionZoomer::~WSelectionZoomer() = default;

void WSelectionZoomer::zoom(const QRectF &rect)
{
    if (!m_bEnabled)
        return;
    if (!(rect.height() > m_dMinSelectionHeight))
        return;
    QwtPlot *plt = plot();
    if (!plt)
        return;

    if (plt->axisEnabled(QwtPlot::yRight)) {
        const QwtScaleDiv &right = plt->axisScaleDiv(QwtPlot::yRight);
        const QwtScaleDiv &left = plt->axisScaleDiv(QwtPlot::yLeft);
        const double rightSpan = right.range();
        const double leftSpan = left.range();
        if (std::fabs(rightSpan) > 0.5 && leftSpan != 0.0) {
            const double ratio = std::fabs(rightSpan / leftSpan);
            const double a = std::fabs(right.upperBound() - std::fabs(left.upperBound() - rect.top()) * ratio);
            const double b = std::fabs(right.upperBound() - std::fabs(left.upperBound() - rect.bottom()) * ratio);
            plt->setAxisScale(QwtPlot::yRight, std::min(a, b), std::max(a, b));
        }
    }

    QwtPlotZoomer::zoom(rect);
    const QwtScaleDiv &x = plt->axisScaleDiv(QwtPlot::xBottom);
    plt->setAxisScale(QwtPlot::xBottom, x.lowerBound(), x.upperBound());
    plt->replot();

    const QwtScaleDiv &y = plt->axisScaleDiv(QwtPlot::yLeft);
    const double span = std::fabs(y.range());
    if (span < 4.0) {
        plt->setAxisScale(QwtPlot::yLeft, y.lowerBound(), y.upperBound(), PlotCommon::smallSpanStep(span));
        plt->replot();
    }
}

void WSelectionZoomer::zoom(int offset)
{
    Q_UNUSED(offset) // the zoom stack is not walked on purpose
    if (!m_bEnabled)
        return;
    QwtPlot *plt = plot();
    if (!plt)
        return;
    const QwtScaleDiv &x = plt->axisScaleDiv(QwtPlot::xBottom);
    // One major tick per 115 pixels; a plot narrower than that gets one step.
    const int ticks = std::max(1, plt->width() / 115);
    plt->setAxisScale(QwtPlot::xBottom, x.lowerBound(), x.upperBound(), x.range() / ticks);
    plt->replot();
}

void WSelectionZoomer::setUpperValueBound(double bound)
{
    m_dUpperValueBound = bound;
}

double WSelectionZoomer::upperValueBound() const
{
    return m_dUpperValueBound;
}

void WSelectionZoomer::setEnabled(bool enabled)
{
    m_bEnabled = enabled;
}

bool WSelectionZoomer::isEnabled() const
{
    return m_bEnabled;
}

void WSelectionZoomer::setMinimumSelectionHeight(double height)
{
    m_dMinSelectionHeight = height;
}

double WSelectionZoomer::minimumSelectionHeight() const
{
    return m_dMinSelectionHeight;
}

void WSelectionZoomer::vZoomWithIntVal(bool integerValues)
{
    m_bZoomWithIntVal = integerValues;
}

bool WSelectionZoomer::zoomWithIntVal() const
{
    return m_bZoomWithIntVal;
}

} // namespace Utils
