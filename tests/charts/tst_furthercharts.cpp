// SPDX-License-Identifier: LGPL-2.1-or-later
#include "imagechecks.h"
#include "modaldialogdriver.h"
#include "plottesthelpers.h"

#include "charts/colorchart.h"
#include "charts/levelcalibrationprompt.h"
#include "charts/rgbrenderer.h"
#include "charts/simpletimechart.h"
#include "charts/valueovertime.h"
#include "plot/plot.h"

#include <qwt_plot_canvas.h>
#include <qwt_scale_map.h>

#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <chrono>
#include <limits>

using PlotTest::samples;
using TestSupport::colorDistance;
using Utils::ColorChart;
using Utils::LevelCalibrationPrompt;
using Utils::SimpleTimeChart;

namespace {

const double kT0 = 1.7e12;

double nowMs()
{
    using namespace std::chrono;
    return double(duration_cast<microseconds>(system_clock::now().time_since_epoch()).count()) / 1000.0;
}

// Both panel charts, fed the same way: the colour chart gets value, value + 1 and value + 2.
enum class Kind { Simple, Color };

struct Panel
{
    explicit Panel(Kind k)
        : kind(k)
    {
        if (kind == Kind::Simple)
            simple.reset(new SimpleTimeChart);
        else
            color.reset(new ColorChart);
    }
    void append(double value, bool update, double time)
    {
        if (kind == Kind::Simple)
            simple->vAppendData(value, update, time);
        else
            color->vAppendData(value, value + 1.0, value + 2.0, update, time);
    }
    const Utils::ValueOverTime *series(int channel) const
    {
        return kind == Kind::Simple ? simple->getData() : color->getData(channel);
    }
    int channels() const { return kind == Kind::Simple ? 1 : 3; }

    Kind kind;
    std::unique_ptr<SimpleTimeChart> simple;
    std::unique_ptr<ColorChart> color;
};

bool reddish(const QColor &c)
{
    return c.red() - c.green() > 20 && c.red() - c.blue() > 20;
}

} // namespace

Q_DECLARE_METATYPE(Kind)

