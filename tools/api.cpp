// Prints api.json, what the header and the catalog say in a form for programs: docs/api.md has the schema.  Takes the
// path of zmvip_types.h, whose structs and enumerations it reads.
#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <regex>
#include <stdexcept>

#include "catalog.h"
#include "core/version.h"

namespace {

using namespace catalog;

constexpr int format = 1;

std::string quoted(const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') out += '\\';
        out += c == '\n' ? std::string("\\n") : std::string(1, c);
    }
    return out + '"';
}
std::string number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.15g", value);
    return text;
}

// Members of an object or elements of an array, with commas between them.
class Parts {
  public:
    explicit Parts(char open) : close_(open == '{' ? '}' : ']'), text_(1, open) {}
    Parts& item(const std::string& json) {
        text_ += (first_ ? "" : ", ") + json;
        first_ = false;
        return *this;
    }
    Parts& line(const std::string& json) {
        text_ += (first_ ? "\n" : ",\n") + json;
        first_ = false;
        return *this;
    }
    Parts& raw(const char* name, const std::string& json) { return item(quoted(name) + ": " + json); }
    Parts& text(const char* name, const std::string& value) { return raw(name, quoted(value)); }
    Parts& yes(const char* name, bool value) { return raw(name, value ? "true" : "false"); }
    std::string done() const { return text_ + close_; }

  private:
    char close_;
    std::string text_;
    bool first_ = true;
};

