// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_REDRAWTHROTTLE_P_H
#define UTILS_REDRAWTHROTTLE_P_H

// Internal to the library: the charts' 20 ms redraw rule. Not installed.

#include "charts/chartrules_p.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <utility>

namespace Utils {
namespace Charts {

/*!
    At most one redraw per Rules::kRedrawIntervalMs. A request within the
    cool-down after a redraw is held back and served when the cool-down ends, so
    the newest samples are drawn even when no further sample comes. A request
    costs one test of a running timer: no clock read, no allocation.
*/
class RedrawThrottle
{
public:
    //! \a redraw runs at most once per interval; the cool-down timer is a child of \a owner.
    RedrawThrottle(QObject *owner, std::function<void()> redraw)
        : m_coolDown(new QTimer(owner))
        , m_redraw(std::move(redraw))
    {
        m_coolDown->setSingleShot(true);
        m_coolDown->setTimerType(Qt::PreciseTimer);
        m_coolDown->setInterval(int(Rules::kRedrawIntervalMs));
        QObject::connect(m_coolDown, &QTimer::timeout, owner, [this]() {
            if (m_pending)
                request();
        });
    }

    //! Redraws now, or once the cool-down of the last redraw is over.
    void request()
    {
        if (m_coolDown->isActive()) {
            m_pending = true;
            return;
        }
        m_pending = false;
        m_coolDown->start();
        m_redraw();
    }

private:
    Q_DISABLE_COPY(RedrawThrottle)
    QTimer *m_coolDown;
    std::function<void()> m_redraw;
    bool m_pending = false;
};

} // namespace Charts
} // namespace Utils

#endif // UTILS_REDRAWTHROTTLE_P_H
