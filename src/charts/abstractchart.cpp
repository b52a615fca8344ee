// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/abstractchart.h"

#include "charts/chartengine_p.h"
#include "charts/csvtext_p.h"
#include "charts/charttimeline.h"
#include "charts/rangeselector.h"
#include "charts/valueovertime.h"
#include "plot/customcurve.h"
#include "plot/plot.h"
#include "plot/timescaledraw.h"
#include "plot/wplotmagnifier.h"
#include "thresholds/valuemarker.h"

#include <qwt_plot_canvas.h>
#include <qwt_plot_directpainter.h>
#include <qwt_scale_div.h>
#include <qwt_text.h>

#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QTimer>

#include <cmath>

namespace Utils {
namespace Charts {

namespace {

double lowerOf(const QwtPlot *plot, int axis)
{
    return plot->axisScaleDiv(axis).lowerBound();
}

double upperOf(const QwtPlot *plot, int axis)
{
    return plot->axisScaleDiv(axis).upperBound();
}

} // namespace

AbstractChart::AbstractChart(const ChartConfig &config, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<ChartEngine>(this, config))
{
    d->createPlots();
    for (ChartPlot &p : d->plots) {
        Plot *plot = p.plot;
        bool ok = true;
        ok &= bool(connect(plot, &Plot::axisChanged, this, &AbstractChart::axisChanged));
        ok &= bool(connect(plot, &Plot::zoomRectangle, this, &AbstractChart::zoomRectangleSet));
        ok &= bool(connect(plot, &Plot::SignalsetBaselineTo, this, &AbstractChart::setBaselineTo));
        ok &= bool(connect(plot, &Plot::zoomCenterSignalEvent, this, &AbstractChart::zoomCenterSlotEvent));
        ok &= bool(connect(plot, &Plot::zoomCenterRightSignalEvent, this, &AbstractChart::zoomCenterRightSlotEvent));
        ok &= bool(connect(plot, &Plot::changeXSignal, this, &AbstractChart::SetXTimeline));
        ok &= bool(connect(plot, &Plot::plotUltraZoomed, this, &AbstractChart::slotUltraZoom));
        ok &= bool(connect(plot, &Plot::IndependentPlotDoubleClick, this, &AbstractChart::IndependentPlotDoubleClickSlot));
        ok &= bool(connect(plot, &Plot::zommResetForNoiseLine, this, &AbstractChart::vSlotZommResetForNoiseLine));
        Q_ASSERT(ok);
        Q_UNUSED(ok)
    }
    d->initMembers();
    ChartTimeLine *timeLine = d->timeLine;
    bool ok = true;
    ok &= bool(connect(timeLine, &ChartTimeLine::vRangeChanged, this, &AbstractChart::timeLineRangeUpdated));
    ok &= bool(connect(timeLine, &ChartTimeLine::vScaleUpdated, this, &AbstractChart::timeLineScaleUpdated));
    ok &= bool(connect(timeLine, &ChartTimeLine::vActionNext, this, &AbstractChart::actionNext));
    ok &= bool(connect(timeLine, &ChartTimeLine::vActionPrev, this, &AbstractChart::actionPrev));
    ok &= bool(connect(timeLine, &ChartTimeLine::vActionFirst, this, &AbstractChart::actionFirst));
    ok &= bool(connect(timeLine, &ChartTimeLine::vActionLast, this, &AbstractChart::actionLast));
    ok &= bool(connect(timeLine, &ChartTimeLine::jumpToPlottingArea, this, &AbstractChart::jumpToPlottingArea));
    Q_ASSERT(ok);
    d->layOut();
    axisChanged();
    // The view starts on the time line's window.
    d->passSelectorOn();
}

AbstractChart::~AbstractChart()
{
    // The docks (with the plots) belong to the main window; take them along.
    for (ChartPlot &p : d->plots)
        delete p.dock.data();
    delete d->central.data();
}

ChartEngine *AbstractChart::engine() const
{
    return d.get();
}

int AbstractChart::count() const
{
    return int(d->plots.size());
}

QwtPlot *AbstractChart::poPlot(const int &plotNr) const
{
    return d->valid(plotNr) ? d->plots[size_t(plotNr)].plot : nullptr;
}

ChartTimeLine *AbstractChart::poTimeLine() const
{
    return d->timeLine;
}

int AbstractChart::getMaximumHistoryValues() const
{
    return Rules::kHistoryCap;
}

QString AbstractChart::getChartName() const
{
    return objectName();
}

// ---- data input

void AbstractChart::vAppendDataNoTime(int plotNr, const double &value, const double &position)
{
    d->appendNoTime(plotNr, value, position);
}

void AbstractChart::plotToZero(int plotNr, int value)
{
    d->append(plotNr, value, true, Rules::kNoSecondValue, Rules::kNoExtraValue, -1.0);
}

void AbstractChart::appendData(const std::string &text)
{
    const QStringList lines = QString::fromStdString(text).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const Rules::TextSample sample = Rules::parseTextLine(line, QLatin1Char(','));
        if (!sample.ok)
            continue;
        for (int i = 0; i < sample.values.size() && i < count(); ++i) {
            if (!std::isnan(sample.values.at(i)))
                d->plots[size_t(i)].curves.front().series->vAppend(sample.values.at(i), sample.time);
        }
    }
    d->replotAll();
}

void AbstractChart::vSetData(const int &plotNr, const ValueOverTime &data)
{
    if (!d->valid(plotNr))
        return;
    *d->plots[size_t(plotNr)].curves.front().series = data;
    d->replotAll();
}

void AbstractChart::vSetMyData(const int &index, const ValueOverTime &data)
{
    if (index < 0 || index >= int(d->extra.size()))
        return;
    *d->extra[size_t(index)].series = data;
    d->replotAll();
}

void AbstractChart::setDataFromString(const std::string &text, char separator)
{
    for (int i = 0; i < count(); ++i)
        d->clear(i);
    const QStringList lines = QString::fromStdString(text).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const Rules::TextSample sample = Rules::parseTextLine(line, QLatin1Char(separator));
        for (int i = 0; sample.ok && i < sample.values.size() && i < count(); ++i) {
            if (!std::isnan(sample.values.at(i)))
                d->plots[size_t(i)].curves.front().series->vAppend(sample.values.at(i), sample.time);
        }
    }
    d->replotAll();
}

