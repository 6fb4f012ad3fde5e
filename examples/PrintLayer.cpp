// SPDX-License-Identifier: Apache-2.0

// Prints a layer as a tree, with the name of the hook of each element:
//
//     print_layer FILE LAYER

#include <iostream>
#include <string>

#include <diagkit/Reader.h>
#include <diagkit/Toolkit.h>

/// The list of kinds gives every hook the same body, so the tree shows where each element was entered and left.
class VPrinter : public NDIAGKIT::VGuardedDiagLayerTraverser {
public:
    using VGuardedDiagLayerTraverser::VGuardedDiagLayerTraverser;

protected:
#define TRAVERSER_KIND(kind, element)                                                                                  \
    void PreProcess##kind(NODX201::element& x) override { Enter(#kind, x.GetShortName()); }                            \
    void PostProcess##kind(NODX201::element&) override { --m_depth; }
#define TRAVERSER_TEXT_KIND(kind)                                                                                      \
    void PreProcess##kind(std::wstring& text) override { Enter(#kind, text); }                                         \
    void PostProcess##kind(std::wstring&) override { --m_depth; }
#include <diagkit/tools/TraverserKinds.def>

    void OnCycle(wchar_t const* kind, NODX201::VOdxElement& x) override {
        Print(NReader::ToUtf8(kind), x.GetShortName());
        std::cout << " is being printed already\n";
    }

private:
    void Enter(char const* kind, std::wstring const& name) {
        Print(kind, name);
        std::cout << '\n';
        ++m_depth;
    }

    void Print(std::string const& kind, std::wstring const& name) const {
        std::cout << std::string(2 * m_depth, ' ') << kind << (name.empty() ? "" : " ") << NReader::ToUtf8(name);
    }

    std::size_t m_depth = 0;
};

int main(int count, char** words) {
    if (count != 3) {
        std::cerr << "usage: print_layer FILE LAYER\n";
        return 2;
    }
    NReader::VReadResult const result = NReader::ReadOdx({words[1]});
    if (result.database == nullptr) {
        std::cerr << words[1] << ": cannot be read\n";
        return 1;
    }
    NODX201::VDiagLayer* const layer = NDIAGKIT::FindLayer(*result.database, NReader::FromUtf8(words[2]));
    if (layer == nullptr) {
        std::cerr << words[2] << ": no such layer\n";
        return 1;
    }
    VPrinter(*layer).TraverseDiagLayer();
    return 0;
}
