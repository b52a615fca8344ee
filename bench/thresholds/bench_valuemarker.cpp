// SPDX-License-Identifier: LGPL-2.1-or-later
// A chart hands every sample to its value marker (up to 100,000 per second) and
// repaints at most every 20 ms. These benchmarks show what one vSetValue costs,
// what one paint of the label costs, and what a host pays instead when it writes
// every sample into a QLabel. "allocs" counts heap allocations per iteration; a
// paint's floor is what Qt's repaint of any overlay costs (BM_BareOverlayPaint),
// and each string drawn adds the allocations of Qt's text layout.
#include <thresholds/valuemarker.h>
#include <thresholds/valuemarkercolor.h>
#include <thresholds/valuemarkermultilist.h>

#include <qwt_plot.h>

#include "allocationcounter.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>

namespace {

//! A shown plot as a chart has it, with the label on its canvas.
struct Fixture
{
    QwtPlot plot;
    Fixture()
    {
        plot.resize(800, 300);
        plot.show();
        plot.replot();
        QApplication::processEvents();
    }
};

//! Reports the allocations made since \a start, per iteration.
void reportAllocations(benchmark::State &state, long start)
{
    state.counters["allocs"]
        = benchmark::Counter(double(TestSupport::allocations.load() - start), benchmark::Counter::kAvgIterations);
}

void BM_ValueMarkerSetValue(benchmark::State &state)
{
    Fixture fixture;
    Utils::ValueMarker marker(&fixture.plot);
    QApplication::processEvents();
    double value = 0.0;
    marker.vSetValue(value, 0.0);
    const long long start = TestSupport::allocations.load();
    for (auto _ : state) {
        value += 0.25;
        marker.vSetValue(value, 1.0);
    }
    reportAllocations(state, start);
    QApplication::processEvents();
}
BENCHMARK(BM_ValueMarkerSetValue);

//! The same per-sample job done with a QLabel: format the value and set the text.
void BM_QLabelSetText(benchmark::State &state)
{
    Fixture fixture;
    QLabel label(fixture.plot.canvas());
    label.setGeometry(0, 3, 100, 30);
    label.show();
    QApplication::processEvents();
    double value = 0.0;
    const long long start = TestSupport::allocations.load();
    for (auto _ : state) {
        value += 0.25;
        label.setText(QStringLiteral("Signal %1").arg(value, 3, 'f', 0));
    }
    reportAllocations(state, start);
    QApplication::processEvents();
}
BENCHMARK(BM_QLabelSetText);

void BM_ValueMarkerColorSetValueList(benchmark::State &state)
{
    Fixture fixture;
    Utils::ValueMarkerColor marker(&fixture.plot);
    QApplication::processEvents();
    // The chart builds a new list per sample; two lists in turn stand for that here.
    const QList<int> types = { 0, 0, 0, 2, 2, 2 };
    const QList<double> lists[2] = { { 812, 120, 340, 45, 46, 47 }, { 813, 121, 341, 44, 45, 46 } };
    int turn = 0;
    const long long start = TestSupport::allocations.load();
    for (auto _ : state) {
        marker.vSetValueList(lists[turn], types);
        turn ^= 1;
    }
    reportAllocations(state, start);
    QApplication::processEvents();
}
BENCHMARK(BM_ValueMarkerColorSetValueList);

//! The floor of any overlay: a canvas child that only fills its box, same size and place.
class BareOverlay : public QWidget
{
public:
    explicit BareOverlay(QwtPlot *plot)
        : QWidget(plot->canvas())
    {
        setGeometry(0, 3, plot->canvas()->width(), 30);
        show();
    }
    void vSetCustom(bool) { }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(255, 255, 255, 127));
    }
};

//! One frame: a new value, then the label painted at once (with the canvas beneath it).
template <typename Marker, typename Feed> void paintFrames(benchmark::State &state, Feed feed)
{
    Fixture fixture;
    Marker marker(&fixture.plot);
    marker.vSetCustom(true);
    QApplication::processEvents();
    double value = 0.0;
    feed(marker, value);
    marker.repaint();
    const long long start = TestSupport::allocations.load();
    for (auto _ : state) {
        value += 0.25;
        feed(marker, value);
        marker.repaint();
    }
    reportAllocations(state, start);
}

void BM_BareOverlayPaint(benchmark::State &state)
{
    paintFrames<BareOverlay>(state, [](BareOverlay &, double) {});
}
BENCHMARK(BM_BareOverlayPaint)->Unit(benchmark::kMicrosecond);

void BM_ValueMarkerPaint(benchmark::State &state)
{
    paintFrames<Utils::ValueMarker>(
        state, [](Utils::ValueMarker &marker, double value) { marker.vSetValue(value, 0.0); });
}
BENCHMARK(BM_ValueMarkerPaint)->Unit(benchmark::kMicrosecond);

//! Eight coloured runs; the new list of each frame costs the feed one allocation.
void BM_ValueMarkerMultiListPaint(benchmark::State &state)
{
    const QList<int> types = { 0, 0, 0, 2, 2, 2 };
    const QList<QColor> colors = { Qt::red, Qt::red, Qt::red, Qt::darkGreen, Qt::darkBlue, Qt::darkMagenta };
    paintFrames<Utils::ValueMarkerMultiList>(state, [&](Utils::ValueMarkerMultiList &marker, double value) {
        marker.vSetValueList({ value, 1, 2, value / 2, value / 3, value / 4 }, types, colors);
    });
}
BENCHMARK(BM_ValueMarkerMultiListPaint)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
