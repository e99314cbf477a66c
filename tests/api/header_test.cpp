// Names follow one grammar, and what a name says agrees with the prototype behind it.
#include <gtest/gtest.h>

#include <map>

#include "prototypes.h"

namespace {

const std::map<std::string, std::string> elementOf = {
    {"1u", "uint8_t"},      {"8u", "uint8_t"},      {"8s", "int8_t"},      {"16u", "uint16_t"}, {"16s", "int16_t"},
    {"24u", "uint8_t"},     {"32u", "uint32_t"},    {"32s", "int32_t"},    {"32f", "float"},    {"64f", "double"},
    {"16sc", "Complex16s"}, {"32sc", "Complex32s"}, {"32fc", "Complex32f"}};

// zmvi, operation words, type codes, layout, mode letters, _L.
struct Name {
    bool valid = false, large = false;
    std::string operation, source, destination, layout, from, to, modes;
    bool mode(char letter) const { return modes.find(letter) != std::string::npos; }

    explicit Name(const std::string& text) {
        static const std::string type = "(1u|8u|8s|16sc|16u|16s|24u|32sc|32fc|32u|32s|32f|64f)";
        static const std::regex grammar("zmv[ir]((?:_?[A-Z][A-Za-z0-9]*)+?)(?:_" + type + type +
                                        "?)?(?:_(A?[CP][1-4])(A?[CP][1-4])?(I?M?C?[RV]?(?:Sfs|Rs)?))?(_L)?");
        std::smatch m;
        if (!std::regex_match(text, m, grammar)) return;
        valid = true;
        operation = m[1];
        source = m[2];
        destination = m[3].matched ? m[3] : m[2];
        from = m[4];
        to = m[5].matched ? m[5] : m[4];
        modes = m[6];
        large = m[7].matched;
    }
};

bool endsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}
int planes(const std::string& layout) {
    const size_t p = layout.find('P');
    return p == layout.npos ? 0 : layout[p + 1] - '0';
}
bool isStep(const Parameter& p) { return endsWith(p.name, "Step"); }

// The operands of `name` whose rows a step parameter describes, the mask left out.
std::vector<std::string> imagesOf(const Prototype& f) {
    std::vector<std::string> images;
    for (const Parameter& p : f.parameters)
        if (isStep(p) && p.name != "maskStep") images.push_back(p.name.substr(0, p.name.size() - 4));
    return images;
}

class Header : public testing::Test {
  protected:
    const std::vector<Prototype> functions = readPrototypes();
    void SetUp() override { ASSERT_GE(functions.size(), 526u) << "include/zmvip.h could not be read"; }
};

TEST_F(Header, EveryNameFollowsTheGrammar) {
    for (const Prototype& f : functions) {
        EXPECT_TRUE(Name(f.name).valid) << f.name;
        for (const Parameter& p : f.parameters)
            EXPECT_NE(p.name, "") << f.name << ": parameter without a name: " << p.type;
    }
    // The grammar must be able to refuse.
    for (const char* wrong : {"zmviCopy_8u_C5R", "zmviCopy_8x_C1R", "zmviCopy_8u_C1RI", "zmvicopy_8u_C1R",
                              "zmviCopy_8u_C1R_l", "zmviCopy_8u16u32s_C1R", "zmCopy_8u_C1R", "zmviCopy_8u_C1CMR"})
        EXPECT_FALSE(Name(wrong).valid) << wrong;
}

TEST_F(Header, IndexWidthAgrees) {
    for (const Prototype& f : functions) {
        const bool large = Name(f.name).large;
        for (const Parameter& p : f.parameters) {
            if (isStep(p)) {
                EXPECT_EQ(p.type, std::string(p.type.find("const ") == 0 ? "const " : "") + (large ? "int64_t" : "int"))
                    << f.name << ' ' << p.name;
            }
            for (const std::string pair : {"ImageSize", "ImagePoint", "ImageRect"})
                EXPECT_NE(p.type, large ? pair : pair + "L") << f.name << ' ' << p.name;
            if (!large && p.name != "seed") {
                EXPECT_EQ(p.type.find("int64_t"), std::string::npos) << f.name << ' ' << p.name;
            }
            if (large && p.name != "borderSize") {  // widths of borders are never long
                EXPECT_NE(p.type, "int*") << f.name << ' ' << p.name;
            }
        }
    }
}