void AbstractChart::setDataFromString(const int &plotNr, const std::string &text, char separator)
{
    if (!d->valid(plotNr))
        return;
    d->clear(plotNr);
    ValueOverTime &series = *d->plots[size_t(plotNr)].curves.front().series;
    const QStringList lines = QString::fromStdString(text).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const Rules::TextSample sample = Rules::parseTextLine(line, QLatin1Char(separator));
        if (sample.ok && !sample.values.isEmpty() && !std::isnan(sample.values.front()))
            series.vAppend(sample.values.front(), sample.time);
    }
    d->replotAll();
}

void AbstractChart::setDataFromStringCurves(const std::string &text, char separator, const int &nrCurves)
{
    if (count() == 0 || nrCurves < 1)
        return;
    d->clear(0);
    const QStringList lines = QString::fromStdString(text).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const Rules::TextSample sample = Rules::parseTextLine(line, QLatin1Char(separator));
        for (int c = 0; sample.ok && c < nrCurves && c < sample.values.size(); ++c) {
            if (std::isnan(sample.values.at(c)))
                continue;
            if (ChartCurve *curve = d->curve(0, c, true))
                curve->series->vAppend(sample.values.at(c), sample.time);
        }
    }
    d->replotAll();
}

void AbstractChart::clear()
{
    d->clear();
    d->replotAll();
}

void AbstractChart::clear(const int &plotNr)
{
    d->clear(plotNr);
    d->replotAll();
}

// ---- data output

const ValueOverTime *AbstractChart::getData(const int &plotNr) const
{
    return d->valid(plotNr) ? d->plots[size_t(plotNr)].curves.front().series.get() : nullptr;
}

const ValueOverTime *AbstractChart::getDataCustomCurve(const int &index) const
{
    return index >= 0 && index < int(d->extra.size()) ? d->extra[size_t(index)].series.get() : nullptr;
}

std::string AbstractChart::dataToString() const
{
    QList<const ValueOverTime *> series;
    QStringList titles;
    for (const ChartPlot &p : d->plots) {
        series << p.curves.front().series.get();
        titles << p.title;
    }
    return Utils::Text::csv(series, &titles, QStringLiteral(","), 3).toStdString();
}

std::string AbstractChart::dataToString(const int &plotNr) const
{
    if (!d->valid(plotNr))
        return std::string();
    const ChartPlot &p = d->plots[size_t(plotNr)];
    const QStringList titles{p.title};
    return Utils::Text::csv({p.curves.front().series.get()}, &titles, QStringLiteral(","), 3).toStdString();
}

