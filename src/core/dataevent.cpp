// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dataevent.h"

namespace Utils {

DataEvent::DataEvent(const std::string &data, QEvent::Type type)
    : QEvent(type)
    , m_oData(data)
{
}

DataEvent::DataEvent(const DataEvent &other)
    : QEvent(other)
    , m_oData(other.m_oData)
{
}

DataEvent &DataEvent::operator=(const DataEvent &other)
{
    if (this != &other) {
        QEvent::operator=(other);
        m_oData = other.m_oData;
    }
    return *this;
}

DataEvent::~DataEvent() = default;

void DataEvent::setData(const std::string &data)
{
    m_oData = data;
}

std::string DataEvent::data()
{
    return m_oData;
}

} // namespace Utils
