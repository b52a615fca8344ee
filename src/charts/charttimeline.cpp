// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/charttimeline.h"

#include "charts/rangeselector.h"
#include "plot/curvefactory.h"
#include "plot/plot.h"
#include "plot/timescaledraw.h"
#include "plot/plotcommon_p.h"
#include "plot/plotmagnifier.h"

#include <qwt_interval.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_div.h>
#include <qwt_scale_widget.h>

#include <QDateTime>
#include <QEvent>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QIcon>
#include <QMouseEvent>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace Utils {

namespace {

// The selector refuses narrower windows; the time line never asks for one.
constexpr int kMinSelectorWidth = 30;
// A new time line shows one minute and selects its first ten seconds (ms).
constexpr double kResetOverview = 60000.0;
constexpr double kResetSelection = 10000.0;
// The selection counts as at the end within this many ms of the overview's end.
constexpr double kAtEndTolerance = 2.0;

/*!
    The overview's magnifier, which can also zoom around a given pixel column:
    the zoom buttons zoom around the selection's centre, where the wheel zooms
    around the mouse.
*/
class TimeLineMagnifier : public PlotMagnifier
{
public:
    using PlotMagnifier::PlotMagnifier;

    void vRescaleAt(double x, double factor)
    {
        // The magnifier learns the time under a column from a mouse move.
        QMouseEvent move(QEvent::MouseMove, QPointF(x, 0.0), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        widgetMouseMoveEvent(&move);
        rescale(factor);
    }
};

//! The time under a pixel column, fractions of a pixel included (QwtPlot::invTransform() takes an int).
double timeAt(const QwtPlot *plot, double px)
{
    return plot->canvasMap(QwtPlot::xBottom).invTransform(px);
}

enum Button { First, Previous, Next, Last, ZoomOut, ZoomReset, ZoomIn, ButtonCount };

} // namespace

struct ChartTimeLine::Private
{
    Plot *plot = nullptr;
    QWidget *canvas = nullptr;
    CurveFactory *curveFactory = nullptr;
    RangeSelector *selector = nullptr;
    TimeLineMagnifier *magnifier = nullptr;
    QToolButton *buttons[ButtonCount] = {};
    bool atEnd = false;
    double left = 0.0;
    double right = 0.0;
    // The overview's scale when the window was stored. Under another scale
    // the stored times no longer belong to the selector's pixels.
    double scaleLow = 0.0;
    double scaleHigh = 0.0;
    // Width of the widest time label in the axis's font, in pixels.
    int labelWidth = 60;
};

ChartTimeLine::ChartTimeLine(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->plot = new Plot(this, true);
    d->plot->setObjectName(QStringLiteral("timeLinePlot"));
    d->plot->setMinimumHeight(40);
    d->plot->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    d->plot->setAutoReplot(false);
    // A fitted scale would walk every sample at every replot.
    for (int axis = 0; axis < QwtPlot::axisCnt; ++axis)
        d->plot->setAxisAutoScale(axis, false);
    // The strip is too low for value labels; the scale still places the curves.
    d->plot->enableAxis(QwtPlot::yLeft, false);
    d->plot->setAxisScale(QwtPlot::yLeft, 0.0, 300.0);
    d->canvas = d->plot->canvas();
    d->plot->setAxisLabelAlignment(QwtPlot::xBottom, Qt::AlignHCenter | Qt::AlignBottom);
    // The overview usually shows a minute or a few, with a tick every few seconds.
    d->plot->poTimeScaleDraw()->setSecondsBelowSpan(10 * 60000.0);
    vFixAxisLayout();

    d->curveFactory = new CurveFactory(d->plot);
    d->curveFactory->setParent(this);

    d->magnifier = new TimeLineMagnifier(qobject_cast<QwtPlotCanvas *>(d->canvas));
    for (int axis = 0; axis < QwtPlot::axisCnt; ++axis)
        d->magnifier->setAxisEnabled(axis, axis == QwtPlot::xBottom);
    d->magnifier->setMouseButton(Qt::NoButton);

    // Installed before the selector's filter, so it runs after it: the
    // selection is placed by time once the selector has followed the canvas.
    d->canvas->installEventFilter(this);
    d->selector = new RangeSelector(d->canvas);
    d->selector->setObjectName(QStringLiteral("timeLineSelector"));

    static const char *const icons[ButtonCount] = {
        ":/newPrefix/icons/TimeLine_First.svg",
        ":/newPrefix/icons/TimeLine_Previous.svg",
        ":/newPrefix/icons/TimeLine_Next.svg",
        ":/newPrefix/icons/TimeLine_Last.svg",
        ":/newPrefix/icons/Zoom_out_new-01.svg",
        ":/newPrefix/icons/Zoom_reset_Hor.svg",
        ":/newPrefix/icons/Zoom_in_new-01.svg",
    };
    static const char *const names[ButtonCount] = {
        "buttonFirst",
        "buttonPrevious",
        "buttonNext",
        "buttonLast",
        "buttonZoomOut",
        "buttonZoomReset",
        "buttonZoomIn",
    };
    for (int i = 0; i < ButtonCount; ++i) {
        auto *button = new QToolButton(this);
        button->setObjectName(QLatin1String(names[i]));
        button->setIcon(QIcon(QLatin1String(icons[i])));
        button->setIconSize(QSize(16, 16));
        button->setAutoRaise(true);
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
        d->buttons[i] = button;
    }

    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->buttons[First]);
    layout->addWidget(d->buttons[Previous]);
    layout->addWidget(d->plot, 1);
    for (int i = Next; i < ButtonCount; ++i)
        layout->addWidget(d->buttons[i]);

