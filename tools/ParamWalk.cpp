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

void VParamWalk::TakeParams(NODX201::VBasicStructure& structure) {
    NODX201::VParamCollection& params = structure.ParamCollection();
    m_inside.back().next = params.Begin();
    m_inside.back().end = params.End();
}

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

/// Enters what contains something, once, and lets `visit` tell its parts.
template <class Container, class Visit>
void VParamWalk::EnterOnce(Container& container, Visit visit) {
    if (!m_entered.Insert(&container)) {
        return;
    }
    std::size_t const parts = m_parts.size();
    m_inside.push_back({&container, m_leader, parts, {}, {}});
    Enter(container);
    visit();
    std::reverse(m_parts.begin() + static_cast<std::ptrdiff_t>(parts), m_parts.end());
}

// clang-format off
void VParamWalk::VisitEnvData              (NODX201::VEnvData& dop)               { EnterOnce(dop, [&] { TakeParams(dop); }); }
void VParamWalk::VisitStructure            (NODX201::VStructure& dop)             { EnterOnce(dop, [&] { TakeParams(dop); }); }
void VParamWalk::VisitStaticField          (NODX201::VStaticField& dop)           { EnterOnce(dop, [&] { TakeField(dop); }); }
void VParamWalk::VisitDynamicLengthField   (NODX201::VDynamicLengthField& dop)    { EnterOnce(dop, [&] { TakeField(dop); }); }
void VParamWalk::VisitDynamicEndmarkerField(NODX201::VDynamicEndmarkerField& dop) { EnterOnce(dop, [&] { TakeField(dop); }); }
void VParamWalk::VisitEndOfPduField        (NODX201::VEndOfPduField& dop)         { EnterOnce(dop, [&] { TakeField(dop); }); }
void VParamWalk::VisitEnvDataDesc          (NODX201::VEnvDataDesc& dop)           { EnterOnce(dop, [&] { VContainment::VisitEnvDataDesc(dop); }); }
void VParamWalk::VisitMux                  (NODX201::VMux& dop)                   { EnterOnce(dop, [&] { VContainment::VisitMux(dop); }); }
void VParamWalk::VisitTable                (NODX201::VTable& table)               { EnterOnce(table, [&] { VContainment::VisitTable(table); }); }
void VParamWalk::VisitTableRow             (NODX201::VTableRow& row)              { EnterOnce(row, [&] { VContainment::VisitTableRow(row); }); }
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
