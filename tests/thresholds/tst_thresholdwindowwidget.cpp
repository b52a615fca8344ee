// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plottesthelpers.h"

#include "plot/plot.h"
#include "plot/plotmarker.h"
#include "thresholds/customwidget.h"
#include "thresholds/thresholdwindowwidget.h"
#include "thresholds/thresholdwindowwidgetgeneric.h"
#include "thresholds/thresholdwindowwidgetuniversal.h"

#include <qwt_plot.h>
#include <qwt_scale_div.h>

#include <QLabel>
#include <QtTest>

#include <memory>

using Utils::PlotMarker;
using Utils::ThresholdWindowWidget;

namespace {

// Value span of one canvas pixel row.
double unitsPerPixel(const QwtPlot &plot)
{
    return std::abs(plot.invTransform(QwtPlot::yLeft, 0) - plot.invTransform(QwtPlot::yLeft, 1));
}

int row(const QwtPlot &plot, double value)
{
    return int(plot.transform(QwtPlot::yLeft, value));
}

//! Drags \a mark by its top edge to canvas row \a targetTop, in steps as a hand would.
void drag(PlotMarker *mark, int targetTop)
{
    PlotTest::dragMark(mark, QPoint(30, 1), QPoint(mark->x() + 30, targetTop + 1), 8);
}

// 1 when a canvas row of the grabbed image is shaded across, 0 when it is white.
int shaded(const QImage &image, int row)
{
    int count = 0;
    for (int x = 0; x < image.width(); ++x)
        count += image.pixelColor(x, row).lightness() < 245;
    const double share = double(count) / image.width();
    return share > 0.95 ? 1 : share < 0.2 ? 0 : -1;
}

} // namespace

class tst_ThresholdWindowWidget : public QObject
{
    Q_OBJECT

    // Each test starts with a plot as a chart shows it (0..100 on yLeft) and a window on it.
    std::unique_ptr<Utils::Plot> plot;
    std::unique_ptr<ThresholdWindowWidget> window;
    PlotMarker *upperMark() const { return window->poUpperMark(); }
    PlotMarker *lowerMark() const { return window->poLowerMark(); }

private Q_SLOTS:
    void init()
    {
        plot = std::make_unique<Utils::Plot>();
        plot->setAxisScale(QwtPlot::yLeft, 0.0, 100.0);
        QVERIFY(TestSupport::show(plot.get(), QSize(500, 400)));
        plot->replot();
        window = std::make_unique<ThresholdWindowWidget>(plot.get(), 0);
    }

    void cleanup()
    {
        window.reset();
        plot.reset();
    }

    void construction()
    {
        // The upper mark may go from minDifference above the scale's bottom to its top.
        QCOMPARE(qMakePair(upperMark()->lower(), upperMark()->upper()), qMakePair(1.0, 100.0));
        QVERIFY(!window->poUpperZone()->isVisible() && !window->poLowerZone()->isVisible());
    }

    void dragStopsAtTheOtherMark_data()
    {
        QTest::addColumn<uint>("mark");
        QTest::addColumn<double>("minDifference");
        QTest::addColumn<double>("towards");
        QTest::addColumn<double>("stop");
        QTest::newRow("upper dragged far down stops half a unit above the lower") << 1u << 1.0 << 2.0 << 40.5;
        QTest::newRow("lower dragged far up stops half a unit below the upper") << 0u << 1.0 << 98.0 << 59.5;
        QTest::newRow("minimum difference 4: two units below the upper") << 0u << 4.0 << 98.0 << 58.0;
    }

