// SPDX-License-Identifier: Apache-2.0
#include <diagkit/cli/OutParamPath.h>

#include <unordered_set>

#include <diagkit/cli/Text.h>
#include <diagkit/cli/ViewText.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Tables.h>
#include <diagkit/tools/ResponseParams.h>

namespace NCli {
namespace {

constexpr std::size_t kMostSteps = 2000; // real data has some twenty

/// Walks what the search walks, in its order. Every operation tells whether the walk is over: the parameter is found,
/// or the way to it is endless.
class VWalk {
public:
    VWalk(VOutParamPath& path, std::wstring const& shortName, NODX201::VDiagLayer& layer)
        : m_path(path), m_shortName(shortName), m_layer(layer) {}

    bool Param(NODX201::VParam& param) {
        m_path.steps.push_back(&param);
        bool isOver = false;
        if (auto* const value = dynamic_cast<NODX201::VValue*>(&param)) {
            m_path.names.emplace_back(value->GetShortName());
            isOver = m_shortName == value->GetShortName() || DopOf(*value);
        } else if (auto* const tableStruct = dynamic_cast<NODX201::VTableStruct*>(&param)) {
            isOver = TableOf(*tableStruct);
        }
        if (!isOver) {
            m_path.steps.pop_back();
        }
        return isOver;
    }

private:
    /// One step of the way: walks on with `walkOn` unless the element has been left already, and in vain.
    template <class Element, class WalkOn>
    bool Step(Element& element, WalkOn walkOn) {
        if (m_done.count(&element) != 0) {
            return false;
        }
        if (!m_open.insert(&element).second || m_path.steps.size() >= kMostSteps) {
            m_path.endless = &element;
            return true;
        }
        m_path.steps.push_back(&element);
        if (walkOn(element)) {
            return true;
        }
        m_path.steps.pop_back();
        m_open.erase(&element);
        m_done.insert(&element);
        return false;
    }

    bool DopOf(NODX201::VValue& value) {
        return value.HasDopBaseLink() && value.GetDopBaseLink().HasDopBase(m_layer) &&
               Dop(value.GetDopBaseLink().GetDopBase());
    }

    bool Dop(NODX201::VDopBase& dop) {
        return Step(dop, [this](NODX201::VDopBase& self) {
            if (auto* const structure = dynamic_cast<NODX201::VBasicStructure*>(&self)) {
                return Params(*structure);
            }
            if (auto* const field = dynamic_cast<NODX201::VField*>(&self)) {
                return Field(*field);
            }
            if (auto* const desc = dynamic_cast<NODX201::VEnvDataDesc*>(&self)) {
                return EnvDatas(*desc);
            }
            auto* const mux = dynamic_cast<NODX201::VMux*>(&self);
            return mux != nullptr && Cases(*mux);
        });
    }

    bool Params(NODX201::VBasicStructure& structure) {
        for (NODX201::VParam& param : structure.ParamCollection()) {
            if (Param(param)) {
                return true;
            }
        }
        return false;
    }

    bool Field(NODX201::VField& field) {
        if (!field.HasBasicStructureEnvDataDescChoice()) {
            return false;
        }
        NODX201::IBasicStructureEnvDataDescChoice& choice = field.GetBasicStructureEnvDataDescChoice();
        if (auto* const structure = dynamic_cast<NODX201::VBasicStructureLink*>(&choice)) {
            return structure->HasBasicStructure() && Dop(structure->GetBasicStructure());
        }
        auto* const desc = dynamic_cast<NODX201::VEnvDataDescLink*>(&choice);
        return desc != nullptr && desc->HasEnvDataDesc() && Dop(desc->GetEnvDataDesc());
    }

    bool EnvDatas(NODX201::VEnvDataDesc& desc) {
        for (NODX201::IEnvDataProxy& proxy : desc.EnvDataProxyCollection()) {
            auto* envData = dynamic_cast<NODX201::VEnvData*>(&proxy);
            auto* const link = dynamic_cast<NODX201::VEnvDataLink*>(&proxy);
            if (link != nullptr && link->HasEnvData()) {
                envData = &link->GetEnvData();
            }
            if (envData != nullptr && Dop(*envData)) {
                return true;
            }
        }
        return false;
    }

