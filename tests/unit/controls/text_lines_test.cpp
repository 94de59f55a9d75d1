// Where a text box of several lines cuts its text. The block font's letters are all of one width.
#include "controls/text_lines.h"

#include "controls/form.h"
#include "controls/text_box.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

using Rows = std::vector<std::string>;

/// Lines of ten letters: at 8 points a letter is 4 pixels wide.
Rows TenWide(std::string_view text) {
    const test::BlockFonts fonts;
    return WrapLine(text, 40, FontSpec{.size = 8}, fonts);
}

TEST(WrapLine, LeavesWhatFits) {
    EXPECT_EQ(TenWide(""), (Rows{""}));
    EXPECT_EQ(TenWide("ten or so."), (Rows{"ten or so."}));
    EXPECT_EQ(TenWide("  a  b  "), (Rows{"  a  b  "}));
}

TEST(WrapLine, CutsBeforeTheWordThatDoesNotFit) {
    EXPECT_EQ(TenWide("ten or so.."), (Rows{"ten or ", "so.."}));
    EXPECT_EQ(TenWide("one two three four five"), (Rows{"one two ", "three four ", "five"}));
    EXPECT_EQ(TenWide("well-known names"), (Rows{"well-known ", "names"}));
    EXPECT_EQ(TenWide("so well-known"), (Rows{"so ", "well-known"}));
}

TEST(WrapLine, LeavesBlanksBehindTheirWord) {
    EXPECT_EQ(TenWide("ten or so.   x"), (Rows{"ten or so.   ", "x"}));
    EXPECT_EQ(TenWide("a" + std::string(30, ' ')), (Rows{"a" + std::string(30, ' ')}));
    EXPECT_EQ(TenWide(std::string(30, ' ')), (Rows{std::string(30, ' ')}));
    EXPECT_EQ(TenWide(std::string(30, ' ') + "b"), (Rows{std::string(30, ' '), "b"}));
}

TEST(WrapLine, CutsAWordThatIsWiderThanALine) {
    EXPECT_EQ(TenWide("0123456789abcdefghijKLM no"), (Rows{"0123456789", "abcdefghij", "KLM no"}));
    EXPECT_EQ(TenWide("to 0123456789abc"), (Rows{"to ", "0123456789", "abc"}));
}

TEST(WrapLine, CutsNoCharacterInTwo) {
    EXPECT_EQ(TenWide("éééééééééé€€"), (Rows{"éééééééééé", "€€"}));
    EXPECT_EQ(TenWide("0123456789\U0001F600"), (Rows{"0123456789", "\U0001F600"}));
}

TEST(WrapLine, HasALetterInEveryLineHoweverNarrow) {
    const test::BlockFonts fonts;
    for (const int width : {-5, 0, 1, 3})
        EXPECT_EQ(WrapLine("ab c", width, FontSpec{.size = 8}, fonts), (Rows{"a", "b ", "c"})) << width;
}

class TextLinesForm : public Form {
public:
    explicit TextLinesForm(FormServices services) : Form(services, "TextLinesForm") {
        Text1.Move(0, 0, 340 * 15, 160 * 15);
        Text1.MultiLine = Text1.VerticalScroll = true;
    }
    TextBox Text1{*this, "Text1"};
};

TEST(DisplayedLines, AreTheTextWithItsLineEnds) {
    test::TestServices services;
    TextLinesForm form(services.ForForms());
    const auto lines = [&](const char* text) {
        form.Text1.SetText(text);
        return DisplayedLines(form.Text1);
    };
    EXPECT_EQ(lines(""), (Rows{""}));
    EXPECT_EQ(lines("a"), (Rows{"a"}));
    EXPECT_EQ(lines("a\r\n"), (Rows{"a\r\n", ""}));
    EXPECT_EQ(lines("a\r\n\r\nb"), (Rows{"a\r\n", "\r\n", "b"}));
}

TEST(DisplayedLines, WrapWithinTheBoxBesideItsScrollBar) {
    test::TestServices services;
    TextLinesForm form(services.ForForms());
    // 340 pixels less two frames of 1, two margins of 4 and a scroll bar of 16.
    EXPECT_EQ(WrapWidth(form.Text1), 314);
    const int letter = test::BlockFonts::CellWidth(form.Text1.CurrentFont());
    const auto perLine = static_cast<std::size_t>(314 / letter);
    form.Text1.SetText(std::string(perLine + 1, 'x') + "\r\ny");
    EXPECT_EQ(DisplayedLines(form.Text1), (Rows{std::string(perLine, 'x'), "x\r\n", "y"}));
    form.Text1.VerticalScroll = false;
    EXPECT_EQ(WrapWidth(form.Text1), 330);
    form.Text1.SetWidth(0);
    EXPECT_EQ(WrapWidth(form.Text1), 1);
}

}  // namespace
}  // namespace coinlet
