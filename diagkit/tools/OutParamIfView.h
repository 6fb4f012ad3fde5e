// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>

#include <diagkit/Export.h>
#include <diagkit/model/Forward.h>
#include <diagkit/model/SearchRange.h>
#include <diagkit/tools/ListView.h>
#include <diagkit/tools/StringContainer.h>

namespace NDIAGKIT {

/// The element type of `OutParamIfView` and the places of its assertions; see `VListView`.
struct DIAGKIT_EXPORT VOutParamIfViewTraits {
    using Element = NODX201::IOutParamIf;
    static constexpr wchar_t const* kSource = L"OutParamIfView";
    static constexpr int kRemoveElementLine = 205;
    static constexpr int kRemovePositionLine = 213;
    static constexpr int kRemoveStepLine = 514;
    static wchar_t const* ShortNameOf(Element& param);
};

DIAGKIT_TEMPLATE_DECLARATION(VExternalIterator<std::list<NODX201::IOutParamIf*>::iterator, NODX201::IOutParamIf&>);
DIAGKIT_TEMPLATE_DECLARATION(VListView<VOutParamIfViewTraits>);

/// The parameters that an OUT-PARAM-IF-SNREF may refer to in one DIAG-COMM, and a search below them.
///
/// For a job these are its OUTPUT-PARAMs. For a service they are the VALUE parameters of its request and responses, as
/// selected by the search range, in the order request, positive responses, negative responses:
///
///     range   request   positive   negative responses
///     0       -         yes        yes
///     1       yes       -          yes
///     2       -         -          -
///     3       yes       -          -
///     4       -         yes        -
///     5       yes       yes        yes
///
/// No other value selects a parameter. Container operations as in `VListView`.
///
/// The search looks at the entries first and then, depth first in document order, below every parameter of the selected
/// request and responses: through the DOPs of VALUE parameters, structures, fields, multiplexers, environment data and
/// the tables of TABLE-STRUCT parameters. DOP references resolve in the layer given. Only VALUE parameters match, by
/// exact short name. A match below the entries is appended to the view: the view GROWS when a search finds something
/// new, and the next search finds it among the entries. The search terminates on every database, however deep it nests
/// and even if something contains itself.
class DIAGKIT_EXPORT VOutParamIfView : public VListView<VOutParamIfViewTraits> {
public:
    VOutParamIfView(NODX201::VDiagService& service, NODX201::VSearchRange range);
    explicit VOutParamIfView(NODX201::VSingleEcuJob& job);
    explicit VOutParamIfView(NODX201::VMultipleEcuJob& job);
    virtual ~VOutParamIfView();

    using VListView<VOutParamIfViewTraits>::Find;
    Iterator Find(wchar_t const* shortName, NODX201::VDiagLayer& layer); ///< `End()` when nothing matches, and for null
    /// The same, with the match, or null, in `found`.
    Iterator Find(wchar_t const* shortName, NODX201::IOutParamIf*& found, NODX201::VDiagLayer& layer);
    NODX201::IOutParamIf* FindParam(wchar_t const* shortName,
                                    NODX201::VDiagLayer& layer); ///< null when nothing matches

    using VListView<VOutParamIfViewTraits>::Remove;
    void Remove(Iterator iter); ///< as in `VListView`; the search no longer looks below a destroyed parameter

    class VParamRecursivSearchVisitor;

protected:
    void _Remove(List::iterator position); ///< destroys the element

private:
    VOutParamIfView();

    void ForgetSearchRoot(List::iterator position);

    std::list<NODX201::VParam*> m_searchRoots; // every parameter of the selected request and responses, of any kind
    VStringContainer m_notInherited;           // never filled
};

} // namespace NDIAGKIT
