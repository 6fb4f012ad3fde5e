// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/reader/Diagnostic.h>
#include <diagkit/reader/Limits.h>

namespace NReader {

/// The limits, and further options of the caller.
struct VReadOptions : VReadLimits {
    /// How many documents are read at the same time: 1 for one after the other, 0 for as many as the machine has cores
    /// and as are worth a thread. The result is the same.
    std::uint32_t threads = 0;

    /// Whether `VReadResult::elements` is filled, for programs that look at every element or reference.
    bool keepsElements = false;

    /// Whether every reference by ID into a document that is not loaded has a diagnostic of its own. Otherwise each
    /// such document has one, at the first of the references, with the number of them.
    bool tellsEachReference = false;

    /// Called now and then during long work with the bytes read so far and those to read in all (compressed sizes for
    /// packages), by the thread that reads; may be empty.
    std::function<void(std::uint64_t done, std::uint64_t all)> progress;
};

/// A document that was loaded; UTF-8.
struct VDocumentInfo {
    std::string file;         ///< as named by the user; inside a package PACKAGE!MEMBER
    std::string modelVersion; ///< @MODEL-VERSION, "" when absent
    std::string category;     ///< tag of the category element, such as "DIAG-LAYER-CONTAINER"
    std::string shortName;    ///< of the category element
};

/// The result of reading.
struct VReadResult {
    /// Null when a file that the caller named could not be read; `diagnostics` then says why, as an error.
    std::unique_ptr<NMemory::VDatabase> database;
    std::vector<VDocumentInfo> documents; ///< in load order, one for each category element
    std::vector<VDiagnostic> diagnostics; ///< in the order of the files, by position within each
    /// From the options, for code that looks for more diagnostics in the database.
    std::uint64_t maxDiagnostics = VReadLimits().maxDiagnostics;
    /// Elements that are not supported by the model, by tag; their contents are left out with them and not counted.
    std::map<std::string, std::size_t> unknownElements;
    /// With `keepsElements`: every element of the database in document order, including references (cast to
    /// `NODX201::VLink`, and to `NMemory::VMemNode` for the position). LONG-NAMEs and the exclusions of PARENT-REFs are
    /// left out. The pointers are valid until something is removed from the database.
    std::vector<NODX201::VOdxElement*> elements;
};

/// Reads ODX documents and PDX packages as one database, in the order given. The names are paths in UTF-8. A folder is
/// replaced by the documents and packages directly in it; see `FilesOf`.
///
/// A file is a package when it starts like a zip archive, whatever its name; anything else is read as XML. Everything
/// that can be loaded is loaded, and the rest reported: only a file that is not readable as ODX at all is refused, and
/// then nothing is loaded. A package member is left out as a whole if it cannot be read, if its name leads out of the
/// package, or if another member of the same name follows. Packages inside packages are not opened. A file that is
/// named twice, however the names are spelled, is read once, with a warning.
///
/// Throws std::bad_alloc when memory runs out, which is never reported as a fault of the data, and whatever the
/// functions of the options throw.
VReadResult ReadOdx(std::vector<std::string> const& files, VReadOptions const& options = {});

} // namespace NReader
