// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>

#include <diagkit/Export.h>
#include <diagkit/tools/ExternalIterator.h>

namespace NDIAGKIT {

/// For the traits of a view of elements that are found by their short names.
template <class ElementType>
struct VNamedElements {
    using Element = ElementType;
    static wchar_t const* ShortNameOf(Element& element) { return element.GetShortName(); }
};

/// Base of all list views: an ordered list of pointers to elements of the model. The model owns the elements and must
/// outlive the view.
///
/// `Traits` gives the element type of the view and the places of its assertions:
///
///     struct VDiagCommViewTraits {
///         using Element = NODX201::VDiagComm;
///         static constexpr wchar_t const* kSource = L"DiagCommView"; // source named by the view's assertions
///         static constexpr int kRemoveElementLine = 348;             // Remove(element) that is not in the view
///         static constexpr int kRemovePositionLine = 356;            // Remove(End())
///         static constexpr int kRemoveStepLine = 433;                // _Remove(end)
///         static wchar_t const* ShortNameOf(Element& element);       // null: no name can find this entry
///     };
///
/// Iteration is in view order: the order in which the view's passes, and later `Append`, added the entries. A constant
/// view hands out the same elements: constant is what it lists, not what they hold.
template <class Traits>
class VListView {
public:
    using Element = typename Traits::Element;
    using List = std::list<Element*>;
    using Iterator = VExternalIterator<typename List::iterator, Element&>;
    using ConstIterator = VExternalIterator<typename List::const_iterator, Element&>;
    using iterator = NODX201::VStandardIterator<Iterator>;            ///< of `begin()`
    using const_iterator = NODX201::VStandardIterator<ConstIterator>; ///< of `begin()` of a constant view

    VListView(VListView const&) = delete;
    VListView& operator=(VListView const&) = delete;

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

    /// The position of the object itself, the first of several; `End()` when it is not there.
    Iterator Find(Element& element);
    ConstIterator Find(Element const& element) const; ///< the same

    void Append(Element& element); ///< at the end, without looking for duplicates

    /// Removes the object from the view without destroying it; of several entries of one object, the first. Asserts,
    /// and changes nothing, when there is none.
    void Remove(Element& element);

    /// Removes the entry from the view and DESTROYS the element itself, in the model too; use `Remove(element)` to keep
    /// it. Asserts, and changes nothing, at `End()`.
    void Remove(Iterator iter);

    /// Whether both views contain the same objects in the same order.
    bool operator==(VListView const& other) const;
    bool operator!=(VListView const& other) const;

protected:
    VListView();
    ~VListView();

    typename List::iterator _Find(Element& element);
    void _Insert(typename List::iterator position, Element& element); ///< before the position
    void _Remove(typename List::iterator position);                   ///< destroys the element

    List m_collection;
};

/// A list view whose entries are found by short name.
template <class Traits>
class VNamedListView : public VListView<Traits> {
public:
    using typename VListView<Traits>::Element;
    using typename VListView<Traits>::Iterator;
    using typename VListView<Traits>::ConstIterator;
    using VListView<Traits>::Find;

    /// The first entry of exactly this short name (case-sensitive, no trimming); `End()` when there is none, and for
    /// null. Linear.
    Iterator Find(wchar_t const* shortName);
    ConstIterator Find(wchar_t const* shortName) const; ///< the same

protected:
    VNamedListView();
    ~VNamedListView();
};

} // namespace NDIAGKIT
