// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_GENERICCHART_H
#define UTILS_GENERICCHART_H

#include "charts/abstracttimechart.h"

#include <QColor>

class QMainWindow;

namespace Utils {
namespace Charts {

/*!
    \brief The live chart of one or more sensor signals over time, one curve per plot.

    \code
    auto *chart = new Utils::Charts::GenericChart(2, window, window, false, false);
    // per sample, as it arrives (time 0: now):
    chart->vAppendData(0, distance, true, -65000.0, false, -1.0, 0.0);
    \endcode

    Sentinels in the series: -1500.0 at the two break points of a pause of more
    than 15 s (and the fill baseline of a normal axis), -15000.0 for a sample
    appended with update false, -65000.0 for "no second value" of data1, -1.0
    and less for "no extra value"; a time of 1.0 or less means now.

    \sa AbstractTimeChart, AbstractChart, GenericChartMulti, GenericChartNoTime
*/
class UTILS_EXPORT GenericChart : public AbstractTimeChart
{
    Q_OBJECT

public:
    /*!
        \a plots plots; \a parent; \a mainWindow for docks (null: no docks);
        \a secondValueMarker: a second value marker on each plot; \a flag is kept
        for the host (the chart does not use it).
    */
    GenericChart(int plots, QWidget *parent = nullptr, QMainWindow *mainWindow = nullptr, bool secondValueMarker = false,
                 bool flag = false);
    ~GenericChart() override;

    /*!
        vAppendData() for a host that feeds several charts from one loop: data1
        -999999.0 also leaves the marker's second value alone (the second marker
        keeps what it shows); otherwise the same.
    */
    void vAppendMultiFake(int plotNr, const double &data, bool update, const double &data1, bool bCustom,
                          const double &dataExtra, double timeValue);
    //! Pen of \a penColor and \a plotWidth, filled with \a brushColor when \a filling, on the plot and the time line.
    void setPlotColor(const int &graph, const QColor &penColor, bool filling, const QColor &brushColor,
                      const int &plotWidth);
    //! The marker of \a plotNr shows no text ("no text": only the background) when \a noText.
    void vSetGraphNoText(int plotNr, bool noText);
    //! A text shown on the marker of \a plotNr instead of its value.
    void vSetValueMarkerCustomTextGraph(int plotNr, QString text);
    /*!
        Dock sizes for \a visibleDocks docks in a window of \a height: each dock
        gets height / visibleDocks * \a nFaktor / 100 (at least 100), at least
        \a minWidth wide.
    */
    void UpdateMinimumHeightsCustomDocks(int height, int minWidth, int visibleDocks, int nFaktor);
    //! As UpdateMinimumHeightsCustomDocks(), with plot 0 twice as high as the others.
    void UpdateMinimumHeightsCustomDocksP1PY(int height, int minWidth, int visibleDocks, int nFaktor);
    //! As UpdateMinimumHeightsCustomDocks(), also sharing \a width among docks side by side.
    void UpdateMinimumHeightsWidthsCustomDocks(int height, int width, int visibleDocks, int nFaktor);

Q_SIGNALS:
    void IndependentPlotZoomPlusClick();
    void IndependentPlotZoomMinusClick();
    void IndependentPlotZoomResetClick();

protected:
    void zoomBarClicked(int kind) override;
};

} // namespace Charts
} // namespace Utils

#endif // UTILS_GENERICCHART_H
