// SPDX-License-Identifier: LGPL-2.1-or-later
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

// A plot as a chart shows it: values 0..100 on yLeft.
std::unique_ptr<Utils::Plot> makePlot()
{
    auto plot = std::make_unique<Utils::Plot>();
    plot->setAxisScale(QwtPlot::yLeft, 0.0, 100.0);
    plot->resize(500, 400);
    plot->show();
    plot->replot();
    return plot;
}

// Value span of one canvas pixel row.
double unitsPerPixel(const QwtPlot &plot)
{
    return std::abs(plot.invTransform(QwtPlot::yLeft, 0) - plot.invTransform(QwtPlot::yLeft, 1));
}

/*
    Drags \a mark with the left button so that its top edge goes to canvas row
    \a targetTop, in steps as a hand would. Moves are sent to the marker itself
    (QTest::mouseMove only moves the cursor in Qt 5).
*/
void drag(PlotMarker *mark, int targetTop)
{
    const QPoint grip(30, 1);
    QTest::mousePress(mark, Qt::LeftButton, Qt::NoModifier, grip);
    const int startTop = mark->y();
    const int steps = 8;
    for (int i = 1; i <= steps; ++i) {
        const int top = startTop + (targetTop - startTop) * i / steps;
        const QPoint local(grip.x(), top + grip.y() - mark->y());
        QMouseEvent move(QEvent::MouseMove, local, mark->mapToGlobal(local), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(mark, &move);
    }
    QTest::mouseRelease(mark, Qt::LeftButton, Qt::NoModifier, QPoint(grip.x(), grip.y()));
}

// Share of non-white pixels in a canvas row of the grabbed image.
double shadedShare(const QImage &image, int row)
{
    int shaded = 0;
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, row).lightness() < 245)
            ++shaded;
    }
    return double(shaded) / image.width();
}

} // namespace

class tst_ThresholdWindowWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void construction();
    void keepMarksApart_data();
    void keepMarksApart();
    void dragUpperStopsAboveLower();
    void dragLowerStopsBelowUpper();
    void dragAcrossWithOverlapping();
    void programmaticMovesAreReported();
    void setNoise_data();
    void setNoise();
    void noiseOrientation_data();
    void noiseOrientation();
    void zonesNormalWindow();
    void zonesCrossedMarks();
    void zonesParkedAndOffline();
    void followsWheelZoomAndScale();
    void genericRangeAndReadOnly();
    void universalOperations();
    void worksOnPlainQwtPlotAndOutlivesIt();
};

void tst_ThresholdWindowWidget::init()
{
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.*=false"));
}

void tst_ThresholdWindowWidget::construction()
{
    auto plot = makePlot();
    ThresholdWindowWidget window(plot.get(), 4);
    QCOMPARE(window.getComponentIndex(), 4);
    PlotMarker *upper = window.poUpperMark();
    PlotMarker *lower = window.poLowerMark();
    QVERIFY(upper && lower && upper != lower);
    QCOMPARE(upper->parentWidget(), plot->canvas());
    QVERIFY(upper->bMovable() && lower->bMovable());
    QCOMPARE(upper->cursor().shape(), Qt::SizeVerCursor);
    // Lower mark's side flag set (band below), upper's cleared (band above).
    QCOMPARE(lower->noiseOrientation(), PlotMarker::OrientationBandBelow);
    QCOMPARE(upper->noiseOrientation(), PlotMarker::OrientationBandAbove);
    QCOMPARE(upper->lower(), 1.0);
    QCOMPARE(upper->upper(), 100.0);
    QCOMPARE(lower->lower(), 0.0);
    QCOMPARE(lower->upper(), 100.0);
    QVERIFY(!window.poUpperZone()->isVisible());
    QVERIFY(!window.poLowerZone()->isVisible());
}

