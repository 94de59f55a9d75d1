// What each kind of control looks like in a window, and what the user does to it.

#include "controls/text_lines.h"
#include "sample_form.h"
#include "shell/form_window.h"
#include "user.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

#include <functional>
#include <map>
#include <memory>

namespace coinlet::test {
namespace {

class Controls : public ShellTest {
protected:
    SampleForm form{services};
};

TEST_F(Controls, StandWhereTheFormSays) {
    const std::map<const Control*, QRect> places{
        {&form.Label1, {16, 16, 120, 16}},
        {&form.Label2, {16, 40, 160, 20}},
        // 20 letters of 4 pixels, one line of 8: the blocks of the test's font at 8.25 points.
        {&form.Label3, {16, 68, 80, 8}},
        {&form.Text1, {16, 92, 160, 22}},
        {&form.Text2, {16, 120, 160, 60}},
        {&form.Check1, {16, 188, 160, 20}},
        {&form.Frame1, {16, 216, 160, 72}},
        {&form.Option1, {12, 20, 120, 20}},
        {&form.Option2, {12, 44, 120, 20}},
        {&form.HScroll1, {16, 296, 160, 17}},
        {&form.VScroll1, {560, 16, 17, 160}},
        {&form.List1, {192, 16, 120, 100}},
        {&form.Combo1, {192, 124, 120, 22}},
        {&form.Pic, {328, 16, 200, 200}},
        {&form.PicKnop, {8, 168, 48, 24}},
        {&form.OkKnop, {192, 352, 80, 28}},
        {&form.GrayKnop, {288, 352, 80, 28}},
    };
    Run(form, [&](User& user) {
        user.Has([&] {
            for (const auto& [control, place] : places) {
                const ControlView* view = platform.WindowOf(form)->ViewOf(*control);
                ASSERT_NE(view, nullptr) << control->Name();
                EXPECT_EQ(view->Widget().geometry(), place) << control->Name();
                EXPECT_TRUE(view->Widget().isVisible()) << control->Name();
            }
            EXPECT_EQ(&platform.WindowOf(form)->ViewOf(form.Option1)->Widget(),
                      platform.WindowOf(form)->ViewOf(form.Frame1)->Widget().childAt(13, 21));
        });
        // On the screen itself: the form, a field, a shape on the picture, a line on the form.
        const QPoint corner = user.PlaceOf(form.Label1, 0, 0);
        EXPECT_TRUE(user.Sees([] { return true; }));
        EXPECT_EQ(user.ColourAt(corner - QPoint(8, 8)), RGB(220, 220, 190));
        EXPECT_EQ(user.ColourAt(user.PlaceOf(form.List1, 60, 95)), RGB(0, 0, 50));
        EXPECT_EQ(user.ColourAt(user.PlaceOf(form.Pic, 150, 25)), RGB(200, 0, 0));
        EXPECT_EQ(user.ColourAt(user.PlaceOf(form.Pic, 160, 25)), white);
        EXPECT_EQ(user.ColourAt(corner + QPoint(100, 320)), RGB(0, 0, 255));
    });
}

TEST_F(Controls, FollowTheFormAfterEachEvent) {
    form.OkKnop.Click = [this] {
        form.Label1.Caption = "Changed";
        form.Label1.Move(32 * 15, 8 * 15, 60 * 15, 12 * 15);
        form.Check1.Visible = false;
        form.GrayKnop.SetEnabled(true);
        form.Shape1.SetLeft(100);
        form.Caption = "Another title";
    };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] { return form.Label1.Caption == "Changed"; }));
        user.Has([&] {
            const FormWindow* window = platform.WindowOf(form);
            EXPECT_EQ(window->ViewOf(form.Label1)->Widget().geometry(), QRect(32, 8, 60, 12));
            EXPECT_EQ(window->ViewOf(form.Label1)->Widget().accessibleName(), "Changed");
            EXPECT_FALSE(window->ViewOf(form.Check1)->Widget().isVisible());
            EXPECT_TRUE(window->ViewOf(form.GrayKnop)->Widget().isEnabled());
            EXPECT_EQ(window->windowTitle(), "Another title");
        });
        EXPECT_EQ(user.ColourAt(user.PlaceOf(form.Pic, 100, 25)), RGB(200, 0, 0));
        EXPECT_EQ(user.ColourAt(user.PlaceOf(form.Pic, 189, 25)), white);
        user.Click(form.GrayKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] { return form.Count("GrayKnop") == 1; }));
    });
}

