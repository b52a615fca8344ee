// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholds/thresholdsdata.h"

#include <QtTest>

#include <memory>

using Utils::ThresholdsData;

namespace {

struct CountingObserver : Utils::Observer
{
    int calls = 0;
    void update(void *) override { ++calls; }
};

enum Side { Low, High };

} // namespace

Q_DECLARE_METATYPE(ThresholdsData::Component)
Q_DECLARE_METATYPE(Side)

class tst_ThresholdsData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clamping_data()
    {
        QTest::addColumn<ThresholdsData::Component>("component");
        QTest::addColumn<Side>("side");
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("noUpperLimit");
        QTest::addColumn<bool>("allowNegative");
        QTest::addColumn<double>("stored");

        QTest::newRow("red low 600 stops one below the high limit") << ThresholdsData::Red << Low << 600.0 << false << false << 511.0;
        QTest::newRow("red high 600") << ThresholdsData::Red << High << 600.0 << false << false << 512.0;
        QTest::newRow("hue high 400") << ThresholdsData::Hue << High << 400.0 << false << false << 359.0;
        QTest::newRow("hue low 400") << ThresholdsData::Hue << Low << 400.0 << false << false << 359.0;
        QTest::newRow("no upper limit") << ThresholdsData::Red << High << 600.0 << true << false << 600.0;
        QTest::newRow("negative allowed") << ThresholdsData::Red << Low << -5.0 << false << true << -5.0;
        QTest::newRow("negative refused even without upper limit") << ThresholdsData::Red << Low << -5.0 << true << false << 0.0;
    }

    void clamping()
    {
        QFETCH(ThresholdsData::Component, component);
        QFETCH(Side, side);
        QFETCH(double, value);
        QFETCH(bool, noUpperLimit);
        QFETCH(bool, allowNegative);
        QFETCH(double, stored);

        ThresholdsData data;
        CountingObserver observer;
        data.attach(&observer);
        if (side == Low)
            data.setLow(component, value, noUpperLimit, allowNegative);
        else
            data.setHigh(component, value, noUpperLimit, allowNegative);
        QCOMPARE(data.low(component), side == Low ? stored : 0.0);
        QCOMPARE(data.high(component), side == High ? stored : 0.0);
        QCOMPARE(observer.calls, 1);
    }

    void outOfRangeComponent()
    {
        ThresholdsData data;
        CountingObserver observer;
        data.attach(&observer);
        for (int c : {-1, 9, 1000}) {
            const auto component = ThresholdsData::Component(c);
            data.setLow(component, 10.0, false, false);
            data.setHigh(component, 20.0, false, false);
            data.setThresholdConstant(component, 5);
            data.setFromHexString(component, "0123456789ABCDEF");
            QCOMPARE(data.low(component), -1.0);
            QCOMPARE(data.high(component), -1.0);
            QCOMPARE(data.noise(component), -1);
            QCOMPARE(data.toHexString(component), std::string("0000000000000000"));
        }
        // Setters notify even when nothing was stored.
        QCOMPARE(observer.calls, 9);
        // Found by the fuzzer: a negative component with a short string.
        data.setFromHexString(ThresholdsData::Component(-11), "0032zz1400200");
        QCOMPARE(observer.calls, 9);
        for (int c = ThresholdsData::Hue; c <= ThresholdsData::Extra3; ++c)
            QCOMPARE(data.toHexString(ThresholdsData::Component(c)), std::string("0000000000000000"));
    }

    void noiseSlots()
    {
        ThresholdsData data;
        CountingObserver observer;
        data.attach(&observer);
        data.setNoise(ThresholdsData::Hue, 4);
        data.setNoise(ThresholdsData::Saturation, 6);
        data.setNoise(ThresholdsData::Lightness, -3);
        data.setNoise(ThresholdsData::Red, 99); // no slot of its own: ignored, still notified
        QCOMPARE(observer.calls, 4);
        QCOMPARE(data.noise(ThresholdsData::Hue), 4);
        QCOMPARE(data.noise(ThresholdsData::Saturation), 6);
        QCOMPARE(data.noise(ThresholdsData::Lightness), 0);

        // The colour noise applies to Red in the string, yet noise(Red) answers -1.
        QCOMPARE(data.noise(ThresholdsData::Red), -1);
        data.setHigh(ThresholdsData::Red, 100, false, false);
        data.setLow(ThresholdsData::Red, 50, false, false);
        data.setThresholdConstant(ThresholdsData::Red, 0x8000);
        QCOMPARE(data.toHexString(ThresholdsData::Red), std::string("806880648032802E"));
    }

    void hueGivesColourLimits_data()
    {
        QTest::addColumn<Side>("side");
        QTest::addColumn<double>("hue");
        QTest::addColumn<double>("saturation");
        QTest::addColumn<double>("lightness");
        QTest::addColumn<int>("red");
        QTest::addColumn<int>("green");
        QTest::addColumn<int>("blue");

        // Saturation 510 and lightness 254 give HSL (h, 255, 127): full colours whose
        // spread is stretched to 0..512.
        QTest::newRow("orange") << High << 30.0 << 510.0 << 254.0 << 512 << 256 << 0;
        QTest::newRow("fraction truncated") << High << 60.9 << 510.0 << 254.0 << 512 << 512 << 0;
        QTest::newRow("clamped 400 is 359") << High << 400.0 << 510.0 << 254.0 << 512 << 0 << 8;
        // Lightness 0 would be black; read as 1 it is a very dark but real green.
        QTest::newRow("zero lightness counts as one") << Low << 120.0 << 510.0 << 0.0 << 0 << 512 << 0;
        QTest::newRow("lightness 1 halves to black") << Low << 120.0 << 510.0 << 1.0 << 0 << 0 << 0;
        QTest::newRow("white is grey: all 0") << High << 120.0 << 510.0 << 510.0 << 0 << 0 << 0;
    }

    void hueGivesColourLimits()
    {
        QFETCH(Side, side);
        QFETCH(double, hue);
        QFETCH(double, saturation);
        QFETCH(double, lightness);
        QFETCH(int, red);
        QFETCH(int, green);
        QFETCH(int, blue);

        ThresholdsData data;
        for (auto c : {ThresholdsData::Red, ThresholdsData::Green, ThresholdsData::Blue}) {
            data.setLow(c, 77, false, false);
            data.setHigh(c, 77, false, false);
        }
        auto set = side == Low ? &ThresholdsData::setLow : &ThresholdsData::setHigh;
        auto get = side == Low ? &ThresholdsData::low : &ThresholdsData::high;
        (data.*set)(ThresholdsData::Saturation, saturation, false, false);
        (data.*set)(ThresholdsData::Lightness, lightness, false, false);
        (data.*set)(ThresholdsData::Hue, hue, false, false);
        QCOMPARE((data.*get)(ThresholdsData::Red), double(red));
        QCOMPARE((data.*get)(ThresholdsData::Green), double(green));
        QCOMPARE((data.*get)(ThresholdsData::Blue), double(blue));
        // Both sides are recomputed: the other side (hue 0, saturation and lightness
        // 0 read as 1) is grey, so its limits are 0.
        const auto other = side == Low ? &ThresholdsData::high : &ThresholdsData::low;
        QCOMPARE((data.*other)(ThresholdsData::Red), 0.0);
    }

    void toHexString_data()
    {
        QTest::addColumn<ThresholdsData::Component>("component");
        QTest::addColumn<int>("constant");
        QTest::addColumn<int>("noise");
        QTest::addColumn<double>("low");
        QTest::addColumn<double>("high");
        QTest::addColumn<QString>("text");

        QTest::newRow("saturation noise") << ThresholdsData::Saturation << 0x8000 << 16 << 100.0 << 300.0 << "813C812C80648054";
        QTest::newRow("values truncated") << ThresholdsData::Blue << 0 << 1 << 10.9 << 20.9 << "00150014000A0009";
        // Word 4 of this record is not held at 0; a negative word shows all its bits.
        QTest::newRow("negative word 4") << ThresholdsData::Lightness << 0 << 5 << 3.0 << 0.0 << "000500000003FFFFFFFE";
        QTest::newRow("no word cut to four digits") << ThresholdsData::Extra1 << 0xFFFF << 0 << 1.0 << 2.0 << "10001100011000010000";
    }

    void toHexString()
    {
        QFETCH(ThresholdsData::Component, component);
        QFETCH(int, constant);
        QFETCH(int, noise);
        QFETCH(double, low);
        QFETCH(double, high);
        QFETCH(QString, text);

        ThresholdsData data;
        data.setThresholdConstant(component, constant);
        const bool ownSlot = component == ThresholdsData::Saturation || component == ThresholdsData::Lightness;
        data.setNoise(ownSlot ? component : ThresholdsData::Hue, noise);
        data.setLow(component, low, false, false);
        data.setHigh(component, high, false, false);
        QCOMPARE(QString::fromStdString(data.toHexString(component)), text);
    }

    void fromHexString_data()
    {
        QTest::addColumn<ThresholdsData::Component>("component");
        QTest::addColumn<int>("constant");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("low");
        QTest::addColumn<double>("high");
        QTest::addColumn<ThresholdsData::Component>("noiseSlot");
        QTest::addColumn<int>("noise");

        QTest::newRow("both clamped to 510, negative noise kept")
            << ThresholdsData::Saturation << 0 << "0123456789ABCDEF" << 510.0 << 510.0 << ThresholdsData::Saturation << -17476;
        QTest::newRow("offset subtracted") << ThresholdsData::Lightness << 0x8000 << "8136812C80648000" << 100.0 << 300.0
                                           << ThresholdsData::Lightness << 10;
        QTest::newRow("below the offset gives 0") << ThresholdsData::Extra1 << 0x8000 << "0010000500020000" << 0.0 << 0.0
                                                  << ThresholdsData::Hue << 11;
        QTest::newRow("non-hex word reads 0") << ThresholdsData::Lightness << 0 << "0032zz1400280000" << 40.0 << 0.0
                                              << ThresholdsData::Lightness << 50;
        QTest::newRow("word 4 ignored") << ThresholdsData::Saturation << 0 << "0014000A0005!?*#" << 5.0 << 10.0
                                        << ThresholdsData::Saturation << 10;
    }

    void fromHexString()
    {
        QFETCH(ThresholdsData::Component, component);
        QFETCH(int, constant);
        QFETCH(QString, text);
        QFETCH(double, low);
        QFETCH(double, high);
        QFETCH(ThresholdsData::Component, noiseSlot);
        QFETCH(int, noise);

        ThresholdsData data;
        CountingObserver observer;
        data.attach(&observer);
        data.setThresholdConstant(component, constant);
        data.setFromHexString(component, text.toStdString());
        QCOMPARE(observer.calls, 1);
        QCOMPARE(data.low(component), low);
        QCOMPARE(data.high(component), high);
        QCOMPARE(data.noise(noiseSlot), noise);
    }

    void fromHexStringRecomputesHue()
    {
        ThresholdsData data;
        // Red high 510, low 0: hue high of (255, 0, 0) is 0; black has no hue (-1).
        data.setFromHexString(ThresholdsData::Red, "000001FE00000000");
        QCOMPARE(data.high(ThresholdsData::Hue), 0.0);
        QCOMPARE(data.low(ThresholdsData::Hue), -1.0);

        data.setFromHexString(ThresholdsData::Green, "000001FE00000000");
        QCOMPARE(data.high(ThresholdsData::Hue), 60.0);

        // A hue read for Hue itself (200 / 100) is replaced by the hue of the stored
        // colour limits; its noise (0 - 200) is kept.
        data.setFromHexString(ThresholdsData::Hue, "000000C800640000");
        QCOMPARE(data.high(ThresholdsData::Hue), 60.0);
        QCOMPARE(data.low(ThresholdsData::Hue), -1.0);
        QCOMPARE(data.noise(ThresholdsData::Hue), -200);

        // Saturation and Lightness leave the hue alone.
        data.setHigh(ThresholdsData::Hue, 33, false, false);
        data.setFromHexString(ThresholdsData::Saturation, "000001FE00000000");
        QCOMPARE(data.high(ThresholdsData::Hue), 33.0);
    }

    void wrongLengthChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("15") << QByteArray("0123456789ABCDE");
        QTest::newRow("17") << QByteArray("0123456789ABCDEF0");
        QTest::newRow("embedded zero byte, 17") << QByteArray("0123456789AB\0CDEF", 17);
    }

    void wrongLengthChangesNothing()
    {
        QFETCH(QByteArray, text);
        ThresholdsData data;
        data.setLow(ThresholdsData::Saturation, 7, false, false);
        data.setNoise(ThresholdsData::Saturation, 3);
        CountingObserver observer;
        data.attach(&observer);
        data.setFromHexString(ThresholdsData::Saturation, std::string(text.constData(), size_t(text.size())));
        QCOMPARE(observer.calls, 0);
        QCOMPARE(data.low(ThresholdsData::Saturation), 7.0);
        QCOMPARE(data.noise(ThresholdsData::Saturation), 3);
    }

    void copiesShareValues()
    {
        auto source = std::make_unique<ThresholdsData>();
        CountingObserver sourceObserver;
        source->attach(&sourceObserver);

        // Copies start without observers: the source's observer hears nothing of them.
        ThresholdsData copy(*source);
        copy.setHigh(ThresholdsData::Red, 42, false, false);
        QCOMPARE(source->high(ThresholdsData::Red), 42.0);
        QCOMPARE(sourceObserver.calls, 0);

        ThresholdsData assigned;
        assigned = *source;
        source->setNoise(ThresholdsData::Hue, 9);
        QCOMPARE(copy.noise(ThresholdsData::Hue), 9);
        QCOMPARE(assigned.noise(ThresholdsData::Hue), 9);

        // The shared values outlive the record that made them.
        source.reset();
        assigned.setLow(ThresholdsData::Blue, 11, false, false);
        QCOMPARE(copy.low(ThresholdsData::Blue), 11.0);
        QCOMPARE(copy.high(ThresholdsData::Red), 42.0);
    }
};

QTEST_GUILESS_MAIN(tst_ThresholdsData)
#include "tst_thresholdsdata.moc"
