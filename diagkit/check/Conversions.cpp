// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <string>
#include <string_view>

#include <diagkit/check/CodedTypes.h>
#include <diagkit/check/Numbers.h>
#include <diagkit/check/Ranges.h>
#include <diagkit/check/Topics.h>
#include <diagkit/memory/Dops.h>

namespace NCheck {
namespace {

/// What a value is, whatever its length.
enum class VSort { Number, Text, Bytes, Unknown };

VSort SortOf(std::wstring_view baseType) {
    struct VRow {
        std::wstring_view baseType;
        VSort sort;
    };
    constexpr VRow kRows[] = {
        {L"A_INT32", VSort::Number},        {L"A_UINT32", VSort::Number},    {L"A_FLOAT32", VSort::Number},
        {L"A_FLOAT64", VSort::Number},      {L"A_ASCIISTRING", VSort::Text}, {L"A_UTF8STRING", VSort::Text},
        {L"A_UNICODE2STRING", VSort::Text}, {L"A_BYTEFIELD", VSort::Bytes},
    };
    auto const* const row = std::find_if(std::begin(kRows), std::end(kRows),
                                         [&](VRow const& candidate) { return candidate.baseType == baseType; });
    return row != std::end(kRows) ? row->sort : VSort::Unknown;
}

bool AreAlike(VSort coded, VSort physical) { return coded == physical; }
bool AreNumbers(VSort coded, VSort physical) { return coded == VSort::Number && physical == VSort::Number; }
bool IsToText(VSort, VSort physical) { return physical == VSort::Text; }

/// What a conversion leads from and to. COMPUCODE does as its code says.
struct VConversionRow {
    std::wstring_view category;
    bool (*fits)(VSort coded, VSort physical);
    char const* wanted;
    bool isInPieces; ///< each scale has its own formula, so that they should cover all between them
};

constexpr char const* kNumbers = "converts numbers to numbers";

// clang-format off
constexpr VConversionRow kConversions[] = {
    {L"IDENTICAL",      &AreAlike,   "changes nothing, so both types must be numbers, texts or byte fields", false},
    {L"LINEAR",         &AreNumbers, kNumbers,                                                               false},
    {L"SCALE-LINEAR",   &AreNumbers, kNumbers,                                                               true},
    {L"TEXTTABLE",      &IsToText,   "converts to texts",                                                    false},
    {L"TAB-INTP",       &AreNumbers, kNumbers,                                                               false},
    {L"RAT-FUNC",       &AreNumbers, kNumbers,                                                               false},
    {L"SCALE-RAT-FUNC", &AreNumbers, kNumbers,                                                               true},
};
// clang-format on

std::string Text(wchar_t const* text) { return NReader::ToUtf8Cut(text); }

std::string Limits(VRange const& range) {
    auto const shown = [](double value) {
        std::string const text = std::to_string(value);
        std::size_t const last = text.find_last_not_of('0');
        return text.substr(0, text[last] == '.' ? last : last + 1);
    };
    return range.lower == range.upper ? shown(range.lower) : shown(range.lower) + " to " + shown(range.upper);
}

class VConversions {
public:
    explicit VConversions(VFindings& findings) : m_findings(findings) {}

    /// A DATA-OBJECT-PROP or a DTC-DOP.
    template <class Dop>
    bool Check(NODX201::VOdxElement& element) {
        auto* const dop = dynamic_cast<Dop*>(&element);
        if (dop == nullptr) {
            return false;
        }
        if (dop->HasCompuMethod() && dop->HasDiagCodedType()) {
            auto& method = dop->GetCompuMethod();
            VCodedType const coded = CodedTypeOf(dop->GetDiagCodedType());
            auto const* const row =
                std::find_if(std::begin(kConversions), std::end(kConversions), [&](VConversionRow const& candidate) {
                    return candidate.category == method.GetCategory();
                });
            if (row != std::end(kConversions)) {
                wchar_t const* const physical = dop->HasPhysicalType() ? dop->GetPhysicalType().GetBaseDataType() : L"";
                CheckTypes(*dop, method, *row, coded, physical);
                CheckScales(method, *row, coded);
            }
        }
        return true;
    }

