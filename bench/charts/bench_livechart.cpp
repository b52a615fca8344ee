// SPDX-License-Identifier: LGPL-2.1-or-later
/*
    The live chart beside its peers, driven as a host drives it.

    Each backend is an 800 x 300 plot shown on the offscreen platform and
    painted for real, with a 10 s visible window that follows the newest
    sample:
      genericchart  Utils::Charts::GenericChart, one plot, fed by vAppendData;
                    it redraws by its own 20 ms throttle, painting only new samples.
      qcustomplot   QCustomPlot 2.1 with one graph; xAxis range and
                    replot(rpImmediateRefresh) every 20 ms.
      qwt-replot    a bare QwtPlot with a QwtPlotCurve on raw arrays;
                    setAxisScale, replot and repaint every 20 ms.
      qtcharts      a QChartView with a QLineSeries; axis range and repaint every 20 ms.
    All keep the same history: above 900,000 samples the oldest 225,000 go.

    Scenarios:
      live    history pre-filled to 900,000 samples (1 ms apart, ending now),
              then samples arrive in real time at 1 kHz, 10 kHz and 100 kHz: a
              1 ms timer pushes the samples due since its last tick, one call
              each, stamped with the wall-clock time (ms since the epoch) they
              were due at. CPU fraction = (user + system time, getrusage) / wall
              time over the run. The longest frame is the largest gap between two
              consecutive ticks of that timer, less its 1 ms period: how long the
              GUI thread was blocked, whatever blocked it (appends, paints, page
              jumps, time-line redraws). Our view is placed so that the newest
              sample reaches its right edge halfway through the run: the page
              jump and the time line's move happen while measured.
      burst   2,000,000 samples 1 ms apart from an empty chart, pushed as fast
              as possible, one call each, no event loop in between: the peers do
              not paint then, ours does what its throttle does by itself. A peer
              still busy after 10 s is cut short there (rate of what it took).
      memory  10,000,000 samples into one GenericChart plot, burst style with
              the events processed every 20 ms, so that the chart redraws and
              trims as it would live; peak RSS (VmHWM) after 1,000,000 and after
              10,000,000. Runs first, so no other backend has raised the peak.

    Command line (make bench runs it through tools/run-benchmarks.sh):
        QT_QPA_PLATFORM=offscreen build-bench/benchmarks/bench_livechart [options]
      --seconds N    length of each live run in seconds (default 10)
      --quick        smoke run: 2 s live runs, the peers' bursts cut at 3 s
      --mode M       all (default), live, burst or memory
      --backend B    only genericchart, qcustomplot, qwt-replot or qtcharts
      --rate R       only this live rate (samples per second)

    Output, one line per result:
        chart-live backend=<name> rate=<samples/s> cpu=<fraction> max_frame_ms=<ms>
        chart-burst backend=<name> samples_per_s=<n>
        chart-memory backend=genericchart rss_1m_kb=<n> rss_10m_kb=<n> ratio=<r>
    and lines that explain them:
      chart-live-harness  the 1 ms timer and the sample loop alone, no chart, per rate
      chart-live-detail   CPU less the harness's; samples pushed of those due (a
                          backend that cannot keep up falls behind); gaps over
                          20 ms and when the longest ended; the longest gap in CPU
                          time of the GUI thread, which leaves out time the machine
                          gave to other processes; paint events of the plot; the
                          view's width and where the newest sample lies on it
      chart-burst-detail  samples taken, seconds, the largest history seen
      chart-memory-detail peak and present RSS and the largest history, per million
      chart-peer          a peer this build lacks
      chart-goal          the figures to reach, with all backends run
*/
#include <charts/genericchart.h>
#include <charts/valueovertime.h>

#include <qwt_date_scale_draw.h>
#include <qwt_date_scale_engine.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_div.h>

#ifdef UTILS_BENCH_HAVE_QCUSTOMPLOT
#include <qcustomplot.h>
#endif
#ifdef UTILS_BENCH_HAVE_QTCHARTS
#include <QtCharts/QChartView>
#include <QtCharts/QDateTimeAxis>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>
#endif

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPair>
#include <QTimer>
#include <QVector>
#include <QWidget>

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

using Steady = std::chrono::steady_clock;

