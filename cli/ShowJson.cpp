// SPDX-License-Identifier: Apache-2.0
#include <cli/ShowJson.h>

#include <array>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <cli/Entry.h>
#include <cli/JsonWriter.h>
#include <cli/Layers.h>
#include <diagkit/query/Content.h>
#include <diagkit/query/DopValues.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

using NQuery::VContentPart;
using NQuery::VDopValues;
using NQuery::VExtent;
using NQuery::VLayoutRole;
using NQuery::VLayoutRow;
using NQuery::VPartRole;

/// Writes what an element holds as it stands in XML.
class VXmlJson {
public:
    VXmlJson(VJsonWriter& json, NODX201::VDiagLayer* layer) : m_json(json), m_layer(layer) {}

    void Node(wchar_t const* tag, NODX201::VOdxElement& element) {
        std::vector<VContentPart> parts;
        NQuery::ForEachPartOf(element, [&parts](VContentPart const& part) { parts.push_back(part); });
        m_json.Object([&] {
            m_json.Member("tag", std::wstring_view(tag));
            Inside(parts);
            if (auto* const reference = dynamic_cast<NODX201::VLink*>(&element); reference != nullptr) {
                WriteEntryOrNull(m_json, "target", NQuery::TargetOf(*reference, m_layer));
            }
        });
    }

private:
    using VParts = std::vector<VContentPart>;

    static bool IsAttributeOf(VContentPart const& part, std::wstring_view owner) {
        return part.role == VPartRole::Attribute && part.wrapper == owner;
    }

    static bool IsOf(VContentPart const& part, VPartRole role) { return part.role == role; }

    void Attributes(VParts const& parts, std::wstring_view owner) {
        bool hasAny = false;
        for (VContentPart const& part : parts) {
            hasAny = hasAny || IsAttributeOf(part, owner);
        }
        if (!hasAny) {
            return;
        }
        m_json.Object("attributes", [&] {
            for (VContentPart const& part : parts) {
                if (IsAttributeOf(part, owner)) {
                    m_json.Name(NReader::ToUtf8(part.tag));
                    m_json.Value(std::wstring_view(part.text));
                }
            }
        });
    }

    void Inside(VParts const& parts) {
        Attributes(parts, L"");
        bool hasChildren = false;
        for (VContentPart const& part : parts) {
            if (IsOf(part, VPartRole::OwnText)) {
                m_json.Member("text", std::wstring_view(part.text));
            }
            hasChildren = hasChildren || !(IsOf(part, VPartRole::OwnText) || IsOf(part, VPartRole::Attribute));
        }
        if (hasChildren) {
            m_json.Array("children", [&] { Children(parts); });
        }
    }

    /// Children in the order of ODX; those that share a wrapper follow one another.
    void Children(VParts const& parts) {
        for (std::size_t index = 0; index < parts.size();) {
            VContentPart const& part = parts[index];
            bool const isChild = part.role != VPartRole::Attribute && part.role != VPartRole::OwnText;
            if (!isChild) {
                ++index;
            } else if (*part.wrapper == L'\0') {
                Child(part, parts, index++);
            } else {
                m_json.Object([&] {
                    m_json.Member("tag", std::wstring_view(part.wrapper));
                    m_json.Array("children", [&] {
                        std::wstring_view const wrapper = part.wrapper;
                        for (; index < parts.size() && parts[index].wrapper == wrapper; ++index) {
                            Child(parts[index], parts, index);
                        }
                    });
                });
            }
        }
    }

    void Child(VContentPart const& part, VParts const& parts, std::size_t index) {
        if (part.element != nullptr) {
            Node(part.tag, *part.element);
            return;
        }
        m_json.Object([&] {
            m_json.Member(part.role == VPartRole::Instruction ? "instruction" : "tag", std::wstring_view(part.tag));
            // The attributes of a text come after it and name it.
            bool const hasAttributes = part.role == VPartRole::Text && HasAttributesAfter(parts, index);
            if (hasAttributes) {
                Attributes(parts, part.tag);
            }
            m_json.Member("text", std::wstring_view(part.text));
        });
    }

    static bool HasAttributesAfter(VParts const& parts, std::size_t index) {
        for (std::size_t next = index + 1; next < parts.size() && next < index + 3; ++next) {
            if (IsAttributeOf(parts[next], parts[index].tag)) {
                return true;
            }
        }
        return false;
    }