std::string statuses() {
    Parts all('[');
#define STATUS_LINE(value, name, sentence)                                                                             \
    all.line(Parts('{').raw("value", #value).text("name", #name).text("sentence", sentence).done());
    ZMV_STATUS_LIST(STATUS_LINE)
    return all.done();
}

// Calls f with what is between the braces of each match.
template <class F>
void eachMatch(const std::string& text, const char* pattern, F f) {
    const std::regex regex(pattern);
    for (std::sregex_iterator i(text.begin(), text.end(), regex), end; i != end; ++i) f(*i);
}
std::string structs(const std::string& header) {
    Parts all('[');
    eachMatch(header, R"(typedef struct (\w+) \{([^}]*)\})", [&](const std::smatch& s) {
        Parts fields('[');
        eachMatch(s[2], R"(([^;]+?[ *])((?:\w+(?:\[\d+\])?(?:, )?)+);)", [&](const std::smatch& declaration) {
            const std::string type = std::regex_replace(declaration[1].str(), std::regex(R"(^\s+|\s+$)"), "");
            eachMatch(declaration[2], R"((\w+)(\[\d+\])?)", [&](const std::smatch& name) {
                fields.item(Parts('{').text("name", name[1]).text("type", type + name[2].str()).done());
            });
        });
        all.line(Parts('{').text("name", s[1]).raw("fields", fields.done()).done());
    });
    return all.done();
}
std::string enumerations(const std::string& header) {
    Parts all('[');
    eachMatch(header, R"(enum \{([^}(]*)\})", [&](const std::smatch& e) {
        Parts values('[');
        std::string prefix;
        eachMatch(e[1], R"((\w+) = (-?\w+)( - 1)?)", [&](const std::smatch& value) {
            const std::string name = value[1];
            if (prefix.empty()) prefix = name;
            while (name.compare(0, prefix.size(), prefix) != 0 || prefix.back() != '_') prefix.pop_back();
            values.item(Parts('{')
                            .text("name", name)
                            .raw("value", std::to_string(std::stol(value[2], nullptr, 0) - value[3].matched))
                            .done());
        });
        all.line(Parts('{').text("prefix", prefix).raw("values", values.done()).done());
    });
    return all.done();
}

std::string arguments(const Member& m) {
    Parts all('[');
    for (const Parameter& p : m.params) {
        Parts one('{');
        one.text("name", p.name)
            .text("type", p.spelled())
            .text("role", nameOf(p.role))
            .text("direction", p.direction());
        if (*p.enumeration) one.text("enumeration", p.enumeration).raw("usual", number(p.usual));
        if (*p.count) one.text("count", p.count);
        all.item(one.done());
    }
    return all.done();
}
const char* codeOf(Element e) {
    static const char* const codes[] = {"",    "1u",  "8u",  "8s",  "16u",  "16s",  "32u", "32s",
                                        "64s", "64u", "32f", "64f", "16sc", "32sc", "32fc"};
    return codes[int(e)];
}
std::string memberLine(const Member& m) {
    Parts types('[');
    if (m.source != Element::none) types.item(quoted(codeOf(m.source)));
    if (m.destination != m.source) types.item(quoted(codeOf(m.destination)));
    return Parts('{')
        .text("name", m.name)
        .text("result", m.result)
        .raw("types", types.done())
        .text("layout", m.layout)
        .text("letters", m.letters)
        .yes("large", m.large)
        .raw("arguments", arguments(m))
        .done();
}

// Names in the order of the enumerators of core/facts.h.
template <class E>
std::string word(E value, std::initializer_list<const char*> names) {
    return names.begin()[int(value)];
}
std::string factsOf(const Family& family) {
    const Facts& f = family.facts;
    Parts refusals('['), warnings('['), usual('[');
    for (const Refusal& refusal : f.refusals) {
        const std::string condition = words(family, refusal);
        if (condition.empty()) continue;
        Parts names('[');
        for (const std::string& name : family.argumentsOf(refusal)) names.item(quoted(name));
        refusals.item(Parts('{')
                          .text("status", nameOf(refusal.status))
                          .raw("arguments", names.done())
                          .text("condition", condition)
                          .done());
    }
    for (const zmv::Warning& warning : f.warnings)
        warnings.item(Parts('{').text("status", nameOf(warning.status)).text("condition", warning.words).done());
    for (const zmv::Usual& u : f.usual)
        usual.item(Parts('{').text("argument", u.argument).raw("value", number(u.value)).done());
    return Parts('{')
        .text("steps", word(f.steps, {"positive", "nonzero", "any"}))
        .text("freeSteps", f.freeSteps)
        .text("place", word(f.place, {"text", "apart", "same", "second"}))
        .text("ordered", f.ordered)
        .raw("refusals", refusals.done())
        .raw("warnings", warnings.done())
        .text("query", f.query)
        .text("init", f.init)
        .text("reach", word(f.reach, {"none", "anchor", "radius", "fixed", "query", "whole"}))
        .yes("tiles", f.tiles)
        .text("combine", word(f.combine, {"no", "add", "least", "greatest", "addIntegers", "extremes"}))
        .text("rounds", word(f.rounds, {"never", "floats"}))
        .text("extent", f.extent)
        .yes("cache", f.cache)
        .raw("usual", usual.done())
        .done();
}
std::string familyLines(const Family& family) {
    Parts members('['), constants('[');
    for (const Member& m : family.members) members.line(memberLine(m));
    for (const Constant& c : family.constants) constants.item(quoted(c.name));
    return Parts('{')
        .text("name", family.name)
        .text("area", family.area)
        .text("page", family.page)
        .text("module", family.module)
        .text("banner", family.banner())
        .raw("facts", factsOf(family))
        .raw("constants", constants.done())
        .raw("members", members.done())
        .done();
}

}  // namespace

int main(int argc, char** argv) try {
    std::ifstream in(argc > 1 ? argv[1] : "");
    std::string header((std::istreambuf_iterator<char>(in)), {});
    if (header.empty()) throw std::runtime_error("takes the path of zmvip_types.h");
    header = std::regex_replace(header, std::regex(R"(/\*[^*]*(\*[^*/][^*]*)*\*/)"), "");
    Parts all('{'), version('{'), lines('[');
    version.raw("major", std::to_string(ZMV_VERSION_MAJOR))
        .raw("minor", std::to_string(ZMV_VERSION_MINOR))
        .raw("patch", std::to_string(ZMV_VERSION_PATCH))
        .text("text", ZMV_VERSION_TEXT);
    for (const Family& family : families()) lines.line(familyLines(family));
    all.line("\"format\": " + std::to_string(format))
        .line("\"version\": " + version.done())
        .line("\"statuses\": " + statuses())
        .line("\"structs\": " + structs(header))
        .line("\"enumerations\": " + enumerations(header))
        .line("\"families\": " + lines.done());
    std::puts(all.done().c_str());
} catch (const std::exception& e) {
    std::fprintf(stderr, "print_api: %s\n", e.what());
    return 1;
}
