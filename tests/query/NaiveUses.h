// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

/// A small database as plain lists, from which its XML is written and its references are determined by examining
/// everything in every layer. It has no code in common with the library.

namespace NTest {

struct VNaiveReference {
    std::string from;   ///< the short name of the parameter or layer that contains it
    std::string target; ///< ID or short name
    bool isById;
};

/// A STRUCTURE, a REQUEST, or a DIAG-SERVICE with one reference to its REQUEST.
struct VNaiveElement {
    std::string id;
    std::string name;
    std::vector<VNaiveReference> references{};
};

struct VNaiveParent {
    std::size_t layer;
    std::string excluded{}; ///< the name of a DIAG-COMM; "" for none
};

struct VNaiveLayer {
    std::string kind;
    std::string name;
    std::vector<VNaiveParent> parents{};
    std::vector<VNaiveElement> structures{};
    std::vector<VNaiveElement> services{};
    std::vector<VNaiveElement> requests{};
    std::vector<VNaiveReference> accessLevels{}; ///< which refer to DIAG-COMMs by short name
};

struct VNaiveDatabase {
    std::vector<VNaiveLayer> layers;

    std::vector<std::string> Ids() const;          ///< of structures, services and requests, in document order
    std::string Uses(std::string const& id) const; ///< in the form of `Printed`
    std::string Unused() const;                    ///< the IDs, with blanks between

    void Remove(std::string const& id);
};

VNaiveDatabase RandomNaiveDatabase(std::mt19937& random);

std::string XmlOf(VNaiveDatabase const& database);

} // namespace NTest
