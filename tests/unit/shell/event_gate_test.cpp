// What fails amidst an event ends that step alone: the next event finds the door open.
#include "shell/event_gate.h"

#include "controls/form.h"
#include "controls/text_box.h"
#include "support/test_platform.h"

#include <QCoreApplication>
#include <QEvent>

#include <gtest/gtest.h>
#include <new>
#include <stdexcept>
#include <string>

namespace coinlet::test {
namespace {

class EventGateTest : public testing::Test {
protected:
    /// What the gate tells on the error output while `doing` is done.
    static std::string ToldWhile(const std::function<void()>& doing) {
        testing::internal::CaptureStderr();
        doing();
        return testing::internal::GetCapturedStderr();
    }
    void ExpectOpen() {
        EXPECT_FALSE(gate.Mirroring());
        const int before = mirrored;
        int handled = 0;
        EXPECT_EQ(ToldWhile([&] { gate.Enter([&] { ++handled; }); }), "");
        EXPECT_EQ(handled, 1);
        EXPECT_EQ(mirrored, before + 1);
    }
    /// True if what is retired outside of every event ends at once.
    bool EndsWhatIsRetired() {
        const QPointer<QObject> object = new QObject;
        gate.Enter([&] { gate.Retire(*object); });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return object.isNull();
    }

    // What ends later ends in the toolkit's own time.
    int argc = 1;
    char name[5] = "gate";
    char* argv[2] = {name, nullptr};
    QCoreApplication toolkit{argc, argv};

    TestServices services;
    int mirrored = 0;
    int mirrorsThatFail = 0;
    BusyWatch busy{{}};
    EventGate gate{services.platform,
                   [this] {
                       if (mirrorsThatFail > 0) {
                           --mirrorsThatFail;
                           throw std::bad_alloc();
                       }
                       ++mirrored;
                   },
                   busy};
};

TEST_F(EventGateTest, FaultOfAHandlerIsTold) {
    EXPECT_EQ(ToldWhile([&] { gate.Enter([] { throw std::out_of_range("no such row"); }); }),
              "Coinlet Designer: something failed and was given up: no such row\n");
    EXPECT_EQ(mirrored, 1);
    ExpectOpen();
}

TEST_F(EventGateTest, FaultOfTheMirrorIsToldAndEndsNothingElse) {
    mirrorsThatFail = 1;
    const std::string told = ToldWhile([&] { gate.Enter([] {}); });
    EXPECT_NE(told.find(std::bad_alloc().what()), std::string::npos) << told;
    ExpectOpen();
    EXPECT_TRUE(EndsWhatIsRetired());
}

// A handler that serves events has the windows mirrored, and may itself pass over what fails there.
TEST_F(EventGateTest, FaultOfTheMirrorAmidstAHandlerLeavesTheDoorOpen) {
    int caught = 0, goneOn = 0;
    EXPECT_NE(ToldWhile([&] {
                  gate.Enter([&] {
                      mirrorsThatFail = 1;
                      gate.Mirror();
                      ++goneOn;
                  });
              }),
              "");
    EXPECT_EQ(goneOn, 0);
    ExpectOpen();
    gate.Enter([&] {
        mirrorsThatFail = 1;
        try {
            gate.Mirror();
        } catch (const std::bad_alloc&) {
            ++caught;
        }
        gate.Enter([&] { ++goneOn; });
    });
    EXPECT_EQ(caught, 1);
    EXPECT_EQ(goneOn, 1);
    ExpectOpen();
    EXPECT_TRUE(EndsWhatIsRetired());
}

TEST_F(EventGateTest, FaultOfAQuietChangeEndsTheQuiet) {
    EXPECT_THROW(gate.Quietly([] { throw std::bad_alloc(); }), std::bad_alloc);
    ExpectOpen();
}

TEST_F(EventGateTest, FaultOfTheFieldThatLosesTheFocusIsToldAndEndsNothingElse) {
    struct Fields : Form {
        explicit Fields(FormServices services) : Form(services, "Fields") {}
        TextBox Text1{*this, "Text1"};
        TextBox Text2{*this, "Text2"};
    } form(services.ForForms());
    services.platform.ShowMain(form);
    form.Text1.LostFocus = [] { throw std::runtime_error("no number"); };
    form.Text1.SetFocus();
    ASSERT_EQ(form.Focus(), &form.Text1);
    const std::string told = ToldWhile([&] { gate.Enter([&] { form.Text1.Visible = false; }); });
    EXPECT_NE(told.find("no number"), std::string::npos) << told;
    EXPECT_EQ(mirrored, 1);
    ExpectOpen();
    EXPECT_TRUE(EndsWhatIsRetired());
}

TEST_F(EventGateTest, EndOfTheProgramIsNoFault) {
    EXPECT_EQ(ToldWhile([&] { gate.Enter([&] { services.platform.End(); }); }), "");
    int handled = 0;
    gate.Enter([&] { ++handled; });
    EXPECT_EQ(handled, 0);
    EXPECT_EQ(mirrored, 0);
}

}  // namespace
}  // namespace coinlet::test
