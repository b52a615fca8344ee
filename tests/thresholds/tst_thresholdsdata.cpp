// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholds/thresholdsdata.h"

#include <QtTest>

#include <memory>

using Utils::ThresholdsData;
using C = ThresholdsData::Component;

namespace {

struct CountingObserver : Utils::Observer
{
    int calls = 0;
    void update(void *) override { ++calls; }
};

enum Side { Low, High };

struct LimitCase
{
    C component;
    Side side;
    double value;
    bool noUpperLimit, allowNegative;
    double stored;
};

struct HueCase
{
    Side side;
    double hue, saturation, lightness;
    int red, green, blue;
};

//! A channel's constant, noise, low and high, and its sensor string.
struct StringCase
{
    C component;
    int constant, noise;
    double low, high;
    QString text;
};

//! Saturation and lightness keep a noise of their own; every other channel shares the hue's.
C noiseSlot(C component)
{
    return component == C::Saturation || component == C::Lightness ? component : C::Hue;
}

} // namespace

Q_DECLARE_METATYPE(ThresholdsData::Component)
Q_DECLARE_METATYPE(LimitCase)
Q_DECLARE_METATYPE(HueCase)
Q_DECLARE_METATYPE(StringCase)

class tst_ThresholdsData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clamping_data()
    {
        QTest::addColumn<LimitCase>("c");
        QTest::newRow("red low 600 stops one below the high limit") << LimitCase{C::Red, Low, 600, false, false, 511};
        QTest::newRow("red high 600") << LimitCase{C::Red, High, 600, false, false, 512};
        QTest::newRow("hue high 400") << LimitCase{C::Hue, High, 400, false, false, 359};
        QTest::newRow("hue low 400") << LimitCase{C::Hue, Low, 400, false, false, 359};
        QTest::newRow("no upper limit") << LimitCase{C::Red, High, 600, true, false, 600};
        QTest::newRow("negative allowed") << LimitCase{C::Red, Low, -5, false, true, -5};
        QTest::newRow("negative refused even without upper limit") << LimitCase{C::Red, Low, -5, true, false, 0};
    }

    void clamping()
    {
        QFETCH(LimitCase, c);
        ThresholdsData data;
        CountingObserver observer;
        data.attach(&observer);
        (data.*(c.side == Low ? &ThresholdsData::setLow : &ThresholdsData::setHigh))(c.component, c.value,
                                                                                     c.noUpperLimit, c.allowNegative);
        QCOMPARE(data.low(c.component), c.side == Low ? c.stored : 0.0);
        QCOMPARE(data.high(c.component), c.side == High ? c.stored : 0.0);
        QCOMPARE(observer.calls, 1);
    }

    void outOfRangeComponent()
    {
        ThresholdsData data;
        CountingObserver observer;
        data.attach(&observer);
        for (int c : {-1, 9, 1000}) {
            const auto component = C(c);
            data.setLow(component, 10.0, false, false);
            data.setHigh(component, 20.0, false, false);
            data.setThresholdConstant(component, 5);
            data.setFromHexString(component, "0123456789ABCDEF");
            QCOMPARE(qMakePair(data.low(component), data.high(component)), qMakePair(-1.0, -1.0));
            QCOMPARE(data.noise(component), -1);
            QCOMPARE(data.toHexString(component), std::string("0000000000000000"));
        }
        // Found by the fuzzer: a negative component with a short string.
        data.setFromHexString(C(-11), "0032zz1400200");
        // Setters notify even when nothing was stored; a string of the wrong length does not.
        QCOMPARE(observer.calls, 9);
        for (int c = C::Hue; c <= C::Extra3; ++c)
            QCOMPARE(data.toHexString(C(c)), std::string("0000000000000000"));
    }

    void noiseSlots()
    {
        ThresholdsData data;
        CountingObserver observer;
        data.attach(&observer);
        data.setNoise(C::Hue, 4);
        data.setNoise(C::Saturation, 6);
        data.setNoise(C::Lightness, -3);
        data.setNoise(C::Red, 99); // no slot of its own: ignored, still notified
        QCOMPARE(observer.calls, 4);
        QCOMPARE(data.noise(C::Hue), 4);
        QCOMPARE(data.noise(C::Saturation), 6);
        QCOMPARE(data.noise(C::Lightness), 0);
        // The colour noise goes into every colour channel's string, yet noise(Red) answers -1.
        QCOMPARE(data.noise(C::Red), -1);
    }

    void hueGivesColourLimits_data()
    {
        QTest::addColumn<HueCase>("c");
        // Saturation 510 and lightness 254 give HSL (h, 255, 127): full colours whose
        // spread is stretched to 0..512.
        QTest::newRow("orange") << HueCase{High, 30, 510, 254, 512, 256, 0};
        QTest::newRow("fraction truncated") << HueCase{High, 60.9, 510, 254, 512, 512, 0};
        QTest::newRow("clamped 400 is 359") << HueCase{High, 400, 510, 254, 512, 0, 8};
        // Lightness 0 would be black; read as 1 it is a very dark but real green.
        QTest::newRow("zero lightness counts as one") << HueCase{Low, 120, 510, 0, 0, 512, 0};
        QTest::newRow("lightness 1 halves to black") << HueCase{Low, 120, 510, 1, 0, 0, 0};
        QTest::newRow("white is grey: all 0") << HueCase{High, 120, 510, 510, 0, 0, 0};
    }

    void hueGivesColourLimits()
    {
        QFETCH(HueCase, c);
        ThresholdsData data;
        for (C colour : {C::Red, C::Green, C::Blue}) {
            data.setLow(colour, 77, false, false);
            data.setHigh(colour, 77, false, false);
        }
        const auto set = c.side == Low ? &ThresholdsData::setLow : &ThresholdsData::setHigh;
        const auto get = c.side == Low ? &ThresholdsData::low : &ThresholdsData::high;
        (data.*set)(C::Saturation, c.saturation, false, false);
        (data.*set)(C::Lightness, c.lightness, false, false);
        (data.*set)(C::Hue, c.hue, false, false);
        QCOMPARE((data.*get)(C::Red), double(c.red));
        QCOMPARE((data.*get)(C::Green), double(c.green));
        QCOMPARE((data.*get)(C::Blue), double(c.blue));
        // Both sides are recomputed: the other side (hue 0, saturation and lightness
        // 0 read as 1) is grey, so its limits are 0.
        QCOMPARE((data.*(c.side == Low ? &ThresholdsData::high : &ThresholdsData::low))(C::Red), 0.0);
    }

    void toHexString_data()
    {
        QTest::addColumn<StringCase>("c");
        QTest::newRow("saturation noise") << StringCase{C::Saturation, 0x8000, 16, 100, 300, "813C812C80648054"};
        QTest::newRow("values truncated") << StringCase{C::Blue, 0, 1, 10.9, 20.9, "00150014000A0009"};
        // Word 4 of this record is not held at 0; a negative word shows all its bits.
        QTest::newRow("negative word 4") << StringCase{C::Lightness, 0, 5, 3, 0, "000500000003FFFFFFFE"};
        QTest::newRow("no word cut to four digits") << StringCase{C::Extra1, 0xFFFF, 0, 1, 2, "10001100011000010000"};
    }

    void toHexString()
    {
        QFETCH(StringCase, c);
        ThresholdsData data;
        data.setThresholdConstant(c.component, c.constant);
        data.setNoise(noiseSlot(c.component), c.noise);
        data.setLow(c.component, c.low, false, false);
        data.setHigh(c.component, c.high, false, false);
        QCOMPARE(QString::fromStdString(data.toHexString(c.component)), c.text);
    }

    void fromHexString_data()
    {
        QTest::addColumn<StringCase>("c");
        QTest::newRow("both clamped to 510, negative noise kept")
            << StringCase{C::Saturation, 0, -17476, 510, 510, "0123456789ABCDEF"};
        QTest::newRow("offset subtracted") << StringCase{C::Lightness, 0x8000, 10, 100, 300, "8136812C80648000"};
        QTest::newRow("below the offset gives 0") << StringCase{C::Extra1, 0x8000, 11, 0, 0, "0010000500020000"};
        QTest::newRow("non-hex word reads 0") << StringCase{C::Lightness, 0, 50, 40, 0, "0032zz1400280000"};
        QTest::newRow("word 4 ignored") << StringCase{C::Saturation, 0, 10, 5, 10, "0014000A0005!?*#"};
    }

    void fromHexString()
    {
        QFETCH(StringCase, c);
        ThresholdsData data;
        CountingObserver observer;
        data.attach(&observer);
        data.setThresholdConstant(c.component, c.constant);
        data.setFromHexString(c.component, c.text.toStdString());
        QCOMPARE(observer.calls, 1);
        QCOMPARE(qMakePair(data.low(c.component), data.high(c.component)), qMakePair(c.low, c.high));
        QCOMPARE(data.noise(noiseSlot(c.component)), c.noise);
    }

    void fromHexStringRecomputesHue()
    {
        ThresholdsData data;
        // Red high 510, low 0: hue high of (255, 0, 0) is 0; black has no hue (-1).
        data.setFromHexString(C::Red, "000001FE00000000");
        QCOMPARE(qMakePair(data.low(C::Hue), data.high(C::Hue)), qMakePair(-1.0, 0.0));
        data.setFromHexString(C::Green, "000001FE00000000");
        QCOMPARE(data.high(C::Hue), 60.0);
        // A hue read for Hue itself (200 / 100) is replaced by the hue of the stored
        // colour limits; its noise (0 - 200) is kept.
        data.setFromHexString(C::Hue, "000000C800640000");
        QCOMPARE(qMakePair(data.low(C::Hue), data.high(C::Hue)), qMakePair(-1.0, 60.0));
        QCOMPARE(data.noise(C::Hue), -200);
        // Saturation and Lightness leave the hue alone.
        data.setHigh(C::Hue, 33, false, false);
        data.setFromHexString(C::Saturation, "000001FE00000000");
        QCOMPARE(data.high(C::Hue), 33.0);
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
        data.setLow(C::Saturation, 7, false, false);
        data.setNoise(C::Saturation, 3);
        CountingObserver observer;
        data.attach(&observer);
        data.setFromHexString(C::Saturation, text.toStdString());
        QCOMPARE(observer.calls, 0);
        QCOMPARE(data.low(C::Saturation), 7.0);
        QCOMPARE(data.noise(C::Saturation), 3);
    }

    void copiesShareValues()
    {
        auto source = std::make_unique<ThresholdsData>();
        CountingObserver sourceObserver;
        source->attach(&sourceObserver);
        // Copies start without observers: the source's observer hears nothing of them.
        ThresholdsData copy(*source);
        copy.setHigh(C::Red, 42, false, false);
        QCOMPARE(source->high(C::Red), 42.0);
        QCOMPARE(sourceObserver.calls, 0);

        ThresholdsData assigned;
        assigned = *source;
        source->setNoise(C::Hue, 9);
        QCOMPARE(copy.noise(C::Hue), 9);
        QCOMPARE(assigned.noise(C::Hue), 9);
        // The shared values outlive the record that made them.
        source.reset();
        assigned.setLow(C::Blue, 11, false, false);
        QCOMPARE(copy.low(C::Blue), 11.0);
        QCOMPARE(copy.high(C::Red), 42.0);
    }
};

QTEST_GUILESS_MAIN(tst_ThresholdsData)
#include "tst_thresholdsdata.moc"