    VJsonWriter& m_json;
    NODX201::VDiagLayer* m_layer;
};

/// The texts of an element that its row tells.
struct VRowTexts {
    wchar_t const* longName = L"";
    wchar_t const* semantic = L"";
    wchar_t const* preset = L"";
    wchar_t const* systemParam = L"";
    wchar_t const* requestPosition = L"";
    NODX201::VOdxElement* lower = nullptr;
    NODX201::VOdxElement* upper = nullptr;
    NODX201::VOdxElement* troubleCodes = nullptr;

    explicit VRowTexts(NODX201::VOdxElement& element) {
        NQuery::ForEachPartOf(element, [this](VContentPart const& part) {
            std::wstring_view const tag = part.tag;
            bool const isText = part.text != nullptr && *part.wrapper == L'\0';
            longName = isText && tag == L"LONG-NAME" ? part.text : longName;
            semantic = isText && tag == L"SEMANTIC" ? part.text : semantic;
            preset = isText && tag == L"PHYSICAL-DEFAULT-VALUE" ? part.text : preset;
            systemParam = isText && tag == L"SYSPARAM" ? part.text : systemParam;
            requestPosition = isText && tag == L"REQUEST-BYTE-POS" ? part.text : requestPosition;
            lower = tag == L"LOWER-LIMIT" ? part.element : lower;
            upper = tag == L"UPPER-LIMIT" ? part.element : upper;
            troubleCodes = tag == L"DTC-VALUES" ? part.element : troubleCodes;
        });
    }
};

NQuery::VBound BoundOf(NODX201::VOdxElement* limit) {
    NQuery::VBound bound;
    if (limit != nullptr) {
        NQuery::ForEachPartOf(*limit, [&bound](VContentPart const& part) {
            (part.role == VPartRole::OwnText ? bound.text : bound.intervalType) = part.text;
        });
    }
    return bound;
}

/// Writes layouts; every text of a conversion counts as a row, so that data cannot make an answer without end.
class VLayoutJson {
public:
    VLayoutJson(VJsonWriter& json, VShown const& shown) : m_json(json), m_shown(shown), m_left(shown.options.maxRows) {}

    bool IsWhole() const { return m_isWhole; }

    /// "byte_length" and "params" of a message.
    void Layout(NODX201::VOdxElement& element) {
        NQuery::VMessageLayout const layout = NQuery::LayoutOf(element, m_shown.layer, m_shown.options);
        m_isWhole = m_isWhole && !layout.isCut;
        Extent("bit_length", layout.bitLength);
        m_json.Array("params", [&] {
            for (std::size_t row = 0; row < layout.rows.size();) {
                row = Row(layout, row);
            }
        });
    }

    void Values(VDopValues const& values) {
        m_json.TextOrNull("coded_type", std::wstring_view(values.codedBase));
        m_json.TextOrNull("physical_type", std::wstring_view(values.physicalBase));
        m_json.TextOrNull("display_radix", std::wstring_view(values.displayRadix));
        m_json.TextOrNull("precision", std::wstring_view(values.precision));
        m_json.TextOrNull("category", std::wstring_view(values.category));
        Meaning(values);
    }

private:
    void Extent(std::string const& name, VExtent const& extent) {
        m_json.Name(name);
        extent.IsFixed() ? m_json.Value(extent.least) : m_json.Value(nullptr);
        m_json.Member("min_" + name, extent.least);
        m_json.Name("max_" + name);
        extent.most.has_value() ? m_json.Value(*extent.most) : m_json.Value(nullptr);
    }

    /// Writes a row with those inside it; gives the one after them.
    std::size_t Row(NQuery::VMessageLayout const& layout, std::size_t number) {
        VLayoutRow const& row = layout.rows[number];
        std::size_t next = number + 1;
        m_json.Object([&] {
            WriteEntryMembers(m_json, *row.element);
            static constexpr std::array kRoles{"param", "switch-key", "case",      "item-count",
                                               "item",  "end-marker", "table-row", "env-data"};
            m_json.Member("role", kRoles[static_cast<std::size_t>(row.role)]);
            Extent("byte_position", row.bytePosition);
            m_json.Member("bit_position", row.bitPosition);
            Extent("bit_length", row.bitLength);
            Texts(row);
            static constexpr std::array kGaps{"", "broken", "cycle", "too-deep"};
            m_json.TextOrNull("gap", std::string_view(kGaps[static_cast<std::size_t>(row.gap)]));
            if (next < layout.rows.size() && layout.rows[next].depth > row.depth) {
                m_json.Array("params", [&] {
                    while (next < layout.rows.size() && layout.rows[next].depth > row.depth) {
                        next = Row(layout, next);
                    }
                });
            }
        });
        return next;
    }