std::string AbstractChart::dataToStringCurves() const
{
    QList<const ValueOverTime *> series;
    QStringList titles;
    for (const ChartPlot &p : d->plots) {
        for (int c = 0; c < int(p.curves.size()); ++c) {
            series << p.curves[size_t(c)].series.get();
            titles << QStringLiteral("%1 %2").arg(p.title).arg(c);
        }
    }
    return Utils::Text::csv(series, &titles, QStringLiteral(","), 3).toStdString();
}

QDateTime AbstractChart::oGetLastDataTimeUpdated(int plotNr) const
{
    const ValueOverTime *series = getData(plotNr);
    if (!series || series->size() == 0)
        return QDateTime();
    return QDateTime::fromMSecsSinceEpoch(qint64(series->oLast().x()));
}

QDateTime AbstractChart::oGetLeftValueBottomAxis(int plotNr) const
{
    if (!d->valid(plotNr))
        return QDateTime();
    const double left = lowerOf(d->plots[size_t(plotNr)].plot, QwtPlot::xBottom);
    return std::fabs(left) < 9e15 ? QDateTime::fromMSecsSinceEpoch(qint64(left)) : QDateTime();
}

double AbstractChart::getLastXAxisValue(const int &plotNr) const
{
    const ValueOverTime *series = getData(plotNr);
    return series && series->size() > 0 ? series->oLast().x() : 0.0;
}

double AbstractChart::getYRightMax(int plotNr) const
{
    return d->valid(plotNr) ? upperOf(d->plots[size_t(plotNr)].plot, QwtPlot::yRight) : 0.0;
}

double AbstractChart::getYRightMin(int plotNr) const
{
    return d->valid(plotNr) ? lowerOf(d->plots[size_t(plotNr)].plot, QwtPlot::yRight) : 0.0;
}

double AbstractChart::plotLowerBound(int plotNr) const
{
    return d->valid(plotNr) ? lowerOf(d->plots[size_t(plotNr)].plot, QwtPlot::yLeft) : 0.0;
}

double AbstractChart::plotUpperBound(int plotNr) const
{
    return d->valid(plotNr) ? upperOf(d->plots[size_t(plotNr)].plot, QwtPlot::yLeft) : 0.0;
}

int AbstractChart::plotWidth(int plotNr) const
{
    return d->valid(plotNr) ? d->plots[size_t(plotNr)].plot->canvas()->width() : 0;
}

qint64 AbstractChart::nGetChartTimeLeftLimits() const
{
    return qint64(d->timeLine->selectionLeft());
}

qint64 AbstractChart::nGetChartTimeRightLimits() const
{
    return qint64(d->timeLine->selectionRight());
}

// ---- current value

void AbstractChart::vSetCurrentValue(const int &plotNr, const double &value)
{
    vSetCurrentValue(plotNr, value, 0.0);
}

void AbstractChart::vSetCurrentValue(const int &plotNr, const double &value, const double &second)
{
    if (!d->valid(plotNr))
        return;
    ChartPlot &p = d->plots[size_t(plotNr)];
    p.markerValue = value;
    p.markerSecond = second;
    p.markerPending = true;
    p.listForm = ChartPlot::ListForm::None;
    d->pushMarkers();
}

void AbstractChart::setCurrentValuePrecision(const int &plotNr, const int &precision)
{
    if (!d->valid(plotNr))
        return;
    ChartPlot &p = d->plots[size_t(plotNr)];
    for (ValueMarker *marker : {p.marker, p.secondMarker}) {
        if (marker) {
            marker->vSetValuePrecision(precision);
            marker->update();
        }
    }
}

void AbstractChart::vSetCustom(const int &plotNr, bool custom)
{
    if (d->valid(plotNr))
        d->plots[size_t(plotNr)].marker->vSetCustom(custom);
}

void AbstractChart::setValueMarkerVisible(bool visible)
{
    for (ChartPlot &p : d->plots)
        p.marker->setVisible(visible);
}

void AbstractChart::setRightMarkerVisible(bool visible)
{
    for (int i = 0; i < count(); ++i)
        vSetMarkerRightVisible(i, visible);
}

void AbstractChart::vSetMarkerRightVisible(int plotNr, bool visible)
{
    if (d->valid(plotNr) && d->plots[size_t(plotNr)].secondMarker)
        d->plots[size_t(plotNr)].secondMarker->setVisible(visible);
}

// ---- appearance

