// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_PLOTMARKERUNIVERSAL_H
#define UTILS_PLOTMARKERUNIVERSAL_H

#include "utils_export.h"
#include "plot/plotmarker.h"

namespace Utils {

/*!
    \brief A marker that is horizontal or vertical depending on its plot.

    The plot's object name chooses the value axis: "1" gives a vertical line on
    QwtPlot::xBottom, anything else (normally "0") a horizontal line on yLeft
    that behaves exactly as PlotMarker. The vertical form takes orientations 0
    (band right of the line), 1 (band left), 2 (line only, placed as 1), 3 (band
    centred on the line) and 4 (line only, centred).
*/
class UTILS_EXPORT PlotMarkerUniversal : public PlotMarker
{
    Q_OBJECT

public:
    PlotMarkerUniversal(QwtPlot *plot, Mode mode = ModeDefault);
    ~PlotMarkerUniversal() override;

    //! True when the marker stands on the time axis (plot object name "1").
    bool isVertical() const;

    // Bounds of the vertical form.
    void setLeftBound(int index, const double &bound);
    void setRightBound(int index, const double &bound);
    void setRangeLeftToRight(const double &left, const double &right);
    double leftBound(int index = 0) const;
    double rightBound(int index = 0) const;

    //! Named values of the vertical form.
    void setLeftValue(double value, const QString &text);
    void setRightValue(double value, const QString &text);
};

} // namespace Utils

#endif // UTILS_PLOTMARKERUNIVERSAL_H
