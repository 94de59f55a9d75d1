// Pictures: pixels, whole pictures from and to files, and filters.

#include "controls/picture_box.h"
#include "player/commands.h"
#include "player/failure.h"
#include "player/lookup.h"
#include "player/pictures.h"
#include "player/script_run.h"
#include "player/values.h"
#include "surface/codecs.h"

namespace coinlet::player {

namespace {

namespace fs = std::filesystem;

bool IsClipboard(const Address& address) {
    return address.parts.size() == 1 && Show(address.parts.front()) == "Clipboard";
}

/// What an address shows: `Clipboard`, or an element that holds pixels.
Image FindPicture(ScriptRun& run, const Address& address) {
    if (IsClipboard(address)) return run.TheWorld().clipboard.GetImage();
    auto picture = PictureOf(FindElement(run.TheLife(), address));
    if (!picture) Fail(address.text + " holds no picture");
    return *std::move(picture);
}

void SetPicture(ScriptRun& run, const Address& address, const Image& image) {
    if (IsClipboard(address)) {
        run.TheWorld().clipboard.SetImage(image);
    } else if (!SetPictureOf(FindElement(run.TheLife(), address), image)) {
        Fail(address.text + " can't have a picture");
    }
}

Image ReadPicture(const ScriptRun& run, const fs::path& file) {
    auto image = LoadPicture(file, run.Codecs());
    if (!image) Fail("expected a picture in " + file.string() + ", found none");
    return *std::move(image);
}

void WritePicture(const Image& image, const fs::path& file) {
    std::error_code error;
    fs::create_directories(file.parent_path(), error);
    if (const std::error_code failed = SavePicture(image, file))
        Fail("can't write " + file.string() + ": " + failed.message());
}

void Pixel(ScriptRun& run, const Arguments& arguments) {
    const Address address = arguments.Address(0);
    const int x = arguments.Whole(1), y = arguments.Whole(2);
    const double expected = arguments.Colour(3);
    const Colour found = FindPicture(run, address).At(x, y);
    if (found != expected) {
        Fail("expected " + ShowColour(expected) + " at " + std::to_string(x) + " " + std::to_string(y) +
             " of " + address.text + ", found " + ShowColour(found));
    }
}

void Load(ScriptRun& run, const Arguments& arguments) {
    const Address address = arguments.Address(0);
    SetPicture(run, address, ReadPicture(run, run.ThePlaces().BesideScript(arguments.Text(1))));
}

void Save(ScriptRun& run, const Arguments& arguments) {
    const Address address = arguments.Address(0);
    const Image picture = FindPicture(run, address);
    if (picture.Empty()) Fail("expected a picture in " + address.text + ", found none");
    WritePicture(picture, run.ThePlaces().InOut(arguments.Text(1)));
}

/// Keeps a picture that isn't what it should be where the user finds it: "disc.bmp" as "disc.found.bmp".
std::string KeepFound(const ScriptRun& run, const Image& picture, const std::string& name) {
    if (picture.Empty()) return {};
    const fs::path file = run.ThePlaces().Out() / fs::path(name).filename().replace_extension(".found.bmp");
    WritePicture(picture, file);
    return " (kept as " + file.string() + ")";
}

void Same(ScriptRun& run, const Arguments& arguments) {
    const Address address = arguments.Address(0);
    const std::string name = arguments.Text(1);
    const int tolerance = arguments.Count() > 2 ? arguments.Whole(2) : 0;
    const Image found = FindPicture(run, address);
    const fs::path saved = run.ThePlaces().InOut(name);
    const Image expected = ReadPicture(run, FileExists(saved) ? saved : run.ThePlaces().BesideScript(name));
    if (const auto difference = Difference(expected, found, tolerance))
        Fail(address.text + " isn't " + name + ": " + *difference + KeepFound(run, found, name));
}

void Filter(ScriptRun& run, const Arguments& arguments) {
    const Address address = arguments.Address(0);
    auto* picture = dynamic_cast<PictureBox*>(&FindElement(run.TheLife(), address));
    if (picture == nullptr) Fail(address.text + " is no surface");
    const int number = arguments.Whole(1), parameter = arguments.Whole(2);
    run.TheLife().program->RunFilter(number, picture->surface, parameter);
}

constexpr Command commands[] = {
    {"pixel", "ADDR X Y R,G,B", Needs::RunningProgram, Pixel},
    {"load", "ADDR FILE", Needs::RunningProgram, Load},
    {"save", "ADDR FILE", Needs::RunningProgram, Save},
    {"same", "ADDR FILE [TOLERANCE]", Needs::RunningProgram, Same},
    {"filter", "ADDR NUMBER PARAMETER", Needs::RunningProgram, Filter},
};

}  // namespace

std::span<const Command> PictureCommands() {
    return commands;
}

}  // namespace coinlet::player
