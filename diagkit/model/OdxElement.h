// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/Export.h>
#include <diagkit/model/OdxTag.h>

namespace NODX201 {

/// Anything that can own an element of the model: an element, or the collection of a container's layers.
class DIAGKIT_EXPORT VOdxObject {
public:
    virtual ~VOdxObject();

    /// The element that directly contains this object. The owner of a layer is its `VDiagLayerCollection`, whose owner
    /// in turn is the container. Null for the root.
    virtual VOdxObject* GetOwner() const = 0;

    VOdxObject(VOdxObject const&) = delete;
    VOdxObject& operator=(VOdxObject const&) = delete;

protected:
    VOdxObject() = default;
};

/// An element of an ODX database. All elements belong to the model, which outlives every toolkit object built over it.
/// Text accessors return zero-terminated wide text owned by the element, valid until the element is changed or
/// destroyed; absent text is "".
///
/// Optional children come in pairs: call `GetX()` only after `HasX()` returned true. A collection may always be
/// requested; an absent one is empty.
class DIAGKIT_EXPORT VOdxElement : public VOdxObject {
public:
    ~VOdxElement() override;

    /// The ODX element kind: the tag, with xsi:type where that determines the kind.
    virtual VOdxTagEnum GetOdxTag() const = 0;

    /// SHORT-NAME; "" for elements without one.
    virtual wchar_t const* GetShortName() const = 0;
};

/// An element with an ODX ID.
class DIAGKIT_EXPORT VReferencable : public VOdxElement {
public:
    ~VReferencable() override;

    /// @ID; "" when missing.
    virtual wchar_t const* GetId() const = 0;
};

} // namespace NODX201
