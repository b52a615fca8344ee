// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/csvtext_p.h"

#include "charts/valueovertime.h"
#include "core/localtime_p.h"


#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

namespace Utils {
namespace Text {

namespace {

//! Series-0 value of a row that is not exported (the break of the multi-curve charts).
constexpr double skippedRowValue = -1000.0;
//! Room for one fixed-notation number: sign, 309 integer digits, point, a carry digit.
constexpr int fixedOverhead = 320;
//! Room for one time cell, also the QDateTime text of years beyond 9999.
constexpr int timeRoom = 64;

/*!
    Output buffer that grows geometrically and is written through a pointer,
    so that a row costs no allocation once the buffer has reached its size.
*/
class CsvBuffer
{
public:
    explicit CsvBuffer(qint64 expected)
    {
        m_bytes.resize(int(std::min<qint64>(std::max<qint64>(expected, 256), std::numeric_limits<int>::max() / 2)));
    }

    //! Makes sure \a count more bytes fit and returns where they go.
    char *room(int count)
    {
        if (m_used + count > m_bytes.size()) {
            // Doubling, held below what a QByteArray can address.
            const qint64 wanted = std::max<qint64>(qint64(m_used) + count, qint64(m_bytes.size()) * 2);
            m_bytes.resize(int(std::min<qint64>(wanted, std::numeric_limits<int>::max() - 64)));
        }
        return m_bytes.data() + m_used;
    }
    void commit(const char *end) { m_used = int(end - m_bytes.constData()); }
    void append(const QByteArray &text)
    {
        char *out = room(text.size());
        std::memcpy(out, text.constData(), size_t(text.size()));
        m_used += text.size();
    }
    QByteArray take()
    {
        m_bytes.resize(m_used);
        return std::move(m_bytes);
    }

private:
    QByteArray m_bytes;
    int m_used = 0;
};

/*!
    Fixed notation with a given number of decimals, giving exactly the text of
    QString::number(value, 'f', precision): "nan" for any NaN, no sign on
    -0.0, and ties rounded away from zero (std::to_chars rounds them to even).
*/
class FixedFormat
{
public:
    explicit FixedFormat(int precision)
        : m_precision(precision)
        , m_scale(std::ldexp(1.0, precision))
    { }

    int room() const { return fixedOverhead + m_precision; }

    //! Writes \a value at \a out (room() bytes available) and returns the end.
    char *write(char *out, double value) const
    {
        if (std::isnan(value)) {
            std::memcpy(out, "nan", 3);
            return out + 3;
        }
        if (value == 0.0)
            value = 0.0;
        char *const limit = out + room();
        if (!isTie(value))
            return std::to_chars(out, limit, value, std::chars_format::fixed, m_precision).ptr;
        // The value lies exactly halfway: one more decimal shows it exactly,
        // ending in 5. Drop that 5 and round the rest up in magnitude.
        char *end = std::to_chars(out, limit, value, std::chars_format::fixed, m_precision + 1).ptr - 1;
        if (m_precision == 0)
            --end; // the point
        for (char *digit = end - 1;; --digit) {
            if (digit < out || *digit == '-') {
                std::memmove(digit + 2, digit + 1, size_t(end - digit - 1));
                digit[1] = '1';
                return end + 1;
            }
            if (*digit == '.')
                continue;
            if (*digit != '9') {
                ++*digit;
                return end;
            }
            *digit = '0';
        }
    }

private:
    // Exactly halfway between two results: value * 2^precision has a
    // fractional part of exactly one half (scaling by a power of two is exact;
    // an overflow to infinity means a whole number, hence no tie).
    bool isTie(double value) const
    {
        const double scaled = std::isinf(m_scale) ? std::ldexp(value, m_precision) : value * m_scale;
        return std::fabs(scaled - std::trunc(scaled)) == 0.5;
    }

    int m_precision;
    double m_scale;
};

/*!
    Local "dd-MM-yyyy hh:mm:ss.zzz" of a time in ms since the epoch, equal to
    QDateTime::fromMSecsSinceEpoch(ms).toString() with that format. Rows of one
    second share their date and clock text, so the local-time conversion runs
    once per second of data, not per row.
*/
class LocalTimeFormat
{
public:
    LocalTimeFormat()
    {
        // QDateTime re-reads the time zone before each conversion; do so once
        // per export so that both agree after a change of TZ.
        LocalTime::reloadZone();
    }

    //! Writes the time cell of \a ms at \a out (timeRoom bytes available) and returns the end.
    char *write(char *out, double ms)
    {
        // NaN, infinities and times beyond the 64-bit range have no date.
        if (!(ms > -9223372036854775808.0 && ms < 9223372036854775808.0))
            return out;
        const qint64 whole = qint64(ms); // truncated towards zero, as the time column is
        if (!LocalTime::isPlain(whole))
            return LocalTime::write(out, timeRoom, whole, "dd-MM-yyyy hh:mm:ss.zzz");
        const qint64 second = whole / 1000;
        if (second != m_second) {
            LocalTime::writeFields(m_secondText, LocalTime::plainFields(second * 1000), "dd-MM-yyyy hh:mm:ss");
            m_second = second;
        }
        std::memcpy(out, m_secondText, sizeof m_secondText);
        out += sizeof m_secondText;
        const int milli = int(whole % 1000);
        out[0] = '.';
        out[1] = char('0' + milli / 100);
        out[2] = char('0' + milli / 10 % 10);
        out[3] = char('0' + milli % 10);
        return out + 4;
    }

private:
    qint64 m_second = -1;
    char m_secondText[19] = {};
};

} // namespace

QByteArray csv(const QList<const ValueOverTime *> &data, const QStringList *headers, const QString &delimiterText,
              int precision, int first, int last)
{
    const ValueOverTime *firstSeries = data.isEmpty() ? nullptr : data.front();
    const int rows = firstSeries ? firstSeries->size() : 0;
    if (last < 0 || last > rows)
        last = rows;
    first = std::max(0, std::min(first, last));

    struct Column
    {
        const double *y;
        int size;
    };
    std::vector<Column> columns;
    {
        columns.reserve(size_t(data.size()));
        for (const ValueOverTime *series : data)
            columns.push_back(series ? Column { series->pyData(), series->size() } : Column { nullptr, 0 });
    }
    const QByteArray delimiter = delimiterText.toUtf8();
    const FixedFormat fixed(precision);
    LocalTimeFormat time;

    const int cell = delimiter.size() + fixed.room();
    const int rowRoom = timeRoom + int(columns.size()) * cell + 1;
    const qint64 typicalRow = 24 + qint64(columns.size()) * (delimiter.size() + 8 + precision);
    CsvBuffer out(qint64(last - first) * typicalRow + 256);

    if (headers)
        out.append(headers->join(delimiterText).toUtf8());
    out.append(QByteArrayLiteral("\n"));

    if (first == last)
        return out.take();
    const double *x = firstSeries->pxData();
    const double *y0 = columns.front().y;
    for (int row = first; row < last; ++row) {
        if (y0[row] == skippedRowValue)
            continue;
        char *p = time.write(out.room(rowRoom), x[row]);
        for (const Column &column : columns) {
            std::memcpy(p, delimiter.constData(), size_t(delimiter.size()));
            p += delimiter.size();
            if (row < column.size)
                p = fixed.write(p, column.y[row]);
        }
        *p++ = '\n';
        out.commit(p);
    }
    return out.take();
}

} // namespace Text
} // namespace Utils
