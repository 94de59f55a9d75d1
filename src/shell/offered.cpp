#include "shell/offered.h"

#include "shell/qt_text.h"

#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace coinlet {

namespace {

// The formats that other programs offer pictures in, those without loss first.
constexpr const char* pictureFormats[] = {"image/png",  "image/bmp",  "image/x-bmp", "image/x-MS-bmp",
                                          "image/webp", "image/jpeg", "image/gif"};

/// A text that is the path of a file, or its address; copied from a window or a terminal, it may stand in
/// quotes and have a line end behind it.
void AddPathOf(QString text, std::vector<fs::path>& files) {
    text = text.trimmed();
    if (text.size() > 1 && (text.startsWith(u'"') || text.startsWith(u'\'')) && text.back() == text.front())
        text = text.mid(1, text.size() - 2);
    if (text.contains(u'\n')) return;
    if (text.startsWith(u'/')) files.emplace_back(ToUtf8(text));
    if (const QUrl address(text); address.isLocalFile()) files.emplace_back(ToUtf8(address.toLocalFile()));
}

}  // namespace

Offer OfferOf(const QMimeData& data) {
    Offer offer;
    for (const QUrl& address : data.urls())
        if (address.isLocalFile()) offer.files.emplace_back(ToUtf8(address.toLocalFile()));
    if (offer.files.empty() && data.hasText()) AddPathOf(data.text(), offer.files);
    for (const char* format : pictureFormats) {
        if (!data.hasFormat(QLatin1String(format))) continue;
        const QByteArray bytes = data.data(QLatin1String(format));
        if (bytes.isEmpty()) continue;
        offer.encoded.assign(bytes.begin(), bytes.end());
        break;
    }
    return offer;
}

bool MayHoldPicture(const QMimeData& data) {
    return data.hasUrls() || data.hasText() || std::ranges::any_of(pictureFormats, [&](const char* format) {
               return data.hasFormat(QLatin1String(format));
           });
}

}  // namespace coinlet
