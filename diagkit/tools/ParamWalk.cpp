// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/ParamWalk.h>

#include <algorithm>

#include <diagkit/model/Dops.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Tables.h>

namespace NDIAGKIT {

VParamWalk::VParamWalk(IDopFinder& dops) : m_dops(dops) {}

VParamWalk::~VParamWalk() = default;

void VParamWalk::Enter(NODX201::VOdxElement&) {}

bool VParamWalk::Walk(NODX201::VParam& root) {
    m_inside.clear();
    m_parts.clear();
    m_leader = &root;
    root.Accept(*this);
    return WalkOn();
}

bool VParamWalk::WalkIn(NODX201::VDopBase& root) {
    m_inside.clear();
    m_parts.clear();
    m_leader = nullptr;
    root.Accept(*this);
    return WalkOn();
}

bool VParamWalk::WalkOn() {
    while (!m_isEnded && !m_inside.empty()) {
        if (m_parts.size() > m_inside.back().parts) {
            WalkPart();
        } else {
            WalkParams();
        }
    }
    return m_isEnded;
}

void VParamWalk::WalkPart() {
    VContained const part = m_parts.back();
    m_parts.pop_back();
    m_leader = part.GetCase();
    if (NODX201::VOdxElement* const element = part.Target(m_dops)) {
        VisitPartsOf(part.GetKind(), *element);
    }
}

/// The parameters of the innermost structure, until one leads further.
void VParamWalk::WalkParams() {
    std::size_t const depth = m_inside.size();
    auto next = m_inside.back().next;
    auto const end = m_inside.back().end;
    while (next != end) {
        NODX201::VParam& param = *next;
        m_leader = &param;
        ++next;
        param.Accept(*this);
        if (m_inside.size() != depth) {
            m_inside[depth - 1].next = next;
            return;
        }
        if (m_isEnded) {
            return;
        }
    }
    m_inside.pop_back();
}

void VParamWalk::Take(VContained const& part) { m_parts.push_back(part); }

void VParamWalk::WalkBelow(NODX201::VValue& param) {
    if (!param.HasDopBaseLink()) {
        return;
    }
    if (NODX201::VDopBase* const dop = m_dops.Find(param.GetDopBaseLink())) {
        dop->Accept(*this);
    }
}

void VParamWalk::VisitTableStruct(NODX201::VTableStruct& param) {
    if (param.HasTableKeyRef() && param.GetTableKeyRef().HasTableKey()) {
        m_inside.push_back({&param, nullptr, m_parts.size(), {}, {}});
        VContainment::VisitTableKey(param.GetTableKeyRef().GetTableKey());
    }
}

void VParamWalk::VisitTableKey(NODX201::VTableKey&) {}
void VParamWalk::VisitTableEntry(NODX201::VTableEntry&) {}

/// Enters a container when this is the first time; returns whether it did.
bool VParamWalk::EnterOnce(NODX201::VOdxElement& container) {
    if (!m_entered.Insert(&container)) {
        return false;
    }
    m_inside.push_back({&container, m_leader, m_parts.size(), {}, {}});
    Enter(container);
    return true;
}

/// Enters a structure, whose parameters are walked in place.
void VParamWalk::EnterStructure(NODX201::VBasicStructure& structure) {
    if (EnterOnce(structure)) {
        NODX201::VParamCollection& params = structure.ParamCollection();
        m_inside.back().next = params.Begin();
        m_inside.back().end = params.End();
    }
}

/// Enters a container and has `visit` list its contents.
template <class Container, class Visit>
void VParamWalk::EnterParts(Container& container, Visit visit) {
    if (EnterOnce(container)) {
        std::size_t const parts = m_parts.size();
        visit();
        std::reverse(m_parts.begin() + static_cast<std::ptrdiff_t>(parts), m_parts.end());
    }
}

// clang-format off
void VParamWalk::VisitEnvData              (NODX201::VEnvData& dop)               { EnterStructure(dop); }
void VParamWalk::VisitStructure            (NODX201::VStructure& dop)             { EnterStructure(dop); }
void VParamWalk::VisitStaticField          (NODX201::VStaticField& dop)           { EnterParts(dop, [&] { TakeField(dop); }); }
void VParamWalk::VisitDynamicLengthField   (NODX201::VDynamicLengthField& dop)    { EnterParts(dop, [&] { TakeField(dop); }); }
void VParamWalk::VisitDynamicEndmarkerField(NODX201::VDynamicEndmarkerField& dop) { EnterParts(dop, [&] { TakeField(dop); }); }
void VParamWalk::VisitEndOfPduField        (NODX201::VEndOfPduField& dop)         { EnterParts(dop, [&] { TakeField(dop); }); }
void VParamWalk::VisitEnvDataDesc          (NODX201::VEnvDataDesc& dop)           { EnterParts(dop, [&] { VContainment::VisitEnvDataDesc(dop); }); }
void VParamWalk::VisitMux                  (NODX201::VMux& dop)                   { EnterParts(dop, [&] { VContainment::VisitMux(dop); }); }
void VParamWalk::VisitTable                (NODX201::VTable& table)               { EnterParts(table, [&] { VContainment::VisitTable(table); }); }
void VParamWalk::VisitTableRow             (NODX201::VTableRow& row)              { EnterParts(row, [&] { VContainment::VisitTableRow(row); }); }
// clang-format on

std::vector<NODX201::VOdxElement*> VParamWalk::Path() const {
    std::vector<NODX201::VOdxElement*> path;
    for (VInside const& inside : m_inside) {
        if (inside.leader != nullptr) {
            path.push_back(inside.leader);
        }
        path.push_back(inside.container);
    }
    path.push_back(m_leader);
    return path;
}

} // namespace NDIAGKIT
