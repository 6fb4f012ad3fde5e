// SPDX-License-Identifier: Apache-2.0

// The makers of elements, a row a class, so that their code is compiled here alone.

#include <diagkit/memory/Comparams.h>
#include <diagkit/memory/DiagCommLinks.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/DiagVariables.h>
#include <diagkit/memory/FunctClasses.h>
#include <diagkit/memory/Importing.h>
#include <diagkit/memory/LayerParts.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/MultipleEcuJobs.h>
#include <diagkit/memory/NewImpl.h>
#include <diagkit/memory/Params.h>
#include <diagkit/memory/ParentRefs.h>
#include <diagkit/memory/Responses.h>

// clang-format off

namespace NMemory {

template std::unique_ptr<VMemProtocol> New(VPlace const& place);
template std::unique_ptr<VMemFunctionalGroup> New(VPlace const& place);
template std::unique_ptr<VMemBaseVariant> New(VPlace const& place);
template std::unique_ptr<VMemEcuVariant> New(VPlace const& place);
template std::unique_ptr<VMemEcuSharedData> New(VPlace const& place);
template std::unique_ptr<VMemDiagLayerContainer> New(VPlace const& place);
template std::unique_ptr<VMemAccessLevel> New(VPlace const& place);
template std::unique_ptr<VMemByteStream> New(VPlace const& place);
template std::unique_ptr<VMemDynIdDefModeInfo> New(VPlace const& place);
template std::unique_ptr<VMemDynDefinedSpec> New(VPlace const& place);
template std::unique_ptr<VMemMatchingParameter> New(VPlace const& place);
template std::unique_ptr<VMemEcuVariantPattern> New(VPlace const& place);
template std::unique_ptr<VMemNotInheritedDiagComm> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemNotInheritedVariable> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemParentRef> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemProtocolRef> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemFunctionalGroupRef> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemBaseVariantRef> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemEcuSharedDataRef> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemAudience> New(VPlace const& place);
template std::unique_ptr<VMemInputParam> New(VPlace const& place);
template std::unique_ptr<VMemOutputParam> New(VPlace const& place);
template std::unique_ptr<VMemNegOutputParam> New(VPlace const& place);
template std::unique_ptr<VMemDiagService> New(VPlace const& place);
template std::unique_ptr<VMemSingleEcuJob> New(VPlace const& place);
template std::unique_ptr<VMemDiagCommLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemRelatedDiagCommRef> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemDiagVariableLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemOutParamIfLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemInParamIfLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemProtocolSnref> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemVariableGroup> New(VPlace const& place);
template std::unique_ptr<VMemSwVariable> New(VPlace const& place);
template std::unique_ptr<VMemCommRelation> New(VPlace const& place);
template std::unique_ptr<VMemDiagVariable> New(VPlace const& place);
template std::unique_ptr<VMemVariableGroupLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemFunctClass> New(VPlace const& place);
template std::unique_ptr<VMemFunctClassLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemImportRef> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemComparam> New(VPlace const& place);
template std::unique_ptr<VMemComparamSpec> New(VPlace const& place);
template std::unique_ptr<VMemComparamSpecLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemComparamRef> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemMultipleEcuJob> New(VPlace const& place);
template std::unique_ptr<VMemMultipleEcuJobSpec> New(VPlace const& place);
template std::unique_ptr<VMemDiagLayerLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemRequest> New(VPlace const& place);
template std::unique_ptr<VMemPosResponse> New(VPlace const& place);
template std::unique_ptr<VMemNegResponse> New(VPlace const& place);
template std::unique_ptr<VMemGlobalNegResponse> New(VPlace const& place);
template std::unique_ptr<VMemRequestLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemPosResponseLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemNegResponseLink> New(VPlace const& place, VReference const& reference);
template std::unique_ptr<VMemCodedConst> New(VPlace const& place);
template std::unique_ptr<VMemDynamic> New(VPlace const& place);
template std::unique_ptr<VMemLengthKey> New(VPlace const& place);
template std::unique_ptr<VMemMatchingRequestParam> New(VPlace const& place);
template std::unique_ptr<VMemPhysConst> New(VPlace const& place);
template std::unique_ptr<VMemReserved> New(VPlace const& place);
template std::unique_ptr<VMemSystem> New(VPlace const& place);
template std::unique_ptr<VMemTableKey> New(VPlace const& place);
template std::unique_ptr<VMemTableStruct> New(VPlace const& place);
template std::unique_ptr<VMemTableEntry> New(VPlace const& place);
template std::unique_ptr<VMemValue> New(VPlace const& place);
template std::unique_ptr<VMemTableKeyLink> New(VPlace const& place, VReference const& reference);

} // namespace NMemory

// clang-format on
