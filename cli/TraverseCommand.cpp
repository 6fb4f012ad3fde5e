// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cli/Commands.h>
#include <cli/ElementFinder.h>
#include <cli/JsonWriter.h>
#include <cli/Layers.h>
#include <cli/Load.h>
#include <cli/Text.h>
#include <cli/ViewText.h>
#include <diagkit/tools/GuardedDiagLayerTraverser.h>
#include <diagkit/tools/TraverserKinds.h>

namespace NCli {
namespace {

/// One call of the traverser's hooks.
struct VCall {
    char const* event;                   ///< "pre", "post" or "cycle"
    wchar_t const* kind;                 ///< the hook's, L"DiagService"
    NODX201::VOdxElement const* element; ///< null for a text
    wchar_t const* name;                 ///< the short name, or the text itself
    std::size_t depth;                   ///< 0 for the layer
};

/// Thrown to stop a walk that is too long.
struct VWalkLeft {};

/// A walk that passes on all its calls one by one.
class VPrintingWalk : public NDIAGKIT::VGuardedDiagLayerTraverser {
public:
    VPrintingWalk(NODX201::VDiagLayer& layer, std::uint64_t maxVisits, VOutput& output)
        : VGuardedDiagLayerTraverser(layer), m_output(output), m_maxVisits(maxVisits) {}

    bool IsTooLong() const { return m_visits > m_maxVisits; }
    bool IsTooDeep() const { return m_isTooDeep; }

    /// The same as inside a walk over the layer, at the same depth.
    void TraverseDictionaryOf(NODX201::VDiagLayer& layer) {
        m_depth = 1;
        TraverseDiagDataDictionarySpec(layer.GetDiagDataDictionarySpec());
    }

protected:
    virtual void Take(VCall const& call) = 0;

    VOutput& m_output;

    void OnCycle(wchar_t const* kind, NODX201::VOdxElement& x) override {
        Take({"cycle", kind, &x, x.GetShortName(), m_depth});
    }

    void OnTooDeep(wchar_t const*, NODX201::VOdxElement&) override { m_isTooDeep = true; }

#define TRAVERSER_KIND(kind, element)                                                                                  \
    void PreProcess##kind(NODX201::element& x) override { Before(L## #kind, &x, x.GetShortName()); }                   \
    void PostProcess##kind(NODX201::element& x) override { After(L## #kind, &x, x.GetShortName()); }
#define TRAVERSER_TEXT_KIND(kind)                                                                                      \
    void PreProcess##kind(std::wstring& text) override { Before(L## #kind, nullptr, text.c_str()); }                   \
    void PostProcess##kind(std::wstring& text) override { After(L## #kind, nullptr, text.c_str()); }
#include <diagkit/tools/TraverserKinds.def>

private:
    void Before(wchar_t const* kind, NODX201::VOdxElement const* element, wchar_t const* name) {
        if (++m_visits > m_maxVisits || m_output.HasFailed()) {
            throw VWalkLeft();
        }
        Take({"pre", kind, element, name, m_depth++});
    }

    void After(wchar_t const* kind, NODX201::VOdxElement const* element, wchar_t const* name) {
        Take({"post", kind, element, name, --m_depth});
    }

    std::size_t m_depth = 0;
    std::uint64_t m_maxVisits;
    std::uint64_t m_visits = 0;
    bool m_isTooDeep = false;
};

class VJsonWalk : public VPrintingWalk {
public:
    using VPrintingWalk::VPrintingWalk;

protected:
    void Take(VCall const& call) override {
        WriteJsonLine(m_output, [&call](VJsonWriter& json) {
            json.Object([&] {
                json.Member("event", call.event);
                json.Member("kind", call.kind);
                json.TextOrNull("short_name", call.name);
                json.Member("depth", call.depth);
            });
        });
    }
};

/// A line for each element, indented, with its ODX tag; and at the end how many there were.
class VTextWalk : public VPrintingWalk {
public:
    using VPrintingWalk::VPrintingWalk;

    void WriteTotals() {
        m_output.Write(fmt::format("\n{}, {}\n", Counted(m_lines, "visit"), Counted(m_cycles, "cycle")));
    }

protected:
    void Take(VCall const& call) override {
        std::string_view const event = call.event;
        if (event == "post") {
            return;
        }
        bool const isCycle = event == "cycle";
        ++(isCycle ? m_cycles : m_lines);
        m_output.Write(
            fmt::format("{}{}{}{}\n", IndentOf(call.depth), TitleOf(call), NameOf(call), isCycle ? " (cycle)" : ""));
    }

private:
    /// For very deep data the depth as a number, so that lines stay short.
    static std::string IndentOf(std::size_t depth) {
        constexpr std::size_t kDeepest = 100;
        std::string indent(2 * std::min(depth, kDeepest), ' ');
        return depth <= kDeepest ? indent : indent + fmt::format("[{}] ", depth);
    }

    static std::string TitleOf(VCall const& call) {
        if (call.element != nullptr) {
            return KindOf(*call.element);
        }
        return std::wstring_view(call.kind) == L"Role" ? "ROLE" : "AUT-METHOD";
    }

    static std::string NameOf(VCall const& call) {
        std::string const name = Shown(std::wstring_view(call.name));
        return name.empty() ? "" : ' ' + name;
    }

    std::size_t m_lines = 0;
    std::size_t m_cycles = 0;
};

VStatus Walk(VPrintingWalk& walk, NODX201::VDiagLayer& layer, VArguments const& arguments, VOutput const& output) {
    try {
        if (arguments.isDictionary) {
            walk.TraverseDictionaryOf(layer);
        } else {
            walk.TraverseDiagLayer();
        }
    } catch (VWalkLeft const&) {
        // Reported below, or by the output itself.
    }
    if (walk.IsTooLong()) {
        output.Complain(fmt::format("stopped after {} visits; --max-visits allows more", arguments.maxVisits));
        return VStatus::Unreadable;
    }
    if (walk.IsTooDeep()) {
        output.Complain(fmt::format("elements nested deeper than {} are left out", VPrintingWalk::kMaxDepth));
        return VStatus::Unreadable;
    }
    return VStatus::Done;
}

} // namespace

void DeclareTraverse(CLI::App& command, VArguments& arguments) {
    DeclareLayer(command, arguments).required();
    command.add_flag("--dictionary", arguments.isDictionary, "Walk only the layer's DIAG-DATA-DICTIONARY-SPEC");
    DeclareCount(command, "--max-visits", arguments.maxVisits, "Stop after N visits, with status 3");
    DeclareFiles(command, arguments);
}

VStatus RunTraverse(VArguments const& arguments, VOutput& output) {
    NReader::VReadResult result;
    if (VStatus const status = Load(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    NODX201::VDiagLayer* const layer = FindLayer(*result.database, arguments.layer, output);
    if (layer == nullptr) {
        return VStatus::NotThere;
    }
    if (arguments.isDictionary && !layer->HasDiagDataDictionarySpec()) {
        output.Complain(fmt::format("{} has no DIAG-DATA-DICTIONARY-SPEC", Titled(*layer)));
        return VStatus::NotThere;
    }
    if (arguments.isJson) {
        VJsonWalk walk(*layer, arguments.maxVisits, output);
        return Walk(walk, *layer, arguments, output);
    }
    if (arguments.isDictionary) {
        output.Write(fmt::format("DIAG-DATA-DICTIONARY-SPEC of {}\n", Titled(*layer)));
    }
    VTextWalk walk(*layer, arguments.maxVisits, output);
    VStatus const status = Walk(walk, *layer, arguments, output);
    walk.WriteTotals();
    return status;
}

} // namespace NCli
