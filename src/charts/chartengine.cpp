// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/chartengine_p.h"

#include "charts/abstractchart.h"
#include "charts/charttimeline.h"
#include "charts/rangeselector.h"
#include "charts/valueovertime.h"
#include "charts/wallclock_p.h"
#include "plot/curvefactory.h"
#include "plot/customcurve.h"
#include "plot/plot.h"
#include "plot/plotcommon_p.h"
#include "thresholds/valuemarker.h"
#include "thresholds/valuemarkercolor.h"
#include "thresholds/valuemarkermultilist.h"

#include <qwt_legend.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_directpainter.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_zoneitem.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>

#include <QComboBox>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace Utils {
namespace Charts {

namespace {

ValueMarker *makeMarker(MarkerKind kind, QwtPlot *plot)
{
    switch (kind) {
    case MarkerKind::Color:
        return new ValueMarkerColor(plot);
    case MarkerKind::MultiList:
        return new ValueMarkerMultiList(plot);
    case MarkerKind::Plain:
        break;
    }
    return new ValueMarker(plot);
}

const char *const kComboStyle = "QComboBox{ \n     border: 1px solid gray;\n     border-radius: 3px;\n     padding: 0px 0px "
                                "0px 0px;\n     min-width: 0px;\n }\n";
const char *const kComboStyleBorderless = "QComboBox{ \n     border: 0px;\n     border-radius: 0px;\n     padding: 0px "
                                          "0px 0px 0px;\n     min-width: 0px;\n }\n";
const char *const kRoundButtonStyle
    = "QPushButton {margin: 0px; padding:0px; border: 1px solid #8f8f91; border-radius: 6px; background-color: "
      "qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #f6f7fa, stop: 1 #dadbde);}\n"
      "QPushButton:pressed {background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #dadbde, stop: 1 "
      "#f6f7fa);}\n"
      "QPushButton:hover {border-color: navy;}";

} // namespace

ChartEngine::ChartEngine(AbstractChart *owner, const ChartConfig &cfg)
    : q(owner)
    , config(cfg)
    , mainWindow(cfg.timed ? cfg.mainWindow : nullptr)
{
    config.plots = std::max(config.plots, 0);
    config.curvesPerPlot = std::max(config.curvesPerPlot, 1);
}

ChartEngine::~ChartEngine()
{
    delete painter;
    // The time line has no parent when the chart was never laid out with it.
    if (timeLine && !timeLine->parent())
        delete timeLine.data();
}

void ChartEngine::createPlots()
{
    if (mainWindow)
        mainWindow->setDockNestingEnabled(false);
    timeLine = new ChartTimeLine(nullptr);
    painter = new QwtPlotDirectPainter;
    plots.resize(size_t(config.plots));
    for (int i = 0; i < config.plots; ++i) {
        ChartPlot &p = plots[size_t(i)];
        p.plot = new Plot(q);
        p.plot->setObjectName(QStringLiteral("ChartPlot%1").arg(i));
        p.plot->setStyleSheet(QStringLiteral("QwtPlotCanvas {background-color: white;} "));
        p.factory = std::make_unique<CurveFactory>(p.plot);
        for (int c = 0; c < config.curvesPerPlot; ++c) {
            ChartCurve curve;
            curve.series = std::make_unique<ValueOverTime>();
            p.curves.push_back(std::move(curve));
        }
        if (config.secondMarker)
            p.secondMarker = makeMarker(config.marker, p.plot);
        p.marker = makeMarker(config.marker, p.plot);
        if (mainWindow) {
            p.plot->setMinimumHeight(170);
            p.plot->setMinimumWidth(100);
        } else {
            p.plot->setMinimumHeight(100);
            p.plot->setMinimumWidth(460);
        }
        p.plot->axisWidget(QwtPlot::yLeft)->setMargin(0);
        p.plot->axisScaleDraw(QwtPlot::yLeft)->setSpacing(0);
        // Deliberately overrides the width just set: docks and rows stay narrowable.
        p.plot->setMinimumWidth(200);
        // The time wheel may zoom out to a year; the zoom reset returns to the time line's window.
        p.plot->vSetXAxis(0.0, 3.1536e10);
        if (config.legend) {
            p.legend = new QwtLegend;
            p.legend->setDefaultItemMode(QwtLegendData::Checkable);
            p.plot->insertLegend(p.legend, QwtPlot::TopLegend);
        }

        // The plot's row: a header (title, custom label, combo box, zoom bar) above the plot.
        p.row = new QWidget(q);
        p.row->setObjectName(QStringLiteral("ChartRow%1").arg(i));
        auto *rowLayout = new QVBoxLayout(p.row);
        rowLayout->setContentsMargins(0, 0, 0, 0);
        rowLayout->setSpacing(0);
        p.header = new QWidget(p.row);
        auto *headerLayout = new QHBoxLayout(p.header);
        headerLayout->setContentsMargins(4, 0, 4, 0);
        headerLayout->setSpacing(4);
        p.titleLabel = new QLabel(p.header);
        p.customLabel = new QLabel(p.header);
        p.customLabel->hide();
        headerLayout->addWidget(p.titleLabel);
        headerLayout->addWidget(p.customLabel);
        headerLayout->addStretch(1);
        p.header->hide();
        rowLayout->addWidget(p.header);
        rowLayout->addWidget(p.plot, 1);
    }
    if (mainWindow) {
        timeLine->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        mainWindow->setCorner(Qt::TopLeftCorner, Qt::LeftDockWidgetArea);
        mainWindow->setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
        mainWindow->setCorner(Qt::TopRightCorner, Qt::RightDockWidgetArea);
        mainWindow->setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    }
}

void ChartEngine::initMembers()
{
    clear();
    curvePen = QPen(filling ? QColor(188, 0, 0) : QColor(Qt::black), 1);
    curvePen.setCosmetic(true);
    curvePen.setJoinStyle(Qt::RoundJoin);
    curveBrush = QBrush(QColor(188, 0, 0, 20), Qt::SolidPattern);
    for (ChartPlot &p : plots) {
        p.plot->setAutoReplot(false);
        for (ChartCurve &c : p.curves)
            attachCurves(c, p);
    }
    // The custom curves: three extra series drawn on plot 0.
    if (!plots.empty()) {
        for (int i = 0; i < 3; ++i)
            addExtra();
    }
    timeLine->poPlot()->setAutoReplot(false);
    delayTimer = new QTimer(q);
    delayTimer->setSingleShot(true);
    delayTimer->setInterval(500);
    QObject::connect(delayTimer, &QTimer::timeout, q, &AbstractChart::sendDelayValue);
    throttle = std::make_unique<RedrawThrottle>(q, [this]() { frame(); });
}

void ChartEngine::attachCurves(ChartCurve &c, ChartPlot &p)
{
    c.curve = p.factory->poAttachData(c.series.get());
    c.overview = timeLine->poCurveFactory()->poAttachData(c.series.get());
    // The chart hands its curves the arrays itself, once per redraw, instead of
    // a signal per sample: a fast sensor appends far more often than it is drawn.
    for (CustomCurve *curve : {c.curve, c.overview})
        QObject::disconnect(c.series.get(), &ValueOverTime::vDataUpdated, curve, &CustomCurve::vUpdateData);
    c.syncedX = c.series->pxData();
    c.syncedCount = c.series->size();
    applyCurvePen(c, curvePen, filling ? curveBrush : QBrush());
}

void ChartEngine::sync(ChartCurve &c)
{
    const double *x = c.series->pxData();
    const int count = c.series->size();
    if (x == c.syncedX && count == c.syncedCount)
        return;
    for (CustomCurve *curve : {c.curve, c.overview}) {
        if (curve)
            curve->vUpdateData(x, c.series->pyData(), count);
    }
    c.syncedX = x;
    c.syncedCount = count;
}

void ChartEngine::syncAll()
{
    for (ChartPlot &p : plots) {
        for (ChartCurve &c : p.curves)
            sync(c);
    }
    for (ChartCurve &c : extra)
        sync(c);
}

bool ChartEngine::trim(ChartCurve &c)
{
    const int drop = Rules::historyToDrop(c.series->size());
    if (drop <= 0)
        return false;
    c.series->vEraseFirstValues(drop);
    c.lastDrawn = std::max(c.lastDrawn - drop, -1);
    c.overviewDrawn = std::max(c.overviewDrawn - drop, -1);
    sync(c);
    return true;
}

void ChartEngine::afterAppend(ChartCurve &c)
{
    // Above the cap the oldest block goes at once, so that the history stays
    // bounded however fast samples come; new memory reaches the curves at once,
    // so that no paint reads the old.
    if (c.series->size() > Rules::kHistoryCap) {
        trim(c);
        trimmed = true;
    } else if (c.series->pxData() != c.syncedX) {
        sync(c);
    }
}

void ChartEngine::applyCurvePen(ChartCurve &c, const QPen &pen, const QBrush &brush)
{
    for (CustomCurve *curve : {c.curve, c.overview}) {
        if (!curve)
            continue;
        curve->setPen(pen);
        curve->setBrush(brush);
        curve->setBaseline(curve == c.overview ? Rules::kTimeLineBaseline : Rules::kBaseline);
    }
}

ChartCurve *ChartEngine::curve(int plot, int index, bool create)
{
    if (!valid(plot) || index < 0 || index > 255)
        return nullptr;
    ChartPlot &p = plots[size_t(plot)];
    if (index >= int(p.curves.size())) {
        if (!create)
            return nullptr;
        while (int(p.curves.size()) <= index) {
            ChartCurve c;
            c.series = std::make_unique<ValueOverTime>();
            attachCurves(c, p);
            p.curves.push_back(std::move(c));
        }
    }
    return &p.curves[size_t(index)];
}

void ChartEngine::append(int plot, double data, bool update, double data1, double dataExtra, double timeValue)
{
    if (!valid(plot))
        return;
    if (!q->isEnabled())
        q->setEnabled(true);
    ChartPlot &p = plots[size_t(plot)];
    ValueOverTime &series = *p.curves.front().series;
    const int size = series.size();
    const double last = size > 0 ? series.pxData()[size - 1] : 0.0;
    const double time = sampleTime(timeValue);
    const Rules::SampleRules &rules = config.rules;
    const bool withExtra = dataExtra > Rules::kNoExtraValue && !extra.empty();
    // The marker's values first: the append below may redraw, which shows them.
    p.markerValue = data;
    p.markerSecond = data1 == Rules::kNoSecondValue ? 0.0 : data1;
    p.markerPending = true;
    p.listForm = ChartPlot::ListForm::None;
    if (Rules::needsBreak(rules, last, time)) {
        series.vAppend(rules.breakValue, last + 1.0);
        series.vAppend(rules.breakValue, time - 1.0);
        if (withExtra) {
            extra.front().series->vAppend(rules.breakValue, last + 1.0);
            extra.front().series->vAppend(rules.breakValue, time - 1.0);
        }
    }
    series.vAppend(update ? data : rules.noValue, time);
    afterAppend(p.curves.front());
    if (withExtra) {
        extra.front().series->vAppend(update ? dataExtra : rules.noValue, time);
        afterAppend(extra.front());
    }
    dataUpdated();

    for (int jumps = Rules::jumpsAfter(rules, last, time); jumps > 0; --jumps)
        q->jumpToPlottingArea();
}

void ChartEngine::appendNoTime(int plot, double value, double position)
{
    if (!valid(plot))
        return;
    ChartPlot &p = plots[size_t(plot)];
    p.markerValue = value;
    p.markerSecond = 0.0;
    p.markerPending = true;
    p.listForm = ChartPlot::ListForm::None;
    p.curves.front().series->vAppend(value, position);
    afterAppend(p.curves.front());
    dataUpdated();
}

void ChartEngine::appendCurves(int plot, const QList<double> &values, const QList<int> &curves,
                               const QList<QColor> &colors, bool update, double timeValue, bool breaks, bool toMarker)
{
    if (!valid(plot))
        return;
    if (!q->isEnabled())
        q->setEnabled(true);
    ChartPlot &p = plots[size_t(plot)];
    const ValueOverTime &first = *p.curves.front().series;
    const double previous = first.size() > 0 ? first.pxData()[first.size() - 1] : 0.0;
    const double time = sampleTime(timeValue);
    const Rules::SampleRules &rules = config.rules;
    const bool pause = breaks && Rules::needsBreak(rules, previous, time);
    if (toMarker) {
        p.markerList = values;
        p.markerValue = values.value(0);
        p.markerPending = true;
    }
    for (int i = 0; i < values.size(); ++i) {
        const int index = curves.isEmpty() ? i : curves.value(i, -1);
        ChartCurve *c = curve(plot, index, true);
        if (!c)
            continue;
        if (pause) {
            c->series->vAppend(rules.breakValue, previous + 1.0);
            c->series->vAppend(rules.breakValue, time - 1.0);
        }
        c->series->vAppend(update ? values.at(i) : rules.noValue, time);
        afterAppend(*c);
        if (i < colors.size() && colors.at(i).isValid() && c->curve && c->curve->pen().color() != colors.at(i)) {
            QPen pen = c->curve->pen();
            pen.setColor(colors.at(i));
            c->curve->setPen(pen);
            if (c->overview)
                c->overview->setPen(pen);
        }
    }
    dataUpdated();
    if (breaks)
        for (int jumps = Rules::jumpsAfter(rules, previous, time); jumps > 0; --jumps)
            q->jumpToPlottingArea();
}

void ChartEngine::addExtra()
{
    ChartCurve c;
    c.series = std::make_unique<ValueOverTime>();
    c.curve = plots.front().factory->poAttachData(c.series.get());
    QObject::disconnect(c.series.get(), &ValueOverTime::vDataUpdated, c.curve, &CustomCurve::vUpdateData);
    c.curve->setPen(QPen(QColor(0, 90, 200), 1, Qt::DashLine));
    c.curve->setBaseline(Rules::kBaseline);
    // The custom curves have no legend entry; attached again so that the legend forgets them.
    QwtPlot *plot = c.curve->plot();
    c.curve->detach();
    c.curve->setItemAttribute(QwtPlotItem::Legend, false);
    c.curve->attach(plot);
    extra.push_back(std::move(c));
}

void ChartEngine::appendExtra(int index, double value, double time)
{
    if (index < 0 || index >= 64 || plots.empty())
        return;
    while (int(extra.size()) <= index)
        addExtra();
    extra[size_t(index)].series->vAppend(value, time);
    afterAppend(extra[size_t(index)]);
    dataUpdated();
}

void ChartEngine::clear()
{
    for (int i = 0; i < int(plots.size()); ++i)
        clear(i);
    for (ChartCurve &c : extra) {
        c.series->vClear();
        c.lastDrawn = -1;
        sync(c);
    }
    plottingEnabled = true;
}

void ChartEngine::clear(int plot)
{
    if (!valid(plot))
        return;
    for (ChartCurve &c : plots[size_t(plot)].curves) {
        c.series->vClear();
        c.lastDrawn = -1;
        c.overviewDrawn = -1;
        sync(c);
    }
}

Rules::Window ChartEngine::timeLineWindow() const
{
    const QwtScaleDiv &div = timeLine->poPlot()->axisScaleDiv(QwtPlot::xBottom);
    return Rules::Window(div.lowerBound(), div.upperBound());
}

double ChartEngine::newestX() const
{
    if (plots.empty())
        return 0.0;
    const ValueOverTime &s = *plots.front().curves.front().series;
    return s.size() > 0 ? s.pxData()[s.size() - 1] : 0.0;
}

double ChartEngine::firstX() const
{
    if (plots.empty())
        return 0.0;
    const ValueOverTime &s = *plots.front().curves.front().series;
    return s.size() > 0 ? s.pxData()[0] : 0.0;
}

void ChartEngine::moveTimeLine(const Rules::Window &w)
{
    if (!(w.second > w.first))
        return;
    // The selection keeps its pixels, so it moves with the overview; the new
    // times are passed on to the plots.
    const RangeSelector *selector = timeLine->poRangeSelector();
    const double leftPx = selector->geometry().left();
    const double rightPx = selector->geometry().right() + 1;
    // A window narrower than the selector's least width (a narrow strip, or one
    // in a hidden tab) is not what the pixels show; it keeps its place in the
    // overview by its times instead.
    const Rules::Window before = timeLineWindow();
    const Rules::Window selection(timeLine->selectionLeft(), timeLine->selectionRight());
    const QwtScaleMap oldMap = timeLine->poPlot()->canvasMap(QwtPlot::xBottom);
    const bool byPixels = std::fabs(oldMap.transform(selection.first) - leftPx) <= 1.0
        && std::fabs(oldMap.transform(selection.second) - rightPx) <= 1.0;
    timeLine->vUpdateXAxisScale(w.first, w.second);
    if (byPixels || !(before.second > before.first)) {
        const QwtScaleMap map = timeLine->poPlot()->canvasMap(QwtPlot::xBottom);
        q->timeLineRangeUpdated(map.invTransform(leftPx), map.invTransform(rightPx));
        return;
    }
    const double scale = (w.second - w.first) / (before.second - before.first);
    const double left = w.first + (selection.first - before.first) * scale;
    const double right = w.first + (selection.second - before.first) * scale;
    timeLine->setSelectorRange(left, right, false);
    q->timeLineRangeUpdated(left, right);
}

void ChartEngine::passSelectorOn()
{
    // A re-sync after resizing, not the user moving the selection: a chart
    // that follows the newest sample goes on following it.
    const bool was = programmatic;
    programmatic = true;
    q->timeLineRangeUpdated(timeLine->selectionLeft(), timeLine->selectionRight());
    programmatic = was;
}

void ChartEngine::setVisibleWindow(double left, double right)
{
    syncAll();
    window = Rules::Window(left, right);
    for (ChartPlot &p : plots) {
        if (p.independent)
            continue;
        p.plot->QwtPlot::setAxisScale(QwtPlot::xBottom, left, right);
        // The plot's own zoom reset returns to this window.
        p.plot->vSetXAxis(left, right);
        p.plot->replot();
        for (ChartCurve &c : p.curves)
            c.lastDrawn = c.series->size() - 1;
    }
    for (ChartCurve &c : extra)
        c.lastDrawn = c.series->size() - 1;
}

void ChartEngine::pushMarkers()
{
    for (ChartPlot &p : plots) {
        if (!p.markerPending)
            continue;
        p.markerPending = false;
        switch (p.listForm) {
        case ChartPlot::ListForm::None:
            // A marker repaints at every value it is given: only new values.
            if (p.marker->s64Value() != p.markerValue || p.marker->getSecondValue() != p.markerSecond)
                p.marker->vSetValue(p.markerValue, p.markerSecond);
            if (p.secondMarker && p.secondMarker->s64Value() != p.markerSecond)
                p.secondMarker->vSetValue(p.markerSecond, 0.0);
            break;
        case ChartPlot::ListForm::Color:
            if (auto *marker = qobject_cast<ValueMarkerColor *>(p.marker))
                marker->vSetValueColor(p.markerList, p.markerName);
            break;
        case ChartPlot::ListForm::List:
            if (auto *marker = qobject_cast<ValueMarkerColor *>(p.marker))
                marker->vSetValueList(p.markerList, p.markerTypes);
            break;
        case ChartPlot::ListForm::ColorList:
            if (auto *marker = qobject_cast<ValueMarkerMultiList *>(p.marker))
                marker->vSetValueList(p.markerList, p.markerTypes, p.markerColors);
            break;
        }
    }
}

void ChartEngine::dataUpdated()
{
    throttle->request();
}

void ChartEngine::frame()
{
    if (!plottingEnabled || plots.empty() || redrawSuppressed) {
        // Frozen: the markers still show the newest values.
        pushMarkers();
        return;
    }
    ValueOverTime &first = *plots.front().curves.front().series;
    if (first.size() < 2) {
        syncAll();
        for (ChartPlot &p : plots)
            for (ChartCurve &c : p.curves)
                c.lastDrawn = c.series->size() - 1;
        pushMarkers();
        return;
    }

    const double newest = first.pxData()[first.size() - 1];
    const Rules::Window overview = timeLineWindow();
    if (followNewest && window.second > window.first && newest > window.second) {
        // One page on; the overview follows when the page leaves it.
        const Rules::Window next = Rules::followPage(window, newest);
        const double overviewWidth = std::max(overview.second - overview.first, next.second - next.first);
        programmatic = true;
        if (next.second > overview.second)
            timeLine->vUpdateXAxisScale(next.second - overviewWidth, next.second);
        timeLine->setSelectorRange(next.first, next.second, false);
        setVisibleWindow(next.first, next.second);
        programmatic = false;
        pushMarkers();
        return;
    }
    if (!followNewest && overview.second > overview.first && newest > overview.second) {
        // Not following and past the time line: stop painting until the user navigates.
        plottingEnabled = false;
        pushMarkers();
        return;
    }
    redrawNow();
}

void ChartEngine::redrawNow()
{
    syncAll();
    pushMarkers();
    // The overview shows the history: when its oldest part went, it is drawn anew.
    const bool overviewChanged = trimmed;
    trimmed = false;
    // Paints the samples after \a drawn; \a wholeColumns waits until they reach a new pixel column.
    const auto paintNew = [this](ChartCurve &c, QwtPlot *plot, CustomCurve *curve, int &drawn, bool wholeColumns) {
        const int size = c.series->size();
        if (!curve || !plot || !curve->isVisible() || size - 1 <= drawn || !plot->isVisible())
            return;
        const int from = std::max(drawn, 0);
        const QwtScaleMap xMap = plot->canvasMap(curve->xAxis());
        const double *x = c.series->pxData();
        const double left = std::min(xMap.s1(), xMap.s2());
        const double right = std::max(xMap.s1(), xMap.s2());
        if (x[size - 1] < left || x[from] > right) {
            drawn = size - 1; // nothing new in view
            return;
        }
        const int a = PlotCommon::toPixel(xMap.transform(x[from]));
        const int b = PlotCommon::toPixel(xMap.transform(x[size - 1]));
        if (wholeColumns && a == b)
            return;
        // Only the strip of the new samples is repainted.
        const QRect strip = QRect(QPoint(std::min(a, b) - 2, 0), QPoint(std::max(a, b) + 2, plot->canvas()->height()));
        painter->setClipRegion(strip);
        painter->drawSeries(curve, from, size - 1);
        drawn = size - 1;
    };
    for (ChartPlot &p : plots) {
        for (ChartCurve &c : p.curves) {
            if (!c.hidden) {
                paintNew(c, p.plot, c.curve, c.lastDrawn, false);
                // The overview shows a minute or more: a redraw often adds nothing it could show yet.
                paintNew(c, timeLine->poPlot(), c.overview, c.overviewDrawn, true);
            }
            c.lastDrawn = c.series->size() - 1;
        }
        if (fullReplot)
            p.plot->replot();
    }
    if (!plots.empty()) {
        for (ChartCurve &c : extra) {
            paintNew(c, plots.front().plot, c.curve, c.lastDrawn, false);
            c.lastDrawn = c.series->size() - 1;
        }
    }
    if (overviewChanged) {
        timeLine->poPlot()->replot();
        overviewRedrawn();
    }
}

void ChartEngine::overviewRedrawn()
{
    for (ChartPlot &p : plots) {
        for (ChartCurve &c : p.curves)
            c.overviewDrawn = c.series->size() - 1;
    }
}

void ChartEngine::replotAll()
{
    syncAll();
    for (ChartPlot &p : plots) {
        p.plot->replot();
        for (ChartCurve &c : p.curves)
            c.lastDrawn = c.series->size() - 1;
    }
    for (ChartCurve &c : extra)
        c.lastDrawn = c.series->size() - 1;
    timeLine->poPlot()->replot();
    overviewRedrawn();
}

int ChartEngine::plotIndexOf(const QObject *sender) const
{
    for (int i = 0; i < int(plots.size()); ++i) {
        if (plots[size_t(i)].plot == sender)
            return i;
    }
    return -1;
}

QWidget *ChartEngine::buildZoomBar(int plot)
{
    ChartPlot &p = plots[size_t(plot)];
    if (p.zoomBar)
        return p.zoomBar;
    p.zoomBar = new QWidget(p.header);
    p.zoomBar->setFixedSize(70, 30);
    p.zoomBar->setStyleSheet(QStringLiteral("QWidget {border: 0px margin: 0px; padding:0px;}"));
    auto *layout = new QHBoxLayout(p.zoomBar);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    struct ZoomButton
    {
        const char *icon;
        QSize size;
        const char *tip;
        const char *name;
    };
    const ZoomButton zoomButtons[] = {
        {":/newPrefix/icons/Zoom_in_new-01.svg", QSize(20, 20), QT_TRANSLATE_NOOP("Utils::Charts::AbstractChart", "Zoom In"),
         "zoomInX"},
        {":/newPrefix/icons/Zoom_reset_Ver.svg", QSize(10, 20),
         QT_TRANSLATE_NOOP("Utils::Charts::AbstractChart", "Reset Zoom"), "resetZoomX"},
        {":/newPrefix/icons/Zoom_out_new-01.svg", QSize(20, 20),
         QT_TRANSLATE_NOOP("Utils::Charts::AbstractChart", "Zoom Out"), "zoomOutX"},
    };
    for (const ZoomButton &look : zoomButtons) {
        auto *button = new QPushButton(p.zoomBar);
        button->setObjectName(QLatin1String(look.name));
        button->setIcon(QIcon(QLatin1String(look.icon)));
        button->setIconSize(look.size);
        button->setFixedSize(look.size);
        button->setCursor(Qt::PointingHandCursor);
        button->setStyleSheet(QLatin1String(kRoundButtonStyle));
        button->setToolTip(AbstractChart::tr(look.tip));
        layout->addWidget(button);
    }
    static_cast<QHBoxLayout *>(p.header->layout())->addWidget(p.zoomBar);
    return p.zoomBar;
}

QComboBox *ChartEngine::buildCombo(int plot, const QStringList &items, bool hidden)
{
    ChartPlot &p = plots[size_t(plot)];
    if (!p.comboBox) {
        auto *prev = new QPushButton(QStringLiteral("<"), p.header);
        prev->setObjectName(QStringLiteral("timelinePrev"));
        prev->setFixedSize(18, 18);
        prev->setFlat(true);
        p.comboBox = new QComboBox(p.header);
        auto *next = new QPushButton(QStringLiteral(">"), p.header);
        next->setObjectName(QStringLiteral("timelineNext"));
        next->setFixedSize(18, 18);
        next->setFlat(true);
        auto *layout = static_cast<QHBoxLayout *>(p.header->layout());
        // Placed before the stretch, after the title and the custom label.
        layout->insertWidget(2, prev);
        layout->insertWidget(3, p.comboBox);
        layout->insertWidget(4, next);
        QObject::connect(prev, &QPushButton::clicked, q, &AbstractChart::independentActionPrev);
        QObject::connect(next, &QPushButton::clicked, q, &AbstractChart::independentActionNext);
    }
    // The borderless look where the combo box is meant to blend into the title row.
    p.comboBox->setStyleSheet(QLatin1String(hidden ? kComboStyleBorderless : kComboStyle));
    p.comboBox->clear();
    p.comboBox->addItems(items);
    p.header->show();
    return p.comboBox;
}

void ChartEngine::setCentralWidget()
{
    if (!mainWindow)
        return;
    central = new QWidget;
    central->setObjectName(QStringLiteral("ChartCentralWidget"));
    central->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(timeLine);
    if (statusRow)
        layout->addWidget(statusRow);
    mainWindow->setCentralWidget(central);
    for (int i = 0; i < int(plots.size()); ++i) {
        ChartPlot &p = plots[size_t(i)];
        p.dock = new QDockWidget(p.title, mainWindow);
        p.dock->setObjectName(QStringLiteral("DockGraphNo%1").arg(i));
        p.row->setFixedHeight(300);
        p.row->setMinimumWidth(185);
        p.dock->setWidget(p.row);
        auto *bar = new QWidget(p.dock);
        bar->setObjectName(QStringLiteral("DockTitleBar"));
        auto *barLayout = new QHBoxLayout(bar);
        barLayout->setContentsMargins(4, 2, 4, 2);
        auto *hide = new QPushButton(QStringLiteral("\u2715"), bar);
        hide->setObjectName(QStringLiteral("DockHideButton"));
        hide->setFlat(true);
        hide->setFixedSize(18, 18);
        hide->setToolTip(AbstractChart::tr("Hide"));
        auto *label = new QLabel(p.title, bar);
        label->setObjectName(QStringLiteral("DockTitleLabel"));
        label->setFont(QFont(QStringLiteral("Segoe UI")));
        barLayout->addWidget(hide);
        barLayout->addWidget(label, 1);
        p.dock->setTitleBarWidget(bar);
        QObject::connect(hide, &QPushButton::clicked, q, [this, i]() { q->setDockVisible(i, false); });
        mainWindow->addDockWidget(i == 0 ? Qt::TopDockWidgetArea : Qt::BottomDockWidgetArea, p.dock);
    }
}

void ChartEngine::updateLayout()
{
    if (!plotsWidget) {
        scrollArea = new QScrollArea(q);
        scrollArea->setObjectName(QStringLiteral("ChartScrollArea"));
        scrollArea->setWidgetResizable(true);
        scrollArea->setFrameShape(QFrame::NoFrame);
        plotsWidget = new QWidget;
        plotsLayout = new QVBoxLayout(plotsWidget);
        plotsLayout->setContentsMargins(0, 0, 0, 0);
        plotsLayout->setSpacing(0);
        scrollArea->setWidget(plotsWidget);
    }
    for (ChartPlot &p : plots) {
        plotsLayout->addWidget(p.row, 1);
        p.row->setMinimumHeight(0);
        p.row->setMaximumHeight(QWIDGETSIZE_MAX);
    }
}

void ChartEngine::layOut()
{
    auto *layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    statusRow = new QWidget(q);
    statusRow->setObjectName(QStringLiteral("ChartStatus"));
    auto *statusLayout = new QHBoxLayout(statusRow);
    statusLayout->setContentsMargins(4, 2, 4, 2);
    statusIcon = new QLabel(statusRow);
    statusText = new QLabel(statusRow);
    statusLayout->addWidget(statusIcon);
    statusLayout->addWidget(statusText, 1);
    statusRow->hide();
    if (mainWindow) {
        setCentralWidget();
        return;
    }
    updateLayout();
    layout->addWidget(scrollArea, 1);
    layout->addWidget(timeLine);
    layout->addWidget(statusRow);
}

} // namespace Charts
} // namespace Utils
