// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/panelchart_p.h"

#include "charts/valueovertime.h"
#include "charts/wallclock_p.h"
#include "plot/curvefactory.h"
#include "plot/customcurve.h"
#include "plot/plot.h"
#include "plot/plotcommon_p.h"

#include <qwt_plot_canvas.h>
#include <qwt_plot_directpainter.h>
#include <qwt_scale_map.h>
#include <qwt_text.h>

#include <QTimer>
#include <QWidget>

#include <algorithm>

namespace Utils {
namespace Charts {

PanelChart::PanelChart(QWidget *owner, int count, const Rules::SampleRules &sampleRules)
    : plot(new Plot(owner, true))
    , factory(std::make_unique<CurveFactory>(plot))
    , painter(new QwtPlotDirectPainter)
    , throttle(owner, [this]() { frame(); })
    , rules(sampleRules)
{
    // A panel shows what comes in; the host sets the value scale, nothing
    // rescales by itself and nothing replots but the chart.
    plot->setAutoReplot(false);
    plot->setAxisAutoScale(QwtPlot::xBottom, false);
    plot->setAxisAutoScale(QwtPlot::yLeft, false);
    plot->setStyleSheet(QStringLiteral("QwtPlotCanvas {background-color: white;} "));
    curves.resize(size_t(std::max(count, 1)));
    for (Curve &c : curves) {
        c.series = std::make_unique<ValueOverTime>();
        // The factory connects the series to its curve: the curve always
        // holds the arrays as they are, whatever the series did with its memory.
        c.curve = factory->poAttachData(c.series.get());
        c.curve->setBaseline(Rules::kBaseline);
    }
}

PanelChart::~PanelChart()
{
    delete painter;
}

double PanelChart::append(const double *values, bool update, double timeValue)
{
    const ValueOverTime &first = *curves.front().series;
    const int size = first.size();
    const double last = size > 0 ? first.pxData()[size - 1] : 0.0;
    const double time = sampleTime(timeValue);
    const bool pause = Rules::needsBreak(rules, last, time);
    for (size_t i = 0; i < curves.size(); ++i) {
        ValueOverTime &series = *curves[i].series;
        if (pause) {
            series.vAppend(rules.breakValue, last + 1.0);
            series.vAppend(rules.breakValue, time - 1.0);
        }
        series.vAppend(update ? values[i] : rules.noValue, time);
        // Above the cap the oldest block goes at once, so that memory stays
        // bounded however fast samples come.
        if (series.size() > Rules::kHistoryCap) {
            const int drop = Rules::historyToDrop(series.size());
            series.vEraseFirstValues(drop);
            curves[i].curve->vUpdateData(series.pxData(), series.pyData(), series.size());
            curves[i].lastDrawn = std::max(curves[i].lastDrawn - drop, -1);
            trimmed = true;
        }
    }
    dataUpdated();
    return time;
}

void PanelChart::clear()
{
    for (Curve &c : curves) {
        c.series->vClear();
        c.lastDrawn = -1;
    }
    window = Rules::Window(0.0, 0.0);
    replot();
}

void PanelChart::dataUpdated()
{
    throttle.request();
}

void PanelChart::frame()
{
    const ValueOverTime &first = *curves.front().series;
    const int size = first.size();
    if (size > 0) {
        const double newest = first.pxData()[size - 1];
        const bool noWindow = !(window.second > window.first);
        if (noWindow || newest < window.first || newest > window.second) {
            // The first page starts at the first sample; later ones follow the newest.
            window = noWindow || newest < window.first ? Rules::Window(newest, newest + span)
                                                       : Rules::followPage(window, newest);
            plot->setAxisScale(QwtPlot::xBottom, window.first, window.second);
            replot();
        } else if (trimmed) {
            replot();
        } else if (plot->isVisible()) {
            const QwtScaleMap xMap = plot->canvasMap(QwtPlot::xBottom);
            for (Curve &c : curves) {
                const int end = c.series->size() - 1;
                if (end <= c.lastDrawn)
                    continue;
                if (c.curve->isVisible()) {
                    // Only the strip of the new samples is repainted.
                    const double *x = c.series->pxData();
                    const int from = std::max(c.lastDrawn, 0);
                    const int a = PlotCommon::toPixel(xMap.transform(x[from]));
                    const int b = PlotCommon::toPixel(xMap.transform(x[end]));
                    painter->setClipRegion(QRect(QPoint(std::min(a, b) - 2, 0),
                                                 QPoint(std::max(a, b) + 2, plot->canvas()->height())));
                    painter->drawSeries(c.curve, from, end);
                }
                c.lastDrawn = end;
            }
        }
    }
    trimmed = false;
    if (onFrame)
        onFrame();
}

void PanelChart::replot()
{
    plot->replot();
    for (Curve &c : curves)
        c.lastDrawn = c.series->size() - 1;
}

void PanelChart::setSpan(double newSpan)
{
    span = newSpan;
    if (window.second > window.first) {
        window.second = window.first + span;
        plot->setAxisScale(QwtPlot::xBottom, window.first, window.second);
        replot();
    }
}

void PanelChart::setCurveStyle(int index, const QColor &color, int width, bool filled)
{
    if (index < 0 || index >= int(curves.size()))
        return;
    CustomCurve *curve = curves[size_t(index)].curve;
    QPen pen(color, width);
    pen.setCosmetic(true);
    pen.setJoinStyle(Qt::RoundJoin);
    curve->setPen(pen);
    QColor fill = color;
    fill.setAlpha(30);
    curve->setBrush(filled ? QBrush(fill) : QBrush());
    replot();
}

void PanelChart::setTitle(Plot *plot, const QString &title)
{
    QwtText text(title);
    QFont font = plot->font();
    font.setBold(true);
    text.setFont(font);
    plot->setTitle(text);
}

} // namespace Charts
} // namespace Utils
