// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Compu.h>
#include <diagkit/memory/DopLinks.h>
#include <diagkit/memory/ProcessingInstructions.h>
#include <diagkit/memory/TableLinks.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Visitors.h>

/// The eleven kinds of PARAM.

namespace NMemory {

/// What the kinds of PARAM share.
template <class Base>
class VWithParam : public Base {
public:
    using Base::Base;

    wchar_t const* GetSemantic() const { return m_semantic; } ///< @SEMANTIC
    void SetSemantic(wchar_t const* text) { m_semantic = this->Store(text); }

    wchar_t const* GetBytePosition() const {
        return m_bytePosition;
    } ///< BYTE-POSITION, "" when it follows the one before
    void SetBytePosition(wchar_t const* text) { m_bytePosition = this->Store(text); }

    wchar_t const* GetBitPosition() const { return m_bitPosition; } ///< BIT-POSITION
    void SetBitPosition(wchar_t const* text) { m_bitPosition = this->Store(text); }

    NODX201::VProcessingInstructionCollection& ProcessingInstructionCollection() override {
        return m_instructions.Get();
    }
    /// At the end of those of the element.
    void AddProcessingInstruction(wchar_t const* name, wchar_t const* content) {
        m_instructions.Add(this->Store(name), this->Store(content));
    }

private:
    wchar_t const* m_semantic = L"";
    wchar_t const* m_bytePosition = L"";
    wchar_t const* m_bitPosition = L"";
    VMemProcessingInstructions m_instructions;
};

/// PARAM of xsi:type CODED-CONST
class VMemCodedConst final : public VWithDiagCodedType<VWithParam<VMemIdent<NODX201::VCodedConst, Tag::CodedConst>>> {
public:
    using VWithDiagCodedType::VWithDiagCodedType;

    void Accept(NODX201::VParamVisitor& visitor) override { visitor.VisitCodedConst(*this); }

    wchar_t const* GetCodedValue() const { return m_codedValue; } ///< CODED-VALUE
    void SetCodedValue(wchar_t const* text) { m_codedValue = Store(text); }

private:
    wchar_t const* m_codedValue = L"";
};

/// PARAM of xsi:type DYNAMIC
class VMemDynamic final : public VWithParam<VMemIdent<NODX201::VDynamic, Tag::Dynamic>> {
public:
    using VWithParam::VWithParam;

    void Accept(NODX201::VParamVisitor& visitor) override { visitor.VisitDynamic(*this); }
};

/// PARAM of xsi:type LENGTH-KEY
class VMemLengthKey final : public VWithParam<VMemIdent<NODX201::VLengthKey, Tag::LengthKey>> {
public:
    using VWithParam::VWithParam;

    void Accept(NODX201::VParamVisitor& visitor) override { visitor.VisitLengthKey(*this); }

    bool HasDataObjectPropLink() const override { return m_dataObjectPropLink != nullptr; } ///< DOP-REF or DOP-SNREF
    VMemDataObjectPropLink& GetDataObjectPropLink() override { return *m_dataObjectPropLink; }
    VMemDataObjectPropLink& SetDataObjectPropLink(VReference const& reference) {
        return MakeLink(m_dataObjectPropLink, Inside(), reference);
    }
    void RemoveDataObjectPropLink() { m_dataObjectPropLink.reset(); }

private:
    std::unique_ptr<VMemDataObjectPropLink> m_dataObjectPropLink;
};

/// PARAM of xsi:type MATCHING-REQUEST-PARAM
class VMemMatchingRequestParam final
    : public VWithParam<VMemIdent<NODX201::VMatchingRequestParam, Tag::MatchingRequestParam>> {
public:
    using VWithParam::VWithParam;

    void Accept(NODX201::VParamVisitor& visitor) override { visitor.VisitMatchingRequestParam(*this); }

    wchar_t const* GetRequestBytePos() const { return m_requestBytePos; } ///< REQUEST-BYTE-POS
    void SetRequestBytePos(wchar_t const* text) { m_requestBytePos = Store(text); }

    wchar_t const* GetByteLength() const { return m_byteLength; } ///< BYTE-LENGTH
    void SetByteLength(wchar_t const* text) { m_byteLength = Store(text); }

private:
    wchar_t const* m_requestBytePos = L"";
    wchar_t const* m_byteLength = L"";
};

/// PARAM of xsi:type PHYS-CONST
class VMemPhysConst final : public VWithParam<VMemIdent<NODX201::VPhysConst, Tag::PhysConst>> {
public:
    using VWithParam::VWithParam;

    void Accept(NODX201::VParamVisitor& visitor) override { visitor.VisitPhysConst(*this); }

