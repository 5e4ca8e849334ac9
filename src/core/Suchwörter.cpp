// Looking for what somebody types.
#include "core/Suchwörter.h"

#include <algorithm>

namespace altardienst {

std::vector<Text> Suchwörter(std::string_view getippt)
{
    constexpr std::string_view Trenner = " ,\t";
    const Text klein = Klein(getippt);
    std::vector<Text> wörter;
    for (std::size_t von = klein.find_first_not_of(Trenner); von != Text::npos;) {
        const std::size_t bis = std::min(klein.find_first_of(Trenner, von), klein.size());
        wörter.push_back(klein.substr(von, bis - von));
        von = klein.find_first_not_of(Trenner, bis);
    }
    return wörter;
}

bool EnthältAlle(std::string_view text, const std::vector<Text> &wörter)
{
    if (wörter.empty())
        return true;
    const Text klein = Klein(text);
    return std::ranges::all_of(
        wörter, [&klein](const Text &wort) { return klein.find(wort) != Text::npos; });
}

} // namespace altardienst
