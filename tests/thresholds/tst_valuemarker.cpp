// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholds/valuemarker.h"
#include "thresholds/valuemarkercolor.h"
#include "thresholds/valuemarkermultilist.h"
#include "imagechecks.h"

#include <qwt_plot.h>
#include <qwt_plot_item.h>

#include <QtTest>

#include <memory>

using TestSupport::colorDistance;
using Utils::ValueMarker;
using Utils::ValueMarkerColor;
using Utils::ValueMarkerMultiList;

namespace {

enum class Kind { Value, Color, MultiList };

using Setup = void (*)(ValueMarker *);

ValueMarkerColor *color(ValueMarker *marker)
{
    return qobject_cast<ValueMarkerColor *>(marker);
}

ValueMarkerMultiList *multiList(ValueMarker *marker)
{
    return qobject_cast<ValueMarkerMultiList *>(marker);
}

// A plot item that only counts how often the plot draws it.
class DrawCounter : public QwtPlotItem
{
public:
    mutable int draws = 0;
    void draw(QPainter *, const QwtScaleMap &, const QwtScaleMap &, const QRectF &) const override { ++draws; }
};

// Another language for the label words, to see them change with the application's language.
class WordTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        static const QHash<QString, QString> words = {
            { QStringLiteral("Signal %1"), QStringLiteral("Sonde %1 mV") },
            { QStringLiteral("Signal"), QStringLiteral("Sonde") },
            { QStringLiteral("S"), QStringLiteral("K") },
            { QStringLiteral("R"), QStringLiteral("Rot") },
            { QStringLiteral("G"), QStringLiteral("Gr\u00FCn") },
            { QStringLiteral("B"), QStringLiteral("Blau") },
        };
        if (qstrcmp(context, "Utils::ValueMarker") != 0)
            return QString();
        return words.value(QLatin1String(source));
    }
    bool isEmpty() const override { return false; }
};

} // namespace

Q_DECLARE_METATYPE(Kind)
Q_DECLARE_METATYPE(Setup)

class tst_ValueMarker : public QObject
{
    Q_OBJECT

    // Each test starts with a shown plain plot; markers live on its canvas.
    std::unique_ptr<QwtPlot> plot;

    ValueMarker *create(Kind kind)
    {
        switch (kind) {
        case Kind::Color:
            return new ValueMarkerColor(plot.get());
        case Kind::MultiList:
            return new ValueMarkerMultiList(plot.get());
        default:
            return new ValueMarker(plot.get());
        }
    }

private Q_SLOTS:
    void init()
    {
        plot = std::make_unique<QwtPlot>();
        QVERIFY(TestSupport::show(plot.get(), QSize(400, 300)));
        plot->replot();
    }

    void cleanup() { plot.reset(); }

    void labelText_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<Setup>("setup");
        QTest::addColumn<QString>("text");

