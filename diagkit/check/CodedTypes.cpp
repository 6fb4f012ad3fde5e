// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/CodedTypes.h>

#include <string>

#include <diagkit/check/Numbers.h>
#include <diagkit/check/Topics.h>

namespace NCheck {
namespace {

template <class Kind>
Kind* TakeKind(NODX201::VDiagCodedType& type, VCodedType& taken) {
    auto* const kind = dynamic_cast<Kind*>(&type);
    if (kind != nullptr) {
        taken.baseType = kind->GetBaseDataType();
        taken.encoding = kind->GetBaseTypeEncoding();
        taken.isHighLow = kind->IsHighlowByteOrder();
    }
    return kind;
}

/// What a base type asks of a BIT-LENGTH.
struct VLengthRow {
    std::wstring_view baseType;
    std::uint64_t least;
    std::uint64_t most;
    std::uint64_t step; ///< it is a multiple of this
    char const* wanted;
};

constexpr std::uint64_t kAny = std::uint64_t{1} << 40;

// clang-format off
constexpr VLengthRow kLengths[] = {
    {L"A_INT32",          1,  64,   1,  "1 to 64 bits"},
    {L"A_UINT32",         1,  64,   1,  "1 to 64 bits"},
    {L"A_FLOAT32",        32, 32,   1,  "32 bits"},
    {L"A_FLOAT64",        64, 64,   1,  "64 bits"},
    {L"A_ASCIISTRING",    8,  kAny, 8,  "whole bytes"},
    {L"A_UTF8STRING",     8,  kAny, 8,  "whole bytes"},
    {L"A_UNICODE2STRING", 16, kAny, 16, "whole characters of 16 bits"},
    {L"A_BYTEFIELD",      8,  kAny, 8,  "whole bytes"},
};

/// Which base types an encoding is for.
struct VEncodingRow {
    std::wstring_view encoding;
    std::wstring_view baseType;
};

constexpr VEncodingRow kEncodings[] = {
    {L"BCD-P",        L"A_UINT32"},
    {L"BCD-UP",       L"A_UINT32"},
    {L"1C",           L"A_INT32"},
    {L"2C",           L"A_INT32"},
    {L"SM",           L"A_INT32"},
    {L"UTF-8",        L"A_UTF8STRING"},
    {L"UCS-2",        L"A_UNICODE2STRING"},
    {L"ISO-8859-1",   L"A_ASCIISTRING"},
    {L"ISO-8859-2",   L"A_ASCIISTRING"},
    {L"WINDOWS-1252", L"A_ASCIISTRING"},
};
// clang-format on

std::string Text(std::wstring_view text) { return NReader::ToUtf8Cut(std::wstring(text).c_str()); }

void CheckLength(NODX201::VDiagCodedType const& element, VCodedType const& type, VFindings& findings) {
    auto const length = type.standard != nullptr ? LengthIn(type.standard->GetBitLength()) : std::nullopt;
    if (!length.has_value()) {
        return;
    }
    for (VLengthRow const& row : kLengths) {
        bool const fits = *length >= row.least && *length <= row.most && *length % row.step == 0;
        if (row.baseType == type.baseType && !fits) {
            findings.Add(PositionOf(element), NCode::CodedLength,
                         "BIT-LENGTH is " + std::to_string(*length) + ", but a value of " + Text(type.baseType) +
                             " takes " + row.wanted);
        }
    }
}

void CheckEncoding(NODX201::VDiagCodedType const& element, VCodedType const& type, VFindings& findings) {
    for (VEncodingRow const& row : kEncodings) {
        if (row.encoding == type.encoding && row.baseType != type.baseType && !type.baseType.empty()) {
            findings.Add(PositionOf(element), NCode::EncodingType,
                         "BASE-TYPE-ENCODING is " + Text(row.encoding) + ", which is for " + Text(row.baseType) +
                             ", but BASE-DATA-TYPE is " + Text(type.baseType));
        }
    }
}

/// MIN-LENGTH and MAX-LENGTH, and what else says a least and a most.
void CheckRange(NODX201::VOdxElement const& element, char const* least, wchar_t const* min, char const* most,
                wchar_t const* max, VFindings& findings) {
    auto const minimum = LengthIn(min);
    auto const maximum = LengthIn(max);
    if (minimum.has_value() && maximum.has_value() && *minimum > *maximum) {
        findings.Add(PositionOf(element), NCode::LengthRange,
                     std::string(least) + " is " + std::to_string(*minimum) + " and " + most + " only " +
                         std::to_string(*maximum) + ", so no value fits");
    }
}

template <class Element>
bool CheckBit(NODX201::VOdxElement& candidate, VFindings& findings) {
    auto* const element = dynamic_cast<Element*>(&candidate);
    auto const bit = element != nullptr ? LengthIn(element->GetBitPosition()) : std::nullopt;
    if (bit.has_value() && *bit > 7) {
        std::string const title = *candidate.GetShortName() != L'\0' ? Titled(candidate) : TagOf(candidate);
        findings.Add(PositionOf(candidate), NCode::BitPosition,
                     title + " has the BIT-POSITION " + std::to_string(*bit) +
                         ", but bits count from 0 to 7 in the byte that BYTE-POSITION names");
    }
    return element != nullptr;
}

/// Tries the classes that have a BIT-POSITION one after the other.
template <class... Elements>
void CheckBits(NODX201::VOdxElement& element, VFindings& findings) {
    static_cast<void>((CheckBit<Elements>(element, findings) || ...));
}

} // namespace

bool VCodedType::IsText() const {
    return baseType == L"A_ASCIISTRING" || baseType == L"A_UTF8STRING" || baseType == L"A_UNICODE2STRING";
}

std::optional<std::uint64_t> VCodedType::Bits() const {
    if (standard != nullptr) {
        return LengthIn(standard->GetBitLength());
    }
    if (minMax == nullptr || std::wstring_view(minMax->GetTermination()) != L"END-OF-PDU") {
        return std::nullopt;
    }
    auto const least = LengthIn(minMax->GetMinLength());
    auto const most = LengthIn(minMax->GetMaxLength());
    return least.has_value() && least == most ? std::optional<std::uint64_t>(*least * 8) : std::nullopt;
}

VCodedType CodedTypeOf(NODX201::VDiagCodedType& type) {
    VCodedType taken;
    taken.standard = TakeKind<NMemory::VMemStandardLengthType>(type, taken);
    taken.leading = TakeKind<NMemory::VMemLeadingLengthInfoType>(type, taken);
    taken.minMax = TakeKind<NMemory::VMemMinMaxLengthType>(type, taken);
    taken.byParam = TakeKind<NMemory::VMemParamLengthInfoType>(type, taken);
    taken.isMasked = taken.standard != nullptr && *taken.standard->GetBitMask() != L'\0';
    return taken;
}

void CheckCodedTypes(VChecked const& checked, VFindings& findings) {
    for (NODX201::VOdxElement* const element : checked.elements) {
        if (auto* const coded = dynamic_cast<NODX201::VDiagCodedType*>(element)) {
            VCodedType const type = CodedTypeOf(*coded);
            CheckLength(*coded, type, findings);
            CheckEncoding(*coded, type, findings);
            if (type.minMax != nullptr) {
                CheckRange(*coded, "MIN-LENGTH", type.minMax->GetMinLength(), "MAX-LENGTH", type.minMax->GetMaxLength(),
                           findings);
            }
        } else if (auto* const field = dynamic_cast<NMemory::VMemEndOfPduField*>(element)) {
            CheckRange(*field, "MIN-NUMBER-OF-ITEMS", field->GetMinNumberOfItems(), "MAX-NUMBER-OF-ITEMS",
                       field->GetMaxNumberOfItems(), findings);
        } else {
            CheckBits<NMemory::VMemValue, NMemory::VMemCodedConst, NMemory::VMemMatchingRequestParam,
                      NMemory::VMemReserved, NMemory::VMemPhysConst, NMemory::VMemLengthKey, NMemory::VMemSystem,
                      NMemory::VMemTableKey, NMemory::VMemTableStruct, NMemory::VMemTableEntry, NMemory::VMemDynamic,
                      NMemory::VMemSwitchKey, NMemory::VMemDetermineNumberOfItems>(*element, findings);
        }
    }
}

} // namespace NCheck
