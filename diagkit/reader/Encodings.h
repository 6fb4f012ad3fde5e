// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace NReader {

/// The name of the encoding used for one that a document declares; "" for an unknown one. Case, hyphens and underscores
/// do not matter. ISO-8859-1 is read as Windows-1252, as browsers do: they differ only in 0x80 to 0x9F, for which
/// ISO-8859-1 has no characters.
std::string_view EncodingOf(std::string_view declared);

/// Whether every byte is a character in an encoding of that name, which is a result of `EncodingOf`.
bool IsOneByteEncoding(std::string_view encoding);

/// Whether the name is one of ISO-8859-1.
bool IsLatin1(std::string_view declared);

/// Whether the one-byte encoding that a document declares has a character for the byte; a control character from 0x80
/// to 0x9F does not count.
bool HasCharacter(std::string_view declared, unsigned char byte);

/// Fills the map from bytes to code points of a one-byte encoding that the XML parser does not support. False for an
/// unknown name.
bool FillEncoding(char const* name, int (&map)[256]);

/// The names of all encodings that documents can have, for messages.
char const* KnownEncodings();

} // namespace NReader
