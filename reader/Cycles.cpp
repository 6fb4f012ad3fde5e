// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Cycles.h>

#include <string>

#include <diagkit/reader/Containment.h>
#include <diagkit/reader/Utf8.h>

namespace NReader {
namespace {

VEdgesOf Following(VShortNameTargets shortNameTargets) {
    return [shortNameTargets = std::move(shortNameTargets)](NODX201::VReferencable& element) {
        return EdgesOf(dynamic_cast<NODX201::VDopBase&>(element), shortNameTargets);
    };
}

void Report(VReading& reading, VEdge const& severed, std::string const& where) {
    reading.findings.Add(dynamic_cast<NMemory::VMemNode const&>(*severed.link).GetPosition(), VSeverity::Error,
                         "containment-cycle",
                         ToUtf8(NODX201::OdxTagText(severed.target->GetOdxTag())) + " '" +
                             ToUtf8(severed.target->GetShortName()) + "' contains itself through this reference" +
                             where + ", which is left unresolved" + (where.empty() ? "" : " there"));
}

/// Follows references by ID alone.
void SearchByIds(VReading& reading, VReferencables const& dops) {
    VCycleSearch search(Following(&NoTargets), &IsReference, [&reading](VEdge const& closing, VReferencables const&) {
        closing.sever();
        Report(reading, closing, "");
    });
    for (NODX201::VReferencable* const dop : dops) {
        search.From(*dop);
    }
}

/// Follows short names as well, to what they mean in the layer, and severs only these.
void SearchInLayer(VReading& reading, VReferencables const& suspects, NODX201::VDiagLayer& layer) {
    auto const sever = [&reading, &layer](VEdge const& closing, VReferencables const&) {
        closing.shortName->SeverIn(layer);
        Report(reading, closing, " in the layer '" + ToUtf8(layer.GetShortName()) + "'");
    };
    VCycleSearch search(Following(TargetsIn(layer)), &IsByShortName, sever);
    for (NODX201::VReferencable* const dop : suspects) {
        search.From(*dop);
    }
}

/// Those that lead into a cycle, short names being followed to whatever bears them: nearly always none.
VReferencables Suspects(VReferencables const& dops) { return LeadingIntoCycles(dops, Following(VDopsByName(dops))); }

} // namespace

void SeverContainmentCycles(VReading& reading) {
    VReferencables const leading = Suspects(DopsOf(*reading.database));
    if (leading.empty()) {
        return;
    }
    SearchByIds(reading, leading);
    VReferencables const suspects = Suspects(leading);
    if (suspects.empty()) {
        return;
    }
    ForEachLayer(*reading.database, [&](NODX201::VDiagLayer& layer) { SearchInLayer(reading, suspects, layer); });
    reading.database->StartNewResolver(); // the views of all layers are more than most programs want to hold
}

} // namespace NReader
