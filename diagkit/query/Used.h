// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <unordered_set>

#include <diagkit/model/Reference.h>

namespace NQuery {

/// Whether an element is inside another one, or is it.
bool StandsIn(NODX201::VOdxObject const& inner, NODX201::VOdxObject const& outer);

/// Whether elements of this kind can be reported as unused.
bool MayBeUnused(NODX201::VOdxElement const& element);

/// Elements of those kinds that are used, determined from references to them and to their parts.
class VUsed {
public:
    /// Marks the elements around the target, and the target itself, as used, except the element that contains all of
    /// the references: `any(test)` says whether the test is true for one of these. False when an element is left that
    /// other references may use.
    template <class Any>
    bool Use(NODX201::VOdxElement const& target, Any any) {
        bool isAllUsed = true;
        for (NODX201::VOdxObject const* object = &target; object != nullptr; object = object->GetOwner()) {
            auto const* const whole = dynamic_cast<NODX201::VOdxElement const*>(object);
            if (whole == nullptr || !MayBeUnused(*whole) || Has(*whole)) {
                continue;
            }
            if (any([whole](NODX201::VLink const& reference) { return !StandsIn(reference, *whole); })) {
                m_used.insert(whole);
            } else {
                isAllUsed = false;
            }
        }
        return isAllUsed;
    }

    bool Has(NODX201::VOdxElement const& element) const { return m_used.count(&element) != 0; }

private:
    std::unordered_set<NODX201::VOdxElement const*> m_used;
};

} // namespace NQuery
