// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_GENERICCHARTMULTI_H
#define UTILS_GENERICCHARTMULTI_H

#include "charts/abstractmulticurvechart.h"

class QMainWindow;

namespace Utils {
namespace Charts {

/*!
    \brief A live chart with several curves per plot, appended as a list of
    values per call; each curve has a legend entry that hides and shows it.

    \sa AbstractMultiCurveChart, GenericChartColor, GenericChartMultiList
*/
class UTILS_EXPORT GenericChartMulti : public AbstractMultiCurveChart
{
    Q_OBJECT

public:
    GenericChartMulti(int plots, QWidget *parent = nullptr, QMainWindow *mainWindow = nullptr,
                      bool secondValueMarker = false, bool flag = false);
    ~GenericChartMulti() override;

    /*!
        Appends value i of \a values to curve i of the plot, all at \a timeValue
        (now when 1.0 or less), or -10000.0 each when \a update is false; curves
        are created as they are first needed. A pause of more than 10 s breaks
        every curve at -1000.0. The marker shows the values; \a name titles the
        legend entries ("name", or "name 1", "name 2", ... for several).
    */
    void vAppendDataMultipleCurves(int plotNr, QList<double> values, bool update, double timeValue, QString name);

protected:
    GenericChartMulti(const ChartConfig &config, QWidget *parent);
};

} // namespace Charts
} // namespace Utils

#endif // UTILS_GENERICCHARTMULTI_H
