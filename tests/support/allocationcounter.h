// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TESTS_ALLOCATIONCOUNTER_H
#define UTILS_TESTS_ALLOCATIONCOUNTER_H

// Counts every heap allocation of the process: operator new, and on glibc
// malloc, calloc and realloc too, through which Qt's containers allocate.
// It replaces those functions, so include it in one source file of a program.

#include <atomic>
#include <cstdlib>
#include <new>

namespace TestSupport {

//! Heap allocations so far.
inline std::atomic<long long> allocations { 0 };

} // namespace TestSupport

#if defined(__GLIBC__)
extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *pointer, size_t size);
void __libc_free(void *pointer);

void *malloc(size_t size)
{
    TestSupport::allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}
void *calloc(size_t count, size_t size)
{
    TestSupport::allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_calloc(count, size);
}
void *realloc(void *pointer, size_t size)
{
    TestSupport::allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_realloc(pointer, size);
}
void free(void *pointer)
{
    __libc_free(pointer);
}
}
#define UTILS_TESTS_RAW_MALLOC __libc_malloc
#define UTILS_TESTS_RAW_FREE __libc_free
//! What the counter sees, for a benchmark's report.
#define UTILS_TESTS_ALLOCATIONS_COUNTED "operator new, malloc, calloc, realloc"
#else
#define UTILS_TESTS_RAW_MALLOC std::malloc
#define UTILS_TESTS_RAW_FREE std::free
#define UTILS_TESTS_ALLOCATIONS_COUNTED "operator new"
#endif

void *operator new(size_t size)
{
    TestSupport::allocations.fetch_add(1, std::memory_order_relaxed);
    if (void *pointer = UTILS_TESTS_RAW_MALLOC(size ? size : 1))
        return pointer;
    throw std::bad_alloc();
}
void *operator new[](size_t size)
{
    return operator new(size);
}
void operator delete(void *pointer) noexcept
{
    UTILS_TESTS_RAW_FREE(pointer);
}
void operator delete[](void *pointer) noexcept
{
    UTILS_TESTS_RAW_FREE(pointer);
}
void operator delete(void *pointer, size_t) noexcept
{
    UTILS_TESTS_RAW_FREE(pointer);
}
void operator delete[](void *pointer, size_t) noexcept
{
    UTILS_TESTS_RAW_FREE(pointer);
}

#endif // UTILS_TESTS_ALLOCATIONCOUNTER_H
