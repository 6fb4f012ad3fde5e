// SPDX-License-Identifier: Apache-2.0
#include "support/VerifyModel.h"

#include <map>
#include <set>

#include <gtest/gtest.h>

#include <diagkit/memory/DiagComms.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/ParentRefs.h>

namespace NTest {
namespace {

using NODX201::VOdxTagEnum;

class VVerifier {
public:
    explicit VVerifier(NMemory::VDatabase& database) : m_database(database) {}

    std::vector<std::wstring> Run() {
        CollectLayers();
        for (NODX201::VDiagLayer* const layer : m_layers) {
            VerifyLayer(*layer);
        }
        for (NMemory::VMemMultipleEcuJobSpec& spec : m_database.MultipleEcuJobSpecCollection()) {
            if (spec.HasDiagDataDictionarySpec()) {
                VerifyDictionary(spec.GetDiagDataDictionarySpec(), spec);
            }
        }
        VerifyCounts();
        return std::move(m_faults);
    }

private:
    void Fault(std::wstring const& what, NODX201::VOdxElement const& where) {
        m_faults.push_back(what + L" at " + NODX201::OdxTagText(where.GetOdxTag()) + L" '" + where.GetShortName() +
                           L"'");
    }

    void Meet(NODX201::VOdxElement const& element, NODX201::VOdxObject const& owner) {
        ++m_met[element.GetOdxTag()];
        if (element.GetOwner() != &owner) {
            Fault(L"another owner than the element it stands in", element);
        }
    }

    template <class Collection>
    void VerifySize(Collection& collection, NODX201::VOdxElement const& owner) {
        std::size_t walked = 0;
        for (auto iter = collection.Begin(); iter != collection.End(); ++iter) {
            ++walked;
        }
        if (walked != collection.Count()) {
            Fault(L"a collection that counts otherwise than it iterates", owner);
        }
    }

    void CollectLayers() {
        NODX201::VOdx& odx = m_database.GetOdx();
        for (NODX201::VDiagLayerContainer& container : odx.DiagLayerContainerCollection()) {
            Meet(container, odx);
            NODX201::VDiagLayerCollection& layers = container.DiagLayerCollection();
            VerifySize(layers, container);
            if (layers.GetOwner() != &container) {
                Fault(L"a layer collection of another container", container);
            }
            for (NODX201::VDiagLayer& layer : layers) {
                Meet(layer, layers);
                m_layers.insert(&layer);
            }
        }
    }

    void VerifyLayer(NODX201::VDiagLayer& layer) {
        VerifySize(layer.DiagCommProxyCollection(), layer);
        if (!layer.HasDiagCommProxyCollection() && layer.DiagCommProxyCollection().Count() != 0) {
            Fault(L"entries in absent DIAG-COMMS", layer);
        }
        for (NODX201::IDiagCommProxy& proxy : layer.DiagCommProxyCollection()) {
            VerifyProxy(proxy, layer);
        }
        if (layer.HasDiagDataDictionarySpec()) {
            VerifyDictionary(layer.GetDiagDataDictionarySpec(), layer);
        }
        VerifyParentsOf<NODX201::VProtocol>(layer);
        VerifyParentsOf<NODX201::VFunctionalGroup>(layer);
        VerifyParentsOf<NODX201::VBaseVariant>(layer);
        VerifyParentsOf<NODX201::VEcuVariant>(layer);
    }

    void VerifyDictionary(NODX201::VDiagDataDictionarySpec& dictionary, NODX201::VOdxObject const& owner) {
        Meet(dictionary, owner);
        VerifySize(dictionary.DopBaseCollection(), dictionary);
        for (NODX201::VDopBase& dop : dictionary.DopBaseCollection()) {
            Meet(dop, dictionary);
        }
        VerifySize(dictionary.EnvDataProxyCollection(), dictionary);
        VerifySize(dictionary.TableCollection(), dictionary);
        for (NODX201::VTable& table : dictionary.TableCollection()) {
            Meet(table, dictionary);
        }
    }

    void VerifyProxy(NODX201::IDiagCommProxy& proxy, NODX201::VDiagLayer& layer) {
        Meet(dynamic_cast<NODX201::VOdxElement&>(proxy), layer);
        if (proxy.IsDiagService() + proxy.IsSingleEcuJob() + proxy.IsDiagCommLink() != 1) {
            Fault(L"an entry of DIAG-COMMS that is not exactly one thing", layer);
        }
        auto* const link = dynamic_cast<NODX201::VDiagCommLink*>(&proxy);
        if (link != nullptr && link->HasDiagComm(layer)) {
            NODX201::VDiagComm& target = link->GetDiagComm();
            VerifyTarget(*link, target);
            if (m_layers.count(dynamic_cast<NODX201::VDiagLayer*>(target.GetOwner())) == 0) {
                Fault(L"a DIAG-COMM-REF to an element outside the layers", layer);
            }
        }
    }

