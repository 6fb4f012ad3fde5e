// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include <diagkit/memory/Children.h>
#include <diagkit/memory/Forward.h>
#include <diagkit/memory/Link.h>
#include <diagkit/model/AdminData.h>
#include <diagkit/model/Comparams.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/SearchRange.h>
#include <diagkit/model/Tables.h>
#include <diagkit/model/Units.h>

/// References. Those that may be by short name use the database's resolver in the context in which they are read.

namespace NMemory {

/// A group of layers of the memory model in which links are severed. The layers store its number, so it need not
/// outlive them or the links, and an object that is later created at the address of a destroyed layer is not affected.
class VSeveredLayers {
public:
    VSeveredLayers(); ///< empty
    void Add(NODX201::VDiagLayer& layer);
    std::uint64_t GetNumber() const { return m_number; } ///< unique among all groups of the process

private:
    std::uint64_t m_number;
};

/// DOP-REF, DOP-BASE-REF and their SNREFs: any kind of DOP.
class VMemDopBaseLink final : public VMemLink<NODX201::VDopBaseLink, Tag::DopBaseRef, NODX201::VDopBase> {
public:
    using VMemLink::VMemLink;
    bool HasDopBase(NODX201::VDiagLayer& layer) override;
    NODX201::VDopBase& GetDopBase() override { return Found(); }

    /// Gives the link another target, in every layer.
    void SetReference(VReference const& reference) {
        VMemLink::SetReference(reference);
        m_severedIn.reset();
    }

    /// From now on the link, if by short name, resolves to nothing in these layers and those that are added to them,
    /// until it is given another reference. See `Sever`.
    void SeverIn(VSeveredLayers const& layers);
    bool IsSeveredIn(NODX201::VDiagLayer& layer) const;

private:
    std::unique_ptr<std::vector<std::uint64_t>> m_severedIn; // groups, in ascending order; null nearly always
};

/// DOP-REF, DATA-OBJECT-PROP-REF, KEY-DOP-REF and their SNREFs: a DATA-OBJECT-PROP.
class VMemDataObjectPropLink final
    : public VMemLink<NODX201::VDataObjectPropLink, Tag::DataObjectPropRef, NODX201::VDataObjectProp> {
public:
    using VMemLink::VMemLink;
    bool HasDataObjectProp(NODX201::VDiagLayer& layer) override;
    NODX201::VDataObjectProp& GetDataObjectProp() override { return Found(); }
};

/// DIAG-COMM-REF, DIAG-COMM-SNREF and the like: a service or a single-ECU job.
class VMemDiagCommLink final : public VMemLink<NODX201::VDiagCommLink, Tag::DiagCommRef, NODX201::VDiagComm> {
public:
    using VMemLink::VMemLink;
    bool HasDiagComm(NODX201::VDiagLayer& layer) override;
    NODX201::VDiagComm& GetDiagComm() override { return Found(); }
};

/// DIAG-VARIABLE-REF, DIAG-VARIABLE-SNREF
class VMemDiagVariableLink final
    : public VMemLink<NODX201::VDiagVariableLink, Tag::DiagVariableRef, NODX201::VDiagVariable> {
public:
    using VMemLink::VMemLink;
    bool HasDiagVariable(NODX201::VDiagLayer& layer) override;
    NODX201::VDiagVariable& GetDiagVariable() override { return Found(); }
};

/// OUT-PARAM-IF-SNREF, PARAM-SNREF
class VMemOutParamIfLink final : public VMemLink<NODX201::VOutParamIfLink, Tag::OutParamIfSnref, NODX201::IOutParamIf> {
public:
    using VMemLink::VMemLink;
    bool HasOutParamIf(NODX201::VDiagComm& diagComm, NODX201::VDiagLayer& layer, NODX201::VSearchRange range) override;
    NODX201::IOutParamIf& GetOutParamIf() override { return Found(); }
};

/// IN-PARAM-IF-SNREF
class VMemInParamIfLink final : public VMemLink<NODX201::VLink, Tag::InParamIfSnref, NODX201::IInParamIf> {
public:
    using VMemLink::VMemLink;
    bool HasInParamIf(NODX201::VDiagComm& diagComm);
    NODX201::IInParamIf& GetInParamIf() { return Found(); }
};

/// PROTOCOL-SNREF
class VMemProtocolSnref final : public VMemLink<NODX201::VLink, Tag::ProtocolSnref, NODX201::VProtocol> {
public:
    using VMemLink::VMemLink;
    bool HasProtocol(NODX201::VDiagLayerContainer& container);
    NODX201::VProtocol& GetProtocol() { return Found(); }
};

/// SESSION-SNREF
class VMemSessionLink final : public VMemLink<NODX201::VLink, Tag::SessionSnref, NODX201::VSession> {
public:
    using VMemLink::VMemLink;
    bool HasSession(NODX201::VFlash& flash);
    NODX201::VSession& GetSession() { return Found(); }
};

/// IDENT-IF-SNREF
class VMemIdentIfLink final : public VMemLink<NODX201::VLink, Tag::IdentIfSnref, NODX201::IIdentIf> {
public:
    using VMemLink::VMemLink;
    bool HasIdentIf(NODX201::VFlash& flash);
    NODX201::IIdentIf& GetIdentIf() { return Found(); }
};

/// IMPORT-REF: a layer whose IDs can be referenced as if they were in the own layer. Nothing is inherited from it.
class VMemImportRef final : public VMemLink<NODX201::VLink, NODX201::VOdxTagEnum::ImportRef, NODX201::VDiagLayer> {
public:
    using VMemLink::VMemLink;

    bool HasDiagLayer() const;
    NODX201::VDiagLayer& GetDiagLayer() { return Found(); }

    /// Gives the reference another layer as target, in which PARENT-REFs may find theirs.
    void SetReference(VReference const& reference) {
        VMemLink::SetReference(reference);
        NoteRedirection();
    }
};

class VImportRefCollection : public NODX201::VElementCollection<VMemImportRef> {};

/// Members of every kind of layer of this model that are not in its contract.
class IMemLayer {
public:
    virtual VImportRefCollection& ImportRefCollection() = 0;
    virtual std::vector<std::uint64_t>& SeveredGroups() = 0; ///< by number; see `VSeveredLayers`

protected:
    IMemLayer() = default;
    ~IMemLayer() = default;
};

#include <diagkit/memory/Classes.def>

#include <diagkit/model/facts/References.def>

#include <diagkit/memory/ClassesEnd.def>

} // namespace NMemory
