// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/reader/OdxReader.h>

namespace NFuzz {

/// Does with a database what programs do: checks it, finds its cycles and its manufacturer, builds every view of every
/// layer, container and FLASH and finds its entries, compares it with itself and layers with each other, lists the
/// parts of every element, resolves every reference in every layer, and walks all layers. Each of these ends after a
/// number of steps, so that hostile data do not take long. Contradictory results end the program (`std::abort`), which
/// is a finding.
///
/// Requires a result with a database whose elements were kept. Returns the findings of the check.
std::vector<NReader::VDiagnostic> UseDatabase(NReader::VReadResult& result);

/// Counts steps down. It is thrown to leave a walk.
class VBudget {
public:
    explicit VBudget(std::size_t steps) : m_left(steps) {}

    /// False when nothing is left.
    bool Take() {
        m_left -= m_left > 0 ? 1 : 0;
        return m_left > 0;
    }

private:
    std::size_t m_left;
};

/// The part of `UseDatabase` that works reference by reference.
void ResolveReferences(NReader::VReadResult& result, VBudget& budget);

} // namespace NFuzz
