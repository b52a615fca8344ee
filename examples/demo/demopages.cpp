// SPDX-License-Identifier: LGPL-2.1-or-later
#include "demopage.h"

#include "corepage.h"

QList<DemoPage *> createDemoPages(QWidget *parent)
{
    QList<DemoPage *> pages;
    pages << new CorePage(parent);
    return pages;
}
