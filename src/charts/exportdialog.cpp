// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/exportdialog.h"

#include "charts/valueovertime.h"
#include "core/localtime_p.h"

#include <QCheckBox>
#include <QDate>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

namespace Utils {

namespace {

//! Series-0 value of a row that is not exported (the break of the multi-curve charts).
constexpr double skippedRowValue = -1000.0;
constexpr int previewRows = 10;
//! The most decimals a double has (the smallest subnormal is 2^-1074).
constexpr int maxPrecision = 1074;
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

//! The form: the widgets the dialog is built from, by their object names.
struct ExportDialogUi
{
    QGroupBox *GB_Separator = nullptr;
    QCheckBox *CB_Tab = nullptr;
    QCheckBox *CB_Semicolon = nullptr;
    QCheckBox *CB_Space = nullptr;
    QCheckBox *CB_Comma = nullptr;
    QCheckBox *CB_Other = nullptr;
    QLineEdit *LN_Other = nullptr;
    QGroupBox *GB_Location = nullptr;
    QLineEdit *LE_Location = nullptr;
    QPushButton *PB_Select = nullptr;
    QGroupBox *GB_OutputPreview = nullptr;
    QTextEdit *TB_OutputPreview = nullptr;
    QDialogButtonBox *buttonBox = nullptr;

    void setupUi(QDialog *dialog)
    {
        auto named = [](auto *widget, const char *name) {
            widget->setObjectName(QLatin1String(name));
            return widget;
        };
        dialog->setObjectName(QStringLiteral("ExportDialog"));
        dialog->resize(420, 460);
        auto *layout = new QVBoxLayout(dialog);

        GB_Separator = named(new QGroupBox(dialog), "GB_Separator");
        auto *separators = new QGridLayout(GB_Separator);
        CB_Tab = named(new QCheckBox(GB_Separator), "CB_Tab");
        CB_Semicolon = named(new QCheckBox(GB_Separator), "CB_Semicolon");
        CB_Space = named(new QCheckBox(GB_Separator), "CB_Space");
        CB_Comma = named(new QCheckBox(GB_Separator), "CB_Comma");
        CB_Other = named(new QCheckBox(GB_Separator), "CB_Other");
        LN_Other = named(new QLineEdit(GB_Separator), "LN_Other");
        separators->addWidget(CB_Tab, 0, 0);
        separators->addWidget(CB_Semicolon, 0, 1);
        separators->addWidget(CB_Space, 0, 2);
        separators->addWidget(CB_Comma, 1, 0);
        separators->addWidget(CB_Other, 1, 1);
        separators->addWidget(LN_Other, 1, 2);
        layout->addWidget(GB_Separator);

        GB_Location = named(new QGroupBox(dialog), "GB_Location");
        auto *location = new QHBoxLayout(GB_Location);
        LE_Location = named(new QLineEdit(GB_Location), "LE_Location");
        // The path comes from the file chooser only.
        LE_Location->setReadOnly(true);
        PB_Select = named(new QPushButton(GB_Location), "PB_Select");
        PB_Select->setAutoDefault(false);
        location->addWidget(LE_Location);
        location->addWidget(PB_Select);
        layout->addWidget(GB_Location);

        GB_OutputPreview = named(new QGroupBox(dialog), "GB_OutputPreview");
        auto *preview = new QVBoxLayout(GB_OutputPreview);
        TB_OutputPreview = named(new QTextEdit(GB_OutputPreview), "TB_OutputPreview");
        TB_OutputPreview->setReadOnly(true);
        TB_OutputPreview->setLineWrapMode(QTextEdit::NoWrap);
        preview->addWidget(TB_OutputPreview);
        layout->addWidget(GB_OutputPreview, 1);

        buttonBox = named(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog), "buttonBox");
        layout->addWidget(buttonBox);
    }
};

struct ExportDialog::Private
{
    QList<const ValueOverTime *> *data = nullptr;
    QList<QString> *headers = nullptr;
    QString delimiter = QStringLiteral(",");
    int precision = 0;
    QString fileName;
    ExportDialogUi ui;

