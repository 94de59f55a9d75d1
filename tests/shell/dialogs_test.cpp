// Menus, dialogs, message boxes, timers, and the end of the program.

#include "sample_form.h"
#include "shell/form_window.h"
#include "user.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>

#include <algorithm>
#include <chrono>
#include <optional>
#include <thread>

namespace coinlet::test {
namespace {

class Windows : public ShellTest {
protected:
    SampleForm form{services};
};

/// A dialog with one text field and the button that Escape presses.
struct SmallDialog : Form {
    explicit SmallDialog(FormServices services) : Form(services, "Small") {
        Caption = "Small";
        Width = 200 * 15;
        Height = 100 * 15;
        Text1.Move(16 * 15, 16 * 15, 100 * 15, 22 * 15);
        CancelKnop.SetCaption("Cancel");
        CancelKnop.Move(16 * 15, 56 * 15, 80 * 15, 28 * 15);
        CancelKnop.Click = [this] {
            cancelled = true;
            Unload();
        };
    }
    void Form_Activate() override { Text1.SetFocus(); }

    TextBox Text1{*this, "Text1"};
    VistaButton CancelKnop{*this, "CancelKnop"};
    bool cancelled = false;
};

TEST_F(Windows, MenuEntryIsChosenByPointer) {
    Run(form, [&](User& user) {
        user.Click(user.PlaceOf(form.File));
        EXPECT_TRUE(user.Sees([&] { return platform.WindowOf(form)->PopupOf(form.File)->isVisible(); }));
        user.Click(user.PlaceOf(form.FileNew));
        EXPECT_TRUE(user.Sees([&] { return form.Count("FileNew") == 1; }));
    });
}

TEST_F(Windows, CheckedEntryKeepsItsMarkWhenItIsChosenAgain) {
    form.FileNew.Checked = true;
    form.ShapesStar.Checked = true;
    Run(form, [&](User& user) {
        const auto isMarked = [&](const MenuItem& entry) {
            const auto actions = platform.WindowOf(form)->PopupOf(*entry.Parent())->actions();
            return std::ranges::any_of(actions, [&](const QAction* action) {
                return action->text().remove('&').toStdString() == entry.Caption && action->isChecked();
            });
        };
        int chosen = 0;
        for (MenuItem* entry : {&form.FileNew, &form.EditCopy, &form.ShapesStar}) {
            MenuItem& menu = *entry->Parent();
            for (int times = 1; times <= 2; ++times) {
                if (menu.Visible) {
                    user.Click(user.PlaceOf(menu));
                } else {
                    user.Has([&] { platform.PopupMenu(menu); });
                }
                EXPECT_TRUE(user.Sees([&] { return platform.WindowOf(form)->PopupOf(menu)->isVisible(); }));
                user.Click(user.PlaceOf(*entry));
                const std::string name(entry->Name());
                EXPECT_TRUE(user.Sees([&] { return form.Count(name) == times; })) << name;
                EXPECT_TRUE(user.Sees([&] { return isMarked(*entry); })) << name;
                ++chosen;
            }
        }
        EXPECT_EQ(chosen, 6);
        // The entry itself says whether it has a mark.
        user.Has([&] { form.EditCopy.Checked = false, platform.Mirror(); });
        EXPECT_TRUE(user.Sees([&] { return !isMarked(form.EditCopy); }));
    });
}

TEST_F(Windows, MenusShowWhatTheEntriesSay) {
    Run(form, [&](User& user) {
        user.Has([&] {
            const auto actions = platform.WindowOf(form)->PopupOf(form.File)->actions();
            ASSERT_EQ(actions.size(), 3);
            // With the toolkit's mark before the letter that chooses it.
            EXPECT_EQ(actions[0]->text(), "&New");
            EXPECT_TRUE(actions[1]->isSeparator());
            EXPECT_FALSE(actions[2]->isEnabled());
            EXPECT_TRUE(platform.WindowOf(form)->PopupOf(form.Edit)->actions()[0]->isChecked());
            EXPECT_FALSE(platform.WindowOf(form)->PopupOf(form.Shapes)->menuAction()->isVisible());
        });
    });
}

TEST_F(Windows, StandardKeysActUnlessAFieldWantsThem) {
    Run(form, [&](User& user) {
        user.Key("ctrl+n");
        EXPECT_TRUE(user.Sees([&] { return form.Count("FileNew") == 1; }));
        user.Key("ctrl+c");
        EXPECT_TRUE(user.Sees([&] { return form.Count("EditCopy") == 1; }));
        user.Click(form.Text1, 80, 11);
        user.Key("ctrl+c");
        user.Key("ctrl+n");
        EXPECT_TRUE(user.Sees([&] { return form.Count("FileNew") == 2; }));
        EXPECT_EQ(form.Count("EditCopy"), 1);
    });
}

TEST_F(Windows, PopupReturnsAtOnceAndItsChoiceIsAnEvent) {
    form.OkKnop.Click = [&] {
        platform.PopupMenu(form.Shapes);
        form.log.emplace_back("returned");
    };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] { return form.Count("returned") == 1; }));
        EXPECT_EQ(form.Count("ShapesStar"), 0);
        EXPECT_TRUE(user.Sees([&] { return platform.WindowOf(form)->PopupOf(form.Shapes)->isVisible(); }));
        user.Click(user.PlaceOf(form.ShapesStar));
        EXPECT_TRUE(user.Sees([&] { return form.Count("ShapesStar") == 1; }));
        EXPECT_EQ(form.Count("Activate"), 1);
    });
}

