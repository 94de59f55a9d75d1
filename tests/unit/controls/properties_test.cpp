// The lists of properties and events that scripts and dumps read.

#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/file_boxes.h"
#include "controls/frame.h"
#include "controls/label.h"
#include "controls/menu.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "controls/text_box.h"
#include "controls/timer.h"
#include "controls/vista_button.h"
#include "event_log.h"
#include "support/test_platform.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <set>

namespace coinlet {
namespace {

using test::Lines;

struct Properties : PropertyVisitor {
    void Visit(const Property& property) override { all.push_back(property); }
    const Property* Find(std::string_view name) const {
        for (const auto& property : all)
            if (property.name == name) return &property;
        return nullptr;
    }
    std::vector<Property> all;
};

TEST(FromPropertyValue, RoundsAndBringsIntoTheRangeOfTheField) {
    constexpr auto ToField = FromPropertyValue<std::int16_t>;
    EXPECT_EQ(ToField(300.5), 300);
    EXPECT_EQ(ToField(301.5), 302);
    EXPECT_EQ(ToField(-2.5), -2);
    EXPECT_EQ(ToField(32'767.5), 32'767);
    EXPECT_EQ(ToField(-1e300), -32'768);
    EXPECT_EQ(ToField(std::numeric_limits<double>::infinity()), 32'767);
    EXPECT_EQ(ToField(std::numeric_limits<double>::quiet_NaN()), 0);
}

struct Events : EventVisitor {
    void Visit(const NamedEvent& event) override { all.push_back(event); }
    std::vector<NamedEvent> all;
};

struct PropertiesForm : Form {
    using Form::Form;
    void Form_Load() override { log.Add("Load"); }
    void Form_Activate() override { log.Add("Activate"); }
    void Form_Unload(bool&) override { log.Add("Unload"); }

    test::EventLog log;
    Label label{*this, "label"};
    TextBox text{*this, "text"};
    CheckBox check{*this, "check"};
    OptionButton option{*this, "option"};
    ScrollBar bar{*this, "bar", Orientation::Vertical};
    ListBox list{*this, "list"};
    ComboBox combo{*this, "combo"};
    PictureBox picture{*this, "picture"};
    StockPicture stock{*this, "stock"};
    Shape shape{*this, "shape"};
    LineShape line{*this, "line"};
    Frame frame{*this, "frame"};
    MenuItem menu{*this, "menu", "Menu"};
    Timer timer{*this, "timer"};
    FileListBox files{*this, "files"};
    DirListBox folders{*this, "folders"};
    DriveListBox places{*this, "places"};
    ControlArray<VistaButton> button{*this, "button", 0, 2};
};

struct PropertiesTest : testing::Test {
    PropertiesTest() {
        services.platform.ShowMain(form);
        for (const char* row : {"a", "b", "c"}) {
            form.list.AddItem(row);
            form.combo.AddItem(row);
        }
        form.log.Take();
    }

    static Properties Of(Element& element) {
        Properties properties;
        element.VisitProperties(properties);
        return properties;
    }
    static PropertyValue Get(Element& element, std::string_view name) {
        return Of(element).Find(name)->get();
    }
    static void Set(Element& element, std::string_view name, const PropertyValue& value) {
        Of(element).Find(name)->set(value);
    }

    test::TestServices services;
    PropertiesForm form{services.ForForms(), "Sample"};
};

TEST_F(PropertiesTest, EveryNameStandsOnce) {
    for (Element* element : form.Elements()) {
        std::set<std::string_view> names;
        for (const auto& property : Of(*element).all)
            EXPECT_TRUE(names.insert(property.name).second) << element->Name() << "." << property.name;
        std::set<std::string_view> events;
        Events found;
        element->VisitEvents(found);
        for (const auto& event : found.all)
            EXPECT_TRUE(events.insert(event.name).second) << element->Name() << "." << event.name;
    }
}

TEST_F(PropertiesTest, EveryValueIsOfItsKind) {
    for (Element* element : form.Elements()) {
        for (const auto& property : Of(*element).all) {
            const std::size_t alternative = property.kind == PropertyKind::Flag   ? 0
                                            : property.kind == PropertyKind::Text ? 2
                                                                                  : 1;
            EXPECT_EQ(property.get().index(), alternative) << element->Name() << "." << property.name;
        }
    }
}

TEST_F(PropertiesTest, WhatIsReadCanBeWrittenBack) {
    for (Element* element : form.Elements()) {
        for (const auto& property : Of(*element).all) {
            if (!property.set) continue;
            const PropertyValue value = property.get();
            property.set(value);
            EXPECT_EQ(property.get(), value) << element->Name() << "." << property.name;
        }
    }
}

TEST_F(PropertiesTest, WhatIsWrittenIsReadBack) {
    // Those whose values are bound to something: a range, a list, the file system, a unit of measure.
    const std::set<std::string_view> bound = {"Value", "ListIndex", "Text",     "Path",      "Drive",
                                              "Min",   "Form",      "Pictures", "Alignment", "ScaleMode"};
    for (Element* element : form.Elements()) {
        for (const auto& property : Of(*element).all) {
            if (!property.set || bound.contains(property.name)) continue;
            PropertyValue other;
            switch (property.kind) {
                case PropertyKind::Flag:
                    other = !std::get<bool>(property.get());
                    break;
                case PropertyKind::Number:
                    other = std::get<double>(property.get()) + 30;
                    break;
                case PropertyKind::Colour:
                    other = double{RGB(1, 2, 3)};
                    break;
                case PropertyKind::Text:
                    other = std::string("other");
                    break;
            }
            property.set(other);
            EXPECT_EQ(property.get(), other) << element->Name() << "." << property.name;
        }
    }
}

TEST_F(PropertiesTest, BoundValuesAreWrittenWithinTheirBounds) {
    Set(form.bar, "Max", 50.0);
    Set(form.bar, "Min", 10.0);
    EXPECT_EQ(Get(form.bar, "Value"), PropertyValue(10.0));
    Set(form.bar, "Value", 60.0);
    EXPECT_EQ(Get(form.bar, "Value"), PropertyValue(50.0));
    Set(form.bar, "Value", 12.5);
    EXPECT_EQ(Get(form.bar, "Value"), PropertyValue(12.0));
    Set(form.bar, "Value", std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(Get(form.bar, "Value"), PropertyValue(10.0));
    Set(form.bar, "SmallChange", 1e300);
    EXPECT_EQ(form.bar.SmallChange, std::numeric_limits<int>::max());
    Set(form.label, "FontSize", 1e300);
    EXPECT_EQ(form.label.FontSize, std::numeric_limits<float>::max());
    Set(form.list, "ListIndex", 7.0);
    EXPECT_EQ(Get(form.list, "ListIndex"), PropertyValue(-1.0));
    Set(form.list, "Text", std::string("c"));
    EXPECT_EQ(form.list.ListIndex(), 2);
    Set(form.list, "Text", std::string("not there"));
    EXPECT_EQ(form.list.ListIndex(), 2);
    Set(form.combo, "Text", std::string("free"));
    EXPECT_EQ(form.combo.Text(), "free");
    Set(form.label, "Alignment", 9.0);
    EXPECT_EQ(form.label.Alignment, Alignment::Center);
    Set(form.shape, "Form", -1.0);
    EXPECT_EQ(form.shape.Form, ShapeForm::Rectangle);
    Set(form.button[0], "Pictures", -1.0);
    EXPECT_EQ(Get(form.button[0], "Pictures"), PropertyValue(1.0));
    Set(form.picture, "ScaleMode", 1.0);
    EXPECT_EQ(form.picture.surface.ScaleMode(), twipScale);
}

TEST_F(PropertiesTest, AValueOfAnotherKindIsConverted) {
    Set(form.check, "Value", 1.0);
    EXPECT_TRUE(form.check.Value());
    Set(form.check, "Value", std::string("false"));
    EXPECT_FALSE(form.check.Value());
    Set(form.text, "Text", 2.5);
    EXPECT_EQ(form.text.Text(), "2.5");
    Set(form.text, "Text", true);
    EXPECT_EQ(form.text.Text(), "true");
    Set(form.bar, "LargeChange", std::string("12"));
    EXPECT_EQ(form.bar.LargeChange, 12);
    Set(form.bar, "LargeChange", true);
    EXPECT_EQ(form.bar.LargeChange, 1);
}

TEST_F(PropertiesTest, SomeCanOnlyBeRead) {
    for (const char* name : {"Name", "Shown", "State", "Index"})
        EXPECT_FALSE(Of(form.button[1]).Find(name)->set) << name;
    EXPECT_FALSE(Of(form.list).Find("ListCount")->set);
    EXPECT_FALSE(Of(form.picture).Find("ScaleWidth")->set);
    EXPECT_EQ(Get(form.button[1], "Index"), PropertyValue(1.0));
    EXPECT_EQ(Of(form.label).Find("Index"), nullptr);
}

TEST_F(PropertiesTest, EachRowIsAProperty) {
    const Properties before = Of(form.list);
    EXPECT_EQ(before.Find("ListCount")->get(), PropertyValue(3.0));
    EXPECT_EQ(before.Find("List(2)")->get(), PropertyValue(std::string("c")));
    EXPECT_EQ(before.Find("List(3)"), nullptr);
    before.Find("List(0)")->set(std::string("first"));
    EXPECT_EQ(form.list.List(0), "first");
    // One that was kept longer than its row is quietly empty.
    form.list.Clear();
    EXPECT_EQ(before.Find("List(2)")->get(), PropertyValue(std::string()));
    EXPECT_EQ(Of(form.combo).Find("List(1)")->get(), PropertyValue(std::string("b")));
    EXPECT_FALSE(Of(form.combo).Find("List(1)")->set);
}

TEST_F(PropertiesTest, AnAssignmentRaisesWhatItRaisesInTheProgram) {
    form.log.Listen(form.bar, &ScrollBar::Change, "Change");
    form.log.Listen(form.list, &Control::Click, "Click");
    form.log.Listen(form.check, &Control::Click, "Click");
    form.log.Listen(form.text, &TextBox::Change, "Change");
    Set(form.bar, "Value", 5.0);
    Set(form.bar, "Value", 5.0);
    Set(form.list, "ListIndex", 1.0);
    Set(form.check, "Value", true);
    Set(form.text, "Text", std::string("x"));
    EXPECT_EQ(form.log.Take(), (Lines{"bar.Change", "list.Click", "check.Click", "text.Change"}));
}

TEST_F(PropertiesTest, AFontOfAButtonDrawsItAnew) {
    VistaButton& button = form.button[0];
    const auto before = button.LookRevision();
    Set(button, "FontSize", 12.0);
    EXPECT_EQ(button.Font().FontSize, 12);
    EXPECT_EQ(button.LookRevision(), before + 1);
}

TEST_F(PropertiesTest, AFormTellsOfItself) {
    Properties properties;
    form.VisitProperties(properties);
    EXPECT_EQ(properties.Find("Loaded")->get(), PropertyValue(true));
    EXPECT_FALSE(properties.Find("Loaded")->set);
    EXPECT_EQ(properties.Find("Focus")->get(), PropertyValue(std::string()));
    form.text.SetFocus();
    EXPECT_EQ(properties.Find("Focus")->get(), PropertyValue(std::string("text")));
    form.button[1].SetFocus();
    EXPECT_EQ(properties.Find("Focus")->get(), PropertyValue(std::string("button(1)")));
    properties.Find("Caption")->set(std::string("Title"));
    properties.Find("BackColor")->set(double{RGB(9, 8, 7)});
    EXPECT_EQ(form.Caption, "Title");
    EXPECT_EQ(form.BackColor, RGB(9, 8, 7));
    EXPECT_EQ(properties.Find("Width")->kind, PropertyKind::Number);
    EXPECT_EQ(properties.Find("BackColor")->kind, PropertyKind::Colour);
}

TEST_F(PropertiesTest, EventsAreRaisedByNameWithTheirNumbers) {
    form.log.ListenToAll(form.label);
    form.label.Visible = false;
    form.label.SetEnabled(false);
    Events events;
    form.label.VisitEvents(events);
    const std::vector<double> numbers = {1, 2.4, 3.5};
    for (const auto& event : events.all)
        event.raise(numbers);
    EXPECT_EQ(form.log.Take(), (Lines{"label.Click", "label.MouseDown 1 2 3.5 0", "label.MouseUp 1 2 3.5 0",
                                      "label.KeyDown 1 2", "label.KeyPress 1", "label.KeyUp 1 2",
                                      "label.GotFocus", "label.LostFocus"}));
}

TEST_F(PropertiesTest, EachKindHasItsOwnEvents) {
    const auto names = [](Element& element) {
        Events events;
        element.VisitEvents(events);
        std::set<std::string_view> all;
        for (const auto& event : events.all)
            all.insert(event.name);
        return all;
    };
    EXPECT_TRUE(names(form.bar).contains("Change"));
    EXPECT_TRUE(names(form.bar).contains("Scroll"));
    EXPECT_TRUE(names(form.list).contains("DblClick"));
    EXPECT_TRUE(names(form.combo).contains("Change"));
    EXPECT_TRUE(names(form.folders).contains("Change"));
    EXPECT_TRUE(names(form.places).contains("Change"));
    EXPECT_TRUE(names(form.button[0]).contains("MouseIn"));
    EXPECT_TRUE(names(form.button[0]).contains("MouseOut"));
    EXPECT_EQ(names(form.timer), std::set<std::string_view>{"Timer"});
    EXPECT_EQ(names(form.menu), std::set<std::string_view>{"Click"});
}

TEST_F(PropertiesTest, TheMomentsOfAFormAreEvents) {
    Events events;
    form.VisitEvents(events);
    for (const auto& event : events.all)
        event.raise({});
    EXPECT_EQ(form.log.Take(), (Lines{"Load", "Activate", "Unload"}));
    EXPECT_TRUE(form.Loaded());
}

}  // namespace
}  // namespace coinlet