void AbstractChart::setFilling(bool filling)
{
    d->filling = filling;
    for (ChartPlot &p : d->plots) {
        for (ChartCurve &c : p.curves) {
            if (!c.curve)
                continue;
            QPen pen = c.curve->pen();
            QColor colour = pen.color();
            colour.setAlpha(255);
            pen.setColor(colour);
            QBrush brush;
            if (filling) {
                QColor fill = colour;
                fill.setAlpha(20);
                brush = QBrush(fill, Qt::SolidPattern);
            }
            d->applyCurvePen(c, pen, brush);
        }
    }
    d->replotAll();
}

void AbstractChart::vSetExtraCurveLinePen(bool bTransparent)
{
    for (ChartCurve &c : d->extra) {
        QPen pen = c.curve->pen();
        QColor colour = pen.color();
        colour.setAlpha(bTransparent ? 0 : 255);
        pen.setColor(colour);
        c.curve->setPen(pen);
    }
    if (!d->plots.empty())
        d->plots.front().plot->replot();
}

void AbstractChart::setPlotTitle(const int &plotNr, const std::string &title, bool showTitle, const std::string &unit,
                                 bool showUnit)
{
    if (!d->valid(plotNr))
        return;
    ChartPlot &p = d->plots[size_t(plotNr)];
    p.title = QString::fromStdString(title);
    p.titleLabel->setText(p.title);
    p.titleLabel->setVisible(showTitle);
    p.header->setVisible(showTitle || p.comboBox || p.zoomBar || p.customLabel->isVisibleTo(p.header));
    p.plot->setAxisTitle(QwtPlot::yLeft, showUnit ? QString::fromStdString(unit) : QString());
    if (p.dock) {
        p.dock->setWindowTitle(p.title);
        if (auto *label = p.dock->titleBarWidget()->findChild<QLabel *>(QStringLiteral("DockTitleLabel")))
            label->setText(p.title);
    }
}

std::string AbstractChart::plotTitle(const int &plotNr) const
{
    return d->valid(plotNr) ? d->plots[size_t(plotNr)].title.toStdString() : std::string();
}

void AbstractChart::setPlotFont(const int &plotNr, const QFont &font)
{
    if (!d->valid(plotNr))
        return;
    ChartPlot &p = d->plots[size_t(plotNr)];
    p.plot->setFont(font);
    p.titleLabel->setFont(font);
    for (int axis : {int(QwtPlot::yLeft), int(QwtPlot::yRight), int(QwtPlot::xBottom)})
        p.plot->setAxisFont(axis, font);
}

void AbstractChart::setPlotStyleSheet(const int &plotNr, const QString &styleSheet)
{
    if (d->valid(plotNr))
        d->plots[size_t(plotNr)].plot->setStyleSheet(styleSheet);
}

void AbstractChart::setCustomLabelsText(const int &plotNr, const QString &text)
{
    if (d->valid(plotNr))
        d->plots[size_t(plotNr)].customLabel->setText(text);
}

void AbstractChart::setCustomLabelsVisible(const int &plotNr, bool visible)
{
    if (!d->valid(plotNr))
        return;
    ChartPlot &p = d->plots[size_t(plotNr)];
    p.customLabel->setVisible(visible);
    if (visible)
        p.header->show();
}

void AbstractChart::setCustomLabelsFont(const int &plotNr, const QFont &font)
{
    if (d->valid(plotNr))
        d->plots[size_t(plotNr)].customLabel->setFont(font);
}

void AbstractChart::translateChartLabels(const int &plotNr, QString title)
{
    if (!d->valid(plotNr))
        return;
    const ChartPlot &p = d->plots[size_t(plotNr)];
    setPlotTitle(plotNr, title.toStdString(), p.titleLabel->isVisibleTo(p.header),
                 p.plot->axisTitle(QwtPlot::yLeft).text().toStdString(), true);
}

void AbstractChart::setStatusText(const QString &text)
{
    d->statusText->setText(text);
}

void AbstractChart::setStatusIcon(const QIcon &icon)
{
    d->statusIcon->setPixmap(icon.pixmap(16, 16));
}

void AbstractChart::setStatusMessageVisible(bool visible)
{
    d->statusRow->setVisible(visible);
}

// ---- axes and zoom

void AbstractChart::setScale(const int &plotNr, const double &low, const double &high)
{
    if (!d->valid(plotNr) || !std::isfinite(low) || !std::isfinite(high))
        return;
    QwtPlot *plot = d->plots[size_t(plotNr)].plot;
    plot->QwtPlot::setAxisScale(QwtPlot::yLeft, low, high);
    plot->replot();
}

