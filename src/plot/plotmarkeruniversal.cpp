// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/plotmarkeruniversal.h"

#include <qwt_plot.h>

namespace Utils {

static int universalAxis(const QwtPlot *plot)
{
    return plot && plot->objectName() == QLatin1String("1") ? int(QwtPlot::xBottom) : int(QwtPlot::yLeft);
}

PlotMarkerUniversal::PlotMarkerUniversal(QwtPlot *plot, Mode mode)
    : PlotMarker(plot, mode, universalAxis(plot))
{
    // One marker on the axis: a single pair of time bounds.
    setNeighbourCount(1);
}

PlotMarkerUniversal::~PlotMarkerUniversal() = default;

bool PlotMarkerUniversal::isVertical() const
{
    return valueAxis() == QwtPlot::xBottom;
}

void PlotMarkerUniversal::setLeftBound(int index, const double &bound)
{
    setNeighbourBound(index, true, bound);
}

void PlotMarkerUniversal::setRightBound(int index, const double &bound)
{
    setNeighbourBound(index, false, bound);
}

void PlotMarkerUniversal::setRangeLeftToRight(const double &left, const double &right)
{
    setNeighbourBound(0, true, left);
    setNeighbourBound(0, false, right);
}

double PlotMarkerUniversal::leftBound(int index) const
{
    return neighbourBound(index, true);
}

double PlotMarkerUniversal::rightBound(int index) const
{
    return neighbourBound(index, false);
}

void PlotMarkerUniversal::setLeftValue(double value, const QString &text)
{
    setLeftRightValue(true, value, text);
}

void PlotMarkerUniversal::setRightValue(double value, const QString &text)
{
    setLeftRightValue(false, value, text);
}

} // namespace Utils
