// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/genericchartmulti.h"

#include "charts/chartengine_p.h"

namespace Utils {
namespace Charts {

namespace {

ChartConfig multiConfig(int plots, QMainWindow *mainWindow, bool secondMarker, bool flag)
{
    ChartConfig config;
    config.plots = plots;
    config.mainWindow = mainWindow;
    config.secondMarker = secondMarker;
    config.secondFlag = flag;
    config.rules = Rules::kMultiCurve;
    config.legend = true;
    return config;
}

} // namespace

GenericChartMulti::GenericChartMulti(int plots, QWidget *parent, QMainWindow *mainWindow, bool secondValueMarker,
                                     bool flag)
    : AbstractMultiCurveChart(multiConfig(plots, mainWindow, secondValueMarker, flag), parent)
{
}

GenericChartMulti::GenericChartMulti(const ChartConfig &config, QWidget *parent)
    : AbstractMultiCurveChart(config, parent)
{
}

GenericChartMulti::~GenericChartMulti() = default;

void GenericChartMulti::vAppendDataMultipleCurves(int plotNr, QList<double> values, bool update, double timeValue,
                                                  QString name)
{
    ChartEngine *e = engine();
    if (!e->valid(plotNr))
        return;
    ChartPlot &p = e->plots[size_t(plotNr)];
    if (e->config.marker == MarkerKind::Color) {
        p.listForm = ChartPlot::ListForm::Color;
        p.markerName = name;
    } else {
        p.listForm = ChartPlot::ListForm::None;
        p.markerSecond = 0.0;
    }
    e->appendCurves(plotNr, values, {}, {}, update, timeValue, true);
    for (int i = 0; i < values.size(); ++i)
        vNameCurve(plotNr, i, values.size() == 1 || name.isEmpty() ? name : QStringLiteral("%1 %2").arg(name).arg(i + 1));
}

} // namespace Charts
} // namespace Utils
