// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/genericchartcolor.h"

#include "charts/chartengine_p.h"
#include "charts/csvtext_p.h"
#include "plot/customcurve.h"

namespace Utils {
namespace Charts {

namespace {

// The channels in their own colours, then further signals in quieter ones.
QColor channelColour(int index)
{
    static const QColor colours[] = {QColor(220, 30, 30),  QColor(30, 160, 60),  QColor(30, 80, 220),
                                     QColor(120, 120, 120), QColor(200, 140, 0), QColor(140, 60, 180)};
    return colours[index % int(sizeof colours / sizeof colours[0])];
}

QString channelName(int index)
{
    switch (index) {
    case 0:
        return GenericChartColor::tr("Red");
    case 1:
        return GenericChartColor::tr("Green");
    case 2:
        return GenericChartColor::tr("Blue");
    }
    return GenericChartColor::tr("Signal %1").arg(index - 2);
}

} // namespace

GenericChartColor::GenericChartColor(int plots, QWidget *parent, QMainWindow *mainWindow, bool secondValueMarker,
                                     bool flag, int curves)
    : GenericChartMulti(
          ChartConfig::multiCurve(plots, mainWindow, secondValueMarker, flag, MarkerKind::Color, curves), parent)
{
    for (int plot = 0; plot < count(); ++plot) {
        for (int c = 0; c < int(engine()->plots[size_t(plot)].curves.size()); ++c) {
            setPlotColor(plot, c, channelColour(c), false, QColor(), 1);
            vNameCurve(plot, c, channelName(c));
        }
    }
}

GenericChartColor::~GenericChartColor() = default;

void GenericChartColor::vAppendDataMultipleCurvesRGB(int plotNr, QList<double> values, bool update, double timeValue,
                                                     QString name)
{
    ChartEngine *e = engine();
    if (!e->valid(plotNr))
        return;
    ChartPlot &p = e->plots[size_t(plotNr)];
    p.listForm = ChartPlot::ListForm::Color;
    p.markerName = name.isEmpty() ? tr("Signal") : name;
    e->appendCurves(plotNr, values, {}, {}, update, timeValue, true);
}

void GenericChartColor::vAppendDataMultipleCurvesRGBOnly(int plotNr, QList<double> values, bool update,
                                                         double timeValue, QString name)
{
    Q_UNUSED(name)
    ChartEngine *e = engine();
    if (!e->valid(plotNr))
        return;
    // The marker keeps what it shows.
    e->appendCurves(plotNr, values, {}, {}, update, timeValue, true, false);
}

std::string GenericChartColor::dataToStringCurvesRGB() const
{
    QList<const ValueOverTime *> series;
    QStringList titles;
    for (const ChartPlot &p : engine()->plots) {
        for (int c = 0; c < int(p.curves.size()); ++c) {
            series << p.curves[size_t(c)].series.get();
            titles << (c < 3 ? QStringLiteral("RGB").mid(c, 1) : QString::number(c - 2));
        }
    }
    return Utils::Text::csv(series, &titles, QStringLiteral(","), 3).toStdString();
}

} // namespace Charts
} // namespace Utils
