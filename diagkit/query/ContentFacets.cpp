// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/ContentFacets.h>

#include <algorithm>
#include <cwchar>

#include <diagkit/memory/Layers.h>
#include <diagkit/memory/References.h>

namespace NQuery {
namespace {

using Tag = NODX201::VOdxTagEnum;

std::uint64_t Stirred(std::uint64_t x) {
    x = (x ^ (x >> 30U)) * 0xbf58476d1ce4e5b9U;
    x = (x ^ (x >> 27U)) * 0x94d049bb133111ebU;
    return x ^ (x >> 31U);
}

bool IsTag(wchar_t const* tag, wchar_t const* other) { return tag == other || std::wcscmp(tag, other) == 0; }

std::wstring_view WithoutRef(std::wstring_view tag) {
    for (std::wstring_view const end : {std::wstring_view(L"-SNREF"), std::wstring_view(L"-REF")}) {
        if (tag.size() > end.size() && tag.substr(tag.size() - end.size()) == end) {
            return tag.substr(0, tag.size() - end.size());
        }
    }
    return tag;
}

/// PARAMS around PARAM, DTCS around DTC-REF: adds no information to that of its items.
bool IsPlural(std::wstring_view wrapper, std::wstring_view tag, std::wstring_view shortTag) {
    auto const isOf = [wrapper](std::wstring_view item) {
        return wrapper.size() == item.size() + 1 && wrapper.back() == L'S' && wrapper.substr(0, item.size()) == item;
    };
    return isOf(tag) || isOf(shortTag);
}

/// The attributes of references, which no other element has: a reference counts by its target.
bool IsOfReference(wchar_t const* attribute) {
    return IsTag(attribute, L"ID-REF") || IsTag(attribute, L"DOCREF") || IsTag(attribute, L"DOCTYPE") ||
           IsTag(attribute, L"REVISION") || IsTag(attribute, L"SHORT-NAME");
}

/// Elements that act only as wrappers: paths leave them out.
bool IsTransparent(wchar_t const* tag) { return IsTag(tag, L"COMPU-INTERNAL-TO-PHYS") || IsTag(tag, L"DTC-VALUES"); }

/// A reference to a DOP by short name.
bool IsReadByDops(NODX201::VLink& reference) {
    return dynamic_cast<NODX201::VDiagCommLink const*>(&reference) == nullptr && IsReadInLayer(reference) &&
           (dynamic_cast<NODX201::VDopBaseLink const*>(&reference) != nullptr ||
            dynamic_cast<NODX201::VDataObjectPropLink const*>(&reference) != nullptr);
}

} // namespace

VHash HashOf(std::wstring_view text) {
    std::uint64_t first = 0x9e3779b97f4a7c15U;
    std::uint64_t second = text.size() + 0x2545f4914f6cdd1dU;
    for (wchar_t const character : text) {
        auto const code = static_cast<std::uint64_t>(character);
        first = (first ^ code) * 0x100000001b3U;
        first ^= first >> 29U;
        second = (second + code) * 0xd6e8feb86659fd93U;
        second ^= second >> 32U;
    }
    return {Stirred(first), Stirred(second)};
}

VHash HashOf(std::uint64_t number) {
    return {Stirred(number + 0x9e3779b97f4a7c15U), Stirred(number ^ 0xa0761d6478bd642fU)};
}

VHash Mixed(VHash const& a, VHash const& b) {
    return {Stirred(a.first * 3 + Stirred(b.first + 0x589965cc75374cc3U)),
            Stirred(a.second * 5 + Stirred(b.second + 0x1d8e4e27c47d124fU))};
}

NODX201::VDopBase* VSeenFrom::Find(std::wstring_view shortName) {
    if (!m_isFilled) {
        for (NODX201::VDopBase* const dop : m_dops) {
            m_byName.emplace(dop->GetShortName(), dop);
        }
        m_isFilled = true;
    }
    auto const found = m_byName.find(shortName);
    return found != m_byName.end() ? found->second : nullptr;
}

NODX201::VOdxElement* VSeenFrom::TargetOf(NODX201::VLink& reference) {
    auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&reference.GetLink());
    NODX201::VDopBase* const dop = snref != nullptr ? Find(snref->GetShortName()) : nullptr;
    if (auto* const any = dynamic_cast<NMemory::VMemDopBaseLink*>(&reference); any != nullptr) {
        return any->IsSeveredIn(m_layer) ? nullptr : dop;
    }
    return dynamic_cast<NODX201::VDataObjectProp*>(dop);
}

