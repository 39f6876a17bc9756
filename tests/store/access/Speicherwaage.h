#pragma once

#include <cstddef>

/* Weighs what a program takes of memory; linked in, it is on. With the address sanitizer everything counts, without it what `new` gives. */
namespace speicherwaage {

/// Bytes that are taken now.
size_t belegt();
/// The most there were since the last call of neu().
size_t hoechstens();
void neu();

} // namespace speicherwaage
