// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_BUTTONFACTORY_H
#define UTILS_BUTTONFACTORY_H

#include "utils_export.h"

#include "qtpropertybrowser.h"
#include "widgets/buttonmanager.h"

#include <memory>

namespace Utils {

/*!
    \brief Makes a ButtonEditor for each button property a browser edits and
    reports its clicks through ButtonManager::buttonClicked().

    An editor shows the button text its property had when the editor was made;
    a later ButtonManager::setValue() shows in the browser's row once the editor
    is closed.

    \code
    auto *manager = new Utils::ButtonManager(window);
    auto *factory = new Utils::ButtonFactory(window);
    auto *browser = new QtTreePropertyBrowser(window);
    browser->setFactoryForManager(manager, factory);
    QtProperty *teach = manager->addProperty(QStringLiteral("Teach-in"));
    manager->setValue(teach, QStringLiteral("Start"));
    browser->addProperty(teach);
    QObject::connect(manager, &Utils::ButtonManager::buttonClicked, window, [](QtProperty *) { startTeachIn(); });
    \endcode

    \sa ButtonManager, ButtonEditor
*/
class UTILS_EXPORT ButtonFactory : public QtAbstractEditorFactory<ButtonManager>
{
    Q_OBJECT

public:
    explicit ButtonFactory(QObject *parent = nullptr);
    ~ButtonFactory() override;

    using QtAbstractEditorFactory<ButtonManager>::createEditor;

protected:
    //! Nothing to connect: open editors keep the text they were made with.
    void connectPropertyManager(ButtonManager *manager) override;
    //! A ButtonEditor with the property's text, whose clicks reach the manager.
    QWidget *createEditor(ButtonManager *manager, QtProperty *property, QWidget *parent) override;
    //! Cuts whatever still ties \a manager to this factory.
    void disconnectPropertyManager(ButtonManager *manager) override;

private Q_SLOTS:
    void slotClicked();
    void slotEditorDestroyed(QObject *object);

private:
    Q_DISABLE_COPY(ButtonFactory)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_BUTTONFACTORY_H
