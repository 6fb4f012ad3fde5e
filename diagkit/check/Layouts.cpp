// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Layouts.h>

#include <algorithm>
#include <unordered_set>

#include <diagkit/check/CodedTypes.h>
#include <diagkit/check/Numbers.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Params.h>
#include <diagkit/memory/References.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/reader/Containment.h>

namespace NCheck {
namespace {

/// What one parameter says itself: its place, its DOP, and its length where it has one without a DOP.
class VParamFacts final : private NODX201::VParamVisitor {
public:
    VParamFacts(NODX201::VParam& param, VVisibleNames* names) : m_names(names) { param.Accept(*this); }

    wchar_t const* bytePosition = L"";
    wchar_t const* bitPosition = L"";
    NODX201::VDopBase* dop = nullptr;
    VLength bits;
    bool isHighLow = true;
    bool isMasked = false;
    bool isByName = false;

    void Take(NODX201::VDiagCodedType& type) {
        VCodedType const coded = CodedTypeOf(type);
        bits = coded.Bits();
        isHighLow = coded.isHighLow;
        isMasked = coded.isMasked;
    }

private:
    template <class Param>
    Param& TakePlace(NODX201::VParam& param) {
        auto& taken = dynamic_cast<Param&>(param);
        bytePosition = taken.GetBytePosition();
        bitPosition = taken.GetBitPosition();
        return taken;
    }

    template <class Param>
    void TakeWithDop(NODX201::VParam& param) {
        auto& taken = TakePlace<Param>(param);
        if (taken.HasDataObjectPropLink()) {
            auto& link = taken.GetDataObjectPropLink();
            dop = IsByName(link) ? FindByName(link) : link.ResolvesById() ? &link.GetDataObjectProp() : nullptr;
        }
    }

    bool IsByName(NODX201::VLink& link) {
        bool const isOneByName = !NReader::ShortNameIn(link).empty();
        isByName = isByName || isOneByName;
        return isOneByName;
    }

    NODX201::VDopBase* FindByName(NODX201::VLink& link) {
        if (m_names == nullptr) {
            return nullptr;
        }
        auto const& targets = m_names->TargetsOf(link);
        return targets.empty() ? nullptr : dynamic_cast<NODX201::VDopBase*>(targets.front());
    }

    void VisitCodedConst(NODX201::VCodedConst& param) override {
        auto& taken = TakePlace<NMemory::VMemCodedConst>(param);
        if (taken.HasDiagCodedType()) {
            Take(taken.GetDiagCodedType());
        }
    }
    void VisitReserved(NODX201::VReserved& param) override {
        bits = LengthIn(TakePlace<NMemory::VMemReserved>(param).GetBitLength());
    }
    void VisitMatchingRequestParam(NODX201::VMatchingRequestParam& param) override {
        auto const bytes = LengthIn(TakePlace<NMemory::VMemMatchingRequestParam>(param).GetByteLength());
        bits = bytes.has_value() ? VLength(*bytes * 8) : std::nullopt;
    }
    void VisitValue(NODX201::VValue& param) override {
        auto& taken = TakePlace<NMemory::VMemValue>(param);
        if (taken.HasDopBaseLink()) {
            auto& link = taken.GetDopBaseLink();
            dop = IsByName(link) ? FindByName(link) : link.ResolvesById() ? &link.GetDopBase() : nullptr;
        }
    }
    void VisitPhysConst(NODX201::VPhysConst& param) override { TakeWithDop<NMemory::VMemPhysConst>(param); }
    void VisitLengthKey(NODX201::VLengthKey& param) override { TakeWithDop<NMemory::VMemLengthKey>(param); }
    void VisitSystem(NODX201::VSystem& param) override { TakeWithDop<NMemory::VMemSystem>(param); }
    void VisitDynamic(NODX201::VDynamic& param) override { TakePlace<NMemory::VMemDynamic>(param); }
    void VisitTableKey(NODX201::VTableKey& param) override { TakePlace<NMemory::VMemTableKey>(param); }
    void VisitTableStruct(NODX201::VTableStruct& param) override { TakePlace<NMemory::VMemTableStruct>(param); }
    void VisitTableEntry(NODX201::VTableEntry& param) override { TakePlace<NMemory::VMemTableEntry>(param); }

