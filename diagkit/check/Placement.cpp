// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include <diagkit/check/CodedTypes.h>
#include <diagkit/check/Layouts.h>
#include <diagkit/check/Messages.h>
#include <diagkit/check/Numbers.h>
#include <diagkit/check/ReadingPlaces.h>
#include <diagkit/check/Topics.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Params.h>

namespace NCheck {
namespace {

/// Bits of a message that one parameter takes without a break: bit 0 of a byte is the least significant one.
struct VBits {
    std::uint64_t first;
    std::uint64_t end;
    VPlacedParam const* param;
};

/// Where the most significant byte comes first, the bits that are left over are the upper ones of the first byte, and
/// those that BIT-POSITION leaves out are the lower ones of the last.
void AddBits(VPlacedParam const& param, std::vector<VBits>& all) {
    if (!param.End().has_value() || param.isMasked || *param.bits == 0) {
        return;
    }
    std::uint64_t const begin = *param.byte * 8;
    std::uint64_t const end = param.bit + *param.bits;
    std::uint64_t const last = (end - 1) / 8;
    if (!param.isHighLow || last == 0) {
        all.push_back({begin + param.bit, begin + end, &param});
        return;
    }
    all.push_back({begin, begin + end - last * 8, &param});
    if (last > 1) {
        all.push_back({begin + 8, begin + last * 8, &param});
    }
    all.push_back({begin + last * 8 + param.bit, begin + last * 8 + 8, &param});
}

NODX201::VOdxElement* CodedTypeElementOf(NODX201::VDopBase* dop) {
    auto* const simple = dynamic_cast<NODX201::VDataObjectProp*>(dop);
    return simple != nullptr && simple->HasDiagCodedType() ? &simple->GetDiagCodedType() : nullptr;
}

/// Whether nothing can follow a value: it takes all that is left of the message.
bool TakesTheRest(NODX201::VDopBase* dop) {
    if (dynamic_cast<NODX201::VEndOfPduField*>(dop) != nullptr) {
        auto* const field = dynamic_cast<NMemory::VMemEndOfPduField*>(dop);
        return field != nullptr && *field->GetMaxNumberOfItems() == L'\0';
    }
    auto* const type = dynamic_cast<NMemory::VMemMinMaxLengthType*>(CodedTypeElementOf(dop));
    return type != nullptr && std::wstring_view(type->GetTermination()) == L"END-OF-PDU" &&
           *type->GetMaxLength() == L'\0';
}

/// Messages and STRUCTUREs, and the services that send them. Each finding is told once, in however many layers it is
/// one.
class VPlacement {
public:
    explicit VPlacement(VFindings& findings) : m_findings(findings) {}

    /// A request, a response or a basic structure. Whether short names decide on its lengths.
    bool Judge(NODX201::VReferencable& container, VLayouts& layouts) {
        VLayout const layout = layouts.LayoutOf(container);
        NoteOverlaps(layout);
        CheckByteSize(container, layout);
        CheckLengthKeys(container, layout);
        CheckBehindRest(layout);
        return layout.needsNames;
    }

    void JudgeField(NMemory::VMemStaticField& field, VLayouts& layouts) {
        if (!field.HasBasicStructureEnvDataDescChoice()) {
            return;
        }
        auto& choice = field.GetBasicStructureEnvDataDescChoice();
        auto* const link = dynamic_cast<NODX201::VBasicStructureLink*>(&choice);
        auto const size = LengthIn(field.GetItemByteSize());
        if (link == nullptr || !link->HasBasicStructure() || !size.has_value()) {
            return;
        }
        VSize const held = BytesOf(link->GetBasicStructure(), layouts);
        if (held.bytes.has_value() && *held.bytes > *size) {
            Tell(field, NCode::ByteSize,
                 Titled(field) + " has the ITEM-BYTE-SIZE " + std::to_string(*size) + ", but " +
                     Titled(link->GetBasicStructure()) + " takes " + std::to_string(*held.bytes) + " bytes");
        }
    }

    /// Whether short names decide on what it says.
    bool JudgeService(NODX201::VDiagService& service, VLayouts& layouts) {
        if (!service.HasRequestRef() || !service.GetRequestRef().HasRequest()) {
            return false;
        }
        NODX201::VRequest& request = service.GetRequestRef().GetRequest();
        VSize const size = BytesOf(request, layouts);
        if (size.bytes.has_value()) {
            ForEachResponse(service, [&](NODX201::VResponse& response) {
                CheckReach(ReachOf(response), request, *size.bytes, service);
            });
        }
        return size.needsNames;
    }

    /// What was measured holds in one layer alone.
    void ForgetSizes() { m_sizes.clear(); }

private:
    struct VSize {
        VLength bytes;
        bool needsNames = false;
    };

    /// How far the MATCHING-REQUEST-PARAMs of a response reach: the one that ends last, counted from the start of the
    /// request, and the one that begins first, counted back from its end.
    struct VReach {
        std::uint64_t end = 0;
        NODX201::VOdxElement* last = nullptr;
        std::uint64_t back = 0;
        NODX201::VOdxElement* first = nullptr;
    };