void tst_ThresholdWindowWidget::keepMarksApart_data()
{
    QTest::addColumn<double>("minDifference");
    QTest::addColumn<bool>("overlapping");
    QTest::addColumn<double>("upperFloor");
    QTest::addColumn<double>("lowerCeiling");
    QTest::newRow("default distance 1") << 1.0 << false << 40.5 << 59.5;
    QTest::newRow("distance 4") << 4.0 << false << 42.0 << 58.0;
    QTest::newRow("overlapping opens the range") << 4.0 << true << 0.0 << 100.0;
}

void tst_ThresholdWindowWidget::keepMarksApart()
{
    QFETCH(double, minDifference);
    QFETCH(bool, overlapping);
    QFETCH(double, upperFloor);
    QFETCH(double, lowerCeiling);

    auto plot = makePlot();
    ThresholdWindowWidget window(plot.get(), 0);
    window.setMinDifference(minDifference);
    window.allowOverlapping(overlapping);
    window.setLowerMark(40);
    window.setUpperMark(60);
    QCOMPARE(window.poUpperMark()->lower(), upperFloor);
    QCOMPARE(window.poLowerMark()->upper(), lowerCeiling);
    QCOMPARE(window.poUpperMark()->value(), 60.0);
    QCOMPARE(window.poLowerMark()->value(), 40.0);
}

void tst_ThresholdWindowWidget::dragUpperStopsAboveLower()
{
    auto plot = makePlot();
    ThresholdWindowWidget window(plot.get(), 0);
    window.setLowerMark(40);
    window.setUpperMark(60);
    QSignalSpy spy(&window, &ThresholdWindowWidget::emitValueChanged);
    QVERIFY(spy.isValid());

    // Far below the lower mark: the drag stops half a unit above it.
    drag(window.poUpperMark(), plot->canvas()->height() - 10);
    const double value = window.poUpperMark()->value();
    QVERIFY2(value >= 40.5 && value <= 40.5 + unitsPerPixel(*plot), qPrintable(QString::number(value)));
    QCOMPARE(window.poLowerMark()->value(), 40.0);

    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toUInt(), 1u);
    QCOMPARE(spy.at(0).at(1).toDouble(), value);
    // The lower mark's ceiling followed the new upper value.
    QCOMPARE(window.poLowerMark()->upper(), value - 0.5);
}

void tst_ThresholdWindowWidget::dragLowerStopsBelowUpper()
{
    auto plot = makePlot();
    ThresholdWindowWidget window(plot.get(), 0);
    window.setLowerMark(40);
    window.setUpperMark(60);
    QSignalSpy spy(&window, &ThresholdWindowWidget::emitValueChanged);

    drag(window.poLowerMark(), 5);
    const double value = window.poLowerMark()->value();
    QVERIFY2(value <= 59.5 && value >= 59.5 - 2 * unitsPerPixel(*plot), qPrintable(QString::number(value)));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toUInt(), 0u);
    QCOMPARE(spy.at(0).at(1).toDouble(), value);

    // A small drag inside the window moves it freely.
    const int target = int(plot->transform(QwtPlot::yLeft, 20.0));
    drag(window.poLowerMark(), target);
    QVERIFY(std::abs(window.poLowerMark()->value() - 20.0) <= 2 * unitsPerPixel(*plot));
    QCOMPARE(spy.count(), 2);
}

void tst_ThresholdWindowWidget::dragAcrossWithOverlapping()
{
    auto plot = makePlot();
    ThresholdWindowWidget window(plot.get(), 0);
    window.setBothWindowZoneVisible(true);
    window.allowOverlapping(true);
    window.setLowerMark(40);
    window.setUpperMark(60);

    drag(window.poUpperMark(), int(plot->transform(QwtPlot::yLeft, 25.0)));
    const double upper = window.poUpperMark()->value();
    QVERIFY2(upper < 30.0, qPrintable(QString::number(upper)));
    // Crossed: the band sides swap, and the band between the marks is shaded.
    QCOMPARE(window.poUpperMark()->noiseOrientation(), PlotMarker::OrientationBandBelow);
    QCOMPARE(window.poLowerMark()->noiseOrientation(), PlotMarker::OrientationBandAbove);
    QVERIFY(window.poUpperZone()->isVisible());
    QVERIFY(!window.poLowerZone()->isVisible());
    const double tolerance = 2 * unitsPerPixel(*plot);
    QVERIFY(std::abs(window.poUpperZone()->lowerValue() - upper) <= tolerance);
    QVERIFY(std::abs(window.poUpperZone()->upperValue() - 40.0) <= tolerance);
}