    void CheckCoefficients(NMemory::VMemCompuRationalCoeffs& coefficients) {
        std::vector<wchar_t const*> const& denominators = coefficients.GetDenominators();
        bool const areZero = std::all_of(denominators.begin(), denominators.end(),
                                         [](wchar_t const* text) { return NumberIn(text) == 0.0; });
        if (areZero && !denominators.empty()) {
            m_findings.Add(PositionOf(coefficients), NCode::DivisionByZero,
                           "COMPU-DENOMINATOR is 0, so every value is divided by zero");
        }
    }

private:
    void CheckTypes(NODX201::VOdxElement& dop, NMemory::VMemCompuMethod& method, VConversionRow const& row,
                    VCodedType const& coded, wchar_t const* physical) {
        VSort const from = SortOf(coded.baseType);
        VSort const to = SortOf(physical);
        if (from != VSort::Unknown && to != VSort::Unknown && !row.fits(from, to)) {
            m_findings.Add(PositionOf(method), NCode::ConversionTypes,
                           Titled(dop) + " converts " + Text(std::wstring(coded.baseType).c_str()) + " to " +
                               Text(physical) + ", but " + Text(method.GetCategory()) + ' ' + row.wanted);
        }
    }

    void CheckScales(NMemory::VMemCompuMethod& method, VConversionRow const& row, VCodedType const& coded) {
        bool const isTable = row.category == L"TEXTTABLE";
        if (SortOf(coded.baseType) != VSort::Number || !(isTable || row.isInPieces) ||
            !method.HasCompuInternalToPhys()) {
            return;
        }
        auto& conversion = method.GetCompuInternalToPhys();
        if (!conversion.HasCompuScalesProgCodeChoice()) {
            return;
        }
        auto* const scales = dynamic_cast<NODX201::VCompuScaleCollection*>(&conversion.GetCompuScalesProgCodeChoice());
        std::vector<VRange> ranges;
        if (scales == nullptr || !TakeRanges(*scales, isTable, ranges)) {
            return;
        }
        std::vector<VNeighbours> const neighbours = NeighboursIn(ranges);
        for (VNeighbours const& pair : neighbours) {
            if (Overlap(pair, isTable)) {
                m_findings.Add(PositionOf(*pair.after->element), NCode::OverlappingScales,
                               "COMPU-SCALE of " + Limits(*pair.after) + " shares values with the one of " +
                                   Limits(*pair.before) + " at line " +
                                   std::to_string(PositionOf(*pair.before->element).line));
            }
        }
        bool const hasRanges =
            std::any_of(ranges.begin(), ranges.end(), [](VRange const& range) { return range.lower != range.upper; });
        if (!conversion.HasCompuDefaultValue() && hasRanges) {
            NoteGaps(neighbours, coded.IsWhole());
        }
    }

    /// Whether all could be read as numbers. Those the wrong way round are reported as such and left out here.
    static bool TakeRanges(NODX201::VCompuScaleCollection& scales, bool isTable, std::vector<VRange>& ranges) {
        for (NODX201::VCompuScale& scale : scales) {
            auto& element = dynamic_cast<NMemory::VMemCompuScale&>(scale);
            auto const range = RangeOf(element, isTable ? VAbsentLimit::SameAsOther : VAbsentLimit::Infinite);
            if (!range.has_value()) {
                return false;
            }
            if (!range->IsReversed()) {
                ranges.push_back(*range);
            }
        }
        return true;
    }

    /// One for all of a conversion.
    void NoteGaps(std::vector<VNeighbours> const& neighbours, bool isWhole) {
        VNeighbours const* first = nullptr;
        std::size_t count = 0;
        for (VNeighbours const& pair : neighbours) {
            if (HaveGap(pair, isWhole)) {
                first = first == nullptr ? &pair : first;
                ++count;
            }
        }
        if (first != nullptr) {
            std::string const more = count > 1 ? ", as there are between others of this COMPU-METHOD" : "";
            m_findings.Add(PositionOf(*first->after->element), NCode::GapBetweenScales,
                           "between the COMPU-SCALEs of " + Limits(*first->before) + " and " + Limits(*first->after) +
                               " are values that none converts" + more);
        }
    }

