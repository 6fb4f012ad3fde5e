// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Reference.h>
#include <diagkit/reader/OdxReader.h>

namespace NQuery {

/// A reference that leads to an element.
struct VUse {
    NODX201::VLink* reference;
    NODX201::VOdxElement* from; ///< the nearest element around it with a short name; null where there is none
    /// For a reference by short name, the layers in which its target is the element, in document order. Nothing for one
    /// by ID, and for a short name that is looked up elsewhere: in a FLASH, in the dictionary of a
    /// MULTIPLE-ECU-JOB-SPEC, or among PROTOCOLs.
    std::optional<std::vector<NODX201::VDiagLayer*>> layers;
};

/// The references to every element of a database. Build it once and query it often; building takes about as long as
/// checking the references.
///
///     NReader::VReadOptions options;
///     options.keepsElements = true;
///     NReader::VReadResult const result = NReader::ReadOdx({"body.pdx"}, options);
///     NQuery::VUses const uses(*result.database, result.elements);
///     for (NQuery::VUse const& use : uses.Of(dop)) { ... }
///
/// A reference by ID leads to its target also where the reader cut it because it closes a circle of containment. One by
/// short name is read in the layer that it stands in, and in every layer whose views hold the DIAG-COMM, DOP,
/// DIAG-VARIABLE or GLOBAL-NEG-RESPONSE that it stands in, or a service of its message; and so is one of a DOP to which
/// references by ID lead from any of these. It may mean another element in each layer. The PARAM-SNREF of an
/// ENV-DATA-DESC means each parameter of its name in what the services lead to that lead to it; any other reference to
/// a parameter the one that its DIAG-COMM has, where those of responses go before those of the request. DOCREF and what
/// NOT-INHERITED-... names are no references.
///
/// The model owns the elements in the results. After adding, removing, renaming or redirecting anything, an index is no
/// longer valid: an editor makes a new one from the remaining elements (see `LeaveOut`).
class VUses {
public:
    /// Called at intervals with the steps done so far and in total; may be empty.
    using VProgress = std::function<void(std::uint64_t done, std::uint64_t all)>;

    /// `elements` are all elements of the database in document order, as the reader keeps them. The database must
    /// outlive the index, the list need not. The database's resolver is replaced by a new one.
    VUses(NMemory::VDatabase& database, std::vector<NODX201::VOdxElement*> const& elements,
          VProgress const& progress = {});
    ~VUses();
    VUses(VUses const&) = delete;
    VUses& operator=(VUses const&) = delete;

    /// The references that lead to an element itself, in document order; none for an element of another database.
    std::vector<VUse> Of(NODX201::VOdxElement const& element) const;

    /// The elements to which no reference leads in any layer, in document order: DOPs except ENV-DATA, TABLEs, UNITs,
    /// PHYSICAL-DIMENSIONs, requests and responses except GLOBAL-NEG-RESPONSEs, and FUNCT-CLASSs. A reference to a
    /// part, such as a DTC or a TABLE-ROW, counts for the whole. References inside the element itself do not count;
    /// references inside other unused elements do.
    std::vector<NODX201::VOdxElement*> Unused() const;

private:
    class VIndex;

    std::unique_ptr<VIndex> m_index;
};

/// Removes an element that is about to be destroyed, and everything inside it, from a list of elements.
void LeaveOut(std::vector<NODX201::VOdxElement*>& elements, NODX201::VOdxElement const& element);

} // namespace NQuery
