#include "Speicherwaage.h"

#include <atomic>
#include <cstdlib>
#include <new>

#ifdef FLOX_SANITIZED
// The compiler brings the library without this header.
extern "C" {
int __sanitizer_install_malloc_and_free_hooks(void (*)(const volatile void *, size_t), void (*)(const volatile void *));
size_t __sanitizer_get_allocated_size(const volatile void *);
int __sanitizer_get_ownership(const volatile void *);
}
#endif

namespace {

std::atomic<size_t> stand, hoch;

void genommen(size_t bytes)
{
    const size_t jetzt = stand += bytes;
    if (jetzt > hoch)
        hoch = jetzt;
}

#ifdef FLOX_SANITIZED

void geholt(const volatile void *ort, size_t)
{
    genommen(__sanitizer_get_allocated_size(ort));
}

void gelassen(const volatile void *ort)
{
    if (ort && __sanitizer_get_ownership(ort))
        stand -= __sanitizer_get_allocated_size(ort);
}

const int an = __sanitizer_install_malloc_and_free_hooks(geholt, gelassen);

#else

constexpr size_t davor = alignof(std::max_align_t);

/// The size stands before the bytes.
void *holen(size_t bytes)
{
    auto *ort = static_cast<size_t *>(std::malloc(bytes + davor));
    if (!ort)
        throw std::bad_alloc();
    *ort = bytes;
    genommen(bytes);
    return reinterpret_cast<char *>(ort) + davor;
}

void lassen(void *ort) noexcept
{
    if (!ort)
        return;
    auto *anfang = reinterpret_cast<size_t *>(static_cast<char *>(ort) - davor);
    stand -= *anfang;
    std::free(anfang);
}

#endif

} // namespace

#ifndef FLOX_SANITIZED
void *operator new(size_t bytes)
{
    return holen(bytes);
}
void operator delete(void *ort) noexcept
{
    lassen(ort);
}
void operator delete(void *ort, size_t) noexcept
{
    lassen(ort);
}
void *operator new[](size_t bytes)
{
    return holen(bytes);
}
void operator delete[](void *ort) noexcept
{
    lassen(ort);
}
void operator delete[](void *ort, size_t) noexcept
{
    lassen(ort);
}
#endif

size_t speicherwaage::belegt()
{
    return stand;
}

size_t speicherwaage::hoechstens()
{
    return hoch;
}

void speicherwaage::neu()
{
    hoch = stand.load();
}