    const ValueOverTime *series(int index) const { return data && index < data->size() ? data->at(index) : nullptr; }
    int rowCount() const
    {
        const ValueOverTime *first = series(0);
        return first ? first->size() : 0;
    }
};

ExportDialog::ExportDialog(
    QList<const ValueOverTime *> *data, QList<QString> *headers, QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , d(new Private)
{
    d->data = data;
    d->headers = headers;
    ExportDialogUi &ui = d->ui;
    ui.setupUi(this);
    vRetranslateUi();
    ui.CB_Comma->setChecked(true);
    ui.buttonBox->setEnabled(false);

    for (QCheckBox *box : { ui.CB_Tab, ui.CB_Semicolon, ui.CB_Space, ui.CB_Comma, ui.CB_Other })
        connect(box, &QCheckBox::stateChanged, this, &ExportDialog::vDelimiterUpdated);
    connect(ui.LN_Other, &QLineEdit::textChanged, this, &ExportDialog::vDelimiterUpdated);
    connect(ui.PB_Select, &QPushButton::clicked, this, &ExportDialog::vSelectFileDialog);
    connect(ui.buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui.buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(this, &QDialog::finished, this, &ExportDialog::vFinished);

    if (!data) {
        accept();
        return;
    }
    vRefreshOutputData();
}

ExportDialog::~ExportDialog() = default;

void ExportDialog::setPrecision(int precision)
{
    if (precision < 0)
        precision = 6;
    precision = std::min(precision, maxPrecision);
    if (precision == d->precision)
        return;
    d->precision = precision;
    vRefreshOutputData();
}

int ExportDialog::precision() const
{
    return d->precision;
}

QString ExportDialog::delimiter() const
{
    return d->delimiter;
}

QString ExportDialog::fileName() const
{
    return d->fileName;
}

void ExportDialog::vDelimiterUpdated()
{
    const ExportDialogUi &ui = d->ui;
    QString delimiter;
    if (ui.CB_Tab->isChecked())
        delimiter += QLatin1Char('\t');
    if (ui.CB_Comma->isChecked())
        delimiter += QLatin1Char(',');
    if (ui.CB_Semicolon->isChecked())
        delimiter += QLatin1Char(';');
    if (ui.CB_Space->isChecked())
        delimiter += QLatin1Char(' ');
    // Through Latin-1 on purpose: characters outside it become '?'.
    if (ui.CB_Other->isChecked())
        delimiter += QString::fromLatin1(ui.LN_Other->text().toLatin1());
    d->delimiter = delimiter;
    vRefreshOutputData();
}

void ExportDialog::vSelectFileDialog()
{
    const QString proposed
        = QStringLiteral("export-%1.csv").arg(QDate::currentDate().toString(QStringLiteral("dd-MM-yyyy")));
    const QString chosen = QFileDialog::getSaveFileName(this, tr("Save As..."), proposed, QStringLiteral("*.csv"));
    if (chosen.isEmpty())
        return;
    d->fileName = chosen;
    d->ui.LE_Location->setText(chosen);
    d->ui.buttonBox->setEnabled(true);
}

void ExportDialog::vFinished(int result)
{
    if (result != QDialog::Accepted || d->fileName.isEmpty())
        return;
    // Failure is reported by bSaveToFile's result only; the dialog shows no message.
    bSaveToFile(oExportData(0, -1));
}

void ExportDialog::vRefreshOutputData()
{
    QTextEdit *preview = d->ui.TB_OutputPreview;
    preview->clear();
    preview->setPlainText(QString::fromUtf8(oExportData(0, std::min(d->rowCount(), previewRows))));
}

QByteArray ExportDialog::oExportData(int first, int last)
{
    const int rows = d->rowCount();
    if (last < 0 || last > rows)
        last = rows;
    first = std::max(0, std::min(first, last));

    struct Column
    {
        const double *y;
        int size;
    };
    std::vector<Column> columns;
    if (d->data) {
        columns.reserve(size_t(d->data->size()));
        for (const ValueOverTime *series : *d->data)
            columns.push_back(series ? Column { series->pyData(), series->size() } : Column { nullptr, 0 });
    }
    const QByteArray delimiter = d->delimiter.toUtf8();
    const FixedFormat fixed(d->precision);
    LocalTimeFormat time;

    const int cell = delimiter.size() + fixed.room();
    const int rowRoom = timeRoom + int(columns.size()) * cell + 1;
    const qint64 typicalRow = 24 + qint64(columns.size()) * (delimiter.size() + 8 + d->precision);
    CsvBuffer out(qint64(last - first) * typicalRow + 256);

    if (d->headers) {
        QStringList titles(*d->headers);
        out.append(titles.join(d->delimiter).toUtf8());
    }
    out.append(QByteArrayLiteral("\n"));

    if (first == last)
        return out.take();
    const double *x = d->series(0)->pxData();
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

bool ExportDialog::bSaveToFile(const QByteArray &data)
{
    if (d->fileName.isEmpty())
        return false;
    // Written beside the target and renamed over it only when complete, so a
    // full disk or a lost write leaves the previous file as it was.
    QSaveFile file(d->fileName);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (file.write(data) != data.size()) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

void ExportDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        vRetranslateUi();
    QDialog::changeEvent(event);
}

void ExportDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // A dialog without data has nothing to offer: exec() and show() end at once.
    if (!d->data)
        QMetaObject::invokeMethod(
            this, [this]() { accept(); }, Qt::QueuedConnection);
}

void ExportDialog::vRetranslateUi()
{
    ExportDialogUi &ui = d->ui;
    setWindowTitle(tr("Dialog"));
    ui.GB_Separator->setTitle(tr("Separated by"));
    ui.CB_Tab->setText(tr("Tab"));
    ui.CB_Semicolon->setText(tr("Semicolon"));
    ui.CB_Space->setText(tr("Space"));
    ui.CB_Comma->setText(tr("Comma"));
    ui.CB_Other->setText(tr("Other"));
    ui.GB_Location->setTitle(tr("Location"));
    ui.PB_Select->setText(tr("Select"));
    ui.GB_OutputPreview->setTitle(tr("Output Preview"));
}

} // namespace Utils
