// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_ABSTRACTMANAGER_H
#define UTILS_ABSTRACTMANAGER_H

#include "utils_export.h"

#include <QObject>
#include <QSize>
#include <QString>

#include <memory>

namespace Modules {
class Request;
}

namespace Assistant {

/*!
    \brief Model side of a guided set-up shown by a QML view.

    A concrete assistant derives from this class, fills content with Page
    objects in buildContent() and reacts to element clicks. The view binds
    to content, shows the page at currentPageIndex and reads nisDefaultText
    (the kind of the current page) to pick its buttons.

    \sa Page, Element
*/
class UTILS_EXPORT AbstractManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isDefault READ isDefault CONSTANT)
    Q_PROPERTY(bool isDefaultText READ isDefaultText WRITE setDefaltText)
    Q_PROPERTY(unsigned char nisDefaultText READ nisDefaultText)
    Q_PROPERTY(unsigned char currentPageIndex READ currentPageIndex WRITE setCurrentPageIndex)
    Q_PROPERTY(QList<QObject *> content READ content NOTIFY contentChanged)

public:
    //! Kind codes of the current page, see nisDefaultText().
    enum PageKind : unsigned char { OtherPage = 0, PasswordChangePage = 1, SavePage = 2, TeachPage = 3 };

    AbstractManager(bool isDefault, QObject *parent);
    ~AbstractManager() override;

    /*!
        Fills content with the assistant's pages. The constructor cannot call
        it (the concrete class is not built yet), so the concrete assistant
        or its host calls it once.
    */
    virtual void buildContent() = 0;
    /*!
        Stores what the user set up. Nothing in the base; a concrete
        assistant calls it when the user confirms the closing save page.
    */
    virtual void saveSettings();

    QList<QObject *> content() const;
    bool isDefault() const;
    bool isDefaultText() const;
    //! Kind code of the current page: 1 password change, 2 save, 3 teach-in, 0 any other.
    unsigned char nisDefaultText() const;
    unsigned char currentPageIndex() const;
    //! True while the current page is a password page ("PASSWORD_CHANGE" or "PASSWORD_ENTRY").
    bool passwordPage() const;

    /*!
        Classifies the page at \a index by its object name and emits
        minimumSizeChanged with its minimum size. An index outside content,
        or an entry that is not a Page, is ignored. "PASSWORD_ENTRY" sets
        the password flag but keeps the previous kind code.
    */
    void updateMinimumSize(unsigned char index);

Q_SIGNALS:
    void buttonTextChanged(QString text);
    void contentChanged(QObjectList content);
    void doEnableAssistant(bool enable);
    void doEnableResetViewButton(bool enable);
    void doSetTextViewButton(QString text);
    void minimumSizeChanged(QSize size);
    void modelDataChanged();
    void doSetCurrentPage(int index);
    void languageChanged();

public Q_SLOTS:
    //! Empties content; the pages stay alive with their parent.
    virtual void clearContent();
    //! Puts every element of the current page back to its stored value, in list order.
    virtual void resetView();
    virtual void resetViewClose();
    //! Emits languageChanged, then translates every element of every page, in order.
    virtual void translate();
    virtual void setDefaltText(bool isDefaultText);
    virtual void keyPressed(int key);
    virtual void onElementClicked();
    //! Makes the page at \a index current; the present index does nothing.
    virtual void setCurrentPageIndex(unsigned char index);
    /*!
        Nothing in the base: the base keeps no request queue. A concrete
        assistant that defers requests (for example behind a QTimer) sends
        them from its own slot.
    */
    void sendDelayedRequest();

public:
    /*!
        Appends the closing "SAVE" page: spacer 40, title "Save", spacer 30,
        description "Do you want to save the settings ?", spacer 40. The
        base ignores both texts.
    */
    virtual void buildLastPageContent(const QString &title, const QString &description);

    // Declared after the operations above so that their order in the table of virtual functions stays put.
    //! A single U+0001 in the base: not empty, so views that test for a tool tip still ask the concrete assistant.
    Q_INVOKABLE virtual QString toolTip() const;

protected:
    //! Does nothing in the base and reports success.
    virtual bool sendRequest(Modules::Request &request, int timeout);

    //! Replaces content; emits contentChanged when it differs.
    void setContent(const QList<QObject *> &content);
    //! Appends one page to content and emits contentChanged.
    void appendContent(QObject *page);

private:
    Q_DISABLE_COPY(AbstractManager)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_ABSTRACTMANAGER_H
