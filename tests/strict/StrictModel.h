// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <typeindex>
#include <utility>

#include <diagkit/model/Collections.h>
#include <diagkit/model/ProcessingInstruction.h>

namespace NTest {

/// Thrown by a getter of the strict model when its Has did not return true before.
struct VNotAsked : std::logic_error {
    using std::logic_error::logic_error;
};

/// Operations as "VDiagService::GetRequestRef".
using VOperations = std::set<std::string>;

/// All getters with a Has.
VOperations AllGuardedGetters();

/// A model that applies the rule literally: an optional child, text or collection, or the target of a link, may be got
/// only after its Has returned true for the same element. Every element represents one of the memory model and returns
/// the same results, with elements of this model in place of that one's.
///
/// An element remembers its queries as long as the model exists, so each use of the toolkit gets its own model. Models
/// and elements are not copied; the memory model must outlive this one.
class VStrictModel {
public:
    /// Some views may call `ParentRefCollection()` without asking, other code may not.
    enum class VParentRefs { BehindHas, Free };

    explicit VStrictModel(VParentRefs parentRefs = VParentRefs::BehindHas, VOperations* called = nullptr);
    ~VStrictModel();
    VStrictModel(VStrictModel const&) = delete;
    VStrictModel& operator=(VStrictModel const&) = delete;

    /// The object that represents an element, an entry of a collection, or a collection.
    template <class T>
    T& Of(T& inner);
    NODX201::VOdxObject* Of(NODX201::VOdxObject* inner); ///< an owner, or null

    // For the elements.

    void Call(std::string const& operation) const; ///< records that a getter was called
    bool AreParentRefsFree() const { return m_parentRefs == VParentRefs::Free; }

private:
    NODX201::VOdxElement& ElementOf(NODX201::VOdxElement& inner);
    std::unique_ptr<NODX201::VOdxElement> Make(NODX201::VOdxElement& inner);
    template <class Collection>
    Collection& CollectionOf(Collection& inner);

    VParentRefs m_parentRefs;
    VOperations* m_called;
    std::map<NODX201::VOdxElement*, std::unique_ptr<NODX201::VOdxElement>> m_elements;
    std::map<std::pair<void*, std::type_index>, std::shared_ptr<void>> m_collections;
};

/// The entries of a collection, in the same order.
template <class Collection>
class VStrictCollection : public Collection {
public:
    VStrictCollection(VStrictModel& model, Collection& inner) {
        for (auto& entry : inner) {
            this->m_elements.push_back(&model.Of(entry));
        }
    }
    virtual ~VStrictCollection() = default;
};

/// The only collection that has an owner.
class VStrictLayers final : public VStrictCollection<NODX201::VDiagLayerCollection> {
public:
    VStrictLayers(VStrictModel& model, NODX201::VDiagLayerCollection& inner)
        : VStrictCollection(model, inner), m_model(model), m_inner(inner) {}
    NODX201::VOdxObject* GetOwner() const override { return m_model.Of(m_inner.GetOwner()); }

private:
    VStrictModel& m_model;
    NODX201::VDiagLayerCollection& m_inner;
};

template <class T, class = void>
constexpr bool kIsCollection = false;
template <class T>
constexpr bool kIsCollection<T, std::void_t<typename T::List>> = true;

template <class T>
T& VStrictModel::Of(T& inner) {
    if constexpr (std::is_same_v<T, std::wstring const> || std::is_same_v<T, NODX201::VProcessingInstruction>) {
        return inner; // has nothing that could be requested
    } else if constexpr (kIsCollection<T>) {
        return CollectionOf(inner);
    } else {
        if constexpr (std::is_same_v<T, NODX201::ICompuScalesProgCodeChoice>) {
            if (auto* const scales = dynamic_cast<NODX201::VCompuScaleCollection*>(&inner)) {
                return CollectionOf(*scales);
            }
        }
        return dynamic_cast<T&>(ElementOf(dynamic_cast<NODX201::VOdxElement&>(inner)));
    }
}

template <class Collection>
Collection& VStrictModel::CollectionOf(Collection& inner) {
    using VMade = std::conditional_t<std::is_same_v<Collection, NODX201::VDiagLayerCollection>, VStrictLayers,
                                     VStrictCollection<Collection>>;
    std::shared_ptr<void>& made = m_collections[{&inner, typeid(Collection)}];
    if (made == nullptr) {
        made = std::make_shared<VMade>(*this, inner);
    }
    return *static_cast<VMade*>(made.get());
}

} // namespace NTest
