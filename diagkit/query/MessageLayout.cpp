// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/MessageLayout.h>

#include <algorithm>
#include <memory>

#include <diagkit/check/Views.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Tables.h>
#include <diagkit/query/ContentFacets.h>
#include <diagkit/query/Extents.h>
#include <diagkit/query/PartList.h>

namespace NQuery {
namespace {

/// Finds what references lead to in a layer; by short name without asking the layer for its views again.
class VTargets {
public:
    explicit VTargets(NODX201::VDiagLayer* layer) : m_layer(layer) {}

    NODX201::VOdxElement* Of(NODX201::VLink& reference) {
        if (!IsReadInLayer(reference)) {
            return TargetOf(reference, m_layer);
        }
        if (m_layer == nullptr) {
            return nullptr;
        }
        if (dynamic_cast<NODX201::VDopBaseLink*>(&reference) == nullptr &&
            dynamic_cast<NODX201::VDataObjectPropLink*>(&reference) == nullptr) {
            return TargetOf(reference, m_layer);
        }
        if (m_seen == nullptr) {
            m_dops = NCheck::DopsIn(*m_layer);
            m_seen = std::make_unique<VSeenFrom>(*m_layer, m_dops);
        }
        return m_seen->TargetOf(reference);
    }

private:
    NODX201::VDiagLayer* m_layer;
    std::vector<NODX201::VDopBase*> m_dops;
    std::unique_ptr<VSeenFrom> m_seen;
};

/// Where something starts, and how deep its rows are.
struct VStart {
    VExtent byte;
    std::size_t depth;
};

VExtent FixedExtent(std::uint64_t number) { return {number, number}; }
VExtent OpenExtent(std::uint64_t least) { return {least, std::nullopt}; }

VExtent NumberOrOpen(wchar_t const* text) {
    std::optional<std::uint64_t> const number = NumberIn(text);
    return number.has_value() ? FixedExtent(*number) : OpenExtent(0);
}

/// How long the length is, and then as many bytes as it can say.
VExtent LeadingLength(std::uint64_t bitPosition, wchar_t const* text) {
    std::optional<std::uint64_t> const bits = NumberIn(text);
    constexpr std::uint64_t kMostBits = 32;
    if (!bits.has_value() || *bits > kMostBits) {
        return OpenExtent(bits.value_or(0));
    }
    std::uint64_t const mostBytes = (std::uint64_t{1} << *bits) - 1;
    VExtent const whole = BitsOf(BytesOf(FixedExtent(bitPosition % 8 + *bits)));
    return {*bits, whole.least - bitPosition % 8 + mostBytes * 8};
}

VExtent LengthOfType(NODX201::VDiagCodedType& type, std::uint64_t bitPosition) {
    VPartList const parts(type);
    switch (type.GetOdxTag()) {
    case NODX201::VOdxTagEnum::StandardLengthType:
        return NumberOrOpen(parts.Text(L"BIT-LENGTH"));
    case NODX201::VOdxTagEnum::LeadingLengthInfoType:
        return LeadingLength(bitPosition, parts.Text(L"BIT-LENGTH"));
    case NODX201::VOdxTagEnum::MinMaxLengthType: {
        std::uint64_t const least = NumberIn(parts.Text(L"MIN-LENGTH")).value_or(0);
        return BitsOf({least, NumberIn(parts.Text(L"MAX-LENGTH"))});
    }
    default: // a LENGTH-KEY says it
        return OpenExtent(0);
    }
}

class VLayouter {
public:
    VLayouter(NODX201::VDiagLayer* layer, VLayoutOptions const& options) : m_targets(layer), m_options(options) {}

