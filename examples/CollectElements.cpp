// SPDX-License-Identifier: Apache-2.0

// Collects all elements of a kind that a layer contains or refers to, here its trouble codes:
//
//     collect_elements FILE LAYER

#include <iostream>
#include <unordered_set>
#include <vector>

#include <diagkit/Reader.h>
#include <diagkit/Toolkit.h>

/// `DefaultVisit` is called for every element, so no other hook is needed. An element that is referred to from several
/// places is visited for each; it is collected once, where it is found first.
template <class Element>
class VCollector : public NDIAGKIT::VGuardedDiagLayerTraverser {
public:
    using VGuardedDiagLayerTraverser::VGuardedDiagLayerTraverser;

    std::vector<Element*> Collect() {
        TraverseDiagLayer();
        return m_elements;
    }

protected:
    void DefaultVisit(NODX201::VOdxElement& x) override {
        auto* const element = dynamic_cast<Element*>(&x);
        if (element != nullptr && m_known.insert(element).second) {
            m_elements.push_back(element);
        }
    }

private:
    std::vector<Element*> m_elements; // in the order of the walk
    std::unordered_set<Element*> m_known;
};

int main(int count, char** words) {
    if (count != 3) {
        std::cerr << "usage: collect_elements FILE LAYER\n";
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
    for (NODX201::VDtc* const dtc : VCollector<NODX201::VDtc>(*layer).Collect()) {
        std::cout << NReader::ToUtf8(dtc->GetShortName()) << '\n';
    }
    return 0;
}
