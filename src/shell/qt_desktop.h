#pragma once

#include "base/desktop.h"

namespace coinlet {

class QtDesktop : public Desktop {
public:
    void OpenDocument(const std::string& target) override;
    std::string UserName() const override;
    std::filesystem::path PictureFolder() const override;
    std::vector<std::string> StartingPlaces() const override;
};

}  // namespace coinlet
