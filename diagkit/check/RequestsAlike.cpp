// SPDX-License-Identifier: Apache-2.0
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <diagkit/check/CodedTypes.h>
#include <diagkit/check/Layouts.h>
#include <diagkit/check/Numbers.h>
#include <diagkit/check/Topics.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Params.h>
#include <diagkit/tools/Inheritance.h>

namespace NCheck {
namespace {

/// All that tells a request from others on the wire, as a text. Two requests of one text may still differ in what a
/// tester writes into them, but a program that sees the bytes cannot say which of them was meant.
class VFingerprint {
public:
    /// Nothing for a request without a constant.
    static std::optional<std::wstring> Of(NODX201::VRequest& request, VLayouts& layouts) {
        VLayout const layout = layouts.LayoutOf(request);
        VFingerprint fingerprint;
        for (VPlacedParam const& param : layout.params) {
            fingerprint.Take(param);
        }
        return fingerprint.m_constants.empty() ? std::nullopt : std::optional(fingerprint.Text(layout.bytes));
    }

private:
    struct VByte {
        unsigned mask = 0;
        unsigned value = 0;
    };

    void Take(VPlacedParam const& param) {
        auto* const constant = dynamic_cast<NMemory::VMemCodedConst*>(param.param);
        if (constant != nullptr && constant->HasDiagCodedType() && TakeBits(param, *constant)) {
            return;
        }
        bool const isReserved = dynamic_cast<NODX201::VReserved*>(param.param) != nullptr;
        if (!(isReserved && param.bits.has_value()) && !IsFree(param)) {
            AddOther(param);
        }
    }

    /// Whether the constant is a number at a known place: then its bits count, however it is cut into parameters.
    bool TakeBits(VPlacedParam const& param, NMemory::VMemCodedConst& constant) {
        auto const number = WholeIn(constant.GetCodedValue());
        VCodedType const type = CodedTypeOf(constant.GetDiagCodedType());
        bool const isPlain =
            type.IsWhole() && (type.encoding.empty() || type.encoding == L"NONE" || type.encoding == L"2C");
        if (!number.has_value() || !isPlain || !param.End().has_value() || param.isMasked || *param.bits > 64 ||
            param.bit > 7) {
            return false;
        }
        std::uint64_t const value = number->isNegative ? ~number->amount + 1 : number->amount;
        std::uint64_t const bytes = *param.End() - *param.byte;
        for (std::uint64_t index = 0; index < *param.bits; ++index) {
            std::uint64_t const bit = param.bit + index;
            std::uint64_t const byte = param.isHighLow ? bytes - 1 - bit / 8 : bit / 8;
            VByte& taken = m_constants[*param.byte + byte];
            taken.mask |= 1U << (bit % 8);
            taken.value |= static_cast<unsigned>(value >> index & 1) << (bit % 8);
        }
        return true;
    }

    /// Whether any bits of the length may stand there, so that they tell nothing apart.
    static bool IsFree(VPlacedParam const& param) {
        auto* const dop = dynamic_cast<NODX201::VDataObjectProp*>(param.dop);
        bool const isConstant = dynamic_cast<NODX201::VPhysConst*>(param.param) != nullptr ||
                                dynamic_cast<NODX201::VCodedConst*>(param.param) != nullptr;
        if (dop == nullptr || isConstant || !param.bits.has_value() || !param.byte.has_value() ||
            dop->HasInternalConstr() || !dop->HasCompuMethod()) {
            return false;
        }
        auto* const method = dynamic_cast<NMemory::VMemCompuMethod*>(&dop->GetCompuMethod());
        return method != nullptr && std::wstring_view(method->GetCategory()) == L"IDENTICAL";
    }

    /// What may allow certain bytes only: the parameter with its DOP tells, or by itself.
    void AddOther(VPlacedParam const& param) {
        void const* what = param.param;
        m_others += L'|' + (param.byte.has_value() ? std::to_wstring(*param.byte) : L"?") + L':' +
                    std::to_wstring(param.bit) + L'=';
        if (auto* const constant = dynamic_cast<NMemory::VMemPhysConst*>(param.param);
            constant != nullptr && param.dop != nullptr) {
            m_others += constant->GetPhysConstantValue();
            what = param.dop;
        } else if (dynamic_cast<NODX201::VValue*>(param.param) != nullptr && param.dop != nullptr) {
            what = param.dop;
        }
        m_others += L'@' + std::to_wstring(reinterpret_cast<std::uintptr_t>(what));
    }

    std::wstring Text(VLength bytes) const {
        std::wstring text = bytes.has_value() ? std::to_wstring(*bytes) : L"?";
        for (auto const& [position, byte] : m_constants) {
            text += L',' + std::to_wstring(position) + L':' + std::to_wstring(byte.mask) + L'=' +
                    std::to_wstring(byte.value);
        }
        return text + m_others;
    }

