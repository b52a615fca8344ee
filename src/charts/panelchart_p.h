// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_PANELCHART_P_H
#define UTILS_PANELCHART_P_H

// Internal to the library: what the small panel charts (SimpleTimeChart,
// ColorChart) share: one plot, a few curves that follow their series, the
// sample rules of the live charts and a throttled, incremental redraw. Not
// installed.

#include "charts/chartrules_p.h"
#include "charts/redrawthrottle_p.h"

#include <QColor>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QTimer;
class QWidget;
class QwtPlotDirectPainter;

namespace Utils {

class CurveFactory;
class CustomCurve;
class Plot;
class ValueOverTime;

namespace Charts {

/*!
    The engine of a panel chart. The plot is a child of the owner widget, which
    lays it out. The view pages like a following live chart: it shows timeSpan
    ms; when the newest sample passes its right end it moves on by one page (or
    to the page that starts at the newest sample after a longer pause), and
    between two page moves only the new samples are painted.
*/
class PanelChart
{
public:
    PanelChart(QWidget *owner, int curves, const Rules::SampleRules &rules);
    ~PanelChart();

    /*!
        Appends values[i] to curve i at one time stamp (now when \a timeValue is
        1.0 or less), the no-value sentinel instead when \a update is false,
        after the two break points of a pause. Returns the time used. The
        redraw follows at most every 20 ms.
    */
    double append(const double *values, bool update, double timeValue);
    void clear();
    //! After new samples: redraws now unless the last redraw is less than 20 ms ago.
    void dataUpdated();
    //! Pages the view when needed and paints what is new; then runs onFrame.
    void frame();
    //! Replots in full and counts everything as drawn.
    void replot();
    void setSpan(double span);
    void setCurveStyle(int index, const QColor &color, int width, bool filled);
    //! A bold title above \a plot; empty for none.
    static void setTitle(Plot *plot, const QString &title);

    Plot *plot = nullptr;
    struct Curve
    {
        std::unique_ptr<ValueOverTime> series;
        CustomCurve *curve = nullptr;
        int lastDrawn = -1;
    };
    std::vector<Curve> curves;
    std::unique_ptr<CurveFactory> factory;
    QwtPlotDirectPainter *painter = nullptr;
    //! Samples that come within 20 ms of a redraw wait for the cool-down's end.
    RedrawThrottle throttle;
    bool trimmed = false;
    Rules::SampleRules rules;
    double span = 60000.0;
    Rules::Window window{0.0, 0.0};
    //! Run after every redraw, e.g. to show the newest values beside the plot.
    std::function<void()> onFrame;
};

} // namespace Charts
} // namespace Utils

#endif // UTILS_PANELCHART_P_H
