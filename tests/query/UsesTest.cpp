// SPDX-License-Identifier: Apache-2.0
#include "query/UsesTest.h"

#include <diagkit/reader/Utf8.h>

namespace NTest {

std::string TagText(NODX201::VOdxElement const& element) {
    return NReader::ToUtf8(NODX201::OdxTagText(element.GetOdxTag()));
}

std::string Printed(NQuery::VUse const& use) {
    std::string text = TagText(*use.reference) + " from " +
                       (use.from != nullptr ? NReader::ToUtf8(use.from->GetShortName()) : "nothing");
    if (use.layers.has_value()) {
        text += " in";
        for (NODX201::VDiagLayer const* const layer : *use.layers) {
            text += ' ' + NReader::ToUtf8(layer->GetShortName());
        }
    }
    return text + '\n';
}

std::string VUsesTest::UsesOf(NODX201::VOdxElement const& element) {
    std::string text;
    for (NQuery::VUse const& use : Index().Of(element)) {
        text += Printed(use);
    }
    return text;
}

std::string VUsesTest::Uses(std::string const& name) { return UsesOf(Find(name)); }

NODX201::VOdxElement& VUsesTest::Find(std::string const& name) const {
    std::wstring const wanted = NReader::FromUtf8(name);
    for (NODX201::VOdxElement* const element : m_result.elements) {
        auto const* const referencable = dynamic_cast<NODX201::VReferencable const*>(element);
        if (referencable != nullptr && wanted == referencable->GetId()) {
            return *element;
        }
    }
    for (NODX201::VOdxElement* const element : m_result.elements) {
        if (wanted == element->GetShortName()) {
            return *element;
        }
    }
    throw std::out_of_range("no element " + name);
}

std::string VUsesTest::Unused() {
    std::string text;
    for (NODX201::VOdxElement const* const element : Index().Unused()) {
        auto const* const referencable = dynamic_cast<NODX201::VReferencable const*>(element);
        std::string const id = referencable != nullptr ? NReader::ToUtf8(referencable->GetId()) : "";
        text += (text.empty() ? "" : " ") + (id.empty() ? NReader::ToUtf8(element->GetShortName()) : id);
    }
    return text;
}

void VUsesTest::Remove(std::string const& name) {
    NODX201::VOdxElement* const element = &Find(name);
    NQuery::LeaveOut(m_result.elements, *element);
    Forget();
    delete element;
}

NQuery::VUses const& VUsesTest::Index() {
    if (m_uses == nullptr) {
        m_uses = std::make_unique<NQuery::VUses>(Database(), m_result.elements);
    }
    return *m_uses;
}

} // namespace NTest