VHash const& VSeenFrom::Meaning() {
    if (!m_hasMeaning) {
        for (NODX201::VDopBase* const dop : m_dops) {
            m_meaning = Mixed(m_meaning, HashOf(reinterpret_cast<std::uintptr_t>(dop)));
        }
        if (auto* const layer = dynamic_cast<NMemory::IMemLayer*>(&m_layer); layer != nullptr) {
            for (std::uint64_t const group : layer->SeveredGroups()) {
                m_meaning = Mixed(m_meaning, HashOf(group));
            }
        }
        m_hasMeaning = true;
    }
    return m_meaning;
}

bool VFacets::Counts(VContentPart const& part, bool isNamed) const {
    bool const isAttribute = part.role == VPartRole::Attribute;
    if (part.role == VPartRole::Instruction) {
        return false;
    }
    if (isAttribute && *part.wrapper == L'\0') {
        return !IsOfReference(part.tag) && !IsTag(part.tag, L"OID") &&
               (m_options.comparesIds || !IsTag(part.tag, L"ID"));
    }
    if (part.role == VPartRole::Text) {
        return !(isNamed && IsTag(part.tag, L"SHORT-NAME")) &&
               !(m_options.ignoresLongNames && IsTag(part.tag, L"LONG-NAME")) &&
               !(m_options.ignoresDescriptions && IsTag(part.tag, L"DESC"));
    }
    if (isAttribute) {
        return !(m_options.ignoresLongNames && IsTag(part.wrapper, L"LONG-NAME"));
    }
    return !(m_options.ignoresAdminData && IsTag(part.tag, L"ADMIN-DATA"));
}

std::uint32_t VFacets::ComponentOf(VContentPart const& part) {
    VNames const names{part.wrapper, part.tag, part.role == VPartRole::Attribute};
    if (auto const known = m_byPointers.find(names); known != m_byPointers.end()) {
        return known->second;
    }
    std::wstring_view const shortTag = part.role == VPartRole::Reference ? WithoutRef(part.tag) : part.tag;
    bool const hidesWrapper = *part.wrapper == L'\0' || IsPlural(part.wrapper, part.tag, shortTag);
    std::wstring text = hidesWrapper ? L"" : part.wrapper + std::wstring(L"/");
    text += names.isAttribute ? L"@" : L"";
    text += shortTag;
    auto const [known, isNew] = m_byText.emplace(text, static_cast<std::uint32_t>(m_components.size()));
    if (isNew) {
        m_components.push_back({text, HashOf(text)});
    }
    m_byPointers.emplace(names, known->second);
    return known->second;
}

bool VFacets::AddReference(VContentPart const& part, VSeenFrom& from, std::vector<VFacet>& facets) {
    auto& reference = static_cast<NODX201::VLink&>(*part.element);
    auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&reference.GetLink());
    bool const isReadByDops = snref != nullptr && IsReadByDops(reference);
    VFacet facet;
    facet.kind = VFacet::VKind::Reference;
    facet.isItem = part.isItem;
    facet.component = ComponentOf(part);
    facet.element = &reference;
    NODX201::VOdxElement* target = nullptr;
    if (snref == nullptr || isReadByDops) {
        target = isReadByDops ? from.TargetOf(reference) : TargetOf(reference, nullptr);
    }
    if (snref != nullptr) {
        facet.name = snref->GetShortName();
        facet.isMissing = isReadByDops && target == nullptr;
    } else {
        facet.isMissing = target == nullptr;
    }
    if (target != nullptr) {
        facet.name = target->GetShortName();
        facet.target = IsData(target->GetOdxTag()) ? target : nullptr;
    } else if (m_options.comparesIds && facet.isMissing && !facet.HasName()) {
        facet.name = dynamic_cast<NODX201::VOdxLink const&>(reference.GetLink()).GetIdRef();
    }
    facets.push_back(facet);
    return isReadByDops;
}

