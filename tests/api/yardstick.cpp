// A compile of known cost: it has nothing to do with the library, and says how fast the machine was when that was
// built.
#include <algorithm>
#include <functional>
#include <map>
#include <regex>
#include <string>
#include <vector>

template <class Character>
size_t words(const std::basic_string<Character>& text, const std::basic_regex<Character>& word) {
    using Iterator = std::regex_iterator<typename std::basic_string<Character>::const_iterator>;
    std::map<std::basic_string<Character>, size_t, std::greater<>> counts;
    for (Iterator i(text.begin(), text.end(), word), end; i != end; ++i) ++counts[i->str()];
    std::vector<std::pair<size_t, std::basic_string<Character>>> sorted;
    for (const auto& [name, count] : counts) sorted.emplace_back(count, name);
    std::stable_sort(sorted.begin(), sorted.end());
    return sorted.empty() ? 0 : sorted.back().first;
}
template size_t words(const std::string&, const std::regex&);
template size_t words(const std::wstring&, const std::wregex&);
