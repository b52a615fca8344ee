// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_ASSISTANT_P_H
#define UTILS_ASSISTANT_P_H

// Shared helpers of the assistant components. Not installed.

#include <QCoreApplication>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace Assistant {
namespace Internal {

//! The translation context of every assistant text.
inline constexpr const char *translationContext = "AssistantManager";

//! Looks \a source up in the assistant's translation context.
inline QString translated(const QString &source)
{
    if (source.isEmpty())
        return source;
    const QByteArray utf8 = source.toUtf8();
    return QCoreApplication::translate(translationContext, utf8.constData());
}

inline QStringList translated(const QStringList &sources)
{
    QStringList result;
    result.reserve(sources.size());
    for (const QString &source : sources)
        result << translated(source);
    return result;
}

/*!
    Makes "QObjectList", the argument type of elementsChanged and
    contentChanged, known by that name, so that spies, queued and text
    connections can copy it.
*/
inline void registerListType()
{
    static const int id = qRegisterMetaType<QObjectList>("QObjectList");
    Q_UNUSED(id)
}

//! Equal when the difference, scaled by 10^12, does not exceed the smaller magnitude.
inline bool fuzzyEqual(double a, double b)
{
    return qAbs(a - b) * 1000000000000.0 <= qMin(qAbs(a), qAbs(b));
}

//! Stores \a value in \a field when it differs; true when it did.
template <typename T> inline bool assign(T &field, const T &value)
{
    if (field == value)
        return false;
    field = value;
    return true;
}

inline bool assign(double &field, double value)
{
    if (fuzzyEqual(field, value))
        return false;
    field = value;
    return true;
}

} // namespace Internal
} // namespace Assistant

#endif // UTILS_ASSISTANT_P_H