    template <class Owner>
    bool StructureOf(Owner& owner) {
        return owner.HasStructureRef() && owner.GetStructureRef().HasStructure() &&
               Dop(owner.GetStructureRef().GetStructure());
    }

    bool Cases(NODX201::VMux& mux) {
        auto const structureOf = [this](auto& self) { return StructureOf(self); };
        if (mux.HasDefaultCase() && Step(mux.GetDefaultCase(), structureOf)) {
            return true;
        }
        for (NODX201::VCase& muxCase : mux.CaseCollection()) {
            if (Step(muxCase, structureOf)) {
                return true;
            }
        }
        return false;
    }

    bool TableOf(NODX201::VTableStruct& param) {
        if (!param.HasTableKeyRef() || !param.GetTableKeyRef().HasTableKey()) {
            return false;
        }
        NODX201::VTableKey& key = param.GetTableKeyRef().GetTableKey();
        if (!key.HasTableRefTableRowRefChoice()) {
            return false;
        }
        NODX201::ITableRefTableRowRefChoice& choice = key.GetTableRefTableRowRefChoice();
        if (auto* const row = dynamic_cast<NODX201::VTableRowLink*>(&choice)) {
            return row->HasTableRow() && Row(row->GetTableRow());
        }
        auto* const table = dynamic_cast<NODX201::VTableLink*>(&choice);
        return table != nullptr && table->HasTable() &&
               Step(table->GetTable(), [this](NODX201::VTable& self) { return Rows(self); });
    }

    bool Rows(NODX201::VTable& table) {
        for (NODX201::IRowWrapper& wrapper : table.RowWrapperCollection()) {
            auto* row = dynamic_cast<NODX201::VTableRow*>(&wrapper);
            auto* const link = dynamic_cast<NODX201::VTableRowLink*>(&wrapper);
            if (link != nullptr && link->HasTableRow()) {
                row = &link->GetTableRow();
            }
            if (row != nullptr && Row(*row)) {
                return true;
            }
        }
        return false;
    }

    bool Row(NODX201::VTableRow& row) {
        return Step(row, [this](NODX201::VTableRow& self) { return StructureOf(self); });
    }

    VOutParamPath& m_path;
    std::wstring const& m_shortName;
    NODX201::VDiagLayer& m_layer;
    std::unordered_set<NODX201::VOdxElement const*> m_open;
    std::unordered_set<NODX201::VOdxElement const*> m_done; // those that lead to nothing of the name
};

} // namespace

VOutParamPath PathToOutParam(NODX201::VDiagService& service, NODX201::VSearchRange range, std::wstring const& shortName,
                             NODX201::VDiagLayer& layer) {
    std::vector<NODX201::VParam*> roots;
    auto const take = [&roots](NODX201::VParam& param) { roots.push_back(&param); };
    NDIAGKIT::ForEachSelectedParam(service, range, take);

    VOutParamPath path;
    for (NODX201::VParam* const root : roots) { // a parameter at the top goes before everything nested
        if (dynamic_cast<NODX201::VValue*>(root) != nullptr && shortName == root->GetShortName()) {
            path.steps.push_back(root);
            return path;
        }
    }
    VWalk walk(path, shortName, layer);
    for (NODX201::VParam* const root : roots) {
        if (walk.Param(*root)) {
            break;
        }
    }
    return path;
}

std::string Printed(VOutParamPath const& path) {
    std::string text;
    for (std::size_t index = 0; index < path.steps.size(); ++index) {
        bool const isFirst = index == 0;
        text += isFirst ? PathTo(*path.steps[index]) : "";
        if (index + 1 < path.steps.size()) {
            text += " > " + TagTextOf(*path.steps[index]) + " " + ShownName(*path.steps[index]);
        }
    }
    return text;
}

} // namespace NCli
