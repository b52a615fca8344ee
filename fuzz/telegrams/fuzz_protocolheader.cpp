// SPDX-License-Identifier: LGPL-2.1-or-later
// Protocol header texts: the fast reader must never read past the text and must
// agree with the stream-based reading on every input.
#include "telegrams/tamarindprotocolheader.h"

#include "streamreference.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    Utils::TamarindProtocolHeader fast;
    fast.vSetProtocolLenght(0x5566);
    fast.vSetAdress(0x99AABBCC);
    fast.vSetStart(0x11);
    Utils::TamarindProtocolHeader reference = fast;
    const bool fastResult = fast.bSetFromString(text);
    const bool referenceResult = StreamReference::setFromString(reference, text);
    if (fastResult != referenceResult || fast.oToString() != reference.oToString())
        std::abort();
    if (fast.oToString().size() != Utils::TamarindProtocolHeader::nTextLength)
        std::abort();
    return 0;
}
