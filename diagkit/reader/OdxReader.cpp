// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/OdxReader.h>

#include <memory>
#include <new>
#include <system_error>
#include <utility>

#include <diagkit/reader/FinishReading.h>
#include <diagkit/reader/ReadSession.h>
#include <diagkit/tools/RememberingResolver.h>

namespace NReader {
namespace {

VReadResult Read(std::vector<std::string> const& files, VReadOptions const& options) {
    VReading reading;
    reading.database = std::make_unique<NMemory::VDatabase>();
    reading.findings = VFindings(options.maxDiagnostics);
    NMemory::VDatabase const* const database = reading.database.get();
    reading.database->SetResolverFactory([database] {
        return std::make_unique<NDIAGKIT::VRememberingResolver>([database] { return database->GetGeneration(); });
    });
    bool const areRead = VReadSession(reading, options).Read(files);
    VReadResult result;
    result.maxDiagnostics = options.maxDiagnostics;
    if (!areRead) {
        result.diagnostics = reading.findings.Sorted(*reading.database);
        return result;
    }
    FinishReading(reading, options.tellsEachReference);
    result.diagnostics = reading.findings.Sorted(*reading.database);
    result.documents = std::move(reading.documents);
    result.unknownElements = std::move(reading.unknownElements);
    result.elements = std::move(reading.elements);
    result.database = std::move(reading.database);
    return result;
}

} // namespace

VReadResult ReadOdx(std::vector<std::string> const& files, VReadOptions const& options) {
    try {
        return Read(files, options);
    } catch (std::system_error const& error) {
        // Where a mutex allocates memory when it is first locked, it reports a lack of memory in another way.
        if (error.code() == std::errc::not_enough_memory) {
            throw std::bad_alloc();
        }
        throw;
    }
}

} // namespace NReader
