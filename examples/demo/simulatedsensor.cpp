// SPDX-License-Identifier: LGPL-2.1-or-later
#include "simulatedsensor.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

SimulatedSensor::SimulatedSensor(QObject *parent)
    : QObject(parent)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(1);
    connect(&m_timer, &QTimer::timeout, this, &SimulatedSensor::tick);
}

void SimulatedSensor::setRate(int samplesPerSecond)
{
    m_rate = std::clamp(samplesPerSecond, 1, 100000);
}

void SimulatedSensor::start()
{
    m_clock.start();
    m_due = 0.0;
    m_timer.start();
}

void SimulatedSensor::stop()
{
    m_timer.stop();
}

void SimulatedSensor::tick()
{
    // Every sample due since the start, each one call, as a serial port reader hands them on.
    const double due = m_clock.nsecsElapsed() / 1e9 * m_rate;
    const double now = double(QDateTime::currentMSecsSinceEpoch());
    const int count = int(due - m_due);
    for (int i = 0; i < count; ++i)
        Q_EMIT sample(next(now - (count - 1 - i) * 1000.0 / m_rate));
    m_due += count;
}

SimulatedSensor::Sample SimulatedSensor::next(double time)
{
    // A part moving past the sensor: a slow swing, surface noise, now and then an edge.
    m_phase += 2.0 * M_PI * 0.2 / m_rate;
    double distance = 150.0 + 80.0 * std::sin(m_phase) + m_random.bounded(6.0) - 3.0;
    if (m_random.bounded(20000) == 0)
        distance += m_random.bounded(2) ? 60.0 : -60.0;
    const double quality = 70.0 + 25.0 * std::cos(m_phase * 3.0) + m_random.bounded(4.0);
    const double hue = std::fmod(m_phase * 0.8, 6.0);
    const auto channel = [hue](double offset) {
        const double h = std::fmod(hue + offset, 6.0);
        return 20.0 + 200.0 * std::max(0.0, 1.0 - std::fabs(h - 3.0) / 2.0);
    };
    ++m_delivered;
    return {time, std::clamp(distance, 30.0, 270.0), std::clamp(quality, 0.0, 100.0), channel(0.0), channel(2.0),
            channel(4.0)};
}
