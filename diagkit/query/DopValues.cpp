// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/DopValues.h>

#include <diagkit/query/PartList.h>

namespace NQuery {
namespace {

/// The text of an element that has nothing else.
wchar_t const* OwnTextOf(NODX201::VOdxElement& element) {
    wchar_t const* text = L"";
    ForEachPartOf(element,
                  [&text](VContentPart const& part) { text = part.role == VPartRole::OwnText ? part.text : text; });
    return text;
}

VBound BoundIn(VPartList const& parts, wchar_t const* tag) {
    NODX201::VOdxElement* const limit = parts.Element(tag);
    return limit != nullptr ? VBound{OwnTextOf(*limit), VPartList(*limit).Text(L"INTERVAL-TYPE")} : VBound{};
}

/// V or VT.
struct VNumberOrText {
    wchar_t const* number = L"";
    wchar_t const* text = L"";

    wchar_t const* Any() const { return *text != L'\0' ? text : number; }
};

VNumberOrText ValueIn(VPartList const& parts, wchar_t const* tag) {
    NODX201::VOdxElement* const value = parts.Element(tag);
    if (value == nullptr) {
        return {};
    }
    VPartList const inside(*value);
    NODX201::VOdxElement* const text = inside.Element(L"VT");
    return {inside.Text(L"V"), text != nullptr ? OwnTextOf(*text) : L""};
}

VValueScale ScaleOf(NODX201::VOdxElement& element) {
    VPartList const parts(element);
    VValueScale scale;
    scale.lower = BoundIn(parts, L"LOWER-LIMIT");
    scale.upper = BoundIn(parts, L"UPPER-LIMIT");
    scale.shortLabel = parts.Text(L"SHORT-LABEL");
    scale.validity = parts.Text(L"VALIDITY");
    VNumberOrText const constant = ValueIn(parts, L"COMPU-CONST");
    scale.text = constant.text;
    scale.value = constant.number;
    scale.inverse = ValueIn(parts, L"COMPU-INVERSE-VALUE").Any();
    if (NODX201::VOdxElement* const coefficients = parts.Element(L"COMPU-RATIONAL-COEFFS"); coefficients != nullptr) {
        ForEachPartOf(*coefficients, [&scale](VContentPart const& part) {
            (IsTag(part.wrapper, L"COMPU-NUMERATOR") ? scale.numerator : scale.denominator).push_back(part.text);
        });
    }
    return scale;
}

std::vector<VValueScale> ScalesIn(VPartList const& parts, wchar_t const* tag) {
    std::vector<VValueScale> scales;
    for (VContentPart const& part : parts) {
        if (part.role == VPartRole::Element && IsTag(part.tag, tag)) {
            scales.push_back(ScaleOf(*part.element));
        }
    }
    return scales;
}

void AddConversion(VDopValues& values, NODX201::VOdxElement& method) {
    VPartList const parts(method);
    values.category = parts.Text(L"CATEGORY");
    if (NODX201::VOdxElement* const toPhysical = parts.Element(L"COMPU-INTERNAL-TO-PHYS"); toPhysical != nullptr) {
        VPartList const inside(*toPhysical);
        values.scales = ScalesIn(inside, L"COMPU-SCALE");
        values.defaultText = ValueIn(inside, L"COMPU-DEFAULT-VALUE").Any();
    }
}

void AddUnit(VDopValues& values, NODX201::VLink& reference) {
    values.unitReference = &reference;
    values.unit = TargetOf(reference, nullptr);
    values.unitName = values.unit != nullptr ? VPartList(*values.unit).Text(L"DISPLAY-NAME") : L"";
}

void AddTroubleCode(VDopValues& values, VContentPart const& part) {
    auto* const reference = dynamic_cast<NODX201::VDtcLink*>(part.element);
    NODX201::VOdxElement* const target = reference != nullptr ? TargetOf(*reference, nullptr) : part.element;
    if (auto* const code = dynamic_cast<NODX201::VDtc*>(target); code != nullptr) {
        values.troubleCodes.push_back(code);
    }
}

} // namespace

VDopValues ValuesOf(NODX201::VOdxElement& dop) {
    VDopValues values;
    bool const isSimple =
        dynamic_cast<NODX201::VDataObjectProp*>(&dop) != nullptr || dynamic_cast<NODX201::VDtcDop*>(&dop) != nullptr;
    if (!isSimple) {
        return values;
    }
    VPartList const parts(dop);
    values.codedType = dynamic_cast<NODX201::VDiagCodedType*>(parts.Element(L"DIAG-CODED-TYPE"));
    values.codedBase = values.codedType != nullptr ? VPartList(*values.codedType).Text(L"BASE-DATA-TYPE") : L"";
    if (NODX201::VOdxElement* const type = parts.Element(L"PHYSICAL-TYPE"); type != nullptr) {
        VPartList const inside(*type);
        values.physicalBase = inside.Text(L"BASE-DATA-TYPE");
        values.displayRadix = inside.Text(L"DISPLAY-RADIX");
        values.precision = inside.Text(L"PRECISION");
    }
    if (NODX201::VOdxElement* const method = parts.Element(L"COMPU-METHOD"); method != nullptr) {
        AddConversion(values, *method);
    }
    if (NODX201::VOdxElement* const constraint = parts.Element(L"INTERNAL-CONSTR"); constraint != nullptr) {
        VPartList const inside(*constraint);
        values.lower = BoundIn(inside, L"LOWER-LIMIT");
        values.upper = BoundIn(inside, L"UPPER-LIMIT");
        values.constraints = ScalesIn(inside, L"SCALE-CONSTR");
    }
    if (NODX201::VLink* const unit = parts.Reference(L"UNIT-REF"); unit != nullptr) {
        AddUnit(values, *unit);
    }
    for (VContentPart const& part : parts) {
        if (IsTag(part.wrapper, L"DTCS")) {
            AddTroubleCode(values, part);
        }
    }
    return values;
}

} // namespace NQuery
