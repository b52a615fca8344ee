// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CSVTEXT_P_H
#define UTILS_CSVTEXT_P_H

// Internal to the library and its tests: the CSV text of sample series, shared by
// the export dialog and the charts' text form. Not installed.

#include "utils_export.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace Utils {

class ValueOverTime;

namespace Text {

/*!
    The CSV text of \a data: the \a headers joined by \a delimiter (an empty line
    when null), then one row per sample of series 0 from \a first up to but not
    including \a last (last < 0: all): the time of series 0 truncated to whole
    milliseconds as local "dd-MM-yyyy hh:mm:ss.zzz", then for each series the
    delimiter and its value in fixed notation with \a precision decimals, or
    nothing where the series is shorter. Rows whose series-0 value is -1000.0 are
    left out. Numbers read as QString::number(v, 'f', precision) writes them.
    No allocation per field.
*/
UTILS_EXPORT QByteArray csv(const QList<const ValueOverTime *> &data, const QStringList *headers,
                            const QString &delimiter, int precision, int first = 0, int last = -1);

} // namespace Text
} // namespace Utils

#endif // UTILS_CSVTEXT_P_H