TEST_F(Windows, DialogHoldsItsCallerUntilItCloses) {
    SmallDialog dialog(services);
    form.OkKnop.Click = [&] {
        platform.ShowModal(dialog);
        form.log.emplace_back("after");
    };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] {
            const FormWindow* window = platform.WindowOf(dialog);
            return window && window->isActiveWindow();
        }));
        user.Has([&] {
            // In the middle of the main window, as large as it says, and before all others.
            const FormWindow* window = platform.WindowOf(dialog);
            EXPECT_EQ(window->size(), QSize(200, 100));
            EXPECT_EQ(window->geometry().center(), platform.WindowOf(form)->geometry().center());
            EXPECT_TRUE(window->isModal());
        });
        user.Type("abc");
        EXPECT_TRUE(user.Sees([&] { return dialog.Text1.Text() == "abc"; }));
        // What lies behind can't be reached.
        user.Click(form.Check1, 5, 10);
        EXPECT_EQ(form.Count("after"), 0);
        user.Key("Escape");
        EXPECT_TRUE(user.Sees([&] { return form.Count("after") == 1; }));
        EXPECT_TRUE(dialog.cancelled);
        EXPECT_EQ(form.Count("Check1"), 0);
        EXPECT_EQ(form.Count("Activate"), 2);
        EXPECT_TRUE(user.Sees([&] { return platform.WindowOf(form)->isActiveWindow(); }));
    });
}

TEST_F(Windows, ReturnFromAnotherProgramActivatesTheMainForm) {
    form.OkKnop.Click = [&] { platform.ShowMessage({.prompt = "Done."}); };
    Run(form, [&](User& user) {
        const auto away = [] { return QGuiApplication::applicationState() == Qt::ApplicationInactive; };
        const auto comeBack = [&] {
            platform.WindowOf(form)->activateWindow();
            return platform.WindowOf(form)->isActiveWindow();
        };
        EXPECT_EQ(form.Count("Activate"), 1);
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(), {"--in-front"});
        EXPECT_TRUE(user.Sees(away));
        other.kill();
        other.waitForFinished();
        EXPECT_TRUE(user.Sees(comeBack));
        EXPECT_TRUE(user.Sees([&] { return form.Count("Activate") == 2; }));

        // The end of a message box is no return.
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees([] {
            return QApplication::activeModalWidget() && QApplication::activeModalWidget()->isActiveWindow();
        }));
        user.Key("Return");
        EXPECT_TRUE(user.Sees([] { return !QApplication::activeModalWidget(); }));
        EXPECT_TRUE(user.Sees(comeBack));
        user.Click(form.Check1, 5, 10);
        EXPECT_TRUE(user.Sees([&] { return form.Count("Check1") == 1; }));
        EXPECT_EQ(form.Count("Activate"), 2);
    });
}

TEST_F(Windows, CloseBoxUnloadsADialogWithoutPressingAnything) {
    SmallDialog dialog(services);
    form.OkKnop.Click = [&] { platform.ShowModal(dialog); };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] { return platform.WindowOf(dialog) != nullptr; }));
        user.Has([&] { platform.WindowOf(dialog)->close(); });
        EXPECT_TRUE(user.Sees([&] { return form.Count("Activate") == 2; }));
        EXPECT_FALSE(dialog.cancelled);
        EXPECT_FALSE(dialog.Loaded());
    });
}

