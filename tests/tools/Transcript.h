// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include <diagkit/model/OdxElement.h>

namespace NTest {

/// The calls of a walk, as text: a line for each element, with its kind and name, its children indented below it. Every
/// recorded walk is checked against the order of a visit: PreProcess, DefaultVisit, children, PostProcess, all with the
/// same element; for a text only PreProcess and PostProcess. A fault fails the test.
class VTranscript {
public:
    void Before(wchar_t const* kind, NODX201::VOdxElement& x);
    void Any(NODX201::VOdxElement& x);
    void After(wchar_t const* kind, NODX201::VOdxElement& x);

    void BeforeText(wchar_t const* kind, std::wstring const& text);
    void AfterText(wchar_t const* kind, std::wstring const& text);

    void Cycle(wchar_t const* kind, NODX201::VOdxElement& x);

    std::wstring Take(); ///< the text, which is cleared; everything that was entered must have been left

    std::map<std::wstring, std::size_t> m_before; ///< how often, by kind
    std::map<std::wstring, std::size_t> m_after;
    std::set<NODX201::VOdxElement const*> m_elements;
    std::set<std::wstring> m_texts;

private:
    struct VStep {
        std::wstring kind;
        void const* x;
    };

    void Line(std::wstring const& text);
    void Enter(wchar_t const* kind, void const* x);
    void Leave(wchar_t const* kind, void const* x);

    std::wstring m_text;
    std::vector<VStep> m_steps;
    NODX201::VOdxElement* m_awaited = nullptr; // the element whose DefaultVisit must come next
};

/// A transcript as it is written in a test: without the first line end and without the indentation that all lines
/// share.
std::wstring Text(std::wstring const& written);

} // namespace NTest
