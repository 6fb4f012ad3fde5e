// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/model/DiagComms.h>

namespace NMemory {

/// PROG-CODE
class VMemProgCode final : public VMemElement<NODX201::VProgCode, Tag::ProgCode> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetCodeFile() const { return m_codeFile; } ///< CODE-FILE
    void SetCodeFile(wchar_t const* text) { m_codeFile = Store(text); }

    wchar_t const* GetEncryption() const { return m_encryption; } ///< ENCRYPTION
    void SetEncryption(wchar_t const* text) { m_encryption = Store(text); }

    wchar_t const* GetSyntax() const { return m_syntax; } ///< SYNTAX
    void SetSyntax(wchar_t const* text) { m_syntax = Store(text); }

    wchar_t const* GetRevision() const { return m_revision; } ///< REVISION
    void SetRevision(wchar_t const* text) { m_revision = Store(text); }

    wchar_t const* GetEntrypoint() const { return m_entrypoint; } ///< ENTRYPOINT
    void SetEntrypoint(wchar_t const* text) { m_entrypoint = Store(text); }

private:
    wchar_t const* m_codeFile = L"";
    wchar_t const* m_encryption = L"";
    wchar_t const* m_syntax = L"";
    wchar_t const* m_revision = L"";
    wchar_t const* m_entrypoint = L"";
};

} // namespace NMemory
