// What is true of a family beside its members: the record of its row.  The banner's sentences on steps, overlap and
// errors, the ladder of refusals in the tests, the timings and api.json are made from it; the checks of the code are
// held against it.
#pragma once

#include <cstdint>
#include <initializer_list>

#include "zmvip_types.h"

namespace zmv {

// A short list that may be part of a constant.
template <class T, int most>
struct List {
    T items[most] = {};
    int count = 0;
    constexpr List() = default;
    constexpr List(std::initializer_list<T> from) {
        for (const T& item : from) items[count++] = item;
    }
    constexpr const T* begin() const { return items; }
    constexpr const T* end() const { return items + count; }
    constexpr int size() const { return count; }
};

// What breaks a precondition.  Arguments are named with blanks between them; no name stands for all that it can
// concern.
enum class Bad {
    null,        // a pointer is, or one in an array of pointers
    nullItself,  // a pointer is; how many the array has is known late
    nullEntry,   // only one in an array of pointers
    size,        // a width, a height or a number below 1
    negative,    // a number
    step,        // one that is not accepted
    rowStep,     // less than the bytes of a row
    partStep,    // no multiple of the element's size
    option,      // none of the values
    borderWord,  // none of the values, with flags or without
    element,     // one of these values among those of a constant or an array
    anchor,      // outside the mask
    foreign,     // no spec object of this kind
    given,       // these values
    told         // only words: the family's test makes it come up
};
struct Refusal {
    StatusCode status;
    Bad bad;
    const char* arguments = "";
    const char* words = "";  // in place of the usual ones
    List<int64_t, 16> values = {};
};
struct Warning {
    StatusCode status;
    const char* words;
};
struct Usual {
    const char* argument;
    double value;
};

enum class Steps { positive, nonzero, any };
enum class Place {
    inText,  // the text says it
    apart,   // source and destination must not overlap
    same,    // the I forms, or src == dst with equal steps
    second,  // the I forms overwrite the second image; out of place dst may be one of the sources
};
enum class Reach { none, anchor, radius, fixed, query, whole };  // of the source, round the pixel
// How results of parts make that of the whole, exactly; of integers only; the first being the least and the second the
// greatest.
enum class Combine { no, add, least, greatest, addIntegers, extremes };
enum class Rounds { never, floats };                             // as the caller's control word says: of real sources

struct Facts {
    Steps steps = Steps::positive;
    const char* freeSteps = "";  // layouts that accept any step nevertheless
    Place place = Place::inText;
    const char* ordered = "";  // layouts in which pixels of overlapping images are worked in order; * is all
    List<Refusal, 12> refusals = {
        {STATUS_NULL_POINTER, Bad::null}, {STATUS_BAD_SIZE, Bad::size}, {STATUS_BAD_STEP, Bad::step}};
    List<Warning, 2> warnings = {};
    const char* query = "";  // what gives the size of its work buffer and spec object
    const char* init = "";   // what makes its spec object
    Reach reach = Reach::none;
    bool tiles = true;  // give the bits of the whole
    Combine combine = Combine::no;
    Rounds rounds = Rounds::never;
    const char* extent = "";    // "width, height" of the destination in C, where they are not those of the source
    bool cache = false;         // asks for its size when a call moves much
    bool bulk = false;          // has code of its own for large regions
    List<Usual, 4> usual = {};  // arguments whose usual value is not that of their name
};

// The words of FACTS(...).
namespace facts {
using enum Place;
using enum Reach;
using enum Combine;
constexpr Steps anyStep = Steps::any, nonzeroStep = Steps::nonzero;
constexpr Rounds roundsFloats = Rounds::floats;

constexpr Refusal nulls(const char* arguments = "", const char* words = "") {
    return {STATUS_NULL_POINTER, Bad::null, arguments, words};
}
constexpr Refusal pointersTo(const char* arguments) { return {STATUS_NULL_POINTER, Bad::nullItself, arguments}; }
constexpr Refusal nullEntries(const char* arguments) { return {STATUS_NULL_POINTER, Bad::nullEntry, arguments}; }
constexpr Refusal sizes(const char* arguments = "", StatusCode status = STATUS_BAD_SIZE) {
    return {status, Bad::size, arguments};
}
constexpr Refusal negatives(const char* arguments, const char* words) {
    return {STATUS_BAD_SIZE, Bad::negative, arguments, words};
}
constexpr Refusal masks() { return sizes("maskSize", STATUS_BAD_MASK_SIZE); }
constexpr Refusal steps() { return {STATUS_BAD_STEP, Bad::step}; }
constexpr Refusal rowSteps() { return {STATUS_BAD_STEP, Bad::rowStep}; }
constexpr Refusal unalignedStep(const char* argument) {
    return {STATUS_BAD_STEP_ALIGNMENT, Bad::partStep, argument};
}
constexpr Refusal option(const char* argument, StatusCode status, List<int64_t, 16> accepted, const char* words = "") {
    return {status, Bad::option, argument, words, accepted};
}
constexpr Refusal dataTypes(List<int64_t, 16> accepted = {DATATYPE_8U, DATATYPE_16U, DATATYPE_16S, DATATYPE_32F}) {
    return option("dataType", STATUS_BAD_DATATYPE, accepted);
}
constexpr Refusal channels(List<int64_t, 16> accepted = {1, 3, 4}) {
    return option("numChannels", STATUS_BAD_CHANNELS, accepted);
}
constexpr Refusal borders(List<int64_t, 16> rules) {
    return {STATUS_BAD_BORDER, Bad::borderWord, "borderType", "", rules};
}
constexpr Refusal noBorderValue() { return nulls("borderValue", "BORDER_CONST without borderValue"); }
constexpr Refusal tooLarge(const char* words = "a size exceeds 2147483647; nothing is written") {
    return {STATUS_SIZE_EXCEEDS_INT, Bad::told, "", words};
}
constexpr Refusal anchors() { return {STATUS_BAD_ANCHOR, Bad::anchor, "anchor"}; }
constexpr Refusal elements(const char* argument, StatusCode status, const char* words, List<int64_t, 16> values) {
    return {status, Bad::element, argument, words, values};
}
constexpr Refusal foreign(const char* argument, StatusCode status, const char* words) {
    return {status, Bad::foreign, argument, words};
}
constexpr Refusal given(const char* argument, StatusCode status, const char* words, List<int64_t, 16> values) {
    return {status, Bad::given, argument, words, values};
}
constexpr Refusal told(StatusCode status, const char* words) { return {status, Bad::told, "", words}; }
}  // namespace facts

// The record of a row: what differs from a pointwise family with positive steps that checks pointers, sizes, steps.
#define FACTS(...)                                                                                                     \
    ([] {                                                                                                              \
        using namespace zmv::facts;                                                                                    \
        constexpr zmv::Facts record{__VA_ARGS__};                                                                      \
        return record;                                                                                                 \
    }())

}  // namespace zmv