constexpr int kHistory = 900000; // the live chart's cap, kept by every backend
constexpr int kTrim = 225000; // what goes at the cap
constexpr double kWindowMs = 10000.0; // the visible window
constexpr int kFrameMs = 20; // the peers' redraw period, ours' throttle
constexpr int kWidth = 800;
constexpr int kHeight = 300;
constexpr double kYMin = 0.0;
constexpr double kYMax = 300.0;
constexpr long long kBurstSamples = 2000000;
constexpr long long kMemorySamples = 10000000;
constexpr long long kMemoryFirst = 1000000;
// A tick that has pushed for this long lets the event loop run before going
// on with the backlog, so a backend that cannot keep up still paints and the
// run still ends; the backlog shows in chart-live-detail.
constexpr double kTickBudgetMs = 20.0;
constexpr double kGoalBurst = 5000000.0;
constexpr double kGoalCpu1k = 0.02;
constexpr double kGoalFrameMs = 20.0;
constexpr double kGoalMemoryRatio = 1.10;

//! Wall-clock time in ms since the epoch, as a host stamps its samples.
double wallMs()
{
    using namespace std::chrono;
    return double(duration_cast<microseconds>(system_clock::now().time_since_epoch()).count()) / 1000.0;
}

double msBetween(Steady::time_point from, Steady::time_point to)
{
    return std::chrono::duration<double, std::milli>(to - from).count();
}

//! User plus system CPU time of the process, in seconds.
double processCpuSeconds()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec)
        + double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

//! CPU time of the calling (GUI) thread, in ms.
double threadCpuMs()
{
    timespec now {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

//! A field of /proc/self/status in kB ("VmHWM", the peak resident set; "VmRSS"); -1 when unknown.
long long statusKb(const char *field)
{
    std::FILE *status = std::fopen("/proc/self/status", "r");
    if (!status)
        return -1;
    const size_t length = std::strlen(field);
    char line[256];
    long long kb = -1;
    while (std::fgets(line, sizeof line, status)) {
        if (std::strncmp(line, field, length) == 0 && line[length] == ':') {
            kb = std::atoll(line + length + 1);
            break;
        }
    }
    std::fclose(status);
    return kb;
}

long long peakRssKb()
{
    return statusKb("VmHWM");
}

//! Runs the event loop for \a ms, so that shows, layouts and scheduled paints are done.
void settle(int ms = 50)
{
    QElapsedTimer timer;
    timer.start();
    do {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    } while (timer.elapsed() < ms);
}

QPair<double, double> axisView(const QwtPlot *plot)
{
    const QwtScaleDiv &div = plot->axisScaleDiv(QwtPlot::xBottom);
    return qMakePair(div.lowerBound(), div.upperBound());
}

/*!
    Counts the paint events of one widget. It filters the application, which
    sees an event before the widget's own filters: QwtPlotDirectPainter paints
    in a filter of the canvas that swallows the event.
*/
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *target)
        : m_target(target)
    {
        qApp->installEventFilter(this);
    }
    ~PaintCounter() override { qApp->removeEventFilter(this); }
    long long count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == m_target && event->type() == QEvent::Paint)
            ++count;
        return false;
    }

private:
    QWidget *m_target;
};

/*!
    The sensor signal: a slow wave with a little noise inside the value axis,
    tabled so that making a value costs every backend the same few cycles.
*/
class Signal
{
public:
    Signal()
        : m_table(kSize)
    {
        for (int i = 0; i < kSize; ++i)
            m_table[size_t(i)] = 150.0 + 80.0 * std::sin(i / 700.0) + double((i * 7919LL) % 13) - 6.0;
    }
    double at(long long k) const { return m_table[size_t(k & (kSize - 1))]; }

private:
    static constexpr int kSize = 1 << 16;
    std::vector<double> m_table;
};

//! One chart under test: push one sample per call; it paints by itself.
class Backend
{
public:
    explicit Backend(const char *name)
        : m_name(name)
    { }
    virtual ~Backend() = default;
    const char *name() const { return m_name; }
    //! The top-level widget that is shown.
    virtual QWidget *window() = 0;
    //! The plot inside it that is to measure 800 x 300.
    virtual QWidget *plotWidget() { return window(); }
    //! The widget whose paint events show the curve painted.
    virtual QWidget *paintTarget() { return plotWidget(); }
    //! The time span on the x axis now, in ms since the epoch.
    virtual QPair<double, double> view() const = 0;
    //! Time of the newest sample, ms since the epoch.
    virtual double newest() const = 0;
    //! The history before the run, through the cheapest call the backend offers.
    virtual void prefill(const std::vector<double> &x, const std::vector<double> &y) = 0;
    //! One sample as it arrives: time in ms since the epoch.
    virtual void push(double timeMs, double value) = 0;
    /*!
        Follows the newest sample from now on, the view's right edge \a leadMs
        after \a nowMs; the peers start their 20 ms frames.
    */
    virtual void follow(double nowMs, double leadMs) = 0;
    virtual void stop() { }
    //! Samples held now, to see the cap kept.
    virtual int historySize() const = 0;

private:
    const char *m_name;
};

