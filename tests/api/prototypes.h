// The public header, read as text: what a user sees, not what the sources say.
#pragma once

#include <fstream>
#include <regex>
#include <set>
#include <string>
#include <vector>

struct Parameter {
    std::string type, name;
    int planes = 0;    // of an array of planes: how many
    std::string rows;  // "[3]" behind the first length of an array of two dimensions
};
struct Prototype {
    std::string result, name;
    std::vector<Parameter> parameters;

    const Parameter* find(const std::string& wanted) const {
        for (const Parameter& p : parameters)
            if (p.name == wanted) return &p;
        return nullptr;
    }
};

inline std::vector<Prototype> readPrototypes() {
    const std::regex function("ZMV_API (.*?[* ])(\\w+)\\((.*)\\);"),
        parameter("(.*[* ])(\\w+)(?:\\[(\\d)\\])?(\\[\\d\\])?");
    const auto typeOf = [](std::string text) {  // without the blank that separates it from the name
        if (text.back() == ' ') text.pop_back();
        return text;
    };
    std::vector<Prototype> prototypes;
    std::ifstream header(ZMV_HEADER);
    for (std::string line; std::getline(header, line);) {
        std::smatch m;
        if (!std::regex_match(line, m, function)) continue;
        Prototype p{typeOf(m[1]), m[2], {}};
        std::string list = m[3];
        for (size_t from = 0; list != "void" && from < list.size();) {
            const size_t comma = std::min(list.find(", ", from), list.size());
            const std::string one = list.substr(from, comma - from);
            std::smatch q;
            if (std::regex_match(one, q, parameter))
                p.parameters.push_back({typeOf(q[1]), q[2], q[3].matched ? std::stoi(q[3]) : 0, q[4]});
            else
                p.parameters.push_back({one, "", 0, ""});
            from = comma + 2;
        }
        prototypes.push_back(p);
    }
    return prototypes;
}

inline std::set<std::string> readConstants() {
    const std::regex constant("extern ZMV_API const double (\\w+);");
    std::set<std::string> names;
    std::ifstream header(ZMV_HEADER);
    for (std::string line; std::getline(header, line);) {
        std::smatch m;
        if (std::regex_match(line, m, constant)) names.insert(m[1]);
    }
    return names;
}
