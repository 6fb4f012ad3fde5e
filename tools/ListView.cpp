// SPDX-License-Identifier: Apache-2.0

// The instantiations of the list views, a block a view, so that the bodies stay out of the public headers.

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Responses.h>
#include <diagkit/tools/DiagCommView.h>
#include <diagkit/tools/DiagVariableView.h>
#include <diagkit/tools/GlobalNegResponseView.h>
#include <diagkit/tools/IdentIfView.h>
#include <diagkit/tools/InParamIfView.h>
#include <diagkit/tools/ListViewImpl.h>
#include <diagkit/tools/OutParamIfView.h>
#include <diagkit/tools/ProtocolView.h>
#include <diagkit/tools/SessionView.h>

namespace NDIAGKIT {

template class VExternalIterator<std::list<NODX201::VDiagComm*>::iterator, NODX201::VDiagComm&>;
template class VListView<VDiagCommViewTraits>;
template class VNamedListView<VDiagCommViewTraits>;

template class VExternalIterator<std::list<NODX201::VDiagVariable*>::iterator, NODX201::VDiagVariable&>;
template class VListView<VDiagVariableViewTraits>;
template class VNamedListView<VDiagVariableViewTraits>;

template class VExternalIterator<std::list<NODX201::VGlobalNegResponse*>::iterator, NODX201::VGlobalNegResponse&>;
template class VListView<VGlobalNegResponseViewTraits>;
template class VNamedListView<VGlobalNegResponseViewTraits>;

template class VExternalIterator<std::list<NODX201::IIdentIf*>::iterator, NODX201::IIdentIf&>;
template class VListView<VIdentIfViewTraits>;
template class VNamedListView<VIdentIfViewTraits>;

template class VExternalIterator<std::list<NODX201::IInParamIf*>::iterator, NODX201::IInParamIf&>;
template class VListView<VInParamIfViewTraits>;
template class VNamedListView<VInParamIfViewTraits>;

template class VExternalIterator<std::list<NODX201::IOutParamIf*>::iterator, NODX201::IOutParamIf&>;
template class VListView<VOutParamIfViewTraits>;

template class VExternalIterator<std::list<NODX201::VProtocol*>::iterator, NODX201::VProtocol&>;
template class VListView<VProtocolViewTraits>;
template class VNamedListView<VProtocolViewTraits>;

template class VExternalIterator<std::list<NODX201::VSession*>::iterator, NODX201::VSession&>;
template class VListView<VSessionViewTraits>;
template class VNamedListView<VSessionViewTraits>;

} // namespace NDIAGKIT
