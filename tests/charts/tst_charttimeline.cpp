// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plottesthelpers.h"

#include <charts/charttimeline.h>
#include <charts/charttimelineindependent.h>
#include <charts/rangeselector.h>
#include <charts/valueovertime.h>
#include <plot/curvefactory.h>
#include <plot/customcurve.h>
#include <plot/plot.h>

#include <qwt_scale_div.h>

#include <QDateTime>
#include <QDir>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <cmath>
#include <memory>

using TestSupport::mouseMove;
using Utils::ChartTimeLine;
using Utils::ChartTimeLineIndependent;
using Utils::RangeSelector;

namespace {

// A fixed time (ms since the epoch) so that the tables can name times.
constexpr double T = 1.7e12;

//! Stands in for a plot's canvas: a fixed size, and it counts the mouse events the selector left to it.
class CanvasStub : public QWidget
{
public:
    int presses = 0;
    int moves = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
    void mouseMoveEvent(QMouseEvent *) override { ++moves; }
};

//! The overview's time axis as (lower, upper).
QPair<double, double> overview(const ChartTimeLine &timeLine)
{
    return PlotTest::range(*timeLine.poPlot(), QwtPlot::xBottom);
}

double timeAt(const ChartTimeLine &timeLine, int px)
{
    return timeLine.poPlot()->invTransform(QwtPlot::xBottom, px);
}

double pixelOf(const ChartTimeLine &timeLine, double time)
{
    return timeLine.poPlot()->transform(QwtPlot::xBottom, time);
}

//! The rectangle's edges stand over \a left and \a right, to a pixel.
bool covers(const ChartTimeLine &timeLine, double left, double right)
{
    const double msPerPixel
        = PlotTest::span(*timeLine.poPlot(), QwtPlot::xBottom) / timeLine.poPlot()->canvas()->width();
    return std::fabs(timeAt(timeLine, timeLine.poRangeSelector()->nLeft()) - left) <= msPerPixel
        && std::fabs(timeAt(timeLine, timeLine.poRangeSelector()->nRight()) - right) <= msPerPixel
        && timeLine.poRangeSelector()->height() == timeLine.poPlot()->canvas()->height();
}

QToolButton *button(const ChartTimeLine &timeLine, const char *name)
{
    return timeLine.findChild<QToolButton *>(QLatin1String(name));
}

} // namespace

class tst_ChartTimeLine : public QObject
{
    Q_OBJECT

    std::unique_ptr<CanvasStub> m_canvas;
    RangeSelector *m_selector = nullptr;
    std::unique_ptr<QWidget> m_host;

    //! The selector alone, spanning 100 .. 300 of a canvas of 400 x 60 pixels.
    void showSelector()
    {
        m_canvas.reset(new CanvasStub);
        m_canvas->setMouseTracking(true);
        m_canvas->setFixedSize(400, 60);
        m_canvas->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_canvas.get()));
        m_selector = new RangeSelector(m_canvas.get());
        QCOMPARE(m_selector->geometry(), m_canvas->rect()); // the canvas's geometry at first
        m_selector->show();
        m_selector->vSetRange(100.0, 300.0, false);
    }

    //! A shown time line; unless \a atT false, its overview shows T .. T + 60 s.
    ChartTimeLine *showTimeLine(bool independent, int width = 700, bool atT = true)
    {
        m_host.reset(new QWidget);
        ChartTimeLine *timeLine
            = independent ? new ChartTimeLineIndependent(m_host.get()) : new ChartTimeLine(m_host.get());
        if (!TestSupport::showIn(m_host.get(), timeLine, QSize(width, 90)))
            qWarning("window not exposed");
        if (atT)
            timeLine->vUpdateXAxisScale(T, T + 60000.0);
        return timeLine;
    }

