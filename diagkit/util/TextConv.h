// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <cstdlib>

/// Narrow text of a code page into wide text. Nothing is allocated for one call: the result lies in buffers that all
/// calls of the process share, so it is valid until the next conversion. Not for two threads at once.

namespace NPavonaUtil {

/// A pair of buffers that grow on demand and never shrink. A pointer that it returned is valid until the buffer of that
/// kind has to grow.
class IBuffers {
public:
    /// The narrow buffer, with room for at least so many bytes. Null when there is no memory; the buffer is then as it
    /// was before.
    virtual char* CharBuffer(std::uint32_t size) = 0;
    /// The same for so many wide characters.
    virtual wchar_t* WideBuffer(std::uint32_t size) = 0;
    virtual ~IBuffers() = default;
};

namespace NBuffers {

using VReallocate = void* (*)(void* memory, std::size_t bytes);

/// Buffers on the C heap. A buffer grows to twice its size, or to what is asked for when that is more.
class VCommonBuffers final : public IBuffers {
public:
    /// Null stands for `std::realloc`, whose address is no constant on every platform.
    constexpr explicit VCommonBuffers(VReallocate reallocate = nullptr) : m_reallocate(reallocate) {}
    ~VCommonBuffers() override;
    VCommonBuffers(VCommonBuffers const&) = delete;
    VCommonBuffers& operator=(VCommonBuffers const&) = delete;

    char* CharBuffer(std::uint32_t size) override;
    wchar_t* WideBuffer(std::uint32_t size) override;

    std::size_t CharCapacity() const { return static_cast<std::size_t>(mpCharBufferEnd - mpCharBufferStart); }
    std::size_t WideCapacity() const { return static_cast<std::size_t>(mpWideBufferEnd - mpWideBufferStart); }

private:
    char* mpCharBufferStart = nullptr;
    char* mpCharBufferEnd = nullptr; // one past the last usable
    wchar_t* mpWideBufferStart = nullptr;
    wchar_t* mpWideBufferEnd = nullptr;
    VReallocate m_reallocate;
};

} // namespace NBuffers

/// The buffers that the conversions use: those of the process, until a test puts others here.
extern IBuffers* gpBuffers;

constexpr std::uint32_t kWindows1252 = 1252;

constexpr std::uint32_t kConversionDone = 0;
constexpr std::uint32_t kNoWideBuffer = 0x20000001;
constexpr std::uint32_t kConversionFailed = 0x2000000A;

/// How the latest conversion ended: one of the three values above.
std::uint32_t LastConversionError();

/// Converts `length` bytes, into at most `capacity` wide characters; a terminator is converted when the length counts
/// it, and not added. Returns how many characters were written and their place; 0 and null when the conversion failed:
/// an empty input, a capacity that does not suffice, a code page that the platform does not know. Code page 1252 is
/// known everywhere.
std::uint32_t MultiByteToWide(std::uint32_t codePage, char const* pString, std::uint32_t length, wchar_t** result,
                              std::uint32_t capacity);

/// Converts a zero-terminated text in Windows-1252. Null on failure.
wchar_t const* AnsiToWide(char const* pANSIString);

} // namespace NPavonaUtil
