// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_GENERICCHARTMULTILIST_H
#define UTILS_GENERICCHARTMULTILIST_H

#include "charts/abstractmulticurvechart.h"

class QMainWindow;

namespace Utils {
namespace Charts {

/*!
    \brief A live chart whose caller names, for every value, the curve it goes to
    and its colour; the marker lists the values in their colours.

    \sa AbstractMultiCurveChart, Utils::ValueMarkerMultiList
*/
class UTILS_EXPORT GenericChartMultiList : public AbstractMultiCurveChart
{
    Q_OBJECT

public:
    GenericChartMultiList(int plots, QWidget *parent = nullptr, QMainWindow *mainWindow = nullptr,
                          bool secondValueMarker = false, bool flag = false);
    ~GenericChartMultiList() override;

    /*!
        Appends value i of \a values to the curve whose index is element i of
        \a curves, drawn in colour i of \a colors (when given), at \a timeValue
        (now when 1.0 or less), or -10000.0 when \a update is false. Unlike the
        other multi-curve appends it puts no break points into the curves. The
        marker gets the values with their colours.
    */
    void vAppendDataMultipleCurves(int plotNr, QList<double> values, QList<int> curves, QList<QColor> colors,
                                   bool update, double timeValue, QString name);
    //! Replaces curves 0 .. \a lines - 1 of plot 0 by the value columns of \a text.
    void setDataFromStringMultiLines(const std::string &text, char separator, int lines);
};

} // namespace Charts
} // namespace Utils

#endif // UTILS_GENERICCHARTMULTILIST_H
