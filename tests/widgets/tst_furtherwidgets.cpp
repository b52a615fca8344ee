// SPDX-License-Identifier: LGPL-2.1-or-later
#include "imagechecks.h"

#include "widgets/connectionstatus.h"
#include "widgets/outputselector.h"
#include "widgets/sensorprogressbar.h"
#include "widgets/widgetoverlay.h"

#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

using TestSupport::colorDistance;
using Utils::ConnectionStatus;
using Utils::OutputSelector;
using Utils::SensorProgressBar;
using Utils::WidgetOverlay;

namespace {

bool dark(const QColor &c)
{
    return c.lightness() < 110;
}

// A key sequence as text: "Right Right End 3" (Qt key names).
QList<int> keys(const QString &sequence)
{
    QList<int> result;
    for (const QString &name : sequence.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        result << QKeySequence::fromString(name)[0];
    return result;
}

//! Clicks \a pos of \a window where the window system would deliver it: on the topmost widget there.
void clickAt(QWidget *window, const QPoint &pos)
{
    QWidget *receiver = window->childAt(pos);
    if (!receiver)
        receiver = window;
    QTest::mouseClick(receiver, Qt::LeftButton, Qt::NoModifier, receiver->mapFrom(window, pos));
}

// Mean lightness of a widget's pixels within its rect.
int meanLightness(const QImage &image, const QRect &area)
{
    long long sum = 0;
    int count = 0;
    TestSupport::countPixels(image, area, [&](const QColor &c) {
        sum += c.lightness();
        ++count;
        return true;
    });
    return count ? int(sum / count) : -1;
}

} // namespace

class tst_FurtherWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void statusTextsAndLamp_data()
    {
        QTest::addColumn<bool>("connected");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("lamp");
        // The capital C of the first text and the small d of the second are the texts hosts look for.
        QTest::newRow("connected") << true << "Sensor Connected" << QColor(0, 170, 60);
        QTest::newRow("disconnected") << false << "Sensor disconnected" << QColor(210, 40, 40);
    }

    void statusTextsAndLamp()
    {
        QFETCH(bool, connected);
        QFETCH(QString, text);
        QFETCH(QColor, lamp);
        ConnectionStatus status;
        status.setConnected(connected);
        status.show();
        QVERIFY(QTest::qWaitForWindowExposed(&status));
        QCOMPARE(status.text(), text);
        QCOMPARE(status.accessibleName(), text);

        const QImage image
            = TestSupport::grabImage(&status, QStringLiteral("tst_furtherwidgets_status_%1").arg(connected));
        const int diameter = status.fontMetrics().height() - 2;
        // The lamp's rim is its colour, darker; its middle is lit, between the colour and white.
        const QColor middle = image.pixelColor(2 + diameter / 2, image.height() / 2);
        QVERIFY2(colorDistance(middle, lamp) < 200, qPrintable(middle.name()));
        QVERIFY(colorDistance(middle, connected ? QColor(210, 40, 40) : QColor(0, 170, 60)) > 200);
        // The text is written right of the lamp, and the whole text fits the size hint.
        QVERIFY(TestSupport::countPixels(image, QRect(diameter + 8, 0, image.width(), image.height()), dark) > 30);
        QVERIFY(status.sizeHint().width() >= status.fontMetrics().horizontalAdvance(text) + diameter);
    }