// ---- ours

class GenericChartBackend : public Backend
{
public:
    GenericChartBackend()
        : Backend("genericchart")
        , m_chart(new Utils::Charts::GenericChart(1))
    {
        m_chart->vSetYScale(0, kYMin, kYMax);
    }
    QWidget *window() override { return m_chart.get(); }
    QWidget *plotWidget() override { return m_chart->poPlot(0); }
    QWidget *paintTarget() override { return m_chart->poPlot(0)->canvas(); }
    QPair<double, double> view() const override { return axisView(m_chart->poPlot(0)); }
    double newest() const override { return m_chart->getLastXAxisValue(0); }
    void prefill(const std::vector<double> &x, const std::vector<double> &y) override
    {
        // The per-sample call, as a host that replays a recording would.
        for (size_t i = 0; i < x.size(); ++i)
            push(x[i], y[i]);
    }
    void push(double timeMs, double value) override
    {
        m_chart->vAppendData(0, value, true, -65000.0, false, -1.0, timeMs);
    }
    void follow(double nowMs, double leadMs) override
    {
        m_chart->resetView();
        if (leadMs < kWindowMs) {
            // The view ends leadMs from now, so the page jump falls inside the run.
            // The selection is widened first: a narrower one inside it keeps the time line's scale.
            const double right = nowMs + leadMs;
            m_chart->setRangeScale(right - 6 * kWindowMs, right);
            m_chart->setRangeScale(right - kWindowMs, right);
        }
        m_chart->setFollowNewest(true);
    }
    int historySize() const override { return m_chart->getData(0)->size(); }

private:
    std::unique_ptr<Utils::Charts::GenericChart> m_chart;
};

// ---- the peers: a frame every 20 ms from their own timer

class Peer : public Backend
{
public:
    explicit Peer(const char *name)
        : Backend(name)
    {
        m_frames.setInterval(kFrameMs);
        m_frames.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_frames, &QTimer::timeout, &m_frames, [this]() { frame(); });
    }
    void follow(double nowMs, double) override
    {
        m_newest = std::max(m_newest, nowMs);
        m_frames.start();
    }
    void stop() override { m_frames.stop(); }
    double newest() const override { return m_newest; }

protected:
    //! Moves the x axis to the 10 s up to the newest sample and paints, as a frame would.
    virtual void frame() = 0;
    double m_newest = 0.0;

private:
    QTimer m_frames;
};

/*!
    Plain Qwt: the samples in two arrays of its own, drawn through
    setRawSamples; the whole curve is replotted every frame. Trims by erasing
    the front of both arrays.
*/
class QwtReplotBackend : public Peer
{
public:
    QwtReplotBackend()
        : Peer("qwt-replot")
    {
        m_plot.setAutoReplot(false);
        m_plot.setAxisScaleDraw(QwtPlot::xBottom, new QwtDateScaleDraw(Qt::LocalTime));
        m_plot.setAxisScaleEngine(QwtPlot::xBottom, new QwtDateScaleEngine(Qt::LocalTime));
        m_plot.setAxisScale(QwtPlot::yLeft, kYMin, kYMax);
        m_curve = new QwtPlotCurve;
        m_curve->setPen(QColor(188, 0, 0), 1);
        m_curve->attach(&m_plot);
        m_x.reserve(kHistory + 1);
        m_y.reserve(kHistory + 1);
    }
    QWidget *window() override { return &m_plot; }
    QWidget *paintTarget() override { return m_plot.canvas(); }
    QPair<double, double> view() const override { return axisView(&m_plot); }
    int historySize() const override { return int(m_x.size()); }
    void prefill(const std::vector<double> &x, const std::vector<double> &y) override
    {
        m_x = x;
        m_y = y;
        m_newest = x.empty() ? 0.0 : x.back();
    }
    void push(double timeMs, double value) override
    {
        m_x.push_back(timeMs);
        m_y.push_back(value);
        m_newest = timeMs;
        if (m_x.size() > size_t(kHistory)) {
            m_x.erase(m_x.begin(), m_x.begin() + kTrim);
            m_y.erase(m_y.begin(), m_y.begin() + kTrim);
        }
    }

protected:
    void frame() override
    {
        // The arrays may have moved since the last frame.
        m_curve->setRawSamples(m_x.data(), m_y.data(), int(m_x.size()));
        m_plot.setAxisScale(QwtPlot::xBottom, m_newest - kWindowMs, m_newest);
        m_plot.replot();
        // replot() only schedules the canvas and axes; paint them now.
        m_plot.repaint();
    }

private:
    QwtPlot m_plot;
    QwtPlotCurve *m_curve = nullptr; // owned by the plot
    std::vector<double> m_x;
    std::vector<double> m_y;
};

