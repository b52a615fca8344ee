// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_SIMULATEDSENSOR_H
#define DEMO_SIMULATEDSENSOR_H

#include <QElapsedTimer>
#include <QObject>
#include <QRandomGenerator>
#include <QTimer>

/*!
    A laser distance sensor and a colour sensor as a host sees them: samples due
    at the chosen rate are handed over every millisecond, one call each, stamped
    with the wall clock.
*/
class SimulatedSensor : public QObject
{
    Q_OBJECT

public:
    struct Sample
    {
        double time;      //!< ms since the epoch
        double distance;  //!< mm, 30 .. 270
        double quality;   //!< signal quality in %, 0 .. 100
        double red, green, blue;
    };

    explicit SimulatedSensor(QObject *parent = nullptr);

    //! Samples per second, 1 to 100,000.
    void setRate(int samplesPerSecond);
    int rate() const { return m_rate; }
    void start();
    void stop();
    bool isRunning() const { return m_timer.isActive(); }
    qint64 delivered() const { return m_delivered; }

Q_SIGNALS:
    //! One sample; a connected chart appends it.
    void sample(const SimulatedSensor::Sample &sample);

private:
    void tick();
    Sample next(double time);

    QTimer m_timer;
    QElapsedTimer m_clock;
    QRandomGenerator m_random{20261123};
    int m_rate = 10000;
    double m_due = 0.0;
    qint64 m_delivered = 0;
    double m_phase = 0.0;
};

#endif // DEMO_SIMULATEDSENSOR_H
