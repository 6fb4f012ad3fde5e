// SPDX-License-Identifier: Apache-2.0
#include "MakeDatabase.h"

#include <algorithm>
#include <fstream>
#include <memory>
#include <stdexcept>

#include <zip.h>

#include "MakeLayer.h"

namespace NBench {
namespace {

constexpr std::size_t kCommonDocuments = 2;
constexpr std::size_t kLayersOfBase = 5; // itself and its ECU-VARIANTs
constexpr char const* kProtocols[] = {"UdsOnCan", "KwpOnCan"};

std::string Numbered(char const* text, std::size_t number) {
    std::string const digits = std::to_string(number);
    return text + std::string(digits.size() < 4 ? 4 - digits.size() : 0, '0') + digits;
}

std::string ContainerName(std::size_t container) { return Numbered("ControlUnits", container + 1); }

template <class Inside>
void WriteOdx(VXmlWriter& xml, Inside inside) {
    xml.Element("ODX",
                {{"MODEL-VERSION", "2.0.1"},
                 {"xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"},
                 {"xsi:noNamespaceSchemaLocation", "odx.xsd"}},
                inside);
}

void WriteHead(VXmlWriter& xml, std::string const& name) {
    xml.Text("SHORT-NAME", name);
    xml.Element("COMPANY-DATAS", [&] {
        xml.Element("COMPANY-DATA", {{"ID", name + ".Company.Maker"}}, [&] {
            xml.Text("SHORT-NAME", "Maker");
            xml.Text("LONG-NAME", "Steuerger\xC3\xA4te M\xC3\xBCller & S\xC3\xB6hne");
            xml.Element("ROLES", [&] { xml.Text("ROLE", "SUPPLIER"); });
            xml.Element("TEAM-MEMBERS", [&] {
                xml.Element("TEAM-MEMBER", {{"ID", name + ".Member.Editor"}}, [&] {
                    xml.Text("SHORT-NAME", "Editor");
                    xml.Text("DEPARTMENT", "Diagnostics");
                });
            });
        });
    });
}

void WriteComparamSpec(VXmlWriter& xml) {
    std::string const name = kComparamSpec;
    xml.Element("COMPARAM-SPEC", {{"ID", name}}, [&] {
        WriteHead(xml, name);
        xml.Element("COMPARAMS", [&] {
            for (char const* const comparam :
                 {"P2Max", "P2Star", "P3Min", "S3Client", "TesterPresentTime", "Retries"}) {
                xml.Element("COMPARAM",
                            {{"ID", name + '.' + comparam},
                             {"PARAM-CLASS", "TIMING"},
                             {"CPTYPE", "STANDARD"},
                             {"DISPLAY-LEVEL", "1"}},
                            [&] {
                                xml.Text("SHORT-NAME", comparam);
                                xml.Text("PHYSICAL-DEFAULT-VALUE", "50");
                                xml.Empty("DATA-OBJECT-PROP-REF", {{"ID-REF", name + ".DOP.Time"}});
                            });
            }
        });
        xml.Element("DATA-OBJECT-PROPS", [&] {
            xml.Element("DATA-OBJECT-PROP", {{"ID", name + ".DOP.Time"}}, [&] {
                xml.Text("SHORT-NAME", "Time");
                WriteIdenticalType(xml, 32);
                xml.Empty("UNIT-REF", {{"ID-REF", UnitId(name, 8)}});
            });
        });
        WriteUnitSpec(xml, name);
    });
}

void WriteLayers(VXmlWriter& xml, char const* wrapper, std::vector<VLayerPlan> const& plans, std::uint64_t seed) {
    if (plans.empty()) {
        return;
    }
    xml.Element(wrapper, [&] {
        for (VLayerPlan const& plan : plans) {
            VLayerMaker(xml, plan, seed).Write();
        }
    });
}

void WriteSharedContainer(VXmlWriter& xml, std::uint64_t seed) {
    VLayerPlan::VParentRefPlan const library{"ECU-SHARED-DATA-REF", kSharedLibrary};
    VLayerPlan::VParentRefPlan const protocol{"PROTOCOL-REF", kProtocols[0]};
    xml.Element("DIAG-LAYER-CONTAINER", {{"ID", "Platform"}}, [&] {
        WriteHead(xml, "Platform");
        WriteLayers(xml, "PROTOCOLS",
                    {{"PROTOCOL", kProtocols[0], 8, "OverUds", {library}},
                     {"PROTOCOL", kProtocols[1], 8, "OverKwp", {library}}},
                    seed);
        WriteLayers(xml, "FUNCTIONAL-GROUPS",
                    {{"FUNCTIONAL-GROUP", "AllControlUnits", 12, "OfAll", {protocol, library}}}, seed);
        WriteLayers(xml, "ECU-SHARED-DATAS", {{"ECU-SHARED-DATA", kSharedLibrary, kLibraryServices, "Common"}}, seed);
    });
}

/// Each BASE-VARIANT with the ECU-VARIANTs after it.
void WriteContainer(VXmlWriter& xml, std::string const& name, std::size_t layers, std::size_t services,
                    std::uint64_t seed) {
    std::vector<VLayerPlan> bases;
    std::vector<VLayerPlan> variants;
    bases.reserve(layers); // variants point to them
    for (std::size_t layer = 0; layer < layers; ++layer) {
        if (layer % kLayersOfBase == 0) {
            bases.push_back({"BASE-VARIANT",
                             Numbered((name + "_").c_str(), bases.size() + 1),
                             std::max<std::size_t>(services, 16),
                             "",
                             {{"FUNCTIONAL-GROUP-REF", "AllControlUnits"},
                              {"PROTOCOL-REF", kProtocols[0]},
                              {"ECU-SHARED-DATA-REF", kSharedLibrary}}});
            continue;
        }
        VLayerPlan const& base = bases.back();
        std::string const variant = base.name + "_Variant" + std::to_string(layer % kLayersOfBase);
        variants.push_back({"ECU-VARIANT",
                            variant,
                            std::max<std::size_t>(services / 4, 4),
                            "",
                            {{"BASE-VARIANT-REF", base.name}},
                            &base});
    }
    xml.Element("DIAG-LAYER-CONTAINER", {{"ID", name}}, [&] {
        WriteHead(xml, name);
        WriteLayers(xml, "BASE-VARIANTS", bases, seed);
        WriteLayers(xml, "ECU-VARIANTS", variants, seed);
    });
}

struct VZipCloser {
    void operator()(zip_t* zip) const { zip_discard(zip); }
};

} // namespace

std::vector<std::string> VMadeDatabase::FileNames() const {
    std::vector<std::string> names{std::string(kComparamSpec) + ".odx-c", "Platform.odx-d"};
    for (std::size_t container = 0; container < m_size.documents; ++container) {
        names.push_back(ContainerName(container) + ".odx-d");
    }
    std::sort(names.begin() + kCommonDocuments, names.end());
    return names;
}

void VMadeDatabase::Write(std::size_t document, std::function<void(std::string_view)> sink) const {
    VXmlWriter xml(std::move(sink));
    WriteOdx(xml, [&] {
        if (document == 0) {
            WriteComparamSpec(xml);
        } else if (document == 1) {
            WriteSharedContainer(xml, m_size.seed);
        } else {
            std::size_t const container = document - kCommonDocuments;
            std::size_t const more = container < m_size.layers % m_size.documents ? 1 : 0;
            std::size_t const layers = std::max<std::size_t>(m_size.layers / m_size.documents + more, 1);
            WriteContainer(xml, ContainerName(container), layers, m_size.services, m_size.seed);
        }
    });
}

std::string VMadeDatabase::Document(std::size_t document) const {
    std::string text;
    Write(document, [&text](std::string_view bytes) { text += bytes; });
    return text;
}

std::vector<std::string> VMadeDatabase::WriteFolder(std::filesystem::path const& folder) const {
    std::filesystem::create_directories(folder);
    std::vector<std::string> paths;
    for (std::string const& name : FileNames()) {
        std::ofstream stream(folder / name, std::ios::binary);
        stream.exceptions(std::ios::failbit | std::ios::badbit);
        Write(paths.size(), [&stream](std::string_view bytes) {
            stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        });
        paths.push_back((folder / name).u8string());
    }
    return paths;
}

void VMadeDatabase::WritePackage(std::filesystem::path const& file) const {
    int code = 0;
    std::unique_ptr<zip_t, VZipCloser> zip(zip_open(file.u8string().c_str(), ZIP_CREATE | ZIP_TRUNCATE, &code));
    std::vector<std::string> documents; // until the package is closed
    documents.reserve(FileNames().size());
    for (std::string const& name : FileNames()) {
        documents.push_back(Document(documents.size()));
        std::string const& text = documents.back();
        zip_source_t* const source =
            zip != nullptr ? zip_source_buffer(zip.get(), text.data(), text.size(), 0) : nullptr;
        zip_int64_t const index =
            source != nullptr ? zip_file_add(zip.get(), name.c_str(), source, ZIP_FL_ENC_UTF_8) : -1;
        // A fixed day, so that equal options give equal bytes.
        if (index < 0 || zip_file_set_dostime(zip.get(), static_cast<zip_uint64_t>(index), 0, 0x3521, 0) != 0) {
            throw std::runtime_error("cannot make " + file.u8string());
        }
    }
    if (zip == nullptr || zip_close(zip.get()) != 0) {
        throw std::runtime_error("cannot write " + file.u8string());
    }
    static_cast<void>(zip.release());
}

} // namespace NBench