    VSize BytesOf(NODX201::VReferencable& container, VLayouts& layouts) {
        auto const [known, isNew] = m_sizes.try_emplace(&container);
        if (isNew) {
            VLayout const layout = layouts.LayoutOf(container);
            known->second = {layout.bytes, layout.needsNames};
        }
        return known->second;
    }

    VReach const& ReachOf(NODX201::VResponse& response) {
        auto const [known, isNew] = m_reaches.try_emplace(&response);
        VReach& reach = known->second;
        if (!isNew) {
            return reach;
        }
        for (NODX201::VParam& param : response.ParamCollection()) {
            auto* const matching = dynamic_cast<NMemory::VMemMatchingRequestParam*>(&param);
            auto const position = matching != nullptr ? WholeIn(matching->GetRequestBytePos()) : std::nullopt;
            auto const length = matching != nullptr ? LengthIn(matching->GetByteLength()) : std::nullopt;
            if (!position.has_value() || !length.has_value()) {
                continue;
            }
            std::uint64_t const amount = std::min(position->amount, std::uint64_t{1} << 40);
            if (position->isNegative && amount > reach.back) {
                reach.back = amount;
                reach.first = matching;
            } else if (!position->isNegative && amount + *length > reach.end) {
                reach.end = amount + *length;
                reach.last = matching;
            }
        }
        return reach;
    }

    void CheckReach(VReach const& reach, NODX201::VRequest& request, std::uint64_t bytes,
                    NODX201::VDiagService& service) {
        std::string const length = ", but the " + Titled(request) + " of the " + Titled(service) + " has " +
                                   std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes");
        if (reach.last != nullptr && reach.end > bytes) {
            Tell(*reach.last, NCode::RequestBytesOutside,
                 Titled(*reach.last) + " repeats bytes of the request up to the one at position " +
                     std::to_string(reach.end - 1) + length);
        }
        if (reach.first != nullptr && reach.back > bytes) {
            Tell(*reach.first, NCode::RequestBytesOutside,
                 Titled(*reach.first) + " repeats bytes of the request from " + std::to_string(reach.back) +
                     " before its end" + length);
        }
    }

    void NoteOverlaps(VLayout const& layout) {
        std::vector<VBits> all;
        for (VPlacedParam const& param : layout.params) {
            AddBits(param, all);
        }
        std::stable_sort(all.begin(), all.end(), [](VBits const& a, VBits const& b) { return a.first < b.first; });
        VBits const* furthest = nullptr;
        for (VBits const& bits : all) {
            if (furthest != nullptr && bits.first < furthest->end && bits.param != furthest->param) {
                bool const isLater = bits.param > furthest->param; // both stand in one list
                VPlacedParam const& later = isLater ? *bits.param : *furthest->param;
                VPlacedParam const& earlier = isLater ? *furthest->param : *bits.param;
                Tell(*later.param, NCode::OverlappingParams,
                     Titled(*later.param) + " shares bits of the byte at position " + std::to_string(bits.first / 8) +
                         " with " + Quoted(*earlier.param));
            }
            furthest = furthest == nullptr || bits.end > furthest->end ? &bits : furthest;
        }
    }

    void CheckByteSize(NODX201::VReferencable& container, VLayout const& layout) {
        auto* const structure = dynamic_cast<NMemory::VMemStructure*>(&container);
        auto* const envData = dynamic_cast<NMemory::VMemEnvData*>(&container);
        auto const size = structure != nullptr ? LengthIn(structure->GetByteSize())
                          : envData != nullptr ? LengthIn(envData->GetByteSize())
                                               : std::nullopt;
        if (!size.has_value()) {
            return;
        }
        for (VPlacedParam const& param : layout.params) {
            if (param.End().has_value() && *param.End() > *size) {
                Tell(container, NCode::ByteSize,
                     Titled(container) + " has the BYTE-SIZE " + std::to_string(*size) + ", but " +
                         Quoted(*param.param) + " in it takes the byte at position " +
                         std::to_string(*param.End() - 1));
                return;
            }
        }
    }

    void CheckLengthKeys(NODX201::VReferencable& container, VLayout const& layout) {
        std::unordered_map<NODX201::VOdxElement const*, VPlacedParam const*> placed; // filled for the first one
        for (VPlacedParam const& param : layout.params) {
            auto* const type = dynamic_cast<NMemory::VMemParamLengthInfoType*>(CodedTypeElementOf(param.dop));
            if (type == nullptr || !type->HasLengthKeyRef() || !type->GetLengthKeyRef().HasLengthKey()) {
                continue;
            }
            for (std::size_t index = placed.size(); index < layout.params.size(); ++index) {
                placed.emplace(layout.params[index].param, &layout.params[index]);
            }
            NODX201::VLengthKey& key = type->GetLengthKeyRef().GetLengthKey();
            auto const here = placed.find(&key);
            if (here != placed.end()) {
                CheckOrder(*here->second, param);
            } else {
                CheckMessage(container, param, key);
            }
        }
    }

