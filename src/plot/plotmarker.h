// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_PLOTMARKER_H
#define UTILS_PLOTMARKER_H

#include "utils_export.h"
#include "plot/chartitem.h"

#include <QPen>
#include <QString>
#include <QWidget>

#include <memory>
#include <string>

class QKeyEvent;
class QPainter;
class QwtPlot;

namespace Utils {

/*!
    \brief A draggable horizontal line for one value on the yLeft axis of a plot.

    The marker is a thin transparent child of the plot's canvas. Its value is a
    plot value, not a pixel: it is placed again whenever the canvas is resized or
    the yLeft scale changes, so it follows zoom and pan. A band of thickness()
    value units can be drawn beside the line (noiseOrientation()).

    A user drag is held inside [lower(), upper()]; when it ends, valueChanged() is
    emitted and the attached observers (ChartItem) are notified. With the keyboard
    focus, each press of an arrow key along the value axis is such a drag of one
    pixel (ten with Shift). Values set by
    code emit nothing.

    The marker starts hidden; setValue() with a positive value shows it.

    \sa PlotMarkerNoTime, PlotMarkerUniversal, ChartThresholdManager
*/
class UTILS_EXPORT PlotMarker : public QWidget, public ChartItem
{
    Q_OBJECT

public:
    //! Stored for the charts that read it; the marker's drawing does not depend on it.
    enum Mode {
        ModeDefault = 0,
        ModeThreshold = 1,
        ModeNoise = 2
    };
    Q_ENUM(Mode)

    //! Side of the band. 3 and 4 are used by the vertical form of PlotMarkerUniversal only.
    enum Orientation {
        OrientationBandAbove = 0, //!< band above the line (towards higher values)
        OrientationBandBelow = 1, //!< band below the line
        OrientationLineOnly = 2, //!< no band, placed as OrientationBandBelow
        OrientationBandCentered = 3, //!< vertical form: band centred on the line
        OrientationLineCentered = 4 //!< vertical form: line only, centred
    };
    Q_ENUM(Orientation)

    PlotMarker(QwtPlot *plot, Mode mode = ModeDefault);
    ~PlotMarker() override;

    // ChartItem
    void setValueText(const std::string &text) override;
    double value() const override;
    //! The value as text, format 'g' with 6 significant digits.
    std::string valueText() const override;
    //! The value truncated to an integer.
    int nValue() const;

    //! When the marker stands on \a value, the hint shows \a text.
    void setUpperValue(double value, const QString &text);
    void setLowerValue(double value, const QString &text);

    void setMoveable(bool moveable);
    bool bMovable() const;

    //! Line pen; its colour also fills the band.
    void vSetPen(const QPen &pen);
    QPen pen() const;

    //! Drag bounds in yLeft units; taken from the yLeft scale at construction.
    void setUpperBound(double upper);
    double upper() const;
    void setLowerBound(double lower);
    double lower() const;
    void setRange(double lower, double upper);

    //! Band height in value units; the pixel height follows the scale.
    void setThickness(unsigned int thickness);
    unsigned int thickness() const;
    int pixelThickness() const;
    //! Saves the present pixel thickness; vAfterZoomReset() restores it.
    void vSetTicknessHeight();
    void vAfterZoomReset();

    void setNoiseOrientation(Orientation orientation);
    void setNoiseOrientation(int orientation);
    Orientation noiseOrientation() const;

    void setMode(Mode mode);
    Mode mode() const;

    //! Shows or hides the marker; a disabled marker is not shown again by setValue().
    void enablePlotMarker(bool enable);
    //! Passes \a enabled to QWidget::setEnabled as it is, whatever the name suggests.
    void vDisablePlotMarker(bool enabled);
    void setVisible(bool visible) override;
    bool isPlotMarkerVisible() const;
    //! Shows or hides the marker without touching the disabled state.
    void showPlotMarker(bool show);

    /*!
        When \a clamp is true, a drag below 0 yields 0.0. The name says the
        opposite of what it does; hosts depend on this meaning.
    */
    void vAllowedNegativeValMarkers(bool clamp);
    bool negativeValuesClamped() const;

    //! True: the hint shows one decimal; false (default): two.
    void setText(bool oneDecimal);
    /*!
        -1 or less (default): a drag may pass the lower bound's pixel by about 5 %.
        0 or more: the drag stops at the lower bound.
    */
    void vSetRestrictionCustom(int restriction);
    int restrictionCustom() const;

    //! Places the marker for a canvas (or plot) of \a size.
    void resize(const QSize &size);
    using QWidget::resize;
    //! Places the marker with the plot's size.
    void vItemChanged();

    bool isHovered() const;
    bool isDragging() const;
    //! The hint last shown: hint text followed by the formatted value.
    QString hintText() const;

    QwtPlot *plot() const;

    bool operator>(const PlotMarker &other) const;
    bool operator<(const PlotMarker &other) const;
    bool operator==(const PlotMarker &other) const;
    bool operator!=(const PlotMarker &other) const;

public Q_SLOTS:
    void setValue(const double &value) override;

Q_SIGNALS:
    void valueChanged(const double &value);

protected:
    //! Constructor of the variants: \a valueAxis is QwtPlot::yLeft or QwtPlot::xBottom.
    PlotMarker(QwtPlot *plot, Mode mode, int valueAxis);

    //! Shows a tooltip with the hint text and the value.
    void showTextHint();

    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    //! The arrow keys along the value axis move the marker one pixel (ten with Shift), as a drag would.
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

    // Used by the vertical variants.
    int valueAxis() const;
    void setValueAxis(int axis);
    void setNeighbourBound(int index, bool left, double value);
    double neighbourBound(int index, bool left) const;
    void setNeighbourCount(int count);
    void setNeighbourSpacing(int pixels);
    void setLeftRightValue(bool left, double value, const QString &text);
    void setBandStyle(Qt::BrushStyle style);
    void setEmitWhileDragging(bool emitWhileDragging);

    //! Called after every drag step with the new value.
    virtual void dragStep(double newValue);

private:
    void init(QwtPlot *plot, Mode mode, int valueAxis);
    void place(int width, int height);
    void paintLook(QPainter &painter, bool band, bool line) const;
    void recomputePixelThickness();
    int dragHorizontal(int top);
    double moveTo(int position);
    int dragVertical(int left);

    Q_DISABLE_COPY(PlotMarker)
    struct Private;
    std::unique_ptr<Private> d;

    QString m_oLowerText;
    QString m_oUpperText;
    QString m_oHintText;
    bool m_bOneDecimal = false;
    int m_nRestrictionCustom = -1;
};

} // namespace Utils

#endif // UTILS_PLOTMARKER_H
