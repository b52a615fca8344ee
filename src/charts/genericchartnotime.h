// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_GENERICCHARTNOTIME_H
#define UTILS_GENERICCHARTNOTIME_H

#include "charts/abstractchart.h"

class QMainWindow;

namespace Utils {
namespace Charts {

/*!
    \brief A live chart whose x axis is not time: positions, profiles, counts.
    It has no docks (its plots stay in its own layout, with or without a main
    window), no X zoom bar, no rectangles or vertical lines; the axes show plain
    numbers.

    \sa AbstractChart, GenericChart
*/
class UTILS_EXPORT GenericChartNoTime : public AbstractChart
{
    Q_OBJECT

public:
    //! The main window is accepted for the same call as the other charts and not used.
    GenericChartNoTime(int plots, QWidget *parent = nullptr, QMainWindow *mainWindow = nullptr,
                       bool secondValueMarker = false);
    ~GenericChartNoTime() override;

    /*!
        Appends \a data stamped with the current time (the rules of the other
        charts: breaks after 15 s, -15000.0 when \a update is false, -65000.0 in
        \a data1 for no second value). When \a update is true and \a dataExtra is
        greater than -1.0, \a dataExtra also goes to extra series 0 at the current
        time minus 100 ms, \a data to extra series 1 and 0.0 to extra series 2.
    */
    void vAppendData(int plotNr, const double &data, bool update, const double &data1, bool bCustom,
                     const double &dataExtra);
    //! Value i of \a values to extra series i: the first at the current time minus 100 ms, the others now.
    void vAppendDataList(int plotNr, QList<double> values);
    //! Whole-number steps for the value axis's rubber-band zoom of \a plotNr.
    void vSetZoomToInt(const int &plotNr, bool enable);
    //! Title and unit shown (setPlotTitle() with both shown).
    void setPlotTitle(const int &plotNr, const std::string &title, const std::string &unit);
    using AbstractChart::setPlotTitle;
    //! The custom label's font by family and point size.
    void setCustomLabelsFont(const int &plotNr, QString family, int pointSize);
    using AbstractChart::setCustomLabelsFont;

public Q_SLOTS:
    //! Shows plot \a plotNr alone in the chart, or all plots again when it is already alone.
    void IndependentPlotResize(int plotNr);
};

} // namespace Charts
} // namespace Utils

#endif // UTILS_GENERICCHARTNOTIME_H
