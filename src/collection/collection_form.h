#pragma once

#include "controls/form.h"
#include "controls/label.h"
#include "controls/list_box.h"
#include "controls/picture_box.h"
#include "controls/text_box.h"
#include "controls/vista_button.h"

#include <string>

namespace coinlet {

struct Context;

/// A catalogue of the tags that the user owns: their numbers, and a picture of each that he has put beside
/// the catalogue. The list is written when he saves; a picture that he deletes is gone at once.
class CollectionForm : public Form {
public:
    explicit CollectionForm(Context& context);

    ListBox List1{*this, "List1"};         ///< The numbers.
    Label Label6{*this, "Label6"};         ///< The ground of the help text, in the place of the list.
    TextBox Text4{*this, "Text4"};         ///< The help text.
    Label Label1{*this, "Label1"};         ///< What shows where there is no picture.
    PictureBox Image1{*this, "Image1"};    ///< The picture of the chosen number.
    PictureBox BackPic{*this, "BackPic"};  ///< The picture in its own size; hidden.
    Label Label2{*this, "Label2"};         ///< What Text1 is for.
    TextBox Text1{*this, "Text1"};         ///< The number being edited.
    VistaButton AddKnop{*this, "AddKnop"};
    VistaButton ChangeKnop{*this, "ChangeKnop"};
    VistaButton DelKnop{*this, "DelKnop"};
    Label Label5{*this, "Label5"};  ///< How many there are.
    VistaButton HelpKnop{*this, "HelpKnop"};
    VistaButton OkKnop{*this, "OkKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    void Form_Load() override;
    void Form_Unload(bool& cancel) override;

private:
    void LoadCollection();
    void SaveCollection();
    void List1_Click();
    void AddKnop_Click();
    void ChangeKnop_Click();
    void DelKnop_Click();
    void HelpKnop_Click();
    void OkKnop_Click();

    /// True if there is a number to take; else the user is told, and sent back to the field.
    bool HasNumber();
    void ShowPictureOf(const std::string& number);
    void ShowNoPicture();
    void DeletePictureOf(const std::string& number);
    void ShowCount();

    Context& context_;
    bool readable_ = true;  ///< False: a catalogue is there that the list doesn't show.
};

}  // namespace coinlet
