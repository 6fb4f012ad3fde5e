// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Children.h>

/// The body of `New`, for the sources that instantiate it.

namespace NMemory {

template <class Element>
std::unique_ptr<Element> New(VPlace const& place) {
    return std::make_unique<Element>(place);
}

template <class Link>
std::unique_ptr<Link> New(VPlace const& place, VReference const& reference) {
    return std::make_unique<Link>(place, reference);
}

} // namespace NMemory
