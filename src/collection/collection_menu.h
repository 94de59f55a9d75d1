#pragma once

namespace coinlet {

struct Context;

/// "My Collection": the catalogue of the tags that the user owns.
class CollectionMenu {
public:
    explicit CollectionMenu(Context& context);

private:
    void ViewMyCollection_Click();

    Context& context_;
};

}  // namespace coinlet
