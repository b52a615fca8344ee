// SPDX-License-Identifier: LGPL-2.1-or-later
#include "telegrams/tamarinddataheader.h"

#include <cstring>

namespace Utils {

namespace {

constexpr uint8_t u8StartMark = 0x24; // '$'
constexpr uint16_t u16EndMark = 0x3B2E; // ".;" on the wire
constexpr uint8_t u8CommandIdentification = 0;
constexpr uint8_t u8CommandReadOut = 10;
constexpr std::size_t nCommand0Offset = 12;
constexpr std::size_t nCommand1Offset = 13;
constexpr std::size_t nDataLengthOffset = 24;
constexpr uint32_t u32PlainProcessDataLength = 32;

void put16(uint8_t *p, uint16_t v)
{
    p[0] = static_cast<uint8_t>(v);
    p[1] = static_cast<uint8_t>(v >> 8);
}

void put32(uint8_t *p, uint32_t v)
{
    for (int i = 0; i < 4; ++i)
        p[i] = static_cast<uint8_t>(v >> (8 * i));
}

uint32_t get32(const uint8_t *p)
{
    return uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16 | uint32_t(p[3]) << 24;
}

// A record is a byte block, optionally followed by one little-endian 32-bit value.
template<typename Record>
Record blockRecord(const uint8_t *payload)
{
    Record oRecord;
    std::memcpy(oRecord.au8Data, payload, sizeof oRecord.au8Data);
    return oRecord;
}

template<typename Record>
Record blockAndValueRecord(const uint8_t *payload)
{
    Record oRecord = blockRecord<Record>(payload);
    oRecord.u32Value = get32(payload + sizeof oRecord.au8Data);
    return oRecord;
}

QString lowerHexDump(const uint8_t *bytes, std::size_t size)
{
    static const char digits[] = "0123456789abcdef";
    QString oText(static_cast<int>(size * 2), Qt::Uninitialized);
    QChar *out = oText.data();
    for (std::size_t i = 0; i < size; ++i) {
        *out++ = QLatin1Char(digits[bytes[i] >> 4]);
        *out++ = QLatin1Char(digits[bytes[i] & 0x0F]);
    }
    return oText;
}

} // namespace

TamarindDataHeader::TamarindDataHeader(const std::string &)
{
    vInitMembers();
}

void TamarindDataHeader::vInitMembers()
{
    m_u8Start = u8StartMark;
    m_u8Reserved1 = 0;
    m_u8MessageId = 1;
    m_u8Reserved3 = 0;
    m_u16HeaderLength = nHeaderSize;
    std::memset(m_au8Reserved6, 0, sizeof m_au8Reserved6);
    m_u8Command0 = 0;
    m_u8Command1 = 0;
    m_u16Parameter1 = 0;
    m_u16Parameter2 = 0;
    m_u16Parameter3 = 0;
    m_u32Parameter4 = 0;
    m_u32DataLenght = 0;
    m_u16Checksum = 0;
    m_u16EndMark = u16EndMark;
}

void TamarindDataHeader::vWriteHeader(uint8_t *p) const
{
    p[0] = m_u8Start;
    p[1] = m_u8Reserved1;
    p[2] = m_u8MessageId;
    p[3] = m_u8Reserved3;
    put16(p + 4, m_u16HeaderLength);
    std::memcpy(p + 6, m_au8Reserved6, sizeof m_au8Reserved6);
    p[12] = m_u8Command0;
    p[13] = m_u8Command1;
    put16(p + 14, m_u16Parameter1);
    put16(p + 16, m_u16Parameter2);
    put16(p + 18, m_u16Parameter3);
    put32(p + 20, m_u32Parameter4);
    put32(p + 24, m_u32DataLenght);
    put16(p + 28, m_u16Checksum);
    put16(p + 30, m_u16EndMark);
}

unsigned short TamarindDataHeader::oCalculateChecksum()
{
    uint8_t bytes[nHeaderSize];
    vWriteHeader(bytes);
    uint8_t u8Xor = 0;
    for (std::size_t i = 0; i < nPayloadOffset; ++i)
        u8Xor ^= bytes[i];
    m_u16Checksum = u8Xor;
    return m_u16Checksum;
}

std::string TamarindDataHeader::encode()
{
    oCalculateChecksum();
    uint8_t bytes[nHeaderSize];
    vWriteHeader(bytes);
    return std::string(reinterpret_cast<const char *>(bytes), nHeaderSize);
}

void TamarindDataHeader::decode(const std::string &oReply)
{
    // The reply is only read in place: every branch checks that its record lies
    // wholly inside it first, so nothing needs copying.
    const std::size_t size = oReply.size();
    if (size <= nCommand1Offset)
        return;
    const auto *reply = reinterpret_cast<const uint8_t *>(oReply.data());
    const uint8_t *payload = reply + nPayloadOffset;
    const auto fits = [size](std::size_t recordSize) { return size >= nPayloadOffset + recordSize; };

    const uint8_t u8Command0 = reply[nCommand0Offset];
    if (u8Command0 == u8CommandIdentification) {
        if (fits(sizeof(IdentificationData)))
            initIdentificationData(blockRecord<IdentificationData>(payload));
        return;
    }
    if (u8Command0 != u8CommandReadOut)
        return;

    switch (reply[nCommand1Offset]) {
    case 0:
        if (!fits(0))
            return;
        if (get32(reply + nDataLengthOffset) == u32PlainProcessDataLength) {
            if (fits(sizeof(ReadOutProcessData)))
                initOutProcessData(blockRecord<ReadOutProcessData>(payload));
        } else if (fits(sizeof(ReadOutProcessDataOY1P))) {
            initOutProcessData(blockAndValueRecord<ReadOutProcessDataOY1P>(payload));
        }
        break;
    case 1:
        if (fits(0))
            initAllParameters(lowerHexDump(reply, size));
        break;
    case 3:
        if (fits(sizeof(ReadOutDigitalOutputs)))
            initDigitalOutputs(blockRecord<ReadOutDigitalOutputs>(payload));
        break;
    case 5:
        if (fits(sizeof(ReadOutAnalogOutputs)))
            initAnalogOutputs(blockAndValueRecord<ReadOutAnalogOutputs>(payload));
        break;
    case 7:
        if (fits(sizeof(ReadOutParametersConfiguration)))
            initParametersConfig(blockRecord<ReadOutParametersConfiguration>(payload));
        break;
    default:
        break;
    }
}

void TamarindDataHeader::initIdentificationData(const IdentificationData &oData)
{
    m_oIdentificationData = oData;
}

void TamarindDataHeader::initOutProcessData(const ReadOutProcessData &oData)
{
    m_oProcessData = oData;
}

void TamarindDataHeader::initOutProcessData(const ReadOutProcessDataOY1P &oData)
{
    m_oProcessDataOY1P = oData;
}

void TamarindDataHeader::initDigitalOutputs(const ReadOutDigitalOutputs &oData)
{
    m_oDigitalOutputs = oData;
}

void TamarindDataHeader::initAnalogOutputs(const ReadOutAnalogOutputs &oData)
{
    m_oAnalogOutputs = oData;
}

void TamarindDataHeader::initParametersConfig(const ReadOutParametersConfiguration &oData)
{
    m_oParametersConfiguration = oData;
}

void TamarindDataHeader::initAllParameters(const QString &oHexDump)
{
    m_oAllParameters = oHexDump;
}

} // namespace Utils
