// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpBuildGlobalNegResponseView.h>
#include <diagkit/tools/OpBuildInParamIfView.h>
#include <diagkit/tools/OpBuildOutParamIfView.h>
#include <diagkit/tools/OpBuildProtocolView.h>

#include "support/MockElements.h"
#include "tools/ContentGraph.h"
#include "tools/ParamTest.h"

/// The seven builders of views as rows of typed tests. A row is the test class of its builder. It defines the objects
/// from which the builder makes views, the printed views, and how the builder reports that it made none:
///
///   Subject(), OtherSubject()         objects with a view; they print as kPrint and kOtherPrint
///   SubjectWithoutView()              an object for which the builder makes no view
///   Create(builder, subject)          the builder's Create
///   Destroy(builder, view)            its Destroy, where it has one
///   kName                             the row in the names of the tests
///   NoView(), kLogged                 the assertion and the message when there is no view

namespace NTest {

template <class BuilderClass, class ViewClass>
struct VBuilderRow {
    using VBuilder = BuilderClass;
    using VView = ViewClass;

    VBuilder m_builder;
};

// Layers

/// The differences of a builder of layers' views.
struct VLayerRow {
    char const* name;
    VContent content;
    wchar_t const *lib, *uds, *doors, *bv, *ecu; ///< the views of the layers, in print
    wchar_t const *logged, *expression, *source; ///< when there is no view; null where the builder is silent
    int line;
};

// clang-format off
inline constexpr VLayerRow kDiagCommRow{"DiagComm", VContent::DiagComms,
    L"L@Lib", L"P@Uds L@Lib", L"F@Doors P@Uds L@Lib", L"B@Bv F@Doors P@Uds L@Lib", L"E@Ecu B@Bv F@Doors P@Uds L@Lib",
    L"mpDiagCommView != NULL.", L"(mpDiagCommView != 0)", L"OpBuildDiagCommView", 83};
inline constexpr VLayerRow kDiagVariableRow{"DiagVariable", VContent::DiagVariables,
    L"L@Lib", L"", L"F@Doors L@Lib", L"B@Bv F@Doors L@Lib", L"E@Ecu B@Bv F@Doors L@Lib",
    L"mpDiagVariableView != NULL.", L"(mpDiagVariableView != 0)", L"OpBuildDiagVariableView", 83};
inline constexpr VLayerRow kDopRow{"Dop", VContent::Dops,
    L"L@Lib", L"L@Lib P@Uds", L"F@Doors L@Lib P@Uds", L"B@Bv F@Doors L@Lib P@Uds", L"B@Bv E@Ecu F@Doors L@Lib P@Uds",
    L"mpDopView != NULL.", L"(mpDopView != 0)", L"OpBuildDopView", 85};
inline constexpr VLayerRow kGlobalNegResponseRow{"GlobalNegResponse", VContent::GlobalNegResponses,
    L"L@Lib", L"P@Uds L@Lib", L"F@Doors P@Uds L@Lib", L"B@Bv F@Doors P@Uds L@Lib", L"E@Ecu B@Bv F@Doors P@Uds L@Lib",
    nullptr, nullptr, nullptr, 0};
// clang-format on

template <VLayerRow const& kLayerRow, class Builder, class View, View* (Builder::*kCreate)(NODX201::VDiagLayer&),
          void (Builder::*kDestroy)(View&)>
class VLayerBuilderRow : public VContentTest, public VBuilderRow<Builder, View> {
public:
    static constexpr VLayerRow const& kRow = kLayerRow;
    static constexpr char const* kName = kRow.name;

protected:
    VLayerBuilderRow() : VContentTest(kRow.content) {}

    void SetUp() override {
        Graph(LR"(
            esd  Lib   : L
            prot Uds   : P   < Lib
            func Doors : F   < Uds Lib
            base Bv    : B   < Doors
            ecu  Ecu   : E   < Bv
        )");
    }

    NODX201::VDiagLayer& Subject() { return Layer(L"Doors"); }
    NODX201::VDiagLayer& OtherSubject() { return Layer(L"Lib"); }
    NODX201::VDiagLayer& SubjectWithoutView() { return m_silent; }

    static View* Create(Builder& builder, NODX201::VDiagLayer& layer) { return (builder.*kCreate)(layer); }
    static void Destroy(Builder& builder, View& view) { (builder.*kDestroy)(view); }
    static std::wstring Print(View& view) { return PrintEntries(view); }

