// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/model/DiagComms.h>
#include <diagkit/tools/DiagCommView.h>

/// Views in print, `name@owner name@owner` in view order, so that one comparison shows membership, order and origin.

namespace NTest {

/// The short name of the layer around an element; "" for one outside layers.
std::wstring LayerNameOf(NODX201::VOdxObject const& element);

std::wstring Print(NODX201::VDiagComm& diagComm);
std::wstring Print(NDIAGKIT::VDiagCommView& view);

/// The view of a layer of any kind, built by a builder, printed and released.
std::wstring PrintDiagComms(NODX201::VDiagLayer& layer);

} // namespace NTest
