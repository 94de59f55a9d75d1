#include "collection/collection_form.h"

#include "base/files.h"
#include "base/program_folders.h"
#include "base/text.h"
#include "collection/collection_file.h"
#include "collection/collection_form_layout.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/language.h"
#include "core/text_keys.h"
#include "surface/codecs.h"

#include <algorithm>
#include <vector>

namespace coinlet {

namespace {

fs::path CatalogueFolder(const Context& context) {
    return context.services.applicationFolder / program_folder::collection;
}

fs::path CatalogueFile(const Context& context) {
    return CatalogueFolder(context) / "Collection.col";
}

/// The picture of a number, in whatever case its name is written; nothing if there is none.
std::optional<fs::path> PictureFile(const Context& context, const std::string& number) {
    return FindFile(CatalogueFolder(context), number + ".jpg");
}

}  // namespace

CollectionForm::CollectionForm(Context& context)
    : Form(context.services.ForForms(), "CollectionForm"), context_(context) {
    LayOutCollectionForm(*this);
    List1.Click = [this] { List1_Click(); };
    Text1.KeyDown = [this](int code, int) {
        if (code == keyReturn && AddKnop.Enabled()) AddKnop_Click();
    };
    AddKnop.Click = [this] { AddKnop_Click(); };
    ChangeKnop.Click = [this] { ChangeKnop_Click(); };
    DelKnop.Click = [this] { DelKnop_Click(); };
    HelpKnop.Click = [this] { HelpKnop_Click(); };
    OkKnop.Click = [this] { OkKnop_Click(); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
}

void CollectionForm::Form_Load() {
    Text4.SetText(LookupInfoText(context_, key::collectionHelp));
    LoadCollection();
    ShowCount();
    Text1.SetFocus();
}

void CollectionForm::Form_Unload(bool& cancel) {
    // The help is left by its own button alone.
    cancel = Text4.Visible;
}

void CollectionForm::LoadCollection() {
    List1.Clear();
    Collection collection = ReadCollection(CatalogueFile(context_));
    readable_ = collection.readable;
    // The list sorts them too, but row by row.
    std::ranges::stable_sort(collection.numbers, ComesBefore);
    for (const std::string& number : collection.numbers)
        List1.AddItem(number);
}

void CollectionForm::SaveCollection() {
    std::vector<std::string> numbers;
    numbers.reserve(static_cast<std::size_t>(List1.ListCount()));
    for (int i = 0; i < List1.ListCount(); ++i)
        numbers.push_back(List1.List(i));
    WriteCollection(CatalogueFile(context_), numbers);
}

void CollectionForm::ShowCount() {
    Label5.Caption = std::to_string(List1.ListCount()) + " Items";
}

void CollectionForm::List1_Click() {
    Text1.SetText(List1.Text());
    ShowPictureOf(Text1.Text());
}

void CollectionForm::ShowPictureOf(const std::string& number) {
    const auto file = PictureFile(context_, number);
    if (!file) return ShowNoPicture();
    // A file that holds no picture leaves the one before it.
    if (const auto picture = LoadPicture(*file, context_.services.codecs))
        BackPic.surface.SetPicture(*picture);
    const Image loaded = BackPic.surface.Image();
    if (loaded.Empty()) return ShowNoPicture();
    Image1.surface.PaintPicture(loaded,
                                Rectangle{0, 0, Image1.surface.ScaleWidth(), Image1.surface.ScaleHeight()});
    Image1.Visible = true;
}

void CollectionForm::ShowNoPicture() {
    Image1.surface.Cls();
    Image1.Visible = false;
}

bool CollectionForm::HasNumber() {
    if (!TrimBlanks(Text1.Text()).empty()) return true;
    context_.services.platform.ShowMessage(
        {.prompt = "Serial / ID number nesserary!", .title = "My Collection", .icon = MessageIcon::Stop});
    Text1.SetFocus();
    return false;
}

void CollectionForm::AddKnop_Click() {
    if (!HasNumber()) return;
    List1.AddItem(Text1.Text());
    Text1.SetText("");
    Text1.SetFocus();
}

void CollectionForm::ChangeKnop_Click() {
    if (HasNumber()) List1.SetList(List1.ListIndex(), Text1.Text());
}

void CollectionForm::DelKnop_Click() {
    if (List1.ListCount() == 0) return;
    const int row = List1.ListIndex();
    const std::string name = List1.Text();
    const Answer answer = context_.services.platform.ShowMessage(
        {.prompt = "Do you delete number '" + name + "' from this list?",
         .title = "Delete Item",
         .buttons = MessageButtons::YesNo,
         .icon = MessageIcon::Question,
         .standard = Answer::No});
    if (answer != Answer::Yes) return;
    List1.RemoveItem(row);
    ShowCount();
    // Without a choice nothing is meant, also no file that is called ".jpg".
    if (row >= 0) DeletePictureOf(name);
    ShowNoPicture();
}

void CollectionForm::DeletePictureOf(const std::string& number) {
    const auto picture = PictureFile(context_, number);
    if (!picture) return;
    // A picture whose name differs in case may be that of another number.
    const std::string itsNumber = picture->stem().string();
    if (itsNumber != number && List1.Rows().Find(itsNumber) >= 0) return;
    static_cast<void>(DeleteFile(*picture));
}

void CollectionForm::HelpKnop_Click() {
    const bool help = !Text4.Visible;
    List1.Visible = !help;
    Label6.Visible = help;
    Text4.Visible = help;
    for (VistaButton* button : {&AddKnop, &DelKnop, &ChangeKnop, &CancelKnop, &OkKnop})
        button->SetEnabled(!help);
}

void CollectionForm::OkKnop_Click() {
    if (!readable_) {
        // What the user never saw isn't replaced by what he typed, and what he typed isn't dropped in
        // silence.
        context_.services.platform.ShowMessage({.prompt = LookupInfoText(context_, key::collectionUnreadable),
                                                .title = "My Collection",
                                                .icon = MessageIcon::Stop});
        return;
    }
    SaveCollection();
    CloseDialog(context_, *this);
}

}  // namespace coinlet
