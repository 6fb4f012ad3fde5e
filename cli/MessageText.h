// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <cli/Output.h>
#include <diagkit/query/MessageLayout.h>

/// Messages as text for people.

namespace NCli {

/// A line for each row of a layout, in columns: where it stands, how long it is, its name and kind, what its value is.
void WriteRows(NQuery::VMessageLayout const& layout, VOutput& output);

/// The bytes of a short message as a picture of boxes, the first byte on top; nothing for a long one.
void WritePicture(NQuery::VMessageLayout const& layout, VOutput& output);

} // namespace NCli
