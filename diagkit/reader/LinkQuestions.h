// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Link.h>

namespace NReader {

/// The queries for a reference by ID, by its class.
struct VLinkQuestions {
    bool (*resolves)(NODX201::VLink& link);
    NMemory::VDoubt (*doubt)(NODX201::VLink& link); ///< see `NMemory::FindDoubt`
};

/// The queries for links of one class.
template <class Link>
inline constexpr VLinkQuestions kQuestionsTo{
    [](NODX201::VLink& link) { return static_cast<Link&>(link).ResolvesById(); },
    [](NODX201::VLink& link) { return static_cast<Link&>(link).FindDoubt(); },
};

} // namespace NReader
