#include "store/open_file.h"

#include "base/files.h"
#include "base/program_folders.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/side_panel.h"
#include "core/text_keys.h"
#include "store/design_files.h"
#include "store/open_file_layout.h"
#include "store/shown_design.h"
#include "surface/codecs.h"

#include <string>

namespace coinlet {

OpenFile::OpenFile(Context& context) : Form(context.services.ForForms(), "OpenFile"), context_(context) {
    LayOutOpenFile(*this);
    List1.Click = [this] { List1_Click(); };
    List1.DblClick = [this] { OkKnop_Click(); };
    OkKnop.Click = [this] { OkKnop_Click(); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
    DelKnop.Click = [this] { DelKnop_Click(); };
}

void OpenFile::Form_Load() {
    Label2.Caption = LookupInfoText(context_, key::openFileHelp);
    File1.SetPattern("*" + std::string(designPicture));
    File1.SetPath((context_.services.applicationFolder / program_folder::designs).string());
    for (int i = 0; i < File1.ListCount(); ++i) {
        List1.AddItem(WithoutExtension(File1.List(i)));
        files_.push_back(fs::path(File1.Path()) / File1.List(i));
    }
    List1.SetFocus();
}

std::optional<fs::path> OpenFile::ChosenFile() const {
    const int row = List1.ListIndex();
    if (row < 0) return std::nullopt;
    return files_.at(static_cast<std::size_t>(row));
}

void OpenFile::List1_Click() {
    DelKnop.SetEnabled(true);
    const auto file = ChosenFile();
    if (!file) return;
    if (const auto picture = LoadPicture(*file, context_.services.codecs))
        BackPic.surface.SetPicture(*picture);
    // A little more than the canvas: the squeeze and the strip beside it are how previews look.
    const Rectangle shown{0, 0, BackPic.surface.ScaleWidth() - sidePanelWidth, BackPic.surface.ScaleHeight()};
    Image1.surface.PaintPicture(BackPic.surface.Image(),
                                {0, 0, Image1.surface.ScaleWidth(), Image1.surface.ScaleHeight()}, shown);
}

void OpenFile::OpenChosen() {
    const std::string name = List1.Text();
    const auto file = ChosenFile();
    context_.session.DesignFile =
        file ? file->string() : DesignFile(context_.services.applicationFolder, name, designPicture);
    if (!file) return;
    const auto picture = LoadPicture(*file, context_.services.codecs);
    if (!picture) return;
    ShowDesign(context_, name, *file, *picture, BackPic.surface.Image());
}

void OpenFile::OkKnop_Click() {
    // Opened or not, the user is back at the canvas and sees which design it holds.
    OpenChosen();
    Unload();
}

void OpenFile::DelKnop_Click() {
    const std::string name = List1.Text();
    const auto file = ChosenFile();
    // The row of a file called ".pat" is as good as none.
    if (!file || name.empty()) return;
    const int row = List1.ListIndex();
    // The question is Dutch in every language.
    const Answer answer =
        context_.services.platform.ShowMessage({.prompt = "Wilt u het ontwerp '" + name + "' verwijderen?",
                                                .title = "Delete",
                                                .buttons = MessageButtons::YesNo,
                                                .icon = MessageIcon::Question,
                                                .standard = Answer::No});
    if (answer != Answer::Yes) return;
    // A file that can't be deleted, or is gone already, is passed over: the row goes all the same.
    const auto text = FindInfoText(*file);
    static_cast<void>(DeleteFile(*file));
    List1.RemoveItem(row);
    files_.erase(files_.begin() + row);
    Image1.surface.Cls();
    if (text) static_cast<void>(DeleteFile(*text));
}

}  // namespace coinlet
