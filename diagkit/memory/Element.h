// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <diagkit/memory/Node.h>
#include <diagkit/model/Reference.h>
#include <diagkit/model/Text.h>

/// The layers that the memory model's classes consist of: each template adds one feature common to many ODX elements to
/// the contract class below it.

namespace NMemory {

/// An element without names.
template <class Contract, NODX201::VOdxTagEnum Tag>
class VMemElement : public Contract, public VMemNode {
public:
    explicit VMemElement(VPlace const& place) : VMemNode(place, Tag) {} ///< empty
    ~VMemElement() override { CountOut(Tag); }

    NODX201::VOdxTagEnum GetOdxTag() const override { return Tag; }
    wchar_t const* GetShortName() const override { return L""; }
    NODX201::VOdxObject* GetOwner() const override { return Owner(); }

    /// The place for a child of this element.
    VPlace Inside() { return {this, &Part()}; }
};

/// An element of a class with one of several tags, such as LOWER-LIMIT and UPPER-LIMIT.
template <class Contract>
class VMemTagged : public Contract, public VMemNode {
public:
    VMemTagged(VPlace const& place, NODX201::VOdxTagEnum tag) : VMemNode(place, tag), m_tag(tag) {} ///< empty
    ~VMemTagged() override { this->CountOut(m_tag); }

    NODX201::VOdxTagEnum GetOdxTag() const override { return m_tag; }
    /// Changes the kind of the element, also in the counts.
    void SetOdxTag(NODX201::VOdxTagEnum tag) {
        this->ChangeTag(m_tag, tag);
        m_tag = tag;
    }

    wchar_t const* GetShortName() const override { return L""; }
    NODX201::VOdxObject* GetOwner() const override { return Owner(); }

    /// The place for a child of this element.
    VPlace Inside() { return {this, &Part()}; }

private:
    NODX201::VOdxTagEnum m_tag;
};

/// The same, created with the tag `Tag`.
template <class Contract, NODX201::VOdxTagEnum Tag>
class VMemRetaggable : public VMemTagged<Contract> {
public:
    explicit VMemRetaggable(VPlace const& place) : VMemTagged<Contract>(place, Tag) {} ///< empty
};

/// LONG-NAME
class VMemText final : public NODX201::VText {
public:
    /// Keeps the pointers, not copies.
    VMemText(NODX201::VOdxObject& owner, wchar_t const* text, wchar_t const* textId)
        : m_owner(&owner), m_text(text), m_textId(textId) {}

    NODX201::VOdxTagEnum GetOdxTag() const override { return NODX201::VOdxTagEnum::LongName; }
    wchar_t const* GetShortName() const override { return L""; }
    NODX201::VOdxObject* GetOwner() const override { return m_owner; }
    wchar_t const* GetBaseMember() const override { return m_text; }
    wchar_t const* GetTextId() const { return m_textId; } ///< @TI

private:
    NODX201::VOdxObject* m_owner;
    wchar_t const* m_text;
    wchar_t const* m_textId;
};

// Only some contract classes have LONG-NAME and OID, so these operations override only where there is something to
// override.
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Winconsistent-missing-override"
#endif

/// An element with SHORT-NAME, LONG-NAME and DESC.
template <class Contract, NODX201::VOdxTagEnum Tag>
class VMemNamed : public VMemElement<Contract, Tag> {
public:
    using VMemElement<Contract, Tag>::VMemElement;

    wchar_t const* GetShortName() const override { return m_shortName; }
    void SetShortName(wchar_t const* shortName); ///< links and views no longer find it by the old name

    bool HasLongName() const { return m_longName != nullptr; }
    NODX201::VText& GetLongName() { return *m_longName; }
    /// LONG-NAME and its @TI become copies of the texts.
    void SetLongName(wchar_t const* text, wchar_t const* textId = L"") {
        m_longName = std::make_unique<VMemText>(*this, this->Store(text), this->Store(textId));
    }

    wchar_t const* GetDesc() const { return m_desc; } ///< DESC with its inner markup, "" when absent
    void SetDesc(wchar_t const* markup) { m_desc = this->Store(markup); }

private:
    wchar_t const* m_shortName = L"";
    std::unique_ptr<VMemText> m_longName;
    wchar_t const* m_desc = L"";
};

/// An element with ID, OID and names.
template <class Contract, NODX201::VOdxTagEnum Tag>
class VMemIdent : public VMemNamed<Contract, Tag> {
public:
    using VMemNamed<Contract, Tag>::VMemNamed;
    ~VMemIdent() override;

    wchar_t const* GetId() const override { return m_id; }
    void SetId(wchar_t const* id); ///< an empty ID is not indexed: no reference finds the element
    wchar_t const* EnsureId();     ///< the ID; an element without one gets one that the database does not hold yet

    bool HasOid() const { return *m_oid != L'\0'; }
    wchar_t const* GetOid() const { return m_oid; }
    void SetOid(wchar_t const* oid) { m_oid = this->Store(oid); }

private:
    wchar_t const* m_id = L"";
    wchar_t const* m_oid = L"";
};

/// The same, with a tag for its xsi:type. It counts as one of `Tag`.
template <class Contract, NODX201::VOdxTagEnum Tag>
class VMemTypedIdent : public VMemIdent<Contract, Tag> {
public:
    using VMemIdent<Contract, Tag>::VMemIdent;

    NODX201::VOdxTagEnum GetOdxTag() const override { return m_kind; } ///< `Tag` without a type
    void SetKind(NODX201::VOdxTagEnum kind) { m_kind = kind; }

private:
    NODX201::VOdxTagEnum m_kind = Tag;
};

#ifdef __clang__
#pragma clang diagnostic pop
#endif

/// Members of the elements of a tag that are neither their names nor in the rows of their class: a base that is written
/// by hand, over the one that has the names.
template <NODX201::VOdxTagEnum Tag, class Names>
struct VByHand {
    using Type = Names;
};
template <NODX201::VOdxTagEnum Tag, class Names>
using VMemBase = typename VByHand<Tag, Names>::Type;

} // namespace NMemory

#include <diagkit/memory/ElementImpl.h>
