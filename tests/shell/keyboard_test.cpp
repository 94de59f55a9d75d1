// Everything by keys: menus, what is pressed, lists, options; and that one sees where the keys go.

#include "sample_form.h"
#include "shell/form_window.h"
#include "user.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

namespace coinlet::test {
namespace {

struct KeyForm : SampleForm {
    explicit KeyForm(FormServices services) : SampleForm(services) {
        Field.Move(400 * 15, 240 * 15, 60 * 15, 20 * 15);
        Field.LetKeysPress();
        Field.MouseDown = [this](int, int, float, float) { log.emplace_back("Field"); };
        Rows.Move(480 * 15, 240 * 15, 60 * 15, 80 * 15);
        Rows.SetPressPlaces({{10, 10, 20, 20}, {10, 50, 20, 20}});
        Rows.MouseDown = [this](int, int, float x, float y) {
            log.push_back("Rows " + std::to_string(static_cast<int>(x)) + "," +
                          std::to_string(static_cast<int>(y)));
        };
        OkKnop.Click = [this] {
            log.emplace_back("OkKnop");
            GetPlatform().PopupMenu(Shapes);
        };
    }
    MenuItem ShapesMoon{Shapes, "ShapesMoon", "Moon"};
    MenuItem ShapesSun{Shapes, "ShapesSun", "Sun"};
    MenuItem EditMore{Edit, "EditMore", "More"};
    MenuItem EditLast{EditMore, "EditLast", "Last"};
    Label Field{*this, "Field"};
    PictureBox Rows{*this, "Rows"};
};

class Keyboard : public ShellTest {
protected:
    Keyboard() {
        form.ShapesMoon.Click = [this] { form.log.emplace_back("ShapesMoon"); };
        form.ShapesSun.Click = [this] { form.log.emplace_back("ShapesSun"); };
        form.EditLast.Click = [this] { form.log.emplace_back("EditLast"); };
    }

    bool IsOpen(User& user, const MenuItem& menu) {
        return user.Sees([&] { return platform.WindowOf(form)->PopupOf(menu)->isVisible(); });
    }
    bool NoMenuIsOpen(User& user) {
        return user.Sees([&] {
            return QApplication::activePopupWidget() == nullptr &&
                   !platform.WindowOf(form)->findChild<QMenuBar*>()->hasFocus();
        });
    }
    bool Happens(User& user, const std::string& event, int times = 1) {
        return user.Sees([&] { return form.Count(event) == times; });
    }
    void FocusOn(User& user, Control& control) {
        user.Has([&] {
            control.SetFocus();
            platform.Mirror();
        });
    }
    /// How many pixels of a control are shown in a colour.
    int PixelsOf(User& user, const Control& control, Colour colour) {
        int count = 0;
        user.Has([&] {
            const QImage look = WidgetOf(control).grab().toImage().convertToFormat(QImage::Format_RGB32);
            const QRgb wanted = qRgb(Red(colour), Green(colour), Blue(colour));
            for (int y = 0; y < look.height(); ++y)
                for (int x = 0; x < look.width(); ++x)
                    if (look.pixel(x, y) == wanted) ++count;
        });
        return count;
    }
    QWidget& WidgetOf(const Control& control) { return platform.WindowOf(form)->ViewOf(control)->Widget(); }