#ifdef UTILS_BENCH_HAVE_QCUSTOMPLOT
/*!
    QCustomPlot: one graph, keys in seconds since the epoch (what its date-time
    ticker reads). Trims with removeBefore() the key of sample 225,000, which
    drops exactly the oldest 225,000 (keys rise strictly).
*/
class QCustomPlotBackend : public Peer
{
public:
    QCustomPlotBackend()
        : Peer("qcustomplot")
    {
        m_graph = m_plot.addGraph();
        m_graph->setPen(QPen(QColor(188, 0, 0), 1));
        QSharedPointer<QCPAxisTickerDateTime> ticker(new QCPAxisTickerDateTime);
        ticker->setDateTimeFormat(QStringLiteral("hh:mm:ss"));
        m_plot.xAxis->setTicker(ticker);
        m_plot.yAxis->setRange(kYMin, kYMax);
    }
    QWidget *window() override { return &m_plot; }
    QPair<double, double> view() const override
    {
        return qMakePair(m_plot.xAxis->range().lower * 1000.0, m_plot.xAxis->range().upper * 1000.0);
    }
    int historySize() const override { return m_graph->dataCount(); }
    void prefill(const std::vector<double> &x, const std::vector<double> &y) override
    {
        QVector<double> keys(int(x.size()));
        for (size_t i = 0; i < x.size(); ++i)
            keys[int(i)] = x[i] / 1000.0;
        m_graph->setData(keys, QVector<double>(y.begin(), y.end()), true);
        m_newest = x.empty() ? 0.0 : x.back();
    }
    void push(double timeMs, double value) override
    {
        m_graph->addData(timeMs / 1000.0, value);
        m_newest = timeMs;
        if (m_graph->dataCount() > kHistory)
            m_graph->data()->removeBefore((m_graph->data()->constBegin() + kTrim)->key);
    }

protected:
    void frame() override
    {
        m_plot.xAxis->setRange((m_newest - kWindowMs) / 1000.0, m_newest / 1000.0);
        m_plot.replot(QCustomPlot::rpImmediateRefresh);
    }

private:
    QCustomPlot m_plot;
    QCPGraph *m_graph = nullptr; // owned by the plot
};
#endif

#ifdef UTILS_BENCH_HAVE_QTCHARTS
/*!
    Qt Charts: a QLineSeries in a QChartView, date-time axis in ms since the
    epoch. Trims with removePoints(0, 225000).
*/
class QtChartsBackend : public Peer
{
public:
    QtChartsBackend()
        : Peer("qtcharts")
    {
        auto *chart = new QtCharts::QChart;
        chart->legend()->hide();
        chart->setAnimationOptions(QtCharts::QChart::NoAnimation);
        m_series = new QtCharts::QLineSeries;
        m_series->setPen(QPen(QColor(188, 0, 0), 1));
        chart->addSeries(m_series);
        m_axisX = new QtCharts::QDateTimeAxis;
        m_axisX->setFormat(QStringLiteral("hh:mm:ss"));
        chart->addAxis(m_axisX, Qt::AlignBottom);
        m_series->attachAxis(m_axisX);
        auto *axisY = new QtCharts::QValueAxis;
        axisY->setRange(kYMin, kYMax);
        chart->addAxis(axisY, Qt::AlignLeft);
        m_series->attachAxis(axisY);
        m_view.setChart(chart); // the view owns the chart, the chart its series and axes
    }
    QWidget *window() override { return &m_view; }
    QWidget *paintTarget() override { return m_view.viewport(); }
    QPair<double, double> view() const override
    {
        return qMakePair(double(m_axisX->min().toMSecsSinceEpoch()), double(m_axisX->max().toMSecsSinceEpoch()));
    }
    int historySize() const override { return m_series->count(); }
    void prefill(const std::vector<double> &x, const std::vector<double> &y) override
    {
        QVector<QPointF> points(int(x.size()));
        for (size_t i = 0; i < x.size(); ++i)
            points[int(i)] = QPointF(x[i], y[i]);
        m_series->replace(points);
        m_newest = x.empty() ? 0.0 : x.back();
    }
    void push(double timeMs, double value) override
    {
        m_series->append(timeMs, value);
        m_newest = timeMs;
        if (m_series->count() > kHistory)
            m_series->removePoints(0, kTrim);
    }

protected:
    void frame() override
    {
        m_axisX->setRange(QDateTime::fromMSecsSinceEpoch(qint64(m_newest - kWindowMs)),
            QDateTime::fromMSecsSinceEpoch(qint64(m_newest)));
        m_view.repaint();
    }

private:
    QtCharts::QChartView m_view;
    QtCharts::QLineSeries *m_series = nullptr;
    QtCharts::QDateTimeAxis *m_axisX = nullptr;
};
#endif

