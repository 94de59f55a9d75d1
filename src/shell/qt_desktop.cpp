#include "shell/qt_desktop.h"

#include "shell/qt_text.h"

#include <QDesktopServices>
#include <QStandardPaths>
#include <QUrl>

#include <pwd.h>
#include <unistd.h>

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

}  // namespace coinlet
