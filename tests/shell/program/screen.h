#pragma once

#include <QImage>
#include <QRect>

#include <cstdint>
#include <string>
#include <vector>

struct xcb_connection_t;

namespace coinlet::test {

/// A window on the screen, as the window system knows it.
struct OpenWindow {
    std::uint32_t id = 0;
    QRect place;
    friend bool operator==(const OpenWindow& a, const OpenWindow& b) { return a.id == b.id; }
};

/// The screen from outside of the program: its windows, their titles and the pixels.
class Screen {
public:
    Screen();
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// The windows that are shown, the lowest first.
    std::vector<OpenWindow> Windows() const;
    std::string TitleOf(const OpenWindow& window) const;
    /// If what is typed now goes to the window.
    bool HasTheKeys(const OpenWindow& window) const;
    /// Where the pointer is.
    QPoint Pointer() const;
    /// Asks the program to close the window, as the close box on its frame does.
    void AskToClose(const OpenWindow& window) const;
    static QImage Grab(const QRect& part);

private:
    std::uint32_t Atom(const std::string& name) const;

    xcb_connection_t* connection_;
    std::uint32_t root_ = 0;
};

}  // namespace coinlet::test
