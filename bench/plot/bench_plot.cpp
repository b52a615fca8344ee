// SPDX-License-Identifier: LGPL-2.1-or-later
// The time axis consults plot/xPlotAxisType of the settings file for every label.
// These benchmarks show what that costs against a plain Qwt label, and what a
// full replot with a moving time axis costs on Utils::Plot against a bare QwtPlot.
#include <plot/plot.h>
#include <plot/plotmarker.h>
#include <plot/timescaledraw.h>

#include <qwt_plot_curve.h>
#include <qwt_scale_draw.h>

#include <QApplication>
#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QVector>

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

namespace {

const double kStart = 1700000000000.0;

void writeAxisType(int type)
{
    QSettings settings(QCoreApplication::applicationDirPath() + QStringLiteral("/settings.ini"), QSettings::IniFormat);
    settings.setValue(QStringLiteral("plot/xPlotAxisType"), type);
    settings.sync();
}

void BM_TimeLabel(benchmark::State &state)
{
    writeAxisType(int(state.range(0)));
    Utils::TimeScaleDraw draw;
    draw.setScaleDiv(QwtScaleDiv(kStart, kStart + 30000.0));
    double t = kStart;
    for (auto _ : state) {
        benchmark::DoNotOptimize(draw.label(t).text());
        t += 1000.0;
    }
}
BENCHMARK(BM_TimeLabel)->Arg(0)->Arg(1);

void BM_PlainQwtLabel(benchmark::State &state)
{
    QwtScaleDraw draw;
    double t = kStart;
    for (auto _ : state) {
        benchmark::DoNotOptimize(draw.label(t).text());
        t += 1000.0;
    }
}
BENCHMARK(BM_PlainQwtLabel);

//! One frame of a live chart: shift the time axis by 100 ms and repaint.
template<typename PlotType>
void replotMovingAxis(benchmark::State &state, bool withMarkers)
{
    PlotType plot;
    plot.resize(800, 300);
    plot.setAxisAutoScale(QwtPlot::yLeft, false);
    plot.QwtPlot::setAxisScale(QwtPlot::yLeft, 0.0, 300.0);
    QVector<double> x, y;
    for (int i = 0; i < 500; ++i) {
        x << kStart + i * 100.0;
        y << 150.0 + 50.0 * std::sin(i / 20.0);
    }
    auto *curve = new QwtPlotCurve;
    curve->setSamples(x, y);
    curve->attach(&plot);
    std::vector<std::unique_ptr<Utils::PlotMarker>> markers;
    if (withMarkers) {
        for (double v : {110.0, 190.0}) {
            markers.emplace_back(new Utils::PlotMarker(&plot));
            markers.back()->setThickness(5);
            markers.back()->setValue(v);
        }
    }
    plot.show();
    QCoreApplication::processEvents();
    double t = kStart;
    for (auto _ : state) {
        plot.QwtPlot::setAxisScale(QwtPlot::xBottom, t, t + 50000.0);
        plot.replot();
        t += 100.0;
    }
    markers.clear();
}

void BM_ReplotUtilsPlot(benchmark::State &state)
{
    replotMovingAxis<Utils::Plot>(state, state.range(0) != 0);
}
BENCHMARK(BM_ReplotUtilsPlot)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_ReplotBareQwtPlot(benchmark::State &state)
{
    replotMovingAxis<QwtPlot>(state, false);
}
BENCHMARK(BM_ReplotBareQwtPlot)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    QFile::remove(QCoreApplication::applicationDirPath() + QStringLiteral("/settings.ini"));
    return 0;
}
