#pragma once

#include "base/desktop.h"
#include "player/places.h"
#include "player/record.h"
#include "surface/clipboard.h"

namespace coinlet::player {

/// A desktop that only writes down what it is asked to open. The user is called "user".
class RecordingDesktop : public Desktop {
public:
    explicit RecordingDesktop(const Places& places) : places_(places) {}

    void OpenDocument(const std::string& target) override { documents.Add(target); }
    std::string UserName() const override { return "user"; }
    std::filesystem::path PictureFolder() const override { return places_.Pictures(); }
    std::vector<std::string> StartingPlaces() const override { return {"/", places_.Out().string()}; }

    Record<std::string> documents;

private:
    const Places& places_;
};

/// A clipboard that no other program sees.
class OwnClipboard : public Clipboard {
public:
    void SetImage(const Image& image) override { image_ = image; }
    Image GetImage() const override { return image_; }

private:
    Image image_;
};

}  // namespace coinlet::player
