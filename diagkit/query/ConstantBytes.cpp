// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/ConstantBytes.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <diagkit/check/Numbers.h>
#include <diagkit/query/PartList.h>

namespace NQuery {
namespace {

constexpr std::uint64_t kMostBits = 64; ///< of a number

/// Bits of a coded value, the lowest first: what they are, and which of them are written.
struct VCodedBits {
    std::uint64_t value = 0;
    std::uint64_t written = 0;
};

std::uint64_t LowestBits(std::uint64_t count) {
    return count >= kMostBits ? ~std::uint64_t{0} : (std::uint64_t{1} << count) - 1;
}

/// The constant of a row whose coded type writes a number as plain binary digits.
std::optional<VCodedBits> NumberOf(VLayoutRow const& row) {
    VPartList const parts(*row.codedType);
    wchar_t const* const encoding = parts.Text(L"BASE-TYPE-ENCODING");
    std::array const plain{L"", L"NONE", L"1C", L"2C", L"SM"}; // a number that is not negative is the same in all
    bool const isPlain =
        std::any_of(plain.begin(), plain.end(), [encoding](wchar_t const* word) { return IsTag(encoding, word); });
    std::optional<NCheck::VWhole> const number = NCheck::WholeIn(row.constant);
    if (!isPlain || !number.has_value() || number->isNegative || row.bitLength.least > kMostBits) {
        return std::nullopt;
    }
    VCodedBits bits{number->amount, LowestBits(row.bitLength.least)};
    if (wchar_t const* const mask = parts.Text(L"BIT-MASK"); mask[0] != L'\0') {
        std::optional<NCheck::VWhole> const written = NCheck::WholeIn((std::wstring(L"0x") + mask).c_str());
        bits.written &= written.has_value() ? written->amount : 0;
    }
    bool const fits = (bits.value & ~LowestBits(row.bitLength.least)) == 0;
    return fits ? std::optional(bits) : std::nullopt;
}

class VBytes {
public:
    explicit VBytes(std::size_t count) : m_bytes(count) {}

    void Write(VLayoutRow const& row) {
        wchar_t const* const type = VPartList(*row.codedType).Text(L"BASE-DATA-TYPE");
        bool const isNumber = IsTag(type, L"A_UINT32") || IsTag(type, L"A_INT32");
        bool const isWritten = isNumber ? WriteNumber(row) : IsTag(type, L"A_BYTEFIELD") && WriteHexadecimal(row);
        if (!isWritten) {
            Forget(row);
        }
    }

    /// Bits that depend on data, or that are not known.
    void Forget(VLayoutRow const& row) { SetAll(row, false); }

    /// Bits that are 0.
    void Clear(VLayoutRow const& row) { SetAll(row, true); }

    std::vector<VConstantByte> Take() { return std::move(m_bytes); }

private:
    void SetAll(VLayoutRow const& row, bool isKnown) {
        if (row.bitLength.least <= kMostBits) {
            for (std::uint64_t bit = 0; bit < row.bitLength.least; ++bit) {
                Set(row, bit, isKnown, false);
            }
            return;
        }
        std::uint64_t const end = row.bytePosition.least + (row.bitPosition + row.bitLength.least + 7) / 8;
        for (std::uint64_t place = row.bytePosition.least; place < std::min<std::uint64_t>(end, m_bytes.size());
             ++place) {
            m_bytes[place] = {0, static_cast<std::uint8_t>(isKnown ? 0xFF : 0)};
        }
    }

    void Set(VLayoutRow const& row, std::uint64_t bit, bool isKnown, bool isSet) {
        std::uint64_t const index = row.bitPosition + bit;
        std::uint64_t const lastByte = (row.bitPosition + row.bitLength.least - 1) / 8;
        std::uint64_t const place = row.bytePosition.least + (row.isLowByteFirst ? index / 8 : lastByte - index / 8);
        if (place >= m_bytes.size()) {
            return;
        }
        auto const mask = static_cast<std::uint8_t>(1U << (index % 8));
        VConstantByte& byte = m_bytes[place];
        byte.mask = static_cast<std::uint8_t>(isKnown ? byte.mask | mask : byte.mask & ~mask);
        byte.value = static_cast<std::uint8_t>(isSet ? byte.value | mask : byte.value & ~mask);
    }

