// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_PLOTMARKERNOTIME_H
#define UTILS_PLOTMARKERNOTIME_H

#include "utils_export.h"
#include "plot/plotmarker.h"

namespace Utils {

/*!
    \brief A draggable vertical line for one value on the QwtPlot::xBottom axis.

    Used on charts without a time axis. Several markers share the axis: the
    bounds are kept per neighbour index (vSetMaxMarkers(), default 2), and while
    dragging the marker stays at least 5 pixels away from every bound's pixel.
    valueChanged() is emitted at every drag step and again at the end.
*/
class UTILS_EXPORT PlotMarkerNoTime : public PlotMarker
{
    Q_OBJECT

public:
    PlotMarkerNoTime(QwtPlot *plot, Mode mode = ModeDefault);
    ~PlotMarkerNoTime() override;

    void setLeftBound(int index, const double &bound);
    void setRightBound(int index, const double &bound);
    void setRange(const int &index, const double &left, const double &right);
    //! Right bound of neighbour \a index, -1.0 for an index out of range.
    double upper(int index) const;
    //! Left bound of neighbour \a index, -1.0 for an index out of range.
    double lower(int index) const;

    //! Number of neighbour indexes; new ones get the present xBottom bounds.
    void vSetMaxMarkers(const int &count);
    int maxMarkers() const;

    //! When the marker stands on \a value, the hint shows \a text.
    void setLeftValue(double value, const QString &text);
    void setRightValue(double value, const QString &text);

Q_SIGNALS:
    void valueChangedIndex(const int &index, const double &value);

private:
    int m_nMaxMarkers = 2;
};

} // namespace Utils

#endif // UTILS_PLOTMARKERNOTIME_H
