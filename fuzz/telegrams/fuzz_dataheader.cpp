// SPDX-License-Identifier: LGPL-2.1-or-later
// Sensor replies of any length and content; decode must stay inside the reply
// and must never change the request it answers.
#include "telegrams/tamarinddataheader.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string reply(reinterpret_cast<const char *>(data), size);

    Utils::TamarindDataHeader header;
    header.vSetCommand0(10);
    header.vSetCommand1(7);
    const std::string request = header.encode();
    header.decode(reply);
    if (header.encode() != request)
        std::abort();
    const QString dump = header.hexReadAllParameters();
    if (!dump.isEmpty() && dump.size() != int(2 * size))
        std::abort();
    return 0;
}