void AbstractChart::setPlotAxisScale(const int &plotNr, double min, double max, double step)
{
    if (!d->valid(plotNr))
        return;
    d->plots[size_t(plotNr)].plot->setAxisScale(QwtPlot::yLeft, min, max, step);
    d->plots[size_t(plotNr)].plot->replot();
}

void AbstractChart::vSetYScale(const int &plotNr, double min, double max)
{
    setPlotAxisScale(plotNr, min, max, 0.0);
}

void AbstractChart::setYRightAxisScale(const int &plotNr, double min, double max)
{
    if (!d->valid(plotNr))
        return;
    d->plots[size_t(plotNr)].plot->setYRightRange(min, max);
    d->plots[size_t(plotNr)].plot->replot();
}

void AbstractChart::vEnableYRightAxis(const int &plotNr, bool enable)
{
    if (!d->valid(plotNr))
        return;
    d->plots[size_t(plotNr)].plot->enableRightAxis(enable);
    d->plots[size_t(plotNr)].plot->replot();
}

bool AbstractChart::isRightAxisEnabled(const int &plotNr) const
{
    return d->valid(plotNr) && d->plots[size_t(plotNr)].plot->axisEnabled(QwtPlot::yRight);
}

void AbstractChart::vSetZoomingRightAxes(const int &plotNr, bool enable)
{
    if (d->valid(plotNr) && d->plots[size_t(plotNr)].plot->poValueMagnifier())
        d->plots[size_t(plotNr)].plot->poValueMagnifier()->setAxisEnabled(QwtPlot::yRight, enable);
}

void AbstractChart::setAllowNegativeValues(const int &plotNr, bool allow)
{
    if (d->valid(plotNr))
        d->plots[size_t(plotNr)].plot->setEnableNegativeValues(allow);
}

void AbstractChart::setMinimumZoomLevel(const int &plotNr, double level)
{
    if (d->valid(plotNr))
        d->plots[size_t(plotNr)].plot->setMinimumZoomLevel(level);
}

void AbstractChart::setMaxPanOffset(const int &plotNr, int offset)
{
    if (d->valid(plotNr))
        d->plots[size_t(plotNr)].plot->setPanMaxOffset(offset);
}

void AbstractChart::setMinPanOffset(const int &plotNr, int offset)
{
    if (d->valid(plotNr))
        d->plots[size_t(plotNr)].plot->setPanMinOffset(offset);
}

void AbstractChart::enableXAxisDisplayValue(bool displayValue)
{
    for (ChartPlot &p : d->plots) {
        p.plot->enableXAxisDisplayValue(displayValue);
        p.plot->replot();
    }
}

void AbstractChart::zoomCenterSlotEvent(double &value)
{
    // The value axis is centred on the plot's newest value.
    const int index = d->plotIndexOf(sender());
    if (index < 0)
        return;
    const ValueOverTime &series = *d->plots[size_t(index)].curves.front().series;
    value = series.size() > 0 ? series.oLast().y() : 0.0;
}

void AbstractChart::zoomCenterRightSlotEvent(double value, int plotNr)
{
    Q_UNUSED(value)
    // The right axis is centred on the plot's second value.
    const int index = d->plotIndexOf(sender());
    const int target = index >= 0 ? index : plotNr;
    if (d->valid(target))
        d->plots[size_t(target)].plot->setSecondValue(d->plots[size_t(target)].markerSecond);
}

void AbstractChart::zoomRectangleSet()
{
    const RangeSelector *selector = d->timeLine->poRangeSelector();
    const QwtScaleMap map = d->timeLine->poPlot()->canvasMap(QwtPlot::xBottom);
    timeLineRangeUpdated(map.invTransform(selector->geometry().left()),
                         map.invTransform(selector->geometry().right() + 1));
    zoomRectangleDone();
}

void AbstractChart::zoomRectangleDone()
{
}

void AbstractChart::vResetZooming()
{
    for (ChartPlot &p : d->plots)
        p.plot->zoomResetButtonClicked();
    jumpToPlottingArea();
}

void AbstractChart::slotUltraZoom()
{
    if (d->followNewest)
        resetView();
}

