// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/DiffViews.h>

#include <cwchar>
#include <map>
#include <string_view>
#include <utility>

#include <diagkit/memory/Layers.h>
#include <diagkit/tools/Inheritance.h>
#include <diagkit/tools/ProtocolView.h>

namespace NQuery {
namespace {

template <class Element>
std::vector<VDiffEntry> EntriesOf(std::vector<Element*> const& elements) {
    std::vector<VDiffEntry> entries;
    entries.reserve(elements.size());
    for (Element* const element : elements) {
        entries.push_back({element, element->GetShortName()});
    }
    return entries;
}

std::vector<VDiffEntry> ProtocolsIn(NODX201::VDiagLayer& layer) {
    auto* const baseVariant = dynamic_cast<NODX201::VBaseVariant*>(&layer);
    if (baseVariant == nullptr) {
        return {};
    }
    NDIAGKIT::VProtocolView view(*baseVariant);
    std::vector<VDiffEntry> entries;
    for (NODX201::VProtocol& protocol : view) {
        entries.push_back({&protocol, protocol.GetShortName()});
    }
    return entries;
}

VDiffEntry EntryOf(NMemory::VMemComparamRef& reference) {
    VDiffEntry entry{&reference, L""};
    if (reference.HasComparam()) {
        entry.shortName = reference.GetComparam().GetShortName();
    } else if (auto const* const link = dynamic_cast<NODX201::VOdxLink const*>(&reference.GetLink()); link != nullptr) {
        entry.shortName = link->GetIdRef(); // all that is known of it
    }
    if (reference.HasProtocolSnref()) {
        auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&reference.GetProtocolSnref().GetLink());
        entry.protocol = snref != nullptr ? snref->GetShortName() : L"";
    }
    return entry;
}

template <class Layer>
bool AddOwnComparams(NODX201::VDiagLayer& layer, std::vector<VDiffEntry>& entries) {
    auto* const known = dynamic_cast<Layer*>(&layer);
    if (known == nullptr) {
        return false;
    }
    for (NODX201::VComparamRef& reference : known->ComparamRefCollection()) {
        entries.push_back(EntryOf(static_cast<NMemory::VMemComparamRef&>(reference)));
    }
    return true;
}

std::vector<VDiffEntry> OwnComparams(NODX201::VDiagLayer& layer) {
    std::vector<VDiffEntry> entries;
    static_cast<void>(AddOwnComparams<NMemory::VMemEcuVariant>(layer, entries) ||
                      AddOwnComparams<NMemory::VMemBaseVariant>(layer, entries) ||
                      AddOwnComparams<NMemory::VMemFunctionalGroup>(layer, entries) ||
                      AddOwnComparams<NMemory::VMemProtocol>(layer, entries) ||
                      AddOwnComparams<NMemory::VMemEcuSharedData>(layer, entries));
    return entries;
}

/// Keeps the first of a COMPARAM and PROTOCOL-SNREF.
class VFirsts {
public:
    void Add(std::vector<VDiffEntry> const& entries) {
        for (VDiffEntry const& entry : entries) {
            if (m_known.emplace(std::pair(std::wstring_view(entry.shortName), std::wstring_view(entry.protocol)), true)
                    .second) {
                firsts.push_back(entry);
            }
        }
    }

    std::vector<VDiffEntry> firsts;

private:
    std::map<std::pair<std::wstring_view, std::wstring_view>, bool> m_known;
};

} // namespace

bool VDiffEntry::IsNamedAs(VDiffEntry const& other) const {
    return std::wcscmp(shortName, other.shortName) == 0 && std::wcscmp(protocol, other.protocol) == 0;
}

VLayerViews VDiffViewMaker::ViewsOf(NODX201::VDiagLayer& layer) {
    VLayerViews made;
    made.dops = m_views.dops.EntriesOf(layer);
    made.views = {EntriesOf(m_views.diagComms.EntriesOf(layer)),
                  EntriesOf(m_views.diagVariables.EntriesOf(layer)),
                  EntriesOf(m_views.globalNegResponses.EntriesOf(layer)),
                  EntriesOf(made.dops),
                  ProtocolsIn(layer),
                  ComparamsIn(layer)};
    return made;
}

VDiffViewMaker::VComparams VDiffViewMaker::ComparamsIn(NODX201::VDiagLayer& layer) {
    VFirsts firsts;
    firsts.Add(OwnComparams(layer));
    for (auto const& pass : NDIAGKIT::VInheritedDiagComms::kRow.ParentsOf(layer)) {
        for (NDIAGKIT::VParent const& parent : pass) {
            firsts.Add(ComparamsOfParent(*parent.layer.layer));
        }
    }
    return std::move(firsts.firsts);
}

// Each kind of layer inherits only from other kinds, so this goes no deeper than the number of kinds.
VDiffViewMaker::VComparams const& VDiffViewMaker::ComparamsOfParent(NODX201::VDiagLayer& layer) {
    if (auto const known = m_comparams.find(&layer); known != m_comparams.end()) {
        return known->second;
    }
    VComparams made = ComparamsIn(layer);
    return m_comparams.emplace(&layer, std::move(made)).first->second;
}

} // namespace NQuery