// A shape may be as large as any number that a user types; of the largest nothing is seen.
TEST_F(Controls, MonstrousShapesAreNoHarm) {
    int step = 0;
    form.OkKnop.Click = [&] {
        constexpr double sizes[] = {1e9, 1e300, -1e300, 70000, 0, 30};
        const double size = sizes[step++];
        form.Shape1.Form = ShapeForm::Circle;
        form.Shape1.Move(100 - size, 100 - size, 2 * size, 2 * size);
        form.Label1.Caption = std::to_string(step);
    };
    Run(form, [&](User& user) {
        for (int i = 1; i <= 6; ++i) {
            user.Click(form.OkKnop, 40, 14);
            EXPECT_TRUE(user.Sees([&] { return form.Label1.Caption == std::to_string(i); }));
            EXPECT_EQ(user.ColourAt(user.PlaceOf(form.Pic, 70, 100)), i < 6 ? white : RGB(200, 0, 0));
        }
    });
}

TEST_F(Controls, ButtonHoversPressesAndClicks) {
    Run(form, [&](User& user) {
        user.MoveTo(user.PlaceOf(form.OkKnop, 40, 14));
        EXPECT_TRUE(user.Sees([&] { return form.OkKnop.State() == ButtonState::Hover; }));
        EXPECT_TRUE(user.Sees([&] { return platform.IsPointerOver(form.OkKnop); }));
        user.Press();
        EXPECT_TRUE(user.Sees([&] { return form.OkKnop.State() == ButtonState::Pressed; }));
        user.Release();
        EXPECT_TRUE(user.Sees([&] { return form.Count("OkKnop") == 1; }));
        user.MoveTo(user.PlaceOf(form.OkKnop, 40, -20));
        EXPECT_TRUE(user.Sees([&] { return form.Count("MouseOut") == 1; }));
        EXPECT_TRUE(user.Sees([&] { return !platform.IsPointerOver(form.OkKnop); }));
    });
}

TEST_F(Controls, ButtonLetGoOutsideDoesNotClick) {
    Run(form, [&](User& user) {
        user.MoveTo(user.PlaceOf(form.OkKnop, 40, 14));
        user.Press();
        EXPECT_TRUE(user.Sees([&] { return form.OkKnop.State() == ButtonState::Pressed; }));
        user.MoveTo(user.PlaceOf(form.OkKnop, 40, -20));
        user.Release();
        // A click on another control comes after anything that the release could have done.
        user.Click(form.Check1, 5, 10);
        EXPECT_TRUE(user.Sees([&] { return form.Count("Check1") == 1; }));
        EXPECT_EQ(form.Count("OkKnop"), 0);
    });
}

TEST_F(Controls, DisabledButtonPassesNothingOn) {
    Run(form, [&](User& user) {
        user.Click(form.GrayKnop, 40, 14);
        user.Click(form.PicKnop, 20, 12);
        EXPECT_TRUE(user.Sees([&] { return form.Count("PicKnop") == 1; }));
        EXPECT_EQ(form.Count("GrayKnop"), 0);
        EXPECT_EQ(form.Count("PicDown"), 0);  // The button covers the picture.
    });
}

TEST_F(Controls, SpaceBarPressesTheFocusedButton) {
    Run(form, [&](User& user) {
        user.Has([&] { form.OkKnop.SetFocus(), platform.Mirror(); });
        user.Key("space");
        EXPECT_TRUE(user.Sees([&] { return form.Count("OkKnop") == 1; }));
    });
}