    KeyForm form{services};
};

TEST_F(Keyboard, AltWithALetterOpensAMenuAndALetterChooses) {
    Run(form, [&](User& user) {
        user.Key("alt+f");
        EXPECT_TRUE(IsOpen(user, form.File));
        user.Key("n");
        EXPECT_TRUE(Happens(user, "FileNew"));
        // A menu in a menu.
        user.Key("alt+e");
        EXPECT_TRUE(IsOpen(user, form.Edit));
        user.Key("m");
        EXPECT_TRUE(IsOpen(user, form.EditMore));
        user.Key("l");
        EXPECT_TRUE(Happens(user, "EditLast"));
        EXPECT_TRUE(NoMenuIsOpen(user));
        // What pops up is in no bar.
        user.Key("alt+s");
        user.Key("alt+f");
        EXPECT_TRUE(IsOpen(user, form.File));
        EXPECT_FALSE(platform.WindowOf(form)->PopupOf(form.Shapes)->isVisible());
    });
}

TEST_F(Keyboard, AltAloneLeadsIntoTheMenusAndStaysThere) {
    form.Timer1.Interval = 20;
    Run(form, [&](User& user) {
        FocusOn(user, form.Text1);
        user.Key("Alt_L");
        EXPECT_TRUE(user.Sees([&] { return platform.WindowOf(form)->findChild<QMenuBar*>()->hasFocus(); }));
        // Whatever ticks meanwhile.
        const int ticks = form.Count("Tick");
        EXPECT_TRUE(user.Sees([&] { return form.Count("Tick") > ticks + 3; }));
        user.Key("e");
        EXPECT_TRUE(IsOpen(user, form.Edit));
        user.Key("c");
        EXPECT_TRUE(Happens(user, "EditCopy"));
        // It goes back to the field it came from.
        EXPECT_TRUE(user.Sees([&] { return WidgetOf(form.Text1).hasFocus(); }));
        user.Key("Alt_L");
        EXPECT_TRUE(user.Sees([&] { return platform.WindowOf(form)->findChild<QMenuBar*>()->hasFocus(); }));
        user.Key("Escape");
        EXPECT_TRUE(user.Sees([&] { return WidgetOf(form.Text1).hasFocus(); }));
        EXPECT_TRUE(form.Text1.HasFocus());
    });
}

TEST_F(Keyboard, F10OpensTheFirstMenuAndArrowsWalk) {
    Run(form, [&](User& user) {
        FocusOn(user, form.Text2);
        user.Key("F10");
        EXPECT_TRUE(IsOpen(user, form.File));
        user.Key("Right");
        EXPECT_TRUE(IsOpen(user, form.Edit));
        user.Key("Left");
        EXPECT_TRUE(IsOpen(user, form.File));
        user.Key("Escape");
        user.Key("Escape");
        EXPECT_TRUE(NoMenuIsOpen(user));
        EXPECT_EQ(form.Count("FileNew"), 0);
        user.Key("F10");
        EXPECT_TRUE(IsOpen(user, form.File));
        user.Key("Return");
        EXPECT_TRUE(Happens(user, "FileNew"));
        EXPECT_TRUE(user.Sees([&] { return WidgetOf(form.Text2).hasFocus(); }));
    });
}

TEST_F(Keyboard, APopupAskedForByAKeyStandsAtItsButton) {
    Run(form, [&](User& user) {
        user.MoveTo(user.PlaceOf(form.Label1, 5, 5));
        FocusOn(user, form.OkKnop);
        user.Key("space");
        EXPECT_TRUE(IsOpen(user, form.Shapes));
        user.Has([&] {
            const QWidget& button = WidgetOf(form.OkKnop);
            const QMenu* popup = platform.WindowOf(form)->PopupOf(form.Shapes);
            EXPECT_EQ(popup->pos(), button.mapToGlobal(QPoint(0, button.height())));
            ASSERT_NE(popup->activeAction(), nullptr);
            EXPECT_EQ(popup->activeAction()->text().remove('&'), "Star");
        });
        user.Key("m");
        EXPECT_TRUE(Happens(user, "ShapesMoon"));
        // By arrows; the button has the keys again.
        user.Key("space");
        EXPECT_TRUE(IsOpen(user, form.Shapes));
        user.Key("Down");
        user.Key("Down");
        user.Key("Return");
        EXPECT_TRUE(Happens(user, "ShapesSun"));
        user.Key("space");
        EXPECT_TRUE(IsOpen(user, form.Shapes));
        user.Key("Escape");
        EXPECT_TRUE(NoMenuIsOpen(user));
        EXPECT_EQ(form.Count("ShapesMoon") + form.Count("ShapesSun") + form.Count("ShapesStar"), 2);
        EXPECT_TRUE(form.OkKnop.HasFocus());
        // Asked for by the pointer it stands there.
        const QPoint place = user.PlaceOf(form.OkKnop, 40, 14);
        user.Click(place);
        EXPECT_TRUE(IsOpen(user, form.Shapes));
        user.Has([&] { EXPECT_EQ(platform.WindowOf(form)->PopupOf(form.Shapes)->pos(), place); });
    });
}

TEST_F(Keyboard, FieldsAndPlacesArePressedByKeys) {
    Run(form, [&](User& user) {
        FocusOn(user, form.Field);
        user.Key("Return");
        EXPECT_TRUE(Happens(user, "Field"));
        user.Key("space");
        EXPECT_TRUE(Happens(user, "Field", 2));
        user.Key("Tab");
        EXPECT_TRUE(user.Sees([&] { return form.Rows.HasFocus(); }));
        user.Key("Down");
        user.Key("space");
        EXPECT_TRUE(Happens(user, "Rows 20,60"));
        user.Key("Up");
        user.Key("Return");
        EXPECT_TRUE(Happens(user, "Rows 20,20"));
    });
}

TEST_F(Keyboard, LettersLeadToRowsUntilASecondHasPassed) {
    Run(form, [&](User& user) {
        user.Has([&] { form.List1.AddItem("B\u00E9ret"), platform.Mirror(); });
        FocusOn(user, form.List1);
        user.Type("ber");
        EXPECT_TRUE(user.Sees([&] { return form.List1.Text() == "B\u00E9ret"; }));
        EXPECT_TRUE(user.Sees([&] { return form.List1.TypingTimer() == nullptr; }));
        user.Type("CR");
        EXPECT_TRUE(user.Sees([&] { return form.List1.Text() == "Crown"; }));
    });
}

TEST_F(Keyboard, ListsShowWholeRows) {
    Run(form, [&](User& user) {
        user.Has([&] {
            for (int i = 0; i < 30; ++i)
                form.List1.AddItem("row");
            platform.Mirror();
            const auto& list = dynamic_cast<const QAbstractItemView&>(WidgetOf(form.List1));
            const int row = form.List1.RowPixels();
            EXPECT_EQ(list.visualRect(list.model()->index(0, 0)).height(), row);
            EXPECT_EQ(list.viewport()->height(), form.List1.VisibleRows() * row);
        });
    });
}

TEST_F(Keyboard, ADroppedListIsSearchedByLettersAndTheCaretStandsBehindTheChoice) {
    Run(form, [&](User& user) {
        user.Has([&] { form.Combo1.AddItem("\u00C9tude"), platform.Mirror(); });
        user.Click(form.Combo1, 112, 11);
        EXPECT_TRUE(user.Sees([&] { return QApplication::activePopupWidget() != nullptr; }));
        user.Type("et");
        user.Key("Return");
        EXPECT_TRUE(user.Sees([&] { return form.Combo1.Text() == "\u00C9tude"; }));
        user.Type("s");
        EXPECT_TRUE(user.Sees([&] { return form.Combo1.Text() == "\u00C9tudes"; }));
        // So it does where the arrows choose.
        user.Key("Home");
        user.Key("Down");
        EXPECT_TRUE(user.Sees([&] { return form.Combo1.Text() == "Arial"; }));
        user.Type("x");
        EXPECT_TRUE(user.Sees([&] { return form.Combo1.Text() == "Arialx"; }));
    });
}

// Around what has the keys lies a ring; on a picture with places it lies around the place.
TEST_F(Keyboard, OneSeesWhereTheKeysGo) {
    constexpr Colour ring = RGB(60, 127, 177);
    Run(form, [&](User& user) {
        user.MoveTo({1300, 1000});
        const auto shows = [&](const QPoint& place, bool ringed) {
            return user.Sees([] { return true; }) && (user.ColourAt(place) == ring) == ringed;
        };
        const auto comes = [&](const QPoint& place, bool ringed) {
            for (int i = 0; i < 200 && !shows(place, ringed); ++i)
                std::this_thread::sleep_for(std::chrono::milliseconds(10));
            return shows(place, ringed);
        };
        for (Control* control : {static_cast<Control*>(&form.Text1), static_cast<Control*>(&form.Text2),
                                 static_cast<Control*>(&form.List1), static_cast<Control*>(&form.Combo1),
                                 static_cast<Control*>(&form.HScroll1), static_cast<Control*>(&form.Field)}) {
            SCOPED_TRACE(control->Name());
            const QPoint above = user.PlaceOf(*control, control->PixelWidth() / 2, -1);
            const QPoint beside = user.PlaceOf(*control, control->PixelWidth(), control->PixelHeight() / 2);
            EXPECT_TRUE(comes(above, false));
            FocusOn(user, *control);
            EXPECT_TRUE(comes(above, true));
            EXPECT_TRUE(comes(beside, true));
            FocusOn(user, form.OkKnop);
            EXPECT_TRUE(comes(above, false));
        }
        for (Control* choice : {static_cast<Control*>(&form.Check1), static_cast<Control*>(&form.Option1)}) {
            SCOPED_TRACE(choice->Name());
            EXPECT_EQ(PixelsOf(user, *choice, ring), 0);
            FocusOn(user, *choice);
            EXPECT_GT(PixelsOf(user, *choice, ring), 0);
            FocusOn(user, form.OkKnop);
            EXPECT_EQ(PixelsOf(user, *choice, ring), 0);
        }
        FocusOn(user, form.Rows);
        const QPoint first = user.PlaceOf(form.Rows, 8, 20), second = user.PlaceOf(form.Rows, 8, 60);
        EXPECT_TRUE(comes(first, true));
        EXPECT_TRUE(comes(second, false));
        user.Key("Down");
        EXPECT_TRUE(comes(second, true));
        EXPECT_TRUE(comes(first, false));
        // The ring is nothing to click at.
        user.Click(user.PlaceOf(form.Text1, 40, -1));
        FocusOn(user, form.Text1);
        user.Click(user.PlaceOf(form.Text1, 40, -1));
        user.Key("End");
        user.Type("x");
        EXPECT_TRUE(user.Sees([&] { return form.Text1.Text() == "Coinletx"; }));
    });
}

}  // namespace
}  // namespace coinlet::test
