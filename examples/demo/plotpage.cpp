// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plotpage.h"

#include <plot/plot.h>
#include <plot/plotdocument.h>
#include <plot/plotmarker.h>

#include <qwt_plot_curve.h>

#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>
#include <memory>

namespace {
constexpr int SampleIntervalMs = 100;
constexpr double WindowMs = 50000.0; // below a minute the time axis shows seconds
constexpr int MaxSamples = int(WindowMs) / SampleIntervalMs;

/*
    A headless run has nobody to answer the save dialog, so the page answers
    it itself: it waits for the dialog, names \a path and accepts, as a user
    would. Gives up after two seconds.
*/
void answerNextSaveDialog(QObject *context, const QString &path)
{
    auto *poll = new QTimer(context);
    auto attemptsLeft = std::make_shared<int>(200);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, path, attemptsLeft]() {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (dialog) {
            dialog->selectFile(path);
            // Protected in QFileDialog; through QDialog it is still the file dialog's own check of the name.
            static_cast<QDialog *>(dialog)->accept();
        }
        if (dialog || --*attemptsLeft == 0)
            poll->deleteLater();
    });
    poll->start(10);
}
} // namespace

PlotPage::PlotPage(QWidget *parent)
    : DemoPage(parent)
    , m_plot(new Utils::Plot(this))
    , m_plotWithButtons(nullptr)
    , m_curve(new QwtPlotCurve(tr("Distance")))
    , m_upper(nullptr)
    , m_lower(nullptr)
    , m_status(new QLabel(this))
    , m_timer(new QTimer(this))
    , m_document(nullptr)
{
    setObjectName(QStringLiteral("plot"));

    m_plot->setObjectName(QStringLiteral("distancePlot"));
    m_plot->setAxisTitle(QwtPlot::yLeft, tr("Distance [mm]"));
    m_plot->setAxisScale(QwtPlot::yLeft, 0.0, 300.0);
    // Until data comes, the time axis shows the window that is coming instead of the epoch.
    const double now = double(QDateTime::currentMSecsSinceEpoch());
    m_plot->QwtPlot::setAxisScale(QwtPlot::xBottom, now - WindowMs, now);
    m_plot->setMinimumSize(400, 250);
    m_curve->setPen(QColor(94, 137, 206), 2.0);
    m_curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    m_curve->attach(m_plot);

    // Centre zoom asks where to centre: on the newest sample.
    connect(m_plot, &Utils::Plot::zoomCenterSignalEvent, this, [this](double &centre) {
        if (!m_values.isEmpty())
            centre = m_values.last();
    });

    m_upper = new Utils::PlotMarker(m_plot, Utils::PlotMarker::ModeThreshold);
    m_lower = new Utils::PlotMarker(m_plot, Utils::PlotMarker::ModeThreshold);
    m_upper->vSetPen(QPen(QColor(200, 0, 0, 170), 2, Qt::DashLine));
    m_lower->vSetPen(QPen(QColor(0, 140, 60, 170), 2, Qt::DashLine));
    m_upper->setThickness(6);
    m_lower->setThickness(6);
    m_lower->setNoiseOrientation(Utils::PlotMarker::OrientationBandBelow);
    m_upper->setUpperValue(300.0, tr("Top of range: "));
    m_lower->setLowerValue(0.0, tr("Bottom of range: "));
    for (Utils::PlotMarker *marker : {m_upper, m_lower}) {
        marker->setMoveable(true);
        marker->setRange(0.0, 300.0);
        marker->vSetRestrictionCustom(0);
        connect(marker, &Utils::PlotMarker::valueChanged, this, &PlotPage::showMarkerValues);
    }
    m_upper->setValue(190.0);
    m_lower->setValue(110.0);

    // The zoom buttons sit in a column beside the plot; the returned widget takes the plot's place.
    m_plotWithButtons = m_plot->embedZoomToolBar();

    // The demo is its own sensor vendor: its name and its letter paper (the
    // resource ":/newPrefix/icons/Velmora_business-paper.png", letterpaper.qrc) go on the protocol.
    m_document = new Utils::PlotDocument(m_plot, this);
    m_document->setVendorName(QStringLiteral("Velmora Sensors"));
    auto *exportButton = new QPushButton(tr("Export plot..."), this);
    auto *protocolButton = new QPushButton(tr("Calibration protocol..."), this);
    connect(exportButton, &QPushButton::clicked, this, &PlotPage::exportPlot);
    connect(protocolButton, &QPushButton::clicked, this, &PlotPage::exportProtocol);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_status, 1);
    buttons->addWidget(exportButton);
    buttons->addWidget(protocolButton);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Simulated laser distance over the last 50 seconds. Wheel: zoom; left drag: zoom "
                                    "to a rectangle; right drag: pan; double click: reset; right click on the time "
                                    "axis: time format. Drag the red (upper) and the green (lower) marker line; the "
                                    "hatched band beside each line is its hysteresis."),
                                 this));
    layout->itemAt(0)->widget()->setProperty("wordWrap", true);
    layout->addWidget(m_plotWithButtons, 1);
    layout->addLayout(buttons);

    connect(m_timer, &QTimer::timeout, this, &PlotPage::tick);
    showMarkerValues();
}