    connect(d->buttons[Previous], &QToolButton::clicked, this, &ChartTimeLine::vActionPrev);
    connect(d->buttons[Next], &QToolButton::clicked, this, &ChartTimeLine::vActionNext);
    connect(d->buttons[First], &QToolButton::clicked, this, &ChartTimeLine::vActionFirst);
    connect(d->buttons[Last], &QToolButton::clicked, this, &ChartTimeLine::vActionLast);
    connect(d->magnifier, &PlotMagnifier::vScaleUpdated, this, &ChartTimeLine::vPlotScaleUpdated);
    connect(d->buttons[ZoomOut], &QToolButton::clicked, this, &ChartTimeLine::zoomMinusButtonClicked);
    connect(d->buttons[ZoomIn], &QToolButton::clicked, this, &ChartTimeLine::zoomPlusButtonClicked);
    connect(d->buttons[ZoomReset], &QToolButton::clicked, this, &ChartTimeLine::zoomResetButtonClicked);
    connect(d->selector, &RangeSelector::rangeSelectorDoubleClicked, this,
        &ChartTimeLine::timeLineChartSelectorDoubleClicked);
    connect(d->selector, &RangeSelector::vRange, this, &ChartTimeLine::vRangeSelectorUpdated);

    vRetranslate();
    vClear();
}

ChartTimeLine::~ChartTimeLine()
{
    // The canvas outlives this object's own part: stop looking at its events.
    d->canvas->removeEventFilter(this);
}

void ChartTimeLine::vClear()
{
    vResetWindow();
    for (QToolButton *button : d->buttons)
        button->setEnabled(true);
}

void ChartTimeLine::vUpdateXAxisScale(const double &low, const double &high)
{
    d->plot->setAxisScale(QwtPlot::xBottom, low, high);
    d->plot->replot();
    vRangeSelectorUpdated(d->selector->nLeft(), d->selector->nRight());
    Q_EMIT vScaleUpdated();
}

void ChartTimeLine::setSelectorRange(const double &low, const double &high, bool bEmit)
{
    if (!std::isfinite(low) || !std::isfinite(high) || !(high > low))
        return;
    // A window beyond the overview widens it just enough to hold the window;
    // a window inside it leaves the overview as it is.
    const QwtScaleDiv &div = d->plot->axisScaleDiv(QwtPlot::xBottom);
    const double lower = std::min(div.lowerBound(), div.upperBound());
    const double upper = std::max(div.lowerBound(), div.upperBound());
    if (low < lower || high > upper)
        vUpdateXAxisScale(std::min(low, lower), std::max(high, upper));
    const double lowPx = d->plot->transform(QwtPlot::xBottom, low);
    const double highPx = d->plot->transform(QwtPlot::xBottom, high);
    if (!(highPx - lowPx >= kMinSelectorWidth)) {
        // Narrower than the selector can be: a narrow strip, or one not laid out
        // yet (in a hidden tab). The window keeps its times, and the selector
        // stands over it at its least width until the canvas is wide enough.
        vStoreWindow(low, high);
        vPlaceWindow();
        if (bEmit)
            Q_EMIT vRangeChanged(low, high);
        return;
    }
    d->selector->vSetRange(lowPx, highPx, bEmit);
    if (bEmit)
        return; // stored by vRangeSelectorUpdated()
    // Quietly: remember what the selector shows now, the exact times when it took them.
    if (d->selector->nLeft() == PlotCommon::toPixel(lowPx) && d->selector->nRight() == PlotCommon::toPixel(highPx))
        vStoreWindow(low, high);
    else
        vStoreWindow(timeAt(d->plot, d->selector->nLeft()), timeAt(d->plot, d->selector->nRight()));
}

