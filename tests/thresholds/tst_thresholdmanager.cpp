// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholds/thresholddatamanager.h"
#include "thresholds/thresholdmultimanager.h"
#include "thresholds/thresholdmultimanagercolor.h"

#include <QtTest>

using Utils::ThresholdDataManager;
using Utils::ThresholdMultiManager;
using Utils::ThresholdMultiManagerColor;
using Utils::ThresholdsData;

class tst_ThresholdManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshOutputsCarryTheZeroPoint()
    {
        ThresholdDataManager manager;
        QCOMPARE(manager.outputs(), 0);
        manager.setOutputs(2);
        QCOMPARE(manager.outputs(), 2);
        for (int c = ThresholdsData::Hue; c <= ThresholdsData::Extra3; ++c)
            QCOMPARE(manager.toHexString(2, ThresholdsData::Component(c)), std::string("8000800080008000"));
    }

    void outputNumbers_data()
    {
        QTest::addColumn<uint>("output");
        QTest::addColumn<bool>("valid");
        QTest::newRow("0 (outputs count from 1)") << 0u << false;
        QTest::newRow("1") << 1u << true;
        QTest::newRow("2, the last") << 2u << true;
        QTest::newRow("3, one past the last") << 3u << false;
        QTest::newRow("largest unsigned") << std::numeric_limits<uint>::max() << false;
    }

    void outputNumbers()
    {
        QFETCH(uint, output);
        QFETCH(bool, valid);

        ThresholdDataManager manager;
        manager.setOutputs(2);
        QSignalSpy spy(&manager, &ThresholdDataManager::emitOutputUpdated);
        // The flags reach the record in order: noUpperLimit, then allowNegative.
        manager.setLow(output, ThresholdsData::Red, -5, false, true);
        manager.setHigh(output, ThresholdsData::Red, 600, true, false);
        manager.setNoise(output, ThresholdsData::Lightness, 3);
        manager.setFromHexString(output, ThresholdsData::Saturation, "0014000A00050000");
        QCOMPARE(spy.count(), valid ? 4 : 0);
        QCOMPARE(manager.low(output, ThresholdsData::Red), valid ? -5.0 : -1.0);
        QCOMPARE(manager.high(output, ThresholdsData::Red), valid ? 600.0 : -1.0);
        QCOMPARE(manager.noise(output, ThresholdsData::Lightness), valid ? 3 : -1);
        QCOMPARE(manager.toHexString(output, ThresholdsData::Red),
                 valid ? std::string("825882587FFB7FFB") : std::string());

        ThresholdMultiManager multi(1);
        multi.setOutputs(2);
        QSignalSpy multiSpy(&multi, &ThresholdMultiManager::emitOutputUpdated);
        multi.setLow(output, 0, 1.0);
        multi.setHigh(output, 0, 2.0);
        multi.setMiddle(output, 0, 1.5);
        multi.setNoise(output, 0, 1);
        multi.setFromValues(output, 0, 0x8003, 0x8002, 0x8001, 0);
        QCOMPARE(multiSpy.count(), valid ? 5 : 0);
        QCOMPARE(multi.low(output, 0), valid ? 1.0 : -1.0);
        QCOMPARE(multi.high(output, 0), valid ? 2.0 : -1.0);
        QCOMPARE(multi.noise(output, 0), valid ? 1 : -1);
        QCOMPARE(multi.toHexString(output, 0), valid ? std::string("8003800280018000") : std::string());
    }

    void signalCarriesZeroBasedPosition()
    {
        ThresholdDataManager manager;
        manager.setOutputs(3);
        QSignalSpy spy(&manager, &ThresholdDataManager::emitOutputUpdated);
        manager.setLow(2, ThresholdsData::Red, 5, false, false);
        manager.setNoise(3, ThresholdsData::Hue, 1);
        manager.setNoise(1, ThresholdsData::Hue, 1);
        manager.update(nullptr);
        QCOMPARE(spy.count(), 3);
        QCOMPARE(spy.at(0).at(0).toUInt(), 1u);
        QCOMPARE(spy.at(1).at(0).toUInt(), 2u);
        QCOMPARE(spy.at(2).at(0).toUInt(), 0u);

        ThresholdMultiManagerColor colour(1);
        colour.setOutputs(2);
        QSignalSpy colourSpy(&colour, &ThresholdMultiManagerColor::emitOutputUpdated);
        colour.setColorBlueHighh(2, 0, 8.0);
        QCOMPARE(colourSpy.count(), 1);
        QCOMPARE(colourSpy.at(0).at(0).toUInt(), 1u);
    }

    void setOutputsReplacesRecords()
    {
        ThresholdDataManager manager;
        manager.setOutputs(2);
        manager.setHigh(1, ThresholdsData::Blue, 100, false, false);
        manager.setOutputs(2); // the same count still starts afresh
        QCOMPARE(manager.high(1, ThresholdsData::Blue), 0.0);

        manager.setOutputs(0);
        QCOMPARE(manager.outputs(), 0);
        QCOMPARE(manager.toHexString(1, ThresholdsData::Red), std::string());
        manager.setOutputs(-2);
        QCOMPARE(manager.low(1, ThresholdsData::Red), -1.0);
    }

    void addComponentAffectsLaterRecords()
    {
        ThresholdMultiManager manager(2);
        manager.setOutputs(1);
        manager.addComponent();
        QCOMPARE(manager.getComponentCount(), 3);
        QCOMPARE(manager.toHexString(1, 2), std::string());
        manager.setOutputs(1);
        QCOMPARE(manager.toHexString(1, 2), std::string("8000800080008000"));

        ThresholdMultiManagerColor colour(0);
        colour.setOutputs(1);
        colour.addComponent();
        QCOMPARE(colour.getComponentCount(), 1);
        colour.setNoise(1, 0, 4);
        QCOMPARE(colour.noise(1, 0), -1);
        colour.setOutputs(1);
        colour.setNoise(1, 0, 4);
        QCOMPARE(colour.noise(1, 0), 4);
    }

    void multiConstantsWindowsAndWords()
    {
        ThresholdMultiManager manager(2);
        manager.setOutputs(2);
        manager.setThresholdConstant(2, 1, 0);
        manager.setLow(2, 1, 3.0);
        manager.setNoise(2, 1, 5);
        QCOMPARE(manager.toHexString(2, 1), std::string("0005000000030000"));
        manager.setHasWindows(2, 1, true);
        QVERIFY(manager.hasWindows(2, 1));
        QVERIFY(!manager.hasWindows(1, 1));
        QVERIFY(!manager.hasWindows(2, 2));
    }

    void wordsAreUnsigned_data()
    {
        QTest::addColumn<uint>("a");
        QTest::addColumn<uint>("b");
        QTest::addColumn<uint>("c");
        QTest::addColumn<double>("high");
        QTest::addColumn<double>("low");
        QTest::addColumn<int>("noise");
        QTest::addColumn<QString>("text");
        // Offset 0x8000; the string written back carries the words read.
        QTest::newRow("0xFFFF is 65535, not -1") << 0xFFFFu << 0xFFFFu << 0x8000u << 32767.0 << 0.0 << 0
                                                 << "FFFFFFFF80008000";
        QTest::newRow("words at 2^31") << 0x80000010u << 0x80000008u << 0x80000000u << 2147450888.0 << 2147450880.0 << 8
                                       << "8000001080000008800000007FFFFFF8";
        QTest::newRow("noise word at 2^31") << 0x80000000u << 0x8010u << 0x8005u << 16.0 << 5.0 << 2147450864
                                            << "80000000801080050000";
    }

    void wordsAreUnsigned()
    {
        QFETCH(uint, a);
        QFETCH(uint, b);
        QFETCH(uint, c);
        ThresholdMultiManager manager(1);
        manager.setOutputs(1);
        manager.setFromValues(1, 0, a, b, c, 0xFFFFFFFFu);
        QTEST(manager.high(1, 0), "high");
        QTEST(manager.low(1, 0), "low");
        QTEST(manager.noise(1, 0), "noise");
        QTEST(QString::fromStdString(manager.toHexString(1, 0)), "text");
    }

    void uncheckedOperationsIgnoreBadOutputs_data()
    {
        QTest::addColumn<int>("output");
        QTest::newRow("0") << 0;
        QTest::newRow("negative") << -1;
        QTest::newRow("one past the last") << 3;
        QTest::newRow("largest int") << std::numeric_limits<int>::max();
    }

    void uncheckedOperationsIgnoreBadOutputs()
    {
        QFETCH(int, output);
        ThresholdMultiManager manager(1);
        manager.setOutputs(2);
        manager.setThresholdConstant(output, 0, 0);
        manager.setHasWindows(output, 0, true);
        QVERIFY(!manager.hasWindows(output, 0));
        for (unsigned int valid : {1u, 2u}) {
            QCOMPARE(manager.toHexString(valid, 0), std::string("8000800080008000"));
            QVERIFY(!manager.hasWindows(int(valid), 0));
        }

        ThresholdMultiManagerColor colour(1);
        colour.setOutputs(2);
        colour.setThresholdConstant(output, 0, 0);
        colour.setHasWindows(output, 0, true);
        QVERIFY(!colour.hasWindows(output, 0));
        QVERIFY(!colour.hasWindows(1, 0) && !colour.hasWindows(2, 0));
    }

    void colourSetters()
    {
        ThresholdMultiManagerColor manager(2);
        manager.setOutputs(1);
        QSignalSpy spy(&manager, &ThresholdMultiManagerColor::emitOutputUpdated);
        using C = ThresholdMultiManagerColor;
        for (auto setter : {&C::setColorRed, &C::setColorGreen, &C::setColorBlue, &C::setColorLight,
                            &C::setColorRedHigh, &C::setColorRedLow, &C::setColorGreenHigh, &C::setColorGreenLow,
                            &C::setColorBlueHighh, &C::setColorBlueLow, &C::setColorLightHigh, &C::setColorLightLow}) {
            (manager.*setter)(1, 1, 2.0);
            (manager.*setter)(2, 1, 2.0); // no such output
            (manager.*setter)(1, 2, 2.0); // no such entry
        }
        manager.setHasWindows(1, 1, true);
        QVERIFY(manager.hasWindows(1, 1));
        QCOMPARE(spy.count(), 12);
    }
};

QTEST_GUILESS_MAIN(tst_ThresholdManager)
#include "tst_thresholdmanager.moc"
