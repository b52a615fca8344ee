// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_DEMOPAGE_H
#define DEMO_DEMOPAGE_H

#include <QDir>
#include <QStringList>
#include <QWidget>

/*!
    One tab of the demo: a capability of the library shown as a host would use it.
    start() begins the page's simulation; writeArtifacts() lets a headless run
    save what the page produces (CSV, PDF, ...) and report the paths it wrote.
*/
class DemoPage : public QWidget
{
    Q_OBJECT

public:
    explicit DemoPage(QWidget *parent = nullptr)
        : QWidget(parent)
    {
    }

    virtual QString title() const = 0;
    virtual void start() {}
    virtual void writeArtifacts(const QDir &outputDir, QStringList *written)
    {
        Q_UNUSED(outputDir)
        Q_UNUSED(written)
    }
};

#include <functional>

using DemoPageFactory = std::function<DemoPage *(QWidget *parent)>;

//! Adds a page to the demo; pages appear in ascending \a order.
bool registerDemoPage(int order, DemoPageFactory factory);

//! Creates every registered page of the demo, in tab order.
QList<DemoPage *> createDemoPages(QWidget *parent);

//! Registers page class \a Page (constructible from a parent widget) at \a order.
#define DEMO_REGISTER_PAGE(Page, order) \
    static const bool demoPageRegistered_##Page = registerDemoPage(order, [](QWidget *parent) -> DemoPage * { \
        return new Page(parent); \
    });

#endif // DEMO_DEMOPAGE_H
