// SPDX-License-Identifier: LGPL-2.1-or-later
#include "modaldialogdriver.h"
#include "plottesthelpers.h"

#include <plot/plot.h>
#include <plot/timepicker.h>
#include <plot/timescaledraw.h>
#include <plot/wplotmagnifier.h>
#include <plot/wplotpanner.h>
#include <plot/wselectionzoomer.h>

#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_scale_widget.h>

#include <QDateTime>
#include <QFile>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>

#include <limits>
#include <memory>

using namespace PlotTest;
using Utils::Plot;

struct WheelCase
{
    double limitLow, limitHigh, viewLow, viewHigh;
    double minimumLevel; // < 0: keep the default
    double rightSpan;    // > 0: show yRight with this span
    int delta;
    bool accepted;
    double expectedSpan; // upper - lower, so negative on an inverted axis
};
Q_DECLARE_METATYPE(WheelCase)

namespace {

int readAxisType()
{
    return QSettings(settingsFile(), QSettings::IniFormat).value(QStringLiteral("plot/xPlotAxisType"), -1).toInt();
}

void rightClick(QWidget *widget)
{
    QTest::mousePress(widget, Qt::RightButton, Qt::NoModifier, widget->rect().center());
}

//! What a popup menu offered and had checked.
struct MenuSeen
{
    QStringList offered, checked;
    bool shown = false;
};

//! Right-clicks the time axis and picks \a pick from its menu (an unknown entry dismisses it).
MenuSeen pickFromAxisMenu(Plot *plot, const QString &pick)
{
    auto seen = std::make_shared<MenuSeen>();
    auto shown = TestSupport::whenModal<QMenu>(
        [seen, pick](QMenu *menu) {
            QAction *target = nullptr;
            for (QAction *action : menu->actions()) {
                seen->offered << action->text();
                if (action->isChecked())
                    seen->checked << action->text();
                if (action->text() == pick)
                    target = action;
            }
            if (target)
                QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(target).center());
            else
                menu->close();
        },
        3000, &QApplication::activePopupWidget);
    rightClick(plot->axisWidget(QwtPlot::xBottom));
    seen->shown = QTest::qWaitFor([shown]() { return *shown; }, 3000);
    return *seen;
}

} // namespace

class tst_Plot : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> m_host;
    Plot *m_plot = nullptr;

