#include "started_program.h"

#include "base/numbers.h"
#include "text_places.h"

#include <QProcessEnvironment>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <iterator>
#include <thread>
#include <vector>

namespace coinlet::test {

namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

constexpr int patience = 20000;  // milliseconds; nothing depends on it where the program works
const fs::path builtProgram(COINLET_PROGRAM);

QStringList AsList(const std::vector<std::string>& words) {
    QStringList list;
    for (const auto& word : words)
        list << QString::fromStdString(word);
    return list;
}

/// Has the window system do something with the pointer or the keys.
void Do(const std::vector<std::string>& arguments) {
    ASSERT_EQ(QProcess::execute(QStringLiteral("xdotool"), AsList(arguments)), 0);
}

}  // namespace

bool Comes(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(patience);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(5ms);
    }
    return true;
}

StartedProgram::StartedProgram() {
    for (const auto& entry : fs::directory_iterator(builtProgram.parent_path())) {
        // What somebody left there who tried the program out is no part of it.
        if (entry.path().filename() == "Coinlet.ini") continue;
        fs::copy(entry.path(), folder / entry.path().filename(), fs::copy_options::recursive);
    }
    // The store is empty at first, whatever is delivered in it.
    fs::remove_all(folder / "Ontwerpen");
    fs::create_directory(folder / "Ontwerpen");
    command = {folder / builtProgram.filename()};
    fs::create_directory(home);
}

StartedProgram::~StartedProgram() {
    // The screen is the next test's.
    Kill();
}

void StartedProgram::Start() {
    // Where nothing lies that changes under the pointer.
    MoveTo({1390, 1040});
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", QString::fromStdString(home.string()));
    for (const char* variable : {"XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CONFIG_HOME"})
        environment.remove(variable);
    for (const auto& [name, value] : variables)
        environment.insert(QString::fromStdString(name), QString::fromStdString(value));
    process_.setProcessEnvironment(environment);
    process_.setProcessChannelMode(QProcess::ForwardedChannels);
    const QStringList words = AsList(command);
    process_.start(words.front(), words.mid(1));
    ASSERT_TRUE(Comes([&] {
        meanwhile();
        const auto windows = screen.Windows();
        if (windows.empty()) return false;
        window_ = windows.front();
        return ColourAt(PlaceOf(form.Pic, 250, 250)) == 0xFFFFFFFF;
    }));
}

bool StartedProgram::EndsWell() {
    return process_.waitForFinished(patience) && process_.exitStatus() == QProcess::NormalExit &&
           process_.exitCode() == 0;
}

bool StartedProgram::Runs() {
    return !process_.waitForFinished(0) && process_.state() == QProcess::Running;
}

void StartedProgram::Send(int signal) const {
    ASSERT_EQ(::kill(static_cast<pid_t>(process_.processId()), signal), 0);
}

void StartedProgram::CutOff() const {
    Do({"windowkill", std::to_string(window_.id)});
}

void StartedProgram::Kill() {
    if (process_.state() != QProcess::NotRunning) {
        process_.kill();
        process_.waitForFinished();
    }
    EXPECT_TRUE(Comes([&] { return screen.Windows().empty(); }));
}

QRect StartedProgram::MenuBar() const {
    const int formHeight = RoundHalfEven(form.Height / form.ChildUnitsPerPixel());
    return {window_.place.topLeft(), QSize(window_.place.width(), window_.place.height() - formHeight)};
}

QPoint StartedProgram::PlaceOf(const Control& control, int x, int y) const {
    QPoint place = MenuBar().bottomLeft() + QPoint(x, y + 1);
    for (const auto* part = &control; part != nullptr;) {
        const Container& parent = part->Parent();
        place += QPoint(RoundHalfEven(part->Left() / parent.ChildUnitsPerPixel()),
                        RoundHalfEven(part->Top() / parent.ChildUnitsPerPixel()));
        part = dynamic_cast<const Control*>(&parent);
    }
    return place;
}

QRect StartedProgram::PlaceOf(const Control& control) const {
    return {PlaceOf(control, 0, 0), QSize(control.PixelWidth(), control.PixelHeight())};
}

void StartedProgram::MoveTo(const QPoint& place) {
    Do({"mousemove", std::to_string(place.x()), std::to_string(place.y())});
}
void StartedProgram::Press() {
    Do({"mousedown", "1"});
}
void StartedProgram::Release() {
    Do({"mouseup", "1"});
}
void StartedProgram::Click(const QPoint& place) {
    Do({"mousemove", std::to_string(place.x()), std::to_string(place.y()), "click", "1"});
}
void StartedProgram::ClickRight() {
    Do({"click", "3"});
}
void StartedProgram::Key(const std::string& name) {
    Do({"key", name});
}
void StartedProgram::Keys(const std::string& name, int times) {
    Do({"key", "--delay", "4", "--repeat", std::to_string(times), name});
}
void StartedProgram::HoldKey(const std::string& name) {
    Do({"keydown", name});
}
void StartedProgram::LetGoKey(const std::string& name) {
    Do({"keyup", name});
}

OpenWindow StartedProgram::OpenMenu(const MenuItem& menu) {
    std::vector<const MenuItem*> bar;
    std::ranges::copy_if(form.Menus(), std::back_inserter(bar), &MenuItem::Visible);
    const std::vector<int> titles = TextColumns(Screen::Grab(MenuBar()));
    EXPECT_EQ(titles.size(), bar.size());
    const auto number = static_cast<std::size_t>(std::ranges::find(bar, &menu) - bar.begin());
    if (number >= titles.size()) return {};
    Click(MenuBar().topLeft() + QPoint(titles[number], MenuBar().height() / 2));
    return Front();
}

void StartedProgram::Choose(const OpenWindow& open, const MenuItem& entry) {
    std::vector<const MenuItem*> entries;
    std::ranges::copy_if(entry.Parent()->Entries(), std::back_inserter(entries),
                         [](const MenuItem* each) { return each->Visible && !each->IsSeparator(); });
    const std::vector<int> rows = TextRows(Look(open));
    ASSERT_EQ(rows.size(), entries.size());
    const auto number = static_cast<std::size_t>(std::ranges::find(entries, &entry) - entries.begin());
    Click(open.place.topLeft() + QPoint(open.place.width() / 3, rows.at(number)));
}

OpenWindow StartedProgram::Front(std::size_t others) {
    OpenWindow front;
    const bool came = Comes([&] {
        const auto windows = screen.Windows();
        if (windows.size() < others + 2) return false;
        front = windows.back();
        return true;
    });
    if (!came) return {};
    Look(front);
    return front;
}

bool StartedProgram::MainIsInFront() {
    return Comes([&] { return screen.Windows().size() == 1; });
}

QImage StartedProgram::Look(const OpenWindow& window) {
    QImage look = Screen::Grab(window.place);
    int same = 0;
    Comes([&] {
        const QImage now = Screen::Grab(window.place);
        same = now == look ? same + 1 : 0;
        look = now;
        return same == 10;
    });
    return look;
}

}  // namespace coinlet::test