    void dragStopsAtTheOtherMark()
    {
        QFETCH(uint, mark);
        QFETCH(double, minDifference);
        QFETCH(double, towards);
        QFETCH(double, stop);
        window->setMinDifference(minDifference);
        window->setLowerMark(40);
        window->setUpperMark(60);
        QSignalSpy spy(window.get(), &ThresholdWindowWidget::emitValueChanged);
        PlotMarker *moved = mark ? upperMark() : lowerMark();
        PlotMarker *other = mark ? lowerMark() : upperMark();
        drag(moved, row(*plot, towards));
        const double value = moved->value();
        const bool beyondStop = mark ? value < stop : value > stop;
        QVERIFY2(!beyondStop && std::abs(value - stop) <= 2 * unitsPerPixel(*plot), qPrintable(QString::number(value)));
        QCOMPARE(other->value(), mark ? 40.0 : 60.0);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0), (QList<QVariant>{mark, value}));
        // The other mark's limit followed the new value.
        QCOMPARE(mark ? other->upper() : other->lower(), mark ? value - minDifference / 2 : value + minDifference / 2);
    }

    void dragAcrossWithOverlapping()
    {
        window->setBothWindowZoneVisible(true);
        window->setLowerMark(40);
        window->setUpperMark(60);
        // Overlapping opens the whole scale to both marks.
        window->allowOverlapping(true);
        QCOMPARE(lowerMark()->upper(), 100.0);

        drag(upperMark(), row(*plot, 25.0));
        const double upper = upperMark()->value();
        QVERIFY2(upper < 30.0, qPrintable(QString::number(upper)));
        // Crossed: the band sides swap, and the band between the marks is shaded.
        QCOMPARE(upperMark()->noiseOrientation(), PlotMarker::OrientationBandBelow);
        QCOMPARE(lowerMark()->noiseOrientation(), PlotMarker::OrientationBandAbove);
        QVERIFY(window->poUpperZone()->isVisible() && !window->poLowerZone()->isVisible());
        QVERIFY(std::abs(window->poUpperZone()->lowerValue() - upper) <= 2 * unitsPerPixel(*plot));
    }

    void programmaticMovesAreReported()
    {
        QSignalSpy spy(window.get(), &ThresholdWindowWidget::emitValueChanged);
        window->setLowerMark(10);
        window->setUpperMark(90);
        window->setUpperMark(90); // no move, no report
        // Only the two marks are reported; a null or foreign subject is not.
        Utils::Observable stranger;
        window->update(nullptr);
        window->update(&stranger);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(0), (QList<QVariant>{0u, 10.0}));
        QCOMPARE(spy.at(1), (QList<QVariant>{1u, 90.0}));
    }

    void setNoise_data()
    {
        QTest::addColumn<int>("lowerNoise");
        QTest::addColumn<int>("upperNoise");
        QTest::addColumn<uint>("lowerThickness");
        QTest::addColumn<uint>("upperThickness");
        QTest::newRow("negative upper takes the lower") << 5 << -1 << 5u << 5u;
        QTest::newRow("each its own") << 3 << 7 << 3u << 7u;
        QTest::newRow("upper 0 is its own: a bare line") << 5 << 0 << 5u << 0u;
        QTest::newRow("negative lower is no band") << -2 << -1 << 0u << 0u;
    }

    void setNoise()
    {
        QFETCH(int, lowerNoise);
        QFETCH(int, upperNoise);
        QFETCH(uint, upperThickness);

        window->setLowerMark(30);
        window->setUpperMark(70);
        window->setNoise(lowerNoise, upperNoise);
        QTEST(lowerMark()->thickness(), "lowerThickness");
        QCOMPARE(upperMark()->thickness(), upperThickness);
        // The band is drawn as the marker's height: thickness in pixels plus the line.
        const double bandPixels
            = plot->transform(QwtPlot::yLeft, 0.0) - plot->transform(QwtPlot::yLeft, upperThickness);
        QCOMPARE(upperMark()->height(), int(bandPixels) + 4);

        // A zoom reset gives the bands of setNoise() back only with keepNoiseWidth.
        upperMark()->setThickness(upperThickness + 9);
        Q_EMIT plot->PlotScrollMagnified(0.0);
        QCOMPARE(upperMark()->thickness(), upperThickness + 9);
        window->setKeepNoiseWidth(true);
        Q_EMIT plot->PlotScrollMagnified(0.8);
        QCOMPARE(upperMark()->thickness(), upperThickness + 9);
        Q_EMIT plot->PlotScrollMagnified(0.0);
        QCOMPARE(upperMark()->thickness(), upperThickness);
    }

    void noiseOrientation_data()
    {
        QTest::addColumn<double>("upperValue");
        QTest::addColumn<bool>("inverted");
        QTest::addColumn<bool>("upperOnly");
        QTest::addColumn<bool>("keepUpper");
        QTest::addColumn<int>("upper");
        QTest::addColumn<int>("lower");

        const int above = PlotMarker::OrientationBandAbove;
        const int below = PlotMarker::OrientationBandBelow;
        const int unchanged = -1;
        QTest::newRow("upper only clears the upper flag") << 70.0 << false << true << true << above << unchanged;
        QTest::newRow("keep upper sets the upper flag") << 70.0 << false << false << true << below << unchanged;
        QTest::newRow("normal window") << 70.0 << false << false << false << below << above;
        QTest::newRow("normal window, inverted") << 70.0 << true << false << false << above << below;
        QTest::newRow("crossed") << 20.0 << false << false << false << above << below;
        QTest::newRow("crossed, inverted") << 20.0 << true << false << false << below << above;
    }

    void noiseOrientation()
    {
        QFETCH(double, upperValue);
        QFETCH(bool, inverted);
        QFETCH(bool, upperOnly);
        QFETCH(bool, keepUpper);
        QFETCH(int, lower);

        window->allowOverlapping(true);
        window->setLowerMark(30);
        window->setUpperMark(upperValue);
        const int lowerBefore = lowerMark()->noiseOrientation();
        window->setNoiseOrientation(inverted, upperOnly, keepUpper);
        QTEST(int(upperMark()->noiseOrientation()), "upper");
        QCOMPARE(int(lowerMark()->noiseOrientation()), lower == -1 ? lowerBefore : lower);
    }

    void zones_data()
    {
        QTest::addColumn<bool>("crossed");
        QTest::newRow("normal window: shaded above the upper and below the lower mark") << false;
        QTest::newRow("crossed marks: shaded between them") << true;
    }

    void zones()
    {
        QFETCH(bool, crossed);
        window->allowOverlapping(true);
        window->setBothWindowZoneVisible(true);
        window->setLowerMark(crossed ? 70 : 30);
        window->setUpperMark(crossed ? 30 : 70);
        Utils::CustomWidget *upperZone = window->poUpperZone();
        Utils::CustomWidget *lowerZone = window->poLowerZone();
        QVERIFY(upperZone->isVisible());
        QCOMPARE(lowerZone->isVisible(), !crossed);
        const double tolerance = unitsPerPixel(*plot);
        QVERIFY(std::abs(upperZone->lowerValue() - (crossed ? 30.0 : 70.0)) <= tolerance);
        QVERIFY(std::abs(upperZone->upperValue() - (crossed ? 70.0 : 100.0)) <= tolerance);
        if (!crossed) {
            QVERIFY(std::abs(lowerZone->upperValue() - 30.0) <= tolerance);
            QCOMPARE(lowerZone->lowerValue(), 0.0);
        }

        const QImage image = plot->canvas()->grab().toImage();
        for (double outside : {85.0, 15.0})
            QCOMPARE(shaded(image, row(*plot, outside)), crossed ? 0 : 1);
        for (double inside : {52.0, 48.0})
            QCOMPARE(shaded(image, row(*plot, inside)), crossed ? 1 : 0);
    }

    void zonesParkedAndOffline()
    {
        window->setBothWindowZoneVisible(true);
        window->setLowerMark(30);
        window->setUpperMark(70);
        window->setOfflineThresholds(80, 10, 95, 5);
        const auto bounds = [](const Utils::CustomWidget *z) { return qMakePair(z->lowerValue(), z->upperValue()); };
        QCOMPARE(bounds(window->poUpperZone()), qMakePair(80.0, 95.0));
        QCOMPARE(bounds(window->poLowerZone()), qMakePair(5.0, 10.0));

        window->setBothWindowZoneVisible(false);
        QCOMPARE(bounds(window->poLowerZone()), qMakePair(50000.0, 50001.0));
        QVERIFY(window->poLowerZone()->geometry().bottom() < 0); // far above the canvas
        window->updateZoneGeometry();
        QVERIFY(!window->poUpperZone()->isVisible() && !window->poLowerZone()->isVisible());

        // Offline zones only apply to a normal window.
        window->allowOverlapping(true);
        window->setUpperMark(20);
        window->setOfflineThresholds(1, 2, 3, 4);
        QCOMPARE(window->poUpperZone()->upperValue(), 95.0);
    }

    void followsWheelZoomAndScale()
    {
        window->setBothWindowZoneVisible(true);
        window->setLowerMark(30);
        window->setUpperMark(70);

        // A wheel step on the canvas zooms in (a plot at its largest span refuses to
        // zoom out): the marks keep their values at new pixels and the upper zone
        // reaches the new top of the scale.
        QWidget *canvas = plot->canvas();
        const QPoint centre = canvas->rect().center();
        PlotTest::wheel(canvas, centre, -120);
        const QwtScaleDiv &scale = plot->axisScaleDiv(QwtPlot::yLeft);
        QVERIFY2(scale.upperBound() - scale.lowerBound() < 99.0,
                 qPrintable(QStringLiteral("no zoom: %1..%2").arg(scale.lowerBound()).arg(scale.upperBound())));
        QCOMPARE(window->poUpperZone()->upperValue(), std::max(scale.lowerBound(), scale.upperBound()));
        QCOMPARE(upperMark()->value(), 70.0);
        QVERIFY(std::abs(upperMark()->geometry().bottom() + 1 - row(*plot, 70.0)) <= 1);

        // A double click resets the zoom; the zones follow the reset.
        QTest::mouseDClick(canvas, Qt::LeftButton, Qt::NoModifier, centre);
        QCOMPARE(plot->axisScaleDiv(QwtPlot::yLeft).upperBound(), 100.0);
        QCOMPARE(window->poUpperZone()->upperValue(), 100.0);

        // A host rescale moves the marks and zones along as well.
        plot->setAxisScale(QwtPlot::yLeft, 0.0, 400.0);
        plot->replot();
        QVERIFY(std::abs(lowerMark()->geometry().top() - row(*plot, 30.0)) <= 1);
        QVERIFY(std::abs(window->poLowerZone()->geometry().top() - row(*plot, 30.0)) <= 2);
    }

    void genericRangeAndReadOnly()
    {
        window.reset();
        Utils::ThresholdWindowWidgetGeneric generic(plot.get(), 2);
        QCOMPARE(generic.getComponentIndex(), 2);
        generic.setLowerMark(30);
        generic.setUpperMark(70);
        generic.setThresholdsRange(90, 10);
        QCOMPARE(generic.poUpperMark()->upper(), 90.0);
        QCOMPARE(generic.poLowerMark()->lower(), 10.0);
        QCOMPARE(generic.poUpperMark()->lower(), 30.5);
        drag(generic.poUpperMark(), 0);
        QVERIFY(generic.poUpperMark()->value() <= 90.0);

        generic.setReadOnlyUpperLower(true);
        QSignalSpy spy(&generic, &ThresholdWindowWidget::emitValueChanged);
        const double before = generic.poLowerMark()->value();
        drag(generic.poLowerMark(), plot->canvas()->height() - 5);
        QCOMPARE(generic.poLowerMark()->value(), before);
        QCOMPARE(spy.count(), 0);
    }

    void universalOperations()
    {
        window.reset();
        Utils::ThresholdWindowWidgetUniversal universal(plot.get(), 0);
        universal.setLowerMarkerValue(30, QStringLiteral("Off "));
        universal.setUpperMarkerValue(52.5, QStringLiteral("On "));
        QCOMPARE(universal.windowSize(), 22.5);

        auto *label = qobject_cast<QLabel *>(universal.poWindowSizeLabel());
        QVERIFY(label && !label->isVisible());
        universal.setWindowSizeVisible(true);
        QVERIFY(label->isVisible());
        QCOMPARE(label->text(), QStringLiteral("Window 22.50"));
        universal.formatText(true);
        QCOMPARE(label->text(), QStringLiteral("Window 22.5"));
        // Between the marks, also after the canvas grew.
        plot->resize(700, 600);
        QCoreApplication::processEvents();
        const int middleRow = row(*plot, (30 + 52.5) / 2);
        QVERIFY2(std::abs(label->geometry().center().y() - middleRow) <= 2,
                 qPrintable(QStringLiteral("%1 vs %2").arg(label->geometry().center().y()).arg(middleRow)));
        QCOMPARE(label->geometry().right(), plot->canvas()->width() - 5);
        universal.showUpperMark(false);
        QVERIFY(!universal.isUpperMarkVisible() && universal.isLowerMarkVisible());
        QVERIFY(!label->isVisible());
        universal.showUpperMark(true);

        // The named value gives the hint its text.
        QTest::mousePress(universal.poUpperMark(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 1));
        QTest::mouseRelease(universal.poUpperMark(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 1));
        QCOMPARE(universal.poUpperMark()->hintText(), QStringLiteral("On 52.5"));
        universal.vDisabledUpperMark(true);
        QVERIFY(!universal.poUpperMark()->isEnabled());
    }

    void worksOnPlainQwtPlotAndOutlivesIt()
    {
        auto plainPlot = std::make_unique<QwtPlot>();
        plainPlot->setAxisScale(QwtPlot::yLeft, 0.0, 10.0);
        plainPlot->resize(300, 200);
        plainPlot->show();
        plainPlot->replot();
        auto universal = std::make_unique<Utils::ThresholdWindowWidgetUniversal>(plainPlot.get(), 0);
        universal->setBothWindowZoneVisible(true);
        universal->setLowerMark(2);
        universal->setUpperMark(8);
        QCOMPARE(universal->poUpperMark()->lower(), 2.5);

        plainPlot.reset(); // the marks and zones go with the canvas
        QVERIFY(!universal->poUpperMark());
        universal->setUpperMark(5);
        universal->updateZoneGeometry();
        QCOMPARE(universal->windowSize(), 0.0);
        universal.reset();

        ThresholdWindowWidget orphan(nullptr, 0);
        orphan.setNoise(1, 1);
        QVERIFY(!orphan.poUpperMark());
    }
};

QTEST_MAIN(tst_ThresholdWindowWidget)
#include "tst_thresholdwindowwidget.moc"