void AbstractChart::setBaselineTo(int chart)
{
    Q_UNUSED(chart) // every plot is checked
    for (ChartPlot &p : d->plots) {
        const bool inverted = lowerOf(p.plot, QwtPlot::yLeft) > upperOf(p.plot, QwtPlot::yLeft);
        const double baseline
            = p.plot->axisEnabled(QwtPlot::yRight) && inverted ? Rules::kInvertedBaseline : Rules::kBaseline;
        for (ChartCurve &c : p.curves) {
            if (c.curve)
                c.curve->setBaseline(baseline);
        }
        p.plot->replot();
    }
}

void AbstractChart::axisChanged()
{
    // A new time format or a new size: the labels are drawn again, and once
    // the resizing has settled the plots take the time line's window again.
    for (ChartPlot &p : d->plots) {
        if (TimeScaleDraw *draw = p.plot->poTimeScaleDraw())
            draw->vRefresh();
    }
    if (d->delayTimer)
        d->delayTimer->start();
}

void AbstractChart::vSlotZommResetForNoiseLine()
{
    Q_EMIT zommResetForNoiseLine();
    Q_EMIT vSignalZommResetForNoiseLine();
}

void AbstractChart::SetXTimeline(const QRectF &rect)
{
    // A rubber band on one plot becomes the time line's selection for all.
    const double left = std::min(rect.left(), rect.right());
    const double right = std::max(rect.left(), rect.right());
    if (right > left)
        d->timeLine->setSelectorRange(left, right, false);
}

void AbstractChart::IndependentPlotDoubleClickSlot()
{
    const int index = d->plotIndexOf(sender());
    if (index >= 0)
        Q_EMIT IndependentPlotDoubleClick(index);
}

// ---- time line

void AbstractChart::setTimelineScale(const double &low, const double &high)
{
    if (std::isfinite(low) && std::isfinite(high) && high > low)
        d->timeLine->vUpdateXAxisScale(low, high);
}

void AbstractChart::setRangeScale(const double &left, const double &right)
{
    if (std::isfinite(left) && std::isfinite(right) && right > left)
        d->timeLine->setSelectorRange(left, right, true);
}

void AbstractChart::setRangeSelectorMargins(const double &left, const double &right)
{
    d->marginLeft = std::max(0.0, left);
    d->marginRight = std::max(0.0, right);
}

void AbstractChart::vSetWidthRangeSelector(int width)
{
    d->timeLine->poRangeSelector()->vSetWidth(width);
    d->passSelectorOn();
}

void AbstractChart::vResetTimelineZoom()
{
    d->timeLine->zoomResetButtonClicked();
}

void AbstractChart::setTimelineButtonsVisible(const int &plotNr, bool visible)
{
    if (!d->valid(plotNr) || !d->plots[size_t(plotNr)].comboBox)
        return;
    const QWidget *header = d->plots[size_t(plotNr)].header;
    for (const char *name : {"timelinePrev", "timelineNext"}) {
        if (auto *button = header->findChild<QPushButton *>(QLatin1String(name)))
            button->setVisible(visible);
    }
}

void AbstractChart::vTimelineButtonsEnableNext(const int &plotNr, bool enabled)
{
    if (!d->valid(plotNr))
        return;
    if (auto *button = d->plots[size_t(plotNr)].header->findChild<QPushButton *>(QStringLiteral("timelineNext")))
        button->setEnabled(enabled);
}

void AbstractChart::vTimelineButtonsEnablePrev(const int &plotNr, bool enabled)
{
    if (!d->valid(plotNr))
        return;
    if (auto *button = d->plots[size_t(plotNr)].header->findChild<QPushButton *>(QStringLiteral("timelinePrev")))
        button->setEnabled(enabled);
}

QComboBox *AbstractChart::addTimelineComboboxToChart(const int &plotNr, QStringList items, bool hidden)
{
    return d->valid(plotNr) ? d->buildCombo(plotNr, items, hidden) : nullptr;
}

void AbstractChart::translateTimelineComboboxToChart(const int &plotNr, QStringList items)
{
    if (!d->valid(plotNr) || !d->plots[size_t(plotNr)].comboBox)
        return;
    QComboBox *combo = d->plots[size_t(plotNr)].comboBox;
    for (int i = 0; i < combo->count() && i < items.size(); ++i)
        combo->setItemText(i, items.at(i));
}

