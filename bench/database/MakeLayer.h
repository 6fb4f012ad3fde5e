// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Words.h"
#include "XmlWriter.h"

namespace NBench {

/// The layers on which all others are based.
inline constexpr char const* kSharedLibrary = "SharedLibrary";
inline constexpr char const* kComparamSpec = "Communication";
inline constexpr std::size_t kLibraryServices = 24;

/// What a layer to make has.
struct VLayerPlan {
    struct VParentRefPlan {
        char const* xsiType;
        std::string name;
    };

    char const* tag;
    std::string name;                      ///< its short name and ID
    std::size_t services;                  ///< and about as many DOPs
    std::string suffix{};                  ///< of the names in it, so that layers of different kinds do not share names
    std::vector<VParentRefPlan> parents{}; ///< in the order of the PARENT-REFs
    VLayerPlan const* base = nullptr;      ///< of an ECU-VARIANT; half of its services override those of the base
};

/// Writes one layer.
class VLayerMaker {
public:
    VLayerMaker(VXmlWriter& xml, VLayerPlan const& plan, std::uint64_t seed);

    void Write();

private:
    struct VParam {
        char const* xsiType;
        std::size_t bytePosition;
        VXmlWriter::VAttribute attribute{nullptr, {}}; ///< an additional one, of some kinds
    };

    // MakeLayer.cpp
    void WriteNames(std::string const& shortName, std::string const& longName, bool isDescribed);
    void WriteAdminData();
    void WriteServices();
    void WriteService(std::size_t service);
    void WriteServiceParts(std::size_t service);
    void WriteJob(std::size_t job);
    void WriteVariables();
    void WriteHierarchyParts();
    void WriteParentRefs();

    // MakeMessages.cpp
    void WriteMessages();
    void WriteRequest(std::size_t service);
    void WritePosResponse(std::size_t service);
    void WriteSpecialRequestParams(std::size_t service);
    void WriteSpecialResponseParams(std::size_t service);
    void WriteNegResponse(char const* tag, std::string const& shortName);
    void WriteHead(std::size_t service, std::size_t offset);
    template <class Inside>
    void WriteParam(std::string const& shortName, VParam const& param, Inside inside);
    void WriteCodedConst(char const* shortName, std::size_t bytePosition, std::size_t value, std::size_t bits);
    void WriteValue(std::string const& shortName, std::size_t bytePosition, std::string const& dopId);
    void WriteValues(std::size_t service, std::size_t count);

    // MakeDictionary.cpp
    void WriteDictionary();
    void WriteTroubleCodes();
    void WriteTroubleCode(std::size_t number);
    void WriteEnvDataDesc();
    template <class Inside>
    void WriteEnvData(char const* shortName, Inside inside);
    void WriteDop(std::size_t dop);
    void WriteLinearDop(std::size_t dop);
    void WriteTextTableDop(std::size_t dop);
    void WriteStringDop(std::size_t dop);
    void WriteVariableLengthDop();
    void WriteStructure(std::size_t structure);
    void WriteFields();
    template <class Inside>
    void WriteField(char const* tag, char const* suffix, std::size_t field, Inside inside);
    void WriteMux(std::size_t mux);
    void WriteTable(std::size_t table);

    bool IsHierarchical() const { return std::string_view(m_plan.tag) != "ECU-SHARED-DATA"; }
    std::string FewName(std::size_t number, char const* suffix) const;
    bool IsLibrary() const { return m_plan.name == kSharedLibrary; }
    /// The number of elements that are used only occasionally.
    std::size_t Few() const { return m_plan.services / 32 + 1; }
    std::size_t StructureCount() const { return m_plan.services / 4 + 2; }
    std::size_t DopCount() const { return m_plan.services + 4; }
    std::size_t TroubleCodeCount() const { return m_plan.services / 2 + 2; }
    std::size_t OverridingCount() const { return m_plan.base != nullptr ? m_plan.services / 2 : 0; }
    std::size_t ServiceNumber(std::size_t service) const;
    std::size_t DopNumber(std::size_t dop) const;

    std::string Id(char const* kind, std::string const& shortName) const;
    std::string ServiceName(std::size_t service) const;
    std::string ValueName(std::size_t service, std::size_t value) const;
    std::string DopName(std::size_t dop) const;
    std::string StructureName(std::size_t structure) const;
    std::string DopId(std::size_t dop) const { return Id("DOP", DopName(dop)); }
    std::string StructureId(std::size_t structure) const { return Id("Structure", StructureName(structure)); }
    std::string RandomDopId() { return DopId(m_random.Below(DopCount())); }
    std::string RandomStructureId() { return StructureId(m_random.Below(StructureCount())); }
    std::string Oid();

    VXmlWriter& m_xml;
    VLayerPlan const& m_plan;
    VRandom m_random;
    VNames m_names;
};

/// A UNIT-SPEC whose IDs begin with the owner's name; and the ID of one of its UNITs.
void WriteUnitSpec(VXmlWriter& xml, std::string const& owner);
std::string UnitId(std::string const& owner, std::size_t number);

void WriteCodedType(VXmlWriter& xml, char const* dataType, std::size_t bits);
void WriteIdenticalType(VXmlWriter& xml, std::size_t bits);

} // namespace NBench
