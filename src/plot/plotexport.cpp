// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/plotexport_p.h"

#include <qwt_plot.h>
#include <qwt_plot_renderer.h>
#include <qwt_text.h>

#include <QCoreApplication>
#include <QFileDialog>
#include <QImageWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QStringList>

namespace Utils {
namespace PlotExport {

QString fileFilters()
{
    QStringList filters;
    filters << QCoreApplication::translate("Utils::PlotExport", "PDF Documents (*.pdf)")
            << QCoreApplication::translate("Utils::PlotExport", "SVG Documents (*.svg)")
            << QCoreApplication::translate("Utils::PlotExport", "Postscript Documents (*.ps)");
    const QList<QByteArray> formats = QImageWriter::supportedImageFormats();
    if (!formats.isEmpty()) {
        QStringList patterns;
        for (const QByteArray &format : formats)
            patterns << QStringLiteral("*.") + QString::fromLatin1(format);
        filters << QCoreApplication::translate("Utils::PlotExport", "Images (") + patterns.join(QLatin1Char(' '))
                       + QLatin1Char(')');
    }
    return filters.join(QStringLiteral(";;"));
}

QString exportPlot(QwtPlot *plot, QWidget *parent)
{
    if (!plot)
        return QString();
    const QString fileName = QFileDialog::getSaveFileName(
        parent, QCoreApplication::translate("Utils::PlotExport", "Export File Name"), QStringLiteral("chart.pdf"),
        fileFilters());
    if (fileName.isEmpty())
        return QString();
    QwtPlotRenderer renderer;
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground, false);
    renderer.renderDocument(plot, fileName, QSizeF(300, 200), 85);
    return fileName;
}

bool printPlot(QwtPlot *plot, const QString &creator, QWidget *parent)
{
    if (!plot)
        return false;
    QPrinter printer(QPrinter::HighResolution);
    QString docName = plot->title().text();
    if (!docName.isEmpty()) {
        docName.replace(QRegularExpression(QStringLiteral("\n")), QStringLiteral(" -- "));
        printer.setDocName(docName);
    }
    printer.setCreator(creator);
    printer.setPageOrientation(QPageLayout::Landscape);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    QwtPlotRenderer renderer;
    if (printer.colorMode() == QPrinter::GrayScale) {
        renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
        renderer.setDiscardFlag(QwtPlotRenderer::DiscardCanvasBackground);
        renderer.setDiscardFlag(QwtPlotRenderer::DiscardCanvasFrame);
        renderer.setLayoutFlag(QwtPlotRenderer::FrameWithScales);
    }
    renderer.renderTo(plot, printer);
    return true;
}

} // namespace PlotExport
} // namespace Utils
