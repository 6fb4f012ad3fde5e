// SPDX-License-Identifier: Apache-2.0
#include <cstdio>
#include <cstdlib>

#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <diagkit/memory/Odx.h>
#include <diagkit/tools/OpResolveSnref.h>

/// Edits a database made by hand many times, in one way, and ends. `growth` counts the cost for COUNT elements and for
/// twice as many.
///
///     diagkit_edit_growth EDIT COUNT

namespace {

using NMemory::VReference;
using VServices = std::vector<NMemory::VMemDiagService*>;

/// A layer with services, each of which has a request of its own by ID.
struct VDatabaseToEdit {
    explicit VDatabaseToEdit(std::size_t count) {
        database.SetResolverFactory([] { return std::make_unique<NDIAGKIT::VOpResolveSnref>(); });
        for (std::size_t i = 0; i < count; ++i) {
            std::wstring const number = std::to_wstring(i);
            auto& service = layer.AddDiagService((L"Service" + number).c_str());
            service.SetRequestRef(layer.AddRequest((L"Request" + number).c_str()));
            services.push_back(&service);
        }
    }

    /// How many services find their request.
    std::size_t CountRequests() const {
        return static_cast<std::size_t>(
            std::count_if(services.begin(), services.end(),
                          [](NMemory::VMemDiagService* service) { return service->GetRequestRef().HasRequest(); }));
    }

    NMemory::VDatabase database;
    NMemory::VMemDiagLayerContainer& container = database.AddDiagLayerContainer(L"Container");
    NMemory::VMemBaseVariant& layer = container.AddBaseVariant(L"Layer");
    VServices services;
};

void Destroy(VServices const& services) {
    for (NMemory::VMemDiagService* const service : services) {
        delete service;
    }
}

void DestroyFirstToLast(std::size_t count) { Destroy(VDatabaseToEdit(count).services); }

void DestroyLastToFirst(std::size_t count) {
    VDatabaseToEdit edited(count);
    std::reverse(edited.services.begin(), edited.services.end());
    Destroy(edited.services);
}

void DestroyInAnyOrder(std::size_t count) {
    VDatabaseToEdit edited(count);
    std::shuffle(edited.services.begin(), edited.services.end(), std::mt19937(1));
    Destroy(edited.services);
}

void Rename(std::size_t count) {
    VDatabaseToEdit edited(count);
    for (NMemory::VMemDiagService* const service : edited.services) {
        service->SetShortName(L"Renamed");
        service->SetId((L"New." + std::wstring(service->GetId())).c_str());
    }
}

/// Every service gets the same ID, and loses it again.
void ShareAnId(std::size_t count) {
    VDatabaseToEdit edited(count);
    for (NMemory::VMemDiagService* const service : edited.services) {
        service->SetId(L"Shared");
    }
    Destroy(edited.services);
}

/// Every service moves to another layer and back, before the first.
void Move(std::size_t count) {
    VDatabaseToEdit edited(count);
    auto& other = edited.container.AddBaseVariant(L"Other");
    for (NMemory::VMemDiagService* const service : edited.services) {
        other.MakeDiagCommProxyCollection().Adopt(other, *service);
    }
    auto& home = edited.layer.MakeDiagCommProxyCollection();
    for (NMemory::VMemDiagService* const service : edited.services) {
        home.Adopt(edited.layer, *service, home.Count() == 0 ? nullptr : &*home.Begin());
    }
}

void RedirectReferences(std::size_t count) {
    VDatabaseToEdit edited(count);
    auto& request = edited.layer.AddRequest(L"Shared");
    for (NMemory::VMemDiagService* const service : edited.services) {
        service->SetRequestRef(request);
    }
    if (edited.CountRequests() != count) {
        std::abort();
    }
}

/// Every layer finds its parent between two changes of the kind of its PARENT-REF.
void ChangeParents(std::size_t count) {
    VDatabaseToEdit edited(1);
    auto& group = edited.container.AddFunctionalGroup(L"Group");
    for (std::size_t i = 0; i < count; ++i) {
        auto& variant = edited.container.AddEcuVariant((L"Variant" + std::to_wstring(i)).c_str());
        NMemory::IMemParentRef& parentRef = variant.AddParentRef(group);
        variant.ChangeParentRefKind(variant.ChangeParentRefKind(parentRef, NMemory::VParentRefKind::Unknown),
                                    NMemory::VParentRefKind::FunctionalGroup);
    }
}

int Run(std::string_view edit, std::size_t count) {
    std::map<std::string_view, void (*)(std::size_t)> const edits{
        {"destroy-first-to-last", &DestroyFirstToLast},
        {"destroy-last-to-first", &DestroyLastToFirst},
        {"destroy-in-any-order", &DestroyInAnyOrder},
        {"rename", &Rename},
        {"share-an-id", &ShareAnId},
        {"move", &Move},
        {"redirect-references", &RedirectReferences},
        {"change-parents", &ChangeParents},
    };
    auto const found = edits.find(edit);
    if (found == edits.end() || count == 0) {
        std::fprintf(stderr, "usage: diagkit_edit_growth EDIT COUNT, where EDIT is one of\n");
        for (auto const& [name, function] : edits) {
            std::fprintf(stderr, "  %s\n", std::string(name).c_str());
        }
        return 2;
    }
    found->second(count);
    return 0;
}

} // namespace

int main(int argc, char** argv) { return argc == 3 ? Run(argv[1], std::strtoul(argv[2], nullptr, 10)) : Run("", 0); }