TEST_F(Controls, TabWalksThroughThemInTheirOrder) {
    Run(form, [&](User& user) {
        user.Click(form.Text1, 80, 11);
        EXPECT_TRUE(user.Sees([&] { return form.Text1.HasFocus(); }));
        user.Key("Tab");
        EXPECT_TRUE(user.Sees([&] { return form.Text2.HasFocus(); }));
        user.Key("Tab");
        EXPECT_TRUE(user.Sees([&] { return form.Check1.HasFocus(); }));
        user.Key("shift+Tab");
        EXPECT_TRUE(user.Sees([&] {
            const QWidget& widget = platform.WindowOf(form)->ViewOf(form.Text2)->Widget();
            return form.Text2.HasFocus() && widget.hasFocus();
        }));
    });
}

TEST_F(Controls, TypingChangesTheTextLetterByLetter) {
    Run(form, [&](User& user) {
        user.Click(form.Text1, 150, 11);
        user.Type("s!");
        EXPECT_TRUE(user.Sees([&] { return form.Text1.Text() == "Coinlets!"; }));
        user.Key("BackSpace");
        EXPECT_TRUE(user.Sees([&] { return form.Text1.Text() == "Coinlets"; }));
        const std::vector<std::string> changes{"Text1 Coinlets", "Text1 Coinlets!", "Text1 Coinlets"};
        user.Has([&] { std::erase(form.log, "Activate"); });
        EXPECT_EQ(form.log, changes);

        user.Click(form.Text2, 60, 50);
        user.Key("ctrl+End");
        user.Key("Return");
        user.Type("x");
        EXPECT_TRUE(user.Sees([&] { return form.Text2.Text() == "First line\r\nSecond line\r\nx"; }));
    });
}

TEST_F(Controls, BlanksThatKeepWordsTogetherStay) {
    const std::string blank = "\xC2\xA0", lineEnd = "\xE2\x80\xA8", paragraphEnd = "\xE2\x80\xA9";
    Run(form, [&](User& user) {
        user.Has([&] { form.Text2.SetText("10" + blank + "mm\r\n20" + blank + "mm"); });
        user.Click(form.Text2, 60, 50);
        user.Key("ctrl+End");
        user.Type("!");
        EXPECT_TRUE(
            user.Sees([&] { return form.Text2.Text() == "10" + blank + "mm\r\n20" + blank + "mm!"; }));
        const auto pastes = [&](const std::string& text) {
            user.Has([&] { QGuiApplication::clipboard()->setText(QString::fromStdString(text)); });
            user.Key("ctrl+a");
            user.Key("ctrl+v");
        };
        for (const Control* field : {&form.Text1, &form.Text2}) {
            const auto& box = dynamic_cast<const TextBox&>(*field);
            user.Click(box, 60, 11);
            pastes("30" + blank + "mm");
            EXPECT_TRUE(user.Sees([&] { return box.Text() == "30" + blank + "mm"; })) << box.Name();
        }
        pastes("a" + lineEnd + "b" + paragraphEnd + "c\nd\r\ne");
        EXPECT_TRUE(user.Sees([&] { return form.Text2.Text() == "a\r\nb\r\nc\r\nd\r\ne"; }))
            << form.Text2.Text();
    });
}

/// The lines that a widget of several lines shows, with their line ends as in a control's text.
std::vector<std::string> ShownLines(const QPlainTextEdit& widget) {
    std::vector<std::string> lines;
    for (QTextBlock block = widget.document()->begin(); block.isValid(); block = block.next()) {
        const QTextLayout& layout = *block.layout();
        for (int i = 0; i < layout.lineCount(); ++i) {
            const QTextLine line = layout.lineAt(i);
            lines.push_back(block.text().mid(line.textStart(), line.textLength()).toStdString());
        }
        if (block.next().isValid()) lines.back() += "\r\n";
    }
    return lines;
}

