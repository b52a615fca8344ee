// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_MANAGEDRECORDS_P_H
#define UTILS_MANAGEDRECORDS_P_H

// The record list the threshold managers share. Internal: not installed.

#include "core/observer.h"

#include <memory>
#include <vector>

namespace Utils {

template<class Record>
class ManagedRecords
{
public:
    //! The record of one-based \a output, or null outside 1..size.
    Record *output(long long output) const
    {
        if (output < 1 || output > static_cast<long long>(m_records.size()))
            return nullptr;
        return m_records[static_cast<std::size_t>(output - 1)].get();
    }

    std::size_t size() const { return m_records.size(); }

    //! Appends \a record, owned from now on, with \a observer attached.
    void append(Record *record, Observer *observer)
    {
        m_records.emplace_back(record);
        record->attach(observer);
    }

    //! Detaches \a observer from every record and deletes them all.
    void clear(Observer *observer)
    {
        for (const auto &record : m_records)
            record->detach(observer);
        m_records.clear();
    }

    /*!
        Calls \a emitter with the zero-based position of every record that is
        \a source. After a match the search goes on two positions further.
    */
    template<class Emitter>
    void forEachPosition(const void *source, Emitter emitter) const
    {
        if (!source)
            return;
        for (std::size_t i = 0; i < m_records.size();) {
            if (static_cast<const void *>(static_cast<const Observable *>(m_records[i].get())) == source) {
                emitter(static_cast<unsigned int>(i));
                i += 2;
            } else {
                ++i;
            }
        }
    }

private:
    std::vector<std::unique_ptr<Record>> m_records;
};

} // namespace Utils

#endif // UTILS_MANAGEDRECORDS_P_H
