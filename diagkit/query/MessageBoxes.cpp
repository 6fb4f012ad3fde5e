// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <utility>

#include <diagkit/query/Extents.h>
#include <diagkit/query/MessageLayout.h>

namespace NQuery {
namespace {

constexpr unsigned kBits = 8;

/// Rows by the bits that they have.
class VPainting {
public:
    VPainting(VMessageLayout const& layout, std::uint64_t maxBytes) : m_layout(layout), m_maxBytes(maxBytes) {}

    std::vector<VByteBox> Paint() {
        for (std::size_t row = 0; row < m_layout.rows.size(); row = Next(row)) {
            if (m_layout.rows[row].role != VLayoutRole::Param) {
                continue;
            }
            if (!PaintRow(row)) {
                return {};
            }
        }
        std::vector<VByteBox> boxes = FixedBoxes();
        boxes.insert(boxes.end(), m_open.begin(), m_open.end());
        return boxes;
    }

private:
    using VByte = std::vector<std::vector<std::size_t>>; // the rows of each bit, lowest first

    /// Whether the parameters inside a row are painted in its place: those of a structure.
    bool IsEntered(std::size_t row) const {
        std::size_t const next = row + 1;
        return m_layout.rows[row].role == VLayoutRole::Param && next < m_layout.rows.size() &&
               m_layout.rows[next].depth > m_layout.rows[row].depth && m_layout.rows[next].role == VLayoutRole::Param;
    }

    std::size_t Next(std::size_t row) const {
        std::size_t next = row + 1;
        while (!IsEntered(row) && next < m_layout.rows.size() && m_layout.rows[next].depth > m_layout.rows[row].depth) {
            ++next;
        }
        return next;
    }

    /// False where there are more bytes than wanted.
    bool PaintRow(std::size_t number) {
        VLayoutRow const& row = m_layout.rows[number];
        if (IsEntered(number)) {
            return true;
        }
        std::uint64_t const end = Plus(row.bitPosition, row.bitLength.least);
        std::uint64_t const bytes = (end + kBits - 1) / kBits;
        if (Plus(row.bytePosition.least, bytes) > m_maxBytes || m_open.size() > m_maxBytes) {
            return false;
        }
        if (!row.bytePosition.IsFixed() || !row.bitLength.IsFixed()) {
            m_open.push_back(OpenBox(number, bytes));
            return true;
        }
        for (std::uint64_t bit = row.bitPosition; bit < end; ++bit) {
            std::uint64_t const inLowFirst = bit / kBits;
            std::uint64_t const byte = row.isLowByteFirst ? inLowFirst : bytes - 1 - inLowFirst;
            Bit(row.bytePosition.least + byte, bit % kBits).push_back(number);
        }
        return true;
    }

    VByteBox OpenBox(std::size_t number, std::uint64_t bytes) const {
        VLayoutRow const& row = m_layout.rows[number];
        VByteBox box;
        if (row.bytePosition.IsFixed()) {
            box.first = row.bytePosition.least;
            if (row.bitLength.IsFixed() && bytes > 0) {
                box.last = *box.first + bytes - 1;
            }
        }
        box.runs.push_back({kBits - 1, 0, {number}});
        return box;
    }

    std::vector<std::size_t>& Bit(std::uint64_t byte, std::uint64_t bit) {
        if (byte >= m_bytes.size()) {
            m_bytes.resize(byte + 1, VByte(kBits));
        }
        return m_bytes[byte][bit];
    }

    static VByteBox BoxOf(std::uint64_t number, VByte const& byte) {
        VByteBox box{number, number, {}};
        for (unsigned bit = kBits; bit-- > 0;) {
            if (box.runs.empty() || box.runs.back().rows != byte[bit]) {
                box.runs.push_back({bit, bit, byte[bit]});
            }
            box.runs.back().lowest = bit;
        }
        return box;
    }

    std::vector<VByteBox> FixedBoxes() const {
        std::vector<VByteBox> boxes;
        for (std::uint64_t number = 0; number < m_bytes.size(); ++number) {
            VByteBox box = BoxOf(number, m_bytes[number]);
            bool const isOfOne = !boxes.empty() && box.runs.size() == 1 && boxes.back().runs.size() == 1 &&
                                 boxes.back().runs.front().rows == box.runs.front().rows;
            if (isOfOne) {
                boxes.back().last = number;
            } else {
                boxes.push_back(std::move(box));
            }
        }
        return boxes;
    }

    VMessageLayout const& m_layout;
    std::uint64_t m_maxBytes;
    std::vector<VByte> m_bytes;
    std::vector<VByteBox> m_open; // what has no fixed place or length
};

} // namespace

std::vector<VByteBox> BoxesOf(VMessageLayout const& layout, std::uint64_t maxBytes) {
    return VPainting(layout, maxBytes).Paint();
}

} // namespace NQuery
