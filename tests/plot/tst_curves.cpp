// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/valueovertime.h"
#include "plot/chartplotter.h"
#include "plot/curvefactory.h"
#include "plot/customcurve.h"
#include "plot/plot.h"
#include "plottesthelpers.h"

#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_marker.h>
#include <qwt_text.h>

#include <QtTest>

#include <climits>
#include <cmath>
#include <random>

namespace {

const double kStart = 1.7e12;

// Vertical extent of the curve's blue per canvas column; (-1, -1) where it is absent.
QVector<QPair<int, int>> curveExtents(const QImage &image)
{
    QVector<QPair<int, int>> extents(image.width(), qMakePair(-1, -1));
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            const QColor c = image.pixelColor(x, y);
            if (c.blue() - c.red() > 60) {
                if (extents[x].first < 0)
                    extents[x].first = y;
                extents[x].second = y;
            }
        }
    }
    return extents;
}

/*
    How many rows the curve of one image reaches beyond the other's within one
    column either side (antialiasing may put a thin vertical line into the
    neighbouring column); the outermost columns are left out.
*/
int largestDifference(const QVector<QPair<int, int>> &a, const QVector<QPair<int, int>> &b)
{
    int worst = 0;
    for (int pass = 0; pass < 2; ++pass) {
        const auto &one = pass == 0 ? a : b;
        const auto &other = pass == 0 ? b : a;
        for (int x = 2; x + 2 < one.size(); ++x) {
            if (one[x].first < 0)
                continue;
            int top = INT_MAX, bottom = -1;
            for (int n = x - 1; n <= x + 1; ++n) {
                if (other[n].first >= 0) {
                    top = std::min(top, other[n].first);
                    bottom = std::max(bottom, other[n].second);
                }
            }
            if (bottom < 0)
                return 1000;
            worst = std::max({ worst, top - one[x].first, one[x].second - bottom });
        }
    }
    return worst;
}

} // namespace

class tst_Curves : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> host;

