// SPDX-License-Identifier: Apache-2.0
#include <diagkit/util/TextConv.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>

#include <diagkit/util/Assertion.h>
#include <diagkit/util/CodePages.h>

namespace NPavonaUtil {
namespace {

constexpr VAssertion kNoCharMemory{L"mpCharBufferStart", L"TextConv", 67};
constexpr VAssertion kNoWideMemory{L"mpWideBufferStart", L"TextConv", 83};
constexpr VAssertion kNoString{L"pString", L"TextConv", 190};
constexpr VAssertion kNoAnsiString{L"pANSIString", L"TextConv", 239};

// The platforms count in int.
constexpr std::size_t kLongest = std::numeric_limits<std::int32_t>::max();

template <class Character>
Character* Grown(Character*& start, Character*& end, std::uint32_t size, NBuffers::VReallocate reallocate,
                 VAssertion const& noMemory) {
    std::size_t const capacity = static_cast<std::size_t>(end - start);
    if (capacity >= size) {
        return start;
    }
    std::size_t const newSize = std::max<std::size_t>(2 * capacity, size);
    std::size_t const bytes = newSize * sizeof(Character);
    void* const memory = reallocate != nullptr ? reallocate(start, bytes) : std::realloc(start, bytes);
    if (memory == nullptr) {
        ReportAssertion(noMemory);
        return nullptr;
    }
    start = static_cast<Character*>(memory);
    end = start + newSize;
    return start;
}

template <class Character>
void Release(Character*& start, Character*& end) {
    std::free(start);
    start = nullptr;
    end = nullptr;
}

NBuffers::VCommonBuffers s_commonBuffers; // initialised statically, so conversions may run before main
std::uint32_t s_lastError = kConversionDone;

} // namespace

IBuffers* gpBuffers = &s_commonBuffers;

namespace NBuffers {

VCommonBuffers::~VCommonBuffers() {
    Release(mpCharBufferStart, mpCharBufferEnd);
    Release(mpWideBufferStart, mpWideBufferEnd);
}

char* VCommonBuffers::CharBuffer(std::uint32_t size) {
    return Grown(mpCharBufferStart, mpCharBufferEnd, size, m_reallocate, kNoCharMemory);
}

wchar_t* VCommonBuffers::WideBuffer(std::uint32_t size) {
    return Grown(mpWideBufferStart, mpWideBufferEnd, size, m_reallocate, kNoWideMemory);
}

} // namespace NBuffers

std::uint32_t LastConversionError() { return s_lastError; }

std::uint32_t MultiByteToWide(std::uint32_t codePage, char const* pString, std::uint32_t length, wchar_t** result,
                              std::uint32_t capacity) {
    if (pString == nullptr) {
        ReportAssertion(kNoString);
        length = 0; // an empty text is not converted
    }
    *result = gpBuffers->WideBuffer(capacity);
    if (*result == nullptr) {
        s_lastError = kNoWideBuffer;
        return 0;
    }
    bool const isShort = length <= kLongest && capacity <= kLongest;
    std::uint32_t const written = isShort ? ConvertCodePage(codePage, pString, length, *result, capacity) : 0;
    if (written == 0) {
        *result = nullptr;
    }
    s_lastError = written != 0 ? kConversionDone : kConversionFailed;
    return written;
}

wchar_t const* AnsiToWide(char const* pANSIString) {
    if (pANSIString == nullptr) {
        ReportAssertion(kNoAnsiString);
        s_lastError = kConversionFailed;
        return nullptr;
    }
    std::size_t const length = std::strlen(pANSIString) + 1;
    if (length > kLongest) {
        s_lastError = kConversionFailed;
        return nullptr;
    }
    std::uint32_t const size = static_cast<std::uint32_t>(length);
    wchar_t* result = nullptr;
    MultiByteToWide(kWindows1252, pANSIString, size, &result, size);
    return result;
}

} // namespace NPavonaUtil
