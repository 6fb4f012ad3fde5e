// SPDX-License-Identifier: Apache-2.0
#include "tools/Transcript.h"

#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>

#include <diagkit/memory/AdminData.h>
#include <diagkit/memory/Compu.h>

namespace NTest {
namespace {

/// What distinguishes an element from others nearby: its short name, the tag of a limit, the text of an SD.
std::wstring CalledAs(NODX201::VOdxElement& x) {
    if (dynamic_cast<NODX201::VLimit*>(&x) != nullptr) {
        return NODX201::OdxTagText(x.GetOdxTag());
    }
    if (auto* const sd = dynamic_cast<NMemory::VMemSd*>(&x)) {
        return sd->GetText();
    }
    return x.GetShortName();
}

std::wstring Titled(std::wstring const& kind, std::wstring const& name) {
    return name.empty() ? kind : kind + L' ' + name;
}

std::size_t IndentationOf(std::wstring const& line) { return std::min(line.find_first_not_of(L' '), line.size()); }

} // namespace

void VTranscript::Line(std::wstring const& text) {
    EXPECT_EQ(m_awaited, nullptr) << "a visit goes on without DefaultVisit";
    m_text += std::wstring(2 * m_steps.size(), L' ') + text + L'\n';
}

void VTranscript::Enter(wchar_t const* kind, void const* x) {
    m_steps.push_back({kind, x});
    ++m_before[kind];
}

void VTranscript::Leave(wchar_t const* kind, void const* x) {
    EXPECT_EQ(m_awaited, nullptr) << "a visit ends without DefaultVisit";
    ++m_after[kind];
    ASSERT_FALSE(m_steps.empty()) << "PostProcess without PreProcess";
    EXPECT_EQ(m_steps.back().kind, kind);
    EXPECT_EQ(m_steps.back().x, x);
    m_steps.pop_back();
}

void VTranscript::Before(wchar_t const* kind, NODX201::VOdxElement& x) {
    Line(Titled(kind, CalledAs(x)));
    Enter(kind, &x);
    m_awaited = &x;
    m_elements.insert(&x);
}

void VTranscript::Any(NODX201::VOdxElement& x) {
    EXPECT_EQ(m_awaited, &x) << "DefaultVisit comes once, behind PreProcess";
    m_awaited = nullptr;
}

void VTranscript::After(wchar_t const* kind, NODX201::VOdxElement& x) { Leave(kind, &x); }

void VTranscript::BeforeText(wchar_t const* kind, std::wstring const& text) {
    Line(Titled(kind, text));
    Enter(kind, &text);
    m_texts.insert(text);
}

void VTranscript::AfterText(wchar_t const* kind, std::wstring const& text) { Leave(kind, &text); }

void VTranscript::Cycle(wchar_t const* kind, NODX201::VOdxElement& x) { Line(Titled(kind, CalledAs(x)) + L" (cycle)"); }

std::wstring VTranscript::Take() {
    EXPECT_TRUE(m_steps.empty()) << "PreProcess without PostProcess";
    std::wstring text;
    text.swap(m_text);
    return text;
}

std::wstring Text(std::wstring const& written) {
    std::wistringstream lines(written.substr(written.find(L'\n') + 1));
    std::vector<std::wstring> all;
    for (std::wstring line; std::getline(lines, line);) {
        all.push_back(line);
    }
    if (!all.empty() && IndentationOf(all.back()) == all.back().size()) {
        all.pop_back(); // the text before the closing mark
    }
    std::size_t const indentation = all.empty() ? 0 : IndentationOf(all.front());
    std::wstring text;
    for (std::wstring const& line : all) {
        text += line.substr(std::min(indentation, line.size())) + L'\n';
    }
    return text;
}

} // namespace NTest