//! Stands in for a chart when the harness's own cost is measured.
class NoBackend : public Backend
{
public:
    NoBackend()
        : Backend("none")
        , m_widget(new QWidget)
    { }
    QWidget *window() override { return m_widget.get(); }
    void prefill(const std::vector<double> &, const std::vector<double> &) override { }
    void push(double timeMs, double value) override { m_sink += timeMs + value; }
    void follow(double, double) override { }
    int historySize() const override { return 0; }
    QPair<double, double> view() const override { return qMakePair(0.0, 0.0); }
    double newest() const override { return 0.0; }
    double m_sink = 0.0;

private:
    std::unique_ptr<QWidget> m_widget;
};

using Factory = std::function<std::unique_ptr<Backend>()>;

struct BackendInfo
{
    const char *name;
    Factory make; // empty: not in this build
    const char *missing;
};

std::vector<BackendInfo> backends()
{
    std::vector<BackendInfo> list;
    list.push_back({ "genericchart", []() { return std::unique_ptr<Backend>(new GenericChartBackend); }, nullptr });
#ifdef UTILS_BENCH_HAVE_QCUSTOMPLOT
    list.push_back({ "qcustomplot", []() { return std::unique_ptr<Backend>(new QCustomPlotBackend); }, nullptr });
#else
    list.push_back({ "qcustomplot", Factory(), "libqcustomplot-dev (qcustomplot.h, libQCustomPlot)" });
#endif
    list.push_back({ "qwt-replot", []() { return std::unique_ptr<Backend>(new QwtReplotBackend); }, nullptr });
#ifdef UTILS_BENCH_HAVE_QTCHARTS
    list.push_back({ "qtcharts", []() { return std::unique_ptr<Backend>(new QtChartsBackend); }, nullptr });
#else
    list.push_back({ "qtcharts", Factory(), "libqt5charts5-dev (Qt5Charts)" });
#endif
    return list;
}

//! Shows the backend with its plot at 800 x 300.
void showAtSize(Backend &backend)
{
    QWidget *window = backend.window();
    QWidget *plot = backend.plotWidget();
    window->resize(kWidth, kHeight);
    window->show();
    settle();
    // Our plot shares its window with the time line: grow the window by what is not plot.
    for (int attempt = 0; attempt < 3 && plot->size() != QSize(kWidth, kHeight); ++attempt) {
        window->resize(window->size() + QSize(kWidth, kHeight) - plot->size());
        settle();
    }
    if (plot->size() != QSize(kWidth, kHeight))
        std::fprintf(stderr, "warning: %s plot is %d x %d, not %d x %d\n", backend.name(), plot->width(),
            plot->height(), kWidth, kHeight);
}

struct LiveResult
{
    double cpu = 0.0;
    double maxFrameMs = 0.0;
    double maxFrameCpuMs = 0.0;
    double maxFrameAtS = 0.0; // when the longest frame ended, in s from the start
    long long gapsOver20 = 0;
    long long pushed = 0;
    long long due = 0;
    long long ticks = 0;
    long long paints = 0;
    QPair<double, double> view; // the x axis at the end
    double newest = 0.0;
};

