// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_ICONBUTTON_H
#define UTILS_ICONBUTTON_H

#include "utils_export.h"

#include <QAbstractButton>
#include <QPixmap>

namespace Utils {

/*!
    \brief A borderless button that shows only a pixmap, as the icons inside a
    Utils::FancyLineEdit.

    The pixmap is drawn centred. While the button auto-hides (a flag the owning
    line edit sets), it is drawn with the opacity "iconOpacity", which
    animateShow() fades in or out over 160 ms. It takes no keyboard focus and
    shows the arrow cursor.

    \sa FancyLineEdit
*/
class UTILS_EXPORT IconButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(float iconOpacity READ iconOpacity WRITE setIconOpacity)
    Q_PROPERTY(bool autoHide READ hasAutoHide WRITE setAutoHide)

public:
    explicit IconButton(QWidget *parent = nullptr);
    ~IconButton() override;

    void setPixmap(const QPixmap &pixmap);
    QPixmap pixmap() const;
    //! Opacity from 0.0 (invisible) to 1.0; used while the button auto-hides.
    void setIconOpacity(float opacity);
    float iconOpacity() const;
    void setAutoHide(bool autoHide);
    bool hasAutoHide() const;
    //! Fades the icon in (\a visible true) or out over 160 ms.
    void animateShow(bool visible);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(IconButton)
    QPixmap m_oPixmap;
    float m_fIconOpacity = 0.0f;
    bool m_bAutoHide = false;
};

} // namespace Utils

#endif // UTILS_ICONBUTTON_H