class tst_FurtherCharts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void appendRules_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<double>("previous"); // 0: the series is empty
        QTest::addColumn<double>("time");
        QTest::addColumn<bool>("update");
        QTest::addColumn<QVector<QPointF>>("expected"); // of the first channel

        const auto row = [](const char *name, Kind kind, double previous, double time, bool update,
                             const QVector<QPointF> &expected) {
            QTest::newRow(name) << kind << previous << time << update << expected;
        };
        const double late15 = kT0 + 15000.001;
        row("simple: first sample never breaks", Kind::Simple, 0.0, kT0, true, { { kT0, 42.0 } });
        row("simple: time 1.5 is taken as given", Kind::Simple, 0.0, 1.5, true, { { 1.5, 42.0 } });
        row("simple: a pause of exactly 15 s keeps the line", Kind::Simple, kT0, kT0 + 15000.0, true,
            { { kT0, 10.0 }, { kT0 + 15000.0, 42.0 } });
        row("simple: a longer pause breaks at -1500", Kind::Simple, kT0, late15, true,
            { { kT0, 10.0 }, { kT0 + 1.0, -1500.0 }, { late15 - 1.0, -1500.0 }, { late15, 42.0 } });
        row("simple: no valid value is -15000", Kind::Simple, kT0, kT0 + 100.0, false,
            { { kT0, 10.0 }, { kT0 + 100.0, -15000.0 } });
        const double late10 = kT0 + 10000.5;
        row("colour: a pause of exactly 10 s keeps the lines", Kind::Color, kT0, kT0 + 10000.0, true,
            { { kT0, 10.0 }, { kT0 + 10000.0, 42.0 } });
        row("colour: a longer pause breaks at -1000", Kind::Color, kT0, late10, true,
            { { kT0, 10.0 }, { kT0 + 1.0, -1000.0 }, { late10 - 1.0, -1000.0 }, { late10, 42.0 } });
        row("colour: no valid value is -10000", Kind::Color, kT0, kT0 + 100.0, false,
            { { kT0, 10.0 }, { kT0 + 100.0, -10000.0 } });
    }

    void appendRules()
    {
        QFETCH(Kind, kind);
        QFETCH(double, previous);
        QFETCH(double, time);
        QFETCH(bool, update);
        QFETCH(QVector<QPointF>, expected);
        Panel panel(kind);
        if (previous != 0.0)
            panel.append(10.0, true, previous);
        panel.append(42.0, update, time);

        // Every channel follows the same rules; the colour chart's channels carry value + channel.
        for (int channel = 0; channel < panel.channels(); ++channel) {
            QVector<QPointF> wanted = expected;
            for (QPointF &point : wanted) {
                if (point.y() >= 0.0)
                    point.ry() += channel;
            }
            QCOMPARE(samples(panel.series(channel)), wanted);
        }
        if (kind == Kind::Color)
            QCOMPARE(panel.color->oCurrentReading().isEmpty(), !update);
    }

    void timeOneOrLessMeansNow_data()
    {
        // Both charts stamp through the same code; the simple one stands for both.
        QTest::addColumn<double>("time");
        QTest::newRow("0") << 0.0;
        QTest::newRow("1.0") << 1.0;
        QTest::newRow("negative") << -250.0;
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
    }

    void timeOneOrLessMeansNow()
    {
        QFETCH(double, time);
        Panel panel(Kind::Simple);
        const double before = nowMs();
        panel.append(5.0, true, time);
        const double after = nowMs();
        const double stamped = panel.series(0)->oLast().x();
        QVERIFY2(stamped >= before && stamped <= after, qPrintable(QString::number(stamped, 'f', 3)));
    }

    void viewPagesAndRedrawIsThrottled()
    {
        SimpleTimeChart chart;
        chart.setTimeSpan(10000.0);
        QVERIFY(TestSupport::show(&chart, QSize(400, 220)));
        const auto view = [&chart]() { return PlotTest::range(*chart.poPlot(), QwtPlot::xBottom); };

        // The first page starts at the first sample.
        chart.vAppendData(100.0, true, kT0);
        QCOMPARE(view(), qMakePair(kT0, kT0 + 10000.0));
        // Past the right end: one page on, once the 20 ms since the last redraw are over.
        chart.vAppendData(100.0, true, kT0 + 10500.0);
        QCOMPARE(view(), qMakePair(kT0, kT0 + 10000.0));
        QTRY_COMPARE_WITH_TIMEOUT(view(), qMakePair(kT0 + 10000.0, kT0 + 20000.0), 500);
        // After a pause longer than a page the view starts at the newest sample.
        TestSupport::waitForTimers(30);
        chart.vAppendData(100.0, true, kT0 + 47000.0);
        QCOMPARE(view(), qMakePair(kT0 + 47000.0, kT0 + 57000.0));

        // A new span keeps the page's start; clear() starts a new first page.
        QSignalSpy spanChanged(&chart, &SimpleTimeChart::timeSpanChanged);
        chart.setTimeSpan(5000.0);
        chart.setTimeSpan(5000.0);
        chart.setTimeSpan(-1.0);
        QCOMPARE(spanChanged.count(), 1);
        QCOMPARE(view(), qMakePair(kT0 + 47000.0, kT0 + 52000.0));
        chart.clear();
        QCOMPARE(chart.getData()->size(), 0);
        TestSupport::waitForTimers(30);
        chart.vAppendData(100.0, true, kT0 + 1000.0);
        QCOMPARE(view(), qMakePair(kT0 + 1000.0, kT0 + 6000.0));
    }

    void simpleChartPaintsCurveAndBreak()
    {
        SimpleTimeChart chart;
        chart.vSetYScale(0.0, 300.0);
        QVERIFY(TestSupport::show(&chart, QSize(480, 260)));
        // 10 s of samples at 150, a pause of 20 s, 10 s more.
        for (double t = 0.0; t <= 10000.0; t += 100.0)
            chart.vAppendData(150.0, true, kT0 + t);
        for (double t = 30000.0; t <= 40000.0; t += 100.0)
            chart.vAppendData(150.0, true, kT0 + t);
        QTest::qWait(50);

        QWidget *canvas = chart.poPlot()->canvas();
        const QImage image = TestSupport::grabImage(canvas, QStringLiteral("tst_furthercharts_simple"));
        const QwtScaleMap xMap = chart.poPlot()->canvasMap(QwtPlot::xBottom);
        const QwtScaleMap yMap = chart.poPlot()->canvasMap(QwtPlot::yLeft);
        const int line = int(yMap.transform(150.0));
        const auto column = [&](double t) { return QRect(int(xMap.transform(kT0 + t)), 2, 1, image.height() - 4); };

        // Where samples are: the line in the curve's colour at 150, the light fill beneath, white above.
        for (double t : { 5000.0, 35000.0 }) {
            const QRect strip = column(t);
            QVERIFY(TestSupport::countPixels(image, QRect(strip.left(), line - 2, 1, 5), [](const QColor &c) {
                return colorDistance(c, QColor(188, 0, 0)) < 120;
            }) > 0);
            const QColor fill = image.pixelColor(strip.left(), (line + image.height()) / 2);
            QVERIFY2(reddish(fill) && fill.red() > 200, qPrintable(fill.name()));
            QVERIFY(!reddish(image.pixelColor(strip.left(), line / 2)));
        }
        // The pause is not bridged, and nothing is drawn where no sample is yet.
        QCOMPARE(TestSupport::countPixels(image, column(20000.0), reddish), 0);
        QCOMPARE(TestSupport::countPixels(image, column(50000.0), reddish), 0);
    }

    void swatchShowsCalibratedReading_data()
    {
        QTest::addColumn<QList<double>>("black");
        QTest::addColumn<QList<double>>("white");
        QTest::addColumn<QList<double>>("reading");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("default levels show 0..255 as they are")
            << QList<double> { 0, 0, 0 } << QList<double> { 255, 255, 255 } << QList<double> { 255, 128, 0 }
            << QColor(255, 128, 0);
        QTest::newRow("each channel from its black to its white level")
            << QList<double> { 10, 20, 30 } << QList<double> { 210, 220, 230 } << QList<double> { 110, 120, 130 }
            << QColor(128, 128, 128);
        QTest::newRow("readings beyond the levels are clamped")
            << QList<double> { 10, 10, 10 } << QList<double> { 200, 200, 200 } << QList<double> { 5, 300, 20 }
            << QColor(0, 255, 13);
        QTest::newRow("a white level not above black shows 0")
            << QList<double> { 100, 100, 0 } << QList<double> { 100, 50, 255 } << QList<double> { 150, 150, 255 }
            << QColor(0, 0, 255);
    }

    void swatchShowsCalibratedReading()
    {
        QFETCH(QList<double>, black);
        QFETCH(QList<double>, white);
        QFETCH(QList<double>, reading);
        QFETCH(QColor, expected);
        ColorChart chart;
        QVERIFY(TestSupport::show(&chart, QSize(560, 240)));
        QSignalSpy levels(&chart, &ColorChart::levelsChanged);
        chart.vSetBlackLevel(black[0], black[1], black[2]);
        chart.vSetWhiteLevel(white[0], white[1], white[2]);
        chart.vSetWhiteLevel(white[0], white[1], white[2]);
        QCOMPARE(
            levels.count(), int(black != QList<double> { 0, 0, 0 }) + int(white != QList<double> { 255, 255, 255 }));

        chart.vAppendData(reading[0], reading[1], reading[2], true, kT0);
        Utils::RgbRenderer *renderer = chart.poRenderer();
        QCOMPARE(renderer->color(), expected);
        const QImage image = TestSupport::grabImage(
            renderer, QStringLiteral("tst_furthercharts_swatch_%1").arg(QTest::currentDataTag()).replace(' ', '_'));
        QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 3), expected);
    }

    void rendererSwatches()
    {
        Utils::RgbRenderer renderer;
        QVERIFY(TestSupport::show(&renderer, QSize(240, 110)));
        QSignalSpy colorChanged(&renderer, &Utils::RgbRenderer::colorChanged);
        QSignalSpy taughtChanged(&renderer, &Utils::RgbRenderer::taughtColorChanged);
        const QPoint left(renderer.width() / 4, renderer.height() / 3);
        const QPoint right(renderer.width() * 3 / 4, renderer.height() / 3);

        // No reading: a hatched swatch (two shades), no single colour.
        QImage image = TestSupport::grabImage(&renderer, QStringLiteral("tst_furthercharts_renderer_empty"));
        const QRect swatch(8, 8, renderer.width() - 16, renderer.height() / 3);
        QVERIFY(
            TestSupport::countPixels(image, swatch, [](const QColor &c) { return c == QColor(235, 235, 235); }) > 0);
        QVERIFY(
            TestSupport::countPixels(image, swatch, [](const QColor &c) { return c == QColor(190, 190, 190); }) > 0);

        // The current colour alone fills the whole width; a taught colour takes the right half.
        renderer.setColor(QColor(200, 40, 40));
        renderer.setColor(QColor(200, 40, 40));
        image = TestSupport::grabImage(&renderer, QStringLiteral("tst_furthercharts_renderer_current"));
        QCOMPARE(image.pixelColor(left), QColor(200, 40, 40));
        QCOMPARE(image.pixelColor(right), QColor(200, 40, 40));
        renderer.setTaughtColor(QColor(30, 90, 200));
        image = TestSupport::grabImage(&renderer, QStringLiteral("tst_furthercharts_renderer_taught"));
        QCOMPARE(image.pixelColor(left), QColor(200, 40, 40));
        QCOMPARE(image.pixelColor(right), QColor(30, 90, 200));
        // Captions: dark text beneath each swatch.
        const QRect captions(0, renderer.height() - 2 * renderer.fontMetrics().height() - 4, renderer.width(),
            2 * renderer.fontMetrics().height());
        QVERIFY(TestSupport::countPixels(image, captions, [](const QColor &c) { return c.lightness() < 100; }) > 20);
        renderer.setTaughtColor(QColor());
        image = renderer.grab().toImage();
        QCOMPARE(image.pixelColor(right), QColor(200, 40, 40));
        QCOMPARE(colorChanged.count(), 1);
        QCOMPARE(taughtChanged.count(), 2);
    }

    void calibrationPrompts_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("level");
        QTest::addColumn<bool>("confirm");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("instruction");
        const QString black = QStringLiteral("Cover the sensor so that no light reaches it.");
        const QString white = QStringLiteral("Present a white target to the sensor at its working distance.");
        QTest::newRow("black level confirmed") << "blackLevelButton" << int(LevelCalibrationPrompt::BlackLevel) << true
                                               << "Black level calibration" << black;
        QTest::newRow("white level confirmed") << "whiteLevelButton" << int(LevelCalibrationPrompt::WhiteLevel) << true
                                               << "White level calibration" << white;
        QTest::newRow("black level cancelled") << "blackLevelButton" << int(LevelCalibrationPrompt::BlackLevel) << false
                                               << "Black level calibration" << black;
    }

    void calibrationPrompts()
    {
        QFETCH(QString, button);
        QFETCH(int, level);
        QFETCH(bool, confirm);
        ColorChart chart;
        QVERIFY(TestSupport::show(&chart, QSize(560, 240)));
        QSignalSpy calibrated(&chart, &ColorChart::levelCalibrated);

        // What the prompt shows before and after the sensor's first reading; checked after it closed.
        QString shownTitle, shownInstruction, waiting, reading;
        bool confirmBefore = true, confirmAfter = false;
        const auto handled = TestSupport::whenModal<LevelCalibrationPrompt>([&](LevelCalibrationPrompt *prompt) {
            auto *ok = prompt->findChild<QPushButton *>(QStringLiteral("confirmButton"));
            auto *label = prompt->findChild<QLabel *>(QStringLiteral("readingLabel"));
            shownTitle = prompt->windowTitle();
            shownInstruction = prompt->oInstruction();
            confirmBefore = ok->isEnabled();
            waiting = label->text();
            chart.vAppendData(12.0, 34.4, 56.0, true, kT0);
            confirmAfter = ok->isEnabled();
            reading = label->text();
            TestSupport::grabImage(prompt, QStringLiteral("tst_furthercharts_prompt_%1").arg(level));
            QTest::mouseClick(
                confirm ? ok : prompt->findChild<QPushButton *>(QStringLiteral("cancelButton")), Qt::LeftButton);
        });
        QTest::mouseClick(chart.findChild<QPushButton *>(button), Qt::LeftButton);
        QVERIFY(*handled);

        QTEST(shownTitle, "title");
        QTEST(shownInstruction, "instruction");
        QVERIFY(!confirmBefore);
        QCOMPARE(waiting, QStringLiteral("Waiting for a reading from the sensor..."));
        QVERIFY(confirmAfter);
        QCOMPARE(reading, QStringLiteral("Reading: R 12  G 34  B 56"));

        const QList<double> expected { 12.0, 34.4, 56.0 };
        const bool black = level == LevelCalibrationPrompt::BlackLevel;
        QCOMPARE(chart.oBlackLevel(), confirm && black ? expected : (QList<double> { 0, 0, 0 }));
        QCOMPARE(chart.oWhiteLevel(), confirm && !black ? expected : (QList<double> { 255, 255, 255 }));
        QCOMPARE(calibrated.count(), int(confirm));
        if (confirm) {
            QCOMPARE(
                calibrated.first().at(0).value<LevelCalibrationPrompt::Level>(), LevelCalibrationPrompt::Level(level));
            QCOMPARE(calibrated.first().at(2).toDouble(), 34.4);
        }
        // The prompt is gone with its answer.
        QVERIFY(!chart.findChild<LevelCalibrationPrompt *>());
    }

    void textsFollowTheLanguage()
    {
        ColorChart chart;
        auto *black = chart.findChild<QPushButton *>(QStringLiteral("blackLevelButton"));
        auto *white = chart.findChild<QPushButton *>(QStringLiteral("whiteLevelButton"));
        LevelCalibrationPrompt prompt(LevelCalibrationPrompt::WhiteLevel);
        QCOMPARE(black->text(), QStringLiteral("Black level..."));
        {
            TestSupport::GermanTranslation german;
            QVERIFY(german.isLoaded());
            QTRY_COMPARE(black->text(), QStringLiteral("Schwarzwert..."));
            QCOMPARE(white->text(), QStringLiteral("Wei\u00DFwert..."));
            QTRY_COMPARE(prompt.windowTitle(), QStringLiteral("Wei\u00DFwertabgleich"));
            QCOMPARE(prompt.findChild<QPushButton *>(QStringLiteral("confirmButton"))->text(),
                QStringLiteral("Best\u00E4tigen"));
        }
        QTRY_COMPARE(prompt.windowTitle(), QStringLiteral("White level calibration"));
    }
};

QTEST_MAIN(tst_FurtherCharts)
#include "tst_furthercharts.moc"
