// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_ABSTRACTCHART_H
#define UTILS_ABSTRACTCHART_H

#include "utils_export.h"

#include <QDateTime>
#include <QFont>
#include <QIcon>
#include <QPoint>
#include <QRectF>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <string>

class QComboBox;
class QDockWidget;
class QwtPlot;

namespace Utils {

class ChartTimeLine;
class ValueOverTime;

namespace Charts {

class ChartEngine;
struct ChartConfig;

/*!
    \brief What every live chart can do: the base of GenericChart and its variants.

    A live chart owns a fixed number of plots (Utils::Plot), each with the curve
    of a sample series (Utils::ValueOverTime) and a value marker, and one time
    line (Utils::ChartTimeLine) under them through which the user scrolls and
    zooms the time axis of all plots together. Times are milliseconds since the
    epoch. Plot indexes run from 0 to count() - 1; an index outside is ignored by
    every operation (getters answer 0, an empty text or null).

    Samples arrive through the appends of the concrete classes. They are stored
    at once; the plots are painted at most every 20 ms and only the samples that
    are new since the last redraw are painted, so a fast sensor does not load the
    window. A redraw that the 20 ms rule holds back happens 20 ms later even when
    no further sample comes. Each series keeps at most 900,000 samples; above
    that the oldest 225,000 go in one step. The value markers show the newest
    values at the next redraw.

    Following the newest sample (setFollowNewest(), on while the time line's
    selection touches its right end): when the newest sample passes the right
    edge of the plots, the view moves on by one page (its own width), and the
    time line by one of its pages when the view leaves it. Not following, the
    chart keeps storing samples but stops painting once the newest sample has
    left the time line, until the user navigates or enablePlotting(true) is
    called.

    The class cannot be created itself; the concrete charts declare only the
    operations they have.

    \sa GenericChart, GenericChartMulti, GenericChartColor, GenericChartMultiList, GenericChartNoTime
*/
class UTILS_EXPORT AbstractChart : public QWidget
{
    Q_OBJECT

public:
    ~AbstractChart() override;

    //! Number of plots.
    int count() const;
    //! The plot of index \a plotNr, or null.
    QwtPlot *poPlot(const int &plotNr) const;
    ChartTimeLine *poTimeLine() const;
    //! History kept per series before the oldest quarter is dropped (900,000).
    int getMaximumHistoryValues() const;
    //! The chart's object name.
    QString getChartName() const;

    // Data input
    //! Appends \a value at x = \a position, unchanged: no time, no break, the marker shows \a value.
    void vAppendDataNoTime(int plotNr, const double &value, const double &position);
    //! Appends \a value now, with no second or extra value.
    void plotToZero(int plotNr, int value);
    /*!
        Appends the samples of a text in the form dataToString() writes (a header
        line, then rows "dd-MM-yyyy hh:mm:ss.zzz,value,...", or a plain number of
        milliseconds instead of the date): value i of a row goes to plot i.
    */
    void appendData(const std::string &text);
    //! Replaces the series of \a plotNr by a copy of \a data and redraws.
    void vSetData(const int &plotNr, const ValueOverTime &data);
    //! Replaces extra series \a index (a custom curve on plot 0) by a copy of \a data and redraws.
    void vSetMyData(const int &index, const ValueOverTime &data);
    //! Replaces all series by the rows of \a text (see appendData()), fields split at \a separator.
    void setDataFromString(const std::string &text, char separator);
    //! Replaces the series of \a plotNr by the first value column of \a text.
    void setDataFromString(const int &plotNr, const std::string &text, char separator);
    //! Replaces curves 0 .. \a nrCurves - 1 of plot 0 by the value columns of \a text.
    void setDataFromStringCurves(const std::string &text, char separator, const int &nrCurves);
    //! Empties every series and the time line's curves; following and plotting are reset.
    void clear();
    void clear(const int &plotNr);

