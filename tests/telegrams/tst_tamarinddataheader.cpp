// SPDX-License-Identifier: LGPL-2.1-or-later
#include "telegrams/tamarinddataheader.h"

#include <QTest>

using Utils::TamarindDataHeader;

namespace {

QByteArray spaced(const std::string &bytes)
{
    return QByteArray::fromStdString(bytes).toHex(' ').toUpper();
}

// A reply: a request-shaped header with the given commands and data length,
// then a payload whose byte i is (i + 1) & 0xFF.
std::string reply(uint8_t command0, uint8_t command1, uint32_t dataLength, std::size_t payloadSize)
{
    TamarindDataHeader header;
    header.vSetCommand0(command0);
    header.vSetCommand1(command1);
    header.vSetDataLenght(dataLength);
    std::string bytes = header.encode().substr(0, TamarindDataHeader::nPayloadOffset);
    for (std::size_t i = 0; i < payloadSize; ++i)
        bytes.push_back(char((i + 1) & 0xFF));
    return bytes;
}

// The records of a header, one text each, so that a test sees which changed.
QStringList records(const TamarindDataHeader &header)
{
    auto hex = [](const auto &record) {
        return QString::fromLatin1(QByteArray(reinterpret_cast<const char *>(&record), sizeof record).toHex());
    };
    return { hex(header.readOutIdentificationData()), hex(header.readOutProcessData()),
             hex(header.readOutProcessDataOY1P()),    hex(header.readDigitalOutputs()),
             hex(header.readAnalogOutputs()),         hex(header.readParametersConfiguration()),
             header.hexReadAllParameters() };
}

} // namespace

class tst_TamarindDataHeader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encode()
    {
        TamarindDataHeader header(std::string("ignored text"));
        QCOMPARE(spaced(header.encode()), QByteArray("24 00 01 00 20 00 00 00 00 00 00 00 00 00 00 00 "
                                                     "00 00 00 00 00 00 00 00 00 00 00 00 05 00 2E 3B"));
        // Every field at its offset, little-endian, and in the checksum.
        header.vSetCommand0(10);
        header.vSetCommand1(7);
        header.vSetMsgID(9);
        header.vSetCommand1(5);
        header.vSetParameter1(0x1234);
        header.vSetParameter2(0x5678);
        header.vSetParameter3(0x9ABC);
        header.vSetParameter4(0x13579BDF);
        header.vSetDataLenght(0x01020304);
        const std::string request = header.encode();
        QCOMPARE(spaced(request), QByteArray("24 00 09 00 20 00 00 00 00 00 00 00 0A 05 34 12 "
                                             "78 56 BC 9A DF 9B 57 13 04 03 02 01 28 00 2E 3B"));

        // Decoding never changes the request.
        for (const std::string &answer : { reply(10, 5, 0, 52), reply(0, 0, 0, 30), reply(10, 1, 0, 4) })
            header.decode(answer);
        QCOMPARE(header.encode(), request);
    }

    void decode_data()
    {
        QTest::addColumn<int>("command0");
        QTest::addColumn<int>("command1");
        QTest::addColumn<int>("dataLength");
        QTest::addColumn<int>("record"); // index into records(), -1 for none
        QTest::addColumn<int>("size");

        QTest::newRow("identification") << 0 << 0 << 0 << 0 << 30;
        QTest::newRow("process data, length 32") << 10 << 0 << 32 << 1 << 32;
        QTest::newRow("OY1P, length 36") << 10 << 0 << 36 << 2 << 36;
        QTest::newRow("OY1P, any other length") << 10 << 0 << 0 << 2 << 36;
        QTest::newRow("digital outputs") << 10 << 3 << 0 << 3 << 16;
        QTest::newRow("analog outputs") << 10 << 5 << 0 << 4 << 52;
        QTest::newRow("parameter configuration") << 10 << 7 << 0 << 5 << 96;
        QTest::newRow("unknown command 1") << 10 << 2 << 0 << -1 << 120;
        QTest::newRow("unknown command 0") << 11 << 7 << 0 << -1 << 120;
    }

    void decode()
    {
        QFETCH(int, command0);
        QFETCH(int, command1);
        QFETCH(int, dataLength);
        QFETCH(int, record);
        QFETCH(int, size);

        TamarindDataHeader header;
        const QStringList before = records(header);
        std::string answer = reply(uchar(command0), uchar(command1), uint32_t(dataLength), std::size_t(size));
        answer[0] = 'X'; // marks are not checked
        // One byte short of the announced record: ignored, not read past its end.
        header.decode(answer.substr(0, answer.size() - 1));
        QCOMPARE(records(header), before);

        header.decode(answer);
        QStringList expected = before;
        if (record >= 0) // the payload unchanged, the 32-bit value after a block in host (little-endian) order
            expected[record] = QString::fromLatin1(QByteArray::fromStdString(answer.substr(28)).toHex());
        QCOMPARE(records(header), expected);
    }

    void hexDumpOfWholeReply()
    {
        // A full reply whose payload ends in 24 00 FF: every byte, header included.
        TamarindDataHeader header;
        header.decode(reply(10, 1, 3, 0) + std::string("\x24\x00\xFF", 3));
        QCOMPARE(header.hexReadAllParameters(),
                 QStringLiteral("2400010020000000000000000a010000000000000000000003000000" "2400ff"));

        // A later read-out replaces the dump; replies without the full header do not.
        header.decode(reply(10, 1, 0, 1));
        const QString kept = header.hexReadAllParameters();
        QCOMPARE(kept.right(10), QStringLiteral("0000000001"));
        for (const std::string &cut : { reply(10, 1, 0, 0).substr(0, 27), std::string("\x24\x00", 2), std::string() })
            header.decode(cut);
        QCOMPARE(header.hexReadAllParameters(), kept);
    }

    void copiesCarryRecords()
    {
        TamarindDataHeader original;
        original.vSetMsgID(9);
        original.decode(reply(10, 7, 0, 96));
        original.decode(reply(10, 1, 0, 2));

        TamarindDataHeader copied(original);
        TamarindDataHeader assigned;
        assigned = original;
        for (TamarindDataHeader *copy : { &copied, &assigned }) {
            QCOMPARE(records(*copy), records(original));
            QCOMPARE(copy->encode(), original.encode());
        }
    }
};

QTEST_GUILESS_MAIN(tst_TamarindDataHeader)

#include "tst_tamarinddataheader.moc"
