// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/tools/GuardedDiagLayerTraverser.h>

#include "tools/Transcript.h"

namespace NTest {

/// A traverser that records every hook call, and whose Visit operations a test may call.
template <class Traverser>
class VRecording : public Traverser {
public:
    explicit VRecording(NODX201::VDiagLayer& layer) : Traverser(layer) {}

    std::wstring TakeTranscript() { return m_transcript.Take(); }

    /// The transcript of a walk over the whole layer.
    std::wstring WalkedLayer() {
        this->TraverseDiagLayer();
        return TakeTranscript();
    }

    VTranscript m_transcript;

#define TRAVERSER_KIND(kind, element) using Traverser::Visit##kind;
#define TRAVERSER_TEXT_KIND(kind)
#include <diagkit/tools/TraverserKinds.def>

protected:
#define TRAVERSER_KIND(kind, element)                                                                                  \
    void PreProcess##kind(NODX201::element& x) override { m_transcript.Before(L## #kind, x); }                         \
    void PostProcess##kind(NODX201::element& x) override { m_transcript.After(L## #kind, x); }
#define TRAVERSER_TEXT_KIND(kind)                                                                                      \
    void PreProcess##kind(std::wstring& text) override { m_transcript.BeforeText(L## #kind, text); }                   \
    void PostProcess##kind(std::wstring& text) override { m_transcript.AfterText(L## #kind, text); }
#include <diagkit/tools/TraverserKinds.def>

    void DefaultVisit(NODX201::VOdxElement& x) override { m_transcript.Any(x); }
};

using VRecorder = VRecording<NDIAGKIT::VDiagLayerTraverser>;

/// The same for the guarded traverser: elements that are not entered again are marked.
class VGuardedRecorder : public VRecording<NDIAGKIT::VGuardedDiagLayerTraverser> {
public:
    using VRecording::VRecording;

protected:
    void OnCycle(wchar_t const* kind, NODX201::VOdxElement& x) override { m_transcript.Cycle(kind, x); }
};

} // namespace NTest
