// SPDX-License-Identifier: LGPL-2.1-or-later
#include "telegrams/tamarindprotocolheader.h"

#include "streamreference.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTest>

using Utils::TamarindProtocolHeader;

Q_DECLARE_METATYPE(std::string)

namespace {

// Distinct non-zero values, so that a field left alone shows.
TamarindProtocolHeader presetHeader()
{
    TamarindProtocolHeader header;
    header.vSetStart(0x11);
    header.vSetVersion(0x22);
    header.vSetMessageId(0x33);
    header.vSetRepeat(0x44);
    header.vSetProtocolLenght(0x5566);
    header.vSetMessageType(0x77);
    header.vSetDummy(0x88);
    header.vSetAdress(0x99AABBCC);
    return header;
}

QString describe(const TamarindProtocolHeader &h)
{
    return QString::asprintf("start %02X version %02X id %02X repeat %02X length %04X type %02X dummy %02X address %08X",
                             h.u8Start(), h.u8Version(), h.u8MessageId(), h.u8Repeat(), h.u16ProtocolLenght(),
                             h.u8MessageType(), h.u8Dummy(), unsigned(h.u32Adress()));
}

std::string printable(const std::string &text)
{
    return QByteArray::fromStdString(text).toPercentEncoding().toStdString();
}

} // namespace

class tst_TamarindProtocolHeader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toString_data();
    void toString();
    void setFromString_data();
    void setFromString();
    void refusedTexts_data();
    void refusedTexts();
    void readBackIsNotInverse();
    void constructorParsesAndCopies();
    void everyPieceLikeStream_data();
    void everyPieceLikeStream();
    void randomTextsLikeStream();
    void seedCorpusLikeStream();
};

void tst_TamarindProtocolHeader::toString_data()
{
    QTest::addColumn<TamarindProtocolHeader>("header");
    QTest::addColumn<QString>("text");

    QTest::newRow("cleared") << TamarindProtocolHeader() << "000000000000000000000000";

    TamarindProtocolHeader example;
    example.vSetStart(0x02);
    example.vSetVersion(0x01);
    example.vSetMessageId(0x05);
    example.vSetProtocolLenght(0x0014);
    example.vSetMessageType(0x03);
    example.vSetAdress(1);
    QTest::newRow("example") << example << "020105001400030001000000";

    QTest::newRow("little-endian upper-case") << presetHeader() << "1122334466557788CCBBAA99";
}

void tst_TamarindProtocolHeader::toString()
{
    QFETCH(TamarindProtocolHeader, header);
    QFETCH(QString, text);
    QCOMPARE(QString::fromStdString(header.oToString()), text);
}

void tst_TamarindProtocolHeader::setFromString_data()
{
    QTest::addColumn<std::string>("text");
    QTest::addColumn<QString>("fields");

    // Single-byte fields take the code of the piece's first character: "02" is 0x30.
    QTest::newRow("zero digits") << std::string("000000000000000000000000")
                                 << "start 30 version 30 id 30 repeat 30 length 0000 type 30 dummy 30 address 00000000";
    QTest::newRow("length 20, address 255")
        << std::string("0201050014000300FF000000")
        << "start 30 version 30 id 30 repeat 30 length 0014 type 30 dummy 30 address 000000FF";
    QTest::newRow("letters are characters")
        << std::string("A5b6C7d8FFFFE9F012345678")
        << "start 41 version 62 id 43 repeat 64 length FFFF type 45 dummy 46 address 78563412";
    QTest::newRow("characters after the 24th ignored")
        << std::string("0201050014000300FF000000ZZZZ 99")
        << "start 30 version 30 id 30 repeat 30 length 0014 type 30 dummy 30 address 000000FF";
    QTest::newRow("blank before a byte character") << std::string(" 5 6 7 8140003000100000099")
                                                   << "start 35 version 36 id 37 repeat 38 length 0014 type 30 dummy "
                                                      "30 address 00000001";
    // An all-blank piece: byte fields and the numbers read straight into a field
    // keep their value; the high pieces count 0.
    QTest::newRow("blank pieces keep fields")
        << std::string("        " "  01" "    " "  00  0000")
        << "start 11 version 22 id 33 repeat 44 length 5666 type 77 dummy 88 address 99AABBCC";
    QTest::newRow("non-hex stops a number")
        << std::string("000000001G0G0000G01G1G1G")
        << "start 30 version 30 id 30 repeat 30 length 0001 type 30 dummy 30 address 01010100";
    QTest::newRow("signs wrap around")
        << std::string("00000000-1+10000-100-1+1")
        << "start 30 version 30 id 30 repeat 30 length 00FF type 30 dummy 30 address 00FEFFFF";
    QTest::newRow("0x prefix converts nothing")
        << std::string("000000000x0X00000x0x0x0x")
        << "start 30 version 30 id 30 repeat 30 length 0000 type 30 dummy 30 address 00000000";
    QTest::newRow("NUL bytes are characters")
        << std::string("\0\0" "0000000000" "\0\0" "0000000000", 24)
        << "start 00 version 30 id 30 repeat 30 length 0000 type 00 dummy 30 address 00000000";
}

void tst_TamarindProtocolHeader::setFromString()
{
    QFETCH(std::string, text);
    QFETCH(QString, fields);
    TamarindProtocolHeader header = presetHeader();
    QVERIFY(header.bSetFromString(text));
    QCOMPARE(describe(header), fields);
}

