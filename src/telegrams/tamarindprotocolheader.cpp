// SPDX-License-Identifier: LGPL-2.1-or-later
#include "telegrams/tamarindprotocolheader.h"

#include "telegrams/hexpiece_p.h"

namespace Utils {

namespace {

// Fewer characters than this and the text is refused outright; the check has
// always been against 12 although a header has 24.
constexpr std::size_t nMinimumLength = 12;
constexpr std::size_t nPiece = 2;

void appendByte(std::string &oText, uint8_t u8Byte)
{
    static const char digits[] = "0123456789ABCDEF";
    oText.push_back(digits[u8Byte >> 4]);
    oText.push_back(digits[u8Byte & 0x0F]);
}

// A high piece of the length or address: read into a fresh number that stays 0
// when the piece is all blank.
inline uint32_t highPiece(const char *piece)
{
    long value = 0;
    HexPiece::readNumber(piece, nPiece, value);
    return static_cast<uint32_t>(value);
}

} // namespace

TamarindProtocolHeader::TamarindProtocolHeader(const std::string &oText)
{
    bSetFromString(oText);
}

bool TamarindProtocolHeader::bSetFromString(const std::string &oText)
{
    if (oText.empty()) {
        vClear();
        return false;
    }
    if (oText.size() < nMinimumLength)
        return false;
    // 12 to 23 characters: the pieces past the end cannot be read. Refuse the
    // whole text instead of leaving a half-read header behind.
    if (oText.size() < nTextLength)
        return false;

    const char *text = oText.data();
    HexPiece::readCharacter(text + 0, nPiece, m_u8Start);
    HexPiece::readCharacter(text + 2, nPiece, m_u8Version);
    HexPiece::readCharacter(text + 4, nPiece, m_u8MessageId);
    HexPiece::readCharacter(text + 6, nPiece, m_u8Repeat);

    long value = 0;
    if (HexPiece::readNumber(text + 8, nPiece, value))
        m_u16ProtocolLenght = static_cast<uint16_t>(value);
    m_u16ProtocolLenght = static_cast<uint16_t>(m_u16ProtocolLenght + (highPiece(text + 10) << 8));

    HexPiece::readCharacter(text + 12, nPiece, m_u8MessageType);
    HexPiece::readCharacter(text + 14, nPiece, m_u8Dummy);

    if (HexPiece::readNumber(text + 16, nPiece, value))
        m_u32Adress = static_cast<uint32_t>(value);
    // Shifts in unsigned arithmetic: the pieces may read negative ("-1").
    m_u32Adress += highPiece(text + 18) << 8;
    m_u32Adress += highPiece(text + 20) << 16;
    m_u32Adress += highPiece(text + 22) << 24;
    return true;
}

std::string TamarindProtocolHeader::oToString() const
{
    std::string oText;
    oText.reserve(nTextLength);
    appendByte(oText, m_u8Start);
    appendByte(oText, m_u8Version);
    appendByte(oText, m_u8MessageId);
    appendByte(oText, m_u8Repeat);
    appendByte(oText, static_cast<uint8_t>(m_u16ProtocolLenght & 0xFF));
    appendByte(oText, static_cast<uint8_t>(m_u16ProtocolLenght >> 8));
    appendByte(oText, m_u8MessageType);
    appendByte(oText, m_u8Dummy);
    for (int shift = 0; shift < 32; shift += 8)
        appendByte(oText, static_cast<uint8_t>(m_u32Adress >> shift));
    return oText;
}

void TamarindProtocolHeader::vClear()
{
    m_u8Start = 0;
    m_u8Version = 0;
    m_u8MessageId = 0;
    m_u8Repeat = 0;
    m_u16ProtocolLenght = 0;
    m_u8MessageType = 0;
    m_u8Dummy = 0;
    m_u32Adress = 0;
}

void TamarindProtocolHeader::vInitMembers()
{
    vClear();
}

} // namespace Utils