TEST_F(Windows, DialogCanUnloadItselfInsideANestedWait) {
    SmallDialog dialog(services);
    form.OkKnop.Click = [&] { platform.ShowModal(dialog); };
    dialog.CancelKnop.Click = [&] {
        dialog.Unload();
        // The widget that was pressed is gone from the screen, but its event isn't over.
        platform.Wait(0.05);
        platform.DoEvents();
        form.log.emplace_back("waited");
    };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] { return platform.WindowOf(dialog) != nullptr; }));
        user.Click(dialog.CancelKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] { return form.Count("Activate") == 2; }));
        EXPECT_EQ(form.Count("waited"), 1);
    });
}

TEST_F(Windows, NoClosedDialogIsKeptBecauseHandlersBeforeItGoOn) {
    // Deeper than handlers wait in each other.
    constexpr int depth = 16, openings = depth + 4;
    int waiting = 0, windows = 0;
    form.OkKnop.Click = [&] {
        SmallDialog dialog(services);
        platform.ShowModal(dialog);
        // He opens the next one meanwhile.
        ++waiting;
        platform.Wait(3600);
    };
    Run(form, [&](User& user) {
        for (int i = 1; i <= openings; ++i) {
            user.Click(form.OkKnop, 40, 14);
            EXPECT_TRUE(user.Sees([&] { return platform.FrontForm()->Name() == "Small"; }));
            user.Key("Escape");
            EXPECT_TRUE(user.Sees([&] { return waiting == i; }));
        }
        user.Has([&] {
            for (const QWidget* widget : QApplication::topLevelWidgets())
                if (dynamic_cast<const FormWindow*>(widget)) ++windows;
            EXPECT_LE(windows, 1 + depth);
        });
    });
}

TEST_F(Windows, MessageBoxIsAnsweredByKeys) {
    std::vector<Answer> answers;
    const Message question{"Delete it?", "Question", MessageButtons::YesNo, MessageIcon::Question,
                           Answer::Yes};
    Message careful = question;
    careful.standard = Answer::No;
    form.OkKnop.Click = [&] {
        answers.push_back(platform.ShowMessage(question));
        answers.push_back(platform.ShowMessage(careful));
        answers.push_back(platform.ShowMessage(question));
        answers.push_back(platform.ShowMessage({.prompt = "Done."}));
    };
    Run(form, [&](User& user) {
        const auto asked = [&](std::size_t answered) {
            return user.Sees([&, answered] {
                return answers.size() == answered &&
                       qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) &&
                       QApplication::activeModalWidget()->isActiveWindow();
            });
        };
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(asked(0));
        user.Key("Return");
        EXPECT_TRUE(asked(1));
        user.Key("Return");
        EXPECT_TRUE(asked(2));
        user.Key("Escape");
        EXPECT_TRUE(asked(3));
        user.Key("Escape");
        EXPECT_TRUE(user.Sees([&] { return answers.size() == 4; }));
        EXPECT_EQ(answers, (std::vector{Answer::Yes, Answer::No, Answer::No, Answer::Ok}));
        EXPECT_EQ(form.Count("Activate"), 1);
    });
}

TEST_F(Windows, InputBoxGivesTheTextOrNothing) {
    std::vector<std::string> texts;
    form.OkKnop.Click = [&] {
        texts.push_back(platform.InputBox("Name:", "Save", "old"));
        texts.push_back(platform.InputBox("Name:", "Save", "old"));
    };
    Run(form, [&](User& user) {
        const auto asked = [&](std::size_t answered) {
            return user.Sees([&, answered] {
                const auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
                return texts.size() == answered && box && box->isActiveWindow() && box->textValue() == "old";
            });
        };
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(asked(0));
        user.Type("new");  // The old text is selected, so this replaces it.
        user.Key("Return");
        EXPECT_TRUE(asked(1));
        user.Key("Escape");
        EXPECT_TRUE(user.Sees([&] { return texts.size() == 2; }));
        EXPECT_EQ(texts, (std::vector<std::string>{"new", ""}));
    });
}

