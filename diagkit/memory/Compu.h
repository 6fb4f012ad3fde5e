// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <diagkit/memory/ProgCode.h>
#include <diagkit/model/Compu.h>
#include <diagkit/model/Params.h>

/// Conversions, coded and physical types, constraints. Values stay text as written: hex, signs and decimal commas are
/// for those to read who know what they want.

namespace NMemory {

/// LOWER-LIMIT, UPPER-LIMIT
class VMemLimit final : public VMemTagged<NODX201::VLimit> {
public:
    explicit VMemLimit(VPlace const& place) : VMemTagged(place, Tag::LowerLimit) {}

    wchar_t const* GetText() const { return m_text; } ///< the value as written
    void SetText(wchar_t const* text) { m_text = Store(text); }

    wchar_t const* GetIntervalType() const { return m_intervalType; } ///< @INTERVAL-TYPE
    void SetIntervalType(wchar_t const* text) { m_intervalType = Store(text); }

private:
    wchar_t const* m_text = L"";
    wchar_t const* m_intervalType = L"CLOSED";
};

/// The limit, made when it is absent.
inline VMemLimit& MakeLimit(std::unique_ptr<VMemLimit>& slot, VPlace const& place, Tag tag, wchar_t const* text) {
    if (slot == nullptr) {
        slot = New<VMemLimit>(place);
        slot->SetOdxTag(tag);
    }
    slot->SetText(text);
    return *slot;
}

/// VT
class VMemVt final : public VMemElement<NODX201::VVt, Tag::Vt> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetTextId() const { return m_textId; } ///< @TI
    void SetTextId(wchar_t const* text) { m_textId = Store(text); }

    wchar_t const* GetText() const { return m_text; } ///< the text itself
    void SetText(wchar_t const* text) { m_text = Store(text); }

private:
    wchar_t const* m_textId = L"";
    wchar_t const* m_text = L"";
};

/// A value as a number or as a text.
template <class Base>
class VWithValue : public Base {
public:
    using Base::Base;

    wchar_t const* GetV() const { return m_v; } ///< V
    void SetV(wchar_t const* text) { m_v = this->Store(text); }

    bool HasVt() const override { return m_vt != nullptr; } ///< VT
    VMemVt& GetVt() override { return *m_vt; }
    VMemVt& MakeVt() { return MakeChild(m_vt, this->Inside()); }
    void RemoveVt() { m_vt.reset(); }

private:
    wchar_t const* m_v = L"";
    std::unique_ptr<VMemVt> m_vt;
};

/// COMPU-CONST
class VMemCompuConst final : public VWithValue<VMemElement<NODX201::VCompuConst, Tag::CompuConst>> {
public:
    using VWithValue::VWithValue;
};

/// COMPU-DEFAULT-VALUE
class VMemCompuDefaultValue final
    : public VWithValue<VMemElement<NODX201::VCompuDefaultValue, Tag::CompuDefaultValue>> {
public:
    using VWithValue::VWithValue;
};

/// COMPU-INVERSE-VALUE
class VMemCompuInverseValue final : public VMemElement<NODX201::VCompuInverseValue, Tag::CompuInverseValue> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetV() const { return m_v; } ///< V
    void SetV(wchar_t const* text) { m_v = Store(text); }

    bool HasVt() const { return m_vt != nullptr; } ///< VT, which only 2.2 data have
    VMemVt& GetVt() { return *m_vt; }
    VMemVt& MakeVt() { return MakeChild(m_vt, Inside()); }
    void RemoveVt() { m_vt.reset(); }

private:
    wchar_t const* m_v = L"";
    std::unique_ptr<VMemVt> m_vt;
};

/// What lies between a LOWER-LIMIT and an UPPER-LIMIT.
template <class Base>
class VWithLimits : public Base {
public:
    using Base::Base;

    bool HasLowerLimit() const override { return m_lowerLimit != nullptr; }
    VMemLimit& GetLowerLimit() override { return *m_lowerLimit; }
    VMemLimit& MakeLowerLimit(wchar_t const* text = L"") {
        return MakeLimit(m_lowerLimit, this->Inside(), Tag::LowerLimit, text);
    }
    void RemoveLowerLimit() { m_lowerLimit.reset(); }

