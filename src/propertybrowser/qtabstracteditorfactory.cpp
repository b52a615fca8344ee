// SPDX-License-Identifier: LGPL-2.1-or-later
#include "qtabstracteditorfactory.h"

QtAbstractEditorFactoryBase::QtAbstractEditorFactoryBase(QObject *parent)
    : QObject(parent)
{ }

QtAbstractEditorFactoryBase::~QtAbstractEditorFactoryBase() = default;