/*!
    One live run: \a rate samples per second for \a seconds, after the history
    has been filled to the cap. See the file's head comment.
*/
LiveResult runLive(Backend &backend, double rate, double seconds, const Signal &signal)
{
    showAtSize(backend);
    const double filledAt = wallMs();
    std::vector<double> x(kHistory), y(kHistory);
    for (int i = 0; i < kHistory; ++i) {
        x[size_t(i)] = filledAt - double(kHistory - i);
        y[size_t(i)] = signal.at(i);
    }
    backend.prefill(x, y);
    x = std::vector<double>();
    y = std::vector<double>();
    settle();
    // The view's right edge halfway through the run (at most one window ahead),
    // so that a following chart pages and moves its time line while measured.
    backend.follow(wallMs(), std::min(seconds * 500.0, kWindowMs));
    settle();

    LiveResult result;
    const PaintCounter paints(backend.paintTarget());
    QEventLoop loop;
    QTimer ticker;
    ticker.setInterval(1);
    ticker.setTimerType(Qt::PreciseTimer);
    const double periodMs = 1000.0 / rate;
    const double cpuStart = processCpuSeconds();
    const Steady::time_point start = Steady::now();
    const double wallStart = wallMs();
    const double runMs = seconds * 1000.0;
    Steady::time_point previous = start;
    double previousCpu = threadCpuMs();
    double wallSpan = 0.0;
    double cpuSpan = 0.0;
    QObject::connect(&ticker, &QTimer::timeout, &loop, [&]() {
        const Steady::time_point now = Steady::now();
        const double cpuNow = threadCpuMs();
        const double gap = msBetween(previous, now) - 1.0;
        const double cpuGap = cpuNow - previousCpu;
        // The first tick's gap holds the timer's start-up, not the chart's work.
        if (result.ticks > 0) {
            if (gap > result.maxFrameMs) {
                result.maxFrameMs = gap;
                result.maxFrameAtS = msBetween(start, now) / 1000.0;
            }
            result.maxFrameCpuMs = std::max(result.maxFrameCpuMs, cpuGap);
            if (gap > kGoalFrameMs)
                ++result.gapsOver20;
        }
        ++result.ticks;
        previous = now;
        previousCpu = cpuNow;
        const double elapsed = msBetween(start, now);
        if (elapsed >= runMs) {
            wallSpan = elapsed;
            cpuSpan = processCpuSeconds() - cpuStart;
            loop.quit();
            return;
        }
        result.due = (long long)(elapsed / periodMs);
        const long long first = result.pushed;
        for (long long k = first; k < result.due; ++k) {
            backend.push(wallStart + double(k) * periodMs, signal.at(kHistory + k));
            result.pushed = k + 1;
            // The budget is looked at after 1, 2, 4, ... 64 samples, then every 64th: one
            // append of a slow peer can take a second, while a clock read per sample
            // would weigh on the fast ones.
            const long long done = k + 1 - first;
            const bool look = done <= 64 ? (done & (done - 1)) == 0 : done % 64 == 0;
            if (look && msBetween(now, Steady::now()) > kTickBudgetMs)
                break;
        }
    });
    ticker.start();
    loop.exec();
    ticker.stop();
    backend.stop();
    result.cpu = cpuSpan / (wallSpan / 1000.0);
    result.paints = paints.count;
    result.view = backend.view();
    result.newest = backend.newest();
    backend.window()->hide();
    return result;
}

struct BurstResult
{
    double samplesPerSecond = 0.0;
    long long pushed = 0;
    double seconds = 0.0;
    int maxHistory = 0;
};

//! \a count samples 1 ms apart, from now on, as fast as the per-sample call takes them; cut at \a budgetSeconds.
BurstResult runBurst(Backend &backend, long long count, double budgetSeconds, const Signal &signal)
{
    showAtSize(backend);
    const double now = wallMs();
    backend.follow(now, kWindowMs);
    settle();
    BurstResult result;
    const Steady::time_point start = Steady::now();
    long long k = 0;
    for (; k < count; ++k) {
        backend.push(now + double(k), signal.at(k));
        if ((k & 1023) == 1023) {
            result.maxHistory = std::max(result.maxHistory, backend.historySize());
            if (msBetween(start, Steady::now()) > budgetSeconds * 1000.0) {
                ++k;
                break;
            }
        }
    }
    result.seconds = msBetween(start, Steady::now()) / 1000.0;
    result.pushed = k;
    result.samplesPerSecond = double(k) / result.seconds;
    backend.stop();
    backend.window()->hide();
    return result;
}

