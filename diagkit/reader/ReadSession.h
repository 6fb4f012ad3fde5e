// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <exception>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include <diagkit/reader/Package.h>
#include <diagkit/reader/ReadDocument.h>

namespace NReader {

/// A file of the call, or of a folder that the call names.
struct VFile {
    std::string name;
    std::uint32_t number = 0;          // of the name, for findings about the whole file
    std::optional<VFailure> failure{}; // when nothing in it can be read
    std::string repeated{};            // an earlier name of the same file, which is not read twice
    bool isPackage = false;
    std::uint64_t unpacked = 0; // bytes of the members read so far
    bool isTooLarge = false;    // together they exceed the limit of a package
};

/// A document to read, and the result.
struct VDocument {
    std::size_t file;
    std::uint32_t number; // of its name
    std::uint64_t size;   // in the file
    std::optional<VPackage::VMember> member{};
    std::unique_ptr<VDocumentReading> reading{}; // null when it could not be read
    VFindings findings{};                        // why it could not
    std::exception_ptr thrown{};
};

/// Reads all files of a call: finds the documents in them, has them read by one thread or several, and adopts the
/// results in the order of the files. Only the second step uses threads.
class VReadSession {
public:
    VReadSession(VReading& reading, VReadOptions const& options) : m_reading(reading), m_options(options) {}

    /// Whether all files could be read.
    bool Read(std::vector<std::string> const& files);

private:
    friend class VReadWorker;

    void Add(std::string const& name);
    std::string EarlierNameOf(std::string const& name);
    std::optional<VFailure> AddFile(std::string const& name);
    std::optional<VFailure> AddPackage(std::string const& name);
    void AddDocument(std::string const& name, std::uint64_t size, std::optional<VPackage::VMember> member);

    void ReadDocuments();
    void ReadDocuments(std::size_t threads);
    std::size_t CountThreads() const;
    bool IsAnyPackageTooLarge() const;

    bool AdoptFile(std::size_t file);
    bool Fail(VFile const& file, VFailure const& failure);

    VReading& m_reading;
    VReadOptions const& m_options;
    std::vector<VFile> m_files;
    std::map<std::filesystem::path, std::string> m_names; // of the files by their places
    std::vector<VDocument> m_documents;                   // in the order of the files
    std::size_t m_adopted = 0;                            // how many of them AdoptFile has finished
    std::uint64_t m_all = 0;

    std::mutex m_mutex; // for the files and the progress, while documents are being read
    std::uint64_t m_done = 0;
};

} // namespace NReader
