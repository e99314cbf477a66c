// Spec objects under test: blocks of the caller's that one function fills and others read.
//
// What all objects promise is tried wherever a case places one: its block has exactly the reported size, lies anywhere,
// and ends at an unreadable page when it can; what stood in it before does not matter; making it writes nothing beside
// it; what is used is a copy, the original is gone; and using it does not change it.  A family says how to make one:
//
//     placeObject(c, "pSpec", bytes, [&](uint8_t* block) { return init(..., block); });   // where an object is used
//     placeBlock(c, "pSpec", bytes);                                                      // where it is made
//     .more = {notOne("pSpec", STATUS_CONTEXT_MISMATCH, curve)}                           // where it is refused
//
// with a kind of object that every other family is given for its own:
//
//     const ObjectKind curve([](uint8_t* block) { init(..., block); });
#pragma once

#include <functional>

#include "harness/case.h"

namespace test {

// How to make some object of the library under test, of at most so many bytes.
class ObjectKind {
  public:
    static constexpr size_t mostBytes = 4096, most = 16;
    explicit ObjectKind(StatusCode (*make)(uint8_t* block));
    size_t number() const { return number_; }

  private:
    size_t number_;
};

// An empty block for an object of so many bytes, at each of 64 misalignments in turn or where all operands lie.
Image& placeBlock(Case& c, const std::string& name, int64_t bytes);

// The same with a copy of an object in it.  A copy works at addresses that are equal modulo copiesAt,
// 64 or a power of two below.
using Maker = std::function<StatusCode(uint8_t* block)>;
Image& placeObject(Case& c, const std::string& name, int64_t bytes, const Maker& make, int copiesAt = 64);

// Blocks that hold no object, or one of another family.
Check notOne(const char* argument, StatusCode status, const ObjectKind& kind);

// For what has its test where it is used: takes a block's contents as they are.
void acceptBlock(Case& c, const std::string& name);

}  // namespace test
