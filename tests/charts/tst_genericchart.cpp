// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/chartrules_p.h"
#include "charts/charttimeline.h"
#include "charts/genericchart.h"
#include "charts/genericchartcolor.h"
#include "charts/genericchartmulti.h"
#include "charts/genericchartmultilist.h"
#include "charts/genericchartnotime.h"
#include "charts/valueovertime.h"
#include "plot/plot.h"
#include "thresholds/valuemarker.h"
#include "plottesthelpers.h"

#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>

#include <QComboBox>
#include <QDockWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

using namespace Utils::Charts;
namespace Rules = Utils::Charts::Rules;
using PlotTest::samples;

namespace {

const double kT0 = 1.7e12;

// The charts of the tables, made the same way.
AbstractChart *makeChart(const QString &name)
{
    if (name == QLatin1String("GenericChart"))
        return new GenericChart(1);
    if (name == QLatin1String("GenericChartMulti"))
        return new GenericChartMulti(1);
    if (name == QLatin1String("GenericChartColor"))
        return new GenericChartColor(1, nullptr, nullptr, false, false, 3);
    return new GenericChartNoTime(1);
}

// One value appended through the chart's own append, with its family's sentinels.
void append(AbstractChart *chart, int plot, double value, bool update, double time)
{
    if (auto *multi = qobject_cast<GenericChartMulti *>(chart))
        multi->vAppendDataMultipleCurves(plot, { value }, update, time, QString());
    else
        static_cast<AbstractTimeChart *>(chart)->vAppendData(plot, value, update, -65000.0, false, -1.0, time);
}

} // namespace