    wchar_t const* GetPhysConstantValue() const { return m_physConstantValue; } ///< PHYS-CONSTANT-VALUE
    void SetPhysConstantValue(wchar_t const* text) { m_physConstantValue = Store(text); }

    bool HasDataObjectPropLink() const override { return m_dataObjectPropLink != nullptr; } ///< DOP-REF or DOP-SNREF
    VMemDataObjectPropLink& GetDataObjectPropLink() override { return *m_dataObjectPropLink; }
    VMemDataObjectPropLink& SetDataObjectPropLink(VReference const& reference) {
        return MakeLink(m_dataObjectPropLink, Inside(), reference);
    }
    void RemoveDataObjectPropLink() { m_dataObjectPropLink.reset(); }

private:
    wchar_t const* m_physConstantValue = L"";
    std::unique_ptr<VMemDataObjectPropLink> m_dataObjectPropLink;
};

/// PARAM of xsi:type RESERVED
class VMemReserved final : public VWithDiagCodedType<VWithParam<VMemIdent<NODX201::VReserved, Tag::Reserved>>> {
public:
    using VWithDiagCodedType::VWithDiagCodedType;

    void Accept(NODX201::VParamVisitor& visitor) override { visitor.VisitReserved(*this); }

    wchar_t const* GetBitLength() const { return m_bitLength; } ///< BIT-LENGTH
    void SetBitLength(wchar_t const* text) { m_bitLength = Store(text); }

    wchar_t const* GetCodedValue() const { return m_codedValue; } ///< CODED-VALUE
    void SetCodedValue(wchar_t const* text) { m_codedValue = Store(text); }

private:
    wchar_t const* m_bitLength = L"";
    wchar_t const* m_codedValue = L"";
};

/// PARAM of xsi:type SYSTEM
class VMemSystem final : public VWithParam<VMemIdent<NODX201::VSystem, Tag::System>> {
public:
    using VWithParam::VWithParam;

    void Accept(NODX201::VParamVisitor& visitor) override { visitor.VisitSystem(*this); }

    wchar_t const* GetSysparam() const { return m_sysparam; } ///< @SYSPARAM
    void SetSysparam(wchar_t const* text) { m_sysparam = Store(text); }

    bool HasDataObjectPropLink() const override { return m_dataObjectPropLink != nullptr; } ///< DOP-REF or DOP-SNREF
    VMemDataObjectPropLink& GetDataObjectPropLink() override { return *m_dataObjectPropLink; }
    VMemDataObjectPropLink& SetDataObjectPropLink(VReference const& reference) {
        return MakeLink(m_dataObjectPropLink, Inside(), reference);
    }
    void RemoveDataObjectPropLink() { m_dataObjectPropLink.reset(); }

private:
    wchar_t const* m_sysparam = L"";
    std::unique_ptr<VMemDataObjectPropLink> m_dataObjectPropLink;
};

/// PARAM of xsi:type TABLE-KEY
class VMemTableKey final : public VWithParam<VMemIdent<NODX201::VTableKey, Tag::TableKey>> {
public:
    using VWithParam::VWithParam;

    void Accept(NODX201::VParamVisitor& visitor) override { visitor.VisitTableKey(*this); }

    bool HasTableRefTableRowRefChoice() const override { return m_choice != nullptr; }
    NODX201::ITableRefTableRowRefChoice& GetTableRefTableRowRefChoice() override { return *m_choice; }
    VMemTableLink& SetTableRef(VReference const& reference);       ///< in place of a TABLE-ROW-REF
    VMemTableRowLink& SetTableRowRef(VReference const& reference); ///< in place of a TABLE-REF
    void RemoveTableRefTableRowRefChoice();

private:
    std::unique_ptr<NODX201::VLink> m_link;
    NODX201::ITableRefTableRowRefChoice* m_choice = nullptr;
};

/// TABLE-KEY-REF
class VMemTableKeyLink final : public VMemLink<NODX201::VTableKeyLink, Tag::TableKeyRef, NODX201::VTableKey> {
public:
    using VMemLink::VMemLink;
    bool HasTableKey() const override { return FindById(); }
    NODX201::VTableKey& GetTableKey() override { return Found(); }
};

/// PARAM of xsi:type TABLE-STRUCT
class VMemTableStruct final : public VWithParam<VMemIdent<NODX201::VTableStruct, Tag::TableStruct>> {
public:
    using VWithParam::VWithParam;

    void Accept(NODX201::VParamVisitor& visitor) override { visitor.VisitTableStruct(*this); }

