// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/tools/ListView.h>
#include <diagkit/tools/StringContainer.h>

namespace NDIAGKIT {

/// The element type of `InParamIfView` and the places of its assertions; see `VListView`.
struct DIAGKIT_EXPORT VInParamIfViewTraits {
    using Element = NODX201::IInParamIf;
    static constexpr wchar_t const* kSource = L"InParamIfView";
    static constexpr int kRemoveElementLine = 178;
    static constexpr int kRemovePositionLine = 186;
    static constexpr int kRemoveStepLine = 282;
    static wchar_t const* ShortNameOf(Element& param);
};

DIAGKIT_TEMPLATE_DECLARATION(VExternalIterator<std::list<NODX201::IInParamIf*>::iterator, NODX201::IInParamIf&>);
DIAGKIT_TEMPLATE_DECLARATION(VListView<VInParamIfViewTraits>);
DIAGKIT_TEMPLATE_DECLARATION(VNamedListView<VInParamIfViewTraits>);

/// The parameters that an IN-PARAM-IF-SNREF may refer to in one DIAG-COMM, in the order in which they were found: the
/// INPUT-PARAMs of a job, or the VALUE parameters of a service's RESPONSES, positive ones first. (This is intentional;
/// `VOutParamIfView` offers the request's parameters.)
///
/// A parameter object that two responses share is in the view twice. Container operations as in `VListView`.
class DIAGKIT_EXPORT VInParamIfView : public VNamedListView<VInParamIfViewTraits> {
public:
    explicit VInParamIfView(NODX201::VDiagService& service);
    explicit VInParamIfView(NODX201::VSingleEcuJob& job);
    explicit VInParamIfView(NODX201::VMultipleEcuJob& job);
    virtual ~VInParamIfView();

private:
    VInParamIfView();

    VStringContainer m_notInherited; // never filled
};

} // namespace NDIAGKIT
