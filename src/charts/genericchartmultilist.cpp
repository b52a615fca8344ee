// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/genericchartmultilist.h"

#include "charts/chartengine_p.h"

namespace Utils {
namespace Charts {

GenericChartMultiList::GenericChartMultiList(int plots, QWidget *parent, QMainWindow *mainWindow,
                                             bool secondValueMarker, bool flag)
    : AbstractMultiCurveChart(
          ChartConfig::multiCurve(plots, mainWindow, secondValueMarker, flag, MarkerKind::MultiList), parent)
{
}

GenericChartMultiList::~GenericChartMultiList() = default;

void GenericChartMultiList::vAppendDataMultipleCurves(int plotNr, QList<double> values, QList<int> curves,
                                                      QList<QColor> colors, bool update, double timeValue, QString name)
{
    ChartEngine *e = engine();
    if (!e->valid(plotNr))
        return;
    // A value without a curve index goes nowhere.
    while (curves.size() < values.size())
        curves.append(-1);
    ChartPlot &p = e->plots[size_t(plotNr)];
    p.listForm = ChartPlot::ListForm::ColorList;
    p.markerTypes = QList<int>();
    for (int i = 0; i < values.size(); ++i)
        p.markerTypes.append(2); // every value is a signal of its own
    p.markerColors = colors;
    p.markerName = name;
    e->appendCurves(plotNr, values, curves, colors, update, timeValue, false);
}

void GenericChartMultiList::setDataFromStringMultiLines(const std::string &text, char separator, int lines)
{
    setDataFromStringCurves(text, separator, lines);
}

} // namespace Charts
} // namespace Utils
