// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_WIDGETOVERLAY_H
#define UTILS_WIDGETOVERLAY_H

#include "utils_export.h"

#include <QColor>
#include <QWidget>

#include <memory>

namespace Utils {

/*!
    \brief A translucent layer with a message over another widget, e.g. over a
    chart while the sensor is disconnected.

    The overlay is a child of its target: it covers the target's whole rect,
    follows every resize of the target, moves and hides with it, stays above
    the target's other children (also those added later) and is deleted with
    it. It starts hidden; vShowMessage() (or setMessage() and show()) puts it
    up, hide() takes it away.

    It paints the overlay colour (default white at alpha 190) over the target
    and the message in bold dark grey, centred and word-wrapped, on a white
    box; these colours do not follow the target's palette, so that the
    message reads the same over any widget. While blocksInput() is true (the default) the overlay
    swallows mouse presses, releases, double clicks, moves and wheel turns, so
    that the user cannot work the widget beneath; otherwise they pass through.

    \sa ConnectionStatus
*/
class UTILS_EXPORT WidgetOverlay : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString message READ message WRITE setMessage NOTIFY messageChanged)
    Q_PROPERTY(QColor overlayColor READ overlayColor WRITE setOverlayColor)
    Q_PROPERTY(bool blocksInput READ blocksInput WRITE setBlocksInput)

public:
    //! An overlay over \a target, which becomes its parent and owner.
    explicit WidgetOverlay(QWidget *target);
    ~WidgetOverlay() override;

    //! The widget covered.
    QWidget *poTarget() const;
    void setMessage(const QString &message);
    QString message() const;
    void setOverlayColor(const QColor &color);
    QColor overlayColor() const;
    void setBlocksInput(bool block);
    bool blocksInput() const;

public Q_SLOTS:
    //! Shows \a message over the target.
    void vShowMessage(const QString &message);

Q_SIGNALS:
    void messageChanged(const QString &message);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(WidgetOverlay)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_WIDGETOVERLAY_H