    VMessageLayout Lay(NODX201::VOdxElement& element) {
        VStart const start{FixedExtent(0), 0};
        if (auto* const request = dynamic_cast<NODX201::VRequest*>(&element); request != nullptr) {
            m_layout.bitLength = BitsOf(LayParams(request->ParamCollection(), start));
        } else if (auto* const response = dynamic_cast<NODX201::VResponse*>(&element); response != nullptr) {
            m_layout.bitLength = BitsOf(LayParams(response->ParamCollection(), start));
        } else if (dynamic_cast<NODX201::VDopBase*>(&element) != nullptr) {
            m_layout.bitLength = LayDop(kNoRow, element, start);
        } else if (auto* const table = dynamic_cast<NODX201::VTable*>(&element); table != nullptr) {
            m_layout.bitLength = LayTable(*table, start);
        } else if (auto* const row = dynamic_cast<NODX201::VTableRow*>(&element); row != nullptr) {
            m_layout.bitLength = LayStructureOf(*row, VLayoutRole::TableRow, start);
        }
        return std::move(m_layout);
    }

private:
    static constexpr std::size_t kNoRow = static_cast<std::size_t>(-1);

    /// The row, or one that nobody reads for what has none. Adding rows makes it another.
    VLayoutRow& At(std::size_t row) { return row != kNoRow ? m_layout.rows[row] : m_unread; }

    std::size_t Add(VLayoutRole role, NODX201::VOdxElement& element, VStart const& start) {
        if (m_layout.rows.size() >= m_options.maxRows) {
            m_layout.isCut = true;
            m_unread = {};
            return kNoRow;
        }
        VLayoutRow& row = m_layout.rows.emplace_back();
        row.role = role;
        row.element = &element;
        row.depth = start.depth;
        row.bytePosition = start.byte;
        return m_layout.rows.size() - 1;
    }

    VExtent Finish(std::size_t row, VExtent const& bitLength) { return At(row).bitLength = bitLength; }

    static VStart Inside(VStart const& start, VExtent const& bytes) {
        return {Plus(start.byte, bytes), start.depth + 1};
    }

    /// The end of the last parameter, in bytes from the start.
    VExtent LayParams(NODX201::VParamCollection& params, VStart const& start) {
        VExtent end = FixedExtent(0);
        VExtent next = FixedExtent(0);
        for (NODX201::VParam& param : params) {
            if (m_layout.isCut) {
                return OpenExtent(end.least);
            }
            VPartList const parts(param);
            std::optional<std::uint64_t> const given = NumberIn(parts.Text(L"BYTE-POSITION"));
            VExtent const place = given.has_value() ? FixedExtent(*given) : next;
            std::size_t const row = Add(VLayoutRole::Param, param, {Plus(start.byte, place), start.depth});
            At(row).isPositionGiven = given.has_value();
            VExtent const bits = LayPositioned(row, parts, [&] { return LayParam(row, param, parts); });
            next = Plus(place, BytesOf(bits));
            end = Larger(end, next);
        }
        return end;
    }

    /// Sets bit position and length of a row; the bits from its first byte on.
    template <class Lay>
    VExtent LayPositioned(std::size_t row, VPartList const& parts, Lay lay) {
        std::uint64_t const bitPosition = NumberIn(parts.Text(L"BIT-POSITION")).value_or(0);
        At(row).bitPosition = bitPosition;
        return Plus(FixedExtent(bitPosition), Finish(row, lay()));
    }

    VExtent LayParam(std::size_t row, NODX201::VParam& param, VPartList const& parts) {
        switch (param.GetOdxTag()) {
        case NODX201::VOdxTagEnum::CodedConst:
            return LayOwnType(row, parts);
        case NODX201::VOdxTagEnum::Reserved:
            LayOwnType(row, parts);
            return NumberOrOpen(parts.Text(L"BIT-LENGTH"));
        case NODX201::VOdxTagEnum::MatchingRequestParam:
            return BitsOf(NumberOrOpen(parts.Text(L"BYTE-LENGTH")));
        case NODX201::VOdxTagEnum::TableKey:
            return LayTableKey(row, parts);
        case NODX201::VOdxTagEnum::TableStruct:
            return LayTableStruct(row, parts);
        case NODX201::VOdxTagEnum::TableEntry:
            return LayTableEntry(row, parts);
        default:
            At(row).constant = parts.Text(L"PHYS-CONSTANT-VALUE");
            return LayReferred(row, parts.Reference());
        }
    }

