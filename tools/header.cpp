// Prints include/zmvip.h from the members: every prototype, one a line, under its family's banner.
#include <cstdio>
#include <string>

#include "core/members.h"

// Prints a banner as a C comment, its lines under the family's name, broken between words where they are too long.
static void banner(const std::string& name, const char* module, std::string text) {
    constexpr size_t columns = 120;
    text.insert(0, "/* " + name + ": ");
    for (size_t start = 0, space = 0, i = 0; i < text.size(); ++i) {
        if (text[i] == ' ') space = i;
        if (i - start >= columns && space > start + 3) text[i = space] = '\n';
        if (text[i] == '\n') {
            text.insert(i + 1, "   ");
            start = i + 1;
        }
    }
    std::printf("\n%s\n   src/%s */\n", text.c_str(), module);
}

int main() {
    std::puts(
        "/* zmvIP: image-processing primitives.  Every function, under the banner of its family.\n"
        "\n"
        "   An image is a pointer to the first pixel of the region and a step, the distance from row to row in bytes.\n"
        "   Sizes are in pixels.  Names end in the element types (8u 16u 16s 32s 32f 64f), the layout (C1 C3 C4:\n"
        "   channels; AC4: four, of which the last is left alone; P3 P4: planes) and letters: I in place, M masked,\n"
        "   R region of interest, _L 64-bit sizes.  Functions return STATUS_OK, a negative error (the first check "
        "that\n"
        "   failed; nothing was written) or a positive warning.  Any of them may run in any number of threads that do\n"
        "   not write the same memory.\n"
        "\n"
        "   Printed by tools/header.cpp from src/families.def; change those.\n"
        "   SPDX-License-Identifier: Apache-2.0 */\n"
        "#ifndef ZMVIP_H\n"
        "#define ZMVIP_H\n"
        "\n"
        "#include \"zmvip_types.h\"\n"
        "\n"
        "#ifdef __cplusplus\n"
        "extern \"C\" {\n"
        "#endif");

#define FAMILY(name, module, text, members)                                                                            \
    banner(#name, module, text);                                                                                       \
    members
#define ENTRY_OF(result, name, params, call) PRINT_ENTRY(result, name, params)
#define PRINT_ENTRY(result, name, params) std::printf("ZMV_API %s %s%s;\n", #result, #name, #params);
#define CONSTANT(name, value) std::printf("extern ZMV_API const double %s;\n", #name);
#include "families.def"

    std::puts(
        "\n"
        "#ifdef __cplusplus\n"
        "}\n"
        "#endif\n"
        "\n"
        "#endif");
}