    /// Both are of one layout. What is listed later may still stand before.
    void CheckOrder(VPlacedParam const& key, VPlacedParam const& param) {
        bool const standsBefore = key.byte.has_value() && param.byte.has_value() && *key.byte < *param.byte;
        if (&key > &param && !standsBefore) {
            Tell(*param.param, NCode::LengthKeyAfterUse,
                 Titled(*param.param) + " has the length that " + Titled(*key.param) +
                     " says, which comes after it; a length must be known before the value is read");
        }
    }

    /// A response may have the length that its request asked for.
    void CheckMessage(NODX201::VReferencable& container, VPlacedParam const& param, NODX201::VLengthKey& key) {
        auto* const owner = dynamic_cast<NODX201::VOdxElement*>(key.GetOwner());
        bool const isOfRequest = dynamic_cast<NODX201::VRequest*>(owner) != nullptr;
        bool const isInResponse = dynamic_cast<NODX201::VResponse*>(&container) != nullptr;
        if (owner != nullptr && IsMessage(container) && IsMessage(*owner) && !(isOfRequest && isInResponse)) {
            Tell(*param.param, NCode::LengthKeyAfterUse,
                 Titled(*param.param) + " has the length that " + Titled(key) +
                     " says, which stands in another message, the " + Titled(*owner));
        }
    }

    static bool IsMessage(NODX201::VOdxElement& element) {
        return dynamic_cast<NODX201::VRequest*>(&element) != nullptr ||
               dynamic_cast<NODX201::VResponse*>(&element) != nullptr;
    }

    void CheckBehindRest(VLayout const& layout) {
        for (std::size_t index = 1; index < layout.params.size(); ++index) {
            VPlacedParam const& before = layout.params[index - 1];
            VPlacedParam const& param = layout.params[index];
            bool const isEntry = dynamic_cast<NODX201::VTableEntry*>(param.param) != nullptr;
            if (!param.isPlaced && !isEntry && TakesTheRest(before.dop)) {
                Tell(*param.param, NCode::AfterEndOfPdu,
                     Titled(*param.param) + " comes after " + Quoted(*before.param) +
                         ", which takes all that is left of the message");
            }
        }
    }

    void Tell(NODX201::VOdxElement& element, VCode const& code, std::string message) {
        if (m_told.insert({&element, code.code}).second) {
            m_findings.Add(PositionOf(element), code, std::move(message));
        }
    }

    VFindings& m_findings;
    std::set<std::pair<NODX201::VOdxElement const*, char const*>> m_told;
    std::unordered_map<NODX201::VReferencable*, VSize> m_sizes;
    std::unordered_map<NODX201::VResponse*, VReach> m_reaches;
};

/// The elements whose positions or lengths depend on short names.
using VDependents = std::unordered_map<NODX201::VOdxElement const*, NODX201::VOdxElement*>;

/// Checks what depends on short names in every layer that resolves it.
void CheckByNames(VChecked const& checked, VPlacement& placement, VDependents const& dependents) {
    VPlacesById const byId(checked.elements, DopsAmong(dependents));
    for (NODX201::VDiagLayer* const layer : LayersOf(checked.database)) {
        VVisibleNames names(*layer, checked.views);
        VLayouts layouts(&names);
        placement.ForgetSizes();
        std::unordered_set<NODX201::VOdxElement const*> seen;
        ForEachPlaceIn(*layer, names, checked.views, byId, [&](NODX201::VOdxElement const& place) {
            auto const dependent = dependents.find(&place);
            if (dependent == dependents.end() || !seen.insert(&place).second) {
                return;
            }
            if (auto* const service = dynamic_cast<NODX201::VDiagService*>(dependent->second)) {
                placement.JudgeService(*service, layouts);
            } else {
                placement.Judge(dynamic_cast<NODX201::VReferencable&>(*dependent->second), layouts);
            }
        });
        checked.layerDone();
    }
}

} // namespace

void CheckPlacement(VChecked const& checked, VFindings& findings) {
    VPlacement placement(findings);
    VLayouts layouts;
    VDependents dependents;
    for (NODX201::VOdxElement* const element : checked.elements) {
        bool needsNames = false;
        if (auto* const service = dynamic_cast<NODX201::VDiagService*>(element)) {
            needsNames = placement.JudgeService(*service, layouts);
        } else if (auto* const field = dynamic_cast<NMemory::VMemStaticField*>(element)) {
            placement.JudgeField(*field, layouts);
        } else if (auto* const container = dynamic_cast<NODX201::VReferencable*>(element);
                   container != nullptr && NReader::ParamsOf(*container) != nullptr) {
            needsNames = placement.Judge(*container, layouts);
        }
        if (needsNames) {
            dependents.emplace(element, element);
        }
    }
    if (!dependents.empty()) {
        CheckByNames(checked, placement, dependents);
    }
}

} // namespace NCheck
