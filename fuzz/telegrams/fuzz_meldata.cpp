// SPDX-License-Identifier: LGPL-2.1-or-later
// Mel record texts: refused when short, one byte stored when long enough.
#include "telegrams/melencoderdecoder.h"

#include <QtGlobal>

#include <cstdlib>

namespace {
void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool silenced = (qInstallMessageHandler(quiet), true);
    Q_UNUSED(silenced)
    const std::string text(reinterpret_cast<const char *>(data), size);
    Utils::MelData record;
    if (record.setFromString(text))
        std::abort();
    const uint8_t expected = size >= Utils::MelData::nMinimumTextLength ? uint8_t(text[74]) : 0;
    for (std::size_t i = 0; i < Utils::MelData::nSize; ++i) {
        if (record.pu8Data()[i] != (i == 76 ? expected : 0))
            std::abort();
    }
    return 0;
}
