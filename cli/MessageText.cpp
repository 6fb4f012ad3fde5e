// SPDX-License-Identifier: Apache-2.0
#include <cli/MessageText.h>

#include <algorithm>
#include <array>
#include <unordered_map>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <cli/Columns.h>
#include <cli/Text.h>
#include <cli/ValueText.h>
#include <diagkit/query/Content.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

using NQuery::VLayoutGap;
using NQuery::VLayoutRole;
using NQuery::VLayoutRow;
using NQuery::VMessageLayout;

constexpr std::size_t kMostTexts = 16; // of a DOP at one parameter; the DOP itself has all

/// A text of an element by its name in XML; "" without one.
std::string PartText(NODX201::VOdxElement& element, std::wstring_view tag) {
    std::string text;
    NQuery::ForEachPartOf(element, [&](NQuery::VContentPart const& part) {
        bool const isText = part.role == NQuery::VPartRole::Text || part.role == NQuery::VPartRole::Attribute;
        text = isText && part.tag == tag && text.empty() ? Shown(std::wstring_view(part.text)) : text;
    });
    return text;
}

/// What a reference names: an ID or a short name.
std::string NamedBy(NODX201::VLink& reference) {
    std::string const id = PartText(reference, L"ID-REF");
    return id.empty() ? PartText(reference, L"SHORT-NAME") : id;
}

/// Limits or trouble codes under which something stands there.
std::string ConditionOf(NODX201::VOdxElement& element) {
    NQuery::VBound lower;
    NQuery::VBound upper;
    std::vector<std::string> codes;
    bool isForAll = false;
    NQuery::ForEachPartOf(element, [&](NQuery::VContentPart const& part) {
        std::wstring_view const tag = part.tag;
        isForAll = isForAll || tag == L"ALL-VALUE";
        if (tag != L"LOWER-LIMIT" && tag != L"UPPER-LIMIT" && tag != L"DTC-VALUES") {
            return;
        }
        NQuery::VBound& bound = tag == L"LOWER-LIMIT" ? lower : upper;
        NQuery::ForEachPartOf(*part.element, [&](NQuery::VContentPart const& inside) {
            if (tag == L"DTC-VALUES") {
                codes.push_back(Shown(std::wstring_view(inside.text)));
            } else {
                (inside.role == NQuery::VPartRole::OwnText ? bound.text : bound.intervalType) = inside.text;
            }
        });
    });
    if (isForAll) {
        return "for every trouble code";
    }
    if (!codes.empty()) {
        return Cut(fmt::format("for trouble code {}", fmt::join(codes, ", ")));
    }
    std::string const range = RangeText(lower, upper);
    return range.empty() ? "" : "for key " + range;
}

std::string KindOfRow(VLayoutRow const& row) {
    static constexpr std::array kRoles{"", "key", "case", "count", "items", "end mark", "row", "env data"};
    std::string const role = kRoles[static_cast<std::size_t>(row.role)];
    return role.empty() ? NReader::ToUtf8(NODX201::OdxTypeText(row.element->GetOdxTag())) : role;
}

/// What stands in the last column: what the value is, and what certain values mean.
struct VContent {
    std::string head{};
    std::vector<std::string> texts{};
};

class VContents {
public:
    VContent Of(VLayoutRow const& row) {
        VContent content{HeadOf(row)};
        if (row.gap == VLayoutGap::Broken && row.reference != nullptr) {
            content.texts.push_back(fmt::format("'{}' has no target", NamedBy(*row.reference)));
        } else if (row.gap == VLayoutGap::Cycle || row.gap == VLayoutGap::TooDeep) {
            bool const isCycle = row.gap == VLayoutGap::Cycle;
            content.texts.emplace_back(isCycle ? "inside itself: not repeated" : "too deep: left out");
        }
        if (row.role == VLayoutRole::Param && row.dop != nullptr) {
            AddValues(*row.dop, content);
        }
        return content;
    }

private:
    static std::string CountOf(VLayoutRow const& row) {
        return row.count.most == std::nullopt && row.count.least == 0 ? "any number of "
                                                                      : ExtentText(row.count) + " of ";
    }

