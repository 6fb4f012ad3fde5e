// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <unordered_map>

#include <diagkit/tools/OpResolveSnref.h>

namespace NDIAGKIT {

/// A resolver that gives the same results as its base, and caches what is visible in a context where it is asked more
/// than once in a row: a walk over a layer, which resolves one name after another there, finds each of them quickly.
/// For each kind of short name one context is cached, so it uses no more memory than one view of each kind; DOP views
/// are kept as in the base.
///
/// The cache is cleared when the generation changes. Not thread-safe.
class DIAGKIT_EXPORT VRememberingResolver : public VOpResolveSnref {
public:
    /// Returns a number for the state of the model that differs after every change.
    using VGeneration = std::function<std::uint64_t()>;

    /// Without a generation the model must not change while this object is used.
    explicit VRememberingResolver(VGeneration generation = {});
    ~VRememberingResolver() override;

    NODX201::VDiagComm* ResolveDiagCommSnref(wchar_t const* shortName, NODX201::VDiagLayer& layer) override;
    NODX201::VDiagVariable* ResolveDiagVariableSnref(wchar_t const* shortName, NODX201::VDiagLayer& layer) override;
    NODX201::IIdentIf* ResolveIdentIfSnref(wchar_t const* shortName, NODX201::VFlash& flash) override;
    NODX201::VProtocol* ResolveProtocolSnref(wchar_t const* shortName,
                                             NODX201::VDiagLayerContainer& container) override;
    NODX201::VSession* ResolveSessionSnref(wchar_t const* shortName, NODX201::VFlash& flash) override;
    NODX201::IInParamIf* ResolveInParamIfSnref(wchar_t const* shortName, NODX201::VMultipleEcuJob& job) override;
    NODX201::IInParamIf* ResolveInParamIfSnref(wchar_t const* shortName, NODX201::VDiagComm& diagComm) override;
    NODX201::IOutParamIf* ResolveOutParamIfSnref(wchar_t const* shortName, NODX201::VMultipleEcuJob& job,
                                                 NODX201::VDiagLayer& layer) override;
    NODX201::IOutParamIf* ResolveOutParamIfSnref(wchar_t const* shortName, NODX201::VDiagComm& diagComm,
                                                 NODX201::VDiagLayer& layer, NODX201::VSearchRange range) override;

private:
    /// Where a short name is looked up.
    struct VContext {
        void const* place = nullptr;
        NODX201::VDiagLayer const* layer = nullptr; ///< the layer, where it matters
        int range = 0;                              ///< the search range, where it matters

        bool operator==(VContext const& other) const {
            return place == other.place && layer == other.layer && range == other.range;
        }
    };

    /// The elements by short name of one kind in the context that was asked about last. The keys view the elements'
    /// texts.
    template <class Element>
    struct VMeaning {
        VContext context{};
        bool isFilled = false;
        std::unordered_map<std::wstring_view, Element*> elements{};
    };

    /// `resolve` answers the first request in a context, `fill` collects everything that later ones may need.
    template <class Element, class Resolve, class Fill>
    Element* Find(VMeaning<Element>& meaning, VContext const& context, wchar_t const* shortName, Resolve resolve,
                  Fill fill);
    void ForgetOld();

    VGeneration m_generation;
    std::uint64_t m_latest = 0;
    VMeaning<NODX201::VDiagComm> m_diagComms;
    VMeaning<NODX201::VDiagVariable> m_diagVariables;
    VMeaning<NODX201::IIdentIf> m_idents;
    VMeaning<NODX201::VProtocol> m_protocols;
    VMeaning<NODX201::VSession> m_sessions;
    VMeaning<NODX201::IInParamIf> m_inParams;
    VMeaning<NODX201::IOutParamIf> m_outParams;
};

} // namespace NDIAGKIT
