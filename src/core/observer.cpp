// SPDX-License-Identifier: LGPL-2.1-or-later
#include "observer.h"

#include <algorithm>

namespace Utils {

Observable::Observable(const Observable &other)
    : m_oObservers(other.m_oObservers)
{
}

Observable &Observable::operator=(const Observable &other)
{
    if (this != &other)
        m_oObservers = other.m_oObservers;
    return *this;
}

Observable::~Observable() = default;

void Observable::attach(Observer *observer)
{
    if (!observer || findObserver(observer))
        return;
    m_oObservers.push_back(observer);
}

void Observable::detach(Observer *observer)
{
    m_oObservers.erase(std::remove(m_oObservers.begin(), m_oObservers.end(), observer), m_oObservers.end());
}

void Observable::notify()
{
    // Observers must not attach or detach on this subject from inside update().
    for (Observer *observer : m_oObservers)
        observer->update(this);
}

bool Observable::findObserver(const Observer *observer)
{
    return std::find(m_oObservers.cbegin(), m_oObservers.cend(), observer) != m_oObservers.cend();
}

} // namespace Utils
