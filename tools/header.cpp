// Prints include/zmvip.h from the catalog: every prototype, one a line, under its family's banner.
#include <cstdio>
#include <exception>
#include <sstream>

#include "catalog.h"

// The paragraphs of a banner: a line that does not end a sentence goes on in the next, and tables stay as they are.
static std::string paragraphs(std::string text) {
    for (size_t end = text.find('\n'); end != text.npos; end = text.find('\n', end + 1)) {
        const bool table = text[end + 1] == ' ' || text.rfind("\n ", end) == text.rfind('\n', end - 1);
        if (!table && text[end - 1] != '.' && text[end - 1] != ':') text[end] = ' ';
    }
    return text;
}

// A banner as a C comment, its lines broken between words and set under the family's name.
static void print(const catalog::Family& family) {
    constexpr size_t columns = 120;
    std::istringstream in("/* " + family.name + ": " + paragraphs(family.banner()));
    std::printf("\n");
    bool first = true;
    for (std::string line; std::getline(in, line); first = false) {
        if (!first) line.insert(0, "   ");
        while (line.size() > columns) {
            const size_t blank = line.rfind(' ', columns);
            std::printf("%s\n", line.substr(0, line.find_last_not_of(' ', blank) + 1).c_str());
            line = "   " + line.substr(line.find_first_not_of(' ', blank));
        }
        std::printf("%s\n", line.c_str());
    }
    std::printf("   src/%s */\n", family.module.c_str());
    for (const catalog::Member& m : family.members)
        std::printf("ZMV_API %s %s%s;\n", m.result.c_str(), m.name.c_str(), m.list.c_str());
    for (const catalog::Constant& c : family.constants) std::printf("extern ZMV_API const double %s;\n", c.name);
}

int main() try {
    const std::vector<catalog::Family>& families = catalog::families();
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
    for (const catalog::Family& family : families) print(family);
    std::puts(
        "\n"
        "#ifdef __cplusplus\n"
        "}\n"
        "#endif\n"
        "\n"
        "#endif");
} catch (const std::exception& e) {
    std::fprintf(stderr, "print_header: %s\n", e.what());
    return 1;
}
