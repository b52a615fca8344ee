// SPDX-License-Identifier: LGPL-2.1-or-later
// Values that are not numbers, or far outside any sensor scale, fed through every
// public setter that takes a double on a plot or a threshold: nothing NaN may come
// out of a signal, and the sensor strings keep their sixteen hexadecimal digits.
// Run in the sanitizer build, an unguarded double-to-integer conversion fails here.
#include "plot/plot.h"
#include "plot/plotmarker.h"
#include "plot/plotmarkernotime.h"
#include "plot/plotmarkeruniversal.h"
#include "plottesthelpers.h"
#include "thresholds/thresholddatamanager.h"
#include "thresholds/thresholdmultimanager.h"
#include "thresholds/thresholdsdata.h"
#include "thresholds/thresholdsmultidata.h"
#include "thresholds/thresholdwindowwidgetgeneric.h"
#include "thresholds/thresholdwindowwidgetuniversal.h"

#include <QtTest>

#include <climits>
#include <cmath>
#include <limits>

using Utils::PlotMarker;

namespace {

// Sixteen hexadecimal digits; without an upper limit a word may outgrow its four.
bool isSensorString(const std::string &text, bool unlimited = false)
{
    const QRegularExpression form(unlimited ? QStringLiteral("^[0-9A-F]{16,32}$") : QStringLiteral("^[0-9A-F]{16}$"));
    return form.match(QString::fromStdString(text)).hasMatch();
}

// Every double argument of every emission the spy recorded.
bool anyNaN(const QSignalSpy &spy)
{
    for (const QList<QVariant> &arguments : spy) {
        for (const QVariant &argument : arguments) {
            if (argument.userType() == QMetaType::Double && std::isnan(argument.toDouble()))
                return true;
        }
    }
    return false;
}

// A full drag of a mark from its line to canvas row \a toRow.
void dragMark(PlotMarker *mark, int toRow)
{
    PlotTest::dragMark(mark, QPoint(20, 1), QPoint(mark->x() + 20, toRow + 1));
}

} // namespace

class tst_NonFinite : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> host;

