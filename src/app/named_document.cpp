#include "app/named_document.h"

#include "store/design_files.h"
#include "store/shown_design.h"
#include "surface/clipboard.h"
#include "surface/codecs.h"
#include "tools/incoming_pictures.h"

#include <string>

namespace coinlet {

std::optional<NamedDocument> ReadNamedDocument(const fs::path& file, const PictureCodecs& codecs) {
    auto picture = LoadOfferedPicture(file, codecs);
    if (!picture || picture->Empty()) return std::nullopt;
    return NamedDocument{file, std::move(*picture)};
}

void ShowNamedDocument(Context& context, IncomingPictures& pictures, const NamedDocument& document) {
    const std::string name = document.file.filename().string();
    if (MatchesPattern(name, "*" + std::string(designPicture))) {
        ShowDesign(context, WithoutExtension(name), document.file, document.picture, document.picture);
    } else {
        pictures.Take({.files = {}, .encoded = {}, .image = document.picture});
    }
}

}  // namespace coinlet