TEST_F(Controls, CutTheirLinesWhereTheProgramDoes) {
    // 134 pixels of the box are for letters, 33 blocks of the test's font; the screen's own font is another.
    const std::string narrow(40, 'i'), wide(20, 'W'), blanks(20, ' ');
    const std::vector<std::string> texts{
        narrow + " " + wide + " " + narrow, wide + blanks + wide + blanks + blanks + "x\r\n\r\n" + blanks,
        "well-known words/with signs, and \xC3\xA9\xC3\xA9\xC3\xA9 \xF0\x9F\x98\x80\xF0\x9F\x98\x80 "
        "among them\r\n",
        ""};
    Run(form, [&](User& user) {
        const auto agree = [&] {
            const QWidget& widget = platform.WindowOf(form)->ViewOf(form.Text2)->Widget();
            return ShownLines(dynamic_cast<const QPlainTextEdit&>(widget)) == DisplayedLines(form.Text2);
        };
        for (const std::string& text : texts) {
            user.Has([&] { form.Text2.SetText(text); });
            user.MoveTo(user.PlaceOf(form.Text2, 20, 20));
            user.MoveTo(user.PlaceOf(form.Label1, 20, 5));
            EXPECT_TRUE(user.Sees(agree)) << text;
        }
        user.Click(form.Text2, 60, 50);
        user.Type("one two three four five six seven eight nine");
        EXPECT_TRUE(user.Sees([&] { return form.Text2.Text().ends_with("nine"); }));
        EXPECT_TRUE(user.Sees(agree));
        EXPECT_GT(DisplayedLines(form.Text2).size(), 1U);
        user.Has([&] { form.Text2.SetWidth(100 * 15); });
        user.Type(".");
        EXPECT_TRUE(user.Sees([&] { return form.Text2.Text().ends_with("."); }));
        EXPECT_TRUE(user.Sees(agree));
    });
}