void tst_TamarindProtocolHeader::refusedTexts_data()
{
    QTest::addColumn<std::string>("text");
    QTest::addColumn<bool>("cleared");

    QTest::newRow("empty clears") << std::string() << true;
    QTest::newRow("2 characters") << std::string("01") << false;
    QTest::newRow("11 characters") << std::string("02010500140") << false;
    // 12 passes the old length test, but the text cannot carry twelve pieces.
    QTest::newRow("12 characters") << std::string("020105001400") << false;
    QTest::newRow("21 characters") << std::string("0201050014000300FF000") << false;
    QTest::newRow("22 characters") << std::string("0201050014000300FF0000") << false;
    QTest::newRow("23 characters") << std::string("0201050014000300FF00000") << false;
}

void tst_TamarindProtocolHeader::refusedTexts()
{
    QFETCH(std::string, text);
    QFETCH(bool, cleared);
    TamarindProtocolHeader header = presetHeader();
    QVERIFY(!header.bSetFromString(text));
    QCOMPARE(describe(header), describe(cleared ? TamarindProtocolHeader() : presetHeader()));
}

void tst_TamarindProtocolHeader::readBackIsNotInverse()
{
    // The protocol reads byte fields as characters but writes them as numbers:
    // a written text does not read back to the same header.
    TamarindProtocolHeader written;
    written.vSetStart(0x02);
    written.vSetMessageId(0x05);
    written.vSetProtocolLenght(0x1234);
    written.vSetAdress(0xDEADBEEF);
    TamarindProtocolHeader read;
    QVERIFY(read.bSetFromString(written.oToString()));
    QCOMPARE(read.u8Start(), uint8_t(0x30));
    QCOMPARE(read.u8MessageId(), uint8_t(0x30));
    QCOMPARE(read.u16ProtocolLenght(), uint16_t(0x1234));
    QCOMPARE(read.u32Adress(), uint32_t(0xDEADBEEF));
    QCOMPARE(read.oToString(), std::string("303030303412" "3030EFBEADDE"));
}

void tst_TamarindProtocolHeader::constructorParsesAndCopies()
{
    const TamarindProtocolHeader parsed(std::string("0201050014000300FF000000"));
    QCOMPARE(parsed.u16ProtocolLenght(), uint16_t(20));
    QCOMPARE(parsed.u32Adress(), uint32_t(255));
    // A refused text leaves the constructed header zeroed.
    QCOMPARE(describe(TamarindProtocolHeader(std::string("020105001400"))), describe(TamarindProtocolHeader()));

    TamarindProtocolHeader copy;
    copy = presetHeader();
    QCOMPARE(describe(copy), describe(presetHeader()));
    copy.vInitMembers();
    QCOMPARE(copy.oToString(), std::string(24, '0'));
}

void tst_TamarindProtocolHeader::everyPieceLikeStream_data()
{
    QTest::addColumn<int>("position");
    QTest::newRow("byte field") << 0;
    QTest::newRow("length low, into the field") << 8;
    QTest::newRow("length high") << 10;
    QTest::newRow("address low, into the field") << 16;
    QTest::newRow("address highest") << 22;
}

void tst_TamarindProtocolHeader::everyPieceLikeStream()
{
    // Every two-byte piece at each kind of position, against real streams.
    QFETCH(int, position);
    std::string text = "0201050014000300FF000000";
    int mismatches = 0;
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            text[position] = char(first);
            text[position + 1] = char(second);
            TamarindProtocolHeader fast = presetHeader();
            TamarindProtocolHeader reference = presetHeader();
            const bool fastResult = fast.bSetFromString(text);
            const bool referenceResult = StreamReference::setFromString(reference, text);
            if (fastResult != referenceResult || fast.oToString() != reference.oToString()) {
                if (++mismatches < 5)
                    qWarning("piece %02x %02x: %s / %s", first, second, qPrintable(describe(fast)),
                             qPrintable(describe(reference)));
            }
        }
    }
    QCOMPARE(mismatches, 0);
}

void tst_TamarindProtocolHeader::randomTextsLikeStream()
{
    // Texts drawn mostly from the characters the reading treats specially.
    static const char alphabet[] = "0123456789abcdefABCDEFxX+- \t\n\v\f\r.GZ\x80\xff";
    QRandomGenerator random(20261122);
    for (int round = 0; round < 20000; ++round) {
        std::string text(random.bounded(0, 30), '0');
        for (char &c : text)
            c = alphabet[random.bounded(int(sizeof alphabet - 1))];
        TamarindProtocolHeader fast = presetHeader();
        TamarindProtocolHeader reference = presetHeader();
        QCOMPARE(fast.bSetFromString(text), StreamReference::setFromString(reference, text));
        QVERIFY2(fast.oToString() == reference.oToString(), printable(text).c_str());
    }
}

void tst_TamarindProtocolHeader::seedCorpusLikeStream()
{
    // The fuzzer's kept inputs: texts it found interesting.
    const QDir corpus(QStringLiteral(UTILS_TELEGRAM_CORPUS "/fuzz_protocolheader"));
    const QStringList files = corpus.entryList(QDir::Files);
    if (files.isEmpty())
        QSKIP("no corpus files");
    for (const QString &name : files) {
        QFile file(corpus.absoluteFilePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const std::string text = file.readAll().toStdString();
        TamarindProtocolHeader fast = presetHeader();
        TamarindProtocolHeader reference = presetHeader();
        QCOMPARE(fast.bSetFromString(text), StreamReference::setFromString(reference, text));
        QVERIFY2(fast.oToString() == reference.oToString(), qPrintable(name));
    }
}

QTEST_GUILESS_MAIN(tst_TamarindProtocolHeader)

#include "tst_tamarindprotocolheader.moc"
