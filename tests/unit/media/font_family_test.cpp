// The same font under another name.
#include "media/font_family.h"

#include "support/symbol_font.h"

#include <QPainterPath>
#include <QRawFont>

#include <algorithm>
#include <gtest/gtest.h>
#include <string_view>

namespace coinlet {
namespace {

QRawFont Raw(const Bytes& bytes) {
    return {QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())),
            20};
}

TEST(InFamily, ChangesTheNameAndNothingElse) {
    const Bytes font = test::SymbolFont("Old Name");
    ASSERT_EQ(Raw(font).familyName(), "Old Name");
    for (const std::string& name : {std::string("New Name"), std::string(".a"), std::string(200, 'x')}) {
        const auto renamed = InFamily(font, name);
        ASSERT_TRUE(renamed);
        const QRawFont raw = Raw(*renamed);
        EXPECT_EQ(raw.familyName().toStdString(), name);
        EXPECT_EQ(raw.styleName(), "Regular");
        EXPECT_EQ(raw.unitsPerEm(), 1000);
        EXPECT_EQ(raw.pathForGlyph(1), Raw(font).pathForGlyph(1));
        EXPECT_FALSE(raw.pathForGlyph(1).isEmpty());
    }
}

TEST(InFamily, TakesFontsOfEveryLength) {
    Bytes font = test::SymbolFont("Old Name");
    for (int i = 0; i < 4; ++i) {
        const auto renamed = InFamily(font, "New");
        ASSERT_TRUE(renamed);
        EXPECT_EQ(renamed->size() % 2, 0U);
        EXPECT_EQ(Raw(*renamed).familyName(), "New");
        font.push_back(0);
    }
}

TEST(InFamily, GivesNothingForOtherFiles) {
    const Bytes font = test::SymbolFont("Old Name");
    EXPECT_FALSE(InFamily({}, "New"));
    for (const std::size_t size : {1U, 4U, 11U, 12U, 27U})
        EXPECT_FALSE(InFamily(std::span(font).first(size), "New")) << size;
    const std::string_view text = "wOFF and ttcf are other kinds of files, which this one is too.";
    EXPECT_FALSE(InFamily(AsBytes(text), "New"));
    Bytes collection = font;
    collection[0] = 't', collection[1] = 't', collection[2] = 'c', collection[3] = 'f';
    EXPECT_FALSE(InFamily(collection, "New"));
    // A directory that ends before its entry of the names.
    Bytes shortened = font;
    const std::string_view tag = "name";
    std::uint8_t entries = 0;
    while (!std::equal(tag.begin(), tag.end(), shortened.begin() + 12 + 16 * entries))
        ++entries;
    shortened[5] = entries;
    EXPECT_FALSE(InFamily(shortened, "New"));
    // A directory that goes on beyond the end of the file, and one without names.
    Bytes nameless = font;
    nameless[5] = 255;
    for (std::size_t i = 0; i + 4 <= nameless.size(); ++i)
        if (nameless[i] == 'n' && nameless[i + 1] == 'a' && nameless[i + 2] == 'm') nameless[i] = 'N';
    EXPECT_FALSE(InFamily(nameless, "New"));
}

}  // namespace
}  // namespace coinlet