    bool HasTableKeyRef() const override { return m_tableKeyRef != nullptr; } ///< TABLE-KEY-REF
    VMemTableKeyLink& GetTableKeyRef() override { return *m_tableKeyRef; }
    VMemTableKeyLink& SetTableKeyRef(VReference const& reference) {
        return MakeLink(m_tableKeyRef, Inside(), reference);
    }
    void RemoveTableKeyRef() { m_tableKeyRef.reset(); }

private:
    std::unique_ptr<VMemTableKeyLink> m_tableKeyRef;
};

/// PARAM of xsi:type TABLE-ENTRY
class VMemTableEntry final : public VWithParam<VMemIdent<NODX201::VTableEntry, Tag::TableEntry>> {
public:
    using VWithParam::VWithParam;

    void Accept(NODX201::VParamVisitor& visitor) override { visitor.VisitTableEntry(*this); }

    wchar_t const* GetTarget() const { return m_target; } ///< TARGET
    void SetTarget(wchar_t const* text) { m_target = Store(text); }

    bool HasTableRowRef() const override { return m_tableRowRef != nullptr; } ///< TABLE-ROW-REF
    VMemTableRowLink& GetTableRowRef() override { return *m_tableRowRef; }
    VMemTableRowLink& SetTableRowRef(VReference const& reference) {
        return MakeLink(m_tableRowRef, Inside(), reference);
    }
    void RemoveTableRowRef() { m_tableRowRef.reset(); }

private:
    wchar_t const* m_target = L"";
    std::unique_ptr<VMemTableRowLink> m_tableRowRef;
};

/// PARAM of xsi:type VALUE
class VMemValue final : public VWithParam<VMemIdent<NODX201::VValue, Tag::Value>> {
public:
    using VWithParam::VWithParam;

    void Accept(NODX201::VParamVisitor& visitor) override { visitor.VisitValue(*this); }

    wchar_t const* GetPhysicalDefaultValue() const { return m_physicalDefaultValue; } ///< PHYSICAL-DEFAULT-VALUE
    void SetPhysicalDefaultValue(wchar_t const* text) { m_physicalDefaultValue = Store(text); }

    bool HasDopBaseLink() const override { return m_dopBaseLink != nullptr; } ///< DOP-REF or DOP-SNREF
    VMemDopBaseLink& GetDopBaseLink() override { return *m_dopBaseLink; }
    VMemDopBaseLink& SetDopBaseLink(VReference const& reference) {
        return MakeLink(m_dopBaseLink, Inside(), reference);
    }
    void RemoveDopBaseLink() { m_dopBaseLink.reset(); }

private:
    wchar_t const* m_physicalDefaultValue = L"";
    std::unique_ptr<VMemDopBaseLink> m_dopBaseLink;
};

/// Adds PARAMS to an element.
template <class Base>
class VWithParams : public Base {
public:
    using Base::Base;

    NODX201::VParamCollection& ParamCollection() { return m_param.Get(); } ///< PARAMS
    VMemCollection<NODX201::VParamCollection>& MakeParamCollection() { return m_param.Make(); }
    VMemCodedConst& AddCodedConst(wchar_t const* shortName) {
        return AddNamed<VMemCodedConst>(m_param, this->Inside(), shortName);
    }
    VMemDynamic& AddDynamic(wchar_t const* shortName) {
        return AddNamed<VMemDynamic>(m_param, this->Inside(), shortName);
    }
    VMemLengthKey& AddLengthKey(wchar_t const* shortName) {
        return AddNamed<VMemLengthKey>(m_param, this->Inside(), shortName);
    }
    VMemMatchingRequestParam& AddMatchingRequestParam(wchar_t const* shortName) {
        return AddNamed<VMemMatchingRequestParam>(m_param, this->Inside(), shortName);
    }
    VMemPhysConst& AddPhysConst(wchar_t const* shortName) {
        return AddNamed<VMemPhysConst>(m_param, this->Inside(), shortName);
    }
    VMemReserved& AddReserved(wchar_t const* shortName) {
        return AddNamed<VMemReserved>(m_param, this->Inside(), shortName);
    }
    VMemSystem& AddSystem(wchar_t const* shortName) { return AddNamed<VMemSystem>(m_param, this->Inside(), shortName); }
    VMemTableKey& AddTableKey(wchar_t const* shortName) {
        return AddNamed<VMemTableKey>(m_param, this->Inside(), shortName);
    }
    VMemTableStruct& AddTableStruct(wchar_t const* shortName) {
        return AddNamed<VMemTableStruct>(m_param, this->Inside(), shortName);
    }
    VMemValue& AddValue(wchar_t const* shortName) { return AddNamed<VMemValue>(m_param, this->Inside(), shortName); }
    VMemTableEntry& AddTableEntry(wchar_t const* shortName) {
        return AddNamed<VMemTableEntry>(m_param, this->Inside(), shortName);
    }

private:
    VMemMany<NODX201::VParamCollection> m_param;
};

} // namespace NMemory