private Q_SLOTS:
    void cleanup()
    {
        m_canvas.reset();
        m_host.reset();
    }

    void hitTest_data()
    {
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("selection");
        QTest::addColumn<Qt::CursorShape>("hover"); // held: the same, but a closed hand over the whole

        const int none = RangeSelector::SelectionNone;
        const int left = RangeSelector::SelectionLeft;
        const int right = RangeSelector::SelectionRight;
        const int whole = RangeSelector::SelectionWhole;
        QTest::newRow("6 px left of the left edge") << 94 << none << Qt::ArrowCursor;
        QTest::newRow("5 px left of the left edge") << 95 << left << Qt::SizeHorCursor;
        QTest::newRow("5 px right of the left edge") << 105 << left << Qt::SizeHorCursor;
        QTest::newRow("6 px inside from the left") << 106 << whole << Qt::OpenHandCursor;
        QTest::newRow("6 px inside from the right") << 294 << whole << Qt::OpenHandCursor;
        QTest::newRow("5 px left of the right edge") << 295 << right << Qt::SizeHorCursor;
        QTest::newRow("5 px right of the right edge") << 305 << right << Qt::SizeHorCursor;
        QTest::newRow("6 px right of the right edge") << 306 << none << Qt::ArrowCursor;
    }

    void hitTest()
    {
        QFETCH(int, x);
        QFETCH(int, selection);
        QFETCH(Qt::CursorShape, hover);

        showSelector();
        const bool picked = selection != RangeSelector::SelectionNone;
        // Start from another cursor, so that every row sees its cursor being set.
        mouseMove(m_canvas.get(), QPoint(picked ? 20 : 200, 30));
        mouseMove(m_canvas.get(), QPoint(x, 30));
        QCOMPARE(m_selector->cursor().shape(), hover);
        QCOMPARE(m_canvas->cursor().shape(), hover);
        QCOMPARE(m_canvas->moves, 2); // hovering is never consumed

        QSignalSpy range(m_selector, SIGNAL(vRange(double, double)));
        QTest::mousePress(m_canvas.get(), Qt::LeftButton, Qt::NoModifier, QPoint(x, 30));
        QCOMPARE(int(m_selector->eSelection()), selection);
        QCOMPARE(m_selector->bIsDragging(), picked);
        QCOMPARE(m_canvas->presses, picked ? 0 : 1);
        QCOMPARE(m_selector->cursor().shape(), hover == Qt::OpenHandCursor ? Qt::ClosedHandCursor : hover);

        // Without a drag, moving with the button held changes nothing and stays with the canvas.
        const QRect before = m_selector->geometry();
        mouseMove(m_canvas.get(), QPoint(x + 12, 30), Qt::LeftButton);
        QCOMPARE(m_selector->geometry() != before, picked);
        QCOMPARE(m_canvas->moves, picked ? 2 : 3);
        QTest::mouseRelease(m_canvas.get(), Qt::LeftButton, Qt::NoModifier, QPoint(x + 12, 30));
        QCOMPARE(range.count(), picked ? 1 : 0);
    }

    void setRange_data()
    {
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("right");
        QTest::addColumn<bool>("emitRange");
        QTest::addColumn<QRect>("geometry");

        const QRect unchanged(QPoint(100, 0), QPoint(300, 59));
        QTest::newRow("29.9 pixels refused") << 50.0 << 79.9 << true << unchanged;
        QTest::newRow("30.0 pixels accepted") << 50.0 << 80.0 << true << QRect(QPoint(50, 0), QPoint(80, 59));
        QTest::newRow("fractions truncated, given values emitted")
            << 20.7 << 250.9 << true << QRect(QPoint(20, 0), QPoint(250, 59));
        QTest::newRow("placed quietly") << 10.0 << 390.0 << false << QRect(QPoint(10, 0), QPoint(390, 59));
        QTest::newRow("not a number refused without a word") << qQNaN() << 200.0 << true << unchanged;
    }

    void setRange()
    {
        QFETCH(double, left);
        QFETCH(double, right);
        QFETCH(bool, emitRange);
        QFETCH(QRect, geometry);

        showSelector();
        QSignalSpy range(m_selector, SIGNAL(vRange(double, double)));
        if (right - left < 30.0)
            QTest::ignoreMessage(QtDebugMsg, "RangeSelector::vSetRange - range is greater than MIN_WIDTH");
        m_selector->vSetRange(left, right, emitRange);
        QCOMPARE(m_selector->geometry(), geometry);
        const bool emitted = emitRange && geometry != QRect(QPoint(100, 0), QPoint(300, 59));
        QCOMPARE(range.count(), emitted ? 1 : 0);
        if (emitted)
            QCOMPARE(range.at(0), (QVariantList { left, right }));
    }

    void drag_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<bool>("whileMoving");
        QTest::addColumn<int>("left");
        QTest::addColumn<int>("right");

        QTest::newRow("left edge past the right edge stops at R - 29") << 100 << 380 << false << 271 << 300;
        QTest::newRow("right edge past the left edge stops at L + 31") << 300 << 20 << false << 100 << 131;
        QTest::newRow("left edge past the canvas start stops at 1") << 100 << -40 << false << 1 << 300;
        QTest::newRow("right edge past the canvas end stops at its last pixel - 1")
            << 300 << 460 << false << 100 << 398;
        QTest::newRow("whole rectangle past the canvas end, flush") << 200 << 900 << false << 199 << 399;
        QTest::newRow("whole rectangle past the canvas start, flush") << 200 << -500 << false << 0 << 200;
        QTest::newRow("whole rectangle, emitting while moving") << 200 << 240 << true << 140 << 340;
        QTest::newRow("left edge, emitting while moving") << 100 << 60 << true << 60 << 300;
    }

    void drag()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(bool, whileMoving);
        QFETCH(int, left);
        QFETCH(int, right);

        showSelector();
        m_selector->vUpdateWhileMoving(whileMoving);
        QSignalSpy range(m_selector, SIGNAL(vRange(double, double)));
        PlotTest::drag(m_canvas.get(), Qt::LeftButton, QPoint(from, 30), QPoint(to, 30)); // four moves
        QCOMPARE(qMakePair(m_selector->nLeft(), m_selector->nRight()), qMakePair(left, right));
        QCOMPARE(range.count(), whileMoving ? 5 : 1);
        QCOMPARE(range.last(), (QVariantList { double(left), double(right) }));
    }

    void keys_data()
    {
        QTest::addColumn<int>("start"); // left edge of a 201-pixel rectangle on the 400-pixel canvas
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("shift");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<int>("left"); // -1: nothing moved, nothing emitted

        QTest::newRow("right arrow: one pixel") << 100 << int(Qt::Key_Right) << false << true << 101;
        QTest::newRow("left arrow with Shift: ten") << 100 << int(Qt::Key_Left) << true << true << 90;
        QTest::newRow("Shift+right near the end: flush") << 195 << int(Qt::Key_Right) << true << true << 199;
        QTest::newRow("left arrow at the start: nothing") << 0 << int(Qt::Key_Left) << false << true << -1;
        QTest::newRow("page down: its width, flush") << 100 << int(Qt::Key_PageDown) << false << true << 199;
        QTest::newRow("page up: its width") << 150 << int(Qt::Key_PageUp) << false << true << 0;
        QTest::newRow("Home") << 150 << int(Qt::Key_Home) << false << true << 0;
        QTest::newRow("End") << 20 << int(Qt::Key_End) << false << true << 199;
        QTest::newRow("another key: nothing") << 100 << int(Qt::Key_A) << false << true << -1;
        QTest::newRow("disabled: nothing") << 100 << int(Qt::Key_Right) << false << false << -1;
    }

    void keys()
    {
        QFETCH(int, start);
        QFETCH(int, key);
        QFETCH(bool, shift);
        QFETCH(bool, enabled);
        QFETCH(int, left);

        showSelector();
        QCOMPARE(m_selector->focusPolicy(), Qt::StrongFocus);
        m_selector->vSetRange(start, start + 200, false);
        m_selector->vSetEnabled(enabled);
        QSignalSpy range(m_selector, SIGNAL(vRange(double, double)));
        QTest::keyClick(m_selector, Qt::Key(key), shift ? Qt::ShiftModifier : Qt::NoModifier);
        const int expected = left < 0 ? start : left;
        QCOMPARE(m_selector->geometry(), QRect(QPoint(expected, 0), QPoint(expected + 200, 59)));
        QCOMPARE(range.count(), left < 0 ? 0 : 1);
        if (left >= 0)
            QCOMPARE(range.at(0), (QVariantList { double(left), double(left + 200) }));
    }

    void followsCanvasResize()
    {
        showSelector();
        m_selector->vSetRange(200.0, 380.0, false);
        QSignalSpy range(m_selector, SIGNAL(vRange(double, double)));
        m_canvas->setFixedSize(250, 80);
        // Pixel edges kept, moved back inside with the same width, the new height.
        QCOMPARE(m_selector->geometry(), QRect(QPoint(69, 0), QPoint(249, 79)));
        m_canvas->setFixedSize(120, 40);
        QCOMPARE(m_selector->geometry(), QRect(QPoint(0, 0), QPoint(119, 39)));
        QCOMPARE(range.count(), 0);
    }

    void disabledLeavesMouseToCanvas()
    {
        showSelector();
        QSignalSpy doubleClicked(m_selector, SIGNAL(rangeSelectorDoubleClicked()));
        m_selector->vSetEnabled(false);
        QTest::mousePress(m_canvas.get(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 30));
        QVERIFY(!m_selector->bIsDragging());
        QCOMPARE(m_canvas->presses, 1);
        QTest::mouseRelease(m_canvas.get(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 30));
        QTest::mouseDClick(m_selector, Qt::LeftButton, Qt::NoModifier, QPoint(100, 30));
        QCOMPARE(doubleClicked.count(), 0);
    }

    void oneMinuteTenSeconds()
    {
        // New: the canvas gets its size only after the time line's own resize.
        ChartTimeLine *timeLine = showTimeLine(false, 700, false);
        QCOMPARE(overview(*timeLine).second - overview(*timeLine).first, 60000.0);
        QCOMPARE(timeLine->selectionLeft(), overview(*timeLine).first);
        QCOMPARE(timeLine->selectionRight(), overview(*timeLine).first + 10000.0);
        QVERIFY(covers(*timeLine, timeLine->selectionLeft(), timeLine->selectionRight()));

        timeLine->vUpdateXAxisScale(T, T + 600000.0);
        QStringList order;
        connect(timeLine, &ChartTimeLine::vRangeChanged, this,
            [&order](const double &l, const double &r) { order << QStringLiteral("range %1").arg(r - l); });
        connect(timeLine, &ChartTimeLine::vScaleUpdated, this, [&order]() { order << QStringLiteral("scale"); });
        const double before = double(QDateTime::currentMSecsSinceEpoch());
        QTest::mouseClick(button(*timeLine, "buttonZoomReset"), Qt::LeftButton);
        const double after = double(QDateTime::currentMSecsSinceEpoch());

        QCOMPARE(order, QStringList() << QStringLiteral("range 10000") << QStringLiteral("scale"));
        const double left = timeLine->selectionLeft();
        QVERIFY(left >= before && left <= after);
        QCOMPARE(overview(*timeLine), qMakePair(left, left + 60000.0));
        QCOMPARE(timeLine->selectionRight(), left + 10000.0);
        QVERIFY(covers(*timeLine, left, left + 10000.0));
        QVERIFY(!timeLine->bAtEnd());
    }

    void buttons_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QByteArray>("enabler");
        QTest::addColumn<QString>("tip");
        QTest::addColumn<QString>("germanTip");

        const auto row
            = [](const char *name, const char *signal, const char *enabler, const char *tip, const char *de) {
                  QTest::newRow(name) << QByteArray(name) << QByteArray(signal) << QByteArray(enabler)
                                      << QString::fromUtf8(tip) << QString::fromUtf8(de);
              };
        row("buttonFirst", SIGNAL(vActionFirst()), "vEnableFirst", "Go to the first samples", "Zu den ersten Werten");
        row("buttonPrevious", SIGNAL(vActionPrev()), "vEnablePrev", "Previous page", "Vorherige Seite");
        row("buttonNext", SIGNAL(vActionNext()), "vEnableNext", "Next page", "Nächste Seite");
        row("buttonLast", SIGNAL(vActionLast()), "vEnableLast", "Go to the newest samples", "Zu den neuesten Werten");
        row("buttonZoomOut", SIGNAL(vRangeChanged(double, double)), "", "Zoom Out", "Verkleinern");
        row("buttonZoomReset", SIGNAL(vScaleUpdated()), "", "Reset Zoom", "Zoom zurücksetzen");
        row("buttonZoomIn", SIGNAL(vRangeChanged(double, double)), "", "Zoom In", "Vergrößern");
    }

    void buttons()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, signal);
        QFETCH(QByteArray, enabler);
        QFETCH(QString, tip);
        QFETCH(QString, germanTip);

        ChartTimeLine *timeLine = showTimeLine(false);
        timeLine->setSelectorRange(T + 2000.0, T + 8000.0, false);
        QToolButton *b = button(*timeLine, name.constData());
        QVERIFY(b);
        QVERIFY(!b->icon().pixmap(16, 16).isNull()); // the icon is in the resources
        QCOMPARE(b->toolTip(), tip);

        QSignalSpy spy(timeLine, signal.constData());
        QTest::mouseClick(b, Qt::LeftButton);
        QCOMPARE(spy.count(), 1);
        if (!enabler.isEmpty()) {
            QVERIFY(QMetaObject::invokeMethod(timeLine, enabler.constData(), Q_ARG(bool, false)));
            QTest::mouseClick(b, Qt::LeftButton);
            QCOMPARE(spy.count(), 1);
            QVERIFY(QMetaObject::invokeMethod(timeLine, enabler.constData(), Q_ARG(bool, true)));
            QTest::mouseClick(b, Qt::LeftButton);
            QCOMPARE(spy.count(), 2);
        }
        {
            TestSupport::GermanTranslation translation;
            QVERIFY(translation.isLoaded());
            QTRY_COMPARE(b->toolTip(), germanTip);
        }
        QTRY_COMPARE(b->toolTip(), tip);
    }

    void setSelectorRange_data()
    {
        QTest::addColumn<double>("low");
        QTest::addColumn<double>("high");
        QTest::addColumn<bool>("emitRange");
        QTest::addColumn<double>("overviewLow");
        QTest::addColumn<double>("overviewHigh");
        QTest::addColumn<int>("rangeSignals");
        QTest::addColumn<bool>("atEnd");

        // The overview shows T .. T + 60 s, the selection T + 20 s .. T + 40 s.
        const auto row = [](const char *name, double low, double high, bool emitRange, double overviewLow,
                             double overviewHigh, int rangeSignals, bool atEnd) {
            QTest::newRow(name) << T + low << T + high << emitRange << T + overviewLow << T + overviewHigh
                                << rangeSignals << atEnd;
        };
        row("inside the selection: overview kept", 25000.0, 35000.0, true, 0.0, 60000.0, 1, false);
        row("inside, quietly", 25000.0, 35000.0, false, 0.0, 60000.0, 0, false);
        row("the selection itself", 20000.0, 40000.0, true, 0.0, 60000.0, 1, false);
        // Anywhere inside the overview the overview stays; beyond it, the overview
        // widens just enough to hold the window.
        row("left of the selection, inside the overview", 10000.0, 30000.0, true, 0.0, 60000.0, 1, false);
        row("ending beyond the overview", 30000.0, 90000.0, true, 0.0, 90000.0, 2, true);
        row("beyond, quietly: only the new scale speaks", -5000.0, 5000.0, false, -5000.0, 60000.0, 1, false);
        // Up to 2 ms short of the overview's end the window is at the end.
        row("at the overview's end", 50000.0, 60000.0, true, 0.0, 60000.0, 1, true);
        row("1.9 ms before the end", 50000.0, 59998.1, true, 0.0, 60000.0, 1, true);
        row("2.1 ms before the end", 50000.0, 59997.9, true, 0.0, 60000.0, 1, false);
    }

    void setSelectorRange()
    {
        QFETCH(double, low);
        QFETCH(double, high);
        QFETCH(bool, emitRange);
        QFETCH(double, overviewLow);
        QFETCH(double, overviewHigh);

        ChartTimeLine *timeLine = showTimeLine(false);
        timeLine->poRangeSelector()->vSetRange(pixelOf(*timeLine, T + 20000.0), pixelOf(*timeLine, T + 40000.0), true);
        QSignalSpy range(timeLine, SIGNAL(vRangeChanged(double, double)));
        QSignalSpy scale(timeLine, SIGNAL(vScaleUpdated()));
        timeLine->setSelectorRange(low, high, emitRange);
        QCOMPARE(overview(*timeLine), qMakePair(overviewLow, overviewHigh));
        QCOMPARE(scale.count(), overviewLow != T || overviewHigh != T + 60000.0 ? 1 : 0);
        QTEST(range.count(), "rangeSignals");
        if (emitRange)
            QVERIFY(std::fabs(range.last().at(0).toDouble() - low) + std::fabs(range.last().at(1).toDouble() - high)
                < 1e-3);
        // Told or not, the time line knows the new window.
        QVERIFY(std::fabs(timeLine->selectionLeft() - low) + std::fabs(timeLine->selectionRight() - high) < 1e-3);
        QVERIFY(covers(*timeLine, low, high));
        QTEST(timeLine->bAtEnd(), "atEnd");
    }

    void userDragAndDoubleClick()
    {
        ChartTimeLine *timeLine = showTimeLine(false);
        RangeSelector *selector = timeLine->poRangeSelector();
        QWidget *canvas = timeLine->poPlot()->canvas();
        selector->vSetRange(100.0, 200.0, false);
        QSignalSpy range(timeLine, SIGNAL(vRangeChanged(double, double)));
        QSignalSpy jump(timeLine, SIGNAL(jumpToPlottingArea()));

        // Events go to the rectangle itself, as under a real mouse, and reach the
        // canvas's filter from there. Positions are canvas x, mapped at each event.
        const auto at = [selector, canvas](int x) { return selector->mapFrom(canvas, QPoint(x, 10)); };
        QTest::mousePress(selector, Qt::LeftButton, Qt::NoModifier, at(150));
        mouseMove(selector, at(170), Qt::LeftButton);
        mouseMove(selector, at(190), Qt::LeftButton);
        QCOMPARE(range.count(), 0);
        QTest::mouseRelease(selector, Qt::LeftButton, Qt::NoModifier, at(190));
        QCOMPARE(selector->geometry().left(), 140);
        QCOMPARE(range.count(), 1);
        QCOMPARE(range.at(0), (QVariantList { timeAt(*timeLine, 140), timeAt(*timeLine, 240) }));
        QCOMPARE(canvas->cursor().shape(), Qt::OpenHandCursor); // hovering the rectangle again

        QTest::mouseDClick(selector, Qt::LeftButton, Qt::NoModifier, at(190));
        QCOMPARE(jump.count(), 1);
    }

    void resizeKeepsTimeWindow()
    {
        ChartTimeLine *timeLine = showTimeLine(false, 600);
        timeLine->poRangeSelector()->vSetRange(pixelOf(*timeLine, T + 5000.0), pixelOf(*timeLine, T + 15000.0), true);
        const int leftBefore = timeLine->poRangeSelector()->nLeft();
        const int majorTicks = timeLine->poPlot()->axisMaxMajor(QwtPlot::xBottom);
        QSignalSpy range(timeLine, SIGNAL(vRangeChanged(double, double)));

        m_host->resize(900, 120);
        QTRY_VERIFY(timeLine->poPlot()->canvas()->width() > 600);
        QVERIFY(timeLine->poRangeSelector()->nLeft() > leftBefore); // the pixels moved, the times stayed
        QVERIFY(covers(*timeLine, T + 5000.0, T + 15000.0));
        QCOMPARE(timeLine->selectionLeft(), T + 5000.0);
        QCOMPARE(range.count(), 0);
        // Qwt does not keep labels apart: the wider strip gets more major ticks, never crowded ones.
        QVERIFY(timeLine->poPlot()->axisMaxMajor(QwtPlot::xBottom) > majorTicks);
    }

    void zoom_data()
    {
        QTest::addColumn<bool>("independent");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<double>("factor");

        QTest::newRow("time line: zoom in narrows the selection") << false << QByteArray("buttonZoomIn") << 0.8;
        QTest::newRow("time line: zoom out widens the selection") << false << QByteArray("buttonZoomOut") << 1.2;
        QTest::newRow("independent: zoom in rescales the overview") << true << QByteArray("buttonZoomIn") << 0.8;
        QTest::newRow("independent: zoom out rescales the overview") << true << QByteArray("buttonZoomOut") << 1.2;
    }

    void zoom()
    {
        QFETCH(bool, independent);
        QFETCH(QByteArray, name);
        QFETCH(double, factor);

        ChartTimeLine *timeLine = showTimeLine(independent);
        RangeSelector *selector = timeLine->poRangeSelector();
        selector->vSetRange(100.0, 200.0, true);
        const QRect canvasBefore = timeLine->poPlot()->canvas()->geometry();
        const double span = PlotTest::span(*timeLine->poPlot(), QwtPlot::xBottom);
        const double centre = timeAt(*timeLine, 150);
        const double window = timeLine->selectionRight() - timeLine->selectionLeft();
        QSignalSpy range(timeLine, SIGNAL(vRangeChanged(double, double)));

        QTest::mouseClick(button(*timeLine, name.constData()), Qt::LeftButton);
        QCOMPARE(range.count(), 1);
        QCOMPARE(range.at(0).at(1).toDouble(), timeLine->selectionRight());
        // Both keep the time under the selection's centre and scale its window.
        QVERIFY(std::fabs(timeLine->selectionRight() - timeLine->selectionLeft() - window * factor) < 1e-2);
        QVERIFY(std::fabs((timeLine->selectionLeft() + timeLine->selectionRight()) / 2.0 - centre) < 1e-2);
        const double newSpan = PlotTest::span(*timeLine->poPlot(), QwtPlot::xBottom);
        if (independent) {
            // By the overview, under a selection that keeps its pixels: the
            // labels change, their room does not, so the canvas stays in place.
            QVERIFY(std::fabs(newSpan - span * factor) < 1e-2);
            QCOMPARE(qMakePair(selector->geometry().left(), selector->geometry().right()), qMakePair(100, 200));
            QCOMPARE(timeLine->poPlot()->canvas()->geometry(), canvasBefore);
        } else {
            // By the selection, over an overview that stays.
            QCOMPARE(newSpan, span);
            QVERIFY(std::abs(selector->nRight() - selector->nLeft() - qRound(100 * factor)) <= 1);
        }
    }

    void independentOperations()
    {
        auto *timeLine = static_cast<ChartTimeLineIndependent *>(showTimeLine(true));
        RangeSelector *selector = timeLine->poRangeSelector();
        QSignalSpy range(timeLine, SIGNAL(vRangeChanged(double, double)));

        timeLine->vSetRange(100.0, 300.0, false);
        QCOMPARE(range.count(), 0);
        QCOMPARE(timeLine->s64LeftRange(), qint64(timeAt(*timeLine, 100)));
        QCOMPARE(timeLine->s64RightRange(), qint64(timeAt(*timeLine, 300)));

        timeLine->vSetNewWithRangeSelector(51);
        QCOMPARE(selector->geometry().right(), 150);
        QCOMPARE(range.count(), 1);
        QCOMPARE(range.at(0).at(1).toDouble(), timeAt(*timeLine, 150));
        timeLine->vSetNewWithRangeSelector(100000); // never past the canvas's right edge
        QCOMPARE(selector->geometry().right(), timeLine->poPlot()->canvas()->width() - 1);
    }

    void independentYScale()
    {
        auto *timeLine = static_cast<ChartTimeLineIndependent *>(showTimeLine(true));
        Utils::ValueOverTime series;
        for (int i = 0; i < 100; ++i)
            series.vAppend(i == 40 ? -1500.0 : 10.0 + (i % 41), T + 100.0 * i);
        timeLine->poCurveFactory()->poAttachData(&series);
        const auto yRange = [timeLine]() { return PlotTest::range(*timeLine->poPlot(), QwtPlot::yLeft); };

        timeLine->vSetYAxisScale(-5.0, 500.0);
        QCOMPARE(yRange(), qMakePair(-5.0, 500.0));
        timeLine->updateYscaleRange(true); // the break sentinel does not count
        QCOMPARE(yRange(), qMakePair(10.0, 50.0));
        timeLine->vSetYAxisScale(0.0, 100.0); // kept for later while fitted
        QCOMPARE(yRange(), qMakePair(10.0, 50.0));
        timeLine->updateYscaleRange(false);
        QCOMPARE(yRange(), qMakePair(0.0, 100.0));
    }

    void grabWithCurve()
    {
        ChartTimeLine *timeLine = showTimeLine(false, 760);
        Utils::ValueOverTime series;
        for (int i = 0; i < 4000; ++i)
            series.vAppend(120.0 + 60.0 * std::sin(i / 300.0) + 10.0 * std::sin(i / 7.0), T + 15.0 * i);
        Utils::CustomCurve *curve = timeLine->poCurveFactory()->poAttachData(&series);
        curve->setPen(QPen(QColor(188, 0, 0), 1));
        curve->setBrush(QColor(188, 0, 0, 20));
        curve->setBaseline(-35000.0);
        timeLine->vSetYAxisScale(0.0, 300.0);
        timeLine->poRangeSelector()->vSetRange(pixelOf(*timeLine, T + 20000.0), pixelOf(*timeLine, T + 35000.0), true);
        timeLine->vTimelineUpdate();

        const QImage image = timeLine->grab().toImage();
        QVERIFY(image.save(QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("charttimeline.png"))));
        // Above the curve the selection tints white and grid alike blue; nothing else there is blue.
        const RangeSelector *selector = timeLine->poRangeSelector();
        QWidget *canvas = timeLine->poPlot()->canvas();
        const auto bluish = [&](int from, int to) {
            int count = 0;
            for (int x = from; x <= to; ++x) {
                const QColor c = image.pixelColor(canvas->mapTo(timeLine, QPoint(x, canvas->height() / 5)));
                count += c.blue() > c.red() + 20 ? 1 : 0;
            }
            return count;
        };
        QCOMPARE(bluish(selector->nLeft() + 1, selector->nRight() - 1), selector->nRight() - selector->nLeft() - 1);
        QCOMPARE(bluish(4, selector->nLeft() - 2) + bluish(selector->nRight() + 2, canvas->width() - 4), 0);
    }
};

QTEST_MAIN(tst_ChartTimeLine)
#include "tst_charttimeline.moc"
