// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/ElementTable.h>

#include <algorithm>
#include <stdexcept>

#include <diagkit/reader/Loader.h>
#include <diagkit/reader/Types.h>

namespace NReader {

int VElementType::FindRow(std::string_view name, int from) const {
    auto const start = names.begin() + from;
    if (auto const found = std::find(start, names.end(), name); found != names.end()) {
        return static_cast<int>(found - names.begin());
    }
    auto const found = std::find(names.begin(), start, name);
    return found != start ? static_cast<int>(found - names.begin()) : -1;
}

namespace {

void Index(VElementType& type) {
    bool const hasHighChoice = std::any_of(type.rows.begin(), type.rows.end(), [](VRow const& row) {
        return row.choice < 0 || static_cast<std::size_t>(row.choice) >= kMostRows;
    });
    if (type.rows.size() > kMostRows || hasHighChoice) {
        throw std::length_error("a table of an element class has too many rows or choices");
    }
    for (VRow const& row : type.rows) {
        type.names.emplace_back(row.name);
    }
}

std::shared_ptr<VElementType const> Finished(VElementType type) {
    Index(type);
    return std::make_shared<VElementType const>(std::move(type));
}

NODX201::VOdxTagEnum TagOf(std::string_view name) {
    return NODX201::OdxTagOf(std::wstring(name.begin(), name.end()).c_str());
}

VRow RowOf(VFact const& fact) {
    VRow row{fact.name, fact.often.occurs, fact.often.choice, fact.open, fact.type};
    row.isFirstKept = fact.isFirstKept;
    if (fact.what == VFact::VWhat::Reference) {
        row.tag = TagOf(fact.name);
    }
    return row;
}

/// The literals of a text, null for any text.
wchar_t const* const* LiteralsOf(VFact const& fact) { return fact.literals != nullptr ? fact.literals() : nullptr; }

VRow TextRow(VFact const& fact) {
    VElementType text;
    text.content = fact.content;
    text.literals = LiteralsOf(fact);
    text.setContent = fact.set;
    text.isMarkup = fact.isMarkup;
    VRow row = RowOf(fact);
    row.ownType = Finished(std::move(text));
    return row;
}

/// Adds the facts to the type; returns where it stopped: at the end, or at that of a wrapper.
VFact const* Add(VElementType& type, VFact const* fact, VFact const* end) {
    for (; fact != end && fact->what != VFact::VWhat::WrapperEnd; ++fact) {
        switch (fact->what) {
        case VFact::VWhat::Attribute:
            type.attributes.push_back({fact->name, fact->often.occurs, fact->content, fact->set, LiteralsOf(*fact)});
            break;
        case VFact::VWhat::Child:
        case VFact::VWhat::Reference:
            type.rows.push_back(RowOf(*fact));
            break;
        case VFact::VWhat::Text:
            type.rows.push_back(TextRow(*fact));
            break;
        case VFact::VWhat::Wrapper: {
            VRow row = RowOf(*fact);
            VElementType wrapper;
            wrapper.isWrapper = true;
            fact = Add(wrapper, fact + 1, end);
            row.ownType = Finished(std::move(wrapper));
            type.rows.push_back(std::move(row));
            break;
        }
        case VFact::VWhat::Content:
            type.content = fact->content;
            type.setContent = fact->set;
            break;
        case VFact::VWhat::List:
            type.isWrapper = true;
            break;
        case VFact::VWhat::Kind:
            type.kinds.push_back({fact->name, fact->child, fact->choose});
            break;
        case VFact::VWhat::Instructions:
            type.addInstruction = fact->addInstruction;
            break;
        case VFact::VWhat::WrapperEnd:
            break;
        }
    }
    return fact;
}

} // namespace

VElementType TableOf(VFact const* facts, std::size_t count) {
    VElementType type;
    Add(type, facts, facts + count);
    Index(type);
    return type;
}

VElementType const& LinkType() {
    static VElementType const type;
    return type;
}

void NotePosition(VLoader& loader, NMemory::VMemNode& node) { node.SetPosition(loader.Position()); }

void NotePositionAround(VLoader& loader, NMemory::VMemNode& node) { node.SetPosition(loader.PositionAround()); }

void NoteElement(VLoader& loader, NMemory::VMemNode& node, NODX201::VOdxElement& element) {
    NotePosition(loader, node);
    if (loader.Reading().keepsElements) {
        loader.Reading().elements.push_back(&element);
    }
}

void NoteLink(VLoader& loader, NMemory::VMemNode& node, NODX201::VLink& link, VLinkQuestions const& questions) {
    loader.Reading().links.push_back({&node, &link, &questions});
}

void NoteUntypedParentRef(VLoader& loader, NMemory::IMemParentRef& parentRef,
                          NMemory::IMemParentRef& (*changeKind)(NMemory::IMemParentRef& parentRef,
                                                                NMemory::VParentRefKind kind)) {
    loader.Reading().parentRefs.push_back({&parentRef, changeKind});
}

NMemory::VReference IdReference(VLoader& loader, VAttributes const& attributes) {
    return loader.ReadIdReference(attributes);
}

NMemory::VReference ShortNameReference(VLoader& loader, VAttributes const& attributes) {
    return loader.ReadShortNameReference(attributes);
}

} // namespace NReader
