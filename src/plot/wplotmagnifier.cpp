// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/wplotmagnifier.h"

#include "plot/plotcommon_p.h"

#include <qwt_plot.h>
#include <qwt_scale_div.h>

#include <cmath>

namespace Utils {

WPlotMagnifier::WPlotMagnifier(QWidget *canvas)
    : QwtPlotMagnifier(canvas)
{
}

WPlotMagnifier::~WPlotMagnifier() = default;

void WPlotMagnifier::rescale(double factor)
{
    if (!m_bEnabled)
        return;
    QwtPlot *plt = plot();
    if (!plt)
        return;
    const QwtScaleDiv &left = plt->axisScaleDiv(QwtPlot::yLeft);
    const double leftSpan = std::fabs(left.range());
    const double rightSpan = std::fabs(plt->axisScaleDiv(QwtPlot::yRight).range());
    const bool rightShown = plt->axisEnabled(QwtPlot::yRight);

    if (left.lowerBound() > left.upperBound()) {
        const double span = rightShown ? rightSpan : leftSpan;
        const double limit = rightShown ? 20.0 : m_dMaxYRange;
        if (m_dMinZoomLevel >= span && factor < 1.0)
            return;
        if (span >= limit && factor > 1.0)
            return;
    } else {
        if (m_dMinZoomLevel >= leftSpan && factor < 1.0)
            return;
        if (leftSpan >= m_dMaxYRange && factor > 1.0)
            return;
    }

    QwtPlotMagnifier::rescale(factor);
    if (factor != 0.0)
        Q_EMIT PlotZoomed();
    Q_EMIT PlotScrollMagnified(factor);
}

void WPlotMagnifier::setMaxYRange(double range)
{
    m_dMaxYRange = range;
}

double WPlotMagnifier::getMaxYRange() const
{
    return m_dMaxYRange;
}

void WPlotMagnifier::setMinYRange(double range)
{
    m_dMinYRange = range;
}

double WPlotMagnifier::getMinYRange() const
{
    return m_dMinYRange;
}

void WPlotMagnifier::setMinYRightRange(double range)
{
    m_dMinYRightRange = range;
}

double WPlotMagnifier::getMinYRightRange() const
{
    return m_dMinYRightRange;
}

void WPlotMagnifier::setMaxYRightRange(double range)
{
    m_dMaxYRightRange = range;
}

double WPlotMagnifier::getMaxYRightRange() const
{
    return m_dMaxYRightRange;
}

void WPlotMagnifier::SetMinimumZoomLevel(double level)
{
    m_dMinZoomLevel = level;
}

double WPlotMagnifier::minimumZoomLevel() const
{
    return m_dMinZoomLevel;
}

void WPlotMagnifier::setEnabled(bool enabled)
{
    m_bEnabled = enabled;
}

bool WPlotMagnifier::isEnabled() const
{
    return m_bEnabled;
}

WPlotMagnifierXAxis::WPlotMagnifierXAxis(QWidget *canvas)
    : QwtPlotMagnifier(canvas)
{
}

WPlotMagnifierXAxis::~WPlotMagnifierXAxis() = default;

void WPlotMagnifierXAxis::rescale(double factor)
{
    if (!m_bEnabled)
        return;
    QwtPlot *plt = plot();
    if (!plt)
        return;
    const QwtScaleDiv &x = plt->axisScaleDiv(QwtPlot::xBottom);
    const double span = std::fabs(x.range());
    qCDebug(lcUtilsPlot, "WPlotMagnifierXAxis::rescale %f %f", x.lowerBound(), x.upperBound());
    if (m_dMinZoomLevel >= span && factor < 1.0)
        return;
    if (span >= m_dMaxXRange && factor > 1.0)
        return;
    QwtPlotMagnifier::rescale(factor);
}

void WPlotMagnifierXAxis::setMaxXRange(double range)
{
    m_dMaxXRange = range;
}

double WPlotMagnifierXAxis::getMaxXRange() const
{
    return m_dMaxXRange;
}

void WPlotMagnifierXAxis::setMinXRange(double range)
{
    m_dMinXRange = range;
}

double WPlotMagnifierXAxis::getMinXRange() const
{
    return m_dMinXRange;
}

void WPlotMagnifierXAxis::SetMinimumZoomLevel(double level)
{
    m_dMinZoomLevel = level;
}

double WPlotMagnifierXAxis::minimumZoomLevel() const
{
    return m_dMinZoomLevel;
}

void WPlotMagnifierXAxis::setEnabled(bool enabled)
{
    m_bEnabled = enabled;
}

bool WPlotMagnifierXAxis::isEnabled() const
{
    return m_bEnabled;
}

} // namespace Utils
