// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/timescaledraw.h"

#include "core/localtime_p.h"
#include "plot/plotcommon_p.h"

#include <cmath>

namespace Utils {

TimeScaleDraw::TimeScaleDraw()
{
    setLabelRotation(0.0);
    setSpacing(2.0);
}

TimeScaleDraw::~TimeScaleDraw() = default;

QwtText TimeScaleDraw::label(double value) const
{
    if (m_bDisplayValue)
        return QwtText(QString::number(value, 'g', 6));

    const bool withDate = PlotCommon::xPlotAxisType() == 1;
    const double span = std::fabs(scaleDiv().range());
    const char *pattern = nullptr;
    if (span < m_dSecondsBelowSpan)
        pattern = withDate ? "dd.MM.yyyy \r\nhh:mm:ss" : "hh:mm:ss";
    else if (span < 8.64e7)
        pattern = withDate ? "dd.MM.yyyy \r\nhh:mm" : "hh:mm";
    else
        pattern = "dd.MM.yyyy";
    // Truncation to whole milliseconds; NaN and out-of-range values give 0.
    qint64 ms = 0;
    if (std::isfinite(value) && std::fabs(value) < 9.0e18)
        ms = qint64(value);
    return QwtText(LocalTime::text(ms, pattern));
}

void TimeScaleDraw::setDisplayValue(bool displayValue)
{
    if (m_bDisplayValue == displayValue)
        return;
    m_bDisplayValue = displayValue;
    invalidateCache();
}

bool TimeScaleDraw::displayValue() const
{
    return m_bDisplayValue;
}

void TimeScaleDraw::setSecondsBelowSpan(double spanMs)
{
    if (!(spanMs >= 0.0) || spanMs == m_dSecondsBelowSpan)
        return;
    m_dSecondsBelowSpan = spanMs;
    invalidateCache();
}

double TimeScaleDraw::secondsBelowSpan() const
{
    return m_dSecondsBelowSpan;
}

void TimeScaleDraw::vReloadSettings()
{
    PlotCommon::reloadXPlotAxisType();
}

void TimeScaleDraw::vRefresh()
{
    LocalTime::reloadZone();
    invalidateCache();
}

} // namespace Utils

ExtScaleDraw::ExtScaleDraw() = default;

ExtScaleDraw::~ExtScaleDraw() = default;

QwtText ExtScaleDraw::label(double value) const
{
    return QwtText(QString::number(value, 'g', 7));
}