    bool WriteNumber(VLayoutRow const& row) {
        std::optional<VCodedBits> const bits = NumberOf(row);
        for (std::uint64_t bit = 0; bits.has_value() && bit < row.bitLength.least; ++bit) {
            if ((bits->written >> bit & 1) != 0) {
                Set(row, bit, true, (bits->value >> bit & 1) != 0);
            }
        }
        return bits.has_value();
    }

    bool WriteHexadecimal(VLayoutRow const& row) {
        std::wstring_view const text(row.constant);
        bool const isHexadecimal = text.find_first_not_of(L"0123456789ABCDEFabcdef") == std::wstring_view::npos;
        if (!isHexadecimal || row.bitPosition != 0 || text.size() * 4 != row.bitLength.least || text.size() % 2 != 0) {
            return false;
        }
        std::size_t place = row.bytePosition.least;
        for (std::size_t at = 0; at < text.size() && place < m_bytes.size(); at += 2, ++place) {
            auto const byte = static_cast<std::uint8_t>(std::stoul(std::wstring(text.substr(at, 2)), nullptr, 16));
            m_bytes[place] = {byte, 0xFF};
        }
        return true;
    }

    std::vector<VConstantByte> m_bytes;
};

/// Whether the rows inside this one may or may not be there.
bool IsOneOfSeveral(VLayoutRole role) {
    return role == VLayoutRole::Case || role == VLayoutRole::Item || role == VLayoutRole::TableRow ||
           role == VLayoutRole::EnvData;
}

bool IsTagged(VLayoutRow const& row, NODX201::VOdxTagEnum tag) {
    return row.role == VLayoutRole::Param && row.element->GetOdxTag() == tag;
}

bool IsConstant(VLayoutRow const& row) {
    return row.constant[0] != L'\0' && row.codedType != nullptr &&
           (IsTagged(row, NODX201::VOdxTagEnum::CodedConst) || IsTagged(row, NODX201::VOdxTagEnum::Reserved));
}

char DigitText(unsigned value, unsigned mask) { return mask == 0xF ? "0123456789ABCDEF"[value] : '.'; }

} // namespace

std::vector<VConstantByte> ConstantBytesOf(VMessageLayout const& layout, std::size_t maxBytes) {
    VBytes bytes(std::min<std::uint64_t>((layout.bitLength.least + 7) / 8, maxBytes));
    std::size_t uncertainDepth = static_cast<std::size_t>(-1); // rows deeper than this may not be there
    for (VLayoutRow const& row : layout.rows) {
        uncertainDepth = row.depth <= uncertainDepth ? static_cast<std::size_t>(-1) : uncertainDepth;
        if (row.depth > uncertainDepth || !row.bytePosition.IsFixed() || !row.bitLength.IsFixed()) {
            continue;
        }
        uncertainDepth = IsOneOfSeveral(row.role) ? row.depth : uncertainDepth;
        if (IsConstant(row)) {
            bytes.Write(row);
        } else if (IsTagged(row, NODX201::VOdxTagEnum::Reserved) && row.constant[0] == L'\0') {
            bytes.Clear(row);
        } else {
            bytes.Forget(row);
        }
    }
    return bytes.Take();
}

std::string ConstantBytesText(VMessageLayout const& layout, std::size_t maxBytes) {
    std::vector<VConstantByte> const bytes = ConstantBytesOf(layout, maxBytes);
    std::string text;
    for (VConstantByte const& byte : bytes) {
        text += text.empty() ? "" : " ";
        text += DigitText(byte.value >> 4U, byte.mask >> 4U);
        text += DigitText(byte.value & 0xFU, byte.mask & 0xFU);
    }
    bool const isWhole = layout.bitLength.IsFixed() && bytes.size() * 8 >= layout.bitLength.least;
    return text + (isWhole ? "" : text.empty() ? "..." : " ...");
}

} // namespace NQuery