void tst_ThresholdWindowWidget::programmaticMovesAreReported()
{
    auto plot = makePlot();
    ThresholdWindowWidget window(plot.get(), 0);
    QSignalSpy spy(&window, &ThresholdWindowWidget::emitValueChanged);
    window.setLowerMark(10);
    window.setUpperMark(90);
    window.setUpperMark(90); // no move, no report
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0), (QList<QVariant>{0u, 10.0}));
    QCOMPARE(spy.at(1), (QList<QVariant>{1u, 90.0}));

    // Only the two marks are reported; a null or foreign subject is not.
    Utils::Observable stranger;
    window.update(nullptr);
    window.update(&stranger);
    QCOMPARE(spy.count(), 2);
}

void tst_ThresholdWindowWidget::setNoise_data()
{
    QTest::addColumn<int>("lowerNoise");
    QTest::addColumn<int>("upperNoise");
    QTest::addColumn<uint>("lowerThickness");
    QTest::addColumn<uint>("upperThickness");
    QTest::newRow("negative upper takes the lower") << 5 << -1 << 5u << 5u;
    QTest::newRow("each its own") << 3 << 7 << 3u << 7u;
    QTest::newRow("negative lower is no band") << -2 << -1 << 0u << 0u;
}

void tst_ThresholdWindowWidget::setNoise()
{
    QFETCH(int, lowerNoise);
    QFETCH(int, upperNoise);
    QFETCH(uint, lowerThickness);
    QFETCH(uint, upperThickness);

    auto plot = makePlot();
    ThresholdWindowWidget window(plot.get(), 0);
    window.setLowerMark(30);
    window.setUpperMark(70);
    window.setNoise(lowerNoise, upperNoise);
    QCOMPARE(window.poLowerMark()->thickness(), lowerThickness);
    QCOMPARE(window.poUpperMark()->thickness(), upperThickness);
    // The band is drawn as the marker's height: thickness in pixels plus the line.
    const int expected = int(plot->transform(QwtPlot::yLeft, 0.0) - plot->transform(QwtPlot::yLeft, upperThickness)) + 4;
    QCOMPARE(window.poUpperMark()->height(), expected);

    // A zoom reset gives the bands of setNoise() back only with keepNoiseWidth.
    window.poUpperMark()->setThickness(upperThickness + 9);
    Q_EMIT plot->PlotScrollMagnified(0.0);
    QCOMPARE(window.poUpperMark()->thickness(), upperThickness + 9);
    window.setKeepNoiseWidth(true);
    Q_EMIT plot->PlotScrollMagnified(0.8);
    QCOMPARE(window.poUpperMark()->thickness(), upperThickness + 9);
    Q_EMIT plot->PlotScrollMagnified(0.0);
    QCOMPARE(window.poUpperMark()->thickness(), upperThickness);
}

void tst_ThresholdWindowWidget::noiseOrientation_data()
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

void tst_ThresholdWindowWidget::noiseOrientation()
{
    QFETCH(double, upperValue);
    QFETCH(bool, inverted);
    QFETCH(bool, upperOnly);
    QFETCH(bool, keepUpper);
    QFETCH(int, upper);
    QFETCH(int, lower);

    auto plot = makePlot();
    ThresholdWindowWidget window(plot.get(), 0);
    window.allowOverlapping(true);
    window.setLowerMark(30);
    window.setUpperMark(upperValue);
    const int lowerBefore = window.poLowerMark()->noiseOrientation();
    window.setNoiseOrientation(inverted, upperOnly, keepUpper);
    QCOMPARE(int(window.poUpperMark()->noiseOrientation()), upper);
    QCOMPARE(int(window.poLowerMark()->noiseOrientation()), lower == -1 ? lowerBefore : lower);
}

