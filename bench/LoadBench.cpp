// SPDX-License-Identifier: Apache-2.0
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include <expat.h>

#include <diagkit/check/Check.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/query/Diff.h>
#include <diagkit/query/Uses.h>
#include <diagkit/reader/OdxReader.h>
#include <diagkit/reader/Package.h>

#include "ProcessCost.h"

/// Loads files once, or does the minimum for loading them, and prints the cost as JSON. One run per process, so that
/// the peak memory is that of this run alone; `load` runs it.
///
///     diagkit_load_bench read|parse|load:THREADS|check|unused|diff FILE...
///
/// `read` reads the bytes, `parse` also has expat parse them with handlers that do nothing. Both unpack packages, and
/// the pieces are as large as the reader's. `check` and `unused` load with one thread and measure checking afterwards,
/// and finding the elements to which no reference leads; `diff` loads twice, changes ten elements of one, and measures
/// comparing.

namespace {

constexpr std::size_t kPieceSize = 256 * 1024;

struct VCost {
    std::uint64_t bytes = 0; // of XML
    std::uint64_t starts = 0;
    double serialCpu = 0; // after the last document, by one thread
    double destroySeconds = 0;
};

[[noreturn]] void Fail(std::string const& message) {
    std::fprintf(stderr, "%s\n", message.c_str());
    std::exit(1);
}

double Seconds() { return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(); }

/// Calls `take` with the pieces of every document, and with an empty piece at the end of each.
template <class Take>
void ForEachPiece(std::string const& file, Take take) {
    if (std::filesystem::u8path(file).extension() == ".pdx") {
        NReader::VPackage package;
        std::string error;
        if (!package.Open(file, error)) {
            Fail(file + ": " + error);
        }
        for (NReader::VPackage::VMember const& member : package.Documents()) {
            package.Read(
                member, UINT64_MAX,
                [&](std::string_view bytes) {
                    take(bytes);
                    return true;
                },
                error);
            take({});
        }
        return;
    }
    std::ifstream stream(std::filesystem::u8path(file), std::ios::binary);
    std::vector<char> buffer(kPieceSize);
    while (stream) {
        stream.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
        take(std::string_view(buffer.data(), static_cast<std::size_t>(stream.gcount())));
    }
    take({});
}

void Read(std::string const& file, VCost& cost) {
    ForEachPiece(file, [&cost](std::string_view bytes) { cost.bytes += bytes.size(); });
}

void Parse(std::string const& file, VCost& cost) {
    XML_Parser parser = nullptr;
    ForEachPiece(file, [&](std::string_view bytes) {
        if (parser == nullptr) {
            parser = XML_ParserCreate(nullptr);
            XML_SetUserData(parser, &cost.starts);
            XML_SetElementHandler(
                parser, [](void* starts, char const*, char const**) { ++*static_cast<std::uint64_t*>(starts); },
                [](void*, char const*) {});
            XML_SetCharacterDataHandler(parser, [](void*, char const*, int) {});
            XML_SetProcessingInstructionHandler(parser, [](void*, char const*, char const*) {});
        }
        cost.bytes += bytes.size();
        if (XML_Parse(parser, bytes.data(), static_cast<int>(bytes.size()), bytes.empty()) != XML_STATUS_OK) {
            Fail(file + " cannot be parsed");
        }
        if (bytes.empty()) {
            XML_ParserFree(parser);
            parser = nullptr;
        }
    });
}

std::size_t CountUnused(NReader::VReadResult const& result) {
    return NQuery::VUses(*result.database, result.elements).Unused().size();
}

NReader::VReadResult LoadedFor(std::vector<std::string> const& files, bool keepsElements) {
    NReader::VReadOptions options;
    options.threads = 1;
    options.keepsElements = keepsElements;
    NReader::VReadResult result = NReader::ReadOdx(files, options);
    if (result.database == nullptr) {
        Fail("the files cannot be loaded");
    }
    return result;
}

/// Ten DATA-OBJECT-PROPs, distributed over the database, get another description.
void ChangeTen(std::vector<NODX201::VOdxElement*> const& elements) {
    std::vector<NMemory::VMemDataObjectProp*> dops;
    for (NODX201::VOdxElement* const element : elements) {
        if (auto* const dop = dynamic_cast<NMemory::VMemDataObjectProp*>(element)) {
            dops.push_back(dop);
        }
    }
    for (std::size_t i = 0; i < 10; ++i) {
        dops.at(i * dops.size() / 10)->SetDesc(L"<p>changed</p>");
    }
}

} // namespace

int main(int count, char** arguments) {
    if (count < 3) {
        Fail("diagkit_load_bench read|parse|load:THREADS|check|unused|diff FILE...");
    }
    std::string const mode = arguments[1];
    std::vector<std::string> const files(arguments + 2, arguments + count);
    VCost cost;
    double start = Seconds();
    double cpuStart = NBench::ProcessorSeconds();
    double end = 0;
    double cpuEnd = 0;
    auto const stop = [&] {
        end = Seconds();
        cpuEnd = NBench::ProcessorSeconds();
    };
    if (mode.rfind("load:", 0) == 0) {
        NReader::VReadOptions options;
        options.threads = static_cast<std::uint32_t>(std::atoi(mode.c_str() + std::strlen("load:")));
        double cpuRead = 0; // when the last document was read
        options.progress = [&cpuRead](std::uint64_t, std::uint64_t) { cpuRead = NBench::ProcessorSeconds(); };
        NReader::VReadResult result = NReader::ReadOdx(files, options);
        stop();
        cost.serialCpu = cpuEnd - cpuRead;
        if (result.database == nullptr || !result.diagnostics.empty()) {
            Fail("the files cannot be loaded without a diagnostic");
        }
        double const destroyStart = Seconds();
        result.database.reset();
        cost.destroySeconds = Seconds() - destroyStart;
    } else if (mode == "check" || mode == "unused") {
        NReader::VReadOptions options;
        options.threads = 1;
        options.keepsElements = true;
        NReader::VReadResult result = NReader::ReadOdx(files, options);
        start = Seconds();
        cpuStart = NBench::ProcessorSeconds();
        std::size_t const found = mode == "check" ? NCheck::CheckDatabase(result).size() : CountUnused(result);
        stop();
        if (result.database == nullptr || (mode == "check" && found != 0)) {
            Fail("the files cannot be checked without a finding");
        }
    } else if (mode == "diff") {
        NReader::VReadResult const old = LoadedFor(files, false);
        NReader::VReadResult const now = LoadedFor(files, true);
        ChangeTen(now.elements);
        start = Seconds();
        cpuStart = NBench::ProcessorSeconds();
        NQuery::VDiff const diff = NQuery::DiffDatabases(*old.database, *now.database);
        stop();
        if (diff.IsEqual()) {
            Fail("what was changed is not found");
        }
    } else {
        for (std::string const& file : files) {
            mode == "parse" ? Parse(file, cost) : Read(file, cost);
        }
        stop();
    }
    std::printf("{\"seconds\": %.6f, \"cpu\": %.6f, \"serial\": %.6f, \"destroy\": %.6f, "
                "\"bytes\": %llu, \"elements\": %llu, \"peak\": %llu}\n",
                end - start, cpuEnd - cpuStart, cost.serialCpu, cost.destroySeconds,
                static_cast<unsigned long long>(cost.bytes), static_cast<unsigned long long>(cost.starts),
                static_cast<unsigned long long>(NBench::PeakBytes()));
    return 0;
}