    bool HasUpperLimit() const override { return m_upperLimit != nullptr; }
    VMemLimit& GetUpperLimit() override { return *m_upperLimit; }
    VMemLimit& MakeUpperLimit(wchar_t const* text = L"") {
        return MakeLimit(m_upperLimit, this->Inside(), Tag::UpperLimit, text);
    }
    void RemoveUpperLimit() { m_upperLimit.reset(); }

private:
    std::unique_ptr<VMemLimit> m_lowerLimit;
    std::unique_ptr<VMemLimit> m_upperLimit;
};

/// COMPU-RATIONAL-COEFFS
class VMemCompuRationalCoeffs final : public VMemElement<NODX201::VCompuRationalCoeffs, Tag::CompuRationalCoeffs> {
public:
    using VMemElement::VMemElement;

    std::vector<wchar_t const*> const& GetNumerators() const { return m_numerators; } ///< V of COMPU-NUMERATOR
    void AddNumerator(wchar_t const* text) { m_numerators.push_back(Store(text)); }

    std::vector<wchar_t const*> const& GetDenominators() const { return m_denominators; } ///< V of COMPU-DENOMINATOR
    void AddDenominator(wchar_t const* text) { m_denominators.push_back(Store(text)); }

private:
    std::vector<wchar_t const*> m_numerators;
    std::vector<wchar_t const*> m_denominators;
};

/// COMPU-SCALE
class VMemCompuScale final : public VWithLimits<VMemElement<NODX201::VCompuScale, Tag::CompuScale>> {
public:
    using VWithLimits::VWithLimits;

    wchar_t const* GetShortLabel() const { return m_shortLabel; } ///< SHORT-LABEL
    void SetShortLabel(wchar_t const* text) { m_shortLabel = Store(text); }

    wchar_t const* GetDesc() const { return m_desc; } ///< DESC
    void SetDesc(wchar_t const* text) { m_desc = Store(text); }

    bool HasCompuInverseValue() const override { return m_compuInverseValue != nullptr; }
    VMemCompuInverseValue& GetCompuInverseValue() override { return *m_compuInverseValue; }
    VMemCompuInverseValue& MakeCompuInverseValue() { return MakeChild(m_compuInverseValue, Inside()); }
    void RemoveCompuInverseValue() { m_compuInverseValue.reset(); }

    bool HasCompuConstCompuRationalCoeffsChoice() const override {
        return m_compuConstCompuRationalCoeffsChoice != nullptr;
    }
    NODX201::ICompuConstCompuRationalCoeffsChoice& GetCompuConstCompuRationalCoeffsChoice() override {
        return *m_compuConstCompuRationalCoeffsChoice;
    }
    VMemCompuConst& MakeCompuConst() {
        return SetChoice<VMemCompuConst>(m_compuConstCompuRationalCoeffsChoiceElement,
                                         m_compuConstCompuRationalCoeffsChoice, Inside());
    }
    VMemCompuRationalCoeffs& MakeCompuRationalCoeffs() {
        return SetChoice<VMemCompuRationalCoeffs>(m_compuConstCompuRationalCoeffsChoiceElement,
                                                  m_compuConstCompuRationalCoeffsChoice, Inside());
    }

private:
    wchar_t const* m_shortLabel = L"";
    wchar_t const* m_desc = L"";
    std::unique_ptr<VMemCompuInverseValue> m_compuInverseValue;
    std::unique_ptr<NODX201::VOdxElement> m_compuConstCompuRationalCoeffsChoiceElement;
    NODX201::ICompuConstCompuRationalCoeffsChoice* m_compuConstCompuRationalCoeffsChoice = nullptr;
};

/// COMPU-SCALES
class VMemCompuScales final : public VMemElement<NODX201::VOdxElement, Tag::CompuScales> {
public:
    using VMemElement::VMemElement;

    NODX201::VCompuScaleCollection& CompuScaleCollection() { return m_compuScale; }
    VMemCompuScale& AddCompuScale() { return m_compuScale.Append(New<VMemCompuScale>(Inside())); }

private:
    VMemCollection<NODX201::VCompuScaleCollection> m_compuScale;
};

