// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/Export.h>
#include <diagkit/model/Visitors.h>

/// What contains what in messages and data dictionaries: one relation, used by searches, walks and cycle detection.

namespace NDIAGKIT {

/// Resolves references to DOPs; the target of a reference by short name depends on the layer.
class IDopFinder {
public:
    virtual NODX201::VDopBase* Find(NODX201::VDopBaseLink& link) = 0; ///< null when there is no target

protected:
    IDopFinder() = default;
    ~IDopFinder() = default;
};

/// Resolves the references in one layer.
class DIAGKIT_EXPORT VDopsOfLayer final : public IDopFinder {
public:
    explicit VDopsOfLayer(NODX201::VDiagLayer& layer) : m_layer(layer) {} ///< the layer must outlive this object

    NODX201::VDopBase* Find(NODX201::VDopBaseLink& link) override;

private:
    NODX201::VDiagLayer& m_layer;
};

/// One thing that an element contains, directly or by a reference.
class DIAGKIT_EXPORT VContained {
public:
    /// What an element may contain.
    enum class VKind { Param, Dop, Table, TableRow };

    /// A way in which something is contained. `follow` gives the target of a reference, or null; `follow` itself is
    /// null for a direct child.
    struct VWay {
        VKind kind;
        NODX201::VOdxElement* (*follow)(NODX201::VLink& reference, IDopFinder& dops);
        bool mayBeByShortName = false;
    };

    explicit VContained(NODX201::VParam& param); ///< of a message
    /// The way must outlive this object. In a MUX: contained by one of its cases.
    VContained(VWay const& way, NODX201::VOdxElement& elementOrReference, NODX201::VOdxElement* muxCase = nullptr)
        : m_way(&way), m_what(&elementOrReference), m_case(muxCase) {}

    VKind GetKind() const { return m_way->kind; }
    bool IsReference() const { return m_way->follow != nullptr; }
    bool MayBeByShortName() const { return m_way->mayBeByShortName; } ///< a reference of a kind that has both forms
    NODX201::VLink* GetReference() const;                             ///< null for a direct child
    NODX201::VOdxElement* GetCase() const { return m_case; } ///< the CASE or DEFAULT-CASE of a MUX, otherwise null
    NODX201::VOdxElement* Target(IDopFinder& dops) const;    ///< null for a reference that does not resolve

private:
    VWay const* m_way;
    NODX201::VOdxElement* m_what;
    NODX201::VOdxElement* m_case = nullptr;
};

/// Lists what an element contains, one level deep and in document order, without resolving references.
///
///     VALUE           the DOP that it refers to
///     TABLE-STRUCT    the TABLE-KEY that it refers to
///     TABLE-KEY       the TABLE or TABLE-ROW that it refers to
///     TABLE-ENTRY     the TABLE-ROW that it refers to
///     STRUCTURE       its parameters; an ENV-DATA as well
///     fields          what they repeat, and the end marker's DOP
///     MUX             the STRUCTUREs of the default case and of the cases
///     ENV-DATA-DESC   its ENV-DATAs
///     TABLE           its rows
///     TABLE-ROW       its STRUCTURE
///
/// Other parameters and DOPs contain nothing. Derive from it and override `Take`; overriding a Visit operation changes
/// what is listed for its kind.
class DIAGKIT_EXPORT VContainment : public NODX201::VParamVisitor, public NODX201::VDopBaseVisitor {
public:
    ~VContainment() override;

    void VisitPartsOf(VContained::VKind kind, NODX201::VOdxElement& element); ///< the element is of this kind

    void VisitCodedConst(NODX201::VCodedConst& param) override;
    void VisitDynamic(NODX201::VDynamic& param) override;
    void VisitLengthKey(NODX201::VLengthKey& param) override;
    void VisitMatchingRequestParam(NODX201::VMatchingRequestParam& param) override;
    void VisitPhysConst(NODX201::VPhysConst& param) override;
    void VisitReserved(NODX201::VReserved& param) override;
    void VisitSystem(NODX201::VSystem& param) override;
    void VisitTableKey(NODX201::VTableKey& param) override;
    void VisitTableStruct(NODX201::VTableStruct& param) override;
    void VisitValue(NODX201::VValue& param) override;
    void VisitTableEntry(NODX201::VTableEntry& param) override;

    void VisitEnvData(NODX201::VEnvData& dop) override;
    void VisitStructure(NODX201::VStructure& dop) override;
    void VisitEnvDataDesc(NODX201::VEnvDataDesc& dop) override;
    void VisitStaticField(NODX201::VStaticField& dop) override;
    void VisitDynamicLengthField(NODX201::VDynamicLengthField& dop) override;
    void VisitDynamicEndmarkerField(NODX201::VDynamicEndmarkerField& dop) override;
    void VisitEndOfPduField(NODX201::VEndOfPduField& dop) override;
    void VisitMux(NODX201::VMux& dop) override;
    void VisitDataObjectProp(NODX201::VDataObjectProp& dop) override;
    void VisitDtcDop(NODX201::VDtcDop& dop) override;

    virtual void VisitTable(NODX201::VTable& table);
    virtual void VisitTableRow(NODX201::VTableRow& row);

protected:
    VContainment() = default;

    /// Called for each part, in the order of the document.
    virtual void Take(VContained const& part) = 0;

    void TakeField(NODX201::VField& field); ///< only what it repeats

private:
    void TakeParams(NODX201::VBasicStructure& structure);
    template <class Owner>
    void TakeStructure(Owner& owner, NODX201::VOdxElement* muxCase = nullptr);
};

} // namespace NDIAGKIT
