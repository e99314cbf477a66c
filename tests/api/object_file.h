// What binutils say about a shared library, read into tables.
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <vector>

// The lines that a command prints; a command that fails prints none, and the tests then miss what they look for.
inline std::vector<std::string> linesOf(const std::string& command) {
    std::vector<std::string> lines;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return lines;
    char* line = nullptr;
    size_t room = 0;
    for (ssize_t n; (n = getline(&line, &room, pipe)) >= 0;) {
        if (n && line[n - 1] == '\n') line[n - 1] = 0;
        lines.push_back(line);
    }
    free(line);
    pclose(pipe);
    return lines;
}

inline std::vector<std::string> words(const std::string& text) {
    std::vector<std::string> result;
    const char* blanks = " \t";
    for (size_t from = text.find_first_not_of(blanks); from != std::string::npos;) {
        const size_t to = text.find_first_of(blanks, from);
        result.push_back(text.substr(from, to - from));
        from = text.find_first_not_of(blanks, to);
    }
    return result;
}

struct Symbol {
    uint64_t address = 0;
    char kind = 0;  // nm's letter
    std::string version;
};
using Symbols = std::map<std::string, Symbol>;

// options: "-D --defined-only" and the like.
inline Symbols symbolsOf(const std::string& library, const std::string& options) {
    Symbols symbols;
    for (const std::string& line : linesOf("nm " + options + " " + library)) {
        std::vector<std::string> word = words(line);
        if (word.size() == 2) word.insert(word.begin(), "0");  // undefined symbols have no address
        if (word.size() != 3) continue;
        const size_t at = word[2].find('@');
        const size_t version = word[2].find_first_not_of('@', at);
        Symbol symbol{std::stoull(word[0], nullptr, 16), word[1][0], {}};
        if (version != std::string::npos) symbol.version = word[2].substr(version);
        symbols[word[2].substr(0, at)] = symbol;
    }
    return symbols;
}

// Dynamic entries: tag without brackets -> values, of which the part in brackets where there is one.
inline std::map<std::string, std::set<std::string>> dynamicEntriesOf(const std::string& library) {
    std::map<std::string, std::set<std::string>> entries;
    for (const std::string& line : linesOf("readelf -dW " + library)) {
        const size_t open = line.find('('), close = line.find(')');
        if (open == std::string::npos || close == std::string::npos) continue;
        std::string value = line.substr(close + 1);
        const size_t from = value.find('['), to = value.rfind(']');
        if (from != std::string::npos) value = value.substr(from + 1, to - from - 1);
        entries[line.substr(open + 1, close - open - 1)].insert(value);
    }
    return entries;
}

inline std::map<std::string, uint64_t> sectionSizesOf(const std::string& library) {
    std::map<std::string, uint64_t> sizes;
    for (const std::string& line : linesOf("readelf -SW " + library)) {
        char name[64];
        unsigned long long address, offset, size;
        if (std::sscanf(line.c_str(), " [%*[ 0-9]] %63s %*s %llx %llx %llx", name, &address, &offset, &size) == 4)
            sizes[name] = size;
    }
    return sizes;
}

// Addresses inside the library that its tables hold.
inline std::set<uint64_t> addressesInDataOf(const std::string& library) {
    std::set<uint64_t> addresses;
    for (const std::string& line : linesOf("readelf -rW " + library)) {
        const std::vector<std::string> word = words(line);
        if (word.size() == 4 && word[2] == "R_X86_64_RELATIVE") addresses.insert(std::stoull(word[3], nullptr, 16));
    }
    return addresses;
}

struct Instruction {
    uint64_t address;
    std::string function, mnemonic, operands;
    // Of a direct jump or call: where to; of a lea from the code's own address: what to; else 0.
    uint64_t target = 0;
};

inline std::vector<Instruction> disassemble(const std::string& library) {
    std::vector<Instruction> code;
    std::string function;
    for (const std::string& line : linesOf("objdump -d --no-show-raw-insn " + library)) {
        if (!line.empty() && line[0] != ' ') {
            const size_t open = line.find('<');
            if (open != std::string::npos && line.back() == ':')
                function = line.substr(open + 1, line.size() - open - 3);
            continue;
        }
        const size_t tab = line.find('\t');
        if (tab == std::string::npos) continue;
        std::vector<std::string> word = words(line.substr(tab + 1));
        while (word.size() > 1 && (word[0] == "bnd" || word[0] == "notrack" || word[0] == "repz" || word[0] == "cs"))
            word.erase(word.begin());
        if (word.empty()) continue;
        Instruction i{std::stoull(line, nullptr, 16), function, word[0], {}};
        for (size_t k = 1; k < word.size(); ++k) i.operands += (k > 1 ? " " : "") + word[k];
        if ((i.mnemonic[0] == 'j' || i.mnemonic == "call") && !i.operands.empty() && i.operands[0] != '*')
            i.target = std::stoull(i.operands, nullptr, 16);
        const size_t comment = i.operands.find("# ");
        if (i.mnemonic == "lea" && comment != std::string::npos)
            i.target = std::stoull(i.operands.substr(comment + 2), nullptr, 16);
        code.push_back(i);
    }
    return code;
}
