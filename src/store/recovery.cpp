#include "store/recovery.h"

#include "base/clock.h"
#include "core/context.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"
#include "store/composed_picture.h"
#include "store/design_files.h"
#include "store/info_text.h"
#include "surface/codecs.h"

#include <string>

namespace coinlet {

namespace {

constexpr int longestWait = 10;  // seconds

/// True if a file of that name would be overwritten, or be one of a design that is there.
bool IsTaken(const fs::path& folder, const std::string& name) {
    const auto picture = DesignPicture(folder, name);
    return picture && (FileExists(*picture) || FileExists(InfoTextPath(*picture)));
}

/// `wanted`, or with the first number behind it under which there is no design yet.
std::string FreeName(const fs::path& folder, const std::string& wanted) {
    std::string name = wanted;
    for (int number = 2; IsTaken(folder, name); ++number)
        name = wanted + " (" + std::to_string(number) + ")";
    return name;
}

}  // namespace

Recovery::Recovery(Context& context, fs::path folder)
    : context_(context), folder_(std::move(folder)), snapshot_(folder_) {
    if (folder_.empty()) return;
    context.main.RecoveryTimer.Interval = 1000;
    context.main.RecoveryTimer.Tick = [this] { SecondPassed(); };
}

void Recovery::PutBackLostWork() {
    if (folder_.empty()) return;
    RemoveStrays(folder_);
    TakeLostSnapshots(folder_, [this](const DesignFiles& design, std::int64_t written) {
        return PutIntoStore(design, written);
    });
}

bool Recovery::PutIntoStore(const DesignFiles& design, std::int64_t written) {
    // A snapshot that went down with the machine half written holds no design that anybody could open.
    if (!DecodeBmp(design.picture)) return true;
    const fs::path& folder = context_.services.applicationFolder;
    const std::string name = FreeName(
        folder, LookupInfoText(context_, key::recovered) + " " + FormatForFileName(ToLocalTime(written)));
    const fs::path picture = DesignFile(folder, name, designPicture);
    const fs::path infoText = DesignFile(folder, name, designInfoText);
    // Its text first: with the picture, the design is there.
    if (design.infoText && ReplaceFile(infoText, *design.infoText)) return false;
    if (ReplaceFile(picture, design.picture)) {
        static_cast<void>(DeleteFile(infoText));
        return false;
    }
    context_.main.InfoLabel.Caption = LookupInfoText(context_, key::workRecovered) + " " + name;
    return true;
}

bool Recovery::HoldsUnsavedWork(const DesignRevision& now) const {
    return now != context_.session.StoredDesign;
}

void Recovery::SecondPassed() {
    ++secondsSinceWriting_;
    const DesignRevision now = RevisionOf(context_.main);
    if (!HoldsUnsavedWork(now)) {
        snapshot_.Remove();
        kept_.reset();
    } else if (now == lastSeen_) {
        WriteSnapshot(now);
    }
    lastSeen_ = now;
}

void Recovery::StrokeFinished() {
    if (folder_.empty() || secondsSinceWriting_ < longestWait) return;
    const DesignRevision now = RevisionOf(context_.main);
    if (HoldsUnsavedWork(now)) WriteSnapshot(now);
}

void Recovery::WriteNow() {
    if (folder_.empty()) return;
    const DesignRevision now = RevisionOf(context_.main);
    if (HoldsUnsavedWork(now)) WriteSnapshot(now);
}

void Recovery::KeepForNextStart() {
    if (folder_.empty() || !HoldsUnsavedWork(RevisionOf(context_.main))) return;
    WriteNow();
    snapshot_.Keep();
}

void Recovery::WriteSnapshot(const DesignRevision& now) {
    if (kept_ == now) return;
    const MainForm& main = context_.main;
    Surface picture(context_.services.fonts, composedWidth, composedHeight);
    ComposePicture(main.Pic.surface.Image(), main.InfoPic.surface.Image(), picture);
    auto bytes = EncodeBmp(picture.Image());
    if (!bytes) return;
    DesignFiles design{.picture = std::move(*bytes), .infoText = {}};
    if (main.List2.ListCount() > 0) design.infoText = InfoTextFile(main.List2);
    // One that couldn't be written is tried again.
    if (!snapshot_.Write(design)) return;
    kept_ = now;
    secondsSinceWriting_ = 0;
}

}  // namespace coinlet
