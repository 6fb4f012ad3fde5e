// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/query/DopValues.h>
#include <diagkit/query/MessageLayout.h>

/// Values, limits and lengths in words.

namespace NCli {

/// "3", "3-5", "3+"
std::string ExtentText(NQuery::VExtent const& extent);

/// "3 bytes", "12 bits", "1-4 bytes", "at least 2 bytes"
std::string LengthText(NQuery::VExtent const& bitLength);

/// A coded value of a type as people read bytes: "0x22" for a number or bytes, the text itself for others.
std::string CodedText(wchar_t const* value, NODX201::VDiagCodedType* type, NQuery::VExtent const& bitLength);

/// What lies between two limits: "0..100", "(0..100)" where they are open, "3" where they are the same, "" for none.
std::string RangeText(NQuery::VBound const& lower, NQuery::VBound const& upper);

/// What a scale makes of x: "0.5 * x - 40", "6000 / x", or its text or value.
std::string ScaleText(NQuery::VValueScale const& scale);

/// The texts of a conversion, "0 = off", and trouble codes; of very many the first.
std::vector<std::string> TextsOf(NQuery::VDopValues const& values, std::size_t most);

/// The values that an element has itself, beside its names: "BASE-DATA-TYPE A_UINT32, BIT-LENGTH 8"; a text alone
/// without its name. "" where it has none.
std::string ValuesNote(NODX201::VOdxElement& element);

/// Marks of text taken away, white space as single blanks: what a DESC says.
std::string PlainText(wchar_t const* markup);

} // namespace NCli
