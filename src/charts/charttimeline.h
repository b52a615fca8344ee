// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CHARTTIMELINE_H
#define UTILS_CHARTTIMELINE_H

#include "utils_export.h"

#include <QWidget>

#include <memory>

namespace Utils {

class CurveFactory;
class Plot;
class PlotMagnifier;
class RangeSelector;

/*!
    \brief The overview strip under a live chart: the whole recorded time span,
    with a selection rectangle that marks the part the chart's plots show.

    The strip holds, from left to right, the First and Previous buttons, the
    overview plot (time labels on the bottom axis, no value axis shown), the Next
    and Last buttons and the Zoom Out, Reset Zoom and Zoom In buttons. The
    overview draws a copy of each of the chart's curves: the chart asks
    poCurveFactory() for the overview curve of each of its series. Its value axis
    has a fixed scale (vSetYAxisScale()); it is never fitted to the samples on
    its own.

    The selection is a Utils::RangeSelector on the overview's canvas. Whenever
    the user moves it, or the overview's scale changes under it, vRangeChanged()
    reports its ends in axis units (milliseconds since the epoch); the chart
    shows that window. The navigation buttons only emit vActionFirst(),
    vActionPrev(), vActionNext() and vActionLast(): the chart decides what a
    page is.

    Zoom In and Zoom Out narrow and widen the selection by 0.8 and 1.2 around
    its centre (at least 30 pixels, inside the strip); the overview stays.
    Reset Zoom shows one minute from now with its first ten seconds selected.
    The wheel zooms the overview around the time under the mouse.

    When the strip is resized, the selection keeps its time window (its pixel
    edges move); nothing is emitted.

    \sa ChartTimeLineIndependent, RangeSelector
*/
class UTILS_EXPORT ChartTimeLine : public QWidget
{
    Q_OBJECT

public:
    explicit ChartTimeLine(QWidget *parent = nullptr);
    ~ChartTimeLine() override;

    /*!
        Back to the state of a new time line, without signals: one minute from
        now on the overview, its first ten seconds selected, not at end, every
        button enabled. The curves stay (they belong to the chart's series).
    */
    void vClear();
    /*!
        Shows [\a low, \a high] (ms since the epoch) on the overview and replots;
        the selection keeps its pixel edges, so its time window is read again
        (vRangeChanged()), then vScaleUpdated() is emitted. Bounds that are not
        finite are refused by the plot; the rest still happens.
    */
    void vUpdateXAxisScale(const double &low, const double &high);
    /*!
        Selects [\a low, \a high] (ms since the epoch). When \a low lies left of
        the time under the selection's left edge or \a high right of the time
        under its right edge, the overview is first set to exactly [\a low,
        \a high] with vUpdateXAxisScale(). The times are then turned into pixel
        positions for RangeSelector::vSetRange(), which emits, and so makes this
        time line emit vRangeChanged(), only with \a bEmit.
    */
    void setSelectorRange(const double &low, const double &high, bool bEmit);
    //! Fixed value range of the overview (no fitting to the samples); values that are not finite are refused.
    virtual void vSetYAxisScale(double min, double max);

    //! Replots the overview (new samples of the curves) and repaints the selection.
    void vTimelineUpdate();

    //! True while the selection's right end lies within 2.0 ms of the overview's right end.
    bool bAtEnd() const;
    //! The selection's left end in ms since the epoch, as last reported or set.
    double selectionLeft() const;
    //! The selection's right end in ms since the epoch, as last reported or set.
    double selectionRight() const;

    //! The overview plot (a Utils::Plot without zoom and pan tools).
    Plot *poPlot() const;
    //! The factory of the overview's curves: one curve per series of the chart.
    CurveFactory *poCurveFactory() const;
    RangeSelector *poRangeSelector() const;
    //! The wheel magnifier of the overview's time axis.
    PlotMagnifier *poMagnifier() const;

public Q_SLOTS:
    void vEnableFirst(bool enable);
    void vEnablePrev(bool enable);
    void vEnableNext(bool enable);
    void vEnableLast(bool enable);

    //! Narrows the selection to 0.8 of its width around its centre.
    virtual void zoomPlusButtonClicked();
    //! Widens the selection to 1.2 of its width around its centre, at most the whole strip.
    virtual void zoomMinusButtonClicked();
    /*!
        Shows [now, now + 60000.0] on the overview and selects [now, now + 10000.0],
        then emits vRangeChanged() with those two times and vScaleUpdated().
    */
    void zoomResetButtonClicked();
    //! A double click on the selection asks the chart to show its newest samples: emits jumpToPlottingArea().
    void timeLineChartSelectorDoubleClicked();

Q_SIGNALS:
    //! The selection's ends in ms since the epoch.
    void vRangeChanged(const double &left, const double &right);
    //! The overview's time scale changed.
    void vScaleUpdated();
    void vActionNext();
    void vActionPrev();
    void vActionFirst();
    void vActionLast();
    void jumpToPlottingArea();

protected Q_SLOTS:
    /*!
        The selection moved to the pixel positions \a leftPx, \a rightPx of the
        overview's canvas: stores their times and whether the right end is at the
        overview's end, then emits vRangeChanged().
    */
    void vRangeSelectorUpdated(const double &leftPx, const double &rightPx);
    //! The overview's scale changed: reads the selection again, then emits vScaleUpdated().
    void vPlotScaleUpdated();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    //! Follows resizes of the canvas: fits the tick count and keeps the selection's time window.
    bool eventFilter(QObject *watched, QEvent *event) override;

    /*!
        Rescales the overview's time axis by \a factor around the time under the
        selection's centre, through the magnifier and its limits; the magnifier's
        vScaleUpdated() then reads the selection again.
    */
    void vRescaleOverview(double factor);
    /*!
        Remembers [\a left, \a right] (ms since the epoch) as the selection's
        window without emitting, for a selection placed quietly; also sets at end.
    */
    void vStoreWindow(double left, double right);

private:
    void vRetranslate();
    void vResetWindow();
    void vFixAxisLayout();
    void vFitTicks();
    void vPlaceWindow();
    void vZoomSelection(double factor);

    Q_DISABLE_COPY(ChartTimeLine)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_CHARTTIMELINE_H