    static constexpr wchar_t const* kPrint = kRow.doors;
    static constexpr wchar_t const* kOtherPrint = kRow.lib;
    static constexpr wchar_t const* kLogged = kRow.logged;
    VAssertionList NoView() const { return {{kRow.expression, kRow.source, kRow.line}}; }

private:
    VSilentLayer m_silent;
};

#define DIAGKIT_LAYER_BUILDER(Name)                                                                                    \
    VLayerBuilderRow<k##Name##Row, NDIAGKIT::VOpBuild##Name##View, NDIAGKIT::V##Name##View,                            \
                     &NDIAGKIT::VOpBuild##Name##View::Create##Name##View,                                              \
                     &NDIAGKIT::VOpBuild##Name##View::Destroy##Name##View>
using VDiagCommRow = DIAGKIT_LAYER_BUILDER(DiagComm);
using VDiagVariableRow = DIAGKIT_LAYER_BUILDER(DiagVariable);
using VDopRow = DIAGKIT_LAYER_BUILDER(Dop);
using VGlobalNegResponseRow = DIAGKIT_LAYER_BUILDER(GlobalNegResponse);
#undef DIAGKIT_LAYER_BUILDER

// Services and jobs

template <class Builder, class View>
class VParamBuilderRow : public VParamTest, public VBuilderRow<VConcreteBuilder<Builder>, View> {
protected:
    static constexpr wchar_t const* kPrint = L"OfService";
    static constexpr wchar_t const* kOtherPrint = L"OfSingleJob";

    NODX201::VDiagComm& Subject() { return m_service; }
    NODX201::VDiagComm& OtherSubject() { return m_singleJob; }
    NODX201::VDiagComm& SubjectWithoutView() { return MultipleJobAsDiagComm(); }

    static std::wstring Print(View& view) { return PrintParams(view); }
};

class VInParamIfRow : public VParamBuilderRow<NDIAGKIT::VOpBuildInParamIfView, NDIAGKIT::VInParamIfView> {
public:
    static constexpr char const* kName = "InParamIf";

protected:
    VInParamIfRow() {
        PosResponse().AddValue(L"OfService");
        m_singleJob.AddInputParam(L"OfSingleJob");
        m_multipleJob.AddInputParam(L"OfMultipleJob");
    }

    template <class Subject>
    static VView* Create(VBuilder& builder, Subject& subject) {
        return builder.CreateInParamIfView(subject);
    }

    static constexpr wchar_t const* kLogged = L"mpInParamIfView != NULL.";
    VAssertionList NoView() const { return {{L"(mpInParamIfView != 0)", L"OpBuildInParamIfView", 62}}; }
};

class VOutParamIfRow : public VParamBuilderRow<NDIAGKIT::VOpBuildOutParamIfView, NDIAGKIT::VOutParamIfView> {
public:
    static constexpr char const* kName = "OutParamIf";

protected:
    VOutParamIfRow() {
        Request().AddValue(L"OfService");
        PosResponse().AddValue(L"OfResponse");
        m_singleJob.AddOutputParam(L"OfSingleJob");
        m_multipleJob.AddOutputParam(L"OfMultipleJob");
    }

    static VView* Create(VBuilder& builder, NODX201::VDiagComm& diagComm) {
        return builder.CreateOutParamIfView(diagComm, NODX201::VSearchRange::Request);
    }
    static VView* Create(VBuilder& builder, NODX201::VMultipleEcuJob& job) { return builder.CreateOutParamIfView(job); }

    static constexpr wchar_t const* kLogged = L"mpOutParamIfView != NULL.";
    VAssertionList NoView() const { return {{L"(mpOutParamIfView != 0)", L"OpBuildOutParamIfView", 62}}; }
};

// Containers

class VProtocolRow : public VContentTest, public VBuilderRow<NDIAGKIT::VOpBuildProtocolView, NDIAGKIT::VProtocolView> {
public:
    static constexpr char const* kName = "Protocol";

protected:
    VProtocolRow() : VContentTest(VContent::Dops) {}

    void SetUp() override { Graph(L"prot Uds \n base Bv < Uds \n prot Kwp"); }

    NODX201::VDiagLayerContainer& Subject() { return m_graph->Container(); }
    NODX201::VDiagLayerContainer& OtherSubject() { return Database().AddDiagLayerContainer(L"Empty"); }

    static VView* Create(VBuilder& builder, NODX201::VDiagLayerContainer& container) {
        return builder.CreateProtocolView(container);
    }
    static void Destroy(VBuilder& builder, VView& view) { builder.DestroyProtocolView(view); }
    static std::wstring Print(VView& view) { return PrintEntries(view); }

    static constexpr wchar_t const* kPrint = L"Uds@Uds Kwp@Kwp";
    static constexpr wchar_t const* kOtherPrint = L"";
};

/// Names the tests of a row after it.
struct VRowNames {
    template <class Row>
    static std::string GetName(int) {
        return Row::kName;
    }
};

} // namespace NTest
