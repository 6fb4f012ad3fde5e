// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <utility>
#include <variant>

#include <diagkit/memory/Element.h>
#include <diagkit/model/Reference.h>

namespace NMemory {

/// The target of a link, for the operations that make links. It refers to the texts that it is given and must be used
/// before they become invalid, usually at once.
///
///     service.SetRequestRef(request);                                     // an element: by its ID
///     service.SetRequestRef(VReference::ById(L"RQ.1", L"Lib", L"LAYER")); // an ID, in the document with that name
///     value.SetDopBaseLink(VReference::ByShortName(L"Voltage"));          // a short name
class VReference {
public:
    /// The element of this ID, whether it exists already or not; in the document or layer that the other texts name.
    static VReference ById(wchar_t const* id, wchar_t const* docref = L"", wchar_t const* doctype = L"",
                           wchar_t const* revision = L"") {
        return VReference(id, docref, doctype, revision, nullptr);
    }
    /// The element with this short name in the context where the link is resolved.
    static VReference ByShortName(wchar_t const* shortName) { return VReference(L"", L"", L"", L"", shortName); }

    /// An element of the memory model with an ID; an element without one is given an ID.
    template <class Target, class = decltype(std::declval<Target&>().EnsureId())>
    VReference(Target& target) : VReference(target.EnsureId(), L"", L"", L"", nullptr) {}

    bool IsByShortName() const { return m_shortName != nullptr; } ///< otherwise it is one by ID

    wchar_t const* m_id;        ///< @ID-REF
    wchar_t const* m_docref;    ///< @DOCREF, "" when absent
    wchar_t const* m_doctype;   ///< @DOCTYPE, "" when absent
    wchar_t const* m_revision;  ///< @REVISION, "" when absent
    wchar_t const* m_shortName; ///< null for a reference by ID

private:
    friend VReference StoredIn(VPart& part, VReference const& reference);

    VReference(wchar_t const* id, wchar_t const* docref, wchar_t const* doctype, wchar_t const* revision,
               wchar_t const* shortName)
        : m_id(id), m_docref(docref), m_doctype(doctype), m_revision(revision), m_shortName(shortName) {}
};

/// The same with texts in the part's pool, which stay valid.
VReference StoredIn(VPart& part, VReference const& reference);

/// The reference in a link, to make another link with the same target.
VReference ReferenceOf(NODX201::ILink const& link);

/// A reference by ID in the memory model. It points to stored texts.
class VMemOdxLink final : public NODX201::VOdxLink {
public:
    VMemOdxLink() = default;
    explicit VMemOdxLink(VReference const& stored) noexcept
        : m_id(stored.m_id), m_docref(stored.m_docref), m_doctype(stored.m_doctype), m_revision(stored.m_revision) {}

    wchar_t const* GetIdRef() const override { return m_id; }
    wchar_t const* GetDocref() const override { return m_docref; }
    wchar_t const* GetDoctype() const override { return m_doctype; }
    wchar_t const* GetRevision() const override { return m_revision; }

private:
    wchar_t const* m_id = L"";
    wchar_t const* m_docref = L"";
    wchar_t const* m_doctype = L"";
    wchar_t const* m_revision = L"";
};

/// A reference by short name in the memory model. It points to a stored text.
class VMemSnref final : public NODX201::VSnref {
public:
    explicit VMemSnref(VReference const& stored) noexcept : m_shortName(stored.m_shortName) {}

