// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholdpage.h"

#include <plot/plot.h>
#include <plot/plotmarker.h>
#include <thresholds/thresholdmultimanager.h>
#include <thresholds/thresholdwindowwidgetuniversal.h>

#include <qwt_plot_curve.h>

#include <QDateTime>
#include <QFile>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLabel>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>

namespace {
// One switching output with one threshold entry, as a distance sensor has.
constexpr unsigned int Output = 1;
constexpr int Entry = 0;
constexpr int MaxSamples = 300;
} // namespace

ThresholdPage::ThresholdPage(QWidget *parent)
    : DemoPage(parent)
    , m_plot(new Utils::Plot(this))
    , m_curve(new QwtPlotCurve(tr("Distance")))
    , m_window(nullptr)
    , m_manager(new Utils::ThresholdMultiManager(1))
    , m_hysteresis(new QSpinBox(this))
    , m_points(new QLabel(this))
    , m_string(new QLabel(this))
    , m_output(new QLabel(this))
    , m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("thresholds"));
    m_manager->setParent(this);
    m_manager->setOutputs(1);

    m_plot->setObjectName(QStringLiteral("distanceChart"));
    m_plot->setAxisScale(QwtPlot::yLeft, 0.0, 300.0);
    m_plot->setAxisTitle(QwtPlot::yLeft, tr("Distance [mm]"));
    // Until data comes, the time axis shows the coming window instead of the epoch.
    const double now = double(QDateTime::currentMSecsSinceEpoch());
    m_plot->setAxisScale(QwtPlot::xBottom, now, now + MaxSamples * 50.0);
    m_curve->setPen(QColor(94, 137, 206), 2.0);
    m_curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    m_curve->attach(m_plot);

    m_window = new Utils::ThresholdWindowWidgetUniversal(m_plot, Entry);
    m_window->setParent(this);
    m_window->setMinDifference(4.0);
    m_window->setBothWindowZoneVisible(true);
    m_window->setWindowSizeVisible(true);
    m_window->formatText(true);
    for (Utils::PlotMarker *mark : {m_window->getUpperMark(), m_window->getLowerMark()})
        mark->vSetPen(QPen(QColor(200, 0, 0, 160), 2, Qt::DashLine));

    m_hysteresis->setRange(0, 30);
    m_hysteresis->setSuffix(tr(" mm"));
    QFont mono = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    mono.setPointSizeF(mono.pointSizeF() * 1.4);
    m_string->setFont(mono);
    m_string->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *form = new QFormLayout;
    form->addRow(tr("Hysteresis:"), m_hysteresis);
    form->addRow(tr("Switching points:"), m_points);
    form->addRow(tr("String for the sensor:"), m_string);
    form->addRow(tr("Output 1:"), m_output);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Drag the red switching points; the shaded zones lie outside the switching window."), this));
    layout->addWidget(m_plot->embedZoomToolBar(), 1);
    layout->addLayout(form);

    connect(m_window, &Utils::ThresholdWindowWidget::emitValueChanged, this, &ThresholdPage::switchingPointMoved);
    connect(m_manager, &Utils::ThresholdMultiManager::emitOutputUpdated, this, &ThresholdPage::outputUpdated);
    connect(m_hysteresis, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int noise) {
        m_window->setNoise(noise, -1);
        m_manager->setNoise(Output, Entry, noise);
    });
    connect(m_timer, &QTimer::timeout, this, &ThresholdPage::tick);
}

ThresholdPage::~ThresholdPage()
{
    // The window's marks live on the plot's canvas: remove them first.
    delete m_window;
    m_window = nullptr;
}

void ThresholdPage::start()
{
    // Placing the switching points is reported like a drag, so the manager and
    // the string follow from the start.
    m_window->setLowerMark(110.0);
    m_window->setUpperMark(190.0);
    m_hysteresis->setValue(6);
    m_timer->start(50);
    tick();
}

void ThresholdPage::tick()
{
    // A part passing the sensor: the distance swings and carries some noise.
    m_phase += 0.08;
    const double distance = 150.0 + 70.0 * std::sin(m_phase) + QRandomGenerator::global()->bounded(8.0) - 4.0;
    m_samples.append(QPointF(double(QDateTime::currentMSecsSinceEpoch()), distance));
    if (m_samples.size() > MaxSamples)
        m_samples.remove(0, m_samples.size() - MaxSamples);
    m_curve->setSamples(m_samples);
    // The view starts where the data starts and scrolls once the window is full.
    const double last = m_samples.last().x();
    const double first = std::min(m_samples.first().x(), last - 1000.0);
    m_plot->setAxisScale(QwtPlot::xBottom, first, std::max(last, first + MaxSamples * 50.0));
    m_plot->replot();
    showOutputState();
}

void ThresholdPage::switchingPointMoved(unsigned int mark, double value)
{
    // Mark 0 is the lower, mark 1 the upper switching point.
    if (mark == 0)
        m_manager->setLow(Output, Entry, value);
    else
        m_manager->setHigh(Output, Entry, value);
}

void ThresholdPage::outputUpdated(unsigned int position)
{
    // The signal counts records from 0, the manager's operations from 1.
    const unsigned int output = position + 1;
    m_points->setText(tr("low %1 mm, high %2 mm")
                          .arg(m_manager->low(output, Entry), 0, 'f', 1)
                          .arg(m_manager->high(output, Entry), 0, 'f', 1));
    m_string->setText(QString::fromStdString(m_manager->toHexString(output, Entry)));
    showOutputState();
}

void ThresholdPage::showOutputState()
{
    if (m_samples.isEmpty())
        return;
    const double distance = m_samples.last().y();
    const bool inside = distance >= m_manager->low(Output, Entry) && distance <= m_manager->high(Output, Entry);
    m_output->setText(inside ? tr("ON (distance %1 mm inside the window)").arg(distance, 0, 'f', 1)
                             : tr("OFF (distance %1 mm outside the window)").arg(distance, 0, 'f', 1));
}

void ThresholdPage::writeArtifacts(const QDir &outputDir, QStringList *written)
{
    QFile file(outputDir.absoluteFilePath(QStringLiteral("demo-threshold-string.txt")));
    if (file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        file.write(m_string->text().toLatin1() + '\n');
        *written << file.fileName();
    }
}

DEMO_REGISTER_PAGE(ThresholdPage, 40)
