// SPDX-License-Identifier: LGPL-2.1-or-later
#include "telegrams/tamarinddataheader.h"

#include <QTest>

#include <cstring>

using Utils::TamarindDataHeader;

Q_DECLARE_METATYPE(std::string)

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

QString payloadHex(std::size_t size)
{
    QByteArray bytes;
    for (std::size_t i = 0; i < size; ++i)
        bytes.append(char((i + 1) & 0xFF));
    return QString::fromLatin1(bytes.toHex());
}

} // namespace

class tst_TamarindDataHeader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encode_data();
    void encode();
    void decodeStoresAnnouncedRecord_data();
    void decodeStoresAnnouncedRecord();
    void hexDumpOfWholeReply();
    void decodeLeavesRequestAlone();
    void copiesCarryRecords();
};

void tst_TamarindDataHeader::encode_data()
{
    QTest::addColumn<int>("command0");
    QTest::addColumn<int>("command1");
    QTest::addColumn<int>("messageId");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("defaults, checksum 05")
        << 0 << 0 << 1
        << QByteArray("24 00 01 00 20 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 05 00 2E 3B");
    QTest::newRow("parameter read-out 10/7, checksum 08")
        << 10 << 7 << 1
        << QByteArray("24 00 01 00 20 00 00 00 00 00 00 00 0A 07 00 00 00 00 00 00 00 00 00 00 00 00 00 00 08 00 2E 3B");
    QTest::newRow("message id 5, checksum 01")
        << 0 << 0 << 5
        << QByteArray("24 00 05 00 20 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 01 00 2E 3B");
}

void tst_TamarindDataHeader::encode()
{
    QFETCH(int, command0);
    QFETCH(int, command1);
    QFETCH(int, messageId);
    QFETCH(QByteArray, bytes);
    TamarindDataHeader header(std::string("ignored text"));
    header.vSetCommand0(uchar(command0));
    header.vSetCommand1(uchar(command1));
    header.vSetMsgID(uchar(messageId));
    const std::string encoded = header.encode();
    QCOMPARE(encoded.size(), std::size_t(32));
    QCOMPARE(spaced(encoded), bytes);
}

void tst_TamarindDataHeader::decodeStoresAnnouncedRecord_data()
{
    QTest::addColumn<int>("command0");
    QTest::addColumn<int>("command1");
    QTest::addColumn<int>("dataLength");
    QTest::addColumn<int>("payload");
    QTest::addColumn<int>("record"); // index into records(), -1 for none
    QTest::addColumn<QString>("stored");

    const QString none;
    QTest::newRow("identification") << 0 << 0 << 0 << 30 << 0 << payloadHex(30);
    QTest::newRow("identification, one byte short") << 0 << 0 << 0 << 29 << -1 << none;
    QTest::newRow("process data, length 32") << 10 << 0 << 32 << 32 << 1 << payloadHex(32);
    QTest::newRow("process data, one byte short") << 10 << 0 << 32 << 31 << -1 << none;
    // The 32-bit value after the block is read little-endian from bytes 21 22 23 24
    // and kept in host order (little-endian here).
    QTest::newRow("OY1P, length 36") << 10 << 0 << 36 << 36 << 2 << payloadHex(32) + "21222324";
    QTest::newRow("OY1P, any other length") << 10 << 0 << 0 << 40 << 2 << payloadHex(32) + "21222324";
    QTest::newRow("OY1P, one byte short") << 10 << 0 << 36 << 35 << -1 << none;
    QTest::newRow("digital outputs") << 10 << 3 << 0 << 16 << 3 << payloadHex(16);
    QTest::newRow("digital outputs, one byte short") << 10 << 3 << 0 << 15 << -1 << none;
    QTest::newRow("analog outputs") << 10 << 5 << 0 << 52 << 4 << payloadHex(48) + "31323334";
    QTest::newRow("analog outputs, one byte short") << 10 << 5 << 0 << 51 << -1 << none;
    QTest::newRow("parameter configuration") << 10 << 7 << 0 << 100 << 5 << payloadHex(96);
    QTest::newRow("parameter configuration, one byte short") << 10 << 7 << 0 << 95 << -1 << none;
    QTest::newRow("unknown command 1") << 10 << 2 << 0 << 120 << -1 << none;
    QTest::newRow("unknown command 0") << 11 << 7 << 0 << 120 << -1 << none;
}

void tst_TamarindDataHeader::decodeStoresAnnouncedRecord()
{
    QFETCH(int, command0);
    QFETCH(int, command1);
    QFETCH(int, dataLength);
    QFETCH(int, payload);
    QFETCH(int, record);
    QFETCH(QString, stored);

    TamarindDataHeader header;
    const QStringList before = records(header);
    header.decode(reply(uchar(command0), uchar(command1), uint32_t(dataLength), std::size_t(payload)));
    QStringList expected = before;
    if (record >= 0)
        expected[record] = stored;
    QCOMPARE(records(header), expected);
}

void tst_TamarindDataHeader::hexDumpOfWholeReply()
{
    // A full reply whose payload ends in 24 00 FF: every byte, header included.
    TamarindDataHeader header;
    std::string bytes = reply(10, 1, 3, 0);
    bytes += std::string("\x24\x00\xFF", 3);
    header.decode(bytes);
    QCOMPARE(header.hexReadAllParameters(),
             QStringLiteral("2400010020000000000000000a010000000000000000000003000000" "2400ff"));

    // A later read-out replaces the dump; a reply without its full header does not.
    header.decode(reply(10, 1, 0, 1));
    QCOMPARE(header.hexReadAllParameters().right(10), QStringLiteral("0000000001"));
    const QString kept = header.hexReadAllParameters();
    header.decode(reply(10, 1, 0, 0).substr(0, 27));
    QCOMPARE(header.hexReadAllParameters(), kept);

    // Too short to carry the commands at all.
    header.decode(std::string("\x24\x00", 2));
    header.decode(std::string());
    QCOMPARE(header.hexReadAllParameters(), kept);
}

void tst_TamarindDataHeader::decodeLeavesRequestAlone()
{
    TamarindDataHeader header;
    header.vSetCommand0(10);
    header.vSetCommand1(5);
    header.vSetParameter1(0x1234);
    header.vSetParameter2(0x5678);
    header.vSetParameter3(0x9ABC);
    header.vSetParameter4(0xDEF01234);
    header.vSetDataLenght(0x01020304);
    const std::string request = header.encode();
    QCOMPARE(spaced(request.substr(12, 16)), QByteArray("0A 05 34 12 78 56 BC 9A 34 12 F0 DE 04 03 02 01"));

    // Replies with other marks and checksums are not checked, and change nothing in the request.
    std::string answer = reply(10, 5, 0, 52);
    answer[0] = 'X';
    answer[28 + 1] = '\x7F';
    header.decode(answer);
    header.decode(reply(0, 0, 0, 30));
    header.decode(reply(10, 1, 0, 4));
    QCOMPARE(header.readAnalogOutputs().au8Data[1], uint8_t(0x7F));
    QCOMPARE(spaced(header.encode()), spaced(request));
}

void tst_TamarindDataHeader::copiesCarryRecords()
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
        QCOMPARE(spaced(copy->encode()), spaced(original.encode()));
    }

    // Copies are independent.
    copied.decode(reply(10, 3, 0, 16));
    QVERIFY(records(copied) != records(original));
    QCOMPARE(records(assigned), records(original));
}

QTEST_GUILESS_MAIN(tst_TamarindDataHeader)

#include "tst_tamarinddataheader.moc"