    VExtent LayOwnType(std::size_t row, VPartList const& parts) {
        At(row).constant = parts.Text(L"CODED-VALUE");
        auto* const type = dynamic_cast<NODX201::VDiagCodedType*>(parts.Element(L"DIAG-CODED-TYPE"));
        return type != nullptr ? LayType(row, *type) : OpenExtent(0);
    }

    VExtent LayType(std::size_t row, NODX201::VDiagCodedType& type) {
        At(row).codedType = &type;
        At(row).isLowByteFirst = IsTag(VPartList(type).Text(L"IS-HIGHLOW-BYTE-ORDER"), L"false");
        return LengthOfType(type, At(row).bitPosition);
    }

    /// Where the reference of a row leads; null with a note where it leads nowhere.
    NODX201::VOdxElement* Follow(std::size_t row, NODX201::VLink* reference) {
        VLayoutRow& at = At(row);
        at.reference = reference;
        at.target = reference != nullptr ? m_targets.Of(*reference) : nullptr;
        at.gap = reference != nullptr && at.target == nullptr ? VLayoutGap::Broken : VLayoutGap::None;
        return at.target;
    }

    /// What a reference to a DOP leads to, inside its row.
    VExtent LayReferred(std::size_t row, NODX201::VLink* reference) {
        NODX201::VOdxElement* const dop = Follow(row, reference);
        if (dop == nullptr) {
            return OpenExtent(0);
        }
        At(row).dop = dop;
        return LayDop(row, *dop, {At(row).bytePosition, At(row).depth + 1});
    }

    VExtent LayDop(std::size_t row, NODX201::VOdxElement& dop, VStart const& start) {
        if (auto* const simple = dynamic_cast<NODX201::VDataObjectProp*>(&dop); simple != nullptr) {
            return simple->HasDiagCodedType() ? LayType(row, simple->GetDiagCodedType()) : OpenExtent(0);
        }
        if (auto* const dtcs = dynamic_cast<NODX201::VDtcDop*>(&dop); dtcs != nullptr) {
            return dtcs->HasDiagCodedType() ? LayType(row, dtcs->GetDiagCodedType()) : OpenExtent(0);
        }
        bool const isOpen = std::find(m_open.begin(), m_open.end(), &dop) != m_open.end();
        if (isOpen || m_open.size() >= m_options.maxDepth) {
            At(row).gap = isOpen ? VLayoutGap::Cycle : VLayoutGap::TooDeep;
            return OpenExtent(0);
        }
        m_open.push_back(&dop);
        VExtent const length = LayComplex(dop, start);
        m_open.pop_back();
        return length;
    }

    VExtent LayComplex(NODX201::VOdxElement& dop, VStart const& start) {
        if (auto* const structure = dynamic_cast<NODX201::VBasicStructure*>(&dop); structure != nullptr) {
            VExtent const length = LayParams(structure->ParamCollection(), start);
            std::optional<std::uint64_t> const given = NumberIn(VPartList(dop).Text(L"BYTE-SIZE"));
            return BitsOf(given.has_value() ? FixedExtent(*given) : length);
        }
        VPartList const parts(dop);
        switch (dop.GetOdxTag()) {
        case NODX201::VOdxTagEnum::StaticField:
            return LayStaticField(dop, parts, start);
        case NODX201::VOdxTagEnum::DynamicLengthField:
            return LayDynamicLengthField(dop, parts, start);
        case NODX201::VOdxTagEnum::DynamicEndmarkerField:
            return LayEndmarkerField(dop, parts, start);
        case NODX201::VOdxTagEnum::EndOfPduField:
            return LayEndOfPduField(dop, parts, start);
        case NODX201::VOdxTagEnum::Mux:
            return LayMux(parts, start);
        case NODX201::VOdxTagEnum::EnvDataDesc:
            return LayEnvDataDesc(parts, start);
        default:
            return OpenExtent(0);
        }
    }

    /// The first item of a field.
    VExtent LayItem(NODX201::VOdxElement& field, VPartList const& parts, VExtent const& count, VStart const& start) {
        std::size_t const row = Add(VLayoutRole::Item, field, start);
        At(row).count = count;
        NODX201::VLink* const structure = parts.Reference(L"BASIC-STRUCTURE-REF");
        return Finish(row, LayReferred(row, structure != nullptr ? structure : parts.Reference(L"ENV-DATA-DESC-REF")));
    }