void AbstractChart::jumpToPlottingArea()
{
    actionLast();
    // The selection goes to the middle of the time line, on the newest sample.
    const Rules::Window overview = d->timeLineWindow();
    const double width = d->timeLine->selectionRight() - d->timeLine->selectionLeft();
    const double centre = (overview.first + overview.second) * 0.5;
    double left = centre - width * 0.5;
    double right = centre + width * 0.5;
    if (d->marginRight > 0.0 || d->marginLeft > 0.0) {
        const double newest = d->newestX();
        right = newest + d->marginRight;
        left = right - width;
    }
    if (!(right > left))
        return;
    d->programmatic = true;
    d->timeLine->setSelectorRange(left, right, false);
    d->setVisibleWindow(left, right);
    d->programmatic = false;
}

void AbstractChart::resetView()
{
    // Live: a fresh page from now, at the time line's right end; following on.
    const Rules::Window overview = d->timeLineWindow();
    double selection = d->timeLine->selectionRight() - d->timeLine->selectionLeft();
    if (!(selection > 0.0))
        selection = 10000.0;
    const double overviewWidth = std::max(overview.second - overview.first, selection);
    const double now = QDateTime::currentMSecsSinceEpoch();
    d->programmatic = true;
    d->timeLine->vUpdateXAxisScale(now + selection - overviewWidth, now + selection);
    d->timeLine->setSelectorRange(now, now + selection, false);
    d->setVisibleWindow(now, now + selection);
    d->programmatic = false;
    d->followNewest = true;
    d->plottingEnabled = true;
}

void AbstractChart::timeLineRangeUpdated(const double &left, const double &right)
{
    if (!(right > left) || !std::isfinite(left) || !std::isfinite(right))
        return;
    d->setVisibleWindow(left, right);
    d->plottingEnabled = true;
    // A user who moves the selection to the right end follows the newest sample.
    if (!d->programmatic)
        d->followNewest = d->timeLine->bAtEnd();
}

void AbstractChart::timeLineScaleUpdated()
{
    // The time line drew its overview anew.
    d->overviewRedrawn();
    const Rules::Window overview = d->timeLineWindow();
    d->timeLine->vEnablePrev(d->firstX() < overview.first);
    d->timeLine->vEnableNext(d->newestX() > overview.second);
}

void AbstractChart::actionNext()
{
    const Rules::Window next = Rules::nextPage(d->timeLineWindow());
    d->moveTimeLine(next);
    if (next.second >= d->newestX())
        d->timeLine->vEnableNext(false);
    d->timeLine->vEnablePrev(true);
}

void AbstractChart::actionPrev()
{
    const Rules::Window previous = Rules::previousPage(d->timeLineWindow());
    d->moveTimeLine(previous);
    if (d->firstX() >= previous.first)
        d->timeLine->vEnablePrev(false);
    d->timeLine->vEnableNext(true);
}

void AbstractChart::actionFirst()
{
    d->moveTimeLine(Rules::firstPage(d->timeLineWindow(), d->firstX()));
}

void AbstractChart::actionLast()
{
    if (d->newestX() == 0.0 && (d->plots.empty() || d->plots.front().curves.front().series->size() == 0))
        return;
    d->programmatic = true;
    d->moveTimeLine(Rules::centredOn(d->timeLineWindow(), d->newestX()));
    d->programmatic = false;
}

// ---- following and redraw

void AbstractChart::setFollowNewest(bool follow)
{
    d->followNewest = follow;
    if (follow)
        d->plottingEnabled = true;
}

bool AbstractChart::isFollowingNewest() const
{
    return d->followNewest;
}

bool AbstractChart::isPlottingEnabled() const
{
    return d->plottingEnabled;
}

bool AbstractChart::getChartUpdate() const
{
    return !d->redrawSuppressed;
}

void AbstractChart::dataUpdated()
{
    // The appends call the engine directly; a host may call this after filling a series itself.
    d->syncAll();
    d->dataUpdated();
}

void AbstractChart::doUpdate()
{
    d->frame();
}

void AbstractChart::updateChart(bool fullReplot)
{
    if (fullReplot)
        d->replotAll();
    else
        doUpdate();
}

void AbstractChart::replotChart(const int &plotNr)
{
    if (!d->valid(plotNr))
        return;
    ChartPlot &p = d->plots[size_t(plotNr)];
    d->syncAll();
    p.plot->replot();
    for (ChartCurve &c : p.curves)
        c.lastDrawn = c.series->size() - 1;
}

void AbstractChart::vDoReplot(bool fullReplot)
{
    d->fullReplot = fullReplot;
}

void AbstractChart::enablePlotting(bool enable)
{
    d->plottingEnabled = enable;
    if (enable)
        d->replotAll();
}

void AbstractChart::sendDelayValue()
{
    // After the user has stopped zooming for a moment: every plot shows the time line's window again.
    d->passSelectorOn();
}