    void Texts(VLayoutRow const& row) {
        VRowTexts const texts(*row.element);
        m_json.TextOrNull("long_name", std::wstring_view(texts.longName));
        m_json.TextOrNull("semantic", std::wstring_view(texts.semantic));
        m_json.TextOrNull("constant", std::wstring_view(row.constant));
        m_json.TextOrNull("default", std::wstring_view(texts.preset));
        m_json.TextOrNull("system_param", std::wstring_view(texts.systemParam));
        m_json.TextOrNull("request_byte_position", std::wstring_view(texts.requestPosition));
        if (row.role == VLayoutRole::Item) {
            Extent("count", row.count);
        }
        if (row.role == VLayoutRole::EnvData && texts.troubleCodes != nullptr) {
            m_json.Array("trouble_code_values", [&] {
                NQuery::ForEachPartOf(*texts.troubleCodes,
                                      [this](VContentPart const& part) { m_json.Value(std::wstring_view(part.text)); });
            });
        }
        WriteEntryOrNull(m_json, "target", row.target);
        WriteEntryOrNull(m_json, "dop", row.dop);
        if (row.role == VLayoutRole::Case) {
            VDopValues values;
            values.lower = BoundOf(texts.lower);
            values.upper = BoundOf(texts.upper);
            Values(values);
        } else if (row.dop != nullptr && row.codedType != nullptr) {
            Values(ValuesKnown(*row.dop));
        } else {
            VDopValues values;
            values.codedBase = TypeOf(row.codedType);
            Values(values);
        }
    }

    static wchar_t const* TypeOf(NODX201::VDiagCodedType* type) {
        wchar_t const* base = L"";
        if (type != nullptr) {
            NQuery::ForEachPartOf(*type, [&base](VContentPart const& part) {
                base = part.tag == std::wstring_view(L"BASE-DATA-TYPE") ? part.text : base;
            });
        }
        return base;
    }

    VDopValues const& ValuesKnown(NODX201::VOdxElement& dop) {
        auto const [known, isNew] = m_values.try_emplace(&dop);
        if (isNew) {
            known->second = NQuery::ValuesOf(dop);
        }
        return known->second;
    }

    void Meaning(VDopValues const& values) {
        m_json.TextOrNull("unit", std::wstring_view(values.unitName));
        Range(values.lower, values.upper);
        m_json.ArrayOf("constraints", values.constraints, [this](NQuery::VValueScale const& scale) { Scale(scale); });
        m_json.ArrayOf("scales", values.scales, [this](NQuery::VValueScale const& scale) { Scale(scale); });
        m_json.TextOrNull("otherwise", std::wstring_view(values.defaultText));
        m_json.ArrayOf("trouble_codes", values.troubleCodes, [this](NODX201::VDtc* code) { TroubleCode(*code); });
    }

    void Range(NQuery::VBound const& lower, NQuery::VBound const& upper) {
        bool const hasAny = *lower.intervalType != L'\0' || *upper.intervalType != L'\0';
        if (!hasAny) {
            m_json.Member("range", nullptr);
            return;
        }
        m_json.Object("range", [&] { Bounds(lower, upper); });
    }

    void Bounds(NQuery::VBound const& lower, NQuery::VBound const& upper) {
        m_json.TextOrNull("lower", std::wstring_view(lower.text));
        m_json.TextOrNull("lower_type", std::wstring_view(lower.intervalType));
        m_json.TextOrNull("upper", std::wstring_view(upper.text));
        m_json.TextOrNull("upper_type", std::wstring_view(upper.intervalType));
    }

    /// Whether one more text may be written.
    bool Take() {
        m_isWhole = m_isWhole && m_left > 0;
        m_left -= m_left > 0 ? 1 : 0;
        return m_isWhole;
    }

