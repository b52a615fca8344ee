// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_OBSERVER_H
#define UTILS_OBSERVER_H

#include "utils_export.h"

#include <vector>

namespace Utils {

/*!
    \brief Listener side of the plain subject/listener pair.

    \c update() receives the notifying Observable, passed untyped; the receiver
    casts it back to the subject type it expects. The destructor is deliberately
    not virtual: observers are never deleted through this interface.
*/
class UTILS_EXPORT Observer
{
public:
    Observer() = default;
    Observer(const Observer &) {}
    Observer &operator=(const Observer &) { return *this; }

    virtual void update(void *subject) = 0;

protected:
    ~Observer() = default;
};

/*!
    \brief Subject side: an ordered list of attached observers, not owned.

    Observers are called in attachment order. An observer must be detached before
    it is destroyed; an Observable destroyed first simply forgets its observers.
*/
class UTILS_EXPORT Observable
{
public:
    Observable() = default;
    Observable(const Observable &other);
    Observable &operator=(const Observable &other);
    ~Observable();

    //! Appends \a observer unless it is null or already attached.
    void attach(Observer *observer);
    //! Removes \a observer; an unknown pointer is ignored.
    void detach(Observer *observer);
    //! Calls update(this) on each attached observer, front to back.
    void notify();

private:
    bool findObserver(const Observer *observer);

    std::vector<Observer *> m_oObservers;
};

} // namespace Utils

#endif // UTILS_OBSERVER_H
