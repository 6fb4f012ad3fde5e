// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/EnumMapper.h>

namespace NDIAGKIT {

#define ODX_ENUMERATION(name, place, ...) DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::place>);
#include <diagkit/model/facts/Enumerations.def>

namespace {

#define ODX_ENUMERATION(name, place, ...) constexpr wchar_t const* k##name[] = {__VA_ARGS__};
#include <diagkit/model/facts/Enumerations.def>

template <class T, std::size_t Size>
void Fill(EnumMapImpl<T>& table, wchar_t const* const (&literals)[Size]) {
    for (std::size_t value = 0; value < Size; ++value) {
        table.Add(literals[value], static_cast<T>(value));
    }
}

} // namespace

void VEnumTables::InitMappingTables() {
#define ODX_ENUMERATION(name, place, ...) Fill(m_##name, k##name);
#include <diagkit/model/facts/Enumerations.def>
}

VEnumTables::VEnumTables() { InitMappingTables(); }
VEnumTables::VEnumTables(VEnumTables const& other) = default;
VEnumTables& VEnumTables::operator=(VEnumTables const& other) = default;
VEnumTables::~VEnumTables() = default;

VEnumMapper::VEnumMapper() = default;
VEnumMapper::VEnumMapper(VEnumMapper const& other) = default;
VEnumMapper& VEnumMapper::operator=(VEnumMapper const& other) = default;
VEnumMapper::~VEnumMapper() = default;

VEnumMapper& VEnumMapper::Instance() {
    static VEnumMapper instance;
    return instance;
}

VEnumStringMapper::VEnumStringMapper() = default;
VEnumStringMapper::VEnumStringMapper(VEnumStringMapper const& other) = default;
VEnumStringMapper& VEnumStringMapper::operator=(VEnumStringMapper const& other) = default;
VEnumStringMapper::~VEnumStringMapper() = default;

VEnumStringMapper& VEnumStringMapper::Instance() {
    static VEnumStringMapper instance;
    return instance;
}

} // namespace NDIAGKIT
