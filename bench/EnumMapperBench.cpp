// SPDX-License-Identifier: Apache-2.0

// Every literal of the longest enumeration in both directions, compared with a look-up in a bare map and a walk over
// it. N is the number of literals.

#include <map>
#include <string>

#include <benchmark/benchmark.h>

#include <diagkit/tools/EnumMapper.h>

namespace NBench {
namespace {

using Type = NODX201::VPhysicalVehicleLink::VPhysicalLinkType;

constexpr int kLiterals = 14;

std::map<std::wstring, Type> BareMap() {
    auto const& mapper = NDIAGKIT::VEnumMapper::Instance();
    std::map<std::wstring, Type> map;
    for (int value = 0; value < kLiterals; ++value) {
        map.emplace(mapper.GetPhysicalLinkTypeStr(static_cast<Type>(value)), static_cast<Type>(value));
    }
    return map;
}

void ValueOfLiteral(benchmark::State& state) {
    auto const& mapper = NDIAGKIT::VEnumMapper::Instance();
    auto const literals = BareMap();
    for (auto _ : state) {
        for (auto const& [literal, value] : literals) {
            benchmark::DoNotOptimize(mapper.GetPhysicalLinkType(literal.c_str()));
        }
    }
}

void ValueOfLiteralBare(benchmark::State& state) {
    auto const map = BareMap();
    auto const literals = BareMap();
    for (auto _ : state) {
        for (auto const& [literal, value] : literals) {
            benchmark::DoNotOptimize(map.find(literal.c_str())->second);
        }
    }
}

void LiteralOfValue(benchmark::State& state) {
    auto const& mapper = NDIAGKIT::VEnumMapper::Instance();
    for (auto _ : state) {
        for (int value = 0; value < kLiterals; ++value) {
            benchmark::DoNotOptimize(mapper.GetPhysicalLinkTypeStr(static_cast<Type>(value)));
        }
    }
}

wchar_t const* WalkTo(std::map<std::wstring, Type> const& map, Type wanted) {
    for (auto const& [literal, value] : map) {
        if (value == wanted) {
            return literal.c_str();
        }
    }
    return nullptr;
}

void LiteralOfValueBare(benchmark::State& state) {
    auto const map = BareMap();
    for (auto _ : state) {
        for (int value = 0; value < kLiterals; ++value) {
            benchmark::DoNotOptimize(WalkTo(map, static_cast<Type>(value)));
        }
    }
}

BENCHMARK(ValueOfLiteral)->Name("enum-value-of-literal")->Arg(kLiterals);
BENCHMARK(ValueOfLiteralBare)->Name("enum-value-of-literal-bare")->Arg(kLiterals);
BENCHMARK(LiteralOfValue)->Name("enum-literal-of-value")->Arg(kLiterals);
BENCHMARK(LiteralOfValueBare)->Name("enum-literal-of-value-bare")->Arg(kLiterals);

} // namespace
} // namespace NBench
