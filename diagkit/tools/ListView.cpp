// SPDX-License-Identifier: Apache-2.0

// The instantiations of the list views except those of `InheritedViews.cpp`, one block per view, so that the bodies
// stay out of the public headers.

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Responses.h>
#include <diagkit/tools/GlobalNegResponseView.h>
#include <diagkit/tools/IdentIfView.h>
#include <diagkit/tools/InParamIfView.h>
#include <diagkit/tools/ListViewImpl.h>
#include <diagkit/tools/OutParamIfView.h>
#include <diagkit/tools/ProtocolView.h>
#include <diagkit/tools/SessionView.h>

namespace NDIAGKIT {

DIAGKIT_TEMPLATE_DEFINITION(
    VExternalIterator<std::list<NODX201::VGlobalNegResponse*>::iterator, NODX201::VGlobalNegResponse&>);
DIAGKIT_TEMPLATE_DEFINITION(VListView<VGlobalNegResponseViewTraits>);
DIAGKIT_TEMPLATE_DEFINITION(VNamedListView<VGlobalNegResponseViewTraits>);

DIAGKIT_TEMPLATE_DEFINITION(VExternalIterator<std::list<NODX201::IIdentIf*>::iterator, NODX201::IIdentIf&>);
DIAGKIT_TEMPLATE_DEFINITION(VListView<VIdentIfViewTraits>);
DIAGKIT_TEMPLATE_DEFINITION(VNamedListView<VIdentIfViewTraits>);

DIAGKIT_TEMPLATE_DEFINITION(VExternalIterator<std::list<NODX201::IInParamIf*>::iterator, NODX201::IInParamIf&>);
DIAGKIT_TEMPLATE_DEFINITION(VListView<VInParamIfViewTraits>);
DIAGKIT_TEMPLATE_DEFINITION(VNamedListView<VInParamIfViewTraits>);

DIAGKIT_TEMPLATE_DEFINITION(VExternalIterator<std::list<NODX201::IOutParamIf*>::iterator, NODX201::IOutParamIf&>);
DIAGKIT_TEMPLATE_DEFINITION(VListView<VOutParamIfViewTraits>);

DIAGKIT_TEMPLATE_DEFINITION(VExternalIterator<std::list<NODX201::VProtocol*>::iterator, NODX201::VProtocol&>);
DIAGKIT_TEMPLATE_DEFINITION(VListView<VProtocolViewTraits>);
DIAGKIT_TEMPLATE_DEFINITION(VNamedListView<VProtocolViewTraits>);

DIAGKIT_TEMPLATE_DEFINITION(VExternalIterator<std::list<NODX201::VSession*>::iterator, NODX201::VSession&>);
DIAGKIT_TEMPLATE_DEFINITION(VListView<VSessionViewTraits>);
DIAGKIT_TEMPLATE_DEFINITION(VNamedListView<VSessionViewTraits>);

} // namespace NDIAGKIT