    wchar_t const* GetShortName() const override { return m_shortName; }

private:
    wchar_t const* m_shortName;
};

/// Whether an element is of the class that a reference expects; an element of another class is not a target.
using VExpect = bool (*)(NODX201::VReferencable& element);

/// Whether the element is a `Target`.
template <class Target>
bool IsOfClass(NODX201::VReferencable& element) {
    return dynamic_cast<Target*>(&element) != nullptr;
}

/// The target of a reference to a DIAG-COMM belongs to a layer: a service or a single-ECU job.
template <>
bool IsOfClass<NODX201::VDiagComm>(NODX201::VReferencable& element);

/// The same for a reference of this tag, which may require one of several kinds of a class.
template <NODX201::VOdxTagEnum Tag, class Target>
bool IsTargetOf(NODX201::VReferencable& element) {
    return IsOfClass<Target>(element);
}

/// The target of a reference by ID at `from`, or null. The order of places searched: the document that DOCREF and
/// DOCTYPE name, then any document or layer with the name in DOCREF; without DOCREF the own layer, the own document,
/// the imported layers; and last the whole database.
NODX201::VReferencable* ResolveId(VDatabase& database, NODX201::VOdxLink const& link, NODX201::VOdxElement& from,
                                  VExpect expect);

/// The target of a reference by ID, and another possible target.
struct VDoubt {
    NODX201::VReferencable* target;
    NODX201::VReferencable* other; ///< null where the target is unambiguous
};

/// Whether the DOCREF of a reference is the short name of several documents or layers that have such an element: the
/// target is in one of them, the other one in the next.
VDoubt FindDoubt(VDatabase& database, NODX201::VOdxLink const& link, VExpect expect);

/// Whether an element of any class has the ID of the reference and is in a document or layer that DOCREF and DOCTYPE
/// name.
bool IsInNamedDocument(VDatabase& database, NODX201::VOdxLink const& link);

/// A link element, created with the tag `Tag`: an ID reference or a short-name reference, and the result found last.
template <class Contract, NODX201::VOdxTagEnum Tag, class Target>
class VMemLink : public VMemTagged<Contract> {
public:
    /// A link to this target, which is looked for when the link is resolved.
    VMemLink(VPlace const& place, VReference const& reference) : VMemTagged<Contract>(place, Tag) {
        SetReference(reference);
    }

    NODX201::ILink& GetLink() override {
        return std::visit([](auto& form) -> NODX201::ILink& { return form; }, m_form);
    }

    /// Gives the link another target, or leaves it unchanged when memory runs out.
    void SetReference(VReference const& reference) {
        VReference const stored = StoredIn(this->Part(), reference);
        if (stored.IsByShortName()) {
            m_form.template emplace<VMemSnref>(stored);
        } else {
            m_form.template emplace<VMemOdxLink>(stored);
        }
        m_generation = 0;
        m_isSevered = false;
        this->NoteChange(); // other links may depend on this one
    }

    /// From now on the link, if by ID, resolves to nothing, until it is given another reference. For readers of data in
    /// which it closes a cycle that walks could not leave.
    void Sever() {
        m_isSevered = true;
        m_generation = 0;
    }

    /// The target of a reference by ID, even if it is severed; null where there is none, and for a reference by short
    /// name.
    Target* FindEvenSevered() const {
        auto const* const link = std::get_if<VMemOdxLink>(&m_form);
        if (link == nullptr || !m_isSevered) {
            return link != nullptr && FindById() ? m_target : nullptr;
        }
        auto& self = const_cast<VMemLink&>(*this);
        return dynamic_cast<Target*>(ResolveId(this->GetDatabase(), *link, self, &IsOfClass<Target>));
    }

    /// Whether this is a reference by ID that finds its target.
    bool ResolvesById() const { return Snref() == nullptr && FindById(); }

    /// See the function of this name.
    VDoubt FindDoubt() const {
        auto const* const link = std::get_if<VMemOdxLink>(&m_form);
        return link != nullptr ? NMemory::FindDoubt(this->GetDatabase(), *link, &IsTargetOf<Tag, Target>)
                               : VDoubt{nullptr, nullptr};
    }

protected:
    /// The short name, or null for a reference by ID.
    wchar_t const* Snref() const {
        auto const* const snref = std::get_if<VMemSnref>(&m_form);
        return snref != nullptr ? snref->GetShortName() : nullptr;
    }

    /// Looks for the target of a reference by ID. The result cannot change until the database does.
    bool FindById() const {
        VDatabase& database = this->GetDatabase();
        auto const* const link = m_isSevered ? nullptr : std::get_if<VMemOdxLink>(&m_form);
        if (m_generation != database.GetGeneration()) {
            auto& self = const_cast<VMemLink&>(*this);
            m_target = link != nullptr
                           ? dynamic_cast<Target*>(ResolveId(database, *link, self, &IsTargetOf<Tag, Target>))
                           : nullptr;
            m_generation = database.GetGeneration();
        }
        return m_target != nullptr;
    }

    /// Remembers a target found by other means, for the `GetX()` that follows.
    bool Remember(Target* target) const {
        m_target = target;
        m_generation = 0;
        return target != nullptr;
    }

    Target& Found() const { return *m_target; } ///< REQUIRES: the search before was true

private:
    std::variant<VMemOdxLink, VMemSnref> m_form;
    mutable Target* m_target = nullptr;
    mutable std::uint64_t m_generation = 0; // of the answer; 0: none
    bool m_isSevered = false;
};

} // namespace NMemory