    // Data output
    const ValueOverTime *getData(const int &plotNr) const;
    //! Extra series \a index (0 receives the extra value of the appends), or null.
    const ValueOverTime *getDataCustomCurve(const int &index) const;
    //! All plots' series as CSV text: a header of plot titles, rows of local time and one value per plot.
    std::string dataToString() const;
    std::string dataToString(const int &plotNr) const;
    //! Every curve of every plot as CSV text, one column per curve.
    std::string dataToStringCurves() const;
    //! Local date and time of the newest sample of \a plotNr (invalid when there is none).
    QDateTime oGetLastDataTimeUpdated(int plotNr) const;
    //! Local date and time at the left end of the plot's time axis.
    QDateTime oGetLeftValueBottomAxis(int plotNr) const;
    //! x of the newest sample of \a plotNr; 0.0 when there is none.
    double getLastXAxisValue(const int &plotNr) const;
    double getYRightMax(int plotNr) const;
    double getYRightMin(int plotNr) const;
    //! Lower and upper end of the value axis.
    double plotLowerBound(int plotNr) const;
    double plotUpperBound(int plotNr) const;
    //! Width of the plot's canvas in pixels.
    int plotWidth(int plotNr) const;
    //! Ends of the time line's selection, in ms since the epoch.
    qint64 nGetChartTimeLeftLimits() const;
    qint64 nGetChartTimeRightLimits() const;

    // Current value
    //! Shows \a value on the plot's marker (and 0 as second value).
    void vSetCurrentValue(const int &plotNr, const double &value);
    void vSetCurrentValue(const int &plotNr, const double &value, const double &second);
    void setCurrentValuePrecision(const int &plotNr, const int &precision);
    void vSetCustom(const int &plotNr, bool custom);
    //! Shows or hides the value marker of every plot.
    void setValueMarkerVisible(bool visible);
    //! Shows or hides the second value marker of every plot (when the chart has them).
    void setRightMarkerVisible(bool visible);
    void vSetMarkerRightVisible(int plotNr, bool visible);

    // Appearance
    //! Fills every curve down to its baseline (on) or draws lines only (off).
    void setFilling(bool filling);
    //! Draws the extra curves with a transparent (true) or a visible dashed pen.
    void vSetExtraCurveLinePen(bool bTransparent);
    /*!
        The plot's title (shown above it when \a showTitle, and as its dock's
        title) and the unit of its value axis (shown as the axis title when
        \a showUnit).
    */
    void setPlotTitle(const int &plotNr, const std::string &title, bool showTitle, const std::string &unit,
                      bool showUnit);
    std::string plotTitle(const int &plotNr) const;
    void setPlotFont(const int &plotNr, const QFont &font);
    void setPlotStyleSheet(const int &plotNr, const QString &styleSheet);
    //! A free text beside the plot's title.
    void setCustomLabelsText(const int &plotNr, const QString &text);
    void setCustomLabelsVisible(const int &plotNr, bool visible);
    void setCustomLabelsFont(const int &plotNr, const QFont &font);
    //! Sets the plot's title again, e.g. in another language.
    void translateChartLabels(const int &plotNr, QString title);
    //! A status line under the plots, e.g. "Sensor disconnected"; hidden until setStatusMessageVisible(true).
    void setStatusText(const QString &text);
    void setStatusIcon(const QIcon &icon);
    void setStatusMessageVisible(bool visible);

    // Axes and zoom
    //! Shows \a low .. \a high on the value axis without changing the tools' limits.
    void setScale(const int &plotNr, const double &low, const double &high);
    //! The value axis with a major \a step (0: automatic), its limits shared with the tools.
    void setPlotAxisScale(const int &plotNr, double min, double max, double step);
    //! Value axis and the limits of zoom and pan.
    void vSetYScale(const int &plotNr, double min, double max);
    void setYRightAxisScale(const int &plotNr, double min, double max);
    void vEnableYRightAxis(const int &plotNr, bool enable);
    bool isRightAxisEnabled(const int &plotNr) const;
    //! Lets the value magnifier zoom the right axis too.
    void vSetZoomingRightAxes(const int &plotNr, bool enable);
    void setAllowNegativeValues(const int &plotNr, bool allow);
    void setMinimumZoomLevel(const int &plotNr, double level);
    void setMaxPanOffset(const int &plotNr, int offset);
    void setMinPanOffset(const int &plotNr, int offset);
    //! Plain numbers instead of times on the time axes.
    void enableXAxisDisplayValue(bool displayValue);

    // Time line
    //! The time line's overview range.
    void setTimelineScale(const double &low, const double &high);
    //! The time line's selection, and so the plots' view.
    void setRangeScale(const double &left, const double &right);
    /*!
        Room kept when the view jumps to the newest sample: \a left ms before the
        oldest and \a right ms after the newest sample shown.
    */
    void setRangeSelectorMargins(const double &left, const double &right);
    void vSetWidthRangeSelector(int width);
    //! The time line's reset: one minute from now, the first ten seconds selected.
    void vResetTimelineZoom();
    //! Shows or hides the previous and next buttons of the plot's combo box row.
    void setTimelineButtonsVisible(const int &plotNr, bool visible);
    void vTimelineButtonsEnableNext(const int &plotNr, bool enabled);
    void vTimelineButtonsEnablePrev(const int &plotNr, bool enabled);
    /*!
        A row of previous button, combo box and next button above the plot; the
        buttons emit independentActionPrev() and independentActionNext(). The
        combo box is drawn without a frame when \a hidden. Null for a bad index.
    */
    QComboBox *addTimelineComboboxToChart(const int &plotNr, QStringList items, bool hidden);
    void translateTimelineComboboxToChart(const int &plotNr, QStringList items);

