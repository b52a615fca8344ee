// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_THRESHOLDWINDOWWIDGET_H
#define UTILS_THRESHOLDWINDOWWIDGET_H

#include "utils_export.h"

#include "core/observer.h"

#include <QObject>
#include <QRectF>

#include <memory>

class QwtPlot;

namespace Utils {

class CustomWidget;
class PlotMarker;

/*!
    \brief Two draggable switching points of a threshold window on a plot.

    Puts an upper and a lower horizontal mark (PlotMarker) on the yLeft axis of
    \a plot, draws each mark's hysteresis as the thickness of its band, and
    shades what lies outside the switching window (above the upper and below the
    lower mark) or, when the marks are crossed, the band between them.

    Unless overlapping is allowed, the marks are kept minDifference apart: the
    upper mark cannot be dragged lower than minDifference / 2 above the lower
    one, nor the lower mark higher than minDifference / 2 below the upper one.
    Each drag ends with the hysteresis bands outside a normal window (upper band
    above, lower band below its line) and between crossed marks.

    Every move of a mark is reported as emitValueChanged(mark, value), with mark
    0 for the lower and 1 for the upper switching point: at the end of a user
    drag, and when setLowerMark() / setUpperMark() change the value. The widget
    follows the pan and zoom signals of a Utils::Plot; on any other QwtPlot the
    marks and zones still follow the scale.

    The object is not a widget itself; it is constructed without parent and its
    marks and zones are children of the plot's canvas. Delete it before the plot.

    \sa ThresholdWindowWidgetGeneric, ThresholdWindowWidgetUniversal, CustomWidget
*/
class UTILS_EXPORT ThresholdWindowWidget : public QObject, public Observer
{
    Q_OBJECT

public:
    /*!
        \a componentIndex names the record channel the owning chart edits through
        this widget (getComponentIndex()); the widget itself does not use it.
    */
    ThresholdWindowWidget(QwtPlot *plot, int componentIndex);
    ~ThresholdWindowWidget() override;

    //! Moves the upper mark to \a value, keeps the marks apart and updates the zones.
    void setUpperMark(const double &value);
    //! Moves the lower mark to \a value, keeps the marks apart and updates the zones.
    void setLowerMark(const double &value);
    /*!
        Hysteresis as band thickness (yLeft units): the lower mark gets
        \a lowerNoise, the upper mark \a upperNoise, or \a lowerNoise when
        \a upperNoise is negative. The new thicknesses become the reference ones.
    */
    void setNoise(const int &lowerNoise, const int &upperNoise);
    /*!
        Side of the hysteresis bands. \a upperOnly: the upper band goes above its
        line. \a keepUpper: the upper band goes below its line. Otherwise, for a
        normal window that is not \a inverted, the bands lie inside the window
        (upper band below, lower band above their lines), and outside when
        \a inverted; crossed marks swap the two cases.
    */
    void setNoiseOrientation(bool inverted, bool upperOnly, bool keepUpper);
    //! For a normal window only: the upper zone spans \a a..\a c, the lower zone \a d..\a b.
    void setOfflineThresholds(int a, int b, int c, int d);
    //! Places the zones for the present marks (see the class description).
    void updateZoneGeometry();
    //! When true the marks may cross; when false they are kept minDifference apart.
    void allowOverlapping(bool allow);
    void setMinDifference(const double &difference);
    double minDifference() const;
    //! Lets the user drag the lower mark (true) or not (false).
    void enableLowerMark(bool enable);
    //! Lets the user drag the upper mark (true) or not (false).
    void enableUpperMark(bool enable);
    /*!
        True shades the zones. False hides the lower zone by parking it at the
        values 50000..50001, outside any sensor scale; the next zone update
        hides both zones.
    */
    void setBothWindowZoneVisible(bool visible);
    bool bothWindowZoneVisible() const;
    int getComponentIndex() const;
    /*!
        When set, the reset step of a zoom reset (PlotScrollMagnified(0)) gives
        both marks the band heights of the last setNoise() back.
    */
    void setKeepNoiseWidth(bool keep);
    bool keepNoiseWidth() const;

    PlotMarker *poUpperMark() const;
    PlotMarker *poLowerMark() const;
    CustomWidget *poUpperZone() const;
    CustomWidget *poLowerZone() const;
    QwtPlot *poPlot() const;

    //! Observer call of the two marks: reports the mark that moved.
    void update(void *source) override;

public Q_SLOTS:
    void plotPanned(int dx, int dy);
    void plotZoomed(const QRectF &rect);
    void PlotScrollMagnified(double factor);
    void resetNoiseLineWidth();

Q_SIGNALS:
    //! A mark moved: \a mark is 0 for the lower, 1 for the upper switching point.
    void emitValueChanged(unsigned int mark, double value);

protected Q_SLOTS:
    //! A drag ended: keeps the marks apart, sets the band sides, updates the zones.
    void slotValueChanged(const double &value);

protected:
    //! Applies the drag limits that keep the marks apart (or opens them).
    void keepMarksApart();
    //! The range the marks may be dragged in, from the yLeft scale at construction.
    void setDragRange(double lower, double upper);
    double dragRangeLower() const;
    double dragRangeUpper() const;
    bool isOverlappingAllowed() const;
    //! Called during a drag so that the zones follow the mark.
    void markDragged();
    //! Called at the end of every zone update, after any move of a mark or of the scale.
    virtual void zonesUpdated();

private:
    friend class ThresholdWindowMark;
    Q_DISABLE_COPY(ThresholdWindowWidget)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_THRESHOLDWINDOWWIDGET_H
