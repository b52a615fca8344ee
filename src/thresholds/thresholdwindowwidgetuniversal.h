// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_THRESHOLDWINDOWWIDGETUNIVERSAL_H
#define UTILS_THRESHOLDWINDOWWIDGETUNIVERSAL_H

#include "utils_export.h"

#include "thresholds/thresholdwindowwidget.h"

#include <QString>

#include <memory>

namespace Utils {

/*!
    \brief The threshold window of the universal charts.

    Adds access to each mark, named values for the hints, a read-out of the
    window size drawn between the marks, and per-mark showing and disabling.

    \sa ThresholdWindowWidget
*/
class UTILS_EXPORT ThresholdWindowWidgetUniversal : public ThresholdWindowWidget
{
    Q_OBJECT

public:
    ThresholdWindowWidgetUniversal(QwtPlot *plot, int componentIndex);
    ~ThresholdWindowWidgetUniversal() override;

    //! Upper minus lower switching point (negative when the marks are crossed).
    double windowSize() const;
    //! Shows the window size as a label between the marks at the canvas's right edge.
    void setWindowSizeVisible(bool visible);
    bool getWindowSizeVisible() const;

    PlotMarker *getUpperMark() const;
    PlotMarker *getLowerMark() const;

    //! Moves the upper mark to \a value; standing there, its hint shows \a text.
    void setUpperMarkerValue(double value, QString text);
    //! Moves the lower mark to \a value; standing there, its hint shows \a text.
    void setLowerMarkerValue(double value, QString text);

    //! True: hints and the window size show one decimal; false (default): two.
    void formatText(bool oneDecimal);
    //! Drag restriction of both marks (see PlotMarker::vSetRestrictionCustom()).
    void vSetRestrictionFactor(int restriction);
    bool overlapping() const;

    //! Marks the thresholds as set by the user rather than taught; stored for the chart.
    void vSetCustomThreshold(bool custom);
    bool bGtCustomThresholds() const;

    void showLowerMark(bool show);
    void showUpperMark(bool show);
    //! True: the mark ignores the mouse (it stays shown).
    void vDisabledUpperMark(bool disabled);
    void vDisabledLowerMark(bool disabled);
    bool isLowerMarkVisible() const;
    bool isUpperMarkVisible() const;

    //! The label that shows the window size (hidden unless setWindowSizeVisible(true)).
    QWidget *poWindowSizeLabel() const;

protected:
    void zonesUpdated() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_THRESHOLDWINDOWWIDGETUNIVERSAL_H
