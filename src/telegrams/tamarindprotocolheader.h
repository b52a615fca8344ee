// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TAMARINDPROTOCOLHEADER_H
#define UTILS_TAMARINDPROTOCOLHEADER_H

#include "utils_export.h"

#include <QMetaType>

#include <cstdint>
#include <string>

namespace Utils {

/*!
    \brief The twelve-byte outer frame header of a sensor telegram.

    On the line the header travels as 24 upper-case hex digits, two per byte, in
    wire order: start, version, message id, repeat, length (low, high byte),
    message type, dummy, address (lowest byte first). oToString() writes that
    text; bSetFromString() reads it with the protocol's own reading rules, which
    are not the inverse of oToString(): the six single-byte fields receive the
    character code of their piece's first character, so "02" reads back as 0x30.
    Length and address are read as hex numbers.

    A plain value: copying copies all twelve bytes.

    \sa TamarindDataHeader
*/
class UTILS_EXPORT TamarindProtocolHeader
{
public:
    //! Number of characters of a complete header text.
    static constexpr std::size_t nTextLength = 24;

    /*!
        Zeroes every field, then reads \a oText with bSetFromString(), dropping
        its result.
    */
    explicit TamarindProtocolHeader(const std::string &oText = std::string());

    /*!
        Reads the header from its text.

        - Empty text: every field is zeroed, returns false.
        - 1 to 23 characters: returns false, the header is unchanged. Texts of 12
          to 23 characters pass the historical 12-character test but cannot hold
          all twelve pieces; they are refused as a whole rather than half read.
        - 24 or more characters: the first 24 are read piece by piece, the rest is
          ignored, and the result is true even if pieces do not read as hex.

        Each two-character piece is read as a std::hex string stream would read it:
        single-byte fields take the first non-blank character's code (an all-blank
        piece leaves the field alone); the length is the piece at 8 read as a
        16-bit number into the field (all blank: the field keeps its value) plus
        the piece at 10 shifted left by 8, wrapping at 16 bits; the address is the
        piece at 16 read as a 32-bit number into the field plus the pieces at 18,
        20 and 22 shifted left by 8, 16 and 24. A number piece stops at its first
        non-hex character; one without digits counts as 0, and so does an
        all-blank high piece. A leading '-' negates with wrap-around ("-1" at 8
        gives 0xFFFF).
    */
    bool bSetFromString(const std::string &oText);

    //! The 24-character text: every byte as "%.2X", in wire order.
    std::string oToString() const;

    //! Zeroes every field.
    void vClear();
    //! Same as vClear().
    void vInitMembers();

    uint8_t u8Start() const { return m_u8Start; }
    uint8_t u8Version() const { return m_u8Version; }
    uint8_t u8MessageId() const { return m_u8MessageId; }
    uint8_t u8Repeat() const { return m_u8Repeat; }
    uint16_t u16ProtocolLenght() const { return m_u16ProtocolLenght; }
    uint8_t u8MessageType() const { return m_u8MessageType; }
    uint8_t u8Dummy() const { return m_u8Dummy; }
    uint32_t u32Adress() const { return m_u32Adress; }

    void vSetStart(uint8_t u8Value) { m_u8Start = u8Value; }
    void vSetVersion(uint8_t u8Value) { m_u8Version = u8Value; }
    void vSetMessageId(uint8_t u8Value) { m_u8MessageId = u8Value; }
    void vSetRepeat(uint8_t u8Value) { m_u8Repeat = u8Value; }
    void vSetProtocolLenght(uint16_t u16Value) { m_u16ProtocolLenght = u16Value; }
    void vSetMessageType(uint8_t u8Value) { m_u8MessageType = u8Value; }
    void vSetDummy(uint8_t u8Value) { m_u8Dummy = u8Value; }
    void vSetAdress(uint32_t u32Value) { m_u32Adress = u32Value; }

private:
    uint8_t m_u8Start = 0;
    uint8_t m_u8Version = 0;
    uint8_t m_u8MessageId = 0;
    uint8_t m_u8Repeat = 0;
    uint16_t m_u16ProtocolLenght = 0;
    uint8_t m_u8MessageType = 0;
    uint8_t m_u8Dummy = 0;
    uint32_t m_u32Adress = 0;
};

} // namespace Utils

Q_DECLARE_TYPEINFO(Utils::TamarindProtocolHeader, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(Utils::TamarindProtocolHeader)

#endif // UTILS_TAMARINDPROTOCOLHEADER_H
