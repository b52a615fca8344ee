// SPDX-License-Identifier: LGPL-2.1-or-later
#include "valuemarker.h"

#include <qwt_plot.h>

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <QPointer>
#include <QVector>

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace Utils {

namespace {

// Label box in canvas pixels: (0, 3) to (99, 32).
const int kLabelTop = 3;
const int kLabelWidth = 100;
const int kLabelHeight = 30;
// More decimals show nothing a measured value needs; the cap keeps the text within the buffer.
const int kMaxPrecision = 64;
// The longest fixed-point double: 309 integer digits, sign, point, kMaxPrecision decimals.
const int kNumberBuffer = 400;

const double kPowersOfTen[] = { 1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
    1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22 };

/*
    True when \a value lies exactly halfway between two neighbours that have
    \a decimals decimals (a negative count rounds left of the point). The scaled
    value is checked for exactness with a fused multiply-add, so a value such as
    2.675, which is a little below the half, does not count.
*/
bool isExactHalf(double value, int decimals)
{
    if (decimals > 22 || decimals < -22)
        return false;
    const double power = kPowersOfTen[std::abs(decimals)];
    double scaled = 0.0;
    double error = 0.0;
    if (decimals >= 0) {
        scaled = value * power;
        error = std::fma(value, power, -scaled);
    } else {
        scaled = value / power;
        error = std::fma(scaled, power, -value);
    }
    // From 2^52 on a double has no halves.
    if (error != 0.0 || !(std::fabs(scaled) < 4503599627370496.0))
        return false;
    return std::fabs(scaled - std::trunc(scaled)) == 0.5;
}

/*
    Appends \a value as QString::arg() and QString::number() write it in the C
    locale: 'f' with \a precision decimals, or 'g' with 6 significant digits;
    right-aligned in \a width characters. std::to_chars writes the exact value
    but rounds halves to even where Qt rounds them away from zero (6.5 gives
    "7"), so a value exactly on a half is moved one step outwards first. Qt
    writes negative zero as "0" and every NaN as "nan". Nothing is allocated
    while \a out has room.
*/
void appendNumber(QString &out, double value, bool fixed, int precision, int width)
{
    char buffer[kNumberBuffer];
    int length = 0;
    if (std::isnan(value)) {
        std::memcpy(buffer, "nan", 3);
        length = 3;
    } else {
        if (value == 0.0)
            value = 0.0; // drops the sign of a negative zero
        if (precision < 0)
            precision = 6;
        precision = std::min(precision, kMaxPrecision);
        if (std::isfinite(value) && value != 0.0) {
            const int decimals = fixed ? precision : 5 - int(std::floor(std::log10(std::fabs(value))));
            if (isExactHalf(value, decimals))
                value = std::nextafter(value,
                    value > 0.0 ? std::numeric_limits<double>::infinity() : -std::numeric_limits<double>::infinity());
        }
        const std::to_chars_result result = fixed
            ? std::to_chars(buffer, buffer + kNumberBuffer, value, std::chars_format::fixed, precision)
            : std::to_chars(buffer, buffer + kNumberBuffer, value, std::chars_format::general, 6);
        length = result.ec == std::errc() ? int(result.ptr - buffer) : 0;
    }
    for (int i = length; i < width; ++i)
        out.append(QLatin1Char(' '));
    out.append(QLatin1String(buffer, length));
}

void appendInteger(QString &out, int number)
{
    char buffer[16];
    const std::to_chars_result result = std::to_chars(buffer, buffer + sizeof buffer, number);
    out.append(QLatin1String(buffer, int(result.ptr - buffer)));
}

// Same bits: a repeated NaN or a change between 0 and -0 is seen as it is.
bool sameDouble(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

} // namespace

struct ValueMarker::Private
{
    //! One stretch of the label in one colour.
    struct Run
    {
        QString text;
        QPen pen;
        bool colored = false;
    };

    //! What the label text of the list forms was last built from.
    enum class Source { Default, List, Color };

    Form form = Form::Value;
    // The plot's canvas, kept rather than the plot: the canvas still sends
    // events while the plot is being destroyed, when the plot can no longer be
    // asked for it.
    QPointer<QWidget> canvas;

    double value = 0.0;
    double secondValue = 0.0;
    int precision = 0;
    bool custom = false;
    bool tiffCustom = true;
    bool hideSignal = false;
    bool markerTextFlag = false;
    QPen pen = QPen(QColor(0, 97, 158), 2);
    QString markerText;

    // The list forms.
    Source source = Source::Default;
    QList<double> values;
    QList<int> types;
    QList<QColor> colors;
    QString colorName;
    QList<double> textValues; // values of the last vSetValueColor with two or more
    QString hostSignalWord;

    // Translated words, refreshed on a language change.
    QString signalPrefix; // "Signal %1" before the number
    QString signalSuffix; // and after it
    QString signalWord;
    QString wordS;
    QString wordR;
    QString wordG;
    QString wordB;

    // The composed label. Rebuilt in place when dirty: the strings keep their
    // memory from one paint to the next.
    mutable bool dirty = true;
    mutable QString text;
    mutable QVector<Run> runs;
    mutable int runCount = 0;

    const QString &listSignalWord() const { return hostSignalWord.isEmpty() ? signalWord : hostSignalWord; }

    QString &newRun(const QColor &color = QColor()) const
    {
        if (runCount == runs.size())
            runs.append(Run());
        Run &run = runs[runCount++];
        run.text.resize(0);
        run.colored = color.isValid();
        if (run.colored)
            run.pen.setColor(color);
        return run.text;
    }
};

ValueMarker::ValueMarker(QwtPlot *plot)
    : ValueMarker(plot, Form::Value)
{ }

ValueMarker::ValueMarker(QwtPlot *plot, Form form)
    : QWidget(plot ? plot->canvas() : nullptr)
    , d(std::make_unique<Private>())
{
    d->form = form;
    d->canvas = plot ? plot->canvas() : nullptr;
    if (form == Form::LabelText) {
        d->pen = QPen();
        d->tiffCustom = false;
    }
    // A label to read, not to click: zoomer and panner keep working beneath it.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    retranslate();
    if (d->canvas) {
        d->canvas->installEventFilter(this);
        labelUpdate();
        // Also when the canvas is already on screen; without a plot it would be a window of its own.
        show();
    }
}

// The canvas forgets a destroyed event filter by itself; the plot must not be
// asked for its canvas here, as the label may go while the plot is destroyed.
ValueMarker::~ValueMarker() = default;

void ValueMarker::vSetValue(const double &value, const double &secondValue)
{
    if (sameDouble(value, d->value) && sameDouble(secondValue, d->secondValue))
        return;
    if (d->form == Form::Value && !sameDouble(value, d->value))
        d->dirty = true;
    d->value = value;
    d->secondValue = secondValue;
    update();
}

double ValueMarker::s64Value() const
{
    return d->value;
}

double ValueMarker::getSecondValue() const
{
    return d->secondValue;
}

void ValueMarker::vSetValuePrecision(const int &precision)
{
    if (precision == d->precision)
        return;
    d->precision = precision;
    d->dirty = true;
}

int ValueMarker::nSetValuePrecision() const
{
    return d->precision;
}

void ValueMarker::vSetCustom(bool custom)
{
    if (custom == d->custom)
        return;
    d->custom = custom;
    d->dirty = true;
    labelUpdate();
}

bool ValueMarker::getCustom() const
{
    return d->custom;
}

void ValueMarker::vSetTIFFCustom(bool tiffCustom)
{
    if (tiffCustom == d->tiffCustom)
        return;
    d->tiffCustom = tiffCustom;
    d->dirty = true;
}

void ValueMarker::vHideSignal(bool hide)
{
    if (hide == d->hideSignal)
        return;
    d->hideSignal = hide;
    d->dirty = true;
}

void ValueMarker::vSetMarkerText(bool markerTextFlag)
{
    if (markerTextFlag == d->markerTextFlag)
        return;
    d->markerTextFlag = markerTextFlag;
    d->dirty = true;
}

void ValueMarker::vSetMarkerText(const QString &text)
{
    if (text == d->markerText)
        return;
    d->markerText = text;
    d->dirty = true;
}

QString ValueMarker::labelText() const
{
    if (d->dirty)
        composeText();
    return d->text;
}

void ValueMarker::resize(const QSize &size)
{
    Q_UNUSED(size)
    labelUpdate();
}

void ValueMarker::labelUpdate()
{
    if (!d->canvas)
        return;
    const int width = d->custom ? d->canvas->width() : kLabelWidth;
    setGeometry(0, kLabelTop, width, kLabelHeight);
}

void ValueMarker::vItemChanged()
{
    update();
}

void ValueMarker::setValueList(const QList<double> &values, const QList<int> &types, const QList<QColor> &colors)
{
    if (d->source == Private::Source::List && values == d->values && types == d->types && colors == d->colors)
        return;
    d->source = Private::Source::List;
    // Shared copies: the caller's lists are not copied element by element.
    d->values = values;
    d->types = types;
    d->colors = colors;
    d->dirty = true;
    update();
}

void ValueMarker::setValueColor(const QList<double> &values, const QString &name)
{
    if (d->source == Private::Source::Color && values == d->values && name == d->colorName)
        return;
    d->source = Private::Source::Color;
    d->values = values;
    d->colorName = name;
    if (values.size() >= 2)
        d->textValues = values;
    d->dirty = true;
    update();
}

QStringList ValueMarker::valueTexts() const
{
    QStringList texts;
    texts.reserve(d->textValues.size());
    for (double value : qAsConst(d->textValues)) {
        QString text;
        appendNumber(text, value, false, 6, 0);
        texts.append(text);
    }
    return texts;
}

void ValueMarker::setSignalWord(const QString &word)
{
    if (word == d->hostSignalWord)
        return;
    d->hostSignalWord = word;
    d->dirty = true;
    update();
}

void ValueMarker::retranslate()
{
    const QString pattern = tr("Signal %1");
    const int at = pattern.indexOf(QLatin1String("%1"));
    d->signalPrefix = at < 0 ? pattern : pattern.left(at);
    d->signalSuffix = at < 0 ? QString() : pattern.mid(at + 2);
    d->signalWord = tr("Signal");
    d->wordS = tr("S", "numbered signal entry of the list label: S1, S2, ...");
    d->wordR = tr("R", "red channel");
    d->wordG = tr("G", "green channel");
    d->wordB = tr("B", "blue channel");
    d->dirty = true;
}

void ValueMarker::composeText() const
{
    d->text.resize(0);
    d->runCount = 0;
    if (!d->markerText.isEmpty())
        d->newRun().append(d->markerText);
    else if (d->form == Form::Value)
        composeValueText();
    else if (d->source == Private::Source::List)
        composeListText();
    else if (d->source == Private::Source::Color)
        composeColorText();
    else
        d->newRun().append(d->listSignalWord()).append(QLatin1String(" 0"));
    for (int i = 0; i < d->runCount; ++i)
        d->text.append(d->runs.at(i).text);
    d->dirty = false;
}

void ValueMarker::composeValueText() const
{
    bool withWord = false;
    int precision = d->precision;
    int width = 3;
    if (!d->custom) {
        withWord = !d->hideSignal && !d->markerTextFlag;
    } else {
        // The custom layout has the whole canvas width: no padding.
        width = 0;
        if (d->tiffCustom) {
            withWord = true;
        } else {
            withWord = !d->hideSignal;
            precision = 2;
        }
    }
    QString &run = d->newRun();
    if (withWord)
        run.append(d->signalPrefix);
    else
        run.append(QLatin1Char(' '));
    appendNumber(run, d->value, true, precision, width);
    if (withWord)
        run.append(d->signalSuffix);
}

void ValueMarker::composeListText() const
{
    // Positions 1 and 2 carry colour channels and are never written.
    const QList<double> &values = d->values;
    if (values.size() < 3)
        return;
    const auto colorAt = [this](int i) { return i < d->colors.size() ? d->colors.at(i) : QColor(); };
    d->newRun().append(d->listSignalWord()).append(QLatin1String(": "));
    appendNumber(d->newRun(colorAt(0)), values.at(0), false, 6, 0);
    for (int i = 3; i < values.size(); ++i) {
        if (i >= d->types.size() || d->types.at(i) != 2)
            continue;
        QString &label = d->newRun();
        label.append(QLatin1Char(' ')).append(d->wordS);
        appendInteger(label, i - 2);
        label.append(QLatin1String(": "));
        appendNumber(d->newRun(colorAt(i)), values.at(i), false, 6, 0);
    }
}

void ValueMarker::composeColorText() const
{
    const QList<double> &values = d->values;
    if (values.isEmpty())
        return;
    QString &run = d->newRun();
    if (values.size() == 1) {
        run.append(d->colorName).append(QLatin1String("  "));
        appendNumber(run, values.at(0), false, 6, 0);
        return;
    }
    // Red, green and blue; further values are not written.
    const QString *channels[] = { &d->wordR, &d->wordG, &d->wordB };
    for (int i = 0; i < 3 && i < values.size(); ++i) {
        if (i > 0)
            run.append(QLatin1String("  "));
        run.append(*channels[i]).append(QLatin1String(": "));
        appendNumber(run, values.at(i), false, 6, 0);
    }
}

bool ValueMarker::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == d->canvas)
        labelUpdate();
    return QWidget::eventFilter(watched, event);
}

void ValueMarker::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        update();
    }
    QWidget::changeEvent(event);
}

void ValueMarker::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(d->pen);
    painter.fillRect(rect(), QColor(255, 255, 255, 127));
    if (d->dirty)
        composeText();
    const int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;
    if (d->runCount == 1 && !d->runs.at(0).colored) {
        painter.drawText(rect(), flags, d->text);
        return;
    }
    // Coloured runs one after the other; the advance counts trailing blanks.
    const QFontMetricsF metrics(font());
    QRectF area(rect());
    for (int i = 0; i < d->runCount; ++i) {
        const Private::Run &run = d->runs.at(i);
        painter.setPen(run.colored ? run.pen : d->pen);
        painter.drawText(area, flags, run.text);
        area.setLeft(area.left() + metrics.horizontalAdvance(run.text));
    }
}

} // namespace Utils
