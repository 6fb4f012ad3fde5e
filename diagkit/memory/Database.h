// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <diagkit/memory/Forward.h>
#include <diagkit/memory/IdIndex.h>
#include <diagkit/memory/Node.h>
#include <diagkit/memory/Part.h>
#include <diagkit/model/Odx.h>
#include <diagkit/model/SnrefResolver.h>

namespace NMemory {

class VPlaceIndex;

/// An ODX database in memory: owns the root and, through it, every element. Programs use it to build a database by
/// hand, and the reader fills it. With `diagkit/memory/Layers.h`:
///
///     NMemory::VDatabase database;
///     auto& container = database.AddDiagLayerContainer(L"Doors");
///     auto& protocol = container.AddProtocol(L"UDS");
///     auto& read = protocol.AddDiagService(L"ReadIdent");
///     auto& door = container.AddBaseVariant(L"Door");
///     door.AddParentRef(protocol).ExcludeDiagComm(L"ReadIdent");
///
/// Adding. `AddX(...)` adds a new element at the end of the collection it belongs to, `MakeX()` returns the one
/// optional child and creates it when it is absent. Texts given to the model are copied and stay valid until the
/// database is destroyed.
///
/// Removing. Destroy any element of a collection with `delete &element`, or through a view's `Remove(iterator)`: it
/// leaves its collection and the ID index, and links to it no longer resolve. Iterators at the element become invalid,
/// all others stay valid. Never destroy an optional child directly; its owner has `RemoveX()`.
///
/// Links find their target when it is requested: by ID through the index, by short name through the resolver of the
/// database in the layer given to the link. A result is remembered until the database changes.
///
/// Not thread-safe, including reading, because links remember their results.
class VDatabase {
public:
    /// Makes a new resolver without cached results.
    using VResolverFactory = std::function<std::unique_ptr<NODX201::VAbstractSnrefResolver>()>;

    VDatabase();
    ~VDatabase();
    VDatabase(VDatabase const&) = delete;
    VDatabase& operator=(VDatabase const&) = delete;

    NODX201::VOdx& GetOdx();
    VMemOdx& GetMemOdx() { return *m_odx; } ///< the same

    VMemDiagLayerContainer& AddDiagLayerContainer(wchar_t const* shortName);    ///< DIAG-LAYER-CONTAINER
    VMemComparamSpec& AddComparamSpec(wchar_t const* shortName);                ///< COMPARAM-SPEC
    VMemFlash& AddFlash(wchar_t const* shortName);                              ///< FLASH
    VMemMultipleEcuJobSpec& AddMultipleEcuJobSpec(wchar_t const* shortName);    ///< MULTIPLE-ECU-JOB-SPEC
    VMemVehicleInfoSpec& AddVehicleInfoSpec(wchar_t const* shortName);          ///< VEHICLE-INFO-SPEC
    void AddProcessingInstruction(wchar_t const* name, wchar_t const* content); ///< of the root, at the end

    VFlashCollection& FlashCollection();                           ///< in load order
    VMultipleEcuJobSpecCollection& MultipleEcuJobSpecCollection(); ///< in load order
    VVehicleInfoSpecCollection& VehicleInfoSpecCollection();       ///< in load order

    /// Sets how to make the resolver for short-name links. Without it they do not resolve.
    void SetResolverFactory(VResolverFactory factory);
    /// Discards the resolver; the next short-name link creates a new one, which sees the database in its current state.
    /// Removing, moving or renaming an element and giving a PARENT-REF another target do the same automatically,
    /// because a resolver may remember what was there before. Adding does not.
    void StartNewResolver();
    NODX201::VAbstractSnrefResolver* GetResolver(); ///< null without a factory

    /// Registers a file name for positions; the result is a value for `VPosition::document`.
    std::uint32_t AddDocumentName(std::string name);
    std::string const& GetDocumentName(VPosition const& position) const; ///< UTF-8; "" when not known

    /// Adopts what was made detached: the IDs and the count of its elements, or nothing when memory runs out. The part
    /// lives as long as the database, unless the pointer still owns it afterwards. Throws std::invalid_argument for a
    /// part that is not a detached one of this database.
    void Adopt(std::unique_ptr<VPart>&& part);

    /// The number of elements of a kind in the database.
    std::size_t Count(NODX201::VOdxTagEnum tag) const;

    // For the elements and links of the database.

    void Index(wchar_t const* id, NODX201::VReferencable& element);         ///< references can find it afterwards
    void Unindex(wchar_t const* id, NODX201::VReferencable const& element); ///< no effect when not indexed
    VIdIndex const& GetIdIndex() const { return m_ids; }                    ///< of all adopted elements
    VPlaceIndex& GetPlaceIndex() { return *m_places; }                      ///< of elements that share an ID
    std::wstring MakeId();                                                  ///< an ID that no element has
    void NoteChange() { ++m_generation; }                                   ///< what links remember may be outdated
    void NoteRedirection();                                      ///< what the resolver remembers may be outdated too
    std::uint64_t GetGeneration() const { return m_generation; } ///< grows with every change

private:
    void AddIds(VPart const& part);

    friend class VPart;

    std::vector<std::unique_ptr<VPart>> m_parts; // first the database's own
    VIdIndex m_ids;
    std::unique_ptr<VPlaceIndex> m_places;
    std::vector<std::size_t> m_counts; // by tag value
    std::vector<std::string> m_documentNames;
    std::uint64_t m_generation = 1;
    std::uint64_t m_madeIds = 0;
    bool m_isClosing = false;
    bool m_isResolverStale = false;
    VResolverFactory m_resolverFactory;
    std::unique_ptr<NODX201::VAbstractSnrefResolver> m_resolver;
    std::unique_ptr<VMemOdx> m_odx;
};

} // namespace NMemory
