// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_PLOT_H
#define UTILS_PLOT_H

#include "utils_export.h"

#include <qwt_plot.h>

#include <QPoint>
#include <QRectF>

#include <memory>

class QHBoxLayout;
class QPushButton;

namespace Utils {

class AxisScaleEngine;
class TimeScaleDraw;
class WPlotMagnifier;
class WPlotMagnifierXAxis;
class WPlotPanner;
class WSelectionZoomer;

/*!
    \brief The plot widget under every chart: white canvas, dotted grey grid, time axis.

    x (QwtPlot::xBottom) is time in milliseconds since the Unix epoch; yLeft holds
    the values, yRight an optional second value axis. Unless built with \c
    bNoTools, the plot carries a rubber-band zoomer (left drag; Shift+O, Shift+I and
    Home only refresh the time ticks), a right-button vertical panner, two wheel
    magnifiers (values and time), a "time, value" tracker, and optionally the zoom
    button column of embedZoomToolBar(). All tools share the limits set through
    setAxisScale() so none of them drives the view past the others.

    A right click on the time axis offers "Time" and "Date + Time"; the choice is
    kept as plot/xPlotAxisType in "settings.ini" in the application's directory.

    Everything the user does is announced by signals; the charts listen to them.
*/
class UTILS_EXPORT Plot : public QwtPlot
{
    Q_OBJECT

public:
    explicit Plot(QWidget *parent = nullptr, bool bNoTools = false);
    ~Plot() override;

    /*!
        Lays out axes and canvas until they settle. A new scale moves the labels
        at the ends of the axes, and the canvas, aligned to the scales, moves
        with them; a replot must not draw with the maps of the first round.
    */
    void updateLayout() override;

    //! Creates the tools; with \a bNoTools only the time scale draw and the engine.
    void vInitMembers(bool bNoTools);

    /*!
        Sets the scale and shares it with the tools: for yLeft the magnifier's
        range, the zoomer's upper bound and the panner's limits (widened by the pan
        offsets); for yRight the magnifier's right range. Resets the zoom base.
        Hides QwtPlot::setAxisScale, which the tools call to move the view.
        Bounds or a step that are not finite numbers are refused: nothing changes.
    */
    void setAxisScale(int axisId, double min, double max, double step = 0);
    //! Limits of the time magnifier: lower time bound, then largest span; ignored unless both are finite.
    void vSetXAxis(const double &min, const double &max);
    void enableRightAxis(bool enable);
    //! yRight scale with a major step of 2.0.
    void setYRightRange(double min, double max);
    void setPanMinOffset(int offset);
    void setPanMaxOffset(int offset);
    void setZoomBase();
    /*!
        Re-applies the time ticks through the zoomer (which does not walk its
        stack) and returns the rectangle seen before when the view got wider,
        else the one at x = \a start, else an empty rectangle.
    */
    QRectF zoomReset(const double &start);
    //! Rubber-band zoom to \a rect (plot coordinates), with the zoomer's rules.
    void zoomToRect(QRectF rect);
    //! Stores \a enabled in every tool; disabled tools ignore the mouse and wheel.
    void setEnabled(bool enabled);
    bool isPlotEnabled() const;
    //! The value magnifier's minimum zoom level becomes \a level + 1.0 (intended).
    void setMinimumZoomLevel(double level);
    //! Adds a click picker whose clicks are reported by getMouseCoordinate().
    void vSetZoomUnderMouse(bool zoomUnderMouse);
    //! Plain numbers instead of times on the bottom axis.
    void enableXAxisDisplayValue(bool displayValue);
    void vZoomWithIntVal(bool integerValues);
    //! Centre of yRight in a centre zoom; a value that is not finite is ignored.
    void setSecondValue(double value);
    double secondValue() const;
    void setEnableNegativeValues(bool enable);
    bool negativeValuesEnabled() const;
    void setIndependentPlot(bool independent);
    bool checkIndependentPlot() const;
    bool getZoomResetClick() const;
    int panMinOffset() const;
    int panMaxOffset() const;

    //! Builds the zoom button column beside the plot; place the returned widget instead of the plot.
    QWidget *embedZoomToolBar();
    QHBoxLayout *getPlotContainer() const;

    void zoomPlusXButtonClicked();
    void zoomMinusXButtonClicked();
    void zoomResetXButtonClicked();

    WSelectionZoomer *poZoomer() const;
    TimeScaleDraw *poTimeScaleDraw() const;
    AxisScaleEngine *poScaleEngine() const;
    WPlotMagnifier *poValueMagnifier() const;
    WPlotMagnifierXAxis *poTimeMagnifier() const;
    WPlotPanner *poPanner() const;
    QPushButton *poZoomInButton() const;
    QPushButton *poZoomOutButton() const;
    QPushButton *poResetZoomButton() const;

Q_SIGNALS:
    void axisChanged();
    void plotPanned(int dx, int dy);
    void plotZoomed(const QRectF &rect);
    void plotZoomed1(const QRectF &rect);
    void PlotScrollMagnified(double factor);
    void zoomRectangle();
    //! Listeners write the centre value into \a centre (it starts at 0.0).
    void zoomCenterSignalEvent(double &centre);
    void zoomCenterRightSignalEvent(double value, int plotNr = 0);
    void SignalsetBaselineTo(int chart = 0);
    void plotUltraZoomed();
    void IndependentPlotDoubleClick();
    void getMouseCoordinate(QPoint point);
    void changeXSignal(const QRectF &rect);
    void zommResetForNoiseLine();
    void vSignalZommResetForNoiseLine();

public Q_SLOTS:
    void zoomMinusButtonClicked();
    void zoomPlusButtonClicked();
    void zoomResetButtonClicked();
    void vZoomResetButtonClicked();
    void zoomCenter();
    void slotCenterZoom(const QRectF &rect);
    void onSelected(const QPointF &pos);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void translateElements();

private:
    void setZoomResetClick(bool click);
    double getStep(double span);
    void shareValueLimits(double min, double max);
    void showAxisMenu(const QPoint &globalPos);

    Q_DISABLE_COPY(Plot)
    struct Private;
    std::unique_ptr<Private> d;

    bool m_bZoomResetClick = false;
    bool m_bNegativeValuesEnabled = false;
    double m_dSecondValue = 0.0;
    bool m_bIndependentPlot = false;
    bool m_bZoomUnderMouse = false;
    bool m_bZoomWithIntVal = false;
};

} // namespace Utils

#endif // UTILS_PLOT_H
