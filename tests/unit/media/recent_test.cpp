// The memory of what was used last.
#include "media/recent.h"

#include <gtest/gtest.h>
#include <string>

namespace coinlet {
namespace {

using Words = Recent<int, std::string, std::hash<int>>;

std::string Found(Words& words, int key) {
    const std::string* word = words.Find(key);
    return word == nullptr ? "(none)" : *word;
}

TEST(Recent, ForgetsWhatWasUnusedForLongest) {
    Words words(2);
    words.Add(1, "one");
    words.Add(2, "two");
    EXPECT_EQ(Found(words, 1), "one");  // now used later than 2
    words.Add(3, "three");
    EXPECT_EQ(Found(words, 1), "one");
    EXPECT_EQ(Found(words, 2), "(none)");
    EXPECT_EQ(Found(words, 3), "three");
}

TEST(Recent, ForgetsAllWhenCleared) {
    Words words(2);
    words.Add(1, "one");
    words.Clear();
    EXPECT_EQ(Found(words, 1), "(none)");
    words.Add(1, "again");
    EXPECT_EQ(Found(words, 1), "again");
}

TEST(Recent, KeepsNothingWithoutRoom) {
    Words words(0);
    words.Add(1, "one");
    EXPECT_EQ(Found(words, 1), "(none)");
}

}  // namespace
}  // namespace coinlet
