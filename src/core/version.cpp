// SPDX-License-Identifier: LGPL-2.1-or-later
#include "utils/version.h"

namespace Utils {

const char *oVersionString()
{
    return UTILS_VERSION_STRING;
}

unsigned int u32Version()
{
    return UTILS_VERSION;
}

} // namespace Utils
