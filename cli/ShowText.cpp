// SPDX-License-Identifier: Apache-2.0
#include <cli/ShowText.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <cli/Columns.h>
#include <cli/InheritedKinds.h>
#include <cli/Layers.h>
#include <cli/MessageText.h>
#include <cli/Text.h>
#include <cli/ValueText.h>
#include <cli/ViewText.h>
#include <diagkit/query/Content.h>
#include <diagkit/query/DopValues.h>

namespace NCli {
namespace {

using NQuery::VContentPart;
using NQuery::VPartRole;

/// A line of what an element holds: a name and a value, indented.
struct VTextLine {
    std::size_t depth;
    std::string name;
    std::string value;
};

bool IsOneOf(std::wstring_view tag, std::initializer_list<std::wstring_view> tags) {
    return std::find(tags.begin(), tags.end(), tag) != tags.end();
}

/// What is told elsewhere: in the heading, as a layout or as values.
bool IsToldElsewhere(NODX201::VOdxElement& element, VContentPart const& part) {
    std::wstring_view const tag = part.tag;
    if (IsOneOf(tag, {L"SHORT-NAME", L"ID", L"xsi:type"})) {
        return true;
    }
    bool const isValue = IsOneOf(tag, {L"COMPU-METHOD", L"DIAG-CODED-TYPE", L"PHYSICAL-TYPE", L"INTERNAL-CONSTR",
                                       L"UNIT-REF", L"DTC", L"DTC-REF"});
    bool const isLaidOut = IsOneOf(tag, {L"PARAM", L"TABLE-ROW", L"TABLE-ROW-REF", L"CASE", L"DEFAULT-CASE",
                                         L"SWITCH-KEY", L"DETERMINE-NUMBER-OF-ITEMS", L"ENV-DATA", L"ENV-DATA-REF"});
    bool const isMessage = IsOneOf(tag, {L"REQUEST-REF", L"POS-RESPONSE-REF", L"NEG-RESPONSE-REF"});
    bool const isSimple = dynamic_cast<NODX201::VDataObjectProp*>(&element) != nullptr ||
                          dynamic_cast<NODX201::VDtcDop*>(&element) != nullptr;
    bool const isService = dynamic_cast<NODX201::VDiagService*>(&element) != nullptr;
    return (isValue && isSimple) || (isLaidOut && NQuery::HasLayout(element)) || (isMessage && isService);
}

/// The parts of an element as lines, with all that is in it.
class VTree {
public:
    explicit VTree(NODX201::VDiagLayer* layer) : m_layer(layer) {}

    void Add(NODX201::VOdxElement& element, std::size_t depth) {
        if (depth > kDeepest) {
            m_lines.push_back({depth, "...", "deeper elements are left out"});
            return;
        }
        bool const isAudience = dynamic_cast<NODX201::VAudience*>(&element) != nullptr;
        if (isAudience) {
            AddAudience(element);
        }
        std::vector<VContentPart> parts;
        NQuery::ForEachPartOf(element, [&](VContentPart const& part) {
            if (depth != 0 || !IsToldElsewhere(element, part)) {
                parts.push_back(part);
            }
        });
        std::stable_partition(parts.begin(), parts.end(), [](VContentPart const& part) { // for people first
            return IsOneOf(part.tag, {L"LONG-NAME", L"DESC"});
        });
        for (VContentPart const& part : parts) {
            AddPart(part, depth);
        }
        if (!isAudience) {
            AddFlags(element, depth);
        }
    }

    void Write(VOutput& output) const {
        std::size_t width = 0;
        constexpr std::size_t kWidest = 30;
        for (VTextLine const& line : m_lines) {
            std::size_t const own = 2 * line.depth + WidthOf(line.name);
            width = std::max(width, own <= kWidest && !line.value.empty() ? own : 0);
        }
        for (VTextLine const& line : m_lines) {
            output.Write(Formatted(line, width));
        }
    }

    void AddLine(std::string name, std::string value) { m_lines.push_back({0, std::move(name), std::move(value)}); }
    bool IsEmpty() const { return m_lines.empty(); }

private:
    static constexpr std::size_t kDeepest = 100;

    struct VFlags {
        std::vector<std::string> set{};
        std::size_t count = 0;
    };

