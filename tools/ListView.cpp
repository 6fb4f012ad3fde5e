// SPDX-License-Identifier: Apache-2.0

// The instantiations of the list views, a block a view, so that the bodies stay out of the public headers.

#include <diagkit/model/DiagComms.h>
#include <diagkit/tools/DiagCommView.h>
#include <diagkit/tools/ListViewImpl.h>

namespace NDIAGKIT {

template class VExternalIterator<std::list<NODX201::VDiagComm*>::iterator, NODX201::VDiagComm&>;
template class VListView<VDiagCommViewTraits>;
template class VNamedListView<VDiagCommViewTraits>;

} // namespace NDIAGKIT
