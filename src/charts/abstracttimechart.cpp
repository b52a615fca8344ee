// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/abstracttimechart.h"

#include "charts/chartengine_p.h"
#include "charts/charttimeline.h"
#include "plot/customcurve.h"
#include "plot/plot.h"
#include "thresholds/valuemarker.h"

#include <qwt_plot_marker.h>
#include <qwt_plot_zoneitem.h>
#include <qwt_scale_div.h>
#include <qwt_text.h>

#include <QEvent>
#include <QLabel>
#include <QPushButton>

#include <cmath>

namespace Utils {
namespace Charts {

AbstractTimeChart::AbstractTimeChart(const ChartConfig &config, QWidget *parent)
    : AbstractChart(config, parent)
{
    for (ChartPlot &p : engine()->plots) {
        const bool ok = bool(connect(p.plot, &Plot::getMouseCoordinate, this, &AbstractTimeChart::slotGetMouseCoordinate));
        Q_ASSERT(ok);
        Q_UNUSED(ok)
    }
}

AbstractTimeChart::~AbstractTimeChart() = default;

void AbstractTimeChart::vAppendData(int plotNr, const double &data, bool update, const double &data1, bool bCustom,
                                    const double &dataExtra, double timeValue)
{
    Q_UNUSED(bCustom)
    engine()->append(plotNr, data, update, data1, dataExtra, timeValue);
}

void AbstractTimeChart::vAppendDataRealTime(int plotNr, const double &data, double timeValue, bool update,
                                            const double &data1, bool bCustom, const double &dataExtra)
{
    Q_UNUSED(bCustom)
    engine()->append(plotNr, data, update, data1, dataExtra, timeValue);
}

double AbstractTimeChart::getXMax(int plotNr) const
{
    return engine()->valid(plotNr) ? engine()->xMax : 0.0;
}

double AbstractTimeChart::getYLeftMax(int plotNr) const
{
    return plotUpperBound(plotNr);
}

void AbstractTimeChart::vSetMarkerVisible(int plotNr, bool visible)
{
    if (engine()->valid(plotNr))
        engine()->plots[size_t(plotNr)].marker->setVisible(visible);
}

void AbstractTimeChart::vSetValueMarkerCustomText(QString text)
{
    for (ChartPlot &p : engine()->plots) {
        p.marker->vSetMarkerText(text);
        p.marker->update();
    }
}

void AbstractTimeChart::vHideSignalText(int plotNr, bool hide)
{
    if (!engine()->valid(plotNr))
        return;
    ValueMarker *marker = engine()->plots[size_t(plotNr)].marker;
    marker->vHideSignal(hide);
    marker->update();
}

void AbstractTimeChart::vSetLabels(bool bSetVisible)
{
    for (ChartPlot &p : engine()->plots) {
        p.titleLabel->setVisible(bSetVisible);
        p.header->setVisible(bSetVisible || p.comboBox || p.zoomBar);
    }
}

void AbstractTimeChart::vSetXMax(int plotNr, double max)
{
    if (!engine()->valid(plotNr) || !(max > 0.0) || !std::isfinite(max))
        return;
    engine()->xMax = max;
    Plot *plot = engine()->plots[size_t(plotNr)].plot;
    plot->vSetXAxis(plot->axisScaleDiv(QwtPlot::xBottom).lowerBound(), max);
}

void AbstractTimeChart::vSetXDefaultRange(int plotNr, double min, double max)
{
    if (engine()->valid(plotNr))
        engine()->plots[size_t(plotNr)].plot->vSetXAxis(min, max);
}

void AbstractTimeChart::vHideCurveFromTimeLine(int plotNr)
{
    if (!engine()->valid(plotNr))
        return;
    for (ChartCurve &c : engine()->plots[size_t(plotNr)].curves) {
        if (c.overview)
            c.overview->setVisible(!c.overview->isVisible());
    }
    engine()->timeLine->poPlot()->replot();
}

void AbstractTimeChart::addZoomBarX(const int &plotNr, bool visible)
{
    if (!engine()->valid(plotNr))
        return;
    ChartPlot &p = engine()->plots[size_t(plotNr)];
    const bool created = !p.zoomBar;
    QWidget *bar = engine()->buildZoomBar(plotNr);
    engine()->zoomBarPlot = plotNr;
    if (created) {
        connect(bar->findChild<QPushButton *>(QStringLiteral("zoomInX")), &QPushButton::clicked, this,
                &AbstractTimeChart::zoomPlusxButtonClicked);
        connect(bar->findChild<QPushButton *>(QStringLiteral("resetZoomX")), &QPushButton::clicked, this,
                &AbstractTimeChart::zoomResetxButtonClicked);
        connect(bar->findChild<QPushButton *>(QStringLiteral("zoomOutX")), &QPushButton::clicked, this,
                &AbstractTimeChart::zoomMinusXButtonClicked);
    }
    bar->setVisible(visible);
    if (visible)
        p.header->show();
}

void AbstractTimeChart::zoomPlusxButtonClicked()
{
    if (!engine()->valid(engine()->zoomBarPlot))
        return;
    engine()->plots[size_t(engine()->zoomBarPlot)].plot->zoomPlusXButtonClicked();
    zoomBarClicked(1);
}

void AbstractTimeChart::zoomMinusXButtonClicked()
{
    if (!engine()->valid(engine()->zoomBarPlot))
        return;
    engine()->plots[size_t(engine()->zoomBarPlot)].plot->zoomMinusXButtonClicked();
    zoomBarClicked(-1);
}

void AbstractTimeChart::zoomResetxButtonClicked()
{
    if (!engine()->valid(engine()->zoomBarPlot))
        return;
    engine()->plots[size_t(engine()->zoomBarPlot)].plot->zoomResetXButtonClicked();
    zoomBarClicked(0);
}

void AbstractTimeChart::vSetCentralWidget()
{
    updateLayoutUsingDockableItems();
}

void AbstractTimeChart::zoomBarClicked(int kind)
{
    Q_UNUSED(kind)
}

void AbstractTimeChart::slotGetMouseCoordinate(QPoint point)
{
    engine()->lastMouse = point;
    const int index = engine()->plotIndexOf(sender());
    if (index >= 0 && engine()->plots[size_t(index)].independent)
        Q_EMIT independentPlotZoomed(index);
}

void AbstractTimeChart::vCreateRectangles(int plotNr, int count)
{
    if (!engine()->valid(plotNr) || count < 0 || count > 1000)
        return;
    ChartPlot &p = engine()->plots[size_t(plotNr)];
    for (QwtPlotZoneItem *zone : p.rectangles)
        delete zone;
    p.rectangles.clear();
    for (int i = 0; i < count; ++i) {
        auto *zone = new QwtPlotZoneItem;
        zone->setOrientation(Qt::Vertical);
        zone->setBrush(QColor(95, 138, 207, 40));
        zone->setPen(QPen(Qt::NoPen));
        zone->setZ(1.0);
        zone->attach(p.plot);
        p.rectangles.push_back(zone);
    }
    engine()->lastHighlight = -1;
}

void AbstractTimeChart::vPaintRectangles()
{
    // The rectangles split the visible window into equal parts.
    for (ChartPlot &p : engine()->plots) {
        if (p.rectangles.empty())
            continue;
        const QwtScaleDiv &div = p.plot->axisScaleDiv(QwtPlot::xBottom);
        const double part = (div.upperBound() - div.lowerBound()) / double(p.rectangles.size());
        for (size_t i = 0; i < p.rectangles.size(); ++i) {
            const double left = div.lowerBound() + part * double(i);
            p.rectangles[i]->setInterval(left, left + part);
        }
        p.plot->replot();
    }
}

void AbstractTimeChart::vHighlighting(int index)
{
    engine()->lastHighlight = index;
    for (ChartPlot &p : engine()->plots) {
        for (size_t i = 0; i < p.rectangles.size(); ++i)
            p.rectangles[i]->setBrush(int(i) == index ? QColor(255, 190, 60, 90) : QColor(95, 138, 207, 40));
        if (!p.rectangles.empty())
            p.plot->replot();
    }
}

void AbstractTimeChart::vClearXLines()
{
    for (ChartPlot &p : engine()->plots) {
        if (p.xLines.empty())
            continue;
        for (QwtPlotMarker *line : p.xLines)
            delete line;
        p.xLines.clear();
        p.plot->replot();
    }
}

void AbstractTimeChart::vUpdateXLines(int plotNr, QList<double> positions, QList<double> values)
{
    if (!engine()->valid(plotNr))
        return;
    ChartPlot &p = engine()->plots[size_t(plotNr)];
    for (QwtPlotMarker *line : p.xLines)
        delete line;
    p.xLines.clear();
    for (int i = 0; i < positions.size() && i < 10000; ++i) {
        if (!std::isfinite(positions.at(i)))
            continue;
        auto *line = new QwtPlotMarker;
        line->setLineStyle(QwtPlotMarker::VLine);
        line->setLinePen(p.xLinePen);
        line->setXValue(positions.at(i));
        if (i < values.size())
            line->setLabel(QwtText(QString::number(values.at(i), 'g', 6)));
        line->setLabelAlignment(Qt::AlignRight | Qt::AlignTop);
        line->attach(p.plot);
        p.xLines.push_back(line);
    }
    p.plot->replot();
}

void AbstractTimeChart::vSetXLinesPen(int plotNr, QColor color)
{
    if (!engine()->valid(plotNr))
        return;
    ChartPlot &p = engine()->plots[size_t(plotNr)];
    p.xLinePen.setColor(color);
    for (QwtPlotMarker *line : p.xLines)
        line->setLinePen(p.xLinePen);
    p.plot->replot();
}

int AbstractTimeChart::nGetLinesSize() const
{
    int n = 0;
    for (const ChartPlot &p : engine()->plots)
        n += int(p.xLines.size());
    return n;
}

void AbstractTimeChart::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translateDockTitleBarTexts();
    AbstractChart::changeEvent(event);
}

void AbstractTimeChart::zoomRectangleDone()
{
    Q_EMIT vZoomRectangle(0);
}

} // namespace Charts
} // namespace Utils