/// COMPU-INTERNAL-TO-PHYS
class VMemCompuInternalToPhys final : public VMemElement<NODX201::VCompuInternalToPhys, Tag::CompuInternalToPhys> {
public:
    using VMemElement::VMemElement;

    bool HasCompuScalesProgCodeChoice() const override { return m_compuScales != nullptr || m_progCode != nullptr; }
    NODX201::ICompuScalesProgCodeChoice& GetCompuScalesProgCodeChoice() override;
    VMemCompuScales& MakeCompuScales(); ///< in place of a PROG-CODE
    VMemProgCode& MakeProgCode();       ///< in place of COMPU-SCALES

    bool HasCompuDefaultValue() const override { return m_compuDefaultValue != nullptr; }
    VMemCompuDefaultValue& GetCompuDefaultValue() override { return *m_compuDefaultValue; }
    VMemCompuDefaultValue& MakeCompuDefaultValue() { return MakeChild(m_compuDefaultValue, Inside()); }
    void RemoveCompuDefaultValue() { m_compuDefaultValue.reset(); }

private:
    std::unique_ptr<VMemCompuScales> m_compuScales;
    std::unique_ptr<VMemProgCode> m_progCode;
    std::unique_ptr<VMemCompuDefaultValue> m_compuDefaultValue;
};

/// COMPU-PHYS-TO-INTERNAL
class VMemCompuPhysToInternal final : public VMemElement<NODX201::VCompuPhysToInternal, Tag::CompuPhysToInternal> {
public:
    using VMemElement::VMemElement;

    bool HasProgCode() const override { return m_progCode != nullptr; }
    VMemProgCode& GetProgCode() override { return *m_progCode; }
    VMemProgCode& MakeProgCode() { return MakeChild(m_progCode, Inside()); }
    void RemoveProgCode() { m_progCode.reset(); }

private:
    std::unique_ptr<VMemProgCode> m_progCode;
};

/// COMPU-METHOD
class VMemCompuMethod final : public VMemElement<NODX201::VCompuMethod, Tag::CompuMethod> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetCategory() const { return m_category; } ///< CATEGORY
    void SetCategory(wchar_t const* text) { m_category = Store(text); }

    bool HasCompuInternalToPhys() const override { return m_compuInternalToPhys != nullptr; }
    VMemCompuInternalToPhys& GetCompuInternalToPhys() override { return *m_compuInternalToPhys; }
    VMemCompuInternalToPhys& MakeCompuInternalToPhys() { return MakeChild(m_compuInternalToPhys, Inside()); }
    void RemoveCompuInternalToPhys() { m_compuInternalToPhys.reset(); }

    bool HasCompuPhysToInternal() const override { return m_compuPhysToInternal != nullptr; }
    VMemCompuPhysToInternal& GetCompuPhysToInternal() override { return *m_compuPhysToInternal; }
    VMemCompuPhysToInternal& MakeCompuPhysToInternal() { return MakeChild(m_compuPhysToInternal, Inside()); }
    void RemoveCompuPhysToInternal() { m_compuPhysToInternal.reset(); }

private:
    wchar_t const* m_category = L"";
    std::unique_ptr<VMemCompuInternalToPhys> m_compuInternalToPhys;
    std::unique_ptr<VMemCompuPhysToInternal> m_compuPhysToInternal;
};

/// SCALE-CONSTR
class VMemScaleConstr final : public VWithLimits<VMemElement<NODX201::VScaleConstr, Tag::ScaleConstr>> {
public:
    using VWithLimits::VWithLimits;

    wchar_t const* GetValidity() const { return m_validity; } ///< @VALIDITY
    void SetValidity(wchar_t const* text) { m_validity = Store(text); }

    wchar_t const* GetShortLabel() const { return m_shortLabel; } ///< SHORT-LABEL
    void SetShortLabel(wchar_t const* text) { m_shortLabel = Store(text); }

