// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/genericchartmulti.h"

#include "charts/chartengine_p.h"

namespace Utils {
namespace Charts {

GenericChartMulti::GenericChartMulti(int plots, QWidget *parent, QMainWindow *mainWindow, bool secondValueMarker,
                                     bool flag)
    : AbstractMultiCurveChart(
          ChartConfig::multiCurve(plots, mainWindow, secondValueMarker, flag, MarkerKind::Plain), parent)
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
    // Named when the name or the number of values changes, not per sample: building
    // the titles would allocate at every append of a fast sensor.
    if (name == p.curvesNamedAfter && values.size() == p.curvesNamed)
        return;
    p.curvesNamedAfter = name;
    p.curvesNamed = values.size();
    for (int i = 0; i < values.size(); ++i)
        vNameCurve(plotNr, i, values.size() == 1 || name.isEmpty() ? name : QStringLiteral("%1 %2").arg(name).arg(i + 1));
}

} // namespace Charts
} // namespace Utils
