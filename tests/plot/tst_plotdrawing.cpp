// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plottesthelpers.h"

#include <plot/plotcommon_p.h>
#include <plot/plotmarker.h>
#include <plot/plotmarkernotime.h>
#include <plot/timescaledraw.h>

#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>

#include <QtTest>

#include <cmath>

using namespace PlotTest;

namespace {

const double kStart = 1700000000000.0;

//! The whole plot as the screen shows it, with the grid and the markers blitted or painted directly.
QImage drawn(Utils::Plot *plot, bool blitted)
{
    Utils::PlotCommon::setPaintCachesEnabled(blitted);
    plot->replot(); // the canvas keeps its last drawing until a replot
    const QImage image = plot->grab().toImage();
    Utils::PlotCommon::setPaintCachesEnabled(true);
    return image;
}

enum class Change {
    None,
    AxisMoved, // by a fraction of a pixel
    Resized,
    Hovered, // the marker's pen grows
    Thicker,
    NoBand,
    GridPens, // wide, translucent and dashed pens, minor lines on y too
};

} // namespace

Q_DECLARE_METATYPE(Change)

// The grid and the markers blit images of what they once painted; what the
// screen shows must be the very pixels that painting gives.
class tst_PlotDrawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { useAxisType(-1); }

    void blittedAsPainted_data()
    {
        QTest::addColumn<int>("axisType");
        QTest::addColumn<double>("span"); // of the time axis, ms
        QTest::addColumn<Change>("change"); // made after a first blitted frame

        QTest::newRow("time, seconds") << 0 << 50000.0 << Change::None;
        QTest::newRow("date and time, minutes") << 1 << 1.8e6 << Change::None;
        QTest::newRow("date only") << 1 << 3.0e8 << Change::None;
        QTest::newRow("axis moved by a fraction of a pixel") << 0 << 50000.0 << Change::AxisMoved;
        QTest::newRow("date and time, axis moved") << 1 << 50000.0 << Change::AxisMoved;
        QTest::newRow("resized") << 0 << 50000.0 << Change::Resized;
        QTest::newRow("hovered marker: wider pen") << 0 << 50000.0 << Change::Hovered;
        QTest::newRow("thicker band") << 0 << 50000.0 << Change::Thicker;
        QTest::newRow("line only") << 0 << 50000.0 << Change::NoBand;
        QTest::newRow("other grid pens") << 1 << 1.8e6 << Change::GridPens;
    }

    void blittedAsPainted()
    {
        QFETCH(int, axisType);
        QFETCH(double, span);
        QFETCH(Change, change);

        useAxisType(axisType);
        std::unique_ptr<QWidget> host;
        Utils::Plot *plot = showPlot(host);
        QVector<double> x, y;
        for (int i = 0; i <= 400; ++i) {
            x << kStart + span * i / 400.0;
            y << 150.0 + 100.0 * std::sin(i / 15.0);
        }
        auto *curve = new QwtPlotCurve;
        curve->setSamples(x, y);
        curve->attach(plot);
        setView(*plot, QwtPlot::xBottom, kStart, kStart + span);

        // Bands above and below their lines, on odd and even rows, and a vertical marker.
        auto *above = new Utils::PlotMarker(plot);
        above->setThickness(7);
        above->setValue(113.0);
        auto *below = new Utils::PlotMarker(plot);
        below->setNoiseOrientation(Utils::PlotMarker::OrientationBandBelow);
        below->setThickness(12);
        below->setValue(226.0);
        below->setMoveable(true);
        auto *vertical = new Utils::PlotMarkerNoTime(plot);
        vertical->setThickness(unsigned(span / 20.0));
        vertical->setValue(kStart + span / 3.0);

        QCOMPARE(drawn(plot, true), drawn(plot, false));

        switch (change) {
        case Change::None:
            return;
        case Change::AxisMoved:
            setView(*plot, QwtPlot::xBottom, kStart + span / 1234.5, kStart + span + span / 1234.5);
            break;
        case Change::Resized:
            host->resize(517, 333);
            QCoreApplication::processEvents();
            break;
        case Change::Hovered: {
            QEvent enter(QEvent::Enter);
            QApplication::sendEvent(below, &enter);
            QCOMPARE(below->pen().width(), 3);
            break;
        }
        case Change::Thicker:
            above->setThickness(25);
            break;
        case Change::NoBand:
            above->setNoiseOrientation(Utils::PlotMarker::OrientationLineOnly);
            break;
        case Change::GridPens: {
            const QwtPlotItemList grids = plot->itemList(QwtPlotItem::Rtti_PlotGrid);
            QVERIFY(!grids.isEmpty());
            auto *grid = static_cast<QwtPlotGrid *>(grids.first());
            grid->setMajorPen(QPen(QColor(0, 90, 0, 120), 2, Qt::DashLine));
            grid->setMinorPen(QPen(QColor(90, 0, 90, 200), 0, Qt::DashDotLine));
            grid->enableYMin(true);
            break;
        }
        }
        QCOMPARE(drawn(plot, true), drawn(plot, false));
    }
};

QTEST_MAIN(tst_PlotDrawing)
#include "tst_plotdrawing.moc"