    std::string HeadOf(VLayoutRow const& row) {
        std::vector<std::string> parts;
        std::string const constant =
            *row.constant == L'\0' ? "" : CodedText(row.constant, row.codedType, row.bitLength);
        bool const isCoded = row.dop == nullptr;
        if (!constant.empty()) {
            parts.push_back(isCoded ? constant : Shown(std::wstring_view(row.constant)));
        }
        if (row.role == VLayoutRole::Param && row.element->GetOdxTag() == NODX201::VOdxTagEnum::MatchingRequestParam) {
            parts.push_back("as in the request, byte " + PartText(*row.element, L"REQUEST-BYTE-POS"));
        }
        for (auto const& [tag, words] :
             {std::pair(L"SYSPARAM", "system's "), std::pair(L"PHYSICAL-DEFAULT-VALUE", "default ")}) {
            std::string const text = row.role == VLayoutRole::Param ? PartText(*row.element, tag) : "";
            if (!text.empty()) {
                parts.push_back(words + text);
            }
        }
        NODX201::VOdxElement* const target = row.dop != nullptr ? row.dop : row.target;
        if (target != nullptr && target != row.element) {
            std::string const count = row.role == VLayoutRole::Item ? CountOf(row) : "";
            std::string const tag =
                target->GetOdxTag() == NODX201::VOdxTagEnum::DataObjectProp ? "" : TagTextOf(*target) + " ";
            parts.push_back(count + tag + ShownName(*target));
        }
        if (std::string const condition =
                row.role == VLayoutRole::Case || row.role == VLayoutRole::EnvData ? ConditionOf(*row.element) : "";
            !condition.empty()) {
            parts.insert(parts.begin(), condition);
        }
        return fmt::format("{}", fmt::join(parts, ", "));
    }

    void AddValues(NODX201::VOdxElement& dop, VContent& content) {
        auto const [known, isNew] = m_values.try_emplace(&dop);
        if (isNew) {
            known->second = NQuery::ValuesOf(dop);
        }
        NQuery::VDopValues const& values = known->second;
        std::string const range = RangeText(values.lower, values.upper);
        content.head += range.empty() ? "" : ", " + range;
        content.head += *values.unitName != L'\0' ? " [" + Shown(std::wstring_view(values.unitName)) + "]" : "";
        content.head += values.unitReference != nullptr && values.unit == nullptr ? ", unit not found" : "";
        std::vector<std::string> const texts = TextsOf(values, kMostTexts);
        content.texts.insert(content.texts.end(), texts.begin(), texts.end());
    }

    std::unordered_map<NODX201::VOdxElement*, NQuery::VDopValues> m_values; // many parameters may share a DOP
};

/// Lines of columns whose last one is wrapped.
class VRowLines {
public:
    using VCells = std::array<std::string, 4>;

    void Measure(VCells const& cells) {
        static constexpr std::array<std::size_t, 4> kWidest{9, 9, 26, 22};
        for (std::size_t column = 0; column < cells.size(); ++column) {
            std::size_t const width = WidthOf(cells[column]);
            if (width <= kWidest[column]) {
                m_widths[column] = std::max(m_widths[column], width);
            }
        }
    }

    std::string Format(VCells const& cells, VContent const& content) const {
        std::string text = "  ";
        std::size_t place = 0; // where the cell starts if those before it are not too long
        std::size_t at = 0;
        for (std::size_t column = 0; column < cells.size(); ++column) {
            std::size_t const start = column == 0 ? 0 : std::max(place, at + 2);
            text.append(start - at, ' ').append(cells[column]);
            at = start + WidthOf(cells[column]);
            place += m_widths[column] + 2;
        }
        return text + Content(content, place, at);
    }

private:
    static constexpr std::size_t kInner = kPageWidth - 2; // without the indent

    /// In the last column as far as there is room, the rest on lines of its own.
    std::string Content(VContent const& content, std::size_t place, std::size_t at) const {
        constexpr std::size_t kRightmost = 50;
        std::size_t const own = place <= kRightmost ? place + 2 : m_widths[0] + m_widths[1] + 8;
        std::size_t const start = std::max(place, at + 2);
        std::string const joined = fmt::format("{}", fmt::join(content.texts, "; "));
        std::string const whole = content.head + (content.head.empty() || joined.empty() ? "" : ": ") + joined;
        if (start + WidthOf(whole) <= kInner) {
            return whole.empty() ? "\n" : std::string(start - at, ' ') + whole + "\n";
        }
        bool const isHeadHere = start + WidthOf(content.head) <= kInner;
        std::string text = isHeadHere && !content.head.empty() ? std::string(start - at, ' ') + content.head : "";
        text += "\n" + (isHeadHere ? "" : Lines(content.head, own));
        if (own + WidthOf(joined) <= kInner) {
            return text + Lines(joined, own);
        }
        for (std::string const& line : content.texts) {
            text += Lines(line, own);
        }
        return text;
    }

    static std::string Lines(std::string const& text, std::size_t start) {
        std::string lines;
        for (std::string const& piece : Wrapped(text, kInner - start)) {
            lines += "  " + std::string(start, ' ') + piece + "\n";
        }
        return lines;
    }

    std::array<std::size_t, 4> m_widths{};
};