void tst_ThresholdWindowWidget::zonesNormalWindow()
{
    auto plot = makePlot();
    ThresholdWindowWidget window(plot.get(), 0);
    window.setLowerMark(30);
    window.setUpperMark(70);
    window.updateZoneGeometry();
    QVERIFY(!window.poUpperZone()->isVisible()); // zones are off until asked for

    window.setBothWindowZoneVisible(true);
    Utils::CustomWidget *upperZone = window.poUpperZone();
    Utils::CustomWidget *lowerZone = window.poLowerZone();
    QVERIFY(upperZone->isVisible() && lowerZone->isVisible());
    const double tolerance = unitsPerPixel(*plot);
    QCOMPARE(upperZone->upperValue(), 100.0);
    QVERIFY(std::abs(upperZone->lowerValue() - 70.0) <= tolerance);
    QVERIFY(std::abs(lowerZone->upperValue() - 30.0) <= tolerance);
    QCOMPARE(lowerZone->lowerValue(), 0.0);
    QCOMPARE(upperZone->geometry().top(), int(plot->transform(QwtPlot::yLeft, 100.0)));
    QVERIFY(std::abs(lowerZone->geometry().top() - plot->transform(QwtPlot::yLeft, 30.0)) <= 1);

    // In the picture: shaded above 70 and below 30, white inside the window.
    const QImage image = plot->canvas()->grab().toImage();
    plot->grab().save(QDir::temp().filePath(QStringLiteral("tst_thresholdwindow_normal.png")));
    const auto row = [&](double value) { return int(plot->transform(QwtPlot::yLeft, value)); };
    QVERIFY(shadedShare(image, row(85)) > 0.95);
    QVERIFY(shadedShare(image, row(15)) > 0.95);
    QVERIFY(shadedShare(image, row(52)) < 0.2);
    QVERIFY(shadedShare(image, row(48)) < 0.2);
}

void tst_ThresholdWindowWidget::zonesCrossedMarks()
{
    auto plot = makePlot();
    ThresholdWindowWidget window(plot.get(), 0);
    window.allowOverlapping(true);
    window.setBothWindowZoneVisible(true);
    window.setLowerMark(70);
    window.setUpperMark(30);
    Utils::CustomWidget *upperZone = window.poUpperZone();
    QVERIFY(upperZone->isVisible());
    QVERIFY(!window.poLowerZone()->isVisible());
    const double tolerance = unitsPerPixel(*plot);
    QVERIFY(std::abs(upperZone->lowerValue() - 30.0) <= tolerance);
    QVERIFY(std::abs(upperZone->upperValue() - 70.0) <= tolerance);

    const QImage image = plot->canvas()->grab().toImage();
    plot->grab().save(QDir::temp().filePath(QStringLiteral("tst_thresholdwindow_crossed.png")));
    const auto row = [&](double value) { return int(plot->transform(QwtPlot::yLeft, value)); };
    QVERIFY(shadedShare(image, row(52)) > 0.95);
    QVERIFY(shadedShare(image, row(48)) > 0.95);
    QVERIFY(shadedShare(image, row(85)) < 0.2);
    QVERIFY(shadedShare(image, row(15)) < 0.2);
}

