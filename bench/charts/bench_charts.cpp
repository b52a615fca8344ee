// SPDX-License-Identifier: LGPL-2.1-or-later
// The live chart appends every sample to a ValueOverTime and trims it at
// 900,000 samples; the export dialog turns up to 900,000 rows into CSV text.
// This program shows how fast both are, that neither allocates per sample or
// per cell, and how the export compares with a plain C loop writing the same
// text with localtime_r, strftime and snprintf. The panel charts
// (SimpleTimeChart, ColorChart) are timed the same way, shown offscreen with
// their 20 ms redraw. One line per figure; each
// time is the best of a few runs, so that a busy machine disturbs it less.
#include <charts/colorchart.h>
#include <charts/exportdialog.h>
#include <charts/simpletimechart.h>
#include <charts/valueovertime.h>

#include "allocationcounter.h"

#include <QApplication>
#include <QByteArray>
#include <QFile>
#include <QList>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <memory>
#include <new>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kHistory = 900000; // the live chart's cap
constexpr int kTrim = 225000; // what it drops at the cap
constexpr int kSeries = 4;
constexpr int kPrecision = 3;
constexpr double kStart = 1763057585250.0; // 13-11-2025, a working day

double seconds(Clock::time_point since)
{
    return std::chrono::duration<double>(Clock::now() - since).count();
}

//! Best wall time of \a runs calls of \a work, in seconds.
double best(int runs, const std::function<void()> &work)
{
    double fastest = 1e30;
    for (int run = 0; run < runs; ++run) {
        const auto start = Clock::now();
        work();
        fastest = std::min(fastest, seconds(start));
    }
    return fastest;
}

//! Stands in for a plot curve: takes the arrays, as CustomCurve::vUpdateData does.
class Curve : public QObject
{
    Q_OBJECT

public:
    const double *x = nullptr;
    int count = 0;

public Q_SLOTS:
    void vUpdateData(const double *xs, const double *, int n)
    {
        x = xs;
        count = n;
    }
};

void benchAppend()
{
    // Filling a fresh series to the cap: geometric growth, a few reallocations.
    long long fillAllocations = 0;
    const double fill = best(3, [&]() {
        Utils::ValueOverTime series;
        Curve curve;
        QObject::connect(&series, SIGNAL(vDataUpdated(const double *, const double *, const int)), &curve,
            SLOT(vUpdateData(const double *, const double *, int)));
        const long long before = TestSupport::allocations.load();
        for (int i = 0; i < kHistory; ++i)
            series.vAppend(std::sin(i * 0.001), kStart + i);
        fillAllocations = TestSupport::allocations.load() - before;
    });
    std::printf("ValueOverTime fill to %d samples (curve connected): %.1f M appends/s, %.1f allocations per 1e6 "
                "appends\n",
        kHistory, kHistory / fill / 1e6, fillAllocations * 1e6 / kHistory);

    // The chart's steady state: append, and trim by 225,000 on reaching 900,000.
    Utils::ValueOverTime series;
    Curve curve;
    QObject::connect(&series, SIGNAL(vDataUpdated(const double *, const double *, const int)), &curve,
        SLOT(vUpdateData(const double *, const double *, int)));
    double t = kStart;
    auto run = [&](int appends) {
        for (int i = 0; i < appends; ++i) {
            series.vAppend(std::sin(t * 0.001), t);
            t += 1.0;
            if (series.size() > kHistory)
                series.vEraseFirstValues(kTrim);
        }
    };
    run(2 * kHistory); // reach the working size
    const int appends = 10000000;
    long long steadyAllocations = 0;
    const double steady = best(3, [&]() {
        const long long before = TestSupport::allocations.load();
        run(appends);
        steadyAllocations = TestSupport::allocations.load() - before;
    });
    std::printf("ValueOverTime steady state, trimmed by %d at %d (curve connected): %.1f M appends/s, %.2f "
                "allocations per 1e6 appends\n",
        kTrim, kHistory, appends / steady / 1e6, steadyAllocations * 1e6 / appends);
}

//! Reaches the protected export step.
class Export : public Utils::ExportDialog
{
public:
    using Utils::ExportDialog::ExportDialog;
    using Utils::ExportDialog::oExportData;
};

