// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_ABSTRACTTIMECHART_H
#define UTILS_ABSTRACTTIMECHART_H

#include "charts/abstractchart.h"

#include <QColor>
#include <QList>

namespace Utils {
namespace Charts {

/*!
    \brief What the live charts over time add to every chart: time-stamped
    appends, docks, the X zoom bar, rectangles and vertical lines.

    Samples are stamped with the current time when their time is 1.0 or less.
    After a pause longer than the chart's pause (15 s, or 10 s for the
    multi-curve charts) two break points are put into the series, 1 ms after the
    previous and 1 ms before the new sample, at the chart's break value (-1500.0,
    or -1000.0), so that the curve does not bridge the pause; the first sample
    of a series never breaks. A pause of more than 1.5 s brings the view to the
    newest sample.

    With a main window, every plot is put into a dock widget of that window
    ("DockGraphNo<index>"), which the user can move, hide and show; the time
    line goes into the window's central widget.

    \sa AbstractChart, GenericChart
*/
class UTILS_EXPORT AbstractTimeChart : public AbstractChart
{
    Q_OBJECT

public:
    ~AbstractTimeChart() override;

    /*!
        Appends \a data to the plot's series at \a timeValue (now when 1.0 or
        less), or the chart's no-value sentinel when \a update is false; the value
        marker shows \a data either way, and \a data1 as its second value unless
        it is -65000.0. \a dataExtra goes to extra series 0 unless it is -1.0 or
        less. \a bCustom is kept for the host's custom curves and not used here.
    */
    void vAppendData(int plotNr, const double &data, bool update, const double &data1, bool bCustom,
                     const double &dataExtra, double timeValue);
    //! vAppendData() with the time as third argument.
    void vAppendDataRealTime(int plotNr, const double &data, double timeValue, bool update, const double &data1,
                             bool bCustom, const double &dataExtra);

    //! Largest time span the time magnifier may show (see vSetXMax()).
    double getXMax(int plotNr) const;
    //! Upper end of the value axis.
    double getYLeftMax(int plotNr) const;
    void vSetMarkerVisible(int plotNr, bool visible);
    //! A text shown on every value marker instead of the value (empty: the value again).
    void vSetValueMarkerCustomText(QString text);
    //! The value markers write " <value>" instead of "Signal <value>".
    void vHideSignalText(int plotNr, bool hide);
    //! Shows or hides the titles above the plots.
    void vSetLabels(bool bSetVisible);
    //! Largest time span (ms) the time wheel may zoom out to on \a plotNr.
    void vSetXMax(int plotNr, double max);
    //! The time range the plot's zoom reset returns to.
    void vSetXDefaultRange(int plotNr, double min, double max);
    //! Hides (or shows) the plot's curves on the time line.
    void vHideCurveFromTimeLine(int plotNr);
    /*!
        The zoom in, reset and zoom out buttons for the time axis, 70 x 30 pixels,
        in the row above the plot; they act on plot \a plotNr (by default 1).
    */
    void addZoomBarX(const int &plotNr, bool visible);
    //! \a count translucent time rectangles on the plot, for vHighlighting().
    void vCreateRectangles(int plotNr, int count);
    //! Redraws the rectangles.
    void vPaintRectangles();
    //! Brings rectangle \a index to the front colour; -1 highlights none.
    void vHighlighting(int index);
    void vClearXLines();
    /*!
        Vertical lines on the plot at the times \a positions; each carries the
        value of \a values at the same place as its label when given.
    */
    void vUpdateXLines(int plotNr, QList<double> positions, QList<double> values);
    void vSetXLinesPen(int plotNr, QColor color);
    //! Number of vertical lines on all plots.
    int nGetLinesSize() const;

public Q_SLOTS:
    void zoomPlusxButtonClicked();
    void zoomMinusXButtonClicked();
    void zoomResetxButtonClicked();
    //! A click on an independent plot: emits independentPlotZoomed() with its index.
    void slotGetMouseCoordinate(QPoint point);

Q_SIGNALS:
    void vZoomRectangle(int index);

protected:
    AbstractTimeChart(const ChartConfig &config, QWidget *parent);
    void changeEvent(QEvent *event) override;
    void zoomRectangleDone() override;
    //! Called after a zoom bar button acted: \a kind -1 zoom out, 0 reset, 1 zoom in.
    virtual void zoomBarClicked(int kind);

private:
    //! With a main window: the time line becomes its central widget, every plot a dock.
    void vSetCentralWidget();
};

} // namespace Charts
} // namespace Utils

#endif // UTILS_ABSTRACTTIMECHART_H
