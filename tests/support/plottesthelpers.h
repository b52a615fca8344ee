// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TESTS_PLOTTESTHELPERS_H
#define UTILS_TESTS_PLOTTESTHELPERS_H

#include "mouseevents.h"
#include "testhelpers.h"

#include <charts/valueovertime.h>
#include <plot/plot.h>
#include <plot/timescaledraw.h>

#include <qwt_plot.h>
#include <qwt_scale_div.h>

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QTest>
#include <QWheelEvent>

#include <cmath>
#include <memory>

namespace PlotTest {

//! One wheel notch (delta 120) or a negative one, delivered like a real wheel.
inline void wheel(QWidget *target, const QPoint &pos, int delta)
{
    QWheelEvent event(QPointF(pos), QPointF(target->mapToGlobal(pos)), QPoint(), QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
}

//! Press, a few moves and release from \a from to \a to on \a target.
inline void drag(QWidget *target, Qt::MouseButton button, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(target, button, Qt::NoModifier, from);
    for (int step = 1; step <= 4; ++step)
        TestSupport::mouseMove(target, from + (to - from) * step / 4, button);
    QTest::mouseRelease(target, button, Qt::NoModifier, to);
}

/*!
    Drags \a mark (a marker on a canvas) by its point \a grip in \a steps equal
    moves until the grip reaches the canvas point \a to, as a hand would: each
    move is mapped at the mark's position of the moment.
*/
inline void dragMark(QWidget *mark, const QPoint &grip, const QPoint &to, int steps = 4)
{
    const QPoint from = mark->pos() + grip;
    QTest::mousePress(mark, Qt::LeftButton, Qt::NoModifier, grip);
    for (int step = 1; step <= steps; ++step)
        TestSupport::mouseMove(mark, from + (to - from) * step / steps - mark->pos(), Qt::LeftButton);
    QTest::mouseRelease(mark, Qt::LeftButton, Qt::NoModifier, to - mark->pos());
}

//! A shown plot laid out in a fresh \a host, as an application embeds it.
inline Utils::Plot *showPlot(std::unique_ptr<QWidget> &host, bool noTools = false)
{
    host.reset(new QWidget);
    auto *plot = new Utils::Plot(host.get(), noTools);
    if (!TestSupport::showIn(host.get(), plot, QSize(640, 420)))
        qWarning("window not exposed");
    plot->replot();
    return plot;
}

//! The settings file the plots read, beside the test binary.
inline QString settingsFile()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/settings.ini");
}

//! Writes the time axis type (0 "Time", 1 "Date + Time") to the settings, or removes the file for -1.
inline void useAxisType(int type)
{
    if (type < 0)
        QFile::remove(settingsFile());
    else
        QSettings(settingsFile(), QSettings::IniFormat).setValue(QStringLiteral("plot/xPlotAxisType"), type);
    Utils::TimeScaleDraw::vReloadSettings();
}

//! Shows [\a low, \a high] on \a axis without touching the tools' limits.
inline void setView(QwtPlot &plot, int axis, double low, double high)
{
    plot.setAxisScale(axis, low, high);
    plot.replot();
}

inline double lower(const QwtPlot &plot, int axis)
{
    return plot.axisScaleDiv(axis).lowerBound();
}

inline double upper(const QwtPlot &plot, int axis)
{
    return plot.axisScaleDiv(axis).upperBound();
}

//! The shown interval of \a axis, as (lower bound, upper bound).
using Range = QPair<double, double>;
inline Range range(const QwtPlot &plot, int axis)
{
    return Range(lower(plot, axis), upper(plot, axis));
}

inline double span(const QwtPlot &plot, int axis)
{
    return upper(plot, axis) - lower(plot, axis);
}

//! Distance between the first two major ticks, 0 when there are fewer.
inline double majorStep(const QwtPlot &plot, int axis)
{
    const QList<double> ticks = plot.axisScaleDiv(axis).ticks(QwtScaleDiv::MajorTick);
    return ticks.size() < 2 ? 0.0 : ticks.at(1) - ticks.at(0);
}

inline bool near(double a, double b, double tolerance = 1e-9)
{
    return std::fabs(a - b) <= tolerance * std::max(1.0, std::max(std::fabs(a), std::fabs(b)));
}

//! A series' samples as (time, value); none for a null series.
inline QVector<QPointF> samples(const Utils::ValueOverTime *series)
{
    QVector<QPointF> points;
    for (int i = 0; series && i < series->size(); ++i)
        points.append(QPointF(series->pxData()[i], series->pyData()[i]));
    return points;
}

} // namespace PlotTest

#endif // UTILS_TESTS_PLOTTESTHELPERS_H
