// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TAMARINDDATAHEADER_H
#define UTILS_TAMARINDDATAHEADER_H

#include "utils_export.h"

#include <QMetaType>
#include <QString>

#include <cstdint>
#include <string>

namespace Utils {

// Read-out records: the sensor's reply payload taken over byte for byte. The
// library does not interpret their inner fields; multi-byte values are stored
// in host order after a little-endian read.
#pragma pack(push, 1)

//! Identification data, 30 bytes (command 0 = 0).
struct IdentificationData
{
    uint8_t au8Data[30];
};

//! Process data, 32 bytes (command 10/0 with a data length of 32).
struct ReadOutProcessData
{
    uint8_t au8Data[32];
};

//! Process data of the OY1P form, 36 bytes (command 10/0, other data lengths).
struct ReadOutProcessDataOY1P
{
    uint8_t au8Data[32];
    uint32_t u32Value;
};

//! Digital outputs, 16 bytes (command 10/3).
struct ReadOutDigitalOutputs
{
    uint8_t au8Data[16];
};

//! Analog outputs, 52 bytes (command 10/5).
struct ReadOutAnalogOutputs
{
    uint8_t au8Data[48];
    uint32_t u32Value;
};

//! Parameter configuration, 96 bytes (command 10/7).
struct ReadOutParametersConfiguration
{
    uint8_t au8Data[96];
};

#pragma pack(pop)

static_assert(sizeof(IdentificationData) == 30, "record layout");
static_assert(sizeof(ReadOutProcessData) == 32, "record layout");
static_assert(sizeof(ReadOutProcessDataOY1P) == 36, "record layout");
static_assert(sizeof(ReadOutDigitalOutputs) == 16, "record layout");
static_assert(sizeof(ReadOutAnalogOutputs) == 52, "record layout");
static_assert(sizeof(ReadOutParametersConfiguration) == 96, "record layout");

/*!
    \brief The binary request telegram and the records read from its reply.

    encode() gives the 32 raw request bytes (little-endian numbers): start mark
    '$', message id, header length 32, commands 0 and 1, parameters 1 to 4, data
    length, an XOR checksum over bytes 0 to 27 at byte 28 (byte 29 is 0) and the
    end mark ".;". decode() takes the sensor's reply, whose payload starts at
    byte 28, and stores the record its commands announce (bytes 12 and 13).

    A plain value: copying copies the header, every record and the hex dump.
    All records start zeroed.

    \sa TamarindProtocolHeader
*/
class UTILS_EXPORT TamarindDataHeader
{
public:
    static constexpr std::size_t nHeaderSize = 32;
    //! Offset of the payload in a reply.
    static constexpr std::size_t nPayloadOffset = 28;

    //! The text is ignored: the header gets its defaults and the dump is empty.
    explicit TamarindDataHeader(const std::string &oUnused = std::string());

    //! Sets the header to its defaults; the records and the dump are kept.
    void vInitMembers();

    void vSetMsgID(unsigned char u8Value) { m_u8MessageId = u8Value; }
    void vSetCommand0(unsigned char u8Value) { m_u8Command0 = u8Value; }
    void vSetCommand1(unsigned char u8Value) { m_u8Command1 = u8Value; }
    void vSetParameter1(unsigned short u16Value) { m_u16Parameter1 = u16Value; }
    void vSetParameter2(unsigned short u16Value) { m_u16Parameter2 = u16Value; }
    void vSetParameter3(unsigned short u16Value) { m_u16Parameter3 = u16Value; }
    void vSetParameter4(unsigned int u32Value) { m_u32Parameter4 = u32Value; }
    void vSetDataLenght(unsigned int u32Value) { m_u32DataLenght = u32Value; }

    //! Computes the checksum, then returns the 32 header bytes (zero bytes included).
    std::string encode();

    /*!
        Reads a reply. Command 0 (byte 12) = 0 stores the identification data;
        command 0 = 10 looks at command 1 (byte 13): 0 stores the process data when
        the data length (bytes 24-27) is exactly 32 and the OY1P form otherwise, 1
        replaces the hex dump with the whole reply, 3 stores the digital outputs, 5
        the analog outputs, 7 the parameter configuration. Other commands are
        ignored.

        A reply shorter than 28 bytes plus the announced record is ignored and
        leaves everything as it was; the dump needs the 28 header bytes. The start
        mark, end mark and checksum of the reply are not checked, and the request
        header is never changed.
    */
    void decode(const std::string &oReply);

    IdentificationData readOutIdentificationData() const { return m_oIdentificationData; }
    ReadOutProcessData readOutProcessData() const { return m_oProcessData; }
    ReadOutProcessDataOY1P readOutProcessDataOY1P() const { return m_oProcessDataOY1P; }
    ReadOutDigitalOutputs readDigitalOutputs() const { return m_oDigitalOutputs; }
    ReadOutAnalogOutputs readAnalogOutputs() const { return m_oAnalogOutputs; }
    ReadOutParametersConfiguration readParametersConfiguration() const { return m_oParametersConfiguration; }
    //! Every byte of the last full parameter read-out as two lower-case hex digits.
    QString hexReadAllParameters() const { return m_oAllParameters; }

private:
    unsigned short oCalculateChecksum();
    void vWriteHeader(uint8_t *pu8Bytes) const;

    void initIdentificationData(const IdentificationData &oData);
    void initOutProcessData(const ReadOutProcessData &oData);
    void initOutProcessData(const ReadOutProcessDataOY1P &oData);
    void initDigitalOutputs(const ReadOutDigitalOutputs &oData);
    void initAnalogOutputs(const ReadOutAnalogOutputs &oData);
    void initParametersConfig(const ReadOutParametersConfiguration &oData);
    void initAllParameters(const QString &oHexDump);

    uint8_t m_u8Start = 0;
    uint8_t m_u8Reserved1 = 0;
    uint8_t m_u8MessageId = 0;
    uint8_t m_u8Reserved3 = 0;
    uint16_t m_u16HeaderLength = 0;
    uint8_t m_au8Reserved6[6] = {};
    uint8_t m_u8Command0 = 0;
    uint8_t m_u8Command1 = 0;
    uint16_t m_u16Parameter1 = 0;
    uint16_t m_u16Parameter2 = 0;
    uint16_t m_u16Parameter3 = 0;
    uint32_t m_u32Parameter4 = 0;
    uint32_t m_u32DataLenght = 0;
    uint16_t m_u16Checksum = 0;
    uint16_t m_u16EndMark = 0;

    IdentificationData m_oIdentificationData = {};
    ReadOutProcessData m_oProcessData = {};
    ReadOutProcessDataOY1P m_oProcessDataOY1P = {};
    ReadOutDigitalOutputs m_oDigitalOutputs = {};
    ReadOutAnalogOutputs m_oAnalogOutputs = {};
    ReadOutParametersConfiguration m_oParametersConfiguration = {};
    QString m_oAllParameters;
};

} // namespace Utils

Q_DECLARE_METATYPE(Utils::TamarindDataHeader)

#endif // UTILS_TAMARINDDATAHEADER_H
