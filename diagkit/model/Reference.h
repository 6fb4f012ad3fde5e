// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/OdxElement.h>

/// References between elements. A link element (`...-REF` or `...-SNREF` in XML) contains one `ILink`, which is either
/// a `VSnref` or a `VOdxLink`, and resolves it: `HasX(...)` looks for the target, `GetX()` returns the one found last.
/// When no target is found, `HasX` returns false; this is never an error.

namespace NODX201 {

/// The XML form of a reference: a `VSnref` or a `VOdxLink`; distinguish them by dynamic cast.
class DIAGKIT_EXPORT ILink {
public:
    virtual ~ILink();
    ILink(ILink const&) = delete;
    ILink& operator=(ILink const&) = delete;

protected:
    ILink() = default;
};

/// A short-name reference (`...-SNREF`).
class DIAGKIT_EXPORT VSnref : public ILink {
public:
    ~VSnref() override;
    virtual wchar_t const* GetShortName() const = 0; ///< @SHORT-NAME
};

/// A reference by ID (`...-REF`). DOCTYPE remains text, because data use literals beyond the five of `VDoctype`.
class DIAGKIT_EXPORT VOdxLink : public ILink {
public:
    ~VOdxLink() override;
    virtual wchar_t const* GetIdRef() const = 0;    ///< @ID-REF
    virtual wchar_t const* GetDocref() const = 0;   ///< @DOCREF, "" when absent
    virtual wchar_t const* GetDoctype() const = 0;  ///< @DOCTYPE, "" when absent
    virtual wchar_t const* GetRevision() const = 0; ///< @REVISION, "" when absent
};

/// @DOCTYPE of a reference.
enum class VDoctype : int { Flash = 0, Container, Layer, MultipleEcuJobSpec, ComparamSpec };

/// Base of every link element.
class DIAGKIT_EXPORT VLink : public VOdxElement {
public:
    ~VLink() override;
    virtual ILink& GetLink() = 0;
};

} // namespace NODX201
