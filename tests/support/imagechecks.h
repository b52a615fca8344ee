// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TESTS_IMAGECHECKS_H
#define UTILS_TESTS_IMAGECHECKS_H

#include "testhelpers.h"

#include <QColor>
#include <QDir>
#include <QEvent>
#include <QImage>
#include <QWidget>

#include <cstdlib>
#include <functional>

namespace TestSupport {

//! Sum of the absolute differences of red, green and blue (0 .. 765).
inline int colorDistance(const QColor &a, const QColor &b)
{
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
}

/*!
    What \a widget paints now, as an image; also saved as \a name.png in the
    temporary folder, so that a person can look at it.
*/
inline QImage grabImage(QWidget *widget, const QString &name)
{
    const QImage image = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    image.save(QDir::temp().filePath(name + QStringLiteral(".png")));
    return image;
}

//! Pixels of \a image within \a area for which \a match holds.
inline int countPixels(const QImage &image, const QRect &area, const std::function<bool(const QColor &)> &match)
{
    int count = 0;
    const QRect inside = area.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            count += match(image.pixelColor(x, y)) ? 1 : 0;
    }
    return count;
}

//! Counts the paint events \a widget receives from now on.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
};

} // namespace TestSupport

#endif // UTILS_TESTS_IMAGECHECKS_H
