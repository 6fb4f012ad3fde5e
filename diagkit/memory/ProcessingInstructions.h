// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <diagkit/model/Collections.h>
#include <diagkit/model/ProcessingInstruction.h>

namespace NMemory {

/// A processing instruction; its texts belong to a pool.
class VMemProcessingInstruction final : public NODX201::VProcessingInstruction {
public:
    /// Keeps the pointers, not copies.
    VMemProcessingInstruction(wchar_t const* name, wchar_t const* content) : m_name(name), m_content(content) {}

    wchar_t const* GetName() const override { return m_name; }
    wchar_t const* GetContent() const override { return m_content; }

private:
    wchar_t const* m_name;
    wchar_t const* m_content;
};

/// The processing instructions of an element as a member; the texts are stored by the caller.
class VMemProcessingInstructions {
public:
    NODX201::VProcessingInstructionCollection& Get() const; ///< in document order; empty when there are none
    void Add(wchar_t const* name, wchar_t const* content);  ///< at the end

private:
    class VOwning : public NODX201::VProcessingInstructionCollection {
    public:
        VOwning() = default;
        ~VOwning();
        void Add(wchar_t const* name, wchar_t const* content);
    };

    std::unique_ptr<VOwning> m_collection;
};

} // namespace NMemory
