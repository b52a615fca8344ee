// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plottesthelpers.h"

#include <plot/plot.h>
#include <plot/plotmarker.h>
#include <plot/plotmarkernotime.h>
#include <plot/plotmarkeruniversal.h>

#include <QSignalSpy>

#include <memory>

using namespace PlotTest;
using Utils::PlotMarker;

namespace {

void hover(QWidget *widget, bool enter)
{
    QEvent event(enter ? QEvent::Enter : QEvent::Leave);
    QApplication::sendEvent(widget, &event);
}

} // namespace

class tst_PlotMarker : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> m_host;
    Utils::Plot *m_plot = nullptr;

private Q_SLOTS:
    void init()
    {
        m_plot = showPlot(m_host);
    }

    void cleanup()
    {
        m_host.reset();
        m_plot = nullptr;
    }

    void construction()
    {
        m_plot->setAxisScale(QwtPlot::yLeft, 20.0, 220.0, 0.0);
        PlotMarker marker(m_plot, PlotMarker::ModeThreshold);
        QCOMPARE(marker.parentWidget(), m_plot->canvas());
        QVERIFY(!marker.isVisible());
        QCOMPARE(qMakePair(marker.lower(), marker.upper()), qMakePair(20.0, 220.0));
        QCOMPARE(marker.pen().color(), QColor(200, 0, 0, 50));
        QCOMPARE(marker.pen().style(), Qt::DashDotDotLine);
        QCOMPARE(marker.pen().width(), 2);
        marker.setMoveable(true);
        QCOMPARE(marker.cursor().shape(), Qt::SizeVerCursor);
        marker.setMoveable(false);
        QCOMPARE(marker.cursor().shape(), m_plot->canvas()->cursor().shape());
    }

    void setValueVisibility_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("disabled");
        QTest::addColumn<bool>("visible");
        QTest::newRow("zero stays hidden") << 0.0 << false << false;
        QTest::newRow("negative stays hidden") << -12.0 << false << false;
        QTest::newRow("positive shows") << 40.0 << false << true;
        QTest::newRow("positive on a disabled marker") << 40.0 << true << false;
    }

    void setValueVisibility()
    {
        QFETCH(double, value);
        QFETCH(bool, disabled);

        m_plot->setEnableNegativeValues(true);
        m_plot->setAxisScale(QwtPlot::yLeft, -100.0, 300.0, 0.0);
        m_plot->replot();
        PlotMarker marker(m_plot);
        if (disabled)
            marker.enablePlotMarker(false);
        QSignalSpy changed(&marker, SIGNAL(valueChanged(const double &)));
        marker.setValue(value);
        QTEST(marker.isPlotMarkerVisible(), "visible");
        QCOMPARE(changed.count(), 0); // values set by code are not reported
        // Placed in any case.
        QCOMPARE(marker.geometry().bottom() + 1, int(m_plot->transform(QwtPlot::yLeft, value)));
        if (disabled) {
            marker.enablePlotMarker(true);
            QVERIFY(marker.isVisible());
        }
    }

    void placement_data()
    {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<unsigned int>("thickness");
        QTest::newRow("band above, thin") << 0 << 0u;
        QTest::newRow("band above, 20 units") << 0 << 20u;
        QTest::newRow("band below, 20 units") << 1 << 20u;
        QTest::newRow("line only") << 2 << 20u;
    }

    void placement()
    {
        QFETCH(int, orientation);
        QFETCH(unsigned int, thickness);

        PlotMarker marker(m_plot);
        marker.setNoiseOrientation(orientation);
        marker.setThickness(thickness);
        marker.setValue(150.0);
        const int y = int(m_plot->transform(QwtPlot::yLeft, 150.0));
        const int pixels = int(m_plot->transform(QwtPlot::yLeft, 0.0) - m_plot->transform(QwtPlot::yLeft, thickness));
        QCOMPARE(marker.height(), pixels + 4);
        QCOMPARE(marker.y(), orientation == 0 ? y - pixels - 4 : y);
        QCOMPARE(marker.width(), m_plot->width());

        // The saved pixel thickness comes back after a zoom reset.
        marker.vSetTicknessHeight();
        marker.setThickness(0);
        QCOMPARE(marker.pixelThickness(), 0);
        marker.vAfterZoomReset();
        QCOMPARE(marker.pixelThickness(), pixels);
    }

    void followsZoomAndResize()
    {
        PlotMarker marker(m_plot);
        marker.setThickness(10);
        marker.setValue(100.0);
        const int heightBefore = marker.height();

        // The value axis is zoomed by the wheel: the marker keeps its value, not its pixel.
        wheel(m_plot->canvas(), QPoint(100, 100), -120);
        QVERIFY(upper(*m_plot, QwtPlot::yLeft) < 300.0);
        QCOMPARE(marker.value(), 100.0);
        QCOMPARE(marker.y(), int(m_plot->transform(QwtPlot::yLeft, 100.0)) - marker.pixelThickness() - 4);
        QVERIFY(marker.height() > heightBefore); // 10 units are more pixels now

        m_host->resize(800, 600);
        QTRY_COMPARE(marker.width(), m_plot->width());
        QTRY_COMPARE(marker.y(), int(m_plot->transform(QwtPlot::yLeft, 100.0)) - marker.pixelThickness() - 4);
    }

    void dragLimits_data()
    {
        QTest::addColumn<int>("restriction");
        QTest::addColumn<bool>("upwards");
        QTest::newRow("above the upper bound") << -1 << true;
        QTest::newRow("below the lower bound, default restriction") << -1 << false;
        QTest::newRow("below the lower bound, restriction 0") << 0 << false;
    }

    void dragLimits()
    {
        QFETCH(int, restriction);
        QFETCH(bool, upwards);

        PlotMarker marker(m_plot);
        marker.setRange(100.0, 200.0);
        marker.vSetRestrictionCustom(restriction);
        marker.setMoveable(true);
        marker.setValue(150.0);
        QSignalSpy changed(&marker, SIGNAL(valueChanged(const double &)));
        const int h = marker.height();
        const int pUp = int(m_plot->transform(QwtPlot::yLeft, 200.0));
        const int pLow = int(m_plot->transform(QwtPlot::yLeft, 100.0));
        const QPoint grip(30, h / 2);
        const int x = marker.x() + grip.x();

        const int farAway = upwards ? 0 : m_plot->canvas()->height() - 1;
        dragMark(&marker, grip, QPoint(x, farAway + h / 2), 2);

        int expectedTop = 0;
        if (upwards)
            expectedTop = pUp + 1; // one pixel below the bound's pixel
        else if (restriction <= -1)
            expectedTop = int((pLow - 1) * 1.05 - h); // about 5 % past the bound, intended
        else
            expectedTop = pLow - h; // exactly at the bound
        QCOMPARE(marker.y(), expectedTop);
        QCOMPARE(changed.count(), 1); // at the end of the drag only
        QCOMPARE(changed.first().first().toDouble(), marker.value());
        QVERIFY(near(marker.value(), m_plot->invTransform(QwtPlot::yLeft, expectedTop + h)));
    }

    void dragTo_data()
    {
        QTest::addColumn<bool>("moveable");
        QTest::addColumn<bool>("clampNegative");
        QTest::addColumn<double>("target");
        QTest::addColumn<double>("expected");
        QTest::newRow("within the bounds") << true << false << 120.0 << 120.0;
        QTest::newRow("not moveable: ignored") << false << false << 120.0 << 150.0;
        QTest::newRow("negative values pass by default") << true << false << -40.0 << -40.0;
        QTest::newRow("clamp flag set: stops at 0") << true << true << -40.0 << 0.0;
    }

    void dragTo()
    {
        QFETCH(bool, moveable);
        QFETCH(bool, clampNegative);
        QFETCH(double, target);
        QFETCH(double, expected);
        m_plot->setEnableNegativeValues(true);
        m_plot->setAxisScale(QwtPlot::yLeft, -100.0, 200.0, 0.0);
        m_plot->replot();
        PlotMarker marker(m_plot);
        marker.setMoveable(moveable);
        marker.vAllowedNegativeValMarkers(clampNegative);
        marker.setValue(150.0);
        // Held at its line (the bottom row), the marker's value follows the pointer.
        const int row = int(m_plot->transform(QwtPlot::yLeft, target));
        dragMark(&marker, QPoint(30, marker.height() - 1), QPoint(60, row - 1), 1);
        const double tolerance = expected == target ? 1.0 : 1e-9; // one pixel, or exact where held
        QVERIFY2(std::fabs(marker.value() - expected) < tolerance, qPrintable(QString::number(marker.value())));
        QVERIFY(!marker.isDragging());
    }

    void hoverWidths_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("entered");
        QTest::addColumn<int>("left");
        // trunc(w x 1.5), then trunc(w x 0.6666666666666666) on the decimal factor.
        QTest::newRow("2 -> 3 -> 1, thinner after the first hover") << 2 << 3 << 1;
        QTest::newRow("3 -> 4 -> 2") << 3 << 4 << 2;
        QTest::newRow("1 -> 1 -> 0") << 1 << 1 << 0;
    }

    void hoverWidths()
    {
        QFETCH(int, width);

        PlotMarker marker(m_plot);
        QPen pen = marker.pen();
        pen.setWidth(width);
        marker.vSetPen(pen);
        marker.setValue(100.0);

        // Not moveable: the width stays.
        hover(&marker, true);
        hover(&marker, false);
        QCOMPARE(marker.pen().width(), width);

        marker.setMoveable(true);
        hover(&marker, true);
        QTEST(marker.pen().width(), "entered");
        hover(&marker, false);
        QTEST(marker.pen().width(), "left");
    }

    void hintText()
    {
        PlotMarker marker(m_plot);
        marker.setLowerValue(50.0, QStringLiteral("Low: "));
        marker.setUpperValue(250.0, QStringLiteral("High: "));
        marker.setValue(50.0);
        hover(&marker, true);
        QCOMPARE(marker.hintText(), QStringLiteral("Low: 50.00"));
        marker.setText(true);
        marker.setValue(250.0);
        QTest::mousePress(&marker, Qt::LeftButton, Qt::NoModifier, QPoint(5, 1));
        QCOMPARE(marker.hintText(), QStringLiteral("High: 250.0"));
        QTest::mouseRelease(&marker, Qt::LeftButton, Qt::NoModifier, QPoint(5, 1));
        // Elsewhere the last text chosen stays.
        marker.setValue(123.456);
        hover(&marker, true);
        QCOMPARE(marker.hintText(), QStringLiteral("High: 123.5"));
    }

    void chartItemInterface()
    {
        PlotMarker a(m_plot);
        PlotMarker b(m_plot);
        a.setValue(123.4567);
        b.setValue(7.0);
        QCOMPARE(a.valueText(), std::string("123.457"));
        QCOMPARE(a.nValue(), 123);
        a.setValueText("5"); // a marker is never set from text
        QCOMPARE(a.value(), 123.4567);
        QVERIFY(a > b && b < a && a != b && !(a == b));
        b.setValue(123.4567);
        QVERIFY(a == b);
    }

    void keys_data()
    {
        QTest::addColumn<bool>("vertical");
        QTest::addColumn<bool>("moveable");
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("shift");
        QTest::addColumn<double>("start");
        QTest::addColumn<int>("pixels"); // the move on the value axis; 0: nothing moved or reported

        QTest::newRow("up: one pixel") << false << true << int(Qt::Key_Up) << false << 150.0 << -1;
        QTest::newRow("down with Shift: ten") << false << true << int(Qt::Key_Down) << true << 150.0 << 10;
        QTest::newRow("left on a horizontal marker: nothing") << false << true << int(Qt::Key_Left) << false << 150.0 << 0;
        QTest::newRow("not moveable: nothing") << false << false << int(Qt::Key_Up) << false << 150.0 << 0;
        QTest::newRow("at the upper bound: nothing") << false << true << int(Qt::Key_Up) << false << 200.0 << 0;
        QTest::newRow("vertical, right: one pixel") << true << true << int(Qt::Key_Right) << false << 500.0 << 1;
        QTest::newRow("vertical, up: nothing") << true << true << int(Qt::Key_Up) << false << 500.0 << 0;
    }

    void keys()
    {
        QFETCH(bool, vertical);
        QFETCH(bool, moveable);
        QFETCH(int, key);
        QFETCH(bool, shift);
        QFETCH(double, start);
        QFETCH(int, pixels);

        setView(*m_plot, QwtPlot::xBottom, 0.0, 1000.0);
        std::unique_ptr<PlotMarker> marker(vertical ? new Utils::PlotMarkerNoTime(m_plot) : new PlotMarker(m_plot));
        if (!vertical)
            marker->setRange(100.0, 200.0);
        marker->setMoveable(moveable);
        marker->setValue(start);
        QCOMPARE(marker->focusPolicy(), Qt::StrongFocus);
        const QPoint before = marker->pos();
        QSignalSpy changed(marker.get(), SIGNAL(valueChanged(const double &)));
        QTest::keyClick(marker.get(), Qt::Key(key), shift ? Qt::ShiftModifier : Qt::NoModifier);
        QCOMPARE(marker->pos(), before + (vertical ? QPoint(pixels, 0) : QPoint(0, pixels)));
        QCOMPARE(changed.count(), pixels == 0 ? 0 : 1);
        if (pixels == 0) {
            QCOMPARE(marker->value(), start);
            return;
        }
        // The value the line's new pixel shows, as after a drag.
        const double expected = vertical ? m_plot->invTransform(QwtPlot::xBottom, marker->x())
                                         : m_plot->invTransform(QwtPlot::yLeft, marker->y() + marker->height());
        QVERIFY2(near(marker->value(), expected), qPrintable(QString::number(marker->value())));
        QCOMPARE(changed.first().first().toDouble(), marker->value());
    }

    void noTimeMarker()
    {
        setView(*m_plot, QwtPlot::xBottom, 0.0, 1000.0);
        Utils::PlotMarkerNoTime marker(m_plot);
        QCOMPARE(marker.pen().color(), QColor(0, 0, 255, 40));
        QCOMPARE(marker.pen().width(), 4);
        QCOMPARE(qMakePair(marker.lower(1), marker.upper(1)), qMakePair(0.0, 1000.0));
        QCOMPARE(marker.lower(2), -1.0); // out of range
        marker.setRange(1, 200.0, 800.0);
        marker.setLeftBound(0, 100.0);
        marker.setMoveable(true);
        marker.setValue(500.0);
        QVERIFY(marker.isVisible());
        QCOMPARE(marker.x(), int(m_plot->transform(QwtPlot::xBottom, 500.0)));
        QCOMPARE(marker.height(), m_plot->height());

        QSignalSpy changed(&marker, SIGNAL(valueChanged(const double &)));
        const QPoint grip(1, 50);
        dragMark(&marker, grip, QPoint(m_plot->canvas()->width() - 2, 50), 2);
        QCOMPARE(changed.count(), 3); // every step and the end
        // Held 5 pixels inside the nearest right bound.
        QCOMPARE(marker.x(), int(m_plot->transform(QwtPlot::xBottom, 800.0)) - 5);
        QVERIFY(marker.value() < 800.0 && marker.value() > 780.0);

        dragMark(&marker, grip, QPoint(0, 50), 1);
        QCOMPARE(marker.x(), int(m_plot->transform(QwtPlot::xBottom, 200.0)) + 5);

        marker.setLeftValue(marker.value(), QStringLiteral("Left: "));
        hover(&marker, true);
        QVERIFY(marker.hintText().startsWith(QStringLiteral("Left: ")));
    }

    void universalMarker_data()
    {
        QTest::addColumn<QString>("plotName");
        QTest::addColumn<bool>("vertical");
        QTest::newRow("\"0\": value axis") << QStringLiteral("0") << false;
        QTest::newRow("\"1\": time axis") << QStringLiteral("1") << true;
    }

    void universalMarker()
    {
        QFETCH(QString, plotName);
        QFETCH(bool, vertical);
        m_plot->setObjectName(plotName);
        setView(*m_plot, QwtPlot::xBottom, 0.0, 1000.0);
        Utils::PlotMarkerUniversal marker(m_plot);
        QCOMPARE(marker.isVertical(), vertical);
        marker.setValue(100.0);
        if (!vertical) {
            QCOMPARE(marker.width(), m_plot->width());
            QCOMPARE(marker.y() + marker.height(), int(m_plot->transform(QwtPlot::yLeft, 100.0)));
            return;
        }
        QCOMPARE(marker.x(), int(m_plot->transform(QwtPlot::xBottom, 100.0)));
        marker.setRangeLeftToRight(50.0, 400.0);
        marker.setMoveable(true);
        dragMark(&marker, QPoint(1, 40), QPoint(m_plot->canvas()->width() - 1, 40), 1);
        QCOMPARE(marker.x(), int(m_plot->transform(QwtPlot::xBottom, 400.0)));
        QVERIFY(near(marker.value(), m_plot->invTransform(QwtPlot::xBottom, marker.x())));

        marker.setNoiseOrientation(PlotMarker::OrientationBandCentered);
        marker.setThickness(100);
        QCOMPARE(marker.x() + marker.width() / 2, int(m_plot->transform(QwtPlot::xBottom, marker.value())));
    }
};

QTEST_MAIN(tst_PlotMarker)
#include "tst_plotmarker.moc"
