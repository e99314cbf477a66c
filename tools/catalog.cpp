// The table of families, stamped from the rows, and the sentences that their facts make.
#include "catalog.h"

#include <algorithm>
#include <sstream>

#include "core/members.h"
#include "zmvip_status.h"

namespace catalog {
namespace {

struct Table {
    std::vector<Family> families;

    // The file of the row says area and page: src/<area>/<page>.families.def.
    void family(const char* name, const std::string& file, const char* module, const Facts& facts, const char* text) {
        const size_t page = file.rfind('/') + 1, area = page > 1 ? file.rfind('/', page - 2) + 1 : 0;
        families.push_back({name,
                            file.substr(area, page - 1 - area),
                            file.substr(page, file.find('.', page) - page),
                            module,
                            text,
                            facts,
                            {},
                            {}});
    }
    void entry(const char* result, const char* name, const char* list) {
        families.back().members.push_back(parse(result, name, list));
    }
    Table() {
#define FAMILY(name, module, facts, text, members)                                                                     \
    family(#name, __FILE__, module, facts, text);                                                                      \
    members
#define ENTRY_OF(result, name, params, call) MEMBER(result, name, params)
#define MEMBER(result, name, params) entry(#result, #name, #params);
#define CONSTANT(name, value) families.back().constants.push_back({#name, value});
#include "families.def"
    }
};

bool listed(const std::string& names, const std::string& name) {
    return (" " + names + " ").find(" " + name + " ") != std::string::npos;
}
bool isPixels(Role role) { return role == Role::image || role == Role::planes; }

// "a, b or c"
std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (size_t i = 0; i < parts.size(); ++i) text += (i == 0 ? "" : i + 1 < parts.size() ? ", " : " or ") + parts[i];
    return text;
}

const Parameter* find(const Family& family, const std::string& name) {
    for (const Member& m : family.members)
        if (const Parameter* p = m.find(name)) return p;
    return nullptr;
}

std::string nullWords(const Family& family, const std::vector<std::string>& names, bool entries) {
    const auto pixels = std::count_if(names.begin(), names.end(),
                                      [&](const std::string& name) { return isPixels(find(family, name)->role); });
    std::vector<std::string> parts;
    const auto add = [&](const std::string& part) {
        if (std::find(parts.begin(), parts.end(), part) == parts.end()) parts.push_back(part);
    };
    for (const std::string& name : names) {
        const bool isImage = isPixels(find(family, name)->role);
        add(isImage && pixels > 1 ? "an image" : name);
        for (const Member& m : family.members)
            if (const Parameter* p = m.find(name); p && p->planes && entries)
                add(isImage ? "a plane" : "one of its arrays");
    }
    return joined(parts) + " is null";
}

std::string sizeWords(const Family& family, const std::vector<std::string>& names) {
    if (names.size() > 1) return "a size below 1";
    if (names[0] == "roiSize") return "width or height below 1";
    const bool pair = find(family, names[0])->type.starts_with("Image");
    return (pair ? "width or height of " : "") + names[0] + " below 1";
}

std::string stepWords(const Family& family, const std::vector<std::string>& names) {
    const Facts& facts = family.facts;
    return (names.size() > 1 ? "a step" : names[0]) +
           (facts.steps == zmv::Steps::nonzero ? " is zero" : " is not positive") +
           (*facts.freeSteps ? std::string("; ") + facts.freeSteps + " accepts any" : "");
}

std::string optionWords(const Refusal& refusal) {
    const std::string name = refusal.arguments;
    if (name == "numChannels") {
        std::vector<std::string> counts;
        for (const int64_t n : refusal.values) counts.push_back(std::to_string(n));
        return name + " is not " + joined(counts);
    }
    if (!name.ends_with("ataType")) return name + " is none of these";
    std::vector<std::string> types;
    for (const int64_t code : refusal.values)
        types.push_back(code == DATATYPE_8U    ? "_8U"
                        : code == DATATYPE_16U ? "_16U"
                        : code == DATATYPE_16S ? "_16S"
                        : code == DATATYPE_32F ? "_32F"
                                               : "_64F");
    return name + " is not DATATYPE" + joined(types);
}

}  // namespace

const std::vector<Family>& families() {
    static const Table table;
    return table.families;
}

const char* nameOf(StatusCode status) { return zmvStatusName(status); }

bool concerns(const Facts& facts, const Refusal& refusal, const Member& m, const Parameter& p) {
    using zmv::Bad;
    const std::string names = refusal.arguments;
    const bool named = listed(names, p.name) || (listed(names, "images") && (isPixels(p.role) || p.role == Role::mask));
    switch (refusal.bad) {
        case Bad::null:
        case Bad::nullItself:
            return p.pointer && (named || names.empty());
        case Bad::size:
            return named || (names.empty() && p.role == Role::size && (p.name.ends_with("oiSize")));
        case Bad::step:
        case Bad::rowStep:
            return (named || names.empty()) && p.role == Role::step && facts.steps != zmv::Steps::any &&
                   !m.among(facts.freeSteps);
        default:
            return named;
    }
}

std::vector<std::string> Family::argumentsOf(const Refusal& refusal) const {
    std::vector<std::string> names;
    for (const Member& m : members)
        for (const Parameter& p : m.params)
            if (concerns(facts, refusal, m, p) && std::find(names.begin(), names.end(), p.name) == names.end())
                names.push_back(p.name);
    return names;
}

std::string words(const Family& family, const Refusal& refusal) {
    using zmv::Bad;
    if (*refusal.words) return refusal.words;
    const std::vector<std::string> names = family.argumentsOf(refusal);
    if (names.empty()) return "";
    switch (refusal.bad) {
        case Bad::null:
        case Bad::nullItself:
            return nullWords(family, names, refusal.bad == Bad::null);
        case Bad::nullEntry:
            return "an array of " + names[0] + " is null";
        case Bad::size:
            return sizeWords(family, names);
        case Bad::negative:
            return joined(names) + " is negative";
        case Bad::step:
            return stepWords(family, names);
        case Bad::rowStep:
            return joined(names) + " is less than the bytes of a row";
        case Bad::partStep:
            return joined(names) + " is no multiple of the element's size";
        case Bad::anchor:
            return "anchor lies outside the mask";
        case Bad::borderWord:
            return names[0] + " is none of these";
        default:
            return optionWords(refusal);
    }
}

std::string Family::banner() const {
    const auto any = [&](auto has) { return std::any_of(members.begin(), members.end(), has); };
    std::string all = text;
    const auto add = [&](const std::string& sentence) { all += "\n" + sentence; };
    const bool stepped = any([](const Member& m) {
        return std::any_of(m.params.begin(), m.params.end(), [](const Parameter& p) { return p.role == Role::step; });
    });
    const bool aligned = std::any_of(facts.refusals.begin(), facts.refusals.end(),
                                     [](const Refusal& refusal) { return refusal.bad == zmv::Bad::partStep; });
    if (stepped && facts.steps == zmv::Steps::any)
        add(std::string("Any step is accepted, zero and negative ones too") +
            (aligned ? "; srcStep" : ", and") + " need not be a multiple of the element size.");
    if (stepped && facts.steps == zmv::Steps::nonzero) add("Any step but zero is accepted, negative ones too.");
    const bool forms = any([](const Member& m) { return m.inPlace; });
    const std::string rest = "; other overlap is undefined.";
    if (facts.place == zmv::Place::apart) add("The images must not overlap.");
    if (facts.place == zmv::Place::same)
        add(std::string("In place: ") + (forms ? "the I forms, or " : "") + "src == dst with equal steps" + rest);
    if (facts.place == zmv::Place::second)
        add("In place (I): srcDst is the second image and the destination.  In the other forms dst may be one of the "
            "sources if it has that source's step" +
            rest);
    if (*facts.query && any([](const Member& m) { return m.find("buffer"); }))
        add(std::string("buffer has the size that ") + facts.query + " reports, at any alignment.");

    std::string errors;
    int count = 0;
    StatusCode last = STATUS_OK;
    for (const Refusal& refusal : facts.refusals) {
        const std::string condition = words(*this, refusal);
        if (condition.empty()) continue;
        if (refusal.status == last)
            errors += ", then " + condition;
        else
            errors += (count++ ? ".  " : "") + std::string(nameOf(refusal.status)) + ": " + condition;
        last = refusal.status;
    }
    if (count) add((count > 1 ? "Checked in this order.  " : "") + errors + ".");
    for (const zmv::Warning& warning : facts.warnings)
        add(std::string(nameOf(warning.status)) + ": " + warning.words + ".");
    return all;
}

}  // namespace catalog
