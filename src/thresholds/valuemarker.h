// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_VALUEMARKER_H
#define UTILS_VALUEMARKER_H

#include "utils_export.h"

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>

class QwtPlot;

namespace Utils {

/*!
    \brief A label in the top left corner of a plot's canvas that shows the
    current measured value.

    The label is a child of the plot's canvas: a box from (0, 3) to (99, 32) in
    canvas pixels, or as wide as the canvas in the custom layout (vSetCustom()),
    filled with white at alpha 127 so that the curve stays visible beneath it.
    A text longer than the box is cut at its edge; the custom layout gives
    long texts (the list forms) the canvas width.
    The text is written left-aligned and vertically centred, in the widget's
    font (the application font unless the host sets another one) and in the
    colour of the marker pen, RGB (0, 97, 158). Mouse events pass through the
    label to the canvas and its zoomer and panner.

    The painted value is the first value of vSetValue(); the second one is only
    stored for the host (getSecondValue()). Texts:

    - a non-empty marker text (vSetMarkerText(const QString &)) replaces the value;
    - otherwise, in the normal layout, "Signal %1" with the value in fixed-point
      notation, the configured precision and a field width of 3, or " %1" the
      same way when the signal word is hidden (vHideSignal()) or the marker text
      flag is set (vSetMarkerText(bool));
    - in the custom layout, "Signal %1" with the configured precision when the
      TIFF layout is on (the default), otherwise "Signal %1" or, with the signal
      word hidden, " %1", both with precision 2 whatever the configured one;
      the custom layout pads nothing.

    Numbers are written in the C locale as QString::arg() writes them: the
    exact value of the double, halves rounded away from zero.

    vSetValue() is called by the charts for every sample: it stores the values
    and schedules a repaint with QWidget::update(), so that many samples between
    two frames cost one paint. The text is composed in the paint, from buffers
    that keep their memory, and only when something it shows has changed. The
    other setters only store (vSetCustom() also places the label again); the
    next paint uses them. A repaint redraws the
    canvas beneath the label from the canvas's backing store and never
    replots the plot.

    "Signal" is translated (context Utils::ValueMarker) and translated again
    when the application's language changes.

    ValueMarkerColor and ValueMarkerMultiList are the label forms for colour
    and multi-curve charts: they show a label text built from a list of values
    instead of the single value, and share everything else with this class.

    \sa ValueMarkerColor, ValueMarkerMultiList
*/
class UTILS_EXPORT ValueMarker : public QWidget
{
    Q_OBJECT

public:
    //! A label on \a plot's canvas, which becomes its parent and owner.
    explicit ValueMarker(QwtPlot *plot);
    ~ValueMarker() override;

    /*!
        Stores \a value (the one painted) and \a secondValue and schedules a
        repaint. Cheap enough for every sample: no text is made here.
    */
    void vSetValue(const double &value, const double &secondValue);
    //! The first value, as stored (a double, whatever the name suggests).
    double s64Value() const;
    //! The second value of the last vSetValue().
    double getSecondValue() const;

    //! Decimals of the painted value (default 0); a negative count means 6, as in QString::arg().
    void vSetValuePrecision(const int &precision);
    //! The decimals set by vSetValuePrecision(); the name is kept as hosts know it.
    int nSetValuePrecision() const;

    /*!
        Custom layout: the label spans the canvas width and writes the value
        without padding. Changing it places the label again at once.
    */
    void vSetCustom(bool custom);
    //! True in the custom layout.
    bool getCustom() const;
    //! In the custom layout: true (default) writes the configured precision, false always 2 decimals.
    void vSetTIFFCustom(bool tiffCustom);
    //! True leaves out the word "Signal" before the value.
    void vHideSignal(bool hide);
    //! True writes the value without the word "Signal" in the normal layout.
    void vSetMarkerText(bool markerTextFlag);
    //! A text shown instead of the value while it is not empty.
    void vSetMarkerText(const QString &text);

    //! The text the next paint writes.
    QString labelText() const;

    //! Ignores \a size and places the label as labelUpdate() does.
    void resize(const QSize &size);
    /*!
        Places the label: (0, 3) to (99, 32) in canvas pixels, or from x 0 to
        the canvas width in the custom layout. Runs by itself when the canvas
        is resized.
    */
    void labelUpdate();

protected:
    //! What the label shows: the single value, or the label text of the list forms.
    enum class Form { Value, LabelText };

    /*!
        Constructor of the variants. The label text form starts with the text
        "Signal 0", writes in black (a default QPen) and has the TIFF layout off.
    */
    ValueMarker(QwtPlot *plot, Form form);

    //! Schedules a repaint.
    void vItemChanged();

    /*!
        Label text from signal values (ValueMarkerColor::vSetValueList()); value
        i is written in \a colors at i where that colour is valid.
    */
    void setValueList(const QList<double> &values, const QList<int> &types, const QList<QColor> &colors);
    //! Label text from a colour reading (ValueMarkerColor::vSetValueColor()).
    void setValueColor(const QList<double> &values, const QString &name);
    //! The value texts of the last colour reading with two or more values.
    QStringList valueTexts() const;
    //! The host's word for "Signal" in the label text; empty for the translated one.
    void setSignalWord(const QString &word);

    //! Places the label again when the canvas is resized.
    bool eventFilter(QObject *watched, QEvent *event) override;
    //! Translates the words again on a language change.
    void changeEvent(QEvent *event) override;
    //! Fills the box and writes the text; composes it first when something it shows changed.
    void paintEvent(QPaintEvent *event) override;

private:
    void retranslate();
    void composeText() const;
    void composeValueText() const;
    void composeListText() const;
    void composeColorText() const;

    Q_DISABLE_COPY(ValueMarker)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_VALUEMARKER_H
