// SPDX-License-Identifier: LGPL-2.1-or-later
#include "demopage.h"

#include <map>

namespace {
std::multimap<int, DemoPageFactory> &registry()
{
    static std::multimap<int, DemoPageFactory> pages;
    return pages;
}
} // namespace

bool registerDemoPage(int order, DemoPageFactory factory)
{
    registry().emplace(order, std::move(factory));
    return true;
}

QList<DemoPage *> createDemoPages(QWidget *parent)
{
    QList<DemoPage *> pages;
    for (const auto &entry : registry())
        pages << entry.second(parent);
    return pages;
}
