// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <cstdlib>

/// Conversion of narrow text in a code page to wide text. No call allocates memory of its own: the result is in buffers
/// that all calls of the process share, so it is valid until the next conversion. Not thread-safe.

namespace NPavonaUtil {

/// A pair of buffers that grow on demand and never shrink. A pointer that it returned is valid until that buffer has to
/// grow.
class IBuffers {
public:
    /// The narrow buffer, with room for at least `size` bytes. Null when memory is exhausted; the buffer is then
    /// unchanged.
    virtual char* CharBuffer(std::uint32_t size) = 0;
    /// The same for `size` wide characters.
    virtual wchar_t* WideBuffer(std::uint32_t size) = 0;
    virtual ~IBuffers() = default;
};

namespace NBuffers {

using VReallocate = void* (*)(void* memory, std::size_t bytes);

/// Buffers on the C heap. A buffer grows to twice its size, or to the requested size when that is larger.
class VCommonBuffers final : public IBuffers {
public:
    /// Null selects `std::realloc`, whose address is not a constant on every platform.
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

/// Converts `length` bytes into at most `capacity` wide characters; a terminator is converted when the length includes
/// it, and is not added. Returns the number of characters written and their place; 0 and null when the conversion
/// failed: an empty input, an insufficient capacity, a code page unknown to the platform. Code page 1252 is known
/// everywhere.
std::uint32_t MultiByteToWide(std::uint32_t codePage, char const* pString, std::uint32_t length, wchar_t** result,
                              std::uint32_t capacity);

/// Converts a zero-terminated text in Windows-1252. Null on failure.
wchar_t const* AnsiToWide(char const* pANSIString);

} // namespace NPavonaUtil
