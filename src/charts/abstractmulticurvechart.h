// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_ABSTRACTMULTICURVECHART_H
#define UTILS_ABSTRACTMULTICURVECHART_H

#include "charts/abstracttimechart.h"

#include <qwt_legend_data.h>

#include <QColor>
#include <QList>
#include <QVariant>

class QwtPlotItem;

namespace Utils {
namespace Charts {

/*!
    \brief What the charts with several curves per plot add: a legend per plot
    whose entries hide and show their curve, colours per curve, and text input of
    several curves.

    They break their curves after 10 s (not 15 s) with points at -1000.0 and
    store -10000.0 for a sample without a valid value; rows at -1000.0 never
    reach a CSV file.

    \sa GenericChartMulti, GenericChartColor, GenericChartMultiList
*/
class UTILS_EXPORT AbstractMultiCurveChart : public AbstractTimeChart
{
    Q_OBJECT

public:
    ~AbstractMultiCurveChart() override;

    //! Pen, fill and width of curve \a curve of plot \a plotNr, on the plot and on the time line.
    void setPlotColor(const int &plotNr, const int &curve, const QColor &penColor, bool filling,
                      const QColor &brushColor, const int &plotWidth);
    //! Hides (\a hide true) or shows one curve; its legend entry follows.
    void vHideCurve(const int &plotNr, const int &curve, const bool &hide);
    //! Zooms the value axis around the point under the mouse on \a plotNr.
    void setZoomUnderMouse(const int &plotNr, bool enable);
    //! Replaces plot 0's curves by the value columns of \a text (see AbstractChart::appendData()).
    void setDataFromStringRGB(const std::string &text, char separator);
    //! Shares \a height among the visible plots as their minimum heights.
    void UpdateMinimumHeightsCustomDocks(int height);

public Q_SLOTS:
    //! Shows (\a on) or hides the curve \a item and its copy on the time line.
    void showCurve(QwtPlotItem *item, bool on);
    //! Hands a plot's legend data to its legend.
    void updateLegend(QVariant itemInfo, QList<QwtLegendData> data);
    //! A click on a legend entry: toggles its curve.
    void legendClickedNew(const QVariant &itemInfo, int index);
    //! A legend entry was checked (curve shown) or unchecked (hidden).
    void checked(const QVariant &itemInfo, bool on, int index);

protected:
    AbstractMultiCurveChart(const ChartConfig &config, QWidget *parent);
    //! The legend title of \a curve of \a plotNr, set when not empty.
    void vNameCurve(int plotNr, int curve, const QString &name);
};

} // namespace Charts
} // namespace Utils

#endif // UTILS_ABSTRACTMULTICURVECHART_H
