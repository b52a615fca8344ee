// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_SIMPLETIMECHART_H
#define UTILS_SIMPLETIMECHART_H

#include "utils_export.h"

#include <QColor>
#include <QWidget>

#include <memory>

namespace Utils {

class Plot;
class ValueOverTime;

/*!
    \brief A small live chart for panels: one Utils::Plot with one curve of a
    Utils::ValueOverTime, without time line, docks or value marker.

    Samples are stamped and broken as in the generic chart: a time of 1.0 or
    less means now; after a pause of more than 15 s two points at -1500.0 (1 ms
    after the previous and 1 ms before the new sample) keep the curve from
    bridging the pause, never before the first sample; a sample appended with
    \c update false is stored as -15000.0. Each series keeps at most 900,000
    samples; above that the oldest 225,000 go in one step.

    The view follows the newest sample page by page: it shows timeSpan() ms
    starting at the first sample, and when the newest sample passes the right
    end it moves on by one page (after a longer pause, to the page that starts
    at the newest sample). Between two page moves only the new samples are
    painted, at most once every 20 ms; a redraw held back by that rule comes
    20 ms later even when no further sample arrives. vAppendData() reads no
    settings, logs nothing and makes no QDateTime; between two redraws it only
    stores the sample (no allocation beyond the series' own growth), and when
    20 ms have passed it runs the redraw itself.

    The plot carries no zoom or pan tools, so a click on a panel does not move
    its view; poPlot() gives the host the plot for its axes and title.

    \sa Utils::Charts::GenericChart, ColorChart
*/
class UTILS_EXPORT SimpleTimeChart : public QWidget
{
    Q_OBJECT
    //! Width of the visible time window in ms (default 60,000).
    Q_PROPERTY(double timeSpan READ timeSpan WRITE setTimeSpan NOTIFY timeSpanChanged)
    //! Colour of the curve (default RGB 188, 0, 0); settable from a style sheet as qproperty-curveColor.
    Q_PROPERTY(QColor curveColor READ curveColor WRITE setCurveColor NOTIFY curveColorChanged)
    //! Whether the area under the curve is filled with a light shade of its colour (default true).
    Q_PROPERTY(bool filling READ isFilling WRITE setFilling)

public:
    explicit SimpleTimeChart(QWidget *parent = nullptr);
    ~SimpleTimeChart() override;

    /*!
        Appends \a data at \a timeValue (ms since the epoch; now when 1.0 or
        less), or -15000.0 instead of the value when \a update is false. Called
        once per sample.
    */
    void vAppendData(const double &data, bool update = true, double timeValue = 0.0);
    //! Empties the series; the next sample starts a new first page.
    void clear();

    //! The series behind the curve (owned by the chart).
    const ValueOverTime *getData() const;
    //! The plot, for its axes and title (owned by the chart).
    Plot *poPlot() const;

    //! Shows \a low .. \a high on the value axis (default 0 .. 300).
    void vSetYScale(const double &low, const double &high);
    //! A title above the plot; empty for none (the default).
    void setPlotTitle(const QString &title);
    QString plotTitle() const;

    //! Ignores spans that are not above 0 ms.
    void setTimeSpan(double span);
    double timeSpan() const;
    void setCurveColor(const QColor &color);
    QColor curveColor() const;
    void setFilling(bool filling);
    bool isFilling() const;

Q_SIGNALS:
    void timeSpanChanged(double span);
    void curveColorChanged(const QColor &color);

private:
    void applyStyle();

    Q_DISABLE_COPY(SimpleTimeChart)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_SIMPLETIMECHART_H
