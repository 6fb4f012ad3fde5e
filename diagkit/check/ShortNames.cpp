// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <functional>
#include <string_view>
#include <tuple>
#include <unordered_map>

#include <diagkit/check/Topics.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>

namespace NCheck {
namespace {

bool IsShortNameCharacter(wchar_t character) {
    return (character >= L'0' && character <= L'9') || (character >= L'A' && character <= L'Z') ||
           (character >= L'a' && character <= L'z') || character == L'_';
}

void CheckCharacters(NODX201::VOdxElement const& element, VFindings& findings) {
    constexpr std::size_t kLongest = 128;
    std::wstring_view const shortName = element.GetShortName();
    bool const isPlain = std::all_of(shortName.begin(), shortName.end(), &IsShortNameCharacter);
    if (isPlain && shortName.size() <= kLongest) {
        return;
    }
    std::string const what = isPlain ? "is longer than 128 characters"
                                     : "has other characters than the letters A to Z and a to z, digits and underscore";
    findings.Add(PositionOf(element), NCode::ShortNameCharacters, Titled(element) + ' ' + what);
}

/// The list in which names are shared: some lists of ODX have several element kinds.
std::wstring_view ListOf(NODX201::VOdxElement const& element) {
    if (dynamic_cast<NODX201::VDiagLayer const*>(&element) != nullptr) {
        return L"layer";
    }
    if (dynamic_cast<NODX201::VDiagComm const*>(&element) != nullptr) {
        return L"DIAG-COMM";
    }
    bool const isEnvData = dynamic_cast<NODX201::VEnvData const*>(&element) != nullptr;
    if (!isEnvData && dynamic_cast<NODX201::VDopBase const*>(&element) != nullptr) {
        return L"DOP";
    }
    return NODX201::OdxTagText(element.GetOdxTag());
}

struct VNamed {
    NODX201::VOdxElement const* element;
    NODX201::VOdxElement const* named; ///< the same, or the target of a reference in the list
};

/// The target of a DIAG-COMM-REF or DIAG-VARIABLE-REF in the list of its layer; null for other elements.
NODX201::VOdxElement const* BroughtBy(NODX201::VOdxElement& element) {
    auto* const layer = dynamic_cast<NODX201::VDiagLayer*>(element.GetOwner());
    if (layer == nullptr) {
        return nullptr;
    }
    if (auto* const link = dynamic_cast<NODX201::VDiagCommLink*>(&element)) {
        return link->HasDiagComm(*layer) ? &link->GetDiagComm() : nullptr;
    }
    auto* const link = dynamic_cast<NODX201::VDiagVariableLink*>(&element);
    return link != nullptr && link->HasDiagVariable(*layer) ? &link->GetDiagVariable() : nullptr;
}

std::string Shown(VNamed const& entry) {
    bool const isReference = entry.named != entry.element;
    return (isReference ? "what the " + TagOf(*entry.element) + " names, the " : "") + Titled(*entry.named) +
           (isReference ? "," : "");
}

std::string ShownFirst(VNamed const& entry) {
    return (entry.named != entry.element ? "what is named by the " : "the ") + TagOf(*entry.element);
}

/// Checks elements that may occur several times in their owner. The names of categories are left to the files.
void CheckDuplicates(VChecked const& checked, VFindings& findings) {
    using VKey = std::tuple<NODX201::VOdxObject const*, std::wstring_view, std::wstring_view>;
    struct VHash {
        std::size_t operator()(VKey const& key) const {
            auto const& [owner, list, shortName] = key;
            return std::hash<std::wstring_view>()(shortName) ^ std::hash<void const*>()(owner);
        }
    };
    std::unordered_map<VKey, VNamed, VHash> firsts; // by owner, list and name; only looked up, never walked
    for (NODX201::VOdxElement* const element : checked.elements) {
        NODX201::VOdxElement const* const brought = BroughtBy(*element);
        VNamed const entry{element, brought != nullptr ? brought : element};
        std::wstring_view const shortName = entry.named->GetShortName();
        NODX201::VOdxObject const* const owner = element->GetOwner();
        if (shortName.empty() || owner == &checked.database.GetOdx()) {
            continue;
        }
        auto const [first, isFirst] = firsts.try_emplace({owner, ListOf(*entry.named), shortName}, entry);
        if (!isFirst) {
            findings.Add(PositionOf(*element), NCode::DuplicateShortName,
                         Shown(entry) + " has the short name of " + ShownFirst(first->second) + " at line " +
                             std::to_string(PositionOf(*first->second.element).line) +
                             " in the same list; where the name is looked up, that one is found");
        }
    }
}

} // namespace

void CheckShortNames(VChecked const& checked, VFindings& findings) {
    for (NODX201::VOdxElement const* const element : checked.elements) {
        CheckCharacters(*element, findings);
    }
    CheckDuplicates(checked, findings);
}

} // namespace NCheck
