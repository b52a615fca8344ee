// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_SPACERELEMENT_H
#define UTILS_SPACERELEMENT_H

#include "assistant/element.h"

namespace Assistant {

//! Empty vertical room of a fixed height in pixels (type Spacer).
class UTILS_EXPORT SpacerElement : public Element
{
    Q_OBJECT
    Q_PROPERTY(int height READ height CONSTANT)

public:
    SpacerElement(int height, QObject *parent);
    ~SpacerElement() override;

    int height() const;

private:
    const int m_nHeight;
};

} // namespace Assistant

#endif // UTILS_SPACERELEMENT_H