    wchar_t const* GetDesc() const { return m_desc; } ///< DESC
    void SetDesc(wchar_t const* text) { m_desc = Store(text); }

private:
    wchar_t const* m_validity = L"";
    wchar_t const* m_shortLabel = L"";
    wchar_t const* m_desc = L"";
};

/// INTERNAL-CONSTR
class VMemInternalConstr final : public VWithLimits<VMemElement<NODX201::VInternalConstr, Tag::InternalConstr>> {
public:
    using VWithLimits::VWithLimits;

    NODX201::VScaleConstrCollection& ScaleConstrCollection() override { return m_scaleConstr.Get(); } ///< SCALE-CONSTRS
    VMemCollection<NODX201::VScaleConstrCollection>& MakeScaleConstrCollection() { return m_scaleConstr.Make(); }
    VMemScaleConstr& AddScaleConstr() { return AddPlain<VMemScaleConstr>(m_scaleConstr, Inside()); }

private:
    VMemMany<NODX201::VScaleConstrCollection> m_scaleConstr;
};

/// PHYSICAL-TYPE
class VMemPhysicalType final : public VMemElement<NODX201::VPhysicalType, Tag::PhysicalType> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetBaseDataType() const { return m_baseDataType; } ///< @BASE-DATA-TYPE
    void SetBaseDataType(wchar_t const* text) { m_baseDataType = Store(text); }

    wchar_t const* GetDisplayRadix() const { return m_displayRadix; } ///< @DISPLAY-RADIX
    void SetDisplayRadix(wchar_t const* text) { m_displayRadix = Store(text); }

    wchar_t const* GetPrecision() const { return m_precision; } ///< PRECISION
    void SetPrecision(wchar_t const* text) { m_precision = Store(text); }

private:
    wchar_t const* m_baseDataType = L"";
    wchar_t const* m_displayRadix = L"DEC";
    wchar_t const* m_precision = L"";
};

/// What the four kinds of DIAG-CODED-TYPE share.
template <class Base>
class VWithCodedType : public Base {
public:
    using Base::Base;

    wchar_t const* GetBaseDataType() const { return m_baseDataType; } ///< @BASE-DATA-TYPE
    void SetBaseDataType(wchar_t const* text) { m_baseDataType = this->Store(text); }

    wchar_t const* GetBaseTypeEncoding() const { return m_baseTypeEncoding; } ///< @BASE-TYPE-ENCODING, "" when unset
    void SetBaseTypeEncoding(wchar_t const* text) { m_baseTypeEncoding = this->Store(text); }

    bool IsHighlowByteOrder() const { return m_isHighlowByteOrder; } ///< @IS-HIGHLOW-BYTE-ORDER
    void SetIsHighlowByteOrder(bool value) { m_isHighlowByteOrder = value; }

private:
    wchar_t const* m_baseDataType = L"";
    wchar_t const* m_baseTypeEncoding = L"";
    bool m_isHighlowByteOrder = true;
};

/// DIAG-CODED-TYPE of xsi:type STANDARD-LENGTH-TYPE
class VMemStandardLengthType final
    : public VWithCodedType<VMemElement<NODX201::VStandardLengthType, Tag::StandardLengthType>> {
public:
    using VWithCodedType::VWithCodedType;

    wchar_t const* GetBitLength() const { return m_bitLength; } ///< BIT-LENGTH
    void SetBitLength(wchar_t const* text) { m_bitLength = Store(text); }

    wchar_t const* GetBitMask() const { return m_bitMask; } ///< BIT-MASK
    void SetBitMask(wchar_t const* text) { m_bitMask = Store(text); }

private:
    wchar_t const* m_bitLength = L"";
    wchar_t const* m_bitMask = L"";
};

/// DIAG-CODED-TYPE of xsi:type LEADING-LENGTH-INFO-TYPE
class VMemLeadingLengthInfoType final
    : public VWithCodedType<VMemElement<NODX201::VLeadingLengthInfoType, Tag::LeadingLengthInfoType>> {
public:
    using VWithCodedType::VWithCodedType;

    wchar_t const* GetBitLength() const { return m_bitLength; } ///< BIT-LENGTH
    void SetBitLength(wchar_t const* text) { m_bitLength = Store(text); }

private:
    wchar_t const* m_bitLength = L"";
};

