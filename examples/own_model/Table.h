// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <deque>
#include <istream>
#include <string>

#include <diagkit/model/OdxTag.h>

/// The storage of the example: a text with one element per line, indented by nesting.
///
///     ?Conformance reference
///     DIAG-LAYER-CONTAINER name=Doors id=C
///       PROTOCOL name=Uds id=P
///         LONG-NAME text=Services of every ECU

namespace NOwnModel {

/// One line. Values that are absent are "".
struct VRow {
    NODX201::VOdxTagEnum tag = NODX201::VOdxTagEnum::None; ///< none for a processing instruction
    std::wstring name;                                     ///< SHORT-NAME; name of a processing instruction
    std::wstring id;                                       ///< @ID
    std::wstring oid;                                      ///< @OID
    std::wstring idRef;                                    ///< @ID-REF
    std::wstring snref;                                    ///< @SHORT-NAME of a reference
    std::wstring text;                                     ///< LONG-NAME; content of a processing instruction
    std::deque<VRow> rows; ///< its children, in order; a deque, so that no row ever moves
};

/// A row that contains those of the text. Throws std::runtime_error at a line that it does not understand.
VRow ReadTable(std::wistream& in);

} // namespace NOwnModel