void AbstractChart::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    for (ChartPlot &p : d->plots) {
        for (ChartCurve &c : p.curves)
            c.lastDrawn = c.series->size() - 1;
    }
}

// ---- docks and layout

void AbstractChart::UpdateLayout()
{
    if (d->mainWindow)
        return;
    d->updateLayout();
}

void AbstractChart::updateLayoutUsingDockableItems()
{
    if (!d->mainWindow || d->central)
        return;
    d->setCentralWidget();
}

void AbstractChart::AddLayoutRow(const int &columns)
{
    if (!d->mainWindow || columns < 1)
        return;
    for (int i = 0; i + 1 < count(); ++i) {
        QDockWidget *a = d->plots[size_t(i)].dock;
        QDockWidget *b = d->plots[size_t(i + 1)].dock;
        if (a && b)
            d->mainWindow->splitDockWidget(a, b, (i + 1) % columns == 0 ? Qt::Vertical : Qt::Horizontal);
    }
}

void AbstractChart::setLayoutRowVisible(const int &plotNr, bool visible)
{
    if (d->valid(plotNr))
        d->plots[size_t(plotNr)].row->setVisible(visible);
}

void AbstractChart::UpdateMinimumHeights(int mainWindowHeight)
{
    int visible = 0;
    for (int i = 0; i < count(); ++i)
        visible += isDockVisible(i) ? 1 : 0;
    if (visible == 0)
        return;
    const int height = std::max(100, (mainWindowHeight - d->timeLine->sizeHint().height()) / visible);
    for (ChartPlot &p : d->plots) {
        if (d->dockFixedSize)
            p.row->setFixedHeight(height);
        else
            p.row->setMinimumHeight(std::min(height, 300));
    }
}

void AbstractChart::setDockVisible(int dock, bool visible)
{
    if (!d->valid(dock))
        return;
    ChartPlot &p = d->plots[size_t(dock)];
    p.dockVisible = visible;
    if (p.dock)
        p.dock->setVisible(visible);
    else
        p.row->setVisible(visible);
}

bool AbstractChart::isDockVisible(int dock) const
{
    return d->valid(dock) && d->plots[size_t(dock)].dockVisible;
}

QDockWidget *AbstractChart::getDockChartItem(int dock)
{
    return d->valid(dock) ? d->plots[size_t(dock)].dock : nullptr;
}

void AbstractChart::setFixedDock(int dock)
{
    if (d->valid(dock))
        d->plots[size_t(dock)].row->setFixedHeight(d->plots[size_t(dock)].row->height());
}

void AbstractChart::setDockFixedSize(bool fixed)
{
    d->dockFixedSize = fixed;
}

bool AbstractChart::getIsDockFixedSize() const
{
    return d->dockFixedSize;
}

void AbstractChart::translateDockTitleBarTexts()
{
    for (ChartPlot &p : d->plots) {
        if (!p.dock)
            continue;
        if (auto *button = p.dock->titleBarWidget()->findChild<QPushButton *>(QStringLiteral("DockHideButton")))
            button->setToolTip(tr("Hide"));
    }
}

void AbstractChart::setEnabled(bool enabled)
{
    QWidget::setEnabled(enabled);
    for (ChartPlot &p : d->plots)
        p.plot->setEnabled(enabled);
}

// ---- thresholds, lines and independent plots

void AbstractChart::refreshThresholds(bool refresh)
{
    d->refreshThresholds = refresh;
}

bool AbstractChart::getRefreshThresholds() const
{
    return d->refreshThresholds;
}

void AbstractChart::vAddExtraCurveLines(int plotNr, int index)
{
    if (!d->valid(plotNr) || index < 0 || index >= int(d->extra.size()))
        return;
    CustomCurve *curve = d->extra[size_t(index)].curve;
    curve->detach();
    curve->attach(d->plots[size_t(plotNr)].plot);
    d->plots[size_t(plotNr)].plot->replot();
}

void AbstractChart::setIndependentPlot(const int &plotNr, bool independent)
{
    if (!d->valid(plotNr))
        return;
    d->plots[size_t(plotNr)].independent = independent;
    d->plots[size_t(plotNr)].plot->setIndependentPlot(independent);
}

bool AbstractChart::checkIndependentPlot(const int &plotNr) const
{
    return d->valid(plotNr) && d->plots[size_t(plotNr)].independent;
}

} // namespace Charts
} // namespace Utils
