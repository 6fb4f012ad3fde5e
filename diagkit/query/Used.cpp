// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/Used.h>

namespace NQuery {

using Tag = NODX201::VOdxTagEnum;

bool StandsIn(NODX201::VOdxObject const& inner, NODX201::VOdxObject const& outer) {
    for (NODX201::VOdxObject const* object = &inner; object != nullptr; object = object->GetOwner()) {
        if (object == &outer) {
            return true;
        }
    }
    return false;
}

bool MayBeUnused(NODX201::VOdxElement const& element) {
    switch (element.GetOdxTag()) {
    case Tag::DataObjectProp:
    case Tag::DtcDop:
    case Tag::Structure:
    case Tag::EndOfPduField:
    case Tag::StaticField:
    case Tag::DynamicLengthField:
    case Tag::DynamicEndmarkerField:
    case Tag::Mux:
    case Tag::EnvDataDesc:
    case Tag::Table:
    case Tag::Unit:
    case Tag::PhysicalDimension:
    case Tag::Request:
    case Tag::PosResponse:
    case Tag::NegResponse:
    case Tag::FunctClass:
        return true;
    default:
        return false;
    }
}

} // namespace NQuery