TEST_F(Controls, FieldsOfOneLineTakeTheFirstLineHoweverItComes) {
    Run(form, [&](User& user) {
        const auto copied = [&](const char* text, QClipboard::Mode mode = QClipboard::Clipboard) {
            user.Has([&] { QGuiApplication::clipboard()->setText(QString::fromUtf8(text), mode); });
        };
        const auto shows = [&](const char* text) {
            return user.Sees([&] {
                const QWidget& widget = platform.WindowOf(form)->ViewOf(form.Text1)->Widget();
                return form.Text1.Text() == text &&
                       dynamic_cast<const QLineEdit&>(widget).text() == QString::fromUtf8(text);
            });
        };
        const auto send = [&](QEvent& event) {
            // Straight to the field: the toolkit delivers such events only while it drags or composes itself.
            user.Has([&] {
                QObject& widget = platform.WindowOf(form)->ViewOf(form.Text1)->Widget();
                widget.event(&event);
            });
        };
        user.Click(form.Text1, 150, 11);
        EXPECT_TRUE(user.Sees([&] { return form.Text1.HasFocus(); }));
        copied("s\r\nand more");
        user.Key("ctrl+v");
        EXPECT_TRUE(shows("Coinlets"));
        user.Has([&] { std::erase(form.log, "Activate"); });
        EXPECT_EQ(form.log, std::vector<std::string>{"Text1 Coinlets"});
        // In the place of what is selected; breaks in front are passed over.
        user.Key("ctrl+a");
        copied("\n72\n15\n8");
        user.Key("shift+Insert");
        EXPECT_TRUE(shows("72"));
        // What stands around the caret stays, and the caret stands behind what came.
        user.Key("Left");
        copied("1\n3");
        user.Key("ctrl+v");
        EXPECT_TRUE(shows("712"));
        user.Type("0");
        EXPECT_TRUE(shows("7102"));
        // What comes begins as what it replaces did.
        user.Key("shift+End");
        copied("2\n2");
        user.Key("ctrl+v");
        EXPECT_TRUE(shows("7102"));
        user.Key("shift+Home");
        copied("7\n7");
        user.Key("ctrl+v");
        EXPECT_TRUE(shows("7"));
        // The middle button puts in what is selected elsewhere.
        copied("x\ny", QClipboard::Selection);
        user.ClickMiddle(user.PlaceOf(form.Text1, 150, 11));
        EXPECT_TRUE(shows("7x"));
        QInputMethodEvent composed;
        composed.setCommitString("q\nr");
        send(composed);
        EXPECT_TRUE(shows("7xq"));
        QMimeData dragged;
        dragged.setText("0\n0");
        QDropEvent dropped(QPointF(1, 11), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        send(dropped);
        EXPECT_TRUE(shows("07xq"));

        user.Click(form.Combo1, 50, 11);
        user.Key("ctrl+a");
        copied("Times\nRoman");
        user.Key("ctrl+v");
        EXPECT_TRUE(user.Sees([&] { return form.Combo1.Text() == "Times"; }));
        EXPECT_EQ(form.Count("Combo1Change Times"), 1);
        // A box of several lines takes them all.
        user.Click(form.Text2, 60, 50);
        user.Key("ctrl+a");
        user.Key("ctrl+v");
        EXPECT_TRUE(user.Sees([&] { return form.Text2.Text() == "Times\r\nRoman"; }));
    });
}

TEST_F(Controls, ShowWhatTheProgramMadeOfTheUsersChoice) {
    // The program takes each choice back.
    form.HScroll1.Change = [&] { form.HScroll1.SetValue(0); };
    form.Combo1.Click = [&] {
        form.log.emplace_back("refused");
        form.Combo1.SetListIndex(0);
    };
    form.List1.Click = [&] { form.List1.SetListIndex(-1); };
    Run(form, [&](User& user) {
        const auto view = [&](const Control& control) -> QWidget& {
            return platform.WindowOf(form)->ViewOf(control)->Widget();
        };
        user.Click(form.HScroll1, 155, 8);  // The arrow at the right end.
        EXPECT_TRUE(user.Sees([&] { return form.HScroll1.HasFocus(); }));
        EXPECT_TRUE(user.Sees([&] { return dynamic_cast<QScrollBar&>(view(form.HScroll1)).value() == 0; }));
        EXPECT_EQ(form.HScroll1.Value(), 0);

        user.Click(form.Combo1, 112, 11);
        EXPECT_TRUE(user.Sees([&] { return QApplication::activePopupWidget() != nullptr; }));
        user.Key("End");
        user.Key("Return");
        EXPECT_TRUE(user.Sees([&] { return form.Count("refused") > 0; }));
        EXPECT_TRUE(user.Sees([&] {
            const auto& combo = dynamic_cast<QComboBox&>(view(form.Combo1));
            return combo.currentText() == "Arial" && combo.currentIndex() == 0;
        }));
        EXPECT_EQ(form.Combo1.Text(), "Arial");
    });
}

TEST_F(Controls, ListWithTheFocusHasNoRowThatNobodyChose) {
    Run(form, [&](User& user) {
        user.Click(form.HScroll1, 60, 8);
        for (int steps = 0; steps < 2; ++steps)
            user.Key("Tab");
        EXPECT_TRUE(user.Sees([&] { return form.List1.HasFocus(); }));
        EXPECT_TRUE(user.Sees([&] {
            const QWidget& widget = platform.WindowOf(form)->ViewOf(form.List1)->Widget();
            return !dynamic_cast<const QAbstractItemView&>(widget).currentIndex().isValid();
        }));
        EXPECT_EQ(form.List1.ListIndex(), -1);
    });
}

TEST_F(Controls, LockedTextStaysAsItIs) {
    form.Text1.Locked = true;
    Run(form, [&](User& user) {
        user.Click(form.Text1, 150, 11);
        user.Type("s");
        user.Click(form.Check1, 5, 10);
        EXPECT_TRUE(user.Sees([&] { return form.Count("Check1") == 1; }));
        EXPECT_EQ(form.Text1.Text(), "Coinlet");
    });
}

TEST_F(Controls, ChoicesAreTickedByPointerAndKey) {
    Run(form, [&](User& user) {
        user.Click(form.Check1, 60, 10);
        EXPECT_TRUE(user.Sees([&] { return form.Check1.Value(); }));
        user.Key("space");
        EXPECT_TRUE(user.Sees([&] { return !form.Check1.Value(); }));
        user.Click(form.Option2, 6, 10);
        EXPECT_TRUE(user.Sees([&] { return form.Option2.Value(); }));
        EXPECT_FALSE(form.Option1.Value());
        EXPECT_EQ(form.Count("Option2"), 1);
    });
}

TEST_F(Controls, ListRowsArePickedAndOpened) {
    Run(form, [&](User& user) {
        const auto row = [&](int index) {
            QPoint place;
            user.Has([&] {
                const auto& list = static_cast<const QAbstractItemView&>(
                    platform.WindowOf(form)->ViewOf(form.List1)->Widget());
                place = list.visualRect(list.model()->index(index, 0)).center() + list.viewport()->pos();
            });
            return user.PlaceOf(form.List1, place.x(), place.y());
        };
        user.Click(row(2));
        EXPECT_TRUE(user.Sees([&] { return form.Count("List1 Crown") == 1; }));
        user.Key("Down");
        EXPECT_TRUE(user.Sees([&] { return form.Count("List1 Deer") == 1; }));
        user.DoubleClick(row(0));
        EXPECT_TRUE(user.Sees([&] { return form.Count("DblClick Anchor") == 1; }));
        EXPECT_EQ(form.Count("List1 Anchor"), 1);
    });
}

TEST_F(Controls, ComboRowsArePickedAndTextsTyped) {
    Run(form, [&](User& user) {
        user.Click(form.Combo1, 50, 11);
        user.Key("Down");
        EXPECT_TRUE(user.Sees([&] { return form.Count("Combo1 Courier") == 1; }));
        user.Key("End");
        user.Type("s");
        EXPECT_TRUE(user.Sees([&] { return form.Combo1.Text() == "Couriers"; }));
        EXPECT_EQ(form.Combo1.ListIndex(), -1);
        EXPECT_EQ(form.Count("Combo1Change Couriers"), 1);
        // The list drops down; its last row is two below the first.
        user.Click(form.Combo1, 112, 11);
        EXPECT_TRUE(user.Sees([&] { return QApplication::activePopupWidget() != nullptr; }));
        user.Key("End");
        user.Key("Return");
        EXPECT_TRUE(user.Sees([&] { return form.Count("Combo1 Times") == 1; }));
        EXPECT_EQ(form.Combo1.Text(), "Times");
    });
}

TEST_F(Controls, ScrollBarsStepJumpAndDrag) {
    Run(form, [&](User& user) {
        user.Click(form.HScroll1, 155, 8);  // The arrow at the right end.
        EXPECT_TRUE(user.Sees([&] { return form.HScroll1.Value() == 1; }));
        user.Click(form.HScroll1, 120, 8);  // Beside the thumb.
        EXPECT_TRUE(user.Sees([&] { return form.HScroll1.Value() == 11; }));
        EXPECT_EQ(form.Count("Scroll"), 0);
        user.Key("Left");
        EXPECT_TRUE(user.Sees([&] { return form.HScroll1.Value() == 10; }));

        user.Has([&] { form.HScroll1.SetValue(0), platform.Mirror(), form.log.clear(); });
        user.MoveTo(user.PlaceOf(form.HScroll1, 22, 8));
        user.Press();
        user.MoveTo(user.PlaceOf(form.HScroll1, 60, 8));
        EXPECT_TRUE(user.Sees([&] { return form.Count("Scroll") > 0; }));
        EXPECT_TRUE(form.log.back() == "Scroll");  // Change follows when it is let go.
        user.MoveTo(user.PlaceOf(form.HScroll1, 150, 8));
        user.Release();
        EXPECT_TRUE(user.Sees([&] { return form.Count("Change 100") == 1; }));

        // The reversed bar has its high end at the top.
        user.Click(form.VScroll1, 8, 155);
        EXPECT_TRUE(user.Sees([&] { return form.Count("VChange 49") == 1; }));
    });
}

TEST_F(Controls, AScrollBarsThumbGoesWhereItsHandlerPutIt) {
    const auto turnOver = [&] {
        form.log.push_back("at " + std::to_string(form.HScroll1.Value()));
        if (form.HScroll1.Value() == form.HScroll1.Max()) form.HScroll1.SetValue(0);
    };
    form.HScroll1.Scroll = turnOver;
    form.HScroll1.Change = turnOver;
    Run(form, [&](User& user) {
        // Twice from the left end: the second time the thumb must be there again to be taken hold of.
        for (int i = 0; i < 2; ++i) {
            user.Has([&] { form.log.clear(); });
            user.MoveTo(user.PlaceOf(form.HScroll1, 22, 8));
            user.Press();
            for (const int x : {60, 150, 155, 158}) {
                user.MoveTo(user.PlaceOf(form.HScroll1, x, 8));
                EXPECT_TRUE(user.Sees([&] { return !form.log.empty(); })) << i;
            }
            EXPECT_TRUE(user.Sees([&] { return form.Count("at 100") > 0 && form.HScroll1.Value() == 0; }));
            user.Release();
            EXPECT_TRUE(user.Sees([&] { return form.log.back() == "at 0"; }));
        }
    });
}

TEST_F(Controls, ComeAndGoWhileTheFormIsOpen) {
    std::unique_ptr<Label> extra;
    form.OkKnop.Click = [&] {
        if (extra) {
            extra.reset();
        } else {
            extra = std::make_unique<Label>(form, "Extra");
            extra->Move(400 * 15, 300 * 15, 50 * 15, 16 * 15);
        }
    };
    Run(form, [&](User& user) {
        const auto shown = [&] {
            const auto* face = platform.WindowOf(form)->findChild<QWidget*>("Extra");
            return face && face->isVisible();
        };
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees(shown));
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] { return !shown(); }));
    });
}

