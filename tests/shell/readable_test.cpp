// Every text can be read, whatever colours the desktop wants. Run on a plain desktop, on a dark one, and with
// a style and a style sheet that somebody dark gives to the program.

#include "sample_form.h"
#include "seen_texts.h"
#include "shell/form_window.h"
#include "shell/look.h"
#include "whole_program.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QProcess>
#include <QPushButton>
#include <QToolTip>
#include <QTreeView>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace coinlet::test {
namespace {

/// What accessible contents ask of texts of ordinary size.
constexpr double readable = 4.5;
/// What can't be used now is pale, and can still be made out.
constexpr double discernible = 2.5;

/// Expects that all texts of a window can be read, and that there are so many at least.
void ExpectReadable(QWidget& window, std::size_t least = 1) {
    const std::vector<SeenText> texts = TextsOf(window);
    EXPECT_GE(texts.size(), least) << window.metaObject()->className();
    for (const SeenText& text : texts)
        EXPECT_GE(text.contrast, text.enabled ? readable : discernible)
            << window.windowTitle().toStdString() << ": \"" << text.text.toStdString() << "\" in "
            << text.colour.name().toStdString() << " at " << text.place.x() << ", " << text.place.y();
}

template <class Widget>
Widget* Shown() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Widget*>(window); found && found->isVisible()) return found;
    return nullptr;
}

QWidget* ShownToolTip() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->inherits("QTipLabel")) return window;
    return nullptr;
}

TEST(SeenTexts, AreMeasuredAgainstWhatLiesBehindThem) {
    EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(Contrast(Qt::white, Qt::white), 1, 0.01);
    // 0.2126 * 0.2159 + 0.05 over 0.05: a middle level of red is a fifth as bright as white is.
    EXPECT_NEAR(Contrast(QColor(128, 0, 0), Qt::black), 1.918, 0.01);

    QWidget window;
    window.resize(300, 90);
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(40, 40, 40));
    window.setPalette(dark);
    QLabel clear("clear", &window), hidden("hidden", &window), grey("grey", &window), same("same", &window);
    QPalette letters = dark;
    letters.setColor(QPalette::WindowText, Qt::white);
    clear.setPalette(letters);
    letters.setColor(QPalette::WindowText, QColor(70, 70, 70));
    grey.setPalette(letters);
    letters.setColor(QPalette::WindowText, QColor(40, 40, 40));
    same.setPalette(letters);
    clear.move(10, 10);
    hidden.move(10, 30);
    hidden.setPalette(dark);
    grey.move(10, 50);
    grey.setEnabled(false);
    same.move(10, 70);
    window.ensurePolished();
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    hidden.hide();

    const std::vector<SeenText> texts = TextsOf(window);
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0].text, "clear");
    EXPECT_NEAR(texts[0].contrast, Contrast(Qt::white, QColor(40, 40, 40)), 0.01);
    EXPECT_TRUE(texts[0].enabled);
    EXPECT_TRUE(QRect(10, 10, 100, 20).contains(texts[0].place));
    EXPECT_EQ(texts[1].text, "grey");
    EXPECT_FALSE(texts[1].enabled);
    EXPECT_EQ(texts[2].text, "same");
    EXPECT_NEAR(texts[2].contrast, 1, 0.001);
}

TEST(SeenTexts, AreThoseThatAreSeen) {
    struct Scrolled : QWidget {
        void paintEvent(QPaintEvent*) override {
            QPainter painter(this);
            painter.fillRect(rect(), Qt::white);
            painter.setPen(Qt::black);
            painter.drawText(5, 15, "inside");
            painter.drawText(5, 60, "beyond its edge");
            painter.setClipRect(0, 0, 100, 3);
            painter.drawText(5, 35, "cut off");
        }
    };
    QWidget window;
    window.resize(200, 100);
    Scrolled part;
    part.setParent(&window);
    part.setGeometry(20, 10, 150, 40);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    const std::vector<SeenText> texts = TextsOf(window);
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].text, "inside");
    EXPECT_TRUE(QRect(20, 10, 150, 20).contains(texts[0].place));
}

class Readable : public ShellTest {
protected:
    SampleForm form{services};
};

