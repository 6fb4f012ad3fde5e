// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace NReader {

/// Fills the map from bytes to code points of a one-byte encoding that the XML parser does not know itself. False for
/// a name that we do not know either. Case does not matter.
bool FillEncoding(char const* name, int (&map)[256]);

/// The names of all encodings that documents can have, for messages.
char const* KnownEncodings();

} // namespace NReader