// A field brings its own menu. What is chosen there changes the text, and a handler of that serves events:
// among them would be the end of the closed menu, which the toolkit comes back to.
TEST_F(Controls, MenuOfAFieldOutlivesWhatItSetOff) {
    QPointer<QMenu> menu;
    std::vector<std::string> outcomes;
    const auto serveEvents = [&] {
        platform.DoEvents();
        outcomes.emplace_back(menu ? "menu" : "no menu");
    };
    form.Text1.Change = serveEvents;
    form.Text2.Change = serveEvents;
    form.Combo1.Change = serveEvents;
    const std::vector<const Control*> fields{&form.Text1, &form.Text2, &form.Combo1};
    std::vector<std::string> expected;
    Run(form, [&](User& user) {
        const std::function<void()> byPointer = [&] { user.Press(3), user.Release(3); };
        const std::function<void()> byKey = [&] { user.Key("Menu"); };
        for (const auto& open : {byPointer, byKey}) {
            for (const Control* field : fields) {
                user.Click(*field, 20, 11);
                user.Key("ctrl+a");
                user.Type("7");
                expected.emplace_back("no menu");
                EXPECT_TRUE(user.Sees([&] { return outcomes == expected; })) << field->Name();
                user.Key("ctrl+a");
                open();
                EXPECT_TRUE(user.Sees([&] {
                    menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                    return menu != nullptr;
                })) << field->Name();
                user.Has([&] {
                    for (QAction* const entry : menu ? menu->actions() : QList<QAction*>())
                        if (entry->text().startsWith("Cu&t")) menu->setActiveAction(entry);
                });
                user.Key("Return");
                expected.emplace_back("menu");
                EXPECT_TRUE(user.Sees([&] { return outcomes == expected; })) << field->Name();
                user.Has([&] { menu = nullptr; });
            }
        }
    });
    EXPECT_EQ(form.Text1.Text() + form.Text2.Text() + form.Combo1.Text(), "");
}

}  // namespace
}  // namespace coinlet::test