/// The same for what isn't on the screen just now: each pair of colours that a widget puts on each other.
TEST_F(Readable, EveryPaletteStandsOutFromItself) {
    struct Pair {
        QPalette::ColorRole text, ground;
    };
    constexpr Pair pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::BrightText, QPalette::Dark},
        {QPalette::Link, QPalette::Window},
        {QPalette::LinkVisited, QPalette::Window},
    };
    std::vector<QPalette> palettes{QApplication::palette(), QToolTip::palette()};
    for (const char* widget :
         {"QMenu", "QMenuBar", "QMessageBox", "QInputDialog", "QFileDialog", "QLabel", "QLineEdit",
          "QTextEdit", "QPlainTextEdit", "QComboBox", "QListView", "QTreeView", "QAbstractItemView",
          "QHeaderView", "QPushButton", "QToolButton", "QScrollBar"})
        palettes.push_back(QApplication::palette(widget));
    for (const QPalette& palette : palettes) {
        for (const Pair& pair : pairs) {
            for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
                const double contrast =
                    Contrast(palette.color(group, pair.text), palette.color(group, pair.ground));
                EXPECT_GE(contrast, group == QPalette::Disabled ? discernible : readable)
                    << "palette " << &palette - palettes.data() << ", group " << group << ", role "
                    << pair.text;
            }
        }
    }
}

TEST_F(Readable, TheDesktopIsAsDarkAsItSaysItIs) {
    if (qgetenv("DARK_DESKTOP").isEmpty()) GTEST_SKIP() << "this one is of the toolkit's own colours";
    // What the desktop had ready before the program chose its own.
    const auto palette = qApp->property("desktopPalette").value<QPalette>();
    EXPECT_LT(palette.color(QPalette::Window).lightness(), 80);
    EXPECT_GT(palette.color(QPalette::WindowText).lightness(), 200);
}

TEST_F(Readable, EveryKindOfControlUsableOrNot) {
    Run(form, [&](User& user) {
        user.Has([&] {
            form.Text1.SetFocus();
            platform.Mirror();
            ExpectReadable(*platform.WindowOf(form), 8);
        });
        user.Has([&] {
            for (Element* element : form.Elements())
                if (auto* control = dynamic_cast<Control*>(element)) control->SetEnabled(false);
            platform.Mirror();
            ExpectReadable(*platform.WindowOf(form), 8);
        });
    });
}

TEST_F(Readable, MessageBoxes) {
    struct Kind {
        MessageIcon icon;
        QMessageBox::Icon shown;
    };
    constexpr Kind kinds[] = {{MessageIcon::None, QMessageBox::NoIcon},
                              {MessageIcon::Stop, QMessageBox::Critical},
                              {MessageIcon::Question, QMessageBox::Question},
                              {MessageIcon::Warning, QMessageBox::Warning},
                              {MessageIcon::Information, QMessageBox::Information}};
    form.OkKnop.Click = [&] {
        for (const Kind& kind : kinds)
            platform.ShowMessage({.prompt = "All of it?",
                                  .title = "Title",
                                  .buttons = MessageButtons::YesNo,
                                  .icon = kind.icon,
                                  .standard = Answer::No});
        form.log.emplace_back("answered");
    };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        for (const Kind& kind : kinds) {
            EXPECT_TRUE(user.Sees([&] {
                const auto* box = Shown<QMessageBox>();
                return box && box->isActiveWindow() && box->icon() == kind.shown;
            }));
            user.Has([&] { ExpectReadable(*Shown<QMessageBox>(), 3); });
            user.Key("Escape");
        }
        EXPECT_TRUE(user.Sees([&] { return form.Count("answered") == 1; }));
    });
}

TEST_F(Readable, InputBoxesAndTheMenuOfTheirField) {
    form.OkKnop.Click = [&] { platform.InputBox("Name:", "Save", "old"); };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        QPoint field;
        EXPECT_TRUE(user.Sees([&] {
            auto* box = Shown<QInputDialog>();
            return box && box->isActiveWindow();
        }));
        user.Has([&] {
            auto* box = Shown<QInputDialog>();
            auto* line = box->findChild<QLineEdit*>();
            EXPECT_EQ(line->selectedText(), "old");
            ExpectReadable(*box, 4);
            line->clear();
            line->setPlaceholderText("nothing yet");
            ExpectReadable(*box, 4);
            field = line->mapToGlobal(line->rect().center()) * line->devicePixelRatioF();
        });
        user.MoveTo(field);
        user.Press(3);
        user.Release(3);
        EXPECT_TRUE(user.Sees([] { return Shown<QMenu>() != nullptr; }));
        user.Has([] { ExpectReadable(*Shown<QMenu>(), 6); });
        user.Key("Escape");
        EXPECT_TRUE(user.Sees([] { return Shown<QMenu>() == nullptr; }));
        user.Key("Escape");
        EXPECT_TRUE(user.Sees([] { return Shown<QInputDialog>() == nullptr; }));
    });
}