    VExtent LayStaticField(NODX201::VOdxElement& field, VPartList const& parts, VStart const& start) {
        VExtent const count = NumberOrOpen(parts.Text(L"FIXED-NUMBER-OF-ITEMS"));
        LayItem(field, parts, count, start);
        return Times(count, BitsOf(NumberOrOpen(parts.Text(L"ITEM-BYTE-SIZE"))));
    }

    VExtent LayDynamicLengthField(NODX201::VOdxElement& field, VPartList const& parts, VStart const& start) {
        VExtent end = FixedExtent(0);
        if (NODX201::VOdxElement* const number = parts.Element(L"DETERMINE-NUMBER-OF-ITEMS"); number != nullptr) {
            end = LayKey(VLayoutRole::ItemCount, *number, start);
        }
        std::uint64_t const offset = NumberIn(parts.Text(L"OFFSET")).value_or(0);
        LayItem(field, parts, OpenExtent(0), {Plus(start.byte, FixedExtent(offset)), start.depth});
        return BitsOf(OpenExtent(end.least));
    }

    VExtent LayEndmarkerField(NODX201::VOdxElement& field, VPartList const& parts, VStart const& start) {
        LayItem(field, parts, OpenExtent(0), start);
        NODX201::VLink* const marker = parts.Reference(L"DATA-OBJECT-PROP-REF");
        NODX201::VLink* const other = parts.Reference(L"DYN-END-DOP-REF");
        if (NODX201::VLink* const reference = marker != nullptr ? marker : other; reference != nullptr) {
            std::size_t const row =
                Add(VLayoutRole::EndMarker, *reference, {Plus(start.byte, OpenExtent(0)), start.depth});
            At(row).constant = VPartList(*reference).Text(L"TERMINATION-VALUE");
            Finish(row, LayReferred(row, reference));
        }
        return OpenExtent(0);
    }

    VExtent LayEndOfPduField(NODX201::VOdxElement& field, VPartList const& parts, VStart const& start) {
        VExtent const count{NumberIn(parts.Text(L"MIN-NUMBER-OF-ITEMS")).value_or(0),
                            NumberIn(parts.Text(L"MAX-NUMBER-OF-ITEMS"))};
        return Times(count, LayItem(field, parts, count, start));
    }

    /// A value at a place of its own in a field or MUX; its end in bytes.
    VExtent LayKey(VLayoutRole role, NODX201::VOdxElement& key, VStart const& start) {
        VPartList const parts(key);
        VExtent const place = FixedExtent(NumberIn(parts.Text(L"BYTE-POSITION")).value_or(0));
        std::size_t const row = Add(role, key, {Plus(start.byte, place), start.depth});
        At(row).isPositionGiven = true;
        VExtent const bits = LayPositioned(row, parts, [&] { return LayReferred(row, parts.Reference()); });
        return Plus(place, BytesOf(bits));
    }

    VExtent LayMux(VPartList const& parts, VStart const& start) {
        VExtent end = FixedExtent(0);
        if (NODX201::VOdxElement* const key = parts.Element(L"SWITCH-KEY"); key != nullptr) {
            end = LayKey(VLayoutRole::SwitchKey, *key, start);
        }
        VExtent const place = FixedExtent(NumberIn(parts.Text(L"BYTE-POSITION")).value_or(0));
        VStart const inside{Plus(start.byte, place), start.depth};
        std::optional<VExtent> content;
        for (VContentPart const& part : parts) {
            bool const isCase =
                part.role == VPartRole::Element && (IsTag(part.tag, L"CASE") || IsTag(part.tag, L"DEFAULT-CASE"));
            if (isCase && !m_layout.isCut) {
                Widen(content, LayStructureOf(*part.element, VLayoutRole::Case, inside));
            }
        }
        return BitsOf(Larger(end, Plus(place, BytesOf(content.value_or(FixedExtent(0))))));
    }

