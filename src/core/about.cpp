#include "core/about.h"

#include "base/files.h"
#include "base/program_folders.h"
#include "base/text.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/web_targets.h"

#include <array>
#include <string>

namespace coinlet {

namespace {

// Twips on the board.
constexpr float left = 480, firstLine = 480, lineHeight = 255, firstCredit = 6690;
constexpr Colour textColour = RGB(225, 225, 220);
constexpr Colour creditColour = RGB(255, 255, 0);
constexpr std::size_t largestText = std::size_t{1} << 20;

void PrintLine(PictureBox& board, float y, const std::string& text) {
    board.surface.CurrentX = left;
    board.surface.CurrentY = y;
    board.PrintToRead(text);
}

}  // namespace

void PrintAboutText(Context& context) {
    PictureBox& board = context.main.LabelPic;
    board.surface.ForeColor = textColour;
    const fs::path file = context.services.applicationFolder / program_folder::data / "About.inf";
    if (const auto bytes = ReadFile(file, largestText)) {
        float y = firstLine;
        for (const std::string& line : Lines(FromCodePage(AsText(*bytes)))) {
            PrintLine(board, y, line);
            y += lineHeight;
        }
    }
    board.surface.ForeColor = creditColour;
    const std::array credits{"Designer.....: " + std::string(web::creditDesigner),
                             "Website.....: " + std::string(web::creditSite),
                             "E-mail........: " + std::string(web::creditMail),
                             "Translator...: " + std::string(web::creditTranslator)};
    float y = firstCredit;
    for (const std::string& credit : credits) {
        PrintLine(board, y, credit);
        y += lineHeight;
    }
}

}  // namespace coinlet
