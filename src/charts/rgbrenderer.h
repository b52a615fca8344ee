// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_RGBRENDERER_H
#define UTILS_RGBRENDERER_H

#include "utils_export.h"

#include <QColor>
#include <QWidget>

#include <memory>

namespace Utils {

/*!
    \brief Paints the colour a colour sensor sees as a swatch, with the taught
    colour beside it.

    The current colour fills the left swatch, captioned "Current" and its red,
    green and blue components ("R 120  G 30  B 20", or "120, 30, 20" where
    that does not fit); while it is invalid the
    swatch is hatched and reads "No reading". A valid taught colour adds a
    second swatch on the right, captioned "Taught"; an invalid one (the
    default) leaves the current colour the whole width.

    The renderer paints only what it is given: Utils::ColorChart hands it the
    newest reading scaled by its black and white levels. Both setters return
    early when the colour does not change and emit their signal otherwise. The
    captions are translated (context Utils::RgbRenderer) and translated again
    when the application's language changes.

    \sa ColorChart
*/
class UTILS_EXPORT RgbRenderer : public QWidget
{
    Q_OBJECT
    //! The colour the sensor sees now; invalid for no reading.
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    //! The colour the sensor was taught; invalid for none.
    Q_PROPERTY(QColor taughtColor READ taughtColor WRITE setTaughtColor NOTIFY taughtColorChanged)

public:
    explicit RgbRenderer(QWidget *parent = nullptr);
    ~RgbRenderer() override;

    void setColor(const QColor &color);
    QColor color() const;
    void setTaughtColor(const QColor &color);
    QColor taughtColor() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void colorChanged(const QColor &color);
    void taughtColorChanged(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void paintSwatch(QPainter &painter, const QRect &area, const QColor &color, const QString &caption) const;

    Q_DISABLE_COPY(RgbRenderer)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_RGBRENDERER_H
