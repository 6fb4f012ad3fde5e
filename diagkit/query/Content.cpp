// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/Content.h>

#include <cwchar>
#include <typeindex>
#include <unordered_map>

#include <diagkit/memory/Comparams.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/memory/VehicleInfo.h>
#include <diagkit/query/ContentTable.h>

namespace NQuery {

/// The root is not in the facts.
VContentTable const& ContentOf(NMemory::VMemOdx*) {
    using F = VContentOf<NMemory::VMemOdx>;
    using W = VContentFact::VWhat;
    using T = NMemory::VMemOdx;
    static constexpr VContentFact facts[] = {
        {W::Other, L"", &F::Instructions},
        {W::Other, L"DIAG-LAYER-CONTAINER", &F::Items<&T::DiagLayerContainerCollection>},
        {W::Other, L"COMPARAM-SPEC", &F::Items<&T::ComparamSpecCollection>},
        {W::Other, L"FLASH", &F::Items<&T::FlashCollection>},
        {W::Other, L"MULTIPLE-ECU-JOB-SPEC", &F::Items<&T::MultipleEcuJobSpecCollection>},
        {W::Other, L"VEHICLE-INFO-SPEC", &F::Items<&T::VehicleInfoSpecCollection>},
    };
    static VContentTable const table = ContentTableOf(facts);
    return table;
}

namespace {

bool IsByShortName(NODX201::VLink& reference) {
    return dynamic_cast<NODX201::VSnref const*>(&reference.GetLink()) != nullptr;
}

/// The data about a class of the memory model. Classes are distinguished by their type, since several classes of
/// references share a tag, and elements of other models have tags as well.
struct VContentClass {
    VContentTable const* table = nullptr; ///< null for references with attributes only
    NODX201::VOdxElement* (*follow)(NODX201::VLink& reference, NODX201::VDiagLayer* layer) = nullptr;
    bool isReadInLayer = false; ///< if it is by short name
};
using VContentClasses = std::unordered_map<std::type_index, VContentClass>;

/// The target of a reference by its ID, or as `find` finds it by short name.
template <class Link, class Find>
bool Leads(Link& link, Find find) {
    return link.ResolvesById() || (IsByShortName(link) && find(link));
}

VContentClasses MakeClasses() {
    VContentClasses classes;
    // clang-format off
#define TABLE(name)                                                                                                    \
    classes[typeid(NMemory::VMem##name)].table = &ContentOf(static_cast<NMemory::VMem##name*>(nullptr));
#define TARGET(name, target, find)                                                                                     \
    classes[typeid(NMemory::VMem##name)].follow =                                                                      \
        [](NODX201::VLink& reference, [[maybe_unused]] NODX201::VDiagLayer* layer) -> NODX201::VOdxElement* {          \
        auto& self = static_cast<NMemory::VMem##name&>(reference);                                                     \
        bool const leads = Leads(self, [layer]([[maybe_unused]] auto& link) { static_cast<void>(layer); return find; });\
        return leads ? &self.Get##target() : nullptr;                                                                  \
    };
#define ODX_CLASS(name, tag, base, names, value, element, type) TABLE(name)
#define ODX_EXTRA(name, contract, names, value, element, type) TABLE(name)
#define ODX_LINK_WITH(name, tag, target) TABLE(name) TARGET(name, target, false)
#define ODX_EXTRA_LINK_WITH(name, tag, target, targetClass) TABLE(name) TARGET(name, target, false)
#define ODX_EXTRA_LINK(name, target, targetClass, tag, value, element) TARGET(name, target, false)
#define ODX_PARENT_REF(name, target, value, type) TABLE(name) TARGET(name, target, false)
#define ODX_UNTYPED_PARENT_REF(name, target, value) TABLE(name) TARGET(name, target, false)
#define ODX_EXCLUSION(name, reference, link, value, element) TABLE(name)
#define ODX_LINK_IN_LAYER(name, tag, target, value, element)                                                           \
    TARGET(name, target, layer != nullptr && link.Has##target(*layer))                                                 \
    classes[typeid(NMemory::VMem##name)].isReadInLayer = true;
#include <diagkit/model/Facts.def>
    // clang-format on
    TARGET(ImportRef, DiagLayer, false)
    TABLE(Odx)
#undef TABLE
#undef TARGET
    return classes;
}

VContentClass const* ClassOf(NODX201::VOdxElement& element) {
    static VContentClasses const classes = MakeClasses();
    auto const found = classes.find(typeid(element));
    return found != classes.end() ? &found->second : nullptr;
}

/// The attributes of a reference, which are not in the facts.
void EmitReferenceAttributes(NODX201::VLink& reference, IPartSink& sink) {
    auto const emit = [&sink](wchar_t const* tag, wchar_t const* text) {
        EmitText(sink, VPartRole::Attribute, tag, L"", text);
    };
    NODX201::ILink& link = reference.GetLink();
    if (auto const* const byId = dynamic_cast<NODX201::VOdxLink const*>(&link); byId != nullptr) {
        emit(L"ID-REF", byId->GetIdRef());
        emit(L"DOCREF", byId->GetDocref());
        emit(L"DOCTYPE", byId->GetDoctype());
        emit(L"REVISION", byId->GetRevision());
    } else if (auto const* const byName = dynamic_cast<NODX201::VSnref const*>(&link); byName != nullptr) {
        emit(L"SHORT-NAME", byName->GetShortName());
    }
}

/// Whether an element has a child of this name.
bool HasChild(NODX201::VOdxElement& element, VContentTable const& table, wchar_t const* child) {
    bool isThere = false;
    for (VContentRow const& row : table.rows) {
        if (std::wcscmp(row.tag, child) == 0) {
            struct VFound final : IPartSink {
                explicit VFound(bool& there) : m_there(there) {}
                void Take(VContentPart const&) override { m_there = true; }
                bool& m_there;
            } found(isThere);
            row.emit(element, row, found);
        }
    }
    return isThere;
}

/// The xsi:type where the tag implies it, or a child that only one type has.
wchar_t const* TypeOf(NODX201::VOdxElement& element, VContentTable const* table) {
    wchar_t const* const type = NODX201::OdxTypeText(element.GetOdxTag());
    if (*type != L'\0' || table == nullptr) {
        return type;
    }
    for (VContentKind const& kind : table->kinds) {
        if (HasChild(element, *table, kind.child)) {
            return kind.xsiType;
        }
    }
    return type;
}

} // namespace

void ForEachPart(NODX201::VOdxElement& element, IPartSink& sink) {
    VContentClass const* const known = ClassOf(element);
    VContentTable const* const table = known != nullptr ? known->table : nullptr;
    auto* const reference =
        known == nullptr || known->follow != nullptr ? dynamic_cast<NODX201::VLink*>(&element) : nullptr;
    if (table == nullptr && reference == nullptr) {
        return;
    }
    EmitText(sink, VPartRole::Attribute, L"xsi:type", L"", TypeOf(element, table));
    if (reference != nullptr) {
        EmitReferenceAttributes(*reference, sink);
    }
    if (table == nullptr) {
        return;
    }
    for (VContentRow const& row : table->attributes) {
        row.emit(element, row, sink);
    }
    for (VContentRow const& row : table->rows) {
        row.emit(element, row, sink);
    }
}

NODX201::VOdxElement* TargetOf(NODX201::VLink& reference, NODX201::VDiagLayer* layer) {
    VContentClass const* const known = ClassOf(reference);
    return known != nullptr && known->follow != nullptr ? known->follow(reference, layer) : nullptr;
}

bool HasContent(NODX201::VLink& reference) {
    VContentClass const* const known = ClassOf(reference);
    return known != nullptr && known->table != nullptr;
}

bool IsReadInLayer(NODX201::VLink& reference) {
    VContentClass const* const known = ClassOf(reference);
    return known != nullptr && known->isReadInLayer && IsByShortName(reference);
}

} // namespace NQuery