private Q_SLOTS:
    void cleanup() { host.reset(); }

    void records_data() { values(); }

    void records()
    {
        QFETCH(double, value);

        Utils::ThresholdsData data;
        for (int c = Utils::ThresholdsData::Hue; c <= Utils::ThresholdsData::Extra3; ++c) {
            const auto component = Utils::ThresholdsData::Component(c);
            data.setLow(component, value, false, false);
            data.setHigh(component, -value, false, false);
            QVERIFY2(isSensorString(data.toHexString(component)), data.toHexString(component).c_str());
            data.setLow(component, -value, true, true);
            data.setHigh(component, value, true, true);
            QVERIFY2(isSensorString(data.toHexString(component), true), data.toHexString(component).c_str());
        }

        Utils::ThresholdsMultiData multi(1);
        multi.setLow(0, value);
        multi.setHigh(0, -value);
        multi.setMiddle(0, value);
        multi.setMiddle1(0, value);
        QVERIFY2(isSensorString(multi.toHexString(0), true), multi.toHexString(0).c_str());
        multi.setFromValues(0, value, -value, value, 0.0);
        QVERIFY2(isSensorString(multi.toHexString(0), true), multi.toHexString(0).c_str());

        Utils::ThresholdDataManager manager;
        manager.setOutputs(1);
        manager.setLow(1, Utils::ThresholdsData::Red, value, false, false);
        manager.setHigh(1, Utils::ThresholdsData::Red, -value, false, false);
        QVERIFY(isSensorString(manager.toHexString(1, Utils::ThresholdsData::Red)));

        Utils::ThresholdMultiManager multiManager(1);
        multiManager.setOutputs(1);
        multiManager.setLow(1, 0, value);
        multiManager.setHigh(1, 0, -value);
        multiManager.setMiddle(1, 0, value);
        QVERIFY(isSensorString(multiManager.toHexString(1, 0), true));
    }

    void windowWidgets_data() { values(); }

    void windowWidgets()
    {
        QFETCH(double, value);
        Utils::Plot *plot = PlotTest::showPlot(host);
        plot->setAxisScale(QwtPlot::yLeft, 0.0, 300.0);
        plot->replot();

        Utils::ThresholdWindowWidgetGeneric generic(plot, 0);
        Utils::ThresholdWindowWidgetUniversal universal(plot, 1);
        universal.setWindowSizeVisible(true);
        for (Utils::ThresholdWindowWidget *window :
            std::initializer_list<Utils::ThresholdWindowWidget *> { &generic, &universal }) {
            window->setLowerMark(100.0);
            window->setUpperMark(200.0);
            QSignalSpy spy(window, &Utils::ThresholdWindowWidget::emitValueChanged);
            QVERIFY(spy.isValid());

            window->setUpperMark(value);
            window->setLowerMark(value);
            window->setMinDifference(value);
            window->setNoise(int(std::isfinite(value) ? 5 : 0), -1);
            if (std::isnan(value)) {
                QCOMPARE(spy.count(), 0);
                QCOMPARE(window->poUpperMark()->value(), 200.0);
                QCOMPARE(window->poLowerMark()->value(), 100.0);
            }
            generic.setThresholdsRange(-value, value);
            universal.setUpperMarkerValue(value, QStringLiteral("top"));
            universal.setLowerMarkerValue(-value, QStringLiteral("bottom"));

            // Back to a sane window, then a user drag of each mark.
            window->setLowerMark(100.0);
            window->setUpperMark(200.0);
            dragMark(window->poUpperMark(), int(plot->transform(QwtPlot::yLeft, 250.0)));
            dragMark(window->poLowerMark(), int(plot->transform(QwtPlot::yLeft, 50.0)));
            QVERIFY(!anyNaN(spy));
        }
    }

    void markers_data() { values(); }

    void markers()
    {
        QFETCH(double, value);
        Utils::Plot *plot = PlotTest::showPlot(host);
        plot->setObjectName(QStringLiteral("0")); // the universal marker stands on yLeft
        plot->setAxisScale(QwtPlot::yLeft, 0.0, 300.0);
        plot->setAxisScale(QwtPlot::xBottom, 0.0, 1000.0);
        plot->replot();

        PlotMarker plain(plot, PlotMarker::ModeDefault);
        Utils::PlotMarkerUniversal universal(plot, PlotMarker::ModeDefault);
        Utils::PlotMarkerNoTime vertical(plot, PlotMarker::ModeDefault);
        vertical.setLeftBound(0, value);
        vertical.setRightBound(0, -value);
        vertical.setRange(1, value, -value);
        vertical.setLeftValue(value, QStringLiteral("left"));
        vertical.setRightValue(value, QStringLiteral("right"));
        universal.setRangeLeftToRight(value, -value);
        universal.setLeftBound(0, value);

        for (PlotMarker *marker : std::initializer_list<PlotMarker *> { &plain, &universal, &vertical }) {
            marker->setMoveable(true);
            marker->setValue(150.0);
            QSignalSpy spy(marker, &PlotMarker::valueChanged);
            marker->setValue(value);
            if (std::isnan(value))
                QCOMPARE(marker->value(), 150.0);
            marker->setUpperBound(value);
            marker->setLowerBound(-value);
            marker->setRange(value, -value);
            marker->setUpperValue(value, QStringLiteral("upper"));
            marker->setLowerValue(value, QStringLiteral("lower"));
            marker->setThickness(4000000000u);
            QVERIFY(marker->height() >= 4);
            marker->setThickness(7);
            (void)marker->nValue();
            (void)marker->valueText();
            marker->grab();
            marker->setRange(0.0, 300.0);
            marker->setValue(150.0);
            dragMark(marker, 40);
            marker->setValue(value);
            dragMark(marker, 200);
            QVERIFY(!anyNaN(spy));
        }
        PlotMarker orphan(nullptr);
        orphan.setValue(value);
        orphan.setThickness(3);
        QCOMPARE(orphan.plot(), nullptr);
    }

    void plotScale_data() { values(); }

    void plotScale()
    {
        QFETCH(double, value);
        Utils::Plot *plot = PlotTest::showPlot(host);
        PlotMarker marker(plot, PlotMarker::ModeDefault);
        marker.setMoveable(true);
        marker.setValue(150.0);
        QSignalSpy markerSpy(&marker, &PlotMarker::valueChanged);

        const PlotTest::Range before = PlotTest::range(*plot, QwtPlot::yLeft);
        for (const int axis : { int(QwtPlot::yLeft), int(QwtPlot::yRight), int(QwtPlot::xBottom) }) {
            plot->setAxisScale(axis, 0.0, value);
            plot->setAxisScale(axis, value, 0.0);
            plot->setAxisScale(axis, -value, value);
            plot->setAxisScale(axis, 0.0, 10.0, value);
            plot->replot();
            plot->grab();
        }
        if (!std::isfinite(value))
            QCOMPARE(PlotTest::range(*plot, QwtPlot::yLeft), before);
        plot->setYRightRange(value, -value);
        plot->vSetXAxis(value, -value);
        plot->setMinimumZoomLevel(value);
        plot->setSecondValue(value);
        plot->enableRightAxis(true);
        plot->replot();

        // The tools on top of whatever scale is left: wheel, centre zoom, pan, drag.
        const QPoint centre = plot->canvas()->rect().center();
        PlotTest::wheel(plot->canvas(), centre, 120);
        PlotTest::wheel(plot->canvas(), centre, -120);
        plot->zoomPlusXButtonClicked();
        plot->zoomResetButtonClicked();
        plot->zoomResetXButtonClicked();
        plot->zoomCenter();
        PlotTest::drag(plot->canvas(), Qt::RightButton, centre, centre + QPoint(0, 30));
        plot->replot();
        plot->grab();
        dragMark(&marker, 60);
        QVERIFY(!anyNaN(markerSpy));

        // A click picked on a time axis reports coordinates far beyond an int.
        plot->setAxisScale(QwtPlot::xBottom, 1.7e12, 1.7e12 + 60000.0);
        plot->vSetZoomUnderMouse(true);
        QSignalSpy clicked(plot, &Utils::Plot::getMouseCoordinate);
        QTest::mouseClick(plot->canvas(), Qt::LeftButton, Qt::NoModifier, centre);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.first().first().toPoint().x(), INT_MAX);
    }

private:
    static void values()
    {
        QTest::addColumn<double>("value");
        QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("+inf") << std::numeric_limits<double>::infinity();
        QTest::newRow("-inf") << -std::numeric_limits<double>::infinity();
        QTest::newRow("1e300") << 1e300;
        QTest::newRow("-1e300") << -1e300;
    }
};

QTEST_MAIN(tst_NonFinite)
#include "tst_nonfinite.moc"
