// SPDX-License-Identifier: Apache-2.0
#include <optional>
#include <string>
#include <string_view>

#include <diagkit/check/CodedTypes.h>
#include <diagkit/check/Numbers.h>
#include <diagkit/check/Topics.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Params.h>

namespace NCheck {
namespace {

using VLength = std::optional<std::uint64_t>;

/// The amounts that a whole number of so many bits can have.
struct VAmounts {
    std::uint64_t negative; ///< the largest below zero
    std::uint64_t positive; ///< the largest above
};

std::uint64_t AllOnes(std::uint64_t bits) { return bits >= 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << bits) - 1; }

/// The largest number of so many decimal digits.
std::uint64_t AllNines(std::uint64_t digits) {
    std::uint64_t number = 0;
    for (std::uint64_t digit = 0; digit < digits && digit < 19; ++digit) {
        number = number * 10 + 9;
    }
    return digits < 20 ? number : ~std::uint64_t{0};
}

VAmounts AmountsOf(VCodedType const& type, std::uint64_t bits) {
    if (type.encoding == L"BCD-P") {
        return {0, AllNines(bits / 4)};
    }
    if (type.encoding == L"BCD-UP") {
        return {0, AllNines(bits / 8)};
    }
    if (type.baseType == L"A_UINT32") {
        return {0, AllOnes(bits)};
    }
    std::uint64_t const most = bits > 0 ? AllOnes(bits - 1) : 0;
    bool const hasTwoZeros = type.encoding == L"1C" || type.encoding == L"SM";
    return {most + (hasTwoZeros || bits == 0 ? 0 : 1), most};
}

/// The bits that a text takes in its encoding; nothing where it takes a table to say so.
VLength BitsOf(std::wstring_view text, VCodedType const& type) {
    std::uint64_t units = 0;
    for (wchar_t const character : text) {
        auto const code = static_cast<std::uint32_t>(character);
        if (type.baseType == L"A_UTF8STRING") {
            units += code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
        } else {
            units += code < 0x10000 ? 1 : 2;
        }
    }
    return units * (type.baseType == L"A_UNICODE2STRING" ? 16 : 8);
}

/// The bits of a byte field, which is written in hexadecimal digits.
VLength BitsOfDigits(std::wstring_view digits) {
    if (digits.find_first_not_of(L"0123456789abcdefABCDEF") != std::wstring_view::npos) {
        return std::nullopt;
    }
    return (digits.size() + 1) / 2 * 8;
}

/// The most bits that a value of the type has, where that is known.
VLength MostBits(VCodedType const& type) {
    if (type.minMax == nullptr) {
        return type.Bits();
    }
    auto const bytes = LengthIn(type.minMax->GetMaxLength());
    return bytes.has_value() ? VLength(*bytes * 8) : std::nullopt;
}

/// What is wrong with a text as a value of a type; "" for nothing, and where nothing is certain.
std::string Fault(VCodedType const& type, VLength most, wchar_t const* text) {
    if (*text == L'\0' || !most.has_value()) {
        return "";
    }
    std::string const room = " the " + std::to_string(*most) + " bits of its type, " +
                             NReader::ToUtf8Cut(std::wstring(type.baseType).c_str());
    if (type.IsWhole()) {
        auto const number = WholeIn(text);
        if (!number.has_value()) {
            return NumberIn(text).has_value() ? "" : "is no whole number";
        }
        VAmounts const amounts = AmountsOf(type, *most);
        bool const fits = number->amount <= (number->isNegative ? amounts.negative : amounts.positive);
        std::string const encoding =
            type.encoding.empty() ? "" : " in " + NReader::ToUtf8Cut(std::wstring(type.encoding).c_str());
        return fits ? "" : "does not fit into" + room + encoding;
    }
    VLength const bits = type.IsBytes() ? BitsOfDigits(text) : type.IsText() ? BitsOf(text, type) : std::nullopt;
    return bits.has_value() && *bits > *most ? "is longer than" + room : "";
}

class VConstants {
public:
    explicit VConstants(VFindings& findings) : m_findings(findings) {}

    void Check(NODX201::VOdxElement& element) {
        if (auto* const constant = dynamic_cast<NMemory::VMemCodedConst*>(&element)) {
            if (constant->HasDiagCodedType()) {
                VCodedType const type = CodedTypeOf(constant->GetDiagCodedType());
                Judge(*constant, "CODED-VALUE", constant->GetCodedValue(), type, MostBits(type));
            }
        } else if (auto* const reserved = dynamic_cast<NMemory::VMemReserved*>(&element)) {
            VCodedType type;
            type.baseType = L"A_UINT32";
            if (reserved->HasDiagCodedType()) {
                type = CodedTypeOf(reserved->GetDiagCodedType());
            }
            Judge(*reserved, "CODED-VALUE", reserved->GetCodedValue(), type, LengthIn(reserved->GetBitLength()));
        } else if (auto* const dop = dynamic_cast<NMemory::VMemDtcDop*>(&element)) {
            CheckTroubleCodes(*dop);
        }
    }

private:
    /// Those of the DTC-DOP itself: what a DTC-REF names stands in another one, which has its own type.
    void CheckTroubleCodes(NMemory::VMemDtcDop& dop) {
        bool const isPlain =
            !dop.HasCompuMethod() || std::wstring_view(dop.GetCompuMethod().GetCategory()) == L"IDENTICAL";
        if (!dop.HasDiagCodedType() || !isPlain) {
            return;
        }
        VCodedType const type = CodedTypeOf(dop.GetDiagCodedType());
        for (NODX201::IDtcProxy& proxy : dop.DtcProxyCollection()) {
            if (auto* const dtc = dynamic_cast<NMemory::VMemDtc*>(&proxy)) {
                Judge(*dtc, "TROUBLE-CODE", dtc->GetTroubleCode(), type, MostBits(type));
            }
        }
    }

    void Judge(NODX201::VOdxElement& element, char const* what, wchar_t const* text, VCodedType const& type,
               VLength most) {
        if (std::string const fault = Fault(type, most, text); !fault.empty()) {
            m_findings.Add(PositionOf(element), NCode::ConstantDoesNotFit,
                           std::string(what) + " of " + Titled(element) + " is " + Quoted(text) + ", which " + fault);
        }
    }

    VFindings& m_findings;
};

} // namespace

void CheckConstants(VChecked const& checked, VFindings& findings) {
    VConstants constants(findings);
    for (NODX201::VOdxElement* const element : checked.elements) {
        constants.Check(*element);
    }
}

} // namespace NCheck
