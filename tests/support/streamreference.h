// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TESTS_STREAMREFERENCE_H
#define UTILS_TESTS_STREAMREFERENCE_H

// The telegram texts as the original stream-based reading parses them: every
// piece through a fresh std::istringstream in std::hex mode. Slow, but obviously
// right; the tests, the fuzzers and the benchmark compare the library's fast
// parsers with it.

#include "telegrams/tamarindprotocolheader.h"

#include <cstdint>
#include <cstdio>
#include <sstream>
#include <string>

namespace StreamReference {

//! `stream >> std::hex >> value`; an unsigned char takes one character, not a
//! number, and every type keeps \a start when the stream fails before converting.
template<typename Number>
Number read(const std::string &text, std::size_t pos, Number start)
{
    std::istringstream stream(text.substr(pos, 2));
    Number value = start;
    stream >> std::hex >> value;
    return value;
}

/*!
    Reads \a text into \a header like TamarindProtocolHeader::bSetFromString().
    Texts of 12 to 23 characters are refused untouched (the substring step
    cannot give all pieces); high pieces read into fresh ints starting at 0.
*/
inline bool setFromString(Utils::TamarindProtocolHeader &header, const std::string &text)
{
    if (text.empty()) {
        header.vClear();
        return false;
    }
    if (text.size() < 24)
        return false;

    header.vSetStart(read<unsigned char>(text, 0, header.u8Start()));
    header.vSetVersion(read<unsigned char>(text, 2, header.u8Version()));
    header.vSetMessageId(read<unsigned char>(text, 4, header.u8MessageId()));
    header.vSetRepeat(read<unsigned char>(text, 6, header.u8Repeat()));

    uint16_t length = read<unsigned short>(text, 8, header.u16ProtocolLenght());
    length = static_cast<uint16_t>(length + (static_cast<uint32_t>(read<int>(text, 10, 0)) << 8));
    header.vSetProtocolLenght(length);

    header.vSetMessageType(read<unsigned char>(text, 12, header.u8MessageType()));
    header.vSetDummy(read<unsigned char>(text, 14, header.u8Dummy()));

    uint32_t address = read<unsigned int>(text, 16, header.u32Adress());
    address += static_cast<uint32_t>(read<int>(text, 18, 0)) << 8;
    address += static_cast<uint32_t>(read<int>(text, 20, 0)) << 16;
    address += static_cast<uint32_t>(read<int>(text, 22, 0)) << 24;
    header.vSetAdress(address);
    return true;
}

//! The Mel checksum as the stream-based codec computes it.
inline std::string melChecksum(const std::string &text)
{
    if (text.empty())
        return std::string();
    int running = read<int>(text, 0, 0);
    for (std::size_t p = 2; p < text.size(); p += 2)
        running ^= read<int>(text, p, 0);
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%.2X", static_cast<unsigned>(running));
    return std::string(buffer) + "00";
}

} // namespace StreamReference

#endif // UTILS_TESTS_STREAMREFERENCE_H
