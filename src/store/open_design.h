#pragma once

namespace coinlet {

struct Context;

/// "Open Coinlet": the dialog over the stored designs, and then the sign that a design has an info text.
class OpenDesign {
public:
    explicit OpenDesign(Context& context);

private:
    void FileOpen_Click();
    /// Blinks three times if the design on the canvas has an info text, wherever that came from.
    void TellOfInfoText();

    Context& context_;
};

}  // namespace coinlet
