// SPDX-License-Identifier: Apache-2.0
#include "Words.h"

#include <iterator>
#include <string_view>

namespace NBench {
namespace {

constexpr std::string_view kParts[] = {
    "Rain sensor",      "Wiper motor",     "Washer pump",     "Light sensor",    "Window lifter", "Door lock",
    "Seat heater",      "Mirror motor",    "Sunroof drive",   "Horn relay",      "Brake pedal",   "Wheel speed",
    "Steering angle",   "Yaw rate",        "Pressure sensor", "Master cylinder", "Parking brake", "Hydraulic pump",
    "Inlet valve",      "Outlet valve",    "Fuel rail",       "Injector",        "Glow plug",     "Throttle",
    "Turbo charger",    "Intake manifold", "Exhaust gas",     "Particle filter", "Coolant",       "Engine oil",
    "Camshaft",         "Crankshaft",      "Alternator",      "Starter relay",   "Battery",       "Gateway",
    "Instrument panel", "Fuel gauge",      "Trip computer",   "Climate blower",  "Evaporator",    "Cabin temperature",
    "Air quality",      "Airbag squib",    "Belt tensioner",  "Seat occupation", "Crash sensor",  "Trailer module",
    "Level control",    "Damper valve",
};

constexpr std::string_view kQuantities[] = {
    "voltage", "current",     "position", "status",    "temperature", "duty cycle",     "counter",  "threshold",
    "offset",  "calibration", "limit",    "speed",     "mode",        "operating time", "gradient", "resistance",
    "request", "self test",   "version",  "part code", "lower bound", "upper bound",    "filter",   "checksum",
    "ratio",   "pressure",    "learning", "fault",     "history",     "supply",         "torque",
};

constexpr std::string_view kStates[] = {
    "off",       "on",       "running",   "stopped",   "blocked",   "not available", "initialising", "calibrated",
    "open",      "closed",   "short",     "released",  "active",    "passive",       "learned",      "not learned",
    "too high",  "too low",  "plausible", "invalid",   "standby",   "locked",        "unlocked",     "requested",
    "confirmed", "rejected", "pending",   "completed", "cancelled", "degraded",      "emergency",    "reserved",
};

constexpr std::string_view kEndings[] = {
    " is read while the ignition is on and the vehicle stands.",
    " is stored in non-volatile memory and survives the loss of supply.",
    " may be changed in the extended session only, after security access.",
    " is filtered over 100 ms; values outside of the limits are replaced by the last valid one.",
    " is not supported by control units of the first series.",
    " shall be checked after every replacement of the part in the workshop.",
    " depends on the variant coding & the equipment of the vehicle.",
    " takes up to 200 ms to settle after a change of the operating mode.",
};

std::string Capitalised(std::string_view words) {
    std::string name;
    bool isStart = true;
    for (char const character : words) {
        if (character == ' ') {
            isStart = true;
            continue;
        }
        name += isStart && character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
        isStart = false;
    }
    return name;
}

constexpr std::size_t kCombinations = std::size(kParts) * std::size(kQuantities);

} // namespace

std::uint64_t VRandom::Next() {
    m_state += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = m_state;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31);
}

/// Consecutive names are about different parts and quantities: the step has no common factor with the number of
/// combinations.
std::size_t VNames::Combination(std::size_t number) const { return (number * 1031 + m_shift * 7) % kCombinations; }

std::string VNames::LongName(std::size_t number) const {
    std::size_t const combination = Combination(number);
    std::string name(kParts[combination % std::size(kParts)]);
    name.append(" ").append(kQuantities[combination / std::size(kParts)]);
    return number < kCombinations ? name : name + " " + std::to_string(number / kCombinations + 1);
}

std::string VNames::ShortName(std::size_t number) const { return Capitalised(LongName(number)); }

std::string Sentences(VRandom& random, std::string const& about) {
    std::string text = about + std::string(kEndings[random.Below(std::size(kEndings))]);
    if (random.Chance(2)) {
        text += " This value" + std::string(kEndings[random.Below(std::size(kEndings))]);
    }
    return text;
}

std::string StateName(std::size_t number) { return std::string(kStates[number % std::size(kStates)]); }

} // namespace NBench
