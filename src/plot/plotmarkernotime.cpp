// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/plotmarkernotime.h"

#include <qwt_plot.h>

namespace Utils {

PlotMarkerNoTime::PlotMarkerNoTime(QwtPlot *plot, Mode mode)
    : PlotMarker(plot, mode, QwtPlot::xBottom)
{
    vSetPen(QPen(QBrush(QColor(0, 0, 255, 40)), 4, Qt::DashDotDotLine));
    setBandStyle(Qt::Dense6Pattern);
    setNeighbourSpacing(5);
    setEmitWhileDragging(true);
    vSetMaxMarkers(2);
}

PlotMarkerNoTime::~PlotMarkerNoTime() = default;

void PlotMarkerNoTime::setLeftBound(int index, const double &bound)
{
    setNeighbourBound(index, true, bound);
}

void PlotMarkerNoTime::setRightBound(int index, const double &bound)
{
    setNeighbourBound(index, false, bound);
}

void PlotMarkerNoTime::setRange(const int &index, const double &left, const double &right)
{
    setNeighbourBound(index, true, left);
    setNeighbourBound(index, false, right);
}

double PlotMarkerNoTime::upper(int index) const
{
    return neighbourBound(index, false);
}

double PlotMarkerNoTime::lower(int index) const
{
    return neighbourBound(index, true);
}

void PlotMarkerNoTime::vSetMaxMarkers(const int &count)
{
    m_nMaxMarkers = count < 1 ? 1 : count;
    setNeighbourCount(m_nMaxMarkers);
}

int PlotMarkerNoTime::maxMarkers() const
{
    return m_nMaxMarkers;
}

void PlotMarkerNoTime::setLeftValue(double value, const QString &text)
{
    setLeftRightValue(true, value, text);
}

void PlotMarkerNoTime::setRightValue(double value, const QString &text)
{
    setLeftRightValue(false, value, text);
}

} // namespace Utils