std::string PositionText(VLayoutRow const& row) {
    std::string const bit = row.bitPosition != 0 ? fmt::format(".{}", row.bitPosition) : "";
    return ExtentText(row.bytePosition) + bit;
}

VRowLines::VCells CellsOf(VLayoutRow const& row) {
    constexpr std::size_t kDeepest = 12;
    std::string const indent(2 * std::min(row.depth, kDeepest), ' ');
    std::string const mark = row.depth > kDeepest ? fmt::format("[{}] ", row.depth) : "";
    bool const isNamed = *row.element->GetShortName() != L'\0' && row.role != VLayoutRole::Item;
    return {PositionText(row), ExtentText(row.bitLength), indent + mark + (isNamed ? ShownName(*row.element) : "-"),
            KindOfRow(row)};
}

// Pictures.

constexpr std::size_t kBitWidth = 8; // of a bit with the line after it
constexpr std::size_t kMargin = 9;

std::string Fitted(std::string text, std::size_t width) {
    if (WidthOf(text) > width) {
        while (WidthOf(text) >= width) {
            char last = '\0';
            do { // a character of UTF-8 ends with several such units
                last = text.back();
                text.pop_back();
            } while ((last & '\xC0') == '\x80');
        }
        text += '~';
    }
    return text + std::string(width - std::min(width, WidthOf(text)), ' ');
}

std::string LabelOf(VMessageLayout const& layout, NQuery::VBitRun const& run) {
    std::vector<std::string> names;
    for (std::size_t const number : run.rows) {
        VLayoutRow const& row = layout.rows[number];
        bool const isConstant = *row.constant != L'\0' && row.dop == nullptr;
        std::string const constant = isConstant ? CodedText(row.constant, row.codedType, row.bitLength) : "";
        names.push_back(ShownName(*row.element) + (constant.empty() ? "" : " = " + constant));
    }
    return fmt::format("{}", fmt::join(names, " / "));
}

std::string BytesText(NQuery::VByteBox const& box) {
    if (!box.first.has_value()) {
        return "...";
    }
    if (!box.last.has_value()) {
        return fmt::format("{}+", *box.first);
    }
    return *box.first == *box.last ? fmt::format("{}", *box.first) : fmt::format("{}-{}", *box.first, *box.last);
}

std::string BoxLine(VMessageLayout const& layout, NQuery::VByteBox const& box) {
    std::string line = fmt::format("{:>{}} |", BytesText(box), kMargin - 2);
    for (NQuery::VBitRun const& run : box.runs) {
        std::size_t const width = kBitWidth * (run.highest - run.lowest + 1) - 1;
        line += " " + Fitted(LabelOf(layout, run), width - 1) + "|";
    }
    return line + "\n";
}

/// The line between two boxes, with a corner wherever one of them has a border.
std::string Border(NQuery::VByteBox const* above, NQuery::VByteBox const* below) {
    std::string line(8 * kBitWidth + 1, '-');
    for (NQuery::VByteBox const* const box : {above, below}) {
        for (std::size_t index = 0; box != nullptr && index < box->runs.size(); ++index) {
            line[(7 - box->runs[index].highest) * kBitWidth] = '+';
        }
    }
    line.back() = '+';
    return std::string(kMargin - 1, ' ') + line + "\n";
}

} // namespace

void WriteRows(VMessageLayout const& layout, VOutput& output) {
    if (layout.rows.empty()) {
        output.Write("  no parameters\n");
        return;
    }
    VRowLines lines;
    VRowLines::VCells const head{"Byte", "Bits", "Name", "Kind"};
    lines.Measure(head);
    for (VLayoutRow const& row : layout.rows) {
        lines.Measure(CellsOf(row));
    }
    output.Write(lines.Format(head, {"Value", {}}));
    VContents contents;
    for (VLayoutRow const& row : layout.rows) {
        output.Write(lines.Format(CellsOf(row), contents.Of(row)));
    }
}

void WritePicture(VMessageLayout const& layout, VOutput& output) {
    constexpr std::uint64_t kMostBytes = 16;
    std::vector<NQuery::VByteBox> const boxes = NQuery::BoxesOf(layout, kMostBytes);
    if (boxes.empty()) {
        return;
    }
    std::string picture = "\n" + std::string(kMargin - 1, ' ');
    for (int bit = 7; bit >= 0; --bit) {
        picture += fmt::format("{:>5}{}", bit, bit == 0 ? "" : "   ");
    }
    picture += "\n";
    NQuery::VByteBox const* above = nullptr;
    for (NQuery::VByteBox const& box : boxes) {
        picture += Border(above, &box) + BoxLine(layout, box);
        above = &box;
    }
    output.Write(picture + Border(above, nullptr));
}

} // namespace NCli
