// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/StringContainer.h>

#include <algorithm>
#include <memory>
#include <string_view>

#include <diagkit/tools/DestroyIfThere.h>
#include <diagkit/util/Assertion.h>

namespace NDIAGKIT {

DIAGKIT_TEMPLATE_DEFINITION(VExternalIterator<VStringContainer::Set::const_iterator, std::wstring const&>);

namespace {

constexpr NPavonaUtil::VAssertion kTextNotFound{L"false", L"StringContainer", 94};
constexpr NPavonaUtil::VAssertion kRemoveAtEnd{L"iter != End()", L"StringContainer", 102};
constexpr NPavonaUtil::VAssertion kRemoveStepAtEnd{L"iter != m_collection.end()", L"StringContainer", 166};

} // namespace

VStringContainer::VStringContainer() = default;

VStringContainer::~VStringContainer() { Clear(); }

void VStringContainer::Destroy() { DestroyIfThere(this); }

std::size_t VStringContainer::Count() const { return m_collection.size(); }

bool VStringContainer::IsEmpty() const { return Count() == 0; }

VStringContainer::Iterator VStringContainer::Begin() const { return Iterator(m_collection.begin()); }

VStringContainer::Iterator VStringContainer::End() const { return Iterator(m_collection.end()); }

void VStringContainer::AddCopy(wchar_t const* text) { _Insert(m_collection.end(), text); }

VStringContainer::Iterator VStringContainer::Find(wchar_t const* text) const {
    if (text == nullptr) {
        return End();
    }
    std::wstring_view const wanted(text);
    return Iterator(std::find_if(m_collection.begin(), m_collection.end(),
                                 [wanted](std::wstring const* held) { return *held == wanted; }));
}

void VStringContainer::Remove(wchar_t const* text) {
    Iterator const iter = Find(text);
    if (iter == End()) {
        NPavonaUtil::ReportAssertion(kTextNotFound);
        return;
    }
    Remove(iter);
}

void VStringContainer::Remove(Iterator iter) {
    if (iter == End()) {
        NPavonaUtil::ReportAssertion(kRemoveAtEnd);
    }
    _Remove(iter.Unwrap());
}

void VStringContainer::Clear() {
    for (std::wstring* const text : m_collection) {
        delete text;
    }
    m_collection.clear();
}

bool VStringContainer::operator==(VStringContainer const& other) const { return m_collection == other.m_collection; }

bool VStringContainer::operator!=(VStringContainer const& other) const { return !(*this == other); }

void VStringContainer::_Insert(Set::const_iterator position, wchar_t const* text) {
    if (text == nullptr) {
        return;
    }
    auto copy = std::make_unique<std::wstring>(text);
    m_collection.insert(position, copy.get());
    copy.release();
}

void VStringContainer::_Remove(Set::const_iterator position) {
    if (position == m_collection.end()) {
        NPavonaUtil::ReportAssertion(kRemoveStepAtEnd);
        return;
    }
    std::wstring const* const text = *position;
    m_collection.erase(position);
    delete text;
}

} // namespace NDIAGKIT