    VVisibleNames* m_names;
};

/// Lengths beyond this are of no message; sums of smaller ones stay exact.
VLength Sane(std::uint64_t bits) {
    constexpr std::uint64_t kMost = std::uint64_t{1} << 36;
    return bits <= kMost ? VLength(bits) : std::nullopt;
}

VLength BitsOf(NMemory::VMemStaticField& field) {
    auto const count = LengthIn(field.GetFixedNumberOfItems());
    auto const size = LengthIn(field.GetItemByteSize());
    constexpr std::uint64_t kMost = std::uint64_t{1} << 30;
    bool const isKnown = count.has_value() && size.has_value() && (*size == 0 || *count <= kMost / *size);
    return isKnown ? Sane(*count * *size * 8) : std::nullopt;
}

VLength ByteSizeOf(NODX201::VBasicStructure& structure) {
    if (auto* const plain = dynamic_cast<NMemory::VMemStructure*>(&structure)) {
        return LengthIn(plain->GetByteSize());
    }
    auto* const envData = dynamic_cast<NMemory::VMemEnvData*>(&structure);
    return envData != nullptr ? LengthIn(envData->GetByteSize()) : std::nullopt;
}

} // namespace

VLength VPlacedParam::End() const {
    return byte.has_value() && bits.has_value() ? VLength(*byte + (bit + *bits + 7) / 8) : std::nullopt;
}

VLayouts::VSize VLayouts::SizeOf(NODX201::VBasicStructure& structure) {
    if (auto const said = ByteSizeOf(structure)) {
        return {said};
    }
    auto const known = m_sizes.find(&structure);
    return known != m_sizes.end() ? known->second : VSize{}; // one that contains itself has no length
}

VLayout VLayouts::Place(NODX201::VReferencable& container) {
    VLayout layout{{}, 0};
    NODX201::VParamCollection* const params = NReader::ParamsOf(container);
    if (params == nullptr) {
        return layout;
    }
    VLength next = 0;
    for (NODX201::VParam& param : *params) {
        VParamFacts facts(param, m_names);
        layout.needsNames = layout.needsNames || facts.isByName;
        if (auto* const simple = dynamic_cast<NODX201::VDataObjectProp*>(facts.dop)) {
            if (simple->HasDiagCodedType()) {
                facts.Take(simple->GetDiagCodedType());
            }
        } else if (auto* const dtcDop = dynamic_cast<NODX201::VDtcDop*>(facts.dop)) {
            if (dtcDop->HasDiagCodedType()) {
                facts.Take(dtcDop->GetDiagCodedType());
            }
        } else if (auto* const structure = dynamic_cast<NODX201::VBasicStructure*>(facts.dop)) {
            VSize const size = SizeOf(*structure);
            facts.bits = size.bytes.has_value() ? Sane(*size.bytes * 8) : std::nullopt;
            layout.needsNames = layout.needsNames || size.needsNames;
        } else if (auto* const field = dynamic_cast<NMemory::VMemStaticField*>(facts.dop)) {
            facts.bits = BitsOf(*field);
        }
        bool const isPlaced = *facts.bytePosition != L'\0';
        VPlacedParam const placed{&param,
                                  facts.dop,
                                  isPlaced ? LengthIn(facts.bytePosition) : next,
                                  LengthIn(facts.bitPosition).value_or(0),
                                  facts.bits,
                                  facts.isHighLow,
                                  facts.isMasked,
                                  isPlaced};
        next = placed.End();
        bool const isKnown = next.has_value() && layout.bytes.has_value();
        layout.bytes = isKnown ? VLength(std::max(*next, *layout.bytes)) : std::nullopt;
        layout.params.push_back(placed);
    }
    return layout;
}

std::vector<NODX201::VBasicStructure*> VLayouts::UnknownIn(NODX201::VReferencable& container) {
    std::vector<NODX201::VBasicStructure*> unknown;
    if (NODX201::VParamCollection* const params = NReader::ParamsOf(container)) {
        for (NODX201::VParam& param : *params) {
            auto* const structure = dynamic_cast<NODX201::VBasicStructure*>(VParamFacts(param, m_names).dop);
            if (structure != nullptr && m_sizes.count(structure) == 0 && !ByteSizeOf(*structure).has_value()) {
                unknown.push_back(structure);
            }
        }
    }
    return unknown;
}

/// Measures what a container holds, innermost first. Structures may be nested to any depth, so nothing calls itself.
void VLayouts::Explore(NODX201::VReferencable& container) {
    std::vector<NODX201::VReferencable*> open{&container};
    std::unordered_set<NODX201::VReferencable*> entered;
    while (!open.empty()) {
        NODX201::VReferencable& current = *open.back();
        if (entered.insert(&current).second) {
            for (NODX201::VBasicStructure* const inner : UnknownIn(current)) {
                if (entered.count(inner) == 0) {
                    open.push_back(inner);
                }
            }
            continue;
        }
        open.pop_back();
        if (&current != &container && m_sizes.count(&current) == 0) {
            VLayout const layout = Place(current);
            m_sizes[&current] = {layout.bytes, layout.needsNames};
        }
    }
}

VLayout VLayouts::LayoutOf(NODX201::VReferencable& container) {
    Explore(container);
    return Place(container);
}

} // namespace NCheck
