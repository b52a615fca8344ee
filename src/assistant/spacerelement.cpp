// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/spacerelement.h"

namespace Assistant {

SpacerElement::SpacerElement(int height, QObject *parent)
    : Element(Element::Spacer, parent)
    , m_nHeight(height)
{ }

SpacerElement::~SpacerElement() = default;

int SpacerElement::height() const
{
    return m_nHeight;
}

} // namespace Assistant
