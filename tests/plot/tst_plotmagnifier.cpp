// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plottesthelpers.h"

#include <plot/plotmagnifier.h>

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>

#include <QSignalSpy>

#include <memory>

using namespace PlotTest;
using Utils::PlotMagnifier;

class tst_PlotMagnifier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_plot.reset(new QwtPlot);
        m_plot->setAxisScale(QwtPlot::xBottom, 0.0, 1000.0);
        QVERIFY(TestSupport::show(m_plot.get(), QSize(600, 300)));
        m_plot->replot();
        m_magnifier = new PlotMagnifier(static_cast<QwtPlotCanvas *>(m_plot->canvas()));
        // Only the time axis, as on a time line's overview plot.
        for (int axis = 0; axis < QwtPlot::axisCnt; ++axis)
            m_magnifier->setAxisEnabled(axis, axis == QwtPlot::xBottom);
    }

    void cleanup()
    {
        m_plot.reset();
    }

    void keepsTimeUnderMouse()
    {
        QVERIFY(m_plot->canvas()->hasMouseTracking()); // the time under the mouse needs plain moves
        const int x = 150;
        moveTo(x);
        const double under = m_magnifier->cursorValue();
        QVERIFY(near(under, m_plot->invTransform(QwtPlot::xBottom, x)));
        QSignalSpy updated(m_magnifier, SIGNAL(vScaleUpdated()));

        wheel(m_plot->canvas(), QPoint(x, 50), -120); // zoom in, factor 0.9
        QCOMPARE(updated.count(), 1);
        QVERIFY(near(lower(*m_plot, QwtPlot::xBottom), under - under * 0.9));
        QVERIFY(near(upper(*m_plot, QwtPlot::xBottom), under + (1000.0 - under) * 0.9));

        m_magnifier->rescale(-0.5); // the sign is ignored
        QCOMPARE(updated.count(), 2);
        QVERIFY(near(upper(*m_plot, QwtPlot::xBottom) - lower(*m_plot, QwtPlot::xBottom), 1000.0 * 0.9 * 0.5));
    }

    void limits_data()
    {
        QTest::addColumn<double>("minSpan");
        QTest::addColumn<double>("maxSpan");
        QTest::addColumn<double>("limitLow");
        QTest::addColumn<double>("limitHigh");
        QTest::addColumn<double>("factor");
        QTest::addColumn<bool>("accepted");

        QTest::newRow("zoom out past the maximum span") << 0.0 << 1100.0 << 0.0 << 0.0 << 1.2 << false;
        QTest::newRow("zoom out within the maximum span") << 0.0 << 1300.0 << 0.0 << 0.0 << 1.2 << true;
        QTest::newRow("zoom out leaving the bound limits") << 0.0 << 3.1536e10 << -50.0 << 1050.0 << 1.2 << false;
        QTest::newRow("zoom out inside the bound limits") << 0.0 << 3.1536e10 << -500.0 << 1500.0 << 1.2 << true;
        QTest::newRow("zoom in below the minimum span") << 900.0 << 3.1536e10 << 0.0 << 0.0 << 0.8 << false;
        QTest::newRow("zoom in to the minimum span") << 800.0 << 3.1536e10 << 0.0 << 0.0 << 0.8 << true;
        QTest::newRow("factor 1 does nothing") << 0.0 << 3.1536e10 << 0.0 << 0.0 << 1.0 << false;
        QTest::newRow("factor 0 does nothing") << 0.0 << 3.1536e10 << 0.0 << 0.0 << 0.0 << false;
        QTest::newRow("factor -1 does nothing") << 0.0 << 3.1536e10 << 0.0 << 0.0 << -1.0 << false;
    }

    void limits()
    {
        QFETCH(double, minSpan);
        QFETCH(double, maxSpan);
        QFETCH(double, limitLow);
        QFETCH(double, limitHigh);
        QFETCH(double, factor);
        QFETCH(bool, accepted);

        QCOMPARE(m_magnifier->maximumSpan(), 3.1536e10); // a year by default
        m_magnifier->vSetMinLimit(minSpan);
        m_magnifier->setMaximumSpan(maxSpan);
        m_magnifier->vSetMaxLimit(limitLow, limitHigh);
        moveTo(300);
        QSignalSpy updated(m_magnifier, SIGNAL(vScaleUpdated()));
        m_magnifier->rescale(factor);
        QCOMPARE(updated.count(), accepted ? 1 : 0);
        const double span = upper(*m_plot, QwtPlot::xBottom) - lower(*m_plot, QwtPlot::xBottom);
        QVERIFY(near(span, accepted ? 1000.0 * factor : 1000.0, 1e-6));
    }

    void rezetZoom()
    {
        QVERIFY(!m_magnifier->rezetZoom()); // nothing zoomed yet
        moveTo(150); // time 250 under the mouse, distances 250 and 750
        const double first = m_magnifier->cursorValue();
        m_magnifier->rescale(0.5);
        m_magnifier->rescale(0.5);
        moveTo(300);
        const double now = m_magnifier->cursorValue();
        QVERIFY(now != first);
        QSignalSpy updated(m_magnifier, SIGNAL(vScaleUpdated()));
        QVERIFY(m_magnifier->rezetZoom());
        QCOMPARE(updated.count(), 1);
        // The first distances, around the present cursor (intended).
        QVERIFY(near(lower(*m_plot, QwtPlot::xBottom), now - first));
        QVERIFY(near(upper(*m_plot, QwtPlot::xBottom), now + (1000.0 - first)));
    }

    void incorrectLimitRefused()
    {
        m_magnifier->vSetMaxLimit(10.0, 20.0);
        QTest::ignoreMessage(QtDebugMsg, "PlotMagnifier::vSetMaxLimit - Incorrect assignament");
        m_magnifier->vSetMaxLimit(30.0, 20.0);
        QCOMPARE(qMakePair(m_magnifier->lowerLimit(), m_magnifier->upperLimit()), qMakePair(10.0, 20.0));
    }

private:
    void moveTo(int x)
    {
        TestSupport::mouseMove(m_plot->canvas(), QPoint(x, 50));
    }

    std::unique_ptr<QwtPlot> m_plot;
    PlotMagnifier *m_magnifier = nullptr;
};

QTEST_MAIN(tst_PlotMagnifier)
#include "tst_plotmagnifier.moc"
