// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include <diagkit/memory/Compu.h>

namespace NCheck {

/// What the four kinds of DIAG-CODED-TYPE say, as far as the kind has it. The texts are views of the database's.
struct VCodedType {
    std::wstring_view baseType;
    std::wstring_view encoding; ///< "" where none is said
    bool isHighLow = true;      ///< the most significant byte comes first
    bool isMasked = false;      ///< BIT-MASK takes some of the bits only

    NMemory::VMemStandardLengthType* standard = nullptr;
    NMemory::VMemLeadingLengthInfoType* leading = nullptr;
    NMemory::VMemMinMaxLengthType* minMax = nullptr;
    NMemory::VMemParamLengthInfoType* byParam = nullptr;

    bool IsWhole() const { return baseType == L"A_INT32" || baseType == L"A_UINT32"; }
    bool IsBytes() const { return baseType == L"A_BYTEFIELD"; }
    bool IsText() const;

    /// The bits that every value takes; nothing where that differs from value to value.
    std::optional<std::uint64_t> Bits() const;
};

VCodedType CodedTypeOf(NODX201::VDiagCodedType& type);

} // namespace NCheck