TEST_F(Readable, FolderPickers) {
    const TemporaryFolder folder;
    for (const char* name : {"one", "two", "three"})
        fs::create_directory(folder / name);
    form.OkKnop.Click = [&] { platform.PickFolder("Select Folder", folder.Path()); };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] {
            auto* picker = Shown<QFileDialog>();
            const auto* list = picker ? picker->findChild<QListView*>("listView") : nullptr;
            return list && picker->isActiveWindow() && list->model()->rowCount(list->rootIndex()) == 3;
        }));
        user.Has([&] { ExpectReadable(*Shown<QFileDialog>(), 8); });
        user.Has([&] {
            auto* picker = Shown<QFileDialog>();
            picker->setViewMode(QFileDialog::Detail);
            auto* tree = picker->findChild<QTreeView*>("treeView");
            tree->selectAll();
            ExpectReadable(*picker, 12);
            for (auto* combo : picker->findChildren<QComboBox*>()) {
                if (!combo->isVisible()) continue;
                combo->showPopup();
                ExpectReadable(*combo->view()->window());
                combo->hidePopup();
            }
        });
        user.Key("Escape");
        EXPECT_TRUE(user.Sees([] { return Shown<QFileDialog>() == nullptr; }));
    });
}

TEST_F(Readable, ToolTips) {
    form.OkKnop.ToolTipText = "Does what it says";
    Run(form, [&](User& user) {
        user.MoveTo(user.PlaceOf(form.OkKnop, 10, 10));
        user.MoveTo(user.PlaceOf(form.OkKnop, 20, 12));
        ASSERT_TRUE(user.Sees([] { return ShownToolTip() != nullptr; }));
        user.Has([] { ExpectReadable(*ShownToolTip()); });
    });
}

class ReadableProgram : public WholeProgram {};

TEST_F(ReadableProgram, TheMainFormAndItsMenus) {
    Run(Main(), [&](User& user) {
        user.Has([&] { ExpectReadable(*platform.WindowOf(Main()), 40); });
        for (MenuItem* menu : Main().Menus()) {
            SCOPED_TRACE(std::string(menu->Name()));
            user.Has([&] { platform.PopupMenu(*menu); });
            EXPECT_TRUE(user.Sees([] { return Shown<QMenu>() != nullptr; }));
            user.Key("Down");
            user.Has([] { ExpectReadable(*Shown<QMenu>(), 2); });
            user.Key("Escape");
            EXPECT_TRUE(user.Sees([] { return Shown<QMenu>() == nullptr; }));
        }
        // Where another tool is in use, other controls stand there.
        for (const int tool : {eraseTool, textTool}) {
            user.Has([&, tool] {
                Main().Knop[tool].PointerClicked();
                platform.Mirror();
                ExpectReadable(*platform.WindowOf(Main()), 20);
            });
        }
    });
}

TEST_F(ReadableProgram, EveryDialogAndItsLists) {
    Run(Main(), [&](User& user) {
        for (const DialogRow& row : Dialogs()) {
            SCOPED_TRACE(std::string(row.form));
            Form& dialog = Open(user, row);
            user.Has([&] { ExpectReadable(*platform.WindowOf(dialog), 2); });
            user.Has([&] {
                for (auto* combo : platform.WindowOf(dialog)->findChildren<QComboBox*>()) {
                    if (!combo->isVisible() || !combo->isEnabled() || combo->count() == 0) continue;
                    combo->showPopup();
                    ExpectReadable(*combo->view()->window());
                    combo->hidePopup();
                }
            });
            user.Key("Escape");
            EXPECT_TRUE(user.Sees([&] { return platform.FrontForm() == &Main(); }));
        }
    });
}

}  // namespace
}  // namespace coinlet::test