long long statusKiB(const char *field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray key = QByteArray(field) + ':';
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(key))
            return line.mid(key.size()).trimmed().split(' ').value(0).toLongLong();
    }
    return -1;
}

//! Lowers VmHWM to the present VmRSS (Linux), so the next peak is the export's own.
bool resetPeak()
{
    std::FILE *refs = std::fopen("/proc/self/clear_refs", "w");
    if (!refs)
        return false;
    const bool done = std::fputs("5", refs) >= 0;
    return std::fclose(refs) == 0 && done;
}

//! The same text the plain C way: localtime_r, strftime and snprintf per row.
size_t plainExport(const std::vector<std::vector<double>> &ys, const std::vector<double> &xs, char *out)
{
    char *p = out;
    p += std::sprintf(p, "Distance,Signal,Quality,Temperature\n");
    for (size_t row = 0; row < xs.size(); ++row) {
        if (ys[0][row] == -1000.0)
            continue;
        const long long ms = (long long)xs[row];
        const std::time_t second = std::time_t(ms / 1000);
        std::tm local;
        localtime_r(&second, &local);
        p += std::strftime(p, 32, "%d-%m-%Y %H:%M:%S", &local);
        p += std::sprintf(p, ".%03d", int(ms % 1000));
        for (const std::vector<double> &column : ys)
            p += std::sprintf(p, ",%.*f", kPrecision, column[row]);
        *p++ = '\n';
    }
    return size_t(p - out);
}

void benchExport(double stepMs, bool withPeer)
{
    std::vector<std::unique_ptr<Utils::ValueOverTime>> owned;
    QList<const Utils::ValueOverTime *> data;
    std::vector<std::vector<double>> ys(kSeries);
    std::vector<double> xs;
    for (int s = 0; s < kSeries; ++s) {
        owned.emplace_back(new Utils::ValueOverTime);
        owned.back()->reserve(kHistory);
        for (int i = 0; i < kHistory; ++i) {
            // Distances in mm with noise, never exactly halfway at 3 decimals.
            const double y = 250.0 * (s + 1) * std::sin(i * 0.0007 + s) + 0.1234567 * (i % 97);
            const double x = kStart + i * stepMs;
            owned.back()->vAppend(y, x);
            ys[s].push_back(y);
            if (s == 0)
                xs.push_back(x);
        }
        data << owned.back().get();
    }
    QList<QString> headers { "Distance", "Signal", "Quality", "Temperature" };
    Export dialog(&data, &headers);
    dialog.setPrecision(kPrecision);

    QByteArray text;
    long long allocations = 0;
    const long long rssBefore = statusKiB("VmRSS");
    const bool peakReset = resetPeak();
    const double ours = best(3, [&]() {
        text = QByteArray(); // the previous run's text is not part of this run's peak
        const long long before = TestSupport::allocations.load();
        text = dialog.oExportData(0, -1);
        allocations = TestSupport::allocations.load() - before;
    });
    const long long peak = statusKiB("VmHWM");
    char label[64];
    std::snprintf(label, sizeof label, "%g ms apart", stepMs);
    std::printf("CSV export %d rows x %d series, precision %d, %s: %.2f M rows/s, %.1f MB text, %lld allocations "
                "(%.5f per row)",
        kHistory, kSeries, kPrecision, label, kHistory / ours / 1e6, text.size() / 1e6, allocations,
        double(allocations) / kHistory);
    if (peakReset && peak > 0 && rssBefore > 0)
        std::printf(", peak memory +%.1f MB over the series", (peak - rssBefore) * 1024.0 / 1e6);
    std::printf("\n");

    if (!withPeer)
        return;
    std::vector<char> buffer(size_t(text.size()) + 4096);
    size_t length = 0;
    const double plain = best(3, [&]() { length = plainExport(ys, xs, buffer.data()); });
    const bool same = length == size_t(text.size()) && std::memcmp(buffer.data(), text.constData(), length) == 0;
    std::printf("Plain C loop (localtime_r, strftime, snprintf), same rows: %.2f M rows/s; export is %.2fx its "
                "speed; same text: %s\n",
        kHistory / plain / 1e6, plain / ours, same ? "yes" : "NO");
}