TEST_F(Windows, FolderPickerCancelsWithNothing) {
    std::string folder = "untouched";
    form.OkKnop.Click = [&] { folder = platform.PickFolder("Select Folder"); };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] {
            const auto* picker = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            return picker && picker->isActiveWindow();
        }));
        user.Key("Escape");
        EXPECT_TRUE(user.Sees([&] { return folder.empty(); }));
    });
}

TEST_F(Windows, TimersTickWhileTheyRun) {
    form.Timer1.Interval = 5;
    Run(form, [&](User& user) {
        EXPECT_TRUE(user.Sees([&] { return form.Count("Tick") >= 3; }));
        int ticks = 0;
        user.Has([&] {
            form.Timer1.Enabled = false;
            platform.Mirror();
            ticks = form.Count("Tick");
        });
        // Another timer of the same pace ticks on; this one stands still.
        Timer other(form, "Other");
        int others = 0;
        user.Has([&] {
            other.Interval = 5;
            other.Tick = [&] { ++others; };
            platform.Mirror();
        });
        EXPECT_TRUE(user.Sees([&] { return others >= 3; }));
        EXPECT_EQ(form.Count("Tick"), ticks);
        user.Has([&] { other.Enabled = false, platform.Mirror(); });
    });
}

// Between two frames the windows aren't mirrored, but a handler has changed its timers by then.
TEST_F(Windows, TimersThatAreGoneOrStandStillTickNoMoreWhileAHandlerGoesOn) {
    int ticks = 0, late = 0;
    form.OkKnop.Click = [&] {
        for (int i = 0; i < 40; ++i) {
            std::optional<Timer> brief;
            brief.emplace(form, "Brief");
            brief->Interval = 1;
            brief->Tick = [&] { ++ticks; };
            platform.Mirror();
            platform.DoEvents();
            std::this_thread::sleep_for(std::chrono::milliseconds(3));
            ticks = 0;
            if (i % 2 == 0) {
                brief.reset();
            } else {
                brief->Enabled = false;
            }
            platform.DoEvents();
            platform.DoEvents();
            late += ticks;
        }
        form.log.emplace_back("worked");
    };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] { return form.Count("worked") == 1; }));
        EXPECT_EQ(late, 0);
    });
}

TEST_F(Windows, HourglassLiesOverEverything) {
    Run(form, [&](User& user) {
        user.Has([&] { platform.Screen.MousePointer = hourglassPointer, platform.Mirror(); });
        user.Has([&] {
            ASSERT_NE(QApplication::overrideCursor(), nullptr);
            EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        });
        user.Has([&] { platform.Screen.MousePointer = toolPointer, platform.Mirror(); });
        user.Has([&] { EXPECT_EQ(QApplication::overrideCursor(), nullptr); });
    });
}

TEST_F(Windows, EndLeavesFromWithinADialog) {
    SmallDialog dialog(services);
    form.OkKnop.Click = [&] {
        platform.ShowModal(dialog);
        form.log.emplace_back("ran on");
    };
    dialog.Text1.Change = [&] {
        platform.End();
        form.log.emplace_back("ran on");
    };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] {
            const FormWindow* window = platform.WindowOf(dialog);
            return window && window->isActiveWindow();
        }));
        user.Type("x");
        EXPECT_TRUE(user.Sees([&] { return platform.Ended(); }));
    });
    EXPECT_TRUE(platform.Ended());
    EXPECT_EQ(form.Count("ran on"), 0);
    EXPECT_EQ(platform.WindowOf(form), nullptr);
    for (const QWidget* window : QApplication::topLevelWidgets())
        EXPECT_FALSE(window->isVisible());
}

TEST_F(Windows, ClosingTheMainWindowIsAskedOfTheForm) {
    struct Stubborn : SampleForm {
        using SampleForm::SampleForm;
        void Form_Unload(bool& cancel) override {
            ++asked;
            cancel = asked == 1;
        }
        int asked = 0;
    };
    Stubborn stubborn(services);
    Run(stubborn, [&](User& user) {
        user.Has([&] { platform.WindowOf(stubborn)->close(); });
        EXPECT_TRUE(stubborn.Loaded());
        user.Has([&] { platform.WindowOf(stubborn)->close(); });
        EXPECT_TRUE(user.Sees([&] { return !stubborn.Loaded(); }));
    });
    EXPECT_EQ(stubborn.asked, 2);
}

}  // namespace
}  // namespace coinlet::test