    static VFlags FlagsOf(NODX201::VOdxElement& element) {
        VFlags flags;
        NQuery::ForEachPartOf(element, [&flags](VContentPart const& part) {
            flags.count += IsFlag(part) ? 1 : 0;
            if (IsFlag(part) && part.text == std::wstring_view(L"true")) {
                flags.set.push_back(Shown(std::wstring_view(part.tag).substr(3)));
            }
        });
        return flags;
    }

    /// Flags that are set, in one line.
    void AddFlags(NODX201::VOdxElement& element, std::size_t depth) {
        if (VFlags const flags = FlagsOf(element); !flags.set.empty()) {
            m_lines.push_back({depth, "FLAGS", fmt::format("{}", fmt::join(flags.set, ", "))});
        }
    }

    /// On the line of the AUDIENCE, which says nothing else.
    void AddAudience(NODX201::VOdxElement& element) {
        VFlags const flags = FlagsOf(element);
        bool const isAll = flags.set.size() == flags.count;
        std::string const some = flags.set.empty() ? "nobody" : fmt::format("{}", fmt::join(flags.set, ", "));
        if (!m_lines.empty()) {
            m_lines.back().value = isAll ? "everybody" : some;
        }
    }

    static bool IsFlag(VContentPart const& part) {
        return part.role == VPartRole::Attribute && std::wstring_view(part.tag).substr(0, 3) == L"IS-";
    }

    void AddPart(VContentPart const& part, std::size_t depth) {
        std::string const tag = Shown(std::wstring_view(part.tag));
        switch (part.role) {
        case VPartRole::Attribute:
        case VPartRole::Text:
            if (!IsFlag(part) && !IsPlain(part)) {
                m_lines.push_back({depth, tag, PlainText(part.text)});
            }
            break;
        case VPartRole::OwnText:
            m_lines.back().value = PlainText(part.text);
            break;
        case VPartRole::Instruction:
            m_lines.push_back({depth, "<?" + tag + "?>", PlainText(part.text)});
            break;
        case VPartRole::Element:
            m_lines.push_back({depth, tag, *part.element->GetShortName() != L'\0' ? ShownName(*part.element) : ""});
            Add(*part.element, depth + 1);
            break;
        case VPartRole::Reference:
            AddReference(part, tag, depth);
            break;
        }
    }

    static bool IsPlain(VContentPart const& part) {
        return IsOneOf(part.tag, {L"SHORT-NAME"}) ||
               (part.role == VPartRole::Attribute && part.text == std::wstring_view(L"CLOSED"));
    }

    void AddReference(VContentPart const& part, std::string const& tag, std::size_t depth) {
        auto& reference = dynamic_cast<NODX201::VLink&>(*part.element);
        NODX201::VOdxElement* const target = NQuery::TargetOf(reference, m_layer);
        std::string named;
        std::vector<VContentPart> inside;
        NQuery::ForEachPartOf(*part.element, [&](VContentPart const& held) {
            bool const isNaming = IsOneOf(held.tag, {L"ID-REF", L"SHORT-NAME"});
            named = isNaming ? Shown(std::wstring_view(held.text)) : named;
            if (!isNaming && !IsOneOf(held.tag, {L"DOCREF", L"DOCTYPE", L"REVISION"})) {
                inside.push_back(held);
            }
        });
        m_lines.push_back({depth, tag, target != nullptr ? TagTextOf(*target) + " " + ShownName(*target) : named});
        for (VContentPart const& held : inside) {
            AddPart(held, depth + 1);
        }
    }

    static std::string Formatted(VTextLine const& line, std::size_t width) {
        std::string text = "  " + std::string(2 * line.depth, ' ') + line.name;
        std::size_t const start = width + 4;
        std::size_t at = WidthOf(text);
        for (std::string const& piece : Wrapped(line.value, kPageWidth - std::min(start, kPageWidth / 2))) {
            text += (at + 2 > start && at != 0 ? "  " : std::string(start - at, ' ')) + piece + "\n";
            at = 0;
        }
        return line.value.empty() ? text + "\n" : text;
    }

