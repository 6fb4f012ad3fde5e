// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <vector>

#include <diagkit/model/Collections.h>
#include <diagkit/tools/Containment.h>
#include <diagkit/tools/PointerSet.h>

namespace NDIAGKIT {

/// Walks parameters and all that they contain, depth first in document order: through the DOPs of VALUE parameters,
/// structures, fields, multiplexers, environment data, and the tables that TABLE-STRUCT parameters refer to. TABLE-KEYs
/// and TABLE-ENTRYs in a message are not followed by themselves.
///
/// It terminates on every database, and its use of the call stack does not grow with the depth of the data. Every
/// container is entered only once, which does not change what is found first. Derive from it and override `VisitValue`.
class DIAGKIT_EXPORT VParamWalk : public VContainment {
public:
    ~VParamWalk() override;

    /// Continues below one more parameter; true when the walk has been ended. What was entered before is not entered
    /// again.
    bool Walk(NODX201::VParam& root);

    /// The same below a DOP that is not reached from a parameter.
    bool WalkIn(NODX201::VDopBase& root);

    /// The way from the root to the parameter found last, both included: parameters, DOPs, the cases of a MUX, TABLEs
    /// and TABLE-ROWs. Call it in `VisitValue`, or after the walk has been ended there.
    std::vector<NODX201::VOdxElement*> Path() const;

protected:
    explicit VParamWalk(IDopFinder& dops); ///< the finder must outlive this object

    /// Called with every VALUE parameter; an override calls `WalkBelow` or ends the walk with `End`.
    void VisitValue(NODX201::VValue& param) override = 0;
    void WalkBelow(NODX201::VValue& param); ///< goes on with what the parameter contains
    void End() { m_isEnded = true; }        ///< the walk is over
    /// Called with every container that is entered: DOPs, TABLEs and TABLE-ROWs. Does nothing here.
    virtual void Enter(NODX201::VOdxElement& container);

private:
    /// A container that has been entered: its pending parts are walked first, then its parameters.
    struct VInside {
        NODX201::VOdxElement* container;
        NODX201::VOdxElement* leader; ///< the parameter, or the case of a MUX, that led here; null where none did
        std::size_t parts;            ///< how many parts were pending before
        NODX201::VParamCollection::Iterator next;
        NODX201::VParamCollection::Iterator end;
    };

    void Take(VContained const& part) override;
    void VisitTableStruct(NODX201::VTableStruct& param) override;
    void VisitTableKey(NODX201::VTableKey& param) override;
    void VisitTableEntry(NODX201::VTableEntry& param) override;
    void VisitEnvData(NODX201::VEnvData& dop) override;
    void VisitStructure(NODX201::VStructure& dop) override;
    void VisitEnvDataDesc(NODX201::VEnvDataDesc& dop) override;
    void VisitStaticField(NODX201::VStaticField& dop) override;
    void VisitDynamicLengthField(NODX201::VDynamicLengthField& dop) override;
    void VisitDynamicEndmarkerField(NODX201::VDynamicEndmarkerField& dop) override;
    void VisitEndOfPduField(NODX201::VEndOfPduField& dop) override;
    void VisitMux(NODX201::VMux& dop) override;
    void VisitTable(NODX201::VTable& table) override;
    void VisitTableRow(NODX201::VTableRow& row) override;
    bool WalkOn();
    void WalkPart();
    void WalkParams();
    bool EnterOnce(NODX201::VOdxElement& container);
    void EnterStructure(NODX201::VBasicStructure& structure);
    template <class Container, class Visit>
    void EnterParts(Container& container, Visit visit);

    IDopFinder& m_dops;
    std::vector<VInside> m_inside;            ///< the innermost last
    std::vector<VContained> m_parts;          ///< pending, the next one last
    NODX201::VOdxElement* m_leader = nullptr; ///< the parameter or case that the walk is at; null where it is at none
    VPointerSet m_entered;
    bool m_isEnded = false;
};

} // namespace NDIAGKIT
