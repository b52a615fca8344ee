// SPDX-License-Identifier: LGPL-2.1-or-later
#include "mouseevents.h"

#include <charts/rangeselector.h>

#include <QSignalSpy>
#include <QTest>

#include <memory>

using TestSupport::mouseMove;
using Utils::RangeSelector;

namespace {

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

} // namespace

class tst_ChartTimeLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    // On a canvas of 400 x 60 pixels.
    void hitTest_data();
    void hitTest();
    void setRange_data();
    void setRange();
    void drag_data();
    void drag();
    void followsCanvasResize();
    void disabledLeavesMouseToCanvas();


private:
    void showSelector();

    std::unique_ptr<CanvasStub> m_canvas;
    RangeSelector *m_selector = nullptr;
};

void tst_ChartTimeLine::cleanup()
{
    m_canvas.reset();
}

void tst_ChartTimeLine::showSelector()
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

void tst_ChartTimeLine::hitTest_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("selection");
    QTest::addColumn<int>("hoverCursor");
    QTest::addColumn<int>("pressCursor");

    const int none = RangeSelector::SelectionNone;
    const int left = RangeSelector::SelectionLeft;
    const int right = RangeSelector::SelectionRight;
    const int whole = RangeSelector::SelectionWhole;
    // The rectangle spans 100 .. 300.
    QTest::newRow("6 px left of the left edge") << 94 << none << int(Qt::ArrowCursor) << int(Qt::ArrowCursor);
    QTest::newRow("5 px left of the left edge") << 95 << left << int(Qt::SizeHorCursor) << int(Qt::SizeHorCursor);
    QTest::newRow("5 px right of the left edge") << 105 << left << int(Qt::SizeHorCursor) << int(Qt::SizeHorCursor);
    QTest::newRow("6 px inside from the left") << 106 << whole << int(Qt::OpenHandCursor) << int(Qt::ClosedHandCursor);
    QTest::newRow("6 px inside from the right") << 294 << whole << int(Qt::OpenHandCursor) << int(Qt::ClosedHandCursor);
    QTest::newRow("5 px left of the right edge") << 295 << right << int(Qt::SizeHorCursor) << int(Qt::SizeHorCursor);
    QTest::newRow("5 px right of the right edge") << 305 << right << int(Qt::SizeHorCursor) << int(Qt::SizeHorCursor);
    QTest::newRow("6 px right of the right edge") << 306 << none << int(Qt::ArrowCursor) << int(Qt::ArrowCursor);
}

void tst_ChartTimeLine::hitTest()
{
    QFETCH(int, x);
    QFETCH(int, selection);
    QFETCH(int, hoverCursor);
    QFETCH(int, pressCursor);

    showSelector();
    const bool picked = selection != RangeSelector::SelectionNone;
    // Start from another cursor, so that every row sees its cursor being set.
    mouseMove(m_canvas.get(), QPoint(picked ? 20 : 200, 30));
    mouseMove(m_canvas.get(), QPoint(x, 30));
    QCOMPARE(int(m_selector->cursor().shape()), hoverCursor);
    QCOMPARE(int(m_canvas->cursor().shape()), hoverCursor);
    QCOMPARE(m_canvas->moves, 2); // hovering is never consumed

    QSignalSpy range(m_selector, SIGNAL(vRange(double, double)));
    QTest::mousePress(m_canvas.get(), Qt::LeftButton, Qt::NoModifier, QPoint(x, 30));
    QCOMPARE(int(m_selector->eSelection()), selection);
    QCOMPARE(m_selector->bIsDragging(), picked);
    QCOMPARE(m_canvas->presses, picked ? 0 : 1);
    QCOMPARE(int(m_selector->cursor().shape()), pressCursor);

    // Without a drag, moving with the button held changes nothing and stays with the canvas.
    const QRect before = m_selector->geometry();
    mouseMove(m_canvas.get(), QPoint(x + 12, 30), Qt::LeftButton);
    QCOMPARE(m_selector->geometry() != before, picked);
    QCOMPARE(m_canvas->moves, picked ? 2 : 3);
    QTest::mouseRelease(m_canvas.get(), Qt::LeftButton, Qt::NoModifier, QPoint(x + 12, 30));
    QCOMPARE(range.count(), picked ? 1 : 0);
}