    void Scale(NQuery::VValueScale const& scale) {
        if (!Take()) {
            return;
        }
        m_json.Object([&] {
            Bounds(scale.lower, scale.upper);
            m_json.TextOrNull("short_label", std::wstring_view(scale.shortLabel));
            m_json.TextOrNull("text", std::wstring_view(scale.text));
            m_json.TextOrNull("value", std::wstring_view(scale.value));
            auto const write = [this](wchar_t const* number) { m_json.Value(std::wstring_view(number)); };
            m_json.ArrayOf("numerator", scale.numerator, write);
            m_json.ArrayOf("denominator", scale.denominator, write);
            m_json.TextOrNull("inverse", std::wstring_view(scale.inverse));
            m_json.TextOrNull("validity", std::wstring_view(scale.validity));
        });
    }

    void TroubleCode(NODX201::VDtc& code) {
        if (!Take()) {
            return;
        }
        std::array<wchar_t const*, 3> texts{L"", L"", L""};
        static constexpr std::array<std::wstring_view, 3> kTroubleCodeTexts{L"TROUBLE-CODE", L"DISPLAY-TROUBLE-CODE",
                                                                            L"TEXT"};
        NQuery::ForEachPartOf(code, [&texts](VContentPart const& part) {
            for (std::size_t index = 0; index < kTroubleCodeTexts.size(); ++index) {
                texts[index] =
                    part.role == VPartRole::Text && part.tag == kTroubleCodeTexts[index] ? part.text : texts[index];
            }
        });
        m_json.Object([&] {
            m_json.Member("short_name", std::wstring_view(code.GetShortName()));
            m_json.TextOrNull("trouble_code", std::wstring_view(texts[0]));
            m_json.TextOrNull("display_trouble_code", std::wstring_view(texts[1]));
            m_json.TextOrNull("text", std::wstring_view(texts[2]));
        });
    }

    VJsonWriter& m_json;
    VShown const& m_shown;
    std::size_t m_left;
    bool m_isWhole = true;
    std::unordered_map<NODX201::VOdxElement*, VDopValues> m_values; // many parameters may share a DOP
};

bool IsSimpleDop(NODX201::VOdxElement& element) {
    return dynamic_cast<NODX201::VDataObjectProp*>(&element) != nullptr ||
           dynamic_cast<NODX201::VDtcDop*>(&element) != nullptr;
}

void WriteMessages(NODX201::VDiagService& service, VShown const& shown, VLayoutJson& layouts, VJsonWriter& json) {
    static constexpr std::array kRoles{"request", "positive", "negative"};
    json.ArrayOf("messages", NQuery::MessagesOf(service), [&](NQuery::VServiceMessage const& message) {
        json.Object([&] {
            json.Member("role", kRoles[static_cast<std::size_t>(message.role)]);
            WriteEntryOrNull(json, "entry", message.message);
            if (message.message != nullptr) {
                layouts.Layout(*message.message);
                json.Name("xml");
                VXmlJson(json, shown.layer).Node(NODX201::OdxTagText(message.message->GetOdxTag()), *message.message);
            }
        });
    });
}

} // namespace

bool WriteShownAsJson(VShown const& shown, VOutput& output) {
    bool isWhole = true;
    WriteJson(output, [&](VJsonWriter& json) {
        VLayoutJson layouts(json, shown);
        json.Object([&] {
            WriteEntryOrNull(json, "entry", &shown.element);
            json.Object("content", [&] {
                json.TextOrNull("seen_from",
                                std::wstring_view(shown.layer != nullptr ? shown.layer->GetShortName() : L""));
                if (auto* const service = dynamic_cast<NODX201::VDiagService*>(&shown.element); service != nullptr) {
                    WriteMessages(*service, shown, layouts, json);
                } else if (NQuery::HasLayout(shown.element)) {
                    layouts.Layout(shown.element);
                }
                if (IsSimpleDop(shown.element)) {
                    layouts.Values(NQuery::ValuesOf(shown.element));
                }
                json.Name("xml");
                VXmlJson(json, shown.layer).Node(NODX201::OdxTagText(shown.element.GetOdxTag()), shown.element);
            });
        });
        isWhole = layouts.IsWhole();
    });
    return isWhole;
}

} // namespace NCli