struct MemoryResult
{
    long long rss1m = -1;
    long long rss10m = -1;
    int maxHistory = 0;
};

MemoryResult runMemory(const Signal &signal)
{
    GenericChartBackend backend;
    showAtSize(backend);
    const double now = wallMs();
    backend.follow(now, kWindowMs);
    settle();
    MemoryResult result;
    Steady::time_point lastEvents = Steady::now();
    for (long long k = 0; k < kMemorySamples; ++k) {
        backend.push(now + double(k), signal.at(k));
        if ((k & 255) == 255) {
            result.maxHistory = std::max(result.maxHistory, backend.historySize());
            const Steady::time_point t = Steady::now();
            if (msBetween(lastEvents, t) >= kFrameMs) {
                QCoreApplication::processEvents();
                lastEvents = t;
            }
        }
        if ((k + 1) % kMemoryFirst == 0) {
            QCoreApplication::processEvents();
            if (k + 1 == kMemoryFirst)
                result.rss1m = peakRssKb();
            // How the peak grows, million by million, and where the resident set stands.
            std::printf("chart-memory-detail samples=%lld hwm_kb=%lld rss_kb=%lld max_history=%d\n", k + 1, peakRssKb(),
                statusKb("VmRSS"), result.maxHistory);
        }
    }
    QCoreApplication::processEvents();
    result.rss10m = peakRssKb();
    backend.window()->hide();
    return result;
}

struct Options
{
    double seconds = 10.0;
    double burstBudget = 10.0; // a peer that takes longer for the burst is cut short
    std::string mode = "all";
    std::string backend;
    double rate = 0.0;
};

bool parse(int argc, char **argv, Options &options)
{
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        const bool hasValue = i + 1 < argc;
        if (arg == "--quick") {
            options.seconds = 2.0;
            options.burstBudget = 3.0;
        } else if (arg == "--seconds" && hasValue) {
            options.seconds = std::atof(argv[++i]);
        } else if (arg == "--mode" && hasValue) {
            options.mode = argv[++i];
        } else if (arg == "--backend" && hasValue) {
            options.backend = argv[++i];
        } else if (arg == "--rate" && hasValue) {
            options.rate = std::atof(argv[++i]);
        } else {
            return false;
        }
    }
    const bool modeKnown
        = options.mode == "all" || options.mode == "live" || options.mode == "burst" || options.mode == "memory";
    return modeKnown && options.seconds > 0.0;
}

