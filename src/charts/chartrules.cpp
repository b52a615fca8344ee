// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/chartrules_p.h"

#include <QDateTime>
#include <QStringList>

#include <cmath>
#include <limits>

namespace Utils {
namespace Charts {
namespace Rules {

TextSample parseTextLine(const QString &line, QChar separator)
{
    TextSample sample;
    const QString trimmed = line.trimmed();
    if (trimmed.isEmpty())
        return sample;
    const QStringList fields = trimmed.split(separator);
    const QString time = fields.front().trimmed();
    bool number = false;
    const double plain = time.toDouble(&number);
    if (number && std::isfinite(plain)) {
        sample.time = plain;
    } else {
        const QDateTime stamp = QDateTime::fromString(time, QStringLiteral("dd-MM-yyyy hh:mm:ss.zzz"));
        if (!stamp.isValid())
            return sample; // the header line, or not a sample
        sample.time = double(stamp.toMSecsSinceEpoch());
    }
    sample.values.reserve(fields.size() - 1);
    for (int i = 1; i < fields.size(); ++i) {
        bool ok = false;
        const double value = fields.at(i).trimmed().toDouble(&ok);
        sample.values.append(ok ? value : std::numeric_limits<double>::quiet_NaN());
    }
    sample.ok = true;
    return sample;
}

} // namespace Rules
} // namespace Charts
} // namespace Utils
