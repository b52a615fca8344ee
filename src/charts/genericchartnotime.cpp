// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/genericchartnotime.h"

#include "charts/chartengine_p.h"
#include "charts/charttimeline.h"
#include "plot/plot.h"

#include <QDateTime>

namespace Utils {
namespace Charts {

namespace {

ChartConfig noTimeConfig(int plots, bool secondMarker)
{
    ChartConfig config;
    config.plots = plots;
    config.secondMarker = secondMarker;
    config.timed = false;
    return config;
}

} // namespace

GenericChartNoTime::GenericChartNoTime(int plots, QWidget *parent, QMainWindow *mainWindow, bool secondValueMarker)
    : AbstractChart(noTimeConfig(plots, secondValueMarker), parent)
{
    Q_UNUSED(mainWindow)
    enableXAxisDisplayValue(true);
    engine()->timeLine->poPlot()->enableXAxisDisplayValue(true);
}

GenericChartNoTime::~GenericChartNoTime() = default;

void GenericChartNoTime::vAppendData(int plotNr, const double &data, bool update, const double &data1, bool bCustom,
                                     const double &dataExtra)
{
    Q_UNUSED(bCustom)
    ChartEngine *e = engine();
    if (!e->valid(plotNr))
        return;
    const double now = double(QDateTime::currentMSecsSinceEpoch());
    e->append(plotNr, data, update, data1, Rules::kNoExtraValue, now);
    if (update && dataExtra > Rules::kNoExtraValue) {
        // The extra value deliberately 100 ms before the sample it belongs to.
        e->appendExtra(0, dataExtra, now - 100.0);
        e->appendExtra(1, data, now);
        e->appendExtra(2, 0.0, now);
    }
}

void GenericChartNoTime::vAppendDataList(int plotNr, QList<double> values)
{
    ChartEngine *e = engine();
    if (!e->valid(plotNr))
        return;
    if (!isEnabled())
        setEnabled(true);
    const double now = double(QDateTime::currentMSecsSinceEpoch());
    for (int i = 0; i < values.size(); ++i)
        e->appendExtra(i, values.at(i), i == 0 ? now - 100.0 : now);
}

void GenericChartNoTime::vSetZoomToInt(const int &plotNr, bool enable)
{
    if (engine()->valid(plotNr))
        engine()->plots[size_t(plotNr)].plot->vZoomWithIntVal(enable);
}

void GenericChartNoTime::setPlotTitle(const int &plotNr, const std::string &title, const std::string &unit)
{
    AbstractChart::setPlotTitle(plotNr, title, true, unit, true);
}

void GenericChartNoTime::setCustomLabelsFont(const int &plotNr, QString family, int pointSize)
{
    AbstractChart::setCustomLabelsFont(plotNr, QFont(family, pointSize));
}

void GenericChartNoTime::IndependentPlotResize(int plotNr)
{
    ChartEngine *e = engine();
    if (!e->valid(plotNr))
        return;
    bool alone = e->plots[size_t(plotNr)].row->isVisibleTo(this);
    for (int i = 0; i < count(); ++i) {
        if (i != plotNr && e->plots[size_t(i)].row->isVisibleTo(this))
            alone = false;
    }
    for (int i = 0; i < count(); ++i)
        e->plots[size_t(i)].row->setVisible(alone || i == plotNr);
}

} // namespace Charts
} // namespace Utils
