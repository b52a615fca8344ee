// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TIMESCALEDRAW_H
#define UTILS_TIMESCALEDRAW_H

#include "utils_export.h"

#include <qwt_scale_draw.h>

namespace Utils {

/*!
    \brief Labels of the bottom axis: times in milliseconds since the epoch.

    The format follows the span of the scale: "hh:mm:ss" below one minute,
    "hh:mm" below one day, "dd.MM.yyyy" from one day on. In "Date + Time" mode
    (plot/xPlotAxisType = 1 in the settings file) the date is put on a line above
    the time. With display value set, the labels are plain numbers instead.
*/
class UTILS_EXPORT TimeScaleDraw : public QwtScaleDraw
{
public:
    TimeScaleDraw();
    ~TimeScaleDraw() override;

    QwtText label(double value) const override;

    void setDisplayValue(bool displayValue);
    bool displayValue() const;

    /*!
        Spans (ms) below which the labels show seconds; 60000 by default, so a
        plot of one minute or more shows "hh:mm". An overview strip that shows a
        minute with ticks every few seconds raises it.
    */
    void setSecondsBelowSpan(double spanMs);
    double secondsBelowSpan() const;

    /*!
        Drops the cached labels, e.g. after the axis type changed, and has the
        time zone read again. Labels are drawn in the zone the C library holds;
        it is not re-read per label, which would cost a file system look-up each.
    */
    void vRefresh();

    /*!
        plot/xPlotAxisType is read once and then kept, so that drawing labels
        never opens the settings file; the axis menu updates the kept value. A
        host that writes the key with its own QSettings calls this afterwards
        (and replots) to have the file read again.
    */
    static void vReloadSettings();

private:
    bool m_bDisplayValue = false;
    double m_dSecondsBelowSpan = 60000.0;
};

} // namespace Utils

/*!
    \brief yLeft labels with seven significant digits, installed in deep zoom.
*/
class UTILS_EXPORT ExtScaleDraw : public QwtScaleDraw
{
public:
    ExtScaleDraw();
    ~ExtScaleDraw() override;

    QwtText label(double value) const override;
};

#endif // UTILS_TIMESCALEDRAW_H
