// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_HEXPIECE_P_H
#define UTILS_HEXPIECE_P_H

#include <cstddef>

namespace Utils {
namespace HexPiece {

/*
    The telegram texts were historically read one short piece at a time through a
    fresh std::istringstream in std::hex mode. These helpers give the very same
    results without building a stream: the protocol header must parse millions of
    texts per second. They only handle pieces of up to two characters (longer
    pieces could overflow, which the callers never need); the tests compare them
    with real streams over every two-character piece.
*/

//! The classic locale's blanks, the characters a stream skips before reading.
inline bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

//! Value of a hexadecimal digit, or -1.
inline int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

/*!
    Like `stream >> ch` into an unsigned char: skips blanks and takes the first
    remaining character. Returns false, leaving \a value alone, when only blanks
    (or nothing) remain.
*/
inline bool readCharacter(const char *piece, std::size_t length, unsigned char &value)
{
    for (std::size_t i = 0; i < length; ++i) {
        if (!isBlank(piece[i])) {
            value = static_cast<unsigned char>(piece[i]);
            return true;
        }
    }
    return false;
}

/*!
    Like `stream >> std::hex >> number` for a piece of at most two characters.

    Returns false and leaves \a value alone when the piece is empty or all blank
    (the stream's sentry fails before any conversion). Otherwise stores the number
    read, with its sign, and returns true; a failed conversion stores 0, as
    streams have done since C++11. The caller narrows the value to its field type
    with wrap-around, as the stream does for unsigned targets ("-1" is 0xFFFF in
    a 16-bit field).

    Accepted like the stream does: leading blanks, one '+' or '-', a "0x"/"0X"
    prefix (which alone is a failed conversion), then hex digits up to the first
    other character.
*/
inline bool readNumber(const char *piece, std::size_t length, long &value)
{
    const char *p = piece;
    const char *const end = piece + length;
    while (p != end && isBlank(*p))
        ++p;
    if (p == end)
        return false;

    bool negative = false;
    if (*p == '-' || *p == '+') {
        negative = *p == '-';
        ++p;
    }
    bool found = false;
    if (p != end && *p == '0') {
        found = true;
        ++p;
        if (p != end && (*p == 'x' || *p == 'X')) {
            // The prefix is no digit: "0x" on its own converts nothing.
            found = false;
            ++p;
        }
    }
    long result = 0;
    for (; p != end; ++p) {
        const int digit = digitValue(*p);
        if (digit < 0)
            break;
        result = result * 16 + digit;
        found = true;
    }
    value = found ? (negative ? -result : result) : 0;
    return true;
}

} // namespace HexPiece
} // namespace Utils

#endif // UTILS_HEXPIECE_P_H
