// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/genericchart.h"

#include "charts/chartengine_p.h"
#include "plot/customcurve.h"
#include "plot/plot.h"
#include "thresholds/valuemarker.h"

#include <QDockWidget>

#include <algorithm>

namespace Utils {
namespace Charts {

namespace {

//! -999999.0 in data1 of vAppendMultiFake: the second marker value stays as it is.
constexpr double kKeepSecondValue = -999999.0;

} // namespace

GenericChart::GenericChart(int plots, QWidget *parent, QMainWindow *mainWindow, bool secondValueMarker, bool flag)
    : AbstractTimeChart(ChartConfig::timeChart(plots, mainWindow, secondValueMarker, flag), parent)
{
}

GenericChart::~GenericChart() = default;

void GenericChart::vAppendMultiFake(int plotNr, const double &data, bool update, const double &data1, bool bCustom,
                                    const double &dataExtra, double timeValue)
{
    Q_UNUSED(bCustom)
    ChartEngine *e = engine();
    if (data1 != kKeepSecondValue) {
        e->append(plotNr, data, update, data1, dataExtra, timeValue);
        return;
    }
    const double kept = e->valid(plotNr) ? e->plots[size_t(plotNr)].markerSecond : 0.0;
    e->append(plotNr, data, update, Rules::kNoSecondValue, dataExtra, timeValue);
    if (e->valid(plotNr))
        e->plots[size_t(plotNr)].markerSecond = kept;
}

void GenericChart::setPlotColor(const int &graph, const QColor &penColor, bool filling, const QColor &brushColor,
                                const int &plotWidth)
{
    ChartEngine *e = engine();
    if (!e->valid(graph))
        return;
    QPen pen(penColor, std::max(plotWidth, 0));
    pen.setCosmetic(true);
    e->applyCurvePen(e->plots[size_t(graph)].curves.front(), pen,
                     filling ? QBrush(brushColor, Qt::SolidPattern) : QBrush());
    replotChart(graph);
}

void GenericChart::vSetGraphNoText(int plotNr, bool noText)
{
    if (!engine()->valid(plotNr))
        return;
    ValueMarker *marker = engine()->plots[size_t(plotNr)].marker;
    // A blank text hides the value; an empty one brings it back.
    marker->vSetMarkerText(noText ? QStringLiteral(" ") : QString());
    marker->update();
}

void GenericChart::vSetValueMarkerCustomTextGraph(int plotNr, QString text)
{
    if (!engine()->valid(plotNr))
        return;
    ValueMarker *marker = engine()->plots[size_t(plotNr)].marker;
    marker->vSetMarkerText(text);
    marker->update();
}

void GenericChart::UpdateMinimumHeightsCustomDocks(int height, int minWidth, int visibleDocks, int nFaktor)
{
    if (visibleDocks < 1)
        return;
    const int each = std::max(100, height / visibleDocks * nFaktor / 100);
    for (ChartPlot &p : engine()->plots) {
        p.row->setMinimumHeight(each);
        p.row->setMinimumWidth(std::max(minWidth, 0));
        if (getIsDockFixedSize())
            p.row->setFixedHeight(each);
    }
}

void GenericChart::UpdateMinimumHeightsCustomDocksP1PY(int height, int minWidth, int visibleDocks, int nFaktor)
{
    // Plot 0 counts twice.
    UpdateMinimumHeightsCustomDocks(height, minWidth, visibleDocks + 1, nFaktor);
    if (!engine()->plots.empty()) {
        QWidget *row = engine()->plots.front().row;
        row->setMinimumHeight(2 * row->minimumHeight());
    }
}

void GenericChart::UpdateMinimumHeightsWidthsCustomDocks(int height, int width, int visibleDocks, int nFaktor)
{
    const int docks = std::max(visibleDocks, 1);
    UpdateMinimumHeightsCustomDocks(height, width / docks, visibleDocks, nFaktor);
}

void GenericChart::zoomBarClicked(int kind)
{
    if (kind > 0)
        Q_EMIT IndependentPlotZoomPlusClick();
    else if (kind < 0)
        Q_EMIT IndependentPlotZoomMinusClick();
    else
        Q_EMIT IndependentPlotZoomResetClick();
}

} // namespace Charts
} // namespace Utils
