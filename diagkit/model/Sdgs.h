// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>

/// Special data groups: author-defined data, nested in any combination.

namespace NODX201 {

/// An entry of an SDG: exactly one test is true, and the entry is castable to that class.
class DIAGKIT_EXPORT ISdgSdChoice {
public:
    virtual bool IsSdg() const = 0;
    virtual bool IsSd() const = 0;

protected:
    ISdgSdChoice() = default;
    ~ISdgSdChoice() = default;
};

/// SDG
class DIAGKIT_EXPORT VSdg : public VOdxElement, public ISdgSdChoice {
public:
    ~VSdg() override;
    bool IsSdg() const final { return true; }
    bool IsSd() const final { return false; }
    virtual bool HasSdgCaption() const = 0;
    virtual VSdgCaption& GetSdgCaption() = 0;
    virtual VSdgSdChoiceCollection& SdgSdChoiceCollection() = 0;
};

/// SDG-CAPTION
class DIAGKIT_EXPORT VSdgCaption : public VReferencable {
public:
    ~VSdgCaption() override;
};

/// SD
class DIAGKIT_EXPORT VSd : public VOdxElement, public ISdgSdChoice {
public:
    ~VSd() override;
    bool IsSdg() const final { return false; }
    bool IsSd() const final { return true; }
};

} // namespace NODX201
