#pragma once

namespace coinlet {

struct Context;

/// "Copy to Clipboard": the canvas alone, without the side panel, as it is at that moment.
class ClipboardCopy {
public:
    explicit ClipboardCopy(Context& context);

private:
    void BewerkenCopy_Click();

    Context& context_;
};

}  // namespace coinlet
