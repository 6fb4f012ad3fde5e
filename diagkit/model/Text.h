// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/OdxElement.h>

namespace NODX201 {

/// LONG-NAME: text with an optional text identifier for translation.
class DIAGKIT_EXPORT VText : public VOdxElement {
public:
    ~VText() override;
    virtual wchar_t const* GetBaseMember() const = 0; ///< the text itself
};

/// VT: the text form of a constant.
class DIAGKIT_EXPORT VVt : public VOdxElement {
public:
    ~VVt() override;
};

/// A hex-coded byte string, such as SUPPORTED-DYN-ID.
class DIAGKIT_EXPORT VByteStream : public VOdxElement {
public:
    ~VByteStream() override;
};

} // namespace NODX201
