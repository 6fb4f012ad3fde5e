// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/ContentTable.h>

#include <algorithm>
#include <string_view>

namespace NQuery {
namespace {

using VWhat = VContentFact::VWhat;

bool AreSame(wchar_t const* a, wchar_t const* b) { return std::wcscmp(a, b) == 0; }

VContentRow const* Named(std::vector<VContentRow> const& rows, wchar_t const* name) {
    auto const found =
        std::find_if(rows.begin(), rows.end(), [name](VContentRow const& row) { return AreSame(row.name, name); });
    return found != rows.end() ? &*found : nullptr;
}

/// Makes a table from facts. A collection is read where its items are, once for each wrapper.
class VTableMaker {
public:
    VContentTable Make(VContentFact const* facts, std::size_t count) {
        for (VContentFact const* fact = facts; fact != facts + count; ++fact) {
            Add(*fact);
        }
        for (VContentRow& row : m_table.rows) {
            KeepTagsWhereNeeded(row);
        }
        return std::move(m_table);
    }

private:
    void Add(VContentFact const& fact) {
        switch (fact.what) {
        case VWhat::Attribute:
            m_table.attributes.push_back({fact.emit, fact.tag, m_wrapper});
            break;
        case VWhat::Other:
            m_table.rows.push_back({fact.emit, fact.tag, m_wrapper});
            break;
        case VWhat::Reference:
            AddReference(fact);
            break;
        case VWhat::Alias:
            AddAlias(fact);
            break;
        case VWhat::Collection:
            m_collections.push_back({fact.emit, L"", L"", fact.name});
            break;
        case VWhat::Wrapper:
            m_wrapper = fact.tag;
            break;
        case VWhat::WrapperEnd:
            m_wrapper = L"";
            break;
        case VWhat::Item:
            AddItem(fact);
            break;
        case VWhat::Kind:
            m_table.kinds.push_back({fact.tag, fact.name});
            break;
        }
    }

    /// The rows of one choice become one.
    void AddReference(VContentFact const& fact) {
        if (*fact.name == L'\0' || Named(m_table.rows, fact.name) == nullptr) {
            m_table.rows.push_back({fact.emit, fact.tag, m_wrapper, fact.name});
        }
    }

    void AddAlias(VContentFact const& fact) {
        for (VContentRow& row : m_table.rows) {
            if (AreSame(row.name, fact.name)) {
                row.names.push_back(fact.tag);
            }
        }
    }

    void AddItem(VContentFact const& fact) {
        VContentRow const* const collection = Named(m_collections, fact.name);
        auto const sameWrapper = [&](VContentRow const& row) {
            return AreSame(row.name, fact.name) && AreSame(row.wrapper, m_wrapper);
        };
        auto row = std::find_if(m_table.rows.begin(), m_table.rows.end(), sameWrapper);
        if (row == m_table.rows.end()) {
            m_table.rows.push_back({collection->emit, fact.tag, m_wrapper, fact.name});
            row = m_table.rows.end() - 1;
        } else {
            row->tag = L""; // items of several tags have their own tags
        }
        NODX201::VOdxTagEnum const tag = NODX201::OdxTagOf(fact.tag);
        bool const isTaken = std::any_of(m_table.rows.begin(), m_table.rows.end(), [&](VContentRow const& other) {
            return AreSame(other.name, fact.name) &&
                   std::find(other.tags.begin(), other.tags.end(), tag) != other.tags.end();
        });
        row->tags.push_back(isTaken ? NODX201::VOdxTagEnum::None : tag);
    }

    /// A collection with a single wrapper has all its items there, whatever their tags.
    void KeepTagsWhereNeeded(VContentRow& row) const {
        auto const isOfSame = [&row](VContentRow const& other) {
            return *row.name != L'\0' && AreSame(other.name, row.name);
        };
        if (std::count_if(m_table.rows.begin(), m_table.rows.end(), isOfSame) == 1) {
            row.tags.clear();
        }
    }

    VContentTable m_table;
    std::vector<VContentRow> m_collections;
    wchar_t const* m_wrapper = L"";
};

bool IsByShortNameTag(std::wstring_view tag) {
    constexpr std::wstring_view kEnd = L"SNREF";
    return tag.size() >= kEnd.size() && tag.substr(tag.size() - kEnd.size()) == kEnd;
}

} // namespace

VContentTable ContentTableOf(VContentFact const* facts, std::size_t count) { return VTableMaker().Make(facts, count); }

wchar_t const* TagIn(VContentRow const& row, NODX201::VLink& reference) {
    wchar_t const* const own = NODX201::OdxTagText(reference.GetOdxTag());
    if (row.names.empty() || AreSame(own, row.tag)) {
        return *row.tag != L'\0' ? row.tag : own;
    }
    bool const isByShortName = dynamic_cast<NODX201::VSnref const*>(&reference.GetLink()) != nullptr;
    wchar_t const* fitting = row.tag;
    for (wchar_t const* const name : row.names) {
        if (AreSame(own, name)) {
            return name;
        }
        if (IsByShortNameTag(fitting) != isByShortName && IsByShortNameTag(name) == isByShortName) {
            fitting = name;
        }
    }
    return fitting;
}

bool StandsIn(VContentRow const& row, NODX201::VOdxElement const& item) {
    return std::find(row.tags.begin(), row.tags.end(), item.GetOdxTag()) != row.tags.end();
}

void EmitText(IPartSink& sink, VPartRole role, wchar_t const* tag, wchar_t const* wrapper, wchar_t const* text,
              bool isItem) {
    if (*text != L'\0') {
        sink.Take({role, tag, wrapper, isItem, text, nullptr});
    }
}

void EmitElement(IPartSink& sink, VContentRow const& row, NODX201::VOdxElement& element, bool isItem) {
    wchar_t const* const tag = *row.tag != L'\0' ? row.tag : NODX201::OdxTagText(element.GetOdxTag());
    sink.Take({VPartRole::Element, tag, row.wrapper, isItem, nullptr, &element});
}

void EmitReference(IPartSink& sink, VContentRow const& row, NODX201::VLink& reference, bool isItem) {
    sink.Take({VPartRole::Reference, TagIn(row, reference), row.wrapper, isItem, nullptr, &reference});
}

} // namespace NQuery
