// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Containment.h>

#include <diagkit/reader/LinkTargets.h>

namespace NReader {

using NDIAGKIT::VContained;

namespace {

/// Collects the ways out of one container. Its parameters are not steps of their own.
class VWaysOut : public NDIAGKIT::VContainment {
public:
    explicit VWaysOut(VFollow follow) : m_follow(follow) {}

    /// The references that lead out, and the elements inside.
    std::vector<VContained> Of(NODX201::VReferencable& container) {
        if (auto* const params = ParamsOf(container)) {
            for (NODX201::VParam& param : *params) {
                param.Accept(*this);
            }
        } else if (auto* const dop = dynamic_cast<NODX201::VDopBase*>(&container)) {
            dop->Accept(*this);
        } else if (auto* const table = dynamic_cast<NODX201::VTable*>(&container)) {
            VisitTable(*table);
        } else if (auto* const row = dynamic_cast<NODX201::VTableRow*>(&container)) {
            VisitTableRow(*row);
        }
        m_ways.insert(m_ways.end(), m_tableWays.begin(), m_tableWays.end());
        return std::move(m_ways);
    }

protected:
    void Take(VContained const& part) override {
        if (part.GetKind() != VContained::VKind::Param) {
            m_ways.push_back(part);
        } else if (auto* const key = part.Target(m_none)) { // what a TABLE-STRUCT refers to
            VisitTableKey(static_cast<NODX201::VTableKey&>(*key));
        }
    }

    void VisitTableStruct(NODX201::VTableStruct& param) override {
        if (m_follow == VFollow::Tables) {
            VContainment::VisitTableStruct(param);
        }
    }
    void VisitTableKey(NODX201::VTableKey& param) override {
        TakeTableWays([&] { VContainment::VisitTableKey(param); });
    }
    void VisitTableEntry(NODX201::VTableEntry& param) override {
        TakeTableWays([&] { VContainment::VisitTableEntry(param); });
    }

private:
    template <class Visit>
    void TakeTableWays(Visit visit) {
        if (m_follow != VFollow::Tables) {
            return;
        }
        std::size_t const before = m_ways.size();
        visit();
        if (m_ways.size() == before) {
            return;
        }
        // A TABLE-STRUCT and its TABLE-KEY have the same target.
        if (m_seen.insert(m_ways.back().GetReference()).second) {
            m_tableWays.push_back(m_ways.back());
        }
        m_ways.pop_back();
    }

    VFollow m_follow;
    VDopsById m_none; // ways to parameters need none
    std::vector<VContained> m_ways;
    std::vector<VContained> m_tableWays;
    VLinks m_seen;
};

bool IsContainer(NODX201::VDopBase const& dop) {
    return dop.GetOdxTag() != NODX201::VOdxTagEnum::DataObjectProp && dop.GetOdxTag() != NODX201::VOdxTagEnum::DtcDop;
}

/// Whether what the way leads to can contain anything.
bool MayContain(VContained const& way, NODX201::VOdxElement const& target) {
    return way.GetKind() != VContained::VKind::Dop || IsContainer(static_cast<NODX201::VDopBase const&>(target));
}

} // namespace

NODX201::VDopBase* VDopsById::Find(NODX201::VDopBaseLink& link) {
    auto& self = dynamic_cast<NMemory::VMemDopBaseLink&>(link);
    return self.ResolvesById() ? &self.GetDopBase() : nullptr;
}

std::wstring_view ShortNameIn(NODX201::VLink& reference) {
    auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&reference.GetLink());
    return snref != nullptr ? snref->GetShortName() : std::wstring_view();
}

NODX201::VParamCollection* ParamsOf(NODX201::VReferencable& container) {
    if (auto* const structure = dynamic_cast<NODX201::VBasicStructure*>(&container)) {
        return &structure->ParamCollection();
    }
    if (auto* const request = dynamic_cast<NODX201::VRequest*>(&container)) {
        return &request->ParamCollection();
    }
    auto* const response = dynamic_cast<NODX201::VResponse*>(&container);
    return response != nullptr ? &response->ParamCollection() : nullptr;
}

VEdges EdgesOf(NODX201::VReferencable& container, VFollow follow, NDIAGKIT::IDopFinder& dops) {
    VEdges edges;
    for (VContained const& way : VWaysOut(follow).Of(container)) {
        if (auto* const target = way.Target(dops)) {
            NODX201::VLink* const reference = way.GetReference();
            bool const isByShortName = way.MayBeByShortName() && !ShortNameIn(*reference).empty();
            edges.push_back({static_cast<NODX201::VReferencable*>(target), reference, isByShortName});
        }
    }
    return edges;
}

VMayLead MayLeadFrom(NODX201::VReferencable& container, VFollow follow, VLinks const& leftOut) {
    VMayLead mayLead;
    VDopsById dops;
    for (VContained const& way : VWaysOut(follow).Of(container)) {
        if (leftOut.count(way.GetReference()) != 0) {
            continue;
        }
        std::wstring_view const shortName =
            way.MayBeByShortName() ? ShortNameIn(*way.GetReference()) : std::wstring_view();
        if (!shortName.empty()) {
            mayLead.shortNames.push_back(shortName);
            continue;
        }
        auto* const target = way.Target(dops);
        if (target != nullptr && MayContain(way, *target)) {
            mayLead.elements.push_back(static_cast<NODX201::VReferencable*>(target));
        }
    }
    return mayLead;
}

VReferencables TargetsById(NODX201::VReferencable& container) {
    VReferencables targets;
    VDopsById none;
    for (VContained const& way : VWaysOut(VFollow::Tables).Of(container)) {
        auto* const target = way.IsReference() ? TargetById(*way.GetReference()) : way.Target(none);
        if (target != nullptr && MayContain(way, *target)) {
            targets.push_back(static_cast<NODX201::VReferencable*>(target));
        }
    }
    return targets;
}

VReferencables ContainersOf(NMemory::VDatabase& database) {
    VReferencables containers;
    ForEachDictionary(database, [&containers](NODX201::VDiagDataDictionarySpec& dictionary) {
        for (NODX201::VDopBase& dop : dictionary.DopBaseCollection()) {
            if (IsContainer(dop)) {
                containers.push_back(&dop);
            }
        }
        for (NODX201::IEnvDataProxy& proxy : dictionary.EnvDataProxyCollection()) {
            if (auto* const envData = dynamic_cast<NODX201::VEnvData*>(&proxy)) {
                containers.push_back(envData);
            }
        }
    });
    return containers;
}

std::vector<NODX201::VDiagLayer*> LayersOf(NMemory::VDatabase& database) {
    std::vector<NODX201::VDiagLayer*> layers;
    ForEachLayer(database, [&layers](NODX201::VDiagLayer& layer) { layers.push_back(&layer); });
    return layers;
}

} // namespace NReader
