// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <diagkit/reader/ElementTable.h>

/// Rows that several topics use.

namespace NReader {

inline VElementType Table(std::vector<VAttributeRow> attributes, std::vector<VRow> rows) {
    VElementType type;
    type.attributes = std::move(attributes);
    type.rows = std::move(rows);
    return Indexed(std::move(type));
}

/// An element that is no more than a list: its items may also stand beside it.
inline VElementType ListTable(VElementType type) {
    type.isWrapper = true;
    return type;
}

/// Where several may stand, malformed as that is, and add to the first.
inline VRow Appending(VRow row) {
    row.isFirstKept = false;
    return row;
}

/// An element with names.
template <class T>
VElementType NamedTable(std::vector<VAttributeRow> attributes, std::vector<VRow> rows) {
    return Table(std::move(attributes), Join(NameRows<T>(), std::move(rows)));
}

/// An element with ID, OID and names.
template <class T>
VElementType IdentTable(std::vector<VAttributeRow> attributes, std::vector<VRow> rows) {
    return NamedTable<T>(Join(IdentAttributes<T>(), std::move(attributes)), std::move(rows));
}

/// An element with text of its own.
template <class T, auto Set>
VElementType TextTable(std::vector<VAttributeRow> attributes, VContent content = VContent::Text) {
    VElementType type;
    type.attributes = std::move(attributes);
    type.content = content;
    type.setContent = [](void* object, std::wstring const& text, std::wstring const&) {
        (VRows<T>::Owner(object).*Set)(text.c_str());
    };
    return Indexed(std::move(type));
}

/// The value of xsi:type without prefix and blanks; "" when absent. An attribute `type` that lacks the prefix counts,
/// and is reported.
std::string XsiType(VLoader& loader, VAttributes const& attributes);
std::string XsiTypeIn(VAttributes const& attributes); ///< the same, and reports nothing

/// Reports an xsi:type that the element does not have.
void ReportUnknownType(VLoader& loader, std::string const& type);
void ReportShortNameNotAllowed(VLoader& loader, std::string const& what);

template <class T>
VRow AdminDataRow() {
    return VRows<T>::template Child<&T::MakeAdminData>("ADMIN-DATA");
}

template <class T>
VRow SdgsRow() {
    using R = VRows<T>;
    return R::template Wrapper<&T::MakeSdgCollection>("SDGS", Optional, {R::template Item<&T::AddSdg>("SDG")});
}

template <class T>
VRow CompanyDatasRow() {
    using R = VRows<T>;
    return R::template Wrapper<&T::MakeCompanyDataCollection>("COMPANY-DATAS", Optional,
                                                              {R::template Item<&T::AddCompanyData>("COMPANY-DATA")});
}

template <class T>
VRow FunctClassesRow() {
    using R = VRows<T>;
    return R::template Wrapper<&T::MakeFunctClassCollection>("FUNCT-CLASSS", Optional,
                                                             {R::template Item<&T::AddFunctClass>("FUNCT-CLASS")});
}

template <class T>
VRow ComparamRefsRow() {
    using R = VRows<T>;
    return R::template Wrapper<&T::MakeComparamRefCollection>(
        "COMPARAM-REFS", Optional, {R::template Link<&T::AddComparamRef>("COMPARAM-REF", Many)});
}

template <class T>
VRow RolesRow() {
    using R = VRows<T>;
    return R::PlainWrapper("ROLES", Optional, {R::template Text<&T::AddRole>("ROLE", Many)});
}

/// DIAG-CODED-TYPE, whose kind is its xsi:type or shows from its contents.
template <class T>
VRow CodedTypeRow(VOccurs occurs) {
    auto const openCodedType = [](VLoader& loader, void* owner, VRow const&, VAttributes const& attributes) {
        T& element = VRows<T>::Owner(owner);
        std::string const type = XsiType(loader, attributes);
        auto const opened = [&loader](auto& made) {
            NoteElement(loader, made);
            return VOpened{&made, &TypeOf(&made)};
        };
        // clang-format off
        if (type == "STANDARD-LENGTH-TYPE")     { return opened(element.MakeStandardLengthType()); }
        if (type == "LEADING-LENGTH-INFO-TYPE") { return opened(element.MakeLeadingLengthInfoType()); }
        if (type == "MIN-MAX-LENGTH-TYPE")      { return opened(element.MakeMinMaxLengthType()); }
        if (type == "PARAM-LENGTH-INFO-TYPE")   { return opened(element.MakeParamLengthInfoType()); }
        // clang-format on
        ReportUnknownType(loader, type);
        return VOpened{nullptr, nullptr, true};
    };
    VRow row = VRows<T>::Special("DIAG-CODED-TYPE", occurs, openCodedType);
    row.isFirstKept = true; // another one would take its place, under references that are noted already
    return row;
}

/// PARAMS, whose items' kind is their xsi:type or shows from their contents.
template <class T>
VRow ParamsRow() {
    using R = VRows<T>;
    auto const openParam = [](VLoader& loader, void* owner, VRow const&, VAttributes const& attributes) {
        T& element = VRows<T>::Owner(owner);
        std::string const type = XsiType(loader, attributes);
        auto const opened = [&loader](auto& made) {
            NoteElement(loader, made);
            return VOpened{&made, &TypeOf(&made)};
        };
        // clang-format off
        if (type == "VALUE")                  { return opened(element.AddValue(L"")); }
        if (type == "CODED-CONST")            { return opened(element.AddCodedConst(L"")); }
        if (type == "NRC-CONST")              { return opened(element.AddCodedConst(L"")); } // of later versions: several values
        if (type == "DYNAMIC")                { return opened(element.AddDynamic(L"")); }
        if (type == "LENGTH-KEY")             { return opened(element.AddLengthKey(L"")); }
        if (type == "MATCHING-REQUEST-PARAM") { return opened(element.AddMatchingRequestParam(L"")); }
        if (type == "PHYS-CONST")             { return opened(element.AddPhysConst(L"")); }
        if (type == "RESERVED")               { return opened(element.AddReserved(L"")); }
        if (type == "SYSTEM")                 { return opened(element.AddSystem(L"")); }
        if (type == "TABLE-KEY")              { return opened(element.AddTableKey(L"")); }
        if (type == "TABLE-STRUCT")           { return opened(element.AddTableStruct(L"")); }
        if (type == "TABLE-ENTRY")            { return opened(element.AddTableEntry(L"")); }
        // clang-format on
        ReportUnknownType(loader, type);
        return VOpened{nullptr, nullptr, true};
    };
    return R::template Wrapper<&T::MakeParamCollection>("PARAMS", Required, {R::Special("PARAM", Many, openParam)});
}

} // namespace NReader
