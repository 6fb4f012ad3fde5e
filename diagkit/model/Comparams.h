// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>
#include <diagkit/model/Reference.h>

/// Communication parameters.

namespace NODX201 {

/// COMPARAM-SPEC
class DIAGKIT_EXPORT VComparamSpec : public VReferencable {
public:
    ~VComparamSpec() override;
    virtual bool HasOid() const = 0; ///< an empty @OID counts as none
    virtual wchar_t const* GetOid() const = 0;
    virtual VComparamCollection& ComparamCollection() = 0;
};

/// COMPARAM
class DIAGKIT_EXPORT VComparam : public VReferencable {
public:
    /// @CPTYPE
    enum class VStandardisationLevel : int { Standard = 0, OemSpecific, Optional };

    ~VComparam() override;
    virtual wchar_t const* GetOid() const = 0; ///< @OID, "" when absent
};

/// COMPARAM-SPEC-REF
class DIAGKIT_EXPORT VComparamSpecLink : public VLink {
public:
    ~VComparamSpecLink() override;
    virtual bool HasComparamSpec() const = 0;
    virtual VComparamSpec& GetComparamSpec() = 0;
};

/// COMPARAM-REF
class DIAGKIT_EXPORT VComparamRef : public VLink {
public:
    ~VComparamRef() override;
};

} // namespace NODX201
