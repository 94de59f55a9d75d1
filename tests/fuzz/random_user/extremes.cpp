#include "fuzz/random_user/extremes.h"

#include "player/values.h"

#include <array>
#include <string_view>

namespace coinlet::test {

namespace {

constexpr std::array<std::string_view, 22> wholes{
    "0",    "1",   "-1",  "2",   "3",     "15",    "16",     "127",   "128",      "255",      "256",
    "-256", "499", "500", "501", "32767", "32768", "-32769", "65535", "16777215", "16777216", "2147483647"};
constexpr std::array<std::string_view, 9> beyond{
    "0.5", "-0.5", "1.5", "2147483648", "-2147483649", "99999999999999999999", "-1e30", "3.5e38", "1e-30"};
constexpr std::array<std::string_view, 14> texts{"",
                                                 " ",
                                                 "A",
                                                 "Coinlet Designer",
                                                 "10,20,30",
                                                 "a\r\nb\r\n\r\nc",
                                                 "\"quoted\" \\ back",
                                                 "tab\there",
                                                 "🦆 é ∂",
                                                 "*.bmp",
                                                 "255",
                                                 "-7",
                                                 "001",
                                                 "a.b/c"};

}  // namespace

std::string AnyWhole(Dice& dice) {
    constexpr int usualHighest = 520;
    if (dice.OneIn(2)) return std::to_string(dice.Between(-usualHighest / 10, usualHighest));
    return std::string(dice.Pick(wholes));
}

std::string AnyNumber(Dice& dice) {
    return dice.OneIn(4) ? std::string(dice.Pick(beyond)) : AnyWhole(dice);
}

std::string AnyText(Dice& dice) {
    constexpr std::size_t longest = 3000;
    const std::string_view text = dice.Pick(texts);
    if (!dice.OneIn(8)) return player::Quoted(text);
    std::string repeated;
    while (repeated.size() < longest)
        repeated += std::string(text) + "x";
    return player::Quoted(repeated);
}

}  // namespace coinlet::test
