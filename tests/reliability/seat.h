#pragma once

#include "base/files.h"
#include "core/main_form.h"
#include "support/test_platform.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

struct xcb_connection_t;

namespace coinlet::test {

/// A screen that nobody else sees, with the program before it, in a home and an application folder of its
/// own. It is used by the pointer and keys of the window system, without a process for each of their events,
/// so that many may sit side by side. All calls throw std::runtime_error where the window system or the
/// program doesn't do what it is asked for within a time that no working one needs.
class Seat {
public:
    /// Everything lies in `folder`, which must be there.
    Seat(fs::path program, fs::path folder);
    ~Seat();
    Seat(const Seat&) = delete;
    Seat& operator=(const Seat&) = delete;

    fs::path Application() const { return folder_ / "app"; }
    fs::path Designs() const { return Application() / "Ontwerpen"; }
    fs::path Pictures() const { return folder_ / "home/Pictures"; }
    fs::path State() const { return folder_ / "home/.local/state/coinlet-designer"; }

    /// Starts the program and waits until its canvas is painted and has nothing drawn on it.
    void Start();
    void Send(int signal) const;
    /// Kills the program, or waits for it if it has ended meanwhile.
    void Kill();
    pid_t Process() const { return process_; }

    void MoveTo(int x, int y) const;
    /// To where nothing lies that changes under the pointer.
    void MoveAway() const { MoveTo(1108, 738); }
    void Press() const;
    /// Returns when the window system has it.
    void Release() const;
    void ClickAt(int x, int y) const;
    /// A key by its keysym.
    void Key(std::uint32_t keysym) const;
    void KeyWithControl(std::uint32_t keysym) const;
    void Type(std::string_view letters) const;
    /// Takes an entry of a menu of the main window by keys. Both count from 0, what can't be chosen left out.
    void ChooseByKeys(int menu, int entry) const;
    /// The same for an entry of the main form that lies in a menu of its menu bar.
    void ChooseByKeys(const MenuItem& entry) const;

    struct Window {
        std::uint32_t id = 0;
        int x = 0, y = 0, width = 0, height = 0;
    };
    /// Waits until so many windows are shown and the uppermost has the keys, which is returned.
    Window Front(std::size_t windows) const;
    /// The place on the screen of a pixel of a control of the main form.
    struct Place {
        int x, y;
    };
    Place PlaceOf(const Control& control, int x, int y) const;
    /// 0xRRGGBB
    std::uint32_t ColourAt(Place place) const;

    /// Where everything is: the program's own form, without a window.
    const MainForm& Form() const { return form_; }

private:
    void StartScreen();
    std::vector<Window> Windows() const;
    void Fake(std::uint8_t type, std::uint8_t detail, int x = 0, int y = 0) const;
    std::uint8_t CodeOf(std::uint32_t keysym) const;

    fs::path program_, folder_;
    TestServices services_;
    MainForm form_{services_.ForForms()};
    xcb_connection_t* connection_ = nullptr;
    std::uint32_t root_ = 0;
    std::string display_;
    pid_t server_ = -1, process_ = -1;
    Window main_;
};

/// Waits until `condition` holds; throws what didn't come otherwise.
void WaitFor(const std::function<bool()>& condition, const std::string& what);

}  // namespace coinlet::test
