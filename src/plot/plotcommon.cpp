// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/plotcommon_p.h"

#include <QCoreApplication>
#include <QPaintEngine>
#include <QPainter>
#include <QSettings>

Q_LOGGING_CATEGORY(lcUtilsPlot, "utils.plot", QtWarningMsg)

namespace Utils {
namespace PlotCommon {

namespace {
const char *const kAxisTypeKey = "plot/xPlotAxisType";
}

double centreZoomStep(double span, bool *ultraZoomed)
{
    struct Row
    {
        double atLeast;
        double step;
    };
    static const Row rows[] = {
        {1.5, 0.5}, {1.0, 0.2}, {0.3, 0.1}, {0.18, 0.05}, {0.1, 0.02},
        {0.03, 0.01}, {0.018, 0.005}, {0.01, 0.002}, {0.008, 0.001},
    };
    if (ultraZoomed)
        *ultraZoomed = span < 0.1;
    for (const Row &row : rows) {
        if (span >= row.atLeast)
            return row.step;
    }
    return 0.0005;
}

double quietStep(double span)
{
    if (span >= 1.0)
        return 0.2;
    if (span >= 0.3)
        return 0.1;
    if (span >= 0.18)
        return 0.05;
    if (span >= 0.1)
        return 0.02;
    if (span >= 0.03)
        return 0.01;
    if (span >= 0.018)
        return 0.005;
    if (span >= 0.01)
        return 0.002;
    return 0.001;
}

QString settingsFileName()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/settings.ini");
}

namespace {
// The axis type as last read or chosen; -1 until the file was read. Labels are
// drawn at every replot and must not open the settings file each time; the menu
// writes through setXPlotAxisType(), so its choice is seen at once.
int cachedAxisType = -1;
} // namespace

int xPlotAxisType()
{
    if (cachedAxisType < 0) {
        QSettings settings(settingsFileName(), QSettings::IniFormat);
        cachedAxisType = settings.value(QLatin1String(kAxisTypeKey), 0).toInt();
    }
    return cachedAxisType;
}

void reloadXPlotAxisType()
{
    cachedAxisType = -1;
}

void setXPlotAxisType(int type)
{
    cachedAxisType = type;
    QSettings settings(settingsFileName(), QSettings::IniFormat);
    settings.setValue(QLatin1String(kAxisTypeKey), type);
    settings.sync();
    // The choice holds for this run; say once why it will not survive it.
    static bool warned = false;
    if (settings.status() != QSettings::NoError && !warned) {
        warned = true;
        qCWarning(lcUtilsPlot, "Cannot write %s: the time axis format will not be kept",
                  qUtf8Printable(settingsFileName()));
    }
}

namespace {
bool paintCachesEnabled = true;
} // namespace

bool blitsExactly(const QPainter &painter)
{
    if (!paintCachesEnabled || !painter.isActive())
        return false;
    const QPaintEngine *engine = painter.paintEngine();
    if (!engine || engine->type() != QPaintEngine::Raster)
        return false;
    if (!painter.device() || painter.device()->devicePixelRatioF() != 1.0)
        return false;
    if (painter.compositionMode() != QPainter::CompositionMode_SourceOver || painter.opacity() != 1.0)
        return false;
    const QTransform transform = painter.deviceTransform();
    return transform.type() <= QTransform::TxTranslate && transform.dx() == std::floor(transform.dx())
        && transform.dy() == std::floor(transform.dy());
}

void setPaintCachesEnabled(bool enabled)
{
    paintCachesEnabled = enabled;
}

QImage croppedToContent(const QImage &image, QPoint *offset)
{
    Q_ASSERT(image.format() == QImage::Format_ARGB32_Premultiplied);
    int left = image.width();
    int right = -1;
    int top = image.height();
    int bottom = -1;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] == 0)
                continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    }
    *offset = QPoint(std::max(left, 0), std::max(top, 0));
    if (right < 0)
        return QImage();
    return image.copy(QRect(QPoint(left, top), QPoint(right, bottom)));
}

} // namespace PlotCommon
} // namespace Utils
