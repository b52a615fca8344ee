// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/abstractmanager.h"

#include "assistant/descriptionelement.h"
#include "assistant/assistant_p.h"
#include "assistant/element.h"
#include "assistant/page.h"
#include "assistant/spacerelement.h"
#include "assistant/titlecomponent.h"

namespace Assistant {

struct AbstractManager::Private
{
    explicit Private(bool def)
        : isDefault(def)
    { }
    bool passwordPage = false;
    const bool isDefault;
    bool isDefaultText = false;
    unsigned char nisDefaultText = OtherPage;
    unsigned char currentPageIndex = 0;
    QList<QObject *> content;
};

AbstractManager::AbstractManager(bool isDefault, QObject *parent)
    : QObject(parent)
    , d(new Private(isDefault))
{
    Internal::registerListType();
}

AbstractManager::~AbstractManager() = default;

void AbstractManager::saveSettings() { }

QList<QObject *> AbstractManager::content() const
{
    return d->content;
}

bool AbstractManager::isDefault() const
{
    return d->isDefault;
}

bool AbstractManager::isDefaultText() const
{
    return d->isDefaultText;
}

unsigned char AbstractManager::nisDefaultText() const
{
    return d->nisDefaultText;
}

unsigned char AbstractManager::currentPageIndex() const
{
    return d->currentPageIndex;
}

bool AbstractManager::passwordPage() const
{
    return d->passwordPage;
}

void AbstractManager::updateMinimumSize(unsigned char index)
{
    if (index >= d->content.size())
        return;
    auto *page = qobject_cast<Page *>(d->content.at(index));
    if (!page)
        return;
    const QString kind = page->objectName();
    if (kind == QLatin1String("PASSWORD_CHANGE")) {
        d->nisDefaultText = PasswordChangePage;
        d->passwordPage = true;
    } else if (kind == QLatin1String("PASSWORD_ENTRY")) {
        // The entry page only asks for the password; the kind of the page
        // that led here stays in force.
        d->passwordPage = true;
    } else if (kind == QLatin1String("SAVE")) {
        d->nisDefaultText = SavePage;
        d->passwordPage = false;
    } else if (kind == QLatin1String("TEACH_PAGE")) {
        d->nisDefaultText = TeachPage;
        d->passwordPage = false;
    } else {
        d->nisDefaultText = OtherPage;
        d->passwordPage = false;
    }
    Q_EMIT minimumSizeChanged(page->minimumSize());
}

void AbstractManager::clearContent()
{
    if (d->content.isEmpty())
        return;
    d->content.clear();
    Q_EMIT contentChanged(d->content);
}

void AbstractManager::resetView()
{
    if (d->currentPageIndex >= d->content.size())
        return;
    auto *page = qobject_cast<Page *>(d->content.at(d->currentPageIndex));
    if (!page)
        return;
    const QList<QObject *> elements = page->elements();
    for (QObject *object : elements) {
        if (auto *element = qobject_cast<Element *>(object))
            element->restore();
    }
}

void AbstractManager::resetViewClose() { }

void AbstractManager::translate()
{
    Q_EMIT languageChanged();
    // Copies: a retranslated text may make a binding rebuild the lists.
    const QList<QObject *> pages = d->content;
    for (QObject *object : pages) {
        auto *page = qobject_cast<Page *>(object);
        if (!page)
            continue;
        const QList<QObject *> elements = page->elements();
        for (QObject *item : elements) {
            if (auto *element = qobject_cast<Element *>(item))
                element->translate();
        }
    }
}

void AbstractManager::setDefaltText(bool isDefaultText)
{
    d->isDefaultText = isDefaultText;
}

void AbstractManager::keyPressed(int key)
{
    Q_UNUSED(key)
}

void AbstractManager::onElementClicked() { }

void AbstractManager::setCurrentPageIndex(unsigned char index)
{
    if (index == d->currentPageIndex)
        return;
    d->currentPageIndex = index;
    updateMinimumSize(index);
}

void AbstractManager::sendDelayedRequest() { }

void AbstractManager::buildLastPageContent(const QString &title, const QString &description)
{
    Q_UNUSED(title)
    Q_UNUSED(description)
    auto *page = new Page(this);
    page->setObjectName(QStringLiteral("SAVE"));
    const QList<QObject *> elements {
        new SpacerElement(40, this),
        new TitleComponent(this, QStringLiteral(QT_TRANSLATE_NOOP("AssistantManager", "Save")), QString(), QString()),
        new SpacerElement(30, this),
        new DescriptionElement(
            this, QStringLiteral(QT_TRANSLATE_NOOP("AssistantManager", "Do you want to save the settings ?"))),
        new SpacerElement(40, this),
    };
    page->setElements(elements);
    appendContent(page);
}

QString AbstractManager::toolTip() const
{
    return QString(QChar(0x0001));
}

bool AbstractManager::sendRequest(Modules::Request &request, int timeout)
{
    Q_UNUSED(request)
    Q_UNUSED(timeout)
    return true;
}

void AbstractManager::setContent(const QList<QObject *> &content)
{
    if (d->content == content)
        return;
    d->content = content;
    Q_EMIT contentChanged(d->content);
}

void AbstractManager::appendContent(QObject *page)
{
    if (!page)
        return;
    d->content.append(page);
    Q_EMIT contentChanged(d->content);
}

} // namespace Assistant
