// What a screen reader hears of the sliders of every form when keys move them. Run on a desktop whose
// assistive tools are switched on.

#include "controls/scroll_bar.h"
#include "shell/form_window.h"
#include "whole_program.h"

#include <QAccessible>

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace coinlet::test {
namespace {

/// A reader who listens while there is one: of each value that changed, who told it and what it is then.
class Reader {
public:
    struct Heard {
        const QObject* slider = nullptr;
        std::string name;
        int value = 0;
    };

    Reader() : before_(QAccessible::installUpdateHandler(Hear)) { heard.clear(); }
    ~Reader() { QAccessible::installUpdateHandler(before_); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    static std::vector<Heard> Take() { return std::exchange(heard, {}); }

private:
    static void Hear(QAccessibleEvent* event) {
        if (event->type() != QAccessible::ValueChanged) return;
        QAccessibleInterface* part = event->accessibleInterface();
        if (!part || part->role() != QAccessible::Slider) return;
        // Readers ask for the value when they are told that it is another one.
        ASSERT_NE(part->valueInterface(), nullptr);
        heard.push_back({event->object(), part->text(QAccessible::Name).toStdString(),
                         part->valueInterface()->currentValue().toInt()});
    }

    static inline std::vector<Heard> heard;
    QAccessible::UpdateHandler before_;
};

class AnnouncedSliders : public WholeProgram {
protected:
    /// Every slider of a form that can be moved is moved by a key.
    void ExpectHeard(User& user, Form& form) {
        for (Element* element : form.Elements()) {
            auto* slider = dynamic_cast<ScrollBar*>(element);
            bool moves = false;
            user.Has([&] {
                moves =
                    slider && slider->Shown() && slider->Reachable() && slider->Lowest() < slider->Highest();
            });
            if (!moves) continue;
            SCOPED_TRACE(std::string(form.Name()) + "." + std::string(slider->Name()));
            int before = 0;
            user.Has([&] {
                slider->SetFocus();
                platform.Mirror();
                before = slider->Value();
                Reader::Take();
            });
            user.Key(before == slider->Max() ? "Left" : "Right");
            EXPECT_TRUE(user.Sees([&] { return slider->Value() != before; }));
            user.Has([&] {
                const QWidget& widget = platform.WindowOf(form)->ViewOf(*slider)->Widget();
                std::vector<Reader::Heard> own;
                for (const Reader::Heard& each : Reader::Take())
                    if (each.slider == &widget) own.push_back(each);
                ASSERT_EQ(own.size(), 1U);
                EXPECT_EQ(own[0].value, slider->Value());
                EXPECT_FALSE(own[0].name.empty());
            });
            ++sliders_;
        }
    }

    int sliders_ = 0;
};

TEST_F(AnnouncedSliders, TellTheirNewValue) {
    const Reader reader;
    Run(Main(), [&](User& user) {
        ASSERT_TRUE(user.Sees([] { return QAccessible::isActive(); }));
        ExpectHeard(user, Main());
        EXPECT_EQ(sliders_, 1);
        const std::map<std::string_view, int> expected{
            {"PMSForm", 1}, {"PolygonForm", 4}, {"ColorChange", 3}};
        std::set<std::string_view> forms;
        for (const DialogRow& row : Dialogs()) {
            if (!forms.insert(row.form).second) continue;
            const int before = sliders_;
            Form& dialog = Open(user, row);
            ExpectHeard(user, dialog);
            user.Key("Escape");
            EXPECT_TRUE(user.Sees([&] { return platform.FrontForm() == &Main(); }));
            const auto known = expected.find(row.form);
            if (known != expected.end()) {
                EXPECT_EQ(sliders_ - before, known->second) << row.form;
            }
        }
    });
}

// What the program sets is told of too, once; what stays as it is isn't.
TEST_F(AnnouncedSliders, TellWhatTheProgramSets) {
    const Reader reader;
    Run(Main(), [&](User& user) {
        ASSERT_TRUE(user.Sees([] { return QAccessible::isActive(); }));
        user.Has([&] {
            ScrollBar& width = Main().HScroll1;
            Reader::Take();
            width.SetValue(width.Value());
            platform.Mirror();
            EXPECT_TRUE(Reader::Take().empty());
            width.SetValue(7);
            platform.Mirror();
            const std::vector<Reader::Heard> heard = Reader::Take();
            ASSERT_EQ(heard.size(), 1U);
            EXPECT_EQ(heard[0].value, 7);
        });
    });
}

}  // namespace
}  // namespace coinlet::test
