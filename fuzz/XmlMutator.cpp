// SPDX-License-Identifier: Apache-2.0

// Changes XML with its structure: elements are copied, moved and removed as a whole, and attributes and texts get the
// values of others, so that references have targets. libFuzzer's own changes of bytes, every other time, usually break
// the document, which is useful as well but not always.

#include <cstring>
#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <fuzz/Target.h>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed);

namespace {

using VRandom = std::minstd_rand;

struct VRange {
    std::size_t start;
    std::size_t end;
};

std::string_view Part(std::string_view text, VRange const& range) {
    return text.substr(range.start, range.end - range.start);
}

/// The ranges between `open` and `close`, such as the values of attributes.
std::vector<VRange> Between(std::string_view text, std::string_view open, char close) {
    std::vector<VRange> ranges;
    for (std::size_t at = text.find(open); at != std::string_view::npos; at = text.find(open, at)) {
        at += open.size();
        std::size_t const end = text.find(close, at);
        if (end == std::string_view::npos) {
            break;
        }
        ranges.push_back({at, end});
        at = end;
    }
    return ranges;
}

/// The element whose start tag begins at `start`; nothing where there is no start tag or the end is not found.
std::optional<VRange> ElementAt(std::string_view text, std::size_t start) {
    int depth = 0;
    for (std::size_t at = start; at != std::string_view::npos; at = text.find('<', at + 1)) {
        std::size_t const close = text.find('>', at);
        if (close == std::string_view::npos || close == at + 1) {
            return std::nullopt;
        }
        if (text[at + 1] == '/') {
            --depth;
        } else if (text[at + 1] != '!' && text[at + 1] != '?' && text[close - 1] != '/') {
            ++depth;
        }
        if (depth <= 0) {
            return text[start + 1] == '/' ? std::nullopt : std::optional<VRange>({start, close + 1});
        }
    }
    return std::nullopt;
}

template <class Item>
Item const* Choose(std::vector<Item> const& items, VRandom& random) {
    return items.empty() ? nullptr : &items[random() % items.size()];
}

std::optional<VRange> ChooseElement(std::string_view text, VRandom& random) {
    std::vector<VRange> const tags = Between(text, "<", '>');
    VRange const* const tag = Choose(tags, random);
    return tag != nullptr ? ElementAt(text, tag->start - 1) : std::nullopt;
}

std::string Replaced(std::string_view text, VRange const& range, std::string_view by) {
    std::string changed(text.substr(0, range.start));
    return changed.append(by).append(text.substr(range.end));
}

/// Replaces a range by another of the same kind.
std::string ExchangeOne(std::string_view text, std::vector<VRange> const& ranges, VRandom& random) {
    VRange const* const target = Choose(ranges, random);
    VRange const* const source = Choose(ranges, random);
    return target != nullptr ? Replaced(text, *target, Part(text, *source)) : std::string(text);
}

std::string ExchangeAttribute(std::string_view text, VRandom& random) {
    return ExchangeOne(text, Between(text, "=\"", '"'), random);
}

/// One reference to some ID.
std::string ExchangeReference(std::string_view text, VRandom& random) {
    std::vector<VRange> const references = Between(text, " ID-REF=\"", '"');
    std::vector<VRange> const ids = Between(text, " ID=\"", '"');
    VRange const* const reference = Choose(references, random);
    VRange const* const id = Choose(ids, random);
    return reference != nullptr && id != nullptr ? Replaced(text, *reference, Part(text, *id)) : std::string(text);
}

std::string ExchangeText(std::string_view text, VRandom& random) {
    return ExchangeOne(text, Between(text, ">", '<'), random);
}

std::string DeleteElement(std::string_view text, VRandom& random) {
    std::optional<VRange> const element = ChooseElement(text, random);
    return element ? Replaced(text, *element, {}) : std::string(text);
}

/// A copy of one before another.
std::string CopyElement(std::string_view text, VRandom& random) {
    std::optional<VRange> const element = ChooseElement(text, random);
    std::optional<VRange> const place = ChooseElement(text, random);
    return element && place ? Replaced(text, {place->start, place->start}, Part(text, *element)) : std::string(text);
}

std::string ReplaceElement(std::string_view text, VRandom& random) {
    std::optional<VRange> const element = ChooseElement(text, random);
    std::optional<VRange> const place = ChooseElement(text, random);
    return element && place ? Replaced(text, *place, Part(text, *element)) : std::string(text);
}

} // namespace

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed) {
    static constexpr std::string (*kChanges[])(std::string_view text, VRandom & random) = {
        &ExchangeAttribute, &ExchangeReference, &ExchangeText, &DeleteElement, &CopyElement, &ReplaceElement,
    };
    VRandom random(seed);
    std::string text(reinterpret_cast<char const*>(data), size);
    if (random() % 2 == 0) {
        return LLVMFuzzerMutate(data, size, maxSize);
    }
    for (std::size_t count = 1 + random() % 3; count > 0; --count) {
        text = kChanges[random() % std::size(kChanges)](text, random);
    }
    if (text.size() > maxSize || text.empty()) {
        return LLVMFuzzerMutate(data, size, maxSize);
    }
    std::memcpy(data, text.data(), text.size());
    return text.size();
}
