#include "harness/memory.h"

#include <sys/mman.h>
#include <unistd.h>

#include <stdexcept>

namespace test {
namespace {

constexpr size_t page = 4096;

uint8_t* reserve(size_t bytes) {
    void* p = mmap(nullptr, bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (p == MAP_FAILED) throw std::runtime_error("no address space");
    return static_cast<uint8_t*>(p);
}

}  // namespace

Arena::Arena(size_t bytes) {
    begin = reserve(bytes + 2 * page) + page;
    end = begin + bytes;
    if (bytes > 0 && mprotect(begin, bytes, PROT_READ | PROT_WRITE)) throw std::runtime_error("mprotect");
}

Arena Arena::ring(size_t bytes) {
    Arena arena;
    arena.begin = reserve(bytes + 2 * page) + page;
    arena.end = arena.begin + bytes;
    const int file = memfd_create("ring", 0);
    if (file < 0 || ftruncate(file, ringBytes)) throw std::runtime_error("memfd");
    for (uint8_t* p = arena.begin; p < arena.end; p += ringBytes)
        if (mmap(p, ringBytes, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, file, 0) == MAP_FAILED)
            throw std::runtime_error("mmap of the ring");
    close(file);
    return arena;
}

}  // namespace test
