// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_SENSORPROGRESSBAR_H
#define UTILS_SENSORPROGRESSBAR_H

#include "utils_export.h"

#include <QColor>
#include <QWidget>

#include <memory>

namespace Utils {

/*!
    \brief A progress bar for long sensor operations (teach-in, parameter
    read-out), with a text and an indeterminate mode.

    In the determinate mode the bar fills from minimum() to maximum() and
    reads "<text> (<percent> %)", or "<percent> %" without a text; the
    percentage is truncated, so 100 % means done. In the indeterminate mode,
    for operations whose length nobody knows, a block sweeps to and fro and the
    bar reads the text alone. The block moves on a 30 ms timer that runs only
    while the bar is indeterminate and shown.

    vStart() begins an operation (indeterminate when its maximum is 0 or
    less), setValue() reports progress (clamped to the range), vFinish() fills
    the bar and emits finished(), vReset() empties it. A new bar, and one
    after vReset(), is idle: empty and without any text, until an operation
    starts, a value or a text is set or it turns indeterminate. Setters return early
    when nothing changes; valueChanged() is emitted on a real change only.
    The fill colour can be set, also from a style sheet
    (qproperty-chunkColor). The number format is translated (context
    Utils::SensorProgressBar).
*/
class UTILS_EXPORT SensorProgressBar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(int minimum READ minimum)
    Q_PROPERTY(int maximum READ maximum)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(bool indeterminate READ isIndeterminate WRITE setIndeterminate)
    Q_PROPERTY(QColor chunkColor READ chunkColor WRITE setChunkColor)

public:
    explicit SensorProgressBar(QWidget *parent = nullptr);
    ~SensorProgressBar() override;

    //! The range of the determinate mode; a \a maximum below \a minimum is taken as \a minimum.
    void setRange(int minimum, int maximum);
    int minimum() const;
    int maximum() const;
    int value() const;
    //! What the operation is, e.g. "Teach-in"; shown in the bar.
    void setText(const QString &text);
    QString text() const;
    void setIndeterminate(bool indeterminate);
    bool isIndeterminate() const;
    //! The fill colour (default RGB 0, 97, 158).
    void setChunkColor(const QColor &color);
    QColor chunkColor() const;

    //! The determinate progress in whole per cent, 0..100; -1 while indeterminate.
    int nPercent() const;
    //! The text the bar shows now; empty while idle.
    QString oDisplayText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void setValue(int value);
    /*!
        Begins an operation: shows \a text, value 0 of \a maximum; with \a
        maximum 0 or less the bar is indeterminate.
    */
    void vStart(const QString &text, int maximum);
    //! Ends the operation: the bar is full (determinate, value = maximum) and shows \a text when given. Emits finished().
    void vFinish(const QString &text = QString());
    //! Empties the bar: determinate, value = minimum, idle (no text at all).
    void vReset();

Q_SIGNALS:
    void valueChanged(int value);
    void finished();

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void updateAnimation();
    QRect chunkRect(const QRect &trough) const;

    Q_DISABLE_COPY(SensorProgressBar)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_SENSORPROGRESSBAR_H
