#pragma once

#include "base/clock.h"
#include "base/desktop.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/plaatjes.h"
#include "support/temporary_folder.h"
#include "support/test_platform.h"
#include "surface/clipboard.h"
#include "surface/codecs.h"
#include "surface/printer.h"
#include "surface/screen_grab.h"

namespace coinlet::test {

/// A JPEG here is the bytes of a bitmap behind its quality, so that a test can look into it.
class PlainCodecs : public PictureCodecs {
public:
    std::optional<Image> DecodeJpeg(std::span<const std::uint8_t>) const override { return std::nullopt; }
    std::optional<Image> DecodeGif(std::span<const std::uint8_t>) const override { return std::nullopt; }
    std::optional<Bytes> EncodeJpeg(const Image& image, int quality) const override {
        if (fails) return std::nullopt;
        auto bytes = EncodeBmp(image);
        if (bytes) bytes->insert(bytes->begin(), static_cast<std::uint8_t>(quality));
        return bytes;
    }

    bool fails = false;
};

class StillClock : public Clock {
public:
    DateTime Now() const override { return now; }

    DateTime now;
};

class PlainDesktop : public Desktop {
public:
    explicit PlainDesktop(fs::path pictures) : pictures_(std::move(pictures)) {}
    void OpenDocument(const std::string&) override {}
    std::string UserName() const override { return "user"; }
    fs::path PictureFolder() const override { return pictures_; }

private:
    fs::path pictures_;
};

class NoClipboard : public Clipboard {
public:
    void SetImage(const Image&) override {}
    Image GetImage() const override { return {}; }
};

class NoPrinter : public Printer {
public:
    std::vector<std::string> DeviceNames() const override { return {}; }
    std::string DeviceName() const override { return {}; }
    void SelectPrinter(std::string_view) override {}
    void SetOrientation(PageOrientation) override {}
    void FeedPage() override {}
    void Print(double, double, const FontProperties&, Colour, std::string_view) override {}
    void PaintPicture(const Image&, const Rectangle&) override {}
    void Box(double, double, double, double, Colour) override {}
    void NewPage() override {}
    void EndDoc() override {}
    void KillDoc() override {}
};

class NoScreenGrab : public ScreenGrab {
public:
    void GetCursorPos(int* x, int* y) const override { *x = *y = 0; }
    Image Grab(const PixelRect&) const override { return {}; }
};

/// The whole program behind its interfaces, but for what binds itself to the main form: that form, with a
/// store and a picture folder of its own, both empty.
class World {
public:
    World() {
        fs::create_directories(folder / "app/Ontwerpen");
        fs::create_directories(folder / "Pictures");
    }

    TemporaryFolder folder;
    TestPlatform platform;
    BlockFonts fonts;
    PlainCodecs codecs;
    StillClock clock;
    PlainDesktop desktop{folder / "Pictures"};
    NoClipboard clipboard;
    NoPrinter printer;
    NoScreenGrab screenGrab;
    Services services{folder / "app", platform,  fonts,   codecs,    clock,
                      desktop,        clipboard, printer, screenGrab};
    Session session;
    MainForm main{services.ForForms()};
    PlaatjesForm plaatjes{services.ForForms()};
    Context context{services, session, main, plaatjes};

    void SetRows(const std::vector<std::string>& rows) {
        main.List2.Clear();
        for (const std::string& row : rows)
            main.List2.AddItem(row);
    }
    std::vector<std::string> Rows() const {
        std::vector<std::string> rows;
        rows.reserve(static_cast<std::size_t>(main.List2.ListCount()));
        for (int i = 0; i < main.List2.ListCount(); ++i)
            rows.push_back(main.List2.List(i));
        return rows;
    }
    /// The content of a file in the folder of designs; "(no file)" if there is none.
    std::string Stored(const std::string& name) const { return folder.Read("app/Ontwerpen/" + name); }
    void Store(const std::string& name, std::string_view content) const {
        folder.Write("app/Ontwerpen/" + name, content);
    }
    std::ptrdiff_t StoredFiles() const {
        return std::distance(fs::directory_iterator(folder / "app/Ontwerpen"), {});
    }
};

}  // namespace coinlet::test