const char *verdict(bool met)
{
    return met ? "met" : "MISSED";
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Options options;
    if (!parse(argc, argv, options)) {
        std::fprintf(stderr,
            "usage: %s [--seconds N] [--quick] [--mode all|live|burst|memory] "
            "[--backend genericchart|qcustomplot|qwt-replot|qtcharts] [--rate R]\n",
            argv[0]);
        return 2;
    }
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const Signal signal;
    const bool all = options.mode == "all";
    std::vector<BackendInfo> chosen;
    for (const BackendInfo &info : backends()) {
        if (!options.backend.empty() && options.backend != info.name)
            continue;
        if (!info.make) {
            std::printf("chart-peer backend=%s missing: built without %s\n", info.name, info.missing);
            continue;
        }
        chosen.push_back(info);
    }
    if (chosen.empty() && options.mode != "memory") {
        std::fprintf(stderr, "no backend to run\n");
        return 2;
    }

    MemoryResult memory;
    const bool withMemory
        = (all || options.mode == "memory") && (options.backend.empty() || options.backend == "genericchart");
    if (withMemory) {
        memory = runMemory(signal);
        std::printf("chart-memory backend=genericchart rss_1m_kb=%lld rss_10m_kb=%lld ratio=%.3f\n", memory.rss1m,
            memory.rss10m, double(memory.rss10m) / double(memory.rss1m));
    }

    std::map<std::string, double> burst;
    if (all || options.mode == "burst") {
        for (const BackendInfo &info : chosen) {
            std::unique_ptr<Backend> backend = info.make();
            const BurstResult r = runBurst(*backend, kBurstSamples, options.burstBudget, signal);
            std::printf("chart-burst backend=%s samples_per_s=%.0f\n", info.name, r.samplesPerSecond);
            std::printf("chart-burst-detail backend=%s pushed=%lld of=%lld seconds=%.2f max_history=%d%s\n", info.name,
                r.pushed, kBurstSamples, r.seconds, r.maxHistory, r.pushed < kBurstSamples ? " cut_short=yes" : "");
            burst[info.name] = r.samplesPerSecond;
        }
    }

    std::map<std::pair<std::string, int>, LiveResult> live;
    std::map<int, double> harness;
    if (all || options.mode == "live") {
        std::vector<double> rates { 1000.0, 10000.0, 100000.0 };
        if (options.rate > 0.0)
            rates = { options.rate };
        // Rate by rate, all backends one after the other, so that a ratio
        // between two of them is taken under the same load of the machine.
        for (double rate : rates) {
            // What the 1 ms timer and the sample loop cost by themselves, no chart.
            NoBackend none;
            const LiveResult bare = runLive(none, rate, std::min(options.seconds, 5.0), signal);
            harness[int(rate)] = bare.cpu;
            std::printf("chart-live-harness rate=%.0f cpu=%.4f max_frame_ms=%.2f\n", rate, bare.cpu, bare.maxFrameMs);
            for (const BackendInfo &info : chosen) {
                std::unique_ptr<Backend> backend = info.make();
                const LiveResult r = runLive(*backend, rate, options.seconds, signal);
                std::printf("chart-live backend=%s rate=%.0f cpu=%.4f max_frame_ms=%.2f\n", info.name, rate, r.cpu,
                    r.maxFrameMs);
                // paints: paint events of the plot canvas (or widget); view_s: width of
                // the x axis at the end; newest_at: where the newest sample lies on it
                // (0 left, 1 right; a peer's axis ends at the newest of its last frame).
                std::printf("chart-live-detail backend=%s rate=%.0f cpu_less_harness=%.4f pushed=%lld due=%lld "
                            "ticks=%lld gaps_over_20ms=%lld max_frame_at_s=%.2f max_frame_cpu_ms=%.2f paints=%lld "
                            "view_s=%.2f newest_at=%.3f\n",
                    info.name, rate, r.cpu - bare.cpu, r.pushed, r.due, r.ticks, r.gapsOver20, r.maxFrameAtS,
                    r.maxFrameCpuMs, r.paints, (r.view.second - r.view.first) / 1000.0,
                    (r.newest - r.view.first) / (r.view.second - r.view.first));
                live[{ info.name, int(rate) }] = r;
            }
        }
    }

    // The goals, where this run has the figures for them.
    const auto ours = [&](int rate) { return live.find({ "genericchart", rate }); };
    const auto peer = live.find({ "qcustomplot", 100000 });
    if (ours(100000) != live.end() && peer != live.end()) {
        const double limit = peer->second.cpu * 0.5;
        std::printf("chart-goal live-100k-cpu genericchart=%.4f limit=%.4f (half of qcustomplot's) %s\n",
            ours(100000)->second.cpu, limit, verdict(ours(100000)->second.cpu <= limit));
    }
    if (ours(1000) != live.end()) {
        // The 1 ms timer of the harness costs about as much as the limit on
        // this machine; the figure without it is given beside.
        const double cpu = ours(1000)->second.cpu;
        std::printf("chart-goal live-1k-cpu genericchart=%.4f less_harness=%.4f limit=%.4f %s\n", cpu,
            cpu - harness[1000], kGoalCpu1k, verdict(cpu < kGoalCpu1k));
    }
    double worstFrame = -1.0;
    for (const auto &entry : live) {
        if (entry.first.first == "genericchart")
            worstFrame = std::max(worstFrame, entry.second.maxFrameMs);
    }
    if (worstFrame >= 0.0)
        std::printf("chart-goal max-frame genericchart=%.2f limit=%.2f %s\n", worstFrame, kGoalFrameMs,
            verdict(worstFrame <= kGoalFrameMs));
    if (burst.count("genericchart"))
        std::printf("chart-goal burst genericchart=%.0f limit=%.0f %s\n", burst["genericchart"], kGoalBurst,
            verdict(burst["genericchart"] >= kGoalBurst));
    if (withMemory && memory.rss1m > 0) {
        const double ratio = double(memory.rss10m) / double(memory.rss1m);
        std::printf("chart-goal memory genericchart=%.3f limit=%.3f %s\n", ratio, kGoalMemoryRatio,
            verdict(ratio <= kGoalMemoryRatio));
    }
    return 0;
}
