// SPDX-License-Identifier: LGPL-2.1-or-later
// Mel checksum over any text, compared with the stream-based reading.
#include "telegrams/melencoderdecoder.h"

#include "streamreference.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    Utils::MelEncoderDecoder codec;
    if (codec.oCalculateChecksum(text) != StreamReference::melChecksum(text))
        std::abort();
    return 0;
}
