// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OutParamIfView.h>

#include <algorithm>
#include <string_view>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Params.h>
#include <diagkit/tools/ListViewImpl.h>
#include <diagkit/tools/ParamRecursivSearchVisitor.h>
#include <diagkit/tools/ResponseParams.h>

namespace NDIAGKIT {

wchar_t const* VOutParamIfViewTraits::ShortNameOf(Element& param) {
    if (param.IsValue()) {
        auto const* const value = dynamic_cast<NODX201::VValue*>(&param);
        return value != nullptr ? value->GetShortName() : L"";
    }
    auto const* const outputParam = dynamic_cast<NODX201::VOutputParam*>(&param);
    return outputParam != nullptr ? outputParam->GetShortName() : L"";
}

VOutParamIfView::VOutParamIfView() = default;

VOutParamIfView::~VOutParamIfView() = default;

VOutParamIfView::VOutParamIfView(NODX201::VDiagService& service, NODX201::VSearchRange range) : VOutParamIfView() {
    auto const take = [this](NODX201::VParam& param) {
        if (auto* const value = dynamic_cast<NODX201::VValue*>(&param)) {
            Append(*value);
        }
        m_searchRoots.push_back(&param);
    };
    ForEachSelectedParam(service, range, take);
}

VOutParamIfView::VOutParamIfView(NODX201::VSingleEcuJob& job) : VOutParamIfView() {
    if (job.HasOutputParamCollection()) {
        for (NODX201::VOutputParam& param : job.OutputParamCollection()) {
            Append(param);
        }
    }
}

VOutParamIfView::VOutParamIfView(NODX201::VMultipleEcuJob& job) : VOutParamIfView() {
    if (job.HasOutputParamCollection()) {
        for (NODX201::VOutputParam& param : job.OutputParamCollection()) {
            Append(param);
        }
    }
}

VOutParamIfView::Iterator VOutParamIfView::Find(wchar_t const* shortName, NODX201::VDiagLayer& layer) {
    NODX201::IOutParamIf* found = nullptr;
    return Find(shortName, found, layer);
}

VOutParamIfView::Iterator VOutParamIfView::Find(wchar_t const* shortName, NODX201::IOutParamIf*& found,
                                                NODX201::VDiagLayer& layer) {
    found = nullptr;
    if (shortName == nullptr) {
        return End();
    }
    std::wstring_view const wanted(shortName);
    auto const named = std::find_if(m_collection.begin(), m_collection.end(), [wanted](NODX201::IOutParamIf* param) {
        return wanted == VOutParamIfViewTraits::ShortNameOf(*param);
    });
    if (named != m_collection.end()) {
        found = *named;
        return Iterator(named);
    }
    VParamRecursivSearchVisitor visitor(shortName, layer);
    for (NODX201::VParam* const root : m_searchRoots) {
        if (visitor.Walk(*root)) {
            NODX201::VValue* const value = visitor.GetResult();
            // Deliberate: the view grows by what a search finds (NestedMatchGrowsTheView).
            Append(*value);
            found = value;
            return Iterator(_Find(*value));
        }
    }
    return End();
}

NODX201::IOutParamIf* VOutParamIfView::FindParam(wchar_t const* shortName, NODX201::VDiagLayer& layer) {
    NODX201::IOutParamIf* found = nullptr;
    Find(shortName, found, layer);
    return found;
}

void VOutParamIfView::Remove(Iterator iter) {
    ForgetSearchRoot(iter.Unwrap());
    VListView::Remove(iter);
}

void VOutParamIfView::_Remove(List::iterator position) {
    ForgetSearchRoot(position);
    VListView::_Remove(position);
}

void VOutParamIfView::ForgetSearchRoot(List::iterator position) {
    if (position != m_collection.end()) {
        m_searchRoots.remove(dynamic_cast<NODX201::VParam*>(*position));
    }
}

} // namespace NDIAGKIT
