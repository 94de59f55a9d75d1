#pragma once

#include "base/desktop.h"
#include "player/places.h"
#include "player/record.h"
#include "surface/clipboard.h"

#include <utility>

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

/// A clipboard that no other program sees; a script puts there what one would.
class OwnClipboard : public Clipboard {
public:
    void SetImage(const Image& image) override { offer_ = {.files = {}, .encoded = {}, .image = image}; }
    Image GetImage() const override { return offer_.image; }
    Offer GetOffer() const override { return offer_; }

    void Put(Offer offer) { offer_ = std::move(offer); }

private:
    Offer offer_;
};

}  // namespace coinlet::player
