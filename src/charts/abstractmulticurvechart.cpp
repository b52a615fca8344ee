// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/abstractmulticurvechart.h"

#include "charts/chartengine_p.h"
#include "charts/charttimeline.h"
#include "charts/valueovertime.h"
#include "plot/customcurve.h"
#include "plot/plot.h"

#include <qwt_legend.h>
#include <qwt_legend_label.h>
#include <qwt_plot_item.h>

#include <QWidget>

#include <algorithm>
#include <cmath>

namespace Utils {
namespace Charts {

AbstractMultiCurveChart::AbstractMultiCurveChart(const ChartConfig &config, QWidget *parent)
    : AbstractTimeChart(config, parent)
{
    for (ChartPlot &p : engine()->plots) {
        if (!p.legend)
            continue;
        connect(p.legend, &QwtLegend::checked, this, &AbstractMultiCurveChart::checked);
        connect(p.legend, &QwtLegend::clicked, this, &AbstractMultiCurveChart::legendClickedNew);
        // The legend starts with every curve shown.
        for (ChartCurve &c : p.curves) {
            if (auto *label = qobject_cast<QwtLegendLabel *>(p.legend->legendWidget(p.plot->itemToInfo(c.curve))))
                label->setChecked(true);
        }
    }
}

AbstractMultiCurveChart::~AbstractMultiCurveChart() = default;

void AbstractMultiCurveChart::setPlotColor(const int &plotNr, const int &curve, const QColor &penColor, bool filling,
                                           const QColor &brushColor, const int &plotWidth)
{
    ChartCurve *c = engine()->curve(plotNr, curve, true);
    if (!c)
        return;
    QPen pen(penColor, std::max(plotWidth, 0));
    pen.setCosmetic(true);
    engine()->applyCurvePen(*c, pen, filling ? QBrush(brushColor, Qt::SolidPattern) : QBrush());
    replotChart(plotNr);
}

void AbstractMultiCurveChart::vHideCurve(const int &plotNr, const int &curve, const bool &hide)
{
    ChartCurve *c = engine()->curve(plotNr, curve, false);
    if (!c)
        return;
    showCurve(c->curve, !hide);
    const ChartPlot &p = engine()->plots[size_t(plotNr)];
    if (p.legend) {
        if (auto *label = qobject_cast<QwtLegendLabel *>(p.legend->legendWidget(p.plot->itemToInfo(c->curve))))
            label->setChecked(!hide);
    }
}

void AbstractMultiCurveChart::setZoomUnderMouse(const int &plotNr, bool enable)
{
    if (engine()->valid(plotNr) && enable)
        engine()->plots[size_t(plotNr)].plot->vSetZoomUnderMouse(true);
}

void AbstractMultiCurveChart::setDataFromStringRGB(const std::string &text, char separator)
{
    // As many curves as the first sample row has values.
    const QString all = QString::fromStdString(text);
    int columns = 0;
    for (const QString &line : all.split(QLatin1Char('\n'))) {
        const Rules::TextSample sample = Rules::parseTextLine(line, QLatin1Char(separator));
        if (sample.ok) {
            columns = sample.values.size();
            break;
        }
    }
    setDataFromStringCurves(text, separator, columns);
}

void AbstractMultiCurveChart::UpdateMinimumHeightsCustomDocks(int height)
{
    UpdateMinimumHeights(height);
}

void AbstractMultiCurveChart::showCurve(QwtPlotItem *item, bool on)
{
    if (!item)
        return;
    for (ChartPlot &p : engine()->plots) {
        for (ChartCurve &c : p.curves) {
            if (c.curve != item)
                continue;
            c.hidden = !on;
            c.curve->setVisible(on);
            if (c.overview)
                c.overview->setVisible(on);
            p.plot->replot();
            engine()->timeLine->poPlot()->replot();
            return;
        }
    }
    item->setVisible(on);
}

void AbstractMultiCurveChart::updateLegend(QVariant itemInfo, QList<QwtLegendData> data)
{
    for (ChartPlot &p : engine()->plots) {
        if (p.legend && p.plot->infoToItem(itemInfo))
            p.legend->updateLegend(itemInfo, data);
    }
}

void AbstractMultiCurveChart::legendClickedNew(const QVariant &itemInfo, int index)
{
    Q_UNUSED(index)
    for (ChartPlot &p : engine()->plots) {
        if (QwtPlotItem *item = p.plot->infoToItem(itemInfo)) {
            showCurve(item, !item->isVisible());
            return;
        }
    }
}

void AbstractMultiCurveChart::checked(const QVariant &itemInfo, bool on, int index)
{
    Q_UNUSED(index)
    for (ChartPlot &p : engine()->plots) {
        if (QwtPlotItem *item = p.plot->infoToItem(itemInfo)) {
            showCurve(item, on);
            return;
        }
    }
}

void AbstractMultiCurveChart::vNameCurve(int plotNr, int curve, const QString &name)
{
    ChartCurve *c = engine()->curve(plotNr, curve, false);
    if (!c || name.isEmpty() || c->curve->title().text() == name)
        return;
    c->curve->setTitle(name);
    ChartPlot &p = engine()->plots[size_t(plotNr)];
    if (p.legend) {
        if (auto *label = qobject_cast<QwtLegendLabel *>(p.legend->legendWidget(p.plot->itemToInfo(c->curve))))
            label->setChecked(!c->hidden);
    }
}

} // namespace Charts
} // namespace Utils
