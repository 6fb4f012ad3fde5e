// SPDX-License-Identifier: Apache-2.0
#include "mutations/Mutations.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <stdexcept>

namespace NTest {
namespace {

std::string BytesOf(std::string const& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        throw std::runtime_error("cannot read " + path);
    }
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Chooses only by number: the standard's distributions differ between libraries.
class VDice {
public:
    explicit VDice(std::uint32_t number) : m_engine(number) {}
    std::size_t Below(std::size_t count) { return m_engine() % count; }

private:
    std::mt19937 m_engine;
};

/// An element other than ODX and the category, which stay: without them there is nothing to load.
std::size_t ChooseElement(VSampleDocument const& document, VDice& dice) {
    return 2 + dice.Below(document.elements.size() - 2);
}

void DeleteElement(VSampleDocument const& document, VDice& dice, VMutation& mutation) {
    VElementPart const& element = document.elements[ChooseElement(document, dice)];
    mutation.offset = element.start;
    mutation.isRequiredGone = element.isRequired;
    mutation.bytes.erase(element.start, element.end - element.start);
}

void DuplicateElement(VSampleDocument const& document, VDice& dice, VMutation& mutation) {
    VElementPart const& element = document.elements[ChooseElement(document, dice)];
    mutation.offset = element.start;
    mutation.bytes.insert(element.end, document.bytes, element.start, element.end - element.start);
}

/// Any two that are not nested, anywhere.
void SwapElements(VSampleDocument const& document, VDice& dice, VMutation& mutation) {
    VElementPart const* first = nullptr;
    VElementPart const* second = nullptr;
    do {
        first = &document.elements[ChooseElement(document, dice)];
        second = &document.elements[ChooseElement(document, dice)];
    } while (second->start < first->end);
    std::string const& bytes = document.bytes;
    mutation.offset = first->start;
    mutation.bytes = bytes.substr(0, first->start) + bytes.substr(second->start, second->end - second->start) +
                     bytes.substr(first->end, second->start - first->end) +
                     bytes.substr(first->start, first->end - first->start) + bytes.substr(second->end);
}

/// Renames to the name of another element of the document, or to one that ODX does not have.
void RenameElement(VSampleDocument const& document, VDice& dice, VMutation& mutation) {
    VElementPart const& element = document.elements[ChooseElement(document, dice)];
    VElementPart const& other = document.elements[ChooseElement(document, dice)];
    bool const isOther = other.name != element.name && dice.Below(4) != 0;
    std::string const name = isOther ? other.name : "NO-SUCH-ELEMENT";
    mutation.offset = element.start;
    if (element.tail != element.end) { // the end tag first: what precedes it does not move
        mutation.bytes.replace(element.tail + 2, element.name.size(), name);
    }
    mutation.bytes.replace(element.start + 1, element.name.size(), name);
}

void DeleteAttribute(VSampleDocument const& document, VDice& dice, VMutation& mutation) {
    std::size_t const count = document.elements.size();
    std::size_t index = dice.Below(count);
    while (document.elements[index].attributes.empty()) {
        index = (index + 1) % count;
    }
    std::vector<VAttributePart> const& attributes = document.elements[index].attributes;
    VAttributePart const& attribute = attributes[dice.Below(attributes.size())];
    mutation.offset = attribute.range.start;
    mutation.isRequiredGone = attribute.isRequired;
    mutation.bytes.erase(attribute.range.start, attribute.range.end - attribute.range.start);
}

void FlipBytes(VSampleDocument const& document, VDice& dice, VMutation& mutation) {
    mutation.offset = dice.Below(document.bytes.size());
    std::size_t const count = 1 + dice.Below(4);
    for (std::size_t index = mutation.offset; index < std::min(mutation.offset + count, document.bytes.size());
         ++index) {
        auto const flipped = static_cast<unsigned char>(mutation.bytes[index]) ^ (1U << dice.Below(8));
        mutation.bytes[index] = static_cast<char>(flipped);
    }
    mutation.isCategoryIntact = mutation.offset >= document.elements[1].headEnd;
}

} // namespace

std::vector<VSampleDocument> ReadSampleDocuments(std::string const& partsPath) {
    std::vector<VSampleDocument> documents;
    std::istringstream lines(BytesOf(partsPath));
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string kind;
        words >> kind >> std::ws;
        if (kind == "document") {
            std::string path;
            std::getline(words, path);
            documents.push_back({path, BytesOf(path)});
        } else if (kind == "element") {
            VElementPart part{};
            words >> part.name >> part.start >> part.headEnd >> part.tail >> part.end >> part.parent >> part.isRequired;
            documents.back().elements.push_back(part);
        } else {
            VAttributePart part{};
            words >> part.range.start >> part.range.end >> part.isRequired;
            documents.back().elements.back().attributes.push_back(part);
        }
        if (!words) {
            throw std::runtime_error("not a part: " + line);
        }
    }
    return documents;
}

VMutation Mutate(std::vector<VSampleDocument> const& documents, std::uint32_t number) {
    static constexpr void (*kMutate[kMutationKinds])(VSampleDocument const&, VDice&, VMutation&) = {
        &DeleteElement, &DuplicateElement, &SwapElements, &RenameElement, &DeleteAttribute, &FlipBytes,
    };
    std::size_t const kind = number % kMutationKinds;
    std::size_t const document = number / kMutationKinds % documents.size();
    VMutation mutation{static_cast<VMutationKind>(kind), document, 0, documents[document].bytes, false, true};
    VDice dice(number);
    kMutate[kind](documents[document], dice, mutation);
    return mutation;
}

} // namespace NTest
