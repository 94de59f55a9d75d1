#include "shell/qt_desktop.h"

#include "base/mounts.h"
#include "shell/qt_text.h"

#include <QDesktopServices>
#include <QDir>
#include <QStandardPaths>
#include <QUrl>

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <iterator>

namespace coinlet {

void QtDesktop::OpenDocument(const std::string& target) {
    const QUrl address = QUrl::fromUserInput(ToQString(target));
    if (address.isValid()) QDesktopServices::openUrl(address);
}

std::string QtDesktop::UserName() const {
    const passwd* user = getpwuid(geteuid());
    return user && user->pw_name ? user->pw_name : std::string();
}

std::filesystem::path QtDesktop::PictureFolder() const {
    return ToUtf8(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
}

std::vector<std::string> QtDesktop::StartingPlaces() const {
    std::vector<std::string> places{"/"};
    if (const QString home = QDir::homePath(); home != u"/") places.push_back(ToUtf8(home));
    std::ranges::copy(RemovablePlaces(), std::back_inserter(places));
    return places;
}

}  // namespace coinlet