        const auto row = [](const char *name, Kind kind, Setup setup, const char *text) {
            QTest::newRow(name) << kind << setup << QString::fromUtf8(text);
        };
        // clang-format off
        row("new marker: Signal and a blank-padded 0", Kind::Value, [](ValueMarker *) {}, "Signal   0");
        row("first value painted, second only kept", Kind::Value, [](ValueMarker *m) { m->vSetValue(5, 9); }, "Signal   5");
        row("precision; long values pass the field width", Kind::Value,
            [](ValueMarker *m) { m->vSetValuePrecision(2); m->vSetValue(-12345.678, 0); }, "Signal -12345.68");
        row("halves round away from zero", Kind::Value, [](ValueMarker *m) { m->vSetValue(6.5, 0); }, "Signal   7");
        row("negative halves too", Kind::Value,
            [](ValueMarker *m) { m->vSetValuePrecision(2); m->vSetValue(-0.125, 0); }, "Signal -0.13");
        row("2.675 lies below its half", Kind::Value,
            [](ValueMarker *m) { m->vSetValuePrecision(2); m->vSetValue(2.675, 0); }, "Signal 2.67");
        row("negative zero is written 0", Kind::Value, [](ValueMarker *m) { m->vSetValue(-0.0, 0); }, "Signal   0");
        row("hidden signal word", Kind::Value, [](ValueMarker *m) { m->vHideSignal(true); m->vSetValue(5, 0); }, "   5");
        row("marker text flag leaves out the word", Kind::Value,
            [](ValueMarker *m) { m->vSetMarkerText(true); m->vSetValue(5, 0); }, "   5");
        row("marker text hides the value", Kind::Value,
            [](ValueMarker *m) { m->vSetMarkerText(QStringLiteral("Laser off")); m->vSetValue(5, 0); }, "Laser off");
        row("custom with TIFF: configured precision, no padding, signal word always", Kind::Value,
            [](ValueMarker *m) { m->vSetCustom(true); m->vHideSignal(true); m->vSetValuePrecision(1); m->vSetValue(5, 0); },
            "Signal 5.0");
        row("custom without TIFF: precision 2 whatever is set", Kind::Value,
            [](ValueMarker *m) {
                m->vSetCustom(true); m->vSetTIFFCustom(false); m->vSetMarkerText(true); m->vSetValuePrecision(4);
                m->vSetValue(5, 0);
            },
            "Signal 5.00");
        row("custom without TIFF, hidden signal word", Kind::Value,
            [](ValueMarker *m) { m->vSetCustom(true); m->vSetTIFFCustom(false); m->vHideSignal(true); m->vSetValue(5, 0); },
            " 5.00");

        row("colour: new marker", Kind::Color, [](ValueMarker *) {}, "Signal 0");
        row("colour: two values leave the text empty", Kind::Color,
            [](ValueMarker *m) { color(m)->vSetValueList({ 10, 1 }, { 0, 0 }); }, "");
        row("colour: one signal entry, numbered 1", Kind::Color,
            [](ValueMarker *m) { color(m)->vSetValueList({ 10, 1, 2, 7 }, { 0, 0, 0, 2 }); }, "Signal: 10 S1: 7");
        row("colour: positions 1 and 2 never written", Kind::Color,
            [](ValueMarker *m) { color(m)->vSetValueList({ 10, 1, 2 }, { 2, 2, 2 }); }, "Signal: 10");
        row("colour: entries keep their position number, missing types skip", Kind::Color,
            [](ValueMarker *m) { color(m)->vSetValueList({ 10, 1, 2, 7, 8, 9, 4 }, { 0, 0, 0, 2, 1, 2 }); },
            "Signal: 10 S1: 7 S3: 9");
        row("colour: six significant digits, halves away from zero", Kind::Color,
            [](ValueMarker *m) { color(m)->vSetValueList({ 1234565, 1, 2, 0.1 + 0.2 }, { 0, 0, 0, 2 }); },
            "Signal: 1.23457e+06 S1: 0.3");
        row("colour: RGB without the fourth value", Kind::Color,
            [](ValueMarker *m) { color(m)->vSetValueColor({ 1, 2, 3, 4 }, QStringLiteral("Red")); }, "R: 1  G: 2  B: 3");
        row("colour: RGB with two values", Kind::Color,
            [](ValueMarker *m) { color(m)->vSetValueColor({ 1, 2.5 }, QStringLiteral("Red")); }, "R: 1  G: 2.5");
        row("colour: one value after its name", Kind::Color,
            [](ValueMarker *m) { color(m)->vSetValueColor({ 42.5 }, QStringLiteral("Red")); }, "Red  42.5");
        row("colour: each call starts from empty", Kind::Color,
            [](ValueMarker *m) {
                color(m)->vSetValueList({ 10, 1, 2, 7 }, { 0, 0, 0, 2 });
                color(m)->vSetValueColor({}, QStringLiteral("Red"));
            },
            "");
        row("colour: single value, precision and layout do not apply", Kind::Color,
            [](ValueMarker *m) { m->vSetValuePrecision(2); m->vSetCustom(true); m->vSetValue(5, 0); }, "Signal 0");

