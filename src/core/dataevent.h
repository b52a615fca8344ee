// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_DATAEVENT_H
#define UTILS_DATAEVENT_H

#include "utils_export.h"

#include <QEvent>

#include <string>

namespace Utils {

/*!
    \brief A QEvent carrying one byte string, for posting data through the event queue.

    The event type is chosen by the creator, typically a value from QEvent::registerEventType().
*/
class UTILS_EXPORT DataEvent : public QEvent
{
public:
    DataEvent(const std::string &data, QEvent::Type type);
    DataEvent(const DataEvent &other);
    DataEvent &operator=(const DataEvent &other);
    ~DataEvent() override;

    void setData(const std::string &data);
    std::string data();

private:
    std::string m_oData;
};

} // namespace Utils

#endif // UTILS_DATAEVENT_H
