// SPDX-License-Identifier: Apache-2.0
#include "query/NaiveUses.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>

#include "reader/LayerXml.h"

namespace NTest {
namespace {

using VView = std::vector<VNaiveElement const*>;

bool Has(VView const& view, std::string const& name) {
    return std::any_of(view.begin(), view.end(), [&](VNaiveElement const* entry) { return entry->name == name; });
}

/// The elements visible in a layer: its own, then those of its structural parents, then those of libraries; the first
/// of a name counts.
VView ViewOf(VNaiveDatabase const& database, std::size_t layer, bool isOfServices) {
    VNaiveLayer const& here = database.layers[layer];
    VView view;
    for (VNaiveElement const& own : isOfServices ? here.services : here.structures) {
        view.push_back(&own);
    }
    for (bool const isLibrary : {false, true}) {
        for (VNaiveParent const& parent : here.parents) {
            if ((database.layers[parent.layer].kind == "ECU-SHARED-DATA") != isLibrary) {
                continue;
            }
            for (VNaiveElement const* const entry : ViewOf(database, parent.layer, isOfServices)) {
                bool const isExcluded = isOfServices && entry->name == parent.excluded;
                if (!isExcluded && !Has(view, entry->name)) {
                    view.push_back(entry);
                }
            }
        }
    }
    return view;
}

/// The ID of a name's target; "" for none.
std::string MeaningIn(VView const& view, std::string const& name) {
    for (VNaiveElement const* const entry : view) {
        if (entry->name == name) {
            return entry->id;
        }
    }
    return "";
}

using VIds = std::set<std::string>;

/// What a layer reads besides what stands in it: what it sees, the requests of its services, and all to which
/// references by ID lead that it reads.
VIds ReadIn(VNaiveDatabase const& database, std::size_t layer, VView const& structures, VView const& services) {
    VIds read;
    for (VNaiveElement const* const structure : structures) {
        read.insert(structure->id);
    }
    for (VNaiveElement const* const service : services) {
        read.insert(service->references.front().target);
    }
    for (std::size_t before = 0; before != read.size();) { // once more after each that is new
        before = read.size();
        for (std::size_t other = 0; other < database.layers.size(); ++other) {
            for (auto const& holders : {database.layers[other].structures, database.layers[other].requests}) {
                for (VNaiveElement const& holder : holders) {
                    for (VNaiveReference const& reference : holder.references) {
                        if (reference.isById && (other == layer || read.count(holder.id) != 0)) {
                            read.insert(reference.target);
                        }
                    }
                }
            }
        }
    }
    return read;
}

/// Calls `take(layer, holder, reference, tag, isOfServices)` with every reference, in document order; the holder is
/// null where it is the layer itself.
void ForEachReference(VNaiveDatabase const& database,
                      std::function<void(std::size_t, VNaiveElement const*, VNaiveReference const&, std::string const&,
                                         bool)> const& take) {
    for (std::size_t layer = 0; layer < database.layers.size(); ++layer) {
        VNaiveLayer const& here = database.layers[layer];
        for (VNaiveElement const& structure : here.structures) {
            for (VNaiveReference const& reference : structure.references) {
                take(layer, &structure, reference, reference.isById ? "DOP-REF" : "DOP-SNREF", false);
            }
        }
        for (VNaiveElement const& service : here.services) {
            take(layer, &service, service.references.front(), "REQUEST-REF", false);
        }
        for (VNaiveElement const& request : here.requests) {
            for (VNaiveReference const& reference : request.references) {
                take(layer, &request, reference, reference.isById ? "DOP-REF" : "DOP-SNREF", false);
            }
        }
        for (VNaiveReference const& reference : here.accessLevels) {
            take(layer, nullptr, reference, "DIAG-COMM-SNREF", true);
        }
    }
}

/// What a layer sees and reads.
struct VSeen {
    VView structures;
    VView services;
    VIds read;
};

std::vector<VSeen> SeenInEach(VNaiveDatabase const& database) {
    std::vector<VSeen> seen;
    for (std::size_t layer = 0; layer < database.layers.size(); ++layer) {
        VView const structures = ViewOf(database, layer, false);
        VView const services = ViewOf(database, layer, true);
        seen.push_back({structures, services, ReadIn(database, layer, structures, services)});
    }
    return seen;
}

/// The layers in which a reference by short name means the element, as " V W"; "" for none.
std::string LayersOf(VNaiveDatabase const& database, std::vector<VSeen> const& seen, std::size_t home,
                     VNaiveElement const* holder, VNaiveReference const& reference, bool isOfServices,
                     std::string const& id) {
    std::string layers;
    for (std::size_t layer = 0; layer < database.layers.size(); ++layer) {
        bool const isRead = layer == home || (holder != nullptr && seen[layer].read.count(holder->id) != 0);
        VView const& view = isOfServices ? seen[layer].services : seen[layer].structures;
        if (isRead && MeaningIn(view, reference.target) == id) {
            layers += ' ' + database.layers[layer].name;
        }
    }
    return layers;
}

std::size_t Below(std::mt19937& random, std::size_t end) { return random() % end; }

VNaiveReference RandomReference(std::mt19937& random, std::size_t& count, std::vector<std::string> const& ids) {
    bool const isById = !ids.empty() && Below(random, 3) == 0;
    return {"P" + std::to_string(++count),
            isById ? ids[Below(random, ids.size())] : std::string(1, static_cast<char>('a' + Below(random, 4))),
            isById};
}

VNaiveLayer EmptyLayer(char const* kind, std::size_t number) {
    VNaiveLayer layer;
    layer.kind = kind;
    layer.name = "L" + std::to_string(number);
    return layer;
}

void AddParents(VNaiveDatabase& database, std::mt19937& random) {
    std::map<std::string, std::string> const structural{
        {"PROTOCOL", "none"}, {"BASE-VARIANT", "PROTOCOL"}, {"ECU-VARIANT", "BASE-VARIANT"}};
    for (VNaiveLayer& layer : database.layers) {
        auto const wanted = structural.find(layer.kind);
        for (std::size_t parent = 0; wanted != structural.end() && parent < database.layers.size(); ++parent) {
            std::string const& kind = database.layers[parent].kind;
            if ((kind == wanted->second || kind == "ECU-SHARED-DATA") && Below(random, 2) == 0) {
                std::string const excluded =
                    Below(random, 3) == 0 ? std::string(1, static_cast<char>('a' + Below(random, 4))) : "";
                layer.parents.push_back({parent, excluded});
            }
        }
        std::shuffle(layer.parents.begin(), layer.parents.end(), random);
    }
}

} // namespace

VNaiveDatabase RandomNaiveDatabase(std::mt19937& random) {
    VNaiveDatabase database;
    for (char const* const kind : {"PROTOCOL", "PROTOCOL", "ECU-SHARED-DATA", "ECU-SHARED-DATA", "BASE-VARIANT",
                                   "BASE-VARIANT", "ECU-VARIANT", "ECU-VARIANT", "ECU-VARIANT"}) {
        database.layers.push_back(EmptyLayer(kind, database.layers.size()));
    }
    AddParents(database, random);
    std::size_t count = 0;
    std::vector<std::string> structures;
    for (VNaiveLayer& layer : database.layers) {
        for (char const name : {'a', 'b', 'c', 'd'}) {
            if (Below(random, 2) == 0) {
                structures.push_back("T" + std::to_string(++count));
                layer.structures.push_back({structures.back(), std::string(1, name)});
            }
        }
    }
    for (VNaiveLayer& layer : database.layers) {
        for (VNaiveElement& structure : layer.structures) {
            if (Below(random, 2) == 0) {
                structure.references.push_back(RandomReference(random, count, structures));
            }
        }
        for (std::size_t requests = Below(random, 3); requests > 0; --requests) {
            VNaiveElement request{"R" + std::to_string(++count), "r" + std::to_string(count)};
            for (std::size_t params = Below(random, 3); params > 0; --params) {
                request.references.push_back(RandomReference(random, count, structures));
            }
            layer.requests.push_back(request);
        }
        for (char const name : {'a', 'b', 'c', 'd'}) {
            if (!layer.requests.empty() && Below(random, 2) == 0) {
                std::string const& request = layer.requests[Below(random, layer.requests.size())].id;
                std::string const shortName(1, name);
                layer.services.push_back({"S" + std::to_string(++count), shortName, {{shortName, request, true}}});
            }
        }
        if (layer.kind == "ECU-VARIANT") {
            layer.accessLevels.push_back(
                {layer.name, std::string(1, static_cast<char>('a' + Below(random, 4))), false});
        }
    }
    return database;
}

std::vector<std::string> VNaiveDatabase::Ids() const {
    std::vector<std::string> ids;
    for (VNaiveLayer const& layer : layers) {
        for (auto const& elements : {layer.structures, layer.services, layer.requests}) {
            for (VNaiveElement const& element : elements) {
                ids.push_back(element.id);
            }
        }
    }
    return ids;
}

std::string VNaiveDatabase::Uses(std::string const& id) const {
    std::vector<VSeen> const seen = SeenInEach(*this);
    std::string uses;
    ForEachReference(*this, [&](std::size_t layer, VNaiveElement const* holder, VNaiveReference const& reference,
                                std::string const& tag, bool isOfServices) {
        std::string const line = tag + " from " + reference.from;
        if (reference.isById) {
            uses += reference.target == id ? line + '\n' : "";
            return;
        }
        std::string const in = LayersOf(*this, seen, layer, holder, reference, isOfServices, id);
        uses += in.empty() ? "" : line + " in" + in + '\n';
    });
    return uses;
}

std::string VNaiveDatabase::Unused() const {
    std::vector<VSeen> const seen = SeenInEach(*this);
    std::string unused;
    for (std::string const& id : Ids()) {
        bool isUsed = id.front() == 'S'; // services are of a kind that is never reported as unused
        ForEachReference(*this, [&](std::size_t layer, VNaiveElement const* holder, VNaiveReference const& reference,
                                    std::string const&, bool isOfServices) {
            if (holder != nullptr && holder->id == id) {
                return;
            }
            isUsed = isUsed ||
                     (reference.isById ? reference.target == id
                                       : !LayersOf(*this, seen, layer, holder, reference, isOfServices, id).empty());
        });
        unused += isUsed ? "" : (unused.empty() ? "" : " ") + id;
    }
    return unused;
}

void VNaiveDatabase::Remove(std::string const& id) {
    for (VNaiveLayer& layer : layers) {
        for (auto* const elements : {&layer.structures, &layer.services, &layer.requests}) {
            elements->erase(std::remove_if(elements->begin(), elements->end(),
                                           [&id](VNaiveElement const& element) { return element.id == id; }),
                            elements->end());
        }
    }
}

std::string XmlOf(VNaiveDatabase const& database) {
    auto const element = [](std::string const& tag, VNaiveElement const& of, std::string const& content) {
        return "<" + tag + " ID=\"" + of.id + "\"><SHORT-NAME>" + of.name + "</SHORT-NAME>" + content + "</" + tag +
               ">";
    };
    auto const params = [](VNaiveElement const& of) {
        std::string text;
        for (VNaiveReference const& reference : of.references) {
            text += Value(reference.from, reference.isById ? "<DOP-REF ID-REF=\"" + reference.target + "\"/>"
                                                           : "<DOP-SNREF SHORT-NAME=\"" + reference.target + "\"/>");
        }
        return "<PARAMS>" + text + "</PARAMS>";
    };
    std::string layers;
    for (VNaiveLayer const& layer : database.layers) {
        std::string structures, services, requests, levels;
        for (VNaiveElement const& structure : layer.structures) {
            structures += element("STRUCTURE", structure, params(structure));
        }
        for (VNaiveElement const& service : layer.services) {
            services +=
                element("DIAG-SERVICE", service, "<REQUEST-REF ID-REF=\"" + service.references.front().target + "\"/>");
        }
        for (VNaiveElement const& request : layer.requests) {
            requests += element("REQUEST", request, params(request));
        }
        for (VNaiveReference const& level : layer.accessLevels) {
            levels += "<ACCESS-LEVELS><ACCESS-LEVEL><VALUE>1</VALUE><DIAG-COMM-SNREF SHORT-NAME=\"" + level.target +
                      "\"/></ACCESS-LEVEL></ACCESS-LEVELS>";
        }
        std::vector<VParentXml> parents;
        for (VNaiveParent const& parent : layer.parents) {
            VNaiveLayer const& to = database.layers[parent.layer];
            parents.push_back({to.kind, to.name, parent.excluded.empty() ? "" : Excluded(parent.excluded)});
        }
        layers += LayerXml(layer.kind, layer.name,
                           InDictionary("<STRUCTURES>" + structures + "</STRUCTURES>") + DiagComms(services) +
                               "<REQUESTS>" + requests + "</REQUESTS>" + levels + ParentRefs(parents));
    }
    return ContainerOfLayers(layers);
}

} // namespace NTest
