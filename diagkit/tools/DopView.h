// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <string>

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/tools/ExternalIterator.h>
#include <diagkit/tools/StringContainer.h>
#include <diagkit/util/Utf16.h>

namespace NDIAGKIT {

struct VLayerOfKind;

DIAGKIT_TEMPLATE_DECLARATION(
    VMapExternalIterator<std::map<std::wstring, NODX201::VDopBase*, NPavonaUtil::VUtf16Less>::iterator,
                         NODX201::VDopBase&>);

/// The DOPs visible in one layer, keyed by short name: its own, then those of its parents. Each short name occurs once:
/// the first one inserted wins, and the passes insert in the order of priority.
///
///     layer               pass 1                            pass 2
///     ECU-SHARED-DATA     -                                 -
///     PROTOCOL            ECU-SHARED-DATA                   -
///     FUNCTIONAL-GROUP    PROTOCOL                          ECU-SHARED-DATA
///     BASE-VARIANT        PROTOCOL and FUNCTIONAL-GROUP     ECU-SHARED-DATA
///     ECU-VARIANT         BASE-VARIANT                      ECU-SHARED-DATA
///
/// The DOPs are the entries of the dictionary's DOP collection: all kinds but ENV-DATA. No NOT-INHERITED list applies.
///
/// Unlike the other views this one is a map: iteration is in the order of the short names, compared by code units of
/// UTF-16 on every platform. It contains pointers; the model owns the DOPs and must outlive the view. Finding by name
/// is logarithmic, by object linear.
class DIAGKIT_EXPORT VDopView {
public:
    using Map = std::map<std::wstring, NODX201::VDopBase*, NPavonaUtil::VUtf16Less>;
    using Iterator = VMapExternalIterator<Map::iterator, NODX201::VDopBase&>;
    using ConstIterator = VMapExternalIterator<Map::const_iterator, NODX201::VDopBase&>;
    using iterator = NODX201::VStandardIterator<Iterator>;            ///< of `begin()`
    using const_iterator = NODX201::VStandardIterator<ConstIterator>; ///< of `begin()` of a constant view

    explicit VDopView(NODX201::VEcuSharedData& layer);
    explicit VDopView(NODX201::VProtocol& layer);
    explicit VDopView(NODX201::VFunctionalGroup& layer);
    explicit VDopView(NODX201::VBaseVariant& layer);
    explicit VDopView(NODX201::VEcuVariant& layer);
    virtual ~VDopView();
    VDopView(VDopView const&) = delete;
    VDopView& operator=(VDopView const&) = delete;

    unsigned long long Count() const;
    bool IsEmpty() const;
    Iterator Begin();
    Iterator End();
    ConstIterator Begin() const;
    ConstIterator End() const;
    iterator begin() { return Begin(); }
    iterator end() { return End(); }
    const_iterator begin() const { return Begin(); }
    const_iterator end() const { return End(); }

    Iterator Find(wchar_t const* shortName);            ///< exactly this name; `End()` when there is none, and for null
    Iterator Find(NODX201::VDopBase& dop);              ///< this very object; `End()` when there is none
    ConstIterator Find(wchar_t const* shortName) const; ///< the same
    ConstIterator Find(NODX201::VDopBase const& dop) const; ///< the same

    void Append(NODX201::VDopBase& dop); ///< under its short name; no effect when that is taken

    /// Removes the entry of this object from the view; the DOP is not destroyed. Asserts, and changes nothing, when the
    /// view does not contain it.
    void Remove(NODX201::VDopBase& dop);

    /// Removes the entry from the view and DESTROYS the DOP itself; use `Remove(dop)` to keep it. Asserts, and changes
    /// nothing, at `End()`.
    void Remove(Iterator iter);

    /// Whether both views contain the same objects under the same names.
    bool operator==(VDopView const& other) const;
    bool operator!=(VDopView const& other) const;

protected:
    Map::iterator _Find(NODX201::VDopBase& dop);
    void _Remove(Map::iterator position); ///< destroys the DOP

private:
    VDopView();

    void Inherit(VLayerOfKind const& layer);

    Map m_collection;
    VStringContainer m_notInherited; // never filled: no exclusion applies to DOPs
};

} // namespace NDIAGKIT