private Q_SLOTS:
    void init()
    {
        // Tests write the settings file next to the test binary: start and end clean.
        useAxisType(-1);
        m_plot = showPlot(m_host);
    }

    void cleanup()
    {
        m_host.reset();
        m_plot = nullptr;
        QFile::remove(settingsFile());
    }

    void construction()
    {
        Plot &plot = *m_plot;
        QCOMPARE(plot.canvas()->palette().brush(QPalette::Window).color(), QColor(Qt::white));
        QVERIFY(!plot.getZoomResetClick());
        const QwtPlotItemList grids = plot.itemList(QwtPlotItem::Rtti_PlotGrid);
        QCOMPARE(grids.size(), 1);
        const auto *grid = static_cast<const QwtPlotGrid *>(grids.first());
        QCOMPARE(grid->majorPen().style(), Qt::DotLine);
        QCOMPARE(grid->majorPen().color(), QColor(Qt::gray));
        QVERIFY(grid->xEnabled() && grid->yEnabled() && grid->xMinEnabled() && !grid->yMinEnabled());
    }

    void withoutTools()
    {
        Plot *plot = showPlot(m_host, true);
        QVERIFY(!plot->poZoomer() && !plot->poPanner() && !plot->poValueMagnifier() && !plot->poTimeMagnifier());
        QVERIFY(plot->poTimeScaleDraw() && plot->poScaleEngine());
        // Operations on missing tools are harmless.
        plot->zoomPlusButtonClicked();
        plot->zoomResetButtonClicked();
        plot->zoomResetXButtonClicked();
        plot->setEnabled(false);
        QCOMPARE(plot->zoomReset(5.0), QRectF());
        wheel(plot->canvas(), QPoint(50, 50), -120);
    }

    void wheelZoom_data()
    {
        QTest::addColumn<WheelCase>("c");
        QTest::newRow("zoom in") << WheelCase{0, 300, 0, 100, -1, 0, -120, true, 90};
        QTest::newRow("zoom in refused at the default level 2") << WheelCase{0, 300, 10, 12, -1, 0, -120, false, 2};
        QTest::newRow("zoom in just above the default level") << WheelCase{0, 300, 10, 14, -1, 0, -120, true, 3.6};
        QTest::newRow("level 3 means 4: refused at span 4") << WheelCase{0, 300, 10, 14, 3, 0, -120, false, 4};
        QTest::newRow("zoom out refused at the maximum range") << WheelCase{0, 300, 0, 300, -1, 0, 120, false, 300};
        QTest::newRow("zoom out below the maximum range") << WheelCase{0, 300, 0, 90, -1, 0, 120, true, 100};
        // With yRight shown on an inverted left axis the limit is a fixed 20 on the right span.
        QTest::newRow("inverted, right span 20: refused") << WheelCase{0, 300, 100, 0, -1, 20, 120, false, -100};
        QTest::newRow("inverted, right span 10: zooms out") << WheelCase{0, 300, 100, 0, -1, 10, 120, true, -100 / 0.9};
    }

    void wheelZoom()
    {
        QFETCH(WheelCase, c);
        if (c.rightSpan > 0.0) {
            m_plot->enableRightAxis(true);
            m_plot->setAxisScale(QwtPlot::yRight, 0.0, c.rightSpan, 0.0);
        }
        m_plot->setAxisScale(QwtPlot::yLeft, c.limitLow, c.limitHigh, 0.0);
        setView(*m_plot, QwtPlot::yLeft, c.viewLow, c.viewHigh);
        if (c.minimumLevel >= 0.0)
            m_plot->setMinimumZoomLevel(c.minimumLevel);
        QSignalSpy magnified(m_plot, SIGNAL(PlotScrollMagnified(double)));
        int centreAsked = 0; // QSignalSpy cannot hold a double &
        connect(m_plot, &Plot::zoomCenterSignalEvent, this, [&centreAsked](double &) { ++centreAsked; });

        wheel(m_plot->canvas(), QPoint(100, 100), c.delta);

        QCOMPARE(magnified.count(), c.accepted ? 1 : 0);
        QCOMPARE(centreAsked, c.accepted ? 1 : 0);
        const double now = span(*m_plot, QwtPlot::yLeft);
        QVERIFY2(near(now, c.expectedSpan, 1e-6), qPrintable(QString::number(now)));
        if (c.accepted) {
            QVERIFY(near(magnified.first().first().toDouble(), c.delta < 0 ? 0.9 : 1.0 / 0.9));
            // Centre zoom with nobody answering centres on 0, clamped to 0 without negative values.
            QCOMPARE(qMin(lower(*m_plot, QwtPlot::yLeft), upper(*m_plot, QwtPlot::yLeft)), 0.0);
        }
    }

    void centreZoom_data()
    {
        QTest::addColumn<Range>("view");
        QTest::addColumn<double>("answer");
        QTest::addColumn<bool>("negatives");
        QTest::addColumn<Range>("expected");
        QTest::newRow("centred on the answer") << Range(0, 40) << 100.0 << false << Range(80, 120);
        QTest::newRow("near 0 without negatives: 0 to span") << Range(0, 40) << 5.0 << false << Range(0, 40);
        QTest::newRow("near 0 with negatives") << Range(0, 40) << 5.0 << true << Range(-15, 25);
        QTest::newRow("inverted axis stays inverted") << Range(40, 0) << 100.0 << false << Range(120, 80);
        QTest::newRow("inverted near 0 without negatives") << Range(40, 0) << 5.0 << false << Range(40, 0);
    }

    void centreZoom()
    {
        QFETCH(Range, view);
        QFETCH(double, answer);
        QFETCH(bool, negatives);
        m_plot->setEnableNegativeValues(negatives);
        setView(*m_plot, QwtPlot::yLeft, view.first, view.second);
        connect(m_plot, &Plot::zoomCenterSignalEvent, this, [answer](double &centre) {
            QCOMPARE(centre, 0.0);
            centre = answer;
        });
        m_plot->zoomCenter();
        QTEST(range(*m_plot, QwtPlot::yLeft), "expected");
    }

    void centreZoomRightAxis_data()
    {
        QTest::addColumn<double>("rightSpan");
        QTest::addColumn<double>("expectedStep"); // 0: not rescaled
        QTest::newRow("span 0 counts as 0.15: not rescaled") << 0.0 << 0.0;
        QTest::newRow("span 0.5: step 0.1") << 0.5 << 0.1;
        QTest::newRow("span 10: step 1") << 10.0 << 1.0;
        QTest::newRow("span 40: step 2") << 40.0 << 2.0;
    }

    void centreZoomRightAxis()
    {
        QFETCH(double, rightSpan);
        QFETCH(double, expectedStep);
        const bool rescaled = expectedStep > 0.0;
        m_plot->enableRightAxis(true);
        m_plot->setEnableNegativeValues(true);
        setView(*m_plot, QwtPlot::yRight, 3.0, 3.0 + rightSpan);
        const Range before = range(*m_plot, QwtPlot::yRight);
        QSignalSpy rightAsked(m_plot, SIGNAL(zoomCenterRightSignalEvent(double, int)));
        QSignalSpy baseline(m_plot, SIGNAL(SignalsetBaselineTo(int)));
        // A listener answers the right-axis question by setting the second value.
        connect(m_plot, &Plot::zoomCenterRightSignalEvent, m_plot, [this]() { m_plot->setSecondValue(50.0); });

        m_plot->zoomCenter();

        QCOMPARE(rightAsked.count(), 1);
        QCOMPARE(rightAsked.first(), (QVariantList{0.0, 0}));
        QCOMPARE(baseline.count(), rescaled ? 1 : 0);
        if (!rescaled) {
            QCOMPARE(range(*m_plot, QwtPlot::yRight), before);
            return;
        }
        QCOMPARE(baseline.first().first().toInt(), 0);
        QVERIFY(near(lower(*m_plot, QwtPlot::yRight), 50.0 - rightSpan / 2));
        QVERIFY(near(upper(*m_plot, QwtPlot::yRight), 50.0 + rightSpan / 2));
        QVERIFY(near(majorStep(*m_plot, QwtPlot::yRight), expectedStep));
    }

    void steps_data()
    {
        QTest::addColumn<double>("span");
        QTest::addColumn<double>("centreStep");
        QTest::addColumn<bool>("ultra");
        QTest::addColumn<double>("quietStep");
        QTest::newRow("3.0") << 3.0 << 0.5 << false << 0.5;
        QTest::newRow("1.2") << 1.2 << 0.2 << false << 0.2;
        QTest::newRow("0.5") << 0.5 << 0.1 << false << 0.1;
        QTest::newRow("0.2") << 0.2 << 0.05 << false << 0.05;
        QTest::newRow("0.12") << 0.12 << 0.02 << false << 0.02;
        // The step table is the rule: 0.018 <= 0.02 < 0.03 gives 0.005 to both.
        QTest::newRow("0.02 reports deep zoom, zoomer quiet") << 0.02 << 0.005 << true << 0.005;
        QTest::newRow("0.04") << 0.04 << 0.01 << true << 0.01;
        QTest::newRow("0.012") << 0.012 << 0.002 << true << 0.002;
        QTest::newRow("0.009 below 0.01: rules differ") << 0.009 << 0.001 << true << 0.001;
        QTest::newRow("0.005 below 0.008: 0.0005 against 0.001") << 0.005 << 0.0005 << true << 0.001;
    }

    void steps()
    {
        QFETCH(double, span);
        QFETCH(double, centreStep);
        QFETCH(double, quietStep);

        // Centre zoom (getStep).
        m_plot->setEnableNegativeValues(true);
        connect(m_plot, &Plot::zoomCenterSignalEvent, this, [span](double &centre) { centre = 100.0 + span / 2; });
        setView(*m_plot, QwtPlot::yLeft, 100.0, 100.0 + span);
        QSignalSpy ultraZoomed(m_plot, SIGNAL(plotUltraZoomed()));
        m_plot->zoomCenter();
        QTEST(ultraZoomed.count() == 1, "ultra");
        QVERIFY2(near(majorStep(*m_plot, QwtPlot::yLeft), centreStep, 1e-6),
                 qPrintable(QString::number(majorStep(*m_plot, QwtPlot::yLeft))));
        QCOMPARE(bool(dynamic_cast<ExtScaleDraw *>(m_plot->axisScaleDraw(QwtPlot::yLeft))), centreStep <= 0.0005);

        // The panner's quieter rule after a real right-button drag.
        setView(*m_plot, QwtPlot::yLeft, 100.0, 100.0 + span);
        ultraZoomed.clear();
        const QPoint from(200, 150);
        drag(m_plot->canvas(), Qt::RightButton, from, from + QPoint(0, 6));
        QVERIFY(lower(*m_plot, QwtPlot::yLeft) > 100.0); // it did pan
        QCOMPARE(ultraZoomed.count(), 0);
        QVERIFY2(near(majorStep(*m_plot, QwtPlot::yLeft), quietStep, 1e-6),
                 qPrintable(QString::number(majorStep(*m_plot, QwtPlot::yLeft))));
    }

    void rubberBand_data()
    {
        QTest::addColumn<double>("height");
        QTest::addColumn<double>("expectedStep"); // 0: automatic, < 0: no zoom
        QTest::newRow("height 1.0 ignored") << 1.0 << -1.0;
        QTest::newRow("height 1.2: quieter step 0.2") << 1.2 << 0.2;
        QTest::newRow("height 2: step 0.5") << 2.0 << 0.5;
        QTest::newRow("height 50: automatic step") << 50.0 << 0.0;
    }

    void rubberBand()
    {
        QFETCH(double, height);
        QFETCH(double, expectedStep);
        const bool zooms = expectedStep >= 0.0;
        setView(*m_plot, QwtPlot::xBottom, 1000.0, 61000.0);
        m_plot->setZoomBase();
        QSignalSpy zoomed(m_plot, SIGNAL(plotZoomed(const QRectF &)));
        QSignalSpy changed(m_plot, SIGNAL(changeXSignal(const QRectF &)));

        m_plot->zoomToRect(QRectF(11000.0, 100.0, 20000.0, height));

        QCOMPARE(zoomed.count(), zooms ? 1 : 0);
        QCOMPARE(changed.count(), zooms ? 1 : 0);
        QCOMPARE(range(*m_plot, QwtPlot::yLeft), zooms ? Range(100.0, 100.0 + height) : Range(0.0, 300.0));
        if (!zooms)
            return;
        QCOMPARE(range(*m_plot, QwtPlot::xBottom), Range(11000.0, 31000.0));
        if (expectedStep > 0.0)
            QVERIFY(near(majorStep(*m_plot, QwtPlot::yLeft), expectedStep, 1e-6));
    }

    void rubberBandRescalesRightAxis()
    {
        m_plot->enableRightAxis(true);
        setView(*m_plot, QwtPlot::yRight, 0.0, 30.0);
        m_plot->setZoomBase();

        // A real left drag over the canvas: from value 200 down to value 100.
        const int y200 = int(m_plot->transform(QwtPlot::yLeft, 200.0));
        const int y100 = int(m_plot->transform(QwtPlot::yLeft, 100.0));
        QSignalSpy zoomed(m_plot, SIGNAL(plotZoomed(const QRectF &)));
        QSignalSpy released(m_plot, SIGNAL(zoomRectangle()));
        drag(m_plot->canvas(), Qt::LeftButton, QPoint(100, y200), QPoint(250, y100));
        QCOMPARE(zoomed.count(), 1);
        QCOMPARE(released.count(), 1);
        const QRectF rect = zoomed.first().first().toRectF();
        QVERIFY(rect.height() > 90.0 && rect.height() < 110.0);
        // Right bounds: 30 - |300 - top| x 0.1 and 30 - |300 - bottom| x 0.1, ascending.
        QVERIFY(near(lower(*m_plot, QwtPlot::yRight), 30.0 - (300.0 - rect.top()) * 0.1));
        QVERIFY(near(upper(*m_plot, QwtPlot::yRight), 30.0 - (300.0 - rect.bottom()) * 0.1));
    }

    void zoomKeysOnlyRefreshTicks_data()
    {
        QTest::addColumn<QKeySequence>("key");
        QTest::newRow("Shift+O") << QKeySequence(Qt::SHIFT + Qt::Key_O);
        QTest::newRow("Shift+I") << QKeySequence(Qt::SHIFT + Qt::Key_I);
        QTest::newRow("Home") << QKeySequence(Qt::Key_Home);
    }

    void zoomKeysOnlyRefreshTicks()
    {
        QFETCH(QKeySequence, key);
        // Put something on the zoom stack first, so that walking it would be visible.
        setView(*m_plot, QwtPlot::xBottom, 0.0, 60000.0);
        m_plot->setZoomBase();
        m_plot->zoomToRect(QRectF(10000.0, 50.0, 20000.0, 100.0));
        m_plot->zoomToRect(QRectF(12000.0, 60.0, 10000.0, 50.0));
        const QwtInterval x = m_plot->axisInterval(QwtPlot::xBottom);
        const QwtInterval y = m_plot->axisInterval(QwtPlot::yLeft);
        QSignalSpy zoomed(m_plot, SIGNAL(plotZoomed(const QRectF &)));

        QTest::keySequence(m_plot->canvas(), key);

        QCOMPARE(zoomed.count(), 0);
        QVERIFY(m_plot->axisInterval(QwtPlot::xBottom) == x && m_plot->axisInterval(QwtPlot::yLeft) == y);
        // One major tick per 115 pixels of plot width.
        QVERIFY(near(majorStep(*m_plot, QwtPlot::xBottom), x.width() / (m_plot->width() / 115), 1e-6));
    }

    void panClamp_data()
    {
        QTest::addColumn<int>("maxOffset");
        QTest::addColumn<int>("minOffset");
        QTest::addColumn<int>("dy");
        QTest::addColumn<double>("limit"); // the highest value upwards, the lowest downwards
        // 330 pixels are worth about 140 value units on the test canvas: every drag overshoots.
        QTest::newRow("up stops at the upper limit") << 0 << 0 << 330 << 300.0;
        QTest::newRow("up stops at limit + offset") << 40 << 0 << 330 << 340.0;
        QTest::newRow("down stops at the lower limit") << 0 << 0 << -330 << 0.0;
        QTest::newRow("down stops at limit - offset") << 0 << 30 << -330 << -30.0;
    }

    void panClamp()
    {
        QFETCH(int, maxOffset);
        QFETCH(int, minOffset);
        QFETCH(int, dy);
        QFETCH(double, limit);
        m_plot->setPanMaxOffset(maxOffset);
        m_plot->setPanMinOffset(minOffset);
        m_plot->setAxisScale(QwtPlot::yLeft, 0.0, 300.0, 0.0);
        setView(*m_plot, QwtPlot::yLeft, 100.0, 250.0);
        const QwtInterval x = m_plot->axisInterval(QwtPlot::xBottom);
        QSignalSpy panned(m_plot, SIGNAL(plotPanned(int, int)));

        // A slanted drag: only its vertical part pans.
        const QPoint from(200, dy > 0 ? 5 : 345);
        drag(m_plot->canvas(), Qt::RightButton, from, from + QPoint(-60, dy));

        QCOMPARE(panned.count(), 1);
        QCOMPARE(panned.first().at(1).toInt(), dy);
        QVERIFY(m_plot->axisInterval(QwtPlot::xBottom) == x);
        QVERIFY(near(span(*m_plot, QwtPlot::yLeft), 150.0, 1e-6));
        // Pixel steps: within one pixel's worth of value of the limit, never past it.
        const double onePixel = 150.0 / m_plot->canvas()->contentsRect().height() * 1.05;
        const double past = dy > 0 ? upper(*m_plot, QwtPlot::yLeft) - limit : limit - lower(*m_plot, QwtPlot::yLeft);
        QVERIFY2(past <= 1e-9 && past > -onePixel, qPrintable(QString::number(past)));
    }

    void disabledToolsIgnoreInput()
    {
        m_plot->setEnabled(false);
        QVERIFY(!m_plot->isPlotEnabled());
        setView(*m_plot, QwtPlot::yLeft, 100.0, 200.0);
        setView(*m_plot, QwtPlot::xBottom, 0.0, 1000.0);
        QSignalSpy magnified(m_plot, SIGNAL(PlotScrollMagnified(double)));
        wheel(m_plot->canvas(), QPoint(100, 100), -120);
        drag(m_plot->canvas(), Qt::RightButton, QPoint(200, 100), QPoint(200, 150));
        m_plot->zoomToRect(QRectF(100.0, 120.0, 200.0, 20.0));
        QCOMPARE(magnified.count(), 0);
        QCOMPARE(range(*m_plot, QwtPlot::yLeft), Range(100.0, 200.0));
        QCOMPARE(upper(*m_plot, QwtPlot::xBottom), 1000.0);

        // Enabled again, one wheel step zooms each axis once: time by 0.9 too.
        m_plot->setEnabled(true);
        wheel(m_plot->canvas(), QPoint(100, 100), -120);
        QCOMPARE(magnified.count(), 1);
        QVERIFY(near(span(*m_plot, QwtPlot::xBottom), 900.0));
    }

    void zoomToolBar()
    {
        QWidget *parent = m_plot->parentWidget();
        QWidget *bar = m_plot->embedZoomToolBar();
        QVERIFY(bar);
        QCOMPARE(bar->parentWidget(), parent);
        QCOMPARE(m_plot->parentWidget(), bar);
        QCOMPARE(m_plot->embedZoomToolBar(), bar); // built once
        m_host->layout()->addWidget(bar); // where the plot was
        bar->show();
        QHBoxLayout *container = m_plot->getPlotContainer();
        QCOMPARE(container->count(), 2);
        QCOMPARE(container->itemAt(1)->widget(), static_cast<QWidget *>(m_plot));
        QWidget *column = container->itemAt(0)->widget();
        QTRY_COMPARE(column->height(), 70);
        QPushButton *in = m_plot->poZoomInButton();
        QPushButton *reset = m_plot->poResetZoomButton();
        QPushButton *out = m_plot->poZoomOutButton();
        const QList<QPushButton *> buttons{in, reset, out};
        const QStringList tips{QStringLiteral("Zoom In"), QStringLiteral("Reset Zoom"), QStringLiteral("Zoom Out")};
        const QList<QSize> sizes{QSize(20, 20), QSize(20, 10), QSize(20, 20)};
        for (int i = 0; i < buttons.size(); ++i) {
            QCOMPARE(column->layout()->itemAt(i)->widget(), static_cast<QWidget *>(buttons[i]));
            QCOMPARE(buttons[i]->toolTip(), tips[i]);
            QCOMPARE(buttons[i]->size(), sizes[i]);
            QVERIFY(!buttons[i]->icon().isNull() && buttons[i]->text().isEmpty());
        }

        QSignalSpy magnified(m_plot, SIGNAL(PlotScrollMagnified(double)));
        QTest::mouseClick(in, Qt::LeftButton);
        QCOMPARE(upper(*m_plot, QwtPlot::yLeft), 240.0);
        QTest::mouseClick(out, Qt::LeftButton);
        QVERIFY(near(upper(*m_plot, QwtPlot::yLeft), 288.0));
        QCOMPARE(magnified.count(), 2);
        QCOMPARE(magnified.last().first().toDouble(), 1.2);
        QTest::mouseClick(reset, Qt::LeftButton);
        QCOMPARE(range(*m_plot, QwtPlot::yLeft), Range(0.0, 300.0));
        QVERIFY(m_plot->getZoomResetClick());
    }

    void zoomResetRestoresLimits()
    {
        m_plot->enableRightAxis(true);
        m_plot->setYRightRange(-10.0, 10.0);
        QCOMPARE(majorStep(*m_plot, QwtPlot::yRight), 2.0);
        m_plot->setPanMinOffset(10); // the reset gives the panner its limits back, offsets included
        m_plot->setAxisScale(QwtPlot::yLeft, 20.0, 220.0, 0.0);
        QCOMPARE(m_plot->poZoomer()->zoomBase().top(), 20.0); // the zoomer's base follows the scale
        setView(*m_plot, QwtPlot::yLeft, 60.0, 80.0);
        setView(*m_plot, QwtPlot::yRight, 1.0, 2.0);
        QList<double> factors;
        QList<bool> resetFlags;
        connect(m_plot, &Plot::PlotScrollMagnified, this, [&](double factor) {
            factors << factor;
            resetFlags << m_plot->getZoomResetClick();
        });

        m_plot->zoomResetButtonClicked();

        // 0.0 (flag set), 0.8 and 1.2 (flag cleared), 0.0 again (flag set).
        QCOMPARE(factors, (QList<double>{0.0, 0.8, 1.2, 0.0}));
        QCOMPARE(resetFlags, (QList<bool>{true, false, false, true}));
        QCOMPARE(range(*m_plot, QwtPlot::yLeft), Range(20.0, 220.0));
        QCOMPARE(range(*m_plot, QwtPlot::yRight), Range(-10.0, 10.0));
        QCOMPARE(majorStep(*m_plot, QwtPlot::yRight), 2.0);
        QCOMPARE(m_plot->poPanner()->lowerPanLimit(), 10.0);
    }

    void timeAxisButtons()
    {
        m_plot->vSetXAxis(10000.0, 50000.0);
        setView(*m_plot, QwtPlot::xBottom, 20000.0, 30000.0);
        m_plot->zoomPlusXButtonClicked();
        QVERIFY(near(span(*m_plot, QwtPlot::xBottom), 8000.0));
        m_plot->zoomMinusXButtonClicked(); // its factor is tst_genericchart's xZoomBar()
        QCOMPARE(upper(*m_plot, QwtPlot::yLeft), 300.0); // the value axis is left alone

        m_plot->zoomResetXButtonClicked();
        QCOMPARE(range(*m_plot, QwtPlot::xBottom), Range(10000.0, 50000.0));
        QVERIFY(m_plot->getZoomResetClick());

        // A time span at the maximum X range refuses to grow.
        m_plot->vSetXAxis(0.0, 1000.0);
        setView(*m_plot, QwtPlot::xBottom, 0.0, 1000.0);
        m_plot->zoomMinusXButtonClicked();
        QCOMPARE(upper(*m_plot, QwtPlot::xBottom), 1000.0);
    }

    void zoomResetRectangle()
    {
        setView(*m_plot, QwtPlot::xBottom, 1000.0, 5000.0);
        setView(*m_plot, QwtPlot::yLeft, 10.0, 110.0);
        QCOMPARE(m_plot->zoomReset(0.0), QRectF());
        QCOMPARE(m_plot->zoomReset(7000.0), QRectF(7000.0, 10.0, 4000.0, 100.0));
        QCOMPARE(range(*m_plot, QwtPlot::xBottom), Range(1000.0, 5000.0));
    }

    void clicks_data()
    {
        QTest::addColumn<bool>("doubleClick");
        QTest::addColumn<bool>("independent");
        QTest::addColumn<bool>("underMouse");
        QTest::newRow("click, synchronised plot: no coordinate") << false << false << false;
        QTest::newRow("click, independent plot: the global position") << false << true << false;
        QTest::newRow("click, zoom under the mouse: the plot coordinate") << false << false << true;
        QTest::newRow("double click, synchronised plot: reset") << true << false << false;
        QTest::newRow("double click, independent plot: reset and told") << true << true << false;
    }

    void clicks()
    {
        QFETCH(bool, doubleClick);
        QFETCH(bool, independent);
        QFETCH(bool, underMouse);
        setView(*m_plot, QwtPlot::xBottom, 0.0, 1000.0);
        setView(*m_plot, QwtPlot::yLeft, 50.0, 70.0);
        m_plot->setIndependentPlot(independent);
        if (underMouse)
            m_plot->vSetZoomUnderMouse(true); // every call adds a click picker
        QSignalSpy coordinate(m_plot, SIGNAL(getMouseCoordinate(QPoint)));
        QSignalSpy released(m_plot, SIGNAL(zoomRectangle()));
        QSignalSpy noise(m_plot, SIGNAL(zommResetForNoiseLine()));
        QSignalSpy independentClick(m_plot, SIGNAL(IndependentPlotDoubleClick()));
        const QPoint pos(200, 100);

        if (doubleClick) {
            QTest::mouseDClick(m_plot->canvas(), Qt::LeftButton, Qt::NoModifier, pos);
            QCOMPARE(noise.count(), 1);
            QCOMPARE(independentClick.count(), independent ? 1 : 0);
            return;
        }
        QTest::mouseClick(m_plot->canvas(), Qt::LeftButton, Qt::NoModifier, pos);
        QCOMPARE(released.count(), 1);
        QCOMPARE(noise.count() + independentClick.count(), 0);
        QCOMPARE(coordinate.count(), independent || underMouse ? 1 : 0);
        if (independent)
            QCOMPARE(coordinate.first().first().toPoint(), m_plot->canvas()->mapToGlobal(pos));
        if (underMouse)
            QCOMPARE(coordinate.first().first().toPoint(),
                     QPoint(qRound(m_plot->invTransform(QwtPlot::xBottom, pos.x())),
                            qRound(m_plot->invTransform(QwtPlot::yLeft, pos.y()))));
    }

    void axisMenu()
    {
        QSignalSpy changed(m_plot, SIGNAL(axisChanged()));
        const MenuSeen first = pickFromAxisMenu(m_plot, QStringLiteral("Date + Time"));
        QCOMPARE(first.offered, (QStringList{QStringLiteral("Time"), QStringLiteral("Date + Time")}));
        QCOMPARE(first.checked, QStringList{QStringLiteral("Time")}); // default 0
        QCOMPARE(changed.count(), 1);
        QCOMPARE(readAxisType(), 1);
        setView(*m_plot, QwtPlot::xBottom, 0.0, 30000.0);
        QVERIFY(m_plot->poTimeScaleDraw()->label(0.0).text().contains(QStringLiteral(" \r\n")));

        const MenuSeen second = pickFromAxisMenu(m_plot, QStringLiteral("Time"));
        QCOMPARE(second.checked, QStringList{QStringLiteral("Date + Time")});
        QCOMPARE(changed.count(), 2);
        QCOMPARE(readAxisType(), 0);
        QVERIFY(!m_plot->poTimeScaleDraw()->label(0.0).text().contains(QStringLiteral("\n")));
    }

    void axisMenuElsewhereDoesNothing()
    {
        QSignalSpy changed(m_plot, SIGNAL(axisChanged()));
        // On an independent plot the axis offers no menu; on the left axis neither.
        m_plot->setIndependentPlot(true);
        rightClick(m_plot->axisWidget(QwtPlot::xBottom));
        m_plot->setIndependentPlot(false);
        rightClick(m_plot->axisWidget(QwtPlot::yLeft));
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
        QVERIFY(!QFile::exists(settingsFile()));

        // Dismissing the menu writes nothing.
        QVERIFY(pickFromAxisMenu(m_plot, QStringLiteral("no such entry")).shown);
        QCOMPARE(changed.count(), 0);
        QCOMPARE(readAxisType(), -1);
    }

    void timeLabels_data()
    {
        QTest::addColumn<int>("axisType");
        QTest::addColumn<double>("span");
        QTest::addColumn<QString>("format");
        QTest::newRow("59 999 ms: seconds") << 0 << 59999.0 << QStringLiteral("hh:mm:ss");
        QTest::newRow("60 000 ms: minutes") << 0 << 60000.0 << QStringLiteral("hh:mm");
        QTest::newRow("just under a day") << 0 << 8.64e7 - 1.0 << QStringLiteral("hh:mm");
        QTest::newRow("one day: date") << 0 << 8.64e7 << QStringLiteral("dd.MM.yyyy");
        QTest::newRow("date mode, 59 999 ms") << 1 << 59999.0 << QStringLiteral("dd.MM.yyyy \r\nhh:mm:ss");
        QTest::newRow("date mode, 60 000 ms") << 1 << 60000.0 << QStringLiteral("dd.MM.yyyy \r\nhh:mm");
        QTest::newRow("date mode, one day: date only") << 1 << 8.64e7 << QStringLiteral("dd.MM.yyyy");
    }

    void timeLabels()
    {
        QFETCH(int, axisType);
        QFETCH(double, span);
        QFETCH(QString, format);
        useAxisType(axisType);
        const double start = 1700000000123.9; // fractions of a millisecond are truncated
        setView(*m_plot, QwtPlot::xBottom, start, start + span);
        const QString label = m_plot->poTimeScaleDraw()->label(start).text();
        QCOMPARE(label, QDateTime::fromMSecsSinceEpoch(1700000000123).toString(format));
    }

    // Two-line date labels at the ends of a new scale move the canvas, which is
    // aligned to the scales: one replot must leave the maps a second one finds.
    void oneReplotSettlesTheLayout()
    {
        useAxisType(1);
        Plot *plot = showPlot(m_host, true);
        m_host->resize(860, 380);
        plot->setAxisScale(QwtPlot::yLeft, 0.0, 300.0);
        plot->setAxisScale(QwtPlot::xBottom, 1.7e12 + 3000.0, 1.7e12 + 13000.0);
        plot->replot();
        const QwtScaleMap once = plot->canvasMap(QwtPlot::xBottom);
        plot->replot();
        const QwtScaleMap twice = plot->canvasMap(QwtPlot::xBottom);
        QCOMPARE(once.p1(), twice.p1());
        QCOMPARE(once.p2(), twice.p2());
    }

    // The labels read as QDateTime's text of the value truncated to whole ms, and as the
    // epoch where there is no date; the zones' own rules are tst_localtime's.
    void timeLabelValues_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<double>("value");
        QTest::addColumn<qint64>("ms"); // the time the label shows

        // POSIX rules need no zone database. The zone changes from row to row:
        // vRefresh() is how a host has the change seen.
        const QByteArray europe = "CET-1CEST,M3.5.0,M10.5.0/3";
        const QByteArray america = "EST5EDT,M3.2.0,M11.1.0";
        const double inf = std::numeric_limits<double>::infinity();
        QTest::newRow("fraction truncated") << europe << 1700000000123.9 << Q_INT64_C(1700000000123);
        QTest::newRow("negative fraction towards zero") << america << -0.9 << Q_INT64_C(0);
        QTest::newRow("before 1970") << europe << -1000.5 << Q_INT64_C(-1000);
        QTest::newRow("NaN: the epoch") << america << std::numeric_limits<double>::quiet_NaN() << Q_INT64_C(0);
        QTest::newRow("infinity: the epoch") << europe << inf << Q_INT64_C(0);
        QTest::newRow("minus infinity: the epoch") << america << -inf << Q_INT64_C(0);
        QTest::newRow("9e18: the epoch") << europe << 9.0e18 << Q_INT64_C(0);
        QTest::newRow("-9e18: the epoch") << america << -9.0e18 << Q_INT64_C(0);
        QTest::newRow("just below 9e18") << europe << 8.99e18 << qint64(8.99e18);
    }

    void timeLabelValues()
    {
        QFETCH(QByteArray, zone);
        QFETCH(double, value);
        QFETCH(qint64, ms);

        Utils::TimeScaleDraw draw;
        draw.label(0.0); // reads the settings, which re-reads the zone as a side effect
        const TestSupport::Zone inZone(zone, false); // QDateTime, below, re-reads the zone by itself
        draw.vRefresh();
        draw.setScaleDiv(QwtScaleDiv(1.7e12, 1.7e12 + 59999.0));
        const QString time = draw.label(value).text(); // before QDateTime has read the zone
        draw.setScaleDiv(QwtScaleDiv(1.7e12, 1.7e12 + 8.64e7));
        const QString date = draw.label(value).text();
        QCOMPARE(time, QDateTime::fromMSecsSinceEpoch(ms).toString(QStringLiteral("hh:mm:ss")));
        QCOMPARE(date, QDateTime::fromMSecsSinceEpoch(ms).toString(QStringLiteral("dd.MM.yyyy")));
    }

    void displayValueLabels()
    {
        m_plot->QwtPlot::setAxisScale(QwtPlot::xBottom, 0.0, 2000.0);
        m_plot->enableXAxisDisplayValue(true);
        QCOMPARE(m_plot->poTimeScaleDraw()->label(1234.5678).text(), QStringLiteral("1234.57"));
        QCOMPARE(m_plot->poTimeScaleDraw()->label(1.5e12).text(), QStringLiteral("1.5e+12"));
        m_plot->enableXAxisDisplayValue(false);
        QCOMPARE(m_plot->poTimeScaleDraw()->label(0.0).text(), QDateTime::fromMSecsSinceEpoch(0).toString("hh:mm:ss"));
        // Deep zoom labels carry seven significant digits.
        QCOMPARE(ExtScaleDraw().label(100.0012345).text(), QStringLiteral("100.0012"));
    }

    void trackerText()
    {
        Utils::TimePicker picker(m_plot->canvas());
        const QwtText text = picker.trackerTextF(QPointF(1700000000456.7, 12.345678));
        QCOMPARE(text.text(), QDateTime::fromMSecsSinceEpoch(1700000000456).toString("hh:mm:ss.zzz")
                                  + QStringLiteral(", 12.3457"));
        QCOMPARE(text.backgroundBrush().color(), QColor(255, 255, 255, 200));
    }

    void germanTranslation()
    {
        QWidget *bar = m_plot->embedZoomToolBar();
        m_host->layout()->addWidget(bar); // where the plot was
        bar->show();
        TestSupport::GermanTranslation german;
        QVERIFY(german.isLoaded());
        // The language change retranslates the zoom tooltips but deliberately not the reset one.
        QTRY_COMPARE(m_plot->poZoomInButton()->toolTip(), QStringLiteral("Vergr\u00F6\u00DFern"));
        QCOMPARE(m_plot->poZoomOutButton()->toolTip(), QStringLiteral("Verkleinern"));
        QCOMPARE(m_plot->poResetZoomButton()->toolTip(), QStringLiteral("Reset Zoom"));

        const MenuSeen menu = pickFromAxisMenu(m_plot, QStringLiteral("Datum + Zeit"));
        QCOMPARE(menu.offered, (QStringList{QStringLiteral("Zeit"), QStringLiteral("Datum + Zeit")}));
        QCOMPARE(readAxisType(), 1);
    }

    void resizeEmitsAxisChanged()
    {
        QSignalSpy changed(m_plot, SIGNAL(axisChanged()));
        m_host->resize(700, 500);
        QTRY_VERIFY(changed.count() >= 1);
    }
};

QTEST_MAIN(tst_Plot)
#include "tst_plot.moc"
