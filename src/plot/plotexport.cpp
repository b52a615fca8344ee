// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/plotexport_p.h"

#include "plot/plotcommon_p.h"

#include <qwt_plot.h>
#include <qwt_plot_renderer.h>
#include <qwt_text.h>

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageWriter>
#include <QPointer>
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

QString askFileName(QWidget *parent, const QString &proposedName)
{
    return QFileDialog::getSaveFileName(parent, QCoreApplication::translate("Utils::PlotExport", "Export File Name"),
                                        proposedName, fileFilters());
}

bool canRenderDocument(const QString &fileName)
{
    const QByteArray suffix = QFileInfo(fileName).suffix().toLower().toLatin1();
    if (suffix == "pdf" || suffix == "svg")
        return true;
    // Image formats are what QImageWriter reports; "ps" is never one of them.
    return !suffix.isEmpty() && QImageWriter::supportedImageFormats().contains(suffix);
}

QString exportPlot(QwtPlot *plot, QWidget *parent)
{
    if (!plot)
        return QString();
    // The dialog runs its own event loop, in which the plot may go.
    const QPointer<QwtPlot> guard(plot);
    const QString fileName = askFileName(parent, QStringLiteral("chart.pdf"));
    if (fileName.isEmpty() || !guard)
        return QString();
    // The renderer silently writes nothing for a format it does not know;
    // say so instead of leaving the user to look for a file that never came.
    if (!canRenderDocument(fileName)) {
        qCWarning(lcUtilsPlot, "Plot export: no file written to %s, the format of its extension is not supported "
                               "(use PDF, SVG or an image format)",
                  qPrintable(fileName));
        return QString();
    }
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
    const QPointer<QwtPlot> guard(plot);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted || !guard)
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