private Q_SLOTS:
    void cleanup() { host.reset(); }

    void factoryKeepsOneCurvePerSeries()
    {
        Utils::Plot plot;
        Utils::CurveFactory factory(&plot);
        Utils::ValueOverTime series;
        QSignalSpy created(&factory, &Utils::CurveFactory::curveCreated);

        Utils::CustomCurve *curve = factory.poAttachData(&series);
        QVERIFY(curve);
        QCOMPARE(factory.poAttachData(&series), curve);
        QCOMPARE(factory.count(), 1);
        QCOMPARE(created.count(), 1);
        // The arguments travel in a QVariant, as in queued connections.
        QCOMPARE(created.at(0).at(0).value<Utils::CustomCurve *>(), curve);
        QCOMPARE(plot.itemList(QwtPlotItem::Rtti_PlotCurve).size(), 1);
        QCOMPARE(factory.poCurve(nullptr), nullptr);
        QCOMPARE(factory.poAttachData(nullptr), nullptr);

        // The curve follows the series through its signal, without copying.
        series.vAppend(5.0, kStart);
        series.vAppend(6.0, kStart + 1.0);
        QCOMPARE(int(curve->dataSize()), 2);
        QCOMPARE(curve->sample(1), QPointF(kStart + 1.0, 6.0));
        QVERIFY(curve->isSorted());
        series.vAppend(7.0, kStart - 5.0);
        QVERIFY(!curve->isSorted());
        series.vClear();
        QCOMPARE(int(curve->dataSize()), 0);
        QVERIFY(curve->isSorted());

        // A series that goes first leaves an empty curve, not dangling arrays.
        auto doomed = std::make_unique<Utils::ValueOverTime>();
        doomed->vAppend(1.0, kStart);
        Utils::CustomCurve *orphan = factory.poAttachData(doomed.get());
        doomed.reset();
        QCOMPARE(int(orphan->dataSize()), 0);
        plot.replot();
    }

    // The same arrays drawn by a plain QwtPlotCurve and by the thinned curve must
    // give the same picture: per canvas column, the curve covers the same rows
    // (within one pixel of antialiasing). Spikes of single samples, a break
    // sentinel that takes the line off the canvas, a fill down to a baseline and
    // a zoomed-in view that leaves most samples outside are the cases where a
    // thinning that drops samples would show.
    void thinnedCurvePaintsWhatThePlainCurvePaints_data()
    {
        QTest::addColumn<int>("samples");
        QTest::addColumn<double>("visibleMs");
        QTest::addColumn<bool>("filled");
        QTest::addColumn<bool>("sorted");

        QTest::newRow("200 samples per column, spikes and a break") << 160000 << 10000.0 << false << true;
        QTest::newRow("filled to the baseline") << 160000 << 10000.0 << true << true;
        QTest::newRow("zoomed in: 2 s of 16 s in view") << 160000 << 2000.0 << false << true;
        QTest::newRow("sparse: fewer samples than columns") << 300 << 10000.0 << false << true;
        QTest::newRow("x not sorted: drawn as it is") << 40000 << 10000.0 << false << false;
    }

    void thinnedCurvePaintsWhatThePlainCurvePaints()
    {
        QFETCH(int, samples);
        QFETCH(double, visibleMs);
        QFETCH(bool, filled);
        QFETCH(bool, sorted);

        std::mt19937 random(7);
        std::uniform_real_distribution<double> noise(-3.0, 3.0);
        QVector<double> x(samples), y(samples);
        const double spacing = 16000.0 / samples;
        for (int i = 0; i < samples; ++i) {
            x[i] = kStart + i * spacing;
            y[i] = 150.0 + 60.0 * std::sin(i * 6.0 / samples) + noise(random);
            if (i % 997 == 0)
                y[i] += (i % 2 ? 120.0 : -120.0); // single-sample spikes
        }
        if (samples > 1000) {
            // A pause: two break points far below the scale.
            y[samples / 2] = -1500.0;
            y[samples / 2 + 1] = -1500.0;
        }
        if (!sorted)
            std::swap(x[samples / 3], x[samples / 3 + 50]);

        Utils::Plot *plot = PlotTest::showPlot(host, true);
        host->resize(860, 380);
        plot->setAxisScale(QwtPlot::yLeft, 0.0, 300.0);
        plot->setAxisScale(QwtPlot::xBottom, kStart + 3000.0, kStart + 3000.0 + visibleMs);
        const QPen pen(QColor(0, 0, 255), 1);

        const auto render = [&](QwtPlotCurve *curve) {
            curve->setPen(pen);
            curve->setRenderHint(QwtPlotItem::RenderAntialiased);
            if (filled) {
                curve->setBrush(QColor(0, 0, 255, 40));
                curve->setBaseline(-1500.0);
            }
            curve->attach(plot);
            plot->replot();
            const QImage image = plot->canvas()->grab().toImage();
            curve->detach();
            delete curve;
            return image;
        };
        // Every segment drawn: Qwt's own point filter would drop spikes inside a column.
        auto *plain = new QwtPlotCurve;
        plain->setPaintAttribute(QwtPlotCurve::FilterPoints, false);
        plain->setRawSamples(x.constData(), y.constData(), samples);
        const QImage expected = render(plain);
        auto *thinned = new Utils::CustomCurve;
        thinned->vUpdateData(x.constData(), y.constData(), samples);
        QCOMPARE(thinned->isSorted(), sorted);
        const QImage actual = render(thinned);

        const auto plainExtents = curveExtents(expected);
        const auto thinnedExtents = curveExtents(actual);
        const int difference = largestDifference(plainExtents, thinnedExtents);
        if (difference > 1) {
            const QString tag
                = QString::fromLatin1(QTest::currentDataTag()).replace(QLatin1Char(' '), QLatin1Char('_'));
            expected.save(QDir::temp().filePath(QStringLiteral("curve-plain-%1.png").arg(tag)));
            actual.save(QDir::temp().filePath(QStringLiteral("curve-thinned-%1.png").arg(tag)));
        }
        QVERIFY2(difference <= 1, qPrintable(QStringLiteral("columns differ by %1 rows").arg(difference)));
        if (samples < 1000)
            return;
        // The spikes reach the upper quarter of the canvas: the picture is not flat.
        const auto highest = std::min_element(
            thinnedExtents.cbegin(), thinnedExtents.cend(), [](const QPair<int, int> &a, const QPair<int, int> &b) {
                return a.first >= 0 && (b.first < 0 || a.first < b.first);
            });
        QVERIFY(highest->first >= 0 && highest->first < actual.height() / 4);
    }

    void chartPlotterTexts()
    {
        Utils::ChartPlotter chart;
        chart.setCurrentValue(1234.5);
        QCOMPARE(chart.poValueMarker()->label().text(), QStringLiteral("1.23e+03"));
        QCOMPARE(chart.poValueMarker()->label().color(), QColor(0, 200, 180));
        QCOMPARE(chart.poValueMarker()->value(), QPointF(250.0, 250.0));
        chart.vSetMinMarker(12.5);
        chart.vSetMaxMarker(240);
        QCOMPARE(chart.poMinMarker()->label().text(), QStringLiteral("Min 12.5"));
        QCOMPARE(chart.poMaxMarker()->label().text(), QStringLiteral("Max 240"));
        QCOMPARE(chart.poMinMarker()->linePen().color(), QColor(255, 188, 188));
        QCOMPARE(chart.poMinMarker()->plot(), chart.poPlot());
        QCOMPARE(PlotTest::range(*chart.poPlot(), QwtPlot::yLeft), PlotTest::Range(0.0, 255.0));

        // Curves of the chart's factory get the chart's look.
        Utils::ValueOverTime series;
        Utils::CustomCurve *curve = chart.poCurveFactory()->poAttachData(&series);
        QCOMPARE(curve->pen().color(), QColor(94, 137, 206));
        QCOMPARE(curve->plot(), chart.poPlot());
    }
};

QTEST_MAIN(tst_Curves)
#include "tst_curves.moc"