TEST_F(Header, ElementTypesAgree) {
    for (const Prototype& f : functions) {
        const Name name(f.name);
        if (name.source.empty()) continue;
        const std::string from = elementOf.at(name.source), to = elementOf.at(name.destination);
        if (endsWith(f.result, "*")) {
            EXPECT_EQ(f.result, to + "*") << f.name;
        }
        for (const Parameter& p : f.parameters) {
            const std::string& array = p.planes ? "* const" : "*";
            if (p.name == "src" || p.name == "src1" || p.name == "src2") {
                EXPECT_EQ(p.type, "const " + from + array) << f.name;
            }
            if (p.name == "dst") {
                EXPECT_EQ(p.type, to + array) << f.name;
            }
            if (p.name == "srcDst") {
                EXPECT_EQ(p.type, from + array) << f.name;
            }
            if (p.name == "borderValue") {
                const bool oneValue = p.type == from && f.name.find("_C1") != f.name.npos;  // of some filters
                EXPECT_TRUE(oneValue || p.type == "const " + from + "*") << f.name;
            }
            if (p.name == "mask" && p.type != "int") {  // else it has a code
                EXPECT_EQ(p.type, "const uint8_t*") << f.name;
            }
            // One channel: by value.  More: a pointer to one value a channel.
            const bool result = p.name == "value" && f.name.rfind("zmviNorm", 0) == 0;
            if (result) {
                EXPECT_EQ(p.type, "double*") << f.name;
            }
            if (!result && (p.name.rfind("value", 0) == 0 || p.name.rfind("threshold", 0) == 0)) {
                const bool shift = f.name.find("ShiftC_") != f.name.npos,
                           factor = f.name.find("MulC64f_") != f.name.npos;
                const std::string constant = shift ? "uint32_t" : factor ? "double" : from;
                EXPECT_EQ(p.type, name.from == "C1" || name.mode('C') ? constant : "const " + constant + "*") << f.name;
            }
        }
    }
}

TEST_F(Header, LayoutAndModesAgree) {
    std::map<std::string, const Prototype*> byName;
    for (const Prototype& f : functions) byName[f.name] = &f;
    int inPlace = 0;
    for (const Prototype& f : functions) {
        const Name name(f.name);
        if (name.from.empty()) continue;
        EXPECT_EQ(name.mode('M'), f.find("mask") && f.find("maskStep")) << f.name;
        EXPECT_EQ(name.mode('I'), f.find("srcDst") != nullptr) << f.name;
        if (const Parameter* src = f.find("src")) {
            EXPECT_EQ(src->planes, planes(name.from)) << f.name;
        }
        if (const Parameter* dst = f.find("dst")) {
            EXPECT_EQ(dst->planes, planes(name.to)) << f.name;
        }
        if (!name.mode('I')) continue;
        ++inPlace;
        EXPECT_EQ(f.find("dst"), nullptr) << f.name;
        if (f.name == "zmviSqrt_32f_C4IR") continue;  // four channels have roots in place only
        std::string twin = f.name;
        twin.erase(twin.rfind("IR"), 1);
        const bool every = f.name.find("Every_") != f.name.npos;  // most types and layouts in place only
        if (every && !byName.count(twin)) continue;
        ASSERT_TRUE(byName.count(twin)) << f.name << " has no form with a separate destination";
        EXPECT_EQ(imagesOf(f).size() + 1, imagesOf(*byName[twin]).size()) << f.name;
    }
    EXPECT_GT(inPlace, 0);
}

// Sources, destination, size, the operation's own arguments, mask, buffer; a step right behind its image.
TEST_F(Header, ArgumentOrderIsOne) {
    for (const Prototype& f : functions) {
        const std::vector<Parameter>& p = f.parameters;
        size_t source = 0, destination = p.size();
        for (size_t i = 0; i < p.size(); ++i) {
            if (isStep(p[i])) {
                ASSERT_GT(i, 0u) << f.name;
                const std::string& image =
                    p[i - (p[i - 1].name == "srcSize" ? 2 : 1)].name;  // whose size may be between
                const bool map = image == "pxMap" || image == "pyMap";
                EXPECT_EQ(p[i].name, image.substr(map) + "Step") << f.name;
            }
            if (p[i].name.compare(0, 3, "src") == 0 && isStep(p[i])) source = i;
            if (p[i].name == "dst") destination = i;
            if (p[i].name == "buffer") {
                EXPECT_EQ(i + 1, p.size()) << f.name;
            }
        }
        EXPECT_LT(source, destination + !destination) << f.name;
    }
}

TEST_F(Header, TwinsOf64BitFormsTakeTheSameArguments) {
    std::map<std::string, const Prototype*> byName;
    for (const Prototype& f : functions) byName[f.name] = &f;
    for (const Prototype& f : functions) {
        if (!Name(f.name).large) continue;
        // Services that other types have one by one have one such form for all of them.
        const std::string base = f.name.substr(0, f.name.size() - 2);
        const auto twin = byName.find(byName.count(base) ? base : base + "_8u");
        ASSERT_NE(twin, byName.end()) << f.name << " has no 32-bit form";
        ASSERT_EQ(f.parameters.size(), twin->second->parameters.size()) << f.name;
        for (size_t i = 0; i < f.parameters.size(); ++i)
            EXPECT_EQ(f.parameters[i].name, twin->second->parameters[i].name) << f.name;
    }
}

}  // namespace
