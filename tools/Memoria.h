#pragma once
// The memory of the program's processes. Opening an account of 32767 movements builds some
// 20 MB of tables and list lines in a few milliseconds; taken as 4 KB pages, a fault each, the
// faults cost more than the work. Glibc and Linux calls, for the mains only.
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>

// The block that holds the heap up to the first 2 MB boundary, for the life of the process.
inline void* RiempitivoMemoria = nullptr;

// Every block comes from the heap, which grows by 64 MB at a time and never gives memory back,
// and the 64 MB taken here are marked for huge pages: the tables then fill a few 2 MB pages
// instead of thousands of small ones, and pages that are never touched cost nothing. To be
// called before the tables of the application state are made, so from a constructor.
inline void PreparaMemoria() {
    constexpr std::uintptr_t Riserva = 64u << 20, Grande = 2u << 20, Sonda = 1u << 20;
    mallopt(M_MMAP_THRESHOLD, 32 << 20);    // the most glibc takes
    mallopt(M_TRIM_THRESHOLD, 512 << 20);
    mallopt(M_TOP_PAD, static_cast<int>(Riserva));
    // A block larger than anything free comes from the top of the heap, which grows for it by
    // the reserve; given back, it tells where the next blocks would start. Volatile, or the
    // compiler drops the pair.
    void* volatile sonda = std::malloc(Sonda);
    const auto inizio = reinterpret_cast<std::uintptr_t>(sonda);
    std::free(sonda);
    const auto fine = reinterpret_cast<std::uintptr_t>(sbrk(0));
    // Only whole 2 MB stretches, on their boundaries, become huge pages: a block that is never
    // given back, and never touched, takes the heap up to the first boundary past the sonda.
    const std::uintptr_t confine = (inizio + Sonda + Grande - 1) & ~(Grande - 1);
    if (sonda == nullptr || confine >= fine) return;
    madvise(reinterpret_cast<void*>(confine), fine - confine, MADV_HUGEPAGE);
    // The block's header stands 16 bytes before `inizio`; a request 8 bytes short of the
    // distance makes it end right on the boundary.
    RiempitivoMemoria = std::malloc(confine - inizio + 8);
}
