// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Values.h>

#include <limits>
#include <type_traits>

#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/memory/Params.h>

namespace NMemory {
namespace {

/// What `read` gives for an element of this class; nothing for one that only says so, and where it takes no such class.
template <class Result, class Class, class Element, class Read>
Result AskAs([[maybe_unused]] Element& element, [[maybe_unused]] Read read) {
    if constexpr (std::is_invocable_v<Read, Class&>) {
        if (auto* const x = dynamic_cast<Class*>(&element)) {
            return read(*x);
        }
    }
    return Result();
}

template <class Class, class Element>
using VConstAs = std::conditional_t<std::is_const_v<Element>, Class const, Class>;

/// What `read` gives for the element as the class that its tag names; nothing where it takes no such class.
template <class Result, class Element, class Read>
Result AskItsClass(Element& element, Read read) {
    switch (element.GetOdxTag()) {
#define ODX_CLASS(name, tag, base, names, value, xmlName, type)                                                        \
    case NODX201::VOdxTagEnum::tag:                                                                                    \
        return AskAs<Result, VConstAs<VMem##name, Element>>(element, read);
#include <diagkit/model/Facts.def>
    default:
        return Result();
    }
}

/// Calls an operation of whatever class has it.
#define CALL(operation) [](auto& x) -> decltype(x.operation()) { return x.operation(); }

using VText = wchar_t const*;

std::optional<std::uint32_t> NumberIn(VText text) {
    if (text == nullptr || *text == L'\0') {
        return std::nullopt;
    }
    std::uint64_t number = 0;
    for (; *text != L'\0'; ++text) {
        if (*text < L'0' || *text > L'9') {
            return std::nullopt;
        }
        number = number * 10 + static_cast<std::uint64_t>(*text - L'0');
        if (number > std::numeric_limits<std::uint32_t>::max()) {
            return std::nullopt;
        }
    }
    return static_cast<std::uint32_t>(number);
}

bool IsThere(VText text) { return text != nullptr && *text != L'\0'; }

} // namespace

std::optional<std::uint32_t> BytePositionOf(NODX201::VOdxElement const& element) {
    return NumberIn(AskItsClass<VText>(element, CALL(GetBytePosition)));
}

std::optional<std::uint32_t> BitPositionOf(NODX201::VOdxElement const& element) {
    return NumberIn(AskItsClass<VText>(element, CALL(GetBitPosition)));
}

std::optional<std::uint32_t> BitLengthOf(NODX201::VOdxElement const& element) {
    return NumberIn(AskItsClass<VText>(element, CALL(GetBitLength)));
}

wchar_t const* ConstantOf(NODX201::VOdxElement& element) {
    for (VText const text :
         {AskItsClass<VText>(element, CALL(GetCodedValue)), AskItsClass<VText>(element, CALL(GetPhysConstantValue)),
          AskItsClass<VText>(element, CALL(GetPhysicalDefaultValue)),
          AskItsClass<VText>(element, CALL(GetExpectedValue)), AskItsClass<VText>(element, CALL(GetV))}) {
        if (IsThere(text)) {
            return text;
        }
    }
    VText const vt = AskItsClass<VText>(
        element, [](auto& x) -> decltype(x.GetVt().GetText()) { return x.HasVt() ? x.GetVt().GetText() : L""; });
    return vt != nullptr ? vt : L"";
}

std::optional<VLimitValue> LimitOf(NODX201::VLimit const& limit) {
    auto const* const known = dynamic_cast<VMemLimit const*>(&limit);
    if (known == nullptr) {
        return std::nullopt;
    }
    return VLimitValue{known->GetText(), known->GetIntervalType()};
}

VLimits LimitsOf(NODX201::VOdxElement& element) {
    VLimits limits;
    limits.lower =
        AskItsClass<std::optional<VLimitValue>>(element, [](auto& x) -> decltype(LimitOf(x.GetLowerLimit())) {
            return x.HasLowerLimit() ? LimitOf(x.GetLowerLimit()) : std::nullopt;
        });
    limits.upper =
        AskItsClass<std::optional<VLimitValue>>(element, [](auto& x) -> decltype(LimitOf(x.GetUpperLimit())) {
            return x.HasUpperLimit() ? LimitOf(x.GetUpperLimit()) : std::nullopt;
        });
    return limits;
}

} // namespace NMemory