class tst_GenericChart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rules_data()
    {
        QTest::addColumn<double>("last");
        QTest::addColumn<double>("time");
        QTest::addColumn<bool>("multi");
        QTest::addColumn<bool>("breaks");
        QTest::addColumn<int>("jumps");

        QTest::newRow("first sample never breaks") << 0.0 << kT0 << false << false << 2;
        QTest::newRow("15000.0 ms: no break") << kT0 << kT0 + 15000.0 << false << false << 1;
        QTest::newRow("15000.001 ms: break") << kT0 << kT0 + 15000.001 << false << true << 2;
        QTest::newRow("1.5 s: no jump") << kT0 << kT0 + 1500.0 << false << false << 0;
        QTest::newRow("1.6 s: one jump") << kT0 << kT0 + 1600.0 << false << false << 1;
        QTest::newRow("multi 10000.0 ms: no break") << kT0 << kT0 + 10000.0 << true << false << 1;
        QTest::newRow("multi 10000.5 ms: break") << kT0 << kT0 + 10000.5 << true << true << 2;
    }

    void rules()
    {
        QFETCH(double, last);
        QFETCH(double, time);
        QFETCH(bool, multi);
        const Rules::SampleRules &r = multi ? Rules::kMultiCurve : Rules::kSingleCurve;
        QTEST(Rules::needsBreak(r, last, time), "breaks");
        QTEST(Rules::jumpsAfter(r, last, time), "jumps");
    }

    void pages()
    {
        // The other pages are navigation()'s: a following view goes one page on,
        // but after a pause longer than a page it starts at the newest sample.
        const Rules::Window w(1000.0, 1100.0);
        QCOMPARE(Rules::followPage(w, 1150.0), Rules::Window(1100.0, 1200.0));
        QCOMPARE(Rules::followPage(w, 5000.0), Rules::Window(5000.0, 5100.0));
        // A history at the cap keeps all; far above it, it loses whole blocks until it fits.
        QCOMPARE(Rules::historyToDrop(900000), 0);
        QCOMPARE(Rules::historyToDrop(1400000), 675000);
    }

    void appendRules_data()
    {
        QTest::addColumn<QString>("chart");
        QTest::addColumn<double>("pause");
        QTest::addColumn<double>("breakValue");
        QTest::addColumn<double>("noValue");
        QTest::newRow("GenericChart") << "GenericChart" << 15000.0 << -1500.0 << -15000.0;
        QTest::newRow("GenericChartMulti") << "GenericChartMulti" << 10000.0 << -1000.0 << -10000.0;
        QTest::newRow("GenericChartColor") << "GenericChartColor" << 10000.0 << -1000.0 << -10000.0;
    }

    // The sentinels of each family, written by the real appends.
    void appendRules()
    {
        QFETCH(QString, chart);
        QFETCH(double, pause);
        QFETCH(double, breakValue);
        QFETCH(double, noValue);
        std::unique_ptr<AbstractChart> c(makeChart(chart));
        append(c.get(), 0, 10.0, true, kT0);
        append(c.get(), 0, 11.0, true, kT0 + pause); // exactly the pause: no break
        append(c.get(), 0, 12.0, false, kT0 + 2 * pause + 0.5); // beyond it: break, then no value
        const QVector<QPointF> expected { { kT0, 10.0 }, { kT0 + pause, 11.0 }, { kT0 + pause + 1.0, breakValue },
            { kT0 + 2 * pause - 0.5, breakValue }, { kT0 + 2 * pause + 0.5, noValue } };
        QCOMPARE(samples(c->getData(0)), expected);
        // An index outside the chart changes nothing.
        append(c.get(), 1, 13.0, true, kT0 + 3 * pause);
        append(c.get(), -1, 13.0, true, kT0 + 3 * pause);
        QCOMPARE(c->getData(0)->size(), 5);
    }

    void stampingAndMarker_data()
    {
        QTest::addColumn<double>("time");
        QTest::addColumn<bool>("now");
        QTest::newRow("0 is now") << 0.0 << true;
        QTest::newRow("1.0 is now") << 1.0 << true;
        QTest::newRow("negative is now") << -20.0 << true;
        QTest::newRow("NaN is now") << std::numeric_limits<double>::quiet_NaN() << true;
        QTest::newRow("1.5 is taken") << 1.5 << false;
    }

    void stampingAndMarker()
    {
        QFETCH(double, time);
        QFETCH(bool, now);
        GenericChart chart(2, nullptr, nullptr, true);
        const double before = double(QDateTime::currentMSecsSinceEpoch());
        chart.vAppendData(1, 42.0, false, -65000.0, false, 7.0, time);
        const double after = double(QDateTime::currentMSecsSinceEpoch()) + 1.0;
        const QPointF stored = chart.getData(1)->oLast();
        if (now)
            QVERIFY2(stored.x() >= before && stored.x() <= after, qPrintable(QString::number(stored.x(), 'f', 3)));
        else
            QCOMPARE(stored.x(), 1.5);
        // update false stores the no-value sentinel, but the marker still shows the value.
        QCOMPARE(stored.y(), -15000.0);
        QCOMPARE(chart.getDataCustomCurve(0)->oLast().y(), -15000.0);
        chart.doUpdate();
        // The second marker is made first, then the value marker.
        const auto markers = chart.poPlot(1)->canvas()->findChildren<Utils::ValueMarker *>();
        QCOMPARE(markers.size(), 2);
        QCOMPARE(markers.last()->s64Value(), 42.0);
        QCOMPARE(markers.last()->getSecondValue(), 0.0); // -65000.0: no second value
        QCOMPARE(markers.first()->s64Value(), 0.0);
        chart.vAppendData(1, 43.0, true, 5.0, false, -1.0, 2.5);
        chart.doUpdate();
        QCOMPARE(markers.last()->s64Value(), 43.0);
        QCOMPARE(markers.last()->getSecondValue(), 5.0);
        QCOMPARE(markers.first()->s64Value(), 5.0); // the second marker shows data1
    }

    void historyCapDropsOneBlock()
    {
        GenericChart chart(1);
        for (int i = 0; i < 900000; ++i)
            chart.vAppendDataNoTime(0, double(i % 300), kT0 + i);
        QCOMPARE(chart.getData(0)->size(), 900000);
        // The 900,001st sample takes exactly the oldest 225,000 with it, at once.
        chart.vAppendDataNoTime(0, 1.0, kT0 + 900000);
        QCOMPARE(chart.getData(0)->size(), 900001 - 225000);
        QCOMPARE(chart.getData(0)->oFirst().x(), kT0 + 225000);
        QCOMPARE(chart.getMaximumHistoryValues(), 900000);
    }

    // A redraw paints the new samples and shows the newest value on the marker; the
    // marker therefore tells whether a redraw happened.
    void redrawIsThrottled()
    {
        GenericChart chart(1);
        QVERIFY(TestSupport::show(&chart, QSize(600, 400)));
        auto *marker = chart.poPlot(0)->canvas()->findChild<Utils::ValueMarker *>();
        const double start = double(QDateTime::currentMSecsSinceEpoch());
        chart.vAppendData(0, 100.0, true, -65000.0, false, -1.0, start);
        TestSupport::waitForTimers(30);
        chart.vAppendData(0, 110.0, true, -65000.0, false, -1.0, start + 1.0); // 30 ms since the last redraw: drawn
        QCOMPARE(marker->s64Value(), 110.0);
        chart.vAppendData(0, 120.0, true, -65000.0, false, -1.0, start + 2.0); // within 20 ms: held back
        QCOMPARE(marker->s64Value(), 110.0);
        // The held-back sample is drawn shortly after, without a further sample.
        QTRY_COMPARE_WITH_TIMEOUT(marker->s64Value(), 120.0, 500);
    }

    // A chart in a tab that is not shown has a canvas too narrow for its selection:
    // the window keeps its ten seconds while samples come, and is right when shown.
    void hiddenTabKeepsTheWindow()
    {
        QTabWidget tabs;
        tabs.addTab(new QWidget, QStringLiteral("first"));
        auto *chart = new GenericChartColor(1, nullptr, nullptr, false, false, 3);
        tabs.addTab(chart, QStringLiteral("chart"));
        QVERIFY(TestSupport::show(&tabs, QSize(1000, 600)));
        QVERIFY(chart->poTimeLine()->poPlot()->canvas()->width() < 200);
        chart->resetView();
        const double start = double(QDateTime::currentMSecsSinceEpoch());
        const auto window = [chart]() {
            const QwtScaleDiv &div = chart->poPlot(0)->axisScaleDiv(QwtPlot::xBottom);
            return Rules::Window(div.lowerBound(), div.upperBound());
        };
        for (int i = 0; i < 3; ++i) {
            chart->vAppendDataMultipleCurvesRGB(0, {10.0, 20.0, 30.0}, true, start + 100.0 * i, QString());
            TestSupport::waitForTimers(25);
            QCOMPARE(window().second - window().first, 10000.0);
            QVERIFY(window().first <= start + 100.0 * i && window().second >= start + 100.0 * i);
        }
        tabs.setCurrentIndex(1);
        QTRY_VERIFY(chart->poTimeLine()->poPlot()->canvas()->width() > 600);
        QCOMPARE(window().second - window().first, 10000.0);
        QCOMPARE(chart->poTimeLine()->selectionRight() - chart->poTimeLine()->selectionLeft(), 10000.0);
    }

    void followingPagesAndFreezing()
    {
        GenericChart chart(1);
        QVERIFY(TestSupport::show(&chart, QSize(600, 400)));
        chart.setTimelineScale(kT0, kT0 + 60000.0);
        chart.setRangeScale(kT0, kT0 + 10000.0);
        chart.setFollowNewest(true);
        chart.sendDelayValue(); // the re-sync after a resize is no navigation: following stays on
        const QwtPlot *plot = chart.poPlot(0);
        const auto view = [plot]() { return PlotTest::range(*plot, QwtPlot::xBottom); };
        // The first sample brings the view to it (centred), as every long pause does.
        chart.vAppendData(0, 50.0, true, -65000.0, false, -1.0, kT0);
        const Rules::Window first = view();
        QVERIFY(first.first < kT0 && first.second > kT0);
        const double width = first.second - first.first;
        for (double t = kT0 + 1000.0; t < first.second + 1000.0; t += 1000.0) {
            chart.vAppendData(0, 60.0, true, -65000.0, false, -1.0, t);
            TestSupport::waitForTimers(25);
        }
        // The newest sample passed the view: one page on, same width.
        QCOMPARE(view(), Rules::Window(first.second, first.second + width));
        QVERIFY(chart.isPlottingEnabled() && chart.isFollowingNewest());

        // Not following: once the newest sample leaves the time line, painting stops until the user navigates.
        // (A pause of more than 1.5 s would bring the view to the newest sample: the samples come every second.)
        chart.setFollowNewest(false);
        const double end = chart.poTimeLine()->poPlot()->axisScaleDiv(QwtPlot::xBottom).upperBound();
        for (double t = chart.getData(0)->oLast().x() + 1000.0; t < end + 500.0; t += 1000.0)
            chart.vAppendData(0, 60.0, true, -65000.0, false, -1.0, t);
        chart.vAppendData(0, 61.0, true, -65000.0, false, -1.0, chart.getData(0)->oLast().x() + 100.0);
        chart.doUpdate(); // the redraw decides
        QVERIFY(!chart.isPlottingEnabled());
        QCOMPARE(chart.getData(0)->oLast().y(), 61.0); // still stored
        chart.jumpToPlottingArea();
        QVERIFY(chart.isPlottingEnabled());
        const double newest = chart.getData(0)->oLast().x();
        QVERIFY(view().first <= newest && view().second >= newest);
    }

    void navigation()
    {
        GenericChart chart(1);
        QVERIFY(TestSupport::show(&chart, QSize(600, 400)));
        for (int i = 0; i < 200; ++i)
            chart.vAppendDataNoTime(0, i, kT0 + 1000.0 * i);
        Utils::ChartTimeLine *timeLine = chart.poTimeLine();
        chart.setTimelineScale(kT0 + 60000.0, kT0 + 120000.0);
        const auto overview = [timeLine]() { return PlotTest::range(*timeLine->poPlot(), QwtPlot::xBottom); };
        Q_EMIT timeLine->vActionNext();
        QCOMPARE(overview(), Rules::Window(kT0 + 120000.0, kT0 + 180000.0));
        Q_EMIT timeLine->vActionPrev();
        Q_EMIT timeLine->vActionPrev();
        QCOMPARE(overview(), Rules::Window(kT0, kT0 + 60000.0));
        Q_EMIT timeLine->vActionLast();
        QCOMPARE(overview(), Rules::Window(kT0 + 199000.0 - 30000.0, kT0 + 199000.0 + 30000.0));
        Q_EMIT timeLine->vActionFirst();
        QCOMPARE(overview(), Rules::Window(kT0, kT0 + 60000.0));
        // The plots show the selection's times.
        const QwtScaleDiv &view = chart.poPlot(0)->axisScaleDiv(QwtPlot::xBottom);
        QVERIFY(std::fabs(view.lowerBound() - timeLine->selectionLeft()) < 200.0);
        QVERIFY(std::fabs(view.upperBound() - timeLine->selectionRight()) < 200.0);
    }

    void xZoomBar()
    {
        GenericChart chart(2);
        QVERIFY(TestSupport::show(&chart, chart.sizeHint()));
        chart.addZoomBarX(1, true);
        auto *zoomIn = chart.findChild<QPushButton *>(QStringLiteral("zoomInX"));
        auto *zoomOut = chart.findChild<QPushButton *>(QStringLiteral("zoomOutX"));
        auto *reset = chart.findChild<QPushButton *>(QStringLiteral("resetZoomX"));
        QVERIFY(zoomIn && zoomOut && reset);
        QCOMPARE(zoomIn->size(), QSize(20, 20));
        QCOMPARE(reset->size(), QSize(10, 20)); // deliberately narrow
        QCOMPARE(zoomIn->parentWidget()->size(), QSize(70, 30));
        QSignalSpy plus(&chart, &GenericChart::IndependentPlotZoomPlusClick);
        QSignalSpy minus(&chart, &GenericChart::IndependentPlotZoomMinusClick);
        QSignalSpy resetSpy(&chart, &GenericChart::IndependentPlotZoomResetClick);
        const auto span = [&chart]() { return PlotTest::span(*chart.poPlot(1), QwtPlot::xBottom); };
        const double before = span();
        QTest::mouseClick(zoomIn, Qt::LeftButton);
        QTest::mouseClick(zoomOut, Qt::LeftButton);
        // 0.8 x 1.2: not back to where it was.
        QVERIFY2(std::fabs(span() / before - 0.96) < 1e-6, qPrintable(QString::number(span() / before)));
        QTest::mouseClick(reset, Qt::LeftButton);
        QCOMPARE(plus.count(), 1);
        QCOMPARE(minus.count(), 1);
        QCOMPARE(resetSpy.count(), 1);
    }

    void docksAndLayout()
    {
        QMainWindow window;
        GenericChart chart(2, &window, &window);
        chart.setPlotTitle(1, "Distance", true, "mm", true);
        QDockWidget *dock = chart.getDockChartItem(1);
        QVERIFY(dock);
        QCOMPARE(dock->objectName(), QStringLiteral("DockGraphNo1"));
        QCOMPARE(dock->windowTitle(), QStringLiteral("Distance"));
        QCOMPARE(window.dockWidgetArea(chart.getDockChartItem(0)), Qt::TopDockWidgetArea);
        QCOMPARE(window.dockWidgetArea(dock), Qt::BottomDockWidgetArea);
        auto *hide = dock->titleBarWidget()->findChild<QPushButton *>();
        QVERIFY(hide && hide->isFlat());
        QCOMPARE(hide->size(), QSize(18, 18));
        QCOMPARE(dock->widget()->height(), 300);
        QVERIFY(TestSupport::show(&window, window.sizeHint()));
        QTest::mouseClick(hide, Qt::LeftButton);
        QVERIFY(!chart.isDockVisible(1) && !dock->isVisible());

        // The chart without time keeps its plots in its own layout, main window or not.
        QMainWindow other;
        GenericChartNoTime noTime(2, &other, &other);
        QVERIFY(other.findChildren<QDockWidget *>().isEmpty());
        QVERIFY(noTime.isAncestorOf(noTime.poPlot(1)));
        QCOMPARE(noTime.getDockChartItem(0), nullptr);
    }

    void variantsDeclareOnlyTheirOperations_data()
    {
        QTest::addColumn<QString>("chart");
        QTest::addColumn<QByteArray>("member");
        QTest::addColumn<bool>("declared");

        const auto row = [](const char *name, const char *chart, const char *member, bool declared) {
            QTest::newRow(name) << chart << QByteArray(member) << declared;
        };
        row("GenericChart: zoom signals", "GenericChart", "IndependentPlotZoomPlusClick()", true);
        row("Multi: no zoom signals", "GenericChartMulti", "IndependentPlotZoomPlusClick()", false);
        row("Multi: zoom bar slot", "GenericChartMulti", "zoomPlusxButtonClicked()", true);
        row("Multi: legend", "GenericChartMulti", "checked(QVariant,bool,int)", true);
        row("Color: legend", "GenericChartColor", "showCurve(QwtPlotItem*,bool)", true);
        row("NoTime: no zoom bar", "GenericChartNoTime", "zoomPlusxButtonClicked()", false);
        row("NoTime: no rectangle signal", "GenericChartNoTime", "vZoomRectangle(int)", false);
        row("NoTime: no mouse slot", "GenericChartNoTime", "slotGetMouseCoordinate(QPoint)", false);
        row("NoTime: resize slot", "GenericChartNoTime", "IndependentPlotResize(int)", true);
        row("NoTime: shared redraw", "GenericChartNoTime", "doUpdate()", true);
    }

    void variantsDeclareOnlyTheirOperations()
    {
        QFETCH(QString, chart);
        QFETCH(QByteArray, member);
        std::unique_ptr<AbstractChart> c(makeChart(chart));
        QTEST(c->metaObject()->indexOfMethod(member.constData()) >= 0, "declared");
    }

    void listAppendsAndMarkers()
    {
        GenericChartNoTime noTime(2);
        noTime.vAppendDataList(5, { 1.0, 2.0 });
        noTime.vAppendDataList(-1, { 1.0 });
        QCOMPARE(noTime.getDataCustomCurve(0)->size(), 0);
        noTime.vAppendDataList(1, { 1.0, 2.0, 3.0 });
        const double first = noTime.getDataCustomCurve(0)->oLast().x();
        QCOMPARE(noTime.getDataCustomCurve(1)->oLast().x() - first, 100.0); // the first value 100 ms earlier
        QCOMPARE(noTime.getDataCustomCurve(2)->oLast().y(), 3.0);

        GenericChartColor colour(1, nullptr, nullptr, false, false, 3);
        colour.vAppendDataMultipleCurvesRGB(0, { 10.0, 20.0, 30.0 }, true, kT0, QString());
        colour.doUpdate();
        auto *marker = colour.poPlot(0)->canvas()->findChild<Utils::ValueMarker *>();
        QCOMPARE(marker->labelText(), QStringLiteral("R: 10  G: 20  B: 30"));
        colour.vAppendDataMultipleCurves(0, { 1.0, 2.0, 3.0 }, false, kT0 + 1.0, QStringLiteral("Signal"));
        QVERIFY(colour.dataToStringCurvesRGB().find("-10000.000") != std::string::npos);

        GenericChartMultiList list(1);
        list.vAppendDataMultipleCurves(0, { 5.0, 6.0 }, { 2, 0 }, { Qt::red, Qt::blue }, true, kT0, QString());
        list.vAppendDataMultipleCurves(0, { 7.0 }, { 2 }, { Qt::red }, true, kT0 + 20000.0, QString());
        // No break points in the list chart, even after a pause: the curves hold the values alone.
        QCOMPARE(samples(list.getData(0)), (QVector<QPointF> { { kT0, 6.0 } }));
        list.doUpdate();
        QVector<double> ys;
        for (const QwtPlotItem *item : list.poPlot(0)->itemList(QwtPlotItem::Rtti_PlotCurve)) {
            const auto *curve = static_cast<const QwtPlotCurve *>(item);
            for (size_t i = 0; i < curve->dataSize(); ++i)
                ys << curve->sample(int(i)).y();
        }
        std::sort(ys.begin(), ys.end());
        QCOMPARE(ys, (QVector<double> { 5.0, 6.0, 7.0 }));
    }

    void textFormRoundTrip()
    {
        GenericChart chart(2);
        chart.setPlotTitle(0, "A", true, "", false);
        chart.setPlotTitle(1, "B", true, "", false);
        for (int i = 0; i < 5; ++i) {
            chart.vAppendDataNoTime(0, 1.25 * i, kT0 + 100.0 * i);
            chart.vAppendDataNoTime(1, -2.5 * i, kT0 + 100.0 * i);
        }
        const std::string text = chart.dataToString();
        QVERIFY(text.rfind("A,B\n", 0) == 0);
        GenericChart copy(2);
        copy.setDataFromString(text, ',');
        QCOMPARE(samples(copy.getData(0)), samples(chart.getData(0)));
        QCOMPARE(samples(copy.getData(1)), samples(chart.getData(1)));
        // Header, empty and broken lines are skipped; a bad value leaves its plot alone.
        copy.setDataFromString(0, "title\n\nnot a date,1\n1700000000000,x\n1700000000001,3.5\n", ',');
        QCOMPARE(samples(copy.getData(0)), (QVector<QPointF> { { 1700000000001.0, 3.5 } }));
    }

    void comboBoxRow()
    {
        GenericChart chart(2);
        QCOMPARE(chart.addTimelineComboboxToChart(5, { QStringLiteral("a") }, false), nullptr);
        QComboBox *combo = chart.addTimelineComboboxToChart(1, { QStringLiteral("1 s"), QStringLiteral("10 s") }, true);
        QVERIFY(combo);
        QVERIFY(combo->styleSheet().contains(QLatin1String("border: 0px;")));
        chart.translateTimelineComboboxToChart(1, { QStringLiteral("1 Sek."), QStringLiteral("10 Sek.") });
        QCOMPARE(combo->itemText(1), QStringLiteral("10 Sek."));
        QSignalSpy prev(&chart, &AbstractChart::independentActionPrev);
        QSignalSpy next(&chart, &AbstractChart::independentActionNext);
        auto *row = combo->parentWidget();
        QTest::mouseClick(row->findChild<QPushButton *>(QStringLiteral("timelinePrev")), Qt::LeftButton);
        QTest::mouseClick(row->findChild<QPushButton *>(QStringLiteral("timelineNext")), Qt::LeftButton);
        QCOMPARE(prev.count(), 1);
        QCOMPARE(next.count(), 1);
    }

    void baselineFollowsInvertedAxis()
    {
        GenericChart chart(2);
        chart.vEnableYRightAxis(1, true);
        chart.setScale(1, 300.0, 0.0); // inverted left axis
        chart.setBaselineTo(0);
        const auto baseline = [&chart](int plot) {
            const QwtPlotItemList curves = chart.poPlot(plot)->itemList(QwtPlotItem::Rtti_PlotCurve);
            return static_cast<QwtPlotCurve *>(curves.first())->baseline();
        };
        QCOMPARE(baseline(0), -1500.0);
        QCOMPARE(baseline(1), 1500.0);
    }
};

QTEST_MAIN(tst_GenericChart)
#include "tst_genericchart.moc"
