// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/SpecialRows.h>

#include <diagkit/reader/Loader.h>

namespace NReader {

using namespace NMemory;

VOpened OpenShortNameNotAllowed(VLoader& loader, void*, VRow const& row, VAttributes const&) {
    std::string_view const element = row.name;
    ReportShortNameNotAllowed(loader, std::string(element.substr(0, element.rfind("-SNREF"))) + 'S');
    return {};
}

VOpened OpenParentRefsNotAllowed(VLoader& loader, void*, VRow const&, VAttributes const&) {
    loader.Report(NCode::ParentKind, "an ECU-SHARED-DATA has no parents; its PARENT-REFS are left out");
    return {};
}

/// FLASHDATA, whose kind is its xsi:type or follows from its contents.
VOpened OpenFlashdata(VLoader& loader, void* owner, VRow const&, VAttributes const& attributes) {
    std::string const type = XsiTypeIn(attributes); // checked against the kinds of the table when it is open
    if (type != "INTERN-FLASHDATA" && type != "EXTERN-FLASHDATA") {
        ReportUnknownType(loader, type);
        return {nullptr, nullptr, true};
    }
    VMemFlashdata& flashdata = VFactsOf<VMemMem>::Owner(owner).AddFlashdata(L"");
    flashdata.SetKind(type == "INTERN-FLASHDATA" ? Tag::InternFlashdata : Tag::ExternFlashdata);
    return Opened(loader, flashdata);
}

VElementType const& DatafileType() {
    using F = VFactsOf<VMemFlashdata>;
    static constexpr VFact facts[] = {
        F::Attribute("LATEBOUND-DATAFILE", Required, VContent::Bool, &F::SetFlag<&VMemFlashdata::SetIsLatebound>),
        F::Content(VContent::Text, &F::SetText<&VMemFlashdata::SetDatafile>),
    };
    static VElementType const type = TableOf(facts);
    return type;
}

namespace {

template <class Category>
VOpened OpenCategory(VLoader& loader, void*, VRow const& row, VAttributes const&) {
    return Opened(loader, loader.Reading().MakeCategory<Category>(row.name));
}

} // namespace

VElementType const& RootType() {
    using F = VFactsOf<VLoader>;
    static constexpr VFact facts[] = {
        F::Special("DIAG-LAYER-CONTAINER", Many, &OpenCategory<VMemDiagLayerContainer>),
        F::Special("COMPARAM-SPEC", Many, &OpenCategory<VMemComparamSpec>),
        F::Special("FLASH", Many, &OpenCategory<VMemFlash>),
        F::Special("MULTIPLE-ECU-JOB-SPEC", Many, &OpenCategory<VMemMultipleEcuJobSpec>),
        F::Special("VEHICLE-INFO-SPEC", Many, &OpenCategory<VMemVehicleInfoSpec>),
        // A category of later versions, with the former contents of a COMPARAM-SPEC.
        F::Special("COMPARAM-SUBSET", Many, &OpenCategory<VMemComparamSpec>),
    };
    static VElementType const type = TableOf(facts);
    return type;
}

} // namespace NReader