void tst_ThresholdWindowWidget::zonesParkedAndOffline()
{
    auto plot = makePlot();
    ThresholdWindowWidget window(plot.get(), 0);
    window.setBothWindowZoneVisible(true);
    window.setLowerMark(30);
    window.setUpperMark(70);

    window.setOfflineThresholds(80, 10, 95, 5);
    QCOMPARE(window.poUpperZone()->lowerValue(), 80.0);
    QCOMPARE(window.poUpperZone()->upperValue(), 95.0);
    QCOMPARE(window.poLowerZone()->lowerValue(), 5.0);
    QCOMPARE(window.poLowerZone()->upperValue(), 10.0);

    window.setBothWindowZoneVisible(false);
    QCOMPARE(window.poLowerZone()->lowerValue(), 50000.0);
    QCOMPARE(window.poLowerZone()->upperValue(), 50001.0);
    QVERIFY(window.poLowerZone()->geometry().bottom() < 0); // far above the canvas
    window.updateZoneGeometry();
    QVERIFY(!window.poUpperZone()->isVisible());
    QVERIFY(!window.poLowerZone()->isVisible());

    // Offline zones only apply to a normal window.
    window.allowOverlapping(true);
    window.setUpperMark(20);
    window.setOfflineThresholds(1, 2, 3, 4);
    QCOMPARE(window.poUpperZone()->upperValue(), 95.0);
}