    /// What the STRUCTURE-REF of a case or row leads to; nothing stands there without one.
    VExtent LayStructureOf(NODX201::VOdxElement& element, VLayoutRole role, VStart const& start) {
        VPartList const parts(element);
        std::size_t const row = Add(role, element, start);
        At(row).constant = parts.Text(L"KEY");
        NODX201::VLink* const reference = parts.Reference(L"STRUCTURE-REF");
        return Finish(row, reference != nullptr ? LayReferred(row, reference) : FixedExtent(0));
    }

    VExtent LayEnvDataDesc(VPartList const& parts, VStart const& start) {
        struct VEntry {
            NODX201::VOdxElement* envData;
            NODX201::VLink* reference;
        };
        std::vector<VEntry> general;
        std::vector<VEntry> others;
        for (VContentPart const& part : parts) {
            auto* const reference =
                part.role == VPartRole::Reference ? dynamic_cast<NODX201::VEnvDataLink*>(part.element) : nullptr;
            NODX201::VOdxElement* const target = reference != nullptr ? m_targets.Of(*reference) : part.element;
            auto* const envData = dynamic_cast<NODX201::VEnvData*>(target);
            if (envData != nullptr || reference != nullptr) {
                bool const isGeneral = envData != nullptr && envData->HasAllValueDtcValuesChoice() &&
                                       envData->GetAllValueDtcValuesChoice().IsAllValue();
                (isGeneral ? general : others).push_back({envData, reference});
            }
        }
        VExtent before = FixedExtent(0); // what is there for all trouble codes comes first
        for (VEntry const& entry : general) {
            before = Plus(before,
                          BytesOf(LayEnvData(entry.envData, entry.reference, {Plus(start.byte, before), start.depth})));
        }
        std::optional<VExtent> content = FixedExtent(0); // a code may have none
        for (VEntry const& entry : others) {
            if (!m_layout.isCut) {
                Widen(content, LayEnvData(entry.envData, entry.reference, {Plus(start.byte, before), start.depth}));
            }
        }
        return Plus(BitsOf(before), *content);
    }

    VExtent LayEnvData(NODX201::VOdxElement* envData, NODX201::VLink* reference, VStart const& start) {
        std::size_t const row =
            Add(VLayoutRole::EnvData, envData != nullptr ? *envData : static_cast<NODX201::VOdxElement&>(*reference),
                start);
        At(row).reference = reference;
        if (envData == nullptr) {
            At(row).gap = VLayoutGap::Broken;
            return Finish(row, OpenExtent(0));
        }
        At(row).target = envData;
        At(row).dop = envData;
        return Finish(row, LayDop(row, *envData, {start.byte, start.depth + 1}));
    }

    static NODX201::VTable* TableAround(NODX201::VOdxElement& row) {
        return dynamic_cast<NODX201::VTable*>(row.GetOwner());
    }

    /// The value by which a row is chosen.
    VExtent LayKeyOf(std::size_t row, NODX201::VTable* table) {
        NODX201::VOdxElement* const dop =
            table != nullptr && table->HasKeyDopRef() ? m_targets.Of(table->GetKeyDopRef()) : nullptr;
        At(row).dop = dop;
        return dop != nullptr ? LayDop(row, *dop, {At(row).bytePosition, At(row).depth + 1}) : OpenExtent(0);
    }

    VExtent LayTableKey(std::size_t row, VPartList const& parts) {
        NODX201::VOdxElement* const target = Follow(row, parts.Reference());
        if (auto* const tableRow = dynamic_cast<NODX201::VTableRow*>(target); tableRow != nullptr) {
            At(row).constant = VPartList(*tableRow).Text(L"KEY");
            return LayKeyOf(row, TableAround(*tableRow));
        }
        return LayKeyOf(row, dynamic_cast<NODX201::VTable*>(target));
    }

    VExtent LayTableStruct(std::size_t row, VPartList const& parts) {
        NODX201::VOdxElement* const key = Follow(row, parts.Reference());
        NODX201::VLink* const reference = key != nullptr ? VPartList(*key).Reference() : nullptr;
        NODX201::VOdxElement* const target = reference != nullptr ? m_targets.Of(*reference) : nullptr;
        VStart const inside{At(row).bytePosition, At(row).depth + 1};
        if (auto* const tableRow = dynamic_cast<NODX201::VTableRow*>(target); tableRow != nullptr) {
            return LayStructureOf(*tableRow, VLayoutRole::TableRow, inside);
        }
        if (auto* const table = dynamic_cast<NODX201::VTable*>(target); table != nullptr) {
            return LayTable(*table, inside);
        }
        At(row).gap = VLayoutGap::Broken;
        return OpenExtent(0);
    }

