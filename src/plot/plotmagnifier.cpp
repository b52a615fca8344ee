// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/plotmagnifier.h"

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_div.h>

#include <QDebug>
#include <QMouseEvent>

#include <cmath>

namespace Utils {

PlotMagnifier::PlotMagnifier(QwtPlotCanvas *canvas)
    : QwtPlotMagnifier(canvas)
{
    if (canvas)
        canvas->setMouseTracking(true);
}

PlotMagnifier::~PlotMagnifier() = default;

void PlotMagnifier::widgetMouseMoveEvent(QMouseEvent *event)
{
    if (const QwtPlot *plt = plot())
        m_dCursorValue = plt->invTransform(QwtPlot::xBottom, event->pos().x());
    QwtPlotMagnifier::widgetMouseMoveEvent(event);
}

void PlotMagnifier::rescale(double factor)
{
    factor = std::fabs(factor);
    if (factor == 1.0 || factor == 0.0)
        return;
    QwtPlot *plt = plot();
    if (!plt)
        return;

    bool changed = false;
    const bool autoReplot = plt->autoReplot();
    plt->setAutoReplot(false);
    for (int axis = 0; axis < QwtPlot::axisCnt; ++axis) {
        if (!isAxisEnabled(axis))
            continue;
        const QwtScaleDiv &div = plt->axisScaleDiv(axis);
        const double left = m_dCursorValue - div.lowerBound();
        const double right = div.upperBound() - m_dCursorValue;
        if (axis == QwtPlot::xBottom && m_dInitialLeft == 0.0 && m_dInitialRight == 0.0) {
            m_dInitialLeft = left;
            m_dInitialRight = right;
        }
        const double newLower = m_dCursorValue - left * factor;
        const double newUpper = m_dCursorValue + right * factor;
        const double span = newUpper - newLower;
        if (factor > 1.0) {
            if (m_dMaxSpan > 0.0 && span > m_dMaxSpan)
                continue;
            if (m_dLowerLimit != m_dUpperLimit && (newLower < m_dLowerLimit || newUpper > m_dUpperLimit))
                continue;
        } else if (m_dMinSpan > 0.0 && m_dMinSpan > span) {
            continue;
        }
        plt->setAxisScale(axis, newLower, newUpper);
        changed = true;
    }
    plt->setAutoReplot(autoReplot);
    if (changed) {
        plt->replot();
        Q_EMIT vScaleUpdated();
    }
}

bool PlotMagnifier::rezetZoom()
{
    if (m_dInitialLeft == 0.0 || m_dInitialRight == 0.0)
        return false;
    QwtPlot *plt = plot();
    if (!plt)
        return false;
    // Around the present cursor, not the first one: intended.
    plt->setAxisScale(QwtPlot::xBottom, m_dCursorValue - m_dInitialLeft, m_dCursorValue + m_dInitialRight);
    plt->replot();
    Q_EMIT vScaleUpdated();
    return true;
}

double PlotMagnifier::cursorValue() const
{
    return m_dCursorValue;
}

double PlotMagnifier::minimumSpan() const
{
    return m_dMinSpan;
}

double PlotMagnifier::maximumSpan() const
{
    return m_dMaxSpan;
}

void PlotMagnifier::setMaximumSpan(double span)
{
    m_dMaxSpan = span;
}

double PlotMagnifier::lowerLimit() const
{
    return m_dLowerLimit;
}

double PlotMagnifier::upperLimit() const
{
    return m_dUpperLimit;
}

void PlotMagnifier::vSetMinLimit(const double &span)
{
    m_dMinSpan = span;
}

void PlotMagnifier::vSetMaxLimit(const double &lower, const double &upper)
{
    if (lower > upper) {
        qDebug() << "PlotMagnifier::vSetMaxLimit - Incorrect assignament";
        return;
    }
    m_dLowerLimit = lower;
    m_dUpperLimit = upper;
}

} // namespace Utils
