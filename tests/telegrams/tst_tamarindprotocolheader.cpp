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

const std::string presetText = "1122334466557788CCBBAA99";

} // namespace

class tst_TamarindProtocolHeader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setFromString_data()
    {
        // Each read into presetHeader(); "after" is the result written back with
        // oToString(), which shows every field in wire order.
        QTest::addColumn<std::string>("text");
        QTest::addColumn<bool>("result");
        QTest::addColumn<std::string>("after");

        // Byte fields take the code of the piece's first character ("02" is 0x30),
        // though oToString() writes them as numbers.
        QTest::newRow("zero digits") << std::string(24, '0') << true << std::string("303030300000303000000000");
        QTest::newRow("written text does not read back")
            << std::string("020105001400030001000000") << true << std::string("303030301400303001000000");
        QTest::newRow("length 20, address 255")
            << std::string("0201050014000300FF000000") << true << std::string("3030303014003030FF000000");
        QTest::newRow("letters are characters")
            << std::string("A5b6C7d8FFFFE9F012345678") << true << std::string("41624364FFFF454612345678");
        QTest::newRow("characters after the 24th ignored")
            << std::string("0201050014000300FF000000ZZZZ 99") << true << std::string("3030303014003030FF000000");
        // All-blank pieces: byte fields and the numbers read straight into a field
        // keep their value; a blank high piece counts 0.
        QTest::newRow("blank pieces keep fields")
            << std::string("          01          00") << true << std::string("1122334466567788CCBBAA99");

        QTest::newRow("empty clears") << std::string() << false << std::string(24, '0');
        QTest::newRow("2 characters") << std::string("01") << false << presetText;
        // 12 passes the historical length test, but cannot carry twelve pieces.
        QTest::newRow("12 characters") << std::string("020105001400") << false << presetText;
        QTest::newRow("23 characters") << std::string("0201050014000300FF00000") << false << presetText;
    }

    void setFromString()
    {
        QFETCH(std::string, text);
        QFETCH(bool, result);
        QFETCH(std::string, after);
        TamarindProtocolHeader header = presetHeader();
        QCOMPARE(header.bSetFromString(text), result);
        QCOMPARE(header.oToString(), after);

        TamarindProtocolHeader reference = presetHeader();
        QCOMPARE(StreamReference::setFromString(reference, text), result);
        QCOMPARE(reference.oToString(), after);
    }

    void constructorAndClear()
    {
        const TamarindProtocolHeader parsed(std::string("0201050014000300FF000000"));
        QCOMPARE(parsed.u16ProtocolLenght(), uint16_t(20));
        QCOMPARE(parsed.u32Adress(), uint32_t(255));
        QCOMPARE(TamarindProtocolHeader(std::string("020105001400")).oToString(), std::string(24, '0'));

        TamarindProtocolHeader header = presetHeader();
        header.vInitMembers();
        QCOMPARE(header.oToString(), std::string(24, '0'));
    }

    void likeStream()
    {
        // The fast reader against real streams: every two-character piece at each
        // kind of position, random texts of the characters the reading treats
        // specially, and the inputs the fuzzer kept.
        std::vector<std::string> texts;
        for (int position : { 0, 8, 10, 16, 22 }) {
            std::string text = "0201050014000300FF000000";
            for (int pair = 0; pair < 0x10000; ++pair) {
                text[position] = char(pair >> 8);
                text[position + 1] = char(pair);
                texts.push_back(text);
            }
        }
        static const char alphabet[] = "0123456789abcdefABCDEFxX+- \t\n\v\f\r.GZ\x80\xff";
        QRandomGenerator random(20261122);
        for (int round = 0; round < 20000; ++round) {
            std::string text(random.bounded(0, 30), '0');
            for (char &c : text)
                c = alphabet[random.bounded(int(sizeof alphabet - 1))];
            texts.push_back(text);
        }
        const QDir corpus(QStringLiteral(UTILS_TELEGRAM_CORPUS "/fuzz_protocolheader"));
        const QStringList files = corpus.entryList(QDir::Files);
        QVERIFY(!files.isEmpty());
        for (const QString &name : files) {
            QFile file(corpus.absoluteFilePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            texts.push_back(file.readAll().toStdString());
        }

        for (const std::string &text : texts) {
            TamarindProtocolHeader fast = presetHeader();
            TamarindProtocolHeader reference = presetHeader();
            const bool same = fast.bSetFromString(text) == StreamReference::setFromString(reference, text)
                    && fast.oToString() == reference.oToString();
            QVERIFY2(same, QByteArray::fromStdString(text).toPercentEncoding().constData());
        }
    }
};

QTEST_GUILESS_MAIN(tst_TamarindProtocolHeader)

#include "tst_tamarindprotocolheader.moc"
