// SPDX-License-Identifier: LGPL-2.1-or-later
#include "telegrams/melencoderdecoder.h"

#include "telegrams/hexpiece_p.h"

#include <QDebug>
#include <QString>

#include <cstring>

namespace Utils {

namespace {

// Where setFromString() looks; the record layout behind them is not defined yet.
constexpr std::size_t nTraceOffset = 4;
constexpr std::size_t nShortTrace = 23;
constexpr std::size_t nLongTrace = 96;
constexpr std::size_t nSourceOffset = 74;
constexpr std::size_t nTargetByte = 76;

QString latin1(const std::string &oText, std::size_t pos, std::size_t length)
{
    return QString::fromLatin1(oText.data() + pos, static_cast<int>(length));
}

// A fresh int read from one piece; stays 0 when the stream would not convert.
int pieceValue(const char *piece, std::size_t length)
{
    long value = 0;
    HexPiece::readNumber(piece, length, value);
    return static_cast<int>(value);
}

} // namespace

MelData::MelData()
{
    initMembers();
}

MelData::MelData(const MelData &oOther)
{
    std::memcpy(m_au8Data, oOther.m_au8Data, nSize);
}

MelData &MelData::operator=(const MelData &oOther)
{
    std::memcpy(m_au8Data, oOther.m_au8Data, nSize);
    return *this;
}

MelData::~MelData() = default;

void MelData::initMembers()
{
    std::memset(m_au8Data, 0, nSize);
}

bool MelData::setFromString(const std::string &oText)
{
    if (oText.size() < nMinimumTextLength)
        return false;
    const char cSource = oText[nSourceOffset];
    const unsigned code = static_cast<uint8_t>(cSource);
    qDebug().noquote() << latin1(oText, nTraceOffset, nShortTrace);
    qDebug().noquote() << latin1(oText, nTraceOffset, nLongTrace);
    qDebug().noquote() << QString(QLatin1Char(cSource));
    qDebug().noquote() << QString(QLatin1Char(cSource)) << code;
    m_au8Data[nTargetByte] = static_cast<uint8_t>(code);
    qDebug() << unsigned(m_au8Data[nTargetByte]);
    return false;
}

bool MelData::toString(const std::string &oText)
{
    // Callers rely on their text being emptied although the interface says const.
    const_cast<std::string &>(oText).clear();
    return false;
}

bool MelData::operator==(const MelData &oOther) const
{
    return std::memcmp(m_au8Data, oOther.m_au8Data, nSize) == 0;
}

MelEncoderDecoder::MelEncoderDecoder()
    : m_u16LastError(0)
{
}

MelEncoderDecoder::MelEncoderDecoder(const MelEncoderDecoder &oOther) = default;
MelEncoderDecoder &MelEncoderDecoder::operator=(const MelEncoderDecoder &oOther) = default;
MelEncoderDecoder::~MelEncoderDecoder() = default;

std::string MelEncoderDecoder::oEncode(MelData &)
{
    return std::string();
}

MelData MelEncoderDecoder::oDecodeString(const std::string &)
{
    return MelData();
}

std::string MelEncoderDecoder::oCalculateChecksum(const std::string &oText)
{
    if (oText.empty())
        return std::string();
    const std::size_t size = oText.size();
    const char *text = oText.data();
    int nValue = pieceValue(text, size < 2 ? size : 2);
    for (std::size_t p = 2; p < size; p += 2)
        nValue ^= pieceValue(text + p, size - p < 2 ? size - p : 2);

    // "%.2X": upper-case hex of the value taken as unsigned, at least two digits.
    static const char digits[] = "0123456789ABCDEF";
    char buffer[12];
    char *end = buffer + sizeof buffer;
    char *p = end;
    unsigned value = static_cast<unsigned>(nValue);
    do {
        *--p = digits[value & 0x0F];
        value >>= 4;
    } while (value != 0);
    if (end - p < 2)
        *--p = '0';
    std::string oResult(p, end);
    oResult += "00";
    return oResult;
}

} // namespace Utils