/// DIAG-CODED-TYPE of xsi:type MIN-MAX-LENGTH-TYPE
class VMemMinMaxLengthType final
    : public VWithCodedType<VMemElement<NODX201::VMinMaxLengthType, Tag::MinMaxLengthType>> {
public:
    using VWithCodedType::VWithCodedType;

    wchar_t const* GetTermination() const { return m_termination; } ///< @TERMINATION
    void SetTermination(wchar_t const* text) { m_termination = Store(text); }

    wchar_t const* GetMaxLength() const { return m_maxLength; } ///< MAX-LENGTH
    void SetMaxLength(wchar_t const* text) { m_maxLength = Store(text); }

    wchar_t const* GetMinLength() const { return m_minLength; } ///< MIN-LENGTH
    void SetMinLength(wchar_t const* text) { m_minLength = Store(text); }

private:
    wchar_t const* m_termination = L"";
    wchar_t const* m_maxLength = L"";
    wchar_t const* m_minLength = L"";
};

/// LENGTH-KEY-REF
class VMemLengthKeyLink final : public VMemLink<NODX201::VLink, Tag::LengthKeyRef, NODX201::VLengthKey> {
public:
    using VMemLink::VMemLink;
    bool HasLengthKey() const { return FindById(); }
    NODX201::VLengthKey& GetLengthKey() { return Found(); }
};

/// DIAG-CODED-TYPE of xsi:type PARAM-LENGTH-INFO-TYPE
class VMemParamLengthInfoType final
    : public VWithCodedType<VMemElement<NODX201::VParamLengthInfoType, Tag::ParamLengthInfoType>> {
public:
    using VWithCodedType::VWithCodedType;

    bool HasLengthKeyRef() const { return m_lengthKeyRef != nullptr; } ///< LENGTH-KEY-REF
    VMemLengthKeyLink& GetLengthKeyRef() { return *m_lengthKeyRef; }
    VMemLengthKeyLink& SetLengthKeyRef(VReference const& reference) {
        return MakeLink(m_lengthKeyRef, Inside(), reference);
    }
    void RemoveLengthKeyRef() { m_lengthKeyRef.reset(); }

private:
    std::unique_ptr<VMemLengthKeyLink> m_lengthKeyRef;
};

/// A DIAG-CODED-TYPE of whichever kind as the child of an element: making one takes the place of the one before.
class VCodedTypeSlot {
public:
    bool IsPresent() const { return m_type != nullptr; }     ///< whether one was made
    NODX201::VDiagCodedType& Get() const { return *m_type; } ///< REQUIRES: `IsPresent`
    void Remove() { m_type.reset(); }                        ///< destroys it; no effect when there is none

    /// A new one of the type; the one before is destroyed.
    template <class Type>
    Type& Make(VPlace const& place) {
        auto type = New<Type>(place);
        Type& made = *type;
        m_type = std::move(type);
        return made;
    }

private:
    std::unique_ptr<NODX201::VDiagCodedType> m_type;
};

/// Adds a DIAG-CODED-TYPE to an element.
template <class Base>
class VWithDiagCodedType : public Base {
public:
    using Base::Base;

    bool HasDiagCodedType() const { return m_codedType.IsPresent(); }
    NODX201::VDiagCodedType& GetDiagCodedType() { return m_codedType.Get(); }
    VMemStandardLengthType& MakeStandardLengthType() {
        return m_codedType.template Make<VMemStandardLengthType>(this->Inside());
    }
    VMemLeadingLengthInfoType& MakeLeadingLengthInfoType() {
        return m_codedType.template Make<VMemLeadingLengthInfoType>(this->Inside());
    }
    VMemMinMaxLengthType& MakeMinMaxLengthType() {
        return m_codedType.template Make<VMemMinMaxLengthType>(this->Inside());
    }
    VMemParamLengthInfoType& MakeParamLengthInfoType() {
        return m_codedType.template Make<VMemParamLengthInfoType>(this->Inside());
    }
    void RemoveDiagCodedType() { m_codedType.Remove(); }

private:
    VCodedTypeSlot m_codedType;
};

} // namespace NMemory
