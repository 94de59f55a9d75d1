// The texts that the program comes with: every hint and explanation fits its place in both languages.
#include "base/text.h"
#include "collection/collection_form.h"
#include "colour/glitter_form.h"
#include "controls/text_lines.h"
#include "core/language.h"
#include "designers/arc_form.h"
#include "designers/circel_text.h"
#include "libraries/back_form.h"
#include "media/qt_font_engine.h"
#include "store/open_file.h"
#include "store/tekst_form.h"
#include "support/world.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

constexpr const char* hints[] = {"001", "004", "010", "011", "012", "013", "014", "015", "016", "018",
                                 "019", "020", "021", "022", "023", "024", "025", "027", "060", "061",
                                 "071", "090", "091", "092", "093", "130", "140", "300"};

class LanguageTable : public testing::TestWithParam<const char*>, protected test::World {
protected:
    LanguageTable() {
        fs::create_directories(folder / "app/Data");
        const std::string file = std::string(GetParam()) + ".txt";
        fs::copy(fs::path(COINLET_DATA) / "Data" / file, folder / "app/Data" / file);
        LoadLanguage(context, GetParam());
    }

    void ExpectFits(const char* key, const Label& label) {
        const std::string text = LookupInfoText(context, key);
        EXPECT_FALSE(TrimBlanks(text).empty()) << key;
        const FontSpec font{.name = label.FontName, .size = label.FontSize, .bold = label.FontBold};
        const int margins = 2 * label.Margin;
        const auto lines = std::ssize(WrapLine(text, label.PixelWidth() - margins, font, letters));
        EXPECT_LE(lines * letters.Measure(font, text).height, label.PixelHeight() - margins)
            << key << " " << text;
    }

    const QtFontEngine letters;
};
INSTANTIATE_TEST_SUITE_P(AsDelivered, LanguageTable, testing::Values("Nederlands", "English"),
                         [](const auto& test) { return std::string(test.param); });

/// The text without what stands in quotes: captions, which keep their spelling.
std::string WithoutCaptions(const std::string& text) {
    std::string own;
    bool quoted = false;
    for (const char letter : text) {
        if (letter == '"') quoted = !quoted;
        if (!quoted) own += letter;
    }
    return own;
}

TEST_P(LanguageTable, SpellsColourInOneWay) {
    for (int i = 0; i < main.InfoList.ListCount(); ++i)
        EXPECT_EQ(LowerCase(WithoutCaptions(main.InfoList.List(i))).find("color"), std::string::npos)
            << main.InfoList.List(i);
}

TEST_P(LanguageTable, HasHintsThatFitTheFootOfTheWindow) {
    for (const char* key : hints)
        ExpectFits(key, main.InfoLabel);
}

TEST_P(LanguageTable, HasExplanationsThatFitTheirLabels) {
    ExpectFits("017", main.Label16);
    const OpenFile openFile(context);
    ExpectFits("040", openFile.Label2);
    const CircelText circelText(context);
    ExpectFits("050", circelText.Label8);
    const ArcForm arcForm(context);
    for (const char* key : {"014", "090", "091", "092", "093"})
        ExpectFits(key, arcForm.InfoLabel);
    const TekstForm tekstForm(context);
    ExpectFits("200", tekstForm.Label2);
    const BackForm backForm(context);
    ExpectFits("080", backForm.Label4);
    const GlitterForm glitterForm(context);
    ExpectFits("141", glitterForm.Label1);
}

TEST_P(LanguageTable, HasAHelpTextThatFitsItsPanel) {
    CollectionForm collection(context);
    const std::string text = LookupInfoText(context, "301");
    ASSERT_FALSE(TrimBlanks(text).empty());
    const TextBox& box = collection.Text4;
    const FontSpec font{.name = box.FontName, .size = box.FontSize};
    const auto lines = std::ssize(WrapLine(text, WrapWidth(box), font, letters));
    EXPECT_LE(lines * letters.Measure(font, text).height,
              box.PixelHeight() - 2 * (textBoxFrame + textBoxMargin));
}

TEST_P(LanguageTable, HasItsOwnMessages) {
    EXPECT_FALSE(TrimBlanks(LookupInfoText(context, "410")).empty());
}

TEST_P(LanguageTable, HasEachKeyOnceInOrder) {
    std::string before;
    for (int i = 0; i < main.InfoList.ListCount(); ++i) {
        const std::string key = main.InfoList.List(i).substr(0, 3);
        EXPECT_LT(before, key);
        before = key;
    }
    EXPECT_FALSE(before.empty());
}

}  // namespace
}  // namespace coinlet
