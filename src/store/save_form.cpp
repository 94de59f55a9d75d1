#include "store/save_form.h"

#include "base/desktop.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"
#include "store/bmp_to_jpeg.h"
#include "store/composed_picture.h"
#include "store/design_files.h"
#include "store/info_text.h"
#include "store/save_form_layout.h"
#include "surface/codecs.h"

#include <string>

namespace coinlet {

namespace {

constexpr int exportQuality = 100;
constexpr Colour barColour = RGB(0, 240, 0);

/// The scratch file of an export; it goes with this object. Another program may have an export under way with
/// a file of the same name: what counts is the bytes that were written, not what the file holds by now.
class ScratchBitmap {
public:
    ScratchBitmap(const fs::path& folder, const Image& image)
        : path_(folder / "mydummy.bmp"), bytes_(EncodeBmp(image).value_or(Bytes())) {
        written_ = !bytes_.empty() && !ReplaceFile(path_, bytes_, SystemFileCalls(), Links::Replaced);
    }
    ScratchBitmap(const ScratchBitmap&) = delete;
    ScratchBitmap& operator=(const ScratchBitmap&) = delete;
    ~ScratchBitmap() {
        if (written_) static_cast<void>(DeleteFile(path_));
    }

    bool Written() const { return written_ && FileExists(path_); }
    const Bytes& Content() const { return bytes_; }

private:
    fs::path path_;
    Bytes bytes_;
    bool written_ = false;
};

}  // namespace

SaveForm::SaveForm(Context& context) : Form(context.services.ForForms(), "SaveForm"), context_(context) {
    LayOutSaveForm(*this);
    SaveKnop.Click = [this] { SaveKnop_Click(); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
    DefaultButton = &SaveKnop;
}

bool SaveForm::Exports() const {
    return context_.session.SaveMode == "JPG";
}

void SaveForm::Form_Load() {
    Caption = Exports() ? "Export to JPG image" : "Save Coinlet";
    if (Exports()) ShowHint(context_, key::exportImage);
    Label1.Caption = "0%";
    Text1.SetText(context_.session.DesignName);
    Check1.Visible = Exports();
    const Image canvas = context_.main.Pic.surface.Image();
    const Image sidePanel = context_.main.InfoPic.surface.Image();
    for (PictureBox* composing : {&Orgineel, &BmpPic})
        ComposePicture(canvas, sidePanel, composing->surface);
    composed_ = RevisionOf(context_.main);
    Text1.SetFocus();
}

void SaveForm::SaveKnop_Click() {
    if (TrimBlanks(Text1.Text()).empty()) return;
    if (!(Exports() ? ExportJpeg() : SaveDesign())) return;
    const std::string hint = context_.main.InfoLabel.Caption;
    ShowProgress();
    context_.services.platform.Screen.MousePointer = toolPointer;
    // Who closes the dialog while the bar runs can draw on: that isn't stored.
    if (RevisionOf(context_.main) == composed_) context_.session.DesignChanged = false;
    CloseDialogAfterWork(context_, *this, hint);
}

bool SaveForm::ExportJpeg() {
    const Services& services = context_.services;
    const ScratchBitmap scratch(services.applicationFolder,
                                (WithSidePanel() ? Orgineel : context_.main.Pic).surface.Image());
    if (!scratch.Written()) {
        services.platform.ShowMessage({.prompt = "File save not as JPG!"});
        return false;
    }
    const std::string fileName = Text1.Text() + ".jpg";
    const fs::path folder = services.desktop.PictureFolder();
    const auto older = FindFile(folder, fileName);
    const std::string target = older ? older->string() : (folder / "").string() + fileName;
    context_.session.DesignFile = target;
    if (!IsFileName(fileName)) return true;
    if (!MayWrite(target)) return false;
    BmpToJpeg(scratch.Content(), target, exportQuality, services.codecs);
    return true;
}

bool SaveForm::SaveDesign() {
    const fs::path& folder = context_.services.applicationFolder;
    const std::string name = Text1.Text();
    const auto target = DesignPicture(folder, name);
    context_.session.DesignFile = target ? target->string() : DesignFile(folder, name, designPicture);
    if (!target) return true;
    if (!MayWrite(*target)) return false;
    // A user who isn't told of a failure finds the older design untouched, and his work at the next start
    // unless he is asked about it when he leaves and gives it up.
    bool isStored = !SavePicture(BmpPic.surface.Image(), *target);
    if (context_.main.List2.ListCount() > 0) isStored = !WriteDesignInfoText(context_, name) && isStored;
    if (isStored) {
        context_.session.StoredDesign = composed_;
        context_.main.Label2.ToolTipText = target->string();
    }
    return true;
}

bool SaveForm::MayWrite(const fs::path& path) {
    if (!FileExists(path)) return true;
    const Answer answer =
        context_.services.platform.ShowMessage({.prompt = LookupInfoText(context_, key::confirmOverwrite),
                                                .title = " Exist",
                                                .buttons = MessageButtons::YesNo,
                                                .icon = MessageIcon::Question,
                                                .standard = Answer::No});
    return answer == Answer::Yes;
}

/// The files are written by now: the bar is the sign to the user that the saving is done.
void SaveForm::ShowProgress() {
    constexpr int end = 300, step = 2, barBottom = 18;
    Platform& platform = context_.services.platform;
    platform.Screen.MousePointer = hourglassPointer;
    Text1.Visible = false;
    Bar.Visible = true;
    for (int i = 0; i <= end; i += step) {
        Bar.surface.Line(0, 0, i, barBottom, barColour, Box::Filled);
        Label1.Caption = std::to_string(RoundHalfEven(i / 3.0)) + "%";
        platform.Wait(0.02);
    }
    Label1.Caption = "100%";
    platform.Wait(0.5);
}

}  // namespace coinlet