void ChartTimeLine::vSetYAxisScale(double min, double max)
{
    if (!std::isfinite(min) || !std::isfinite(max))
        return;
    d->plot->setAxisScale(QwtPlot::yLeft, min, max);
    d->plot->replot();
}

void ChartTimeLine::vTimelineUpdate()
{
    d->plot->replot();
    d->selector->update();
}

bool ChartTimeLine::bAtEnd() const
{
    return d->atEnd;
}

double ChartTimeLine::selectionLeft() const
{
    return d->left;
}

double ChartTimeLine::selectionRight() const
{
    return d->right;
}

Plot *ChartTimeLine::poPlot() const
{
    return d->plot;
}

CurveFactory *ChartTimeLine::poCurveFactory() const
{
    return d->curveFactory;
}

RangeSelector *ChartTimeLine::poRangeSelector() const
{
    return d->selector;
}

PlotMagnifier *ChartTimeLine::poMagnifier() const
{
    return d->magnifier;
}

void ChartTimeLine::vEnableFirst(bool enable)
{
    d->buttons[First]->setEnabled(enable);
}

void ChartTimeLine::vEnablePrev(bool enable)
{
    d->buttons[Previous]->setEnabled(enable);
}

void ChartTimeLine::vEnableNext(bool enable)
{
    d->buttons[Next]->setEnabled(enable);
}

void ChartTimeLine::vEnableLast(bool enable)
{
    d->buttons[Last]->setEnabled(enable);
}

void ChartTimeLine::zoomPlusButtonClicked()
{
    vZoomSelection(0.8);
}

void ChartTimeLine::zoomMinusButtonClicked()
{
    vZoomSelection(1.2);
}

void ChartTimeLine::zoomResetButtonClicked()
{
    vResetWindow();
    const double left = d->left;
    const double right = d->right;
    Q_EMIT vRangeChanged(left, right);
    Q_EMIT vScaleUpdated();
}

void ChartTimeLine::timeLineChartSelectorDoubleClicked()
{
    Q_EMIT jumpToPlottingArea();
}

void ChartTimeLine::vRangeSelectorUpdated(const double &leftPx, const double &rightPx)
{
    const double left = timeAt(d->plot, leftPx);
    const double right = timeAt(d->plot, rightPx);
    vStoreWindow(left, right);
    Q_EMIT vRangeChanged(left, right);
}

void ChartTimeLine::vPlotScaleUpdated()
{
    vRangeSelectorUpdated(d->selector->nLeft(), d->selector->nRight());
    Q_EMIT vScaleUpdated();
}

void ChartTimeLine::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        vRetranslate();
    else if (event->type() == QEvent::FontChange)
        vFixAxisLayout();
    QWidget::changeEvent(event);
}

void ChartTimeLine::resizeEvent(QResizeEvent *event)
{
    // Nothing to place here: while the strip is hidden its canvas is resized
    // only after this event, so the selection follows the canvas (eventFilter).
    QWidget::resizeEvent(event);
}

bool ChartTimeLine::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == d->canvas && event->type() == QEvent::Resize) {
        vFitTicks();
        vPlaceWindow();
    }
    return QWidget::eventFilter(watched, event);
}

void ChartTimeLine::vRescaleOverview(double factor)
{
    const double centre = (d->selector->nLeft() + d->selector->nRight()) / 2.0;
    d->magnifier->vRescaleAt(centre, factor);
}

/*
    The selection lives in canvas pixels, so the canvas and the time axis must
    not move when the scale changes. Left to itself, Qwt makes room for a time
    label only while a tick sits at an end of the axis, and the canvas jumps by
    a label's width as the overview scrolls. Labels centred under their ticks
    and room for half the widest one at both ends, always, keep them in place.
*/
void ChartTimeLine::vFixAxisLayout()
{
    QwtScaleWidget *axis = d->plot->axisWidget(QwtPlot::xBottom);
    const QFontMetrics metrics(axis->font());
    const int widest = std::max(
        metrics.horizontalAdvance(QStringLiteral("00.00.0000")), metrics.horizontalAdvance(QStringLiteral("00:00:00")));
    const int room = widest / 2 + metrics.averageCharWidth();
    axis->setMinBorderDist(room, room);
    d->labelWidth = widest;
    vFitTicks();
}