        row("list: same text with colours", Kind::MultiList,
            [](ValueMarker *m) { multiList(m)->vSetValueList({ 10, 1, 2, 7 }, { 0, 0, 0, 2 }, { Qt::red }); },
            "Signal: 10 S1: 7");
        row("list: the host's word for Signal", Kind::MultiList,
            [](ValueMarker *m) {
                multiList(m)->translateElements(QStringLiteral("Kanal"));
                multiList(m)->vSetValueList({ 10, 1, 2, 7 }, { 0, 0, 0, 2 }, {});
            },
            "Kanal: 10 S1: 7");
        row("list: the host's word in the first text", Kind::MultiList,
            [](ValueMarker *m) { multiList(m)->translateElements(QStringLiteral("Kanal")); }, "Kanal 0");
        row("list: an empty word restores Signal", Kind::MultiList,
            [](ValueMarker *m) {
                multiList(m)->translateElements(QStringLiteral("Kanal"));
                multiList(m)->translateElements(QString());
            },
            "Signal 0");
        // clang-format on
    }

    void labelText()
    {
        QFETCH(Kind, kind);
        QFETCH(Setup, setup);
        ValueMarker *marker = create(kind);
        setup(marker);
        QTEST(marker->labelText(), "text");
    }

    void valueTextsOfTheLastColourReading()
    {
        auto *marker = new ValueMarkerColor(plot.get());
        marker->vSetValueColor({ 1, 2.5, 3, 4 }, QStringLiteral("Red"));
        // A single value and an empty reading are written but not kept.
        marker->vSetValueColor({ 9 }, QStringLiteral("Red"));
        marker->vSetValueColor({}, QStringLiteral("Red"));
        QCOMPARE(marker->valueTexts(), QStringList({ "1", "2.5", "3", "4" }));
        marker->vSetValueColor({ 7, 8 }, QString());
        QCOMPARE(marker->valueTexts(), QStringList({ "7", "8" }));
    }

    void geometry_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<bool>("custom");
        QTest::newRow("value marker") << Kind::Value << false;
        QTest::newRow("value marker, custom: canvas width") << Kind::Value << true;
        QTest::newRow("colour marker, custom") << Kind::Color << true;
        QTest::newRow("list marker") << Kind::MultiList << false;
    }

    void geometry()
    {
        QFETCH(Kind, kind);
        QFETCH(bool, custom);
        const QWidget *canvas = plot->canvas();
        const auto expected = [&]() { return QRect(0, 3, custom ? canvas->width() : 100, 30); };
        ValueMarker *marker = create(kind);
        QCOMPARE(marker->geometry(), QRect(QPoint(0, 3), QPoint(99, 32)));
        marker->vSetCustom(custom);
        QCOMPARE(marker->geometry(), expected());
        marker->resize(QSize(7, 7));
        QCOMPARE(marker->geometry(), expected());

        const int before = canvas->width();
        plot->resize(plot->width() + 150, plot->height() + 40);
        QVERIFY(canvas->width() > before);
        QCOMPARE(marker->geometry(), expected());
        QVERIFY(marker->isVisible());
    }

    void paintsHalfTransparentBoxWithText_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<Setup>("setup");
        QTest::addColumn<QList<QColor>>("inks");
        QTest::newRow("value in the marker blue") << Kind::Value << Setup([](ValueMarker *m) { m->vSetValue(42, 0); })
                                                  << QList<QColor>({ QColor(0, 97, 158) });
        QTest::newRow("colour text in black")
            << Kind::Color << Setup([](ValueMarker *) {}) << QList<QColor>({ Qt::black });
        // The list needs more than the 100 pixels of the normal box: custom gives it the canvas width.
        QTest::newRow("list values in their curve colours") << Kind::MultiList << Setup([](ValueMarker *m) {
            m->vSetCustom(true);
            multiList(m)->vSetValueList({ 10, 1, 2, 7 }, { 0, 0, 0, 2 }, { Qt::red, Qt::red, Qt::red, Qt::green });
        }) << QList<QColor>({ Qt::black, Qt::red, Qt::green });
    }

    void paintsHalfTransparentBoxWithText()
    {
        QFETCH(Kind, kind);
        QFETCH(Setup, setup);
        QFETCH(QList<QColor>, inks);
        const QColor background(0, 0, 255);
        plot->setCanvasBackground(background);
        plot->replot();
        ValueMarker *marker = create(kind);
        setup(marker);
        const QImage image
            = TestSupport::grabImage(plot->canvas(), QStringLiteral("tst_valuemarker_%1").arg(int(kind)));

        // White at alpha 127 over the blue canvas where the text leaves the box alone (its last column).
        const QRect box = marker->geometry().adjusted(2, 0, -2, 0); // less the canvas frame
        for (int y = box.top(); y <= box.bottom(); ++y)
            QVERIFY2(colorDistance(image.pixelColor(box.right(), y), QColor(127, 127, 255)) <= 6,
                     qPrintable(QString::number(y)));
        // Beside and below the box the canvas shows as it is.
        QVERIFY(colorDistance(image.pixelColor(50, box.bottom() + 8), background) <= 6);
        if (box.right() + 10 < image.width())
            QVERIFY(colorDistance(image.pixelColor(box.right() + 10, 15), background) <= 6);

        // Each ink is found in the box: the text is drawn in it, not only the background.
        for (const QColor &ink : qAsConst(inks)) {
            int best = 765;
            for (int y = box.top(); y <= box.bottom(); ++y)
                for (int x = box.left(); x <= box.right(); ++x)
                    best = std::min(best, colorDistance(image.pixelColor(x, y), ink));
            QVERIFY2(best <= 60, qPrintable(ink.name()));
        }
    }

    void valuesRepaintOnceWithoutReplot()
    {
        auto *item = new DrawCounter;
        item->attach(plot.get());
        auto *marker = new ValueMarker(plot.get());
        TestSupport::PaintCounter counter(marker);
        plot->replot();
        QTRY_VERIFY(counter.count > 0);
        QTest::qWait(50);
        counter.count = 0;
        item->draws = 0;

        // As a chart feeds a fast sensor: many samples between two frames.
        for (int i = 1; i <= 1000; ++i)
            marker->vSetValue(i, -i);
        QCOMPARE(counter.count, 0);
        QTRY_COMPARE(counter.count, 1);
        QTest::qWait(50);
        QCOMPARE(counter.count, 1);
        QCOMPARE(item->draws, 0);
        QCOMPARE(marker->labelText(), QStringLiteral("Signal 1000"));
    }

    void wordsFollowTheApplicationLanguage()
    {
        auto *value = new ValueMarker(plot.get());
        value->vSetValue(5, 0);
        auto *list = new ValueMarkerColor(plot.get());
        list->vSetValueList({ 10, 1, 2, 7 }, { 0, 0, 0, 2 });
        auto *reading = new ValueMarkerMultiList(plot.get());
        reading->vSetValueColor({ 1, 2, 3 }, QString());

        WordTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QTRY_COMPARE(value->labelText(), QStringLiteral("Sonde   5 mV"));
        QCOMPARE(list->labelText(), QStringLiteral("Sonde: 10 K1: 7"));
        QCOMPARE(reading->labelText(), QStringLiteral("Rot: 1  Gr\u00FCn: 2  Blau: 3"));

        QVERIFY(QCoreApplication::removeTranslator(&translator));
        QTRY_COMPARE(value->labelText(), QStringLiteral("Signal   5"));
        QCOMPARE(list->labelText(), QStringLiteral("Signal: 10 S1: 7"));
        QCOMPARE(reading->labelText(), QStringLiteral("R: 1  G: 2  B: 3"));
    }
};

QTEST_MAIN(tst_ValueMarker)
#include "tst_valuemarker.moc"
