// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_PLOTEXPORT_P_H
#define UTILS_PLOTEXPORT_P_H

// Internal to the library: export and printing of a plot, shared by the chart
// plotter and the plot document. Not installed.

#include <QString>

class QwtPlot;
class QWidget;

namespace Utils {
namespace PlotExport {

//! "PDF Documents (*.pdf);;SVG Documents (*.svg);;Postscript Documents (*.ps)" and the image formats.
QString fileFilters();

/*!
    Asks for a file to write with a save dialog captioned "Export File Name",
    offering fileFilters() and proposing \a proposedName. Returns the chosen
    path, or an empty string when the user cancelled.
*/
QString askFileName(QWidget *parent, const QString &proposedName);

/*!
    True when QwtPlotRenderer::renderDocument() writes a file of this name:
    PDF, SVG or an image format known to QImageWriter, chosen by extension.
    PostScript is not among them: Qwt writes it only when built on Qt 4.
*/
bool canRenderDocument(const QString &fileName);

/*!
    Asks for a file (caption "Export File Name", proposed "chart.pdf") and
    renders \a plot into it, 300 x 200 mm at 85 dpi with its background; the
    format follows the extension. Returns the file written, or an empty string
    when the user cancelled, the plot is gone or the extension names no format
    the renderer writes (then a warning says so and no file is touched).
*/
QString exportPlot(QwtPlot *plot, QWidget *parent);

/*!
    Prints \a plot after a print dialog: high resolution, landscape, the
    document named after the plot title (line breaks as " -- "), \a creator as
    the creator. On a grey-scale printer the canvas background is left out and
    the plot is framed with its scales. Returns true when printed.
*/
bool printPlot(QwtPlot *plot, const QString &creator, QWidget *parent);

} // namespace PlotExport
} // namespace Utils

#endif // UTILS_PLOTEXPORT_P_H
