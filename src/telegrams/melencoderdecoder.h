// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_MELENCODERDECODER_H
#define UTILS_MELENCODERDECODER_H

#include "utils_export.h"

#include <cstdint>
#include <string>

namespace Utils {

/*!
    \brief The 114-byte record of a Mel telegram.

    Only its size is fixed in this version; setFromString() checks the length
    of a telegram text, traces a few pieces of it and stores one byte. Both
    partial behaviours are relied on by existing callers and kept as they are.
*/
class UTILS_EXPORT MelData
{
public:
    static constexpr std::size_t nSize = 114;
    //! Shortest text setFromString() looks at.
    static constexpr std::size_t nMinimumTextLength = 996;

    MelData();
    MelData(const MelData &oOther);
    MelData &operator=(const MelData &oOther);
    virtual ~MelData();

    //! Zeroes the data block.
    void initMembers();

    /*!
        Texts of fewer than 996 characters are refused untouched. Longer ones are
        traced to the debug output (the 23 and the 96 characters from position 4,
        the character at 74, then that character and its code) and the code of the
        character at 74 is stored in block byte 76 and traced too. Returns false in
        every case.
    */
    bool setFromString(const std::string &oText);

    /*!
        Empties \a oText, although it is passed as a constant reference, and
        returns false. Existing callers depend on their string being cleared; the
        string must therefore not be a const object itself.
    */
    bool toString(const std::string &oText);

    //! The data block, nSize bytes.
    const uint8_t *pu8Data() const { return m_au8Data; }

    bool operator==(const MelData &oOther) const;
    bool operator!=(const MelData &oOther) const { return !(*this == oOther); }

private:
    uint8_t m_au8Data[nSize];
};

/*!
    \brief Codec of the Mel telegrams; in this version only the checksum is done.

    oEncode() and oDecodeString() have their final signatures but return an
    empty text and a zeroed record; u16LastError() is always 0.
*/
class UTILS_EXPORT MelEncoderDecoder
{
public:
    MelEncoderDecoder();
    MelEncoderDecoder(const MelEncoderDecoder &oOther);
    MelEncoderDecoder &operator=(const MelEncoderDecoder &oOther);
    ~MelEncoderDecoder();

    //! Returns the empty text; the record is not read.
    std::string oEncode(MelData &oData);
    //! Returns a zeroed record; the text is not read.
    MelData oDecodeString(const std::string &oText);

    /*!
        The checksum field of a text of hex digit pairs: the XOR of all pieces,
        printed as "%.2X" followed by "00" (0102030A gives "0A00"); the empty text
        gives the empty text.

        Each piece (characters 0-1, 2-3, ...; a last odd character alone) is read
        as a std::hex string stream reads it into a fresh int: leading blanks are
        skipped, a sign is taken, reading stops at the first non-hex character, and
        a piece with no digits counts 0. A piece such as "-1" therefore makes the
        sum negative, which prints as eight digits ("FFFFFFFE00").
    */
    std::string oCalculateChecksum(const std::string &oText);

    unsigned short u16LastError() const { return m_u16LastError; }

private:
    unsigned short m_u16LastError;
    std::string m_oText;
    std::string m_aoTexts[2];
};

} // namespace Utils

#endif // UTILS_MELENCODERDECODER_H
