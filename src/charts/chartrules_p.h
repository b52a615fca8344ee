// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CHARTRULES_P_H
#define UTILS_CHARTRULES_P_H

// Internal to the library and its tests: the sample rules of the live charts as
// pure functions (no clock, no widget), so that tests can table them. Not installed.

#include "utils_export.h"

#include <QPair>
#include <QString>
#include <QVector>

#include <cmath>
#include <string>

namespace Utils {
namespace Charts {
namespace Rules {

/*!
    The sentinels of a family of charts. The single-curve charts break the
    curve after a pause of more than 15 s with two points at -1500.0 and store
    -15000.0 for a sample without a valid value; the multi-curve charts use
    10 s, -1000.0 and -10000.0 (the CSV export leaves out rows at -1000.0).
*/
struct SampleRules
{
    double pauseMs;
    double breakValue;
    double noValue;
};

constexpr SampleRules kSingleCurve{15000.0, -1500.0, -15000.0};
constexpr SampleRules kMultiCurve{10000.0, -1000.0, -10000.0};

//! "No second value" for the data1 argument of vAppendData.
constexpr double kNoSecondValue = -65000.0;
//! "No extra value" for dataExtra.
constexpr double kNoExtraValue = -1.0;
//! Fill baseline of a normal axis, and of an inverted left axis beside a right axis.
constexpr double kBaseline = -1500.0;
constexpr double kInvertedBaseline = 1500.0;
//! Fill baseline of the time line's copy of each curve.
constexpr double kTimeLineBaseline = -35000.0;
//! Pause after which the view jumps to the newest sample (once more after a break).
constexpr double kJumpPauseMs = 1500.0;
//! History per series: above kHistoryCap samples, the oldest kHistoryDrop go in one step.
constexpr int kHistoryCap = 900000;
constexpr int kHistoryDrop = 225000;
//! Shortest time between two redraws.
constexpr double kRedrawIntervalMs = 20.0;

//! Whether a sample at \a time after the newest at \a last breaks the curve; never for the first sample (last 0).
inline bool needsBreak(const SampleRules &rules, double last, double time)
{
    return last != 0.0 && time - last > rules.pauseMs;
}

//! How often an append jumps to the newest sample: once for a pause, twice after a break.
inline int jumpsAfter(const SampleRules &rules, double last, double time)
{
    return int(time - last > rules.pauseMs) + int(time - last > kJumpPauseMs);
}

//! Samples to erase from the front of a series of \a size: whole blocks of kHistoryDrop until at most kHistoryCap remain.
inline int historyToDrop(int size)
{
    int drop = 0;
    while (size - drop > kHistoryCap)
        drop += kHistoryDrop;
    return drop;
}

//! The visible window [lower, upper] and what a navigation step makes of it.
using Window = QPair<double, double>;

inline Window nextPage(const Window &w)
{
    return Window(w.second, w.second + (w.second - w.first));
}

inline Window previousPage(const Window &w)
{
    return Window(w.first - (w.second - w.first), w.first);
}

inline Window firstPage(const Window &w, double firstX)
{
    return Window(firstX, firstX + (w.second - w.first));
}

//! Centres the window on \a x, keeping its width.
inline Window centredOn(const Window &w, double x)
{
    const double half = (w.second - w.first) * 0.5;
    return Window(x - half, x + half);
}

/*!
    Where a following view goes when the newest sample \a newest has passed the
    window's upper end: one page on, or, after a pause longer than a page, the
    page that starts at the newest sample.
*/
inline Window followPage(const Window &w, double newest)
{
    const Window next = nextPage(w);
    return newest < next.second ? next : Window(newest, newest + (w.second - w.first));
}

/*!
    How the colour chart shows a channel reading: 0 at the calibrated \a black
    level, 255 at the \a white level, linear between, rounded and clamped to
    0..255. A reading that is not a number, or levels whose white is not above
    black, give 0.
*/
inline int channelByte(double value, double black, double white)
{
    if (std::isnan(value) || !(white > black))
        return 0;
    const double scaled = (value - black) * 255.0 / (white - black);
    return scaled <= 0.0 ? 0 : scaled >= 255.0 ? 255 : int(scaled + 0.5);
}

/*!
    One parsed line of the charts' text form: the time in ms since the epoch
    (local time "dd-MM-yyyy hh:mm:ss.zzz", or a plain number) and the values that
    follow. ok is false for a line that is not a sample (the header, an empty or
    malformed line); a value field that is empty or not a number is NaN.
*/
struct TextSample
{
    bool ok = false;
    double time = 0.0;
    QVector<double> values;
};

//! Parses one line of the text form, fields separated by \a separator.
UTILS_EXPORT TextSample parseTextLine(const QString &line, QChar separator);

} // namespace Rules
} // namespace Charts
} // namespace Utils

#endif // UTILS_CHARTRULES_P_H
