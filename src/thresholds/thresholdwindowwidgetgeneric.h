// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_THRESHOLDWINDOWWIDGETGENERIC_H
#define UTILS_THRESHOLDWINDOWWIDGETGENERIC_H

#include "utils_export.h"

#include "thresholds/thresholdwindowwidget.h"

namespace Utils {

/*!
    \brief The threshold window of the generic charts.

    Adds a settable drag range for both marks and a read-only mode in which
    the marks are shown but cannot be dragged.

    \sa ThresholdWindowWidgetGenericColor, ThresholdWindowWidgetGenericNoTime
*/
class UTILS_EXPORT ThresholdWindowWidgetGeneric : public ThresholdWindowWidget
{
    Q_OBJECT

public:
    ThresholdWindowWidgetGeneric(QwtPlot *plot, int componentIndex);
    ~ThresholdWindowWidgetGeneric() override;

    /*!
        Both marks may be dragged within \a lower..\a upper (yLeft units, either
        order), still kept apart from each other unless overlapping is allowed.
    */
    void setThresholdsRange(const double &lower, const double &upper);
    //! True: neither mark can be dragged; false: both can.
    void setReadOnlyUpperLower(bool readOnly);
    bool isReadOnlyUpperLower() const;

private:
    bool m_bReadOnly = false;
};

//! The generic threshold window as the colour charts use it.
class UTILS_EXPORT ThresholdWindowWidgetGenericColor : public ThresholdWindowWidgetGeneric
{
    Q_OBJECT

public:
    ThresholdWindowWidgetGenericColor(QwtPlot *plot, int componentIndex);
    ~ThresholdWindowWidgetGenericColor() override;
};

//! The generic threshold window as the charts without a time axis use it.
class UTILS_EXPORT ThresholdWindowWidgetGenericNoTime : public ThresholdWindowWidgetGeneric
{
    Q_OBJECT

public:
    ThresholdWindowWidgetGenericNoTime(QwtPlot *plot, int componentIndex);
    ~ThresholdWindowWidgetGenericNoTime() override;
};

} // namespace Utils

#endif // UTILS_THRESHOLDWINDOWWIDGETGENERIC_H
