// The axes along which members are listed: element types, layouts, index widths.
#pragma once

// Element type of a type code.
#define ELEM_8u uint8_t
#define ELEM_8s int8_t
#define ELEM_16u uint16_t
#define ELEM_16s int16_t
#define ELEM_24u uint8_t  // three of them
#define ELEM_32u uint32_t
#define ELEM_32s int32_t
#define ELEM_32f float
#define ELEM_64f double
#define ELEM_32sc Complex32s
#define ELEM_32fc Complex32f

// A family's forms over an axis: FORM gets the axis value last.
#define FIVE_TYPES(FORM) FORM(8u) FORM(16s) FORM(16u) FORM(32s) FORM(32f)
#define C1_C3_C4(FORM, ...) FORM(__VA_ARGS__, C1) FORM(__VA_ARGS__, C3) FORM(__VA_ARGS__, C4)
#define C1_C3_C4_AC4(FORM, ...) C1_C3_C4(FORM, __VA_ARGS__) FORM(__VA_ARGS__, AC4)

// A row in 32-bit form and in its 64-bit twin: the shape's last arguments are the type of steps and that of sizes.
#define WITH_L(SHAPE, name, ...)                                                                                       \
    SHAPE(name, __VA_ARGS__, int, ImageSize)                                                                           \
    SHAPE(name##_L, __VA_ARGS__, int64_t, ImageSizeL)

// What a constant argument looks like: one value, or a pointer to one value a channel.
#define NAMED_OF_C1(T, name) T name
#define NAMED_OF_C3(T, name) const T* name
#define NAMED_OF_C4(T, name) const T* name
#define NAMED_OF_AC4(T, name) const T* name
#define VALUE_OF_C1(T) NAMED_OF_C1(T, value)
#define VALUE_OF_C3(T) NAMED_OF_C3(T, value)
#define VALUE_OF_C4(T) NAMED_OF_C4(T, value)
#define VALUE_OF_AC4(T) NAMED_OF_AC4(T, value)

// ENTRY(name, parameters, call): a row of the library, an operation that returns a status.
// ENTRY_OF(result, name, parameters, call): the same for the few functions that return something else.
#define ENTRY(name, params, call) ENTRY_OF(StatusCode, name, params, call)
