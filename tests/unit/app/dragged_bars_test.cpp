// All scroll bars of the program, on every form that has one: what they set is seen while the thumb is
// dragged, but for the few whose work waits until the user lets it go.
#include "app/dialogs.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "core/tool_codes.h"
#include "designers/arc_form.h"
#include "libraries/border_form.h"
#include "libraries/dialog_form.h"
#include "libraries/symbol_form.h"
#include "surface/codecs.h"
#include "unit/app/delivered_program.h"

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace coinlet::test {
namespace {

std::string NameOf(const Element& element) {
    const std::string index = element.Index() == noIndex ? "" : "(" + std::to_string(element.Index()) + ")";
    return std::string(element.OwnerForm().Name()) + "." + std::string(element.Name()) + index;
}

/// What there is to see of forms and in the session, but for one bar itself.
class State : private PropertyVisitor {
public:
    State(Context& context, const std::vector<Form*>& forms, const ScrollBar& but) {
        owner_ = "Session";
        context.session.VisitProperties(*this);
        for (Form* form : forms) {
            for (Element* element : form->Elements()) {
                if (element == &but) continue;
                owner_ = NameOf(*element);
                element->VisitProperties(*this);
                if (const auto* picture = dynamic_cast<const PictureBox*>(element))
                    pictures_.emplace(owner_, picture->Image());
            }
        }
    }
    friend bool operator==(const State& a, const State& b) {
        return a.properties_ == b.properties_ && a.pictures_ == b.pictures_;
    }

private:
    void Visit(const Property& property) override {
        properties_.emplace(owner_ + "." + std::string(property.name), AsText(property.get()));
    }

    std::string owner_;
    std::map<std::string, std::string> properties_;
    std::map<std::string, Image> pictures_;
};

/// What the user does to get at bars that aren't there for him at first, or have nothing to show.
struct Way {
    std::string_view form, bar;
    void (*go)(Form&);
};
template <class Kind>
Kind& As(Form& form) {
    return dynamic_cast<Kind&>(form);
}
void ShowFirstPicture(Form& form) {
    auto& dialog = As<DialogForm>(form);
    dialog.Dir1.Change();
    dialog.List1.UserPicks(0);
}
constexpr Way ways[] = {
    {"Main", "HScroll2", [](Form& form) { As<MainForm>(form).Vormen[2].Click(); }},
    {"Main", "HScroll3", [](Form& form) { As<MainForm>(form).Knop[eraseTool].PointerClicked(); }},
    {"Main", "HScroll4", [](Form& form) { As<MainForm>(form).Vormen[11].Click(); }},
    {"Main", "HScroll5", [](Form& form) { As<MainForm>(form).Knop[aboutTool].PointerClicked(); }},
    {"BorderForm", "HScroll1", [](Form& form) { As<BorderForm>(form).Check1.PointerClicked(); }},
    {"SymbolForm", "HScroll1", [](Form& form) { As<SymbolForm>(form).InstalKnop.PointerClicked(); }},
    {"ArcForm", "HScroll2", [](Form& form) { As<ArcForm>(form).Option1[2].PointerClicked(); }},
    {"ArcForm", "ColorScroll", [](Form& form) { As<ArcForm>(form).Option1[4].PointerClicked(); }},
    {"DialogForm", "HScroll1", ShowFirstPicture},
    {"DialogForm", "VScroll1", ShowFirstPicture},
};

void GoTo(ScrollBar& bar) {
    Form& form = bar.OwnerForm();
    for (const Way& way : ways)
        if (way.form == form.Name() && way.bar == bar.Name()) way.go(form);
}

/// They draw the polygon anew only when they are let go.
bool WaitsForItsRelease(const ScrollBar& bar) {
    const std::string name = NameOf(bar);
    return name == "PolygonForm.vsbNumberofSides" || name == "PolygonForm.vsbDiameter";
}

/// Larger than the viewport of the picture import, and no two parts of it are alike.
Image LargePicture() {
    Bitmap bitmap(1000, 700);
    for (int y = 0; y < bitmap.Height(); ++y) {
        for (int x = 0; x < bitmap.Width(); ++x)
            bitmap.Row(y)[x] = ToPixel(RGB(x % 256, y % 256, x / 256 * 16 + y / 256));
    }
    return Image(std::move(bitmap));
}

class DraggedBars : public DeliveredProgram {
protected:
    DraggedBars() {
        const auto bytes = EncodeBmp(LargePicture()).value();
        folder.Write("large.bmp", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    }

    void ExpectToFollowTheThumb(Form& form) {
        std::vector<ScrollBar*> bars;
        for (Element* element : form.Elements())
            if (auto* bar = dynamic_cast<ScrollBar*>(element)) bars.push_back(bar);
        for (ScrollBar* bar : bars)
            Drag(*bar);
    }

    std::vector<std::string> dragged;

private:
    State Seen(const ScrollBar& bar) { return {program.GetContext(), {&Main(), &bar.OwnerForm()}, bar}; }

    void Drag(ScrollBar& bar) {
        SCOPED_TRACE(NameOf(bar));
        dragged.push_back(NameOf(bar));
        GoTo(bar);
        EXPECT_TRUE(bar.Shown() && bar.Reachable());
        const int middle = bar.Lowest() + (bar.Highest() - bar.Lowest()) / 2;
        const int place = middle == bar.Value() ? bar.Highest() : middle;
        const State before = Seen(bar);
        bar.UserDrags(place);
        EXPECT_EQ(bar.Value(), place);
        const State whileDragged = Seen(bar);
        bar.UserReleases();
        const State letGo = Seen(bar);
        EXPECT_FALSE(letGo == before) << "it does nothing";
        EXPECT_TRUE(whileDragged == (WaitsForItsRelease(bar) ? before : letGo));
    }
};

TEST_F(DraggedBars, OfTheMainForm) {
    ExpectToFollowTheThumb(Main());
    EXPECT_EQ(dragged.size(), 5U);
}

TEST_F(DraggedBars, OfEveryDialog) {
    for (const DialogRow& row : Dialogs()) {
        platform.doings.emplace_back([&] {
            Form& dialog = *platform.FrontForm();
            ExpectToFollowTheThumb(dialog);
            dialog.Unload();
        });
        row.open(program.GetContext());
    }
    EXPECT_FALSE(dragged.empty());
}

}  // namespace
}  // namespace coinlet::test
