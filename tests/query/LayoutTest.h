// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/query/MessageLayout.h>

#include "reader/LayerXml.h"
#include "reader/ReaderTest.h"

namespace NTest {

/// "3", "3..5" or "3.." of an extent.
std::string Printed(NQuery::VExtent const& extent);

/// A line for each row: its name indented, byte and bit position, length in bits, and why it is not followed.
std::string Printed(NQuery::VMessageLayout const& layout);

// Parts of documents.

std::string Fixed(std::string const& bits, std::string const& type = "A_UINT32"); ///< a DIAG-CODED-TYPE
std::string MinMax(std::string const& limits);
std::string DopOf(std::string const& id, std::string const& codedType); ///< a DATA-OBJECT-PROP
std::string Param(std::string const& type, std::string const& name, std::string const& content);
std::string At(std::string const& byte, std::string const& bit = ""); ///< the position of a parameter

class VLayoutTest : public VReaderTest {
protected:
    /// Reads a layer "L" with this dictionary and a request "R" with these parameters.
    void ReadLayer(std::string const& dictionary, std::string const& params);

    NQuery::VMessageLayout Layout(wchar_t const* id, wchar_t const* layer = L"L") const;
    std::string Rows(wchar_t const* id = L"R", wchar_t const* layer = L"L") const { return Printed(Layout(id, layer)); }

    NQuery::VLayoutOptions m_layoutOptions;
};

} // namespace NTest