void tst_ChartTimeLine::setRange_data()
{
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("right");
    QTest::addColumn<bool>("emitRange");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<bool>("refusedNarrow");

    const QRect unchanged(QPoint(100, 0), QPoint(300, 59));
    QTest::newRow("29.9 pixels refused") << 50.0 << 79.9 << true << unchanged << true;
    QTest::newRow("30.0 pixels accepted") << 50.0 << 80.0 << true << QRect(QPoint(50, 0), QPoint(80, 59)) << false;
    QTest::newRow("fractions truncated, given values emitted")
        << 20.7 << 250.9 << true << QRect(QPoint(20, 0), QPoint(250, 59)) << false;
    QTest::newRow("placed quietly") << 10.0 << 390.0 << false << QRect(QPoint(10, 0), QPoint(390, 59)) << false;
    QTest::newRow("not a number refused without a word") << qQNaN() << 200.0 << true << unchanged << false;
}

void tst_ChartTimeLine::setRange()
{
    QFETCH(double, left);
    QFETCH(double, right);
    QFETCH(bool, emitRange);
    QFETCH(QRect, geometry);
    QFETCH(bool, refusedNarrow);

    showSelector();
    QSignalSpy range(m_selector, SIGNAL(vRange(double, double)));
    if (refusedNarrow)
        QTest::ignoreMessage(QtDebugMsg, "RangeSelector::vSetRange - range is greater than MIN_WIDTH");
    m_selector->vSetRange(left, right, emitRange);
    QCOMPARE(m_selector->geometry(), geometry);
    const bool emitted = emitRange && geometry != QRect(QPoint(100, 0), QPoint(300, 59));
    QCOMPARE(range.count(), emitted ? 1 : 0);
    if (emitted) {
        QCOMPARE(range.at(0).at(0).toDouble(), left);
        QCOMPARE(range.at(0).at(1).toDouble(), right);
    }
}

void tst_ChartTimeLine::drag_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("whileMoving");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");

    // The rectangle spans 100 .. 300 of a canvas 0 .. 399.
    QTest::newRow("left edge past the right edge stops at R - 29") << 100 << 380 << false << 271 << 300;
    QTest::newRow("right edge past the left edge stops at L + 31") << 300 << 20 << false << 100 << 131;
    QTest::newRow("left edge past the canvas start stops at 1") << 100 << -40 << false << 1 << 300;
    QTest::newRow("right edge past the canvas end stops at its last pixel - 1") << 300 << 460 << false << 100 << 398;
    QTest::newRow("whole rectangle past the canvas end, flush") << 200 << 900 << false << 199 << 399;
    QTest::newRow("whole rectangle past the canvas start, flush") << 200 << -500 << false << 0 << 200;
    QTest::newRow("whole rectangle, emitting while moving") << 200 << 240 << true << 140 << 340;
    QTest::newRow("left edge, emitting while moving") << 100 << 60 << true << 60 << 300;
}

void tst_ChartTimeLine::drag()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(bool, whileMoving);
    QFETCH(int, left);
    QFETCH(int, right);

    showSelector();
    m_selector->vUpdateWhileMoving(whileMoving);
    QSignalSpy range(m_selector, SIGNAL(vRange(double, double)));
    const int moves = 4;
    QTest::mousePress(m_canvas.get(), Qt::LeftButton, Qt::NoModifier, QPoint(from, 30));
    for (int step = 1; step <= moves; ++step)
        mouseMove(m_canvas.get(), QPoint(from + (to - from) * step / moves, 30), Qt::LeftButton);
    QCOMPARE(range.count(), whileMoving ? moves : 0);
    QTest::mouseRelease(m_canvas.get(), Qt::LeftButton, Qt::NoModifier, QPoint(to, 30));

    QCOMPARE(m_selector->nLeft(), left);
    QCOMPARE(m_selector->nRight(), right);
    QCOMPARE(range.count(), whileMoving ? moves + 1 : 1);
    QCOMPARE(range.last().at(0).toDouble(), double(left));
    QCOMPARE(range.last().at(1).toDouble(), double(right));
}

void tst_ChartTimeLine::followsCanvasResize()
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

void tst_ChartTimeLine::disabledLeavesMouseToCanvas()
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

QTEST_MAIN(tst_ChartTimeLine)
#include "tst_charttimeline.moc"