// Qwt does not keep labels apart: no more major ticks than labels fit the canvas.
void ChartTimeLine::vFitTicks()
{
    const int ticks = std::max(2, d->canvas->width() / std::max(1, d->labelWidth * 3 / 2));
    if (ticks == d->plot->axisMaxMajor(QwtPlot::xBottom))
        return;
    d->plot->setAxisMaxMajor(QwtPlot::xBottom, ticks);
    d->plot->updateAxes();
}

void ChartTimeLine::vRetranslate()
{
    static const char *const tips[ButtonCount] = {
        QT_TR_NOOP("Go to the first samples"),
        QT_TR_NOOP("Previous page"),
        QT_TR_NOOP("Next page"),
        QT_TR_NOOP("Go to the newest samples"),
        QT_TR_NOOP("Zoom Out"),
        QT_TR_NOOP("Reset Zoom"),
        QT_TR_NOOP("Zoom In"),
    };
    for (int i = 0; i < ButtonCount; ++i) {
        const QString tip = tr(tips[i]);
        d->buttons[i]->setToolTip(tip);
        d->buttons[i]->setAccessibleName(tip);
    }
}

// One minute from now on the overview, its first ten seconds selected; quiet.
void ChartTimeLine::vResetWindow()
{
    const double now = double(QDateTime::currentMSecsSinceEpoch());
    d->plot->setAxisScale(QwtPlot::xBottom, now, now + kResetOverview);
    d->plot->replot();
    vStoreWindow(now, now + kResetSelection);
    vPlaceWindow();
}

void ChartTimeLine::vStoreWindow(double left, double right)
{
    const QwtInterval scale = d->plot->axisInterval(QwtPlot::xBottom);
    d->left = left;
    d->right = right;
    d->scaleLow = scale.minValue();
    d->scaleHigh = scale.maxValue();
    d->atEnd = right >= scale.maxValue() - kAtEndTolerance;
}

// Puts the selector over the stored time window, at least 30 pixels wide and
// inside the canvas. Quiet: the window in time has not changed. Skipped while
// the scale is not the one the window was stored under: a replot after a new
// scale may resize the canvas (wider or narrower labels) before the window is
// read again from the selector's pixels, which a new scale keeps.
void ChartTimeLine::vPlaceWindow()
{
    const int canvasRight = d->canvas->width() - 1;
    const QwtInterval scale = d->plot->axisInterval(QwtPlot::xBottom);
    if (canvasRight < kMinSelectorWidth || scale.minValue() != d->scaleLow || scale.maxValue() != d->scaleHigh)
        return;
    int left = PlotCommon::toPixel(d->plot->transform(QwtPlot::xBottom, d->left));
    int right = PlotCommon::toPixel(d->plot->transform(QwtPlot::xBottom, d->right));
    right = std::max(right, left + kMinSelectorWidth);
    if (right > canvasRight) {
        left -= right - canvasRight;
        right = canvasRight;
    }
    if (left < 0) {
        left = 0;
        right = std::max(right, kMinSelectorWidth);
    }
    if (left == d->selector->nLeft() && right == d->selector->nRight())
        return;
    d->selector->vSetRange(left, right, false);
}

void ChartTimeLine::vZoomSelection(double factor)
{
    const double canvasRight = d->canvas->width() - 1;
    if (canvasRight < kMinSelectorWidth)
        return;
    const double oldLeft = d->selector->nLeft();
    const double oldRight = d->selector->nRight();
    const double centre = (oldLeft + oldRight) / 2.0;
    const double half
        = std::min(std::max((oldRight - oldLeft) * factor / 2.0, kMinSelectorWidth / 2.0), canvasRight / 2.0);
    double left = centre - half;
    double right = centre + half;
    if (left < 0.0) {
        right -= left;
        left = 0.0;
    }
    if (right > canvasRight) {
        left -= right - canvasRight;
        right = canvasRight;
    }
    if (left == oldLeft && right == oldRight)
        return;
    d->selector->vSetRange(left, right, true);
}

} // namespace Utils
