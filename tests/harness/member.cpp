#include "harness/member.h"

#include <cctype>
#include <cstring>
#include <map>
#include <sstream>

#include "core/members.h"
#include "harness/family.h"

// A family without a row of this name does not link: nothing gets into the library untested.
#define FAMILY(name, module, text, rows) extern const test::Family test_##name;
#include "families.def"
#undef FAMILY

namespace test {
namespace {

template <class T>
struct Argument {
    static T of(const Slot& s) {
        if constexpr (std::is_pointer_v<T>) return reinterpret_cast<T>(s.a);
        if constexpr (std::is_integral_v<T>) return T(s.a);
        if constexpr (std::is_floating_point_v<T>) {
            T value;  // by its bits: a conversion would quiet a signalling NaN
            std::memcpy(&value, &s.a, sizeof value);
            return value;
        }
    }
};
template <class Pair, class Part>
struct PairArgument {
    static Pair of(const Slot& s) { return {Part(s.a), Part(s.b)}; }
};
template <>
struct Argument<ImageSize> : PairArgument<ImageSize, int> {};
template <>
struct Argument<ImageSizeL> : PairArgument<ImageSizeL, int64_t> {};
template <>
struct Argument<ImagePoint> : PairArgument<ImagePoint, int> {};

template <class F>
struct Invoker;
template <class R, class... P>
struct Invoker<R(P...)> {
    template <size_t... i>
    static int64_t spread(void* function, [[maybe_unused]] const Slot* args, std::index_sequence<i...>) {
        const auto f = reinterpret_cast<R (*)(P...)>(function);
        if constexpr (std::is_void_v<R>)
            return f(Argument<P>::of(args[i])...), 0;
        else if constexpr (std::is_pointer_v<R>)
            return reinterpret_cast<int64_t>(f(Argument<P>::of(args[i])...));
        else
            return f(Argument<P>::of(args[i])...);
    }
    static int64_t call(void* function, const Slot* args) {
        return spread(function, args, std::index_sequence_for<P...>{});
    }
};

Element elementOf(const std::string& code) {
    static const std::map<std::string, Element> codes = {
        {"8u", Element::u8},          {"8s", Element::s8},        {"16u", Element::u16},
        {"16s", Element::s16},        {"32u", Element::u32},      {"32s", Element::s32},
        {"32f", Element::f32},        {"64f", Element::f64},      {"32sc", Element::sc32},
        {"32fc", Element::fc32},      {"uint8_t", Element::u8},   {"int8_t", Element::s8},
        {"int", Element::s32},        {"uint16_t", Element::u16}, {"int16_t", Element::s16},
        {"uint32_t", Element::u32},   {"int32_t", Element::s32},  {"int64_t", Element::s64},
        {"float", Element::f32},      {"double", Element::f64},   {"Complex32s", Element::sc32},
        {"Complex32f", Element::fc32}};
    const auto found = codes.find(code);
    return found == codes.end() ? Element::none : found->second;
}

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, separator);) parts.push_back(part);
    return parts;
}

// "const uint8_t* const src[3]": const and * are looked at, the rest is the type and the name.
Parameter parameter(std::string text) {
    Parameter p;
    if (const size_t bracket = text.find('['); bracket != text.npos) {
        p.planes = std::stoi(text.substr(bracket + 1));
        text.erase(bracket);
    }
    if (text.find("* const*") != text.npos) p.planes = 4;  // as many as another argument says
    p.pointer = p.planes || text.find('*') != text.npos;
    std::vector<std::string> words;
    for (std::string word; std::string part : split(text, ' ')) {
        std::erase(part, '*');
        if (!part.empty() && part != "const") words.push_back(part);
    }
    p.type = words[0];
    p.name = words.back();
    p.element = elementOf(p.type);
    p.written = p.pointer && text.find("const " + p.type) == text.npos;
    return p;
}

// "8u32s" is one or two type codes: a code is digits, then letters.
bool types(const std::string& text, Member& m) {
    std::vector<Element> found;
    for (size_t at = 0; at < text.size();) {
        size_t end = at;
        while (end < text.size() && std::isdigit(text[end])) ++end;
        while (end < text.size() && std::isalpha(text[end])) ++end;
        const Element e = elementOf(text.substr(at, end - at));
        if (e == Element::none) return false;
        found.push_back(e);
        at = end;
    }
    if (found.empty()) return false;
    m.source = found.front();
    m.destination = found.back();
    return true;
}

// "C3AC4R", "P4C4R", "AC4MR", "C3CR": one or two channel codes, then the mode letters.
void layout(const std::string& text, Member& m) {
    size_t at = 0;
    for (bool first = true;; first = false) {
        Layout l;
        size_t end = at;
        if (text[end] == 'A') l.alpha = true, ++end;
        if (end + 1 >= text.size() || !std::strchr("CP", text[end]) || !std::isdigit(text[end + 1])) break;
        l.planar = text[end] == 'P';
        l.channels = text[end + 1] - '0';
        m.to = l;
        if (first) m.from = l;
        at = end + 2;
    }
    const std::string modes = text.substr(at);
    m.inPlace = modes.find('I') != modes.npos;
    m.masked = modes.find('M') != modes.npos;
    m.oneChannel = modes.find('C') != modes.npos;
}

struct Table {
    std::vector<Member> members;
    std::vector<std::pair<std::string, const Family*>> families;
    std::vector<Constant> constants;

    void family(const char* name, const Family& test) { families.emplace_back(name, &test); }
    void add(const char* name, const char* params, int64_t (*invoke)(void*, const Slot*)) {
        Member m;
        m.name = name;
        m.family = families.back().second;
        m.invoke = invoke;
        const std::string list(params + 1, std::strlen(params) - 2);
        if (list != "void")
            for (const std::string& p : split(list, ',')) m.params.push_back(parameter(p));
        const std::vector<std::string> parts = split(m.name, '_');
        m.large = parts.back() == "L";
        for (size_t i = 1; i < parts.size(); ++i)
            if (types(parts[i], m)) {
                if (i + 1 < parts.size()) layout(parts[i + 1], m);
                break;
            }
        members.push_back(m);
    }
    Table() {
#define FAMILY(name, module, text, rows)                                                                               \
    family(#name, test_##name);                                                                                        \
    rows
#define ENTRY_OF(result, name, params, call) TEST_ENTRY(result, name, params)
#define TEST_ENTRY(result, name, params) add(#name, #params, Invoker<result params>::call);
#define CONSTANT(name, value) constants.push_back({#name, value});
#include "families.def"
    }
};

const Table& table() {
    static const Table t;
    return t;
}

}  // namespace

int bytesOf(Element element) {
    static const int bytes[] = {0, 1, 1, 2, 2, 4, 4, 8, 4, 8, 8, 8};
    return bytes[int(element)];
}

const Parameter* Member::find(const std::string& parameter) const {
    for (const Parameter& p : params)
        if (p.name == parameter) return &p;
    return nullptr;
}

const std::vector<Member>& members() { return table().members; }
const std::vector<std::pair<std::string, const Family*>>& families() { return table().families; }
const std::vector<Constant>& constants() { return table().constants; }

}  // namespace test
