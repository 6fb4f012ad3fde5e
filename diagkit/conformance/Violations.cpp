// SPDX-License-Identifier: Apache-2.0
#include <diagkit/conformance/Violations.h>

#define DIAGKIT_WIDE_(text) L##text
#define DIAGKIT_WIDE(text) DIAGKIT_WIDE_(text)

namespace NConformance {
namespace {

constexpr int kToldOfEachCheck = 10;

wchar_t const* NameOf(VCheckId check) { return Checks()[static_cast<std::size_t>(check)].name; }

/// The answers by question: everything up to the first ": ".
std::map<std::wstring, std::wstring> ByQuestion(std::vector<std::wstring> const& answers) {
    std::map<std::wstring, std::wstring> byQuestion;
    for (std::wstring const& answer : answers) {
        std::size_t const colon = answer.find(L": ");
        byQuestion[answer.substr(0, colon)] = colon == std::wstring::npos ? L"" : answer.substr(colon + 2);
    }
    return byQuestion;
}

/// Reports entries of `left` that are missing in `right`, or different there, in the order of `left`.
template <class Report>
void EachUnlike(std::vector<std::wstring> const& left, std::vector<std::wstring> const& right, Report report) {
    std::map<std::wstring, std::wstring> const others = ByQuestion(right);
    for (std::wstring const& answer : left) {
        auto const [question, text] = *ByQuestion({answer}).begin();
        auto const other = others.find(question);
        if (other == others.end() || other->second != text) {
            report(question, text, other == others.end() ? nullptr : &other->second);
        }
    }
}

} // namespace

std::vector<VCheck> const& Checks() {
    static std::vector<VCheck> const checks = {
#define CHECK(identifier, name, promise) {DIAGKIT_WIDE(name), DIAGKIT_WIDE(promise)},
#include <diagkit/conformance/Checks.def>
    };
    return checks;
}

std::wstring ToText(VViolation const& violation) {
    return violation.check + L": " + violation.where + L": expected " + violation.expected + L", found " +
           violation.found;
}

void VViolations::Add(VCheckId check, std::wstring where, std::wstring expected, std::wstring found) {
    if (++m_told[check] <= kToldOfEachCheck) {
        m_violations.push_back({NameOf(check), std::move(where), std::move(expected), std::move(found)});
    }
}

std::vector<VViolation> CompareAnswers(std::vector<std::wstring> const& expected,
                                       std::vector<std::wstring> const& found) {
    std::vector<VViolation> violations;
    EachUnlike(expected, found, [&](auto const& question, auto const& text, std::wstring const* other) {
        violations.push_back({NameOf(VCheckId::ReferenceAnswer), question, L"'" + text + L"'",
                              other == nullptr ? L"no answer" : L"'" + *other + L"'"});
    });
    EachUnlike(found, expected, [&](auto const& question, auto const& text, std::wstring const* other) {
        if (other == nullptr) {
            violations.push_back({NameOf(VCheckId::ReferenceSilence), question, L"no answer", L"'" + text + L"'"});
        }
    });
    return violations;
}

} // namespace NConformance