void tst_ThresholdWindowWidget::followsWheelZoomAndScale()
{
    auto plot = makePlot();
    ThresholdWindowWidget window(plot.get(), 0);
    window.setBothWindowZoneVisible(true);
    window.setLowerMark(30);
    window.setUpperMark(70);

    // A wheel step on the canvas zooms in (a plot at its largest span refuses to
    // zoom out): the marks keep their values at new pixels and the upper zone
    // reaches the new top of the scale.
    QWidget *canvas = plot->canvas();
    const QPoint centre = canvas->rect().center();
    QWheelEvent wheel(centre, canvas->mapToGlobal(centre), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(canvas, &wheel);
    const QwtScaleDiv &scale = plot->axisScaleDiv(QwtPlot::yLeft);
    QVERIFY2(scale.upperBound() - scale.lowerBound() < 99.0,
             qPrintable(QStringLiteral("no zoom: %1..%2").arg(scale.lowerBound()).arg(scale.upperBound())));
    QCOMPARE(window.poUpperZone()->upperValue(), std::max(scale.lowerBound(), scale.upperBound()));
    QCOMPARE(window.poUpperMark()->value(), 70.0);
    const int markRow = window.poUpperMark()->geometry().top() + window.poUpperMark()->height();
    QVERIFY(std::abs(markRow - plot->transform(QwtPlot::yLeft, 70.0)) <= 1);

    // A double click resets the zoom; the zones follow the reset.
    QTest::mouseDClick(canvas, Qt::LeftButton, Qt::NoModifier, centre);
    QCOMPARE(plot->axisScaleDiv(QwtPlot::yLeft).upperBound(), 100.0);
    QCOMPARE(window.poUpperZone()->upperValue(), 100.0);

    // A host rescale moves the marks and zones along as well.
    plot->setAxisScale(QwtPlot::yLeft, 0.0, 400.0);
    plot->replot();
    const int rescaledRow = window.poLowerMark()->geometry().top();
    QVERIFY(std::abs(rescaledRow - plot->transform(QwtPlot::yLeft, 30.0)) <= 1);
    QVERIFY(std::abs(window.poLowerZone()->geometry().top() - plot->transform(QwtPlot::yLeft, 30.0)) <= 2);
}

void tst_ThresholdWindowWidget::genericRangeAndReadOnly()
{
    auto plot = makePlot();
    Utils::ThresholdWindowWidgetGeneric window(plot.get(), 2);
    window.setLowerMark(30);
    window.setUpperMark(70);
    window.setThresholdsRange(90, 10);
    QCOMPARE(window.poUpperMark()->upper(), 90.0);
    QCOMPARE(window.poLowerMark()->lower(), 10.0);
    QCOMPARE(window.poUpperMark()->lower(), 30.5);

    drag(window.poUpperMark(), 0);
    QVERIFY(window.poUpperMark()->value() <= 90.0);

    window.setReadOnlyUpperLower(true);
    QSignalSpy spy(&window, &ThresholdWindowWidget::emitValueChanged);
    const double before = window.poLowerMark()->value();
    drag(window.poLowerMark(), plot->canvas()->height() - 5);
    QCOMPARE(window.poLowerMark()->value(), before);
    QCOMPARE(spy.count(), 0);

    Utils::ThresholdWindowWidgetGenericColor colour(plot.get(), 1);
    Utils::ThresholdWindowWidgetGenericNoTime noTime(plot.get(), 5);
    QCOMPARE(colour.getComponentIndex(), 1);
    QCOMPARE(noTime.getComponentIndex(), 5);
}

void tst_ThresholdWindowWidget::universalOperations()
{
    auto plot = makePlot();
    Utils::ThresholdWindowWidgetUniversal window(plot.get(), 0);
    window.setLowerMarkerValue(30, QStringLiteral("Off "));
    window.setUpperMarkerValue(52.5, QStringLiteral("On "));
    QCOMPARE(window.windowSize(), 22.5);
    QCOMPARE(window.getUpperMark(), window.poUpperMark());
    QCOMPARE(window.getLowerMark(), window.poLowerMark());

    auto *label = qobject_cast<QLabel *>(window.poWindowSizeLabel());
    QVERIFY(label);
    QVERIFY(!window.getWindowSizeVisible());
    QVERIFY(!label->isVisible());
    window.setWindowSizeVisible(true);
    QVERIFY(label->isVisible());
    QCOMPARE(label->text(), QStringLiteral("22.50"));
    window.formatText(true);
    QCOMPARE(label->text(), QStringLiteral("22.5"));
    // Between the marks, also after the canvas grew.
    plot->resize(700, 600);
    QCoreApplication::processEvents();
    const double middleRow = plot->transform(QwtPlot::yLeft, (30 + 52.5) / 2);
    QVERIFY2(std::abs(label->geometry().center().y() - middleRow) <= 2,
             qPrintable(QStringLiteral("%1 vs %2").arg(label->geometry().center().y()).arg(middleRow)));
    QCOMPARE(label->geometry().right(), plot->canvas()->width() - 5);
    window.showUpperMark(false);
    QVERIFY(!window.isUpperMarkVisible());
    QVERIFY(window.isLowerMarkVisible());
    QVERIFY(!label->isVisible());
    window.showUpperMark(true);
    QVERIFY(window.isUpperMarkVisible());

    // The named value gives the hint its text.
    QTest::mousePress(window.poUpperMark(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 1));
    QTest::mouseRelease(window.poUpperMark(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 1));
    QCOMPARE(window.poUpperMark()->hintText(), QStringLiteral("On 52.5"));

    window.vDisabledUpperMark(true);
    QVERIFY(!window.poUpperMark()->isEnabled());
    window.vDisabledUpperMark(false);
    QVERIFY(window.poUpperMark()->isEnabled());

    QVERIFY(!window.overlapping());
    window.allowOverlapping(true);
    QVERIFY(window.overlapping());
    window.vSetCustomThreshold(true);
    QVERIFY(window.bGtCustomThresholds());
    window.vSetRestrictionFactor(-1);
    QCOMPARE(window.poLowerMark()->restrictionCustom(), -1);
}

void tst_ThresholdWindowWidget::worksOnPlainQwtPlotAndOutlivesIt()
{
    auto plot = std::make_unique<QwtPlot>();
    plot->setAxisScale(QwtPlot::yLeft, 0.0, 10.0);
    plot->resize(300, 200);
    plot->show();
    plot->replot();
    auto window = std::make_unique<Utils::ThresholdWindowWidgetUniversal>(plot.get(), 0);
    window->setBothWindowZoneVisible(true);
    window->setLowerMark(2);
    window->setUpperMark(8);
    QCOMPARE(window->poUpperMark()->lower(), 2.5);

    plot.reset(); // the marks and zones go with the canvas
    QVERIFY(!window->poUpperMark());
    window->setUpperMark(5);
    window->updateZoneGeometry();
    QCOMPARE(window->windowSize(), 0.0);
    window.reset();

    ThresholdWindowWidget orphan(nullptr, 0);
    orphan.setNoise(1, 1);
    QVERIFY(!orphan.poUpperMark());
}

QTEST_MAIN(tst_ThresholdWindowWidget)
#include "tst_thresholdwindowwidget.moc"