/*!
    A panel chart as a host feeds it: one call per sample, shown, with the
    redraw every 20 ms. \a append takes the sample index. Reports the cost of
    an append that the redraw rule holds back (most of them) with its
    allocations, and the share of the GUI thread that a fast sensor takes.
*/
void benchPanel(const char *name, QWidget *chart, const std::function<void(double value, double time)> &append)
{
    chart->resize(480, 260);
    chart->show();
    QApplication::processEvents();
    double t = kStart;
    // Reach the working size: twice the history cap, so that trimming has settled the memory.
    for (int i = 0; i < 2 * kHistory; ++i, t += 0.01)
        append(std::sin(i * 0.001) * 100.0 + 150.0, t);
    QApplication::processEvents();

    // Appends between two redraws: right after one, 1,000 samples come within its 20 ms.
    const int bursts = 100;
    const int perBurst = 1000;
    long long heldAllocations = 0;
    double held = 0.0;
    for (int b = 0; b < bursts; ++b) {
        // The held-back samples of the last burst are drawn when its cool-down ends, which starts
        // another 20 ms; after 45 ms both are over.
        const auto due = Clock::now() + std::chrono::milliseconds(45);
        while (Clock::now() < due)
            QApplication::processEvents();
        append(150.0, t); // redraws now and starts the next 20 ms
        t += 0.01;
        const long long before = TestSupport::allocations.load();
        const auto start = Clock::now();
        for (int i = 0; i < perBurst; ++i, t += 0.01)
            append(std::sin(i * 0.01) * 100.0 + 150.0, t);
        held += seconds(start);
        heldAllocations += TestSupport::allocations.load() - before;
    }
    const int heldCount = bursts * perBurst;
    std::printf("%s append held back by the 20 ms rule: %.0f ns per sample, %.3f allocations per 1e3 samples\n", name,
                held / heldCount * 1e9, heldAllocations * 1e3 / heldCount);

    // A sensor at 100 kHz for 2 s of wall time: samples due are appended every millisecond, as a
    // serial reader hands them on, and the event loop runs between (redraws included).
    const int rate = 100000;
    const auto begin = Clock::now();
    double busy = 0.0;
    long long delivered = 0;
    long long allocations = 0;
    while (seconds(begin) < 2.0) {
        const long long due = (long long)(seconds(begin) * rate);
        const long long before = TestSupport::allocations.load();
        const auto start = Clock::now();
        for (; delivered < due; ++delivered, t += 0.01)
            append(std::sin(delivered * 0.0005) * 100.0 + 150.0, t);
        QApplication::processEvents();
        busy += seconds(start);
        allocations += TestSupport::allocations.load() - before;
        const auto pause = start + std::chrono::milliseconds(1);
        while (Clock::now() < pause) { }
    }
    std::printf("%s at 100 kHz for 2 s: %lld samples, appends and redraws took %.1f %% of the GUI thread, %.2f "
                "allocations per 1e3 samples (redraws included)\n",
                name, delivered, busy / seconds(begin) * 100.0, allocations * 1e3 / double(delivered));
    chart->hide();
}

void benchPanels()
{
    Utils::SimpleTimeChart simple;
    simple.setTimeSpan(10000.0);
    benchPanel("SimpleTimeChart", &simple, [&simple](double value, double time) { simple.vAppendData(value, true, time); });
    Utils::ColorChart color;
    color.setTimeSpan(10000.0);
    color.vSetYScale(0.0, 300.0);
    benchPanel("ColorChart", &color, [&color](double value, double time) {
        color.vAppendData(value, value * 0.5, 300.0 - value, true, time);
    });
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    std::printf("Allocations counted: %s\n", UTILS_TESTS_ALLOCATIONS_COUNTED);
    benchAppend();
    // A sensor at 500 Hz: many rows share a second.
    benchExport(2.0, true);
    // The worst case for the per-second cache: every row in a new second.
    benchExport(1001.0, true);
    benchPanels();
    return 0;
}

#include "bench_charts.moc"
