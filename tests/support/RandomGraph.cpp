// SPDX-License-Identifier: Apache-2.0
#include "support/RandomGraph.h"

#include <iterator>
#include <random>
#include <sstream>

#include "support/GraphText.h"

namespace NTest {
namespace {

class VGenerator {
public:
    explicit VGenerator(std::uint32_t seed) : m_random(seed) {}

    VGraphPlan Make() {
        m_layerCount = 5 + Below(8);
        std::wostringstream text;
        for (std::uint32_t layer = 0; layer < m_layerCount; ++layer) {
            PrintLayer(text, layer);
        }
        return ParseGraph(text.str());
    }

private:
    // Not a distribution of the standard library: those give different numbers on different platforms.
    std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(m_random() % limit); }
    bool OneIn(std::uint32_t count) { return Below(count) == 0; }

    template <class Words>
    wchar_t const* OneOf(Words const& words) {
        return words[Below(static_cast<std::uint32_t>(std::size(words)))];
    }

    wchar_t const* Name() {
        static constexpr wchar_t const* kNames[] = {L"a", L"b", L"c", L"d", L"e", L"A", L"B", L"\"\""};
        return OneOf(kNames);
    }

    void PrintLayer(std::wostream& out, std::uint32_t layer) {
        static constexpr wchar_t const* kKindWords[] = {L"esd", L"prot", L"func", L"base", L"ecu"};
        std::wstring const kind = OneOf(kKindWords);
        out << kind << L" L" << layer;
        PrintOwn(out);
        if (kind != L"esd" && !OneIn(6)) {
            PrintParents(out);
        }
        out << L"\n";
    }

    void PrintOwn(std::wostream& out) {
        if (OneIn(5)) {
            return;
        }
        out << L" :";
        for (std::uint32_t count = Below(5); count > 0; --count) {
            if (OneIn(5)) {
                std::wstring const name = Name();
                out << L" ->L" << Below(m_layerCount) << L"." << (name == L"\"\"" ? L"" : name)
                    << (OneIn(4) ? L"#2" : L"");
            } else {
                out << L" " << Name() << (OneIn(4) ? L"!" : L"");
            }
        }
    }

    void PrintParents(std::wostream& out) {
        static constexpr wchar_t const* kRefKindWords[] = {L"esd:", L"prot:", L"func:", L"base:", L"any:"};
        out << L" <";
        for (std::uint32_t count = Below(6); count > 0; --count) {
            if (OneIn(10)) {
                out << L" " << OneOf(kRefKindWords) << L"Gone";
            } else {
                out << L" " << (OneIn(8) ? OneOf(kRefKindWords) : L"") << L"L" << Below(m_layerCount);
            }
            PrintExclusions(out);
        }
    }

    void PrintExclusions(std::wostream& out) {
        if (OneIn(8)) {
            out << L"-";
            return;
        }
        for (std::uint32_t count = Below(4); count > 1; --count) {
            if (OneIn(6)) {
                out << L"-@L" << Below(m_layerCount) << L".a";
            } else {
                out << L"-" << Name();
            }
        }
    }

    std::mt19937 m_random;
    std::uint32_t m_layerCount = 0;
};

} // namespace

VGraphPlan RandomGraph(std::uint32_t seed) { return VGenerator(seed).Make(); }

} // namespace NTest
