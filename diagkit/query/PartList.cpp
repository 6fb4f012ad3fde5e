// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/PartList.h>

#include <algorithm>
#include <cwchar>

namespace NQuery {
namespace {

NODX201::VLink* LinkOf(VContentPart const& part) { return dynamic_cast<NODX201::VLink*>(part.element); }

} // namespace

bool IsTag(wchar_t const* tag, wchar_t const* other) { return tag == other || std::wcscmp(tag, other) == 0; }

VPartList::VPartList(NODX201::VOdxElement& element) {
    ForEachPartOf(element, [this](VContentPart const& part) { m_parts.push_back(part); });
}

wchar_t const* VPartList::Text(wchar_t const* tag) const {
    for (VContentPart const& part : m_parts) {
        bool const isText = part.role == VPartRole::Attribute || part.role == VPartRole::Text;
        if (isText && *part.wrapper == L'\0' && IsTag(part.tag, tag)) {
            return part.text;
        }
    }
    return L"";
}

NODX201::VOdxElement* VPartList::Element(wchar_t const* tag) const {
    for (VContentPart const& part : m_parts) {
        if (part.role == VPartRole::Element && IsTag(part.tag, tag)) {
            return part.element;
        }
    }
    return nullptr;
}

NODX201::VLink* VPartList::Reference(wchar_t const* tag) const {
    for (VContentPart const& part : m_parts) {
        if (part.role == VPartRole::Reference && IsTag(part.tag, tag)) {
            return LinkOf(part);
        }
    }
    return nullptr;
}

NODX201::VLink* VPartList::Reference() const {
    auto const found = std::find_if(m_parts.begin(), m_parts.end(),
                                    [](VContentPart const& part) { return part.role == VPartRole::Reference; });
    return found != m_parts.end() ? LinkOf(*found) : nullptr;
}

std::optional<std::uint64_t> NumberIn(wchar_t const* text) {
    if (*text == L'\0') {
        return std::nullopt;
    }
    std::uint64_t number = 0;
    for (; *text != L'\0'; ++text) {
        if (*text < L'0' || *text > L'9') {
            return std::nullopt;
        }
        number = std::min(number * 10 + static_cast<std::uint64_t>(*text - L'0'), kLargestNumber);
    }
    return number;
}

} // namespace NQuery
