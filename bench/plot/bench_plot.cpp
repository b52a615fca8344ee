// SPDX-License-Identifier: LGPL-2.1-or-later
// A time label against a plain Qwt number label, and a full replot with a moving
// time axis on Utils::Plot (grid, time labels, markers) against a bare QwtPlot.
// On a busy machine compare medians of interleaved runs, so that load hits all
// alike: --benchmark_repetitions=5 --benchmark_enable_random_interleaving=true
#include <plot/customcurve.h>
#include <plot/plot.h>
#include <plot/plotmarker.h>
#include <plot/timescaledraw.h>

#include <qwt_plot_curve.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>

#include <QApplication>
#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSettings>
#include <QVector>

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>
#include <vector>

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
        // replot() only schedules the canvas and axes; paint them now, as a frame would.
        plot.repaint();
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

/*
    A live chart's curve: 900,000 samples at 1 ms spacing, 10 s of them in view
    on an 800 x 300 Utils::Plot. range(0): 0 = CustomCurve over all samples,
    1 = CustomCurve given only the visible 10,000, 2 = plain QwtPlotCurve over
    all, 3 = plain QwtPlotCurve given only the visible 10,000.
*/
void BM_CurveReplot(benchmark::State &state)
{
    const int kind = int(state.range(0));
    const int total = 900000;
    const int visible = 10000;
    std::vector<double> x(total), y(total);
    for (int i = 0; i < total; ++i) {
        x[i] = kStart + i;
        y[i] = 150.0 + 80.0 * std::sin(i / 700.0) + double((i * 7919LL) % 13) - 6.0;
    }
    const bool onlyVisible = kind == 1 || kind == 3;
    const int offset = onlyVisible ? total - visible : 0;
    const int count = onlyVisible ? visible : total;
    Utils::Plot plot;
    plot.resize(800, 300);
    plot.setAxisScale(QwtPlot::yLeft, 0.0, 300.0);
    plot.setAxisScale(QwtPlot::xBottom, x[total - visible], x[total - 1]);
    QwtPlotCurve *curve = nullptr;
    if (kind <= 1) {
        auto *custom = new Utils::CustomCurve;
        custom->vUpdateData(x.data() + offset, y.data() + offset, count);
        curve = custom;
    } else {
        curve = new QwtPlotCurve;
        curve->setRawSamples(x.data() + offset, y.data() + offset, count);
    }
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->attach(&plot);
    plot.show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        plot.replot();
        plot.repaint();
    }
    state.SetLabel(kind == 0   ? "CustomCurve, 900k samples"
                   : kind == 1 ? "CustomCurve, visible 10k only"
                   : kind == 2 ? "QwtPlotCurve, 900k samples"
                               : "QwtPlotCurve, visible 10k only");
}
BENCHMARK(BM_CurveReplot)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

/*
    The time line's overview: all 900,000 samples in 800 pixel columns, drawn
    into an image (no widget), so that only the curve is timed.
    range(0): 0 = CustomCurve, 1 = plain QwtPlotCurve.
*/
void BM_OverviewDraw(benchmark::State &state)
{
    const int total = 900000;
    std::vector<double> x(total), y(total);
    for (int i = 0; i < total; ++i) {
        x[i] = kStart + i;
        y[i] = 150.0 + 80.0 * std::sin(i / 700.0) + double((i * 7919LL) % 13) - 6.0;
    }
    QwtPlotCurve *curve = nullptr;
    if (state.range(0) == 0) {
        auto *custom = new Utils::CustomCurve;
        custom->vUpdateData(x.data(), y.data(), total);
        curve = custom;
    } else {
        curve = new QwtPlotCurve;
        curve->setRawSamples(x.data(), y.data(), total);
    }
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    QImage image(800, 60, QImage::Format_ARGB32_Premultiplied);
    QwtScaleMap xMap, yMap;
    xMap.setPaintInterval(0, 800);
    xMap.setScaleInterval(x.front(), x.back());
    yMap.setPaintInterval(60, 0);
    yMap.setScaleInterval(0.0, 300.0);
    for (auto _ : state) {
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        curve->draw(&painter, xMap, yMap, QRectF(0, 0, 800, 60));
    }
    delete curve;
    state.SetLabel(state.range(0) == 0 ? "CustomCurve" : "QwtPlotCurve");
}
BENCHMARK(BM_OverviewDraw)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

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