PlotPage::~PlotPage() = default;

void PlotPage::start()
{
    // Pre-fill the window so the first screenshot shows a full window.
    const double now = double(QDateTime::currentMSecsSinceEpoch());
    for (int i = MaxSamples - 1; i > 0; --i) {
        m_times.append(now - i * SampleIntervalMs);
        m_phase += SampleIntervalMs / 1000.0;
        m_values.append(150.0 + 45.0 * std::sin(m_phase / 4.0) + 8.0 * std::sin(m_phase * 1.7)
                        + QRandomGenerator::global()->bounded(6.0) - 3.0);
    }
    m_timer->start(SampleIntervalMs);
    tick();
}

void PlotPage::tick()
{
    const double now = double(QDateTime::currentMSecsSinceEpoch());
    m_phase += SampleIntervalMs / 1000.0;
    m_times.append(now);
    m_values.append(150.0 + 45.0 * std::sin(m_phase / 4.0) + 8.0 * std::sin(m_phase * 1.7)
                    + QRandomGenerator::global()->bounded(6.0) - 3.0);
    while (m_times.size() > MaxSamples) {
        m_times.removeFirst();
        m_values.removeFirst();
    }
    m_curve->setSamples(m_times, m_values);
    // Follow the newest sample; the time magnifier's reset returns to this window.
    m_plot->vSetXAxis(now - WindowMs, now);
    m_plot->QwtPlot::setAxisScale(QwtPlot::xBottom, now - WindowMs, now);
    m_plot->replot();
}

void PlotPage::showMarkerValues()
{
    m_status->setText(tr("Upper marker %1 mm, lower marker %2 mm, window %3 mm")
                          .arg(m_upper->value(), 0, 'f', 1)
                          .arg(m_lower->value(), 0, 'f', 1)
                          .arg(m_upper->value() - m_lower->value(), 0, 'f', 1));
}

void PlotPage::exportPlot()
{
    m_document->vExportDocument();
}

void PlotPage::exportProtocol()
{
    // The curve's size on the protocol's page, in document pixels (the page is 665 x 895).
    QImage curve(560, 220, QImage::Format_ARGB32);
    curve.fill(Qt::transparent);
    // The simulated sensor's identity and data sheet values.
    m_document->vExportPdfCalibration(curve, QStringLiteral("LD-30300-004217"), QStringLiteral("LDT 300-RS422"),
                                      QStringLiteral("30 ... 300 mm"), QStringLiteral("\u00b1 0.15 % FS"));
}

void PlotPage::writeArtifacts(const QDir &outputDir, QStringList *written)
{
    const QString path = outputDir.absoluteFilePath(QStringLiteral("plot-with-markers.png"));
    if (m_plotWithButtons->grab().save(path))
        *written << path;

    // The two buttons, with the save dialogs answered by the page itself.
    // Old files go first: the dialog would ask before overwriting them.
    const QString exported = outputDir.absoluteFilePath(QStringLiteral("plot-export.png"));
    QFile::remove(exported);
    answerNextSaveDialog(this, exported);
    exportPlot();
    if (QFile::exists(exported))
        *written << exported;

    const QString protocol = outputDir.absoluteFilePath(QStringLiteral("calibration-protocol.pdf"));
    QFile::remove(protocol);
    answerNextSaveDialog(this, protocol);
    exportProtocol();
    if (QFile::exists(protocol))
        *written << protocol;
}

DEMO_REGISTER_PAGE(PlotPage, 30)
