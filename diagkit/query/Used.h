// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <unordered_set>

#include <diagkit/model/Reference.h>

namespace NQuery {

/// Whether an element stands in another one, or is it.
bool StandsIn(NODX201::VOdxObject const& inner, NODX201::VOdxObject const& outer);

/// Whether an element is of a kind of which elements may be unused.
bool MayBeUnused(NODX201::VOdxElement const& element);

/// Elements of those kinds that are used, as references to them and to their parts are told.
class VUsed {
public:
    /// Uses what the target stands in, and itself, but for that in which all of the references stand: `any(test)` says
    /// whether the test holds for one of these. False when something is left that other references may use.
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
