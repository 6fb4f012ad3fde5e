// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace NBench {

/// Random numbers that are the same on every machine.
class VRandom {
public:
    explicit VRandom(std::uint64_t seed) : m_state(seed * 0x9E3779B97F4A7C15U + 1) {}

    std::uint64_t Next();
    std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(Next() % limit); }
    bool Chance(std::size_t oneIn) { return Below(oneIn) == 0; }

private:
    std::uint64_t m_state;
};

/// Names as engineers give them: a part of a vehicle and a quantity of it.
class VNames {
public:
    explicit VNames(std::size_t shift) : m_shift(shift) {}

    /// Such as RainSensorVoltage; different for every number.
    std::string ShortName(std::size_t number) const;
    /// Such as "Rain sensor voltage".
    std::string LongName(std::size_t number) const;

private:
    std::size_t Combination(std::size_t number) const;

    std::size_t m_shift;
};

/// A sentence or two about something.
std::string Sentences(VRandom& random, std::string const& about);

/// The name of a value of a text table, such as "running"; different for every number below 32.
std::string StateName(std::size_t number);

} // namespace NBench
