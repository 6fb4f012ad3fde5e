// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>

/// Double dispatch over the four families of elements that have several kinds. An element's `Accept` calls one Visit
/// operation once, the one for its kind; `Dispatch...` does the same from the visitor's side. Visit operations are
/// pure: a visitor defines what it does with every kind.

namespace NODX201 {

/// Visits the five kinds of diagnostic layer.
class DIAGKIT_EXPORT VDiagLayerVisitor {
public:
    virtual ~VDiagLayerVisitor();

    virtual void VisitBaseVariant(VBaseVariant& layer) = 0;
    virtual void VisitProtocol(VProtocol& layer) = 0;
    virtual void VisitFunctionalGroup(VFunctionalGroup& layer) = 0;
    virtual void VisitEcuVariant(VEcuVariant& layer) = 0;
    virtual void VisitEcuSharedData(VEcuSharedData& layer) = 0;

    virtual void DispatchDiagLayer(VDiagLayer& layer);
};

/// Visits the two kinds of DIAG-COMM that layers contain.
class DIAGKIT_EXPORT VDiagCommVisitor {
public:
    virtual ~VDiagCommVisitor();

    virtual void VisitDiagService(VDiagService& service) = 0;
    virtual void VisitSingleEcuJob(VSingleEcuJob& job) = 0;

    virtual void DispatchDiagComm(VDiagComm& diagComm);
};

/// Visits the ten kinds of DOP.
class DIAGKIT_EXPORT VDopBaseVisitor {
public:
    virtual ~VDopBaseVisitor();

    virtual void VisitEnvData(VEnvData& dop) = 0;
    virtual void VisitStructure(VStructure& dop) = 0;
    virtual void VisitEnvDataDesc(VEnvDataDesc& dop) = 0;
    virtual void VisitStaticField(VStaticField& dop) = 0;
    virtual void VisitDynamicLengthField(VDynamicLengthField& dop) = 0;
    virtual void VisitDynamicEndmarkerField(VDynamicEndmarkerField& dop) = 0;
    virtual void VisitEndOfPduField(VEndOfPduField& dop) = 0;
    virtual void VisitMux(VMux& dop) = 0;
    virtual void VisitDataObjectProp(VDataObjectProp& dop) = 0;
    virtual void VisitDtcDop(VDtcDop& dop) = 0;

    virtual void DispatchDopBase(VDopBase& dop);
};

/// Visits the eleven kinds of PARAM.
class DIAGKIT_EXPORT VParamVisitor {
public:
    virtual ~VParamVisitor();

    virtual void VisitCodedConst(VCodedConst& param) = 0;
    virtual void VisitDynamic(VDynamic& param) = 0;
    virtual void VisitLengthKey(VLengthKey& param) = 0;
    virtual void VisitMatchingRequestParam(VMatchingRequestParam& param) = 0;
    virtual void VisitPhysConst(VPhysConst& param) = 0;
    virtual void VisitReserved(VReserved& param) = 0;
    virtual void VisitSystem(VSystem& param) = 0;
    virtual void VisitTableKey(VTableKey& param) = 0;
    virtual void VisitTableStruct(VTableStruct& param) = 0;
    virtual void VisitValue(VValue& param) = 0;
    virtual void VisitTableEntry(VTableEntry& param) = 0;

    virtual void DispatchParam(VParam& param);
};

} // namespace NODX201
