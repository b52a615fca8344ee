// SPDX-License-Identifier: LGPL-2.1-or-later
#include "telegrams/melencoderdecoder.h"

#include "streamreference.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTest>

using Utils::MelData;
using Utils::MelEncoderDecoder;

Q_DECLARE_METATYPE(std::string)

class tst_MelEncoderDecoder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checksum_data()
    {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<std::string>("checksum");

        QTest::newRow("empty") << std::string() << std::string();
        QTest::newRow("one pair") << std::string("FF") << std::string("FF00");
        QTest::newRow("pairs cancel") << std::string("FFFF") << std::string("0000");
        QTest::newRow("four pairs") << std::string("0102030A") << std::string("0A00");
        // The last odd character is a piece of its own: 0x12 XOR 0x3.
        QTest::newRow("odd length") << std::string("123") << std::string("1100");
        QTest::newRow("one character") << std::string("7") << std::string("0700");
        // A piece without hex digits counts 0.
        QTest::newRow("non-hex piece") << std::string("ZZ0141") << std::string("4000");
    }

    void checksum()
    {
        QFETCH(std::string, text);
        QFETCH(std::string, checksum);
        MelEncoderDecoder codec;
        QCOMPARE(codec.oCalculateChecksum(text), checksum);
        QCOMPARE(StreamReference::melChecksum(text), checksum);
        QCOMPARE(codec.u16LastError(), (unsigned short)0);
    }

    void checksumLikeStream()
    {
        // Random texts of the characters the reading treats specially, every pair
        // of bytes as a one-piece and as a two-piece text, and the fuzzer's inputs.
        std::vector<std::string> texts;
        static const char alphabet[] = "0123456789abcdefABCDEFxX+- \t\n.G\x80";
        QRandomGenerator random(4711);
        for (int round = 0; round < 20000; ++round) {
            std::string text(random.bounded(0, 40), '0');
            for (char &c : text)
                c = alphabet[random.bounded(int(sizeof alphabet - 1))];
            texts.push_back(text);
        }
        for (int pair = 0; pair < 0x10000; ++pair) {
            texts.push_back({ char(pair >> 8), char(pair) });
            texts.push_back({ '1', char(pair >> 8), char(pair) });
        }
        const QDir corpus(QStringLiteral(UTILS_TELEGRAM_CORPUS "/fuzz_melchecksum"));
        for (const QString &name : corpus.entryList(QDir::Files)) {
            QFile file(corpus.absoluteFilePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            texts.push_back(file.readAll().toStdString());
        }
        MelEncoderDecoder codec;
        for (const std::string &text : texts)
            QVERIFY2(codec.oCalculateChecksum(text) == StreamReference::melChecksum(text),
                     QByteArray::fromStdString(text).toPercentEncoding().constData());
    }

    void setFromString()
    {
        // Too short: refused, nothing traced, nothing stored.
        MelData data;
        std::string text(995, 'Q');
        QVERIFY(!data.setFromString(text));
        QCOMPARE(data, MelData());

        text = std::string(4, '#') + "ABCDEFGHIJKLMNOPQRSTUVW" + std::string(70, '-') + "xyz";
        text[74] = 'K';
        text.resize(996, '.');
        QTest::ignoreMessage(QtDebugMsg, "ABCDEFGHIJKLMNOPQRSTUVW");
        QTest::ignoreMessage(QtDebugMsg, qPrintable(QString::fromStdString(text.substr(4, 96))));
        QTest::ignoreMessage(QtDebugMsg, "K");
        QTest::ignoreMessage(QtDebugMsg, "K 75");
        QTest::ignoreMessage(QtDebugMsg, "75");
        QVERIFY(!data.setFromString(text));
        for (std::size_t i = 0; i < MelData::nSize; ++i)
            QCOMPARE(int(data.pu8Data()[i]), i == 76 ? int('K') : 0);

        // Copies take the whole block; initMembers zeroes it.
        MelData assigned;
        assigned = data;
        QCOMPARE(MelData(data), data);
        QCOMPARE(assigned, data);
        assigned.initMembers();
        QCOMPARE(assigned, MelData());
    }

    void partialCodec()
    {
        // toString clears the caller's text although it takes a constant reference.
        MelData data;
        std::string text = "0102030A";
        QVERIFY(!data.toString(text));
        QVERIFY(text.empty());

        MelEncoderDecoder codec;
        QCOMPARE(codec.oEncode(data), std::string());
        QCOMPARE(codec.oDecodeString(std::string(1200, 'F')), MelData());
    }
};

QTEST_GUILESS_MAIN(tst_MelEncoderDecoder)

#include "tst_melencoderdecoder.moc"