    VExtent LayTable(NODX201::VTable& table, VStart const& start) {
        std::optional<VExtent> content;
        for (VContentPart const& part : VPartList(table)) {
            auto* const reference =
                part.role == VPartRole::Reference ? dynamic_cast<NODX201::VTableRowLink*>(part.element) : nullptr;
            NODX201::VOdxElement* const target = reference != nullptr ? m_targets.Of(*reference) : part.element;
            if (auto* const row = dynamic_cast<NODX201::VTableRow*>(target); row != nullptr && !m_layout.isCut) {
                Widen(content, LayStructureOf(*row, VLayoutRole::TableRow, start));
            } else if (reference != nullptr && target == nullptr) {
                std::size_t const broken = Add(VLayoutRole::TableRow, *reference, start);
                Follow(broken, reference);
                Widen(content, Finish(broken, OpenExtent(0)));
            }
        }
        return content.value_or(FixedExtent(0));
    }

    VExtent LayTableEntry(std::size_t row, VPartList const& parts) {
        auto* const tableRow = dynamic_cast<NODX201::VTableRow*>(Follow(row, parts.Reference()));
        if (tableRow == nullptr) {
            return OpenExtent(0);
        }
        At(row).constant = VPartList(*tableRow).Text(L"KEY");
        bool const hasKey = !IsTag(parts.Text(L"TARGET"), L"STRUCT");
        VExtent const key = hasKey ? LayKeyOf(row, TableAround(*tableRow)) : FixedExtent(0);
        if (IsTag(parts.Text(L"TARGET"), L"KEY")) {
            return key;
        }
        VStart const inside = Inside({At(row).bytePosition, At(row).depth}, BytesOf(key));
        return Plus(BitsOf(BytesOf(key)), LayStructureOf(*tableRow, VLayoutRole::TableRow, inside));
    }

    VTargets m_targets;
    VLayoutOptions const& m_options;
    VMessageLayout m_layout;
    VLayoutRow m_unread;
    std::vector<NODX201::VOdxElement const*> m_open; // whose rows are being added
};

} // namespace

bool HasLayout(NODX201::VOdxElement const& element) {
    return dynamic_cast<NODX201::VRequest const*>(&element) != nullptr ||
           dynamic_cast<NODX201::VResponse const*>(&element) != nullptr ||
           dynamic_cast<NODX201::VDopBase const*>(&element) != nullptr ||
           dynamic_cast<NODX201::VTable const*>(&element) != nullptr ||
           dynamic_cast<NODX201::VTableRow const*>(&element) != nullptr;
}

VMessageLayout LayoutOf(NODX201::VOdxElement& element, NODX201::VDiagLayer* layer, VLayoutOptions const& options) {
    return VLayouter(layer, options).Lay(element);
}

std::vector<VServiceMessage> MessagesOf(NODX201::VDiagService& service) {
    std::vector<VServiceMessage> messages;
    ForEachPartOf(service, [&messages](VContentPart const& part) {
        auto* const reference =
            part.role == VPartRole::Reference ? dynamic_cast<NODX201::VLink*>(part.element) : nullptr;
        bool const isRequest = IsTag(part.tag, L"REQUEST-REF");
        bool const isPositive = IsTag(part.tag, L"POS-RESPONSE-REF");
        if (reference != nullptr && (isRequest || isPositive || IsTag(part.tag, L"NEG-RESPONSE-REF"))) {
            VMessageRole const role = isRequest    ? VMessageRole::Request
                                      : isPositive ? VMessageRole::Positive
                                                   : VMessageRole::Negative;
            messages.push_back({role, reference, TargetOf(*reference, nullptr)});
        }
    });
    return messages;
}

} // namespace NQuery