    void statusSignalsOnChangeOnly()
    {
        ConnectionStatus status;
        QSignalSpy changed(&status, &ConnectionStatus::connectedChanged);
        status.setConnected(false);
        status.setConnected(true);
        status.setConnected(true);
        status.setProperty("connected", false);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.at(0).first().toBool(), true);
        QCOMPARE(changed.at(1).first().toBool(), false);
    }

    void outputSelectorKeys_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("sequence");
        QTest::addColumn<int>("expected");
        QTest::addColumn<int>("changes");
        QTest::newRow("Right steps up and stops at the last") << 4 << "Right Right Right Right Right" << 4 << 3;
        QTest::newRow("Left stops at the first") << 4 << "Left" << 1 << 0;
        QTest::newRow("Up and Down step too") << 4 << "Up Up Down" << 2 << 3;
        QTest::newRow("End and Home jump") << 6 << "End Home" << 1 << 2;
        QTest::newRow("a digit chooses that output") << 4 << "3" << 3 << 1;
        QTest::newRow("a digit beyond the outputs is ignored") << 4 << "7" << 1 << 0;
        QTest::newRow("one output: nothing moves") << 1 << "Right End 2" << 1 << 0;
    }

    void outputSelectorKeys()
    {
        QFETCH(int, count);
        QFETCH(QString, sequence);
        QFETCH(int, expected);
        QFETCH(int, changes);
        OutputSelector selector;
        selector.setOutputCount(count);
        selector.show();
        QVERIFY(QTest::qWaitForWindowExposed(&selector));
        selector.setFocus();
        QSignalSpy changed(&selector, &OutputSelector::outputChanged);
        for (int key : keys(sequence))
            QTest::keyClick(&selector, Qt::Key(key));
        QCOMPARE(selector.output(), expected);
        QCOMPARE(changed.count(), changes);
        if (changes > 0)
            QCOMPARE(changed.last().first().toInt(), expected);
        QVERIFY(selector.findChild<QToolButton *>(QStringLiteral("output%1").arg(expected))->isChecked());
    }

    void outputSelectorClicksAndRange()
    {
        OutputSelector selector;
        QCOMPARE(selector.outputCount(), 1);
        QSignalSpy changed(&selector, &OutputSelector::outputChanged);
        QSignalSpy counted(&selector, &OutputSelector::outputCountChanged);
        selector.setOutputCount(4);
        selector.show();
        QVERIFY(QTest::qWaitForWindowExposed(&selector));
        const auto button
            = [&](int output) { return selector.findChild<QToolButton *>(QStringLiteral("output%1").arg(output)); };
        QCOMPARE(selector.findChildren<QToolButton *>().size(), 4);

        // A click chooses, and gives the selector the focus for the keys.
        QTest::mouseClick(button(3), Qt::LeftButton);
        QVERIFY(selector.hasFocus());
        QTest::mouseClick(button(3), Qt::LeftButton);
        QCOMPARE(changed.count(), 1);
        // The chosen button looks pressed: darker than the others.
        const QImage image = TestSupport::grabImage(&selector, QStringLiteral("tst_furtherwidgets_outputs"));
        const int chosen = meanLightness(image, button(3)->geometry().adjusted(2, 2, -2, -2));
        const int other = meanLightness(image, button(2)->geometry().adjusted(2, 2, -2, -2));
        QVERIFY2(chosen < other - 5, qPrintable(QStringLiteral("%1 %2").arg(chosen).arg(other)));

        // Numbers outside 1..n are ignored; the count is clamped to 1..32; fewer outputs take the chosen one along.
        selector.setOutput(0);
        selector.setOutput(5);
        QCOMPARE(selector.output(), 3);
        selector.setOutputCount(2);
        QCOMPARE(selector.output(), 2);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(selector.findChildren<QToolButton *>().size(), 2);
        QVERIFY(button(2)->isChecked());
        selector.setOutputCount(0);
        QCOMPARE(selector.outputCount(), 1);
        selector.setOutputCount(40);
        QCOMPARE(selector.outputCount(), OutputSelector::kMaximumOutputs);
        selector.setOutputCount(32);
        QCOMPARE(counted.count(), 4); // 4, 2, 1, 32
        QCOMPARE(selector.output(), 1);
    }

    void progressDeterminate_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("percent");
        QTest::addColumn<QString>("shown");
        QTest::newRow("a quarter with a text") << 0 << 200 << 50 << "Teach-in" << 25 << "Teach-in (25 %)";
        QTest::newRow("without a text the percentage alone") << 0 << 200 << 50 << "" << 25 << "25 %";
        QTest::newRow("truncated: 100 % only when done") << 0 << 200 << 199 << "Read-out" << 99 << "Read-out (99 %)";
        QTest::newRow("beyond the maximum is clamped") << 0 << 10 << 25 << "" << 100 << "100 %";
        QTest::newRow("a range not starting at 0") << 100 << 300 << 150 << "" << 25 << "25 %";
    }

    void progressDeterminate()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, value);
        QFETCH(QString, text);
        QFETCH(int, percent);
        SensorProgressBar bar;
        bar.setRange(minimum, maximum);
        bar.setText(text);
        bar.setValue(value);
        QVERIFY(TestSupport::show(&bar, QSize(300, 28)));
        QCOMPARE(bar.nPercent(), percent);
        QTEST(bar.oDisplayText(), "shown");

        // The chunk fills that share of the trough (a row above the text).
        const QImage image
            = TestSupport::grabImage(&bar, QStringLiteral("tst_furtherwidgets_progress_%1").arg(percent));
        const int filled = TestSupport::countPixels(image, QRect(2, 4, image.width() - 4, 1),
            [&](const QColor &c) { return colorDistance(c, bar.chunkColor()) < 30; });
        QVERIFY2(std::abs(filled - (image.width() - 4) * percent / 100) <= 3, qPrintable(QString::number(filled)));
        // The text is there, light on the chunk and dark beside it.
        const QRect middle(2, image.height() / 2 - 4, image.width() - 4, 8);
        if (percent < 100)
            QVERIFY(TestSupport::countPixels(image, middle, dark) > 10);
    }

    void progressIndeterminate()
    {
        SensorProgressBar bar;
        QCOMPARE(bar.oDisplayText(), QString()); // idle until something starts
        bar.resize(300, 28);
        QSignalSpy values(&bar, &SensorProgressBar::valueChanged);
        QSignalSpy finished(&bar, &SensorProgressBar::finished);
        bar.vStart(QStringLiteral("Reading parameters"), 0);
        QVERIFY(bar.isIndeterminate());
        QCOMPARE(bar.nPercent(), -1);
        QCOMPARE(bar.oDisplayText(), QStringLiteral("Reading parameters"));
        TestSupport::PaintCounter paints(&bar);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));

        // The block sweeps: where it is changes with time, with nothing else happening.
        const auto blockLeft = [&bar]() {
            const QImage image = bar.grab().toImage();
            for (int x = 0; x < image.width(); ++x) {
                if (colorDistance(image.pixelColor(x, 4), bar.chunkColor()) < 30)
                    return x;
            }
            return -1;
        };
        const int first = blockLeft();
        QVERIFY(first >= 0);
        TestSupport::grabImage(&bar, QStringLiteral("tst_furtherwidgets_progress_busy"));
        QTRY_VERIFY_WITH_TIMEOUT(std::abs(blockLeft() - first) > 20, 1500);
        // It is repainted by itself while it sweeps.
        paints.count = 0;
        QTRY_VERIFY_WITH_TIMEOUT(paints.count >= 3, 2000);

        bar.vFinish(QStringLiteral("Parameters read"));
        // Determinate again: the bar repaints for changes only.
        QTest::qWait(60);
        paints.count = 0;
        QTest::qWait(150);
        QCOMPARE(paints.count, 0);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(bar.nPercent(), 100);
        QCOMPARE(bar.oDisplayText(), QStringLiteral("Parameters read (100 %)"));
        bar.vStart(QStringLiteral("Teach-in"), 40);
        QCOMPARE(bar.oDisplayText(), QStringLiteral("Teach-in (0 %)"));
        bar.vReset();
        QCOMPARE(bar.oDisplayText(), QString());
        bar.setValue(10);
        QCOMPARE(bar.oDisplayText(), QStringLiteral("25 %"));
        QCOMPARE(values.count(), 1); // only the 10: 0 .. 0 .. 0 before never changed
    }

    void overlayFollowsAndBlocksItsTarget()
    {
        QWidget target;
        target.setAutoFillBackground(true);
        QPalette palette = target.palette();
        palette.setColor(QPalette::Window, QColor(0, 0, 160));
        target.setPalette(palette);
        auto *button = new QPushButton(QStringLiteral("Zoom"), &target);
        button->setGeometry(10, 10, 80, 30);
        QSignalSpy clicked(button, &QPushButton::clicked);
        QVERIFY(TestSupport::show(&target, QSize(320, 200)));

        auto *overlay = new WidgetOverlay(&target);
        QVERIFY(!overlay->isVisible());
        QSignalSpy messages(overlay, &WidgetOverlay::messageChanged);
        overlay->vShowMessage(QStringLiteral("Sensor disconnected"));
        overlay->vShowMessage(QStringLiteral("Sensor disconnected"));
        QCOMPARE(messages.count(), 1);
        QVERIFY(overlay->isVisible());
        QCOMPARE(overlay->geometry(), target.rect());

        // The target grows and shrinks: the overlay keeps covering it.
        target.resize(500, 320);
        QCOMPARE(overlay->geometry(), QRect(0, 0, 500, 320));
        target.resize(260, 180);
        QCOMPARE(overlay->geometry(), QRect(0, 0, 260, 180));

        // Translucent: the target's blue shows through, lightened; the message is written in the middle.
        QImage image = TestSupport::grabImage(&target, QStringLiteral("tst_furtherwidgets_overlay"));
        const QColor corner = image.pixelColor(image.width() - 3, image.height() - 3);
        QVERIFY2(corner.blue() > corner.red() + 20 && corner.red() > 120, qPrintable(corner.name()));
        QVERIFY(TestSupport::countPixels(image, QRect(0, image.height() / 2 - 12, image.width(), 24), dark) > 30);

        // The widget beneath gets no click while the overlay blocks input, and does when it lets it through.
        clickAt(&target, QPoint(30, 20));
        QCOMPARE(clicked.count(), 0);
        overlay->setBlocksInput(false);
        clickAt(&target, QPoint(30, 20));
        QCOMPARE(clicked.count(), 1);

        // A widget added to the target later stays beneath the overlay.
        auto *late = new QLabel(QStringLiteral("late"), &target);
        late->show();
        QTRY_COMPARE(target.children().last(), static_cast<QObject *>(overlay));

        overlay->hide();
        image = target.grab().toImage();
        QCOMPARE(image.pixelColor(image.width() - 3, image.height() - 3), QColor(0, 0, 160));
    }

    void textsFollowTheLanguage()
    {
        ConnectionStatus status;
        OutputSelector selector;
        auto *label = selector.findChild<QLabel *>();
        {
            TestSupport::GermanTranslation german;
            QVERIFY(german.isLoaded());
            QTRY_COMPARE(label->text(), QStringLiteral("Ausgang"));
            QCOMPARE(status.text(), QStringLiteral("Sensor getrennt"));
            QCOMPARE(status.accessibleName(), QStringLiteral("Sensor getrennt"));
            status.setConnected(true);
            QCOMPARE(status.text(), QStringLiteral("Sensor verbunden"));
        }
        QTRY_COMPARE(label->text(), QStringLiteral("Output"));
        QCOMPARE(status.text(), QStringLiteral("Sensor Connected"));
    }
};

QTEST_MAIN(tst_FurtherWidgets)
#include "tst_furtherwidgets.moc"
