// api.json is JSON, and says what the header says.
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <stdexcept>

#include "object_file.h"
#include "prototypes.h"
#include "zmvip_status.h"

namespace {

// A value: text, number and true as its text, with what it holds in order.
struct Json {
    std::string text;
    std::vector<Json> items;
    std::map<std::string, Json> members;

    const Json& operator[](const std::string& name) const {
        const auto found = members.find(name);
        if (found == members.end()) throw std::runtime_error("no " + name);
        return found->second;
    }
};

class Reader {
  public:
    explicit Reader(const std::string& text) : text_(text) {}
    Json all() {
        Json value = read();
        if (text_.find_first_not_of(" \n", at_) != text_.npos) fail();
        return value;
    }

  private:
    Json read() {
        Json value;
        if (take('{')) {
            for (bool more = !take('}'); more; more = !take('}') && need(',')) {
                const std::string name = read().text;
                need(':');
                if (!value.members.emplace(name, read()).second) fail();
            }
        } else if (take('[')) {
            for (bool more = !take(']'); more; more = !take(']') && need(',')) value.items.push_back(read());
        } else if (take('"')) {
            for (; text_.at(at_) != '"'; ++at_) {
                if (text_[at_] == '\n') fail();
                const bool escaped = text_[at_] == '\\' && ++at_;
                value.text += escaped && text_.at(at_) == 'n' ? '\n' : text_.at(at_);
            }
            ++at_;
        } else {
            static const std::regex word(R"(-?\d+(\.\d+)?(e[-+]?\d+)?|true|false)");
            std::smatch m;
            if (!std::regex_search(text_.begin() + long(at_), text_.end(), m, word,
                                   std::regex_constants::match_continuous))
                fail();
            value.text = m[0];
            at_ += size_t(m.length());
        }
        return value;
    }
    bool take(char c) {
        at_ = std::min(text_.find_first_not_of(" \n", at_), text_.size());
        return text_.at(at_) == c && ++at_;
    }
    bool need(char c) { return take(c) || (fail(), false); }
    [[noreturn]] void fail() const { throw std::runtime_error("no JSON at byte " + std::to_string(at_)); }

    const std::string text_;
    size_t at_ = 0;
};

Json readApi() {
    std::ifstream in(ZMV_API_JSON);
    return Reader(std::string((std::istreambuf_iterator<char>(in)), {})).all();
}

TEST(ApiJson, SaysWhatTheHeaderSays) {
    const Json api = readApi();
    EXPECT_EQ(api["format"].text, "1");
    std::map<std::string, std::string> printed;
    std::set<std::string> constants, families;
    for (const Json& family : api["families"].items) families.insert(family["name"].text);
    for (const Json& family : api["families"].items) {
        for (const Json& m : family["members"].items) {
            std::string& all = printed[m["name"].text] = m["result"].text + ":";
            for (const Json& a : m["arguments"].items) {
                all += " " + a["type"].text + " " + a["name"].text + ";";
                EXPECT_NE(a["role"].text, "");
                EXPECT_EQ(a["direction"].text == "in", a["type"].text.rfind("const ", 0) == 0 ||
                                                           a["type"].text.find_first_of("*[") == std::string::npos)
                    << m["name"].text << ": " << a["name"].text;
            }
        }
        for (const Json& c : family["constants"].items) constants.insert(c.text);
        for (const char* other : {"query", "init"})
            if (const std::string name = family["facts"][other].text; !name.empty()) {
                EXPECT_TRUE(families.count(name)) << name;
            }
    }
    std::map<std::string, std::string> declared;
    for (const Prototype& f : readPrototypes()) {
        std::string& all = declared[f.name] = f.result + ":";
        for (const Parameter& p : f.parameters) {
            all += " " + p.type;
            if (p.planes) all.append("[").append(std::to_string(p.planes)).append("]").append(p.rows);
            all += " " + p.name + ";";
        }
    }
    EXPECT_EQ(printed, declared);
    EXPECT_EQ(constants, readConstants());
    std::set<std::string> exports, names = constants;
    for (const auto& [name, symbol] : symbolsOf(ZMV_LIBRARY, "-D --defined-only"))
        if (symbol.kind != 'A') exports.insert(name);
    for (const auto& [name, prototype] : printed) names.insert(name);
    EXPECT_EQ(names, exports);
}

TEST(ApiJson, HasEveryStatusStructAndEnumeration) {
    const Json api = readApi();
    for (const Json& status : api["statuses"].items) {
        EXPECT_EQ(status["name"].text, zmvStatusName(std::stoi(status["value"].text)));
        EXPECT_EQ(status["sentence"].text, zmvStatusText(std::stoi(status["value"].text)));
    }
    std::set<std::string> names;
    for (const Json& e : api["enumerations"].items)
        for (const Json& value : e["values"].items) {
            EXPECT_EQ(value["name"].text.rfind(e["prefix"].text, 0), 0u) << value["name"].text;
            names.insert(value["name"].text + "=" + value["value"].text);
        }
    for (const char* value : {"DATATYPE_64F=19", "ALPHA_PLUS_PREMUL=11", "BORDER_IN_MEM=240", "HINT_ACCURATE=2",
                              "INTERP_SMOOTH_EDGE=-2147483648"})
        EXPECT_TRUE(names.count(value)) << value;
    std::map<std::string, size_t> fields;
    for (const Json& s : api["structs"].items) fields[s["name"].text] = s["fields"].items.size();
    EXPECT_EQ(fields["ImageRect"], 4u);
    EXPECT_EQ(fields["LibraryVersion"], 8u);
}

}  // namespace