    NODX201::VDiagLayer* m_layer;
    std::vector<VTextLine> m_lines;
};

/// What the values of a simple DOP mean.
void AddValues(NODX201::VOdxElement& dop, NQuery::VMessageLayout const& layout, VTree& tree) {
    NQuery::VDopValues const values = NQuery::ValuesOf(dop);
    auto const shown = [](wchar_t const* text) { return Shown(std::wstring_view(text)); };
    auto const add = [&tree](char const* name, std::string const& value) {
        if (!value.empty()) {
            tree.AddLine(name, value);
        }
    };
    if (values.codedType != nullptr) {
        add("Coded", fmt::format("{} ({})", LengthText(layout.bitLength), ValuesNote(*values.codedType)));
    }
    std::string const precision = *values.precision != L'\0' ? ", precision " + shown(values.precision) : "";
    std::string const radix = values.displayRadix == std::wstring_view(L"DEC") ? "" : ", " + shown(values.displayRadix);
    add("Physical", *values.physicalBase != L'\0' ? shown(values.physicalBase) + radix + precision : "");
    std::string const unit = values.unit != nullptr ? ShownName(*values.unit) : "";
    add("Unit", unit.empty() ? (values.unitReference != nullptr ? "its reference has no target" : "")
                             : fmt::format("{} (UNIT {})", shown(values.unitName), unit));
    add("Range", RangeText(values.lower, values.upper));
    for (NQuery::VValueScale const& scale : values.constraints) {
        add("", fmt::format("{}: {}", RangeText(scale.lower, scale.upper), shown(scale.validity)));
    }
    add("Conversion", shown(values.category));
    for (std::string const& text : TextsOf(values, static_cast<std::size_t>(-1))) {
        add("", text);
    }
    add("Otherwise", shown(values.defaultText));
}

/// "POS-RESPONSE PR_Status, 3 bytes"
std::string TitleOf(NODX201::VOdxElement const& element) {
    std::string const id = ShownId(element);
    return fmt::format("{} {}{}", KindOf(element), ShownName(element), id.empty() ? "" : ", ID " + id);
}

bool WriteLayout(NODX201::VOdxElement& element, VShown const& shown, VOutput& output) {
    NQuery::VMessageLayout const layout = NQuery::LayoutOf(element, shown.layer, shown.options);
    WriteRows(layout, output);
    WritePicture(layout, output);
    return !layout.isCut;
}

/// The messages of a service, each with its parameters.
bool WriteMessages(NODX201::VDiagService& service, VShown const& shown, VOutput& output) {
    bool isWhole = true;
    for (NQuery::VServiceMessage const& message : NQuery::MessagesOf(service)) {
        if (message.message == nullptr) {
            output.Write(fmt::format("\n{} has no target\n", TagTextOf(*message.reference)));
            continue;
        }
        NQuery::VMessageLayout const layout = NQuery::LayoutOf(*message.message, shown.layer, shown.options);
        std::string const title = fmt::format("{} {}, {}", TagTextOf(*message.message), ShownName(*message.message),
                                              LengthText(layout.bitLength));
        output.Write(fmt::format("\n{}\n\n", output.Heading(title)));
        WriteRows(layout, output);
        WritePicture(layout, output);
        isWhole = isWhole && !layout.isCut;
    }
    return isWhole;
}

void WriteHead(VShown const& shown, VOutput& output) {
    output.Write(output.Heading(TitleOf(shown.element)) + "\n\n");
    NODX201::VDiagLayer const* const home = LayerAround(shown.element);
    std::string const place = ShownPlace(shown.database, shown.element);
    if (!place.empty()) {
        output.Write("  " + place + "\n");
    }
    if (home != nullptr) {
        bool const isSeenElsewhere = shown.layer != nullptr && home != shown.layer;
        output.Write(fmt::format("  in {}{}\n", Titled(*home),
                                 isSeenElsewhere ? ", as " + Titled(*shown.layer) + " sees it" : ""));
    }
}

} // namespace

bool WriteShown(VShown const& shown, VOutput& output) {
    WriteHead(shown, output);
    VTree tree(shown.layer);
    tree.Add(shown.element, 0);
    bool const isSimple = dynamic_cast<NODX201::VDataObjectProp*>(&shown.element) != nullptr ||
                          dynamic_cast<NODX201::VDtcDop*>(&shown.element) != nullptr;
    if (isSimple) {
        AddValues(shown.element, NQuery::LayoutOf(shown.element, shown.layer, shown.options), tree);
    }
    if (!tree.IsEmpty()) {
        output.Write("\n");
        tree.Write(output);
    }
    if (auto* const service = dynamic_cast<NODX201::VDiagService*>(&shown.element); service != nullptr) {
        return WriteMessages(*service, shown, output);
    }
    if (NQuery::HasLayout(shown.element) && !isSimple) {
        output.Write("\n");
        return WriteLayout(shown.element, shown, output);
    }
    return true;
}

} // namespace NCli
