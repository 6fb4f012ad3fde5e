// SPDX-License-Identifier: Apache-2.0
#include "support/GraphText.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace NTest {
namespace {

using VRefKind = VParentPlan::VRefKind;

constexpr std::pair<std::wstring_view, VKind> kKindWords[] = {
    {L"esd", VKind::EcuSharedData}, {L"prot", VKind::Protocol},  {L"func", VKind::FunctionalGroup},
    {L"base", VKind::BaseVariant},  {L"ecu", VKind::EcuVariant},
};

constexpr std::pair<std::wstring_view, VRefKind> kRefKindWords[] = {
    {L"esd", VRefKind::EcuSharedData}, {L"prot", VRefKind::Protocol}, {L"func", VRefKind::FunctionalGroup},
    {L"base", VRefKind::BaseVariant},  {L"any", VRefKind::NoKind},
};

template <class Words>
auto ValueOf(Words const& words, std::wstring_view wanted) {
    for (auto const& [word, value] : words) {
        if (word == wanted) {
            return value;
        }
    }
    throw std::invalid_argument("a layer graph has a word that is no kind");
}

template <class Words, class Value>
std::wstring_view WordOf(Words const& words, Value wanted) {
    for (auto const& [word, value] : words) {
        if (value == wanted) {
            return word;
        }
    }
    throw std::invalid_argument("a kind has no word");
}

std::wstring NameIn(std::wstring const& word) { return word == L"\"\"" ? std::wstring() : word; }

std::wstring WordFor(std::wstring const& name) { return name.empty() ? L"\"\"" : name; }

std::wstring IdFor(VLayerPlan const& layer, std::wstring const& name) {
    auto const before = std::count_if(layer.own.begin(), layer.own.end(), [&](VOwnPlan const& own) {
        return own.form != VOwnPlan::VForm::Reference && own.name == name;
    });
    std::wstring const id = layer.name + L"." + name;
    return before == 0 ? id : id + L"#" + std::to_wstring(before + 1);
}

VOwnPlan ParseOwn(VLayerPlan const& layer, std::wstring word) {
    if (word.compare(0, 2, L"->") == 0) {
        return {VOwnPlan::VForm::Reference, word.substr(2)};
    }
    bool const isJob = word.back() == L'!';
    if (isJob) {
        word.pop_back();
    }
    std::wstring const name = NameIn(word);
    return {isJob ? VOwnPlan::VForm::Job : VOwnPlan::VForm::Service, name, IdFor(layer, name)};
}

VExclusionPlan ParseExclusion(std::wstring const& word) {
    bool const isById = word.front() == L'@';
    return {NameIn(isById ? word.substr(1) : word), isById};
}

/// The kind is left open when the word does not give it; that needs the other lines.
VParentPlan ParseParent(std::wstring const& word) {
    VParentPlan parent;
    std::wistringstream parts(word);
    std::getline(parts, parent.target, L'-');
    parent.hasExclusions = !parts.eof();
    for (std::wstring part; std::getline(parts, part, L'-');) {
        parent.exclusions.push_back(ParseExclusion(part));
    }
    return parent;
}

VLayerPlan ParseLayer(std::wstring const& line) {
    std::wistringstream words(line);
    VLayerPlan layer;
    std::wstring word;
    words >> word >> layer.name;
    layer.kind = ValueOf(kKindWords, word);
    while (words >> word) {
        if (word == L"<") {
            layer.hasParents = true;
        } else if (layer.hasParents) {
            layer.parents.push_back(ParseParent(word));
        } else if (word == L":") {
            layer.hasOwn = true;
        } else if (layer.hasOwn) {
            layer.own.push_back(ParseOwn(layer, word));
        } else {
            throw std::invalid_argument("a layer's own entries come after a colon");
        }
    }
    return layer;
}

void SettleKind(VGraphPlan const& plan, VParentPlan& parent) {
    if (auto const colon = parent.target.find(L':'); colon != std::wstring::npos) {
        parent.kind = ValueOf(kRefKindWords, std::wstring_view(parent.target).substr(0, colon));
        parent.target.erase(0, colon + 1);
    } else if (VLayerPlan const* const layer = plan.Find(parent.target)) {
        parent.kind = RefKindFor(layer->kind);
    } else {
        throw std::invalid_argument("a parent is no layer of the graph and has no kind");
    }
}

bool IsBlank(std::wstring const& line) { return line.find_first_not_of(L" \t") == std::wstring::npos; }

void PrintOwn(std::wostream& out, VOwnPlan const& own) {
    if (own.form == VOwnPlan::VForm::Reference) {
        out << L" ->" << own.name;
    } else {
        out << L" " << WordFor(own.name) << (own.form == VOwnPlan::VForm::Job ? L"!" : L"");
    }
}

void PrintParent(std::wostream& out, VParentPlan const& parent) {
    out << L" " << WordOf(kRefKindWords, parent.kind) << L":" << parent.target;
    if (parent.hasExclusions && parent.exclusions.empty()) {
        out << L"-";
    }
    for (VExclusionPlan const& exclusion : parent.exclusions) {
        out << L"-" << (exclusion.isById ? L"@" : L"") << WordFor(exclusion.name);
    }
}

} // namespace

VGraphPlan ParseGraph(std::wstring const& text) {
    VGraphPlan plan;
    std::wistringstream lines(text);
    for (std::wstring line; std::getline(lines, line);) {
        if (!IsBlank(line)) {
            plan.layers.push_back(ParseLayer(line));
        }
    }
    for (VLayerPlan& layer : plan.layers) {
        for (VParentPlan& parent : layer.parents) {
            SettleKind(plan, parent);
        }
    }
    return plan;
}

std::wstring GraphText(VGraphPlan const& plan) {
    std::wostringstream out;
    for (VLayerPlan const& layer : plan.layers) {
        out << WordOf(kKindWords, layer.kind) << L" " << layer.name << (layer.hasOwn ? L" :" : L"");
        for (VOwnPlan const& own : layer.own) {
            PrintOwn(out, own);
        }
        out << (layer.hasParents ? L" <" : L"");
        for (VParentPlan const& parent : layer.parents) {
            PrintParent(out, parent);
        }
        out << L"\n";
    }
    return out.str();
}

} // namespace NTest