    // Following and plotting
    //! Whether the view moves on by itself with the newest sample.
    void setFollowNewest(bool follow);
    bool isFollowingNewest() const;
    bool isPlottingEnabled() const;
    //! False while redraws are suppressed.
    bool getChartUpdate() const;

    // Docks and layout
    //! Puts the plots into a vertical layout in a scroll area (the chart without docks).
    void UpdateLayout();
    //! Puts the plots into dock widgets of the main window (when the chart has one).
    void updateLayoutUsingDockableItems();
    //! Arranges the docks in rows of \a columns side by side.
    void AddLayoutRow(const int &columns);
    void setLayoutRowVisible(const int &plotNr, bool visible);
    //! Shares \a mainWindowHeight among the visible plots as their minimum heights.
    void UpdateMinimumHeights(int mainWindowHeight);
    void setDockVisible(int dock, bool visible);
    bool isDockVisible(int dock) const;
    //! The dock of plot \a dock, or null (no main window, or a bad index).
    QDockWidget *getDockChartItem(int dock);
    //! Fixes the height of dock \a dock to its present height.
    void setFixedDock(int dock);
    void setDockFixedSize(bool fixed);
    bool getIsDockFixedSize() const;
    void translateDockTitleBarTexts();
    //! Enables or disables the plots and their tools together.
    void setEnabled(bool enabled);

    // Thresholds and lines
    void refreshThresholds(bool refresh);
    bool getRefreshThresholds() const;
    //! Extra curve \a index of \a plotNr: created when missing, drawn with the extra pen.
    void vAddExtraCurveLines(int plotNr, int index);

    // Independent plots
    //! An independent plot keeps its own time axis instead of following the time line.
    void setIndependentPlot(const int &plotNr, bool independent);
    bool checkIndependentPlot(const int &plotNr) const;

public Q_SLOTS:
    //! Paints the samples that came since the last redraw now.
    void doUpdate();
    //! True: replots every plot in full; false: paints the new samples.
    void updateChart(bool fullReplot);
    void replotChart(const int &plotNr);
    //! Replots in full after each incremental redraw as well.
    void vDoReplot(bool fullReplot);
    void enablePlotting(bool enable);
    void sendDelayValue();
    void jumpToPlottingArea();
    void resetView();
    void zoomCenterSlotEvent(double &value);
    void zoomCenterRightSlotEvent(double value, int plotNr);
    void zoomRectangleSet();
    //! Every plot back to its value range, the time line to the newest sample.
    void vResetZooming();
    void slotUltraZoom();
    void setBaselineTo(int chart);
    void axisChanged();
    void vSlotZommResetForNoiseLine();
    void SetXTimeline(const QRectF &rect);
    void IndependentPlotDoubleClickSlot();

Q_SIGNALS:
    void independentActionNext();
    void independentActionPrev();
    void independentPlotZoomed(int chart);
    void IndependentPlotDoubleClick(int chart);
    void zommResetForNoiseLine();
    void vSignalZommResetForNoiseLine();

protected Q_SLOTS:
    //! Run when plot 0's series reports new data: see the class description.
    void dataUpdated();
    //! Shows [left, right] on every plot that is not independent.
    void timeLineRangeUpdated(const double &left, const double &right);
    void timeLineScaleUpdated();
    void actionNext();
    void actionPrev();
    void actionFirst();
    void actionLast();

protected:
    AbstractChart(const ChartConfig &config, QWidget *parent);
    ChartEngine *engine() const;
    void resizeEvent(QResizeEvent *event) override;
    //! Called after zoomRectangleSet() moved the plots; the timed charts emit vZoomRectangle(0).
    virtual void zoomRectangleDone();

private:
    friend class ChartEngine;
    Q_DISABLE_COPY(AbstractChart)
    std::unique_ptr<ChartEngine> d;
};

} // namespace Charts
} // namespace Utils

#endif // UTILS_ABSTRACTCHART_H
