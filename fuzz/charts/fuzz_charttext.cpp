// SPDX-License-Identifier: LGPL-2.1-or-later
// Feeds arbitrary text to the charts' text form: every line is read as a sample
// ("dd-MM-yyyy hh:mm:ss.zzz" or plain milliseconds, then values) and the samples
// read are written back as CSV under the first line as header. The reader must
// keep to its contract and the writer must produce one line per kept sample.
#include "charts/chartrules_p.h"
#include "charts/csvtext_p.h"
#include "charts/valueovertime.h"

#include <QString>
#include <QStringList>

#include <cmath>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const QChar separator = QLatin1Char(char(data[0]) == ';' ? ';' : ',');
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data + 1), int(size - 1));
    const QStringList lines = text.split(QLatin1Char('\n'));

    Utils::ValueOverTime first;
    Utils::ValueOverTime second;
    for (const QString &line : lines) {
        const Utils::Charts::Rules::TextSample sample = Utils::Charts::Rules::parseTextLine(line, separator);
        if (!sample.ok) {
            if (!sample.values.isEmpty())
                std::abort();
            continue;
        }
        if (!std::isfinite(sample.time) || sample.values.size() != line.trimmed().split(separator).size() - 1)
            std::abort();
        if (!sample.values.isEmpty() && std::isfinite(sample.values.at(0)))
            first.vAppend(sample.values.at(0), sample.time == 0.0 ? 1.0 : sample.time);
        if (sample.values.size() > 1)
            second.vAppend(sample.values.at(1), sample.time == 0.0 ? 1.0 : sample.time);
    }

    const QStringList header = lines.front().split(separator);
    const QByteArray csv = Utils::Text::csv({&first, &second}, &header, QString(separator), 3);
    if (csv.isEmpty() || !csv.endsWith('\n'))
        std::abort();
    int skipped = 0;
    for (int i = 0; i < first.size(); ++i)
        skipped += first.pyData()[i] == -1000.0 ? 1 : 0;
    if (csv.count('\n') != 1 + first.size() - skipped)
        std::abort();
    return 0;
}