    VFindings& m_findings;
};

template <class Element>
bool CheckLimits(NODX201::VOdxElement& candidate, VFindings& findings) {
    auto* const element = dynamic_cast<Element*>(&candidate);
    auto const range = element != nullptr ? RangeOf(*element, VAbsentLimit::Infinite) : std::nullopt;
    if (range.has_value() && range->IsReversed()) {
        findings.Add(PositionOf(element->GetLowerLimit()), NCode::LimitsReversed,
                     "LOWER-LIMIT of " + TagOf(candidate) + " is " + Quoted(element->GetLowerLimit().GetText()) +
                         ", which is above the UPPER-LIMIT " + Quoted(element->GetUpperLimit().GetText()) +
                         ", so no value lies between");
    }
    return element != nullptr;
}

void CheckConstraints(NMemory::VMemInternalConstr& constraint, VFindings& findings) {
    std::vector<VRange> ranges;
    for (NODX201::VScaleConstr& scale : constraint.ScaleConstrCollection()) {
        auto const range = RangeOf(dynamic_cast<NMemory::VMemScaleConstr&>(scale), VAbsentLimit::Infinite);
        if (range.has_value() && !range->IsReversed()) {
            ranges.push_back(*range);
        }
    }
    for (VNeighbours const& pair : NeighboursIn(ranges)) {
        if (Overlap(pair, false)) {
            findings.Add(PositionOf(*pair.after->element), NCode::OverlappingScales,
                         "SCALE-CONSTR of " + Limits(*pair.after) + " shares values with the one of " +
                             Limits(*pair.before) + " at line " +
                             std::to_string(PositionOf(*pair.before->element).line));
        }
    }
}

void CheckCases(NMemory::VMemMux& mux, VFindings& findings) {
    std::vector<VRange> ranges;
    for (NODX201::VCase& part : mux.CaseCollection()) {
        auto const range = RangeOf(dynamic_cast<NMemory::VMemCase&>(part), VAbsentLimit::Unknown);
        if (range.has_value() && !range->IsReversed()) {
            ranges.push_back(*range);
        }
    }
    for (VNeighbours const& pair : NeighboursIn(ranges)) {
        if (Overlap(pair, true)) {
            findings.Add(PositionOf(*pair.after->element), NCode::OverlappingCases,
                         Titled(*pair.after->element) + " of " + Limits(*pair.after) + " shares values with " +
                             Quoted(*pair.before->element) + " of " + Limits(*pair.before) + " at line " +
                             std::to_string(PositionOf(*pair.before->element).line));
        }
    }
}

} // namespace

void CheckConversions(VChecked const& checked, VFindings& findings) {
    VConversions conversions(findings);
    for (NODX201::VOdxElement* const element : checked.elements) {
        if (conversions.Check<NMemory::VMemDataObjectProp>(*element) ||
            conversions.Check<NMemory::VMemDtcDop>(*element) ||
            CheckLimits<NMemory::VMemCompuScale>(*element, findings) ||
            CheckLimits<NMemory::VMemScaleConstr>(*element, findings) ||
            CheckLimits<NMemory::VMemCase>(*element, findings)) {
            continue;
        }
        if (auto* const coefficients = dynamic_cast<NMemory::VMemCompuRationalCoeffs*>(element)) {
            conversions.CheckCoefficients(*coefficients);
        } else if (auto* const mux = dynamic_cast<NMemory::VMemMux*>(element)) {
            CheckCases(*mux, findings);
        } else if (CheckLimits<NMemory::VMemInternalConstr>(*element, findings)) {
            CheckConstraints(dynamic_cast<NMemory::VMemInternalConstr&>(*element), findings);
        }
    }
}

} // namespace NCheck