    void VerifyTarget(NODX201::VLink& link, NODX201::VReferencable const& target) {
        auto const* const byId = dynamic_cast<NODX201::VOdxLink const*>(&link.GetLink());
        if (byId != nullptr && std::wstring(byId->GetIdRef()) != target.GetId()) {
            Fault(L"a link whose target has another ID", link);
        }
    }

    template <class Kind>
    void VerifyParentsOf(NODX201::VDiagLayer& layer) {
        auto* const child = dynamic_cast<Kind*>(&layer);
        if (child == nullptr) {
            return;
        }
        VerifySize(child->ParentRefCollection(), layer);
        if (!child->HasParentRefCollection() && child->ParentRefCollection().Count() != 0) {
            Fault(L"entries in absent PARENT-REFS", layer);
        }
        for (NODX201::VParentRef& parentRef : child->ParentRefCollection()) {
            Meet(parentRef, layer);
            VerifyParentRef(parentRef);
        }
    }

    void VerifyParentRef(NODX201::VParentRef& parentRef) {
        if (auto* const ref = dynamic_cast<NODX201::VProtocolRef*>(&parentRef); ref && ref->HasProtocol()) {
            VerifyParent(parentRef, ref->GetProtocol());
        }
        if (auto* const ref = dynamic_cast<NODX201::VFunctionalGroupRef*>(&parentRef);
            ref && ref->HasFunctionalGroup()) {
            VerifyParent(parentRef, ref->GetFunctionalGroup());
        }
        if (auto* const ref = dynamic_cast<NODX201::VBaseVariantRef*>(&parentRef); ref && ref->HasBaseVariant()) {
            VerifyParent(parentRef, ref->GetBaseVariant());
        }
        if (auto* const ref = dynamic_cast<NODX201::VEcuSharedDataRef*>(&parentRef); ref && ref->HasEcuSharedData()) {
            VerifyParent(parentRef, ref->GetEcuSharedData());
        }
        VerifySize(parentRef.NotInheritedDiagCommCollection(), parentRef);
        for (NODX201::VNotInheritedDiagComm& excluded : parentRef.NotInheritedDiagCommCollection()) {
            Meet(excluded, parentRef);
            Meet(excluded.GetDiagCommSnref(), excluded);
        }
    }

    void VerifyParent(NODX201::VParentRef& parentRef, NODX201::VDiagLayer& target) {
        VerifyTarget(parentRef, target);
        if (m_layers.count(&target) == 0) {
            Fault(L"a parent that is in no container", parentRef);
        }
    }

    void VerifyCounts() {
        static constexpr VOdxTagEnum kCounted[] = {
            VOdxTagEnum::DiagLayerContainer,
            VOdxTagEnum::EcuSharedData,
            VOdxTagEnum::Protocol,
            VOdxTagEnum::FunctionalGroup,
            VOdxTagEnum::BaseVariant,
            VOdxTagEnum::EcuVariant,
            VOdxTagEnum::DiagService,
            VOdxTagEnum::SingleEcuJob,
            VOdxTagEnum::ParentRef,
            VOdxTagEnum::ProtocolRef,
            VOdxTagEnum::FunctionalGroupRef,
            VOdxTagEnum::BaseVariantRef,
            VOdxTagEnum::EcuSharedDataRef,
            VOdxTagEnum::NotInheritedDiagComm,
            VOdxTagEnum::Structure,
            VOdxTagEnum::StaticField,
            VOdxTagEnum::DynamicLengthField,
            VOdxTagEnum::DynamicEndmarkerField,
            VOdxTagEnum::EndOfPduField,
            VOdxTagEnum::Mux,
            VOdxTagEnum::EnvDataDesc,
            VOdxTagEnum::DtcDop,
            VOdxTagEnum::Table,
        };
        for (VOdxTagEnum const tag : kCounted) {
            if (m_database.Count(tag) != m_met[tag]) {
                m_faults.push_back(std::wstring(L"the database counts ") + std::to_wstring(m_database.Count(tag)) +
                                   L" " + NODX201::OdxTagText(tag) + L" and holds " + std::to_wstring(m_met[tag]));
            }
        }
    }

    NMemory::VDatabase& m_database;
    std::set<NODX201::VDiagLayer*> m_layers;
    std::map<VOdxTagEnum, std::size_t> m_met;
    std::vector<std::wstring> m_faults;
};

} // namespace

std::vector<std::wstring> FaultsOf(NMemory::VDatabase& database) { return VVerifier(database).Run(); }

void VerifyModel(NMemory::VDatabase& database) {
    for (std::wstring const& fault : FaultsOf(database)) {
        ADD_FAILURE() << "unsound model: " << fault;
    }
}

} // namespace NTest
