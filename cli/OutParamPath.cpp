// SPDX-License-Identifier: Apache-2.0
#include <cli/OutParamPath.h>

#include <cli/Text.h>
#include <cli/ViewText.h>
#include <diagkit/model/Params.h>
#include <diagkit/tools/ParamWalk.h>
#include <diagkit/tools/ResponseParams.h>

namespace NCli {
namespace {

/// Walks the same parameters as the search, in its order.
class VPathFinder : public NDIAGKIT::VParamWalk {
public:
    VPathFinder(VOutParamPath& path, std::wstring const& shortName, NDIAGKIT::IDopFinder& dops)
        : VParamWalk(dops), m_path(path), m_shortName(shortName) {}

protected:
    void VisitValue(NODX201::VValue& param) override {
        m_path.names.emplace_back(param.GetShortName());
        if (m_shortName != param.GetShortName()) {
            WalkBelow(param);
            return;
        }
        auto const steps = Path();
        m_path.steps.assign(steps.begin(), steps.end());
        End();
    }

private:
    VOutParamPath& m_path;
    std::wstring const& m_shortName;
};

} // namespace

VOutParamPath PathToOutParam(NODX201::VDiagService& service, NODX201::VSearchRange range, std::wstring const& shortName,
                             NODX201::VDiagLayer& layer) {
    std::vector<NODX201::VParam*> roots;
    auto const take = [&roots](NODX201::VParam& param) { roots.push_back(&param); };
    NDIAGKIT::ForEachSelectedParam(service, range, take);

    VOutParamPath path;
    for (NODX201::VParam* const root : roots) { // a parameter at the top has precedence over all nested ones
        if (dynamic_cast<NODX201::VValue*>(root) != nullptr && shortName == root->GetShortName()) {
            path.steps.push_back(root);
            return path;
        }
    }
    NDIAGKIT::VDopsOfLayer dops(layer);
    VPathFinder finder(path, shortName, dops);
    for (NODX201::VParam* const root : roots) {
        if (finder.Walk(*root)) {
            break;
        }
    }
    return path;
}

std::string Printed(VOutParamPath const& path) {
    std::string text;
    for (std::size_t index = 0; index < path.steps.size(); ++index) {
        bool const isFirst = index == 0;
        text += isFirst ? PathTo(*path.steps[index]) : "";
        if (index + 1 < path.steps.size()) {
            text += " > " + TagTextOf(*path.steps[index]) + " " + ShownName(*path.steps[index]);
        }
    }
    return text;
}

} // namespace NCli
