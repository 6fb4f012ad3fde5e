// SPDX-License-Identifier: Apache-2.0

// Prints a layer as a tree, with the name of the hook of each element:
//
//     print_layer FILE LAYER

#include <iostream>
#include <string>

#include <diagkit/model/Odx.h>
#include <diagkit/reader/OdxReader.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/GuardedDiagLayerTraverser.h>
#include <diagkit/tools/TraverserKinds.h>

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
    for (NODX201::VDiagLayerContainer& container : result.database->GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            if (NReader::ToUtf8(layer.GetShortName()) == words[2]) {
                VPrinter(layer).TraverseDiagLayer();
                return 0;
            }
        }
    }
    std::cerr << words[2] << ": no such layer\n";
    return 1;
}