    std::map<std::uint64_t, VByte> m_constants; // by position
    std::wstring m_others;
};

/// A number for all that tells a service apart: its request, how it is addressed, and the PROTOCOLs that it is for.
using VKind = std::size_t;

class VRequestsAlike {
public:
    explicit VRequestsAlike(VFindings& findings) : m_findings(findings) {}

    void LookInto(NODX201::VDiagLayer& layer, VViews& views) {
        std::vector<VKind> kinds; // with several services, in the order of the second
        std::unordered_map<VKind, std::vector<NODX201::VDiagService*>> services;
        for (NODX201::VDiagComm* const diagComm : views.diagComms.EntriesOf(layer)) {
            auto* const service = dynamic_cast<NODX201::VDiagService*>(diagComm);
            auto const kind = service != nullptr ? KindOf(*service) : std::nullopt;
            if (kind.has_value()) {
                auto& alike = services[*kind];
                alike.push_back(service);
                if (alike.size() == 2) {
                    kinds.push_back(*kind);
                }
            }
        }
        for (VKind const kind : kinds) {
            Report(services[kind], layer);
        }
    }

private:
    static NODX201::VRequest& RequestOf(NODX201::VDiagService& service) { return service.GetRequestRef().GetRequest(); }

    std::optional<VKind> KindOf(NODX201::VDiagService& service) {
        auto const [known, isNew] = m_kinds.try_emplace(&service);
        if (!isNew || !service.HasRequestRef() || !service.GetRequestRef().HasRequest()) {
            return known->second;
        }
        auto const [request, isNewRequest] = m_requests.try_emplace(&RequestOf(service));
        if (isNewRequest) {
            auto const fingerprint = VFingerprint::Of(RequestOf(service), m_layouts);
            request->second = fingerprint.has_value() ? std::optional(NumberOf(*fingerprint)) : std::nullopt;
        }
        if (request->second.has_value()) {
            known->second = NumberOf(std::to_wstring(*request->second) + CircumstancesOf(service));
        }
        return known->second;
    }

    static std::wstring CircumstancesOf(NODX201::VDiagService& service) {
        auto* const own = dynamic_cast<NMemory::VMemDiagService*>(&service);
        std::wstring text = L" ";
        if (own != nullptr) {
            text += own->GetAddressing();
            for (auto& protocol : own->ProtocolSnrefCollection()) {
                auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&protocol.GetLink());
                text += L' ';
                text += snref != nullptr ? snref->GetShortName() : L"";
            }
        }
        return text;
    }

    VKind NumberOf(std::wstring const& text) { return m_numbers.try_emplace(text, m_numbers.size()).first->second; }

    /// Services that share a request are meant to. Requests that have been told stay untold in other layers.
    void Report(std::vector<NODX201::VDiagService*> const& alike, NODX201::VDiagLayer& layer) {
        std::unordered_set<NODX201::VRequest*> requests;
        std::vector<std::string> titles;
        NODX201::VRequest* latest = nullptr;
        NODX201::VRequest* const first = &RequestOf(*alike.front());
        bool isNew = false;
        for (NODX201::VDiagService* const service : alike) {
            NODX201::VRequest& request = RequestOf(*service);
            if (requests.insert(&request).second) {
                titles.push_back(Titled(request) + " of " + Titled(*service));
                bool const isNewHere = m_told.count(&request) == 0;
                latest = latest == nullptr || (isNewHere && &request != first) ? &request : latest;
                isNew = isNew || isNewHere;
            }
        }
        if (requests.size() < 2 || !isNew) {
            return;
        }
        m_told.insert(requests.begin(), requests.end());
        m_findings.Add(PositionOf(*latest), NCode::RequestsAlike,
                       "in the layer " + Quoted(layer) + " have the same constants and the same length: " +
                           Listed(titles) + "; what is sent does not tell which of them it is");
    }

    VFindings& m_findings;
    VLayouts m_layouts;
    std::unordered_map<NODX201::VDiagService*, std::optional<VKind>> m_kinds;
    std::unordered_map<NODX201::VRequest*, std::optional<VKind>> m_requests;
    std::map<std::wstring, std::size_t> m_numbers;
    std::unordered_set<NODX201::VRequest*> m_told;
};

/// Whether a layer can have services together that none of its parents has.
bool MixesServices(NODX201::VDiagLayer& layer) {
    return !OwnDiagComms(layer).empty() || NDIAGKIT::ParentsOf(layer).size() > 1;
}

} // namespace

void CheckRequestsAlike(VChecked const& checked, VFindings& findings) {
    VRequestsAlike alike(findings);
    for (NODX201::VDiagLayer* const layer : LayersOf(checked.database)) {
        if (MixesServices(*layer)) {
            alike.LookInto(*layer, checked.views);
        }
        checked.layerDone();
    }
}

} // namespace NCheck