/// A PARAM without BYTE-POSITION starts where the previous one ends.
void VFacets::AddPlace(NODX201::VOdxElement const& element, std::vector<VFacet>& facets) {
    auto const before = m_before.find(&element);
    if (before == m_before.end() || *before->second == L'\0') {
        return;
    }
    VFacet facet;
    facet.component = ComponentOf({VPartRole::Attribute, L"AFTER", L"", false, before->second, nullptr});
    facet.text = before->second;
    facets.push_back(facet);
}

bool VFacets::Read(NODX201::VOdxElement& element, VSeenFrom& from, bool isNamed, std::vector<VFacet>& facets) {
    std::size_t const start = facets.size();
    bool dependsOnLayer = false;
    bool hasBytePosition = false;
    wchar_t const* before = L"";
    auto const take = [&](VContentPart const& part, bool isOfTransparent, auto const& again) -> void {
        if (!Counts(part, isNamed && !isOfTransparent)) {
            return;
        }
        if (part.role == VPartRole::Reference) {
            dependsOnLayer = AddReference(part, from, facets) || dependsOnLayer;
            return;
        }
        if (part.role == VPartRole::Element && IsTransparent(part.tag)) {
            ForEachPartOf(*part.element, [&](VContentPart const& inner) { again(inner, true, again); });
            return;
        }
        VFacet facet;
        facet.isItem = part.isItem;
        facet.component = ComponentOf(part);
        hasBytePosition = hasBytePosition || (part.role == VPartRole::Text && IsTag(part.tag, L"BYTE-POSITION"));
        if (part.role == VPartRole::Element && IsTag(part.tag, L"PARAM")) {
            m_before[part.element] = before;
            before = part.element->GetShortName();
        }
        if (part.role == VPartRole::Element) {
            facet.kind = VFacet::VKind::Element;
            facet.element = part.element;
            facet.name = part.isItem ? part.element->GetShortName() : L"";
        } else {
            facet.text = part.text;
        }
        facets.push_back(facet);
    };
    ForEachPartOf(element, [&](VContentPart const& part) { take(part, false, take); });
    if (!hasBytePosition) {
        AddPlace(element, facets);
    }
    NumberItems(facets, start);
    return dependsOnLayer;
}

namespace {

bool IsOfSameName(VFacet const& a, VFacet const& b) {
    return a.component == b.component && a.isItem == b.isItem && std::wcscmp(a.name, b.name) == 0;
}

} // namespace

// A few are compared with each other, which needs no memory; there are nearly always only a few.
void VFacets::NumberItems(std::vector<VFacet>& facets, std::size_t start) {
    constexpr std::size_t kFew = 16;
    if (facets.size() - start <= kFew) {
        for (std::size_t i = start; i < facets.size(); ++i) {
            auto const at = facets.begin() + static_cast<std::ptrdiff_t>(i);
            auto const begin = facets.begin() + static_cast<std::ptrdiff_t>(start);
            auto const isSame = [&at](VFacet const& other) { return IsOfSameName(other, *at); };
            at->number = at->isItem ? static_cast<std::uint32_t>(std::count_if(begin, at, isSame)) + 1 : 0;
        }
        return;
    }
    std::unordered_map<VHash, std::uint32_t, VHashOfHash> counts;
    for (std::size_t i = start; i < facets.size(); ++i) {
        if (VFacet& facet = facets[i]; facet.isItem) {
            facet.number = ++counts[Mixed(HashOf(facet.component), HashOf(facet.name))];
        }
    }
}

bool IsData(NODX201::VOdxTagEnum tag) {
    switch (tag) {
    case Tag::Request:
    case Tag::PosResponse:
    case Tag::NegResponse:
    case Tag::GlobalNegResponse:
    case Tag::DataObjectProp:
    case Tag::DtcDop:
    case Tag::Dtc:
    case Tag::Structure:
    case Tag::EnvData:
    case Tag::EnvDataDesc:
    case Tag::StaticField:
    case Tag::DynamicLengthField:
    case Tag::DynamicEndmarkerField:
    case Tag::EndOfPduField:
    case Tag::Mux:
    case Tag::Unit:
    case Tag::PhysicalDimension:
    case Tag::Table:
    case Tag::TableRow:
    case Tag::FunctClass:
        return true;
    default:
        return false;
    }
}

} // namespace NQuery
