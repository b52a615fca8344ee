// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_EDITORTRACKER_P_H
#define UTILS_EDITORTRACKER_P_H

// The open editors of an editor factory; not installed.

#include <QList>
#include <QMap>
#include <QObject>

class QtProperty;

namespace Utils {
namespace Internal {

/*!
    The open editors of a factory: property to its editors, editor to its property.
    Editors are held as QObject addresses, since the factory hears of a closed
    editor from destroyed(), when nothing but that address is left.
*/
template <typename Editor> class EditorTracker
{
public:
    void add(QtProperty *property, Editor *editor)
    {
        m_editors[property].append(editor);
        m_properties.insert(editor, property);
    }

    //! Forgets the editor at \a object (alive or not).
    void remove(QObject *object)
    {
        QtProperty *property = m_properties.take(object);
        const auto it = m_editors.find(property);
        if (it == m_editors.end())
            return;
        it->removeAll(object);
        if (it->isEmpty())
            m_editors.erase(it);
    }

    //! The property whose editor is \a object; null for an unknown object.
    QtProperty *property(const QObject *object) const { return m_properties.value(object); }

    //! The editors of \a property still alive.
    QList<Editor *> editors(QtProperty *property) const
    {
        QList<Editor *> editors;
        for (QObject *object : m_editors.value(property))
            editors.append(static_cast<Editor *>(object));
        return editors;
    }

private:
    QMap<QtProperty *, QList<QObject *>> m_editors;
    QMap<const QObject *, QtProperty *> m_properties;
};

} // namespace Internal
} // namespace Utils

#endif // UTILS_EDITORTRACKER_P_H
