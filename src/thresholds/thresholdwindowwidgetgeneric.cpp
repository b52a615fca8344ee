// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholdwindowwidgetgeneric.h"

namespace Utils {

ThresholdWindowWidgetGeneric::ThresholdWindowWidgetGeneric(QwtPlot *plot, int componentIndex)
    : ThresholdWindowWidget(plot, componentIndex)
{
}

ThresholdWindowWidgetGeneric::~ThresholdWindowWidgetGeneric() = default;

void ThresholdWindowWidgetGeneric::setThresholdsRange(const double &lower, const double &upper)
{
    setDragRange(lower, upper);
}

void ThresholdWindowWidgetGeneric::setReadOnlyUpperLower(bool readOnly)
{
    m_bReadOnly = readOnly;
    enableUpperMark(!readOnly);
    enableLowerMark(!readOnly);
}

bool ThresholdWindowWidgetGeneric::isReadOnlyUpperLower() const
{
    return m_bReadOnly;
}

ThresholdWindowWidgetGenericColor::ThresholdWindowWidgetGenericColor(QwtPlot *plot, int componentIndex)
    : ThresholdWindowWidgetGeneric(plot, componentIndex)
{
}

ThresholdWindowWidgetGenericColor::~ThresholdWindowWidgetGenericColor() = default;

ThresholdWindowWidgetGenericNoTime::ThresholdWindowWidgetGenericNoTime(QwtPlot *plot, int componentIndex)
    : ThresholdWindowWidgetGeneric(plot, componentIndex)
{
}

ThresholdWindowWidgetGenericNoTime::~ThresholdWindowWidgetGenericNoTime() = default;

} // namespace Utils
