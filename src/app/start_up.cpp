#include "app/start_up.h"

#include "base/desktop.h"
#include "base/files.h"
#include "base/font.h"
#include "base/program.h"
#include "base/program_folders.h"
#include "colour/pms_table.h"
#include "controls/number_list.h"
#include "core/about.h"
#include "core/context.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/main_life.h"
#include "core/plaatjes.h"
#include "core/rulers.h"
#include "core/settings.h"
#include "core/side_panel.h"
#include "tools/image_browser.h"

#include <string>

namespace coinlet {

namespace {

constexpr NumberList letterSizes{8, 150, 2, 20};

/// In the folders that the program writes files into.
void RemoveFilesOfKilledPrograms(Context& context) {
    const fs::path& folder = context.services.applicationFolder;
    for (const fs::path& each :
         {folder, folder / program_folder::designs, folder / program_folder::collection,
          context.services.desktop.PictureFolder()})
        RemoveStrays(each);
}

void FillImageBrowser(Context& context) {
    context.main.Label2.Caption = fileNameCaption;
    ListStockImages(context);
    context.main.Pic2.surface.SetPicture({});
    ShowImageCount(context);
}

void PrepareCanvas(Context& context) {
    DrawRulers(context.main);
    context.main.Label19.Caption = " information available! ";
}

void PreparePanel(Context& context) {
    PrintSidePanelHeader(context.main.TopInfoPic);
    DrawEmptyRows(context.main.InfoPic.surface, rowTextAtStart);
}

void ShowStartPicture(Context& context) {
    MainForm& main = context.main;
    main.Pic2.surface.SetPicture(context.plaatjes.Img[0].Picture);
    main.IconPic.surface.SetPicture(main.Pic2.surface.Image());
}

void FillTextPanel(Context& context) {
    MainForm& main = context.main;
    for (const std::string& family : context.services.fonts.Families())
        main.Combo2.AddItem(family);
    main.Combo2.SetText(std::string(standardFontName));
    FillWithNumbers(main.Combo3, letterSizes);
    main.Text1.SetText(std::string(programTitle));
    main.Label17.Caption = "Draw Text";
    main.InfoLabel.Caption = languages[0].greeting;
}

void ReadSettings(Context& context) {
    const auto& folder = context.services.applicationFolder;
    if (const auto language = ReadLanguageSetting(folder)) {
        context.session.LanguageName = *language;
    } else {
        // A folder that can't be written is no reason not to start.
        static_cast<void>(WriteLanguageSetting(folder, context.session.LanguageName));
    }
}

void StartLanguage(Context& context) {
    LoadLanguage(context, context.session.LanguageName);
    ShowLanguageInTitle(context);
}

// The form is laid out when it is made, and the session has its defaults; these steps do the rest.
constexpr void (*steps[])(Context&) = {
    RemoveFilesOfKilledPrograms,
    FillImageBrowser,
    PrepareCanvas,
    PreparePanel,
    ShowStartPicture,
    FillTextPanel,
    PrintAboutText,
    LoadPmsColors,
    ReadSettings,
    StartLanguage,
};

}  // namespace

void StartUp(Context& context) {
    for (const auto step : steps)
        step(context);
    context.session.StoredDesign = RevisionOf(context.main);
}

}  // namespace coinlet
